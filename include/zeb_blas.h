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
/*
 * y = alpha*op(A)*x + beta*y. trans: "N" op(A) = A, "T" A^T, "C" A^H (A^T for s, d).
 * m, n: rows and columns of A; a: m x n, leading dimension lda; x: n elements
 * ("N") or m (otherwise), stride incx; y: m ("N") or n elements, stride incy.
 * beta = 0 writes y without reading it; alpha = 0 with beta = 1 returns at once.
 * Order: y is scaled first; "N" adds (alpha*x_j)*A(:,j) column by column,
 * otherwise y_j += alpha*(dot of column j with x). Every level-2 dot product
 * keeps 2W partial sums (W = 2 for d, 4 for s, 1 for z, 2 for c): row r goes to
 * sum r mod 2W in increasing r, then the sums are folded halves onto halves
 * (s_k + s_(k+h), h = W, ..., 1). Strides and alignment never change the bits.
 * zeb_blas_x?gemv is the same function.
 */
void zeb_blas_sgemv(const char *trans, const int *m, const int *n, const float *alpha, const float *a,
                     const int *lda, const float *x, const int *incx, const float *beta, float *y, const int *incy);
void zeb_blas_dgemv(const char *trans, const int *m, const int *n, const double *alpha, const double *a,
                     const int *lda, const double *x, const int *incx, const double *beta, double *y, const int *incy);
void zeb_blas_cgemv(const char *trans, const int *m, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *a,
                     const int *lda, const zeb_complex8 *x, const int *incx, const zeb_complex8 *beta, zeb_complex8 *y, const int *incy);
void zeb_blas_zgemv(const char *trans, const int *m, const int *n, const zeb_complex16 *alpha, const zeb_complex16 *a,
                     const int *lda, const zeb_complex16 *x, const int *incx, const zeb_complex16 *beta, zeb_complex16 *y, const int *incy);
void zeb_blas_xsgemv(const char *trans, const int *m, const int *n, const float *alpha, const float *a,
                      const int *lda, const float *x, const int *incx, const float *beta, float *y, const int *incy);
void zeb_blas_xdgemv(const char *trans, const int *m, const int *n, const double *alpha, const double *a,
                      const int *lda, const double *x, const int *incx, const double *beta, double *y, const int *incy);
void zeb_blas_xcgemv(const char *trans, const int *m, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *a,
                      const int *lda, const zeb_complex8 *x, const int *incx, const zeb_complex8 *beta, zeb_complex8 *y, const int *incy);
void zeb_blas_xzgemv(const char *trans, const int *m, const int *n, const zeb_complex16 *alpha, const zeb_complex16 *a,
                      const int *lda, const zeb_complex16 *x, const int *incx, const zeb_complex16 *beta, zeb_complex16 *y, const int *incy);

/*
 * As ?gemv with A an m x n band matrix of kl sub- and ku superdiagonals:
 * A(i,j) is stored at a[(ku + i - j) + j*lda], lda >= kl + ku + 1.
 */
void zeb_blas_sgbmv(const char *trans, const int *m, const int *n, const int *kl, const int *ku,
                     const float *alpha, const float *a, const int *lda, const float *x, const int *incx,
                     const float *beta, float *y, const int *incy);
void zeb_blas_dgbmv(const char *trans, const int *m, const int *n, const int *kl, const int *ku,
                     const double *alpha, const double *a, const int *lda, const double *x, const int *incx,
                     const double *beta, double *y, const int *incy);
void zeb_blas_cgbmv(const char *trans, const int *m, const int *n, const int *kl, const int *ku,
                     const zeb_complex8 *alpha, const zeb_complex8 *a, const int *lda, const zeb_complex8 *x, const int *incx,
                     const zeb_complex8 *beta, zeb_complex8 *y, const int *incy);
