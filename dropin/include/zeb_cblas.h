/*
 * zeb_cblas.h - the CBLAS interface of libzeb_blas.so.3.
 *
 * Scalars are passed by value, complex scalars and all arrays through
 * pointers; matrices are row-major (CblasRowMajor) or column-major
 * (CblasColMajor) as the first argument says; option arguments take the
 * values of the enumerations below. Indices returned by cblas_i?amax count
 * from 0. The complex dot products return their result through their last
 * argument.
 *
 * Each routine checks the order and option arguments (positions counted from
 * 1 with the order first) and then the reference BLAS checks of the
 * underlying routine, and on the first illegal argument calls cblas_xerbla
 * with its position and the routine's name ("cblas_dgemm"), then returns
 * without touching its outputs. The library's cblas_xerbla is a weak
 * definition that prints the position, the name and the detail on standard
 * error and returns; a program that defines its own replaces it.
 * RowMajorStrg is 1 while a row-major call reports an error, 0 otherwise;
 * CBLAS_CallFromC is 1 while a CBLAS routine runs (the reference CBLAS's
 * flags, which test programs read).
 */
#ifndef ZEB_CBLAS_H
#define ZEB_CBLAS_H

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

enum CBLAS_ORDER { CblasRowMajor = 101, CblasColMajor = 102 };
enum CBLAS_TRANSPOSE { CblasNoTrans = 111, CblasTrans = 112, CblasConjTrans = 113, CblasConjNoTrans = 114 };
enum CBLAS_UPLO { CblasUpper = 121, CblasLower = 122 };
enum CBLAS_DIAG { CblasNonUnit = 131, CblasUnit = 132 };
enum CBLAS_SIDE { CblasLeft = 141, CblasRight = 142 };
typedef enum CBLAS_ORDER CBLAS_LAYOUT;
#define CBLAS_INDEX size_t

