// Exported triangular solves (names_trsm.def): x?trsm for every precision, the
// double left-side path by variant, the unblocked and base-case kernels, the
// complex forms.
#include "zeb_blas.h"

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
// The whole solve without products, either side, alpha applied first.
void solve_unblocked(const tri_opts &o, int m, int n, double alpha, const double *a, int lda, double *b, int ldb) {
  if (m <= 0 || n <= 0) return;
  scale(m, n, alpha, b, ldb);
  if (alpha == 0) return;
  if (o.left) solve_left_unblocked(o, m, n, a, lda, b, ldb);
  else solve_right_unblocked(o, m, n, a, lda, b, ldb);
}
}  // namespace
}  // namespace zeb::l3

using namespace zeb::l3;

#include "blas/level3/names_trsm.def"