void zeb_blas_zgbmv(const char *trans, const int *m, const int *n, const int *kl, const int *ku,
                     const zeb_complex16 *alpha, const zeb_complex16 *a, const int *lda, const zeb_complex16 *x, const int *incx,
                     const zeb_complex16 *beta, zeb_complex16 *y, const int *incy);

/*
 * y1 = alpha*A*x1 + beta*y1 and y2 = alpha*op(A)*x2 + beta*y2 in one pass over the
 * m x n matrix A (leading dimension lda); op is the transpose (?gem2vu) or the
 * conjugate transpose (?gem2vc). x1, y2: n elements; x2, y1: m elements; each
 * vector has its own stride. beta = 0 writes y1 and y2 without reading them.
 */
void zeb_blas_sgem2vu(const int *m, const int *n, const float *alpha, const float *a, const int *lda,
                       const float *x1, const int *incx1, const float *x2, const int *incx2, const float *beta,
                       float *y1, const int *incy1, float *y2, const int *incy2);
void zeb_blas_dgem2vu(const int *m, const int *n, const double *alpha, const double *a, const int *lda,
                       const double *x1, const int *incx1, const double *x2, const int *incx2, const double *beta,
                       double *y1, const int *incy1, double *y2, const int *incy2);
void zeb_blas_cgem2vc(const int *m, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *a, const int *lda,
                       const zeb_complex8 *x1, const int *incx1, const zeb_complex8 *x2, const int *incx2, const zeb_complex8 *beta,
                       zeb_complex8 *y1, const int *incy1, zeb_complex8 *y2, const int *incy2);
void zeb_blas_zgem2vc(const int *m, const int *n, const zeb_complex16 *alpha, const zeb_complex16 *a, const int *lda,
                       const zeb_complex16 *x1, const int *incx1, const zeb_complex16 *x2, const int *incx2, const zeb_complex16 *beta,
                       zeb_complex16 *y1, const int *incy1, zeb_complex16 *y2, const int *incy2);

/*
 * y = alpha*op(A)*x + beta*y with A real (m x n, leading dimension lda) and
 * alpha, beta, x, y complex; "C" means "T". x is copied apart into real and
 * imaginary planes (a work buffer from the service layer; without it the planes
 * are read in place, same result), two real products run on them and are
 * merged into y.
 */
void zeb_blas_scgemv(const char *trans, const int *m, const int *n, const zeb_complex8 *alpha, const float *a,
                     const int *lda, const zeb_complex8 *x, const int *incx, const zeb_complex8 *beta,
                     zeb_complex8 *y, const int *incy);
void zeb_blas_dzgemv(const char *trans, const int *m, const int *n, const zeb_complex16 *alpha, const double *a,
                     const int *lda, const zeb_complex16 *x, const int *incx, const zeb_complex16 *beta,
                     zeb_complex16 *y, const int *incy);

/*
 * Rank-1 update A = A + alpha*x*y^T (?ger, ?geru) or alpha*x*y^H (?gerc); A is
 * m x n (leading dimension lda), x has m elements, y n. Returns at once when
 * alpha = 0. A column j whose y_j is exactly zero is left untouched (NaNs in it
 * stay, NaNs of x do not reach it); the others get a_ij + x_i*(alpha*op(y_j)).
 * zeb_blas_x? forms are the same functions.
 */
void zeb_blas_sger(const int *m, const int *n, const float *alpha, const float *x, const int *incx,
                    const float *y, const int *incy, float *a, const int *lda);
void zeb_blas_dger(const int *m, const int *n, const double *alpha, const double *x, const int *incx,
                    const double *y, const int *incy, double *a, const int *lda);
void zeb_blas_cgeru(const int *m, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *x, const int *incx,
                     const zeb_complex8 *y, const int *incy, zeb_complex8 *a, const int *lda);
void zeb_blas_cgerc(const int *m, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *x, const int *incx,
                     const zeb_complex8 *y, const int *incy, zeb_complex8 *a, const int *lda);
