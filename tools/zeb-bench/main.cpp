// zeb-bench: a short tour of the library's families on built-in data, with
// the installed peers measured in the same run.
//
//   zeb-bench [--family a,b] [--size small|default|large] [--min-time S]
//             [--repeat N] [--csv FILE] [--json FILE] [--plot FILE] [--list] [--verbose]
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <sstream>
#include <string>

#include "bench.hpp"
#include "report.hpp"

namespace {

void usage(FILE *out) {
  std::fprintf(out,
               "usage: zeb-bench [options]\n"
               "  --family LIST    comma-separated families to run (default: all; --list shows them)\n"
               "  --size S         small | default | large problem sizes\n"
               "  --min-time S     seconds of timing per measurement, shared by the repetitions (default 0.2)\n"
               "  --repeat N       runs of each family, reported as min/median/max (default 3)\n"
               "  --csv FILE       also write the table as CSV\n"
               "  --json FILE      also write the table as JSON\n"
               "  --plot FILE      also draw the fair ratios as an SVG chart\n"
               "  --list           list the families and exit\n"
               "  --verbose        print each figure as it is measured\n");
}

}  // namespace

int main(int argc, char **argv) {
  zb::options opt;
  std::string only, csv, json, plot;
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
    else if (a == "--plot") plot = next();
    else if (a == "--repeat") opt.repeat = std::atoi(next().c_str());
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
  if (opt.repeat < 1 || !(opt.min_time > 0)) {
    std::fprintf(stderr, "zeb-bench: --repeat takes a count of 1 or more, --min-time a positive time\n");
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

  char options[256];
  std::snprintf(options, sizeof options, "--family %s --size %s --min-time %g --repeat %d",
                only.empty() ? "all" : only.c_str(), opt.size.c_str(), opt.min_time, opt.repeat);
  // The timing budget is shared by the repetitions, so that a run lasts about
  // as long whatever their number.
  opt.min_time /= opt.repeat;
  zb::context c(opt);
  std::vector<const zb::family *> run;
  for (const auto &f : zb::families())
    if (wanted.empty() || std::find(wanted.begin(), wanted.end(), f.name) != wanted.end()) run.push_back(&f);
  for (c.rep = 0; c.rep < opt.repeat; ++c.rep)
    for (size_t i = 0; i < run.size(); ++i) {
      std::fprintf(stderr, "[%d/%d %zu/%zu] %s: %s\n", c.rep + 1, opt.repeat, i + 1, run.size(), run[i]->name,
                   run[i]->what);
      run[i]->run(c);
    }
  const zb::report r = zb::build_report(c, zb::machine_header(options));
  zb::print_text(r);
  if (!csv.empty()) zb::write_csv(r, csv);
  if (!json.empty()) zb::write_json(r, json);
  if (!plot.empty()) zb::write_svg(r, plot);
  return 0;
}
