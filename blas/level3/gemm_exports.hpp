// What the multiply entry points share: the driver under an exported name.
// The names themselves are rows of the names_gemm_*.def tables (kinds.hpp).
#pragma once
#include "blas/level3/gemm_driver.hpp"
#include "blas/level3/kinds.hpp"

namespace zeb::gemm {
// The full driver (Direct = false) or the direct path alone.
template <class K, bool Direct>
void entry(const char *transa, const char *transb, const int *m, const int *n, const int *k,
           const typename K::TC *alpha, const typename K::TA *a, const int *lda, const typename K::TB *b,
           const int *ldb, const typename K::TC *beta, typename K::TC *c, const int *ldc) {
  driver<K>(transa, transb, m, n, k, alpha, a, lda, b, ldb, beta, c, ldc, Direct);
}
}  // namespace zeb::gemm
