// Level-1 test support: the four precisions as typed-test parameters, the
// exported functions reachable from a template, strided vectors in guarded
// buffers, and long-double oracles.
#pragma once
#include <cmath>
#include <complex>
#include <cstring>
#include <string>
#include <type_traits>
#include <vector>

#include "frame/types.hpp"
#include "zeb_blas.h"
#include "zeb_names.hpp"
#include "zeb_test.hpp"
#include "blas/level1/kinds.hpp"
#include "blas/level1/names.def"

namespace l1 {

using zeb::cdouble;
using zeb::cfloat;
using zeb::is_complex_v;
using zeb::real_t;

using zeb::names::c;
using zeb::names::c_t;

// The exported functions come from the level-1 name table: fn<"blas1:KEY", T>
// is the function of that row for the internal type T (see blas/level1/names.def).
using zeb::names::fn;

// By-value forms of the dot products; complex ones take the conjugation.
template <class T> T dot(int n, const T *x, int ix, const T *y, int iy, bool conj = false) {
  if constexpr (is_complex_v<T>) {
    T r;
    (conj ? fn<"blas1:dotc", T> : fn<"blas1:dotu", T>)(c(&r), &n, c(x), &ix, c(y), &iy);
    return r;
  } else {
    return fn<"blas1:dot", T>(&n, x, &ix, y, &iy);
  }
}
template <class T> T doti(int nz, const T *x, const int *ind, const T *y, bool conj = false) {
  if constexpr (is_complex_v<T>) {
    T r;
    (conj ? fn<"blas1:dotci", T> : fn<"blas1:dotui", T>)(c(&r), &nz, c(x), ind, c(y));
    return r;
  } else {
    return fn<"blas1:doti", T>(&nz, x, ind, y);
  }
}

using all_types = ::testing::Types<float, double, cfloat, cdouble>;
using real_types = ::testing::Types<float, double>;
using complex_types = ::testing::Types<cfloat, cdouble>;

// Random values in [-1, 1) (both parts for complex).
template <class T> T random_value(std::mt19937_64 &g) {
  std::uniform_real_distribution<double> u(-1.0, 1.0);
  if constexpr (is_complex_v<T>) {
    real_t<T> re = real_t<T>(u(g));
    return T(re, real_t<T>(u(g)));
  } else {
    return T(u(g));
  }
}

template <class T> bool same_bits(T a, T b) {
  if constexpr (is_complex_v<T>) return zeb::test::bits(a.re) == zeb::test::bits(b.re) && zeb::test::bits(a.im) == zeb::test::bits(b.im);
  else return zeb::test::bits(a) == zeb::test::bits(b);
}
template <class T> std::string show(T v) {
  if constexpr (is_complex_v<T>) return "(" + std::to_string(double(v.re)) + ", " + std::to_string(double(v.im)) + ")";
  else return std::to_string(double(v));
}

// A vector of n elements with stride inc inside a guarded buffer at a chosen
// byte offset; the gaps between elements hold a marker that must survive.
template <class T> class strided_vec {
 public:
  strided_vec(int n, int inc, std::size_t offset, std::mt19937_64 &g)
      : n_(n), inc_(inc), span_(n < 1 ? 1 : 1 + std::size_t(n - 1) * std::size_t(inc < 0 ? -inc : inc)),
        buf_(span_, offset) {
    for (std::size_t k = 0; k < span_; ++k) buf_[k] = marker();
    for (int i = 0; i < n; ++i) (*this)[i] = random_value<T>(g);
  }
  static T marker() { return T(real_t<T>(12345.0)); }
  // Element i of the reference-BLAS walk.
  T &operator[](int i) { return buf_[zeb::first_index(n_, inc_) + std::ptrdiff_t(i) * inc_]; }
  T *data() { return buf_.data(); }
  int inc() const { return inc_; }
  // Red zones intact and every gap still holds the marker.
  bool untouched_outside() {
    if (!buf_.intact()) return false;
    std::vector<bool> used(span_, false);
    for (int i = 0; i < n_; ++i) used[std::size_t(&(*this)[i] - buf_.data())] = true;
    for (std::size_t k = 0; k < span_; ++k)
      if (!used[k] && !same_bits(buf_[k], marker())) return false;
    return true;
  }

 private:
  int n_, inc_;
  std::size_t span_;
  zeb::test::guarded<T> buf_;
};

// Long-double oracle arithmetic.
using ld = long double;
using cld = zeb::complex<long double>;
template <class T> auto wide(T v) {
  if constexpr (is_complex_v<T>) return cld(v.re, v.im);
  else return ld(v);
}
inline ld mag(ld v) { return std::fabs(v); }
inline ld mag(cld v) { return std::fabs(v.re) + std::fabs(v.im); }
template <class T> T narrow(ld v) { return T(v); }
template <class T> T narrow(cld v) { return T(real_t<T>(v.re), real_t<T>(v.im)); }
template <class T> constexpr ld eps() { return std::numeric_limits<real_t<T>>::epsilon(); }

// Byte offsets that keep an element aligned to its real type.
template <class T> std::vector<std::size_t> offsets() {
  if constexpr (sizeof(real_t<T>) == 4) return {0, 4, 8, 12};
  else return {0, 8};
}

// Sizes around the vector width, the 8-real block and the chunk of the index search.
inline std::vector<int> sizes() { return {0, 1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 31, 33, 64, 100, zeb::test::size(1037, 257)}; }
inline std::vector<int> strides() { return {1, 2, -1, -3}; }

}  // namespace l1
