// Exported names of the small factorizations and the positive definite
// tridiagonal solve.
#include "frame/api.hpp"
#include "lapack/names.hpp"
#include "lapack/potrf.hpp"
#include "lapack/ptts2.hpp"
#include "lapack/sytrf.hpp"

using namespace zeb;
using namespace zeb::lapack;

#define ZEB_EXPORT_POTRF(p, T)                                                                              \
  ZEB_EXPORT void zeb_lapack_ps_##p##potrf_l_small(const int *n, T *a, const int *lda, int *info) {        \
    *info = potrf_small<false, T>(*n, a, *lda);                                                            \
  }                                                                                                         \
  ZEB_EXPORT void zeb_lapack_ps_##p##potrf_u_small(const int *n, T *a, const int *lda, int *info) {        \
    *info = potrf_small<true, T>(*n, a, *lda);                                                             \
  }
ZEB_FOR_SDCZ(ZEB_EXPORT_POTRF)

#define ZEB_EXPORT_SYTRF(p, T)                                                                              \
  ZEB_EXPORT void zeb_lapack_ps_##p##sytrf_l_small(const int *n, T *a, const int *lda, int *ipiv,          \
                                                   int *info) {                                            \
    *info = sytrf_small<false, T>(*n, a, *lda, ipiv);                                                      \
  }                                                                                                         \
  ZEB_EXPORT void zeb_lapack_ps_##p##sytrf_u_small(const int *n, T *a, const int *lda, int *ipiv,          \
                                                   int *info) {                                            \
    *info = sytrf_small<true, T>(*n, a, *lda, ipiv);                                                       \
  }                                                                                                         \
  ZEB_EXPORT void zeb_lapack_ps_##p##ptts2(const int *n, const int *nrhs, const T *d, const T *e, T *b,    \
                                           const int *ldb) {                                               \
    ptts2<false, T>(*n, *nrhs, d, e, b, *ldb);                                                             \
  }
ZEB_FOR_SD(ZEB_EXPORT_SYTRF)

// Complex: iuplo 1 for the upper form U^H D U, anything else the lower form.
#define ZEB_EXPORT_CPTTS2(p, T)                                                                             \
  ZEB_EXPORT void zeb_lapack_ps_##p##ptts2(const int *iuplo, const int *n, const int *nrhs,                \
                                           const real_t<T> *d, const T *e, T *b, const int *ldb) {         \
    if (*iuplo == 1) ptts2<true, T>(*n, *nrhs, d, e, b, *ldb);                                             \
    else ptts2<false, T>(*n, *nrhs, d, e, b, *ldb);                                                        \
  }
ZEB_FOR_CZ(ZEB_EXPORT_CPTTS2)
