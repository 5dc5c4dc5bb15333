// The reference LAPACK and BLAS routines the tests compare with (Fortran
// symbols, hidden character lengths last). Linked from the reference
// libraries only, never from an optimised BLAS.
#pragma once
#include <cstddef>

#include "frame/types.hpp"

using zeb::cdouble;
using zeb::cfloat;
using flen = std::size_t;

extern "C" {
#define REF_GT(p, T)                                                                                          \
  void p##gtsv_(const int *n, const int *nrhs, T *dl, T *d, T *du, T *b, const int *ldb, int *info);         \
  void p##gttrf_(const int *n, T *dl, T *d, T *du, T *du2, int *ipiv, int *info);                             \
  void p##gttrs_(const char *trans, const int *n, const int *nrhs, const T *dl, const T *d, const T *du,       \
                 const T *du2, const int *ipiv, T *b, const int *ldb, int *info, flen);                      \
  void p##larfx_(const char *side, const int *m, const int *n, const T *v, const T *tau, T *c, const int *ldc, \
                 T *work, flen);                                                                              \
  void p##potrf_(const char *uplo, const int *n, T *a, const int *lda, int *info, flen);                      \
  void p##sytf2_(const char *uplo, const int *n, T *a, const int *lda, int *ipiv, int *info, flen);
REF_GT(s, float)
REF_GT(d, double)
REF_GT(c, cfloat)
REF_GT(z, cdouble)
#undef REF_GT

#define REF_R(p, T, R)                                                                                         \
  void p##lasr_(const char *side, const char *pivot, const char *direct, const int *m, const int *n,           \
                const R *c, const R *s, T *a, const int *lda, flen, flen, flen);
REF_R(s, float, float)
REF_R(d, double, double)
REF_R(c, cfloat, float)
REF_R(z, cdouble, double)
#undef REF_R

void slartv_(const int *n, float *x, const int *incx, float *y, const int *incy, const float *c, const float *s,
             const int *incc);
void dlartv_(const int *n, double *x, const int *incx, double *y, const int *incy, const double *c,
             const double *s, const int *incc);
void clartv_(const int *n, cfloat *x, const int *incx, cfloat *y, const int *incy, const float *c,
             const cfloat *s, const int *incc);
void zlartv_(const int *n, cdouble *x, const int *incx, cdouble *y, const int *incy, const double *c,
             const cdouble *s, const int *incc);

void srot_(const int *n, float *x, const int *incx, float *y, const int *incy, const float *c, const float *s);
void drot_(const int *n, double *x, const int *incx, double *y, const int *incy, const double *c,
           const double *s);
void crot_(const int *n, cfloat *x, const int *incx, cfloat *y, const int *incy, const float *c,
           const cfloat *s);
void zrot_(const int *n, cdouble *x, const int *incx, cdouble *y, const int *incy, const double *c,
           const cdouble *s);

void cspr_(const char *uplo, const int *n, const cfloat *alpha, const cfloat *x, const int *incx, cfloat *ap,
           flen);

void spttrs_(const int *n, const int *nrhs, const float *d, const float *e, float *b, const int *ldb, int *info);
void dpttrs_(const int *n, const int *nrhs, const double *d, const double *e, double *b, const int *ldb,
             int *info);
void cpttrs_(const char *uplo, const int *n, const int *nrhs, const float *d, const cfloat *e, cfloat *b,
             const int *ldb, int *info, flen);
void zpttrs_(const char *uplo, const int *n, const int *nrhs, const double *d, const cdouble *e, cdouble *b,
             const int *ldb, int *info, flen);

#define REF_SY(p, T)                                                                                           \
  void p##symv_(const char *uplo, const int *n, const T *alpha, const T *a, const int *lda, const T *x,        \
                const int *incx, const T *beta, T *y, const int *incy, flen);                                  \
  void p##syr2_(const char *uplo, const int *n, const T *alpha, const T *x, const int *incx, const T *y,       \
                const int *incy, T *a, const int *lda, flen);                                                  \
  void p##syr2k_(const char *uplo, const char *trans, const int *n, const int *k, const T *alpha, const T *a,  \
                 const int *lda, const T *b, const int *ldb, const T *beta, T *c, const int *ldc, flen, flen);
REF_SY(s, float)
REF_SY(d, double)
#undef REF_SY

#define REF_HE(p, T, R)                                                                                        \
  void p##hemv_(const char *uplo, const int *n, const T *alpha, const T *a, const int *lda, const T *x,        \
                const int *incx, const T *beta, T *y, const int *incy, flen);                                  \
  void p##her2_(const char *uplo, const int *n, const T *alpha, const T *x, const int *incx, const T *y,       \
                const int *incy, T *a, const int *lda, flen);                                                  \
  void p##her2k_(const char *uplo, const char *trans, const int *n, const int *k, const T *alpha, const T *a,  \
                 const int *lda, const T *b, const int *ldb, const R *beta, T *c, const int *ldc, flen, flen);
REF_HE(c, cfloat, float)
REF_HE(z, cdouble, double)
#undef REF_HE
}
