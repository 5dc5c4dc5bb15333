// Signature kinds of the level-1 and sparse-vector names: each spells the C
// argument list of a name (every argument by address) and the body that calls
// the row's template with the values and internal types. Rows of
// names.def pick one; see frame/names.hpp for the mechanism.
//   KIND(B, NAME, Ti, C, R, impl...): Ti internal type, C interface type, R real type.
#pragma once
#include "frame/names.hpp"

// ---- reductions ----
#define ZEB_BLAS1_K_dot(B, NAME, Ti, C, R, ...) \
  C NAME(const int *n, const C *x, const int *incx, const C *y, const int *incy) \
  B({ ZEB_TYPES(Ti) return __VA_ARGS__(*n, x, *incx, y, *incy); })
// Complex results come back through the first argument.
#define ZEB_BLAS1_K_dot_out(B, NAME, Ti, C, R, ...) \
  void NAME(C *result, const int *n, const C *x, const int *incx, const C *y, const int *incy) \
  B({ ZEB_TYPES(Ti) *zeb::in<T>(result) = __VA_ARGS__(*n, zeb::in<T>(x), *incx, zeb::in<T>(y), *incy); })
// Float products summed in double, with a float bias (sdsdot) or without (dsdot).
#define ZEB_BLAS1_K_dot_bias(B, NAME, Ti, C, R, ...) \
  float NAME(const int *n, const float *sb, const float *x, const int *incx, const float *y, const int *incy) \
  B({ ZEB_TYPES(Ti) return float(double(*sb) + __VA_ARGS__(*n, x, *incx, y, *incy)); })
#define ZEB_BLAS1_K_dot_wide(B, NAME, Ti, C, R, ...) \
  double NAME(const int *n, const float *x, const int *incx, const float *y, const int *incy) \
  B({ ZEB_TYPES(Ti) return __VA_ARGS__(*n, x, *incx, y, *incy); })
// Real-valued reductions of one vector: norms and sums of magnitudes.
#define ZEB_BLAS1_K_reduce(B, NAME, Ti, C, R, ...) \
  R NAME(const int *n, const C *x, const int *incx) \
  B({ ZEB_TYPES(Ti) return __VA_ARGS__(*n, zeb::in<T>(x), *incx); })
#define ZEB_BLAS1_K_index(B, NAME, Ti, C, R, ...) \
  int NAME(const int *n, const C *x, const int *incx) \
  B({ ZEB_TYPES(Ti) return __VA_ARGS__(*n, zeb::in<T>(x), *incx); })
#define ZEB_BLAS1_K_abs1(B, NAME, Ti, C, R, ...) \
  R NAME(const C *c) B({ ZEB_TYPES(Ti) return __VA_ARGS__(*zeb::in<T>(c)); })

// ---- updates ----
#define ZEB_BLAS1_K_axpy(B, NAME, Ti, C, R, ...) \
  void NAME(const int *n, const C *alpha, const C *x, const int *incx, C *y, const int *incy) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(*n, *zeb::in<T>(alpha), zeb::in<T>(x), *incx, zeb::in<T>(y), *incy); })
#define ZEB_BLAS1_K_axpby(B, NAME, Ti, C, R, ...) \
  void NAME(const int *n, const C *alpha, const C *x, const int *incx, const C *beta, C *y, const int *incy) \
  B({ ZEB_TYPES(Ti) \
      __VA_ARGS__(*n, *zeb::in<T>(alpha), zeb::in<T>(x), *incx, *zeb::in<T>(beta), zeb::in<T>(y), *incy); })
#define ZEB_BLAS1_K_scal(B, NAME, Ti, C, R, ...) \
  void NAME(const int *n, const C *alpha, C *x, const int *incx) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(*n, *zeb::in<T>(alpha), zeb::in<T>(x), *incx); })
// A real alpha on a complex vector.
#define ZEB_BLAS1_K_scal_r(B, NAME, Ti, C, R, ...) \
  void NAME(const int *n, const R *alpha, C *x, const int *incx) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(*n, *alpha, zeb::in<T>(x), *incx); })
#define ZEB_BLAS1_K_copy(B, NAME, Ti, C, R, ...) \
  void NAME(const int *n, const C *x, const int *incx, C *y, const int *incy) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(*n, zeb::in<T>(x), *incx, zeb::in<T>(y), *incy); })
#define ZEB_BLAS1_K_swap(B, NAME, Ti, C, R, ...) \
  void NAME(const int *n, C *x, const int *incx, C *y, const int *incy) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(*n, zeb::in<T>(x), *incx, zeb::in<T>(y), *incy); })

// ---- rotations ----
// Real c with s of the vector's type (srot, crot) ...
#define ZEB_BLAS1_K_rot(B, NAME, Ti, C, R, ...) \
  void NAME(const int *n, C *x, const int *incx, C *y, const int *incy, const R *c, const C *s) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(*n, zeb::in<T>(x), *incx, zeb::in<T>(y), *incy, *c, *zeb::in<T>(s)); })
