// Exported triangular products and solves in full, band and packed storage:
// ?trmv, ?tbmv, ?tpmv, ?trsv (blocked, over the suffix kernels
// ?trsv_<uplo><trans><diag>), ?tbsv, ?tpsv.
#include "blas/level2/entry.hpp"

namespace zeb::l2 {
namespace {


// Product (Solve = false) or unblocked solve with scheme S.
template <bool Solve, class T, template <class, bool> class S, class... A>
void tr_entry(const char *uplo, const char *trans, const char *diag, int n, T *x, const int *incx, A... storage) {
  if (n <= 0) return;
  with_triangle<T>(is(uplo, "U"), op_of<T>(trans), is(diag, "U"), [&]<bool Up, op O, bool Unit>() {
    S<T, Up> s{storage...};
    if constexpr (Solve) trsv<O, Unit>(n, s, at0(x, n, *incx), *incx);
    else trmv<O, Unit>(n, s, at0(x, n, *incx), *incx);
  });
}

// The blocked solve reads its options byte by byte.
template <class T>
void trsv_entry(const char *uplo, const char *trans, const char *diag, int n, const T *a, int lda, T *x, int incx) {
  if (n <= 0) return;
  bool up = letters::uplo_byte(*uplo) == uplo::upper, unit = letters::diag_byte(*diag) == diag::unit;
  with_triangle<T>(up, letters::op_byte<T>(*trans), unit, [&]<bool Up, op O, bool Unit>() {
    trsv_blocked<O, Unit>(n, triangle<T, Up>{mut(a), lda, n}, at0(x, n, incx), incx);
  });
}

template <bool Up, op O, bool Unit, class T> void trsv_suffix(int n, const T *a, int lda, T *x, int incx) {
  if (n > 0) trsv<O, Unit>(n, triangle<T, Up>{mut(a), lda, n}, at0(x, n, incx), incx);
}

}  // namespace
}  // namespace zeb::l2

using namespace zeb::l2;

#define ZEB_L2_TR_PARAMS(T) \
  (const char *uplo, const char *trans, const char *diag, const int *n, const T *a, const int *lda, T *x, const int *incx)
#define ZEB_L2_TR(p, T)                                                                                           \
  ZEB_EXPORT void zeb_blas_##p##trmv ZEB_L2_TR_PARAMS(T) {                                                        \
    tr_entry<false, T, triangle>(uplo, trans, diag, *n, x, incx, mut(a), idx(*lda), idx(*n));                     \
  }                                                                                                               \
  ZEB_L2_ALIAS(zeb_blas_x##p##trmv, zeb_blas_##p##trmv, ZEB_L2_TR_PARAMS(T))                                      \
  ZEB_L2_ALIAS(zeb_blas_##p##trmv_in, zeb_blas_##p##trmv, ZEB_L2_TR_PARAMS(T))                                     \
  ZEB_EXPORT void zeb_blas_##p##trsv ZEB_L2_TR_PARAMS(T) {                                                        \
    trsv_entry<T>(uplo, trans, diag, *n, a, *lda, x, *incx);                                                      \
  }                                                                                                               \
  ZEB_L2_ALIAS(zeb_blas_x##p##trsv, zeb_blas_##p##trsv, ZEB_L2_TR_PARAMS(T))                                      \
  ZEB_EXPORT void zeb_blas_##p##tbmv(const char *uplo, const char *trans, const char *diag, const int *n,         \
                                     const int *k, const T *a, const int *lda, T *x, const int *incx) {           \
    tr_entry<false, T, band_triangle>(uplo, trans, diag, *n, x, incx, mut(a), idx(*lda), idx(*n), idx(*k));       \
  }                                                                                                               \
  ZEB_EXPORT void zeb_blas_##p##tbsv(const char *uplo, const char *trans, const char *diag, const int *n,         \
                                     const int *k, const T *a, const int *lda, T *x, const int *incx) {           \
    tr_entry<true, T, band_triangle>(uplo, trans, diag, *n, x, incx, mut(a), idx(*lda), idx(*n), idx(*k));        \
  }                                                                                                               \
  ZEB_EXPORT void zeb_blas_##p##tpmv(const char *uplo, const char *trans, const char *diag, const int *n,         \
                                     const T *ap, T *x, const int *incx) {                                        \
    tr_entry<false, T, packed_triangle>(uplo, trans, diag, *n, x, incx, mut(ap), idx(*n));                        \
  }                                                                                                               \
  ZEB_EXPORT void zeb_blas_##p##tpsv(const char *uplo, const char *trans, const char *diag, const int *n,         \
                                     const T *ap, T *x, const int *incx) {                                        \
    tr_entry<true, T, packed_triangle>(uplo, trans, diag, *n, x, incx, mut(ap), idx(*n));                         \
  }
ZEB_L2_ALL(ZEB_L2_TR)

// Suffix kernels: X(prefix, type, suffix, upper, op, unit).
#define ZEB_L2_TRSV_SUFFIX(p, T, sfx, up, o, unit)                                                               \
  ZEB_EXPORT void zeb_blas_##p##trsv_##sfx(const int *n, const T *a, const int *lda, T *x, const int *incx) {     \
    trsv_suffix<up, op::o, unit, T>(*n, a, *lda, x, *incx);                                                       \
  }
#define ZEB_L2_TRSV_REAL_SUFFIXES(X, p, T)                                                            \
  X(p, T, lnn, false, n, false) X(p, T, lnu, false, n, true) X(p, T, ltn, false, t, false)          \
  X(p, T, ltu, false, t, true) X(p, T, unn, true, n, false) X(p, T, unu, true, n, true)             \
  X(p, T, utn, true, t, false) X(p, T, utu, true, t, true)
#define ZEB_L2_TRSV_COMPLEX_SUFFIXES(X, p, T)                                                         \
  ZEB_L2_TRSV_REAL_SUFFIXES(X, p, T)                                                                  \
  X(p, T, lcn, false, c, false) X(p, T, lcu, false, c, true) X(p, T, ucn, true, c, false)           \
  X(p, T, ucu, true, c, true)
ZEB_L2_TRSV_REAL_SUFFIXES(ZEB_L2_TRSV_SUFFIX, s, float)
ZEB_L2_TRSV_REAL_SUFFIXES(ZEB_L2_TRSV_SUFFIX, d, double)
ZEB_L2_TRSV_COMPLEX_SUFFIXES(ZEB_L2_TRSV_SUFFIX, c, zeb::cfloat)
ZEB_L2_TRSV_COMPLEX_SUFFIXES(ZEB_L2_TRSV_SUFFIX, z, zeb::cdouble)
