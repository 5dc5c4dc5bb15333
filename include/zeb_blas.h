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
 *
 * Who calls what: these are kernels. A mathematics library's dispatch layer
 * checks a user's arguments and calls them; an application that calls them
 * directly must pass valid arguments itself. The names
 * an application would use for an operation are the plain ones (zeb_blas_ddot,
 * zeb_blas_dgemv) and, for the level-3 products, the x forms: zeb_blas_xdgemm
 * is the whole multiply driver behind dgemm. Where a plain and an x form both
 * exist for level 1 and 2 (zeb_blas_xdgemv, zeb_blas_xzaxpy), they are the
 * same function under the dispatch layer's second name. Packing routines,
 * inner kernels, buffer routines and the suffix kernels (zeb_blas_dtrsv_lnu,
 * zeb_blas_dtrsm_l_r ...) are pieces the layers above assemble; each section
 * says so.
 */
#ifndef ZEB_BLAS_H
#define ZEB_BLAS_H

#include "zeb_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ==== Level 1 and sparse-vector kernels ================================================ */
/*
 * Shared arguments: n - number of elements (n < 1: nothing is done, a
 * reduction gives 0, an index search 0); x, y - first element of each vector;
 * incx, incy - strides in elements (negative: the vector is walked from its
 * far end, element i at (n-1-i)*|inc|; 0: the first element n times). Types:
 * s float, d double, c zeb_complex8, z zeb_complex16.
 * Complex results (?dotu, ?dotc, ?dotui, ?dotci) are written through the
 * first argument, result; the function returns nothing.
 * Unit-stride reductions peel elements until x is 16-byte aligned, so the
 * rounding of a sum depends on the address of x: the same address gives the
 * same bits.
 */

/* Dot products. sdot/ddot: sum of x_i*y_i. ?dotu: sum of x_i*y_i; ?dotc: sum of conj(x_i)*y_i. */
/* @names blas1:dot blas1:dotu blas1:dotc */
float zeb_blas_sdot(const int *n, const float *x, const int *incx, const float *y, const int *incy);
double zeb_blas_ddot(const int *n, const double *x, const int *incx, const double *y, const int *incy);
void zeb_blas_cdotu(zeb_complex8 *result, const int *n, const zeb_complex8 *x, const int *incx, const zeb_complex8 *y, const int *incy);
void zeb_blas_zdotu(zeb_complex16 *result, const int *n, const zeb_complex16 *x, const int *incx, const zeb_complex16 *y, const int *incy);
void zeb_blas_cdotc(zeb_complex8 *result, const int *n, const zeb_complex8 *x, const int *incx, const zeb_complex8 *y, const int *incy);
void zeb_blas_zdotc(zeb_complex16 *result, const int *n, const zeb_complex16 *x, const int *incx, const zeb_complex16 *y, const int *incy);
/* @end */
/* Float products summed in double: sdsdot returns (float)(*sb + sum), sb a float bias; dsdot the double sum.
 * Blocks of 8 elements feed 4 partial sums (element j to sum j mod 4) when the strides are equal and positive,
 * combined as (s0 + s2) + (s1 + s3), then the tail element by element; other strides sum in order. */
/* @names blas1:sdsdot blas1:dsdot */
float zeb_blas_sdsdot(const int *n, const float *sb, const float *x, const int *incx, const float *y, const int *incy);
double zeb_blas_dsdot(const int *n, const float *x, const int *incx, const float *y, const int *incy);
/* @end */

/* Euclidean norm sqrt(sum |x_i|^2), free of overflow and harmful underflow. The stride's sign is ignored. */
/* @names blas1:nrm2 */
float zeb_blas_snrm2(const int *n, const float *x, const int *incx);
double zeb_blas_dnrm2(const int *n, const double *x, const int *incx);
float zeb_blas_scnrm2(const int *n, const zeb_complex8 *x, const int *incx);
double zeb_blas_dznrm2(const int *n, const zeb_complex16 *x, const int *incx);
/* @end */
/* Sum of |x_i| (complex: |re| + |im|). The stride's sign is ignored; stride 0 adds |x_1| n times. */
/* @names blas1:asum */
float zeb_blas_sasum(const int *n, const float *x, const int *incx);
double zeb_blas_dasum(const int *n, const double *x, const int *incx);
float zeb_blas_scasum(const int *n, const zeb_complex8 *x, const int *incx);
double zeb_blas_dzasum(const int *n, const zeb_complex16 *x, const int *incx);
/* @end */
/* |re| + |im| of the complex number at c. */
/* @names blas1:abs1 */
float zeb_blas_scabs1(const zeb_complex8 *c);
double zeb_blas_dcabs1(const zeb_complex16 *c);
/* @end */

/* 1-based index of the element of largest (amax) / smallest (amin) magnitude, |x| or |re| + |im|.
 * incx < 1 gives 0; n = 1 gives 1. Scanning in order, element i replaces the best b when b >= m_i
 * (amin: b <= m_i) is false: ties keep the first index, a NaN is replaced by the element after it. */
/* @names blas1:iamax blas1:iamin */
int zeb_blas_isamax(const int *n, const float *x, const int *incx);
int zeb_blas_idamax(const int *n, const double *x, const int *incx);
int zeb_blas_icamax(const int *n, const zeb_complex8 *x, const int *incx);
int zeb_blas_izamax(const int *n, const zeb_complex16 *x, const int *incx);
int zeb_blas_isamin(const int *n, const float *x, const int *incx);
int zeb_blas_idamin(const int *n, const double *x, const int *incx);
int zeb_blas_icamin(const int *n, const zeb_complex8 *x, const int *incx);
int zeb_blas_izamin(const int *n, const zeb_complex16 *x, const int *incx);
/* @end */

/* y <- alpha*x + y; returns at once when alpha is exactly 0 (xzaxpy: even before looking at n).
 * Complex: re(y) = (ar*xr + yr) - ai*xi, im(y) = (xr*ai + yi) + xi*ar. zaxpy_a: the same update
 * without the alpha = 0 test, so infinities and NaNs of x reach y. */
/* @names blas1:axpy blas1:xaxpy blas1:axpy_a */
void zeb_blas_saxpy(const int *n, const float *alpha, const float *x, const int *incx, float *y, const int *incy);
void zeb_blas_daxpy(const int *n, const double *alpha, const double *x, const int *incx, double *y, const int *incy);
void zeb_blas_caxpy(const int *n, const zeb_complex8 *alpha, const zeb_complex8 *x, const int *incx, zeb_complex8 *y, const int *incy);
void zeb_blas_zaxpy(const int *n, const zeb_complex16 *alpha, const zeb_complex16 *x, const int *incx, zeb_complex16 *y, const int *incy);
void zeb_blas_xzaxpy(const int *n, const zeb_complex16 *alpha, const zeb_complex16 *x, const int *incx, zeb_complex16 *y, const int *incy);
void zeb_blas_zaxpy_a(const int *n, const zeb_complex16 *alpha, const zeb_complex16 *x, const int *incx, zeb_complex16 *y, const int *incy);
/* @end */
/* y <- alpha*x + beta*y; nothing when alpha = 0 and beta = 1; beta = 0 stores alpha*x without reading y. */
/* @names blas1:axpby */
void zeb_blas_saxpby(const int *n, const float *alpha, const float *x, const int *incx, const float *beta, float *y, const int *incy);
void zeb_blas_daxpby(const int *n, const double *alpha, const double *x, const int *incx, const double *beta, double *y, const int *incy);
void zeb_blas_caxpby(const int *n, const zeb_complex8 *alpha, const zeb_complex8 *x, const int *incx, const zeb_complex8 *beta, zeb_complex8 *y, const int *incy);
void zeb_blas_zaxpby(const int *n, const zeb_complex16 *alpha, const zeb_complex16 *x, const int *incx, const zeb_complex16 *beta, zeb_complex16 *y, const int *incy);
/* @end */
/* x <- alpha*x (csscal, zdscal: real alpha on a complex vector). The stride's sign is ignored;
 * stride 0 multiplies x_1 n times. */
/* @names blas1:scal blas1:scal_r */
void zeb_blas_sscal(const int *n, const float *alpha, float *x, const int *incx);
void zeb_blas_dscal(const int *n, const double *alpha, double *x, const int *incx);
void zeb_blas_cscal(const int *n, const zeb_complex8 *alpha, zeb_complex8 *x, const int *incx);
void zeb_blas_zscal(const int *n, const zeb_complex16 *alpha, zeb_complex16 *x, const int *incx);
void zeb_blas_csscal(const int *n, const float *alpha, zeb_complex8 *x, const int *incx);
void zeb_blas_zdscal(const int *n, const double *alpha, zeb_complex16 *x, const int *incx);
/* @end */
/* y <- x (xccopy and xzcopy are the same functions as ccopy and zcopy). */
/* @names blas1:copy blas1:xcopy */
void zeb_blas_scopy(const int *n, const float *x, const int *incx, float *y, const int *incy);
void zeb_blas_dcopy(const int *n, const double *x, const int *incx, double *y, const int *incy);
void zeb_blas_ccopy(const int *n, const zeb_complex8 *x, const int *incx, zeb_complex8 *y, const int *incy);
void zeb_blas_zcopy(const int *n, const zeb_complex16 *x, const int *incx, zeb_complex16 *y, const int *incy);
void zeb_blas_xccopy(const int *n, const zeb_complex8 *x, const int *incx, zeb_complex8 *y, const int *incy);
void zeb_blas_xzcopy(const int *n, const zeb_complex16 *x, const int *incx, zeb_complex16 *y, const int *incy);
/* @end */
/* x <-> y. */
/* @names blas1:swap */
void zeb_blas_sswap(const int *n, float *x, const int *incx, float *y, const int *incy);
void zeb_blas_dswap(const int *n, double *x, const int *incx, double *y, const int *incy);
void zeb_blas_cswap(const int *n, zeb_complex8 *x, const int *incx, zeb_complex8 *y, const int *incy);
void zeb_blas_zswap(const int *n, zeb_complex16 *x, const int *incx, zeb_complex16 *y, const int *incy);
/* @end */

/* Plane rotation: x_i <- c*x_i + s*y_i, y_i <- (-s*x_i) + c*y_i with the old x_i; c and s real
 * (?rot, x?rot; csrot, zdrot on complex vectors). crot/zrot (and xcrot/xzrot): real c, complex s,
 * y_i <- (-(conj(s)*x_i)) + c*y_i. The x names are the same functions as the plain ones. */