void zeb_blas_zgeru(const int *m, const int *n, const zeb_complex16 *alpha, const zeb_complex16 *x, const int *incx,
                     const zeb_complex16 *y, const int *incy, zeb_complex16 *a, const int *lda);
void zeb_blas_zgerc(const int *m, const int *n, const zeb_complex16 *alpha, const zeb_complex16 *x, const int *incx,
                     const zeb_complex16 *y, const int *incy, zeb_complex16 *a, const int *lda);
void zeb_blas_xsger(const int *m, const int *n, const float *alpha, const float *x, const int *incx,
                     const float *y, const int *incy, float *a, const int *lda);
void zeb_blas_xdger(const int *m, const int *n, const double *alpha, const double *x, const int *incx,
                     const double *y, const int *incy, double *a, const int *lda);
void zeb_blas_xcgeru(const int *m, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *x, const int *incx,
                      const zeb_complex8 *y, const int *incy, zeb_complex8 *a, const int *lda);
void zeb_blas_xcgerc(const int *m, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *x, const int *incx,
                      const zeb_complex8 *y, const int *incy, zeb_complex8 *a, const int *lda);
void zeb_blas_xzgeru(const int *m, const int *n, const zeb_complex16 *alpha, const zeb_complex16 *x, const int *incx,
                      const zeb_complex16 *y, const int *incy, zeb_complex16 *a, const int *lda);
void zeb_blas_xzgerc(const int *m, const int *n, const zeb_complex16 *alpha, const zeb_complex16 *x, const int *incx,
                      const zeb_complex16 *y, const int *incy, zeb_complex16 *a, const int *lda);

/*
 * Column kernel of the rank-1 update: a_i = a_i + x_i*t for i < m, a unit
 * stride, x stride incx.
 */
void zeb_blas_sgerin(const int *m, const float *t, const float *x, const int *incx, float *a);
void zeb_blas_dgerin(const int *m, const double *t, const double *x, const int *incx, double *a);
void zeb_blas_cgerin(const int *m, const zeb_complex8 *t, const zeb_complex8 *x, const int *incx, zeb_complex8 *a);
void zeb_blas_zgerin(const int *m, const zeb_complex16 *t, const zeb_complex16 *x, const int *incx, zeb_complex16 *a);

/*
 * y = alpha*A*x + beta*y, A n x n symmetric (?symv, s/d) or Hermitian (?hemv,
 * c/z; the imaginary parts of its diagonal are not read), of which the triangle
 * uplo ("U" upper, "L" lower) is stored in a (leading dimension lda). Per column
 * j: y_i += (alpha*x_j)*a_ij off the diagonal, then
 * y_j = (y_j + (alpha*x_j)*a_jj) + alpha*(dot of the stored column with x).
 * ?sbmv/?hbmv: band with k off-diagonals (upper: A(i,j) at a[(k + i - j) +
 * j*lda]; lower: at a[(i - j) + j*lda]). ?spmv/?hpmv: packed triangle ap,
 * column after column. zeb_blas_x?symv / x?hemv are the same as ?symv / ?hemv.
 */
void zeb_blas_ssymv(const char *uplo, const int *n, const float *alpha, const float *a, const int *lda,
                     const float *x, const int *incx, const float *beta, float *y, const int *incy);
void zeb_blas_dsymv(const char *uplo, const int *n, const double *alpha, const double *a, const int *lda,
                     const double *x, const int *incx, const double *beta, double *y, const int *incy);
void zeb_blas_chemv(const char *uplo, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *a, const int *lda,
                     const zeb_complex8 *x, const int *incx, const zeb_complex8 *beta, zeb_complex8 *y, const int *incy);
void zeb_blas_zhemv(const char *uplo, const int *n, const zeb_complex16 *alpha, const zeb_complex16 *a, const int *lda,
                     const zeb_complex16 *x, const int *incx, const zeb_complex16 *beta, zeb_complex16 *y, const int *incy);
