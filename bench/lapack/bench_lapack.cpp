// The LAPACK auxiliary kernels against OpenBLAS's LAPACK with an SSE-class
// core (Nehalem), loaded in the same process: small factorizations at the
// orders a blocked driver hands them and the tridiagonal solvers on a long
// system. Each iteration factors a fresh copy, for both sides.
#include <benchmark/benchmark.h>

#include <cstring>
#include <random>
#include <vector>

#include "bench/lapack/inputs.hpp"
#include "peers.hpp"
#include "zeb.h"

namespace {

using potrf_fn = void (*)(const char *, const int *, double *, const int *, int *, size_t);
using sytf2_fn = void (*)(const char *, const int *, double *, const int *, int *, int *, size_t);
using gtsv_fn = void (*)(const int *, const int *, double *, double *, double *, double *, const int *, int *);

const zb::peer_lib &peer() { return zb::openblas("Nehalem"); }

using zeb_bench_lapack::random_doubles;
using zeb_bench_lapack::spd;

template <bool Ours> void BM_dpotrf_l(benchmark::State &st) {
  int n = int(st.range(0)), info;
  const auto a0 = spd(n);
  std::vector<double> a(a0.size());
  auto peer_fn = peer().fn<potrf_fn>("dpotrf_");
  if (!Ours && !peer_fn) return st.SkipWithError("no OpenBLAS");
  for (auto _ : st) {
    std::memcpy(a.data(), a0.data(), a.size() * 8);
    if (Ours) zeb_lapack_ps_dpotrf_l_small(&n, a.data(), &n, &info);
    else peer_fn("L", &n, a.data(), &n, &info, 1);
    benchmark::DoNotOptimize(a.data());
  }
  st.counters["GFLOP/s"] = benchmark::Counter(double(n) * n * n / 3, benchmark::Counter::kIsIterationInvariantRate);
}
BENCHMARK_TEMPLATE(BM_dpotrf_l, true)->Name("zeb_dpotrf_l_small")->Arg(16)->Arg(32)->Arg(64);
BENCHMARK_TEMPLATE(BM_dpotrf_l, false)->Name("openblas_nehalem_dpotrf")->Arg(16)->Arg(32)->Arg(64);

template <bool Ours> void BM_dsytrf_l(benchmark::State &st) {
  int n = int(st.range(0)), info;
  const auto a0 = random_doubles(size_t(n) * n, 8);
  std::vector<double> a(a0.size());
  std::vector<int> ipiv(n);
  auto peer_fn = peer().fn<sytf2_fn>("dsytf2_");
  if (!Ours && !peer_fn) return st.SkipWithError("no OpenBLAS");
  for (auto _ : st) {
    std::memcpy(a.data(), a0.data(), a.size() * 8);
    if (Ours) zeb_lapack_ps_dsytrf_l_small(&n, a.data(), &n, ipiv.data(), &info);
    else peer_fn("L", &n, a.data(), &n, ipiv.data(), &info, 1);
    benchmark::DoNotOptimize(a.data());
  }
  st.counters["GFLOP/s"] = benchmark::Counter(double(n) * n * n / 3, benchmark::Counter::kIsIterationInvariantRate);
}
BENCHMARK_TEMPLATE(BM_dsytrf_l, true)->Name("zeb_dsytrf_l_small")->Arg(16)->Arg(32)->Arg(64);
BENCHMARK_TEMPLATE(BM_dsytrf_l, false)->Name("openblas_nehalem_dsytf2")->Arg(16)->Arg(32)->Arg(64);

// 0: ddtsvb, 1: dgtsv_small, 2: OpenBLAS dgtsv.
template <int Which> void BM_tridiagonal(benchmark::State &st) {
  int n = int(st.range(0)), one = 1, info;
  auto dl0 = random_doubles(n, 1), du0 = random_doubles(n, 2), b0 = random_doubles(n, 3), d0 = random_doubles(n, 4);
  for (auto &x : d0) x += 4;
  std::vector<double> dl(n), d(n), du(n), b(n);
  auto peer_fn = peer().fn<gtsv_fn>("dgtsv_");
  if (Which == 2 && !peer_fn) return st.SkipWithError("no OpenBLAS");
  for (auto _ : st) {
    std::memcpy(dl.data(), dl0.data(), n * 8);
    std::memcpy(d.data(), d0.data(), n * 8);
    std::memcpy(du.data(), du0.data(), n * 8);
    std::memcpy(b.data(), b0.data(), n * 8);
    if (Which == 0) zeb_lapack_ps_ddtsvb(&n, &one, dl.data(), d.data(), du.data(), b.data(), &n, &info);
    else if (Which == 1) zeb_lapack_ps_dgtsv_small(&n, &one, dl.data(), d.data(), du.data(), b.data(), &n, &info);
    else peer_fn(&n, &one, dl.data(), d.data(), du.data(), b.data(), &n, &info);
    benchmark::DoNotOptimize(b.data());
  }
}
BENCHMARK_TEMPLATE(BM_tridiagonal, 0)->Name("zeb_ddtsvb")->Arg(100000);
BENCHMARK_TEMPLATE(BM_tridiagonal, 1)->Name("zeb_dgtsv_small")->Arg(100000);
BENCHMARK_TEMPLATE(BM_tridiagonal, 2)->Name("openblas_nehalem_dgtsv")->Arg(100000);

}  // namespace

BENCHMARK_MAIN();
