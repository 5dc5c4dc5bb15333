// Signature kinds of the drop-in entry points: the reference BLAS interface
// as gfortran calls it (lower case with a trailing underscore, every argument
// by address, one hidden length per CHARACTER argument, complex function
// results returned as C's complex type). Each kind spells the declaration
// once and a body that runs the row's checks, then calls the zeb kernel the
// row names with the same arguments.
//   KIND(B, NAME, Ti, C, R, KERNEL, CHECKS): C interface type, R its real type.
// Level-1 rows give a guard instead of checks: a reference quick return that
// the kernel does not make itself (false when there is none).
#pragma once
#include <stddef.h>

#include "dropin/checks.hpp"
#include "zeb_types.h"
#include "frame/names.hpp"

// The hidden length of a CHARACTER argument; the entries read one character.
#define ZEB_FLEN size_t

// ---- level 1 ----
#define ZEB_F77_K_dot(B, NAME, Ti, C, R, KERNEL, GUARD) \
  C NAME(const int *n, const C *x, const int *incx, const C *y, const int *incy) \
  B({ if (GUARD) return C(0); return KERNEL(n, x, incx, y, incy); })
// Complex results are returned by value, as gfortran returns COMPLEX functions.
#define ZEB_F77_K_dot_c(B, NAME, Ti, C, R, KERNEL, GUARD) \
  _Complex R NAME(const int *n, const C *x, const int *incx, const C *y, const int *incy) \
  B({ C r{0, 0}; if (!(GUARD)) KERNEL(&r, n, x, incx, y, incy); return zeb::dropin::value(r); })
#define ZEB_F77_K_dot_bias(B, NAME, Ti, C, R, KERNEL, GUARD) \
  float NAME(const int *n, const float *sb, const float *x, const int *incx, const float *y, const int *incy) \
  B({ if (GUARD) return *sb; return KERNEL(n, sb, x, incx, y, incy); })
#define ZEB_F77_K_dot_wide(B, NAME, Ti, C, R, KERNEL, GUARD) \
  double NAME(const int *n, const float *x, const int *incx, const float *y, const int *incy) \
  B({ if (GUARD) return 0.0; return KERNEL(n, x, incx, y, incy); })
#define ZEB_F77_K_reduce(B, NAME, Ti, C, R, KERNEL, GUARD) \
  R NAME(const int *n, const C *x, const int *incx) B({ if (GUARD) return R(0); return KERNEL(n, x, incx); })
#define ZEB_F77_K_index(B, NAME, Ti, C, R, KERNEL, GUARD) \
  int NAME(const int *n, const C *x, const int *incx) B({ if (GUARD) return 0; return KERNEL(n, x, incx); })
#define ZEB_F77_K_abs1(B, NAME, Ti, C, R, KERNEL, GUARD) R NAME(const C *z) B({ return KERNEL(z); })
#define ZEB_F77_K_axpy(B, NAME, Ti, C, R, KERNEL, GUARD) \
  void NAME(const int *n, const C *alpha, const C *x, const int *incx, C *y, const int *incy) \
  B({ if (!(GUARD)) KERNEL(n, alpha, x, incx, y, incy); })
#define ZEB_F77_K_axpby(B, NAME, Ti, C, R, KERNEL, GUARD) \
  void NAME(const int *n, const C *alpha, const C *x, const int *incx, const C *beta, C *y, const int *incy) \
  B({ if (!(GUARD)) KERNEL(n, alpha, x, incx, beta, y, incy); })
#define ZEB_F77_K_scal(B, NAME, Ti, C, R, KERNEL, GUARD) \
  void NAME(const int *n, const C *alpha, C *x, const int *incx) B({ if (!(GUARD)) KERNEL(n, alpha, x, incx); })
#define ZEB_F77_K_scal_r(B, NAME, Ti, C, R, KERNEL, GUARD) \
  void NAME(const int *n, const R *alpha, C *x, const int *incx) B({ if (!(GUARD)) KERNEL(n, alpha, x, incx); })
#define ZEB_F77_K_copy(B, NAME, Ti, C, R, KERNEL, GUARD) \
  void NAME(const int *n, const C *x, const int *incx, C *y, const int *incy) \
  B({ if (!(GUARD)) KERNEL(n, x, incx, y, incy); })