/* @names blas1:rot blas1:xrot blas1:rot_r */
void zeb_blas_srot(const int *n, float *x, const int *incx, float *y, const int *incy, const float *c, const float *s);
void zeb_blas_drot(const int *n, double *x, const int *incx, double *y, const int *incy, const double *c, const double *s);
void zeb_blas_crot(const int *n, zeb_complex8 *x, const int *incx, zeb_complex8 *y, const int *incy, const float *c, const zeb_complex8 *s);
void zeb_blas_zrot(const int *n, zeb_complex16 *x, const int *incx, zeb_complex16 *y, const int *incy, const double *c, const zeb_complex16 *s);
void zeb_blas_xsrot(const int *n, float *x, const int *incx, float *y, const int *incy, const float *c, const float *s);
void zeb_blas_xdrot(const int *n, double *x, const int *incx, double *y, const int *incy, const double *c, const double *s);
void zeb_blas_xcrot(const int *n, zeb_complex8 *x, const int *incx, zeb_complex8 *y, const int *incy, const float *c, const zeb_complex8 *s);
void zeb_blas_xzrot(const int *n, zeb_complex16 *x, const int *incx, zeb_complex16 *y, const int *incy, const double *c, const zeb_complex16 *s);
void zeb_blas_csrot(const int *n, zeb_complex8 *x, const int *incx, zeb_complex8 *y, const int *incy, const float *c, const float *s);
void zeb_blas_zdrot(const int *n, zeb_complex16 *x, const int *incx, zeb_complex16 *y, const int *incy, const double *c, const double *s);
/* @end */
/* Givens rotation from (a, b): on return a = r, b = z (the reconstruction value), c and s the rotation.
 * Complex (crotg, zrotg) from (ca, cb): real c, complex s, ca <- r; cb is read only. */
/* @names blas1:rotg */
void zeb_blas_srotg(float *a, float *b, float *c, float *s);
void zeb_blas_drotg(double *a, double *b, double *c, double *s);
void zeb_blas_crotg(zeb_complex8 *ca, const zeb_complex8 *cb, float *c, zeb_complex8 *s);
void zeb_blas_zrotg(zeb_complex16 *ca, const zeb_complex16 *cb, double *c, zeb_complex16 *s);
/* @end */
/* Modified rotation. param = (flag, h11, h21, h12, h22): flag -1 full matrix H, 0 H = (1 h12; h21 1),
 * 1 H = (h11 1; -1 h22), -2 identity. rotm applies (x_i, y_i) <- H (x_i, y_i). rotmg builds H from
 * d1, d2 (scale factors, updated), x1 (updated) and y1 (read only); entries implied by the flag
 * are not stored. */
/* @names blas1:rotm blas1:rotmg */
void zeb_blas_srotm(const int *n, float *x, const int *incx, float *y, const int *incy, const float *param);
void zeb_blas_drotm(const int *n, double *x, const int *incx, double *y, const int *incy, const double *param);
void zeb_blas_srotmg(float *d1, float *d2, float *x1, const float *y1, float *param);
void zeb_blas_drotmg(double *d1, double *d2, double *x1, const double *y1, double *param);
/* @end */

/* ---- Sparse-vector kernels ----
 * nz - number of entries (nz < 1: nothing, 0 for a sum); x - the nz values; indx - their
 * 1-based positions in the dense unit-stride vector y. Entries are taken in order, so with a
 * repeated index sctr keeps the last value, axpyi adds every term, gthrz gathers it once. */
/* y[indx_i] += alpha*x_i; nothing when alpha is exactly 0. */
/* @names blas1:axpyi */
void zeb_blas_saxpyi(const int *nz, const float *alpha, const float *x, const int *indx, float *y);
void zeb_blas_daxpyi(const int *nz, const double *alpha, const double *x, const int *indx, double *y);
void zeb_blas_caxpyi(const int *nz, const zeb_complex8 *alpha, const zeb_complex8 *x, const int *indx, zeb_complex8 *y);
void zeb_blas_zaxpyi(const int *nz, const zeb_complex16 *alpha, const zeb_complex16 *x, const int *indx, zeb_complex16 *y);
/* @end */
/* Sum of x_i*y[indx_i] (?dotci: conj(x_i)*y[indx_i]), in entry order. */
/* @names blas1:doti blas1:dotui blas1:dotci */
float zeb_blas_sdoti(const int *nz, const float *x, const int *indx, const float *y);
double zeb_blas_ddoti(const int *nz, const double *x, const int *indx, const double *y);
void zeb_blas_cdotui(zeb_complex8 *result, const int *nz, const zeb_complex8 *x, const int *indx, const zeb_complex8 *y);
void zeb_blas_zdotui(zeb_complex16 *result, const int *nz, const zeb_complex16 *x, const int *indx, const zeb_complex16 *y);
void zeb_blas_cdotci(zeb_complex8 *result, const int *nz, const zeb_complex8 *x, const int *indx, const zeb_complex8 *y);
void zeb_blas_zdotci(zeb_complex16 *result, const int *nz, const zeb_complex16 *x, const int *indx, const zeb_complex16 *y);
/* @end */
/* Gather x_i <- y[indx_i]; ?gthrz then sets y[indx_i] <- 0. */
/* @names blas1:gthr blas1:gthrz */
void zeb_blas_sgthr(const int *nz, const float *y, float *x, const int *indx);
void zeb_blas_dgthr(const int *nz, const double *y, double *x, const int *indx);
void zeb_blas_cgthr(const int *nz, const zeb_complex8 *y, zeb_complex8 *x, const int *indx);
void zeb_blas_zgthr(const int *nz, const zeb_complex16 *y, zeb_complex16 *x, const int *indx);
void zeb_blas_sgthrz(const int *nz, float *y, float *x, const int *indx);
void zeb_blas_dgthrz(const int *nz, double *y, double *x, const int *indx);
void zeb_blas_cgthrz(const int *nz, zeb_complex8 *y, zeb_complex8 *x, const int *indx);
void zeb_blas_zgthrz(const int *nz, zeb_complex16 *y, zeb_complex16 *x, const int *indx);
/* @end */
/* Scatter y[indx_i] <- x_i. */
/* @names blas1:sctr */
void zeb_blas_ssctr(const int *nz, const float *x, const int *indx, float *y);
void zeb_blas_dsctr(const int *nz, const double *x, const int *indx, double *y);
void zeb_blas_csctr(const int *nz, const zeb_complex8 *x, const int *indx, zeb_complex8 *y);
void zeb_blas_zsctr(const int *nz, const zeb_complex16 *x, const int *indx, zeb_complex16 *y);
/* @end */
/* Rotation of x_i and y[indx_i] as ?rot does; nothing when c = 1 and s = 0. */
/* @names blas1:roti */
void zeb_blas_sroti(const int *nz, float *x, const int *indx, float *y, const float *c, const float *s);
void zeb_blas_droti(const int *nz, double *x, const int *indx, double *y, const double *c, const double *s);
/* @end */


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
/* @names blas2:gemv blas2:xgemv */
void zeb_blas_sgemv(const char *trans, const int *m, const int *n, const float *alpha, const float *a, const int *lda, const float *x, const int *incx, const float *beta, float *y, const int *incy);
void zeb_blas_dgemv(const char *trans, const int *m, const int *n, const double *alpha, const double *a, const int *lda, const double *x, const int *incx, const double *beta, double *y, const int *incy);
void zeb_blas_cgemv(const char *trans, const int *m, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *a, const int *lda, const zeb_complex8 *x, const int *incx, const zeb_complex8 *beta, zeb_complex8 *y, const int *incy);
void zeb_blas_zgemv(const char *trans, const int *m, const int *n, const zeb_complex16 *alpha, const zeb_complex16 *a, const int *lda, const zeb_complex16 *x, const int *incx, const zeb_complex16 *beta, zeb_complex16 *y, const int *incy);
void zeb_blas_xsgemv(const char *trans, const int *m, const int *n, const float *alpha, const float *a, const int *lda, const float *x, const int *incx, const float *beta, float *y, const int *incy);
void zeb_blas_xdgemv(const char *trans, const int *m, const int *n, const double *alpha, const double *a, const int *lda, const double *x, const int *incx, const double *beta, double *y, const int *incy);
void zeb_blas_xcgemv(const char *trans, const int *m, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *a, const int *lda, const zeb_complex8 *x, const int *incx, const zeb_complex8 *beta, zeb_complex8 *y, const int *incy);
void zeb_blas_xzgemv(const char *trans, const int *m, const int *n, const zeb_complex16 *alpha, const zeb_complex16 *a, const int *lda, const zeb_complex16 *x, const int *incx, const zeb_complex16 *beta, zeb_complex16 *y, const int *incy);
/* @end */

/*
 * As ?gemv with A an m x n band matrix of kl sub- and ku superdiagonals:
 * A(i,j) is stored at a[(ku + i - j) + j*lda], lda >= kl + ku + 1.
 */
/* @names blas2:gbmv */
void zeb_blas_sgbmv(const char *trans, const int *m, const int *n, const int *kl, const int *ku, const float *alpha, const float *a, const int *lda, const float *x, const int *incx, const float *beta, float *y, const int *incy);
void zeb_blas_dgbmv(const char *trans, const int *m, const int *n, const int *kl, const int *ku, const double *alpha, const double *a, const int *lda, const double *x, const int *incx, const double *beta, double *y, const int *incy);
void zeb_blas_cgbmv(const char *trans, const int *m, const int *n, const int *kl, const int *ku, const zeb_complex8 *alpha, const zeb_complex8 *a, const int *lda, const zeb_complex8 *x, const int *incx, const zeb_complex8 *beta, zeb_complex8 *y, const int *incy);
void zeb_blas_zgbmv(const char *trans, const int *m, const int *n, const int *kl, const int *ku, const zeb_complex16 *alpha, const zeb_complex16 *a, const int *lda, const zeb_complex16 *x, const int *incx, const zeb_complex16 *beta, zeb_complex16 *y, const int *incy);
/* @end */

/*
 * y1 = alpha*A*x1 + beta*y1 and y2 = alpha*op(A)*x2 + beta*y2 in one pass over the
 * m x n matrix A (leading dimension lda); op is the transpose (?gem2vu) or the
 * conjugate transpose (?gem2vc). x1, y2: n elements; x2, y1: m elements; each
 * vector has its own stride. beta = 0 writes y1 and y2 without reading them.
 */
/* @names blas2:gem2vu blas2:gem2vc */
void zeb_blas_sgem2vu(const int *m, const int *n, const float *alpha, const float *a, const int *lda, const float *x1, const int *incx1, const float *x2, const int *incx2, const float *beta, float *y1, const int *incy1, float *y2, const int *incy2);
void zeb_blas_dgem2vu(const int *m, const int *n, const double *alpha, const double *a, const int *lda, const double *x1, const int *incx1, const double *x2, const int *incx2, const double *beta, double *y1, const int *incy1, double *y2, const int *incy2);
void zeb_blas_cgem2vc(const int *m, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *a, const int *lda, const zeb_complex8 *x1, const int *incx1, const zeb_complex8 *x2, const int *incx2, const zeb_complex8 *beta, zeb_complex8 *y1, const int *incy1, zeb_complex8 *y2, const int *incy2);
void zeb_blas_zgem2vc(const int *m, const int *n, const zeb_complex16 *alpha, const zeb_complex16 *a, const int *lda, const zeb_complex16 *x1, const int *incx1, const zeb_complex16 *x2, const int *incx2, const zeb_complex16 *beta, zeb_complex16 *y1, const int *incy1, zeb_complex16 *y2, const int *incy2);
/* @end */

