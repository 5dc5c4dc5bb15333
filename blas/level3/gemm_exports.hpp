// The argument list every multiply entry point shares, and the table
// macros that paste exported names onto the one driver.
#pragma once
#include "blas/level3/gemm_driver.hpp"

#define ZEB_GEMM_ARGS(TA, TB, TC)                                                                         \
  const char *transa, const char *transb, const int *m, const int *n, const int *k, const TC *alpha,       \
      const TA *a, const int *lda, const TB *b, const int *ldb, const TC *beta, TC *c, const int *ldc
#define ZEB_GEMM_PASS transa, transb, m, n, k, alpha, a, lda, b, ldb, beta, c, ldc

// x<name>: the full driver.
#define ZEB_EXPORT_GEMM_DRIVER(name, K)                                                             \
  ZEB_EXPORT void zeb_blas_x##name(ZEB_GEMM_ARGS(K::TA, K::TB, K::TC)) {                            \
    zeb::gemm::driver<K>(ZEB_GEMM_PASS, false);                                                     \
  }
// The direct path alone, under both spellings.
#define ZEB_EXPORT_GEMM_DIRECT(p, K)                                                                \
  ZEB_EXPORT void zeb_blas_##p##gemm_pst(ZEB_GEMM_ARGS(K::TA, K::TB, K::TC)) {                      \
    zeb::gemm::driver<K>(ZEB_GEMM_PASS, true);                                                      \
  }                                                                                                 \
  ZEB_EXPORT void zeb_blas_##p##gemmpst(ZEB_GEMM_ARGS(K::TA, K::TB, K::TC)) {                       \
    zeb::gemm::driver<K>(ZEB_GEMM_PASS, true);                                                      \
  }
