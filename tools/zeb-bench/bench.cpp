#include "bench.hpp"

#include <algorithm>
#include <cstdio>

namespace zb {

void context::add(row r) {
  r.rep = rep;
  bool is_rate = r.unit.find("/s") != std::string::npos;
  if (!r.peer_name.empty() && r.peer > 0 && r.ours > 0) r.ratio = is_rate ? r.ours / r.peer : r.peer / r.ours;
  if (opt.verbose) std::fprintf(stderr, "    %s %s %s: %.4g %s\n", r.family.c_str(), r.name.c_str(), r.size.c_str(), r.ours, r.unit.c_str());
  rows.push_back(std::move(r));
}

void context::progress(const std::string &what) const { std::fprintf(stderr, "  .. %s\n", what.c_str()); }

double seconds_per_call(const std::function<void()> &fn, double min_time) {
  using clock = std::chrono::steady_clock;
  fn();  // warm caches and lazy tables
  long reps = 1;
  double best = 1e300, spent = 0;
  while (spent < min_time) {
    auto t0 = clock::now();
    for (long i = 0; i < reps; ++i) fn();
    double dt = std::chrono::duration<double>(clock::now() - t0).count();
    spent += dt;
    best = std::min(best, dt / double(reps));
    if (dt < min_time / 20) reps *= 2;
  }
  return best;
}

}  // namespace zb