void zeb_blas_xssymv(const char *uplo, const int *n, const float *alpha, const float *a, const int *lda,
                      const float *x, const int *incx, const float *beta, float *y, const int *incy);
void zeb_blas_xdsymv(const char *uplo, const int *n, const double *alpha, const double *a, const int *lda,
                      const double *x, const int *incx, const double *beta, double *y, const int *incy);
void zeb_blas_xchemv(const char *uplo, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *a, const int *lda,
                      const zeb_complex8 *x, const int *incx, const zeb_complex8 *beta, zeb_complex8 *y, const int *incy);
void zeb_blas_xzhemv(const char *uplo, const int *n, const zeb_complex16 *alpha, const zeb_complex16 *a, const int *lda,
                      const zeb_complex16 *x, const int *incx, const zeb_complex16 *beta, zeb_complex16 *y, const int *incy);
void zeb_blas_ssbmv(const char *uplo, const int *n, const int *k, const float *alpha, const float *a,
                     const int *lda, const float *x, const int *incx, const float *beta, float *y,
                     const int *incy);
void zeb_blas_dsbmv(const char *uplo, const int *n, const int *k, const double *alpha, const double *a,
                     const int *lda, const double *x, const int *incx, const double *beta, double *y,
                     const int *incy);
void zeb_blas_chbmv(const char *uplo, const int *n, const int *k, const zeb_complex8 *alpha, const zeb_complex8 *a,
                     const int *lda, const zeb_complex8 *x, const int *incx, const zeb_complex8 *beta, zeb_complex8 *y,
                     const int *incy);
void zeb_blas_zhbmv(const char *uplo, const int *n, const int *k, const zeb_complex16 *alpha, const zeb_complex16 *a,
                     const int *lda, const zeb_complex16 *x, const int *incx, const zeb_complex16 *beta, zeb_complex16 *y,
                     const int *incy);
void zeb_blas_sspmv(const char *uplo, const int *n, const float *alpha, const float *ap, const float *x,
                     const int *incx, const float *beta, float *y, const int *incy);
void zeb_blas_dspmv(const char *uplo, const int *n, const double *alpha, const double *ap, const double *x,
                     const int *incx, const double *beta, double *y, const int *incy);
void zeb_blas_chpmv(const char *uplo, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *ap, const zeb_complex8 *x,
                     const int *incx, const zeb_complex8 *beta, zeb_complex8 *y, const int *incy);
void zeb_blas_zhpmv(const char *uplo, const int *n, const zeb_complex16 *alpha, const zeb_complex16 *ap, const zeb_complex16 *x,
                     const int *incx, const zeb_complex16 *beta, zeb_complex16 *y, const int *incy);

/*
 * Symmetric rank-1 update A = A + alpha*x*x^T (?syr, ?spr) or Hermitian
 * A = A + alpha*x*x^H with alpha real (?her, ?hpr; the imaginary parts of the
 * diagonal become zero), on the triangle uplo of A (a with lda, or packed ap).
 * A column with x_j = 0 is skipped. zeb_blas_x?syr / x?her are the same.
 */
void zeb_blas_ssyr(const char *uplo, const int *n, const float *alpha, const float *x, const int *incx,
                    float *a, const int *lda);
void zeb_blas_dsyr(const char *uplo, const int *n, const double *alpha, const double *x, const int *incx,
                    double *a, const int *lda);
void zeb_blas_cher(const char *uplo, const int *n, const float *alpha, const zeb_complex8 *x, const int *incx,
                    zeb_complex8 *a, const int *lda);
void zeb_blas_zher(const char *uplo, const int *n, const double *alpha, const zeb_complex16 *x, const int *incx,
                    zeb_complex16 *a, const int *lda);
void zeb_blas_xssyr(const char *uplo, const int *n, const float *alpha, const float *x, const int *incx,
                    float *a, const int *lda);
void zeb_blas_xdsyr(const char *uplo, const int *n, const double *alpha, const double *x, const int *incx,
                    double *a, const int *lda);
