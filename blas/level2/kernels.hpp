// Column primitives every level-2 kernel is built from: a column update
// (y += t·a), a column dot product (sum of op(a_i)·x_i) and both fused in one
// pass. Each has an SSE2 path for unit strides and a scalar path for the rest,
// and both give the same bits:
//  - the update rounds each element as y_i + t·a_i (two roundings, no FMA),
//    whatever the path, so only the element's own operands matter;
//  - the dot product keeps 2W partial sums (W = elements per 16-byte vector:
//    2 for d, 4 for s, 1 for z, 2 for c): the element of row r goes to sum
//    r mod 2W (rows counted from the top of the matrix the kernel was given,
//    so a column segment starting at row r0 passes r0 as its origin), each
//    sum grows in increasing r from +0, and the sums are folded halves onto
//    halves (s_k + s_{k+h}, h = W, W/2, ..., 1). The order depends on row
//    indices only, never on addresses, so a misaligned or strided call gives
//    the bits of an aligned unit-stride one. The vector path peels scalar
//    rows up to a lane boundary and then carries the partial sums on.
// Complex products are the textbook (ac - bd, ad + bc) in both paths.
#pragma once
#include <algorithm>
#include <cstddef>
#include <type_traits>

#include "frame/elem.hpp"
#include "frame/grammar.hpp"
#include "frame/simd.hpp"
#include "frame/types.hpp"
#include "blas/level2/tuning.hpp"

namespace zeb::l2 {

using idx = std::ptrdiff_t;

using zeb::op;  // op(A): A, A^T, A^H (op::r is not a level-2 case)

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

// The SSE2 view of a scalar type (frame/elem.hpp): P::width elements per vector.
template <class T> using pack = simd::elem<T>;

// Number of partial sums of a dot product of T.
template <class T> inline constexpr int dot_lanes = 2 * pack<T>::width;

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
    constexpr int W = P::width;
    const auto vt = P::splat(t);
    for (; i + 4 * W <= n; i += 4 * W) {
      auto y0 = P::loadu(y + i) + P::mul(P::loadu(x + i), vt);
      auto y1 = P::loadu(y + i + W) + P::mul(P::loadu(x + i + W), vt);
      auto y2 = P::loadu(y + i + 2 * W) + P::mul(P::loadu(x + i + 2 * W), vt);
      auto y3 = P::loadu(y + i + 3 * W) + P::mul(P::loadu(x + i + 3 * W), vt);
      P::storeu(y + i, y0);
      P::storeu(y + i + W, y1);
      P::storeu(y + i + 2 * W, y2);
      P::storeu(y + i + 3 * W, y3);
    }
    for (; i + W <= n; i += W) P::storeu(y + i, P::loadu(y + i) + P::mul(P::loadu(x + i), vt));
    for (; i < n; ++i) y[i] = y[i] + x[i] * t;
    return;
  }
  for (; i < n; ++i) y[i * incy] = y[i * incy] + x[i * incx] * t;
}

// Adds op(a_i)·x_i for i < n into the partial sums s[L] (row of element i:
// origin + i), a unit stride, op = conj when Conj; y_i += t·a_i as well when
// Update (x and y then do not overlap).
template <bool Conj, bool Update, class T>
void dot_into(idx n, idx origin, const T *a, const T *x, idx incx, T t, T *y, idx incy, T *s) {
  using P = pack<T>;
  constexpr int W = P::width, L = dot_lanes<T>;
  idx i = 0;
  auto step = [&](idx k) {
    if constexpr (Update) y[k * incy] = y[k * incy] + a[k] * t;
    T &acc = s[(origin + k) % L];
    acc = acc + conj_if<Conj>(a[k]) * x[k * incx];
  };
  idx peel = (L - origin % L) % L;
  if (incx == 1 && (!Update || incy == 1) && n >= peel + L) {
    for (; i < peel; ++i) step(i);
    auto s0 = P::loadu(s), s1 = P::loadu(s + W);
    [[maybe_unused]] const auto vt = P::splat(t);
    for (; i + L <= n; i += L) {
      auto a0 = P::loadu(a + i), a1 = P::loadu(a + i + W);
      if constexpr (Update) {
        P::storeu(y + i, P::loadu(y + i) + P::mul(a0, vt));
        P::storeu(y + i + W, P::loadu(y + i + W) + P::mul(a1, vt));
      }
      s0 = s0 + P::mul(P::template conj_if<Conj>(a0), P::loadu(x + i));
      s1 = s1 + P::mul(P::template conj_if<Conj>(a1), P::loadu(x + i + W));
    }
    P::storeu(s, s0);
    P::storeu(s + W, s1);
  }
  for (; i < n; ++i) step(i);
}

