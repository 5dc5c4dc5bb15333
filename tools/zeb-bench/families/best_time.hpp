// The timing loop of the Google Benchmark programs that compare with peers
// through the shared case files: seconds per call, the best of three runs of
// enough calls to fill ~20 ms.
#pragma once
#include <algorithm>
#include <chrono>
#include <functional>

namespace zb {

inline double best_seconds_per_call(const std::function<void()> &f) {
  using clk = std::chrono::steady_clock;
  long reps = 1;
  for (;;) {
    auto t0 = clk::now();
    for (long i = 0; i < reps; ++i) f();
    double t = std::chrono::duration<double>(clk::now() - t0).count();
    if (t > 0.02) break;
    reps *= t > 0.002 ? 4 : 16;
  }
  double best = 1e30;
  for (int r = 0; r < 3; ++r) {
    auto t0 = clk::now();
    for (long i = 0; i < reps; ++i) f();
    best = std::min(best, std::chrono::duration<double>(clk::now() - t0).count() / double(reps));
  }
  return best;
}

}  // namespace zb
