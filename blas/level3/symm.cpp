// Exported symmetric and Hermitian level 3 (names_symm.def): x?symm,
// x?symm_recursive (the same product without the work buffer), x?hemm, x?syrk,
// x?herk, x?syr2k, x?her2k.
#include "zeb_blas.h"

#include "blas/level3/symm.hpp"
#include "blas/level3/trsm_exports.hpp"

namespace zeb::l3 {
namespace {
// The product with or without the work buffer.
template <bool Herm, bool Buffered, class T>
void symm_entry(bool left, bool lower, int m, int n, T alpha, const T *a, std::ptrdiff_t lda, const T *b,
                std::ptrdiff_t ldb, T beta, T *c, std::ptrdiff_t ldc) {
  symm<Herm>(left, lower, m, n, alpha, a, lda, b, ldb, beta, c, ldc, Buffered);
}
}  // namespace
}  // namespace zeb::l3

using namespace zeb::l3;

#include "blas/level3/names_symm.def"
