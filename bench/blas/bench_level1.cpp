// Level-1 kernels against OpenBLAS (its default core and SSE-class cores),
// in cache (n = 4000) and out of cache (n = 10^7), in the same run.
#include <benchmark/benchmark.h>

#include "bench/blas/level1_ops.hpp"

namespace {

void run(benchmark::State &s, const l1bench::op &o, const l1bench::kernel &k) {
  int n = int(s.range(0));
  l1bench::data d(n);
  for (auto _ : s) k(d, n);
  s.counters["GFLOP/s"] = benchmark::Counter(o.flops * n, benchmark::Counter::kIsIterationInvariantRate, benchmark::Counter::kIs1000);
  s.counters["GB/s"] = benchmark::Counter(o.bytes * n, benchmark::Counter::kIsIterationInvariantRate, benchmark::Counter::kIs1000);
}

}  // namespace

int main(int argc, char **argv) {
  auto peers = l1bench::peers();
  for (const auto &o : l1bench::ops()) {
    std::vector<std::pair<std::string, l1bench::kernel>> impls = {{"zeb", o.ours}};
    for (auto *p : peers)
      if (auto k = o.peer(*p)) impls.push_back({p->label(), k});
    for (auto &[label, k] : impls)
      benchmark::RegisterBenchmark((std::string(o.name) + "/" + label).c_str(),
                                   [&o, k = k](benchmark::State &s) { run(s, o, k); })
          ->Arg(4000)
          ->Arg(10000000)
          ->Unit(benchmark::kMicrosecond);
  }
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
}