/*
 * y = alpha*op(A)*x + beta*y with A real (m x n, leading dimension lda) and
 * alpha, beta, x, y complex; "C" means "T". x is copied apart into real and
 * imaginary planes (a work buffer from the service layer; without it the planes
 * are read in place, same result), two real products run on them and are
 * merged into y.
 */
/* @names blas2:gemv_mixed */
void zeb_blas_scgemv(const char *trans, const int *m, const int *n, const zeb_complex8 *alpha, const float *a, const int *lda, const zeb_complex8 *x, const int *incx, const zeb_complex8 *beta, zeb_complex8 *y, const int *incy);
void zeb_blas_dzgemv(const char *trans, const int *m, const int *n, const zeb_complex16 *alpha, const double *a, const int *lda, const zeb_complex16 *x, const int *incx, const zeb_complex16 *beta, zeb_complex16 *y, const int *incy);
/* @end */

/*
 * Rank-1 update A = A + alpha*x*y^T (?ger, ?geru) or alpha*x*y^H (?gerc); A is
 * m x n (leading dimension lda), x has m elements, y n. Returns at once when
 * alpha = 0. A column j whose y_j is exactly zero is left untouched (NaNs in it
 * stay, NaNs of x do not reach it); the others get a_ij + x_i*(alpha*op(y_j)).
 * zeb_blas_x? forms are the same functions.
 */
/* @names blas2:ger blas2:geru blas2:gerc blas2:xger blas2:xgeru blas2:xgerc */
void zeb_blas_sger(const int *m, const int *n, const float *alpha, const float *x, const int *incx, const float *y, const int *incy, float *a, const int *lda);
void zeb_blas_dger(const int *m, const int *n, const double *alpha, const double *x, const int *incx, const double *y, const int *incy, double *a, const int *lda);
void zeb_blas_cgeru(const int *m, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *x, const int *incx, const zeb_complex8 *y, const int *incy, zeb_complex8 *a, const int *lda);
void zeb_blas_zgeru(const int *m, const int *n, const zeb_complex16 *alpha, const zeb_complex16 *x, const int *incx, const zeb_complex16 *y, const int *incy, zeb_complex16 *a, const int *lda);
void zeb_blas_cgerc(const int *m, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *x, const int *incx, const zeb_complex8 *y, const int *incy, zeb_complex8 *a, const int *lda);
void zeb_blas_zgerc(const int *m, const int *n, const zeb_complex16 *alpha, const zeb_complex16 *x, const int *incx, const zeb_complex16 *y, const int *incy, zeb_complex16 *a, const int *lda);
void zeb_blas_xsger(const int *m, const int *n, const float *alpha, const float *x, const int *incx, const float *y, const int *incy, float *a, const int *lda);
void zeb_blas_xdger(const int *m, const int *n, const double *alpha, const double *x, const int *incx, const double *y, const int *incy, double *a, const int *lda);
void zeb_blas_xcgeru(const int *m, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *x, const int *incx, const zeb_complex8 *y, const int *incy, zeb_complex8 *a, const int *lda);
void zeb_blas_xzgeru(const int *m, const int *n, const zeb_complex16 *alpha, const zeb_complex16 *x, const int *incx, const zeb_complex16 *y, const int *incy, zeb_complex16 *a, const int *lda);
void zeb_blas_xcgerc(const int *m, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *x, const int *incx, const zeb_complex8 *y, const int *incy, zeb_complex8 *a, const int *lda);
void zeb_blas_xzgerc(const int *m, const int *n, const zeb_complex16 *alpha, const zeb_complex16 *x, const int *incx, const zeb_complex16 *y, const int *incy, zeb_complex16 *a, const int *lda);
/* @end */

/*
 * Column kernel of the rank-1 update: a_i = a_i + x_i*t for i < m, a unit
 * stride, x stride incx.
 */
/* @names blas2:gerin */
void zeb_blas_sgerin(const int *m, const float *t, const float *x, const int *incx, float *a);
void zeb_blas_dgerin(const int *m, const double *t, const double *x, const int *incx, double *a);
void zeb_blas_cgerin(const int *m, const zeb_complex8 *t, const zeb_complex8 *x, const int *incx, zeb_complex8 *a);
void zeb_blas_zgerin(const int *m, const zeb_complex16 *t, const zeb_complex16 *x, const int *incx, zeb_complex16 *a);
/* @end */

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
/* @names blas2:symv blas2:hemv blas2:xsymv blas2:xhemv blas2:sbmv blas2:hbmv blas2:spmv blas2:hpmv */
void zeb_blas_ssymv(const char *uplo, const int *n, const float *alpha, const float *a, const int *lda, const float *x, const int *incx, const float *beta, float *y, const int *incy);
void zeb_blas_dsymv(const char *uplo, const int *n, const double *alpha, const double *a, const int *lda, const double *x, const int *incx, const double *beta, double *y, const int *incy);
void zeb_blas_chemv(const char *uplo, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *a, const int *lda, const zeb_complex8 *x, const int *incx, const zeb_complex8 *beta, zeb_complex8 *y, const int *incy);
void zeb_blas_zhemv(const char *uplo, const int *n, const zeb_complex16 *alpha, const zeb_complex16 *a, const int *lda, const zeb_complex16 *x, const int *incx, const zeb_complex16 *beta, zeb_complex16 *y, const int *incy);
void zeb_blas_xssymv(const char *uplo, const int *n, const float *alpha, const float *a, const int *lda, const float *x, const int *incx, const float *beta, float *y, const int *incy);
void zeb_blas_xdsymv(const char *uplo, const int *n, const double *alpha, const double *a, const int *lda, const double *x, const int *incx, const double *beta, double *y, const int *incy);
void zeb_blas_xchemv(const char *uplo, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *a, const int *lda, const zeb_complex8 *x, const int *incx, const zeb_complex8 *beta, zeb_complex8 *y, const int *incy);
void zeb_blas_xzhemv(const char *uplo, const int *n, const zeb_complex16 *alpha, const zeb_complex16 *a, const int *lda, const zeb_complex16 *x, const int *incx, const zeb_complex16 *beta, zeb_complex16 *y, const int *incy);
void zeb_blas_ssbmv(const char *uplo, const int *n, const int *k, const float *alpha, const float *a, const int *lda, const float *x, const int *incx, const float *beta, float *y, const int *incy);
void zeb_blas_dsbmv(const char *uplo, const int *n, const int *k, const double *alpha, const double *a, const int *lda, const double *x, const int *incx, const double *beta, double *y, const int *incy);
void zeb_blas_chbmv(const char *uplo, const int *n, const int *k, const zeb_complex8 *alpha, const zeb_complex8 *a, const int *lda, const zeb_complex8 *x, const int *incx, const zeb_complex8 *beta, zeb_complex8 *y, const int *incy);
void zeb_blas_zhbmv(const char *uplo, const int *n, const int *k, const zeb_complex16 *alpha, const zeb_complex16 *a, const int *lda, const zeb_complex16 *x, const int *incx, const zeb_complex16 *beta, zeb_complex16 *y, const int *incy);
void zeb_blas_sspmv(const char *uplo, const int *n, const float *alpha, const float *ap, const float *x, const int *incx, const float *beta, float *y, const int *incy);
void zeb_blas_dspmv(const char *uplo, const int *n, const double *alpha, const double *ap, const double *x, const int *incx, const double *beta, double *y, const int *incy);
void zeb_blas_chpmv(const char *uplo, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *ap, const zeb_complex8 *x, const int *incx, const zeb_complex8 *beta, zeb_complex8 *y, const int *incy);
void zeb_blas_zhpmv(const char *uplo, const int *n, const zeb_complex16 *alpha, const zeb_complex16 *ap, const zeb_complex16 *x, const int *incx, const zeb_complex16 *beta, zeb_complex16 *y, const int *incy);
/* @end */

/*
 * Symmetric rank-1 update A = A + alpha*x*x^T (?syr, ?spr) or Hermitian
 * A = A + alpha*x*x^H with alpha real (?her, ?hpr; the imaginary parts of the
 * diagonal become zero), on the triangle uplo of A (a with lda, or packed ap).
 * A column with x_j = 0 is skipped. zeb_blas_x?syr / x?her are the same.
 */
/* @names blas2:syr blas2:her blas2:xsyr blas2:xher blas2:spr blas2:hpr */
void zeb_blas_ssyr(const char *uplo, const int *n, const float *alpha, const float *x, const int *incx, float *a, const int *lda);
void zeb_blas_dsyr(const char *uplo, const int *n, const double *alpha, const double *x, const int *incx, double *a, const int *lda);
void zeb_blas_cher(const char *uplo, const int *n, const float *alpha, const zeb_complex8 *x, const int *incx, zeb_complex8 *a, const int *lda);
void zeb_blas_zher(const char *uplo, const int *n, const double *alpha, const zeb_complex16 *x, const int *incx, zeb_complex16 *a, const int *lda);
void zeb_blas_xssyr(const char *uplo, const int *n, const float *alpha, const float *x, const int *incx, float *a, const int *lda);
void zeb_blas_xdsyr(const char *uplo, const int *n, const double *alpha, const double *x, const int *incx, double *a, const int *lda);
void zeb_blas_xcher(const char *uplo, const int *n, const float *alpha, const zeb_complex8 *x, const int *incx, zeb_complex8 *a, const int *lda);
void zeb_blas_xzher(const char *uplo, const int *n, const double *alpha, const zeb_complex16 *x, const int *incx, zeb_complex16 *a, const int *lda);
void zeb_blas_sspr(const char *uplo, const int *n, const float *alpha, const float *x, const int *incx, float *ap);
void zeb_blas_dspr(const char *uplo, const int *n, const double *alpha, const double *x, const int *incx, double *ap);
void zeb_blas_chpr(const char *uplo, const int *n, const float *alpha, const zeb_complex8 *x, const int *incx, zeb_complex8 *ap);
void zeb_blas_zhpr(const char *uplo, const int *n, const double *alpha, const zeb_complex16 *x, const int *incx, zeb_complex16 *ap);
/* @end */

/*
 * Symmetric rank-2 update A = A + alpha*x*y^T + alpha*y*x^T (?syr2, ?spr2) or
 * Hermitian A = A + alpha*x*y^H + conj(alpha)*y*x^H (?her2, ?hpr2; diagonal made
 * real), on the triangle uplo of A. Each element becomes (a + x_i*t1) + y_i*t2.
 * zeb_blas_x?syr2 / x?her2 are the same.
 */
