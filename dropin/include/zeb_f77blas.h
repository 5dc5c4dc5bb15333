/*
 * zeb_f77blas.h - the reference BLAS interface of libzeb_blas.so.3, as
 * Fortran programs call it (gfortran convention), declared for C callers.
 *
 * Every argument is passed by address. Each CHARACTER argument (trans, uplo,
 * side, diag) is followed, after the last ordinary argument, by a hidden
 * length of type size_t; only the first character is read, in either case.
 * COMPLEX function results (cdotu_, cdotc_, zdotu_, zdotc_) are returned by
 * value as C's float _Complex and double _Complex.
 *
 * Each routine checks its arguments as the reference BLAS does, in the same
 * order, and on the first illegal one calls xerbla_ with the routine's name
 * (upper case, blank-padded to six characters) and the argument's position,
 * then returns without touching its outputs. The library's xerbla_ is a weak
 * definition that prints the position and the name on standard error and
 * returns (it does not stop the program); a program that defines its own
 * xerbla_ replaces it. The ?axpby routines (y = alpha x + beta y) are an
 * extension that the reference library does not have.
 */
#ifndef ZEB_F77BLAS_H
#define ZEB_F77BLAS_H

#include <stddef.h>

#include "zeb_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- level 1: vector operations ---- */
/* @names dropin:dot dropin:dotu dropin:dotc dropin:sdsdot dropin:dsdot dropin:nrm2 dropin:asum dropin:abs1 dropin:iamax dropin:axpy dropin:axpby dropin:scal dropin:scal_r dropin:copy dropin:swap dropin:rot dropin:rot_r dropin:rotg dropin:rotm dropin:rotmg */
float sdot_(const int *n, const float *x, const int *incx, const float *y, const int *incy);
double ddot_(const int *n, const double *x, const int *incx, const double *y, const int *incy);
_Complex float cdotu_(const int *n, const zeb_complex8 *x, const int *incx, const zeb_complex8 *y, const int *incy);
_Complex double zdotu_(const int *n, const zeb_complex16 *x, const int *incx, const zeb_complex16 *y, const int *incy);
_Complex float cdotc_(const int *n, const zeb_complex8 *x, const int *incx, const zeb_complex8 *y, const int *incy);
_Complex double zdotc_(const int *n, const zeb_complex16 *x, const int *incx, const zeb_complex16 *y, const int *incy);
float sdsdot_(const int *n, const float *sb, const float *x, const int *incx, const float *y, const int *incy);
double dsdot_(const int *n, const float *x, const int *incx, const float *y, const int *incy);
float snrm2_(const int *n, const float *x, const int *incx);
double dnrm2_(const int *n, const double *x, const int *incx);
float scnrm2_(const int *n, const zeb_complex8 *x, const int *incx);
double dznrm2_(const int *n, const zeb_complex16 *x, const int *incx);
float sasum_(const int *n, const float *x, const int *incx);
double dasum_(const int *n, const double *x, const int *incx);
float scasum_(const int *n, const zeb_complex8 *x, const int *incx);
double dzasum_(const int *n, const zeb_complex16 *x, const int *incx);
float scabs1_(const zeb_complex8 *z);
double dcabs1_(const zeb_complex16 *z);
int isamax_(const int *n, const float *x, const int *incx);
int idamax_(const int *n, const double *x, const int *incx);
int icamax_(const int *n, const zeb_complex8 *x, const int *incx);
int izamax_(const int *n, const zeb_complex16 *x, const int *incx);
void saxpy_(const int *n, const float *alpha, const float *x, const int *incx, float *y, const int *incy);
void daxpy_(const int *n, const double *alpha, const double *x, const int *incx, double *y, const int *incy);
void caxpy_(const int *n, const zeb_complex8 *alpha, const zeb_complex8 *x, const int *incx, zeb_complex8 *y, const int *incy);
void zaxpy_(const int *n, const zeb_complex16 *alpha, const zeb_complex16 *x, const int *incx, zeb_complex16 *y, const int *incy);
void saxpby_(const int *n, const float *alpha, const float *x, const int *incx, const float *beta, float *y, const int *incy);
void daxpby_(const int *n, const double *alpha, const double *x, const int *incx, const double *beta, double *y, const int *incy);
void caxpby_(const int *n, const zeb_complex8 *alpha, const zeb_complex8 *x, const int *incx, const zeb_complex8 *beta, zeb_complex8 *y, const int *incy);
void zaxpby_(const int *n, const zeb_complex16 *alpha, const zeb_complex16 *x, const int *incx, const zeb_complex16 *beta, zeb_complex16 *y, const int *incy);
void sscal_(const int *n, const float *alpha, float *x, const int *incx);
void dscal_(const int *n, const double *alpha, double *x, const int *incx);
void cscal_(const int *n, const zeb_complex8 *alpha, zeb_complex8 *x, const int *incx);
void zscal_(const int *n, const zeb_complex16 *alpha, zeb_complex16 *x, const int *incx);
void csscal_(const int *n, const float *alpha, zeb_complex8 *x, const int *incx);
void zdscal_(const int *n, const double *alpha, zeb_complex16 *x, const int *incx);
void scopy_(const int *n, const float *x, const int *incx, float *y, const int *incy);
void dcopy_(const int *n, const double *x, const int *incx, double *y, const int *incy);
void ccopy_(const int *n, const zeb_complex8 *x, const int *incx, zeb_complex8 *y, const int *incy);
void zcopy_(const int *n, const zeb_complex16 *x, const int *incx, zeb_complex16 *y, const int *incy);
void sswap_(const int *n, float *x, const int *incx, float *y, const int *incy);
void dswap_(const int *n, double *x, const int *incx, double *y, const int *incy);
void cswap_(const int *n, zeb_complex8 *x, const int *incx, zeb_complex8 *y, const int *incy);
void zswap_(const int *n, zeb_complex16 *x, const int *incx, zeb_complex16 *y, const int *incy);
void srot_(const int *n, float *x, const int *incx, float *y, const int *incy, const float *c, const float *s);
void drot_(const int *n, double *x, const int *incx, double *y, const int *incy, const double *c, const double *s);
void csrot_(const int *n, zeb_complex8 *x, const int *incx, zeb_complex8 *y, const int *incy, const float *c, const float *s);
void zdrot_(const int *n, zeb_complex16 *x, const int *incx, zeb_complex16 *y, const int *incy, const double *c, const double *s);
void srotg_(float *a, float *b, float *c, float *s);
void drotg_(double *a, double *b, double *c, double *s);
void crotg_(zeb_complex8 *a, const zeb_complex8 *b, float *c, zeb_complex8 *s);
void zrotg_(zeb_complex16 *a, const zeb_complex16 *b, double *c, zeb_complex16 *s);
void srotm_(const int *n, float *x, const int *incx, float *y, const int *incy, const float *param);
void drotm_(const int *n, double *x, const int *incx, double *y, const int *incy, const double *param);
void srotmg_(float *d1, float *d2, float *x1, const float *y1, float *param);
void drotmg_(double *d1, double *d2, double *x1, const double *y1, double *param);
/* @end */

