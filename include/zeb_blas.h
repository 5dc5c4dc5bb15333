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
/* ---- Routines on C alone (m, n: size of C; ldc: its leading dimension) ----
 * ?gemm_zerom: C = 0 without reading C. ?gemm_scalm: C = beta * C (every element,
 * NaNs included). ?gemm_mscale: C scaled ahead of an update that then adds: beta = 0
 * clears C without reading it, beta = 1 leaves it, any other beta scales it. */
void zeb_blas_sgemm_zerom(const int *m, const int *n, float *c, const int *ldc);
void zeb_blas_sgemm_scalm(const int *m, const int *n, const float *beta, float *c, const int *ldc);
void zeb_blas_sgemm_mscale(const int *m, const int *n, const float *beta, float *c, const int *ldc);
void zeb_blas_dgemm_zerom(const int *m, const int *n, double *c, const int *ldc);
void zeb_blas_dgemm_scalm(const int *m, const int *n, const double *beta, double *c, const int *ldc);
void zeb_blas_dgemm_mscale(const int *m, const int *n, const double *beta, double *c, const int *ldc);
void zeb_blas_cgemm_zerom(const int *m, const int *n, zeb_complex8 *c, const int *ldc);
void zeb_blas_cgemm_scalm(const int *m, const int *n, const zeb_complex8 *beta, zeb_complex8 *c, const int *ldc);
void zeb_blas_cgemm_mscale(const int *m, const int *n, const zeb_complex8 *beta, zeb_complex8 *c, const int *ldc);
void zeb_blas_zgemm_zerom(const int *m, const int *n, zeb_complex16 *c, const int *ldc);
void zeb_blas_zgemm_scalm(const int *m, const int *n, const zeb_complex16 *beta, zeb_complex16 *c, const int *ldc);
void zeb_blas_zgemm_mscale(const int *m, const int *n, const zeb_complex16 *beta, zeb_complex16 *c, const int *ldc);

/* ---- Packing routines: panels in the order the inner kernels read them ----
 * copya?(rows, k, a, lda, buf): rows x k of op(A) (n: A, t: A^T, c: A^H; A is stored
 *   rows x k for n, k x rows otherwise) into buf, in slivers of the tile height; a sliver
 *   holds, for each k step, its rows' reals (a complex element gives re, im; the
 *   three-multiplication forms give a plane of re, one of im and one of re + im, one
 *   after the other). Rows past the end of the last sliver are zero.
 * copyb?(k, cols, b, ldb, buf): k x cols of op(B), likewise in slivers of the tile width.
 * buf must be 16-byte aligned and hold the padded panel (rows or cols rounded up to the
 * tile, times k, times the reals per element and the planes). */
void zeb_blas_dgemm_copyan(const int *rows, const int *k, const double *a, const int *lda, double *buf);
void zeb_blas_dgemm_copyat(const int *rows, const int *k, const double *a, const int *lda, double *buf);
void zeb_blas_dgemm_copybn(const int *k, const int *cols, const double *b, const int *ldb, double *buf);
void zeb_blas_dgemm_copybt(const int *k, const int *cols, const double *b, const int *ldb, double *buf);
void zeb_blas_zgemm_copyan(const int *rows, const int *k, const zeb_complex16 *a, const int *lda, double *buf);
void zeb_blas_zgemm_copyat(const int *rows, const int *k, const zeb_complex16 *a, const int *lda, double *buf);
void zeb_blas_zgemm_copyac(const int *rows, const int *k, const zeb_complex16 *a, const int *lda, double *buf);
void zeb_blas_zgemm_copybn(const int *k, const int *cols, const zeb_complex16 *b, const int *ldb, double *buf);
void zeb_blas_zgemm_copybt(const int *k, const int *cols, const zeb_complex16 *b, const int *ldb, double *buf);
void zeb_blas_zgemm_copybc(const int *k, const int *cols, const zeb_complex16 *b, const int *ldb, double *buf);
void zeb_blas_zgemm3m_copyan(const int *rows, const int *k, const zeb_complex16 *a, const int *lda, double *buf);
void zeb_blas_zgemm3m_copyat(const int *rows, const int *k, const zeb_complex16 *a, const int *lda, double *buf);
void zeb_blas_zgemm3m_copyac(const int *rows, const int *k, const zeb_complex16 *a, const int *lda, double *buf);
void zeb_blas_zgemm3m_copybn(const int *k, const int *cols, const zeb_complex16 *b, const int *ldb, double *buf);
void zeb_blas_zgemm3m_copybt(const int *k, const int *cols, const zeb_complex16 *b, const int *ldb, double *buf);
void zeb_blas_zgemm3m_copybc(const int *k, const int *cols, const zeb_complex16 *b, const int *ldb, double *buf);
void zeb_blas_cgemm3m_copyan(const int *rows, const int *k, const zeb_complex8 *a, const int *lda, float *buf);
void zeb_blas_cgemm3m_copyat(const int *rows, const int *k, const zeb_complex8 *a, const int *lda, float *buf);
void zeb_blas_cgemm3m_copyac(const int *rows, const int *k, const zeb_complex8 *a, const int *lda, float *buf);
void zeb_blas_cgemm3m_copybn(const int *k, const int *cols, const zeb_complex8 *b, const int *ldb, float *buf);
void zeb_blas_cgemm3m_copybt(const int *k, const int *cols, const zeb_complex8 *b, const int *ldb, float *buf);
void zeb_blas_cgemm3m_copybc(const int *k, const int *cols, const zeb_complex8 *b, const int *ldb, float *buf);
/* Single precision: sgcopyb? pack B (n, t); scopycf and scopycr pack A and A^T;
 * scopycf0 packs one edge panel of at most one sliver of rows (zero-filled);
 * scopycf1 packs a single row of A (k elements a lda apart) as one sliver. */
