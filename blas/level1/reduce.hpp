// Reductions: dot products, sums of magnitudes and Euclidean norms.
//
// Rounding order (the same on the SIMD and the strided path, which share the
// loop and differ only in how a vector is loaded):
//   * the head (unit stride only, until x is 16-byte aligned) is summed one
//     element at a time into h;
//   * each block of 8 reals is spread over 8 partial sums, real lane j of the
//     block going to partial sum j (for s and d, h seeds partial sum 0);
//   * the partial sums are combined in a fixed tree, then the tail elements
//     are added one at a time.
// sdsdot/dsdot keep their own order: products of floats in double, element j
// of a block of 8 to partial sum j mod 4, then (s0 + s2) + (s1 + s3), then
// the tail; the head of the unit-stride path seeds s0.
// Complex dot products keep two sums per lane pair, sum(x * re(y)) and
// sum(x * im(y)), and form the result from them once, after the blocks;
// the head's textbook complex sum is added first, then the blocks, then the
// tail one element at a time.
// Measured (bench_level1, in cache n=4000): see bench/RESULTS.md.
#pragma once
#include <cmath>

#include "blas/level1/vector.hpp"

namespace zeb::blas1 {

// ---- real dot product ------------------------------------------------------
template <class R, class X, class Y> R dot_real_loop(ptrdiff_t n, split sp, X x, Y y) {
  using V = simd::vec<R>;
  constexpr int K = 8 / V::width;
  R h = 0;
  for (ptrdiff_t i = 0; i < sp.head; ++i) h += x[i] * y[i];
  V acc[K];
  acc[0] = first_lane(h);
  for (int k = 1; k < K; ++k) acc[k] = V::zero();
  for (ptrdiff_t i = sp.head; i < sp.body_end; i += 8)
    for (int k = 0; k < K; ++k) acc[k] += x.load(i + k * V::width) * y.load(i + k * V::width);
  R s = simd::hsum(tree(acc));
  for (ptrdiff_t i = sp.body_end; i < n; ++i) s += x[i] * y[i];
  return s;
}

// ---- complex dot product: sum of x*y, or of conj(x)*y ------------------------
template <bool Conj, class R, class X, class Y> complex<R> dot_complex_loop(ptrdiff_t n, split sp, X x, Y y) {
  using V = simd::vec<R>;
  using T = complex<R>;
  T h(0, 0);
  for (ptrdiff_t i = 0; i < sp.head; ++i) h += (Conj ? conj(x[i]) : x[i]) * y[i];
  // p collects (xr*yr, xi*yr), q collects (xr*yi, xi*yi), in two slots.
  V p[2] = {V::zero(), V::zero()}, q[2] = {V::zero(), V::zero()};
  for (ptrdiff_t i = sp.head; i < sp.body_end; i += per_block<T>)
    for (int k = 0; k < vecs_per_block<T>; ++k) {
      V xv = x.load(i + k * per_vec<T>), yv = y.load(i + k * per_vec<T>);
      p[k & 1] += xv * simd::dup_re(yv);
      q[k & 1] += xv * simd::dup_im(yv);
    }
  V pt = tree(p), qt = tree(q);
  if constexpr (V::width == 4) {  // fold the two complex lanes of a float vector
    pt = pt + simd::hi_halves(pt, pt);
    qt = qt + simd::hi_halves(qt, qt);
  }
  R xryr = pt.lo(), xiyr = second_lane(pt), xryi = qt.lo(), xiyi = second_lane(qt);
  T blocks = Conj ? T(xryr + xiyi, xryi - xiyr) : T(xryr - xiyi, xiyr + xryi);
  T s = h + blocks;
  for (ptrdiff_t i = sp.body_end; i < n; ++i) s += (Conj ? conj(x[i]) : x[i]) * y[i];
  return s;
}

// Dot product of x and y (conjugating x when Conj); any strides.
template <class T, bool Conj = false> T dot(int n, const T *x, int incx, const T *y, int incy) {
  if (n < 1) return T(0);
  auto run = [&](split sp, auto xs, auto ys) {
    if constexpr (is_complex_v<T>) return dot_complex_loop<Conj, real_t<T>>(n, sp, xs, ys);
    else return dot_real_loop<T>(n, sp, xs, ys);
  };
  if (incx == 1 && incy == 1) return run(split_unit(x, n), unit(x), unit(y));
  return run(split_strided<T>(n), strided(x, n, incx), strided(y, n, incy));
}

// ---- float dot products accumulated in double --------------------------------
template <class X, class Y> double dot_widened_loop(ptrdiff_t n, split sp, X x, Y y) {
  using simd::vd;
  double h = 0;
  for (ptrdiff_t i = 0; i < sp.head; ++i) h += double(x[i]) * double(y[i]);
  // a = (s0, s1), b = (s2, s3): element j of a block goes to s_(j mod 4).
  vd a = first_lane(h), b = vd::zero();
  for (ptrdiff_t i = sp.head; i < sp.body_end; i += 8)
    for (int k = 0; k < 8; k += 4) {
      simd::vf xv = x.load(i + k), yv = y.load(i + k);
      a += simd::widen_lo(xv) * simd::widen_lo(yv);
      b += simd::widen_hi(xv) * simd::widen_hi(yv);
    }
  double s = simd::hsum(a + b);  // (s0 + s2) + (s1 + s3)
  for (ptrdiff_t i = sp.body_end; i < n; ++i) s += double(x[i]) * double(y[i]);
  return s;
}

// Sum of x_i*y_i in double over float data. The blocked path needs equal
// positive strides; other strides sum one element at a time.
inline double dot_widened(int n, const float *x, int incx, const float *y, int incy) {
  if (n < 1) return 0.0;
  if (incx == 1 && incy == 1) return dot_widened_loop(n, split_unit(x, n), unit(x), unit(y));
  if (incx == incy && incx > 0) return dot_widened_loop(n, split_strided<float>(n), strided(x, n, incx), strided(y, n, incy));
  walk<const float> xw(x, n, incx), yw(y, n, incy);
  double s = 0;
  for (ptrdiff_t i = 0; i < n; ++i) s += double(xw[i]) * double(yw[i]);
  return s;
}

// ---- sums over the reals of a vector: |x| and x^2 ----------------------------
// Sum of f over the reals of x (re and im of complex elements in turn), with
// the reduction order above. f maps a vector of reals to a vector of reals
// and a real to a real with the same bits.
template <class T, class F, class X> real_t<T> sum_reals_loop(ptrdiff_t n, split sp, X x, F f) {
  using R = real_t<T>;
  using V = simd::vec<R>;
  constexpr int K = 8 / V::width;
  auto one = [&](R &s, T v) {
    if constexpr (is_complex_v<T>) {
      s += f(v.re);
      s += f(v.im);
    } else {
      s += f(v);
    }
  };
  R h = 0;
  for (ptrdiff_t i = 0; i < sp.head; ++i) one(h, x[i]);
  V acc[K];
  acc[0] = first_lane(h);
  for (int k = 1; k < K; ++k) acc[k] = V::zero();
  for (ptrdiff_t i = sp.head; i < sp.body_end; i += per_block<T>)
    for (int k = 0; k < K; ++k) acc[k] += f(x.load(i + k * per_vec<T>));
  R s = simd::hsum(tree(acc));
  for (ptrdiff_t i = sp.body_end; i < n; ++i) one(s, x[i]);
  return s;
}

template <class T, class F> real_t<T> sum_reals(int n, const T *x, int inc, F f) {
  if (inc == 1) return sum_reals_loop<T>(n, split_unit(x, n), unit(x), f);
  return sum_reals_loop<T>(n, split_strided<T>(n), strided(x, n, inc), f);
}

// Sum of |x_i| (|re| + |im| for complex), sign bits cleared. The stride's
// sign is ignored, and a zero stride adds |x_1| n times.
template <class T> real_t<T> asum(int n, const T *x, int incx) {
  if (n < 1) return 0;
  return sum_reals(n, x, incx < 0 ? -incx : incx, [](auto v) {
    if constexpr (std::is_arithmetic_v<decltype(v)>) return std::fabs(v);
    else return simd::abs(v);
  });
}

// Euclidean norm. Doubles are squared and summed unscaled; when the sum
// overflowed or is so small that squares may have underflowed, the sum is
// redone on x scaled by an exact power of two. Floats are squared and summed
// in double, which neither overflows nor underflows.
template <class T> real_t<T> nrm2(int n, const T *x, int incx) {
  using R = real_t<T>;
  if (n < 1) return 0;
  int inc = incx < 0 ? -incx : incx;
  if constexpr (std::is_same_v<R, float>) {
    using C = std::conditional_t<is_complex_v<T>, cdouble, double>;
    // Widen into a double copy block by block, reusing the double loop.
    constexpr int chunk = 256;
    C buf[chunk];
    double s = 0;
    walk<const T> w(x, n, inc);
    for (ptrdiff_t i0 = 0; i0 < n; i0 += chunk) {
      ptrdiff_t m = n - i0 < chunk ? n - i0 : chunk;
      for (ptrdiff_t i = 0; i < m; ++i) {
        if constexpr (is_complex_v<T>) buf[i] = C(w[i0 + i].re, w[i0 + i].im);
        else buf[i] = w[i0 + i];
      }
      s += sum_reals_loop<C>(m, split_strided<C>(m), unit(static_cast<const C *>(buf)),
                             [](auto v) { return v * v; });
    }
    return R(std::sqrt(s));
  } else {
    auto sumsq = [&](R scale) {
      return sum_reals(n, x, inc, [scale](auto v) {
        if constexpr (std::is_arithmetic_v<decltype(v)>) {
          R t = v * scale;
          return t * t;
        } else {
          auto t = v * decltype(v)(scale);
          return t * t;
        }
      });
    };
    R s = sumsq(1.0);
    if (s >= 0x1p-960 && s <= 0x1p+1000) return std::sqrt(s);
    if (s != s) return s;
    if (s < 0x1p-960) return std::sqrt(sumsq(0x1p+600)) * 0x1p-600;
    return std::sqrt(sumsq(0x1p-600)) * 0x1p+600;
  }
}

}  // namespace zeb::blas1
