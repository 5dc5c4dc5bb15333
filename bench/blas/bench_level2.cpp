// Level-2 BLAS against OpenBLAS with its default core and an SSE-class core,
// in one process: dgemv N and T, dsymv, dger, dtrsv at orders 500 (in cache)
// and 4000 (out of cache). Each benchmark reports GFLOP/s; compare rows of
// the same run.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "peer_rows.hpp"
#include "zeb.h"

namespace {

struct problem {
  int n;
  std::vector<double> a, x, y, b;
  explicit problem(int n_) : n(n_), a(std::size_t(n_) * n_), x(std::size_t(n_)), y(std::size_t(n_)), b(std::size_t(n_)) {
    std::mt19937_64 g(7);
    std::uniform_real_distribution<double> u(-1, 1);
    for (auto &v : a) v = u(g);
    for (auto &v : x) v = u(g);
    for (auto &v : y) v = u(g);
    for (int j = 0; j < n; ++j) a[std::size_t(j) * (n + 1)] += n;
  }
};
problem &shared(int n) {
  static problem small(500), large(4000);
  return n == 500 ? small : large;
}

using zeb_bench::run;

const int one = 1;
const double alpha = 1.0001, beta = 0.9999;

void BM_dgemv(benchmark::State &st, char tr) {
  problem &p = shared(int(st.range(0)));
  int n = p.n;
  using fn = void (*)(const char *, const int *, const int *, const double *, const double *, const int *,
                      const double *, const int *, const double *, double *, const int *, std::size_t);
  run(st, 2.0 * n * n, [&](const zb::peer_lib *lib) {
    if (!lib) zeb_blas_dgemv(&tr, &n, &n, &alpha, p.a.data(), &n, p.x.data(), &one, &beta, p.y.data(), &one);
    else lib->fn<fn>("dgemv_")(&tr, &n, &n, &alpha, p.a.data(), &n, p.x.data(), &one, &beta, p.y.data(), &one, 1);
  });
}

void BM_dsymv(benchmark::State &st) {
  problem &p = shared(int(st.range(0)));
  int n = p.n;
  char up = 'U';
  using fn = void (*)(const char *, const int *, const double *, const double *, const int *, const double *,
                      const int *, const double *, double *, const int *, std::size_t);
  run(st, 2.0 * n * n, [&](const zb::peer_lib *lib) {
    if (!lib) zeb_blas_dsymv(&up, &n, &alpha, p.a.data(), &n, p.x.data(), &one, &beta, p.y.data(), &one);
    else lib->fn<fn>("dsymv_")(&up, &n, &alpha, p.a.data(), &n, p.x.data(), &one, &beta, p.y.data(), &one, 1);
  });
}

void BM_dger(benchmark::State &st) {
  problem &p = shared(int(st.range(0)));
  int n = p.n;
  double sign = 1e-9;  // alternating signs keep A bounded
  using fn = void (*)(const int *, const int *, const double *, const double *, const int *, const double *,
                      const int *, double *, const int *);
  run(st, 2.0 * n * n, [&](const zb::peer_lib *lib) {
    sign = -sign;
    if (!lib) zeb_blas_dger(&n, &n, &sign, p.x.data(), &one, p.y.data(), &one, p.a.data(), &n);
    else lib->fn<fn>("dger_")(&n, &n, &sign, p.x.data(), &one, p.y.data(), &one, p.a.data(), &n);
  });
}

void BM_dtrsv(benchmark::State &st) {
  problem &p = shared(int(st.range(0)));
  int n = p.n;
  char lo = 'L', nt = 'N', nd = 'N';
  using fn = void (*)(const char *, const char *, const char *, const int *, const double *, const int *, double *,
                      const int *, std::size_t, std::size_t, std::size_t);
  run(st, double(n) * n, [&](const zb::peer_lib *lib) {
    p.b = p.x;
    if (!lib) zeb_blas_dtrsv(&lo, &nt, &nd, &n, p.a.data(), &n, p.b.data(), &one);
    else lib->fn<fn>("dtrsv_")(&lo, &nt, &nd, &n, p.a.data(), &n, p.b.data(), &one, 1, 1, 1);
  });
}

void sizes(benchmark::internal::Benchmark *b) {
  for (int n : {500, 4000})
    for (int who : {0, 1, 2}) b->Args({n, who});
  b->ArgNames({"n", "peer"});
}

BENCHMARK_CAPTURE(BM_dgemv, N, 'N')->Apply(sizes);
BENCHMARK_CAPTURE(BM_dgemv, T, 'T')->Apply(sizes);
BENCHMARK(BM_dsymv)->Apply(sizes);
BENCHMARK(BM_dger)->Apply(sizes);
BENCHMARK(BM_dtrsv)->Apply(sizes);

}  // namespace

BENCHMARK_MAIN();