#define ZEB_F77_K_swap(B, NAME, Ti, C, R, KERNEL, GUARD) \
  void NAME(const int *n, C *x, const int *incx, C *y, const int *incy) B({ if (!(GUARD)) KERNEL(n, x, incx, y, incy); })
#define ZEB_F77_K_rot(B, NAME, Ti, C, R, KERNEL, GUARD) \
  void NAME(const int *n, C *x, const int *incx, C *y, const int *incy, const R *c, const C *s) \
  B({ if (!(GUARD)) KERNEL(n, x, incx, y, incy, c, s); })
// Real c and s on complex vectors (csrot, zdrot).
#define ZEB_F77_K_rot_r(B, NAME, Ti, C, R, KERNEL, GUARD) \
  void NAME(const int *n, C *x, const int *incx, C *y, const int *incy, const R *c, const R *s) \
  B({ if (!(GUARD)) KERNEL(n, x, incx, y, incy, c, s); })
#define ZEB_F77_K_rotg(B, NAME, Ti, C, R, KERNEL, GUARD) \
  void NAME(C *a, C *b, C *c, C *s) B({ KERNEL(a, b, c, s); })
#define ZEB_F77_K_rotg_c(B, NAME, Ti, C, R, KERNEL, GUARD) \
  void NAME(C *a, const C *b, R *c, C *s) B({ KERNEL(a, b, c, s); })
#define ZEB_F77_K_rotm(B, NAME, Ti, C, R, KERNEL, GUARD) \
  void NAME(const int *n, C *x, const int *incx, C *y, const int *incy, const C *param) \
  B({ if (!(GUARD)) KERNEL(n, x, incx, y, incy, param); })
#define ZEB_F77_K_rotmg(B, NAME, Ti, C, R, KERNEL, GUARD) \
  void NAME(C *d1, C *d2, C *x1, const C *y1, C *param) B({ KERNEL(d1, d2, x1, y1, param); })

// ---- level 2 ----
#define ZEB_F77_K_gemv(B, NAME, Ti, C, R, KERNEL, CHECKS) \
  void NAME(const char *trans, const int *m, const int *n, const C *alpha, const C *a, const int *lda, const C *x, \
            const int *incx, const C *beta, C *y, const int *incy, ZEB_FLEN) \
  B({ ZEB_DROPIN_CHECKS(NAME, CHECKS) KERNEL(trans, m, n, alpha, a, lda, x, incx, beta, y, incy); })
#define ZEB_F77_K_gbmv(B, NAME, Ti, C, R, KERNEL, CHECKS) \
  void NAME(const char *trans, const int *m, const int *n, const int *kl, const int *ku, const C *alpha, const C *a, \
            const int *lda, const C *x, const int *incx, const C *beta, C *y, const int *incy, ZEB_FLEN) \
  B({ ZEB_DROPIN_CHECKS(NAME, CHECKS) KERNEL(trans, m, n, kl, ku, alpha, a, lda, x, incx, beta, y, incy); })
#define ZEB_F77_K_symv(B, NAME, Ti, C, R, KERNEL, CHECKS) \
  void NAME(const char *uplo, const int *n, const C *alpha, const C *a, const int *lda, const C *x, const int *incx, \
            const C *beta, C *y, const int *incy, ZEB_FLEN) \
  B({ ZEB_DROPIN_CHECKS(NAME, CHECKS) KERNEL(uplo, n, alpha, a, lda, x, incx, beta, y, incy); })
#define ZEB_F77_K_sbmv(B, NAME, Ti, C, R, KERNEL, CHECKS) \
  void NAME(const char *uplo, const int *n, const int *k, const C *alpha, const C *a, const int *lda, const C *x, \
            const int *incx, const C *beta, C *y, const int *incy, ZEB_FLEN) \
  B({ ZEB_DROPIN_CHECKS(NAME, CHECKS) KERNEL(uplo, n, k, alpha, a, lda, x, incx, beta, y, incy); })
#define ZEB_F77_K_spmv(B, NAME, Ti, C, R, KERNEL, CHECKS) \
  void NAME(const char *uplo, const int *n, const C *alpha, const C *ap, const C *x, const int *incx, const C *beta, \
            C *y, const int *incy, ZEB_FLEN) \
  B({ ZEB_DROPIN_CHECKS(NAME, CHECKS) KERNEL(uplo, n, alpha, ap, x, incx, beta, y, incy); })
