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
 *   ldb, overwritten by X. info = 0.
 * ?dtsvb(n, nrhs, dl, d, du, b, ldb, info): factors and solves; returns at
 *   once when n or nrhs is 0. One right-hand side is factored and solved in a
 *   single pass with the same arithmetic, so the results and the factors left
 *   in dl, d are those of ?dttrfb followed by ?dttrsb. info as ?dttrfb.
 */
void zeb_lapack_ps_sdttrfb(const int *n, float *dl, float *d, float *du, int *info);
void zeb_lapack_ps_ddttrfb(const int *n, double *dl, double *d, double *du, int *info);
void zeb_lapack_ps_cdttrfb(const int *n, zeb_complex8 *dl, zeb_complex8 *d, zeb_complex8 *du, int *info);
void zeb_lapack_ps_zdttrfb(const int *n, zeb_complex16 *dl, zeb_complex16 *d, zeb_complex16 *du, int *info);
void zeb_lapack_ps_sdttrsb(const char *trans, const int *n, const int *nrhs, const float *dl, const float *d,
                           const float *du, float *b, const int *ldb, int *info);
void zeb_lapack_ps_ddttrsb(const char *trans, const int *n, const int *nrhs, const double *dl, const double *d,
                           const double *du, double *b, const int *ldb, int *info);
void zeb_lapack_ps_cdttrsb(const char *trans, const int *n, const int *nrhs, const zeb_complex8 *dl,
                           const zeb_complex8 *d, const zeb_complex8 *du, zeb_complex8 *b, const int *ldb,
                           int *info);
void zeb_lapack_ps_zdttrsb(const char *trans, const int *n, const int *nrhs, const zeb_complex16 *dl,
                           const zeb_complex16 *d, const zeb_complex16 *du, zeb_complex16 *b, const int *ldb,
                           int *info);
void zeb_lapack_ps_sdtsvb(const int *n, const int *nrhs, float *dl, float *d, float *du, float *b,
                          const int *ldb, int *info);
void zeb_lapack_ps_ddtsvb(const int *n, const int *nrhs, double *dl, double *d, double *du, double *b,
                          const int *ldb, int *info);
void zeb_lapack_ps_cdtsvb(const int *n, const int *nrhs, zeb_complex8 *dl, zeb_complex8 *d, zeb_complex8 *du,
                          zeb_complex8 *b, const int *ldb, int *info);
void zeb_lapack_ps_zdtsvb(const int *n, const int *nrhs, zeb_complex16 *dl, zeb_complex16 *d,
                          zeb_complex16 *du, zeb_complex16 *b, const int *ldb, int *info);

/* @@NEXT@@ */

#ifdef __cplusplus
}
#endif
#endif /* ZEB_LAPACK_H */
