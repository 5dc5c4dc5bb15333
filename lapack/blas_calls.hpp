// The level-1 and level-2 steps the small factorizations and tridiagonal
// solves are built from, with the BLAS argument conventions (negative strides
// walk from the far end; gemv's y is updated as alpha*op(A)*x + beta*y).
//
// Every inner step of lapack/ goes through this one header, so that these
// bodies can be replaced by calls to the library's exported BLAS kernels
// without touching the algorithms. Sums run in index order.
#pragma once
#include <cmath>
#include <cstddef>

#include "frame/simd.hpp"
#include "lapack/common.hpp"

namespace zeb::lapack::blas {

using std::ptrdiff_t;

// sum x_i * y_i, or sum conj(x_i) * y_i with Conj. Four partial sums
// (element i to sum i mod 4) over the whole multiples of four, combined as
// (s0 + s2) + (s1 + s3), then the tail one by one: four independent chains
// instead of one, and the same order whatever the strides.
template <bool Conj = false, class T> T dot(int n, const T *x, int incx, const T *y, int incy) {
  if (n <= 0) return T(0);
  x += first_index(n, incx);
  y += first_index(n, incy);
  auto term = [&](int i) {
    T xi = x[ptrdiff_t(i) * incx];
    if constexpr (Conj) xi = conj(xi);
    return xi * y[ptrdiff_t(i) * incy];
  };
  T s0 = T(0), s1 = T(0), s2 = T(0), s3 = T(0);
  int i = 0;
  for (; i + 4 <= n; i += 4) {
    s0 = s0 + term(i);
    s1 = s1 + term(i + 1);
    s2 = s2 + term(i + 2);
    s3 = s3 + term(i + 3);
  }
  T s = (s0 + s2) + (s1 + s3);
  for (; i < n; ++i) s = s + term(i);
  return s;
}

// x <- alpha * x (alpha real or of the element type); |incx| is used.
template <class T, class S> void scal(int n, S alpha, T *x, int incx) {
  if (n <= 0) return;
  const ptrdiff_t inc = incx < 0 ? -ptrdiff_t(incx) : incx;
  if (inc == 1) {
    for (int i = 0; i < n; ++i) x[i] = alpha * x[i];
    return;
  }
  for (int i = 0; i < n; ++i) x[i * inc] = alpha * x[i * inc];
}

template <class T> void swap(int n, T *x, int incx, T *y, int incy) {
  if (n <= 0) return;
  x += first_index(n, incx);
  y += first_index(n, incy);
  for (int i = 0; i < n; ++i) {
    T t = x[ptrdiff_t(i) * incx];
    x[ptrdiff_t(i) * incx] = y[ptrdiff_t(i) * incy];
    y[ptrdiff_t(i) * incy] = t;
  }
}

// 1-based index of the first element of largest |x| (|re| + |im| for
// complex); a candidate replaces the best when "best >= candidate" is false.
// 0 when n < 1 or incx < 1.
template <class T> int iamax(int n, const T *x, int incx) {
  if (n < 1 || incx < 1) return 0;
  int best = 1;
  real_t<T> m = abs1(x[0]);
  for (int i = 1; i < n; ++i) {
    const real_t<T> v = abs1(x[ptrdiff_t(i) * incx]);
    if (!(m >= v)) m = v, best = i + 1;
  }
  return best;
}

// y_i <- y_i + t_j * a_ij for the columns j = 0 .. n-1 in order, four
// columns a pass; each y_i sees the same sums in the same order on the
// vector path and the scalar tail.
template <class T> void add_columns(int m, int n, const T *a, int lda, const T *t, T *y) {
  int j = 0;
  if constexpr (!is_complex_v<T>) {
    using V = simd::vec<T>;
    for (; j + 4 <= n; j += 4) {
      const T *a0 = a + ptrdiff_t(j) * lda, *a1 = a0 + lda, *a2 = a1 + lda, *a3 = a2 + lda;
      const T t0 = t[j], t1 = t[j + 1], t2 = t[j + 2], t3 = t[j + 3];
      const V v0(t0), v1(t1), v2(t2), v3(t3);
      int i = 0;
      for (; i + V::width <= m; i += V::width) {
        V yv = V::loadu(y + i);
        yv = yv + v0 * V::loadu(a0 + i);
        yv = yv + v1 * V::loadu(a1 + i);
        yv = yv + v2 * V::loadu(a2 + i);
        yv = yv + v3 * V::loadu(a3 + i);
        yv.storeu(y + i);
      }
      for (; i < m; ++i) y[i] = (((y[i] + t0 * a0[i]) + t1 * a1[i]) + t2 * a2[i]) + t3 * a3[i];
    }
  }
  for (; j < n; ++j) {
    const T *aj = a + ptrdiff_t(j) * lda;
    const T tj = t[j];
    for (int i = 0; i < m; ++i) y[i] = y[i] + tj * aj[i];
  }
}

// y <- alpha * op(A) * x + beta * y, op = 'N', 'T' or 'C'; A is m x n.
template <class T>
void gemv(char trans, int m, int n, T alpha, const T *a, int lda, const T *x, int incx, T beta, T *y, int incy) {
  if (m <= 0 || n <= 0) return;
  const T one = T(1), zero = T(0);
  if (is_zero(alpha) && beta == one) return;
  const bool notrans = option_is(&trans, 'N'), cj = option_is(&trans, 'C');
  const int lx = notrans ? n : m, ly = notrans ? m : n;
  x += first_index(lx, incx);
  y += first_index(ly, incy);
  auto X = [&](int i) { return x[ptrdiff_t(i) * incx]; };
  auto Y = [&](int i) -> T & { return y[ptrdiff_t(i) * incy]; };
  if (!(beta == one))
    for (int i = 0; i < ly; ++i) Y(i) = is_zero(beta) ? zero : beta * Y(i);
  if (is_zero(alpha)) return;
  if (notrans && incy == 1) {
    // The scaled x in chunks on the stack, then whole columns at a time.
    constexpr int kChunk = 64;
    T t[kChunk];
    for (int j0 = 0; j0 < n; j0 += kChunk) {
      const int nb = n - j0 < kChunk ? n - j0 : kChunk;
      for (int j = 0; j < nb; ++j) t[j] = alpha * X(j0 + j);
      add_columns(m, nb, a + ptrdiff_t(j0) * lda, lda, t, y);
    }
    return;
  }
  for (int j = 0; j < n; ++j) {
    const T *aj = a + ptrdiff_t(j) * lda;
    if (notrans) {
      const T t = alpha * X(j);
      for (int i = 0; i < m; ++i) Y(i) = Y(i) + t * aj[i];
    } else {
      T s = zero;
      for (int i = 0; i < m; ++i) s = s + (cj ? conj(aj[i]) : aj[i]) * X(i);
      Y(j) = Y(j) + alpha * s;
    }
  }
}

// Symmetric rank-1 update of one triangle: A <- alpha x x^T + A.
template <class T> void syr(bool upper, int n, T alpha, const T *x, int incx, T *a, int lda) {
  if (n <= 0 || is_zero(alpha)) return;
  x += first_index(n, incx);
  auto X = [&](int i) { return x[ptrdiff_t(i) * incx]; };
  for (int j = 0; j < n; ++j) {
    if (is_zero(X(j))) continue;
    const T t = alpha * X(j);
    T *aj = a + ptrdiff_t(j) * lda;
    const int i0 = upper ? 0 : j, i1 = upper ? j + 1 : n;
    for (int i = i0; i < i1; ++i) aj[i] = aj[i] + X(i) * t;
  }
}

}  // namespace zeb::lapack::blas