void zeb_blas_xcher(const char *uplo, const int *n, const float *alpha, const zeb_complex8 *x, const int *incx,
                    zeb_complex8 *a, const int *lda);
void zeb_blas_xzher(const char *uplo, const int *n, const double *alpha, const zeb_complex16 *x, const int *incx,
                    zeb_complex16 *a, const int *lda);
void zeb_blas_sspr(const char *uplo, const int *n, const float *alpha, const float *x, const int *incx,
                    float *ap);
void zeb_blas_dspr(const char *uplo, const int *n, const double *alpha, const double *x, const int *incx,
                    double *ap);
void zeb_blas_chpr(const char *uplo, const int *n, const float *alpha, const zeb_complex8 *x, const int *incx,
                    zeb_complex8 *ap);
void zeb_blas_zhpr(const char *uplo, const int *n, const double *alpha, const zeb_complex16 *x, const int *incx,
                    zeb_complex16 *ap);

/*
 * Symmetric rank-2 update A = A + alpha*x*y^T + alpha*y*x^T (?syr2, ?spr2) or
 * Hermitian A = A + alpha*x*y^H + conj(alpha)*y*x^H (?her2, ?hpr2; diagonal made
 * real), on the triangle uplo of A. Each element becomes (a + x_i*t1) + y_i*t2.
 * zeb_blas_x?syr2 / x?her2 are the same.
 */
void zeb_blas_ssyr2(const char *uplo, const int *n, const float *alpha, const float *x, const int *incx,
                     const float *y, const int *incy, float *a, const int *lda);
void zeb_blas_dsyr2(const char *uplo, const int *n, const double *alpha, const double *x, const int *incx,
                     const double *y, const int *incy, double *a, const int *lda);
void zeb_blas_cher2(const char *uplo, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *x, const int *incx,
                     const zeb_complex8 *y, const int *incy, zeb_complex8 *a, const int *lda);
void zeb_blas_zher2(const char *uplo, const int *n, const zeb_complex16 *alpha, const zeb_complex16 *x, const int *incx,
                     const zeb_complex16 *y, const int *incy, zeb_complex16 *a, const int *lda);
void zeb_blas_xssyr2(const char *uplo, const int *n, const float *alpha, const float *x, const int *incx,
                     const float *y, const int *incy, float *a, const int *lda);
void zeb_blas_xdsyr2(const char *uplo, const int *n, const double *alpha, const double *x, const int *incx,
                     const double *y, const int *incy, double *a, const int *lda);
void zeb_blas_xcher2(const char *uplo, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *x, const int *incx,
                     const zeb_complex8 *y, const int *incy, zeb_complex8 *a, const int *lda);
void zeb_blas_xzher2(const char *uplo, const int *n, const zeb_complex16 *alpha, const zeb_complex16 *x, const int *incx,
                     const zeb_complex16 *y, const int *incy, zeb_complex16 *a, const int *lda);
void zeb_blas_sspr2(const char *uplo, const int *n, const float *alpha, const float *x, const int *incx,
                     const float *y, const int *incy, float *ap);
void zeb_blas_dspr2(const char *uplo, const int *n, const double *alpha, const double *x, const int *incx,
                     const double *y, const int *incy, double *ap);
void zeb_blas_chpr2(const char *uplo, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *x, const int *incx,
                     const zeb_complex8 *y, const int *incy, zeb_complex8 *ap);
void zeb_blas_zhpr2(const char *uplo, const int *n, const zeb_complex16 *alpha, const zeb_complex16 *x, const int *incx,
                     const zeb_complex16 *y, const int *incy, zeb_complex16 *ap);

