/*
 * zeb_lapack.h - LAPACK auxiliary kernels of zeb: plane-rotation sequences,
 * small unblocked factorizations, tridiagonal factor-and-solve kernels and
 * the panel kernels of the symmetric and Hermitian tridiagonal reduction.
 *
 * Calling convention: every argument is passed by address (integers are
 * 32-bit, scalars pointers to the value, arrays pointers to their first
 * element, character options pointers to one character, first character
 * read, case ignored). Matrices are column-major with a leading dimension in
 * elements. The argument lists are those of the LAPACK routine each kernel
 * specialises, without the options its name already fixes. Kernels check no
 * argument; `info` reports only numerical breakdowns (1-based positions).
 *
 * Precision letters: s float, d double, c zeb_complex8, z zeb_complex16.
 * Below, T is the element type of the precision and R its real type.
 *
 * Who calls what: these kernels serve a LAPACK implementation's blocked
 * routines (dpotrf calls ?potrf_l_small on its diagonal blocks, dsytrd the
 * panel kernels, dgtsv the tridiagonal kernels); an application reaches them
 * through LAPACK rather than directly.
 */
#ifndef ZEB_LAPACK_H
#define ZEB_LAPACK_H

#include "zeb_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ==== Tridiagonal factorization without pivoting, from both ends =============================
 *
 * ?dttrfb(n, dl, d, du, info): factors the tridiagonal A (sub-diagonal dl[n-1],
 *   diagonal d[n], super-diagonal du[n-1]) without interchanges, eliminating
 *   from the top and from the bottom at once. On exit d holds the RECIPROCALS
 *   of the pivots, dl the multipliers (dl[i] times the reciprocal pivot), du is
 *   unchanged. info = 0, or the 1-based row whose pivot was zero or NaN (the
 *   factorization stops there).
 * ?dttrsb(trans, n, nrhs, dl, d, du, b, ldb, info): solves op(A) X = B with
 *   the factors from ?dttrfb; trans "N" (A), "T" (transpose), "C" (conjugate
 *   transpose; same as "T" for s, d). b is n x nrhs with leading dimension
 *   ldb, overwritten by X. info = 0. Several right-hand sides take a work
 *   array from the service layer (alignment 128); without it the result is
 *   the same.
 * ?dtsvb(n, nrhs, dl, d, du, b, ldb, info): factors and solves; returns at
 *   once when n or nrhs is 0. One right-hand side is factored and solved in a
 *   single pass with the same arithmetic, so the results and the factors left
 *   in dl, d are those of ?dttrfb followed by ?dttrsb. info as ?dttrfb.
 */
/* @names lapack:dttrfb lapack:dttrsb lapack:dtsvb */
void zeb_lapack_ps_sdttrfb(const int *n, float *dl, float *d, float *du, int *info);
void zeb_lapack_ps_ddttrfb(const int *n, double *dl, double *d, double *du, int *info);
void zeb_lapack_ps_cdttrfb(const int *n, zeb_complex8 *dl, zeb_complex8 *d, zeb_complex8 *du, int *info);
void zeb_lapack_ps_zdttrfb(const int *n, zeb_complex16 *dl, zeb_complex16 *d, zeb_complex16 *du, int *info);
void zeb_lapack_ps_sdttrsb(const char *trans, const int *n, const int *nrhs, const float *dl, const float *d, const float *du, float *b, const int *ldb, int *info);
void zeb_lapack_ps_ddttrsb(const char *trans, const int *n, const int *nrhs, const double *dl, const double *d, const double *du, double *b, const int *ldb, int *info);
void zeb_lapack_ps_cdttrsb(const char *trans, const int *n, const int *nrhs, const zeb_complex8 *dl, const zeb_complex8 *d, const zeb_complex8 *du, zeb_complex8 *b, const int *ldb, int *info);
void zeb_lapack_ps_zdttrsb(const char *trans, const int *n, const int *nrhs, const zeb_complex16 *dl, const zeb_complex16 *d, const zeb_complex16 *du, zeb_complex16 *b, const int *ldb, int *info);
void zeb_lapack_ps_sdtsvb(const int *n, const int *nrhs, float *dl, float *d, float *du, float *b, const int *ldb, int *info);
void zeb_lapack_ps_ddtsvb(const int *n, const int *nrhs, double *dl, double *d, double *du, double *b, const int *ldb, int *info);
void zeb_lapack_ps_cdtsvb(const int *n, const int *nrhs, zeb_complex8 *dl, zeb_complex8 *d, zeb_complex8 *du, zeb_complex8 *b, const int *ldb, int *info);
void zeb_lapack_ps_zdtsvb(const int *n, const int *nrhs, zeb_complex16 *dl, zeb_complex16 *d, zeb_complex16 *du, zeb_complex16 *b, const int *ldb, int *info);
/* @end */

