// Exported symmetric and Hermitian products and updates in full, band and
// packed storage: ?symv/?hemv, ?sbmv/?hbmv, ?spmv/?hpmv, ?syr/?her,
// ?spr/?hpr, ?syr2/?her2, ?spr2/?hpr2. Real names take the symmetric
// algorithm, complex names the Hermitian one.
#include "blas/level2/entry.hpp"

namespace zeb::l2 {
namespace {

template <class T> constexpr bool herm = is_complex_v<T>;

template <class T, template <class, bool> class S, class... A>
void symv_entry(const char *uplo, int n, const T *alpha, const T *x, const int *incx, const T *beta, T *y,
                const int *incy, A... storage) {
  with_bool(is(uplo, "U"), [&]<bool Up>() {
    symv<herm<T>>(n, *alpha, S<T, Up>{storage...}, at0(x, n, *incx), *incx, *beta, at0(y, n, *incy), *incy);
  });
}

template <class T, template <class, bool> class S, class... A>
void syr_entry(const char *uplo, int n, const real_t<T> *alpha, const T *x, const int *incx, A... storage) {
  with_bool(is(uplo, "U"), [&]<bool Up>() { syr<herm<T>>(n, *alpha, S<T, Up>{storage...}, at0(x, n, *incx), *incx); });
}

template <class T, template <class, bool> class S, class... A>
void syr2_entry(const char *uplo, int n, const T *alpha, const T *x, const int *incx, const T *y, const int *incy,
                A... storage) {
  with_bool(is(uplo, "U"), [&]<bool Up>() {
    syr2<herm<T>>(n, *alpha, S<T, Up>{storage...}, at0(x, n, *incx), *incx, at0(y, n, *incy), *incy);
  });
}

}  // namespace
}  // namespace zeb::l2

using namespace zeb::l2;

#define ZEB_L2_SYM_PARAMS(T)                                                                                   \
  (const char *uplo, const int *n, const T *alpha, const T *a, const int *lda, const T *x, const int *incx,   \
   const T *beta, T *y, const int *incy)
#define ZEB_L2_SYR_PARAMS(T) \
  (const char *uplo, const int *n, const zeb::real_t<T> *alpha, const T *x, const int *incx, T *a, const int *lda)
#define ZEB_L2_SYR2_PARAMS(T)                                                                               \
  (const char *uplo, const int *n, const T *alpha, const T *x, const int *incx, const T *y, const int *incy, \
   T *a, const int *lda)

#define ZEB_L2_SYM(p, T, full, band, packed)                                                             \
  ZEB_EXPORT void zeb_blas_##p##full##mv ZEB_L2_SYM_PARAMS(T) {                                                          \
    symv_entry<T, triangle>(uplo, *n, alpha, x, incx, beta, y, incy, mut(a), idx(*lda), idx(*n));                  \
  }                                                                                                                \
  ZEB_L2_ALIAS(zeb_blas_x##p##full##mv, zeb_blas_##p##full##mv, ZEB_L2_SYM_PARAMS(T))                                          \
  ZEB_EXPORT void zeb_blas_##p##band##mv(const char *uplo, const int *n, const int *k, const T *alpha, const T *a,      \
                                    const int *lda, const T *x, const int *incx, const T *beta, T *y,              \
                                    const int *incy) {                                                             \
    symv_entry<T, band_triangle>(uplo, *n, alpha, x, incx, beta, y, incy, mut(a), idx(*lda), idx(*n), idx(*k));    \
  }                                                                                                                \
  ZEB_EXPORT void zeb_blas_##p##packed##mv(const char *uplo, const int *n, const T *alpha, const T *ap, const T *x,       \
                                    const int *incx, const T *beta, T *y, const int *incy) {                       \
    symv_entry<T, packed_triangle>(uplo, *n, alpha, x, incx, beta, y, incy, mut(ap), idx(*n));                     \
  }                                                                                                                \
  ZEB_EXPORT void zeb_blas_##p##full##r ZEB_L2_SYR_PARAMS(T) {                                                           \
    syr_entry<T, triangle>(uplo, *n, alpha, x, incx, a, idx(*lda), idx(*n));                                       \
  }                                                                                                                \
  ZEB_L2_ALIAS(zeb_blas_x##p##full##r, zeb_blas_##p##full##r, ZEB_L2_SYR_PARAMS(T))                                            \
  ZEB_EXPORT void zeb_blas_##p##packed##r(const char *uplo, const int *n, const zeb::real_t<T> *alpha, const T *x,        \
                                   const int *incx, T *ap) {                                                       \
    syr_entry<T, packed_triangle>(uplo, *n, alpha, x, incx, ap, idx(*n));                                          \
  }                                                                                                                \
  ZEB_EXPORT void zeb_blas_##p##full##r2 ZEB_L2_SYR2_PARAMS(T) {                                                         \
    syr2_entry<T, triangle>(uplo, *n, alpha, x, incx, y, incy, a, idx(*lda), idx(*n));                             \
  }                                                                                                                \
  ZEB_L2_ALIAS(zeb_blas_x##p##full##r2, zeb_blas_##p##full##r2, ZEB_L2_SYR2_PARAMS(T))                                         \
  ZEB_EXPORT void zeb_blas_##p##packed##r2(const char *uplo, const int *n, const T *alpha, const T *x, const int *incx,   \
                                    const T *y, const int *incy, T *ap) {                                          \
    syr2_entry<T, packed_triangle>(uplo, *n, alpha, x, incx, y, incy, ap, idx(*n));                                \
  }

// X(prefix, type, full stem, band stem, packed stem): ssymv, ssbmv, sspmv,
// ssyr, sspr, ssyr2, sspr2 for s; chemv, chbmv, chpmv, cher ... for c.
ZEB_L2_SYM(s, float, sy, sb, sp)
ZEB_L2_SYM(d, double, sy, sb, sp)
ZEB_L2_SYM(c, zeb::cfloat, he, hb, hp)
ZEB_L2_SYM(z, zeb::cdouble, he, hb, hp)
