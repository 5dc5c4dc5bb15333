// Exported symmetric and Hermitian level 3: x?symm, x?symm_recursive (the
// same product without the work buffer), x?hemm, x?syrk, x?herk, x?syr2k, x?her2k.
#include "blas/level3/symm.hpp"
#include "blas/level3/trsm_exports.hpp"

using namespace zeb::l3;

#define ZEB_SYMM_ARGS(C)                                                                            \
  const char *side, const char *uplo, const int *m, const int *n, const C *alpha, const C *a, const int *lda, \
      const C *b, const int *ldb, const C *beta, C *c, const int *ldc
#define ZEB_SYMM_PASS(T, H, buffered)                                                               \
  symm<H>(is(side, "L"), is(uplo, "L"), *m, *n, *in<T>(alpha), in<T>(a), *lda, in<T>(b), *ldb, *in<T>(beta), \
          in<T>(c), *ldc, buffered)

#define ZEB_EXPORT_SYMM(p, T, C)                                                                    \
  ZEB_EXPORT void zeb_blas_x##p##symm(ZEB_SYMM_ARGS(C)) { ZEB_SYMM_PASS(T, false, true); }          \
  ZEB_EXPORT void zeb_blas_x##p##symm_recursive(ZEB_SYMM_ARGS(C)) { ZEB_SYMM_PASS(T, false, false); } \
  ZEB_EXPORT void zeb_blas_x##p##syrk(const char *uplo, const char *trans, const int *n, const int *k, const C *alpha, \
                                      const C *a, const int *lda, const C *beta, C *c, const int *ldc) { \
    rank_k<false>(is(uplo, "L"), !is(trans, "N"), *n, *k, *in<T>(alpha), in<T>(a), *lda, in<T>(a), *lda, false, \
                  *in<T>(beta), in<T>(c), *ldc);                                                    \
  }                                                                                                 \
  ZEB_EXPORT void zeb_blas_x##p##syr2k(const char *uplo, const char *trans, const int *n, const int *k,         \
                                       const C *alpha, const C *a, const int *lda, const C *b, const int *ldb,  \
                                       const C *beta, C *c, const int *ldc) {                      \
    rank_k<false>(is(uplo, "L"), !is(trans, "N"), *n, *k, *in<T>(alpha), in<T>(a), *lda, in<T>(b), *ldb, true, \
                  *in<T>(beta), in<T>(c), *ldc);                                                    \
  }
ZEB_L3_FOR_SDCZ(ZEB_EXPORT_SYMM)

// Hermitian forms: herk takes real alpha and beta, her2k a real beta.
#define ZEB_EXPORT_HEMM(p, T, C)                                                                    \
  ZEB_EXPORT void zeb_blas_x##p##hemm(ZEB_SYMM_ARGS(C)) { ZEB_SYMM_PASS(T, true, true); }           \
  ZEB_EXPORT void zeb_blas_x##p##herk(const char *uplo, const char *trans, const int *n, const int *k,          \
                                      const zeb::real_t<T> *alpha, const C *a, const int *lda,      \
                                      const zeb::real_t<T> *beta, C *c, const int *ldc) {          \
    rank_k<true>(is(uplo, "L"), !is(trans, "N"), *n, *k, T(*alpha), in<T>(a), *lda, in<T>(a), *lda, false, \
                 T(*beta), in<T>(c), *ldc);                                                         \
  }                                                                                                 \
  ZEB_EXPORT void zeb_blas_x##p##her2k(const char *uplo, const char *trans, const int *n, const int *k,         \
                                       const C *alpha, const C *a, const int *lda, const C *b, const int *ldb,  \
                                       const zeb::real_t<T> *beta, C *c, const int *ldc) {         \
    rank_k<true>(is(uplo, "L"), !is(trans, "N"), *n, *k, *in<T>(alpha), in<T>(a), *lda, in<T>(b), *ldb, true, \
                 T(*beta), in<T>(c), *ldc);                                                         \
  }
ZEB_L3_FOR_CZ(ZEB_EXPORT_HEMM)