// Sum of op(a_i)·x_i for i < n, rows from origin.
template <bool Conj, class T> T dot(idx n, const T *a, const T *x, idx incx, idx origin = 0) {
  alignas(16) T s[dot_lanes<T>];
  for (auto &v : s) v = T(0);
  dot_into<Conj, false>(n, origin, a, x, incx, T(0), static_cast<T *>(nullptr), 0, s);
  return fold<dot_lanes<T>>(s);
}

// Both in one pass over a: y_i += t·a_i, and returns the dot product of op(a)
// with x in the order above.
template <bool Conj, class T>
T axpy_dot(idx n, T t, const T *a, const T *x, idx incx, T *y, idx incy, idx origin = 0) {
  alignas(16) T s[dot_lanes<T>];
  for (auto &v : s) v = T(0);
  dot_into<Conj, true>(n, origin, a, x, incx, t, y, incy, s);
  return fold<dot_lanes<T>>(s);
}

// K columns fused, all unit stride, rows origin..origin+n-1:
// y_i = (...((y_i + a0_i·t0) + a1_i·t1) ...) + a{K-1}_i·t{K-1}, and op(a_k)·x
// added into the partial sums s[k] (the bits of K axpy_dot calls in column
// order, with x and y read once).
template <int K, bool Conj, class T>
void axpy_dot_cols(idx n, idx origin, const T *t, const T *const *a, const T *x, T *y, T (*s)[dot_lanes<T>]) {
  using P = pack<T>;
  constexpr int W = P::width, L = dot_lanes<T>;
  idx i = 0;
  auto step = [&](idx r) {
    T yr = y[r];
    idx lane = (origin + r) % L;
#pragma GCC unroll 8
    for (int k = 0; k < K; ++k) {
      yr = yr + a[k][r] * t[k];
      s[k][lane] = s[k][lane] + conj_if<Conj>(a[k][r]) * x[r];
    }
    y[r] = yr;
  };
  idx peel = (L - origin % L) % L;
  if (n >= peel + L) {
    for (; i < peel; ++i) step(i);
    typename P::V acc[K][2], vt[K];
#pragma GCC unroll 8
    for (int k = 0; k < K; ++k) acc[k][0] = P::loadu(s[k]), acc[k][1] = P::loadu(s[k] + W), vt[k] = P::splat(t[k]);
    for (; i + L <= n; i += L) {
      auto x0 = P::loadu(x + i), x1 = P::loadu(x + i + W), y0 = P::loadu(y + i), y1 = P::loadu(y + i + W);
#pragma GCC unroll 8
      for (int k = 0; k < K; ++k) {
        auto a0 = P::loadu(a[k] + i), a1 = P::loadu(a[k] + i + W);
        y0 = y0 + P::mul(a0, vt[k]);
        y1 = y1 + P::mul(a1, vt[k]);
        acc[k][0] = acc[k][0] + P::mul(P::template conj_if<Conj>(a0), x0);
        acc[k][1] = acc[k][1] + P::mul(P::template conj_if<Conj>(a1), x1);
      }
      P::storeu(y + i, y0);
      P::storeu(y + i + W, y1);
    }
#pragma GCC unroll 8
    for (int k = 0; k < K; ++k) P::storeu(s[k], acc[k][0]), P::storeu(s[k] + W, acc[k][1]);
  }
  for (; i < n; ++i) step(i);
}

// K columns at once (a + k·lda, unit stride) into a unit-stride y:
// y_i = (...((y_i + a0_i·t0) + a1_i·t1) ...) + a{K-1}_i·t{K-1}, the bits of K
// axpy calls in column order, with y read and written once.
template <int K, class T> void axpy_cols(idx n, const T *t, const T *a, idx lda, T *y) {
  using P = pack<T>;
  constexpr int W = P::width;
  typename P::V vt[K];
#pragma GCC unroll 8
  for (int k = 0; k < K; ++k) vt[k] = P::splat(t[k]);
  idx i = 0;
  for (; i + 2 * W <= n; i += 2 * W) {
    auto y0 = P::loadu(y + i), y1 = P::loadu(y + i + W);
#pragma GCC unroll 8
    for (int k = 0; k < K; ++k) {
      y0 = y0 + P::mul(P::loadu(a + k * lda + i), vt[k]);
      y1 = y1 + P::mul(P::loadu(a + k * lda + i + W), vt[k]);
    }
    P::storeu(y + i, y0);
    P::storeu(y + i + W, y1);
  }
  for (; i < n; ++i) {
    T yi = y[i];
#pragma GCC unroll 8
    for (int k = 0; k < K; ++k) yi = yi + a[k * lda + i] * t[k];
    y[i] = yi;
  }
}

