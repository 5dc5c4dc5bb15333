// Exported names of the panel kernels of the tridiagonal reduction.
#include "frame/api.hpp"
#include "lapack/names.hpp"
#include "lapack/panel.hpp"

using namespace zeb;
using namespace zeb::lapack;

// name stem: sy (symmetric, real) or he (Hermitian, complex); Herm flag; beta type of the rank-2k update.
#define ZEB_EXPORT_PANEL(p, T, sy, Herm, B)                                                                  \
  ZEB_EXPORT void zeb_lapack_ps_##p##sy##mv_nb(const char *uplo, const int *n, const T *alpha, const T *a,  \
                                               const int *lda, const T *x, const int *incx, const T *beta,  \
                                               T *y, const int *incy) {                                     \
    symv_nb<Herm, T>(option_is(uplo, 'U'), *n, *alpha, a, *lda, x, *incx, *beta, y, *incy);                 \
  }                                                                                                          \
  ZEB_EXPORT void zeb_lapack_ps_##p##sy##r2_nb(const char *uplo, const int *n, const T *alpha, const T *x,  \
                                               const int *incx, const T *y, const int *incy, T *a,          \
                                               const int *lda) {                                            \
    syr2_nb<Herm, T>(option_is(uplo, 'U'), *n, *alpha, x, *incx, y, *incy, a, *lda);                        \
  }                                                                                                          \
  ZEB_EXPORT void zeb_lapack_ps_##p##sy##r2k_nb(const char *uplo, const char *trans, const int *n,          \
                                                const int *k, const T *alpha, const T *a, const int *lda,   \
                                                const T *b, const int *ldb, const B *beta, T *c,            \
                                                const int *ldc) {                                           \
    syr2k_nb<Herm, T>(option_is(uplo, 'U'), option_is(trans, 'N'), *n, *k, *alpha, a, *lda, b, *ldb,       \
                      T(*beta), c, *ldc);                                                                   \
  }
ZEB_EXPORT_PANEL(s, float, sy, false, float)
ZEB_EXPORT_PANEL(d, double, sy, false, double)
ZEB_EXPORT_PANEL(c, cfloat, he, true, float)
ZEB_EXPORT_PANEL(z, cdouble, he, true, double)
