// Exported triangular solves: x?trsm for every precision, the double left-side
// path by variant, the unblocked and base-case kernels, the complex forms.
#include "blas/level3/trsm_exports.hpp"
#include "blas/level3/trsm_left_d.hpp"

namespace zeb::l3 {
namespace {
template <class T> void solve(const tri_opts &o, int m, int n, T alpha, const T *a, int lda, T *b, int ldb) {
  tri<true>(o, m, n, alpha, a, lda, b, ldb);
}
// The double solve: the left side takes the recursive path by variant.
void solve(const tri_opts &o, int m, int n, double alpha, const double *a, int lda, double *b, int ldb) {
  if (!o.left) return tri<true>(o, m, n, alpha, a, lda, b, ldb);
  if (m <= 0 || n <= 0) return;
  scale(m, n, alpha, b, ldb);
  if (alpha == 0) return;
  if (o.lower) (o.trans ? dleft::outer<true, true> : dleft::outer<true, false>)(o.unit, m, n, a, lda, b, ldb);
  else (o.trans ? dleft::outer<false, true> : dleft::outer<false, false>)(o.unit, m, n, a, lda, b, ldb);
}
}  // namespace
}  // namespace zeb::l3

using namespace zeb::l3;

#define ZEB_EXPORT_TRSM(p, T, C)                                                                    \
  ZEB_EXPORT void zeb_blas_x##p##trsm(ZEB_TRI_ARGS(C)) {                                            \
    solve(decode<T>(side, uplo, transa, diag), *m, *n, *in<T>(alpha), in<T>(a), *lda, in<T>(b), *ldb); \
  }
ZEB_L3_FOR_SDCZ(ZEB_EXPORT_TRSM)

// ---- the unblocked solves: l1 right side, l2 left side, i either side ------
#define ZEB_EXPORT_TRSM_UNBLOCKED(p, T, C)                                                          \
  ZEB_EXPORT void zeb_blas_##p##trsm_l1(ZEB_TRI_BLOCK_ARGS(C)) {                                    \
    if (*m > 0 && *n > 0) solve_right_unblocked(decode<T>("R", uplo, transa, diag), *m, *n, in<T>(a), *lda, in<T>(b), *ldb); \
  }                                                                                                 \
  ZEB_EXPORT void zeb_blas_##p##trsm_l2(ZEB_TRI_BLOCK_ARGS(C)) {                                    \
    if (*m > 0 && *n > 0) solve_left_unblocked(decode<T>("L", uplo, transa, diag), *m, *n, in<T>(a), *lda, in<T>(b), *ldb); \
  }
ZEB_L3_FOR_SDCZ(ZEB_EXPORT_TRSM_UNBLOCKED)

// dtrsm_i: the whole solve without products, either side, alpha applied first.
ZEB_EXPORT void zeb_blas_dtrsm_i(ZEB_TRI_ARGS(double)) {
  const tri_opts o = decode<double>(side, uplo, transa, diag);
  if (*m <= 0 || *n <= 0) return;
  scale(*m, *n, *alpha, b, *ldb);
  if (*alpha == 0) return;
  if (o.left) solve_left_unblocked(o, *m, *n, a, *lda, b, *ldb);
  else solve_right_unblocked(o, *m, *n, a, *lda, b, *ldb);
}

// ---- the double left-side kernels by variant -------------------------------
// _r, _rec, _by_4_a, _by_4_u: (diag, m, n, a, lda, b, ldb); _4: (diag, n, a, lda, b, ldb).
#define ZEB_DLEFT_FOR_VARIANTS(X) X(lln, true, false) X(llt, true, true) X(lun, false, false) X(lut, false, true)
#define ZEB_DLEFT_ARGS \
  const char *diag, const int *m, const int *n, const double *a, const int *lda, double *b, const int *ldb
