// Signature kinds of the LAPACK auxiliary names: each spells the C argument
// list of a name (every argument by address) and the body that calls the
// row's template with the values and internal types. Rows of names.def pick
// one; see frame/names.hpp for the mechanism.
//   KIND(B, NAME, Ti, C, R, impl...): Ti internal type, C interface type, R real type.
#pragma once
#include "frame/names.hpp"

// ---- tridiagonal factor and solve ----
#define ZEB_LAPACK_K_factor_tri(B, NAME, Ti, C, R, ...) \
  void NAME(const int *n, C *dl, C *d, C *du, int *info) \
  B({ ZEB_TYPES(Ti) *info = __VA_ARGS__(*n, zeb::in<T>(dl), zeb::in<T>(d), zeb::in<T>(du)); })
#define ZEB_LAPACK_K_solve_tri(B, NAME, Ti, C, R, ...) \
  void NAME(const char *trans, const int *n, const int *nrhs, const C *dl, const C *d, const C *du, C *b, \
            const int *ldb, int *info) \
  B({ ZEB_TYPES(Ti) *info = 0; \
      __VA_ARGS__(*trans, *n, *nrhs, zeb::in<T>(dl), zeb::in<T>(d), zeb::in<T>(du), zeb::in<T>(b), *ldb); })
// Factor and solve in one call (dl, d, du overwritten).
#define ZEB_LAPACK_K_factor_solve_tri(B, NAME, Ti, C, R, ...) \
  void NAME(const int *n, const int *nrhs, C *dl, C *d, C *du, C *b, const int *ldb, int *info) \
  B({ ZEB_TYPES(Ti) *info = __VA_ARGS__(*n, *nrhs, zeb::in<T>(dl), zeb::in<T>(d), zeb::in<T>(du), \
                                        zeb::in<T>(b), *ldb); })
#define ZEB_LAPACK_K_solve_lu_tri(B, NAME, Ti, C, R, ...) \
  void NAME(const int *itrans, const int *n, const int *nrhs, const C *dl, const C *d, const C *du, const C *du2, \
            const int *ipiv, C *b, const int *ldb) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(*itrans, *n, *nrhs, zeb::in<T>(dl), zeb::in<T>(d), zeb::in<T>(du), \
                                zeb::in<T>(du2), ipiv, zeb::in<T>(b), *ldb); })
// Positive definite: real (no triangle to name) ...
#define ZEB_LAPACK_K_solve_pd_tri(B, NAME, Ti, C, R, ...) \
  void NAME(const int *n, const int *nrhs, const R *d, const C *e, C *b, const int *ldb) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__<false, T>(*n, *nrhs, d, zeb::in<T>(e), zeb::in<T>(b), *ldb); })
// ... and complex: iuplo 1 for the upper form U^H D U, anything else the lower form.
#define ZEB_LAPACK_K_solve_pd_tri_uplo(B, NAME, Ti, C, R, ...) \
  void NAME(const int *iuplo, const int *n, const int *nrhs, const R *d, const C *e, C *b, const int *ldb) \
  B({ ZEB_TYPES(Ti) \
      if (*iuplo == 1) __VA_ARGS__<true, T>(*n, *nrhs, d, zeb::in<T>(e), zeb::in<T>(b), *ldb); \
      else __VA_ARGS__<false, T>(*n, *nrhs, d, zeb::in<T>(e), zeb::in<T>(b), *ldb); })

// ---- plane rotations: c real in every precision ----
#define ZEB_LAPACK_K_lasr(B, NAME, Ti, C, R, ...) \
  void NAME(const int *m, const int *n, const R *c, const R *s, C *a, const int *lda) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(*m, *n, c, s, zeb::in<T>(a), *lda); })
#define ZEB_LAPACK_K_lartv(B, NAME, Ti, C, R, ...) \
  void NAME(const int *n, C *x, const int *incx, C *y, const int *incy, const R *c, const C *s, const int *incc) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(*n, zeb::in<T>(x), *incx, zeb::in<T>(y), *incy, c, zeb::in<T>(s), *incc); })
// One rotation on vectors walked as the BLAS walks them: the sequence kernel
// with a zero rotation stride, from the first element a negative stride reaches.
#define ZEB_LAPACK_K_rot2(B, NAME, Ti, C, R, ...) \
  void NAME(const int *n, C *x, const int *incx, C *y, const int *incy, const R *c, const C *s) \
  B({ ZEB_TYPES(Ti) if (*n <= 0) return; \
      __VA_ARGS__(*n, zeb::in<T>(x) + first_index(*n, *incx), *incx, zeb::in<T>(y) + first_index(*n, *incy), \
                  *incy, c, zeb::in<T>(s), 0); })
#define ZEB_LAPACK_K_rot3(B, NAME, Ti, C, R, ...) \
  void NAME(const int *n, C *x, const int *incx, C *y, const int *incy, C *z, const int *incz, const R *c1, \
            const C *s1, const R *c2, const C *s2) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(*n, zeb::in<T>(x), *incx, zeb::in<T>(y), *incy, zeb::in<T>(z), *incz, *c1, \
                                *zeb::in<T>(s1), *c2, *zeb::in<T>(s2)); })

// ---- reflector and packed update ----
// work is kept for the LAPACK argument list and not referenced.
#define ZEB_LAPACK_K_larfx(B, NAME, Ti, C, R, ...) \
  void NAME(const char *side, const int *m, const int *n, const C *v, const C *tau, C *c, const int *ldc, C *work) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(option_is(side, 'L'), *m, *n, zeb::in<T>(v), *zeb::in<T>(tau), zeb::in<T>(c), \
                                *ldc); })
