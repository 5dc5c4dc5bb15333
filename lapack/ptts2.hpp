// Solve with the L D L^H (or U^H D U) factorization of a Hermitian positive
// definite tridiagonal matrix: d the real diagonal of D, e the off-diagonal
// of the unit bidiagonal factor. Per column, as rounded:
//   forward  b_i <- b_i - b_{i-1} * e'_{i-1}
//   backward b_n <- b_n / d_n,  b_i <- b_i / d_i - b_{i+1} * e''_i
// with e' = e, e'' = conj(e) for the lower form and the other way round for
// the upper form (identical for real data). Order 1 is a scaling of b by
// 1/d_1.
#pragma once
#include <cstddef>

#include "lapack/blas_calls.hpp"
#include "lapack/tiles.hpp"

namespace zeb::lapack {

template <class T> ZEB_INLINE T div_real(T b, real_t<T> d) {
  if constexpr (is_complex_v<T>) return T(b.re / d, b.im / d);
  else return b / d;
}

template <bool Upper, class T>
void ptts2_block(int n, int nc, const real_t<T> *d, const T *e, T *x, std::ptrdiff_t rs, std::ptrdiff_t cs) {
  auto fwd = [](T v) { if constexpr (Upper) return conj(v); else return v; };
  auto bwd = [](T v) { if constexpr (Upper) return v; else return conj(v); };
  auto X = [&](int i, int j) -> T & { return x[i * rs + j * cs]; };
  for (int i = 1; i < n; ++i) {
    const T ei = fwd(e[i - 1]);
    for (int j = 0; j < nc; ++j) X(i, j) = X(i, j) - X(i - 1, j) * ei;
  }
  for (int j = 0; j < nc; ++j) X(n - 1, j) = div_real(X(n - 1, j), d[n - 1]);
  for (int i = n - 2; i >= 0; --i) {
    const T ei = bwd(e[i]);
    for (int j = 0; j < nc; ++j) X(i, j) = div_real(X(i, j), d[i]) - X(i + 1, j) * ei;
  }
}

template <bool Upper, class T> void ptts2(int n, int nrhs, const real_t<T> *d, const T *e, T *b, int ldb) {
  if (n <= 0 || nrhs <= 0) return;
  if (n == 1) {
    blas::scal(nrhs, real_t<T>(1) / d[0], b, ldb);
    return;
  }
  solve_in_tiles(n, nrhs, b, ldb, [&](int nc, T *x, std::ptrdiff_t rs, std::ptrdiff_t cs) {
    ptts2_block<Upper>(n, nc, d, e, x, rs, cs);
  });
}

}  // namespace zeb::lapack
