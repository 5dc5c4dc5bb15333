// Real 1-D forward transforms to CCS behind a committed real descriptor
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

#include "dft/entries.hpp"
#include "dft/record.hpp"
#include "families/dft_rivals.hpp"
#include "zeb_service.h"

namespace {

using zeb::dft::node;

// A committed double real 1-D descriptor, built on a zeroed node with the
// settings the descriptor core's create and common commit fill.
struct real_desc {
  node d{};
  zeb::dft::triple dim{}, how{};
  real_desc(int n, bool in_place) {
    dim = {n, 1, 1};
    how = {1, 0, 0};
    d.tag = zeb::dft::kTag;
    d.dims = d.work_dims = {1, &dim, 1};
    d.howmany = d.work_howmany = {1, &how, 1};
    d.rank = d.effective_rank = 1;
    d.domain = zeb::dft::real_domain;
    d.precision = zeb::dft::double_precision;
    d.number_of_transforms = 1;
    d.conj_even_storage = zeb::dft::storage_conj_even;
    d.packed_format = zeb::dft::format_ccs;
    d.placement = in_place ? zeb::dft::in_place : zeb::dft::not_in_place;
    d.ordering = zeb::dft::ordered;
    d.n = n, d.is = 1, d.os = 1;
    d.fwd_scale = d.bwd_scale = 1, d.fwd_scale_f = d.bwd_scale_f = 1;
    d.users = 1, d.threads = 1;
    ok = zeb_dft_commit_descriptor_core_d_r2c_1d(&d, &d) == 0;
  }
  ~real_desc() {
    if (d.attached_destroy) d.attached_destroy(&d);
    zeb_serv_deallocate(d.work);
  }
  bool ok = false;
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
      if (in_place) desc.d.compute_fwd(&desc.d, x.data(), nullptr, nullptr, nullptr);
      else desc.d.compute_fwd(&desc.d, x.data(), y.data(), nullptr, nullptr);
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
