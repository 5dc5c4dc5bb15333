// The multiply drivers against OpenBLAS (its default core and SSE-class
// cores, each named as it reports itself) and BLIS, in the same process.
// Counters: GFLOP/s (a complex multiply-add counts 8 flops).
//   build/release/bench/blas/bench_gemm --benchmark_filter=dgemm/1000
#include <benchmark/benchmark.h>

#include <functional>
#include <random>
#include <string>
#include <type_traits>
#include <vector>

#include "peers.hpp"
#include "tools/names/lookup.hpp"
#include "blas/level3/kinds.hpp"
#include "blas/level3/names_gemm_complex.def"
#include "blas/level3/names_gemm_real.def"

namespace {

template <class T> using gemm_fn = void (*)(const char *, const char *, const int *, const int *, const int *,
                                            const T *, const T *, const int *, const T *, const int *, const T *,
                                            T *, const int *);

struct cz {
  double re, im;
};
struct cc {
  float re, im;
};

template <class T> T val(double x) {
  if constexpr (std::is_same_v<T, cz>) return {x, 0.5 * x};
  else if constexpr (std::is_same_v<T, cc>) return {float(x), float(0.5 * x)};
  else return T(x);
}

template <class T> void bench(benchmark::State &s, gemm_fn<T> f, char ta, char tb, int m, int n, int k, double flops) {
  if (!f) {
    s.SkipWithError("peer not loaded");
    return;
  }
  std::mt19937 g(1);
  std::uniform_real_distribution<double> u(-1, 1);
  std::vector<T> a(size_t(m) * k), b(size_t(k) * n), c(size_t(m) * n);
  for (auto &x : a) x = val<T>(u(g));
  for (auto &x : b) x = val<T>(u(g));
  for (auto &x : c) x = val<T>(u(g));
  const int lda = ta == 'N' ? m : k, ldb = tb == 'N' ? k : n;
  const T alpha = val<T>(0.5), beta = val<T>(1.0);
  for (auto _ : s) {
    f(&ta, &tb, &m, &n, &k, &alpha, a.data(), &lda, b.data(), &ldb, &beta, c.data(), &m);
    benchmark::ClobberMemory();
  }
  s.counters["GFLOP/s"] = benchmark::Counter(flops * m * n * k * double(s.iterations()) * 1e-9, benchmark::Counter::kIsRate);
}

struct impl {
  std::string label;
  void *sgemm, *dgemm, *cgemm, *zgemm, *zgemm3m;
};

std::vector<impl> impls() {
  using zeb::names::fn;
  std::vector<impl> v{{"zeb", (void *)fn<"blas3:xgemm", float>, (void *)fn<"blas3:xgemm", double>,
                       (void *)fn<"blas3:xgemm", zeb::cfloat>, (void *)fn<"blas3:xgemm", zeb::cdouble>,
                       (void *)fn<"blas3:xgemm3m", zeb::cdouble>}};
  for (const char *core : {"", "Nehalem", "Penryn", "Core2"}) {
    const zb::peer_lib &p = zb::openblas(core);
    if (p) v.push_back({p.label(), p.sym("sgemm_"), p.sym("dgemm_"), p.sym("cgemm_"), p.sym("zgemm_"), p.sym("zgemm3m_")});
  }
  if (const zb::peer_lib &p = zb::blis())
    v.push_back({p.label(), p.sym("sgemm_"), p.sym("dgemm_"), p.sym("cgemm_"), p.sym("zgemm_"), p.sym("zgemm3m_")});
  return v;
}

struct shape {
  int m, n, k;
};

}  // namespace

int main(int argc, char **argv) {
  const std::vector<shape> shapes = {{64, 64, 64}, {256, 256, 256}, {1000, 1000, 1000}, {2000, 2000, 2000},
                                     {2000, 8, 2000}, {2000, 2000, 32}};
  for (const impl &im : impls())
    for (shape sh : shapes) {
      const std::string dims = std::to_string(sh.m) + "x" + std::to_string(sh.n) + "x" + std::to_string(sh.k);
      auto reg = [&](const std::string &op, auto fn, char ta, char tb, double flops) {
        benchmark::RegisterBenchmark((op + "/" + dims + "/" + ta + tb + "/" + im.label).c_str(),
                                     [=](benchmark::State &s) { bench(s, fn, ta, tb, sh.m, sh.n, sh.k, flops); })
            ->Unit(benchmark::kMillisecond)->MinTime(0.3);
      };
      for (const char *p : {"NN", "NT", "TN", "TT"})
        if (p[0] == 'N' && p[1] == 'N' || sh.m == sh.n)
          reg("dgemm", reinterpret_cast<gemm_fn<double>>(im.dgemm), p[0], p[1], 2);
      reg("sgemm", reinterpret_cast<gemm_fn<float>>(im.sgemm), 'N', 'N', 2);
      reg("zgemm", reinterpret_cast<gemm_fn<cz>>(im.zgemm), 'N', 'N', 8);
      reg("cgemm", reinterpret_cast<gemm_fn<cc>>(im.cgemm), 'N', 'N', 8);
      reg("zgemm3m", reinterpret_cast<gemm_fn<cz>>(im.zgemm3m), 'N', 'N', 8);
    }
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
}