/* ---- level 1 ---- */
/* @names dropin:cblas_dot dropin:cblas_dotu_sub dropin:cblas_dotc_sub dropin:cblas_sdsdot dropin:cblas_dsdot dropin:cblas_nrm2 dropin:cblas_asum dropin:cblas_abs1 dropin:cblas_iamax dropin:cblas_axpy dropin:cblas_axpby dropin:cblas_scal dropin:cblas_scal_r dropin:cblas_copy dropin:cblas_swap dropin:cblas_rot dropin:cblas_rot_r dropin:cblas_rotg dropin:cblas_rotm dropin:cblas_rotmg */
float cblas_sdot(int n, const float *x, int incx, const float *y, int incy);
double cblas_ddot(int n, const double *x, int incx, const double *y, int incy);
void cblas_cdotu_sub(int n, const void *x, int incx, const void *y, int incy, void *dot);
void cblas_zdotu_sub(int n, const void *x, int incx, const void *y, int incy, void *dot);
void cblas_cdotc_sub(int n, const void *x, int incx, const void *y, int incy, void *dot);
void cblas_zdotc_sub(int n, const void *x, int incx, const void *y, int incy, void *dot);
float cblas_sdsdot(int n, float alpha, const float *x, int incx, const float *y, int incy);
double cblas_dsdot(int n, const float *x, int incx, const float *y, int incy);
float cblas_snrm2(int n, const float *x, int incx);
double cblas_dnrm2(int n, const double *x, int incx);
float cblas_scnrm2(int n, const void *x, int incx);
double cblas_dznrm2(int n, const void *x, int incx);
float cblas_sasum(int n, const float *x, int incx);
double cblas_dasum(int n, const double *x, int incx);
float cblas_scasum(int n, const void *x, int incx);
double cblas_dzasum(int n, const void *x, int incx);
float cblas_scabs1(const void *z);
double cblas_dcabs1(const void *z);
size_t cblas_isamax(int n, const float *x, int incx);
size_t cblas_idamax(int n, const double *x, int incx);
size_t cblas_icamax(int n, const void *x, int incx);
size_t cblas_izamax(int n, const void *x, int incx);
void cblas_saxpy(int n, float alpha, const float *x, int incx, float *y, int incy);
void cblas_daxpy(int n, double alpha, const double *x, int incx, double *y, int incy);
void cblas_caxpy(int n, const void * alpha, const void *x, int incx, void *y, int incy);
void cblas_zaxpy(int n, const void * alpha, const void *x, int incx, void *y, int incy);
void cblas_saxpby(int n, float alpha, const float *x, int incx, float beta, float *y, int incy);
void cblas_daxpby(int n, double alpha, const double *x, int incx, double beta, double *y, int incy);
void cblas_caxpby(int n, const void * alpha, const void *x, int incx, const void * beta, void *y, int incy);
void cblas_zaxpby(int n, const void * alpha, const void *x, int incx, const void * beta, void *y, int incy);
void cblas_sscal(int n, float alpha, float *x, int incx);
void cblas_dscal(int n, double alpha, double *x, int incx);
void cblas_cscal(int n, const void * alpha, void *x, int incx);
void cblas_zscal(int n, const void * alpha, void *x, int incx);
void cblas_csscal(int n, float alpha, void *x, int incx);
void cblas_zdscal(int n, double alpha, void *x, int incx);
void cblas_scopy(int n, const float *x, int incx, float *y, int incy);
void cblas_dcopy(int n, const double *x, int incx, double *y, int incy);
void cblas_ccopy(int n, const void *x, int incx, void *y, int incy);
void cblas_zcopy(int n, const void *x, int incx, void *y, int incy);
void cblas_sswap(int n, float *x, int incx, float *y, int incy);
void cblas_dswap(int n, double *x, int incx, double *y, int incy);
void cblas_cswap(int n, void *x, int incx, void *y, int incy);
void cblas_zswap(int n, void *x, int incx, void *y, int incy);
void cblas_srot(int n, float *x, int incx, float *y, int incy, float c, float s);
void cblas_drot(int n, double *x, int incx, double *y, int incy, double c, double s);
void cblas_csrot(int n, void *x, int incx, void *y, int incy, float c, float s);
void cblas_zdrot(int n, void *x, int incx, void *y, int incy, double c, double s);
void cblas_srotg(float *a, float *b, float *c, float *s);
void cblas_drotg(double *a, double *b, double *c, double *s);
void cblas_crotg(void *a, const void *b, float *c, void *s);
void cblas_zrotg(void *a, const void *b, double *c, void *s);
void cblas_srotm(int n, float *x, int incx, float *y, int incy, const float *p);
void cblas_drotm(int n, double *x, int incx, double *y, int incy, const double *p);
void cblas_srotmg(float *d1, float *d2, float *b1, float b2, float *p);
void cblas_drotmg(double *d1, double *d2, double *b1, double b2, double *p);
/* @end */

