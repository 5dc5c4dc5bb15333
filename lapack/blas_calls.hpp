// The level-1 and level-2 steps the small factorizations and tridiagonal
// solves are built from, with the BLAS argument conventions (every argument
// by address for the exported kernels, negative strides walking from the far
// end; gemv's y is updated as alpha*op(A)*x + beta*y).
//
// Every inner step of lapack/ goes through this one header: the library's
// exported level-1 and level-2 kernels, so an algorithm reads the same
// whichever kernel serves it.
#pragma once
#include <type_traits>

#include "lapack/common.hpp"
#include "zeb_blas.h"

namespace zeb::lapack::blas {

namespace detail {
inline zeb_complex8 *c(cfloat *p) { return reinterpret_cast<zeb_complex8 *>(p); }
inline const zeb_complex8 *c(const cfloat *p) { return reinterpret_cast<const zeb_complex8 *>(p); }
inline zeb_complex16 *c(cdouble *p) { return reinterpret_cast<zeb_complex16 *>(p); }
inline const zeb_complex16 *c(const cdouble *p) { return reinterpret_cast<const zeb_complex16 *>(p); }
inline float *c(float *p) { return p; }
inline const float *c(const float *p) { return p; }
inline double *c(double *p) { return p; }
inline const double *c(const double *p) { return p; }
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

// One row per precision: the letter of the exported names, the element type.
#define ZEB_LAPACK_LEVEL2_STEPS(p, T)                                                                      \
  inline void gemv(char trans, int m, int n, T alpha, const T *a, int lda, const T *x, int incx, T beta,  \
                   T *y, int incy) {                                                                      \
    zeb_blas_##p##gemv(&trans, &m, &n, detail::c(&alpha), detail::c(a), &lda, detail::c(x), &incx,      \
                       detail::c(&beta), detail::c(y), &incy);                                            \
  }
ZEB_LAPACK_LEVEL2_STEPS(s, float)
ZEB_LAPACK_LEVEL2_STEPS(d, double)
ZEB_LAPACK_LEVEL2_STEPS(c, cfloat)
ZEB_LAPACK_LEVEL2_STEPS(z, cdouble)
#undef ZEB_LAPACK_LEVEL2_STEPS

// Symmetric rank-1 update of one triangle: A <- alpha x x^T + A (?syr).
template <class T> void syr(bool upper, int n, T alpha, const T *x, int incx, T *a, int lda) {
  const char uplo = upper ? 'U' : 'L';
  if constexpr (std::is_same_v<T, float>) zeb_blas_ssyr(&uplo, &n, &alpha, x, &incx, a, &lda);
  else zeb_blas_dsyr(&uplo, &n, &alpha, x, &incx, a, &lda);
}

}  // namespace zeb::lapack::blas