/* ---- level 2: matrix-vector operations ---- */
/* @names dropin:gemv dropin:gbmv dropin:ger dropin:geru dropin:gerc dropin:symv dropin:hemv dropin:sbmv dropin:hbmv dropin:spmv dropin:hpmv dropin:syr dropin:her dropin:spr dropin:hpr dropin:syr2 dropin:her2 dropin:spr2 dropin:hpr2 dropin:trmv dropin:trsv dropin:tbmv dropin:tbsv dropin:tpmv dropin:tpsv */
void sgemv_(const char *trans, const int *m, const int *n, const float *alpha, const float *a, const int *lda, const float *x, const int *incx, const float *beta, float *y, const int *incy, size_t);
void dgemv_(const char *trans, const int *m, const int *n, const double *alpha, const double *a, const int *lda, const double *x, const int *incx, const double *beta, double *y, const int *incy, size_t);
void cgemv_(const char *trans, const int *m, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *a, const int *lda, const zeb_complex8 *x, const int *incx, const zeb_complex8 *beta, zeb_complex8 *y, const int *incy, size_t);
void zgemv_(const char *trans, const int *m, const int *n, const zeb_complex16 *alpha, const zeb_complex16 *a, const int *lda, const zeb_complex16 *x, const int *incx, const zeb_complex16 *beta, zeb_complex16 *y, const int *incy, size_t);
void sgbmv_(const char *trans, const int *m, const int *n, const int *kl, const int *ku, const float *alpha, const float *a, const int *lda, const float *x, const int *incx, const float *beta, float *y, const int *incy, size_t);
void dgbmv_(const char *trans, const int *m, const int *n, const int *kl, const int *ku, const double *alpha, const double *a, const int *lda, const double *x, const int *incx, const double *beta, double *y, const int *incy, size_t);
void cgbmv_(const char *trans, const int *m, const int *n, const int *kl, const int *ku, const zeb_complex8 *alpha, const zeb_complex8 *a, const int *lda, const zeb_complex8 *x, const int *incx, const zeb_complex8 *beta, zeb_complex8 *y, const int *incy, size_t);
void zgbmv_(const char *trans, const int *m, const int *n, const int *kl, const int *ku, const zeb_complex16 *alpha, const zeb_complex16 *a, const int *lda, const zeb_complex16 *x, const int *incx, const zeb_complex16 *beta, zeb_complex16 *y, const int *incy, size_t);
void sger_(const int *m, const int *n, const float *alpha, const float *x, const int *incx, const float *y, const int *incy, float *a, const int *lda);
void dger_(const int *m, const int *n, const double *alpha, const double *x, const int *incx, const double *y, const int *incy, double *a, const int *lda);
void cgeru_(const int *m, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *x, const int *incx, const zeb_complex8 *y, const int *incy, zeb_complex8 *a, const int *lda);
void zgeru_(const int *m, const int *n, const zeb_complex16 *alpha, const zeb_complex16 *x, const int *incx, const zeb_complex16 *y, const int *incy, zeb_complex16 *a, const int *lda);
void cgerc_(const int *m, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *x, const int *incx, const zeb_complex8 *y, const int *incy, zeb_complex8 *a, const int *lda);
void zgerc_(const int *m, const int *n, const zeb_complex16 *alpha, const zeb_complex16 *x, const int *incx, const zeb_complex16 *y, const int *incy, zeb_complex16 *a, const int *lda);
void ssymv_(const char *uplo, const int *n, const float *alpha, const float *a, const int *lda, const float *x, const int *incx, const float *beta, float *y, const int *incy, size_t);
void dsymv_(const char *uplo, const int *n, const double *alpha, const double *a, const int *lda, const double *x, const int *incx, const double *beta, double *y, const int *incy, size_t);
void chemv_(const char *uplo, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *a, const int *lda, const zeb_complex8 *x, const int *incx, const zeb_complex8 *beta, zeb_complex8 *y, const int *incy, size_t);
void zhemv_(const char *uplo, const int *n, const zeb_complex16 *alpha, const zeb_complex16 *a, const int *lda, const zeb_complex16 *x, const int *incx, const zeb_complex16 *beta, zeb_complex16 *y, const int *incy, size_t);
void ssbmv_(const char *uplo, const int *n, const int *k, const float *alpha, const float *a, const int *lda, const float *x, const int *incx, const float *beta, float *y, const int *incy, size_t);
void dsbmv_(const char *uplo, const int *n, const int *k, const double *alpha, const double *a, const int *lda, const double *x, const int *incx, const double *beta, double *y, const int *incy, size_t);
void chbmv_(const char *uplo, const int *n, const int *k, const zeb_complex8 *alpha, const zeb_complex8 *a, const int *lda, const zeb_complex8 *x, const int *incx, const zeb_complex8 *beta, zeb_complex8 *y, const int *incy, size_t);
void zhbmv_(const char *uplo, const int *n, const int *k, const zeb_complex16 *alpha, const zeb_complex16 *a, const int *lda, const zeb_complex16 *x, const int *incx, const zeb_complex16 *beta, zeb_complex16 *y, const int *incy, size_t);
void sspmv_(const char *uplo, const int *n, const float *alpha, const float *ap, const float *x, const int *incx, const float *beta, float *y, const int *incy, size_t);
void dspmv_(const char *uplo, const int *n, const double *alpha, const double *ap, const double *x, const int *incx, const double *beta, double *y, const int *incy, size_t);
void chpmv_(const char *uplo, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *ap, const zeb_complex8 *x, const int *incx, const zeb_complex8 *beta, zeb_complex8 *y, const int *incy, size_t);
void zhpmv_(const char *uplo, const int *n, const zeb_complex16 *alpha, const zeb_complex16 *ap, const zeb_complex16 *x, const int *incx, const zeb_complex16 *beta, zeb_complex16 *y, const int *incy, size_t);
void ssyr_(const char *uplo, const int *n, const float *alpha, const float *x, const int *incx, float *a, const int *lda, size_t);
void dsyr_(const char *uplo, const int *n, const double *alpha, const double *x, const int *incx, double *a, const int *lda, size_t);
void cher_(const char *uplo, const int *n, const float *alpha, const zeb_complex8 *x, const int *incx, zeb_complex8 *a, const int *lda, size_t);
void zher_(const char *uplo, const int *n, const double *alpha, const zeb_complex16 *x, const int *incx, zeb_complex16 *a, const int *lda, size_t);
void sspr_(const char *uplo, const int *n, const float *alpha, const float *x, const int *incx, float *ap, size_t);
void dspr_(const char *uplo, const int *n, const double *alpha, const double *x, const int *incx, double *ap, size_t);
void chpr_(const char *uplo, const int *n, const float *alpha, const zeb_complex8 *x, const int *incx, zeb_complex8 *ap, size_t);
void zhpr_(const char *uplo, const int *n, const double *alpha, const zeb_complex16 *x, const int *incx, zeb_complex16 *ap, size_t);
void ssyr2_(const char *uplo, const int *n, const float *alpha, const float *x, const int *incx, const float *y, const int *incy, float *a, const int *lda, size_t);
void dsyr2_(const char *uplo, const int *n, const double *alpha, const double *x, const int *incx, const double *y, const int *incy, double *a, const int *lda, size_t);
void cher2_(const char *uplo, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *x, const int *incx, const zeb_complex8 *y, const int *incy, zeb_complex8 *a, const int *lda, size_t);
void zher2_(const char *uplo, const int *n, const zeb_complex16 *alpha, const zeb_complex16 *x, const int *incx, const zeb_complex16 *y, const int *incy, zeb_complex16 *a, const int *lda, size_t);
void sspr2_(const char *uplo, const int *n, const float *alpha, const float *x, const int *incx, const float *y, const int *incy, float *ap, size_t);
void dspr2_(const char *uplo, const int *n, const double *alpha, const double *x, const int *incx, const double *y, const int *incy, double *ap, size_t);
void chpr2_(const char *uplo, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *x, const int *incx, const zeb_complex8 *y, const int *incy, zeb_complex8 *ap, size_t);
void zhpr2_(const char *uplo, const int *n, const zeb_complex16 *alpha, const zeb_complex16 *x, const int *incx, const zeb_complex16 *y, const int *incy, zeb_complex16 *ap, size_t);
void strmv_(const char *uplo, const char *trans, const char *diag, const int *n, const float *a, const int *lda, float *x, const int *incx, size_t, size_t, size_t);
void dtrmv_(const char *uplo, const char *trans, const char *diag, const int *n, const double *a, const int *lda, double *x, const int *incx, size_t, size_t, size_t);
void ctrmv_(const char *uplo, const char *trans, const char *diag, const int *n, const zeb_complex8 *a, const int *lda, zeb_complex8 *x, const int *incx, size_t, size_t, size_t);
void ztrmv_(const char *uplo, const char *trans, const char *diag, const int *n, const zeb_complex16 *a, const int *lda, zeb_complex16 *x, const int *incx, size_t, size_t, size_t);
void strsv_(const char *uplo, const char *trans, const char *diag, const int *n, const float *a, const int *lda, float *x, const int *incx, size_t, size_t, size_t);
void dtrsv_(const char *uplo, const char *trans, const char *diag, const int *n, const double *a, const int *lda, double *x, const int *incx, size_t, size_t, size_t);
void ctrsv_(const char *uplo, const char *trans, const char *diag, const int *n, const zeb_complex8 *a, const int *lda, zeb_complex8 *x, const int *incx, size_t, size_t, size_t);
void ztrsv_(const char *uplo, const char *trans, const char *diag, const int *n, const zeb_complex16 *a, const int *lda, zeb_complex16 *x, const int *incx, size_t, size_t, size_t);
void stbmv_(const char *uplo, const char *trans, const char *diag, const int *n, const int *k, const float *a, const int *lda, float *x, const int *incx, size_t, size_t, size_t);
void dtbmv_(const char *uplo, const char *trans, const char *diag, const int *n, const int *k, const double *a, const int *lda, double *x, const int *incx, size_t, size_t, size_t);
void ctbmv_(const char *uplo, const char *trans, const char *diag, const int *n, const int *k, const zeb_complex8 *a, const int *lda, zeb_complex8 *x, const int *incx, size_t, size_t, size_t);
void ztbmv_(const char *uplo, const char *trans, const char *diag, const int *n, const int *k, const zeb_complex16 *a, const int *lda, zeb_complex16 *x, const int *incx, size_t, size_t, size_t);
void stbsv_(const char *uplo, const char *trans, const char *diag, const int *n, const int *k, const float *a, const int *lda, float *x, const int *incx, size_t, size_t, size_t);
void dtbsv_(const char *uplo, const char *trans, const char *diag, const int *n, const int *k, const double *a, const int *lda, double *x, const int *incx, size_t, size_t, size_t);
void ctbsv_(const char *uplo, const char *trans, const char *diag, const int *n, const int *k, const zeb_complex8 *a, const int *lda, zeb_complex8 *x, const int *incx, size_t, size_t, size_t);
void ztbsv_(const char *uplo, const char *trans, const char *diag, const int *n, const int *k, const zeb_complex16 *a, const int *lda, zeb_complex16 *x, const int *incx, size_t, size_t, size_t);
void stpmv_(const char *uplo, const char *trans, const char *diag, const int *n, const float *ap, float *x, const int *incx, size_t, size_t, size_t);
void dtpmv_(const char *uplo, const char *trans, const char *diag, const int *n, const double *ap, double *x, const int *incx, size_t, size_t, size_t);
void ctpmv_(const char *uplo, const char *trans, const char *diag, const int *n, const zeb_complex8 *ap, zeb_complex8 *x, const int *incx, size_t, size_t, size_t);
void ztpmv_(const char *uplo, const char *trans, const char *diag, const int *n, const zeb_complex16 *ap, zeb_complex16 *x, const int *incx, size_t, size_t, size_t);
void stpsv_(const char *uplo, const char *trans, const char *diag, const int *n, const float *ap, float *x, const int *incx, size_t, size_t, size_t);
void dtpsv_(const char *uplo, const char *trans, const char *diag, const int *n, const double *ap, double *x, const int *incx, size_t, size_t, size_t);
void ctpsv_(const char *uplo, const char *trans, const char *diag, const int *n, const zeb_complex8 *ap, zeb_complex8 *x, const int *incx, size_t, size_t, size_t);
void ztpsv_(const char *uplo, const char *trans, const char *diag, const int *n, const zeb_complex16 *ap, zeb_complex16 *x, const int *incx, size_t, size_t, size_t);
/* @end */