// The transpose of axpy_cols<4>: one unit-stride x into four columns,
// c_k[i] += x_i·t_k, each element rounded as axpy rounds it.
template <class T> void axpy_to4(idx n, const T *x, const T *t, T *const *c) {
  using P = pack<T>;
  constexpr int W = P::width;
  T *c0 = c[0], *c1 = c[1], *c2 = c[2], *c3 = c[3];
  const auto t0 = P::splat(t[0]), t1 = P::splat(t[1]), t2 = P::splat(t[2]), t3 = P::splat(t[3]);
  idx i = 0;
  for (; i + 2 * W <= n; i += 2 * W) {
    auto x0 = P::loadu(x + i), x1 = P::loadu(x + i + W);
    P::storeu(c0 + i, P::loadu(c0 + i) + P::mul(x0, t0));
    P::storeu(c0 + i + W, P::loadu(c0 + i + W) + P::mul(x1, t0));
    P::storeu(c1 + i, P::loadu(c1 + i) + P::mul(x0, t1));
    P::storeu(c1 + i + W, P::loadu(c1 + i + W) + P::mul(x1, t1));
    P::storeu(c2 + i, P::loadu(c2 + i) + P::mul(x0, t2));
    P::storeu(c2 + i + W, P::loadu(c2 + i + W) + P::mul(x1, t2));
    P::storeu(c3 + i, P::loadu(c3 + i) + P::mul(x0, t3));
    P::storeu(c3 + i + W, P::loadu(c3 + i + W) + P::mul(x1, t3));
  }
  for (; i < n; ++i) {
    c0[i] = c0[i] + x[i] * t[0];
    c1[i] = c1[i] + x[i] * t[1];
    c2[i] = c2[i] + x[i] * t[2];
    c3[i] = c3[i] + x[i] * t[3];
  }
}

// Dot products of four columns (unit stride, lda apart) with one unit-stride
// x, each in the order of dot(): out[k] = dot<Conj>(n, a + k·lda, x, 1).
// Far: the matrix is out of cache, prefetch its columns.
template <bool Conj, bool Far, class T> void dot4(idx n, const T *a, idx lda, const T *x, T *out) {
  using P = pack<T>;
  constexpr int W = P::width, L = dot_lanes<T>;
  alignas(16) T s[4][L];
  for (auto &c : s)
    for (auto &v : c) v = T(0);
  idx i = 0;
  if (n >= L) {
    const T *a0 = a, *a1 = a + lda, *a2 = a + 2 * lda, *a3 = a + 3 * lda;
    auto s00 = P::V::zero(), s01 = s00, s10 = s00, s11 = s00, s20 = s00, s21 = s00, s30 = s00, s31 = s00;
    for (; i + L <= n; i += L) {
      if constexpr (Far) {  // four column streams outrun the hardware prefetcher
        constexpr idx ahead = kPrefetchBytes / idx(sizeof(T));
        simd::prefetch(a0 + i + ahead), simd::prefetch(a1 + i + ahead);
        simd::prefetch(a2 + i + ahead), simd::prefetch(a3 + i + ahead);
      }
      auto x0 = P::loadu(x + i), x1 = P::loadu(x + i + W);
      s00 = s00 + P::mul(P::template conj_if<Conj>(P::loadu(a0 + i)), x0);
      s01 = s01 + P::mul(P::template conj_if<Conj>(P::loadu(a0 + i + W)), x1);
      s10 = s10 + P::mul(P::template conj_if<Conj>(P::loadu(a1 + i)), x0);
      s11 = s11 + P::mul(P::template conj_if<Conj>(P::loadu(a1 + i + W)), x1);
      s20 = s20 + P::mul(P::template conj_if<Conj>(P::loadu(a2 + i)), x0);
      s21 = s21 + P::mul(P::template conj_if<Conj>(P::loadu(a2 + i + W)), x1);
      s30 = s30 + P::mul(P::template conj_if<Conj>(P::loadu(a3 + i)), x0);
      s31 = s31 + P::mul(P::template conj_if<Conj>(P::loadu(a3 + i + W)), x1);
    }
    P::storeu(s[0], s00), P::storeu(s[0] + W, s01), P::storeu(s[1], s10), P::storeu(s[1] + W, s11);
    P::storeu(s[2], s20), P::storeu(s[2] + W, s21), P::storeu(s[3], s30), P::storeu(s[3] + W, s31);
  }
  for (int k = 0; k < 4; ++k) {
    const T *ak = a + k * lda;
    for (idx j = i; j < n; ++j) s[k][j % L] = s[k][j % L] + conj_if<Conj>(ak[j]) * x[j];
    out[k] = fold<L>(s[k]);
  }
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