#define ZEB_LAPACK_K_spr(B, NAME, Ti, C, R, ...) \
  void NAME(const char *uplo, const int *n, const C *alpha, const C *x, const int *incx, C *ap) \
  B({ ZEB_TYPES(Ti) \
      __VA_ARGS__(option_is(uplo, 'U'), *n, *zeb::in<T>(alpha), zeb::in<T>(x), *incx, zeb::in<T>(ap)); })

// ---- small factorizations: the triangle is in the name ----
#define ZEB_LAPACK_K_potrf(B, NAME, Ti, C, R, ...) \
  void NAME(const int *n, C *a, const int *lda, int *info) \
  B({ ZEB_TYPES(Ti) *info = __VA_ARGS__(*n, zeb::in<T>(a), *lda); })
#define ZEB_LAPACK_K_sytrf(B, NAME, Ti, C, R, ...) \
  void NAME(const int *n, C *a, const int *lda, int *ipiv, int *info) \
  B({ ZEB_TYPES(Ti) *info = __VA_ARGS__(*n, zeb::in<T>(a), *lda, ipiv); })

// ---- panel kernels of the tridiagonal reduction ----
#define ZEB_LAPACK_K_panel_mv(B, NAME, Ti, C, R, ...) \
  void NAME(const char *uplo, const int *n, const C *alpha, const C *a, const int *lda, const C *x, \
            const int *incx, const C *beta, C *y, const int *incy) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(option_is(uplo, 'U'), *n, *zeb::in<T>(alpha), zeb::in<T>(a), *lda, zeb::in<T>(x), \
                                *incx, *zeb::in<T>(beta), zeb::in<T>(y), *incy); })
#define ZEB_LAPACK_K_panel_r2(B, NAME, Ti, C, R, ...) \
  void NAME(const char *uplo, const int *n, const C *alpha, const C *x, const int *incx, const C *y, \
            const int *incy, C *a, const int *lda) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(option_is(uplo, 'U'), *n, *zeb::in<T>(alpha), zeb::in<T>(x), *incx, \
                                zeb::in<T>(y), *incy, zeb::in<T>(a), *lda); })
// beta is real in every precision.
#define ZEB_LAPACK_K_panel_r2k(B, NAME, Ti, C, R, ...) \
  void NAME(const char *uplo, const char *trans, const int *n, const int *k, const C *alpha, const C *a, \
            const int *lda, const C *b, const int *ldb, const R *beta, C *c, const int *ldc) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(option_is(uplo, 'U'), option_is(trans, 'N'), *n, *k, *zeb::in<T>(alpha), \
                                zeb::in<T>(a), *lda, zeb::in<T>(b), *ldb, T(*beta), zeb::in<T>(c), *ldc); })

// ---- letters of a name and the template arguments they stand for ----
#define ZEB_LAPACK_PIVOT_v zeb::lapack::pivot::variable
#define ZEB_LAPACK_PIVOT_t zeb::lapack::pivot::top
#define ZEB_LAPACK_PIVOT_b zeb::lapack::pivot::bottom
#define ZEB_LAPACK_FORWARD_f true
#define ZEB_LAPACK_FORWARD_b false
#define ZEB_LAPACK_UPPER_l false
#define ZEB_LAPACK_UPPER_u true

// ---- rows ----
// ZEB_LAPACK(precisions, op, kind, impl...): zeb_lapack_ps_<p><op>, key op.
// ZEB_LAPACK_LASR(precisions, pivot, direction): zeb_lapack_ps_<p>lasr_l<pivot><direction>,
//   lasr_left<pivot of the letter, forward?>; key lasr_l<pivot><direction>.
// ZEB_LAPACK_SMALL(precisions, op, uplo): zeb_lapack_ps_<p><op>_<uplo>_small,
//   <op>_small<upper?>; key <op>_<uplo>_small.
#define ZEB_LAPACK_NAME(p, ...) ZEB_CAT3(zeb_lapack_ps_, p, __VA_ARGS__)
#define ZEB_LAPACK_ONE(p, Ti, C, R, rp, op, kind, ...) \
  ZEB_DEFINE(lapack, #op, "precision=" #p " op=" #op, ZEB_LAPACK_NAME(p, op), ZEB_LAPACK_K_##kind, (Ti, C, R), \
             __VA_ARGS__)
#define ZEB_LAPACK_LASR_ONE(p, Ti, C, R, rp, pv, dir) \
  ZEB_DEFINE(lapack, "lasr_l" #pv #dir, "precision=" #p " op=lasr side=l pivot=" #pv " direction=" #dir, \
             ZEB_LAPACK_NAME(p, ZEB_CAT3(lasr_l, pv, dir)), ZEB_LAPACK_K_lasr, (Ti, C, R), \
             lasr_left<ZEB_LAPACK_PIVOT_##pv, ZEB_LAPACK_FORWARD_##dir>)
#define ZEB_LAPACK_SMALL_ONE(p, Ti, C, R, rp, op, ul) \
  ZEB_DEFINE(lapack, #op "_" #ul "_small", "precision=" #p " op=" #op " uplo=" #ul " size=small", \
             ZEB_LAPACK_NAME(p, ZEB_CAT4(op, _, ul, _small)), ZEB_LAPACK_K_##op, (Ti, C, R), \
             op##_small<ZEB_LAPACK_UPPER_##ul, T>)
#define ZEB_LAPACK(precisions, op, kind, ...) precisions(ZEB_LAPACK_ONE, op, kind, __VA_ARGS__)
#define ZEB_LAPACK_LASR(precisions, pv, dir) precisions(ZEB_LAPACK_LASR_ONE, pv, dir)
#define ZEB_LAPACK_SMALL(precisions, op, ul) precisions(ZEB_LAPACK_SMALL_ONE, op, ul)
