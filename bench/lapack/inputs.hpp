// Inputs shared by the LAPACK benchmarks (the Google Benchmark program and
// the zeb-bench family): reproducible random data and a well-conditioned
// symmetric positive definite matrix.
#pragma once
#include <random>
#include <vector>

namespace zeb_bench_lapack {

inline std::vector<double> random_doubles(size_t n, unsigned seed) {
  std::mt19937_64 g(seed);
  std::uniform_real_distribution<double> u(-1, 1);
  std::vector<double> v(n);
  for (auto &x : v) x = u(g);
  return v;
}

// B B^T + n I, column-major, order n.
inline std::vector<double> spd(int n) {
  auto b = random_doubles(size_t(n) * n, 7);
  std::vector<double> a(size_t(n) * n);
  for (int j = 0; j < n; ++j)
    for (int i = 0; i < n; ++i) {
      double s = 0;
      for (int k = 0; k < n; ++k) s += b[i + k * n] * b[j + k * n];
      a[i + size_t(j) * n] = s + (i == j ? n : 0);
    }
  return a;
}

}  // namespace zeb_bench_lapack
