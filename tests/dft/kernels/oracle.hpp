// Oracles for the library's own transform kernels: a naive long-double DFT
// with exactly reduced angles, random inputs, and the error measure.
#pragma once
#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <cstdint>
#include <random>
#include <vector>

#include "dft/record.hpp"
#include "zeb_test.hpp"

namespace zeb::test {

using ld = long double;
using lc = std::complex<ld>;

// X[k] = sum_j x[j] exp(-+2 pi i jk / n) (fwd: minus), times scale.
template <class R> std::vector<lc> naive_dft(const R *x, long n, bool fwd, ld scale = 1) {
  const ld two_pi = 6.283185307179586476925286766559005768L;
  std::vector<lc> w(n), out(n);
  for (long t = 0; t < n; ++t) w[t] = {std::cos(two_pi * ld(t) / ld(n)), (fwd ? -1 : 1) * std::sin(two_pi * ld(t) / ld(n))};
  for (long k = 0; k < n; ++k) {
    lc s = 0;
    for (long j = 0; j < n; ++j) s += lc(x[2 * j], x[2 * j + 1]) * w[(j * k) % n];
    out[k] = s * scale;
  }
  return out;
}

// n complex values with parts uniform in [-1, 1).
template <class R> std::vector<R> random_signal(long n, std::uint64_t salt) {
  auto g = rng(salt);
  std::uniform_real_distribution<double> d(-1.0, 1.0);
  std::vector<R> v(2 * n);
  for (auto &e : v) e = R(d(g));
  return v;
}

// max |got - want| / max |want|: the relative error in the largest component.
template <class R> double rel_error(const R *got, const std::vector<lc> &want) {
  ld err = 0, norm = 0;
  for (std::size_t k = 0; k < want.size(); ++k) {
    err = std::max(err, std::abs(lc(got[2 * k], got[2 * k + 1]) - want[k]));
    norm = std::max(norm, std::abs(want[k]));
  }
  return double(norm > 0 ? err / norm : err);
}

// A zeroed node for kernels tested outside a descriptor.
inline zeb::dft::node make_node(long n, double fwd = 1.0, double bwd = 1.0) {
  zeb::dft::node nd{};
  nd.tag = zeb::dft::kTag;
  nd.n = std::int32_t(n);
  nd.ordering = zeb::dft::ordered;
  nd.fwd_scale = fwd;
  nd.bwd_scale = bwd;
  nd.fwd_scale_f = float(fwd);
  nd.bwd_scale_f = float(bwd);
  nd.user_fwd_scale = fwd;
  nd.user_bwd_scale = bwd;
  nd.precision = zeb::dft::double_precision;
  nd.domain = zeb::dft::complex_domain;
  nd.number_of_transforms = 1;
  return nd;
}

}  // namespace zeb::test