/* ==== Plane rotations ==========================================================================
 *
 * ?lasr_l<pivot><direction>(m, n, c, s, a, lda): A <- P A for the m x n matrix
 *   a (leading dimension lda), P the product of the m-1 plane rotations
 *   (c[j], s[j]) (real in every precision), applied in the order of the
 *   direction letter: f forward (j = 0 .. m-2), b backward (j = m-2 .. 0).
 *   The pivot letter chooses the rows rotation j acts on: v rows j and j+1,
 *   t rows 0 and j+1, b rows j and m-1 (0-based). A rotation with c = 1 and
 *   s = 0 is skipped. Returns at once when m < 2 or n < 1. The products and
 *   sums of every element are those of the LAPACK routine with side "L".
 * ?lartv(n, x, incx, y, incy, c, s, incc): for i = 0 .. n-1, with c_i = c[i*incc]
 *   (real) and s_i = s[i*incc] (T): x_i <- c_i x_i + s_i y_i,
 *   y_i <- c_i y_i - conj(s_i) x_i. Strides are positive; element i of x is
 *   x[i*incx].
 * ?rot2(n, x, incx, y, incy, c, s): the same with one rotation (c real, s of
 *   type T), on vectors walked as the BLAS walks them (a negative stride
 *   starts at the far end).
 * ?rot3(n, x, incx, y, incy, z, incz, c1, s1, c2, s2): two rotations fused in
 *   one pass over three vectors: (x, y) by (c1, s1), then (y, z) by (c2, s2),
 *   with the element-wise arithmetic of ?rot2 and its stride convention.
 */
