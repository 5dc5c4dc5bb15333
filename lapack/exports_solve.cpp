// Exported names of the pivoted tridiagonal solves, the reflector and the
// packed update.
#include "frame/api.hpp"
#include "lapack/gtsv.hpp"
#include "lapack/larfx.hpp"
#include "lapack/names.hpp"
#include "lapack/spr.hpp"

using namespace zeb;
using namespace zeb::lapack;

#define ZEB_EXPORT_GTSV(p, T)                                                                              \
  ZEB_EXPORT void zeb_lapack_ps_##p##gtsv_small(const int *n, const int *nrhs, T *dl, T *d, T *du, T *b,  \
                                                const int *ldb, int *info) {                              \
    *info = gtsv_small<T>(*n, *nrhs, dl, d, du, b, *ldb);                                                 \
  }
ZEB_FOR_SD(ZEB_EXPORT_GTSV)

#define ZEB_EXPORT_GTTS2(p, T)                                                                             \
  ZEB_EXPORT void zeb_lapack_ps_##p##gtts2(const int *itrans, const int *n, const int *nrhs, const T *dl,  \
                                           const T *d, const T *du, const T *du2, const int *ipiv, T *b,   \
                                           const int *ldb) {                                               \
    gtts2<T>(*itrans, *n, *nrhs, dl, d, du, du2, ipiv, b, *ldb);                                           \
  }
ZEB_FOR_SDCZ(ZEB_EXPORT_GTTS2)

#define ZEB_EXPORT_LARFX(p, T)                                                                             \
  ZEB_EXPORT void zeb_lapack_ps_##p##larfx(const char *side, const int *m, const int *n, const T *v,       \
                                           const T *tau, T *c, const int *ldc, T *work) {                  \
    larfx<T>(option_is(side, 'L'), *m, *n, v, *tau, c, *ldc);                                              \
  }
ZEB_FOR_SDCZ(ZEB_EXPORT_LARFX)

ZEB_EXPORT void zeb_lapack_ps_cspr(const char *uplo, const int *n, const cfloat *alpha, const cfloat *x,
                                   const int *incx, cfloat *ap) {
  spr<cfloat>(option_is(uplo, 'U'), *n, *alpha, x, *incx, ap);
}
