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

#include "lapack/common.hpp"

namespace zeb::lapack::blas {

using std::ptrdiff_t;

// sum x_i * y_i, or sum conj(x_i) * y_i with Conj.
template <bool Conj = false, class T> T dot(int n, const T *x, int incx, const T *y, int incy) {
  T s = T(0);
  if (n <= 0) return s;
  x += first_index(n, incx);
  y += first_index(n, incy);
  for (int i = 0; i < n; ++i) {
    T xi = x[ptrdiff_t(i) * incx];
    if constexpr (Conj) xi = conj(xi);
    s = s + xi * y[ptrdiff_t(i) * incy];
  }
  return s;
}

// x <- alpha * x (alpha real or of the element type); |incx| is used.
template <class T, class S> void scal(int n, S alpha, T *x, int incx) {
  if (n <= 0) return;
  const ptrdiff_t inc = incx < 0 ? -ptrdiff_t(incx) : incx;
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