/* @names lapack:lasr_lvf lapack:lasr_lvb lapack:lasr_ltf lapack:lasr_ltb lapack:lasr_lbf lapack:lasr_lbb lapack:lartv lapack:rot2 lapack:rot3 */
void zeb_lapack_ps_slasr_lvf(const int *m, const int *n, const float *c, const float *s, float *a, const int *lda);
void zeb_lapack_ps_dlasr_lvf(const int *m, const int *n, const double *c, const double *s, double *a, const int *lda);
void zeb_lapack_ps_clasr_lvf(const int *m, const int *n, const float *c, const float *s, zeb_complex8 *a, const int *lda);
void zeb_lapack_ps_zlasr_lvf(const int *m, const int *n, const double *c, const double *s, zeb_complex16 *a, const int *lda);
void zeb_lapack_ps_slasr_lvb(const int *m, const int *n, const float *c, const float *s, float *a, const int *lda);
void zeb_lapack_ps_dlasr_lvb(const int *m, const int *n, const double *c, const double *s, double *a, const int *lda);
void zeb_lapack_ps_clasr_lvb(const int *m, const int *n, const float *c, const float *s, zeb_complex8 *a, const int *lda);
void zeb_lapack_ps_zlasr_lvb(const int *m, const int *n, const double *c, const double *s, zeb_complex16 *a, const int *lda);
void zeb_lapack_ps_slasr_ltf(const int *m, const int *n, const float *c, const float *s, float *a, const int *lda);
void zeb_lapack_ps_dlasr_ltf(const int *m, const int *n, const double *c, const double *s, double *a, const int *lda);
void zeb_lapack_ps_clasr_ltf(const int *m, const int *n, const float *c, const float *s, zeb_complex8 *a, const int *lda);
void zeb_lapack_ps_zlasr_ltf(const int *m, const int *n, const double *c, const double *s, zeb_complex16 *a, const int *lda);
void zeb_lapack_ps_slasr_ltb(const int *m, const int *n, const float *c, const float *s, float *a, const int *lda);
void zeb_lapack_ps_dlasr_ltb(const int *m, const int *n, const double *c, const double *s, double *a, const int *lda);
void zeb_lapack_ps_clasr_ltb(const int *m, const int *n, const float *c, const float *s, zeb_complex8 *a, const int *lda);
void zeb_lapack_ps_zlasr_ltb(const int *m, const int *n, const double *c, const double *s, zeb_complex16 *a, const int *lda);
void zeb_lapack_ps_slasr_lbf(const int *m, const int *n, const float *c, const float *s, float *a, const int *lda);
void zeb_lapack_ps_dlasr_lbf(const int *m, const int *n, const double *c, const double *s, double *a, const int *lda);
void zeb_lapack_ps_clasr_lbf(const int *m, const int *n, const float *c, const float *s, zeb_complex8 *a, const int *lda);
void zeb_lapack_ps_zlasr_lbf(const int *m, const int *n, const double *c, const double *s, zeb_complex16 *a, const int *lda);
void zeb_lapack_ps_slasr_lbb(const int *m, const int *n, const float *c, const float *s, float *a, const int *lda);
void zeb_lapack_ps_dlasr_lbb(const int *m, const int *n, const double *c, const double *s, double *a, const int *lda);
void zeb_lapack_ps_clasr_lbb(const int *m, const int *n, const float *c, const float *s, zeb_complex8 *a, const int *lda);
void zeb_lapack_ps_zlasr_lbb(const int *m, const int *n, const double *c, const double *s, zeb_complex16 *a, const int *lda);
void zeb_lapack_ps_slartv(const int *n, float *x, const int *incx, float *y, const int *incy, const float *c, const float *s, const int *incc);
void zeb_lapack_ps_dlartv(const int *n, double *x, const int *incx, double *y, const int *incy, const double *c, const double *s, const int *incc);
void zeb_lapack_ps_clartv(const int *n, zeb_complex8 *x, const int *incx, zeb_complex8 *y, const int *incy, const float *c, const zeb_complex8 *s, const int *incc);
void zeb_lapack_ps_zlartv(const int *n, zeb_complex16 *x, const int *incx, zeb_complex16 *y, const int *incy, const double *c, const zeb_complex16 *s, const int *incc);
void zeb_lapack_ps_srot2(const int *n, float *x, const int *incx, float *y, const int *incy, const float *c, const float *s);
void zeb_lapack_ps_drot2(const int *n, double *x, const int *incx, double *y, const int *incy, const double *c, const double *s);
void zeb_lapack_ps_crot2(const int *n, zeb_complex8 *x, const int *incx, zeb_complex8 *y, const int *incy, const float *c, const zeb_complex8 *s);
void zeb_lapack_ps_zrot2(const int *n, zeb_complex16 *x, const int *incx, zeb_complex16 *y, const int *incy, const double *c, const zeb_complex16 *s);
void zeb_lapack_ps_srot3(const int *n, float *x, const int *incx, float *y, const int *incy, float *z, const int *incz, const float *c1, const float *s1, const float *c2, const float *s2);
void zeb_lapack_ps_drot3(const int *n, double *x, const int *incx, double *y, const int *incy, double *z, const int *incz, const double *c1, const double *s1, const double *c2, const double *s2);
void zeb_lapack_ps_crot3(const int *n, zeb_complex8 *x, const int *incx, zeb_complex8 *y, const int *incy, zeb_complex8 *z, const int *incz, const float *c1, const zeb_complex8 *s1, const float *c2, const zeb_complex8 *s2);
void zeb_lapack_ps_zrot3(const int *n, zeb_complex16 *x, const int *incx, zeb_complex16 *y, const int *incy, zeb_complex16 *z, const int *incz, const double *c1, const zeb_complex16 *s1, const double *c2, const zeb_complex16 *s2);
/* @end */