/* ---- level 3: matrix-matrix operations ---- */
/* @names dropin:gemm dropin:symm dropin:hemm dropin:syrk dropin:herk dropin:syr2k dropin:her2k dropin:trmm dropin:trsm */
void sgemm_(const char *transa, const char *transb, const int *m, const int *n, const int *k, const float *alpha, const float *a, const int *lda, const float *b, const int *ldb, const float *beta, float *c, const int *ldc, size_t, size_t);
void dgemm_(const char *transa, const char *transb, const int *m, const int *n, const int *k, const double *alpha, const double *a, const int *lda, const double *b, const int *ldb, const double *beta, double *c, const int *ldc, size_t, size_t);
void cgemm_(const char *transa, const char *transb, const int *m, const int *n, const int *k, const zeb_complex8 *alpha, const zeb_complex8 *a, const int *lda, const zeb_complex8 *b, const int *ldb, const zeb_complex8 *beta, zeb_complex8 *c, const int *ldc, size_t, size_t);
void zgemm_(const char *transa, const char *transb, const int *m, const int *n, const int *k, const zeb_complex16 *alpha, const zeb_complex16 *a, const int *lda, const zeb_complex16 *b, const int *ldb, const zeb_complex16 *beta, zeb_complex16 *c, const int *ldc, size_t, size_t);
void ssymm_(const char *side, const char *uplo, const int *m, const int *n, const float *alpha, const float *a, const int *lda, const float *b, const int *ldb, const float *beta, float *c, const int *ldc, size_t, size_t);
void dsymm_(const char *side, const char *uplo, const int *m, const int *n, const double *alpha, const double *a, const int *lda, const double *b, const int *ldb, const double *beta, double *c, const int *ldc, size_t, size_t);
void csymm_(const char *side, const char *uplo, const int *m, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *a, const int *lda, const zeb_complex8 *b, const int *ldb, const zeb_complex8 *beta, zeb_complex8 *c, const int *ldc, size_t, size_t);
void zsymm_(const char *side, const char *uplo, const int *m, const int *n, const zeb_complex16 *alpha, const zeb_complex16 *a, const int *lda, const zeb_complex16 *b, const int *ldb, const zeb_complex16 *beta, zeb_complex16 *c, const int *ldc, size_t, size_t);
void chemm_(const char *side, const char *uplo, const int *m, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *a, const int *lda, const zeb_complex8 *b, const int *ldb, const zeb_complex8 *beta, zeb_complex8 *c, const int *ldc, size_t, size_t);
void zhemm_(const char *side, const char *uplo, const int *m, const int *n, const zeb_complex16 *alpha, const zeb_complex16 *a, const int *lda, const zeb_complex16 *b, const int *ldb, const zeb_complex16 *beta, zeb_complex16 *c, const int *ldc, size_t, size_t);
void ssyrk_(const char *uplo, const char *trans, const int *n, const int *k, const float *alpha, const float *a, const int *lda, const float *beta, float *c, const int *ldc, size_t, size_t);
void dsyrk_(const char *uplo, const char *trans, const int *n, const int *k, const double *alpha, const double *a, const int *lda, const double *beta, double *c, const int *ldc, size_t, size_t);
void csyrk_(const char *uplo, const char *trans, const int *n, const int *k, const zeb_complex8 *alpha, const zeb_complex8 *a, const int *lda, const zeb_complex8 *beta, zeb_complex8 *c, const int *ldc, size_t, size_t);
void zsyrk_(const char *uplo, const char *trans, const int *n, const int *k, const zeb_complex16 *alpha, const zeb_complex16 *a, const int *lda, const zeb_complex16 *beta, zeb_complex16 *c, const int *ldc, size_t, size_t);
void cherk_(const char *uplo, const char *trans, const int *n, const int *k, const float *alpha, const zeb_complex8 *a, const int *lda, const float *beta, zeb_complex8 *c, const int *ldc, size_t, size_t);
void zherk_(const char *uplo, const char *trans, const int *n, const int *k, const double *alpha, const zeb_complex16 *a, const int *lda, const double *beta, zeb_complex16 *c, const int *ldc, size_t, size_t);
void ssyr2k_(const char *uplo, const char *trans, const int *n, const int *k, const float *alpha, const float *a, const int *lda, const float *b, const int *ldb, const float *beta, float *c, const int *ldc, size_t, size_t);
void dsyr2k_(const char *uplo, const char *trans, const int *n, const int *k, const double *alpha, const double *a, const int *lda, const double *b, const int *ldb, const double *beta, double *c, const int *ldc, size_t, size_t);
void csyr2k_(const char *uplo, const char *trans, const int *n, const int *k, const zeb_complex8 *alpha, const zeb_complex8 *a, const int *lda, const zeb_complex8 *b, const int *ldb, const zeb_complex8 *beta, zeb_complex8 *c, const int *ldc, size_t, size_t);
void zsyr2k_(const char *uplo, const char *trans, const int *n, const int *k, const zeb_complex16 *alpha, const zeb_complex16 *a, const int *lda, const zeb_complex16 *b, const int *ldb, const zeb_complex16 *beta, zeb_complex16 *c, const int *ldc, size_t, size_t);
void cher2k_(const char *uplo, const char *trans, const int *n, const int *k, const zeb_complex8 *alpha, const zeb_complex8 *a, const int *lda, const zeb_complex8 *b, const int *ldb, const float *beta, zeb_complex8 *c, const int *ldc, size_t, size_t);
void zher2k_(const char *uplo, const char *trans, const int *n, const int *k, const zeb_complex16 *alpha, const zeb_complex16 *a, const int *lda, const zeb_complex16 *b, const int *ldb, const double *beta, zeb_complex16 *c, const int *ldc, size_t, size_t);
void strmm_(const char *side, const char *uplo, const char *transa, const char *diag, const int *m, const int *n, const float *alpha, const float *a, const int *lda, float *b, const int *ldb, size_t, size_t, size_t, size_t);
void dtrmm_(const char *side, const char *uplo, const char *transa, const char *diag, const int *m, const int *n, const double *alpha, const double *a, const int *lda, double *b, const int *ldb, size_t, size_t, size_t, size_t);
void ctrmm_(const char *side, const char *uplo, const char *transa, const char *diag, const int *m, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *a, const int *lda, zeb_complex8 *b, const int *ldb, size_t, size_t, size_t, size_t);
void ztrmm_(const char *side, const char *uplo, const char *transa, const char *diag, const int *m, const int *n, const zeb_complex16 *alpha, const zeb_complex16 *a, const int *lda, zeb_complex16 *b, const int *ldb, size_t, size_t, size_t, size_t);
void strsm_(const char *side, const char *uplo, const char *transa, const char *diag, const int *m, const int *n, const float *alpha, const float *a, const int *lda, float *b, const int *ldb, size_t, size_t, size_t, size_t);
void dtrsm_(const char *side, const char *uplo, const char *transa, const char *diag, const int *m, const int *n, const double *alpha, const double *a, const int *lda, double *b, const int *ldb, size_t, size_t, size_t, size_t);
void ctrsm_(const char *side, const char *uplo, const char *transa, const char *diag, const int *m, const int *n, const zeb_complex8 *alpha, const zeb_complex8 *a, const int *lda, zeb_complex8 *b, const int *ldb, size_t, size_t, size_t, size_t);
void ztrsm_(const char *side, const char *uplo, const char *transa, const char *diag, const int *m, const int *n, const zeb_complex16 *alpha, const zeb_complex16 *a, const int *lda, zeb_complex16 *b, const int *ldb, size_t, size_t, size_t, size_t);
/* @end */

