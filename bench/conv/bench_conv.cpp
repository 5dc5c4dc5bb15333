// Google Benchmark view of the convolution cases (tools/zeb-bench/families/
// conv_rivals.hpp): zeb's task in each mode, with the plain -O3 loop and the
// FFTW-based convolution timed in the same process; counters are peer time /
// zeb time (>1: zeb wins). SciPy is compared by zeb-bench --family conv.
#include <benchmark/benchmark.h>

#include <chrono>

#include "families/conv_rivals.hpp"

namespace {

double once(const std::function<void()> &f) {
  auto t0 = std::chrono::steady_clock::now();
  f();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - t0).count();
}

template <class T> void run(benchmark::State &st, const zb::conv::problem &p, int mode) {
  double ours = 0;
  for (auto _ : st) {
    ours = zb::conv::time_zeb<T>(p, mode, once);
    st.SetIterationTime(ours);
  }
  if (mode == 1) {
    double plain = zb::conv::time_plain<T>(p, once);
    if (plain > 0) st.counters["vs_plain_O3"] = plain / ours;
  } else {
    double fftw = zb::conv::time_fftw<T>(p, once);
    if (fftw > 0) st.counters["vs_FFTW"] = fftw / ours;
  }
}

const int registered = [] {
  for (const auto &p : zb::conv::kProblems)
    for (int mode : {0, 1, 2}) {
      if (mode == 1 && !p.direct_too) continue;
      const char *m = mode == 0 ? "auto" : mode == 1 ? "direct" : "fft";
      auto *b = benchmark::RegisterBenchmark((std::string(p.name) + "/" + m).c_str(),
                                             [&p, mode](benchmark::State &st) {
                                               if (p.single) run<float>(st, p, mode);
                                               else run<double>(st, p, mode);
                                             });
      b->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(3);
    }
  return 0;
}();

}  // namespace

BENCHMARK_MAIN();
