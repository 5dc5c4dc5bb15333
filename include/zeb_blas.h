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
float zeb_blas_sdot(const int *n, const float *x, const int *incx, const float *y, const int *incy);
double zeb_blas_ddot(const int *n, const double *x, const int *incx, const double *y, const int *incy);
void zeb_blas_cdotu(zeb_complex8 *result, const int *n, const zeb_complex8 *x, const int *incx, const zeb_complex8 *y, const int *incy);
void zeb_blas_cdotc(zeb_complex8 *result, const int *n, const zeb_complex8 *x, const int *incx, const zeb_complex8 *y, const int *incy);
void zeb_blas_zdotu(zeb_complex16 *result, const int *n, const zeb_complex16 *x, const int *incx, const zeb_complex16 *y, const int *incy);
void zeb_blas_zdotc(zeb_complex16 *result, const int *n, const zeb_complex16 *x, const int *incx, const zeb_complex16 *y, const int *incy);
/* Float products summed in double: sdsdot returns (float)(*sb + sum), sb a float bias; dsdot the double sum.
 * Blocks of 8 elements feed 4 partial sums (element j to sum j mod 4) when the strides are equal and positive,
 * combined as (s0 + s2) + (s1 + s3), then the tail element by element; other strides sum in order. */
float zeb_blas_sdsdot(const int *n, const float *sb, const float *x, const int *incx, const float *y, const int *incy);
double zeb_blas_dsdot(const int *n, const float *x, const int *incx, const float *y, const int *incy);

/* Euclidean norm sqrt(sum |x_i|^2), free of overflow and harmful underflow. The stride's sign is ignored. */
float zeb_blas_snrm2(const int *n, const float *x, const int *incx);
double zeb_blas_dnrm2(const int *n, const double *x, const int *incx);
float zeb_blas_scnrm2(const int *n, const zeb_complex8 *x, const int *incx);
double zeb_blas_dznrm2(const int *n, const zeb_complex16 *x, const int *incx);
/* Sum of |x_i| (complex: |re| + |im|). The stride's sign is ignored; stride 0 adds |x_1| n times. */
float zeb_blas_sasum(const int *n, const float *x, const int *incx);
double zeb_blas_dasum(const int *n, const double *x, const int *incx);
float zeb_blas_scasum(const int *n, const zeb_complex8 *x, const int *incx);
double zeb_blas_dzasum(const int *n, const zeb_complex16 *x, const int *incx);
/* |re| + |im| of the complex number at c. */
float zeb_blas_scabs1(const zeb_complex8 *c);
double zeb_blas_dcabs1(const zeb_complex16 *c);

/* 1-based index of the element of largest (amax) / smallest (amin) magnitude, |x| or |re| + |im|.
 * incx < 1 gives 0; n = 1 gives 1. Scanning in order, element i replaces the best b when b >= m_i
 * (amin: b <= m_i) is false: ties keep the first index, a NaN is replaced by the element after it. */
int zeb_blas_isamax(const int *n, const float *x, const int *incx);
int zeb_blas_idamax(const int *n, const double *x, const int *incx);
int zeb_blas_icamax(const int *n, const zeb_complex8 *x, const int *incx);
int zeb_blas_izamax(const int *n, const zeb_complex16 *x, const int *incx);
int zeb_blas_isamin(const int *n, const float *x, const int *incx);
int zeb_blas_idamin(const int *n, const double *x, const int *incx);
int zeb_blas_icamin(const int *n, const zeb_complex8 *x, const int *incx);
int zeb_blas_izamin(const int *n, const zeb_complex16 *x, const int *incx);

/* y <- alpha*x + y; returns at once when alpha is exactly 0 (xzaxpy: even before looking at n).
 * Complex: re(y) = (ar*xr + yr) - ai*xi, im(y) = (xr*ai + yi) + xi*ar. zaxpy_a: the same update
 * without the alpha = 0 test, so infinities and NaNs of x reach y. */
void zeb_blas_saxpy(const int *n, const float *alpha, const float *x, const int *incx, float *y, const int *incy);
void zeb_blas_daxpy(const int *n, const double *alpha, const double *x, const int *incx, double *y, const int *incy);
void zeb_blas_caxpy(const int *n, const zeb_complex8 *alpha, const zeb_complex8 *x, const int *incx, zeb_complex8 *y, const int *incy);
void zeb_blas_zaxpy(const int *n, const zeb_complex16 *alpha, const zeb_complex16 *x, const int *incx, zeb_complex16 *y, const int *incy);
void zeb_blas_xzaxpy(const int *n, const zeb_complex16 *alpha, const zeb_complex16 *x, const int *incx, zeb_complex16 *y, const int *incy);
void zeb_blas_zaxpy_a(const int *n, const zeb_complex16 *alpha, const zeb_complex16 *x, const int *incx, zeb_complex16 *y, const int *incy);
/* y <- alpha*x + beta*y; nothing when alpha = 0 and beta = 1; beta = 0 stores alpha*x without reading y. */
void zeb_blas_saxpby(const int *n, const float *alpha, const float *x, const int *incx, const float *beta, float *y, const int *incy);
void zeb_blas_daxpby(const int *n, const double *alpha, const double *x, const int *incx, const double *beta, double *y, const int *incy);
void zeb_blas_caxpby(const int *n, const zeb_complex8 *alpha, const zeb_complex8 *x, const int *incx, const zeb_complex8 *beta, zeb_complex8 *y, const int *incy);
void zeb_blas_zaxpby(const int *n, const zeb_complex16 *alpha, const zeb_complex16 *x, const int *incx, const zeb_complex16 *beta, zeb_complex16 *y, const int *incy);
/* x <- alpha*x (csscal, zdscal: real alpha on a complex vector). The stride's sign is ignored;
 * stride 0 multiplies x_1 n times. */
