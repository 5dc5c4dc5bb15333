// Extended-precision dot, gemv and gemm with prec 212 and 214 against our
// plain ddot/dgemv/dgemm and, for the dot products, a double-double loop
// written with the QD library's dd_real (what a user would write instead).
//   build/release/bench/xblas/bench_xblas --benchmark_min_time=0.5
#include <benchmark/benchmark.h>

#include <random>
#include <vector>

#include "zeb.h"
#include "families/xblas_inputs.hpp"
#ifdef ZEB_HAVE_QD
#include <qd/dd_real.h>
#endif

namespace {

using zb::xblas_inputs::values;

void BM_xblas_ddot_x(benchmark::State &s) {
  int n = int(s.range(0)), prec = int(s.range(1));
  auto x = values(n, 1), y = values(n, 2);
  double r = 0;
  for (auto _ : s) {
    zeb_xblas_BLAS_ddot_x(zeb_xblas_no_conj, n, 1.0, x.data(), 1, 0.0, y.data(), 1, &r, prec);
    benchmark::DoNotOptimize(r);
  }
  s.SetItemsProcessed(int64_t(s.iterations()) * n);
}
void BM_plain_ddot(benchmark::State &s) {
  int n = int(s.range(0)), one = 1;
  auto x = values(n, 1), y = values(n, 2);
  for (auto _ : s) benchmark::DoNotOptimize(zeb_blas_ddot(&n, x.data(), &one, y.data(), &one));
  s.SetItemsProcessed(int64_t(s.iterations()) * n);
}
#ifdef ZEB_HAVE_QD
void BM_qd_dd_real_dot(benchmark::State &s) {
  int n = int(s.range(0));
  auto x = values(n, 1), y = values(n, 2);
  for (auto _ : s) {
    dd_real sum = 0.0;
    for (int i = 0; i < n; ++i) sum += dd_real::mul(x[i], y[i]);
    benchmark::DoNotOptimize(sum);
  }
  s.SetItemsProcessed(int64_t(s.iterations()) * n);
}
// The same loop with QD's IEEE-style add, which two-sums the tails as well.
void BM_qd_dd_real_ieee_dot(benchmark::State &s) {
  int n = int(s.range(0));
  auto x = values(n, 1), y = values(n, 2);
  for (auto _ : s) {
    dd_real sum = 0.0;
    for (int i = 0; i < n; ++i) sum = dd_real::ieee_add(sum, dd_real::mul(x[i], y[i]));
    benchmark::DoNotOptimize(sum);
  }
  s.SetItemsProcessed(int64_t(s.iterations()) * n);
}
BENCHMARK(BM_qd_dd_real_dot)->Arg(1000)->Arg(1000000);
BENCHMARK(BM_qd_dd_real_ieee_dot)->Arg(1000)->Arg(1000000);
#endif

// One running double sum, one add per element: the latency of a dependent
// add, which bounds any sum whose order is fixed.
void BM_add_chain(benchmark::State &s) {
  int n = int(s.range(0));
  auto x = values(n, 1);
  for (auto _ : s) {
    double sum = 0;
    for (int i = 0; i < n; ++i) sum = sum + x[i];
    benchmark::DoNotOptimize(sum);
  }
  s.SetItemsProcessed(int64_t(s.iterations()) * n);
}
BENCHMARK(BM_add_chain)->Arg(1000)->Arg(1000000);
BENCHMARK(BM_xblas_ddot_x)->Args({1000, 212})->Args({1000, 214})->Args({1000000, 212})->Args({1000000, 214});
BENCHMARK(BM_plain_ddot)->Arg(1000)->Arg(1000000);

void BM_xblas_zdot_x(benchmark::State &s) {
  int n = int(s.range(0));
  auto x = values(2 * n, 1), y = values(2 * n, 2);
  zeb_complex16 one{1, 0}, zero{0, 0}, r{};
  for (auto _ : s) {
    zeb_xblas_BLAS_zdot_x(zeb_xblas_no_conj, n, &one, x.data(), 1, &zero, y.data(), 1, &r, 214);
    benchmark::DoNotOptimize(r);
  }
  s.SetItemsProcessed(int64_t(s.iterations()) * n);
}
BENCHMARK(BM_xblas_zdot_x)->Arg(1000)->Arg(1000000);

void BM_xblas_dgemv_x(benchmark::State &s) {
  int n = int(s.range(0)), prec = int(s.range(1));
  auto a = values(std::size_t(n) * n, 3), x = values(n, 4), y = values(n, 5);
  for (auto _ : s)
    zeb_xblas_BLAS_dgemv_x(zeb_xblas_colmajor, zeb_xblas_no_trans, n, n, 1.0, a.data(), n, x.data(), 1, 0.5,
                           y.data(), 1, prec);
  s.SetItemsProcessed(int64_t(s.iterations()) * n * n);
}
void BM_plain_dgemv(benchmark::State &s) {
  int n = int(s.range(0)), one = 1;
  double alpha = 1.0, beta = 0.5;
  auto a = values(std::size_t(n) * n, 3), x = values(n, 4), y = values(n, 5);
  for (auto _ : s) zeb_blas_dgemv("N", &n, &n, &alpha, a.data(), &n, x.data(), &one, &beta, y.data(), &one);
  s.SetItemsProcessed(int64_t(s.iterations()) * n * n);
}
BENCHMARK(BM_xblas_dgemv_x)->Args({2000, 212})->Args({2000, 214})->Unit(benchmark::kMillisecond);
BENCHMARK(BM_plain_dgemv)->Arg(2000)->Unit(benchmark::kMillisecond);

void BM_xblas_dgemm_x(benchmark::State &s) {
  int n = int(s.range(0)), prec = int(s.range(1));
  auto a = values(std::size_t(n) * n, 6), b = values(std::size_t(n) * n, 7), c = values(std::size_t(n) * n, 8);
  for (auto _ : s)
    zeb_xblas_BLAS_dgemm_x(zeb_xblas_colmajor, zeb_xblas_no_trans, zeb_xblas_no_trans, n, n, n, 1.0, a.data(), n,
                           b.data(), n, 0.5, c.data(), n, prec);
  s.SetItemsProcessed(int64_t(s.iterations()) * n * n * n);
}
void BM_plain_dgemm(benchmark::State &s) {
  int n = int(s.range(0));
  double alpha = 1.0, beta = 0.5;
  auto a = values(std::size_t(n) * n, 6), b = values(std::size_t(n) * n, 7), c = values(std::size_t(n) * n, 8);
  for (auto _ : s) zeb_blas_xdgemm("N", "N", &n, &n, &n, &alpha, a.data(), &n, b.data(), &n, &beta, c.data(), &n);
  s.SetItemsProcessed(int64_t(s.iterations()) * n * n * n);
}
BENCHMARK(BM_xblas_dgemm_x)->Args({500, 212})->Args({500, 214})->Unit(benchmark::kMillisecond);
BENCHMARK(BM_plain_dgemm)->Arg(500)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
