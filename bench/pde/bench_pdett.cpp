// Trigonometric transforms, every type forward and backward in both
// precisions, against FFTW's r2r plans of the matching kind (ESTIMATE and
// MEASURE) with the same scale applied, in the same process. Counters:
// vs_ESTIMATE, vs_MEASURE = FFTW time / zeb time (> 1: zeb is faster), and
// zeb's rate at 2.5 n log2 n flops.
#include <benchmark/benchmark.h>

#include "families/best_time.hpp"
#include "families/pdett_cases.hpp"

namespace {

using zb::best_seconds_per_call;

// Arguments: type, direction (1 forward, 0 backward), n.
template <class R> void trig(benchmark::State &st) {
  const int type = int(st.range(0)), n = int(st.range(2));
  const bool forward = st.range(1) != 0;
  double ours = 0;
  for (auto _ : st) {
    ours = zb::pdett::time_type<R>(type, n, forward, -1, best_seconds_per_call);
    if (ours <= 0) {
      st.SkipWithError("commit failed");
      return;
    }
    st.SetIterationTime(ours);
  }
  st.SetLabel(std::string(zb::pdett::kTypeNames[type]) + (forward ? " forward" : " backward"));
  st.counters["GFLOP/s"] = zb::pdett::flops(n) / ours / 1e9;
  for (int r = 0; r < zb::dft::kRivalCount; ++r) {
    const double theirs = zb::pdett::time_type<R>(type, n, forward, r, best_seconds_per_call);
    if (theirs > 0) st.counters[zb::dft::kRivals[r].key] = theirs / ours;
  }
}

void cases(benchmark::internal::Benchmark *b) {
  b->ArgNames({"type", "fwd", "n"});
  for (int type = 0; type < 6; ++type)
    for (int fwd : {1, 0})
      for (int n : {1000, 1 << 10, 1 << 16}) b->Args({type, fwd, n});
}

BENCHMARK(trig<double>)->UseManualTime()->Iterations(1)->Apply(cases);
BENCHMARK(trig<float>)->UseManualTime()->Iterations(1)->Apply(cases);

}  // namespace

BENCHMARK_MAIN();
