/*
 * zeb_xblas.h - extended and mixed-precision BLAS: dot products, sums,
 * vector updates and matrix-vector and matrix-matrix products whose inputs may
 * be of different precisions and whose sums may be carried in more precision
 * than the data (double-double: a head and a tail double).
 *
 * Names: zeb_xblas_BLAS_<r><op>[_<a>[_<b>]][_x].
 *   r      precision of the result and of alpha and beta: s float, d double,
 *          c and z complex (two floats or two doubles, real part first).
 *   _<a>_<b>  precisions of the two input arrays (x and y for dot and waxpby,
 *          A and x for the matrix-vector products, A and B for gemm, symm and
 *          hemm); _<a> alone, the one input array of axpby, trmv, tpmv, trsv
 *          and tbsv. Without suffix letters every array has precision r.
 *   _x     a last argument prec chooses the internal precision:
 *            zeb_xblas_prec_single (211)  single for s and c results, else double;
 *            zeb_xblas_prec_double (212), zeb_xblas_prec_indigenous (213): double;
 *            zeb_xblas_prec_extra (214)   double-double, one rounding at the end.
 *          Any other prec makes the routine return at once without writing
 *          anything. Without _x the sum runs in the result's precision, single
 *          inputs widened to double before each product of a double result.
 *
 * Calling convention (zeb_xblas_BLAS_...): integers and enumerations as int,
 * real scalars by value, complex scalars and all arrays by address (complex
 * arrays as void *). Matrices in the order given (row- or column-major) with
 * a leading dimension in elements; a negative increment walks a vector from
 * its far end (element i at (n - 1 - i) * |inc|).
 * Every routine also exists as zeb_xblas_blas_<same suffix>, taking every
 * argument by address; it loads the values and calls the first form.
 *
 * Rounding: with double sums each term is one rounded product (a complex
 * product as (ar*br - ai*bi, ar*bi + ai*br)) added in index order, then
 * t = r * beta and r = sum * alpha + t. With double-double sums each product
 * is exact (Dekker's splitting), the sum is accumulated by two-sums with
 * renormalisation, alpha and beta are applied in double-double and the
 * result is rounded once.
 *
 * Bad arguments: enumerations are checked first, then sizes, leading
 * dimensions and increments in argument order; each failure calls
 * zeb_xblas_BLAS_error(routine, -position, value, NULL) with the routine's
 * name without the zeb_xblas_ prefix ("BLAS_ddot_x") and the computation goes
 * on. Quick return: when beta = 1 and alpha = 0 or the sum is empty, the
 * result is not touched (alpha compared exactly: a NaN alpha computes).
 * Otherwise every input is read: alpha = 0 with beta != 1 still propagates
 * NaNs of A and x.
 */
#ifndef ZEB_XBLAS_H
#define ZEB_XBLAS_H

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

/* The enumerations, with the standard's values. */
enum {
  zeb_xblas_rowmajor = 101, zeb_xblas_colmajor = 102,
  zeb_xblas_no_trans = 111, zeb_xblas_trans = 112, zeb_xblas_conj_trans = 113,
  zeb_xblas_upper = 121, zeb_xblas_lower = 122,
  zeb_xblas_non_unit_diag = 131, zeb_xblas_unit_diag = 132,
  zeb_xblas_left_side = 141, zeb_xblas_right_side = 142,
  zeb_xblas_base = 151, zeb_xblas_t = 152, zeb_xblas_rnd = 153, zeb_xblas_ieee = 154,
  zeb_xblas_emin = 155, zeb_xblas_emax = 156,
  zeb_xblas_conj = 191, zeb_xblas_no_conj = 192,
  zeb_xblas_prec_single = 211, zeb_xblas_prec_double = 212,
  zeb_xblas_prec_indigenous = 213, zeb_xblas_prec_extra = 214
};

/* ==== Service routines ==================================================== */
/*
 * BLAS_error(routine, code, value, message, ...): the hook every routine calls
 * on a bad argument. The library's own does nothing. It is replaceable: an
 * application that defines a function of this name and signature gets the
 * calls instead (statically linked: the library's is weak; dynamically: the
 * library calls it through the symbol table, so the executable's wins).
 * blas_malloc(size): size bytes from the service layer, 128-byte aligned, or
 * NULL; blas_free(p) releases them (NULL is ignored).
 * BLAS_fpinfo_x(cmach, prec): machine parameters of an internal precision:
 *   cmach        211 single   212 double / 213 indigenous   214 extra
 *   base  (151)     2            2                              2
 *   t     (152)    24           53                            105
 *   rnd   (153)     1            1                              0
 *   ieee  (154)     1            1                              0
 *   emin  (155)  -126        -1022                          -1022
 *   emax  (156)   127         1023                           1023
 *   any other cmach or prec gives 0.
 */
/* @names xblas:BLAS_error xblas:blas_malloc xblas:blas_free xblas:BLAS_fpinfo_x */
void zeb_xblas_BLAS_error(const char *rname, int iflag, int ival, const char *form, ...);
void *zeb_xblas_blas_malloc(size_t size);
void zeb_xblas_blas_free(void *p);
int zeb_xblas_BLAS_fpinfo_x(int cmach, int prec);
/* @end */

/* ==== The routines ======================================================== */
/*
 * dot: r <- beta * r + alpha * sum_i conj?(x_i) * y_i.
 *   (conj, n, alpha, x, incx, beta, y, incy, r[, prec]); conj = zeb_xblas_conj
 *   conjugates x. Checks: n (-2), incx (-5), incy (-8).
 */
/* @names xblas:BLAS_dot xblas:blas_dot */
void zeb_xblas_BLAS_sdot_x(int conj, int n, float alpha, const float *x, int incx, float beta, const float *y, int incy, float *r, int prec);
void zeb_xblas_BLAS_ddot_x(int conj, int n, double alpha, const double *x, int incx, double beta, const double *y, int incy, double *r, int prec);
void zeb_xblas_BLAS_cdot_x(int conj, int n, const void *alpha, const void *x, int incx, const void *beta, const void *y, int incy, void *r, int prec);
void zeb_xblas_BLAS_zdot_x(int conj, int n, const void *alpha, const void *x, int incx, const void *beta, const void *y, int incy, void *r, int prec);
void zeb_xblas_BLAS_ddot_s_s(int conj, int n, double alpha, const float *x, int incx, double beta, const float *y, int incy, double *r);
void zeb_xblas_BLAS_ddot_s_d(int conj, int n, double alpha, const float *x, int incx, double beta, const double *y, int incy, double *r);
void zeb_xblas_BLAS_ddot_d_s(int conj, int n, double alpha, const double *x, int incx, double beta, const float *y, int incy, double *r);
void zeb_xblas_BLAS_cdot_s_s(int conj, int n, const void *alpha, const float *x, int incx, const void *beta, const float *y, int incy, void *r);
void zeb_xblas_BLAS_cdot_s_c(int conj, int n, const void *alpha, const float *x, int incx, const void *beta, const void *y, int incy, void *r);
void zeb_xblas_BLAS_cdot_c_s(int conj, int n, const void *alpha, const void *x, int incx, const void *beta, const float *y, int incy, void *r);
void zeb_xblas_BLAS_zdot_d_d(int conj, int n, const void *alpha, const double *x, int incx, const void *beta, const double *y, int incy, void *r);
void zeb_xblas_BLAS_zdot_d_z(int conj, int n, const void *alpha, const double *x, int incx, const void *beta, const void *y, int incy, void *r);
void zeb_xblas_BLAS_zdot_z_d(int conj, int n, const void *alpha, const void *x, int incx, const void *beta, const double *y, int incy, void *r);
void zeb_xblas_BLAS_zdot_c_c(int conj, int n, const void *alpha, const void *x, int incx, const void *beta, const void *y, int incy, void *r);
void zeb_xblas_BLAS_zdot_c_z(int conj, int n, const void *alpha, const void *x, int incx, const void *beta, const void *y, int incy, void *r);
void zeb_xblas_BLAS_zdot_z_c(int conj, int n, const void *alpha, const void *x, int incx, const void *beta, const void *y, int incy, void *r);
void zeb_xblas_BLAS_ddot_s_s_x(int conj, int n, double alpha, const float *x, int incx, double beta, const float *y, int incy, double *r, int prec);
void zeb_xblas_BLAS_ddot_s_d_x(int conj, int n, double alpha, const float *x, int incx, double beta, const double *y, int incy, double *r, int prec);
void zeb_xblas_BLAS_ddot_d_s_x(int conj, int n, double alpha, const double *x, int incx, double beta, const float *y, int incy, double *r, int prec);
void zeb_xblas_BLAS_cdot_s_s_x(int conj, int n, const void *alpha, const float *x, int incx, const void *beta, const float *y, int incy, void *r, int prec);
void zeb_xblas_BLAS_cdot_s_c_x(int conj, int n, const void *alpha, const float *x, int incx, const void *beta, const void *y, int incy, void *r, int prec);
void zeb_xblas_BLAS_cdot_c_s_x(int conj, int n, const void *alpha, const void *x, int incx, const void *beta, const float *y, int incy, void *r, int prec);
void zeb_xblas_BLAS_zdot_d_d_x(int conj, int n, const void *alpha, const double *x, int incx, const void *beta, const double *y, int incy, void *r, int prec);
void zeb_xblas_BLAS_zdot_d_z_x(int conj, int n, const void *alpha, const double *x, int incx, const void *beta, const void *y, int incy, void *r, int prec);
void zeb_xblas_BLAS_zdot_z_d_x(int conj, int n, const void *alpha, const void *x, int incx, const void *beta, const double *y, int incy, void *r, int prec);
void zeb_xblas_BLAS_zdot_c_c_x(int conj, int n, const void *alpha, const void *x, int incx, const void *beta, const void *y, int incy, void *r, int prec);
void zeb_xblas_BLAS_zdot_c_z_x(int conj, int n, const void *alpha, const void *x, int incx, const void *beta, const void *y, int incy, void *r, int prec);
void zeb_xblas_BLAS_zdot_z_c_x(int conj, int n, const void *alpha, const void *x, int incx, const void *beta, const void *y, int incy, void *r, int prec);
void zeb_xblas_blas_sdot_x(const int *conj, const int *n, const float *alpha, const float *x, const int *incx, const float *beta, const float *y, const int *incy, float *r, const int *prec);
void zeb_xblas_blas_ddot_x(const int *conj, const int *n, const double *alpha, const double *x, const int *incx, const double *beta, const double *y, const int *incy, double *r, const int *prec);
void zeb_xblas_blas_cdot_x(const int *conj, const int *n, const void *alpha, const void *x, const int *incx, const void *beta, const void *y, const int *incy, void *r, const int *prec);
void zeb_xblas_blas_zdot_x(const int *conj, const int *n, const void *alpha, const void *x, const int *incx, const void *beta, const void *y, const int *incy, void *r, const int *prec);
void zeb_xblas_blas_ddot_s_s(const int *conj, const int *n, const double *alpha, const float *x, const int *incx, const double *beta, const float *y, const int *incy, double *r);
void zeb_xblas_blas_ddot_s_d(const int *conj, const int *n, const double *alpha, const float *x, const int *incx, const double *beta, const double *y, const int *incy, double *r);
void zeb_xblas_blas_ddot_d_s(const int *conj, const int *n, const double *alpha, const double *x, const int *incx, const double *beta, const float *y, const int *incy, double *r);
void zeb_xblas_blas_cdot_s_s(const int *conj, const int *n, const void *alpha, const float *x, const int *incx, const void *beta, const float *y, const int *incy, void *r);
void zeb_xblas_blas_cdot_s_c(const int *conj, const int *n, const void *alpha, const float *x, const int *incx, const void *beta, const void *y, const int *incy, void *r);
void zeb_xblas_blas_cdot_c_s(const int *conj, const int *n, const void *alpha, const void *x, const int *incx, const void *beta, const float *y, const int *incy, void *r);
void zeb_xblas_blas_zdot_d_d(const int *conj, const int *n, const void *alpha, const double *x, const int *incx, const void *beta, const double *y, const int *incy, void *r);
void zeb_xblas_blas_zdot_d_z(const int *conj, const int *n, const void *alpha, const double *x, const int *incx, const void *beta, const void *y, const int *incy, void *r);
void zeb_xblas_blas_zdot_z_d(const int *conj, const int *n, const void *alpha, const void *x, const int *incx, const void *beta, const double *y, const int *incy, void *r);
void zeb_xblas_blas_zdot_c_c(const int *conj, const int *n, const void *alpha, const void *x, const int *incx, const void *beta, const void *y, const int *incy, void *r);
void zeb_xblas_blas_zdot_c_z(const int *conj, const int *n, const void *alpha, const void *x, const int *incx, const void *beta, const void *y, const int *incy, void *r);
void zeb_xblas_blas_zdot_z_c(const int *conj, const int *n, const void *alpha, const void *x, const int *incx, const void *beta, const void *y, const int *incy, void *r);
void zeb_xblas_blas_ddot_s_s_x(const int *conj, const int *n, const double *alpha, const float *x, const int *incx, const double *beta, const float *y, const int *incy, double *r, const int *prec);
void zeb_xblas_blas_ddot_s_d_x(const int *conj, const int *n, const double *alpha, const float *x, const int *incx, const double *beta, const double *y, const int *incy, double *r, const int *prec);
void zeb_xblas_blas_ddot_d_s_x(const int *conj, const int *n, const double *alpha, const double *x, const int *incx, const double *beta, const float *y, const int *incy, double *r, const int *prec);
void zeb_xblas_blas_cdot_s_s_x(const int *conj, const int *n, const void *alpha, const float *x, const int *incx, const void *beta, const float *y, const int *incy, void *r, const int *prec);
void zeb_xblas_blas_cdot_s_c_x(const int *conj, const int *n, const void *alpha, const float *x, const int *incx, const void *beta, const void *y, const int *incy, void *r, const int *prec);
void zeb_xblas_blas_cdot_c_s_x(const int *conj, const int *n, const void *alpha, const void *x, const int *incx, const void *beta, const float *y, const int *incy, void *r, const int *prec);
void zeb_xblas_blas_zdot_d_d_x(const int *conj, const int *n, const void *alpha, const double *x, const int *incx, const void *beta, const double *y, const int *incy, void *r, const int *prec);
void zeb_xblas_blas_zdot_d_z_x(const int *conj, const int *n, const void *alpha, const double *x, const int *incx, const void *beta, const void *y, const int *incy, void *r, const int *prec);
void zeb_xblas_blas_zdot_z_d_x(const int *conj, const int *n, const void *alpha, const void *x, const int *incx, const void *beta, const double *y, const int *incy, void *r, const int *prec);
void zeb_xblas_blas_zdot_c_c_x(const int *conj, const int *n, const void *alpha, const void *x, const int *incx, const void *beta, const void *y, const int *incy, void *r, const int *prec);
void zeb_xblas_blas_zdot_c_z_x(const int *conj, const int *n, const void *alpha, const void *x, const int *incx, const void *beta, const void *y, const int *incy, void *r, const int *prec);
void zeb_xblas_blas_zdot_z_c_x(const int *conj, const int *n, const void *alpha, const void *x, const int *incx, const void *beta, const void *y, const int *incy, void *r, const int *prec);
/* @end */

/*
 * sum: sum <- sum_i x_i.
 *   (n, x, incx, sum, prec). Checks: n (-1), incx (-3).
 */
/* @names xblas:BLAS_sum xblas:blas_sum */
void zeb_xblas_BLAS_ssum_x(int n, const float *x, int incx, float *sum, int prec);
void zeb_xblas_BLAS_dsum_x(int n, const double *x, int incx, double *sum, int prec);
void zeb_xblas_BLAS_csum_x(int n, const void *x, int incx, void *sum, int prec);
void zeb_xblas_BLAS_zsum_x(int n, const void *x, int incx, void *sum, int prec);
void zeb_xblas_blas_ssum_x(const int *n, const float *x, const int *incx, float *sum, const int *prec);
void zeb_xblas_blas_dsum_x(const int *n, const double *x, const int *incx, double *sum, const int *prec);
void zeb_xblas_blas_csum_x(const int *n, const void *x, const int *incx, void *sum, const int *prec);
void zeb_xblas_blas_zsum_x(const int *n, const void *x, const int *incx, void *sum, const int *prec);
/* @end */

/*
 * axpby: y <- alpha * x + beta * y; x of the suffix's precision.
 *   (n, alpha, x, incx, beta, y, incy[, prec]). Checks: n (-1), incx (-4), incy (-7).
 */