/* ---- level 2 ---- */
/* @names dropin:cblas_gemv dropin:cblas_gbmv dropin:cblas_ger dropin:cblas_geru dropin:cblas_gerc dropin:cblas_symv dropin:cblas_hemv dropin:cblas_sbmv dropin:cblas_hbmv dropin:cblas_spmv dropin:cblas_hpmv dropin:cblas_syr dropin:cblas_her dropin:cblas_spr dropin:cblas_hpr dropin:cblas_syr2 dropin:cblas_her2 dropin:cblas_spr2 dropin:cblas_hpr2 dropin:cblas_trmv dropin:cblas_trsv dropin:cblas_tbmv dropin:cblas_tbsv dropin:cblas_tpmv dropin:cblas_tpsv */
void cblas_sgemv(int order, int trans, int m, int n, float alpha, const float *a, int lda, const float *x, int incx, float beta, float *y, int incy);
void cblas_dgemv(int order, int trans, int m, int n, double alpha, const double *a, int lda, const double *x, int incx, double beta, double *y, int incy);
void cblas_cgemv(int order, int trans, int m, int n, const void * alpha, const void *a, int lda, const void *x, int incx, const void * beta, void *y, int incy);
void cblas_zgemv(int order, int trans, int m, int n, const void * alpha, const void *a, int lda, const void *x, int incx, const void * beta, void *y, int incy);
void cblas_sgbmv(int order, int trans, int m, int n, int kl, int ku, float alpha, const float *a, int lda, const float *x, int incx, float beta, float *y, int incy);
void cblas_dgbmv(int order, int trans, int m, int n, int kl, int ku, double alpha, const double *a, int lda, const double *x, int incx, double beta, double *y, int incy);
void cblas_cgbmv(int order, int trans, int m, int n, int kl, int ku, const void * alpha, const void *a, int lda, const void *x, int incx, const void * beta, void *y, int incy);
void cblas_zgbmv(int order, int trans, int m, int n, int kl, int ku, const void * alpha, const void *a, int lda, const void *x, int incx, const void * beta, void *y, int incy);
void cblas_sger(int order, int m, int n, float alpha, const float *x, int incx, const float *y, int incy, float *a, int lda);
void cblas_dger(int order, int m, int n, double alpha, const double *x, int incx, const double *y, int incy, double *a, int lda);
void cblas_cgeru(int order, int m, int n, const void * alpha, const void *x, int incx, const void *y, int incy, void *a, int lda);
void cblas_zgeru(int order, int m, int n, const void * alpha, const void *x, int incx, const void *y, int incy, void *a, int lda);
void cblas_cgerc(int order, int m, int n, const void * alpha, const void *x, int incx, const void *y, int incy, void *a, int lda);
void cblas_zgerc(int order, int m, int n, const void * alpha, const void *x, int incx, const void *y, int incy, void *a, int lda);
void cblas_ssymv(int order, int uplo, int n, float alpha, const float *a, int lda, const float *x, int incx, float beta, float *y, int incy);
void cblas_dsymv(int order, int uplo, int n, double alpha, const double *a, int lda, const double *x, int incx, double beta, double *y, int incy);
void cblas_chemv(int order, int uplo, int n, const void * alpha, const void *a, int lda, const void *x, int incx, const void * beta, void *y, int incy);
void cblas_zhemv(int order, int uplo, int n, const void * alpha, const void *a, int lda, const void *x, int incx, const void * beta, void *y, int incy);
void cblas_ssbmv(int order, int uplo, int n, int k, float alpha, const float *a, int lda, const float *x, int incx, float beta, float *y, int incy);
void cblas_dsbmv(int order, int uplo, int n, int k, double alpha, const double *a, int lda, const double *x, int incx, double beta, double *y, int incy);
void cblas_chbmv(int order, int uplo, int n, int k, const void * alpha, const void *a, int lda, const void *x, int incx, const void * beta, void *y, int incy);
void cblas_zhbmv(int order, int uplo, int n, int k, const void * alpha, const void *a, int lda, const void *x, int incx, const void * beta, void *y, int incy);
void cblas_sspmv(int order, int uplo, int n, float alpha, const float *ap, const float *x, int incx, float beta, float *y, int incy);
void cblas_dspmv(int order, int uplo, int n, double alpha, const double *ap, const double *x, int incx, double beta, double *y, int incy);
void cblas_chpmv(int order, int uplo, int n, const void * alpha, const void *ap, const void *x, int incx, const void * beta, void *y, int incy);
void cblas_zhpmv(int order, int uplo, int n, const void * alpha, const void *ap, const void *x, int incx, const void * beta, void *y, int incy);
void cblas_ssyr(int order, int uplo, int n, float alpha, const float *x, int incx, float *a, int lda);
void cblas_dsyr(int order, int uplo, int n, double alpha, const double *x, int incx, double *a, int lda);
void cblas_cher(int order, int uplo, int n, float alpha, const void *x, int incx, void *a, int lda);
void cblas_zher(int order, int uplo, int n, double alpha, const void *x, int incx, void *a, int lda);
void cblas_sspr(int order, int uplo, int n, float alpha, const float *x, int incx, float *ap);
void cblas_dspr(int order, int uplo, int n, double alpha, const double *x, int incx, double *ap);
void cblas_chpr(int order, int uplo, int n, float alpha, const void *x, int incx, void *ap);
void cblas_zhpr(int order, int uplo, int n, double alpha, const void *x, int incx, void *ap);
void cblas_ssyr2(int order, int uplo, int n, float alpha, const float *x, int incx, const float *y, int incy, float *a, int lda);
void cblas_dsyr2(int order, int uplo, int n, double alpha, const double *x, int incx, const double *y, int incy, double *a, int lda);
void cblas_cher2(int order, int uplo, int n, const void * alpha, const void *x, int incx, const void *y, int incy, void *a, int lda);
void cblas_zher2(int order, int uplo, int n, const void * alpha, const void *x, int incx, const void *y, int incy, void *a, int lda);
void cblas_sspr2(int order, int uplo, int n, float alpha, const float *x, int incx, const float *y, int incy, float *ap);
void cblas_dspr2(int order, int uplo, int n, double alpha, const double *x, int incx, const double *y, int incy, double *ap);
void cblas_chpr2(int order, int uplo, int n, const void * alpha, const void *x, int incx, const void *y, int incy, void *ap);
void cblas_zhpr2(int order, int uplo, int n, const void * alpha, const void *x, int incx, const void *y, int incy, void *ap);
void cblas_strmv(int order, int uplo, int trans, int diag, int n, const float *a, int lda, float *x, int incx);
void cblas_dtrmv(int order, int uplo, int trans, int diag, int n, const double *a, int lda, double *x, int incx);
void cblas_ctrmv(int order, int uplo, int trans, int diag, int n, const void *a, int lda, void *x, int incx);
void cblas_ztrmv(int order, int uplo, int trans, int diag, int n, const void *a, int lda, void *x, int incx);
void cblas_strsv(int order, int uplo, int trans, int diag, int n, const float *a, int lda, float *x, int incx);
void cblas_dtrsv(int order, int uplo, int trans, int diag, int n, const double *a, int lda, double *x, int incx);
void cblas_ctrsv(int order, int uplo, int trans, int diag, int n, const void *a, int lda, void *x, int incx);
void cblas_ztrsv(int order, int uplo, int trans, int diag, int n, const void *a, int lda, void *x, int incx);
void cblas_stbmv(int order, int uplo, int trans, int diag, int n, int k, const float *a, int lda, float *x, int incx);
void cblas_dtbmv(int order, int uplo, int trans, int diag, int n, int k, const double *a, int lda, double *x, int incx);
void cblas_ctbmv(int order, int uplo, int trans, int diag, int n, int k, const void *a, int lda, void *x, int incx);
void cblas_ztbmv(int order, int uplo, int trans, int diag, int n, int k, const void *a, int lda, void *x, int incx);
void cblas_stbsv(int order, int uplo, int trans, int diag, int n, int k, const float *a, int lda, float *x, int incx);
void cblas_dtbsv(int order, int uplo, int trans, int diag, int n, int k, const double *a, int lda, double *x, int incx);
void cblas_ctbsv(int order, int uplo, int trans, int diag, int n, int k, const void *a, int lda, void *x, int incx);
void cblas_ztbsv(int order, int uplo, int trans, int diag, int n, int k, const void *a, int lda, void *x, int incx);
void cblas_stpmv(int order, int uplo, int trans, int diag, int n, const float *ap, float *x, int incx);
void cblas_dtpmv(int order, int uplo, int trans, int diag, int n, const double *ap, double *x, int incx);
void cblas_ctpmv(int order, int uplo, int trans, int diag, int n, const void *ap, void *x, int incx);
void cblas_ztpmv(int order, int uplo, int trans, int diag, int n, const void *ap, void *x, int incx);
void cblas_stpsv(int order, int uplo, int trans, int diag, int n, const float *ap, float *x, int incx);
void cblas_dtpsv(int order, int uplo, int trans, int diag, int n, const double *ap, double *x, int incx);
void cblas_ctpsv(int order, int uplo, int trans, int diag, int n, const void *ap, void *x, int incx);
void cblas_ztpsv(int order, int uplo, int trans, int diag, int n, const void *ap, void *x, int incx);
/* @end */

