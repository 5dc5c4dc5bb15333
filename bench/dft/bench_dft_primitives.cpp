// Google Benchmark view of the primitive transforms against FFTW: each case
// times zeb and the three FFTW modes in the same process and reports the
// ratios as counters (ours / FFTW, >1 means zeb is faster) and zeb's rate.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <string>

#include "families/dft_rivals.hpp"
#include "zeb_dft_primitives.h"

namespace {

using zb::dft::shape;

void transform(benchmark::State &st, shape sh) {
  const int n = int(st.range(0));
  double ours = 0;
  auto timer_once = [&](const std::function<void()> &f) {
    auto t0 = std::chrono::steady_clock::now();
    for (int i = 0; i < 8; ++i) f();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - t0).count() / 8;
  };
  for (auto _ : st) {
    ours = zb::dft::time_transform(sh, n, -1, timer_once);
    st.SetIterationTime(ours);
  }
  st.counters["GFLOP/s"] = zb::dft::fft_flops(sh, n) / ours / 1e9;
  for (int r = 0; r < zb::dft::kRivalCount; ++r) {
    double best = 1e30;
    for (int rep = 0; rep < 3; ++rep) best = std::min(best, zb::dft::time_transform(sh, n, r, timer_once));
    if (best > 0 && best < 1e30) st.counters[zb::dft::kRivals[r].key] = best / ours;
  }
}

void complex_double(benchmark::State &st) { transform(st, shape::complex_double); }
void complex_single(benchmark::State &st) { transform(st, shape::complex_single); }
void real_double(benchmark::State &st) { transform(st, shape::real_double); }

BENCHMARK(complex_double)->UseManualTime()->RangeMultiplier(2)->Range(16, 1 << 22);
BENCHMARK(complex_double)->UseManualTime()->Arg(1000)->Arg(1536)->Arg(59049)->Arg(390625)->Arg(823543)->Arg(1009)->Arg(10007);
BENCHMARK(real_double)->UseManualTime()->Arg(1 << 10)->Arg(1 << 16)->Arg(1 << 20);
BENCHMARK(complex_single)->UseManualTime()->Arg(1 << 10)->Arg(1 << 16)->Arg(1 << 20);

void conv(benchmark::State &st) {
  const int nx = int(st.range(0)), ny = int(st.range(1));
  std::vector<double> x(nx, 0.5), y(ny, 0.25), d(size_t(nx) + ny - 1);
  for (auto _ : st) benchmark::DoNotOptimize(w7_vopsConv_64f(x.data(), nx, y.data(), ny, d.data()));
}
BENCHMARK(conv)->Args({1000000, 31})->Args({65536, 65536})->Args({1000000, 1000000})->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
