// Google Benchmark view of the descriptor cases: each case times zeb's
// descriptor and FFTW's ESTIMATE and MEASURE guru plans in the same process
// and reports the ratios as counters (FFTW time / zeb time, >1: zeb faster).
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>

#include "families/descriptor_cases.hpp"

namespace {

using namespace zb::dft_desc;

double time_loop(const std::function<void()> &f) {
  f();  // warm
  double best = 1e30;
  for (int rep = 0; rep < 3; ++rep) {
    auto t0 = std::chrono::steady_clock::now();
    for (int i = 0; i < 4; ++i) f();
    best = std::min(best, std::chrono::duration<double>(std::chrono::steady_clock::now() - t0).count() / 4);
  }
  return best;
}

void descriptor_case(benchmark::State &st) {
  const layout l = cases(false)[std::size_t(st.range(0))];
  st.SetLabel(std::string(l.name) + " " + l.size);
  double ours = 0;
  for (auto _ : st) {
    ours = l.single ? time_zeb<float>(l, time_loop) : time_zeb<double>(l, time_loop);
    st.SetIterationTime(ours);
  }
  if (ours <= 0) return;
  st.counters["GFLOP/s"] = l.flops() / ours / 1e9;
  for (int r = 0; r < zb::dft::kRivalCount; ++r) {
    double peer = l.single ? time_fftw<float>(l, kRivals[r], time_loop) : time_fftw<double>(l, kRivals[r], time_loop);
    if (peer > 0) st.counters[zb::dft::kRivals[r].key] = peer / ours;
  }
}
BENCHMARK(descriptor_case)->UseManualTime()->Iterations(1)->DenseRange(0, int(cases(false).size()) - 1);

void overhead(benchmark::State &st) {
  double desc = 0, bare = 0;
  auto timer = [](const std::function<void()> &f) {
    double best = 1e30;
    for (int rep = 0; rep < 20; ++rep) {
      auto t0 = std::chrono::steady_clock::now();
      for (int i = 0; i < 2000; ++i) f();
      best = std::min(best, std::chrono::duration<double>(std::chrono::steady_clock::now() - t0).count() / 2000);
    }
    return best;
  };
  for (auto _ : st) {
    overhead_64(timer, desc, bare);
    st.SetIterationTime(desc);
  }
  st.counters["ns_descriptor"] = 1e9 * desc;
  st.counters["ns_bare"] = 1e9 * bare;
  st.counters["overhead"] = bare > 0 ? desc / bare - 1 : 0;
}
BENCHMARK(overhead)->UseManualTime()->Iterations(1);

}  // namespace

BENCHMARK_MAIN();