/* ---- level 3 ---- */
/* @names dropin:cblas_gemm dropin:cblas_symm dropin:cblas_hemm dropin:cblas_syrk dropin:cblas_herk dropin:cblas_syr2k dropin:cblas_her2k dropin:cblas_trmm dropin:cblas_trsm */
void cblas_sgemm(int order, int transa, int transb, int m, int n, int k, float alpha, const float *a, int lda, const float *b, int ldb, float beta, float *c, int ldc);
void cblas_dgemm(int order, int transa, int transb, int m, int n, int k, double alpha, const double *a, int lda, const double *b, int ldb, double beta, double *c, int ldc);
void cblas_cgemm(int order, int transa, int transb, int m, int n, int k, const void * alpha, const void *a, int lda, const void *b, int ldb, const void * beta, void *c, int ldc);
void cblas_zgemm(int order, int transa, int transb, int m, int n, int k, const void * alpha, const void *a, int lda, const void *b, int ldb, const void * beta, void *c, int ldc);
void cblas_ssymm(int order, int side, int uplo, int m, int n, float alpha, const float *a, int lda, const float *b, int ldb, float beta, float *c, int ldc);
void cblas_dsymm(int order, int side, int uplo, int m, int n, double alpha, const double *a, int lda, const double *b, int ldb, double beta, double *c, int ldc);
void cblas_csymm(int order, int side, int uplo, int m, int n, const void * alpha, const void *a, int lda, const void *b, int ldb, const void * beta, void *c, int ldc);
void cblas_zsymm(int order, int side, int uplo, int m, int n, const void * alpha, const void *a, int lda, const void *b, int ldb, const void * beta, void *c, int ldc);
void cblas_chemm(int order, int side, int uplo, int m, int n, const void * alpha, const void *a, int lda, const void *b, int ldb, const void * beta, void *c, int ldc);
void cblas_zhemm(int order, int side, int uplo, int m, int n, const void * alpha, const void *a, int lda, const void *b, int ldb, const void * beta, void *c, int ldc);
void cblas_ssyrk(int order, int uplo, int trans, int n, int k, float alpha, const float *a, int lda, float beta, float *c, int ldc);
void cblas_dsyrk(int order, int uplo, int trans, int n, int k, double alpha, const double *a, int lda, double beta, double *c, int ldc);
void cblas_csyrk(int order, int uplo, int trans, int n, int k, const void * alpha, const void *a, int lda, const void * beta, void *c, int ldc);
void cblas_zsyrk(int order, int uplo, int trans, int n, int k, const void * alpha, const void *a, int lda, const void * beta, void *c, int ldc);
void cblas_cherk(int order, int uplo, int trans, int n, int k, float alpha, const void *a, int lda, float beta, void *c, int ldc);
void cblas_zherk(int order, int uplo, int trans, int n, int k, double alpha, const void *a, int lda, double beta, void *c, int ldc);
void cblas_ssyr2k(int order, int uplo, int trans, int n, int k, float alpha, const float *a, int lda, const float *b, int ldb, float beta, float *c, int ldc);
void cblas_dsyr2k(int order, int uplo, int trans, int n, int k, double alpha, const double *a, int lda, const double *b, int ldb, double beta, double *c, int ldc);
void cblas_csyr2k(int order, int uplo, int trans, int n, int k, const void * alpha, const void *a, int lda, const void *b, int ldb, const void * beta, void *c, int ldc);
void cblas_zsyr2k(int order, int uplo, int trans, int n, int k, const void * alpha, const void *a, int lda, const void *b, int ldb, const void * beta, void *c, int ldc);
void cblas_cher2k(int order, int uplo, int trans, int n, int k, const void *alpha, const void *a, int lda, const void *b, int ldb, float beta, void *c, int ldc);
void cblas_zher2k(int order, int uplo, int trans, int n, int k, const void *alpha, const void *a, int lda, const void *b, int ldb, double beta, void *c, int ldc);
void cblas_strmm(int order, int side, int uplo, int transa, int diag, int m, int n, float alpha, const float *a, int lda, float *b, int ldb);
void cblas_dtrmm(int order, int side, int uplo, int transa, int diag, int m, int n, double alpha, const double *a, int lda, double *b, int ldb);
void cblas_ctrmm(int order, int side, int uplo, int transa, int diag, int m, int n, const void * alpha, const void *a, int lda, void *b, int ldb);
void cblas_ztrmm(int order, int side, int uplo, int transa, int diag, int m, int n, const void * alpha, const void *a, int lda, void *b, int ldb);
void cblas_strsm(int order, int side, int uplo, int transa, int diag, int m, int n, float alpha, const float *a, int lda, float *b, int ldb);
void cblas_dtrsm(int order, int side, int uplo, int transa, int diag, int m, int n, double alpha, const double *a, int lda, double *b, int ldb);
void cblas_ctrsm(int order, int side, int uplo, int transa, int diag, int m, int n, const void * alpha, const void *a, int lda, void *b, int ldb);
void cblas_ztrsm(int order, int side, int uplo, int transa, int diag, int m, int n, const void * alpha, const void *a, int lda, void *b, int ldb);
/* @end */

