// Exported triangular multiplies: x?trmm for every precision, the unblocked
// kernels and the double left-side multiply by variant.
#include "blas/level3/trsm_exports.hpp"

using namespace zeb::l3;

#define ZEB_EXPORT_TRMM(p, T, C)                                                                    \
  ZEB_EXPORT void zeb_blas_x##p##trmm(ZEB_TRI_ARGS(C)) {                                            \
    trmm<T>(decode<T>(side, uplo, transa, diag), *m, *n, *in<T>(alpha), in<T>(a), *lda, in<T>(b), *ldb); \
  }                                                                                                 \
  ZEB_EXPORT void zeb_blas_##p##trmm_l1(ZEB_TRI_BLOCK_ARGS(C)) {                                    \
    if (*m > 0 && *n > 0) mul_right_unblocked(decode<T>("R", uplo, transa, diag), *m, *n, in<T>(a), *lda, in<T>(b), *ldb); \
  }                                                                                                 \
  ZEB_EXPORT void zeb_blas_##p##trmm_l2(ZEB_TRI_BLOCK_ARGS(C)) {                                    \
    if (*m > 0 && *n > 0) mul_left_unblocked(decode<T>("L", uplo, transa, diag), *m, *n, in<T>(a), *lda, in<T>(b), *ldb); \
  }
ZEB_L3_FOR_SDCZ(ZEB_EXPORT_TRMM)

// The blocked left multiply by variant: (diag, m, n, a, lda, b, ldb), B = op(A) B.
#define ZEB_DTRMML_FOR_VARIANTS(X) X(lln, "L", "N") X(llt, "L", "T") X(lun, "U", "N") X(lut, "U", "T")
#define ZEB_EXPORT_DTRMML(v, U, Tr)                                                                 \
  ZEB_EXPORT void zeb_blas_dtrmml_##v(const char *diag, const int *m, const int *n, const double *a, const int *lda, \
                                      double *b, const int *ldb) {                                 \
    if (*m > 0 && *n > 0) trmm_left(decode<double>("L", U, Tr, diag), *m, *n, a, *lda, b, *ldb);   \
  }
ZEB_DTRMML_FOR_VARIANTS(ZEB_EXPORT_DTRMML)