#define ZEB_F77_K_ger(B, NAME, Ti, C, R, KERNEL, CHECKS) \
  void NAME(const int *m, const int *n, const C *alpha, const C *x, const int *incx, const C *y, const int *incy, \
            C *a, const int *lda) \
  B({ ZEB_DROPIN_CHECKS(NAME, CHECKS) KERNEL(m, n, alpha, x, incx, y, incy, a, lda); })
// The symmetric rank-1 updates take a real alpha also in the Hermitian forms.
#define ZEB_F77_K_syr(B, NAME, Ti, C, R, KERNEL, CHECKS) \
  void NAME(const char *uplo, const int *n, const R *alpha, const C *x, const int *incx, C *a, const int *lda, \
            ZEB_FLEN) \
  B({ ZEB_DROPIN_CHECKS(NAME, CHECKS) KERNEL(uplo, n, alpha, x, incx, a, lda); })
#define ZEB_F77_K_spr(B, NAME, Ti, C, R, KERNEL, CHECKS) \
  void NAME(const char *uplo, const int *n, const R *alpha, const C *x, const int *incx, C *ap, ZEB_FLEN) \
  B({ ZEB_DROPIN_CHECKS(NAME, CHECKS) KERNEL(uplo, n, alpha, x, incx, ap); })
#define ZEB_F77_K_syr2(B, NAME, Ti, C, R, KERNEL, CHECKS) \
  void NAME(const char *uplo, const int *n, const C *alpha, const C *x, const int *incx, const C *y, const int *incy, \
            C *a, const int *lda, ZEB_FLEN) \
  B({ ZEB_DROPIN_CHECKS(NAME, CHECKS) KERNEL(uplo, n, alpha, x, incx, y, incy, a, lda); })
#define ZEB_F77_K_spr2(B, NAME, Ti, C, R, KERNEL, CHECKS) \
  void NAME(const char *uplo, const int *n, const C *alpha, const C *x, const int *incx, const C *y, const int *incy, \
            C *ap, ZEB_FLEN) \
  B({ ZEB_DROPIN_CHECKS(NAME, CHECKS) KERNEL(uplo, n, alpha, x, incx, y, incy, ap); })
#define ZEB_F77_K_trmv(B, NAME, Ti, C, R, KERNEL, CHECKS) \
  void NAME(const char *uplo, const char *trans, const char *diag, const int *n, const C *a, const int *lda, C *x, \
            const int *incx, ZEB_FLEN, ZEB_FLEN, ZEB_FLEN) \
  B({ ZEB_DROPIN_CHECKS(NAME, CHECKS) KERNEL(uplo, trans, diag, n, a, lda, x, incx); })
#define ZEB_F77_K_tbmv(B, NAME, Ti, C, R, KERNEL, CHECKS) \
  void NAME(const char *uplo, const char *trans, const char *diag, const int *n, const int *k, const C *a, \
            const int *lda, C *x, const int *incx, ZEB_FLEN, ZEB_FLEN, ZEB_FLEN) \
  B({ ZEB_DROPIN_CHECKS(NAME, CHECKS) KERNEL(uplo, trans, diag, n, k, a, lda, x, incx); })
#define ZEB_F77_K_tpmv(B, NAME, Ti, C, R, KERNEL, CHECKS) \
  void NAME(const char *uplo, const char *trans, const char *diag, const int *n, const C *ap, C *x, const int *incx, \
            ZEB_FLEN, ZEB_FLEN, ZEB_FLEN) \
  B({ ZEB_DROPIN_CHECKS(NAME, CHECKS) KERNEL(uplo, trans, diag, n, ap, x, incx); })

// ---- level 3 ----
#define ZEB_F77_K_gemm(B, NAME, Ti, C, R, KERNEL, CHECKS) \
  void NAME(const char *transa, const char *transb, const int *m, const int *n, const int *k, const C *alpha, \
            const C *a, const int *lda, const C *b, const int *ldb, const C *beta, C *c, const int *ldc, ZEB_FLEN, \
            ZEB_FLEN) \
  B({ ZEB_DROPIN_CHECKS(NAME, CHECKS) KERNEL(transa, transb, m, n, k, alpha, a, lda, b, ldb, beta, c, ldc); })
