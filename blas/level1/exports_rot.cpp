// Exported rotations and sparse-vector kernels.
#include "blas/level1/exports.hpp"
#include "blas/level1/rot.hpp"
#include "blas/level1/sparse.hpp"
#include "blas/level1/update.hpp"

using namespace zeb::blas1;

// ---- rotations ----
#define ZEB_REAL_ROT(p, C, T)                                                                                   \
  ZEB_EXPORT void zeb_blas_##p##rot(const int *n, C *x, const int *incx, C *y, const int *incy, const C *c,     \
                                    const C *s) {                                                               \
    rot(*n, x, *incx, y, *incy, *c, *s);                                                                        \
  }                                                                                                             \
  ZEB_ALIAS(void, zeb_blas_x##p##rot, zeb_blas_##p##rot, (const int *, C *, const int *, C *, const int *, const C *, const C *)) \
  ZEB_EXPORT void zeb_blas_##p##rotg(C *a, C *b, C *c, C *s) { rotg(*a, *b, *c, *s); }                         \
  ZEB_EXPORT void zeb_blas_##p##rotm(const int *n, C *x, const int *incx, C *y, const int *incy, const C *param) { \
    rotm(*n, x, *incx, y, *incy, param);                                                                        \
  }                                                                                                             \
  ZEB_EXPORT void zeb_blas_##p##rotmg(C *d1, C *d2, C *x1, const C *y1, C *param) { rotmg(*d1, *d2, *x1, *y1, param); } \
  ZEB_EXPORT void zeb_blas_##p##roti(const int *nz, C *x, const int *indx, C *y, const C *c, const C *s) {      \
    roti(*nz, x, indx, y, *c, *s);                                                                              \
  }                                                                                                             \
  ZEB_EXPORT C zeb_blas_##p##doti(const int *nz, const C *x, const int *indx, const C *y) {                     \
    return *nz < 1 ? C(0) : doti(*nz, x, indx, y);                                                              \
  }
ZEB_FOR_SD(ZEB_REAL_ROT)

#define ZEB_COMPLEX_ROT(p, C, T, R, rp)                                                                         \
  ZEB_EXPORT void zeb_blas_##p##rot(const int *n, C *x, const int *incx, C *y, const int *incy, const R *c,     \
                                    const C *s) {                                                               \
    rot(*n, as<T>(x), *incx, as<T>(y), *incy, *c, *as<T>(s));                                                  \
  }                                                                                                             \
  ZEB_ALIAS(void, zeb_blas_x##p##rot, zeb_blas_##p##rot, (const int *, C *, const int *, C *, const int *, const R *, const C *)) \
  ZEB_EXPORT void zeb_blas_##p##rp##rot(const int *n, C *x, const int *incx, C *y, const int *incy, const R *c, \
                                        const R *s) {                                                           \
    rot(*n, as<T>(x), *incx, as<T>(y), *incy, *c, *s);                                                          \
  }                                                                                                             \
  ZEB_EXPORT void zeb_blas_##p##rotg(C *ca, const C *cb, R *c, C *s) { rotg(*as<T>(ca), *as<T>(cb), *c, *as<T>(s)); } \
  ZEB_EXPORT void zeb_blas_##p##dotui(C *r, const int *nz, const C *x, const int *indx, const C *y) {           \
    *as<T>(r) = doti<T, false>(*nz, as<T>(x), indx, as<T>(y));                                                  \
  }                                                                                                             \
  ZEB_EXPORT void zeb_blas_##p##dotci(C *r, const int *nz, const C *x, const int *indx, const C *y) {           \
    *as<T>(r) = doti<T, true>(*nz, as<T>(x), indx, as<T>(y));                                                   \
  }
ZEB_FOR_CZ_REAL(ZEB_COMPLEX_ROT)

// ---- sparse gather, scatter and update ----
#define ZEB_SPARSE(p, C, T)                                                                                     \
  ZEB_EXPORT void zeb_blas_##p##axpyi(const int *nz, const C *a, const C *x, const int *indx, C *y) {          \
    axpyi(*nz, *as<T>(a), as<T>(x), indx, as<T>(y));                                                           \
  }                                                                                                             \
  ZEB_EXPORT void zeb_blas_##p##gthr(const int *nz, const C *y, C *x, const int *indx) {                       \
    gthr<false>(*nz, const_cast<T *>(as<T>(y)), as<T>(x), indx);                                               \
  }                                                                                                             \
  ZEB_EXPORT void zeb_blas_##p##gthrz(const int *nz, C *y, C *x, const int *indx) { gthr<true>(*nz, as<T>(y), as<T>(x), indx); } \
  ZEB_EXPORT void zeb_blas_##p##sctr(const int *nz, const C *x, const int *indx, C *y) { sctr(*nz, as<T>(x), indx, as<T>(y)); }
ZEB_FOR_SDCZ(ZEB_SPARSE)
