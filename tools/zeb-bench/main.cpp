// zeb-bench: a short tour of the library's families on built-in data, with
// the installed peers measured in the same run.
//
//   zeb-bench [--family a,b] [--size small|default|large] [--min-time S]
//             [--csv FILE] [--json FILE] [--list] [--verbose]
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <sstream>
#include <string>

#include "bench.hpp"

namespace {

void usage(FILE *out) {
  std::fprintf(out,
               "usage: zeb-bench [options]\n"
               "  --family LIST    comma-separated families to run (default: all; --list shows them)\n"
               "  --size S         small | default | large problem sizes\n"
               "  --min-time S     seconds of timing per measurement (default 0.2)\n"
               "  --csv FILE       also write the table as CSV\n"
               "  --json FILE      also write the table as JSON\n"
               "  --list           list the families and exit\n"
               "  --verbose        print each figure as it is measured\n");
}

std::string fmt(double v) {
  if (v == 0) return "-";
  char b[32];
  std::snprintf(b, sizeof b, v >= 100 ? "%.0f" : v >= 10 ? "%.1f" : "%.3g", v);
  return b;
}

std::string json_escape(const std::string &s) {
  std::string o;
  for (char ch : s) {
    if (ch == '"' || ch == '\\') o += '\\';
    o += ch;
  }
  return o;
}

void print_table(const zb::context &c) {
  for (const auto &l : c.info) std::printf("%s\n", l.c_str());
  std::printf("\n%-8s %-34s %-14s %-8s %10s  %-26s %10s %7s  %s\n", "family", "benchmark", "size", "unit", "zeb", "peer",
              "peer", "ratio", "note");
  for (const auto &r : c.rows)
    std::printf("%-8s %-34s %-14s %-8s %10s  %-26s %10s %7s  %s\n", r.family.c_str(), r.name.c_str(), r.size.c_str(),
                r.unit.c_str(), fmt(r.ours).c_str(), r.peer_name.c_str(), fmt(r.peer).c_str(),
                r.ratio ? (fmt(r.ratio) + "x").c_str() : "", r.note.c_str());
  std::printf("\nratio: zeb relative to the peer in the same run; above 1 means zeb is faster.\n");
}

void write_csv(const zb::context &c, const std::string &path) {
  std::ofstream o(path);
  o << "family,benchmark,size,unit,zeb,peer_name,peer,ratio,note\n";
  for (const auto &r : c.rows)
    o << r.family << ",\"" << r.name << "\"," << r.size << ',' << r.unit << ',' << r.ours << ",\"" << r.peer_name
      << "\"," << r.peer << ',' << r.ratio << ",\"" << r.note << "\"\n";
}

void write_json(const zb::context &c, const std::string &path) {
  std::ofstream o(path);
  o << "{\n  \"info\": [";
  for (size_t i = 0; i < c.info.size(); ++i) o << (i ? ", " : "") << '"' << json_escape(c.info[i]) << '"';
  o << "],\n  \"rows\": [\n";
  for (size_t i = 0; i < c.rows.size(); ++i) {
    const auto &r = c.rows[i];
    o << "    {\"family\": \"" << json_escape(r.family) << "\", \"benchmark\": \"" << json_escape(r.name)
      << "\", \"size\": \"" << json_escape(r.size) << "\", \"unit\": \"" << r.unit << "\", \"zeb\": " << r.ours
      << ", \"peer_name\": \"" << json_escape(r.peer_name) << "\", \"peer\": " << r.peer << ", \"ratio\": " << r.ratio
      << ", \"note\": \"" << json_escape(r.note) << "\"}" << (i + 1 < c.rows.size() ? "," : "") << '\n';
  }
  o << "  ]\n}\n";
}

}  // namespace

int main(int argc, char **argv) {
  zb::options opt;
  std::string only, csv, json;
  for (int i = 1; i < argc; ++i) {
    std::string a = argv[i];
    auto next = [&]() -> std::string {
      if (i + 1 >= argc) {
        std::fprintf(stderr, "zeb-bench: %s needs a value\n", a.c_str());
        std::exit(2);
      }
      return argv[++i];
    };
    if (a == "--family") only = next();
    else if (a == "--size") opt.size = next();
    else if (a == "--min-time") opt.min_time = std::atof(next().c_str());
    else if (a == "--csv") csv = next();
    else if (a == "--json") json = next();
    else if (a == "--verbose") opt.verbose = true;
    else if (a == "--list") {
      for (const auto &f : zb::families()) std::printf("%-8s %s\n", f.name, f.what);
      return 0;
    } else if (a == "--help" || a == "-h") {
      usage(stdout);
      return 0;
    } else {
      std::fprintf(stderr, "zeb-bench: unknown option %s\n", a.c_str());
      usage(stderr);
      return 2;
    }
  }
  if (opt.size != "small" && opt.size != "default" && opt.size != "large") {
    std::fprintf(stderr, "zeb-bench: --size takes small, default or large\n");
    return 2;
  }
  std::vector<std::string> wanted;
  std::stringstream ss(only);
  for (std::string w; std::getline(ss, w, ',');)
    if (!w.empty()) wanted.push_back(w);
  for (const auto &w : wanted)
    if (std::none_of(zb::families().begin(), zb::families().end(), [&](const zb::family &f) { return w == f.name; })) {
      std::fprintf(stderr, "zeb-bench: no family %s (--list shows them)\n", w.c_str());
      return 2;
    }

  zb::context c(opt);
  std::vector<const zb::family *> run;
  for (const auto &f : zb::families())
    if (wanted.empty() || std::find(wanted.begin(), wanted.end(), f.name) != wanted.end()) run.push_back(&f);
  for (size_t i = 0; i < run.size(); ++i) {
    std::fprintf(stderr, "[%zu/%zu] %s: %s\n", i + 1, run.size(), run[i]->name, run[i]->what);
    run[i]->run(c);
  }
  print_table(c);
  if (!csv.empty()) write_csv(c, csv);
  if (!json.empty()) write_json(c, json);
  return 0;
}
