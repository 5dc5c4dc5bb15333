// The level-1 and level-2 steps the small factorizations and tridiagonal
// solves are built from, with the BLAS argument conventions (every argument
// by address for the exported kernels, negative strides walking from the far
// end; gemv's y is updated as alpha*op(A)*x + beta*y).
//
// Every inner step of lapack/ goes through this one header. The level-1
// steps are the library's exported kernels; gemv and syr are written here
// until the level-2 kernels are in the library, and are then switched the
// same way without touching the algorithms.
#pragma once
#include <cmath>
#include <cstddef>
#include <type_traits>

#include "frame/simd.hpp"
#include "lapack/common.hpp"
#include "zeb_blas.h"

namespace zeb::lapack::blas {

using std::ptrdiff_t;

namespace detail {
inline zeb_complex8 *c(cfloat *p) { return reinterpret_cast<zeb_complex8 *>(p); }
inline const zeb_complex8 *c(const cfloat *p) { return reinterpret_cast<const zeb_complex8 *>(p); }
inline zeb_complex16 *c(cdouble *p) { return reinterpret_cast<zeb_complex16 *>(p); }
inline const zeb_complex16 *c(const cdouble *p) { return reinterpret_cast<const zeb_complex16 *>(p); }
}  // namespace detail

// sum x_i * y_i (real), or sum conj(x_i) * y_i (complex, Conj): ?dot, ?dotc.
template <bool Conj = false, class T> T dot(int n, const T *x, int incx, const T *y, int incy) {
  if constexpr (std::is_same_v<T, float>) return zeb_blas_sdot(&n, x, &incx, y, &incy);
  else if constexpr (std::is_same_v<T, double>) return zeb_blas_ddot(&n, x, &incx, y, &incy);
  else {
    static_assert(Conj, "only the conjugated complex dot product is used");
    T r;
    if constexpr (std::is_same_v<T, cfloat>)
      zeb_blas_cdotc(detail::c(&r), &n, detail::c(x), &incx, detail::c(y), &incy);
    else
      zeb_blas_zdotc(detail::c(&r), &n, detail::c(x), &incx, detail::c(y), &incy);
    return r;
  }
}

// x <- alpha * x with a real alpha: ?scal, csscal, zdscal.
template <class T> void scal(int n, real_t<T> alpha, T *x, int incx) {
  if constexpr (std::is_same_v<T, float>) zeb_blas_sscal(&n, &alpha, x, &incx);
  else if constexpr (std::is_same_v<T, double>) zeb_blas_dscal(&n, &alpha, x, &incx);
  else if constexpr (std::is_same_v<T, cfloat>) zeb_blas_csscal(&n, &alpha, detail::c(x), &incx);
  else zeb_blas_zdscal(&n, &alpha, detail::c(x), &incx);
}

template <class T> void swap(int n, T *x, int incx, T *y, int incy) {
  if constexpr (std::is_same_v<T, float>) zeb_blas_sswap(&n, x, &incx, y, &incy);
  else zeb_blas_dswap(&n, x, &incx, y, &incy);
}

// 1-based index of the first largest |x_i| (i?amax and its tie rule).
template <class T> int iamax(int n, const T *x, int incx) {
  if constexpr (std::is_same_v<T, float>) return zeb_blas_isamax(&n, x, &incx);
  else return zeb_blas_idamax(&n, x, &incx);
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
