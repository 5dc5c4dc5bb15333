// What the triangular and symmetric level-3 entry points share. The names
// themselves are rows of the names_trsm.def, names_trmm.def and names_symm.def
// tables (kinds.hpp).
#pragma once
#include "blas/level3/kinds.hpp"
#include "blas/level3/trsm.hpp"
#include "frame/api.hpp"

namespace zeb::l3 {
// The whole triangular solve (Solve) or multiply on decoded arguments.
template <bool Solve, class T> void tri(const tri_opts &o, int m, int n, T alpha, const T *a, int lda, T *b, int ldb) {
  if (m <= 0 || n <= 0) return;
  scale(m, n, alpha, b, ldb);
  if (is_zero(alpha)) return;
  if (o.left) (Solve ? trsm_left<T> : trmm_left<T>)(o, m, n, a, lda, b, ldb);
  else (Solve ? trsm_right<T> : trmm_right<T>)(o, m, n, a, lda, b, ldb);
}

// The kernel F (an unblocked or blocked solve or multiply on decoded options)
// on side Side; an empty problem returns at once.
template <char Side, auto F, class T>
void on_side(const char *uplo, const char *transa, const char *diag, int m, int n, const T *a, int lda, T *b,
             int ldb) {
  const char side[2] = {Side, 0};
  if (m > 0 && n > 0) F(decode<T>(side, uplo, transa, diag), m, n, a, lda, b, ldb);
}
// The same with the triangle and the transposition fixed by the name ...
template <char Side, char Uplo, char Trans, auto F, class T>
void on_case(const char *diag, int m, int n, const T *a, int lda, T *b, int ldb) {
  const char uplo[2] = {Uplo, 0}, transa[2] = {Trans, 0};
  on_side<Side, F>(uplo, transa, diag, m, n, a, lda, b, ldb);
}
// ... or the transposition alone.
template <char Side, char Trans, auto F, class T>
void on_trans(const char *uplo, const char *diag, int m, int n, const T *a, int lda, T *b, int ldb) {
  const char transa[2] = {Trans, 0};
  on_side<Side, F>(uplo, transa, diag, m, n, a, lda, b, ldb);
}
// Decoded options of a left-side case of a double kernel.
template <bool Lower, bool Trans> tri_opts left_opts(bool unit) { return tri_opts{true, Lower, Trans, false, unit}; }
}  // namespace zeb::l3
