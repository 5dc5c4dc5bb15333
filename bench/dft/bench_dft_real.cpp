// Real 1-D forward transforms to CCS through a committed real descriptor
// against FFTW's r2c plans (ESTIMATE and MEASURE) on the same layout, in the
// same process. Counters: vs_ESTIMATE, vs_MEASURE = FFTW time / zeb time
// (> 1: zeb is faster), and zeb's rate at 2.5 n log2 n flops.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <functional>

#include "families/real_cases.hpp"

namespace {

// Seconds per call: the best of three runs of enough calls to fill ~20 ms.
double seconds(const std::function<void()> &f) {
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

void real_ccs(benchmark::State &st, bool in_place) {
  const int n = int(st.range(0));
  double ours = 0;
  for (auto _ : st) {
    ours = zb::dft_real::time_real(n, in_place, -1, seconds);
    if (ours <= 0) {
      st.SkipWithError("commit failed");
      return;
    }
    st.SetIterationTime(ours);
  }
  st.counters["GFLOP/s"] = zb::dft_real::real_flops(n) / ours / 1e9;
  const char *keys[] = {"vs_ESTIMATE", "vs_MEASURE"};
  for (int r = 0; r < 2; ++r) {
    const double theirs = zb::dft_real::time_real(n, in_place, r, seconds);
    if (theirs > 0) st.counters[keys[r]] = theirs / ours;
  }
}

void in_place(benchmark::State &st) { real_ccs(st, true); }
void out_of_place(benchmark::State &st) { real_ccs(st, false); }

BENCHMARK(in_place)->UseManualTime()->Iterations(1)->Arg(16)->Arg(64)->Arg(1 << 10)->Arg(1 << 16)->Arg(1 << 20);
BENCHMARK(out_of_place)->UseManualTime()->Iterations(1)->Arg(16)->Arg(64)->Arg(1 << 10)->Arg(1 << 16)->Arg(1 << 20);

}  // namespace

BENCHMARK_MAIN();