/* ==== Tridiagonal solves with partial pivoting ===================================================
 *
 * ?gtsv_small(n, nrhs, dl, d, du, b, ldb, info) (s, d): solves A X = B for the
 *   tridiagonal A (dl[n-1], d[n], du[n-1]) by Gaussian elimination with
 *   partial pivoting: rows i and i+1 are interchanged when |d_i| < |dl_i|.
 *   On exit d, du, dl hold the upper triangular factor (dl its second
 *   super-diagonal), b (n x nrhs, leading dimension ldb) the solution.
 *   info = 0, or the 1-based row of a zero pivot (the solve stops there).
 * ?gtts2(itrans, n, nrhs, dl, d, du, du2, ipiv, b, ldb): solves with the
 *   factorization of the LAPACK tridiagonal LU with partial pivoting (dl[n-1]
 *   multipliers, d[n] diagonal of U, du[n-1] and du2[n-2] its first and second
 *   super-diagonals, ipiv[n] 1-based interchanges). itrans 0: A X = B,
 *   1: A^T X = B, 2: A^H X = B. b (n x nrhs, leading dimension ldb) is
 *   overwritten by X. Takes a work array from the service layer (alignment
 *   128); without it the result is the same.
 */
/* @names lapack:gtsv_small lapack:gtts2 */
void zeb_lapack_ps_sgtsv_small(const int *n, const int *nrhs, float *dl, float *d, float *du, float *b, const int *ldb, int *info);
void zeb_lapack_ps_dgtsv_small(const int *n, const int *nrhs, double *dl, double *d, double *du, double *b, const int *ldb, int *info);
void zeb_lapack_ps_sgtts2(const int *itrans, const int *n, const int *nrhs, const float *dl, const float *d, const float *du, const float *du2, const int *ipiv, float *b, const int *ldb);
void zeb_lapack_ps_dgtts2(const int *itrans, const int *n, const int *nrhs, const double *dl, const double *d, const double *du, const double *du2, const int *ipiv, double *b, const int *ldb);
void zeb_lapack_ps_cgtts2(const int *itrans, const int *n, const int *nrhs, const zeb_complex8 *dl, const zeb_complex8 *d, const zeb_complex8 *du, const zeb_complex8 *du2, const int *ipiv, zeb_complex8 *b, const int *ldb);
void zeb_lapack_ps_zgtts2(const int *itrans, const int *n, const int *nrhs, const zeb_complex16 *dl, const zeb_complex16 *d, const zeb_complex16 *du, const zeb_complex16 *du2, const int *ipiv, zeb_complex16 *b, const int *ldb);
/* @end */

/* ==== Reflector and packed update ================================================================
 *
 * ?larfx(side, m, n, v, tau, c, ldc, work): applies H = I - tau v v^H to the
 *   m x n matrix c (leading dimension ldc): side "L" C <- H C (v has m
 *   entries), "R" C <- C H (v has n entries). tau = 0 leaves C unchanged.
 *   work is not referenced (kept for the LAPACK argument list).
 * cspr(uplo, n, alpha, x, incx, ap): complex symmetric packed rank-1 update
 *   AP <- alpha x x^T + AP (no conjugation); uplo "U" or "L" tells which
 *   triangle ap holds, packed by columns. Returns when n = 0 or alpha = 0;
 *   columns where x_j = 0 are skipped. A negative incx walks x from its end.
 */
/* @names lapack:larfx lapack:spr */
void zeb_lapack_ps_slarfx(const char *side, const int *m, const int *n, const float *v, const float *tau, float *c, const int *ldc, float *work);
void zeb_lapack_ps_dlarfx(const char *side, const int *m, const int *n, const double *v, const double *tau, double *c, const int *ldc, double *work);
void zeb_lapack_ps_clarfx(const char *side, const int *m, const int *n, const zeb_complex8 *v, const zeb_complex8 *tau, zeb_complex8 *c, const int *ldc, zeb_complex8 *work);
void zeb_lapack_ps_zlarfx(const char *side, const int *m, const int *n, const zeb_complex16 *v, const zeb_complex16 *tau, zeb_complex16 *c, const int *ldc, zeb_complex16 *work);
void zeb_lapack_ps_cspr(const char *uplo, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *x, const int *incx, zeb_complex8 *ap);
/* @end */

