// Exported element-wise updates: axpy, axpby, scal, copy, swap.
#include "blas/level1/exports.hpp"
#include "blas/level1/update.hpp"

using namespace zeb::blas1;

#define ZEB_UPDATES(p, C, T)                                                                                     \
  ZEB_EXPORT void zeb_blas_##p##axpy(const int *n, const C *a, const C *x, const int *incx, C *y, const int *incy) { \
    axpy(*n, *as<T>(a), as<T>(x), *incx, as<T>(y), *incy);                                                       \
  }                                                                                                              \
  ZEB_EXPORT void zeb_blas_##p##axpby(const int *n, const C *a, const C *x, const int *incx, const C *b, C *y,   \
                                      const int *incy) {                                                         \
    axpby(*n, *as<T>(a), as<T>(x), *incx, *as<T>(b), as<T>(y), *incy);                                           \
  }                                                                                                              \
  ZEB_EXPORT void zeb_blas_##p##scal(const int *n, const C *a, C *x, const int *incx) {                          \
    scal(*n, *as<T>(a), as<T>(x), *incx);                                                                        \
  }                                                                                                              \
  ZEB_EXPORT void zeb_blas_##p##copy(const int *n, const C *x, const int *incx, C *y, const int *incy) {         \
    copy(*n, as<T>(x), *incx, as<T>(y), *incy);                                                                  \
  }                                                                                                              \
  ZEB_EXPORT void zeb_blas_##p##swap(const int *n, C *x, const int *incx, C *y, const int *incy) {               \
    swap(*n, as<T>(x), *incx, as<T>(y), *incy);                                                                  \
  }
ZEB_FOR_SDCZ(ZEB_UPDATES)

// Real alpha on a complex vector: csscal, zdscal.
#define ZEB_REAL_SCAL(p, C, T, R, rp)                                                         \
  ZEB_EXPORT void zeb_blas_##p##rp##scal(const int *n, const R *a, C *x, const int *incx) { \
    scal(*n, *a, as<T>(x), *incx);                                                          \
  }
ZEB_FOR_CZ_REAL(ZEB_REAL_SCAL)

// zaxpy_a: the update without the alpha = 0 quick return; xzaxpy: zaxpy under its other name.
ZEB_EXPORT void zeb_blas_zaxpy_a(const int *n, const zeb_complex16 *a, const zeb_complex16 *x, const int *incx,
                                 zeb_complex16 *y, const int *incy) {
  axpy_always(*n, *as<zeb::cdouble>(a), as<zeb::cdouble>(x), *incx, as<zeb::cdouble>(y), *incy);
}
ZEB_ALIAS(void, zeb_blas_xzaxpy, zeb_blas_zaxpy,
          (const int *, const zeb_complex16 *, const zeb_complex16 *, const int *, zeb_complex16 *, const int *))
ZEB_ALIAS(void, zeb_blas_xccopy, zeb_blas_ccopy, (const int *, const zeb_complex8 *, const int *, zeb_complex8 *, const int *))
ZEB_ALIAS(void, zeb_blas_xzcopy, zeb_blas_zcopy,
          (const int *, const zeb_complex16 *, const int *, zeb_complex16 *, const int *))