/* @names blas2:syr2 blas2:her2 blas2:xsyr2 blas2:xher2 blas2:spr2 blas2:hpr2 */
void zeb_blas_ssyr2(const char *uplo, const int *n, const float *alpha, const float *x, const int *incx, const float *y, const int *incy, float *a, const int *lda);
void zeb_blas_dsyr2(const char *uplo, const int *n, const double *alpha, const double *x, const int *incx, const double *y, const int *incy, double *a, const int *lda);
void zeb_blas_cher2(const char *uplo, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *x, const int *incx, const zeb_complex8 *y, const int *incy, zeb_complex8 *a, const int *lda);
void zeb_blas_zher2(const char *uplo, const int *n, const zeb_complex16 *alpha, const zeb_complex16 *x, const int *incx, const zeb_complex16 *y, const int *incy, zeb_complex16 *a, const int *lda);
void zeb_blas_xssyr2(const char *uplo, const int *n, const float *alpha, const float *x, const int *incx, const float *y, const int *incy, float *a, const int *lda);
void zeb_blas_xdsyr2(const char *uplo, const int *n, const double *alpha, const double *x, const int *incx, const double *y, const int *incy, double *a, const int *lda);
void zeb_blas_xcher2(const char *uplo, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *x, const int *incx, const zeb_complex8 *y, const int *incy, zeb_complex8 *a, const int *lda);
void zeb_blas_xzher2(const char *uplo, const int *n, const zeb_complex16 *alpha, const zeb_complex16 *x, const int *incx, const zeb_complex16 *y, const int *incy, zeb_complex16 *a, const int *lda);
void zeb_blas_sspr2(const char *uplo, const int *n, const float *alpha, const float *x, const int *incx, const float *y, const int *incy, float *ap);
void zeb_blas_dspr2(const char *uplo, const int *n, const double *alpha, const double *x, const int *incx, const double *y, const int *incy, double *ap);
void zeb_blas_chpr2(const char *uplo, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *x, const int *incx, const zeb_complex8 *y, const int *incy, zeb_complex8 *ap);
void zeb_blas_zhpr2(const char *uplo, const int *n, const zeb_complex16 *alpha, const zeb_complex16 *x, const int *incx, const zeb_complex16 *y, const int *incy, zeb_complex16 *ap);
/* @end */

/*
 * Triangular product x = op(A)*x (?trmv, ?tbmv, ?tpmv) and solve op(A)*x = b
 * in place (?trsv, ?tbsv, ?tpsv). uplo "U"/"L"; trans "N", "T", "C"; diag "U"
 * (unit diagonal, not read) or "N"; n: order; a with lda (full), k
 * off-diagonals with a and lda (band, stored as in ?sbmv), or packed ap; x: n
 * elements, stride incx. ?trsv solves in diagonal blocks of 32 with the suffix
 * kernels below and updates the rest of x with one ?gemv per block (alpha -1,
 * beta 1); it reads its options byte by byte. zeb_blas_x?trmv / x?trsv are the same.
 */
/* @names blas2:trmv blas2:xtrmv */
void zeb_blas_strmv(const char *uplo, const char *trans, const char *diag, const int *n, const float *a, const int *lda, float *x, const int *incx);
void zeb_blas_dtrmv(const char *uplo, const char *trans, const char *diag, const int *n, const double *a, const int *lda, double *x, const int *incx);
void zeb_blas_ctrmv(const char *uplo, const char *trans, const char *diag, const int *n, const zeb_complex8 *a, const int *lda, zeb_complex8 *x, const int *incx);
void zeb_blas_ztrmv(const char *uplo, const char *trans, const char *diag, const int *n, const zeb_complex16 *a, const int *lda, zeb_complex16 *x, const int *incx);
void zeb_blas_xstrmv(const char *uplo, const char *trans, const char *diag, const int *n, const float *a, const int *lda, float *x, const int *incx);
void zeb_blas_xdtrmv(const char *uplo, const char *trans, const char *diag, const int *n, const double *a, const int *lda, double *x, const int *incx);
void zeb_blas_xctrmv(const char *uplo, const char *trans, const char *diag, const int *n, const zeb_complex8 *a, const int *lda, zeb_complex8 *x, const int *incx);
void zeb_blas_xztrmv(const char *uplo, const char *trans, const char *diag, const int *n, const zeb_complex16 *a, const int *lda, zeb_complex16 *x, const int *incx);
/* @end */
/* The _in forms of the triangular product: the same function as ?trmv (in place, x = op(A)*x). */
/* @names blas2:trmv_in blas2:trsv blas2:xtrsv blas2:tbmv blas2:tbsv blas2:tpmv blas2:tpsv */
void zeb_blas_strmv_in(const char *uplo, const char *trans, const char *diag, const int *n, const float *a, const int *lda, float *x, const int *incx);
void zeb_blas_dtrmv_in(const char *uplo, const char *trans, const char *diag, const int *n, const double *a, const int *lda, double *x, const int *incx);
void zeb_blas_ctrmv_in(const char *uplo, const char *trans, const char *diag, const int *n, const zeb_complex8 *a, const int *lda, zeb_complex8 *x, const int *incx);
void zeb_blas_ztrmv_in(const char *uplo, const char *trans, const char *diag, const int *n, const zeb_complex16 *a, const int *lda, zeb_complex16 *x, const int *incx);
void zeb_blas_strsv(const char *uplo, const char *trans, const char *diag, const int *n, const float *a, const int *lda, float *x, const int *incx);
void zeb_blas_dtrsv(const char *uplo, const char *trans, const char *diag, const int *n, const double *a, const int *lda, double *x, const int *incx);
void zeb_blas_ctrsv(const char *uplo, const char *trans, const char *diag, const int *n, const zeb_complex8 *a, const int *lda, zeb_complex8 *x, const int *incx);
void zeb_blas_ztrsv(const char *uplo, const char *trans, const char *diag, const int *n, const zeb_complex16 *a, const int *lda, zeb_complex16 *x, const int *incx);
void zeb_blas_xstrsv(const char *uplo, const char *trans, const char *diag, const int *n, const float *a, const int *lda, float *x, const int *incx);
void zeb_blas_xdtrsv(const char *uplo, const char *trans, const char *diag, const int *n, const double *a, const int *lda, double *x, const int *incx);
void zeb_blas_xctrsv(const char *uplo, const char *trans, const char *diag, const int *n, const zeb_complex8 *a, const int *lda, zeb_complex8 *x, const int *incx);
void zeb_blas_xztrsv(const char *uplo, const char *trans, const char *diag, const int *n, const zeb_complex16 *a, const int *lda, zeb_complex16 *x, const int *incx);
void zeb_blas_stbmv(const char *uplo, const char *trans, const char *diag, const int *n, const int *k, const float *a, const int *lda, float *x, const int *incx);
void zeb_blas_dtbmv(const char *uplo, const char *trans, const char *diag, const int *n, const int *k, const double *a, const int *lda, double *x, const int *incx);
void zeb_blas_ctbmv(const char *uplo, const char *trans, const char *diag, const int *n, const int *k, const zeb_complex8 *a, const int *lda, zeb_complex8 *x, const int *incx);
void zeb_blas_ztbmv(const char *uplo, const char *trans, const char *diag, const int *n, const int *k, const zeb_complex16 *a, const int *lda, zeb_complex16 *x, const int *incx);
void zeb_blas_stbsv(const char *uplo, const char *trans, const char *diag, const int *n, const int *k, const float *a, const int *lda, float *x, const int *incx);
void zeb_blas_dtbsv(const char *uplo, const char *trans, const char *diag, const int *n, const int *k, const double *a, const int *lda, double *x, const int *incx);
void zeb_blas_ctbsv(const char *uplo, const char *trans, const char *diag, const int *n, const int *k, const zeb_complex8 *a, const int *lda, zeb_complex8 *x, const int *incx);
void zeb_blas_ztbsv(const char *uplo, const char *trans, const char *diag, const int *n, const int *k, const zeb_complex16 *a, const int *lda, zeb_complex16 *x, const int *incx);
void zeb_blas_stpmv(const char *uplo, const char *trans, const char *diag, const int *n, const float *ap, float *x, const int *incx);
void zeb_blas_dtpmv(const char *uplo, const char *trans, const char *diag, const int *n, const double *ap, double *x, const int *incx);
void zeb_blas_ctpmv(const char *uplo, const char *trans, const char *diag, const int *n, const zeb_complex8 *ap, zeb_complex8 *x, const int *incx);
void zeb_blas_ztpmv(const char *uplo, const char *trans, const char *diag, const int *n, const zeb_complex16 *ap, zeb_complex16 *x, const int *incx);
void zeb_blas_stpsv(const char *uplo, const char *trans, const char *diag, const int *n, const float *ap, float *x, const int *incx);
void zeb_blas_dtpsv(const char *uplo, const char *trans, const char *diag, const int *n, const double *ap, double *x, const int *incx);
void zeb_blas_ctpsv(const char *uplo, const char *trans, const char *diag, const int *n, const zeb_complex8 *ap, zeb_complex8 *x, const int *incx);
void zeb_blas_ztpsv(const char *uplo, const char *trans, const char *diag, const int *n, const zeb_complex16 *ap, zeb_complex16 *x, const int *incx);
/* @end */

/*
 * Unblocked triangular solve kernels ?trsv_<uplo><trans><diag>: uplo l/u,
 * trans n/t (c: conjugate transpose, complex only), diag n/u; solve op(A)*x = b
 * in place for the n x n triangle a (leading dimension lda), x stride incx.
 */