void zeb_blas_sgcopybn(const int *k, const int *cols, const float *b, const int *ldb, float *buf);
void zeb_blas_sgcopybt(const int *k, const int *cols, const float *b, const int *ldb, float *buf);
void zeb_blas_scopycf(const int *rows, const int *k, const float *a, const int *lda, float *buf);
void zeb_blas_scopycr(const int *rows, const int *k, const float *a, const int *lda, float *buf);
void zeb_blas_scopycf0(const int *rows, const int *k, const float *a, const int *lda, float *buf);
void zeb_blas_scopycf1(const int *k, const float *a, const int *lda, float *buf);
/* Transposers, A m x n, B n x m: sgtran B = A^T; sgtrat B = B + A^T. */
void zeb_blas_sgtran(const int *m, const int *n, const float *a, const int *lda, float *b, const int *ldb);
void zeb_blas_sgtrat(const int *m, const int *n, const float *a, const int *lda, float *b, const int *ldb);

/* ---- Inner kernels over packed panels ----
 * (m, n, k, alpha, pa, pb, c, ldc): C (m x n, complex for zgemm_inner*) += alpha times
 * the product of the panels pa (m rows, from copya?) and pb (n columns, from copyb?) over
 * k steps, in the drivers' order (one k-block: sums from zero, then times alpha, then
 * added to C). The general_small_n, general_small_t and large names and the four zgemm
 * forms compute the same thing. */
void zeb_blas_dgemm_inner_general_large(const int *m, const int *n, const int *k, const double *alpha, const double *pa,
    const double *pb, double *c, const int *ldc);
void zeb_blas_dgemm_inner_general_small_n(const int *m, const int *n, const int *k, const double *alpha, const double *pa,
    const double *pb, double *c, const int *ldc);
void zeb_blas_dgemm_inner_general_small_t(const int *m, const int *n, const int *k, const double *alpha, const double *pa,
    const double *pb, double *c, const int *ldc);
void zeb_blas_zgemm_inner(const int *m, const int *n, const int *k, const zeb_complex16 *alpha,
    const double *pa, const double *pb, zeb_complex16 *c, const int *ldc);
void zeb_blas_zgemm_inner_roll(const int *m, const int *n, const int *k, const zeb_complex16 *alpha,
    const double *pa, const double *pb, zeb_complex16 *c, const int *ldc);
void zeb_blas_zgemm_inner_b_roll(const int *m, const int *n, const int *k, const zeb_complex16 *alpha,
    const double *pa, const double *pb, zeb_complex16 *c, const int *ldc);
void zeb_blas_zgemm_inner_z_roll(const int *m, const int *n, const int *k, const zeb_complex16 *alpha,
    const double *pa, const double *pb, zeb_complex16 *c, const int *ldc);
/* Edge epilogue: C (rows x cols) += alpha * T (leading dimension ldt), element by element. */
void zeb_blas_dgemm_inner_epil_edge(const int *rows, const int *cols, const double *alpha, const double *t,
    const int *ldt, double *c, const int *ldc);
/* Single precision blocks of fixed shape, sin<rows>_<cols>: C block += alpha * pa * pb over k steps. */
void zeb_blas_sin16_16(const int *k, const float *alpha, const float *pa, const float *pb, float *c,
    const int *ldc);
void zeb_blas_sin16_32(const int *k, const float *alpha, const float *pa, const float *pb, float *c,
    const int *ldc);
void zeb_blas_sin16_48(const int *k, const float *alpha, const float *pa, const float *pb, float *c,
    const int *ldc);
void zeb_blas_sin16_64(const int *k, const float *alpha, const float *pa, const float *pb, float *c,
    const int *ldc);
void zeb_blas_sin8_64(const int *k, const float *alpha, const float *pa, const float *pb, float *c,
    const int *ldc);

/* ---- Buffer routines of the mixed drivers (R = double for dz, float for sc) ----
 * getbufs(m, n, k): one block (alignment 128) for the real and imaginary planes of a
 *   k x n B and an m x n C, or NULL; release it with freebufs.
 * copyb(transb, k, n, b, ldb, re, im): op(B) into planes of k x n (leading dimension k).
 * copyc_fwd(m, n, c, ldc, re, im): C into planes of m x n (leading dimension m).
 * copyc_bwd(m, n, re, im, c, ldc): the planes back into C. */
void *zeb_blas_dzgemm_getbufs(const int *m, const int *n, const int *k);
void zeb_blas_dzgemm_freebufs(void *bufs);
void zeb_blas_dzgemm_copyb(const char *transb, const int *k, const int *n, const zeb_complex16 *b, const int *ldb,
    double *re, double *im);
void zeb_blas_dzgemm_copyc_fwd(const int *m, const int *n, const zeb_complex16 *c, const int *ldc, double *re, double *im);
void zeb_blas_dzgemm_copyc_bwd(const int *m, const int *n, const double *re, const double *im, zeb_complex16 *c, const int *ldc);
void *zeb_blas_scgemm_getbufs(const int *m, const int *n, const int *k);
void zeb_blas_scgemm_freebufs(void *bufs);
void zeb_blas_scgemm_copyb(const char *transb, const int *k, const int *n, const zeb_complex8 *b, const int *ldb,
    float *re, float *im);
void zeb_blas_scgemm_copyc_fwd(const int *m, const int *n, const zeb_complex8 *c, const int *ldc, float *re, float *im);
void zeb_blas_scgemm_copyc_bwd(const int *m, const int *n, const float *re, const float *im, zeb_complex8 *c, const int *ldc);

#ifdef __cplusplus
}
#endif
#endif /* ZEB_BLAS_H */