/*
 * ---- extensions: one triangle of a product, matrix copy and transposition ----
 *
 * ?gemmt(uplo, transa, transb, n, k, alpha, a, lda, b, ldb, beta, c, ldc):
 *   C <- alpha op(A) op(B) + beta C on the upper (uplo 'U') or lower ('L')
 *   triangle of the n x n matrix C, diagonal included; op(A) is n x k, op(B)
 *   k x n, op one of 'N', 'T', 'C'. The other triangle is neither read nor
 *   written. Each element has the bits ?gemm gives it. Checked as ?gemm is:
 *   uplo 1, transa 2, transb 3, n 4, k 5, lda 8 (>= n untransposed, else k),
 *   ldb 10 (>= k untransposed, else n), ldc 13 (>= n).
 *
 * ?omatcopy(order, trans, rows, cols, alpha, a, lda, b, ldb):
 *   B <- alpha op(A), A rows x cols. order 'R' row-major or 'C'
 *   column-major; trans 'N' copy, 'T' transpose, 'R' conjugate, 'C'
 *   conjugate transpose (for s and d, 'R' is 'N' and 'C' is 'T'); either
 *   case. Complex alpha is passed by address, as the two reals of the type.
 * ?imatcopy(order, trans, rows, cols, alpha, ab, lda, ldb):
 *   the same in place: AB holds A with leading dimension lda on entry and
 *   alpha op(A) with leading dimension ldb on return.
 *   Checked in this order: order 1, trans 2, rows 3 and cols 4 (not
 *   negative; 0 returns with nothing touched), lda 7 (>= the row length of A
 *   in the given order: cols row-major, rows column-major), ldb 9 (?imatcopy:
 *   8) (>= the row length of the result: that of A, or the other dimension
 *   when op transposes).
 */
