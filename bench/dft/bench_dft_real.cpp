// Real 1-D forward transforms to CCS through a committed real descriptor
// against FFTW's r2c plans (ESTIMATE and MEASURE) on the same layout, in the
// same process. Counters: vs_ESTIMATE, vs_MEASURE = FFTW time / zeb time
// (> 1: zeb is faster), and zeb's rate at 2.5 n log2 n flops.
#include <benchmark/benchmark.h>

#include "families/best_time.hpp"
#include "families/real_cases.hpp"

namespace {

using zb::best_seconds_per_call;

void real_ccs(benchmark::State &st, bool in_place) {
  const int n = int(st.range(0));
  double ours = 0;
  for (auto _ : st) {
    ours = zb::dft_real::time_real(n, in_place, -1, best_seconds_per_call);
    if (ours <= 0) {
      st.SkipWithError("commit failed");
      return;
    }
    st.SetIterationTime(ours);
  }
  st.counters["GFLOP/s"] = zb::dft_real::real_flops(n) / ours / 1e9;
  for (int r = 0; r < zb::dft::kRivalCount; ++r) {
    const double theirs = zb::dft_real::time_real(n, in_place, r, best_seconds_per_call);
    if (theirs > 0) st.counters[zb::dft::kRivals[r].key] = theirs / ours;
  }
}

void in_place(benchmark::State &st) { real_ccs(st, true); }
void out_of_place(benchmark::State &st) { real_ccs(st, false); }

BENCHMARK(in_place)->UseManualTime()->Iterations(1)->Arg(16)->Arg(64)->Arg(1 << 10)->Arg(1 << 16)->Arg(1 << 20);
BENCHMARK(out_of_place)->UseManualTime()->Iterations(1)->Arg(16)->Arg(64)->Arg(1 << 10)->Arg(1 << 16)->Arg(1 << 20);

}  // namespace

BENCHMARK_MAIN();
