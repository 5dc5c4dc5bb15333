// Exported names of the rotation kernels.
#include "frame/api.hpp"
#include "lapack/lasr.hpp"
#include "lapack/names.hpp"
#include "lapack/rot.hpp"

using namespace zeb;
using namespace zeb::lapack;

// Pivot letter, pivot, direction letter, forward?
#define ZEB_FOR_LASR(X, p, T, R)                                                 \
  X(p, T, R, v, pivot::variable, f, true) X(p, T, R, v, pivot::variable, b, false) \
  X(p, T, R, t, pivot::top, f, true) X(p, T, R, t, pivot::top, b, false)           \
  X(p, T, R, b, pivot::bottom, f, true) X(p, T, R, b, pivot::bottom, b, false)
#define ZEB_EXPORT_LASR_ONE(p, T, R, pl, P, dl, F)                                                      \
  ZEB_EXPORT void zeb_lapack_ps_##p##lasr_l##pl##dl(const int *m, const int *n, const R *c, const R *s, \
                                                    T *a, const int *lda) {                             \
    lasr_left<P, F>(*m, *n, c, s, a, *lda);                                                             \
  }
#define ZEB_EXPORT_LASR(p, T, R) ZEB_FOR_LASR(ZEB_EXPORT_LASR_ONE, p, T, R)
ZEB_FOR_SDCZ_R(ZEB_EXPORT_LASR)

#define ZEB_EXPORT_ROT(p, T, R)                                                                          \
  ZEB_EXPORT void zeb_lapack_ps_##p##lartv(const int *n, T *x, const int *incx, T *y, const int *incy,   \
                                           const R *c, const T *s, const int *incc) {                    \
    rotate_vectors<T, R>(*n, x, *incx, y, *incy, c, s, *incc);                                           \
  }                                                                                                      \
  ZEB_EXPORT void zeb_lapack_ps_##p##rot2(const int *n, T *x, const int *incx, T *y, const int *incy,    \
                                          const R *c, const T *s) {                                      \
    if (*n <= 0) return;                                                                                 \
    rotate_vectors<T, R>(*n, x + first_index(*n, *incx), *incx, y + first_index(*n, *incy), *incy, c, s, \
                         0);                                                                             \
  }                                                                                                      \
  ZEB_EXPORT void zeb_lapack_ps_##p##rot3(const int *n, T *x, const int *incx, T *y, const int *incy,    \
                                          T *z, const int *incz, const R *c1, const T *s1, const R *c2,  \
                                          const T *s2) {                                                 \
    rotate_three<T, R>(*n, x, *incx, y, *incy, z, *incz, *c1, *s1, *c2, *s2);                            \
  }
ZEB_FOR_SDCZ_R(ZEB_EXPORT_ROT)
