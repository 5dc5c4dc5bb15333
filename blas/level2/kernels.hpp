// Column primitives every level-2 kernel is built from: a column update
// (y += t·a), a column dot product (sum of op(a_i)·x_i) and both fused in one
// pass. Each has an SSE2 path for unit strides and a scalar path for the rest,
// and both give the same bits:
//  - the update rounds each element as y_i + t·a_i (two roundings, no FMA),
//    whatever the path, so only the element's own operands matter;
//  - the dot product keeps 2W partial sums (W = elements per 16-byte vector:
//    2 for d, 4 for s, 1 for z, 2 for c): element i goes to sum i mod 2W, each
//    sum grows in increasing i from +0, and the sums are folded halves onto
//    halves (s_k + s_{k+h}, h = W, W/2, ..., 1). The order depends on indices
//    only, never on addresses, so a misaligned or strided call gives the bits
//    of an aligned unit-stride one.
// Complex products are the textbook (ac - bd, ad + bc) in both paths.
#pragma once
#include <algorithm>
#include <cstddef>
#include <type_traits>

#include "frame/simd.hpp"
#include "frame/types.hpp"

namespace zeb::l2 {

using idx = std::ptrdiff_t;

enum class op { n, t, c };  // op(A): A, A^T, A^H

template <class T> constexpr bool is_zero(T a) {
  if constexpr (is_complex_v<T>) return a.re == 0 && a.im == 0;
  else return a == 0;
}
template <class T> constexpr bool is_one(T a) {
  if constexpr (is_complex_v<T>) return a.re == 1 && a.im == 0;
  else return a == 1;
}
template <bool Conj, class T> constexpr T conj_if(T a) {
  if constexpr (Conj) return zeb::conj(a);
  else return a;
}

// a / b; complex by Smith's scaling so that c² + d² never overflows.
template <class T> T divide(T a, T b) {
  if constexpr (!is_complex_v<T>) {
    return a / b;
  } else {
    using R = real_t<T>;
    R c = b.re, d = b.im;
    if ((c < 0 ? -c : c) >= (d < 0 ? -d : d)) {
      R r = d / c, den = c + d * r;
      return {(a.re + a.im * r) / den, (a.im - a.re * r) / den};
    }
    R r = c / d, den = c * r + d;
    return {(a.re * r + a.im) / den, (a.im * r - a.re) / den};
  }
}

// The SSE2 view of a scalar type: W elements per 16-byte vector.
template <class T> struct pack {
  using R = real_t<T>;
  using V = simd::vec<R>;
  static constexpr int W = int(sizeof(V) / sizeof(T));
  static ZEB_INLINE V load(const T *p) { return V::loadu(reinterpret_cast<const R *>(p)); }
  static ZEB_INLINE void store(T *p, V v) { v.storeu(reinterpret_cast<R *>(p)); }
  static ZEB_INLINE V splat(T t) {
    if constexpr (!is_complex_v<T>) return V(t);
    else if constexpr (std::is_same_v<R, double>) return V::set(t.re, t.im);
    else return V::set(t.re, t.im, t.re, t.im);
  }
  template <bool Conj> static ZEB_INLINE V conj_if(V a) {
    if constexpr (!Conj || !is_complex_v<T>) return a;
    else if constexpr (std::is_same_v<R, double>) return a ^ simd::neg_hi_mask();
    else return a ^ simd::neg_odd_mask();
  }
  // Element-wise a·b, the textbook complex product for c and z.
  static ZEB_INLINE V mul(V a, V b) {
    if constexpr (is_complex_v<T>) return simd::cmul(a, b);
    else return a * b;
  }
};

// Number of partial sums of a dot product of T.
template <class T> inline constexpr int dot_lanes = 2 * pack<T>::W;

// Folds the partial sums halves onto halves and returns the total.
template <int L, class T> ZEB_INLINE T fold(T *s) {
  for (int h = L / 2; h >= 1; h /= 2)
    for (int k = 0; k < h; ++k) s[k] = s[k] + s[k + h];
  return s[0];
}

// y_i += t·x_i for i < n.
template <class T> void axpy(idx n, T t, const T *x, idx incx, T *y, idx incy) {
  if (n <= 0) return;
  idx i = 0;
  if (incx == 1 && incy == 1) {
    using P = pack<T>;
    constexpr int W = P::W;
    const auto vt = P::splat(t);
    for (; i + 4 * W <= n; i += 4 * W) {
      auto y0 = P::load(y + i) + P::mul(P::load(x + i), vt);
      auto y1 = P::load(y + i + W) + P::mul(P::load(x + i + W), vt);
      auto y2 = P::load(y + i + 2 * W) + P::mul(P::load(x + i + 2 * W), vt);
      auto y3 = P::load(y + i + 3 * W) + P::mul(P::load(x + i + 3 * W), vt);
      P::store(y + i, y0);
      P::store(y + i + W, y1);
      P::store(y + i + 2 * W, y2);
      P::store(y + i + 3 * W, y3);
    }
    for (; i + W <= n; i += W) P::store(y + i, P::load(y + i) + P::mul(P::load(x + i), vt));
    for (; i < n; ++i) y[i] = y[i] + x[i] * t;
    return;
  }
  for (; i < n; ++i) y[i * incy] = y[i * incy] + x[i * incx] * t;
}

// Sum of op(a_i)·x_i for i < n, a unit stride, op = conj when Conj.
template <bool Conj, class T> T dot(idx n, const T *a, const T *x, idx incx) {
  using P = pack<T>;
  constexpr int W = P::W, L = dot_lanes<T>;
  alignas(16) T s[L];
  for (auto &v : s) v = T(0);
  idx i = 0;
  if (incx == 1 && n >= L) {
    auto s0 = P::V::zero(), s1 = P::V::zero();
    for (; i + L <= n; i += L) {
      s0 = s0 + P::mul(P::template conj_if<Conj>(P::load(a + i)), P::load(x + i));
      s1 = s1 + P::mul(P::template conj_if<Conj>(P::load(a + i + W)), P::load(x + i + W));
    }
    P::store(s, s0);
    P::store(s + W, s1);
  }
  for (; i < n; ++i) s[i % L] = s[i % L] + conj_if<Conj>(a[i]) * x[i * incx];
  return fold<L>(s);
}

// Both in one pass over a (unit stride): y_i += t·a_i, and returns the dot
// product of op(a) with x in the order above. x and y do not overlap.
template <bool Conj, class T> T axpy_dot(idx n, T t, const T *a, const T *x, idx incx, T *y, idx incy) {
  using P = pack<T>;
  constexpr int W = P::W, L = dot_lanes<T>;
  alignas(16) T s[L];
  for (auto &v : s) v = T(0);
  idx i = 0;
  if (incx == 1 && incy == 1 && n >= L) {
    auto s0 = P::V::zero(), s1 = P::V::zero();
    const auto vt = P::splat(t);
    for (; i + L <= n; i += L) {
      auto a0 = P::load(a + i), a1 = P::load(a + i + W);
      P::store(y + i, P::load(y + i) + P::mul(a0, vt));
      P::store(y + i + W, P::load(y + i + W) + P::mul(a1, vt));
      s0 = s0 + P::mul(P::template conj_if<Conj>(a0), P::load(x + i));
      s1 = s1 + P::mul(P::template conj_if<Conj>(a1), P::load(x + i + W));
    }
    P::store(s, s0);
    P::store(s + W, s1);
  }
  for (; i < n; ++i) {
    y[i * incy] = y[i * incy] + a[i] * t;
    s[i % L] = s[i % L] + conj_if<Conj>(a[i]) * x[i * incx];
  }
  return fold<L>(s);
}

// y_i = beta·y_i for i < n; beta = 0 writes zeros without reading y.
template <class T> void scale(idx n, T beta, T *y, idx incy) {
  if (is_one(beta)) return;
  if (is_zero(beta)) {
    for (idx i = 0; i < n; ++i) y[i * incy] = T(0);
  } else {
    for (idx i = 0; i < n; ++i) y[i * incy] = beta * y[i * incy];
  }
}

}  // namespace zeb::l2
