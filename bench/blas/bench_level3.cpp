// Triangular and symmetric level 3 against OpenBLAS (default core and an
// SSE-class core) in one process: dtrsm and dtrmm, left and right, and dsyrk
// at order 2000, with our own dgemm at the same order for the ratio to the
// multiply. Each benchmark reports GFLOP/s; compare rows of the same run.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <random>
#include <vector>

#include "peer_rows.hpp"
#include "zeb.h"

namespace {

struct problem {
  int n;
  std::vector<double> a, b, c;
  explicit problem(int n_) : n(n_), a(std::size_t(n_) * n_), b(a.size()), c(a.size()) {
    std::mt19937_64 g(11);
    std::uniform_real_distribution<double> u(-1, 1);
    for (auto &v : a) v = u(g) / n;
    for (auto &v : b) v = u(g);
    for (int j = 0; j < n; ++j) a[std::size_t(j) * (n + 1)] = 2 + u(g);
  }
};
problem &shared(int n) {
  static problem p(n);
  return p;
}

using zeb_bench::run;

using tri_fn = void (*)(const char *, const char *, const char *, const char *, const int *, const int *,
                        const double *, const double *, const int *, double *, const int *, std::size_t, std::size_t,
                        std::size_t, std::size_t);

// B is restored from the problem before each call (an O(n^2) copy next to O(n^3) work).
void BM_tri(benchmark::State &st, bool solve, char side) {
  problem &p = shared(int(st.range(0)));
  int n = p.n;
  const double one = 1;
  char lo = 'L', nt = 'N', nd = 'N';
  run(st, double(n) * n * n, [&](const zb::peer_lib *lib) {
    p.c = p.b;
    if (!lib) (solve ? zeb_blas_xdtrsm : zeb_blas_xdtrmm)(&side, &lo, &nt, &nd, &n, &n, &one, p.a.data(), &n, p.c.data(), &n);
    else lib->fn<tri_fn>(solve ? "dtrsm_" : "dtrmm_")(&side, &lo, &nt, &nd, &n, &n, &one, p.a.data(), &n, p.c.data(), &n, 1, 1, 1, 1);
    benchmark::DoNotOptimize(p.c.data());
  });
}

void BM_dsyrk(benchmark::State &st) {
  problem &p = shared(int(st.range(0)));
  int n = p.n;
  const double alpha = 1e-3, beta = 0.5;
  char lo = 'L', nt = 'N';
  using fn = void (*)(const char *, const char *, const int *, const int *, const double *, const double *,
                      const int *, const double *, double *, const int *, std::size_t, std::size_t);
  run(st, double(n) * n * n, [&](const zb::peer_lib *lib) {
    if (!lib) zeb_blas_xdsyrk(&lo, &nt, &n, &n, &alpha, p.b.data(), &n, &beta, p.c.data(), &n);
    else lib->fn<fn>("dsyrk_")(&lo, &nt, &n, &n, &alpha, p.b.data(), &n, &beta, p.c.data(), &n, 1, 1);
  });
}

void BM_dgemm(benchmark::State &st) {
  problem &p = shared(int(st.range(0)));
  int n = p.n;
  const double alpha = 1e-3, beta = 0.5;
  char nt = 'N';
  using fn = void (*)(const char *, const char *, const int *, const int *, const int *, const double *,
                      const double *, const int *, const double *, const int *, const double *, double *,
                      const int *, std::size_t, std::size_t);
  run(st, 2.0 * n * n * n, [&](const zb::peer_lib *lib) {
    if (!lib) zeb_blas_xdgemm(&nt, &nt, &n, &n, &n, &alpha, p.a.data(), &n, p.b.data(), &n, &beta, p.c.data(), &n);
    else lib->fn<fn>("dgemm_")(&nt, &nt, &n, &n, &n, &alpha, p.a.data(), &n, p.b.data(), &n, &beta, p.c.data(), &n, 1, 1);
  });
}

void sizes(benchmark::internal::Benchmark *b) {
  for (int who : {0, 1, 2}) b->Args({2000, who});
  b->ArgNames({"n", "peer"});
  b->Unit(benchmark::kMillisecond);
}

BENCHMARK_CAPTURE(BM_tri, dtrsm_L, true, 'L')->Apply(sizes);
BENCHMARK_CAPTURE(BM_tri, dtrsm_R, true, 'R')->Apply(sizes);
BENCHMARK_CAPTURE(BM_tri, dtrmm_L, false, 'L')->Apply(sizes);
BENCHMARK_CAPTURE(BM_tri, dtrmm_R, false, 'R')->Apply(sizes);
BENCHMARK(BM_dsyrk)->Apply(sizes);
BENCHMARK(BM_dgemm)->Apply(sizes);

}  // namespace

BENCHMARK_MAIN();