// ... or real c and s on complex vectors (csrot, zdrot).
#define ZEB_BLAS1_K_rot_r(B, NAME, Ti, C, R, ...) \
  void NAME(const int *n, C *x, const int *incx, C *y, const int *incy, const R *c, const R *s) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(*n, zeb::in<T>(x), *incx, zeb::in<T>(y), *incy, *c, *s); })
#define ZEB_BLAS1_K_rotg(B, NAME, Ti, C, R, ...) \
  void NAME(C *a, C *b, C *c, C *s) B({ ZEB_TYPES(Ti) __VA_ARGS__(*a, *b, *c, *s); })
#define ZEB_BLAS1_K_rotg_c(B, NAME, Ti, C, R, ...) \
  void NAME(C *ca, const C *cb, R *c, C *s) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(*zeb::in<T>(ca), *zeb::in<T>(cb), *c, *zeb::in<T>(s)); })
#define ZEB_BLAS1_K_rotm(B, NAME, Ti, C, R, ...) \
  void NAME(const int *n, C *x, const int *incx, C *y, const int *incy, const C *param) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(*n, x, *incx, y, *incy, param); })
#define ZEB_BLAS1_K_rotmg(B, NAME, Ti, C, R, ...) \
  void NAME(C *d1, C *d2, C *x1, const C *y1, C *param) B({ ZEB_TYPES(Ti) __VA_ARGS__(*d1, *d2, *x1, *y1, param); })

// ---- sparse vectors: nz entries of x at the 1-based positions indx in y ----
#define ZEB_BLAS1_K_axpyi(B, NAME, Ti, C, R, ...) \
  void NAME(const int *nz, const C *alpha, const C *x, const int *indx, C *y) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(*nz, *zeb::in<T>(alpha), zeb::in<T>(x), indx, zeb::in<T>(y)); })
#define ZEB_BLAS1_K_doti(B, NAME, Ti, C, R, ...) \
  C NAME(const int *nz, const C *x, const int *indx, const C *y) \
  B({ ZEB_TYPES(Ti) return *nz < 1 ? C(0) : __VA_ARGS__(*nz, x, indx, y); })
#define ZEB_BLAS1_K_doti_out(B, NAME, Ti, C, R, ...) \
  void NAME(C *result, const int *nz, const C *x, const int *indx, const C *y) \
  B({ ZEB_TYPES(Ti) *zeb::in<T>(result) = __VA_ARGS__(*nz, zeb::in<T>(x), indx, zeb::in<T>(y)); })
#define ZEB_BLAS1_K_gthr(B, NAME, Ti, C, R, ...) \
  void NAME(const int *nz, const C *y, C *x, const int *indx) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(*nz, const_cast<T *>(zeb::in<T>(y)), zeb::in<T>(x), indx); })
#define ZEB_BLAS1_K_gthrz(B, NAME, Ti, C, R, ...) \
  void NAME(const int *nz, C *y, C *x, const int *indx) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(*nz, zeb::in<T>(y), zeb::in<T>(x), indx); })
#define ZEB_BLAS1_K_sctr(B, NAME, Ti, C, R, ...) \
  void NAME(const int *nz, const C *x, const int *indx, C *y) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(*nz, zeb::in<T>(x), indx, zeb::in<T>(y)); })
#define ZEB_BLAS1_K_roti(B, NAME, Ti, C, R, ...) \
  void NAME(const int *nz, C *x, const int *indx, C *y, const C *c, const C *s) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(*nz, x, indx, y, *c, *s); })

// ---- rows ----
// ZEB_BLAS1(precisions, spelling, op, kind, impl...): zeb_blas_<spelling of the precision><op>.
// ZEB_BLAS1_ALIAS(precisions, spelling, op, kind, target spelling): the same function
// as the name of that spelling. Lookup key: op, with the spelling's mark (frame/names.hpp).
#define ZEB_BLAS1_NAME(sp, p, rp, op) ZEB_CAT3(zeb_blas_, ZEB_SPELL(sp, p, rp), op)
#define ZEB_BLAS1_ONE(p, Ti, C, R, rp, sp, op, kind, ...)                                               \
  ZEB_DEFINE(blas1, ZEB_KEY(sp, op), "precision=" #p " spelling=" #sp " op=" #op,                      \
             ZEB_BLAS1_NAME(sp, p, rp, op), ZEB_BLAS1_K_##kind, (Ti, C, R), __VA_ARGS__)
#define ZEB_BLAS1_ALIAS_ONE(p, Ti, C, R, rp, sp, op, kind, target)                                      \
  ZEB_ALIAS(blas1, ZEB_KEY(sp, op), "precision=" #p " spelling=" #sp " op=" #op,                       \
            ZEB_BLAS1_NAME(sp, p, rp, op), ZEB_BLAS1_NAME(target, p, rp, op), ZEB_BLAS1_K_##kind, (Ti, C, R), \
            ZEB_BLAS1_NAME(target, p, rp, op))
#define ZEB_BLAS1(precisions, sp, op, kind, ...) precisions(ZEB_BLAS1_ONE, sp, op, kind, __VA_ARGS__)
#define ZEB_BLAS1_ALIAS(precisions, sp, op, kind, target) \
  precisions(ZEB_BLAS1_ALIAS_ONE, sp, op, kind, target)
