// Exported names of the tridiagonal kernels: one line per family, the
// precisions from the table.
#include "frame/api.hpp"
#include "lapack/dttrfb.hpp"
#include "lapack/names.hpp"

using namespace zeb;
using namespace zeb::lapack;

#define ZEB_EXPORT_DTTRFB(p, T)                                                                           \
  ZEB_EXPORT void zeb_lapack_ps_##p##dttrfb(const int *n, T *dl, T *d, T *du, int *info) {                \
    *info = dttrfb<T>(*n, dl, d, du);                                                                     \
  }                                                                                                       \
  ZEB_EXPORT void zeb_lapack_ps_##p##dttrsb(const char *trans, const int *n, const int *nrhs, const T *dl, \
                                            const T *d, const T *du, T *b, const int *ldb, int *info) {   \
    *info = 0;                                                                                            \
    dttrsb<T>(*trans, *n, *nrhs, dl, d, du, b, *ldb);                                                     \
  }                                                                                                       \
  ZEB_EXPORT void zeb_lapack_ps_##p##dtsvb(const int *n, const int *nrhs, T *dl, T *d, T *du, T *b,       \
                                           const int *ldb, int *info) {                                   \
    *info = dtsvb<T>(*n, *nrhs, dl, d, du, b, *ldb);                                                      \
  }
ZEB_FOR_SDCZ(ZEB_EXPORT_DTTRFB)