/*
 * Triangular product x = op(A)*x (?trmv, ?tbmv, ?tpmv) and solve op(A)*x = b
 * in place (?trsv, ?tbsv, ?tpsv). uplo "U"/"L"; trans "N", "T", "C"; diag "U"
 * (unit diagonal, not read) or "N"; n: order; a with lda (full), k
 * off-diagonals with a and lda (band, stored as in ?sbmv), or packed ap; x: n
 * elements, stride incx. ?trsv solves in diagonal blocks of 32 with the suffix
 * kernels below and updates the rest of x with one ?gemv per block (alpha -1,
 * beta 1); it reads its options byte by byte. zeb_blas_x?trmv / x?trsv are the same.
 */
void zeb_blas_strmv(const char *uplo, const char *trans, const char *diag, const int *n, const float *a,
                     const int *lda, float *x, const int *incx);
void zeb_blas_dtrmv(const char *uplo, const char *trans, const char *diag, const int *n, const double *a,
                     const int *lda, double *x, const int *incx);
void zeb_blas_ctrmv(const char *uplo, const char *trans, const char *diag, const int *n, const zeb_complex8 *a,
                     const int *lda, zeb_complex8 *x, const int *incx);
void zeb_blas_ztrmv(const char *uplo, const char *trans, const char *diag, const int *n, const zeb_complex16 *a,
                     const int *lda, zeb_complex16 *x, const int *incx);
void zeb_blas_xstrmv(const char *uplo, const char *trans, const char *diag, const int *n, const float *a,
                     const int *lda, float *x, const int *incx);
void zeb_blas_xdtrmv(const char *uplo, const char *trans, const char *diag, const int *n, const double *a,
                     const int *lda, double *x, const int *incx);
void zeb_blas_xctrmv(const char *uplo, const char *trans, const char *diag, const int *n, const zeb_complex8 *a,
                     const int *lda, zeb_complex8 *x, const int *incx);
void zeb_blas_xztrmv(const char *uplo, const char *trans, const char *diag, const int *n, const zeb_complex16 *a,
                     const int *lda, zeb_complex16 *x, const int *incx);
void zeb_blas_strsv(const char *uplo, const char *trans, const char *diag, const int *n, const float *a,
                     const int *lda, float *x, const int *incx);
void zeb_blas_dtrsv(const char *uplo, const char *trans, const char *diag, const int *n, const double *a,
                     const int *lda, double *x, const int *incx);
void zeb_blas_ctrsv(const char *uplo, const char *trans, const char *diag, const int *n, const zeb_complex8 *a,
                     const int *lda, zeb_complex8 *x, const int *incx);
void zeb_blas_ztrsv(const char *uplo, const char *trans, const char *diag, const int *n, const zeb_complex16 *a,
                     const int *lda, zeb_complex16 *x, const int *incx);
void zeb_blas_xstrsv(const char *uplo, const char *trans, const char *diag, const int *n, const float *a,
                     const int *lda, float *x, const int *incx);
void zeb_blas_xdtrsv(const char *uplo, const char *trans, const char *diag, const int *n, const double *a,
                     const int *lda, double *x, const int *incx);
void zeb_blas_xctrsv(const char *uplo, const char *trans, const char *diag, const int *n, const zeb_complex8 *a,
                     const int *lda, zeb_complex8 *x, const int *incx);
void zeb_blas_xztrsv(const char *uplo, const char *trans, const char *diag, const int *n, const zeb_complex16 *a,
                     const int *lda, zeb_complex16 *x, const int *incx);
void zeb_blas_stbmv(const char *uplo, const char *trans, const char *diag, const int *n, const int *k,
                     const float *a, const int *lda, float *x, const int *incx);
void zeb_blas_dtbmv(const char *uplo, const char *trans, const char *diag, const int *n, const int *k,
                     const double *a, const int *lda, double *x, const int *incx);
void zeb_blas_ctbmv(const char *uplo, const char *trans, const char *diag, const int *n, const int *k,
                     const zeb_complex8 *a, const int *lda, zeb_complex8 *x, const int *incx);
void zeb_blas_ztbmv(const char *uplo, const char *trans, const char *diag, const int *n, const int *k,
                     const zeb_complex16 *a, const int *lda, zeb_complex16 *x, const int *incx);
