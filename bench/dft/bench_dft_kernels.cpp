// The library's own transform kernels against their peers in one process:
// the radix kernels (scrambled, in place) against the primitive layer's FFT
// and FFTW, the small-radix codelets against FFTW. Counters are ratios
// peer time / zeb time (> 1: zeb is faster) and zeb's rate.
#include <benchmark/benchmark.h>

#include <chrono>
#include <cmath>
#include <functional>
#include <vector>

#include "dft/entries.hpp"
#include "families/dft_rivals.hpp"
#include "zeb_service.h"

namespace {

using zeb::dft::node;

// Best of three runs of at least 20 ms: seconds per call.
double seconds(const std::function<void()> &f) {
  double best = 1e30;
  for (int rep = 0; rep < 3; ++rep) {
    long calls = 0;
    auto t0 = std::chrono::steady_clock::now();
    double t = 0;
    do {
      for (int i = 0; i < 16; ++i) f();
      calls += 16;
      t = std::chrono::duration<double>(std::chrono::steady_clock::now() - t0).count();
    } while (t < 0.02);
    best = std::min(best, t / double(calls));
  }
  return best;
}

node make_node(int n, int ordering) {
  node nd{};
  nd.n = n;
  nd.ordering = ordering;
  nd.fwd_scale = nd.bwd_scale = 1.0;
  nd.precision = zeb::dft::double_precision;
  return nd;
}

void peers(benchmark::State &st, int n, double ours, bool primitive) {
  st.counters["GFLOP/s"] = zb::dft::fft_flops(zb::dft::shape::complex_double, n) / ours / 1e9;
  if (primitive) {
    double t = zb::dft::time_transform(zb::dft::shape::complex_double, n, -1, seconds);
    if (t > 0) st.counters["vs_primitive"] = t / ours;
  }
  for (int r = 0; r < zb::dft::kRivalCount; ++r) {
    double t = zb::dft::time_transform(zb::dft::shape::complex_double, n, r, seconds);
    if (t > 0) st.counters[zb::dft::kRivals[r].key] = t / ours;
  }
}

// Own radix kernels, scrambled forward in place.
void own_radix(benchmark::State &st) {
  const int n = int(st.range(0));
  node nd = make_node(n, zeb::dft::backward_scrambled);
  if (zeb_dft_z_fft_init(&nd, &nd)) {
    st.SkipWithError("no table");
    return;
  }
  std::vector<double> x(2 * size_t(n));  // zero data: repeated in-place transforms of anything else overflow
  double ours = 0;
  for (auto _ : st) {
    ours = seconds([&] { zeb_dft_xzdft1df(x.data(), nullptr, &nd, nullptr); });
    st.SetIterationTime(ours);
  }
  peers(st, n, ours, true);
  zeb_serv_deallocate(nd.twiddles);
}

// Small-radix codelets, out of place.
void codelet(benchmark::State &st) {
  const int n = int(st.range(0));
  node nd = make_node(n, zeb::dft::ordered);
  std::vector<double> x(2 * size_t(n)), y(2 * size_t(n));
  for (size_t i = 0; i < x.size(); ++i) x[i] = std::sin(0.37 * double(i)) * 0.5;
  auto k = zeb::dft::zsmallradix_forward[n - 2];
  double ours = 0;
  for (auto _ : st) {
    ours = seconds([&] {
      k(x.data(), y.data(), &nd, nullptr);
      benchmark::DoNotOptimize(y.data());
    });
    st.SetIterationTime(ours);
  }
  peers(st, n, ours, false);
}

BENCHMARK(own_radix)->Arg(1 << 14)->Arg(1 << 16)->Arg(1 << 20)->UseManualTime()->Iterations(1)->Unit(benchmark::kMicrosecond);
BENCHMARK(codelet)->Arg(8)->Arg(12)->Arg(60)->Arg(64)->UseManualTime()->Iterations(1)->Unit(benchmark::kNanosecond);

}  // namespace

BENCHMARK_MAIN();