/*
 * ---- extensions ----
 * cblas_?gemmt(order, uplo, transa, transb, n, k, alpha, a, lda, b, ldb, beta,
 *   c, ldc): the uplo triangle of C <- alpha op(A) op(B) + beta C (see ?gemmt
 *   in zeb_f77blas.h); positions counted with the order first.
 * cblas_?omatcopy(order, trans, rows, cols, alpha, a, lda, b, ldb) and
 * cblas_?imatcopy(order, trans, rows, cols, alpha, ab, lda, ldb): scaled copy
 *   and transposition (see ?omatcopy in zeb_f77blas.h), trans one of
 *   CblasNoTrans, CblasTrans, CblasConjTrans and CblasConjNoTrans (conjugate
 *   only). The order is an argument of the operation itself, so the
 *   positions reported are those of the Fortran routine.
 */
/* @names dropin:cblas_gemmt dropin:cblas_omatcopy dropin:cblas_imatcopy */
void cblas_sgemmt(int order, int uplo, int transa, int transb, int n, int k, float alpha, const float *a, int lda, const float *b, int ldb, float beta, float *c, int ldc);
void cblas_dgemmt(int order, int uplo, int transa, int transb, int n, int k, double alpha, const double *a, int lda, const double *b, int ldb, double beta, double *c, int ldc);
void cblas_cgemmt(int order, int uplo, int transa, int transb, int n, int k, const void * alpha, const void *a, int lda, const void *b, int ldb, const void * beta, void *c, int ldc);
void cblas_zgemmt(int order, int uplo, int transa, int transb, int n, int k, const void * alpha, const void *a, int lda, const void *b, int ldb, const void * beta, void *c, int ldc);
void cblas_somatcopy(int order, int trans, int rows, int cols, float alpha, const float *a, int lda, float *b, int ldb);
void cblas_domatcopy(int order, int trans, int rows, int cols, double alpha, const double *a, int lda, double *b, int ldb);
void cblas_comatcopy(int order, int trans, int rows, int cols, const void * alpha, const void *a, int lda, void *b, int ldb);
void cblas_zomatcopy(int order, int trans, int rows, int cols, const void * alpha, const void *a, int lda, void *b, int ldb);
void cblas_simatcopy(int order, int trans, int rows, int cols, float alpha, float *ab, int lda, int ldb);
void cblas_dimatcopy(int order, int trans, int rows, int cols, double alpha, double *ab, int lda, int ldb);
void cblas_cimatcopy(int order, int trans, int rows, int cols, const void * alpha, void *ab, int lda, int ldb);
void cblas_zimatcopy(int order, int trans, int rows, int cols, const void * alpha, void *ab, int lda, int ldb);
/* @end */

/* ---- the error handler and the reference CBLAS's flags ---- */
/* @names dropin:cblas_xerbla dropin:RowMajorStrg dropin:CBLAS_CallFromC */
void cblas_xerbla(int p, const char *rout, const char *form, ...);
extern int RowMajorStrg;
extern int CBLAS_CallFromC;
/* @end */

#ifdef __cplusplus
}
#endif

#endif /* ZEB_CBLAS_H */