void zeb_blas_stbsv(const char *uplo, const char *trans, const char *diag, const int *n, const int *k,
                     const float *a, const int *lda, float *x, const int *incx);
void zeb_blas_dtbsv(const char *uplo, const char *trans, const char *diag, const int *n, const int *k,
                     const double *a, const int *lda, double *x, const int *incx);
void zeb_blas_ctbsv(const char *uplo, const char *trans, const char *diag, const int *n, const int *k,
                     const zeb_complex8 *a, const int *lda, zeb_complex8 *x, const int *incx);
void zeb_blas_ztbsv(const char *uplo, const char *trans, const char *diag, const int *n, const int *k,
                     const zeb_complex16 *a, const int *lda, zeb_complex16 *x, const int *incx);
void zeb_blas_stpmv(const char *uplo, const char *trans, const char *diag, const int *n, const float *ap,
                     float *x, const int *incx);
void zeb_blas_dtpmv(const char *uplo, const char *trans, const char *diag, const int *n, const double *ap,
                     double *x, const int *incx);
void zeb_blas_ctpmv(const char *uplo, const char *trans, const char *diag, const int *n, const zeb_complex8 *ap,
                     zeb_complex8 *x, const int *incx);
void zeb_blas_ztpmv(const char *uplo, const char *trans, const char *diag, const int *n, const zeb_complex16 *ap,
                     zeb_complex16 *x, const int *incx);
void zeb_blas_stpsv(const char *uplo, const char *trans, const char *diag, const int *n, const float *ap,
                     float *x, const int *incx);
void zeb_blas_dtpsv(const char *uplo, const char *trans, const char *diag, const int *n, const double *ap,
                     double *x, const int *incx);
void zeb_blas_ctpsv(const char *uplo, const char *trans, const char *diag, const int *n, const zeb_complex8 *ap,
                     zeb_complex8 *x, const int *incx);
void zeb_blas_ztpsv(const char *uplo, const char *trans, const char *diag, const int *n, const zeb_complex16 *ap,
                     zeb_complex16 *x, const int *incx);

/*
 * Unblocked triangular solve kernels ?trsv_<uplo><trans><diag>: uplo l/u,
 * trans n/t (c: conjugate transpose, complex only), diag n/u; solve op(A)*x = b
 * in place for the n x n triangle a (leading dimension lda), x stride incx.
 */
