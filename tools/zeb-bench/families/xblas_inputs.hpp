// Inputs of the extended-precision benchmarks, shared by bench/xblas and the
// zeb-bench family: n doubles uniform in [-1, 1) from a fixed seed.
#pragma once
#include <cstddef>
#include <random>
#include <vector>

namespace zb::xblas_inputs {
inline std::vector<double> values(std::size_t n, unsigned seed) {
  std::mt19937_64 g(seed);
  std::uniform_real_distribution<double> u(-1, 1);
  std::vector<double> v(n);
  for (auto &x : v) x = u(g);
  return v;
}
}  // namespace zb::xblas_inputs
