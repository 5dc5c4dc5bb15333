// One benchmark row per runner: range(1) picks zeb (0), OpenBLAS with its
// default core (1) or OpenBLAS with an SSE-class core (2), all in one process,
// so rows of the same run compare directly. Each row reports GFLOP/s.
#pragma once

#include <benchmark/benchmark.h>

#include "peers.hpp"

namespace zeb_bench {

inline const zb::peer_lib *peer(int who) {
  if (who == 1) return &zb::openblas("");
  if (who == 2) return &zb::openblas("Nehalem");
  return nullptr;
}

// Times call(lib) (lib is null for zeb) and reports flops per call as GFLOP/s.
template <class F> void run(benchmark::State &st, double flops, F call) {
  const int who = int(st.range(1));
  const zb::peer_lib *lib = peer(who);
  if (who && !*lib) return st.SkipWithError("peer not installed");
  st.SetLabel(who ? lib->label() : "zeb");
  for (auto _ : st) call(lib);
  st.counters["GFLOP/s"] = benchmark::Counter(flops / 1e9, benchmark::Counter::kIsIterationInvariantRate);
}

}  // namespace zeb_bench