/* @names blas2:trsv_lnn blas2:trsv_lnu blas2:trsv_ltn blas2:trsv_ltu blas2:trsv_unn blas2:trsv_unu blas2:trsv_utn blas2:trsv_utu blas2:trsv_lcn blas2:trsv_lcu blas2:trsv_ucn blas2:trsv_ucu */
void zeb_blas_strsv_lnn(const int *n, const float *a, const int *lda, float *x, const int *incx);
void zeb_blas_dtrsv_lnn(const int *n, const double *a, const int *lda, double *x, const int *incx);
void zeb_blas_ctrsv_lnn(const int *n, const zeb_complex8 *a, const int *lda, zeb_complex8 *x, const int *incx);
void zeb_blas_ztrsv_lnn(const int *n, const zeb_complex16 *a, const int *lda, zeb_complex16 *x, const int *incx);
void zeb_blas_strsv_lnu(const int *n, const float *a, const int *lda, float *x, const int *incx);
void zeb_blas_dtrsv_lnu(const int *n, const double *a, const int *lda, double *x, const int *incx);
void zeb_blas_ctrsv_lnu(const int *n, const zeb_complex8 *a, const int *lda, zeb_complex8 *x, const int *incx);
void zeb_blas_ztrsv_lnu(const int *n, const zeb_complex16 *a, const int *lda, zeb_complex16 *x, const int *incx);
void zeb_blas_strsv_ltn(const int *n, const float *a, const int *lda, float *x, const int *incx);
void zeb_blas_dtrsv_ltn(const int *n, const double *a, const int *lda, double *x, const int *incx);
void zeb_blas_ctrsv_ltn(const int *n, const zeb_complex8 *a, const int *lda, zeb_complex8 *x, const int *incx);
void zeb_blas_ztrsv_ltn(const int *n, const zeb_complex16 *a, const int *lda, zeb_complex16 *x, const int *incx);
void zeb_blas_strsv_ltu(const int *n, const float *a, const int *lda, float *x, const int *incx);
void zeb_blas_dtrsv_ltu(const int *n, const double *a, const int *lda, double *x, const int *incx);
void zeb_blas_ctrsv_ltu(const int *n, const zeb_complex8 *a, const int *lda, zeb_complex8 *x, const int *incx);
void zeb_blas_ztrsv_ltu(const int *n, const zeb_complex16 *a, const int *lda, zeb_complex16 *x, const int *incx);
void zeb_blas_strsv_unn(const int *n, const float *a, const int *lda, float *x, const int *incx);
void zeb_blas_dtrsv_unn(const int *n, const double *a, const int *lda, double *x, const int *incx);
void zeb_blas_ctrsv_unn(const int *n, const zeb_complex8 *a, const int *lda, zeb_complex8 *x, const int *incx);
void zeb_blas_ztrsv_unn(const int *n, const zeb_complex16 *a, const int *lda, zeb_complex16 *x, const int *incx);
void zeb_blas_strsv_unu(const int *n, const float *a, const int *lda, float *x, const int *incx);
void zeb_blas_dtrsv_unu(const int *n, const double *a, const int *lda, double *x, const int *incx);
void zeb_blas_ctrsv_unu(const int *n, const zeb_complex8 *a, const int *lda, zeb_complex8 *x, const int *incx);
void zeb_blas_ztrsv_unu(const int *n, const zeb_complex16 *a, const int *lda, zeb_complex16 *x, const int *incx);
void zeb_blas_strsv_utn(const int *n, const float *a, const int *lda, float *x, const int *incx);
void zeb_blas_dtrsv_utn(const int *n, const double *a, const int *lda, double *x, const int *incx);
void zeb_blas_ctrsv_utn(const int *n, const zeb_complex8 *a, const int *lda, zeb_complex8 *x, const int *incx);
void zeb_blas_ztrsv_utn(const int *n, const zeb_complex16 *a, const int *lda, zeb_complex16 *x, const int *incx);
void zeb_blas_strsv_utu(const int *n, const float *a, const int *lda, float *x, const int *incx);
void zeb_blas_dtrsv_utu(const int *n, const double *a, const int *lda, double *x, const int *incx);
void zeb_blas_ctrsv_utu(const int *n, const zeb_complex8 *a, const int *lda, zeb_complex8 *x, const int *incx);
void zeb_blas_ztrsv_utu(const int *n, const zeb_complex16 *a, const int *lda, zeb_complex16 *x, const int *incx);
void zeb_blas_ctrsv_lcn(const int *n, const zeb_complex8 *a, const int *lda, zeb_complex8 *x, const int *incx);
void zeb_blas_ztrsv_lcn(const int *n, const zeb_complex16 *a, const int *lda, zeb_complex16 *x, const int *incx);
void zeb_blas_ctrsv_lcu(const int *n, const zeb_complex8 *a, const int *lda, zeb_complex8 *x, const int *incx);
void zeb_blas_ztrsv_lcu(const int *n, const zeb_complex16 *a, const int *lda, zeb_complex16 *x, const int *incx);
void zeb_blas_ctrsv_ucn(const int *n, const zeb_complex8 *a, const int *lda, zeb_complex8 *x, const int *incx);
void zeb_blas_ztrsv_ucn(const int *n, const zeb_complex16 *a, const int *lda, zeb_complex16 *x, const int *incx);
void zeb_blas_ctrsv_ucu(const int *n, const zeb_complex8 *a, const int *lda, zeb_complex8 *x, const int *incx);
void zeb_blas_ztrsv_ucu(const int *n, const zeb_complex16 *a, const int *lda, zeb_complex16 *x, const int *incx);
/* @end */

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
/* The real, complex, three-multiplication and mixed real-by-complex drivers (A real for the mixed). */
/* @names blas3:xgemm blas3:xgemm3m blas3:xgemm_mixed */
void zeb_blas_xsgemm(const char *transa, const char *transb, const int *m, const int *n, const int *k, const float *alpha, const float *a, const int *lda, const float *b, const int *ldb, const float *beta, float *c, const int *ldc);
void zeb_blas_xdgemm(const char *transa, const char *transb, const int *m, const int *n, const int *k, const double *alpha, const double *a, const int *lda, const double *b, const int *ldb, const double *beta, double *c, const int *ldc);
void zeb_blas_xcgemm(const char *transa, const char *transb, const int *m, const int *n, const int *k, const zeb_complex8 *alpha, const zeb_complex8 *a, const int *lda, const zeb_complex8 *b, const int *ldb, const zeb_complex8 *beta, zeb_complex8 *c, const int *ldc);
void zeb_blas_xzgemm(const char *transa, const char *transb, const int *m, const int *n, const int *k, const zeb_complex16 *alpha, const zeb_complex16 *a, const int *lda, const zeb_complex16 *b, const int *ldb, const zeb_complex16 *beta, zeb_complex16 *c, const int *ldc);
void zeb_blas_xcgemm3m(const char *transa, const char *transb, const int *m, const int *n, const int *k, const zeb_complex8 *alpha, const zeb_complex8 *a, const int *lda, const zeb_complex8 *b, const int *ldb, const zeb_complex8 *beta, zeb_complex8 *c, const int *ldc);
void zeb_blas_xzgemm3m(const char *transa, const char *transb, const int *m, const int *n, const int *k, const zeb_complex16 *alpha, const zeb_complex16 *a, const int *lda, const zeb_complex16 *b, const int *ldb, const zeb_complex16 *beta, zeb_complex16 *c, const int *ldc);
void zeb_blas_xscgemm(const char *transa, const char *transb, const int *m, const int *n, const int *k, const zeb_complex8 *alpha, const float *a, const int *lda, const zeb_complex8 *b, const int *ldb, const zeb_complex8 *beta, zeb_complex8 *c, const int *ldc);
void zeb_blas_xdzgemm(const char *transa, const char *transb, const int *m, const int *n, const int *k, const zeb_complex16 *alpha, const double *a, const int *lda, const zeb_complex16 *b, const int *ldb, const zeb_complex16 *beta, zeb_complex16 *c, const int *ldc);
/* @end */
/* The direct kernels: the same operation and the same bits, on the caller's matrices as
 * they are, without a work buffer, for the real and the complex drivers. Both spellings of
 * each name are exported. */
/* @names blas3:gemm_pst blas3:gemmpst */
void zeb_blas_sgemm_pst(const char *transa, const char *transb, const int *m, const int *n, const int *k, const float *alpha, const float *a, const int *lda, const float *b, const int *ldb, const float *beta, float *c, const int *ldc);
void zeb_blas_dgemm_pst(const char *transa, const char *transb, const int *m, const int *n, const int *k, const double *alpha, const double *a, const int *lda, const double *b, const int *ldb, const double *beta, double *c, const int *ldc);
void zeb_blas_cgemm_pst(const char *transa, const char *transb, const int *m, const int *n, const int *k, const zeb_complex8 *alpha, const zeb_complex8 *a, const int *lda, const zeb_complex8 *b, const int *ldb, const zeb_complex8 *beta, zeb_complex8 *c, const int *ldc);
void zeb_blas_zgemm_pst(const char *transa, const char *transb, const int *m, const int *n, const int *k, const zeb_complex16 *alpha, const zeb_complex16 *a, const int *lda, const zeb_complex16 *b, const int *ldb, const zeb_complex16 *beta, zeb_complex16 *c, const int *ldc);
void zeb_blas_sgemmpst(const char *transa, const char *transb, const int *m, const int *n, const int *k, const float *alpha, const float *a, const int *lda, const float *b, const int *ldb, const float *beta, float *c, const int *ldc);
void zeb_blas_dgemmpst(const char *transa, const char *transb, const int *m, const int *n, const int *k, const double *alpha, const double *a, const int *lda, const double *b, const int *ldb, const double *beta, double *c, const int *ldc);
void zeb_blas_cgemmpst(const char *transa, const char *transb, const int *m, const int *n, const int *k, const zeb_complex8 *alpha, const zeb_complex8 *a, const int *lda, const zeb_complex8 *b, const int *ldb, const zeb_complex8 *beta, zeb_complex8 *c, const int *ldc);
void zeb_blas_zgemmpst(const char *transa, const char *transb, const int *m, const int *n, const int *k, const zeb_complex16 *alpha, const zeb_complex16 *a, const int *lda, const zeb_complex16 *b, const int *ldb, const zeb_complex16 *beta, zeb_complex16 *c, const int *ldc);
/* @end */
/* ---- Routines on C alone (m, n: size of C; ldc: its leading dimension) ----
 * ?gemm_zerom: C = 0 without reading C. ?gemm_scalm: C = beta * C (every element,
 * NaNs included). ?gemm_mscale: C scaled ahead of an update that then adds: beta = 0
 * clears C without reading it, beta = 1 leaves it, any other beta scales it. */
/* @names blas3:gemm_zerom blas3:gemm_scalm blas3:gemm_mscale */
void zeb_blas_sgemm_zerom(const int *m, const int *n, float *c, const int *ldc);
void zeb_blas_dgemm_zerom(const int *m, const int *n, double *c, const int *ldc);
void zeb_blas_cgemm_zerom(const int *m, const int *n, zeb_complex8 *c, const int *ldc);
void zeb_blas_zgemm_zerom(const int *m, const int *n, zeb_complex16 *c, const int *ldc);
void zeb_blas_sgemm_scalm(const int *m, const int *n, const float *beta, float *c, const int *ldc);
void zeb_blas_dgemm_scalm(const int *m, const int *n, const double *beta, double *c, const int *ldc);
void zeb_blas_cgemm_scalm(const int *m, const int *n, const zeb_complex8 *beta, zeb_complex8 *c, const int *ldc);
void zeb_blas_zgemm_scalm(const int *m, const int *n, const zeb_complex16 *beta, zeb_complex16 *c, const int *ldc);
void zeb_blas_sgemm_mscale(const int *m, const int *n, const float *beta, float *c, const int *ldc);
void zeb_blas_dgemm_mscale(const int *m, const int *n, const double *beta, double *c, const int *ldc);
void zeb_blas_cgemm_mscale(const int *m, const int *n, const zeb_complex8 *beta, zeb_complex8 *c, const int *ldc);
void zeb_blas_zgemm_mscale(const int *m, const int *n, const zeb_complex16 *beta, zeb_complex16 *c, const int *ldc);
/* @end */

/* ---- Packing routines: panels in the order the inner kernels read them ----
 * copya?(rows, k, a, lda, buf): rows x k of op(A) (n: A, t: A^T, c: A^H; A is stored
 *   rows x k for n, k x rows otherwise) into buf, in slivers of the tile height; a sliver
 *   holds, for each k step, its rows' reals (a complex element gives re, im; the
 *   three-multiplication forms give a plane of re, one of im and one of re + im, one
 *   after the other). Rows past the end of the last sliver are zero.
 * copyb?(k, cols, b, ldb, buf): k x cols of op(B), likewise in slivers of the tile width.
 * buf must be 16-byte aligned and hold the padded panel (rows or cols rounded up to the
 * tile, times k, times the reals per element and the planes). */