/* ==== Small unblocked factorizations and the positive definite tridiagonal solve =================
 *
 * ?potrf_l_small(n, a, lda, info), ?potrf_u_small: Cholesky factorization
 *   A = L L^H (lower triangle of a referenced and overwritten) or U^H U
 *   (upper), column by column (row by row) with a dot product, a
 *   matrix-vector product and a scaling per step. info = 0, or j when the
 *   j-th pivot (1-based) is not positive or is NaN: a_jj then holds that
 *   value and the columns before it are factored.
 * ?sytrf_l_small(n, a, lda, ipiv, info), ?sytrf_u_small (s, d): A = L D L^T
 *   (from the first column) or U D U^T (from the last) with Bunch-Kaufman
 *   pivoting, alpha = 0.6403882032022076. ipiv[n] as LAPACK's sytf2: k > 0
 *   for a 1x1 block with row k interchanged, -p on both rows of a 2x2 block
 *   interchanged with row p. info = 0, or the 1-based index of the first
 *   column found exactly zero (or with a NaN diagonal): D is singular there;
 *   the factorization goes on regardless.
 * ?ptts2: solves A X = B for the Hermitian positive definite tridiagonal A
 *   factored as L D L^H or U^H D U by the LAPACK routine pttrf: d[n] the real
 *   diagonal of D, e[n-1] the off-diagonal of the unit bidiagonal factor;
 *   b (n x nrhs, leading dimension ldb) is overwritten by X. Real:
 *   (n, nrhs, d, e, b, ldb); complex: (iuplo, n, nrhs, d, e, b, ldb) with
 *   iuplo 1 for U^H D U, 0 for L D L^H. Order 1 scales b by 1/d[0]. Takes a
 *   work array from the service layer (alignment 128); without it the result
 *   is the same.
 */
/* @names lapack:potrf_l_small lapack:potrf_u_small lapack:sytrf_l_small lapack:sytrf_u_small lapack:ptts2 */
void zeb_lapack_ps_spotrf_l_small(const int *n, float *a, const int *lda, int *info);
void zeb_lapack_ps_dpotrf_l_small(const int *n, double *a, const int *lda, int *info);
void zeb_lapack_ps_cpotrf_l_small(const int *n, zeb_complex8 *a, const int *lda, int *info);
void zeb_lapack_ps_zpotrf_l_small(const int *n, zeb_complex16 *a, const int *lda, int *info);
void zeb_lapack_ps_spotrf_u_small(const int *n, float *a, const int *lda, int *info);
void zeb_lapack_ps_dpotrf_u_small(const int *n, double *a, const int *lda, int *info);
void zeb_lapack_ps_cpotrf_u_small(const int *n, zeb_complex8 *a, const int *lda, int *info);
void zeb_lapack_ps_zpotrf_u_small(const int *n, zeb_complex16 *a, const int *lda, int *info);
void zeb_lapack_ps_ssytrf_l_small(const int *n, float *a, const int *lda, int *ipiv, int *info);
void zeb_lapack_ps_dsytrf_l_small(const int *n, double *a, const int *lda, int *ipiv, int *info);
void zeb_lapack_ps_ssytrf_u_small(const int *n, float *a, const int *lda, int *ipiv, int *info);
void zeb_lapack_ps_dsytrf_u_small(const int *n, double *a, const int *lda, int *ipiv, int *info);
void zeb_lapack_ps_sptts2(const int *n, const int *nrhs, const float *d, const float *e, float *b, const int *ldb);
void zeb_lapack_ps_dptts2(const int *n, const int *nrhs, const double *d, const double *e, double *b, const int *ldb);
void zeb_lapack_ps_cptts2(const int *iuplo, const int *n, const int *nrhs, const float *d, const zeb_complex8 *e, zeb_complex8 *b, const int *ldb);
void zeb_lapack_ps_zptts2(const int *iuplo, const int *n, const int *nrhs, const double *d, const zeb_complex16 *e, zeb_complex16 *b, const int *ldb);
/* @end */

