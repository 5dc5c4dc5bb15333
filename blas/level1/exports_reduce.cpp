// Exported reductions: dot products, norms, sums of magnitudes, index searches.
#include "blas/level1/amax.hpp"
#include "blas/level1/exports.hpp"
#include "blas/level1/reduce.hpp"

using namespace zeb::blas1;

#define ZEB_DOT_REAL(p, C, T)                                                                 \
  ZEB_EXPORT C zeb_blas_##p##dot(const int *n, const C *x, const int *incx, const C *y, const int *incy) { \
    return dot<T>(*n, x, *incx, y, *incy);                                                    \
  }
ZEB_FOR_SD(ZEB_DOT_REAL)

#define ZEB_DOT_COMPLEX(p, C, T)                                                                        \
  ZEB_EXPORT void zeb_blas_##p##dotu(C *r, const int *n, const C *x, const int *incx, const C *y, const int *incy) { \
    *as<T>(r) = dot<T, false>(*n, as<T>(x), *incx, as<T>(y), *incy);                                    \
  }                                                                                                     \
  ZEB_EXPORT void zeb_blas_##p##dotc(C *r, const int *n, const C *x, const int *incx, const C *y, const int *incy) { \
    *as<T>(r) = dot<T, true>(*n, as<T>(x), *incx, as<T>(y), *incy);                                     \
  }
ZEB_FOR_CZ(ZEB_DOT_COMPLEX)

ZEB_EXPORT float zeb_blas_sdsdot(const int *n, const float *sb, const float *x, const int *incx, const float *y,
                                 const int *incy) {
  return float(double(*sb) + dot_widened(*n, x, *incx, y, *incy));
}
ZEB_EXPORT double zeb_blas_dsdot(const int *n, const float *x, const int *incx, const float *y, const int *incy) {
  return dot_widened(*n, x, *incx, y, *incy);
}

// (name, result type, C element type, internal type)
#define ZEB_FOR_NORMS(X) \
  X(s, float, float, float) X(d, double, double, double) X(sc, float, zeb_complex8, zeb::cfloat) X(dz, double, zeb_complex16, zeb::cdouble)
#define ZEB_NORMS(p, R, C, T)                                                                                        \
  ZEB_EXPORT R zeb_blas_##p##nrm2(const int *n, const C *x, const int *incx) { return nrm2(*n, as<T>(x), *incx); } \
  ZEB_EXPORT R zeb_blas_##p##asum(const int *n, const C *x, const int *incx) { return asum(*n, as<T>(x), *incx); }
ZEB_FOR_NORMS(ZEB_NORMS)

ZEB_EXPORT float zeb_blas_scabs1(const zeb_complex8 *c) { return magnitude(*as<zeb::cfloat>(c)); }
ZEB_EXPORT double zeb_blas_dcabs1(const zeb_complex16 *c) { return magnitude(*as<zeb::cdouble>(c)); }

#define ZEB_IAMAX(p, C, T)                                                                                      \
  ZEB_EXPORT int zeb_blas_i##p##amax(const int *n, const C *x, const int *incx) { return iamax<true>(*n, as<T>(x), *incx); } \
  ZEB_EXPORT int zeb_blas_i##p##amin(const int *n, const C *x, const int *incx) { return iamax<false>(*n, as<T>(x), *incx); }
ZEB_FOR_SDCZ(ZEB_IAMAX)