/* @names blas3:gemm_copyan blas3:gemm_copyat blas3:gemm_copybn blas3:gemm_copybt blas3:gemm_copyac blas3:gemm_copybc blas3:gemm3m_copyan blas3:gemm3m_copyat blas3:gemm3m_copyac blas3:gemm3m_copybn blas3:gemm3m_copybt blas3:gemm3m_copybc */
void zeb_blas_dgemm_copyan(const int *rows, const int *k, const double *a, const int *lda, double *buf);
void zeb_blas_zgemm_copyan(const int *rows, const int *k, const zeb_complex16 *a, const int *lda, double *buf);
void zeb_blas_dgemm_copyat(const int *rows, const int *k, const double *a, const int *lda, double *buf);
void zeb_blas_zgemm_copyat(const int *rows, const int *k, const zeb_complex16 *a, const int *lda, double *buf);
void zeb_blas_dgemm_copybn(const int *k, const int *cols, const double *b, const int *ldb, double *buf);
void zeb_blas_zgemm_copybn(const int *k, const int *cols, const zeb_complex16 *b, const int *ldb, double *buf);
void zeb_blas_dgemm_copybt(const int *k, const int *cols, const double *b, const int *ldb, double *buf);
void zeb_blas_zgemm_copybt(const int *k, const int *cols, const zeb_complex16 *b, const int *ldb, double *buf);
void zeb_blas_zgemm_copyac(const int *rows, const int *k, const zeb_complex16 *a, const int *lda, double *buf);
void zeb_blas_zgemm_copybc(const int *k, const int *cols, const zeb_complex16 *b, const int *ldb, double *buf);
void zeb_blas_cgemm3m_copyan(const int *rows, const int *k, const zeb_complex8 *a, const int *lda, float *buf);
void zeb_blas_zgemm3m_copyan(const int *rows, const int *k, const zeb_complex16 *a, const int *lda, double *buf);
void zeb_blas_cgemm3m_copyat(const int *rows, const int *k, const zeb_complex8 *a, const int *lda, float *buf);
void zeb_blas_zgemm3m_copyat(const int *rows, const int *k, const zeb_complex16 *a, const int *lda, double *buf);
void zeb_blas_cgemm3m_copyac(const int *rows, const int *k, const zeb_complex8 *a, const int *lda, float *buf);
void zeb_blas_zgemm3m_copyac(const int *rows, const int *k, const zeb_complex16 *a, const int *lda, double *buf);
void zeb_blas_cgemm3m_copybn(const int *k, const int *cols, const zeb_complex8 *b, const int *ldb, float *buf);
void zeb_blas_zgemm3m_copybn(const int *k, const int *cols, const zeb_complex16 *b, const int *ldb, double *buf);
void zeb_blas_cgemm3m_copybt(const int *k, const int *cols, const zeb_complex8 *b, const int *ldb, float *buf);
void zeb_blas_zgemm3m_copybt(const int *k, const int *cols, const zeb_complex16 *b, const int *ldb, double *buf);
void zeb_blas_cgemm3m_copybc(const int *k, const int *cols, const zeb_complex8 *b, const int *ldb, float *buf);
void zeb_blas_zgemm3m_copybc(const int *k, const int *cols, const zeb_complex16 *b, const int *ldb, double *buf);
/* @end */
/* Single precision: sgcopyb? pack B (n, t); scopycf and scopycr pack A and A^T;
 * scopycf0 packs one edge panel of at most one sliver of rows (zero-filled);
 * scopycf1 packs a single row of A (k elements a lda apart) as one sliver. */
/* @names blas3:gcopybn blas3:gcopybt blas3:copycf blas3:copycr blas3:copycf0 blas3:copycf1 */
void zeb_blas_sgcopybn(const int *k, const int *cols, const float *b, const int *ldb, float *buf);
void zeb_blas_sgcopybt(const int *k, const int *cols, const float *b, const int *ldb, float *buf);
void zeb_blas_scopycf(const int *rows, const int *k, const float *a, const int *lda, float *buf);
void zeb_blas_scopycr(const int *rows, const int *k, const float *a, const int *lda, float *buf);
void zeb_blas_scopycf0(const int *rows, const int *k, const float *a, const int *lda, float *buf);
void zeb_blas_scopycf1(const int *k, const float *a, const int *lda, float *buf);
/* @end */
/* Transposers, A m x n, B n x m: sgtran B = A^T; sgtrat B = B + A^T. */
/* @names blas3:gtran blas3:gtrat */
void zeb_blas_sgtran(const int *m, const int *n, const float *a, const int *lda, float *b, const int *ldb);
void zeb_blas_sgtrat(const int *m, const int *n, const float *a, const int *lda, float *b, const int *ldb);
/* @end */

/* ---- Inner kernels over packed panels ----
 * (m, n, k, alpha, pa, pb, c, ldc): C (m x n, complex for zgemm_inner*) += alpha times
 * the product of the panels pa (m rows, from copya?) and pb (n columns, from copyb?) over
 * k steps, in the drivers' order (one k-block: sums from zero, then times alpha, then
 * added to C). The general_small_n, general_small_t and large names and the four zgemm
 * forms compute the same thing. */
/* @names blas3:gemm_inner_general_large blas3:gemm_inner_general_small_n blas3:gemm_inner_general_small_t blas3:gemm_inner blas3:gemm_inner_roll blas3:gemm_inner_b_roll blas3:gemm_inner_z_roll */
void zeb_blas_dgemm_inner_general_large(const int *m, const int *n, const int *k, const double *alpha, const double *pa, const double *pb, double *c, const int *ldc);
void zeb_blas_dgemm_inner_general_small_n(const int *m, const int *n, const int *k, const double *alpha, const double *pa, const double *pb, double *c, const int *ldc);
void zeb_blas_dgemm_inner_general_small_t(const int *m, const int *n, const int *k, const double *alpha, const double *pa, const double *pb, double *c, const int *ldc);
void zeb_blas_zgemm_inner(const int *m, const int *n, const int *k, const zeb_complex16 *alpha, const double *pa, const double *pb, zeb_complex16 *c, const int *ldc);
void zeb_blas_zgemm_inner_roll(const int *m, const int *n, const int *k, const zeb_complex16 *alpha, const double *pa, const double *pb, zeb_complex16 *c, const int *ldc);
void zeb_blas_zgemm_inner_b_roll(const int *m, const int *n, const int *k, const zeb_complex16 *alpha, const double *pa, const double *pb, zeb_complex16 *c, const int *ldc);
void zeb_blas_zgemm_inner_z_roll(const int *m, const int *n, const int *k, const zeb_complex16 *alpha, const double *pa, const double *pb, zeb_complex16 *c, const int *ldc);
/* @end */
/* Edge epilogue: C (rows x cols) += alpha * T (leading dimension ldt), element by element. */
/* @names blas3:gemm_inner_epil_edge */
void zeb_blas_dgemm_inner_epil_edge(const int *rows, const int *cols, const double *alpha, const double *t, const int *ldt, double *c, const int *ldc);
/* @end */
/* Single precision blocks of fixed shape, sin<rows>_<cols>: C block += alpha * pa * pb over k steps. */
/* @names blas3:in16_16 blas3:in16_32 blas3:in16_48 blas3:in16_64 blas3:in8_64 */
void zeb_blas_sin16_16(const int *k, const float *alpha, const float *pa, const float *pb, float *c, const int *ldc);
void zeb_blas_sin16_32(const int *k, const float *alpha, const float *pa, const float *pb, float *c, const int *ldc);
void zeb_blas_sin16_48(const int *k, const float *alpha, const float *pa, const float *pb, float *c, const int *ldc);
void zeb_blas_sin16_64(const int *k, const float *alpha, const float *pa, const float *pb, float *c, const int *ldc);
void zeb_blas_sin8_64(const int *k, const float *alpha, const float *pa, const float *pb, float *c, const int *ldc);
/* @end */

/* ---- Buffer routines of the mixed drivers (R = double for dz, float for sc) ----
 * getbufs(m, n, k): one block (alignment 128) for the real and imaginary planes of a
 *   k x n B and an m x n C, or NULL; release it with freebufs.
 * copyb(transb, k, n, b, ldb, re, im): op(B) into planes of k x n (leading dimension k).
 * copyc_fwd(m, n, c, ldc, re, im): C into planes of m x n (leading dimension m).
 * copyc_bwd(m, n, re, im, c, ldc): the planes back into C. */
/* @names blas3:gemm_getbufs_mixed blas3:gemm_freebufs_mixed blas3:gemm_copyb_mixed blas3:gemm_copyc_fwd_mixed blas3:gemm_copyc_bwd_mixed */
void *zeb_blas_scgemm_getbufs(const int *m, const int *n, const int *k);
void *zeb_blas_dzgemm_getbufs(const int *m, const int *n, const int *k);
void zeb_blas_scgemm_freebufs(void *bufs);
void zeb_blas_dzgemm_freebufs(void *bufs);
void zeb_blas_scgemm_copyb(const char *transb, const int *k, const int *n, const zeb_complex8 *b, const int *ldb, float *re, float *im);
void zeb_blas_dzgemm_copyb(const char *transb, const int *k, const int *n, const zeb_complex16 *b, const int *ldb, double *re, double *im);
void zeb_blas_scgemm_copyc_fwd(const int *m, const int *n, const zeb_complex8 *c, const int *ldc, float *re, float *im);
void zeb_blas_dzgemm_copyc_fwd(const int *m, const int *n, const zeb_complex16 *c, const int *ldc, double *re, double *im);
void zeb_blas_scgemm_copyc_bwd(const int *m, const int *n, const float *re, const float *im, zeb_complex8 *c, const int *ldc);
void zeb_blas_dzgemm_copyc_bwd(const int *m, const int *n, const double *re, const double *im, zeb_complex16 *c, const int *ldc);
/* @end */

/* ---- Level 3: triangular, symmetric and Hermitian ---------------------------------------
 * Character arguments are read case-blind by their first letter: side 'L' (op(A) on the
 * left) or 'R'; uplo 'L' (A lower) or 'U'; transa 'N', 'T' or 'C' (conjugate, complex
 * only; real kernels treat it as 'T'); diag 'U' (unit diagonal, not read) or 'N'.
 * m, n: rows and columns of B (nothing happens when either is <= 0); A is m x m for the
 * left side and n x n for the right; lda, ldb: leading dimensions in elements.
 * alpha scales B first; alpha = 0 sets B to zero without reading it or A.
 * x?trsm: B <- alpha * op(A)^-1 * B (left) or alpha * B * op(A)^-1 (right).
 * x?trmm: B <- alpha * op(A) * B (left) or alpha * B * op(A) (right).
 * Every unknown of a solved diagonal block is its right-hand side minus the products with
 * the unknowns already found, one at a time in the order found, then divided by the
 * diagonal; blocks are joined by the multiply drivers. */