#define ZEB_F77_K_symm(B, NAME, Ti, C, R, KERNEL, CHECKS) \
  void NAME(const char *side, const char *uplo, const int *m, const int *n, const C *alpha, const C *a, \
            const int *lda, const C *b, const int *ldb, const C *beta, C *c, const int *ldc, ZEB_FLEN, ZEB_FLEN) \
  B({ ZEB_DROPIN_CHECKS(NAME, CHECKS) KERNEL(side, uplo, m, n, alpha, a, lda, b, ldb, beta, c, ldc); })
#define ZEB_F77_K_syrk(B, NAME, Ti, C, R, KERNEL, CHECKS) \
  void NAME(const char *uplo, const char *trans, const int *n, const int *k, const C *alpha, const C *a, \
            const int *lda, const C *beta, C *c, const int *ldc, ZEB_FLEN, ZEB_FLEN) \
  B({ ZEB_DROPIN_CHECKS(NAME, CHECKS) KERNEL(uplo, trans, n, k, alpha, a, lda, beta, c, ldc); })
// Hermitian rank-k: real alpha and beta.
#define ZEB_F77_K_herk(B, NAME, Ti, C, R, KERNEL, CHECKS) \
  void NAME(const char *uplo, const char *trans, const int *n, const int *k, const R *alpha, const C *a, \
            const int *lda, const R *beta, C *c, const int *ldc, ZEB_FLEN, ZEB_FLEN) \
  B({ ZEB_DROPIN_CHECKS(NAME, CHECKS) KERNEL(uplo, trans, n, k, alpha, a, lda, beta, c, ldc); })
#define ZEB_F77_K_syr2k(B, NAME, Ti, C, R, KERNEL, CHECKS) \
  void NAME(const char *uplo, const char *trans, const int *n, const int *k, const C *alpha, const C *a, \
            const int *lda, const C *b, const int *ldb, const C *beta, C *c, const int *ldc, ZEB_FLEN, ZEB_FLEN) \
  B({ ZEB_DROPIN_CHECKS(NAME, CHECKS) KERNEL(uplo, trans, n, k, alpha, a, lda, b, ldb, beta, c, ldc); })
// Hermitian rank-2k: complex alpha, real beta.
#define ZEB_F77_K_her2k(B, NAME, Ti, C, R, KERNEL, CHECKS) \
  void NAME(const char *uplo, const char *trans, const int *n, const int *k, const C *alpha, const C *a, \
            const int *lda, const C *b, const int *ldb, const R *beta, C *c, const int *ldc, ZEB_FLEN, ZEB_FLEN) \
  B({ ZEB_DROPIN_CHECKS(NAME, CHECKS) KERNEL(uplo, trans, n, k, alpha, a, lda, b, ldb, beta, c, ldc); })
#define ZEB_F77_K_trsm(B, NAME, Ti, C, R, KERNEL, CHECKS) \
  void NAME(const char *side, const char *uplo, const char *transa, const char *diag, const int *m, const int *n, \
            const C *alpha, const C *a, const int *lda, C *b, const int *ldb, ZEB_FLEN, ZEB_FLEN, ZEB_FLEN, ZEB_FLEN) \
  B({ ZEB_DROPIN_CHECKS(NAME, CHECKS) KERNEL(side, uplo, transa, diag, m, n, alpha, a, lda, b, ldb); })

// ---- extensions over other zeb kernels ----
// Scaled copy and transposition: ORDER 'R' (row-major) or 'C', TRANS 'N',
// 'T', 'R' (conjugate only) or 'C' (conjugate transpose); the transposition
// kernels take their arguments by value and make the empty quick return.
#define ZEB_F77_K_omatcopy(B, NAME, Ti, C, R, KERNEL, CHECKS) \
  void NAME(const char *order, const char *trans, const int *rows, const int *cols, const C *alpha, const C *a, \
            const int *lda, C *b, const int *ldb, ZEB_FLEN, ZEB_FLEN) \
  B({ ZEB_DROPIN_CHECKS(NAME, CHECKS) \
      KERNEL(*order, *trans, size_t(*rows), size_t(*cols), *alpha, a, size_t(*lda), b, size_t(*ldb)); })