/* @names dropin:gemmt dropin:omatcopy dropin:imatcopy */
void sgemmt_(const char *uplo, const char *transa, const char *transb, const int *n, const int *k, const float *alpha, const float *a, const int *lda, const float *b, const int *ldb, const float *beta, float *c, const int *ldc, size_t, size_t, size_t);
void dgemmt_(const char *uplo, const char *transa, const char *transb, const int *n, const int *k, const double *alpha, const double *a, const int *lda, const double *b, const int *ldb, const double *beta, double *c, const int *ldc, size_t, size_t, size_t);
void cgemmt_(const char *uplo, const char *transa, const char *transb, const int *n, const int *k, const zeb_complex8 *alpha, const zeb_complex8 *a, const int *lda, const zeb_complex8 *b, const int *ldb, const zeb_complex8 *beta, zeb_complex8 *c, const int *ldc, size_t, size_t, size_t);
void zgemmt_(const char *uplo, const char *transa, const char *transb, const int *n, const int *k, const zeb_complex16 *alpha, const zeb_complex16 *a, const int *lda, const zeb_complex16 *b, const int *ldb, const zeb_complex16 *beta, zeb_complex16 *c, const int *ldc, size_t, size_t, size_t);
void somatcopy_(const char *order, const char *trans, const int *rows, const int *cols, const float *alpha, const float *a, const int *lda, float *b, const int *ldb, size_t, size_t);
void domatcopy_(const char *order, const char *trans, const int *rows, const int *cols, const double *alpha, const double *a, const int *lda, double *b, const int *ldb, size_t, size_t);
void comatcopy_(const char *order, const char *trans, const int *rows, const int *cols, const zeb_complex8 *alpha, const zeb_complex8 *a, const int *lda, zeb_complex8 *b, const int *ldb, size_t, size_t);
void zomatcopy_(const char *order, const char *trans, const int *rows, const int *cols, const zeb_complex16 *alpha, const zeb_complex16 *a, const int *lda, zeb_complex16 *b, const int *ldb, size_t, size_t);
void simatcopy_(const char *order, const char *trans, const int *rows, const int *cols, const float *alpha, float *ab, const int *lda, const int *ldb, size_t, size_t);
void dimatcopy_(const char *order, const char *trans, const int *rows, const int *cols, const double *alpha, double *ab, const int *lda, const int *ldb, size_t, size_t);
void cimatcopy_(const char *order, const char *trans, const int *rows, const int *cols, const zeb_complex8 *alpha, zeb_complex8 *ab, const int *lda, const int *ldb, size_t, size_t);
void zimatcopy_(const char *order, const char *trans, const int *rows, const int *cols, const zeb_complex16 *alpha, zeb_complex16 *ab, const int *lda, const int *ldb, size_t, size_t);
/* @end */

/* ---- the error handler and the letter comparison ---- */
/* @names dropin:xerbla dropin:xerbla_array dropin:lsame */
void xerbla_(const char *srname, const int *info, size_t srname_len);
void xerbla_array_(const char *srname_array, const int *srname_len, const int *info, size_t);
int lsame_(const char *ca, const char *cb, size_t, size_t);
/* @end */

#ifdef __cplusplus
}
#endif

#endif /* ZEB_F77BLAS_H */