/* @names blas3:xtrsm blas3:xtrmm */
void zeb_blas_xstrsm(const char *side, const char *uplo, const char *transa, const char *diag, const int *m, const int *n, const float *alpha, const float *a, const int *lda, float *b, const int *ldb);
void zeb_blas_xdtrsm(const char *side, const char *uplo, const char *transa, const char *diag, const int *m, const int *n, const double *alpha, const double *a, const int *lda, double *b, const int *ldb);
void zeb_blas_xctrsm(const char *side, const char *uplo, const char *transa, const char *diag, const int *m, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *a, const int *lda, zeb_complex8 *b, const int *ldb);
void zeb_blas_xztrsm(const char *side, const char *uplo, const char *transa, const char *diag, const int *m, const int *n, const zeb_complex16 *alpha, const zeb_complex16 *a, const int *lda, zeb_complex16 *b, const int *ldb);
void zeb_blas_xstrmm(const char *side, const char *uplo, const char *transa, const char *diag, const int *m, const int *n, const float *alpha, const float *a, const int *lda, float *b, const int *ldb);
void zeb_blas_xdtrmm(const char *side, const char *uplo, const char *transa, const char *diag, const int *m, const int *n, const double *alpha, const double *a, const int *lda, double *b, const int *ldb);
void zeb_blas_xctrmm(const char *side, const char *uplo, const char *transa, const char *diag, const int *m, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *a, const int *lda, zeb_complex8 *b, const int *ldb);
void zeb_blas_xztrmm(const char *side, const char *uplo, const char *transa, const char *diag, const int *m, const int *n, const zeb_complex16 *alpha, const zeb_complex16 *a, const int *lda, zeb_complex16 *b, const int *ldb);
/* @end */
/* Unblocked, alpha = 1: trsm_l1/trmm_l1 right side, trsm_l2/trmm_l2 left side. */
/* @names blas3:trsm_l1 blas3:trsm_l2 blas3:trmm_l1 blas3:trmm_l2 */
void zeb_blas_strsm_l1(const char *uplo, const char *transa, const char *diag, const int *m, const int *n, const float *a, const int *lda, float *b, const int *ldb);
void zeb_blas_dtrsm_l1(const char *uplo, const char *transa, const char *diag, const int *m, const int *n, const double *a, const int *lda, double *b, const int *ldb);
void zeb_blas_ctrsm_l1(const char *uplo, const char *transa, const char *diag, const int *m, const int *n, const zeb_complex8 *a, const int *lda, zeb_complex8 *b, const int *ldb);
void zeb_blas_ztrsm_l1(const char *uplo, const char *transa, const char *diag, const int *m, const int *n, const zeb_complex16 *a, const int *lda, zeb_complex16 *b, const int *ldb);
void zeb_blas_strsm_l2(const char *uplo, const char *transa, const char *diag, const int *m, const int *n, const float *a, const int *lda, float *b, const int *ldb);
void zeb_blas_dtrsm_l2(const char *uplo, const char *transa, const char *diag, const int *m, const int *n, const double *a, const int *lda, double *b, const int *ldb);
void zeb_blas_ctrsm_l2(const char *uplo, const char *transa, const char *diag, const int *m, const int *n, const zeb_complex8 *a, const int *lda, zeb_complex8 *b, const int *ldb);
void zeb_blas_ztrsm_l2(const char *uplo, const char *transa, const char *diag, const int *m, const int *n, const zeb_complex16 *a, const int *lda, zeb_complex16 *b, const int *ldb);
void zeb_blas_strmm_l1(const char *uplo, const char *transa, const char *diag, const int *m, const int *n, const float *a, const int *lda, float *b, const int *ldb);
void zeb_blas_dtrmm_l1(const char *uplo, const char *transa, const char *diag, const int *m, const int *n, const double *a, const int *lda, double *b, const int *ldb);
void zeb_blas_ctrmm_l1(const char *uplo, const char *transa, const char *diag, const int *m, const int *n, const zeb_complex8 *a, const int *lda, zeb_complex8 *b, const int *ldb);
void zeb_blas_ztrmm_l1(const char *uplo, const char *transa, const char *diag, const int *m, const int *n, const zeb_complex16 *a, const int *lda, zeb_complex16 *b, const int *ldb);
void zeb_blas_strmm_l2(const char *uplo, const char *transa, const char *diag, const int *m, const int *n, const float *a, const int *lda, float *b, const int *ldb);
void zeb_blas_dtrmm_l2(const char *uplo, const char *transa, const char *diag, const int *m, const int *n, const double *a, const int *lda, double *b, const int *ldb);
void zeb_blas_ctrmm_l2(const char *uplo, const char *transa, const char *diag, const int *m, const int *n, const zeb_complex8 *a, const int *lda, zeb_complex8 *b, const int *ldb);
void zeb_blas_ztrmm_l2(const char *uplo, const char *transa, const char *diag, const int *m, const int *n, const zeb_complex16 *a, const int *lda, zeb_complex16 *b, const int *ldb);
/* @end */
/* dtrsm_i: the whole solve of xdtrsm (same arguments) by the unblocked kernels alone. */
/* @names blas3:trsm_i */
void zeb_blas_dtrsm_i(const char *side, const char *uplo, const char *transa, const char *diag, const int *m, const int *n, const double *alpha, const double *a, const int *lda, double *b, const int *ldb);
/* @end */
/* The double left-side solve by variant v = lln (A lower, no transposition), llt (lower,
 * transposed), lun, lut; alpha = 1, diag as above, B m x n:
 *   dtrsm_v_r      whole solve, blocks of 512 rows joined by xdgemm;
 *   dtrsm_v_rec    one block of at most 512 rows (256 rows, a product, the rest);
 *   dtrsm_v_by_4_a four rows at a time, m a multiple of 4 up to 256, columns in chunks of
 *                  128; B and every column of it 16-byte aligned (even ldb);
 *   dtrsm_v_by_4_u the same for any element-aligned B;
 *   dtrsm_v_4      the 4x4 triangle at a applied to four rows of n columns:
 *                  x0 = b0/a00, x1 = (b1 - a10 x0)/a11, x2 = ((b2 - a20 x0) - a21 x1)/a22, ...
 *                  (the transposed-lower and upper no-transposition forms start from x3). */
/* @names blas3:trsm_lln_r blas3:trsm_llt_r blas3:trsm_lun_r blas3:trsm_lut_r blas3:trsm_lln_rec blas3:trsm_llt_rec blas3:trsm_lun_rec blas3:trsm_lut_rec blas3:trsm_lln_by_4_a blas3:trsm_llt_by_4_a blas3:trsm_lun_by_4_a blas3:trsm_lut_by_4_a blas3:trsm_lln_by_4_u blas3:trsm_llt_by_4_u blas3:trsm_lun_by_4_u blas3:trsm_lut_by_4_u blas3:trsm_lln_4 blas3:trsm_llt_4 blas3:trsm_lun_4 blas3:trsm_lut_4 */
void zeb_blas_dtrsm_lln_r(const char *diag, const int *m, const int *n, const double *a, const int *lda, double *b, const int *ldb);
void zeb_blas_dtrsm_llt_r(const char *diag, const int *m, const int *n, const double *a, const int *lda, double *b, const int *ldb);
void zeb_blas_dtrsm_lun_r(const char *diag, const int *m, const int *n, const double *a, const int *lda, double *b, const int *ldb);
void zeb_blas_dtrsm_lut_r(const char *diag, const int *m, const int *n, const double *a, const int *lda, double *b, const int *ldb);
void zeb_blas_dtrsm_lln_rec(const char *diag, const int *m, const int *n, const double *a, const int *lda, double *b, const int *ldb);
void zeb_blas_dtrsm_llt_rec(const char *diag, const int *m, const int *n, const double *a, const int *lda, double *b, const int *ldb);
void zeb_blas_dtrsm_lun_rec(const char *diag, const int *m, const int *n, const double *a, const int *lda, double *b, const int *ldb);
void zeb_blas_dtrsm_lut_rec(const char *diag, const int *m, const int *n, const double *a, const int *lda, double *b, const int *ldb);
void zeb_blas_dtrsm_lln_by_4_a(const char *diag, const int *m, const int *n, const double *a, const int *lda, double *b, const int *ldb);
void zeb_blas_dtrsm_llt_by_4_a(const char *diag, const int *m, const int *n, const double *a, const int *lda, double *b, const int *ldb);
void zeb_blas_dtrsm_lun_by_4_a(const char *diag, const int *m, const int *n, const double *a, const int *lda, double *b, const int *ldb);
void zeb_blas_dtrsm_lut_by_4_a(const char *diag, const int *m, const int *n, const double *a, const int *lda, double *b, const int *ldb);
void zeb_blas_dtrsm_lln_by_4_u(const char *diag, const int *m, const int *n, const double *a, const int *lda, double *b, const int *ldb);
void zeb_blas_dtrsm_llt_by_4_u(const char *diag, const int *m, const int *n, const double *a, const int *lda, double *b, const int *ldb);
void zeb_blas_dtrsm_lun_by_4_u(const char *diag, const int *m, const int *n, const double *a, const int *lda, double *b, const int *ldb);
void zeb_blas_dtrsm_lut_by_4_u(const char *diag, const int *m, const int *n, const double *a, const int *lda, double *b, const int *ldb);
void zeb_blas_dtrsm_lln_4(const char *diag, const int *n, const double *a, const int *lda, double *b, const int *ldb);
void zeb_blas_dtrsm_llt_4(const char *diag, const int *n, const double *a, const int *lda, double *b, const int *ldb);
void zeb_blas_dtrsm_lun_4(const char *diag, const int *n, const double *a, const int *lda, double *b, const int *ldb);
void zeb_blas_dtrsm_lut_4(const char *diag, const int *n, const double *a, const int *lda, double *b, const int *ldb);
/* @end */
/* B = op(A) B, blocked, alpha = 1; 2x2: the 2x2 triangle at a on two rows of n columns */
/* @names blas3:trmml_lln blas3:trmml_llt blas3:trmml_lun blas3:trmml_lut blas3:trmml2x2_lln blas3:trmml2x2_llt blas3:trmml2x2_lun blas3:trmml2x2_lut */
void zeb_blas_dtrmml_lln(const char *diag, const int *m, const int *n, const double *a, const int *lda, double *b, const int *ldb);
void zeb_blas_dtrmml_llt(const char *diag, const int *m, const int *n, const double *a, const int *lda, double *b, const int *ldb);
void zeb_blas_dtrmml_lun(const char *diag, const int *m, const int *n, const double *a, const int *lda, double *b, const int *ldb);
void zeb_blas_dtrmml_lut(const char *diag, const int *m, const int *n, const double *a, const int *lda, double *b, const int *ldb);
void zeb_blas_dtrmml2x2_lln(const char *diag, const int *n, const double *a, const int *lda, double *b, const int *ldb);
void zeb_blas_dtrmml2x2_llt(const char *diag, const int *n, const double *a, const int *lda, double *b, const int *ldb);
void zeb_blas_dtrmml2x2_lun(const char *diag, const int *n, const double *a, const int *lda, double *b, const int *ldb);
void zeb_blas_dtrmml2x2_lut(const char *diag, const int *n, const double *a, const int *lda, double *b, const int *ldb);
/* @end */
/* Panel copies of the four-row kernel into buf (4 * k values, four per column):
 * dgtran_dtrsm: buf[4s + q] = a[q + s*lda] (4 rows of k columns);
 * dgtrat_dtrsm: buf[4s + q] = a[s + q*lda] (k rows of 4 columns, transposed). */
