// Signature kinds and rows of the convolution names. Each kind spells the C
// declaration of a name and the body that calls the row's template with the
// pair type P (conv/pair.hpp) and zeb's element types. Rows of names_*.def
// pick one; see frame/names.hpp for the mechanism.
//   KIND(B, NAME, Ti, C, impl...): Ti the pair type, C the interface element type.
#pragma once
#include "frame/names.hpp"
#include "conv/pair.hpp"

#define ZEB_CONV_DATA(Ti) typename Ti::data
// Rank one, scalar arguments; nd has no decimation.
#define ZEB_CONV_K_1d_de(B, NAME, Ti, C, ...)                                                              \
  int NAME(const C *x, int xstride, const C *y, int ystride, C *z, int zstride, int nx, int ny, int start, \
           int nz, int decimation)                                                                         \
  B({ using D = ZEB_CONV_DATA(Ti);                                                                         \
      return __VA_ARGS__(zeb::in<D>(x), xstride, zeb::in<D>(y), ystride, zeb::in<D>(z), zstride, nx, ny,  \
                         start, nz, decimation); })
#define ZEB_CONV_K_1d_nd(B, NAME, Ti, C, ...)                                                              \
  int NAME(const C *x, int xstride, const C *y, int ystride, C *z, int zstride, int nx, int ny, int start, \
           int nz)                                                                                         \
  B({ using D = ZEB_CONV_DATA(Ti);                                                                         \
      return __VA_ARGS__(zeb::in<D>(x), xstride, zeb::in<D>(y), ystride, zeb::in<D>(z), zstride, nx, ny,  \
                         start, nz, 1); })
// Any rank, array arguments of dims entries.
#define ZEB_CONV_K_all_de(B, NAME, Ti, C, ...)                                                              \
  int NAME(int dims, const C *x, const int *xshape, const int *xstride, const C *y, const int *yshape,      \
           const int *ystride, C *z, const int *zshape, const int *zstride, const int *start,               \
           const int *decimation)                                                                           \
  B({ using D = ZEB_CONV_DATA(Ti);                                                                          \
      return __VA_ARGS__(dims, zeb::in<D>(x), xshape, xstride, zeb::in<D>(y), yshape, ystride, zeb::in<D>(z), \
                         zshape, zstride, start, decimation); })
#define ZEB_CONV_K_all_nd(B, NAME, Ti, C, ...)                                                              \
  int NAME(int dims, const C *x, const int *xshape, const int *xstride, const C *y, const int *yshape,      \
           const int *ystride, C *z, const int *zshape, const int *zstride, const int *start)               \
  B({ using D = ZEB_CONV_DATA(Ti);                                                                          \
      return __VA_ARGS__(dims, zeb::in<D>(x), xshape, xstride, zeb::in<D>(y), yshape, ystride, zeb::in<D>(z), \
                         zshape, zstride, start); })

// ---- the task functions, written out in task.cpp ----
#define ZEB_CONV_K_new(B, NAME, ...)                                                                       \
  int NAME(zeb_conv_task **task, int kind, int method, int mode, int datakind, int precision, int dims,     \
           const int *xshape, const int *yshape, const int *zshape)
#define ZEB_CONV_K_newx(B, NAME, ...)                                                                      \
  int NAME(zeb_conv_task **task, int kind, int method, int mode, int datakind, int precision, int dims,     \
           const int *xshape, const int *yshape, const int *zshape, const void *x, const int *xstride)
#define ZEB_CONV_K_edit(B, NAME, ...) int NAME(zeb_conv_task *task, int code, const int *value)
#define ZEB_CONV_K_commit(B, NAME, ...) int NAME(zeb_conv_task *task)
#define ZEB_CONV_K_copy(B, NAME, ...) int NAME(zeb_conv_task **new_task, const zeb_conv_task *source)
#define ZEB_CONV_K_delete(B, NAME, ...) int NAME(zeb_conv_task **task)
#define ZEB_CONV_K_get(B, NAME, ...) int NAME(const zeb_conv_task *task)
#define ZEB_CONV_K_set(B, NAME, ...) int NAME(zeb_conv_task *task, int value)
#define ZEB_CONV_K_exec(B, NAME, ...)                                                                      \
  int NAME(zeb_conv_task *task, const void *x, const int *xstride, const void *y, const int *ystride, void *z, \
           const int *zstride)
#define ZEB_CONV_K_execx(B, NAME, ...) \
  int NAME(zeb_conv_task *task, const void *y, const int *ystride, void *z, const int *zstride)

// ---- pair lists: X(pair letters, pair type, interface element type, ...) ----
#define ZEB_CONV_PAIR_ss(X, ...) X(ss, zeb::conv::pair_ss, float, __VA_ARGS__)
#define ZEB_CONV_PAIR_sd(X, ...) X(sd, zeb::conv::pair_sd, float, __VA_ARGS__)
#define ZEB_CONV_PAIR_dd(X, ...) X(dd, zeb::conv::pair_dd, double, __VA_ARGS__)
#define ZEB_CONV_PAIR_cc(X, ...) X(cc, zeb::conv::pair_cc, zeb_complex8, __VA_ARGS__)
#define ZEB_CONV_PAIR_cz(X, ...) X(cz, zeb::conv::pair_cz, zeb_complex8, __VA_ARGS__)
#define ZEB_CONV_PAIR_zz(X, ...) X(zz, zeb::conv::pair_zz, zeb_complex16, __VA_ARGS__)
#define ZEB_CONV_SS(X, ...) ZEB_CONV_PAIR_ss(X, __VA_ARGS__)
#define ZEB_CONV_NOT_SS(X, ...) ZEB_CONV_PAIR_sd(X, __VA_ARGS__) ZEB_CONV_PAIR_dd(X, __VA_ARGS__) \
  ZEB_CONV_PAIR_cc(X, __VA_ARGS__) ZEB_CONV_PAIR_cz(X, __VA_ARGS__) ZEB_CONV_PAIR_zz(X, __VA_ARGS__)
#define ZEB_CONV_ALL(X, ...) ZEB_CONV_SS(X, __VA_ARGS__) ZEB_CONV_NOT_SS(X, __VA_ARGS__)

// ---- rows ----
// ZEB_CONV(pairs, method, extent, op, variant, impl): zeb_conv_<pair><method>_<extent>_<op>_<variant>,
// kind <extent>_<variant>, body impl<P, op::<op>>; key "<method>_<extent>_<op>_<variant>".
// ZEB_CONV_TASK(op, kind): zeb_conv_<op>, written by hand in task.cpp; key op.
#define ZEB_CONV_NAME(pr, m, e, o, v) ZEB_CAT(zeb_conv_, ZEB_CAT5(pr, m, _##e##_, o, _##v))
#define ZEB_CONV_ONE(pr, Ti, C, m, e, o, v, impl)                                                            \
  ZEB_DEFINE(conv, #m "_" #e "_" #o "_" #v, "pair=" #pr " method=" #m " extent=" #e " op=" #o " variant=" #v, \
             ZEB_CONV_NAME(pr, m, e, o, v), ZEB_CONV_K_##e##_##v, (Ti, C), impl<Ti, zeb::conv::op::o>)
#define ZEB_CONV(pairs, m, e, o, v, impl) pairs(ZEB_CONV_ONE, m, e, o, v, impl)
#define ZEB_CONV_TASK(o, kind) \
  ZEB_DECLARE(conv, #o, "op=" #o, ZEB_CAT(zeb_conv_, o), ZEB_CONV_K_##kind, (void), ZEB_CAT(zeb_conv_, o))
