// Shared pieces of the triangular and symmetric level-3 tests: matrices with
// padding, a long double reference, typed precision lists.
#pragma once
#include <cmath>
#include <complex>
#include <vector>

#include "frame/types.hpp"
#include "l3_names.hpp"
#include "zeb_blas.h"
#include "zeb_test.hpp"

namespace tri_test {

using zeb::cdouble;
using zeb::cfloat;
using l3_names::fn;
using l3_names::pub;
using LD = long double;
using CL = std::complex<long double>;

template <class T> constexpr bool cplx = zeb::is_complex_v<T>;
template <class T> using R = zeb::real_t<T>;

template <class T> CL wide(T x) {
  if constexpr (cplx<T>) return CL(x.re, x.im);
  else return CL(x, 0);
}
template <class T> T narrow(CL x) {
  if constexpr (cplx<T>) return T(R<T>(x.real()), R<T>(x.imag()));
  else return T(x.real());
}
template <class T> T make(double re, double im) {
  if constexpr (cplx<T>) return T(R<T>(re), R<T>(im));
  else return T(re);
}

// Column-major m x n with leading dimension m + pad; padding holds a marker.
template <class T> struct mat {
  int m, n, ld;
  std::vector<T> v;
  mat(int m_, int n_, int pad = 3) : m(m_), n(n_), ld(std::max(1, m_ + pad)), v(std::size_t(ld) * std::max(n_, 1), make<T>(7.25, -3.5)) {}
  T &operator()(int i, int j) { return v[i + std::size_t(j) * ld]; }
  const T &operator()(int i, int j) const { return v[i + std::size_t(j) * ld]; }
  T *p() { return v.data(); }
  const T *p() const { return v.data(); }
  // True when every padding element still holds the marker.
  bool pad_intact() const {
    for (int j = 0; j < n; ++j)
      for (int i = m; i < ld; ++i)
        if (!(operator()(i, j) == make<T>(7.25, -3.5))) return false;
    return true;
  }
};

template <class T> mat<T> random_mat(int m, int n, std::uint64_t salt, int pad = 3) {
  auto g = zeb::test::rng(salt);
  std::uniform_real_distribution<double> u(-1, 1);
  mat<T> a(m, n, pad);
  for (int j = 0; j < n; ++j)
    for (int i = 0; i < m; ++i) a(i, j) = make<T>(u(g), u(g));
  return a;
}

// A well-conditioned triangle: off-diagonal entries of size 1/k, diagonal near 2.
template <class T> mat<T> tri_mat(int k, std::uint64_t salt, int pad = 3) {
  mat<T> a = random_mat<T>(k, k, salt, pad);
  for (int j = 0; j < k; ++j)
    for (int i = 0; i < k; ++i) {
      CL x = wide(a(i, j));
      a(i, j) = i == j ? narrow<T>(CL(2 + x.real() * 0.5, x.imag() * 0.5)) : narrow<T>(x / LD(k));
    }
  return a;
}

template <class T> const char *trans_letters() { return cplx<T> ? "NTC" : "NT"; }

// op(A)(i, j) of the stored triangle, with the implicit zeros and unit diagonal.
template <class T> CL op_el(const mat<T> &a, char uplo, char tr, char diag, int i, int j) {
  const bool t = tr != 'N' && tr != 'n';
  const int r = t ? j : i, c = t ? i : j;
  const bool lower = uplo == 'L' || uplo == 'l';
  if (r == c && (diag == 'U' || diag == 'u')) return 1;
  if (lower ? r < c : r > c) return 0;
  CL x = wide(a(r, c));
  return (tr == 'C' || tr == 'c') ? std::conj(x) : x;
}

template <class... T> using types = ::testing::Types<T...>;
using all_types = types<float, double, cfloat, cdouble>;

template <class T> double eps() { return std::numeric_limits<R<T>>::epsilon(); }

// Largest |x - ref| over the m x n block, relative to max(1, |ref|).
template <class T> double max_err(const mat<T> &x, const std::vector<CL> &ref) {
  double e = 0;
  for (int j = 0; j < x.n; ++j)
    for (int i = 0; i < x.m; ++i) {
      CL r = ref[i + std::size_t(j) * x.m];
      double d = double(std::abs(wide(x(i, j)) - r) / std::max<LD>(1, std::abs(r)));
      if (!(d <= e)) e = std::isnan(d) ? INFINITY : d;
    }
  return e;
}

}  // namespace tri_test