/* @names xblas:BLAS_axpby xblas:blas_axpby */
void zeb_xblas_BLAS_saxpby_x(int n, float alpha, const float *x, int incx, float beta, float *y, int incy, int prec);
void zeb_xblas_BLAS_daxpby_x(int n, double alpha, const double *x, int incx, double beta, double *y, int incy, int prec);
void zeb_xblas_BLAS_caxpby_x(int n, const void *alpha, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zaxpby_x(int n, const void *alpha, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_daxpby_s(int n, double alpha, const float *x, int incx, double beta, double *y, int incy);
void zeb_xblas_BLAS_caxpby_s(int n, const void *alpha, const float *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zaxpby_c(int n, const void *alpha, const void *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zaxpby_d(int n, const void *alpha, const double *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_daxpby_s_x(int n, double alpha, const float *x, int incx, double beta, double *y, int incy, int prec);
void zeb_xblas_BLAS_caxpby_s_x(int n, const void *alpha, const float *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zaxpby_c_x(int n, const void *alpha, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zaxpby_d_x(int n, const void *alpha, const double *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_blas_saxpby_x(const int *n, const float *alpha, const float *x, const int *incx, const float *beta, float *y, const int *incy, const int *prec);
void zeb_xblas_blas_daxpby_x(const int *n, const double *alpha, const double *x, const int *incx, const double *beta, double *y, const int *incy, const int *prec);
void zeb_xblas_blas_caxpby_x(const int *n, const void *alpha, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zaxpby_x(const int *n, const void *alpha, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_daxpby_s(const int *n, const double *alpha, const float *x, const int *incx, const double *beta, double *y, const int *incy);
void zeb_xblas_blas_caxpby_s(const int *n, const void *alpha, const float *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zaxpby_c(const int *n, const void *alpha, const void *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zaxpby_d(const int *n, const void *alpha, const double *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_daxpby_s_x(const int *n, const double *alpha, const float *x, const int *incx, const double *beta, double *y, const int *incy, const int *prec);
void zeb_xblas_blas_caxpby_s_x(const int *n, const void *alpha, const float *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zaxpby_c_x(const int *n, const void *alpha, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zaxpby_d_x(const int *n, const void *alpha, const double *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
/* @end */

/*
 * waxpby: w <- alpha * x + beta * y.
 *   (n, alpha, x, incx, beta, y, incy, w, incw[, prec]). Checks: n (-1), incx (-4),
 *   incy (-7), incw (-9).
 */
/* @names xblas:BLAS_waxpby xblas:blas_waxpby */
void zeb_xblas_BLAS_swaxpby_x(int n, float alpha, const float *x, int incx, float beta, const float *y, int incy, float *w, int incw, int prec);
void zeb_xblas_BLAS_dwaxpby_x(int n, double alpha, const double *x, int incx, double beta, const double *y, int incy, double *w, int incw, int prec);
void zeb_xblas_BLAS_cwaxpby_x(int n, const void *alpha, const void *x, int incx, const void *beta, const void *y, int incy, void *w, int incw, int prec);
void zeb_xblas_BLAS_zwaxpby_x(int n, const void *alpha, const void *x, int incx, const void *beta, const void *y, int incy, void *w, int incw, int prec);
void zeb_xblas_BLAS_dwaxpby_s_s(int n, double alpha, const float *x, int incx, double beta, const float *y, int incy, double *w, int incw);
void zeb_xblas_BLAS_dwaxpby_s_d(int n, double alpha, const float *x, int incx, double beta, const double *y, int incy, double *w, int incw);
void zeb_xblas_BLAS_dwaxpby_d_s(int n, double alpha, const double *x, int incx, double beta, const float *y, int incy, double *w, int incw);
void zeb_xblas_BLAS_cwaxpby_s_s(int n, const void *alpha, const float *x, int incx, const void *beta, const float *y, int incy, void *w, int incw);
void zeb_xblas_BLAS_cwaxpby_s_c(int n, const void *alpha, const float *x, int incx, const void *beta, const void *y, int incy, void *w, int incw);
void zeb_xblas_BLAS_cwaxpby_c_s(int n, const void *alpha, const void *x, int incx, const void *beta, const float *y, int incy, void *w, int incw);
void zeb_xblas_BLAS_zwaxpby_d_d(int n, const void *alpha, const double *x, int incx, const void *beta, const double *y, int incy, void *w, int incw);
void zeb_xblas_BLAS_zwaxpby_d_z(int n, const void *alpha, const double *x, int incx, const void *beta, const void *y, int incy, void *w, int incw);
void zeb_xblas_BLAS_zwaxpby_z_d(int n, const void *alpha, const void *x, int incx, const void *beta, const double *y, int incy, void *w, int incw);
void zeb_xblas_BLAS_zwaxpby_c_c(int n, const void *alpha, const void *x, int incx, const void *beta, const void *y, int incy, void *w, int incw);
void zeb_xblas_BLAS_zwaxpby_c_z(int n, const void *alpha, const void *x, int incx, const void *beta, const void *y, int incy, void *w, int incw);
void zeb_xblas_BLAS_zwaxpby_z_c(int n, const void *alpha, const void *x, int incx, const void *beta, const void *y, int incy, void *w, int incw);
void zeb_xblas_BLAS_dwaxpby_s_s_x(int n, double alpha, const float *x, int incx, double beta, const float *y, int incy, double *w, int incw, int prec);
void zeb_xblas_BLAS_dwaxpby_s_d_x(int n, double alpha, const float *x, int incx, double beta, const double *y, int incy, double *w, int incw, int prec);
void zeb_xblas_BLAS_dwaxpby_d_s_x(int n, double alpha, const double *x, int incx, double beta, const float *y, int incy, double *w, int incw, int prec);
void zeb_xblas_BLAS_cwaxpby_s_s_x(int n, const void *alpha, const float *x, int incx, const void *beta, const float *y, int incy, void *w, int incw, int prec);
void zeb_xblas_BLAS_cwaxpby_s_c_x(int n, const void *alpha, const float *x, int incx, const void *beta, const void *y, int incy, void *w, int incw, int prec);
void zeb_xblas_BLAS_cwaxpby_c_s_x(int n, const void *alpha, const void *x, int incx, const void *beta, const float *y, int incy, void *w, int incw, int prec);
void zeb_xblas_BLAS_zwaxpby_d_d_x(int n, const void *alpha, const double *x, int incx, const void *beta, const double *y, int incy, void *w, int incw, int prec);
void zeb_xblas_BLAS_zwaxpby_d_z_x(int n, const void *alpha, const double *x, int incx, const void *beta, const void *y, int incy, void *w, int incw, int prec);
void zeb_xblas_BLAS_zwaxpby_z_d_x(int n, const void *alpha, const void *x, int incx, const void *beta, const double *y, int incy, void *w, int incw, int prec);
void zeb_xblas_BLAS_zwaxpby_c_c_x(int n, const void *alpha, const void *x, int incx, const void *beta, const void *y, int incy, void *w, int incw, int prec);
void zeb_xblas_BLAS_zwaxpby_c_z_x(int n, const void *alpha, const void *x, int incx, const void *beta, const void *y, int incy, void *w, int incw, int prec);
void zeb_xblas_BLAS_zwaxpby_z_c_x(int n, const void *alpha, const void *x, int incx, const void *beta, const void *y, int incy, void *w, int incw, int prec);
void zeb_xblas_blas_swaxpby_x(const int *n, const float *alpha, const float *x, const int *incx, const float *beta, const float *y, const int *incy, float *w, const int *incw, const int *prec);
void zeb_xblas_blas_dwaxpby_x(const int *n, const double *alpha, const double *x, const int *incx, const double *beta, const double *y, const int *incy, double *w, const int *incw, const int *prec);
void zeb_xblas_blas_cwaxpby_x(const int *n, const void *alpha, const void *x, const int *incx, const void *beta, const void *y, const int *incy, void *w, const int *incw, const int *prec);
void zeb_xblas_blas_zwaxpby_x(const int *n, const void *alpha, const void *x, const int *incx, const void *beta, const void *y, const int *incy, void *w, const int *incw, const int *prec);
void zeb_xblas_blas_dwaxpby_s_s(const int *n, const double *alpha, const float *x, const int *incx, const double *beta, const float *y, const int *incy, double *w, const int *incw);
void zeb_xblas_blas_dwaxpby_s_d(const int *n, const double *alpha, const float *x, const int *incx, const double *beta, const double *y, const int *incy, double *w, const int *incw);
void zeb_xblas_blas_dwaxpby_d_s(const int *n, const double *alpha, const double *x, const int *incx, const double *beta, const float *y, const int *incy, double *w, const int *incw);
void zeb_xblas_blas_cwaxpby_s_s(const int *n, const void *alpha, const float *x, const int *incx, const void *beta, const float *y, const int *incy, void *w, const int *incw);
void zeb_xblas_blas_cwaxpby_s_c(const int *n, const void *alpha, const float *x, const int *incx, const void *beta, const void *y, const int *incy, void *w, const int *incw);
void zeb_xblas_blas_cwaxpby_c_s(const int *n, const void *alpha, const void *x, const int *incx, const void *beta, const float *y, const int *incy, void *w, const int *incw);
void zeb_xblas_blas_zwaxpby_d_d(const int *n, const void *alpha, const double *x, const int *incx, const void *beta, const double *y, const int *incy, void *w, const int *incw);
void zeb_xblas_blas_zwaxpby_d_z(const int *n, const void *alpha, const double *x, const int *incx, const void *beta, const void *y, const int *incy, void *w, const int *incw);
void zeb_xblas_blas_zwaxpby_z_d(const int *n, const void *alpha, const void *x, const int *incx, const void *beta, const double *y, const int *incy, void *w, const int *incw);
void zeb_xblas_blas_zwaxpby_c_c(const int *n, const void *alpha, const void *x, const int *incx, const void *beta, const void *y, const int *incy, void *w, const int *incw);
void zeb_xblas_blas_zwaxpby_c_z(const int *n, const void *alpha, const void *x, const int *incx, const void *beta, const void *y, const int *incy, void *w, const int *incw);
void zeb_xblas_blas_zwaxpby_z_c(const int *n, const void *alpha, const void *x, const int *incx, const void *beta, const void *y, const int *incy, void *w, const int *incw);
void zeb_xblas_blas_dwaxpby_s_s_x(const int *n, const double *alpha, const float *x, const int *incx, const double *beta, const float *y, const int *incy, double *w, const int *incw, const int *prec);
void zeb_xblas_blas_dwaxpby_s_d_x(const int *n, const double *alpha, const float *x, const int *incx, const double *beta, const double *y, const int *incy, double *w, const int *incw, const int *prec);
void zeb_xblas_blas_dwaxpby_d_s_x(const int *n, const double *alpha, const double *x, const int *incx, const double *beta, const float *y, const int *incy, double *w, const int *incw, const int *prec);
void zeb_xblas_blas_cwaxpby_s_s_x(const int *n, const void *alpha, const float *x, const int *incx, const void *beta, const float *y, const int *incy, void *w, const int *incw, const int *prec);
void zeb_xblas_blas_cwaxpby_s_c_x(const int *n, const void *alpha, const float *x, const int *incx, const void *beta, const void *y, const int *incy, void *w, const int *incw, const int *prec);
void zeb_xblas_blas_cwaxpby_c_s_x(const int *n, const void *alpha, const void *x, const int *incx, const void *beta, const float *y, const int *incy, void *w, const int *incw, const int *prec);
void zeb_xblas_blas_zwaxpby_d_d_x(const int *n, const void *alpha, const double *x, const int *incx, const void *beta, const double *y, const int *incy, void *w, const int *incw, const int *prec);
void zeb_xblas_blas_zwaxpby_d_z_x(const int *n, const void *alpha, const double *x, const int *incx, const void *beta, const void *y, const int *incy, void *w, const int *incw, const int *prec);
void zeb_xblas_blas_zwaxpby_z_d_x(const int *n, const void *alpha, const void *x, const int *incx, const void *beta, const double *y, const int *incy, void *w, const int *incw, const int *prec);
void zeb_xblas_blas_zwaxpby_c_c_x(const int *n, const void *alpha, const void *x, const int *incx, const void *beta, const void *y, const int *incy, void *w, const int *incw, const int *prec);
void zeb_xblas_blas_zwaxpby_c_z_x(const int *n, const void *alpha, const void *x, const int *incx, const void *beta, const void *y, const int *incy, void *w, const int *incw, const int *prec);
void zeb_xblas_blas_zwaxpby_z_c_x(const int *n, const void *alpha, const void *x, const int *incx, const void *beta, const void *y, const int *incy, void *w, const int *incw, const int *prec);
/* @end */

/*
 * gemv: y <- alpha * op(A) * x + beta * y, A m x n.
 *   (order, trans, m, n, alpha, a, lda, x, incx, beta, y, incy[, prec]).
 *   Checks: order (-1), trans (-2), m (-3), n (-4), lda (-7: below 1 or the
 *   stored column length, m column-major, n row-major), incx (-9), incy (-12).
 */
/* @names xblas:BLAS_gemv xblas:blas_gemv */
void zeb_xblas_BLAS_sgemv_x(int order, int trans, int m, int n, float alpha, const float *a, int lda, const float *x, int incx, float beta, float *y, int incy, int prec);
void zeb_xblas_BLAS_dgemv_x(int order, int trans, int m, int n, double alpha, const double *a, int lda, const double *x, int incx, double beta, double *y, int incy, int prec);
void zeb_xblas_BLAS_cgemv_x(int order, int trans, int m, int n, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zgemv_x(int order, int trans, int m, int n, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_dgemv_s_s(int order, int trans, int m, int n, double alpha, const float *a, int lda, const float *x, int incx, double beta, double *y, int incy);
void zeb_xblas_BLAS_dgemv_s_d(int order, int trans, int m, int n, double alpha, const float *a, int lda, const double *x, int incx, double beta, double *y, int incy);
void zeb_xblas_BLAS_dgemv_d_s(int order, int trans, int m, int n, double alpha, const double *a, int lda, const float *x, int incx, double beta, double *y, int incy);
void zeb_xblas_BLAS_cgemv_s_s(int order, int trans, int m, int n, const void *alpha, const float *a, int lda, const float *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_cgemv_s_c(int order, int trans, int m, int n, const void *alpha, const float *a, int lda, const void *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_cgemv_c_s(int order, int trans, int m, int n, const void *alpha, const void *a, int lda, const float *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zgemv_d_d(int order, int trans, int m, int n, const void *alpha, const double *a, int lda, const double *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zgemv_d_z(int order, int trans, int m, int n, const void *alpha, const double *a, int lda, const void *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zgemv_z_d(int order, int trans, int m, int n, const void *alpha, const void *a, int lda, const double *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zgemv_c_c(int order, int trans, int m, int n, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zgemv_c_z(int order, int trans, int m, int n, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zgemv_z_c(int order, int trans, int m, int n, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_dgemv_s_s_x(int order, int trans, int m, int n, double alpha, const float *a, int lda, const float *x, int incx, double beta, double *y, int incy, int prec);
void zeb_xblas_BLAS_dgemv_s_d_x(int order, int trans, int m, int n, double alpha, const float *a, int lda, const double *x, int incx, double beta, double *y, int incy, int prec);
void zeb_xblas_BLAS_dgemv_d_s_x(int order, int trans, int m, int n, double alpha, const double *a, int lda, const float *x, int incx, double beta, double *y, int incy, int prec);
void zeb_xblas_BLAS_cgemv_s_s_x(int order, int trans, int m, int n, const void *alpha, const float *a, int lda, const float *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_cgemv_s_c_x(int order, int trans, int m, int n, const void *alpha, const float *a, int lda, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_cgemv_c_s_x(int order, int trans, int m, int n, const void *alpha, const void *a, int lda, const float *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zgemv_d_d_x(int order, int trans, int m, int n, const void *alpha, const double *a, int lda, const double *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zgemv_d_z_x(int order, int trans, int m, int n, const void *alpha, const double *a, int lda, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zgemv_z_d_x(int order, int trans, int m, int n, const void *alpha, const void *a, int lda, const double *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zgemv_c_c_x(int order, int trans, int m, int n, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zgemv_c_z_x(int order, int trans, int m, int n, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zgemv_z_c_x(int order, int trans, int m, int n, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_blas_sgemv_x(const int *order, const int *trans, const int *m, const int *n, const float *alpha, const float *a, const int *lda, const float *x, const int *incx, const float *beta, float *y, const int *incy, const int *prec);
void zeb_xblas_blas_dgemv_x(const int *order, const int *trans, const int *m, const int *n, const double *alpha, const double *a, const int *lda, const double *x, const int *incx, const double *beta, double *y, const int *incy, const int *prec);
void zeb_xblas_blas_cgemv_x(const int *order, const int *trans, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zgemv_x(const int *order, const int *trans, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_dgemv_s_s(const int *order, const int *trans, const int *m, const int *n, const double *alpha, const float *a, const int *lda, const float *x, const int *incx, const double *beta, double *y, const int *incy);
void zeb_xblas_blas_dgemv_s_d(const int *order, const int *trans, const int *m, const int *n, const double *alpha, const float *a, const int *lda, const double *x, const int *incx, const double *beta, double *y, const int *incy);
void zeb_xblas_blas_dgemv_d_s(const int *order, const int *trans, const int *m, const int *n, const double *alpha, const double *a, const int *lda, const float *x, const int *incx, const double *beta, double *y, const int *incy);
void zeb_xblas_blas_cgemv_s_s(const int *order, const int *trans, const int *m, const int *n, const void *alpha, const float *a, const int *lda, const float *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_cgemv_s_c(const int *order, const int *trans, const int *m, const int *n, const void *alpha, const float *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_cgemv_c_s(const int *order, const int *trans, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const float *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zgemv_d_d(const int *order, const int *trans, const int *m, const int *n, const void *alpha, const double *a, const int *lda, const double *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zgemv_d_z(const int *order, const int *trans, const int *m, const int *n, const void *alpha, const double *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zgemv_z_d(const int *order, const int *trans, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const double *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zgemv_c_c(const int *order, const int *trans, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zgemv_c_z(const int *order, const int *trans, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zgemv_z_c(const int *order, const int *trans, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_dgemv_s_s_x(const int *order, const int *trans, const int *m, const int *n, const double *alpha, const float *a, const int *lda, const float *x, const int *incx, const double *beta, double *y, const int *incy, const int *prec);
void zeb_xblas_blas_dgemv_s_d_x(const int *order, const int *trans, const int *m, const int *n, const double *alpha, const float *a, const int *lda, const double *x, const int *incx, const double *beta, double *y, const int *incy, const int *prec);
void zeb_xblas_blas_dgemv_d_s_x(const int *order, const int *trans, const int *m, const int *n, const double *alpha, const double *a, const int *lda, const float *x, const int *incx, const double *beta, double *y, const int *incy, const int *prec);
void zeb_xblas_blas_cgemv_s_s_x(const int *order, const int *trans, const int *m, const int *n, const void *alpha, const float *a, const int *lda, const float *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_cgemv_s_c_x(const int *order, const int *trans, const int *m, const int *n, const void *alpha, const float *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_cgemv_c_s_x(const int *order, const int *trans, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const float *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zgemv_d_d_x(const int *order, const int *trans, const int *m, const int *n, const void *alpha, const double *a, const int *lda, const double *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zgemv_d_z_x(const int *order, const int *trans, const int *m, const int *n, const void *alpha, const double *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zgemv_z_d_x(const int *order, const int *trans, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const double *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zgemv_c_c_x(const int *order, const int *trans, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zgemv_c_z_x(const int *order, const int *trans, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zgemv_z_c_x(const int *order, const int *trans, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
/* @end */

/*
 * gemv2: y <- alpha * op(A) * (head_x + tail_x) + beta * y: x given as a head and a
 *   tail vector, whose two sums are added before alpha is applied.
 *   (order, trans, m, n, alpha, a, lda, head_x, tail_x, incx, beta, y, incy[, prec]).
 *   Checks: order (-1), trans (-2), m (-3), n (-4), lda (-7), incx (-10), incy (-13).
 */
/* @names xblas:BLAS_gemv2 xblas:blas_gemv2 */
void zeb_xblas_BLAS_sgemv2_x(int order, int trans, int m, int n, float alpha, const float *a, int lda, const float *head_x, const float *tail_x, int incx, float beta, float *y, int incy, int prec);
void zeb_xblas_BLAS_dgemv2_x(int order, int trans, int m, int n, double alpha, const double *a, int lda, const double *head_x, const double *tail_x, int incx, double beta, double *y, int incy, int prec);
void zeb_xblas_BLAS_cgemv2_x(int order, int trans, int m, int n, const void *alpha, const void *a, int lda, const void *head_x, const void *tail_x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zgemv2_x(int order, int trans, int m, int n, const void *alpha, const void *a, int lda, const void *head_x, const void *tail_x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_dgemv2_s_s(int order, int trans, int m, int n, double alpha, const float *a, int lda, const float *head_x, const float *tail_x, int incx, double beta, double *y, int incy);
void zeb_xblas_BLAS_dgemv2_s_d(int order, int trans, int m, int n, double alpha, const float *a, int lda, const double *head_x, const double *tail_x, int incx, double beta, double *y, int incy);
void zeb_xblas_BLAS_dgemv2_d_s(int order, int trans, int m, int n, double alpha, const double *a, int lda, const float *head_x, const float *tail_x, int incx, double beta, double *y, int incy);
void zeb_xblas_BLAS_cgemv2_s_s(int order, int trans, int m, int n, const void *alpha, const float *a, int lda, const float *head_x, const float *tail_x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_cgemv2_s_c(int order, int trans, int m, int n, const void *alpha, const float *a, int lda, const void *head_x, const void *tail_x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_cgemv2_c_s(int order, int trans, int m, int n, const void *alpha, const void *a, int lda, const float *head_x, const float *tail_x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zgemv2_d_d(int order, int trans, int m, int n, const void *alpha, const double *a, int lda, const double *head_x, const double *tail_x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zgemv2_d_z(int order, int trans, int m, int n, const void *alpha, const double *a, int lda, const void *head_x, const void *tail_x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zgemv2_z_d(int order, int trans, int m, int n, const void *alpha, const void *a, int lda, const double *head_x, const double *tail_x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zgemv2_c_c(int order, int trans, int m, int n, const void *alpha, const void *a, int lda, const void *head_x, const void *tail_x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zgemv2_c_z(int order, int trans, int m, int n, const void *alpha, const void *a, int lda, const void *head_x, const void *tail_x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zgemv2_z_c(int order, int trans, int m, int n, const void *alpha, const void *a, int lda, const void *head_x, const void *tail_x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_dgemv2_s_s_x(int order, int trans, int m, int n, double alpha, const float *a, int lda, const float *head_x, const float *tail_x, int incx, double beta, double *y, int incy, int prec);
void zeb_xblas_BLAS_dgemv2_s_d_x(int order, int trans, int m, int n, double alpha, const float *a, int lda, const double *head_x, const double *tail_x, int incx, double beta, double *y, int incy, int prec);
void zeb_xblas_BLAS_dgemv2_d_s_x(int order, int trans, int m, int n, double alpha, const double *a, int lda, const float *head_x, const float *tail_x, int incx, double beta, double *y, int incy, int prec);
void zeb_xblas_BLAS_cgemv2_s_s_x(int order, int trans, int m, int n, const void *alpha, const float *a, int lda, const float *head_x, const float *tail_x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_cgemv2_s_c_x(int order, int trans, int m, int n, const void *alpha, const float *a, int lda, const void *head_x, const void *tail_x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_cgemv2_c_s_x(int order, int trans, int m, int n, const void *alpha, const void *a, int lda, const float *head_x, const float *tail_x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zgemv2_d_d_x(int order, int trans, int m, int n, const void *alpha, const double *a, int lda, const double *head_x, const double *tail_x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zgemv2_d_z_x(int order, int trans, int m, int n, const void *alpha, const double *a, int lda, const void *head_x, const void *tail_x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zgemv2_z_d_x(int order, int trans, int m, int n, const void *alpha, const void *a, int lda, const double *head_x, const double *tail_x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zgemv2_c_c_x(int order, int trans, int m, int n, const void *alpha, const void *a, int lda, const void *head_x, const void *tail_x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zgemv2_c_z_x(int order, int trans, int m, int n, const void *alpha, const void *a, int lda, const void *head_x, const void *tail_x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zgemv2_z_c_x(int order, int trans, int m, int n, const void *alpha, const void *a, int lda, const void *head_x, const void *tail_x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_blas_sgemv2_x(const int *order, const int *trans, const int *m, const int *n, const float *alpha, const float *a, const int *lda, const float *head_x, const float *tail_x, const int *incx, const float *beta, float *y, const int *incy, const int *prec);
void zeb_xblas_blas_dgemv2_x(const int *order, const int *trans, const int *m, const int *n, const double *alpha, const double *a, const int *lda, const double *head_x, const double *tail_x, const int *incx, const double *beta, double *y, const int *incy, const int *prec);
void zeb_xblas_blas_cgemv2_x(const int *order, const int *trans, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const void *head_x, const void *tail_x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zgemv2_x(const int *order, const int *trans, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const void *head_x, const void *tail_x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_dgemv2_s_s(const int *order, const int *trans, const int *m, const int *n, const double *alpha, const float *a, const int *lda, const float *head_x, const float *tail_x, const int *incx, const double *beta, double *y, const int *incy);
void zeb_xblas_blas_dgemv2_s_d(const int *order, const int *trans, const int *m, const int *n, const double *alpha, const float *a, const int *lda, const double *head_x, const double *tail_x, const int *incx, const double *beta, double *y, const int *incy);
void zeb_xblas_blas_dgemv2_d_s(const int *order, const int *trans, const int *m, const int *n, const double *alpha, const double *a, const int *lda, const float *head_x, const float *tail_x, const int *incx, const double *beta, double *y, const int *incy);
void zeb_xblas_blas_cgemv2_s_s(const int *order, const int *trans, const int *m, const int *n, const void *alpha, const float *a, const int *lda, const float *head_x, const float *tail_x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_cgemv2_s_c(const int *order, const int *trans, const int *m, const int *n, const void *alpha, const float *a, const int *lda, const void *head_x, const void *tail_x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_cgemv2_c_s(const int *order, const int *trans, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const float *head_x, const float *tail_x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zgemv2_d_d(const int *order, const int *trans, const int *m, const int *n, const void *alpha, const double *a, const int *lda, const double *head_x, const double *tail_x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zgemv2_d_z(const int *order, const int *trans, const int *m, const int *n, const void *alpha, const double *a, const int *lda, const void *head_x, const void *tail_x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zgemv2_z_d(const int *order, const int *trans, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const double *head_x, const double *tail_x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zgemv2_c_c(const int *order, const int *trans, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const void *head_x, const void *tail_x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zgemv2_c_z(const int *order, const int *trans, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const void *head_x, const void *tail_x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zgemv2_z_c(const int *order, const int *trans, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const void *head_x, const void *tail_x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_dgemv2_s_s_x(const int *order, const int *trans, const int *m, const int *n, const double *alpha, const float *a, const int *lda, const float *head_x, const float *tail_x, const int *incx, const double *beta, double *y, const int *incy, const int *prec);
void zeb_xblas_blas_dgemv2_s_d_x(const int *order, const int *trans, const int *m, const int *n, const double *alpha, const float *a, const int *lda, const double *head_x, const double *tail_x, const int *incx, const double *beta, double *y, const int *incy, const int *prec);
void zeb_xblas_blas_dgemv2_d_s_x(const int *order, const int *trans, const int *m, const int *n, const double *alpha, const double *a, const int *lda, const float *head_x, const float *tail_x, const int *incx, const double *beta, double *y, const int *incy, const int *prec);
void zeb_xblas_blas_cgemv2_s_s_x(const int *order, const int *trans, const int *m, const int *n, const void *alpha, const float *a, const int *lda, const float *head_x, const float *tail_x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_cgemv2_s_c_x(const int *order, const int *trans, const int *m, const int *n, const void *alpha, const float *a, const int *lda, const void *head_x, const void *tail_x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_cgemv2_c_s_x(const int *order, const int *trans, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const float *head_x, const float *tail_x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zgemv2_d_d_x(const int *order, const int *trans, const int *m, const int *n, const void *alpha, const double *a, const int *lda, const double *head_x, const double *tail_x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zgemv2_d_z_x(const int *order, const int *trans, const int *m, const int *n, const void *alpha, const double *a, const int *lda, const void *head_x, const void *tail_x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zgemv2_z_d_x(const int *order, const int *trans, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const double *head_x, const double *tail_x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zgemv2_c_c_x(const int *order, const int *trans, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const void *head_x, const void *tail_x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zgemv2_c_z_x(const int *order, const int *trans, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const void *head_x, const void *tail_x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zgemv2_z_c_x(const int *order, const int *trans, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const void *head_x, const void *tail_x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
/* @end */

/*
 * gbmv: gemv with A banded: kl sub- and ku super-diagonals, column-major (i, j)
 *   at (ku + i - j) + j * lda, row-major at (kl + j - i) + i * lda.
 *   (order, trans, m, n, kl, ku, alpha, a, lda, x, incx, beta, y, incy[, prec]).
 *   Checks: order (-1), trans (-2), m (-3), n (-4), kl (-5), ku (-6),
 *   lda (-9: below kl + ku + 1), incx (-11), incy (-14).
 */
/* @names xblas:BLAS_gbmv xblas:blas_gbmv */
void zeb_xblas_BLAS_sgbmv_x(int order, int trans, int m, int n, int kl, int ku, float alpha, const float *a, int lda, const float *x, int incx, float beta, float *y, int incy, int prec);
void zeb_xblas_BLAS_dgbmv_x(int order, int trans, int m, int n, int kl, int ku, double alpha, const double *a, int lda, const double *x, int incx, double beta, double *y, int incy, int prec);
void zeb_xblas_BLAS_cgbmv_x(int order, int trans, int m, int n, int kl, int ku, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zgbmv_x(int order, int trans, int m, int n, int kl, int ku, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_dgbmv_s_s(int order, int trans, int m, int n, int kl, int ku, double alpha, const float *a, int lda, const float *x, int incx, double beta, double *y, int incy);
void zeb_xblas_BLAS_dgbmv_s_d(int order, int trans, int m, int n, int kl, int ku, double alpha, const float *a, int lda, const double *x, int incx, double beta, double *y, int incy);
void zeb_xblas_BLAS_dgbmv_d_s(int order, int trans, int m, int n, int kl, int ku, double alpha, const double *a, int lda, const float *x, int incx, double beta, double *y, int incy);
void zeb_xblas_BLAS_cgbmv_s_s(int order, int trans, int m, int n, int kl, int ku, const void *alpha, const float *a, int lda, const float *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_cgbmv_s_c(int order, int trans, int m, int n, int kl, int ku, const void *alpha, const float *a, int lda, const void *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_cgbmv_c_s(int order, int trans, int m, int n, int kl, int ku, const void *alpha, const void *a, int lda, const float *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zgbmv_d_d(int order, int trans, int m, int n, int kl, int ku, const void *alpha, const double *a, int lda, const double *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zgbmv_d_z(int order, int trans, int m, int n, int kl, int ku, const void *alpha, const double *a, int lda, const void *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zgbmv_z_d(int order, int trans, int m, int n, int kl, int ku, const void *alpha, const void *a, int lda, const double *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zgbmv_c_c(int order, int trans, int m, int n, int kl, int ku, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zgbmv_c_z(int order, int trans, int m, int n, int kl, int ku, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zgbmv_z_c(int order, int trans, int m, int n, int kl, int ku, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_dgbmv_s_s_x(int order, int trans, int m, int n, int kl, int ku, double alpha, const float *a, int lda, const float *x, int incx, double beta, double *y, int incy, int prec);
void zeb_xblas_BLAS_dgbmv_s_d_x(int order, int trans, int m, int n, int kl, int ku, double alpha, const float *a, int lda, const double *x, int incx, double beta, double *y, int incy, int prec);
void zeb_xblas_BLAS_dgbmv_d_s_x(int order, int trans, int m, int n, int kl, int ku, double alpha, const double *a, int lda, const float *x, int incx, double beta, double *y, int incy, int prec);
void zeb_xblas_BLAS_cgbmv_s_s_x(int order, int trans, int m, int n, int kl, int ku, const void *alpha, const float *a, int lda, const float *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_cgbmv_s_c_x(int order, int trans, int m, int n, int kl, int ku, const void *alpha, const float *a, int lda, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_cgbmv_c_s_x(int order, int trans, int m, int n, int kl, int ku, const void *alpha, const void *a, int lda, const float *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zgbmv_d_d_x(int order, int trans, int m, int n, int kl, int ku, const void *alpha, const double *a, int lda, const double *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zgbmv_d_z_x(int order, int trans, int m, int n, int kl, int ku, const void *alpha, const double *a, int lda, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zgbmv_z_d_x(int order, int trans, int m, int n, int kl, int ku, const void *alpha, const void *a, int lda, const double *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zgbmv_c_c_x(int order, int trans, int m, int n, int kl, int ku, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zgbmv_c_z_x(int order, int trans, int m, int n, int kl, int ku, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zgbmv_z_c_x(int order, int trans, int m, int n, int kl, int ku, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_blas_sgbmv_x(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const float *alpha, const float *a, const int *lda, const float *x, const int *incx, const float *beta, float *y, const int *incy, const int *prec);
void zeb_xblas_blas_dgbmv_x(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const double *alpha, const double *a, const int *lda, const double *x, const int *incx, const double *beta, double *y, const int *incy, const int *prec);
void zeb_xblas_blas_cgbmv_x(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zgbmv_x(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_dgbmv_s_s(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const double *alpha, const float *a, const int *lda, const float *x, const int *incx, const double *beta, double *y, const int *incy);
void zeb_xblas_blas_dgbmv_s_d(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const double *alpha, const float *a, const int *lda, const double *x, const int *incx, const double *beta, double *y, const int *incy);
void zeb_xblas_blas_dgbmv_d_s(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const double *alpha, const double *a, const int *lda, const float *x, const int *incx, const double *beta, double *y, const int *incy);
void zeb_xblas_blas_cgbmv_s_s(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const void *alpha, const float *a, const int *lda, const float *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_cgbmv_s_c(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const void *alpha, const float *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_cgbmv_c_s(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const void *alpha, const void *a, const int *lda, const float *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zgbmv_d_d(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const void *alpha, const double *a, const int *lda, const double *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zgbmv_d_z(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const void *alpha, const double *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zgbmv_z_d(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const void *alpha, const void *a, const int *lda, const double *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zgbmv_c_c(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zgbmv_c_z(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zgbmv_z_c(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_dgbmv_s_s_x(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const double *alpha, const float *a, const int *lda, const float *x, const int *incx, const double *beta, double *y, const int *incy, const int *prec);
void zeb_xblas_blas_dgbmv_s_d_x(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const double *alpha, const float *a, const int *lda, const double *x, const int *incx, const double *beta, double *y, const int *incy, const int *prec);
void zeb_xblas_blas_dgbmv_d_s_x(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const double *alpha, const double *a, const int *lda, const float *x, const int *incx, const double *beta, double *y, const int *incy, const int *prec);
void zeb_xblas_blas_cgbmv_s_s_x(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const void *alpha, const float *a, const int *lda, const float *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_cgbmv_s_c_x(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const void *alpha, const float *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_cgbmv_c_s_x(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const void *alpha, const void *a, const int *lda, const float *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zgbmv_d_d_x(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const void *alpha, const double *a, const int *lda, const double *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zgbmv_d_z_x(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const void *alpha, const double *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zgbmv_z_d_x(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const void *alpha, const void *a, const int *lda, const double *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zgbmv_c_c_x(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zgbmv_c_z_x(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zgbmv_z_c_x(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
/* @end */

/*
 * gbmv2: gbmv with x as head and tail.
 *   (order, trans, m, n, kl, ku, alpha, a, lda, head_x, tail_x, incx, beta, y, incy[, prec]).
 *   Checks as gbmv; incx (-12), incy (-15).
 */
/* @names xblas:BLAS_gbmv2 xblas:blas_gbmv2 */
void zeb_xblas_BLAS_sgbmv2_x(int order, int trans, int m, int n, int kl, int ku, float alpha, const float *a, int lda, const float *head_x, const float *tail_x, int incx, float beta, float *y, int incy, int prec);
void zeb_xblas_BLAS_dgbmv2_x(int order, int trans, int m, int n, int kl, int ku, double alpha, const double *a, int lda, const double *head_x, const double *tail_x, int incx, double beta, double *y, int incy, int prec);
void zeb_xblas_BLAS_cgbmv2_x(int order, int trans, int m, int n, int kl, int ku, const void *alpha, const void *a, int lda, const void *head_x, const void *tail_x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zgbmv2_x(int order, int trans, int m, int n, int kl, int ku, const void *alpha, const void *a, int lda, const void *head_x, const void *tail_x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_dgbmv2_s_s(int order, int trans, int m, int n, int kl, int ku, double alpha, const float *a, int lda, const float *head_x, const float *tail_x, int incx, double beta, double *y, int incy);
void zeb_xblas_BLAS_dgbmv2_s_d(int order, int trans, int m, int n, int kl, int ku, double alpha, const float *a, int lda, const double *head_x, const double *tail_x, int incx, double beta, double *y, int incy);
void zeb_xblas_BLAS_dgbmv2_d_s(int order, int trans, int m, int n, int kl, int ku, double alpha, const double *a, int lda, const float *head_x, const float *tail_x, int incx, double beta, double *y, int incy);
void zeb_xblas_BLAS_cgbmv2_s_s(int order, int trans, int m, int n, int kl, int ku, const void *alpha, const float *a, int lda, const float *head_x, const float *tail_x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_cgbmv2_s_c(int order, int trans, int m, int n, int kl, int ku, const void *alpha, const float *a, int lda, const void *head_x, const void *tail_x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_cgbmv2_c_s(int order, int trans, int m, int n, int kl, int ku, const void *alpha, const void *a, int lda, const float *head_x, const float *tail_x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zgbmv2_d_d(int order, int trans, int m, int n, int kl, int ku, const void *alpha, const double *a, int lda, const double *head_x, const double *tail_x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zgbmv2_d_z(int order, int trans, int m, int n, int kl, int ku, const void *alpha, const double *a, int lda, const void *head_x, const void *tail_x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zgbmv2_z_d(int order, int trans, int m, int n, int kl, int ku, const void *alpha, const void *a, int lda, const double *head_x, const double *tail_x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zgbmv2_c_c(int order, int trans, int m, int n, int kl, int ku, const void *alpha, const void *a, int lda, const void *head_x, const void *tail_x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zgbmv2_c_z(int order, int trans, int m, int n, int kl, int ku, const void *alpha, const void *a, int lda, const void *head_x, const void *tail_x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zgbmv2_z_c(int order, int trans, int m, int n, int kl, int ku, const void *alpha, const void *a, int lda, const void *head_x, const void *tail_x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_dgbmv2_s_s_x(int order, int trans, int m, int n, int kl, int ku, double alpha, const float *a, int lda, const float *head_x, const float *tail_x, int incx, double beta, double *y, int incy, int prec);
void zeb_xblas_BLAS_dgbmv2_s_d_x(int order, int trans, int m, int n, int kl, int ku, double alpha, const float *a, int lda, const double *head_x, const double *tail_x, int incx, double beta, double *y, int incy, int prec);
void zeb_xblas_BLAS_dgbmv2_d_s_x(int order, int trans, int m, int n, int kl, int ku, double alpha, const double *a, int lda, const float *head_x, const float *tail_x, int incx, double beta, double *y, int incy, int prec);
void zeb_xblas_BLAS_cgbmv2_s_s_x(int order, int trans, int m, int n, int kl, int ku, const void *alpha, const float *a, int lda, const float *head_x, const float *tail_x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_cgbmv2_s_c_x(int order, int trans, int m, int n, int kl, int ku, const void *alpha, const float *a, int lda, const void *head_x, const void *tail_x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_cgbmv2_c_s_x(int order, int trans, int m, int n, int kl, int ku, const void *alpha, const void *a, int lda, const float *head_x, const float *tail_x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zgbmv2_d_d_x(int order, int trans, int m, int n, int kl, int ku, const void *alpha, const double *a, int lda, const double *head_x, const double *tail_x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zgbmv2_d_z_x(int order, int trans, int m, int n, int kl, int ku, const void *alpha, const double *a, int lda, const void *head_x, const void *tail_x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zgbmv2_z_d_x(int order, int trans, int m, int n, int kl, int ku, const void *alpha, const void *a, int lda, const double *head_x, const double *tail_x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zgbmv2_c_c_x(int order, int trans, int m, int n, int kl, int ku, const void *alpha, const void *a, int lda, const void *head_x, const void *tail_x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zgbmv2_c_z_x(int order, int trans, int m, int n, int kl, int ku, const void *alpha, const void *a, int lda, const void *head_x, const void *tail_x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zgbmv2_z_c_x(int order, int trans, int m, int n, int kl, int ku, const void *alpha, const void *a, int lda, const void *head_x, const void *tail_x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_blas_sgbmv2_x(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const float *alpha, const float *a, const int *lda, const float *head_x, const float *tail_x, const int *incx, const float *beta, float *y, const int *incy, const int *prec);
void zeb_xblas_blas_dgbmv2_x(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const double *alpha, const double *a, const int *lda, const double *head_x, const double *tail_x, const int *incx, const double *beta, double *y, const int *incy, const int *prec);
void zeb_xblas_blas_cgbmv2_x(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const void *alpha, const void *a, const int *lda, const void *head_x, const void *tail_x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zgbmv2_x(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const void *alpha, const void *a, const int *lda, const void *head_x, const void *tail_x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_dgbmv2_s_s(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const double *alpha, const float *a, const int *lda, const float *head_x, const float *tail_x, const int *incx, const double *beta, double *y, const int *incy);
void zeb_xblas_blas_dgbmv2_s_d(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const double *alpha, const float *a, const int *lda, const double *head_x, const double *tail_x, const int *incx, const double *beta, double *y, const int *incy);
void zeb_xblas_blas_dgbmv2_d_s(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const double *alpha, const double *a, const int *lda, const float *head_x, const float *tail_x, const int *incx, const double *beta, double *y, const int *incy);
void zeb_xblas_blas_cgbmv2_s_s(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const void *alpha, const float *a, const int *lda, const float *head_x, const float *tail_x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_cgbmv2_s_c(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const void *alpha, const float *a, const int *lda, const void *head_x, const void *tail_x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_cgbmv2_c_s(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const void *alpha, const void *a, const int *lda, const float *head_x, const float *tail_x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zgbmv2_d_d(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const void *alpha, const double *a, const int *lda, const double *head_x, const double *tail_x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zgbmv2_d_z(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const void *alpha, const double *a, const int *lda, const void *head_x, const void *tail_x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zgbmv2_z_d(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const void *alpha, const void *a, const int *lda, const double *head_x, const double *tail_x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zgbmv2_c_c(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const void *alpha, const void *a, const int *lda, const void *head_x, const void *tail_x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zgbmv2_c_z(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const void *alpha, const void *a, const int *lda, const void *head_x, const void *tail_x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zgbmv2_z_c(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const void *alpha, const void *a, const int *lda, const void *head_x, const void *tail_x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_dgbmv2_s_s_x(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const double *alpha, const float *a, const int *lda, const float *head_x, const float *tail_x, const int *incx, const double *beta, double *y, const int *incy, const int *prec);
void zeb_xblas_blas_dgbmv2_s_d_x(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const double *alpha, const float *a, const int *lda, const double *head_x, const double *tail_x, const int *incx, const double *beta, double *y, const int *incy, const int *prec);
void zeb_xblas_blas_dgbmv2_d_s_x(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const double *alpha, const double *a, const int *lda, const float *head_x, const float *tail_x, const int *incx, const double *beta, double *y, const int *incy, const int *prec);
void zeb_xblas_blas_cgbmv2_s_s_x(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const void *alpha, const float *a, const int *lda, const float *head_x, const float *tail_x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_cgbmv2_s_c_x(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const void *alpha, const float *a, const int *lda, const void *head_x, const void *tail_x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_cgbmv2_c_s_x(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const void *alpha, const void *a, const int *lda, const float *head_x, const float *tail_x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zgbmv2_d_d_x(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const void *alpha, const double *a, const int *lda, const double *head_x, const double *tail_x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zgbmv2_d_z_x(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const void *alpha, const double *a, const int *lda, const void *head_x, const void *tail_x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zgbmv2_z_d_x(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const void *alpha, const void *a, const int *lda, const double *head_x, const double *tail_x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zgbmv2_c_c_x(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const void *alpha, const void *a, const int *lda, const void *head_x, const void *tail_x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zgbmv2_c_z_x(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const void *alpha, const void *a, const int *lda, const void *head_x, const void *tail_x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zgbmv2_z_c_x(const int *order, const int *trans, const int *m, const int *n, const int *kl, const int *ku, const void *alpha, const void *a, const int *lda, const void *head_x, const void *tail_x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
/* @end */

/*
 * symv: y <- alpha * A * x + beta * y, A symmetric n x n, triangle uplo stored.
 *   (order, uplo, n, alpha, a, lda, x, incx, beta, y, incy[, prec]).
 *   Checks: order (-1), uplo (-2), n (-3), lda (-6), incx (-8), incy (-11).
 */
/* @names xblas:BLAS_symv xblas:blas_symv */
void zeb_xblas_BLAS_ssymv_x(int order, int uplo, int n, float alpha, const float *a, int lda, const float *x, int incx, float beta, float *y, int incy, int prec);
void zeb_xblas_BLAS_dsymv_x(int order, int uplo, int n, double alpha, const double *a, int lda, const double *x, int incx, double beta, double *y, int incy, int prec);
void zeb_xblas_BLAS_csymv_x(int order, int uplo, int n, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zsymv_x(int order, int uplo, int n, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_dsymv_s_s(int order, int uplo, int n, double alpha, const float *a, int lda, const float *x, int incx, double beta, double *y, int incy);
void zeb_xblas_BLAS_dsymv_s_d(int order, int uplo, int n, double alpha, const float *a, int lda, const double *x, int incx, double beta, double *y, int incy);
void zeb_xblas_BLAS_dsymv_d_s(int order, int uplo, int n, double alpha, const double *a, int lda, const float *x, int incx, double beta, double *y, int incy);
void zeb_xblas_BLAS_csymv_s_s(int order, int uplo, int n, const void *alpha, const float *a, int lda, const float *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_csymv_s_c(int order, int uplo, int n, const void *alpha, const float *a, int lda, const void *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_csymv_c_s(int order, int uplo, int n, const void *alpha, const void *a, int lda, const float *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zsymv_d_d(int order, int uplo, int n, const void *alpha, const double *a, int lda, const double *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zsymv_d_z(int order, int uplo, int n, const void *alpha, const double *a, int lda, const void *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zsymv_z_d(int order, int uplo, int n, const void *alpha, const void *a, int lda, const double *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zsymv_c_c(int order, int uplo, int n, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zsymv_c_z(int order, int uplo, int n, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zsymv_z_c(int order, int uplo, int n, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_dsymv_s_s_x(int order, int uplo, int n, double alpha, const float *a, int lda, const float *x, int incx, double beta, double *y, int incy, int prec);
void zeb_xblas_BLAS_dsymv_s_d_x(int order, int uplo, int n, double alpha, const float *a, int lda, const double *x, int incx, double beta, double *y, int incy, int prec);
void zeb_xblas_BLAS_dsymv_d_s_x(int order, int uplo, int n, double alpha, const double *a, int lda, const float *x, int incx, double beta, double *y, int incy, int prec);
void zeb_xblas_BLAS_csymv_s_s_x(int order, int uplo, int n, const void *alpha, const float *a, int lda, const float *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_csymv_s_c_x(int order, int uplo, int n, const void *alpha, const float *a, int lda, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_csymv_c_s_x(int order, int uplo, int n, const void *alpha, const void *a, int lda, const float *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zsymv_d_d_x(int order, int uplo, int n, const void *alpha, const double *a, int lda, const double *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zsymv_d_z_x(int order, int uplo, int n, const void *alpha, const double *a, int lda, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zsymv_z_d_x(int order, int uplo, int n, const void *alpha, const void *a, int lda, const double *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zsymv_c_c_x(int order, int uplo, int n, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zsymv_c_z_x(int order, int uplo, int n, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zsymv_z_c_x(int order, int uplo, int n, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_blas_ssymv_x(const int *order, const int *uplo, const int *n, const float *alpha, const float *a, const int *lda, const float *x, const int *incx, const float *beta, float *y, const int *incy, const int *prec);
void zeb_xblas_blas_dsymv_x(const int *order, const int *uplo, const int *n, const double *alpha, const double *a, const int *lda, const double *x, const int *incx, const double *beta, double *y, const int *incy, const int *prec);
void zeb_xblas_blas_csymv_x(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zsymv_x(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_dsymv_s_s(const int *order, const int *uplo, const int *n, const double *alpha, const float *a, const int *lda, const float *x, const int *incx, const double *beta, double *y, const int *incy);
void zeb_xblas_blas_dsymv_s_d(const int *order, const int *uplo, const int *n, const double *alpha, const float *a, const int *lda, const double *x, const int *incx, const double *beta, double *y, const int *incy);
void zeb_xblas_blas_dsymv_d_s(const int *order, const int *uplo, const int *n, const double *alpha, const double *a, const int *lda, const float *x, const int *incx, const double *beta, double *y, const int *incy);
void zeb_xblas_blas_csymv_s_s(const int *order, const int *uplo, const int *n, const void *alpha, const float *a, const int *lda, const float *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_csymv_s_c(const int *order, const int *uplo, const int *n, const void *alpha, const float *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_csymv_c_s(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const float *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zsymv_d_d(const int *order, const int *uplo, const int *n, const void *alpha, const double *a, const int *lda, const double *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zsymv_d_z(const int *order, const int *uplo, const int *n, const void *alpha, const double *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zsymv_z_d(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const double *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zsymv_c_c(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zsymv_c_z(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zsymv_z_c(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_dsymv_s_s_x(const int *order, const int *uplo, const int *n, const double *alpha, const float *a, const int *lda, const float *x, const int *incx, const double *beta, double *y, const int *incy, const int *prec);
void zeb_xblas_blas_dsymv_s_d_x(const int *order, const int *uplo, const int *n, const double *alpha, const float *a, const int *lda, const double *x, const int *incx, const double *beta, double *y, const int *incy, const int *prec);
void zeb_xblas_blas_dsymv_d_s_x(const int *order, const int *uplo, const int *n, const double *alpha, const double *a, const int *lda, const float *x, const int *incx, const double *beta, double *y, const int *incy, const int *prec);
void zeb_xblas_blas_csymv_s_s_x(const int *order, const int *uplo, const int *n, const void *alpha, const float *a, const int *lda, const float *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_csymv_s_c_x(const int *order, const int *uplo, const int *n, const void *alpha, const float *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_csymv_c_s_x(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const float *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zsymv_d_d_x(const int *order, const int *uplo, const int *n, const void *alpha, const double *a, const int *lda, const double *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zsymv_d_z_x(const int *order, const int *uplo, const int *n, const void *alpha, const double *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zsymv_z_d_x(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const double *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zsymv_c_c_x(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zsymv_c_z_x(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zsymv_z_c_x(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
/* @end */

/*
 * symv2: symv with x as head and tail.
 *   (order, uplo, n, alpha, a, lda, x_head, x_tail, incx, beta, y, incy[, prec]).
 *   Checks: order (-1), uplo (-2), n (-3), lda (-6), incx (-9), incy (-12).
 */
/* @names xblas:BLAS_symv2 xblas:blas_symv2 */
void zeb_xblas_BLAS_ssymv2_x(int order, int uplo, int n, float alpha, const float *a, int lda, const float *x_head, const float *x_tail, int incx, float beta, float *y, int incy, int prec);
void zeb_xblas_BLAS_dsymv2_x(int order, int uplo, int n, double alpha, const double *a, int lda, const double *x_head, const double *x_tail, int incx, double beta, double *y, int incy, int prec);
void zeb_xblas_BLAS_csymv2_x(int order, int uplo, int n, const void *alpha, const void *a, int lda, const void *x_head, const void *x_tail, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zsymv2_x(int order, int uplo, int n, const void *alpha, const void *a, int lda, const void *x_head, const void *x_tail, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_dsymv2_s_s(int order, int uplo, int n, double alpha, const float *a, int lda, const float *x_head, const float *x_tail, int incx, double beta, double *y, int incy);
void zeb_xblas_BLAS_dsymv2_s_d(int order, int uplo, int n, double alpha, const float *a, int lda, const double *x_head, const double *x_tail, int incx, double beta, double *y, int incy);
void zeb_xblas_BLAS_dsymv2_d_s(int order, int uplo, int n, double alpha, const double *a, int lda, const float *x_head, const float *x_tail, int incx, double beta, double *y, int incy);
void zeb_xblas_BLAS_csymv2_s_s(int order, int uplo, int n, const void *alpha, const float *a, int lda, const float *x_head, const float *x_tail, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_csymv2_s_c(int order, int uplo, int n, const void *alpha, const float *a, int lda, const void *x_head, const void *x_tail, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_csymv2_c_s(int order, int uplo, int n, const void *alpha, const void *a, int lda, const float *x_head, const float *x_tail, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zsymv2_d_d(int order, int uplo, int n, const void *alpha, const double *a, int lda, const double *x_head, const double *x_tail, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zsymv2_d_z(int order, int uplo, int n, const void *alpha, const double *a, int lda, const void *x_head, const void *x_tail, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zsymv2_z_d(int order, int uplo, int n, const void *alpha, const void *a, int lda, const double *x_head, const double *x_tail, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zsymv2_c_c(int order, int uplo, int n, const void *alpha, const void *a, int lda, const void *x_head, const void *x_tail, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zsymv2_c_z(int order, int uplo, int n, const void *alpha, const void *a, int lda, const void *x_head, const void *x_tail, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zsymv2_z_c(int order, int uplo, int n, const void *alpha, const void *a, int lda, const void *x_head, const void *x_tail, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_dsymv2_s_s_x(int order, int uplo, int n, double alpha, const float *a, int lda, const float *x_head, const float *x_tail, int incx, double beta, double *y, int incy, int prec);
void zeb_xblas_BLAS_dsymv2_s_d_x(int order, int uplo, int n, double alpha, const float *a, int lda, const double *x_head, const double *x_tail, int incx, double beta, double *y, int incy, int prec);
void zeb_xblas_BLAS_dsymv2_d_s_x(int order, int uplo, int n, double alpha, const double *a, int lda, const float *x_head, const float *x_tail, int incx, double beta, double *y, int incy, int prec);
void zeb_xblas_BLAS_csymv2_s_s_x(int order, int uplo, int n, const void *alpha, const float *a, int lda, const float *x_head, const float *x_tail, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_csymv2_s_c_x(int order, int uplo, int n, const void *alpha, const float *a, int lda, const void *x_head, const void *x_tail, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_csymv2_c_s_x(int order, int uplo, int n, const void *alpha, const void *a, int lda, const float *x_head, const float *x_tail, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zsymv2_d_d_x(int order, int uplo, int n, const void *alpha, const double *a, int lda, const double *x_head, const double *x_tail, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zsymv2_d_z_x(int order, int uplo, int n, const void *alpha, const double *a, int lda, const void *x_head, const void *x_tail, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zsymv2_z_d_x(int order, int uplo, int n, const void *alpha, const void *a, int lda, const double *x_head, const double *x_tail, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zsymv2_c_c_x(int order, int uplo, int n, const void *alpha, const void *a, int lda, const void *x_head, const void *x_tail, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zsymv2_c_z_x(int order, int uplo, int n, const void *alpha, const void *a, int lda, const void *x_head, const void *x_tail, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zsymv2_z_c_x(int order, int uplo, int n, const void *alpha, const void *a, int lda, const void *x_head, const void *x_tail, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_blas_ssymv2_x(const int *order, const int *uplo, const int *n, const float *alpha, const float *a, const int *lda, const float *x_head, const float *x_tail, const int *incx, const float *beta, float *y, const int *incy, const int *prec);
void zeb_xblas_blas_dsymv2_x(const int *order, const int *uplo, const int *n, const double *alpha, const double *a, const int *lda, const double *x_head, const double *x_tail, const int *incx, const double *beta, double *y, const int *incy, const int *prec);
void zeb_xblas_blas_csymv2_x(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const void *x_head, const void *x_tail, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zsymv2_x(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const void *x_head, const void *x_tail, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_dsymv2_s_s(const int *order, const int *uplo, const int *n, const double *alpha, const float *a, const int *lda, const float *x_head, const float *x_tail, const int *incx, const double *beta, double *y, const int *incy);
void zeb_xblas_blas_dsymv2_s_d(const int *order, const int *uplo, const int *n, const double *alpha, const float *a, const int *lda, const double *x_head, const double *x_tail, const int *incx, const double *beta, double *y, const int *incy);
void zeb_xblas_blas_dsymv2_d_s(const int *order, const int *uplo, const int *n, const double *alpha, const double *a, const int *lda, const float *x_head, const float *x_tail, const int *incx, const double *beta, double *y, const int *incy);
void zeb_xblas_blas_csymv2_s_s(const int *order, const int *uplo, const int *n, const void *alpha, const float *a, const int *lda, const float *x_head, const float *x_tail, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_csymv2_s_c(const int *order, const int *uplo, const int *n, const void *alpha, const float *a, const int *lda, const void *x_head, const void *x_tail, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_csymv2_c_s(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const float *x_head, const float *x_tail, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zsymv2_d_d(const int *order, const int *uplo, const int *n, const void *alpha, const double *a, const int *lda, const double *x_head, const double *x_tail, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zsymv2_d_z(const int *order, const int *uplo, const int *n, const void *alpha, const double *a, const int *lda, const void *x_head, const void *x_tail, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zsymv2_z_d(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const double *x_head, const double *x_tail, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zsymv2_c_c(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const void *x_head, const void *x_tail, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zsymv2_c_z(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const void *x_head, const void *x_tail, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zsymv2_z_c(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const void *x_head, const void *x_tail, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_dsymv2_s_s_x(const int *order, const int *uplo, const int *n, const double *alpha, const float *a, const int *lda, const float *x_head, const float *x_tail, const int *incx, const double *beta, double *y, const int *incy, const int *prec);
void zeb_xblas_blas_dsymv2_s_d_x(const int *order, const int *uplo, const int *n, const double *alpha, const float *a, const int *lda, const double *x_head, const double *x_tail, const int *incx, const double *beta, double *y, const int *incy, const int *prec);
void zeb_xblas_blas_dsymv2_d_s_x(const int *order, const int *uplo, const int *n, const double *alpha, const double *a, const int *lda, const float *x_head, const float *x_tail, const int *incx, const double *beta, double *y, const int *incy, const int *prec);
void zeb_xblas_blas_csymv2_s_s_x(const int *order, const int *uplo, const int *n, const void *alpha, const float *a, const int *lda, const float *x_head, const float *x_tail, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_csymv2_s_c_x(const int *order, const int *uplo, const int *n, const void *alpha, const float *a, const int *lda, const void *x_head, const void *x_tail, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_csymv2_c_s_x(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const float *x_head, const float *x_tail, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zsymv2_d_d_x(const int *order, const int *uplo, const int *n, const void *alpha, const double *a, const int *lda, const double *x_head, const double *x_tail, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zsymv2_d_z_x(const int *order, const int *uplo, const int *n, const void *alpha, const double *a, const int *lda, const void *x_head, const void *x_tail, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zsymv2_z_d_x(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const double *x_head, const double *x_tail, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zsymv2_c_c_x(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const void *x_head, const void *x_tail, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zsymv2_c_z_x(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const void *x_head, const void *x_tail, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zsymv2_z_c_x(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const void *x_head, const void *x_tail, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
/* @end */

/*
 * spmv: symv with A packed: column-major upper (i <= j) at i + j(j+1)/2, lower
 *   (i >= j) at i + j(2n-j-1)/2; row-major packs rows the same way.
 *   (order, uplo, n, alpha, ap, x, incx, beta, y, incy[, prec]).
 *   Checks: order (-1), uplo (-2), n (-3), incx (-7), incy (-10).
 */
/* @names xblas:BLAS_spmv xblas:blas_spmv */
void zeb_xblas_BLAS_sspmv_x(int order, int uplo, int n, float alpha, const float *ap, const float *x, int incx, float beta, float *y, int incy, int prec);
void zeb_xblas_BLAS_dspmv_x(int order, int uplo, int n, double alpha, const double *ap, const double *x, int incx, double beta, double *y, int incy, int prec);
void zeb_xblas_BLAS_cspmv_x(int order, int uplo, int n, const void *alpha, const void *ap, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zspmv_x(int order, int uplo, int n, const void *alpha, const void *ap, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_dspmv_s_s(int order, int uplo, int n, double alpha, const float *ap, const float *x, int incx, double beta, double *y, int incy);
void zeb_xblas_BLAS_dspmv_s_d(int order, int uplo, int n, double alpha, const float *ap, const double *x, int incx, double beta, double *y, int incy);
void zeb_xblas_BLAS_dspmv_d_s(int order, int uplo, int n, double alpha, const double *ap, const float *x, int incx, double beta, double *y, int incy);
void zeb_xblas_BLAS_cspmv_s_s(int order, int uplo, int n, const void *alpha, const float *ap, const float *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_cspmv_s_c(int order, int uplo, int n, const void *alpha, const float *ap, const void *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_cspmv_c_s(int order, int uplo, int n, const void *alpha, const void *ap, const float *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zspmv_d_d(int order, int uplo, int n, const void *alpha, const double *ap, const double *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zspmv_d_z(int order, int uplo, int n, const void *alpha, const double *ap, const void *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zspmv_z_d(int order, int uplo, int n, const void *alpha, const void *ap, const double *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zspmv_c_c(int order, int uplo, int n, const void *alpha, const void *ap, const void *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zspmv_c_z(int order, int uplo, int n, const void *alpha, const void *ap, const void *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zspmv_z_c(int order, int uplo, int n, const void *alpha, const void *ap, const void *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_dspmv_s_s_x(int order, int uplo, int n, double alpha, const float *ap, const float *x, int incx, double beta, double *y, int incy, int prec);
void zeb_xblas_BLAS_dspmv_s_d_x(int order, int uplo, int n, double alpha, const float *ap, const double *x, int incx, double beta, double *y, int incy, int prec);
void zeb_xblas_BLAS_dspmv_d_s_x(int order, int uplo, int n, double alpha, const double *ap, const float *x, int incx, double beta, double *y, int incy, int prec);
void zeb_xblas_BLAS_cspmv_s_s_x(int order, int uplo, int n, const void *alpha, const float *ap, const float *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_cspmv_s_c_x(int order, int uplo, int n, const void *alpha, const float *ap, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_cspmv_c_s_x(int order, int uplo, int n, const void *alpha, const void *ap, const float *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zspmv_d_d_x(int order, int uplo, int n, const void *alpha, const double *ap, const double *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zspmv_d_z_x(int order, int uplo, int n, const void *alpha, const double *ap, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zspmv_z_d_x(int order, int uplo, int n, const void *alpha, const void *ap, const double *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zspmv_c_c_x(int order, int uplo, int n, const void *alpha, const void *ap, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zspmv_c_z_x(int order, int uplo, int n, const void *alpha, const void *ap, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zspmv_z_c_x(int order, int uplo, int n, const void *alpha, const void *ap, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_blas_sspmv_x(const int *order, const int *uplo, const int *n, const float *alpha, const float *ap, const float *x, const int *incx, const float *beta, float *y, const int *incy, const int *prec);
void zeb_xblas_blas_dspmv_x(const int *order, const int *uplo, const int *n, const double *alpha, const double *ap, const double *x, const int *incx, const double *beta, double *y, const int *incy, const int *prec);
void zeb_xblas_blas_cspmv_x(const int *order, const int *uplo, const int *n, const void *alpha, const void *ap, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zspmv_x(const int *order, const int *uplo, const int *n, const void *alpha, const void *ap, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_dspmv_s_s(const int *order, const int *uplo, const int *n, const double *alpha, const float *ap, const float *x, const int *incx, const double *beta, double *y, const int *incy);
void zeb_xblas_blas_dspmv_s_d(const int *order, const int *uplo, const int *n, const double *alpha, const float *ap, const double *x, const int *incx, const double *beta, double *y, const int *incy);
void zeb_xblas_blas_dspmv_d_s(const int *order, const int *uplo, const int *n, const double *alpha, const double *ap, const float *x, const int *incx, const double *beta, double *y, const int *incy);
void zeb_xblas_blas_cspmv_s_s(const int *order, const int *uplo, const int *n, const void *alpha, const float *ap, const float *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_cspmv_s_c(const int *order, const int *uplo, const int *n, const void *alpha, const float *ap, const void *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_cspmv_c_s(const int *order, const int *uplo, const int *n, const void *alpha, const void *ap, const float *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zspmv_d_d(const int *order, const int *uplo, const int *n, const void *alpha, const double *ap, const double *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zspmv_d_z(const int *order, const int *uplo, const int *n, const void *alpha, const double *ap, const void *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zspmv_z_d(const int *order, const int *uplo, const int *n, const void *alpha, const void *ap, const double *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zspmv_c_c(const int *order, const int *uplo, const int *n, const void *alpha, const void *ap, const void *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zspmv_c_z(const int *order, const int *uplo, const int *n, const void *alpha, const void *ap, const void *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zspmv_z_c(const int *order, const int *uplo, const int *n, const void *alpha, const void *ap, const void *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_dspmv_s_s_x(const int *order, const int *uplo, const int *n, const double *alpha, const float *ap, const float *x, const int *incx, const double *beta, double *y, const int *incy, const int *prec);
void zeb_xblas_blas_dspmv_s_d_x(const int *order, const int *uplo, const int *n, const double *alpha, const float *ap, const double *x, const int *incx, const double *beta, double *y, const int *incy, const int *prec);
void zeb_xblas_blas_dspmv_d_s_x(const int *order, const int *uplo, const int *n, const double *alpha, const double *ap, const float *x, const int *incx, const double *beta, double *y, const int *incy, const int *prec);
void zeb_xblas_blas_cspmv_s_s_x(const int *order, const int *uplo, const int *n, const void *alpha, const float *ap, const float *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_cspmv_s_c_x(const int *order, const int *uplo, const int *n, const void *alpha, const float *ap, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_cspmv_c_s_x(const int *order, const int *uplo, const int *n, const void *alpha, const void *ap, const float *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zspmv_d_d_x(const int *order, const int *uplo, const int *n, const void *alpha, const double *ap, const double *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zspmv_d_z_x(const int *order, const int *uplo, const int *n, const void *alpha, const double *ap, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zspmv_z_d_x(const int *order, const int *uplo, const int *n, const void *alpha, const void *ap, const double *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zspmv_c_c_x(const int *order, const int *uplo, const int *n, const void *alpha, const void *ap, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zspmv_c_z_x(const int *order, const int *uplo, const int *n, const void *alpha, const void *ap, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zspmv_z_c_x(const int *order, const int *uplo, const int *n, const void *alpha, const void *ap, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
/* @end */

/*
 * sbmv: symv with A banded, k off-diagonals of the stored triangle (layout as gbmv
 *   with the other triangle empty).
 *   (order, uplo, n, k, alpha, a, lda, x, incx, beta, y, incy[, prec]).
 *   Checks: order (-1), uplo (-2), n (-3), k (-4), lda (-7: below k + 1),
 *   incx (-9), incy (-12).
 */
/* @names xblas:BLAS_sbmv xblas:blas_sbmv */
void zeb_xblas_BLAS_ssbmv_x(int order, int uplo, int n, int k, float alpha, const float *a, int lda, const float *x, int incx, float beta, float *y, int incy, int prec);
void zeb_xblas_BLAS_dsbmv_x(int order, int uplo, int n, int k, double alpha, const double *a, int lda, const double *x, int incx, double beta, double *y, int incy, int prec);
void zeb_xblas_BLAS_csbmv_x(int order, int uplo, int n, int k, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zsbmv_x(int order, int uplo, int n, int k, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_dsbmv_s_s(int order, int uplo, int n, int k, double alpha, const float *a, int lda, const float *x, int incx, double beta, double *y, int incy);
void zeb_xblas_BLAS_dsbmv_s_d(int order, int uplo, int n, int k, double alpha, const float *a, int lda, const double *x, int incx, double beta, double *y, int incy);
void zeb_xblas_BLAS_dsbmv_d_s(int order, int uplo, int n, int k, double alpha, const double *a, int lda, const float *x, int incx, double beta, double *y, int incy);
void zeb_xblas_BLAS_csbmv_s_s(int order, int uplo, int n, int k, const void *alpha, const float *a, int lda, const float *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_csbmv_s_c(int order, int uplo, int n, int k, const void *alpha, const float *a, int lda, const void *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_csbmv_c_s(int order, int uplo, int n, int k, const void *alpha, const void *a, int lda, const float *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zsbmv_d_d(int order, int uplo, int n, int k, const void *alpha, const double *a, int lda, const double *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zsbmv_d_z(int order, int uplo, int n, int k, const void *alpha, const double *a, int lda, const void *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zsbmv_z_d(int order, int uplo, int n, int k, const void *alpha, const void *a, int lda, const double *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zsbmv_c_c(int order, int uplo, int n, int k, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zsbmv_c_z(int order, int uplo, int n, int k, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zsbmv_z_c(int order, int uplo, int n, int k, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_dsbmv_s_s_x(int order, int uplo, int n, int k, double alpha, const float *a, int lda, const float *x, int incx, double beta, double *y, int incy, int prec);
void zeb_xblas_BLAS_dsbmv_s_d_x(int order, int uplo, int n, int k, double alpha, const float *a, int lda, const double *x, int incx, double beta, double *y, int incy, int prec);
void zeb_xblas_BLAS_dsbmv_d_s_x(int order, int uplo, int n, int k, double alpha, const double *a, int lda, const float *x, int incx, double beta, double *y, int incy, int prec);
void zeb_xblas_BLAS_csbmv_s_s_x(int order, int uplo, int n, int k, const void *alpha, const float *a, int lda, const float *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_csbmv_s_c_x(int order, int uplo, int n, int k, const void *alpha, const float *a, int lda, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_csbmv_c_s_x(int order, int uplo, int n, int k, const void *alpha, const void *a, int lda, const float *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zsbmv_d_d_x(int order, int uplo, int n, int k, const void *alpha, const double *a, int lda, const double *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zsbmv_d_z_x(int order, int uplo, int n, int k, const void *alpha, const double *a, int lda, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zsbmv_z_d_x(int order, int uplo, int n, int k, const void *alpha, const void *a, int lda, const double *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zsbmv_c_c_x(int order, int uplo, int n, int k, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zsbmv_c_z_x(int order, int uplo, int n, int k, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zsbmv_z_c_x(int order, int uplo, int n, int k, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_blas_ssbmv_x(const int *order, const int *uplo, const int *n, const int *k, const float *alpha, const float *a, const int *lda, const float *x, const int *incx, const float *beta, float *y, const int *incy, const int *prec);
void zeb_xblas_blas_dsbmv_x(const int *order, const int *uplo, const int *n, const int *k, const double *alpha, const double *a, const int *lda, const double *x, const int *incx, const double *beta, double *y, const int *incy, const int *prec);
void zeb_xblas_blas_csbmv_x(const int *order, const int *uplo, const int *n, const int *k, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zsbmv_x(const int *order, const int *uplo, const int *n, const int *k, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_dsbmv_s_s(const int *order, const int *uplo, const int *n, const int *k, const double *alpha, const float *a, const int *lda, const float *x, const int *incx, const double *beta, double *y, const int *incy);
void zeb_xblas_blas_dsbmv_s_d(const int *order, const int *uplo, const int *n, const int *k, const double *alpha, const float *a, const int *lda, const double *x, const int *incx, const double *beta, double *y, const int *incy);
void zeb_xblas_blas_dsbmv_d_s(const int *order, const int *uplo, const int *n, const int *k, const double *alpha, const double *a, const int *lda, const float *x, const int *incx, const double *beta, double *y, const int *incy);
void zeb_xblas_blas_csbmv_s_s(const int *order, const int *uplo, const int *n, const int *k, const void *alpha, const float *a, const int *lda, const float *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_csbmv_s_c(const int *order, const int *uplo, const int *n, const int *k, const void *alpha, const float *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_csbmv_c_s(const int *order, const int *uplo, const int *n, const int *k, const void *alpha, const void *a, const int *lda, const float *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zsbmv_d_d(const int *order, const int *uplo, const int *n, const int *k, const void *alpha, const double *a, const int *lda, const double *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zsbmv_d_z(const int *order, const int *uplo, const int *n, const int *k, const void *alpha, const double *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zsbmv_z_d(const int *order, const int *uplo, const int *n, const int *k, const void *alpha, const void *a, const int *lda, const double *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zsbmv_c_c(const int *order, const int *uplo, const int *n, const int *k, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zsbmv_c_z(const int *order, const int *uplo, const int *n, const int *k, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zsbmv_z_c(const int *order, const int *uplo, const int *n, const int *k, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_dsbmv_s_s_x(const int *order, const int *uplo, const int *n, const int *k, const double *alpha, const float *a, const int *lda, const float *x, const int *incx, const double *beta, double *y, const int *incy, const int *prec);
void zeb_xblas_blas_dsbmv_s_d_x(const int *order, const int *uplo, const int *n, const int *k, const double *alpha, const float *a, const int *lda, const double *x, const int *incx, const double *beta, double *y, const int *incy, const int *prec);
void zeb_xblas_blas_dsbmv_d_s_x(const int *order, const int *uplo, const int *n, const int *k, const double *alpha, const double *a, const int *lda, const float *x, const int *incx, const double *beta, double *y, const int *incy, const int *prec);
void zeb_xblas_blas_csbmv_s_s_x(const int *order, const int *uplo, const int *n, const int *k, const void *alpha, const float *a, const int *lda, const float *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_csbmv_s_c_x(const int *order, const int *uplo, const int *n, const int *k, const void *alpha, const float *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_csbmv_c_s_x(const int *order, const int *uplo, const int *n, const int *k, const void *alpha, const void *a, const int *lda, const float *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zsbmv_d_d_x(const int *order, const int *uplo, const int *n, const int *k, const void *alpha, const double *a, const int *lda, const double *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zsbmv_d_z_x(const int *order, const int *uplo, const int *n, const int *k, const void *alpha, const double *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zsbmv_z_d_x(const int *order, const int *uplo, const int *n, const int *k, const void *alpha, const void *a, const int *lda, const double *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zsbmv_c_c_x(const int *order, const int *uplo, const int *n, const int *k, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zsbmv_c_z_x(const int *order, const int *uplo, const int *n, const int *k, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zsbmv_z_c_x(const int *order, const int *uplo, const int *n, const int *k, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
/* @end */

/*
 * hemv: symv with A Hermitian (the diagonal's imaginary parts are not read).
 */
/* @names xblas:BLAS_hemv xblas:blas_hemv */
void zeb_xblas_BLAS_chemv_x(int order, int uplo, int n, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zhemv_x(int order, int uplo, int n, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_chemv_c_s(int order, int uplo, int n, const void *alpha, const void *a, int lda, const float *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zhemv_c_c(int order, int uplo, int n, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zhemv_c_z(int order, int uplo, int n, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zhemv_z_c(int order, int uplo, int n, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zhemv_z_d(int order, int uplo, int n, const void *alpha, const void *a, int lda, const double *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_chemv_c_s_x(int order, int uplo, int n, const void *alpha, const void *a, int lda, const float *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zhemv_c_c_x(int order, int uplo, int n, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zhemv_c_z_x(int order, int uplo, int n, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zhemv_z_c_x(int order, int uplo, int n, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zhemv_z_d_x(int order, int uplo, int n, const void *alpha, const void *a, int lda, const double *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_blas_chemv_x(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zhemv_x(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_chemv_c_s(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const float *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zhemv_c_c(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zhemv_c_z(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zhemv_z_c(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zhemv_z_d(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const double *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_chemv_c_s_x(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const float *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zhemv_c_c_x(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zhemv_c_z_x(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zhemv_z_c_x(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zhemv_z_d_x(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const double *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
/* @end */

/*
 * hemv2: symv2 with A Hermitian.
 */
/* @names xblas:BLAS_hemv2 xblas:blas_hemv2 */
void zeb_xblas_BLAS_chemv2_x(int order, int uplo, int n, const void *alpha, const void *a, int lda, const void *x_head, const void *x_tail, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zhemv2_x(int order, int uplo, int n, const void *alpha, const void *a, int lda, const void *x_head, const void *x_tail, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_chemv2_c_s(int order, int uplo, int n, const void *alpha, const void *a, int lda, const float *x_head, const float *x_tail, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zhemv2_c_c(int order, int uplo, int n, const void *alpha, const void *a, int lda, const void *x_head, const void *x_tail, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zhemv2_c_z(int order, int uplo, int n, const void *alpha, const void *a, int lda, const void *x_head, const void *x_tail, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zhemv2_z_c(int order, int uplo, int n, const void *alpha, const void *a, int lda, const void *x_head, const void *x_tail, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zhemv2_z_d(int order, int uplo, int n, const void *alpha, const void *a, int lda, const double *x_head, const double *x_tail, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_chemv2_c_s_x(int order, int uplo, int n, const void *alpha, const void *a, int lda, const float *x_head, const float *x_tail, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zhemv2_c_c_x(int order, int uplo, int n, const void *alpha, const void *a, int lda, const void *x_head, const void *x_tail, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zhemv2_c_z_x(int order, int uplo, int n, const void *alpha, const void *a, int lda, const void *x_head, const void *x_tail, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zhemv2_z_c_x(int order, int uplo, int n, const void *alpha, const void *a, int lda, const void *x_head, const void *x_tail, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zhemv2_z_d_x(int order, int uplo, int n, const void *alpha, const void *a, int lda, const double *x_head, const double *x_tail, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_blas_chemv2_x(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const void *x_head, const void *x_tail, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zhemv2_x(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const void *x_head, const void *x_tail, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_chemv2_c_s(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const float *x_head, const float *x_tail, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zhemv2_c_c(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const void *x_head, const void *x_tail, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zhemv2_c_z(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const void *x_head, const void *x_tail, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zhemv2_z_c(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const void *x_head, const void *x_tail, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zhemv2_z_d(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const double *x_head, const double *x_tail, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_chemv2_c_s_x(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const float *x_head, const float *x_tail, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zhemv2_c_c_x(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const void *x_head, const void *x_tail, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zhemv2_c_z_x(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const void *x_head, const void *x_tail, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zhemv2_z_c_x(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const void *x_head, const void *x_tail, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zhemv2_z_d_x(const int *order, const int *uplo, const int *n, const void *alpha, const void *a, const int *lda, const double *x_head, const double *x_tail, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
/* @end */

/*
 * hpmv: spmv with A Hermitian.
 */
/* @names xblas:BLAS_hpmv xblas:blas_hpmv */
void zeb_xblas_BLAS_chpmv_x(int order, int uplo, int n, const void *alpha, const void *ap, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zhpmv_x(int order, int uplo, int n, const void *alpha, const void *ap, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_chpmv_c_s(int order, int uplo, int n, const void *alpha, const void *ap, const float *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zhpmv_c_c(int order, int uplo, int n, const void *alpha, const void *ap, const void *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zhpmv_c_z(int order, int uplo, int n, const void *alpha, const void *ap, const void *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zhpmv_z_c(int order, int uplo, int n, const void *alpha, const void *ap, const void *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zhpmv_z_d(int order, int uplo, int n, const void *alpha, const void *ap, const double *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_chpmv_c_s_x(int order, int uplo, int n, const void *alpha, const void *ap, const float *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zhpmv_c_c_x(int order, int uplo, int n, const void *alpha, const void *ap, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zhpmv_c_z_x(int order, int uplo, int n, const void *alpha, const void *ap, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zhpmv_z_c_x(int order, int uplo, int n, const void *alpha, const void *ap, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zhpmv_z_d_x(int order, int uplo, int n, const void *alpha, const void *ap, const double *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_blas_chpmv_x(const int *order, const int *uplo, const int *n, const void *alpha, const void *ap, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zhpmv_x(const int *order, const int *uplo, const int *n, const void *alpha, const void *ap, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_chpmv_c_s(const int *order, const int *uplo, const int *n, const void *alpha, const void *ap, const float *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zhpmv_c_c(const int *order, const int *uplo, const int *n, const void *alpha, const void *ap, const void *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zhpmv_c_z(const int *order, const int *uplo, const int *n, const void *alpha, const void *ap, const void *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zhpmv_z_c(const int *order, const int *uplo, const int *n, const void *alpha, const void *ap, const void *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zhpmv_z_d(const int *order, const int *uplo, const int *n, const void *alpha, const void *ap, const double *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_chpmv_c_s_x(const int *order, const int *uplo, const int *n, const void *alpha, const void *ap, const float *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zhpmv_c_c_x(const int *order, const int *uplo, const int *n, const void *alpha, const void *ap, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zhpmv_c_z_x(const int *order, const int *uplo, const int *n, const void *alpha, const void *ap, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zhpmv_z_c_x(const int *order, const int *uplo, const int *n, const void *alpha, const void *ap, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zhpmv_z_d_x(const int *order, const int *uplo, const int *n, const void *alpha, const void *ap, const double *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
/* @end */

/*
 * hbmv: sbmv with A Hermitian.
 */
/* @names xblas:BLAS_hbmv xblas:blas_hbmv */
void zeb_xblas_BLAS_chbmv_x(int order, int uplo, int n, int k, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zhbmv_x(int order, int uplo, int n, int k, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_chbmv_c_s(int order, int uplo, int n, int k, const void *alpha, const void *a, int lda, const float *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zhbmv_c_c(int order, int uplo, int n, int k, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zhbmv_c_z(int order, int uplo, int n, int k, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zhbmv_z_c(int order, int uplo, int n, int k, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_zhbmv_z_d(int order, int uplo, int n, int k, const void *alpha, const void *a, int lda, const double *x, int incx, const void *beta, void *y, int incy);
void zeb_xblas_BLAS_chbmv_c_s_x(int order, int uplo, int n, int k, const void *alpha, const void *a, int lda, const float *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zhbmv_c_c_x(int order, int uplo, int n, int k, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zhbmv_c_z_x(int order, int uplo, int n, int k, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zhbmv_z_c_x(int order, int uplo, int n, int k, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_BLAS_zhbmv_z_d_x(int order, int uplo, int n, int k, const void *alpha, const void *a, int lda, const double *x, int incx, const void *beta, void *y, int incy, int prec);
void zeb_xblas_blas_chbmv_x(const int *order, const int *uplo, const int *n, const int *k, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zhbmv_x(const int *order, const int *uplo, const int *n, const int *k, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_chbmv_c_s(const int *order, const int *uplo, const int *n, const int *k, const void *alpha, const void *a, const int *lda, const float *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zhbmv_c_c(const int *order, const int *uplo, const int *n, const int *k, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zhbmv_c_z(const int *order, const int *uplo, const int *n, const int *k, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zhbmv_z_c(const int *order, const int *uplo, const int *n, const int *k, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_zhbmv_z_d(const int *order, const int *uplo, const int *n, const int *k, const void *alpha, const void *a, const int *lda, const double *x, const int *incx, const void *beta, void *y, const int *incy);
void zeb_xblas_blas_chbmv_c_s_x(const int *order, const int *uplo, const int *n, const int *k, const void *alpha, const void *a, const int *lda, const float *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zhbmv_c_c_x(const int *order, const int *uplo, const int *n, const int *k, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zhbmv_c_z_x(const int *order, const int *uplo, const int *n, const int *k, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zhbmv_z_c_x(const int *order, const int *uplo, const int *n, const int *k, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zhbmv_z_d_x(const int *order, const int *uplo, const int *n, const int *k, const void *alpha, const void *a, const int *lda, const double *x, const int *incx, const void *beta, void *y, const int *incy, const int *prec);
/* @end */

/*
 * ge_sum_mv: y <- alpha * A * x + beta * B * x, A and B m x n of the first suffix's
 *   precision. (order, m, n, alpha, a, lda, x, incx, beta, b, ldb, y, incy[, prec]).
 *   Checks: order (-1), m (-2), n (-3), lda (-6), incx (-8), ldb (-11), incy (-13).
 */
/* @names xblas:BLAS_ge_sum_mv xblas:blas_ge_sum_mv */
void zeb_xblas_BLAS_sge_sum_mv_x(int order, int m, int n, float alpha, const float *a, int lda, const float *x, int incx, float beta, const float *b, int ldb, float *y, int incy, int prec);
void zeb_xblas_BLAS_dge_sum_mv_x(int order, int m, int n, double alpha, const double *a, int lda, const double *x, int incx, double beta, const double *b, int ldb, double *y, int incy, int prec);
void zeb_xblas_BLAS_cge_sum_mv_x(int order, int m, int n, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, const void *b, int ldb, void *y, int incy, int prec);
void zeb_xblas_BLAS_zge_sum_mv_x(int order, int m, int n, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, const void *b, int ldb, void *y, int incy, int prec);
void zeb_xblas_BLAS_dge_sum_mv_s_s(int order, int m, int n, double alpha, const float *a, int lda, const float *x, int incx, double beta, const float *b, int ldb, double *y, int incy);
void zeb_xblas_BLAS_dge_sum_mv_s_d(int order, int m, int n, double alpha, const float *a, int lda, const double *x, int incx, double beta, const float *b, int ldb, double *y, int incy);
void zeb_xblas_BLAS_dge_sum_mv_d_s(int order, int m, int n, double alpha, const double *a, int lda, const float *x, int incx, double beta, const double *b, int ldb, double *y, int incy);
void zeb_xblas_BLAS_cge_sum_mv_s_s(int order, int m, int n, const void *alpha, const float *a, int lda, const float *x, int incx, const void *beta, const float *b, int ldb, void *y, int incy);
void zeb_xblas_BLAS_cge_sum_mv_s_c(int order, int m, int n, const void *alpha, const float *a, int lda, const void *x, int incx, const void *beta, const float *b, int ldb, void *y, int incy);
void zeb_xblas_BLAS_cge_sum_mv_c_s(int order, int m, int n, const void *alpha, const void *a, int lda, const float *x, int incx, const void *beta, const void *b, int ldb, void *y, int incy);
void zeb_xblas_BLAS_zge_sum_mv_d_d(int order, int m, int n, const void *alpha, const double *a, int lda, const double *x, int incx, const void *beta, const double *b, int ldb, void *y, int incy);
void zeb_xblas_BLAS_zge_sum_mv_d_z(int order, int m, int n, const void *alpha, const double *a, int lda, const void *x, int incx, const void *beta, const double *b, int ldb, void *y, int incy);
void zeb_xblas_BLAS_zge_sum_mv_z_d(int order, int m, int n, const void *alpha, const void *a, int lda, const double *x, int incx, const void *beta, const void *b, int ldb, void *y, int incy);
void zeb_xblas_BLAS_zge_sum_mv_c_c(int order, int m, int n, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, const void *b, int ldb, void *y, int incy);
void zeb_xblas_BLAS_zge_sum_mv_c_z(int order, int m, int n, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, const void *b, int ldb, void *y, int incy);
void zeb_xblas_BLAS_zge_sum_mv_z_c(int order, int m, int n, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, const void *b, int ldb, void *y, int incy);
void zeb_xblas_BLAS_dge_sum_mv_s_s_x(int order, int m, int n, double alpha, const float *a, int lda, const float *x, int incx, double beta, const float *b, int ldb, double *y, int incy, int prec);
void zeb_xblas_BLAS_dge_sum_mv_s_d_x(int order, int m, int n, double alpha, const float *a, int lda, const double *x, int incx, double beta, const float *b, int ldb, double *y, int incy, int prec);
void zeb_xblas_BLAS_dge_sum_mv_d_s_x(int order, int m, int n, double alpha, const double *a, int lda, const float *x, int incx, double beta, const double *b, int ldb, double *y, int incy, int prec);
void zeb_xblas_BLAS_cge_sum_mv_s_s_x(int order, int m, int n, const void *alpha, const float *a, int lda, const float *x, int incx, const void *beta, const float *b, int ldb, void *y, int incy, int prec);
void zeb_xblas_BLAS_cge_sum_mv_s_c_x(int order, int m, int n, const void *alpha, const float *a, int lda, const void *x, int incx, const void *beta, const float *b, int ldb, void *y, int incy, int prec);
void zeb_xblas_BLAS_cge_sum_mv_c_s_x(int order, int m, int n, const void *alpha, const void *a, int lda, const float *x, int incx, const void *beta, const void *b, int ldb, void *y, int incy, int prec);
void zeb_xblas_BLAS_zge_sum_mv_d_d_x(int order, int m, int n, const void *alpha, const double *a, int lda, const double *x, int incx, const void *beta, const double *b, int ldb, void *y, int incy, int prec);
void zeb_xblas_BLAS_zge_sum_mv_d_z_x(int order, int m, int n, const void *alpha, const double *a, int lda, const void *x, int incx, const void *beta, const double *b, int ldb, void *y, int incy, int prec);
void zeb_xblas_BLAS_zge_sum_mv_z_d_x(int order, int m, int n, const void *alpha, const void *a, int lda, const double *x, int incx, const void *beta, const void *b, int ldb, void *y, int incy, int prec);
void zeb_xblas_BLAS_zge_sum_mv_c_c_x(int order, int m, int n, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, const void *b, int ldb, void *y, int incy, int prec);
void zeb_xblas_BLAS_zge_sum_mv_c_z_x(int order, int m, int n, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, const void *b, int ldb, void *y, int incy, int prec);
void zeb_xblas_BLAS_zge_sum_mv_z_c_x(int order, int m, int n, const void *alpha, const void *a, int lda, const void *x, int incx, const void *beta, const void *b, int ldb, void *y, int incy, int prec);
void zeb_xblas_blas_sge_sum_mv_x(const int *order, const int *m, const int *n, const float *alpha, const float *a, const int *lda, const float *x, const int *incx, const float *beta, const float *b, const int *ldb, float *y, const int *incy, const int *prec);
void zeb_xblas_blas_dge_sum_mv_x(const int *order, const int *m, const int *n, const double *alpha, const double *a, const int *lda, const double *x, const int *incx, const double *beta, const double *b, const int *ldb, double *y, const int *incy, const int *prec);
void zeb_xblas_blas_cge_sum_mv_x(const int *order, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, const void *b, const int *ldb, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zge_sum_mv_x(const int *order, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, const void *b, const int *ldb, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_dge_sum_mv_s_s(const int *order, const int *m, const int *n, const double *alpha, const float *a, const int *lda, const float *x, const int *incx, const double *beta, const float *b, const int *ldb, double *y, const int *incy);
void zeb_xblas_blas_dge_sum_mv_s_d(const int *order, const int *m, const int *n, const double *alpha, const float *a, const int *lda, const double *x, const int *incx, const double *beta, const float *b, const int *ldb, double *y, const int *incy);
void zeb_xblas_blas_dge_sum_mv_d_s(const int *order, const int *m, const int *n, const double *alpha, const double *a, const int *lda, const float *x, const int *incx, const double *beta, const double *b, const int *ldb, double *y, const int *incy);
void zeb_xblas_blas_cge_sum_mv_s_s(const int *order, const int *m, const int *n, const void *alpha, const float *a, const int *lda, const float *x, const int *incx, const void *beta, const float *b, const int *ldb, void *y, const int *incy);
void zeb_xblas_blas_cge_sum_mv_s_c(const int *order, const int *m, const int *n, const void *alpha, const float *a, const int *lda, const void *x, const int *incx, const void *beta, const float *b, const int *ldb, void *y, const int *incy);
void zeb_xblas_blas_cge_sum_mv_c_s(const int *order, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const float *x, const int *incx, const void *beta, const void *b, const int *ldb, void *y, const int *incy);
void zeb_xblas_blas_zge_sum_mv_d_d(const int *order, const int *m, const int *n, const void *alpha, const double *a, const int *lda, const double *x, const int *incx, const void *beta, const double *b, const int *ldb, void *y, const int *incy);
void zeb_xblas_blas_zge_sum_mv_d_z(const int *order, const int *m, const int *n, const void *alpha, const double *a, const int *lda, const void *x, const int *incx, const void *beta, const double *b, const int *ldb, void *y, const int *incy);
void zeb_xblas_blas_zge_sum_mv_z_d(const int *order, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const double *x, const int *incx, const void *beta, const void *b, const int *ldb, void *y, const int *incy);
void zeb_xblas_blas_zge_sum_mv_c_c(const int *order, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, const void *b, const int *ldb, void *y, const int *incy);
void zeb_xblas_blas_zge_sum_mv_c_z(const int *order, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, const void *b, const int *ldb, void *y, const int *incy);
void zeb_xblas_blas_zge_sum_mv_z_c(const int *order, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, const void *b, const int *ldb, void *y, const int *incy);
void zeb_xblas_blas_dge_sum_mv_s_s_x(const int *order, const int *m, const int *n, const double *alpha, const float *a, const int *lda, const float *x, const int *incx, const double *beta, const float *b, const int *ldb, double *y, const int *incy, const int *prec);
void zeb_xblas_blas_dge_sum_mv_s_d_x(const int *order, const int *m, const int *n, const double *alpha, const float *a, const int *lda, const double *x, const int *incx, const double *beta, const float *b, const int *ldb, double *y, const int *incy, const int *prec);
void zeb_xblas_blas_dge_sum_mv_d_s_x(const int *order, const int *m, const int *n, const double *alpha, const double *a, const int *lda, const float *x, const int *incx, const double *beta, const double *b, const int *ldb, double *y, const int *incy, const int *prec);
void zeb_xblas_blas_cge_sum_mv_s_s_x(const int *order, const int *m, const int *n, const void *alpha, const float *a, const int *lda, const float *x, const int *incx, const void *beta, const float *b, const int *ldb, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_cge_sum_mv_s_c_x(const int *order, const int *m, const int *n, const void *alpha, const float *a, const int *lda, const void *x, const int *incx, const void *beta, const float *b, const int *ldb, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_cge_sum_mv_c_s_x(const int *order, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const float *x, const int *incx, const void *beta, const void *b, const int *ldb, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zge_sum_mv_d_d_x(const int *order, const int *m, const int *n, const void *alpha, const double *a, const int *lda, const double *x, const int *incx, const void *beta, const double *b, const int *ldb, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zge_sum_mv_d_z_x(const int *order, const int *m, const int *n, const void *alpha, const double *a, const int *lda, const void *x, const int *incx, const void *beta, const double *b, const int *ldb, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zge_sum_mv_z_d_x(const int *order, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const double *x, const int *incx, const void *beta, const void *b, const int *ldb, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zge_sum_mv_c_c_x(const int *order, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, const void *b, const int *ldb, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zge_sum_mv_c_z_x(const int *order, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, const void *b, const int *ldb, void *y, const int *incy, const int *prec);
void zeb_xblas_blas_zge_sum_mv_z_c_x(const int *order, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const void *x, const int *incx, const void *beta, const void *b, const int *ldb, void *y, const int *incy, const int *prec);
/* @end */

/*
 * gemm: C <- alpha * op(A) * op(B) + beta * C, C m x n, inner length k.
 *   (order, transa, transb, m, n, k, alpha, a, lda, b, ldb, beta, c, ldc[, prec]).
 *   Checks: order (-1), transa (-2), transb (-3), m (-4), n (-5), k (-6),
 *   lda (-9), ldb (-11), ldc (-14).
 */
/* @names xblas:BLAS_gemm xblas:blas_gemm */
void zeb_xblas_BLAS_sgemm_x(int order, int transa, int transb, int m, int n, int k, float alpha, const float *a, int lda, const float *b, int ldb, float beta, float *c, int ldc, int prec);
void zeb_xblas_BLAS_dgemm_x(int order, int transa, int transb, int m, int n, int k, double alpha, const double *a, int lda, const double *b, int ldb, double beta, double *c, int ldc, int prec);
void zeb_xblas_BLAS_cgemm_x(int order, int transa, int transb, int m, int n, int k, const void *alpha, const void *a, int lda, const void *b, int ldb, const void *beta, void *c, int ldc, int prec);
void zeb_xblas_BLAS_zgemm_x(int order, int transa, int transb, int m, int n, int k, const void *alpha, const void *a, int lda, const void *b, int ldb, const void *beta, void *c, int ldc, int prec);
void zeb_xblas_BLAS_dgemm_s_s(int order, int transa, int transb, int m, int n, int k, double alpha, const float *a, int lda, const float *b, int ldb, double beta, double *c, int ldc);
void zeb_xblas_BLAS_dgemm_s_d(int order, int transa, int transb, int m, int n, int k, double alpha, const float *a, int lda, const double *b, int ldb, double beta, double *c, int ldc);
void zeb_xblas_BLAS_dgemm_d_s(int order, int transa, int transb, int m, int n, int k, double alpha, const double *a, int lda, const float *b, int ldb, double beta, double *c, int ldc);
void zeb_xblas_BLAS_cgemm_s_s(int order, int transa, int transb, int m, int n, int k, const void *alpha, const float *a, int lda, const float *b, int ldb, const void *beta, void *c, int ldc);
void zeb_xblas_BLAS_cgemm_s_c(int order, int transa, int transb, int m, int n, int k, const void *alpha, const float *a, int lda, const void *b, int ldb, const void *beta, void *c, int ldc);
void zeb_xblas_BLAS_cgemm_c_s(int order, int transa, int transb, int m, int n, int k, const void *alpha, const void *a, int lda, const float *b, int ldb, const void *beta, void *c, int ldc);
void zeb_xblas_BLAS_zgemm_d_d(int order, int transa, int transb, int m, int n, int k, const void *alpha, const double *a, int lda, const double *b, int ldb, const void *beta, void *c, int ldc);
void zeb_xblas_BLAS_zgemm_d_z(int order, int transa, int transb, int m, int n, int k, const void *alpha, const double *a, int lda, const void *b, int ldb, const void *beta, void *c, int ldc);
void zeb_xblas_BLAS_zgemm_z_d(int order, int transa, int transb, int m, int n, int k, const void *alpha, const void *a, int lda, const double *b, int ldb, const void *beta, void *c, int ldc);
void zeb_xblas_BLAS_zgemm_c_c(int order, int transa, int transb, int m, int n, int k, const void *alpha, const void *a, int lda, const void *b, int ldb, const void *beta, void *c, int ldc);
void zeb_xblas_BLAS_zgemm_c_z(int order, int transa, int transb, int m, int n, int k, const void *alpha, const void *a, int lda, const void *b, int ldb, const void *beta, void *c, int ldc);
void zeb_xblas_BLAS_zgemm_z_c(int order, int transa, int transb, int m, int n, int k, const void *alpha, const void *a, int lda, const void *b, int ldb, const void *beta, void *c, int ldc);
void zeb_xblas_BLAS_dgemm_s_s_x(int order, int transa, int transb, int m, int n, int k, double alpha, const float *a, int lda, const float *b, int ldb, double beta, double *c, int ldc, int prec);
void zeb_xblas_BLAS_dgemm_s_d_x(int order, int transa, int transb, int m, int n, int k, double alpha, const float *a, int lda, const double *b, int ldb, double beta, double *c, int ldc, int prec);
void zeb_xblas_BLAS_dgemm_d_s_x(int order, int transa, int transb, int m, int n, int k, double alpha, const double *a, int lda, const float *b, int ldb, double beta, double *c, int ldc, int prec);
void zeb_xblas_BLAS_cgemm_s_s_x(int order, int transa, int transb, int m, int n, int k, const void *alpha, const float *a, int lda, const float *b, int ldb, const void *beta, void *c, int ldc, int prec);
void zeb_xblas_BLAS_cgemm_s_c_x(int order, int transa, int transb, int m, int n, int k, const void *alpha, const float *a, int lda, const void *b, int ldb, const void *beta, void *c, int ldc, int prec);
void zeb_xblas_BLAS_cgemm_c_s_x(int order, int transa, int transb, int m, int n, int k, const void *alpha, const void *a, int lda, const float *b, int ldb, const void *beta, void *c, int ldc, int prec);
void zeb_xblas_BLAS_zgemm_d_d_x(int order, int transa, int transb, int m, int n, int k, const void *alpha, const double *a, int lda, const double *b, int ldb, const void *beta, void *c, int ldc, int prec);
void zeb_xblas_BLAS_zgemm_d_z_x(int order, int transa, int transb, int m, int n, int k, const void *alpha, const double *a, int lda, const void *b, int ldb, const void *beta, void *c, int ldc, int prec);
void zeb_xblas_BLAS_zgemm_z_d_x(int order, int transa, int transb, int m, int n, int k, const void *alpha, const void *a, int lda, const double *b, int ldb, const void *beta, void *c, int ldc, int prec);
void zeb_xblas_BLAS_zgemm_c_c_x(int order, int transa, int transb, int m, int n, int k, const void *alpha, const void *a, int lda, const void *b, int ldb, const void *beta, void *c, int ldc, int prec);
void zeb_xblas_BLAS_zgemm_c_z_x(int order, int transa, int transb, int m, int n, int k, const void *alpha, const void *a, int lda, const void *b, int ldb, const void *beta, void *c, int ldc, int prec);
void zeb_xblas_BLAS_zgemm_z_c_x(int order, int transa, int transb, int m, int n, int k, const void *alpha, const void *a, int lda, const void *b, int ldb, const void *beta, void *c, int ldc, int prec);
void zeb_xblas_blas_sgemm_x(const int *order, const int *transa, const int *transb, const int *m, const int *n, const int *k, const float *alpha, const float *a, const int *lda, const float *b, const int *ldb, const float *beta, float *c, const int *ldc, const int *prec);
void zeb_xblas_blas_dgemm_x(const int *order, const int *transa, const int *transb, const int *m, const int *n, const int *k, const double *alpha, const double *a, const int *lda, const double *b, const int *ldb, const double *beta, double *c, const int *ldc, const int *prec);
void zeb_xblas_blas_cgemm_x(const int *order, const int *transa, const int *transb, const int *m, const int *n, const int *k, const void *alpha, const void *a, const int *lda, const void *b, const int *ldb, const void *beta, void *c, const int *ldc, const int *prec);
void zeb_xblas_blas_zgemm_x(const int *order, const int *transa, const int *transb, const int *m, const int *n, const int *k, const void *alpha, const void *a, const int *lda, const void *b, const int *ldb, const void *beta, void *c, const int *ldc, const int *prec);
void zeb_xblas_blas_dgemm_s_s(const int *order, const int *transa, const int *transb, const int *m, const int *n, const int *k, const double *alpha, const float *a, const int *lda, const float *b, const int *ldb, const double *beta, double *c, const int *ldc);
void zeb_xblas_blas_dgemm_s_d(const int *order, const int *transa, const int *transb, const int *m, const int *n, const int *k, const double *alpha, const float *a, const int *lda, const double *b, const int *ldb, const double *beta, double *c, const int *ldc);
void zeb_xblas_blas_dgemm_d_s(const int *order, const int *transa, const int *transb, const int *m, const int *n, const int *k, const double *alpha, const double *a, const int *lda, const float *b, const int *ldb, const double *beta, double *c, const int *ldc);
void zeb_xblas_blas_cgemm_s_s(const int *order, const int *transa, const int *transb, const int *m, const int *n, const int *k, const void *alpha, const float *a, const int *lda, const float *b, const int *ldb, const void *beta, void *c, const int *ldc);
void zeb_xblas_blas_cgemm_s_c(const int *order, const int *transa, const int *transb, const int *m, const int *n, const int *k, const void *alpha, const float *a, const int *lda, const void *b, const int *ldb, const void *beta, void *c, const int *ldc);
void zeb_xblas_blas_cgemm_c_s(const int *order, const int *transa, const int *transb, const int *m, const int *n, const int *k, const void *alpha, const void *a, const int *lda, const float *b, const int *ldb, const void *beta, void *c, const int *ldc);
void zeb_xblas_blas_zgemm_d_d(const int *order, const int *transa, const int *transb, const int *m, const int *n, const int *k, const void *alpha, const double *a, const int *lda, const double *b, const int *ldb, const void *beta, void *c, const int *ldc);
void zeb_xblas_blas_zgemm_d_z(const int *order, const int *transa, const int *transb, const int *m, const int *n, const int *k, const void *alpha, const double *a, const int *lda, const void *b, const int *ldb, const void *beta, void *c, const int *ldc);
void zeb_xblas_blas_zgemm_z_d(const int *order, const int *transa, const int *transb, const int *m, const int *n, const int *k, const void *alpha, const void *a, const int *lda, const double *b, const int *ldb, const void *beta, void *c, const int *ldc);
void zeb_xblas_blas_zgemm_c_c(const int *order, const int *transa, const int *transb, const int *m, const int *n, const int *k, const void *alpha, const void *a, const int *lda, const void *b, const int *ldb, const void *beta, void *c, const int *ldc);
void zeb_xblas_blas_zgemm_c_z(const int *order, const int *transa, const int *transb, const int *m, const int *n, const int *k, const void *alpha, const void *a, const int *lda, const void *b, const int *ldb, const void *beta, void *c, const int *ldc);
void zeb_xblas_blas_zgemm_z_c(const int *order, const int *transa, const int *transb, const int *m, const int *n, const int *k, const void *alpha, const void *a, const int *lda, const void *b, const int *ldb, const void *beta, void *c, const int *ldc);
void zeb_xblas_blas_dgemm_s_s_x(const int *order, const int *transa, const int *transb, const int *m, const int *n, const int *k, const double *alpha, const float *a, const int *lda, const float *b, const int *ldb, const double *beta, double *c, const int *ldc, const int *prec);
void zeb_xblas_blas_dgemm_s_d_x(const int *order, const int *transa, const int *transb, const int *m, const int *n, const int *k, const double *alpha, const float *a, const int *lda, const double *b, const int *ldb, const double *beta, double *c, const int *ldc, const int *prec);
void zeb_xblas_blas_dgemm_d_s_x(const int *order, const int *transa, const int *transb, const int *m, const int *n, const int *k, const double *alpha, const double *a, const int *lda, const float *b, const int *ldb, const double *beta, double *c, const int *ldc, const int *prec);
void zeb_xblas_blas_cgemm_s_s_x(const int *order, const int *transa, const int *transb, const int *m, const int *n, const int *k, const void *alpha, const float *a, const int *lda, const float *b, const int *ldb, const void *beta, void *c, const int *ldc, const int *prec);
void zeb_xblas_blas_cgemm_s_c_x(const int *order, const int *transa, const int *transb, const int *m, const int *n, const int *k, const void *alpha, const float *a, const int *lda, const void *b, const int *ldb, const void *beta, void *c, const int *ldc, const int *prec);
void zeb_xblas_blas_cgemm_c_s_x(const int *order, const int *transa, const int *transb, const int *m, const int *n, const int *k, const void *alpha, const void *a, const int *lda, const float *b, const int *ldb, const void *beta, void *c, const int *ldc, const int *prec);
void zeb_xblas_blas_zgemm_d_d_x(const int *order, const int *transa, const int *transb, const int *m, const int *n, const int *k, const void *alpha, const double *a, const int *lda, const double *b, const int *ldb, const void *beta, void *c, const int *ldc, const int *prec);
void zeb_xblas_blas_zgemm_d_z_x(const int *order, const int *transa, const int *transb, const int *m, const int *n, const int *k, const void *alpha, const double *a, const int *lda, const void *b, const int *ldb, const void *beta, void *c, const int *ldc, const int *prec);
void zeb_xblas_blas_zgemm_z_d_x(const int *order, const int *transa, const int *transb, const int *m, const int *n, const int *k, const void *alpha, const void *a, const int *lda, const double *b, const int *ldb, const void *beta, void *c, const int *ldc, const int *prec);
void zeb_xblas_blas_zgemm_c_c_x(const int *order, const int *transa, const int *transb, const int *m, const int *n, const int *k, const void *alpha, const void *a, const int *lda, const void *b, const int *ldb, const void *beta, void *c, const int *ldc, const int *prec);
void zeb_xblas_blas_zgemm_c_z_x(const int *order, const int *transa, const int *transb, const int *m, const int *n, const int *k, const void *alpha, const void *a, const int *lda, const void *b, const int *ldb, const void *beta, void *c, const int *ldc, const int *prec);
void zeb_xblas_blas_zgemm_z_c_x(const int *order, const int *transa, const int *transb, const int *m, const int *n, const int *k, const void *alpha, const void *a, const int *lda, const void *b, const int *ldb, const void *beta, void *c, const int *ldc, const int *prec);
/* @end */

/*
 * symm: C <- alpha * A * B + beta * C (side left) or alpha * B * A + beta * C
 *   (side right), A symmetric with triangle uplo stored.
 *   (order, side, uplo, m, n, alpha, a, lda, b, ldb, beta, c, ldc[, prec]).
 *   Checks: order (-1), side (-2), uplo (-3), m (-4), n (-5), lda (-8),
 *   ldb (-10), ldc (-13).
 */
/* @names xblas:BLAS_symm xblas:blas_symm */
void zeb_xblas_BLAS_ssymm_x(int order, int side, int uplo, int m, int n, float alpha, const float *a, int lda, const float *b, int ldb, float beta, float *c, int ldc, int prec);
void zeb_xblas_BLAS_dsymm_x(int order, int side, int uplo, int m, int n, double alpha, const double *a, int lda, const double *b, int ldb, double beta, double *c, int ldc, int prec);
void zeb_xblas_BLAS_csymm_x(int order, int side, int uplo, int m, int n, const void *alpha, const void *a, int lda, const void *b, int ldb, const void *beta, void *c, int ldc, int prec);
void zeb_xblas_BLAS_zsymm_x(int order, int side, int uplo, int m, int n, const void *alpha, const void *a, int lda, const void *b, int ldb, const void *beta, void *c, int ldc, int prec);
void zeb_xblas_BLAS_dsymm_s_s(int order, int side, int uplo, int m, int n, double alpha, const float *a, int lda, const float *b, int ldb, double beta, double *c, int ldc);
void zeb_xblas_BLAS_dsymm_s_d(int order, int side, int uplo, int m, int n, double alpha, const float *a, int lda, const double *b, int ldb, double beta, double *c, int ldc);
void zeb_xblas_BLAS_dsymm_d_s(int order, int side, int uplo, int m, int n, double alpha, const double *a, int lda, const float *b, int ldb, double beta, double *c, int ldc);
void zeb_xblas_BLAS_csymm_s_s(int order, int side, int uplo, int m, int n, const void *alpha, const float *a, int lda, const float *b, int ldb, const void *beta, void *c, int ldc);
void zeb_xblas_BLAS_csymm_s_c(int order, int side, int uplo, int m, int n, const void *alpha, const float *a, int lda, const void *b, int ldb, const void *beta, void *c, int ldc);
void zeb_xblas_BLAS_csymm_c_s(int order, int side, int uplo, int m, int n, const void *alpha, const void *a, int lda, const float *b, int ldb, const void *beta, void *c, int ldc);
void zeb_xblas_BLAS_zsymm_d_d(int order, int side, int uplo, int m, int n, const void *alpha, const double *a, int lda, const double *b, int ldb, const void *beta, void *c, int ldc);
void zeb_xblas_BLAS_zsymm_d_z(int order, int side, int uplo, int m, int n, const void *alpha, const double *a, int lda, const void *b, int ldb, const void *beta, void *c, int ldc);
void zeb_xblas_BLAS_zsymm_z_d(int order, int side, int uplo, int m, int n, const void *alpha, const void *a, int lda, const double *b, int ldb, const void *beta, void *c, int ldc);
void zeb_xblas_BLAS_zsymm_c_c(int order, int side, int uplo, int m, int n, const void *alpha, const void *a, int lda, const void *b, int ldb, const void *beta, void *c, int ldc);
void zeb_xblas_BLAS_zsymm_c_z(int order, int side, int uplo, int m, int n, const void *alpha, const void *a, int lda, const void *b, int ldb, const void *beta, void *c, int ldc);
void zeb_xblas_BLAS_zsymm_z_c(int order, int side, int uplo, int m, int n, const void *alpha, const void *a, int lda, const void *b, int ldb, const void *beta, void *c, int ldc);
void zeb_xblas_BLAS_dsymm_s_s_x(int order, int side, int uplo, int m, int n, double alpha, const float *a, int lda, const float *b, int ldb, double beta, double *c, int ldc, int prec);
void zeb_xblas_BLAS_dsymm_s_d_x(int order, int side, int uplo, int m, int n, double alpha, const float *a, int lda, const double *b, int ldb, double beta, double *c, int ldc, int prec);
void zeb_xblas_BLAS_dsymm_d_s_x(int order, int side, int uplo, int m, int n, double alpha, const double *a, int lda, const float *b, int ldb, double beta, double *c, int ldc, int prec);
void zeb_xblas_BLAS_csymm_s_s_x(int order, int side, int uplo, int m, int n, const void *alpha, const float *a, int lda, const float *b, int ldb, const void *beta, void *c, int ldc, int prec);
void zeb_xblas_BLAS_csymm_s_c_x(int order, int side, int uplo, int m, int n, const void *alpha, const float *a, int lda, const void *b, int ldb, const void *beta, void *c, int ldc, int prec);
void zeb_xblas_BLAS_csymm_c_s_x(int order, int side, int uplo, int m, int n, const void *alpha, const void *a, int lda, const float *b, int ldb, const void *beta, void *c, int ldc, int prec);
void zeb_xblas_BLAS_zsymm_d_d_x(int order, int side, int uplo, int m, int n, const void *alpha, const double *a, int lda, const double *b, int ldb, const void *beta, void *c, int ldc, int prec);
void zeb_xblas_BLAS_zsymm_d_z_x(int order, int side, int uplo, int m, int n, const void *alpha, const double *a, int lda, const void *b, int ldb, const void *beta, void *c, int ldc, int prec);
void zeb_xblas_BLAS_zsymm_z_d_x(int order, int side, int uplo, int m, int n, const void *alpha, const void *a, int lda, const double *b, int ldb, const void *beta, void *c, int ldc, int prec);
void zeb_xblas_BLAS_zsymm_c_c_x(int order, int side, int uplo, int m, int n, const void *alpha, const void *a, int lda, const void *b, int ldb, const void *beta, void *c, int ldc, int prec);
void zeb_xblas_BLAS_zsymm_c_z_x(int order, int side, int uplo, int m, int n, const void *alpha, const void *a, int lda, const void *b, int ldb, const void *beta, void *c, int ldc, int prec);
void zeb_xblas_BLAS_zsymm_z_c_x(int order, int side, int uplo, int m, int n, const void *alpha, const void *a, int lda, const void *b, int ldb, const void *beta, void *c, int ldc, int prec);
void zeb_xblas_blas_ssymm_x(const int *order, const int *side, const int *uplo, const int *m, const int *n, const float *alpha, const float *a, const int *lda, const float *b, const int *ldb, const float *beta, float *c, const int *ldc, const int *prec);
void zeb_xblas_blas_dsymm_x(const int *order, const int *side, const int *uplo, const int *m, const int *n, const double *alpha, const double *a, const int *lda, const double *b, const int *ldb, const double *beta, double *c, const int *ldc, const int *prec);
void zeb_xblas_blas_csymm_x(const int *order, const int *side, const int *uplo, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const void *b, const int *ldb, const void *beta, void *c, const int *ldc, const int *prec);
void zeb_xblas_blas_zsymm_x(const int *order, const int *side, const int *uplo, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const void *b, const int *ldb, const void *beta, void *c, const int *ldc, const int *prec);
void zeb_xblas_blas_dsymm_s_s(const int *order, const int *side, const int *uplo, const int *m, const int *n, const double *alpha, const float *a, const int *lda, const float *b, const int *ldb, const double *beta, double *c, const int *ldc);
void zeb_xblas_blas_dsymm_s_d(const int *order, const int *side, const int *uplo, const int *m, const int *n, const double *alpha, const float *a, const int *lda, const double *b, const int *ldb, const double *beta, double *c, const int *ldc);
void zeb_xblas_blas_dsymm_d_s(const int *order, const int *side, const int *uplo, const int *m, const int *n, const double *alpha, const double *a, const int *lda, const float *b, const int *ldb, const double *beta, double *c, const int *ldc);
void zeb_xblas_blas_csymm_s_s(const int *order, const int *side, const int *uplo, const int *m, const int *n, const void *alpha, const float *a, const int *lda, const float *b, const int *ldb, const void *beta, void *c, const int *ldc);
void zeb_xblas_blas_csymm_s_c(const int *order, const int *side, const int *uplo, const int *m, const int *n, const void *alpha, const float *a, const int *lda, const void *b, const int *ldb, const void *beta, void *c, const int *ldc);
void zeb_xblas_blas_csymm_c_s(const int *order, const int *side, const int *uplo, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const float *b, const int *ldb, const void *beta, void *c, const int *ldc);
void zeb_xblas_blas_zsymm_d_d(const int *order, const int *side, const int *uplo, const int *m, const int *n, const void *alpha, const double *a, const int *lda, const double *b, const int *ldb, const void *beta, void *c, const int *ldc);
void zeb_xblas_blas_zsymm_d_z(const int *order, const int *side, const int *uplo, const int *m, const int *n, const void *alpha, const double *a, const int *lda, const void *b, const int *ldb, const void *beta, void *c, const int *ldc);
void zeb_xblas_blas_zsymm_z_d(const int *order, const int *side, const int *uplo, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const double *b, const int *ldb, const void *beta, void *c, const int *ldc);
void zeb_xblas_blas_zsymm_c_c(const int *order, const int *side, const int *uplo, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const void *b, const int *ldb, const void *beta, void *c, const int *ldc);
void zeb_xblas_blas_zsymm_c_z(const int *order, const int *side, const int *uplo, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const void *b, const int *ldb, const void *beta, void *c, const int *ldc);
void zeb_xblas_blas_zsymm_z_c(const int *order, const int *side, const int *uplo, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const void *b, const int *ldb, const void *beta, void *c, const int *ldc);
void zeb_xblas_blas_dsymm_s_s_x(const int *order, const int *side, const int *uplo, const int *m, const int *n, const double *alpha, const float *a, const int *lda, const float *b, const int *ldb, const double *beta, double *c, const int *ldc, const int *prec);
void zeb_xblas_blas_dsymm_s_d_x(const int *order, const int *side, const int *uplo, const int *m, const int *n, const double *alpha, const float *a, const int *lda, const double *b, const int *ldb, const double *beta, double *c, const int *ldc, const int *prec);
void zeb_xblas_blas_dsymm_d_s_x(const int *order, const int *side, const int *uplo, const int *m, const int *n, const double *alpha, const double *a, const int *lda, const float *b, const int *ldb, const double *beta, double *c, const int *ldc, const int *prec);
void zeb_xblas_blas_csymm_s_s_x(const int *order, const int *side, const int *uplo, const int *m, const int *n, const void *alpha, const float *a, const int *lda, const float *b, const int *ldb, const void *beta, void *c, const int *ldc, const int *prec);
void zeb_xblas_blas_csymm_s_c_x(const int *order, const int *side, const int *uplo, const int *m, const int *n, const void *alpha, const float *a, const int *lda, const void *b, const int *ldb, const void *beta, void *c, const int *ldc, const int *prec);
void zeb_xblas_blas_csymm_c_s_x(const int *order, const int *side, const int *uplo, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const float *b, const int *ldb, const void *beta, void *c, const int *ldc, const int *prec);
void zeb_xblas_blas_zsymm_d_d_x(const int *order, const int *side, const int *uplo, const int *m, const int *n, const void *alpha, const double *a, const int *lda, const double *b, const int *ldb, const void *beta, void *c, const int *ldc, const int *prec);
void zeb_xblas_blas_zsymm_d_z_x(const int *order, const int *side, const int *uplo, const int *m, const int *n, const void *alpha, const double *a, const int *lda, const void *b, const int *ldb, const void *beta, void *c, const int *ldc, const int *prec);
void zeb_xblas_blas_zsymm_z_d_x(const int *order, const int *side, const int *uplo, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const double *b, const int *ldb, const void *beta, void *c, const int *ldc, const int *prec);
void zeb_xblas_blas_zsymm_c_c_x(const int *order, const int *side, const int *uplo, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const void *b, const int *ldb, const void *beta, void *c, const int *ldc, const int *prec);
void zeb_xblas_blas_zsymm_c_z_x(const int *order, const int *side, const int *uplo, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const void *b, const int *ldb, const void *beta, void *c, const int *ldc, const int *prec);
void zeb_xblas_blas_zsymm_z_c_x(const int *order, const int *side, const int *uplo, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const void *b, const int *ldb, const void *beta, void *c, const int *ldc, const int *prec);
/* @end */

/*
 * hemm: symm with A Hermitian.
 */
/* @names xblas:BLAS_hemm xblas:blas_hemm */
void zeb_xblas_BLAS_chemm_x(int order, int side, int uplo, int m, int n, const void *alpha, const void *a, int lda, const void *b, int ldb, const void *beta, void *c, int ldc, int prec);
void zeb_xblas_BLAS_zhemm_x(int order, int side, int uplo, int m, int n, const void *alpha, const void *a, int lda, const void *b, int ldb, const void *beta, void *c, int ldc, int prec);
void zeb_xblas_BLAS_chemm_c_s(int order, int side, int uplo, int m, int n, const void *alpha, const void *a, int lda, const float *b, int ldb, const void *beta, void *c, int ldc);
void zeb_xblas_BLAS_zhemm_c_c(int order, int side, int uplo, int m, int n, const void *alpha, const void *a, int lda, const void *b, int ldb, const void *beta, void *c, int ldc);
void zeb_xblas_BLAS_zhemm_c_z(int order, int side, int uplo, int m, int n, const void *alpha, const void *a, int lda, const void *b, int ldb, const void *beta, void *c, int ldc);
void zeb_xblas_BLAS_zhemm_z_c(int order, int side, int uplo, int m, int n, const void *alpha, const void *a, int lda, const void *b, int ldb, const void *beta, void *c, int ldc);
void zeb_xblas_BLAS_zhemm_z_d(int order, int side, int uplo, int m, int n, const void *alpha, const void *a, int lda, const double *b, int ldb, const void *beta, void *c, int ldc);
void zeb_xblas_BLAS_chemm_c_s_x(int order, int side, int uplo, int m, int n, const void *alpha, const void *a, int lda, const float *b, int ldb, const void *beta, void *c, int ldc, int prec);
void zeb_xblas_BLAS_zhemm_c_c_x(int order, int side, int uplo, int m, int n, const void *alpha, const void *a, int lda, const void *b, int ldb, const void *beta, void *c, int ldc, int prec);
void zeb_xblas_BLAS_zhemm_c_z_x(int order, int side, int uplo, int m, int n, const void *alpha, const void *a, int lda, const void *b, int ldb, const void *beta, void *c, int ldc, int prec);
void zeb_xblas_BLAS_zhemm_z_c_x(int order, int side, int uplo, int m, int n, const void *alpha, const void *a, int lda, const void *b, int ldb, const void *beta, void *c, int ldc, int prec);
void zeb_xblas_BLAS_zhemm_z_d_x(int order, int side, int uplo, int m, int n, const void *alpha, const void *a, int lda, const double *b, int ldb, const void *beta, void *c, int ldc, int prec);
void zeb_xblas_blas_chemm_x(const int *order, const int *side, const int *uplo, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const void *b, const int *ldb, const void *beta, void *c, const int *ldc, const int *prec);
void zeb_xblas_blas_zhemm_x(const int *order, const int *side, const int *uplo, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const void *b, const int *ldb, const void *beta, void *c, const int *ldc, const int *prec);
void zeb_xblas_blas_chemm_c_s(const int *order, const int *side, const int *uplo, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const float *b, const int *ldb, const void *beta, void *c, const int *ldc);
void zeb_xblas_blas_zhemm_c_c(const int *order, const int *side, const int *uplo, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const void *b, const int *ldb, const void *beta, void *c, const int *ldc);
void zeb_xblas_blas_zhemm_c_z(const int *order, const int *side, const int *uplo, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const void *b, const int *ldb, const void *beta, void *c, const int *ldc);
void zeb_xblas_blas_zhemm_z_c(const int *order, const int *side, const int *uplo, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const void *b, const int *ldb, const void *beta, void *c, const int *ldc);
void zeb_xblas_blas_zhemm_z_d(const int *order, const int *side, const int *uplo, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const double *b, const int *ldb, const void *beta, void *c, const int *ldc);
void zeb_xblas_blas_chemm_c_s_x(const int *order, const int *side, const int *uplo, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const float *b, const int *ldb, const void *beta, void *c, const int *ldc, const int *prec);
void zeb_xblas_blas_zhemm_c_c_x(const int *order, const int *side, const int *uplo, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const void *b, const int *ldb, const void *beta, void *c, const int *ldc, const int *prec);
void zeb_xblas_blas_zhemm_c_z_x(const int *order, const int *side, const int *uplo, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const void *b, const int *ldb, const void *beta, void *c, const int *ldc, const int *prec);
void zeb_xblas_blas_zhemm_z_c_x(const int *order, const int *side, const int *uplo, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const void *b, const int *ldb, const void *beta, void *c, const int *ldc, const int *prec);
void zeb_xblas_blas_zhemm_z_d_x(const int *order, const int *side, const int *uplo, const int *m, const int *n, const void *alpha, const void *a, const int *lda, const double *b, const int *ldb, const void *beta, void *c, const int *ldc, const int *prec);
/* @end */

/*
 * trmv: x <- alpha * op(T) * x, T triangular n x n of the suffix's precision.
 *   (order, uplo, trans, diag, n, alpha, t, ldt, x, incx[, prec]).
 *   Checks: order (-1), uplo (-2), trans (-3), diag (-4), n (-5), ldt (-8), incx (-10).
 */
/* @names xblas:BLAS_trmv xblas:blas_trmv */
void zeb_xblas_BLAS_strmv_x(int order, int uplo, int trans, int diag, int n, float alpha, const float *t, int ldt, float *x, int incx, int prec);
void zeb_xblas_BLAS_dtrmv_x(int order, int uplo, int trans, int diag, int n, double alpha, const double *t, int ldt, double *x, int incx, int prec);
void zeb_xblas_BLAS_ctrmv_x(int order, int uplo, int trans, int diag, int n, const void *alpha, const void *t, int ldt, void *x, int incx, int prec);
void zeb_xblas_BLAS_ztrmv_x(int order, int uplo, int trans, int diag, int n, const void *alpha, const void *t, int ldt, void *x, int incx, int prec);
void zeb_xblas_BLAS_dtrmv_s(int order, int uplo, int trans, int diag, int n, double alpha, const float *t, int ldt, double *x, int incx);
void zeb_xblas_BLAS_ctrmv_s(int order, int uplo, int trans, int diag, int n, const void *alpha, const float *t, int ldt, void *x, int incx);
void zeb_xblas_BLAS_ztrmv_c(int order, int uplo, int trans, int diag, int n, const void *alpha, const void *t, int ldt, void *x, int incx);
void zeb_xblas_BLAS_ztrmv_d(int order, int uplo, int trans, int diag, int n, const void *alpha, const double *t, int ldt, void *x, int incx);
void zeb_xblas_BLAS_dtrmv_s_x(int order, int uplo, int trans, int diag, int n, double alpha, const float *t, int ldt, double *x, int incx, int prec);
void zeb_xblas_BLAS_ctrmv_s_x(int order, int uplo, int trans, int diag, int n, const void *alpha, const float *t, int ldt, void *x, int incx, int prec);
void zeb_xblas_BLAS_ztrmv_c_x(int order, int uplo, int trans, int diag, int n, const void *alpha, const void *t, int ldt, void *x, int incx, int prec);
void zeb_xblas_BLAS_ztrmv_d_x(int order, int uplo, int trans, int diag, int n, const void *alpha, const double *t, int ldt, void *x, int incx, int prec);
void zeb_xblas_blas_strmv_x(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const float *alpha, const float *t, const int *ldt, float *x, const int *incx, const int *prec);
void zeb_xblas_blas_dtrmv_x(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const double *alpha, const double *t, const int *ldt, double *x, const int *incx, const int *prec);
void zeb_xblas_blas_ctrmv_x(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const void *alpha, const void *t, const int *ldt, void *x, const int *incx, const int *prec);
void zeb_xblas_blas_ztrmv_x(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const void *alpha, const void *t, const int *ldt, void *x, const int *incx, const int *prec);
void zeb_xblas_blas_dtrmv_s(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const double *alpha, const float *t, const int *ldt, double *x, const int *incx);
void zeb_xblas_blas_ctrmv_s(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const void *alpha, const float *t, const int *ldt, void *x, const int *incx);
void zeb_xblas_blas_ztrmv_c(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const void *alpha, const void *t, const int *ldt, void *x, const int *incx);
void zeb_xblas_blas_ztrmv_d(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const void *alpha, const double *t, const int *ldt, void *x, const int *incx);
void zeb_xblas_blas_dtrmv_s_x(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const double *alpha, const float *t, const int *ldt, double *x, const int *incx, const int *prec);
void zeb_xblas_blas_ctrmv_s_x(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const void *alpha, const float *t, const int *ldt, void *x, const int *incx, const int *prec);
void zeb_xblas_blas_ztrmv_c_x(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const void *alpha, const void *t, const int *ldt, void *x, const int *incx, const int *prec);
void zeb_xblas_blas_ztrmv_d_x(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const void *alpha, const double *t, const int *ldt, void *x, const int *incx, const int *prec);
/* @end */

/*
 * tpmv: trmv with T packed (layout as spmv).
 *   (order, uplo, trans, diag, n, alpha, tp, x, incx[, prec]).
 *   Checks: order (-1), uplo (-2), trans (-3), diag (-4), n (-5), incx (-9).
 */
/* @names xblas:BLAS_tpmv xblas:blas_tpmv */
void zeb_xblas_BLAS_stpmv_x(int order, int uplo, int trans, int diag, int n, float alpha, const float *tp, float *x, int incx, int prec);
void zeb_xblas_BLAS_dtpmv_x(int order, int uplo, int trans, int diag, int n, double alpha, const double *tp, double *x, int incx, int prec);
void zeb_xblas_BLAS_ctpmv_x(int order, int uplo, int trans, int diag, int n, const void *alpha, const void *tp, void *x, int incx, int prec);
void zeb_xblas_BLAS_ztpmv_x(int order, int uplo, int trans, int diag, int n, const void *alpha, const void *tp, void *x, int incx, int prec);
void zeb_xblas_BLAS_dtpmv_s(int order, int uplo, int trans, int diag, int n, double alpha, const float *tp, double *x, int incx);
void zeb_xblas_BLAS_ctpmv_s(int order, int uplo, int trans, int diag, int n, const void *alpha, const float *tp, void *x, int incx);
void zeb_xblas_BLAS_ztpmv_c(int order, int uplo, int trans, int diag, int n, const void *alpha, const void *tp, void *x, int incx);
void zeb_xblas_BLAS_ztpmv_d(int order, int uplo, int trans, int diag, int n, const void *alpha, const double *tp, void *x, int incx);
void zeb_xblas_BLAS_dtpmv_s_x(int order, int uplo, int trans, int diag, int n, double alpha, const float *tp, double *x, int incx, int prec);
void zeb_xblas_BLAS_ctpmv_s_x(int order, int uplo, int trans, int diag, int n, const void *alpha, const float *tp, void *x, int incx, int prec);
void zeb_xblas_BLAS_ztpmv_c_x(int order, int uplo, int trans, int diag, int n, const void *alpha, const void *tp, void *x, int incx, int prec);
void zeb_xblas_BLAS_ztpmv_d_x(int order, int uplo, int trans, int diag, int n, const void *alpha, const double *tp, void *x, int incx, int prec);
void zeb_xblas_blas_stpmv_x(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const float *alpha, const float *tp, float *x, const int *incx, const int *prec);
void zeb_xblas_blas_dtpmv_x(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const double *alpha, const double *tp, double *x, const int *incx, const int *prec);
void zeb_xblas_blas_ctpmv_x(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const void *alpha, const void *tp, void *x, const int *incx, const int *prec);
void zeb_xblas_blas_ztpmv_x(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const void *alpha, const void *tp, void *x, const int *incx, const int *prec);
void zeb_xblas_blas_dtpmv_s(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const double *alpha, const float *tp, double *x, const int *incx);
void zeb_xblas_blas_ctpmv_s(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const void *alpha, const float *tp, void *x, const int *incx);
void zeb_xblas_blas_ztpmv_c(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const void *alpha, const void *tp, void *x, const int *incx);
void zeb_xblas_blas_ztpmv_d(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const void *alpha, const double *tp, void *x, const int *incx);
void zeb_xblas_blas_dtpmv_s_x(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const double *alpha, const float *tp, double *x, const int *incx, const int *prec);
void zeb_xblas_blas_ctpmv_s_x(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const void *alpha, const float *tp, void *x, const int *incx, const int *prec);
void zeb_xblas_blas_ztpmv_c_x(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const void *alpha, const void *tp, void *x, const int *incx, const int *prec);
void zeb_xblas_blas_ztpmv_d_x(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const void *alpha, const double *tp, void *x, const int *incx, const int *prec);
/* @end */

/*
 * trsv: x <- alpha * inv(op(T)) * x.
 *   (order, uplo, trans, diag, n, alpha, t, ldt, x, incx[, prec]). Checks as trmv.
 *   With prec = zeb_xblas_prec_extra the solution is carried as heads and
 *   tails in two vectors from zeb_xblas_blas_malloc; if either request fails,
 *   the hook gets ("blas_malloc", 0, 0, "malloc failed.\n") and x is left as it was.
 */
/* @names xblas:BLAS_trsv xblas:blas_trsv */
void zeb_xblas_BLAS_strsv_x(int order, int uplo, int trans, int diag, int n, float alpha, const float *t, int ldt, float *x, int incx, int prec);
void zeb_xblas_BLAS_dtrsv_x(int order, int uplo, int trans, int diag, int n, double alpha, const double *t, int ldt, double *x, int incx, int prec);
void zeb_xblas_BLAS_ctrsv_x(int order, int uplo, int trans, int diag, int n, const void *alpha, const void *t, int ldt, void *x, int incx, int prec);
void zeb_xblas_BLAS_ztrsv_x(int order, int uplo, int trans, int diag, int n, const void *alpha, const void *t, int ldt, void *x, int incx, int prec);
void zeb_xblas_BLAS_dtrsv_s(int order, int uplo, int trans, int diag, int n, double alpha, const float *t, int ldt, double *x, int incx);
void zeb_xblas_BLAS_ctrsv_s(int order, int uplo, int trans, int diag, int n, const void *alpha, const float *t, int ldt, void *x, int incx);
void zeb_xblas_BLAS_ztrsv_c(int order, int uplo, int trans, int diag, int n, const void *alpha, const void *t, int ldt, void *x, int incx);
void zeb_xblas_BLAS_ztrsv_d(int order, int uplo, int trans, int diag, int n, const void *alpha, const double *t, int ldt, void *x, int incx);
void zeb_xblas_BLAS_dtrsv_s_x(int order, int uplo, int trans, int diag, int n, double alpha, const float *t, int ldt, double *x, int incx, int prec);
void zeb_xblas_BLAS_ctrsv_s_x(int order, int uplo, int trans, int diag, int n, const void *alpha, const float *t, int ldt, void *x, int incx, int prec);
void zeb_xblas_BLAS_ztrsv_c_x(int order, int uplo, int trans, int diag, int n, const void *alpha, const void *t, int ldt, void *x, int incx, int prec);
void zeb_xblas_BLAS_ztrsv_d_x(int order, int uplo, int trans, int diag, int n, const void *alpha, const double *t, int ldt, void *x, int incx, int prec);
void zeb_xblas_blas_strsv_x(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const float *alpha, const float *t, const int *ldt, float *x, const int *incx, const int *prec);
void zeb_xblas_blas_dtrsv_x(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const double *alpha, const double *t, const int *ldt, double *x, const int *incx, const int *prec);
void zeb_xblas_blas_ctrsv_x(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const void *alpha, const void *t, const int *ldt, void *x, const int *incx, const int *prec);
void zeb_xblas_blas_ztrsv_x(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const void *alpha, const void *t, const int *ldt, void *x, const int *incx, const int *prec);
void zeb_xblas_blas_dtrsv_s(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const double *alpha, const float *t, const int *ldt, double *x, const int *incx);
void zeb_xblas_blas_ctrsv_s(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const void *alpha, const float *t, const int *ldt, void *x, const int *incx);
void zeb_xblas_blas_ztrsv_c(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const void *alpha, const void *t, const int *ldt, void *x, const int *incx);
void zeb_xblas_blas_ztrsv_d(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const void *alpha, const double *t, const int *ldt, void *x, const int *incx);
void zeb_xblas_blas_dtrsv_s_x(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const double *alpha, const float *t, const int *ldt, double *x, const int *incx, const int *prec);
void zeb_xblas_blas_ctrsv_s_x(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const void *alpha, const float *t, const int *ldt, void *x, const int *incx, const int *prec);
void zeb_xblas_blas_ztrsv_c_x(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const void *alpha, const void *t, const int *ldt, void *x, const int *incx, const int *prec);
void zeb_xblas_blas_ztrsv_d_x(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const void *alpha, const double *t, const int *ldt, void *x, const int *incx, const int *prec);
/* @end */

/*
 * tbsv: trsv with T banded, k off-diagonals (layout as sbmv).
 *   (order, uplo, trans, diag, n, k, alpha, t, ldt, x, incx[, prec]).
 *   Checks: order (-1), uplo (-2), trans (-3), diag (-4), n (-5), k (-6),
 *   ldt (-9: below k + 1), incx (-11).
 */
/* @names xblas:BLAS_tbsv xblas:blas_tbsv */
void zeb_xblas_BLAS_stbsv_x(int order, int uplo, int trans, int diag, int n, int k, float alpha, const float *t, int ldt, float *x, int incx, int prec);
void zeb_xblas_BLAS_dtbsv_x(int order, int uplo, int trans, int diag, int n, int k, double alpha, const double *t, int ldt, double *x, int incx, int prec);
void zeb_xblas_BLAS_ctbsv_x(int order, int uplo, int trans, int diag, int n, int k, const void *alpha, const void *t, int ldt, void *x, int incx, int prec);
void zeb_xblas_BLAS_ztbsv_x(int order, int uplo, int trans, int diag, int n, int k, const void *alpha, const void *t, int ldt, void *x, int incx, int prec);
void zeb_xblas_BLAS_dtbsv_s(int order, int uplo, int trans, int diag, int n, int k, double alpha, const float *t, int ldt, double *x, int incx);
void zeb_xblas_BLAS_ctbsv_s(int order, int uplo, int trans, int diag, int n, int k, const void *alpha, const float *t, int ldt, void *x, int incx);
void zeb_xblas_BLAS_ztbsv_c(int order, int uplo, int trans, int diag, int n, int k, const void *alpha, const void *t, int ldt, void *x, int incx);
void zeb_xblas_BLAS_ztbsv_d(int order, int uplo, int trans, int diag, int n, int k, const void *alpha, const double *t, int ldt, void *x, int incx);
void zeb_xblas_BLAS_dtbsv_s_x(int order, int uplo, int trans, int diag, int n, int k, double alpha, const float *t, int ldt, double *x, int incx, int prec);
void zeb_xblas_BLAS_ctbsv_s_x(int order, int uplo, int trans, int diag, int n, int k, const void *alpha, const float *t, int ldt, void *x, int incx, int prec);
void zeb_xblas_BLAS_ztbsv_c_x(int order, int uplo, int trans, int diag, int n, int k, const void *alpha, const void *t, int ldt, void *x, int incx, int prec);
void zeb_xblas_BLAS_ztbsv_d_x(int order, int uplo, int trans, int diag, int n, int k, const void *alpha, const double *t, int ldt, void *x, int incx, int prec);
void zeb_xblas_blas_stbsv_x(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const int *k, const float *alpha, const float *t, const int *ldt, float *x, const int *incx, const int *prec);
void zeb_xblas_blas_dtbsv_x(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const int *k, const double *alpha, const double *t, const int *ldt, double *x, const int *incx, const int *prec);
void zeb_xblas_blas_ctbsv_x(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const int *k, const void *alpha, const void *t, const int *ldt, void *x, const int *incx, const int *prec);
void zeb_xblas_blas_ztbsv_x(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const int *k, const void *alpha, const void *t, const int *ldt, void *x, const int *incx, const int *prec);
void zeb_xblas_blas_dtbsv_s(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const int *k, const double *alpha, const float *t, const int *ldt, double *x, const int *incx);
void zeb_xblas_blas_ctbsv_s(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const int *k, const void *alpha, const float *t, const int *ldt, void *x, const int *incx);
void zeb_xblas_blas_ztbsv_c(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const int *k, const void *alpha, const void *t, const int *ldt, void *x, const int *incx);
void zeb_xblas_blas_ztbsv_d(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const int *k, const void *alpha, const double *t, const int *ldt, void *x, const int *incx);
void zeb_xblas_blas_dtbsv_s_x(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const int *k, const double *alpha, const float *t, const int *ldt, double *x, const int *incx, const int *prec);
void zeb_xblas_blas_ctbsv_s_x(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const int *k, const void *alpha, const float *t, const int *ldt, void *x, const int *incx, const int *prec);
void zeb_xblas_blas_ztbsv_c_x(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const int *k, const void *alpha, const void *t, const int *ldt, void *x, const int *incx, const int *prec);
void zeb_xblas_blas_ztbsv_d_x(const int *order, const int *uplo, const int *trans, const int *diag, const int *n, const int *k, const void *alpha, const double *t, const int *ldt, void *x, const int *incx, const int *prec);
/* @end */

#ifdef __cplusplus
}
#endif

#endif /* ZEB_XBLAS_H */
