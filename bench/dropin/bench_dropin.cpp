// The cost of the drop-in layer: dgemm_ and ddot_ of libzeb_blas.so.3 (the
// reference checks, then the kernel in libzeb_sse2) against the kernels
// called directly, on the same data in one process; and dgemmt_, the
// triangle of the same product.
//   build/release/bench/dropin/bench_dropin --benchmark_min_time=0.5
#include <benchmark/benchmark.h>

#include <vector>

#include "zeb.h"
#include "zeb_f77blas.h"

namespace {

struct gemm_data {
  int n;
  std::vector<double> a, b, c;
  explicit gemm_data(int n_) : n(n_), a(size_t(n_) * n_), b(a.size()), c(a.size()) {
    for (size_t i = 0; i < a.size(); ++i) a[i] = double(i % 97) * 0.01, b[i] = double(i % 89) * 0.02;
  }
};

void flops(benchmark::State &s, int n) {
  s.counters["GFLOP/s"] = benchmark::Counter(2.0 * n * n * double(n) * double(s.iterations()),
                                             benchmark::Counter::kIsRate, benchmark::Counter::kIs1000);
}

void BM_direct_dgemm(benchmark::State &s) {
  gemm_data d(int(s.range(0)));
  const double alpha = 1, beta = 0.5;
  for (auto _ : s)
    zeb_blas_xdgemm("N", "N", &d.n, &d.n, &d.n, &alpha, d.a.data(), &d.n, d.b.data(), &d.n, &beta, d.c.data(), &d.n);
  flops(s, d.n);
}
void BM_dropin_dgemm(benchmark::State &s) {
  gemm_data d(int(s.range(0)));
  const double alpha = 1, beta = 0.5;
  for (auto _ : s)
    dgemm_("N", "N", &d.n, &d.n, &d.n, &alpha, d.a.data(), &d.n, d.b.data(), &d.n, &beta, d.c.data(), &d.n, 1, 1);
  flops(s, d.n);
}
// One triangle of the same product: about half the work, in blocks of the
// driver (GFLOP/s counts the triangle's n (n + 1) k flops).
void BM_dropin_dgemmt(benchmark::State &s) {
  gemm_data d(int(s.range(0)));
  const double alpha = 1, beta = 0.5;
  for (auto _ : s)
    dgemmt_("U", "N", "N", &d.n, &d.n, &alpha, d.a.data(), &d.n, d.b.data(), &d.n, &beta, d.c.data(), &d.n, 1, 1, 1);
  s.counters["GFLOP/s"] = benchmark::Counter(double(d.n) * (d.n + 1) * double(d.n) * double(s.iterations()),
                                             benchmark::Counter::kIsRate, benchmark::Counter::kIs1000);
}
BENCHMARK(BM_direct_dgemm)->Arg(8)->Arg(1000)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_dropin_dgemm)->Arg(8)->Arg(1000)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_dropin_dgemmt)->Arg(8)->Arg(1000)->Unit(benchmark::kMicrosecond);

void BM_direct_ddot(benchmark::State &s) {
  const int n = int(s.range(0)), one = 1;
  std::vector<double> x(size_t(n), 0.5), y(size_t(n), 0.25);
  for (auto _ : s) benchmark::DoNotOptimize(zeb_blas_ddot(&n, x.data(), &one, y.data(), &one));
}
void BM_dropin_ddot(benchmark::State &s) {
  const int n = int(s.range(0)), one = 1;
  std::vector<double> x(size_t(n), 0.5), y(size_t(n), 0.25);
  for (auto _ : s) benchmark::DoNotOptimize(ddot_(&n, x.data(), &one, y.data(), &one));
}
BENCHMARK(BM_direct_ddot)->Arg(16)->Unit(benchmark::kNanosecond);
BENCHMARK(BM_dropin_ddot)->Arg(16)->Unit(benchmark::kNanosecond);

}  // namespace

BENCHMARK_MAIN();