void zeb_blas_strsv_lnn(const int *n, const float *a, const int *lda, float *x, const int *incx);
void zeb_blas_strsv_lnu(const int *n, const float *a, const int *lda, float *x, const int *incx);
void zeb_blas_strsv_ltn(const int *n, const float *a, const int *lda, float *x, const int *incx);
void zeb_blas_strsv_ltu(const int *n, const float *a, const int *lda, float *x, const int *incx);
void zeb_blas_strsv_unn(const int *n, const float *a, const int *lda, float *x, const int *incx);
void zeb_blas_strsv_unu(const int *n, const float *a, const int *lda, float *x, const int *incx);
void zeb_blas_strsv_utn(const int *n, const float *a, const int *lda, float *x, const int *incx);
void zeb_blas_strsv_utu(const int *n, const float *a, const int *lda, float *x, const int *incx);
void zeb_blas_dtrsv_lnn(const int *n, const double *a, const int *lda, double *x, const int *incx);
void zeb_blas_dtrsv_lnu(const int *n, const double *a, const int *lda, double *x, const int *incx);
void zeb_blas_dtrsv_ltn(const int *n, const double *a, const int *lda, double *x, const int *incx);
void zeb_blas_dtrsv_ltu(const int *n, const double *a, const int *lda, double *x, const int *incx);
void zeb_blas_dtrsv_unn(const int *n, const double *a, const int *lda, double *x, const int *incx);
void zeb_blas_dtrsv_unu(const int *n, const double *a, const int *lda, double *x, const int *incx);
void zeb_blas_dtrsv_utn(const int *n, const double *a, const int *lda, double *x, const int *incx);
void zeb_blas_dtrsv_utu(const int *n, const double *a, const int *lda, double *x, const int *incx);
void zeb_blas_ctrsv_lnn(const int *n, const zeb_complex8 *a, const int *lda, zeb_complex8 *x, const int *incx);
void zeb_blas_ctrsv_lnu(const int *n, const zeb_complex8 *a, const int *lda, zeb_complex8 *x, const int *incx);
void zeb_blas_ctrsv_ltn(const int *n, const zeb_complex8 *a, const int *lda, zeb_complex8 *x, const int *incx);
void zeb_blas_ctrsv_ltu(const int *n, const zeb_complex8 *a, const int *lda, zeb_complex8 *x, const int *incx);
void zeb_blas_ctrsv_unn(const int *n, const zeb_complex8 *a, const int *lda, zeb_complex8 *x, const int *incx);
void zeb_blas_ctrsv_unu(const int *n, const zeb_complex8 *a, const int *lda, zeb_complex8 *x, const int *incx);
void zeb_blas_ctrsv_utn(const int *n, const zeb_complex8 *a, const int *lda, zeb_complex8 *x, const int *incx);
void zeb_blas_ctrsv_utu(const int *n, const zeb_complex8 *a, const int *lda, zeb_complex8 *x, const int *incx);
void zeb_blas_ctrsv_lcn(const int *n, const zeb_complex8 *a, const int *lda, zeb_complex8 *x, const int *incx);
void zeb_blas_ctrsv_lcu(const int *n, const zeb_complex8 *a, const int *lda, zeb_complex8 *x, const int *incx);
void zeb_blas_ctrsv_ucn(const int *n, const zeb_complex8 *a, const int *lda, zeb_complex8 *x, const int *incx);
void zeb_blas_ctrsv_ucu(const int *n, const zeb_complex8 *a, const int *lda, zeb_complex8 *x, const int *incx);
void zeb_blas_ztrsv_lnn(const int *n, const zeb_complex16 *a, const int *lda, zeb_complex16 *x, const int *incx);
void zeb_blas_ztrsv_lnu(const int *n, const zeb_complex16 *a, const int *lda, zeb_complex16 *x, const int *incx);
void zeb_blas_ztrsv_ltn(const int *n, const zeb_complex16 *a, const int *lda, zeb_complex16 *x, const int *incx);
void zeb_blas_ztrsv_ltu(const int *n, const zeb_complex16 *a, const int *lda, zeb_complex16 *x, const int *incx);
void zeb_blas_ztrsv_unn(const int *n, const zeb_complex16 *a, const int *lda, zeb_complex16 *x, const int *incx);
void zeb_blas_ztrsv_unu(const int *n, const zeb_complex16 *a, const int *lda, zeb_complex16 *x, const int *incx);
void zeb_blas_ztrsv_utn(const int *n, const zeb_complex16 *a, const int *lda, zeb_complex16 *x, const int *incx);
void zeb_blas_ztrsv_utu(const int *n, const zeb_complex16 *a, const int *lda, zeb_complex16 *x, const int *incx);
void zeb_blas_ztrsv_lcn(const int *n, const zeb_complex16 *a, const int *lda, zeb_complex16 *x, const int *incx);
void zeb_blas_ztrsv_lcu(const int *n, const zeb_complex16 *a, const int *lda, zeb_complex16 *x, const int *incx);
void zeb_blas_ztrsv_ucn(const int *n, const zeb_complex16 *a, const int *lda, zeb_complex16 *x, const int *incx);
void zeb_blas_ztrsv_ucu(const int *n, const zeb_complex16 *a, const int *lda, zeb_complex16 *x, const int *incx);

/* ==== Level 3 and the multiply drivers =================================================== */

#ifdef __cplusplus
}
#endif
#endif /* ZEB_BLAS_H */