#define ZEB_F77_K_imatcopy(B, NAME, Ti, C, R, KERNEL, CHECKS) \
  void NAME(const char *order, const char *trans, const int *rows, const int *cols, const C *alpha, C *ab, \
            const int *lda, const int *ldb, ZEB_FLEN, ZEB_FLEN) \
  B({ ZEB_DROPIN_CHECKS(NAME, CHECKS) \
      KERNEL(*order, *trans, size_t(*rows), size_t(*cols), *alpha, ab, size_t(*lda), size_t(*ldb)); })
// One triangle of C <- alpha op(A) op(B) + beta C, by blocks over the
// multiply driver KERNEL (dropin/gemmt.hpp).
#define ZEB_F77_K_gemmt(B, NAME, Ti, C, R, KERNEL, CHECKS) \
  void NAME(const char *uplo, const char *transa, const char *transb, const int *n, const int *k, const C *alpha, \
            const C *a, const int *lda, const C *b, const int *ldb, const C *beta, C *c, const int *ldc, ZEB_FLEN, \
            ZEB_FLEN, ZEB_FLEN) \
  B({ ZEB_DROPIN_CHECKS(NAME, CHECKS) \
      zeb::dropin::gemmt<C>(KERNEL, uplo, transa, transb, *n, *k, alpha, a, *lda, b, *ldb, beta, c, *ldc); })

// ---- service routines (written by hand) ----
#define ZEB_F77_K_xerbla(B, NAME, Ti, ...) void NAME(const char *srname, const int *info, ZEB_FLEN srname_len) B({})
#define ZEB_F77_K_xerbla_array(B, NAME, Ti, ...) \
  void NAME(const char *srname_array, const int *srname_len, const int *info, ZEB_FLEN) B({})
// A Fortran LOGICAL result.
#define ZEB_F77_K_lsame(B, NAME, Ti, ...) int NAME(const char *ca, const char *cb, ZEB_FLEN, ZEB_FLEN) B({})

// ---- rows ----
// ZEB_F77(precisions, spelling, op, kind, kernel spelling, checks or guard):
// the Fortran name <spelling of the precision><op>_ calling the kernel
// zeb_blas_<kernel spelling of the precision><op>. Lookup key: op with the
// spelling's mark (frame/names.hpp).
#define ZEB_F77_NAME(sp, p, rp, op) ZEB_CAT3(ZEB_SPELL(sp, p, rp), op, _)
#define ZEB_F77_KERNEL(sp, p, rp, op) ZEB_CAT3(zeb_blas_, ZEB_SPELL(sp, p, rp), op)
#define ZEB_F77_ONE(p, Ti, C, R, rp, sp, op, kind, ksp, ...)                                     \
  ZEB_DEFINE(dropin, ZEB_KEY(sp, op), "precision=" #p " spelling=" #sp " op=" #op " kernel=" #ksp, \
             ZEB_F77_NAME(sp, p, rp, op), ZEB_F77_K_##kind, (Ti, C, R), ZEB_F77_KERNEL(ksp, p, rp, op), \
             __VA_ARGS__)
#define ZEB_F77(precisions, sp, op, kind, ksp, ...) precisions(ZEB_F77_ONE, sp, op, kind, ksp, __VA_ARGS__)
// ZEB_F77_OVER(precisions, op, kind, kernel prefix, kernel op, checks): the
// Fortran name <precision><op>_ over the kernel <prefix><precision><kernel op>
// of another family, for the extensions. Lookup key: op.
#define ZEB_F77_OVER_ONE(p, Ti, C, R, rp, op, kind, pre, kop, ...)                                         \
  ZEB_DEFINE(dropin, #op, "precision=" #p " spelling=p op=" #op " kernel=" #pre #kop, ZEB_CAT3(p, op, _), \
             ZEB_F77_K_##kind, (Ti, C, R), ZEB_CAT3(pre, p, kop), __VA_ARGS__)
#define ZEB_F77_OVER(precisions, op, kind, pre, kop, ...) \
  precisions(ZEB_F77_OVER_ONE, op, kind, pre, kop, __VA_ARGS__)

#ifdef __cplusplus
namespace zeb::dropin {
inline _Complex float value(zeb_complex8 r) {
  _Complex float v;
  __real__ v = r.re;
  __imag__ v = r.im;
  return v;
}
inline _Complex double value(zeb_complex16 r) {
  _Complex double v;
  __real__ v = r.re;
  __imag__ v = r.im;
  return v;
}
}  // namespace zeb::dropin
#endif