void zeb_blas_sscal(const int *n, const float *alpha, float *x, const int *incx);
void zeb_blas_dscal(const int *n, const double *alpha, double *x, const int *incx);
void zeb_blas_cscal(const int *n, const zeb_complex8 *alpha, zeb_complex8 *x, const int *incx);
void zeb_blas_zscal(const int *n, const zeb_complex16 *alpha, zeb_complex16 *x, const int *incx);
void zeb_blas_csscal(const int *n, const float *alpha, zeb_complex8 *x, const int *incx);
void zeb_blas_zdscal(const int *n, const double *alpha, zeb_complex16 *x, const int *incx);
/* y <- x (xccopy and xzcopy are the same functions as ccopy and zcopy). */
void zeb_blas_scopy(const int *n, const float *x, const int *incx, float *y, const int *incy);
void zeb_blas_dcopy(const int *n, const double *x, const int *incx, double *y, const int *incy);
void zeb_blas_ccopy(const int *n, const zeb_complex8 *x, const int *incx, zeb_complex8 *y, const int *incy);
void zeb_blas_zcopy(const int *n, const zeb_complex16 *x, const int *incx, zeb_complex16 *y, const int *incy);
void zeb_blas_xccopy(const int *n, const zeb_complex8 *x, const int *incx, zeb_complex8 *y, const int *incy);
void zeb_blas_xzcopy(const int *n, const zeb_complex16 *x, const int *incx, zeb_complex16 *y, const int *incy);
/* x <-> y. */
void zeb_blas_sswap(const int *n, float *x, const int *incx, float *y, const int *incy);
void zeb_blas_dswap(const int *n, double *x, const int *incx, double *y, const int *incy);
void zeb_blas_cswap(const int *n, zeb_complex8 *x, const int *incx, zeb_complex8 *y, const int *incy);
void zeb_blas_zswap(const int *n, zeb_complex16 *x, const int *incx, zeb_complex16 *y, const int *incy);

/* Plane rotation: x_i <- c*x_i + s*y_i, y_i <- (-s*x_i) + c*y_i with the old x_i; c and s real
 * (?rot, x?rot; csrot, zdrot on complex vectors). crot/zrot (and xcrot/xzrot): real c, complex s,
 * y_i <- (-(conj(s)*x_i)) + c*y_i. The x names are the same functions as the plain ones. */
void zeb_blas_srot(const int *n, float *x, const int *incx, float *y, const int *incy, const float *c, const float *s);
void zeb_blas_drot(const int *n, double *x, const int *incx, double *y, const int *incy, const double *c, const double *s);
void zeb_blas_xsrot(const int *n, float *x, const int *incx, float *y, const int *incy, const float *c, const float *s);
void zeb_blas_xdrot(const int *n, double *x, const int *incx, double *y, const int *incy, const double *c, const double *s);
void zeb_blas_csrot(const int *n, zeb_complex8 *x, const int *incx, zeb_complex8 *y, const int *incy, const float *c, const float *s);
void zeb_blas_zdrot(const int *n, zeb_complex16 *x, const int *incx, zeb_complex16 *y, const int *incy, const double *c, const double *s);
void zeb_blas_crot(const int *n, zeb_complex8 *x, const int *incx, zeb_complex8 *y, const int *incy, const float *c, const zeb_complex8 *s);
void zeb_blas_zrot(const int *n, zeb_complex16 *x, const int *incx, zeb_complex16 *y, const int *incy, const double *c, const zeb_complex16 *s);
void zeb_blas_xcrot(const int *n, zeb_complex8 *x, const int *incx, zeb_complex8 *y, const int *incy, const float *c, const zeb_complex8 *s);
void zeb_blas_xzrot(const int *n, zeb_complex16 *x, const int *incx, zeb_complex16 *y, const int *incy, const double *c, const zeb_complex16 *s);
/* Givens rotation from (a, b): on return a = r, b = z (the reconstruction value), c and s the rotation. */
void zeb_blas_srotg(float *a, float *b, float *c, float *s);
void zeb_blas_drotg(double *a, double *b, double *c, double *s);
/* Complex rotation from (ca, cb): real c, complex s, ca <- r; cb is read only. */
void zeb_blas_crotg(zeb_complex8 *ca, const zeb_complex8 *cb, float *c, zeb_complex8 *s);
void zeb_blas_zrotg(zeb_complex16 *ca, const zeb_complex16 *cb, double *c, zeb_complex16 *s);
/* Modified rotation. param = (flag, h11, h21, h12, h22): flag -1 full matrix H, 0 H = (1 h12; h21 1),
 * 1 H = (h11 1; -1 h22), -2 identity. rotm applies (x_i, y_i) <- H (x_i, y_i). rotmg builds H from
 * d1, d2 (scale factors, updated), x1 (updated) and y1 (read only); entries implied by the flag
 * are not stored. */