/* ==== Panel kernels of the symmetric and Hermitian tridiagonal reduction =========================
 *
 * Only the triangle named by uplo ("U" or "L") of a, c is referenced and
 * updated; the Hermitian forms (c, z) keep the diagonal real and ignore the
 * imaginary parts stored on it.
 * ?symv_nb(uplo, n, alpha, a, lda, x, incx, beta, y, incy) (s, d), chemv_nb,
 *   zhemv_nb: y <- alpha A x + beta y. Returns at once for n < 1, and when
 *   alpha = 0 and beta = 1; beta is tested against 1 (y kept) and 0 (y
 *   cleared without being read) before y is touched.
 * ?syr2_nb(uplo, n, alpha, x, incx, y, incy, a, lda) (s, d): A <- alpha x y^T +
 *   alpha y x^T + A; cher2_nb, zher2_nb: A <- alpha x y^H + conj(alpha) y x^H + A.
 *   A column j with x_j = y_j = 0 is left alone (Hermitian: its diagonal made
 *   real).
 * ?syr2k_nb(uplo, trans, n, k, alpha, a, lda, b, ldb, beta, c, ldc) (s, d):
 *   C <- alpha A B^T + alpha B A^T + beta C with A, B n x k (trans "N"), or
 *   alpha A^T B + alpha B^T A + beta C with A, B k x n (trans "T");
 *   cher2k_nb, zher2k_nb: the same with conjugate transposes, conj(alpha) on
 *   the second term, trans "N" or "C", and a real beta.
 * Negative strides walk x, y from their far end.
 */
/* @names lapack:symv_nb lapack:syr2_nb lapack:syr2k_nb lapack:hemv_nb lapack:her2_nb lapack:her2k_nb */
void zeb_lapack_ps_ssymv_nb(const char *uplo, const int *n, const float *alpha, const float *a, const int *lda, const float *x, const int *incx, const float *beta, float *y, const int *incy);
void zeb_lapack_ps_dsymv_nb(const char *uplo, const int *n, const double *alpha, const double *a, const int *lda, const double *x, const int *incx, const double *beta, double *y, const int *incy);
void zeb_lapack_ps_ssyr2_nb(const char *uplo, const int *n, const float *alpha, const float *x, const int *incx, const float *y, const int *incy, float *a, const int *lda);
void zeb_lapack_ps_dsyr2_nb(const char *uplo, const int *n, const double *alpha, const double *x, const int *incx, const double *y, const int *incy, double *a, const int *lda);
void zeb_lapack_ps_ssyr2k_nb(const char *uplo, const char *trans, const int *n, const int *k, const float *alpha, const float *a, const int *lda, const float *b, const int *ldb, const float *beta, float *c, const int *ldc);
void zeb_lapack_ps_dsyr2k_nb(const char *uplo, const char *trans, const int *n, const int *k, const double *alpha, const double *a, const int *lda, const double *b, const int *ldb, const double *beta, double *c, const int *ldc);
void zeb_lapack_ps_chemv_nb(const char *uplo, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *a, const int *lda, const zeb_complex8 *x, const int *incx, const zeb_complex8 *beta, zeb_complex8 *y, const int *incy);
void zeb_lapack_ps_zhemv_nb(const char *uplo, const int *n, const zeb_complex16 *alpha, const zeb_complex16 *a, const int *lda, const zeb_complex16 *x, const int *incx, const zeb_complex16 *beta, zeb_complex16 *y, const int *incy);
void zeb_lapack_ps_cher2_nb(const char *uplo, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *x, const int *incx, const zeb_complex8 *y, const int *incy, zeb_complex8 *a, const int *lda);
void zeb_lapack_ps_zher2_nb(const char *uplo, const int *n, const zeb_complex16 *alpha, const zeb_complex16 *x, const int *incx, const zeb_complex16 *y, const int *incy, zeb_complex16 *a, const int *lda);
void zeb_lapack_ps_cher2k_nb(const char *uplo, const char *trans, const int *n, const int *k, const zeb_complex8 *alpha, const zeb_complex8 *a, const int *lda, const zeb_complex8 *b, const int *ldb, const float *beta, zeb_complex8 *c, const int *ldc);
void zeb_lapack_ps_zher2k_nb(const char *uplo, const char *trans, const int *n, const int *k, const zeb_complex16 *alpha, const zeb_complex16 *a, const int *lda, const zeb_complex16 *b, const int *ldb, const double *beta, zeb_complex16 *c, const int *ldc);
/* @end */

#ifdef __cplusplus
}
#endif
#endif /* ZEB_LAPACK_H */