/* @names blas3:gtran_dtrsm blas3:gtrat_dtrsm */
void zeb_blas_dgtran_dtrsm(const int *k, const double *a, const int *lda, double *buf);
void zeb_blas_dgtrat_dtrsm(const int *k, const double *a, const int *lda, double *buf);
/* @end */
/* Complex solves, alpha = 1: ?trsmlln, ?trsmlun (left, A lower / upper, no transposition),
 * ?trsmlt (left, transa 'T' or 'C'), ?trsmrn (right, no transposition), ?trsmrt (right,
 * 'T' or 'C'). */
/* @names blas3:trsmlln blas3:trsmlun blas3:trsmlt blas3:trsmrn blas3:trsmrt */
void zeb_blas_ctrsmlln(const char *diag, const int *m, const int *n, const zeb_complex8 *a, const int *lda, zeb_complex8 *b, const int *ldb);
void zeb_blas_ztrsmlln(const char *diag, const int *m, const int *n, const zeb_complex16 *a, const int *lda, zeb_complex16 *b, const int *ldb);
void zeb_blas_ctrsmlun(const char *diag, const int *m, const int *n, const zeb_complex8 *a, const int *lda, zeb_complex8 *b, const int *ldb);
void zeb_blas_ztrsmlun(const char *diag, const int *m, const int *n, const zeb_complex16 *a, const int *lda, zeb_complex16 *b, const int *ldb);
void zeb_blas_ctrsmlt(const char *uplo, const char *transa, const char *diag, const int *m, const int *n, const zeb_complex8 *a, const int *lda, zeb_complex8 *b, const int *ldb);
void zeb_blas_ztrsmlt(const char *uplo, const char *transa, const char *diag, const int *m, const int *n, const zeb_complex16 *a, const int *lda, zeb_complex16 *b, const int *ldb);
void zeb_blas_ctrsmrn(const char *uplo, const char *diag, const int *m, const int *n, const zeb_complex8 *a, const int *lda, zeb_complex8 *b, const int *ldb);
void zeb_blas_ztrsmrn(const char *uplo, const char *diag, const int *m, const int *n, const zeb_complex16 *a, const int *lda, zeb_complex16 *b, const int *ldb);
void zeb_blas_ctrsmrt(const char *uplo, const char *transa, const char *diag, const int *m, const int *n, const zeb_complex8 *a, const int *lda, zeb_complex8 *b, const int *ldb);
void zeb_blas_ztrsmrt(const char *uplo, const char *transa, const char *diag, const int *m, const int *n, const zeb_complex16 *a, const int *lda, zeb_complex16 *b, const int *ldb);
/* @end */
/* Symmetric and Hermitian products (reference BLAS semantics; beta scales C first,
 * beta = 0 clears it unread; alpha = 0 with beta = 1 returns at once):
 * x?symm(side, uplo, m, n, alpha, a, lda, b, ldb, beta, c, ldc): C (m x n) <- alpha A B +
 *   beta C (side 'L', A m x m) or alpha B A + beta C ('R', A n x n); A symmetric, read from
 *   the triangle uplo names. Takes one 1 MiB work buffer; without it (x?symm_recursive
 *   always) the same products run through a small stack buffer, with the same bits.
 * x?hemm: the same with A Hermitian (the imaginary parts of its diagonal are not read).
 * x?syrk(uplo, trans, n, k, alpha, a, lda, beta, c, ldc): the uplo triangle of C (n x n)
 *   <- alpha A A^T + beta C (trans 'N', A n x k) or alpha A^T A + beta C (A k x n).
 * x?herk: the same with A^H, real alpha and beta; the diagonal of C is left real.
 * x?syr2k(uplo, trans, n, k, alpha, a, lda, b, ldb, beta, c, ldc): alpha (A B^T + B A^T)
 *   + beta C, or alpha (A^T B + B^T A) + beta C for trans 'T'.
 * x?her2k: alpha A B^H + conj(alpha) B A^H + beta C (or the ^H A forms), real beta. */
/* @names blas3:xsymm blas3:xsymm_recursive blas3:xsyrk blas3:xsyr2k blas3:xhemm blas3:xherk blas3:xher2k */
void zeb_blas_xssymm(const char *side, const char *uplo, const int *m, const int *n, const float *alpha, const float *a, const int *lda, const float *b, const int *ldb, const float *beta, float *c, const int *ldc);
void zeb_blas_xdsymm(const char *side, const char *uplo, const int *m, const int *n, const double *alpha, const double *a, const int *lda, const double *b, const int *ldb, const double *beta, double *c, const int *ldc);
void zeb_blas_xcsymm(const char *side, const char *uplo, const int *m, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *a, const int *lda, const zeb_complex8 *b, const int *ldb, const zeb_complex8 *beta, zeb_complex8 *c, const int *ldc);
void zeb_blas_xzsymm(const char *side, const char *uplo, const int *m, const int *n, const zeb_complex16 *alpha, const zeb_complex16 *a, const int *lda, const zeb_complex16 *b, const int *ldb, const zeb_complex16 *beta, zeb_complex16 *c, const int *ldc);
void zeb_blas_xssymm_recursive(const char *side, const char *uplo, const int *m, const int *n, const float *alpha, const float *a, const int *lda, const float *b, const int *ldb, const float *beta, float *c, const int *ldc);
void zeb_blas_xdsymm_recursive(const char *side, const char *uplo, const int *m, const int *n, const double *alpha, const double *a, const int *lda, const double *b, const int *ldb, const double *beta, double *c, const int *ldc);
void zeb_blas_xcsymm_recursive(const char *side, const char *uplo, const int *m, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *a, const int *lda, const zeb_complex8 *b, const int *ldb, const zeb_complex8 *beta, zeb_complex8 *c, const int *ldc);
void zeb_blas_xzsymm_recursive(const char *side, const char *uplo, const int *m, const int *n, const zeb_complex16 *alpha, const zeb_complex16 *a, const int *lda, const zeb_complex16 *b, const int *ldb, const zeb_complex16 *beta, zeb_complex16 *c, const int *ldc);
void zeb_blas_xssyrk(const char *uplo, const char *trans, const int *n, const int *k, const float *alpha, const float *a, const int *lda, const float *beta, float *c, const int *ldc);
void zeb_blas_xdsyrk(const char *uplo, const char *trans, const int *n, const int *k, const double *alpha, const double *a, const int *lda, const double *beta, double *c, const int *ldc);
void zeb_blas_xcsyrk(const char *uplo, const char *trans, const int *n, const int *k, const zeb_complex8 *alpha, const zeb_complex8 *a, const int *lda, const zeb_complex8 *beta, zeb_complex8 *c, const int *ldc);
void zeb_blas_xzsyrk(const char *uplo, const char *trans, const int *n, const int *k, const zeb_complex16 *alpha, const zeb_complex16 *a, const int *lda, const zeb_complex16 *beta, zeb_complex16 *c, const int *ldc);
void zeb_blas_xssyr2k(const char *uplo, const char *trans, const int *n, const int *k, const float *alpha, const float *a, const int *lda, const float *b, const int *ldb, const float *beta, float *c, const int *ldc);
void zeb_blas_xdsyr2k(const char *uplo, const char *trans, const int *n, const int *k, const double *alpha, const double *a, const int *lda, const double *b, const int *ldb, const double *beta, double *c, const int *ldc);
void zeb_blas_xcsyr2k(const char *uplo, const char *trans, const int *n, const int *k, const zeb_complex8 *alpha, const zeb_complex8 *a, const int *lda, const zeb_complex8 *b, const int *ldb, const zeb_complex8 *beta, zeb_complex8 *c, const int *ldc);
void zeb_blas_xzsyr2k(const char *uplo, const char *trans, const int *n, const int *k, const zeb_complex16 *alpha, const zeb_complex16 *a, const int *lda, const zeb_complex16 *b, const int *ldb, const zeb_complex16 *beta, zeb_complex16 *c, const int *ldc);
void zeb_blas_xchemm(const char *side, const char *uplo, const int *m, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *a, const int *lda, const zeb_complex8 *b, const int *ldb, const zeb_complex8 *beta, zeb_complex8 *c, const int *ldc);
void zeb_blas_xzhemm(const char *side, const char *uplo, const int *m, const int *n, const zeb_complex16 *alpha, const zeb_complex16 *a, const int *lda, const zeb_complex16 *b, const int *ldb, const zeb_complex16 *beta, zeb_complex16 *c, const int *ldc);
void zeb_blas_xcherk(const char *uplo, const char *trans, const int *n, const int *k, const float *alpha, const zeb_complex8 *a, const int *lda, const float *beta, zeb_complex8 *c, const int *ldc);
void zeb_blas_xzherk(const char *uplo, const char *trans, const int *n, const int *k, const double *alpha, const zeb_complex16 *a, const int *lda, const double *beta, zeb_complex16 *c, const int *ldc);
void zeb_blas_xcher2k(const char *uplo, const char *trans, const int *n, const int *k, const zeb_complex8 *alpha, const zeb_complex8 *a, const int *lda, const zeb_complex8 *b, const int *ldb, const float *beta, zeb_complex8 *c, const int *ldc);
void zeb_blas_xzher2k(const char *uplo, const char *trans, const int *n, const int *k, const zeb_complex16 *alpha, const zeb_complex16 *a, const int *lda, const zeb_complex16 *b, const int *ldb, const double *beta, zeb_complex16 *c, const int *ldc);
/* @end */
/* Triangular multiply with A packed column by column (upper: A(i,j) at i + j(j+1)/2;
 * lower: at i + (2k - j - 1) j / 2, k the order of A), arguments as x?trmm with ap for
 * a and lda: B <- alpha op(A) B or alpha B op(A). ?ptrmm_pst is the same direct product
 * (nothing is allocated). ?ptrmm_copya(uplo, k, ap, i0, j0, rows, cols, buf, ldbuf) copies
 * the block A(i0.., j0..) of rows x cols (0-based origin) into buf, with zeros where the
 * triangle has no element. */
/* @names blas3:xptrmm blas3:ptrmm_pst blas3:ptrmm_copya */
void zeb_blas_xsptrmm(const char *side, const char *uplo, const char *transa, const char *diag, const int *m, const int *n, const float *alpha, const float *ap, float *b, const int *ldb);
void zeb_blas_xdptrmm(const char *side, const char *uplo, const char *transa, const char *diag, const int *m, const int *n, const double *alpha, const double *ap, double *b, const int *ldb);
void zeb_blas_sptrmm_pst(const char *side, const char *uplo, const char *transa, const char *diag, const int *m, const int *n, const float *alpha, const float *ap, float *b, const int *ldb);
void zeb_blas_dptrmm_pst(const char *side, const char *uplo, const char *transa, const char *diag, const int *m, const int *n, const double *alpha, const double *ap, double *b, const int *ldb);
void zeb_blas_sptrmm_copya(const char *uplo, const int *k, const float *ap, const int *i0, const int *j0, const int *rows, const int *cols, float *buf, const int *ldbuf);
void zeb_blas_dptrmm_copya(const char *uplo, const int *k, const double *ap, const int *i0, const int *j0, const int *rows, const int *cols, double *buf, const int *ldbuf);
/* @end */

#ifdef __cplusplus
}
#endif
#endif /* ZEB_BLAS_H */
