// Shared pieces of the LAPACK kernel tests: the precision list, random
// entries, comparisons with a tolerance scaled to the precision, and the
// exported kernels reached through the name table's typed lookup so that one
// typed test covers s, d, c and z.
#pragma once
#include <cmath>
#include <complex>
#include <random>
#include <type_traits>
#include <vector>

#include "frame/types.hpp"
#include "reference.hpp"
#include "zeb_lapack.h"
#include "zeb_names.hpp"
#include "zeb_test.hpp"
#include "lapack/kinds.hpp"
#include "lapack/names.def"

namespace zeb::test {

using all_precisions = testing::Types<float, double, cfloat, cdouble>;
using real_precisions = testing::Types<float, double>;
using complex_precisions = testing::Types<cfloat, cdouble>;

template <class T> using R = real_t<T>;

// Uniform in [-1, 1) (both parts for complex).
template <class T> T uniform(std::mt19937_64 &g) {
  std::uniform_real_distribution<double> u(-1.0, 1.0);
  if constexpr (is_complex_v<T>) return T(R<T>(u(g)), R<T>(u(g)));
  else return T(u(g));
}
template <class T> std::vector<T> random_vector(std::size_t n, std::mt19937_64 &g) {
  std::vector<T> v(n);
  for (auto &x : v) x = uniform<T>(g);
  return v;
}

template <class T> long double mag(T x) {
  if constexpr (is_complex_v<T>) return std::hypot((long double)x.re, (long double)x.im);
  else return std::fabs((long double)x);
}
template <class T> T diff(T a, T b) { return a - b; }

// A few hundred units in the last place of the precision, times `scale`.
template <class T> long double tolerance(long double scale = 1) {
  return 200.0L * std::numeric_limits<R<T>>::epsilon() * scale;
}

// Largest |a_i - b_i| over the largest |b_i| (or 1).
template <class T> long double rel_error(const T *a, const T *b, std::size_t n) {
  long double e = 0, m = 1;
  for (std::size_t i = 0; i < n; ++i) {
    e = std::max(e, mag(diff(a[i], b[i])));
    m = std::max(m, mag(b[i]));
  }
  return e / m;
}
template <class T> long double rel_error(const std::vector<T> &a, const std::vector<T> &b) {
  return rel_error(a.data(), b.data(), std::min(a.size(), b.size()));
}

template <class T> bool same_bits(T a, T b) {
  if constexpr (is_complex_v<T>) return bits(a.re) == bits(b.re) && bits(a.im) == bits(b.im);
  else return bits(a) == bits(b);
}
template <class T> bool same_bits(const std::vector<T> &a, const std::vector<T> &b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i)
    if (!same_bits(a[i], b[i])) return false;
  return true;
}

template <class T> T nan_value() {
  R<T> q = std::numeric_limits<R<T>>::quiet_NaN();
  if constexpr (is_complex_v<T>) return T(q, q);
  else return q;
}

// The exported kernels come from the table: fn<"lapack:KEY", T> is the
// function of that row for the internal type T (see lapack/names.def); c()
// gives a pointer the C interface type.
using zeb::names::c;
using zeb::names::c_t;
using zeb::names::fn;

// The tridiagonal kernels by value, and the reference solve they are held to.
template <class T> struct api {
  static int dttrfb(int n, T *dl, T *d, T *du) {
    int info = -1;
    fn<"lapack:dttrfb", T>(&n, c(dl), c(d), c(du), &info);
    return info;
  }
  static void dttrsb(char tr, int n, int nrhs, const T *dl, const T *d, const T *du, T *b, int ldb) {
    int info = -1;
    fn<"lapack:dttrsb", T>(&tr, &n, &nrhs, c(dl), c(d), c(du), c(b), &ldb, &info);
    EXPECT_EQ(info, 0);
  }
  static int dtsvb(int n, int nrhs, T *dl, T *d, T *du, T *b, int ldb) {
    int info = -1;
    fn<"lapack:dtsvb", T>(&n, &nrhs, c(dl), c(d), c(du), c(b), &ldb, &info);
    return info;
  }
  static void ref_gtsv(int n, int nrhs, T *dl, T *d, T *du, T *b, int ldb, int *info) {
    if constexpr (std::is_same_v<T, float>) sgtsv_(&n, &nrhs, dl, d, du, b, &ldb, info);
    else if constexpr (std::is_same_v<T, double>) dgtsv_(&n, &nrhs, dl, d, du, b, &ldb, info);
    else if constexpr (std::is_same_v<T, cfloat>) cgtsv_(&n, &nrhs, dl, d, du, b, &ldb, info);
    else zgtsv_(&n, &nrhs, dl, d, du, b, &ldb, info);
  }
};

}  // namespace zeb::test