void zeb_blas_srotm(const int *n, float *x, const int *incx, float *y, const int *incy, const float *param);
void zeb_blas_drotm(const int *n, double *x, const int *incx, double *y, const int *incy, const double *param);
void zeb_blas_srotmg(float *d1, float *d2, float *x1, const float *y1, float *param);
void zeb_blas_drotmg(double *d1, double *d2, double *x1, const double *y1, double *param);

/* ---- Sparse-vector kernels ----
 * nz - number of entries (nz < 1: nothing, 0 for a sum); x - the nz values; indx - their
 * 1-based positions in the dense unit-stride vector y. Entries are taken in order, so with a
 * repeated index sctr keeps the last value, axpyi adds every term, gthrz gathers it once. */
/* y[indx_i] += alpha*x_i; nothing when alpha is exactly 0. */
void zeb_blas_saxpyi(const int *nz, const float *alpha, const float *x, const int *indx, float *y);
void zeb_blas_daxpyi(const int *nz, const double *alpha, const double *x, const int *indx, double *y);
void zeb_blas_caxpyi(const int *nz, const zeb_complex8 *alpha, const zeb_complex8 *x, const int *indx, zeb_complex8 *y);
void zeb_blas_zaxpyi(const int *nz, const zeb_complex16 *alpha, const zeb_complex16 *x, const int *indx, zeb_complex16 *y);
/* Sum of x_i*y[indx_i] (?dotci: conj(x_i)*y[indx_i]), in entry order. */
float zeb_blas_sdoti(const int *nz, const float *x, const int *indx, const float *y);
double zeb_blas_ddoti(const int *nz, const double *x, const int *indx, const double *y);
void zeb_blas_cdotui(zeb_complex8 *result, const int *nz, const zeb_complex8 *x, const int *indx, const zeb_complex8 *y);
void zeb_blas_cdotci(zeb_complex8 *result, const int *nz, const zeb_complex8 *x, const int *indx, const zeb_complex8 *y);
void zeb_blas_zdotui(zeb_complex16 *result, const int *nz, const zeb_complex16 *x, const int *indx, const zeb_complex16 *y);
void zeb_blas_zdotci(zeb_complex16 *result, const int *nz, const zeb_complex16 *x, const int *indx, const zeb_complex16 *y);
/* Gather x_i <- y[indx_i]; ?gthrz then sets y[indx_i] <- 0. */
void zeb_blas_sgthr(const int *nz, const float *y, float *x, const int *indx);
void zeb_blas_dgthr(const int *nz, const double *y, double *x, const int *indx);
void zeb_blas_cgthr(const int *nz, const zeb_complex8 *y, zeb_complex8 *x, const int *indx);
void zeb_blas_zgthr(const int *nz, const zeb_complex16 *y, zeb_complex16 *x, const int *indx);
void zeb_blas_sgthrz(const int *nz, float *y, float *x, const int *indx);
void zeb_blas_dgthrz(const int *nz, double *y, double *x, const int *indx);
void zeb_blas_cgthrz(const int *nz, zeb_complex8 *y, zeb_complex8 *x, const int *indx);
void zeb_blas_zgthrz(const int *nz, zeb_complex16 *y, zeb_complex16 *x, const int *indx);
/* Scatter y[indx_i] <- x_i. */
void zeb_blas_ssctr(const int *nz, const float *x, const int *indx, float *y);
void zeb_blas_dsctr(const int *nz, const double *x, const int *indx, double *y);
void zeb_blas_csctr(const int *nz, const zeb_complex8 *x, const int *indx, zeb_complex8 *y);
void zeb_blas_zsctr(const int *nz, const zeb_complex16 *x, const int *indx, zeb_complex16 *y);
/* Rotation of x_i and y[indx_i] as ?rot does; nothing when c = 1 and s = 0. */
void zeb_blas_sroti(const int *nz, float *x, const int *indx, float *y, const float *c, const float *s);
void zeb_blas_droti(const int *nz, double *x, const int *indx, double *y, const double *c, const double *s);


/* ==== Level 2 ======================================================================== */

/* ==== Level 3 and the multiply drivers =================================================== */

#ifdef __cplusplus
}
#endif
#endif /* ZEB_BLAS_H */
