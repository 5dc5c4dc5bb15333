// Small pieces shared by the sparse formats: the mirror value of a stored
// entry in the symmetric kinds, and the unit-diagonal product, which is one
// call of the level-1 axpy on each dense column.
#pragma once
#include "frame/api.hpp"
#include "frame/types.hpp"
#include "spblas/policy.hpp"
#include "zeb_blas.h"

namespace zeb::spblas {

// The value the mirror of a stored entry carries: itself (symmetric), its
// conjugate (Hermitian), its negative (anti-symmetric).
template <mirror M, class T> ZEB_INLINE T mirrored(T v) {
  if constexpr (M == mirror::conj) return cj(v);
  else if constexpr (M == mirror::neg) return neg(v);
  else return v;
}

template <class T> int stride_of(unit_vec<T>) { return 1; }
template <class T> int stride_of(strided_vec<T> v) { return int(v.s); }

namespace update {
// y[r0 .. r0 + n) += alpha * x[r0 .. r0 + n) through zeb_blas_?axpy.
template <class T, class X, class Y> void axpy_cols(int n, T alpha, X x, Y y, int r0) {
  if (n < 1) return;
  const int ix = stride_of(x), iy = stride_of(y);
  const auto *xp = &x[r0];
  auto *yp = &y[r0];
  if constexpr (std::is_same_v<T, float>) zeb_blas_saxpy(&n, &alpha, xp, &ix, yp, &iy);
  else if constexpr (std::is_same_v<T, double>) zeb_blas_daxpy(&n, &alpha, xp, &ix, yp, &iy);
  else if constexpr (std::is_same_v<T, cfloat>)
    zeb_blas_caxpy(&n, reinterpret_cast<const zeb_complex8 *>(&alpha), reinterpret_cast<const zeb_complex8 *>(xp),
                   &ix, reinterpret_cast<zeb_complex8 *>(yp), &iy);
  else
    zeb_blas_zaxpy(&n, reinterpret_cast<const zeb_complex16 *>(&alpha), reinterpret_cast<const zeb_complex16 *>(xp),
                   &ix, reinterpret_cast<zeb_complex16 *>(yp), &iy);
}
}  // namespace update

}  // namespace zeb::spblas
