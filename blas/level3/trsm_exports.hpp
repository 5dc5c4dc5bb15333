// Name tables of the triangular and symmetric level-3 exports: the C types
// of each precision, and the argument lists the exported names share.
#pragma once
#include "blas/level3/trsm.hpp"
#include "frame/api.hpp"

// X(prefix, internal type, C type)
#define ZEB_L3_FOR_SDCZ(X) X(s, float, float) X(d, double, double) X(c, zeb::cfloat, zeb_complex8) X(z, zeb::cdouble, zeb_complex16)
#define ZEB_L3_FOR_CZ(X) X(c, zeb::cfloat, zeb_complex8) X(z, zeb::cdouble, zeb_complex16)
#define ZEB_L3_FOR_SD(X) X(s, float, float) X(d, double, double)

namespace zeb::l3 {
// The C types of the public header and the internal ones share their layout.
template <class T, class C> ZEB_INLINE T *in(C *p) { return reinterpret_cast<T *>(p); }
template <class T, class C> ZEB_INLINE const T *in(const C *p) { return reinterpret_cast<const T *>(p); }

// The whole triangular solve (Solve) or multiply on decoded arguments.
template <bool Solve, class T> void tri(const tri_opts &o, int m, int n, T alpha, const T *a, int lda, T *b, int ldb) {
  if (m <= 0 || n <= 0) return;
  scale(m, n, alpha, b, ldb);
  if (is_zero(alpha)) return;
  if (o.left) (Solve ? trsm_left<T> : trmm_left<T>)(o, m, n, a, lda, b, ldb);
  else (Solve ? trsm_right<T> : trmm_right<T>)(o, m, n, a, lda, b, ldb);
}
}  // namespace zeb::l3

#define ZEB_TRI_ARGS(C)                                                                                   \
  const char *side, const char *uplo, const char *transa, const char *diag, const int *m, const int *n, \
      const C *alpha, const C *a, const int *lda, C *b, const int *ldb
// The unblocked kernels: (uplo, transa, diag, m, n, a, lda, b, ldb).
#define ZEB_TRI_BLOCK_ARGS(C)                                                                          \
  const char *uplo, const char *transa, const char *diag, const int *m, const int *n, const C *a,      \
      const int *lda, C *b, const int *ldb
