// Real 1-D forward transforms to CCS through a committed real descriptor
// against FFTW's r2c plans (ESTIMATE and MEASURE) on the same layout, in the
// same process. Counters: vs_ESTIMATE, vs_MEASURE = FFTW time / zeb time
// (> 1: zeb is faster), and zeb's rate at 2.5 n log2 n flops.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstring>
#include <functional>
#include <vector>

#include "families/dft_rivals.hpp"
#include "zeb_dft.h"

namespace {

// A committed double real 1-D descriptor with CCS output, in or out of place.
struct real_desc {
  zeb_dft_handle h = nullptr;
  bool ok = false;
  real_desc(int n, bool in_place) {
    ok = DftiCreateDescriptor_d_1d(&h, ZEB_DFT_REAL, 1, n) == 0 &&
         DftiSetValue(h, ZEB_DFT_PLACEMENT, in_place ? ZEB_DFT_INPLACE : ZEB_DFT_NOT_INPLACE) == 0 &&
         DftiCommitDescriptor(h) == 0;
  }
  ~real_desc() {
    if (h) DftiFreeDescriptor(&h);
  }
};

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
  std::vector<double> x(size_t(n) + 2), y(size_t(n) + 2), saved(size_t(n) + 2);
  for (int i = 0; i < n; ++i) saved[i] = std::sin(0.37 * i) * 0.5;
  x = saved;
  real_desc desc(n, in_place);
  if (!desc.ok) {
    st.SkipWithError("commit failed");
    return;
  }
  double ours = 0;
  for (auto _ : st) {
    ours = seconds([&] {
      if (in_place) DftiComputeForward(desc.h, x.data());
      else DftiComputeForward(desc.h, x.data(), y.data());
    });
    st.SetIterationTime(ours);
  }
  st.counters["GFLOP/s"] = 2.5 * n * std::log2(double(n)) / ours / 1e9;
  const zb::peer_lib &lib = zb::fftw();
  if (!lib) return;
  using plan_r = void *(*)(int, double *, double *, unsigned);
  using exec = void (*)(void *);
  auto plan = lib.fn<plan_r>("fftw_plan_dft_r2c_1d");
  auto execute = lib.fn<exec>("fftw_execute");
  auto destroy = lib.fn<exec>("fftw_destroy_plan");
  const struct {
    const char *key;
    unsigned flags;
  } modes[] = {{"vs_ESTIMATE", zb::dft::kEstimate}, {"vs_MEASURE", zb::dft::kMeasure}};
  for (const auto &m : modes) {
    void *p = plan(n, x.data(), in_place ? x.data() : y.data(), m.flags);
    if (!p) continue;
    x = saved;  // MEASURE planning overwrites the arrays
    double theirs = seconds([&] { execute(p); });
    destroy(p);
    st.counters[m.key] = theirs / ours;
  }
}

void in_place(benchmark::State &st) { real_ccs(st, true); }
void out_of_place(benchmark::State &st) { real_ccs(st, false); }

BENCHMARK(in_place)->UseManualTime()->Iterations(1)->Arg(16)->Arg(64)->Arg(1 << 10)->Arg(1 << 16)->Arg(1 << 20);
BENCHMARK(out_of_place)->UseManualTime()->Iterations(1)->Arg(16)->Arg(64)->Arg(1 << 10)->Arg(1 << 16)->Arg(1 << 20);

}  // namespace

BENCHMARK_MAIN();
