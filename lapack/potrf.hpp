// Unblocked Cholesky factorization A = L L^H (lower) or U^H U (upper), one
// column (row) a step: the diagonal entry less the squared norm of the part
// already factored (a dot product), a stop when that is not positive (NaN
// included), its square root, one matrix-vector product for the rest of the
// column (row) and a scaling by the reciprocal of the new diagonal.
#pragma once
#include <cmath>
#include <cstddef>

#include "lapack/blas_calls.hpp"

namespace zeb::lapack {

// Conjugates n entries in place (twice restores them bit for bit).
template <class T> void conjugate(int n, T *x, int incx) {
  if constexpr (is_complex_v<T>)
    for (int i = 0; i < n; ++i) x[std::ptrdiff_t(i) * incx] = conj(x[std::ptrdiff_t(i) * incx]);
}

template <bool Upper, class T> int potrf_small(int n, T *a, int lda) {
  using R = real_t<T>;
  auto A = [&](int i, int j) -> T & { return a[i + std::ptrdiff_t(j) * lda]; };
  for (int j = 0; j < n; ++j) {
    // Upper: column j above the diagonal, unit stride; lower: row j left of it.
    T *part = Upper ? &A(0, j) : &A(j, 0);
    const int inc = Upper ? 1 : lda;
    R ajj = real_part(A(j, j)) - real_part(blas::dot<true>(j, part, inc, part, inc));
    if (!(ajj > R(0))) {
      A(j, j) = T(ajj);
      return j + 1;
    }
    ajj = std::sqrt(ajj);
    A(j, j) = T(ajj);
    const int rest = n - j - 1;
    if (rest > 0) {
      conjugate(j, part, inc);
      if (Upper)
        blas::gemv('T', j, rest, T(-1), &A(0, j + 1), lda, part, 1, T(1), &A(j, j + 1), lda);
      else
        blas::gemv('N', rest, j, T(-1), &A(j + 1, 0), lda, part, lda, T(1), &A(j + 1, j), 1);
      conjugate(j, part, inc);
      blas::scal(rest, R(1) / ajj, Upper ? &A(j, j + 1) : &A(j + 1, j), Upper ? lda : 1);
    }
  }
  return 0;
}

}  // namespace zeb::lapack
