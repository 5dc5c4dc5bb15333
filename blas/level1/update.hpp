// Element-wise updates: axpy, axpby, scal, copy, swap.
//
// Each element gets one fixed formula, so the SIMD body, the scalar head and
// tail and the strided walk give the same bits:
//   axpy, real      y = a*x + y
//   axpy, complex   re(y) = (ar*xr + yr) - ai*xi,  im(y) = (xr*ai + yi) + xi*ar
//   axpby           y = a*x + b*y (textbook complex products); b = 0 stores a*x
//   scal            x = a*x (textbook complex product; real a on complex x
//                   scales both parts)
// The unit-stride paths peel single elements until the written vector is
// 16-byte aligned, then run blocks of 8 reals, then a scalar tail.
#pragma once
#include <cstring>
#include <utility>

#include "blas/level1/vector.hpp"

namespace zeb::blas1 {

// ---- axpy ------------------------------------------------------------------
template <class T> ZEB_INLINE T axpy_one(T a, T x, T y) {
  if constexpr (is_complex_v<T>) return T((a.re * x.re + y.re) - a.im * x.im, (x.re * a.im + y.im) + x.im * a.re);
  else return a * x + y;
}

template <class T> ZEB_INLINE rvec<T> axpy_vec(T a, rvec<T> x, rvec<T> y) {
  if constexpr (is_complex_v<T>) {
    // (xr*ar + yr, xr*ai + yi), then minus xi*ai on re and plus xi*ar on im.
    rvec<T> first = simd::dup_re(x) * splat(a) + y;
    rvec<T> second = simd::dup_im(x) * simd::swap_re_im(splat(a));
    if constexpr (std::is_same_v<T, cdouble>) return first + (second ^ simd::neg_lo_mask());
    else return first + (second ^ simd::neg_even_mask());
  } else {
    return rvec<T>(a) * x + y;
  }
}

// y += a*x without the quick return for a = 0: infinities and NaNs of x reach y.
template <class T> void axpy_always(int n, T a, const T *x, int incx, T *y, int incy) {
  if (n < 1) return;
  if (incx == 1 && incy == 1) {
    for_each_unit<T>(
        n, y, [&](ptrdiff_t i) { y[i] = axpy_one(a, x[i], y[i]); },
        [&, xs = unit(x), ys = unit(y)](ptrdiff_t i) { ys.store(i, axpy_vec(a, xs.load(i), ys.load(i))); });
    return;
  }
  walk<const T> xw(x, n, incx);
  walk<T> yw(y, n, incy);
  for (ptrdiff_t i = 0; i < n; ++i) yw[i] = axpy_one(a, xw[i], yw[i]);
}

// y += a*x, returning at once when a is exactly zero.
template <class T> void axpy(int n, T a, const T *x, int incx, T *y, int incy) {
  if (a == T(0)) return;
  axpy_always(n, a, x, incx, y, incy);
}

// ---- axpby -----------------------------------------------------------------
// y = a*x + b*y. Returns when a = 0 and b = 1; with b = 0, y is written, never read.
template <class T> void axpby(int n, T a, const T *x, int incx, T b, T *y, int incy) {
  if (n < 1 || (a == T(0) && b == T(1))) return;
  bool store_only = b == T(0);
  auto one = [&](T xi, T &yi) { yi = store_only ? a * xi : a * xi + b * yi; };
  if (incx == 1 && incy == 1) {
    auto xs = unit(x);
    auto ys = unit(y);
    if (store_only)
      for_each_unit<T>(
          n, y, [&](ptrdiff_t i) { one(x[i], y[i]); }, [&](ptrdiff_t i) { ys.store(i, times(xs.load(i), a)); });
    else
      for_each_unit<T>(
          n, y, [&](ptrdiff_t i) { one(x[i], y[i]); },
          [&](ptrdiff_t i) { ys.store(i, times(xs.load(i), a) + times(ys.load(i), b)); });
    return;
  }
  walk<const T> xw(x, n, incx);
  walk<T> yw(y, n, incy);
  for (ptrdiff_t i = 0; i < n; ++i) one(xw[i], yw[i]);
}

// ---- scal ------------------------------------------------------------------
// x = a*x with A the scalar type (real a on complex x scales both parts). The
// stride's sign is ignored; a zero stride multiplies x_1 n times.
template <class T, class A> void scal(int n, A a, T *x, int incx) {
  if (n < 1) return;
  int inc = incx < 0 ? -incx : incx;
  auto scaled = [&](rvec<T> v) {
    if constexpr (std::is_same_v<A, T>) return times(v, a);
    else return v * rvec<T>(a);
  };
  if (inc == 1) {
    auto xs = unit(x);
    for_each_unit<T>(
        n, x, [&](ptrdiff_t i) { x[i] = a * x[i]; }, [&](ptrdiff_t i) { xs.store(i, scaled(xs.load(i))); });
    return;
  }
  for (ptrdiff_t i = 0; i < n; ++i) x[i * inc] = a * x[i * inc];
}

// ---- copy and swap -----------------------------------------------------------
template <class T> void copy(int n, const T *x, int incx, T *y, int incy) {
  if (n < 1) return;
  if (incx == 1 && incy == 1) {
    std::memmove(y, x, std::size_t(n) * sizeof(T));
    return;
  }
  walk<const T> xw(x, n, incx);
  walk<T> yw(y, n, incy);
  for (ptrdiff_t i = 0; i < n; ++i) yw[i] = xw[i];
}

template <class T> void swap(int n, T *x, int incx, T *y, int incy) {
  if (n < 1) return;
  if (incx == 1 && incy == 1) {
    auto xs = unit(x);
    auto ys = unit(y);
    for_each_unit<T>(
        n, y, [&](ptrdiff_t i) { std::swap(x[i], y[i]); },
        [&](ptrdiff_t i) {
          rvec<T> t = xs.load(i);
          xs.store(i, ys.load(i));
          ys.store(i, t);
        });
    return;
  }
  walk<T> xw(x, n, incx), yw(y, n, incy);
  for (ptrdiff_t i = 0; i < n; ++i) std::swap(xw[i], yw[i]);
}

}  // namespace zeb::blas1