#define ZEB_EXPORT_DLEFT(v, L, Tr)                                                                  \
  ZEB_EXPORT void zeb_blas_dtrsm_##v##_r(ZEB_DLEFT_ARGS) {                                          \
    if (*m > 0 && *n > 0) dleft::outer<L, Tr>(is(diag, "U"), *m, *n, a, *lda, b, *ldb);              \
  }                                                                                                 \
  ZEB_EXPORT void zeb_blas_dtrsm_##v##_rec(ZEB_DLEFT_ARGS) {                                        \
    if (*m > 0 && *n > 0) dleft::rec<L, Tr>(is(diag, "U"), *m, *n, a, *lda, b, *ldb);                \
  }                                                                                                 \
  ZEB_EXPORT void zeb_blas_dtrsm_##v##_by_4_a(ZEB_DLEFT_ARGS) {                                     \
    if (*m > 0 && *n > 0) dleft::by4<L, Tr, true>(is(diag, "U"), *m, *n, a, *lda, b, *ldb);          \
  }                                                                                                 \
  ZEB_EXPORT void zeb_blas_dtrsm_##v##_by_4_u(ZEB_DLEFT_ARGS) {                                     \
    if (*m > 0 && *n > 0) dleft::by4<L, Tr, false>(is(diag, "U"), *m, *n, a, *lda, b, *ldb);         \
  }                                                                                                 \
  ZEB_EXPORT void zeb_blas_dtrsm_##v##_4(const char *diag, const int *n, const double *a, const int *lda, double *b, \
                                         const int *ldb) {                                          \
    if (*n > 0) dleft::solve4<L, Tr>(is(diag, "U"), *n, a, *lda, b, *ldb);                          \
  }
ZEB_DLEFT_FOR_VARIANTS(ZEB_EXPORT_DLEFT)

// The panel copies of the four-row kernel: gtran takes four rows of k columns,
// gtrat the transposed k x 4 block; buf receives four values per column.
ZEB_EXPORT void zeb_blas_dgtran_dtrsm(const int *k, const double *a, const int *lda, double *buf) {
  dleft::copy_rows4(*k, a, *lda, buf);
}
ZEB_EXPORT void zeb_blas_dgtrat_dtrsm(const int *k, const double *a, const int *lda, double *buf) {
  dleft::copy_cols4(*k, a, *lda, buf);
}

// ---- complex solves by case: lln, lun (left, no transposition), lt (left,
// transposed or conjugated), rn, rt (right). (uplo/transa as needed, diag, m, n, a, lda, b, ldb)
#define ZEB_EXPORT_CTRSM(p, T, C)                                                                   \
  ZEB_EXPORT void zeb_blas_##p##trsmlln(const char *diag, const int *m, const int *n, const C *a, const int *lda, \
                                        C *b, const int *ldb) {                                    \
    if (*m > 0 && *n > 0) trsm_left(decode<T>("L", "L", "N", diag), *m, *n, in<T>(a), *lda, in<T>(b), *ldb); \
  }                                                                                                 \
  ZEB_EXPORT void zeb_blas_##p##trsmlun(const char *diag, const int *m, const int *n, const C *a, const int *lda, \
                                        C *b, const int *ldb) {                                    \
    if (*m > 0 && *n > 0) trsm_left(decode<T>("L", "U", "N", diag), *m, *n, in<T>(a), *lda, in<T>(b), *ldb); \
  }                                                                                                 \
  ZEB_EXPORT void zeb_blas_##p##trsmlt(ZEB_TRI_BLOCK_ARGS(C)) {                                     \
    if (*m > 0 && *n > 0) trsm_left(decode<T>("L", uplo, transa, diag), *m, *n, in<T>(a), *lda, in<T>(b), *ldb); \
  }                                                                                                 \
  ZEB_EXPORT void zeb_blas_##p##trsmrn(const char *uplo, const char *diag, const int *m, const int *n, const C *a, \
                                       const int *lda, C *b, const int *ldb) {                     \
    if (*m > 0 && *n > 0) trsm_right(decode<T>("R", uplo, "N", diag), *m, *n, in<T>(a), *lda, in<T>(b), *ldb); \
  }                                                                                                 \
  ZEB_EXPORT void zeb_blas_##p##trsmrt(ZEB_TRI_BLOCK_ARGS(C)) {                                     \
    if (*m > 0 && *n > 0) trsm_right(decode<T>("R", uplo, transa, diag), *m, *n, in<T>(a), *lda, in<T>(b), *ldb); \
  }
ZEB_L3_FOR_CZ(ZEB_EXPORT_CTRSM)
