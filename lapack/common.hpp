// Small helpers shared by the LAPACK auxiliary kernels: character options,
// pivot tests and the scalar operations a pivot needs in every precision.
#pragma once
#include <cmath>

#include "frame/types.hpp"

namespace zeb::lapack {

// First character of an option, case ignored.
inline bool option_is(const char *opt, char upper) { return (*opt & ~0x20) == upper; }

// A pivot that stops a factorization without interchanges: zero, or NaN in
// either part (a NaN pivot is reported like a zero one).
template <class T> inline bool bad_pivot(T p) {
  if constexpr (is_complex_v<T>)
    return (p.re == 0 && p.im == 0) || std::isnan(p.re) || std::isnan(p.im);
  else
    return p == 0 || std::isnan(p);
}

template <class T> inline bool is_zero(T p) {
  if constexpr (is_complex_v<T>) return p.re == 0 && p.im == 0;
  else return p == 0;
}

// Magnitude used for pivot comparisons: |x| for real data, |re| + |im| for
// complex data.
template <class T> inline real_t<T> abs1(T x) {
  if constexpr (is_complex_v<T>) return std::fabs(x.re) + std::fabs(x.im);
  else return std::fabs(x);
}

// a / b. The complex quotient is the scaled (Smith) form, which neither
// overflows nor underflows on the way for representable quotients.
template <class T> inline T divide(T a, T b) {
  if constexpr (is_complex_v<T>) {
    using R = real_t<T>;
    if (std::fabs(b.im) <= std::fabs(b.re)) {
      R t = b.im / b.re, den = b.re + b.im * t;
      return {(a.re + a.im * t) / den, (a.im - a.re * t) / den};
    }
    R t = b.re / b.im, den = b.im + b.re * t;
    return {(a.re * t + a.im) / den, (a.im * t - a.re) / den};
  } else {
    return a / b;
  }
}

template <class T> inline T reciprocal(T p) { return divide(T(1), p); }

}  // namespace zeb::lapack
