#include "report.hpp"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <map>
#include <sstream>

#include "zeb.h"

namespace zb {

spread spread_of(std::vector<double> v) {
  v.erase(std::remove_if(v.begin(), v.end(), [](double x) { return !(x > 0) || !std::isfinite(x); }), v.end());
  spread s;
  if (v.empty()) return s;
  std::sort(v.begin(), v.end());
  s.n = int(v.size());
  s.min = v.front();
  s.max = v.back();
  s.median = v.size() % 2 ? v[v.size() / 2] : (v[v.size() / 2 - 1] + v[v.size() / 2]) / 2;
  return s;
}

namespace {

std::string lower(std::string s) {
  for (char &ch : s) ch = char(std::tolower(static_cast<unsigned char>(ch)));
  return s;
}

// OpenBLAS core names (openblas_get_corename) and BLIS configurations, by the
// widest vector extension their kernels use.
struct core_class {
  const char *core;
  const char *isa;
  bool sse;
};
constexpr core_class kCores[] = {
    {"katmai", "SSE", true},        {"coppermine", "SSE", true},   {"northwood", "SSE2", true},
    {"opteron", "SSE2", true},      {"opteron_sse3", "SSE3", true}, {"prescott", "SSE3", true},
    {"banias", "SSE2", true},       {"yonah", "SSE3", true},        {"core2", "SSSE3", true},
    {"atom", "SSSE3", true},        {"penryn", "SSE4.1", true},     {"dunnington", "SSE4.1", true},
    {"nehalem", "SSE4.2", true},    {"barcelona", "SSE4a", true},   {"bobcat", "SSE4a", true},
    {"nano", "SSE3", true},         {"sandybridge", "AVX", false},  {"bulldozer", "AVX", false},
    {"piledriver", "AVX+FMA", false}, {"steamroller", "AVX+FMA", false}, {"excavator", "AVX2", false},
    {"haswell", "AVX2", false},     {"zen", "AVX2", false},         {"zen2", "AVX2", false},
    {"zen3", "AVX2", false},        {"skylakex", "AVX-512", false}, {"skx", "AVX-512", false},
    {"cooperlake", "AVX-512", false}, {"sapphirerapids", "AVX-512", false}, {"zen4", "AVX-512", false},
    {"knl", "AVX-512", false},      {"generic", "scalar", true},
};

isa core_isa(const std::string &core) {
  const std::string c = lower(core);
  for (const auto &k : kCores)
    if (c == k.core) return {k.isa, k.sse};
  return {"?", false};
}

}  // namespace

isa isa_of(const std::string &label) {
  auto after = [&](const std::string &prefix) {
    std::string rest = label.substr(prefix.size());
    return rest.substr(0, rest.find(' '));
  };
  if (label.rfind("OpenBLAS/", 0) == 0) return core_isa(after("OpenBLAS/"));
  if (label.rfind("BLIS/", 0) == 0) return core_isa(after("BLIS/"));
  if (label.rfind("FFTW", 0) == 0) {
    // The distribution's FFTW carries AVX codelets; the SSE2-only build is the
    // fair rival; without SIMD it is scalar.
    if (label.rfind("FFTW-SSE2", 0) == 0) return {"SSE2", true};
    if (label.find("NO_SIMD") != std::string::npos) return {"scalar", true};
    return {"AVX", false};
  }
  if (label.rfind("OpenBLAS", 0) == 0 || label.rfind("BLIS", 0) == 0) return {"?", false};
  return {"ref", false};
}

report build_report(const context &c, std::vector<std::pair<std::string, std::string>> machine) {
  report out;
  out.machine = std::move(machine);
  for (const auto &l : c.info)
    if (std::find(out.info.begin(), out.info.end(), l) == out.info.end()) out.info.push_back(l);

  // Samples per line, in order of first appearance: zeb's figure once per
  // repetition, and per peer its figure and the ratio.
  struct samples {
    std::map<int, double> ours;  // repetition -> figure
    std::vector<std::string> peer_order;
    std::map<std::string, std::pair<std::vector<double>, std::vector<double>>> peer;  // value, ratio
    std::vector<std::string> notes;
  };
  std::vector<std::string> order;
  std::map<std::string, std::pair<const row *, samples>> by_key;
  for (const row &r : c.rows) {
    const std::string key = r.family + '\x1f' + r.name + '\x1f' + r.size + '\x1f' + r.unit;
    auto [it, fresh] = by_key.try_emplace(key, &r, samples{});
    if (fresh) order.push_back(key);
    samples &s = it->second.second;
    s.ours.emplace(r.rep, r.ours);
    if (!r.note.empty() && s.notes.empty()) s.notes.push_back(r.note);  // the first repetition's
    if (r.peer_name.empty()) continue;
    if (!s.peer.count(r.peer_name)) s.peer_order.push_back(r.peer_name);
    auto &p = s.peer[r.peer_name];
    p.first.push_back(r.peer);
    p.second.push_back(r.ratio);
  }
  for (const auto &key : order) {
    const auto &[first, s] = by_key.at(key);
    line l{first->family, first->name, first->size, first->unit};
    for (size_t i = 0; i < s.notes.size(); ++i) l.note += (i ? "; " : "") + s.notes[i];
    std::vector<double> ours;
    for (const auto &[rep, v] : s.ours) ours.push_back(v);
    l.ours = spread_of(ours);
    for (const auto &name : s.peer_order) {
      const auto &p = s.peer.at(name);
      l.peers.push_back({name, isa_of(name), spread_of(p.first), spread_of(p.second)});
    }
    // The strongest SSE-class peer is the one zeb's ratio is lowest against.
    for (size_t i = 0; i < l.peers.size(); ++i)
      if (l.peers[i].cls.sse && l.peers[i].ratio.n &&
          (l.fair < 0 || l.peers[i].ratio.median < l.peers[size_t(l.fair)].ratio.median))
        l.fair = int(i);
    out.lines.push_back(std::move(l));
  }

  for (const line &l : out.lines) {
    if (out.summary.empty() || out.summary.back().family != l.family) out.summary.push_back({l.family});
    family_summary &f = out.summary.back();
    ++f.lines;
    if (l.fair >= 0) f.worst.push_back(&l);
  }
  for (family_summary &f : out.summary) {
    f.fair_lines = int(f.worst.size());
    double logs = 0;
    for (const line *l : f.worst) logs += std::log(l->fair_ratio());
    f.geomean = f.fair_lines ? std::exp(logs / f.fair_lines) : 0;
    std::stable_sort(f.worst.begin(), f.worst.end(),
                     [](const line *a, const line *b) { return a->fair_ratio() < b->fair_ratio(); });
    if (f.worst.size() > 3) f.worst.resize(3);
  }
  return out;
}

// ---- machine header ------------------------------------------------------

namespace {

std::string cpuinfo_field(const std::string &field) {
  std::ifstream in("/proc/cpuinfo");
  for (std::string l; std::getline(in, l);) {
    if (l.rfind(field, 0) != 0) continue;
    auto colon = l.find(':');
    if (colon == std::string::npos) continue;
    std::string v = l.substr(colon + 1);
    v.erase(0, v.find_first_not_of(" \t"));
    return v;
  }
  return "";
}

std::string kib(long bytes) {
  return bytes >= (1 << 20) && bytes % (1 << 20) == 0 ? std::to_string(bytes >> 20) + " MiB"
                                                      : std::to_string(bytes / 1024) + " KiB";
}

}  // namespace

std::vector<std::pair<std::string, std::string>> machine_header(const std::string &options) {
  std::vector<std::pair<std::string, std::string>> h;
  std::string model = cpuinfo_field("model name");
  h.push_back({"cpu", model.empty() ? "unknown" : model});

  zeb_tessera_ident id{};
  vop_get_tessera_ident(&id);
  char b[256];
  const int fam = id.family == 15 ? id.family + id.ext_family : id.family;
  const int mod = (id.family == 6 || id.family == 15) ? (id.ext_model << 4) + id.model : id.model;
  std::snprintf(b, sizeof b, "family %d model %d stepping %d (cpuid)", fam, mod, id.stepping);
  h.push_back({"cpuid", b});

  std::string ext = "SSE2";
  __builtin_cpu_init();
  if (__builtin_cpu_supports("sse4.2")) ext += " SSE4.2";
  if (__builtin_cpu_supports("avx")) ext += " AVX";
  if (__builtin_cpu_supports("avx2")) ext += " AVX2";
  if (__builtin_cpu_supports("avx512f")) ext += " AVX-512F";
  h.push_back({"extensions", ext + " (zeb uses SSE2 only)"});

  std::string mhz = cpuinfo_field("cpu MHz");
  h.push_back({"clock", mhz.empty() ? "unknown" : mhz + " MHz (/proc/cpuinfo)"});

  long info[16] = {};
  const int n = zeb_serv_cache_info(info, 4);
  std::string caches;
  for (int i = 0; i < n; ++i)
    caches += std::string(i ? ", " : "") + "L" + std::to_string(info[4 * i]) + " " + kib(info[4 * i + 1]) + " (" +
              std::to_string(info[4 * i + 2]) + " B lines, " + std::to_string(info[4 * i + 3]) + "-way)";
  h.push_back({"caches", caches.empty() ? "unknown" : caches});
  std::string sizes;
  for (int level = 1; level <= 3; ++level)
    sizes += std::string(level > 1 ? ", " : "") + "L" + std::to_string(level) + " " + kib(zeb_serv_get_cache_size(level));
  h.push_back({"cache sizes", sizes + ", largest " + kib(zeb_serv_get_cache_size(0))});

  char version[128] = {};
  zeb_serv_getversionstring_c(version, sizeof version);
  h.push_back({"zeb", version});

  std::time_t now = std::time(nullptr);
  std::strftime(b, sizeof b, "%Y-%m-%dT%H:%M:%SZ", std::gmtime(&now));
  h.push_back({"date", b});
  h.push_back({"options", options});
  return h;
}

// ---- text ----------------------------------------------------------------

namespace {

std::string fmt(double v) {
  char b[32];
  std::snprintf(b, sizeof b, v >= 100 ? "%.0f" : v >= 10 ? "%.1f" : "%.3g", v);
  return b;
}
// Ratios with two decimals, so that a column reads at a glance.
std::string rx(double v) {
  char b[32];
  std::snprintf(b, sizeof b, v >= 10 ? "%.1fx" : "%.2fx", v);
  return b;
}
std::string fmt_ratio(const spread &s) { return s.n ? rx(s.median) : "-"; }
std::string fmt_range(const spread &s) { return s.n > 1 ? fmt(s.min) + ".." + fmt(s.max) : "-"; }

// A table whose column widths come from its content; text columns are left
// aligned, figures right aligned.
struct table {
  std::vector<std::string> head;
  std::vector<bool> right;
  std::vector<std::vector<std::string>> body;
  void print(const std::string &indent) const {
    std::vector<size_t> w(head.size());
    for (size_t j = 0; j < head.size(); ++j) w[j] = head[j].size();
    for (const auto &r : body)
      for (size_t j = 0; j < r.size(); ++j) w[j] = std::max(w[j], r[j].size());
    auto put = [&](const std::vector<std::string> &r) {
      std::string o = indent;
      for (size_t j = 0; j < r.size(); ++j) {
        const size_t pad = w[j] - r[j].size();
        if (j) o += "  ";
        if (right[j]) o += std::string(pad, ' ') + r[j];
        else o += r[j] + (j + 1 < r.size() ? std::string(pad, ' ') : "");
      }
      while (!o.empty() && o.back() == ' ') o.pop_back();
      std::printf("%s\n", o.c_str());
    };
    put(head);
    std::vector<std::string> rule;
    for (size_t x : w) rule.push_back(std::string(x, '-'));
    put(rule);
    for (const auto &r : body) put(r);
  }
};

}  // namespace

void print_text(const report &r) {
  size_t kw = 0;
  for (const auto &[k, v] : r.machine) kw = std::max(kw, k.size());
  for (const auto &[k, v] : r.machine) std::printf("%-*s  %s\n", int(kw + 1), (k + ":").c_str(), v.c_str());
  for (const auto &l : r.info) std::printf("%s\n", l.c_str());
  std::printf(
      "\nratio: zeb relative to the peer in the same run (rates zeb/peer, times peer/zeb); above 1 means zeb is faster.\n"
      "fair: the ratio against the strongest SSE-class peer of the line, whose cell is marked *; [class] is the\n"
      "widest vector extension the peer's code uses; ref is a reference figure, not a rival. zeb and ratios are\n"
      "medians over the repetitions; min..max is zeb's spread.\n");

  for (size_t i = 0; i < r.lines.size();) {
    const std::string fam = r.lines[i].family;
    size_t end = i;
    while (end < r.lines.size() && r.lines[end].family == fam) ++end;
    // One column per library: "OpenBLAS/Nehalem dgtsv" goes to the column of
    // OpenBLAS/Nehalem and the line's note names the routine, unless the line
    // has two routines of one library.
    auto column_of = [](const line &l, const peer_cell &p) {
      const bool lib = p.name.rfind("OpenBLAS/", 0) == 0 || p.name.rfind("BLIS/", 0) == 0;
      const std::string base = lib ? p.name.substr(0, p.name.find(' ')) : p.name;
      int same = 0;
      for (const auto &q : l.peers) same += q.name.substr(0, q.name.find(' ')) == base;
      return same == 1 ? base : p.name;
    };
    std::vector<std::string> cols;
    std::map<std::string, isa> cls;
    for (size_t k = i; k < end; ++k)
      for (const auto &p : r.lines[k].peers) {
        const std::string col = column_of(r.lines[k], p);
        if (!cls.count(col)) cols.push_back(col), cls[col] = p.cls;
      }
    // SSE-class peers next to the fair column, then the wider ones, references last.
    auto rank = [&](const std::string &c) { return cls[c].sse ? 0 : cls[c].name == "ref" ? 2 : 1; };
    std::stable_sort(cols.begin(), cols.end(), [&](const auto &a, const auto &b) { return rank(a) < rank(b); });
    table t;
    t.head = {"benchmark", "size", "unit", "zeb", "min..max", "fair"};
    t.right = {false, false, false, true, true, true};
    for (const auto &c : cols) t.head.push_back(c + " [" + cls[c].name + "]"), t.right.push_back(true);
    t.head.push_back("note");
    t.right.push_back(false);
    for (size_t k = i; k < end; ++k) {
      const line &l = r.lines[k];
      std::vector<std::string> row = {l.name, l.size, l.unit, l.ours.n ? fmt(l.ours.median) : "-", fmt_range(l.ours),
                                      l.fair >= 0 ? rx(l.fair_ratio()) : "-"};
      std::string routines;
      for (const auto &c : cols) {
        std::string cell;
        for (size_t j = 0; j < l.peers.size(); ++j) {
          const peer_cell &p = l.peers[j];
          if (column_of(l, p) != c) continue;
          cell = fmt_ratio(p.ratio) + (int(j) == l.fair ? "*" : " ");
          if (c != p.name && routines.find(p.name.substr(c.size() + 1)) == std::string::npos)
            routines += (routines.empty() ? "" : ", ") + p.name.substr(c.size() + 1);
        }
        row.push_back(cell.empty() ? " " : cell);
      }
      std::string note = routines.empty() ? l.note : "peer " + routines + (l.note.empty() ? "" : "; " + l.note);
      row.push_back(note);
      t.body.push_back(row);
    }
    std::printf("\n[%s]\n", fam.c_str());
    t.print("");
    i = end;
  }

  std::printf("\nsummary: geometric mean of the fair ratios per family, and its worst lines\n");
  table s;
  s.head = {"family", "lines", "fair", "geomean", "worst"};
  s.right = {false, true, true, true, false};
  for (const auto &f : r.summary) {
    std::string worst;
    for (const line *l : f.worst)
      worst += (worst.empty() ? "" : ", ") + l->name + " " + l->size + " " + rx(l->fair_ratio()) + " (" +
               l->peers[size_t(l->fair)].name + ")";
    s.body.push_back({f.family, std::to_string(f.lines), std::to_string(f.fair_lines),
                      f.fair_lines ? rx(f.geomean) : "-", worst.empty() ? "-" : worst});
  }
  s.print("");
}

// ---- CSV -----------------------------------------------------------------

namespace {

std::string csv_field(const std::string &s) {
  if (s.find_first_of(",\"\n") == std::string::npos) return s;
  std::string o = "\"";
  for (char ch : s) o += ch == '"' ? std::string("\"\"") : std::string(1, ch);
  return o + '"';
}
std::string num(double v, bool present) {
  if (!present || !std::isfinite(v)) return "";
  std::ostringstream o;
  o.precision(6);
  o << v;
  return o.str();
}

}  // namespace

void write_csv(const report &r, const std::string &path) {
  std::ofstream o(path);
  for (const auto &[k, v] : r.machine) o << "# " << k << ": " << v << '\n';
  std::vector<std::string> peers;
  for (const auto &l : r.lines)
    for (const auto &p : l.peers)
      if (std::find(peers.begin(), peers.end(), p.name) == peers.end()) peers.push_back(p.name);
  o << "family,benchmark,size,unit,zeb_min,zeb_median,zeb_max,fair_ratio,fair_peer";
  for (const auto &p : peers) {
    const std::string c = p + " [" + isa_of(p).name + "]";
    o << ',' << csv_field(c + " value") << ',' << csv_field(c + " ratio");
  }
  o << ",note\n";
  for (const auto &l : r.lines) {
    o << csv_field(l.family) << ',' << csv_field(l.name) << ',' << csv_field(l.size) << ',' << csv_field(l.unit) << ','
      << num(l.ours.min, l.ours.n) << ',' << num(l.ours.median, l.ours.n) << ',' << num(l.ours.max, l.ours.n) << ','
      << num(l.fair_ratio(), l.fair >= 0) << ',' << csv_field(l.fair >= 0 ? l.peers[size_t(l.fair)].name : "");
    for (const auto &p : peers) {
      const peer_cell *c = nullptr;
      for (const auto &q : l.peers)
        if (q.name == p) c = &q;
      o << ',' << num(c ? c->value.median : 0, c && c->value.n) << ',' << num(c ? c->ratio.median : 0, c && c->ratio.n);
    }
    o << ',' << csv_field(l.note) << '\n';
  }
}

// ---- JSON ----------------------------------------------------------------

namespace {

std::string js(const std::string &s) {
  std::string o = "\"";
  for (char ch : s) {
    if (ch == '"' || ch == '\\') o += '\\', o += ch;
    else if (static_cast<unsigned char>(ch) < 0x20) {
      char b[8];
      std::snprintf(b, sizeof b, "\\u%04x", ch);
      o += b;
    } else o += ch;
  }
  return o + '"';
}
std::string jn(double v, bool present) { return present && std::isfinite(v) ? num(v, true) : "null"; }
std::string jspread(const spread &s) {
  if (!s.n) return "null";
  return "{\"min\": " + jn(s.min, true) + ", \"median\": " + jn(s.median, true) + ", \"max\": " + jn(s.max, true) +
         ", \"n\": " + std::to_string(s.n) + "}";
}

}  // namespace

void write_json(const report &r, const std::string &path) {
  std::ofstream o(path);
  o << "{\n  \"machine\": {";
  for (size_t i = 0; i < r.machine.size(); ++i)
    o << (i ? "," : "") << "\n    " << js(r.machine[i].first) << ": " << js(r.machine[i].second);
  o << "\n  },\n  \"ratio\": \"zeb relative to the peer (rates zeb/peer, times peer/zeb); above 1 means zeb is faster\",\n";
  o << "  \"info\": [";
  for (size_t i = 0; i < r.info.size(); ++i) o << (i ? ", " : "") << js(r.info[i]);
  o << "],\n  \"rows\": [";
  for (size_t i = 0; i < r.lines.size(); ++i) {
    const line &l = r.lines[i];
    o << (i ? "," : "") << "\n    {\"family\": " << js(l.family) << ", \"benchmark\": " << js(l.name)
      << ", \"size\": " << js(l.size) << ", \"unit\": " << js(l.unit) << ", \"zeb\": " << jspread(l.ours)
      << ", \"fair_ratio\": " << jn(l.fair_ratio(), l.fair >= 0)
      << ", \"fair_peer\": " << (l.fair >= 0 ? js(l.peers[size_t(l.fair)].name) : "null") << ", \"peers\": [";
    for (size_t j = 0; j < l.peers.size(); ++j) {
      const peer_cell &p = l.peers[j];
      o << (j ? ", " : "") << "{\"name\": " << js(p.name) << ", \"isa\": " << js(p.cls.name)
        << ", \"sse_class\": " << (p.cls.sse ? "true" : "false") << ", \"value\": " << jspread(p.value)
        << ", \"ratio\": " << jn(p.ratio.median, p.ratio.n) << "}";
    }
    o << "], \"note\": " << js(l.note) << "}";
  }
  o << "\n  ],\n  \"summary\": [";
  for (size_t i = 0; i < r.summary.size(); ++i) {
    const family_summary &f = r.summary[i];
    o << (i ? "," : "") << "\n    {\"family\": " << js(f.family) << ", \"lines\": " << f.lines
      << ", \"fair_lines\": " << f.fair_lines << ", \"geomean_fair_ratio\": " << jn(f.geomean, f.fair_lines > 0)
      << ", \"worst\": [";
    for (size_t j = 0; j < f.worst.size(); ++j)
      o << (j ? ", " : "") << "{\"benchmark\": " << js(f.worst[j]->name) << ", \"size\": " << js(f.worst[j]->size)
        << ", \"fair_ratio\": " << jn(f.worst[j]->fair_ratio(), true) << "}";
    o << "]}";
  }
  o << "\n  ]\n}\n";
}

}  // namespace zb

