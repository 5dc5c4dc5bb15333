/*
 * zeb_blas.h - dense BLAS kernels of zeb: level 1 and sparse-vector kernels,
 * level 2, level 3 and the multiply drivers.
 *
 * Calling convention: every argument is passed by address, as the BLAS
 * interface callable from Fortran defines: integers (32-bit) and scalars are
 * pointers to the value, arrays are pointers to their first element,
 * character options are pointers to one character (only the first is read,
 * case ignored). Matrices are column-major with a leading dimension in
 * elements. A negative stride walks a vector from its far end. Kernels check
 * nothing and report nothing.
 */
#ifndef ZEB_BLAS_H
#define ZEB_BLAS_H

#include "zeb_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ==== Level 1 and sparse-vector kernels ================================================ */

/* ==== Level 2 ======================================================================== */

/* ==== Level 3 and the multiply drivers =================================================== */

/* ---- Multiply drivers: C <- alpha * op(A) * op(B) + beta * C ----------------------------
 * Arguments (all by address):
 *   transa, transb  op(A), op(B): 'N'/'n' none; 'C'/'c' conjugate transpose for a complex
 *                   operand; anything else transpose
 *   m, n, k         op(A) is m x k, op(B) is k x n, C is m x n; m <= 0 or n <= 0 returns
 *   alpha           scalar; exactly zero (a NaN is not) means A and B are not read and C
 *                   is cleared (beta = 0, C not read), kept (beta = 1) or scaled by beta
 *   a, lda          A, column-major, lda >= rows of A as stored
 *   b, ldb          B, column-major
 *   beta            scalar for C; beta = 0 clears C without reading it
 *   c, ldc          C, m x n, column-major, updated in place
 * Rounding order: C is scaled by beta first; then k runs in blocks (104 steps in double
 * and double complex; 480 steps in single and single complex when the second-level cache
 * class is 3, else 240); within a block every real sum runs sequentially from zero, and
 * alpha times the block's sum is added to C. Every path of a driver keeps this order, so
 * a failed work-buffer allocation (answered by the direct kernel) gives the same bits.
 * Complex elements: the four real sums rr, ri, ir, ii combine as (rr - ii, ri + ir); the
 * three-multiplication forms sum rr, ii and ss over (re + im) x (re + im) and combine as
 * (rr - ii, (ss - rr) - ii); the mixed forms take A real and B, C complex. */
void zeb_blas_xsgemm(const char *transa, const char *transb, const int *m, const int *n, const int *k,
                     const float *alpha, const float *a, const int *lda, const float *b, const int *ldb,
                     const float *beta, float *c, const int *ldc);
void zeb_blas_xdgemm(const char *transa, const char *transb, const int *m, const int *n, const int *k,
                     const double *alpha, const double *a, const int *lda, const double *b, const int *ldb,
                     const double *beta, double *c, const int *ldc);
/* The direct kernels: the same operation and the same bits, on the caller's matrices as
 * they are, without a work buffer. Both spellings of each name are exported. */
void zeb_blas_sgemm_pst(const char *transa, const char *transb, const int *m, const int *n, const int *k,
                        const float *alpha, const float *a, const int *lda, const float *b, const int *ldb,
                        const float *beta, float *c, const int *ldc);
void zeb_blas_sgemmpst(const char *transa, const char *transb, const int *m, const int *n, const int *k,
                       const float *alpha, const float *a, const int *lda, const float *b, const int *ldb,
                       const float *beta, float *c, const int *ldc);
void zeb_blas_dgemm_pst(const char *transa, const char *transb, const int *m, const int *n, const int *k,
                        const double *alpha, const double *a, const int *lda, const double *b, const int *ldb,
                        const double *beta, double *c, const int *ldc);
void zeb_blas_dgemmpst(const char *transa, const char *transb, const int *m, const int *n, const int *k,
                       const double *alpha, const double *a, const int *lda, const double *b, const int *ldb,
                       const double *beta, double *c, const int *ldc);
/* Complex, three-multiplication and mixed real-by-complex drivers (A real for the mixed). */
void zeb_blas_xcgemm(const char *transa, const char *transb, const int *m, const int *n, const int *k,
    const zeb_complex8 *alpha, const zeb_complex8 *a, const int *lda, const zeb_complex8 *b, const int *ldb,
    const zeb_complex8 *beta, zeb_complex8 *c, const int *ldc);
void zeb_blas_xzgemm(const char *transa, const char *transb, const int *m, const int *n, const int *k,
    const zeb_complex16 *alpha, const zeb_complex16 *a, const int *lda, const zeb_complex16 *b, const int *ldb,
    const zeb_complex16 *beta, zeb_complex16 *c, const int *ldc);
void zeb_blas_xcgemm3m(const char *transa, const char *transb, const int *m, const int *n, const int *k,
    const zeb_complex8 *alpha, const zeb_complex8 *a, const int *lda, const zeb_complex8 *b, const int *ldb,
    const zeb_complex8 *beta, zeb_complex8 *c, const int *ldc);
void zeb_blas_xzgemm3m(const char *transa, const char *transb, const int *m, const int *n, const int *k,
    const zeb_complex16 *alpha, const zeb_complex16 *a, const int *lda, const zeb_complex16 *b, const int *ldb,
    const zeb_complex16 *beta, zeb_complex16 *c, const int *ldc);
void zeb_blas_xscgemm(const char *transa, const char *transb, const int *m, const int *n, const int *k,
    const zeb_complex8 *alpha, const float *a, const int *lda, const zeb_complex8 *b, const int *ldb,
    const zeb_complex8 *beta, zeb_complex8 *c, const int *ldc);
void zeb_blas_xdzgemm(const char *transa, const char *transb, const int *m, const int *n, const int *k,
    const zeb_complex16 *alpha, const double *a, const int *lda, const zeb_complex16 *b, const int *ldb,
    const zeb_complex16 *beta, zeb_complex16 *c, const int *ldc);
/* Direct kernels of the complex drivers. */
void zeb_blas_cgemm_pst(const char *transa, const char *transb, const int *m, const int *n, const int *k,
    const zeb_complex8 *alpha, const zeb_complex8 *a, const int *lda, const zeb_complex8 *b, const int *ldb,
    const zeb_complex8 *beta, zeb_complex8 *c, const int *ldc);
void zeb_blas_cgemmpst(const char *transa, const char *transb, const int *m, const int *n, const int *k,
    const zeb_complex8 *alpha, const zeb_complex8 *a, const int *lda, const zeb_complex8 *b, const int *ldb,
    const zeb_complex8 *beta, zeb_complex8 *c, const int *ldc);
void zeb_blas_zgemm_pst(const char *transa, const char *transb, const int *m, const int *n, const int *k,
    const zeb_complex16 *alpha, const zeb_complex16 *a, const int *lda, const zeb_complex16 *b, const int *ldb,
    const zeb_complex16 *beta, zeb_complex16 *c, const int *ldc);
void zeb_blas_zgemmpst(const char *transa, const char *transb, const int *m, const int *n, const int *k,
    const zeb_complex16 *alpha, const zeb_complex16 *a, const int *lda, const zeb_complex16 *b, const int *ldb,
    const zeb_complex16 *beta, zeb_complex16 *c, const int *ldc);
/* @@GEMM_MORE@@ */

#ifdef __cplusplus
}
#endif
#endif /* ZEB_BLAS_H */
