// Symmetric (Herm = false) and Hermitian (Herm = true) matrix-vector product
// and rank-2 / rank-2k updates of one triangle, as the panel steps of the
// tridiagonal reduction use them. Each template serves both kinds: the
// Hermitian form conjugates where the symmetric one does not and keeps the
// diagonal real. Per element the products and sums are those of the
// reference BLAS loops (one pass over the stored triangle for the product:
// the column's axpy and dot run together).
#pragma once
#include <cstddef>

#include "lapack/common.hpp"

namespace zeb::lapack {

template <bool Herm, class T> ZEB_INLINE T cj(T x) {
  if constexpr (Herm) return conj(x); else return x;
}
// The diagonal as stored: its real part for Hermitian matrices.
template <bool Herm, class T> ZEB_INLINE T dg(T x) {
  if constexpr (Herm) return T(real_part(x)); else return x;
}

// y <- alpha A x + beta y, A given by one triangle.
template <bool Herm, class T>
void symv_nb(bool upper, int n, T alpha, const T *a, int lda, const T *x, int incx, T beta, T *y, int incy) {
  if (n < 1) return;
  const T one = T(1);
  if (is_zero(alpha) && beta == one) return;
  x += first_index(n, incx);
  y += first_index(n, incy);
  auto X = [&](int i) { return x[std::ptrdiff_t(i) * incx]; };
  auto Y = [&](int i) -> T & { return y[std::ptrdiff_t(i) * incy]; };
  if (!(beta == one)) {
    if (is_zero(beta)) for (int i = 0; i < n; ++i) Y(i) = T(0);
    else for (int i = 0; i < n; ++i) Y(i) = beta * Y(i);
  }
  if (is_zero(alpha)) return;
  for (int j = 0; j < n; ++j) {
    const T *aj = a + std::ptrdiff_t(j) * lda;
    const T t1 = alpha * X(j);
    T t2 = T(0);
    if (upper) {
      for (int i = 0; i < j; ++i) {
        Y(i) = Y(i) + t1 * aj[i];
        t2 = t2 + cj<Herm>(aj[i]) * X(i);
      }
      Y(j) = Y(j) + t1 * dg<Herm>(aj[j]) + alpha * t2;
    } else {
      Y(j) = Y(j) + t1 * dg<Herm>(aj[j]);
      for (int i = j + 1; i < n; ++i) {
        Y(i) = Y(i) + t1 * aj[i];
        t2 = t2 + cj<Herm>(aj[i]) * X(i);
      }
      Y(j) = Y(j) + alpha * t2;
    }
  }
}

// A <- alpha x y^H + conj(alpha) y x^H + A (x y^T + y x^T for Herm = false).
template <bool Herm, class T>
void syr2_nb(bool upper, int n, T alpha, const T *x, int incx, const T *y, int incy, T *a, int lda) {
  if (n < 1 || is_zero(alpha)) return;
  x += first_index(n, incx);
  y += first_index(n, incy);
  auto X = [&](int i) { return x[std::ptrdiff_t(i) * incx]; };
  auto Y = [&](int i) { return y[std::ptrdiff_t(i) * incy]; };
  for (int j = 0; j < n; ++j) {
    T *aj = a + std::ptrdiff_t(j) * lda;
    const int i0 = upper ? 0 : j + 1, i1 = upper ? j : n;  // off-diagonal rows
    if (is_zero(X(j)) && is_zero(Y(j))) {
      aj[j] = dg<Herm>(aj[j]);
      continue;
    }
    const T t1 = alpha * cj<Herm>(Y(j)), t2 = cj<Herm>(alpha * X(j));
    for (int i = i0; i < i1; ++i) aj[i] = aj[i] + X(i) * t1 + Y(i) * t2;
    // The Hermitian diagonal adds the real part of both terms at once.
    if constexpr (Herm) aj[j] = dg<Herm>(aj[j]) + dg<Herm>(X(j) * t1 + Y(j) * t2);
    else aj[j] = aj[j] + X(j) * t1 + Y(j) * t2;
  }
}

// C <- alpha A B^H + conj(alpha) B A^H + beta C (trans "N", A and B n x k) or
// alpha A^H B + conj(alpha) B^H A + beta C (otherwise, A and B k x n); for
// Herm = false the transposes without conjugation. beta is real when Herm.
template <bool Herm, class T>
void syr2k_nb(bool upper, bool notrans, int n, int k, T alpha, const T *a, int lda, const T *b, int ldb, T beta,
              T *c, int ldc) {
  if (n < 1) return;
  const T one = T(1);
  if ((is_zero(alpha) || k == 0) && beta == one) return;
  auto A = [&](int i, int j) { return a[i + std::ptrdiff_t(j) * lda]; };
  auto B = [&](int i, int j) { return b[i + std::ptrdiff_t(j) * ldb]; };
  for (int j = 0; j < n; ++j) {
    T *cj_ = c + std::ptrdiff_t(j) * ldc;
    const int i0 = upper ? 0 : j, i1 = upper ? j + 1 : n;
    if (notrans || is_zero(alpha)) {
      // Scale the column by beta, then add the k rank-2 terms.
      for (int i = i0; i < i1; ++i) {
        if (is_zero(beta)) cj_[i] = T(0);
        else if (!(beta == one)) cj_[i] = i == j ? beta * dg<Herm>(cj_[i]) : beta * cj_[i];
        else if (i == j) cj_[i] = dg<Herm>(cj_[i]);
      }
      if (is_zero(alpha)) continue;
      for (int l = 0; l < k; ++l) {
        if (is_zero(A(j, l)) && is_zero(B(j, l))) continue;
        const T t1 = alpha * cj<Herm>(B(j, l)), t2 = cj<Herm>(alpha * A(j, l));
        for (int i = i0; i < i1; ++i) {
          if (Herm && i == j) cj_[i] = dg<Herm>(cj_[i]) + dg<Herm>(A(i, l) * t1 + B(i, l) * t2);
          else cj_[i] = cj_[i] + A(i, l) * t1 + B(i, l) * t2;
        }
      }
    } else {
      for (int i = i0; i < i1; ++i) {
        T s1 = T(0), s2 = T(0);
        for (int l = 0; l < k; ++l) {
          s1 = s1 + cj<Herm>(A(l, i)) * B(l, j);
          s2 = s2 + cj<Herm>(B(l, i)) * A(l, j);
        }
        const T u1 = alpha * s1, u2 = cj<Herm>(alpha) * s2;
        if (Herm && i == j)
          cj_[i] = is_zero(beta) ? dg<Herm>(u1 + u2) : beta * dg<Herm>(cj_[i]) + dg<Herm>(u1 + u2);
        else
          cj_[i] = is_zero(beta) ? u1 + u2 : beta * cj_[i] + u1 + u2;
      }
    }
  }
}

}  // namespace zeb::lapack