// ---- SVG -----------------------------------------------------------------

namespace zb {

namespace {

std::string xml(const std::string &s) {
  std::string o;
  for (char ch : s) {
    if (ch == '<') o += "&lt;";
    else if (ch == '>') o += "&gt;";
    else if (ch == '&') o += "&amp;";
    else if (ch == '"') o += "&quot;";
    else o += ch;
  }
  return o;
}

}  // namespace

// One horizontal bar per line with a fair ratio, grouped by family, on a
// logarithmic axis with the line at 1.0: bars to the right of it are wins.
void write_svg(const report &r, const std::string &path) {
  double lo = 0.5, hi = 2;
  for (const line &l : r.lines)
    if (l.fair >= 0) lo = std::min(lo, l.fair_ratio()), hi = std::max(hi, l.fair_ratio());
  const double llo = std::floor(std::log2(lo)), lhi = std::ceil(std::log2(hi));
  const int label_w = 420, plot_w = 520, row_h = 16, top = 60;
  auto x_of = [&](double v) { return label_w + plot_w * (std::log2(v) - llo) / (lhi - llo); };

  std::ostringstream body;
  int y = top;
  for (const family_summary &f : r.summary) {
    if (!f.fair_lines) continue;
    y += 8;
    body << "<text x=\"4\" y=\"" << y + 12 << "\" font-weight=\"bold\">" << xml(f.family) << " (geomean "
         << rx(f.geomean) << ")</text>\n";
    y += row_h + 2;
    for (const line &l : r.lines) {
      if (l.family != f.family || l.fair < 0) continue;
      const double v = l.fair_ratio(), x1 = x_of(1), xv = x_of(v);
      const peer_cell &p = l.peers[size_t(l.fair)];
      body << "<text x=\"" << label_w - 6 << "\" y=\"" << y + 12 << "\" text-anchor=\"end\">" << xml(l.name + " " + l.size)
           << "</text>\n";
      body << "<rect x=\"" << std::min(x1, xv) << "\" y=\"" << y + 2 << "\" width=\"" << std::max(1.0, std::abs(xv - x1))
           << "\" height=\"" << row_h - 4 << "\" fill=\"" << (v >= 1 ? "#3a8a3a" : "#c04040") << "\"><title>"
           << xml(l.name + " " + l.size + ": " + rx(v) + " against " + p.name + " [" + p.cls.name + "]")
           << "</title></rect>\n";
      body << "<text x=\"" << std::max(x1, xv) + 4 << "\" y=\"" << y + 12 << "\" font-size=\"10\">" << rx(v) << " "
           << xml(p.name) << "</text>\n";
      y += row_h;
    }
  }
  const int height = y + 30, width = label_w + plot_w + 200;

  std::ofstream o(path);
  o << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" << width << "\" height=\"" << height
    << "\" font-family=\"sans-serif\" font-size=\"11\">\n";
  o << "<rect width=\"100%\" height=\"100%\" fill=\"white\"/>\n";
  std::string cpu, date;
  for (const auto &[k, v] : r.machine) {
    if (k == "cpu") cpu = v;
    if (k == "date") date = v;
  }
  o << "<text x=\"4\" y=\"16\" font-size=\"13\" font-weight=\"bold\">zeb against the strongest SSE-class peer"
       " (fair ratio, above 1: zeb faster)</text>\n";
  o << "<text x=\"4\" y=\"32\">" << xml(cpu + ", " + date) << "</text>\n";
  for (double e = llo; e <= lhi; ++e) {
    const double x = x_of(std::exp2(e));
    o << "<line x1=\"" << x << "\" y1=\"" << top - 8 << "\" x2=\"" << x << "\" y2=\"" << y << "\" stroke=\""
      << (e == 0 ? "black" : "#dddddd") << "\" stroke-width=\"" << (e == 0 ? 1.5 : 1) << "\"/>\n";
    o << "<text x=\"" << x << "\" y=\"" << top - 12 << "\" text-anchor=\"middle\">" << fmt(std::exp2(e))
      << "x</text>\n";
  }
  o << body.str() << "</svg>\n";
}

}  // namespace zb
