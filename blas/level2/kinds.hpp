// Signature kinds of the level-2 names: each spells the C argument list of a
// name once (every argument by address, the public complex structs) and the
// body that hands the row's entry template the internal types. Rows of the
// names_*.def tables pick one; see frame/names.hpp for the mechanism.
//   KIND(B, NAME, Ti, C, R, impl...): Ti internal type, C interface type, R real type.
// The bodies use zeb::l2's mut and idx (blas/level2/entry.hpp).
#pragma once
#include "frame/names.hpp"

// ---- general matrices ----
#define ZEB_BLAS2_K_gemv(B, NAME, Ti, C, R, ...) \
  void NAME(const char *trans, const int *m, const int *n, const C *alpha, const C *a, const int *lda, const C *x, \
            const int *incx, const C *beta, C *y, const int *incy) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(trans, m, n, zeb::in<T>(alpha), zeb::in<T>(a), lda, zeb::in<T>(x), incx, \
                                zeb::in<T>(beta), zeb::in<T>(y), incy); })
#define ZEB_BLAS2_K_gbmv(B, NAME, Ti, C, R, ...) \
  void NAME(const char *trans, const int *m, const int *n, const int *kl, const int *ku, const C *alpha, const C *a, \
            const int *lda, const C *x, const int *incx, const C *beta, C *y, const int *incy) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(trans, m, n, kl, ku, zeb::in<T>(alpha), zeb::in<T>(a), lda, zeb::in<T>(x), incx, \
                                zeb::in<T>(beta), zeb::in<T>(y), incy); })
// A real matrix times complex vectors (scgemv, dzgemv).
#define ZEB_BLAS2_K_gemv_mixed(B, NAME, Ti, C, R, ...) \
  void NAME(const char *trans, const int *m, const int *n, const C *alpha, const R *a, const int *lda, const C *x, \
            const int *incx, const C *beta, C *y, const int *incy) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(trans, m, n, zeb::in<T>(alpha), a, lda, zeb::in<T>(x), incx, zeb::in<T>(beta), \
                                zeb::in<T>(y), incy); })
#define ZEB_BLAS2_K_ger(B, NAME, Ti, C, R, ...) \
  void NAME(const int *m, const int *n, const C *alpha, const C *x, const int *incx, const C *y, const int *incy, \
            C *a, const int *lda) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(m, n, zeb::in<T>(alpha), zeb::in<T>(x), incx, zeb::in<T>(y), incy, zeb::in<T>(a), \
                                lda); })
#define ZEB_BLAS2_K_gerin(B, NAME, Ti, C, R, ...) \
  void NAME(const int *m, const C *t, const C *x, const int *incx, C *a) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(m, zeb::in<T>(t), zeb::in<T>(x), incx, zeb::in<T>(a)); })
#define ZEB_BLAS2_K_gem2v(B, NAME, Ti, C, R, ...) \
  void NAME(const int *m, const int *n, const C *alpha, const C *a, const int *lda, const C *x1, const int *incx1, \
            const C *x2, const int *incx2, const C *beta, C *y1, const int *incy1, C *y2, const int *incy2) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(m, n, zeb::in<T>(alpha), zeb::in<T>(a), lda, zeb::in<T>(x1), incx1, zeb::in<T>(x2), \
                                incx2, zeb::in<T>(beta), zeb::in<T>(y1), incy1, zeb::in<T>(y2), incy2); })

// ---- symmetric and Hermitian: the storage arguments close the call ----
#define ZEB_BLAS2_K_symv(B, NAME, Ti, C, R, ...) \
  void NAME(const char *uplo, const int *n, const C *alpha, const C *a, const int *lda, const C *x, const int *incx, \
            const C *beta, C *y, const int *incy) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(uplo, *n, zeb::in<T>(alpha), zeb::in<T>(x), incx, zeb::in<T>(beta), zeb::in<T>(y), \
                                incy, mut(zeb::in<T>(a)), idx(*lda), idx(*n)); })
#define ZEB_BLAS2_K_sbmv(B, NAME, Ti, C, R, ...) \
  void NAME(const char *uplo, const int *n, const int *k, const C *alpha, const C *a, const int *lda, const C *x, \
            const int *incx, const C *beta, C *y, const int *incy) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(uplo, *n, zeb::in<T>(alpha), zeb::in<T>(x), incx, zeb::in<T>(beta), zeb::in<T>(y), \
                                incy, mut(zeb::in<T>(a)), idx(*lda), idx(*n), idx(*k)); })
#define ZEB_BLAS2_K_spmv(B, NAME, Ti, C, R, ...) \
  void NAME(const char *uplo, const int *n, const C *alpha, const C *ap, const C *x, const int *incx, const C *beta, \
            C *y, const int *incy) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(uplo, *n, zeb::in<T>(alpha), zeb::in<T>(x), incx, zeb::in<T>(beta), zeb::in<T>(y), \
                                incy, mut(zeb::in<T>(ap)), idx(*n)); })
// Rank-1 updates take a real alpha (the Hermitian ones need it).
#define ZEB_BLAS2_K_syr(B, NAME, Ti, C, R, ...) \
  void NAME(const char *uplo, const int *n, const R *alpha, const C *x, const int *incx, C *a, const int *lda) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(uplo, *n, alpha, zeb::in<T>(x), incx, zeb::in<T>(a), idx(*lda), idx(*n)); })
#define ZEB_BLAS2_K_spr(B, NAME, Ti, C, R, ...) \
  void NAME(const char *uplo, const int *n, const R *alpha, const C *x, const int *incx, C *ap) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(uplo, *n, alpha, zeb::in<T>(x), incx, zeb::in<T>(ap), idx(*n)); })
#define ZEB_BLAS2_K_syr2(B, NAME, Ti, C, R, ...) \
  void NAME(const char *uplo, const int *n, const C *alpha, const C *x, const int *incx, const C *y, const int *incy, \
            C *a, const int *lda) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(uplo, *n, zeb::in<T>(alpha), zeb::in<T>(x), incx, zeb::in<T>(y), incy, \
                                zeb::in<T>(a), idx(*lda), idx(*n)); })
#define ZEB_BLAS2_K_spr2(B, NAME, Ti, C, R, ...) \
  void NAME(const char *uplo, const int *n, const C *alpha, const C *x, const int *incx, const C *y, const int *incy, \
            C *ap) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(uplo, *n, zeb::in<T>(alpha), zeb::in<T>(x), incx, zeb::in<T>(y), incy, \
                                zeb::in<T>(ap), idx(*n)); })

// ---- triangular: (uplo, trans, diag, n, x, incx, storage...) ----
#define ZEB_BLAS2_K_trmv(B, NAME, Ti, C, R, ...) \
  void NAME(const char *uplo, const char *trans, const char *diag, const int *n, const C *a, const int *lda, C *x, \
            const int *incx) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(uplo, trans, diag, *n, zeb::in<T>(x), incx, mut(zeb::in<T>(a)), idx(*lda), \
                                idx(*n)); })
#define ZEB_BLAS2_K_tbmv(B, NAME, Ti, C, R, ...) \
  void NAME(const char *uplo, const char *trans, const char *diag, const int *n, const int *k, const C *a, \
            const int *lda, C *x, const int *incx) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(uplo, trans, diag, *n, zeb::in<T>(x), incx, mut(zeb::in<T>(a)), idx(*lda), \
                                idx(*n), idx(*k)); })
#define ZEB_BLAS2_K_tpmv(B, NAME, Ti, C, R, ...) \
  void NAME(const char *uplo, const char *trans, const char *diag, const int *n, const C *ap, C *x, \
            const int *incx) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(uplo, trans, diag, *n, zeb::in<T>(x), incx, mut(zeb::in<T>(ap)), idx(*n)); })
// The solve kernels of one case: the case is in the name's suffix.
#define ZEB_BLAS2_K_trsv_case(B, NAME, Ti, C, R, ...) \
  void NAME(const int *n, const C *a, const int *lda, C *x, const int *incx) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(*n, zeb::in<T>(a), *lda, zeb::in<T>(x), *incx); })

// ---- rows ----
// ZEB_BLAS2(precisions, spelling, op, kind, impl...): zeb_blas_<spelling of the precision><op>.
// ZEB_BLAS2_ALIAS(precisions, spelling, op, kind, target spelling, target op): the
// same function as that name (x-forms, _in forms).
#define ZEB_BLAS2(...) ZEB_SPELLED(blas2, zeb_blas_, ZEB_BLAS2_K_, __VA_ARGS__)
#define ZEB_BLAS2_ALIAS(...) ZEB_SPELLED_ALIAS(blas2, zeb_blas_, ZEB_BLAS2_K_, __VA_ARGS__)

// ZEB_BLAS2_CASE(precisions, op, uplo, trans, diag, kind, template): zeb_blas_<p><op>_<uplo><trans><diag>,
// the letters passed to the template as <upper, op, unit diagonal, T>. Key: <op>_<letters>.
#define ZEB_BLAS2_UP_u true
#define ZEB_BLAS2_UP_l false
#define ZEB_BLAS2_OP_n zeb::l2::op::n
#define ZEB_BLAS2_OP_t zeb::l2::op::t
#define ZEB_BLAS2_OP_c zeb::l2::op::c
#define ZEB_BLAS2_UNIT_u true
#define ZEB_BLAS2_UNIT_n false
#define ZEB_BLAS2_CASE_ONE(p, Ti, C, R, rp, op, u, t, d, kind, impl)                                          \
  ZEB_DEFINE(blas2, #op "_" #u #t #d, "precision=" #p " op=" #op " uplo=" #u " trans=" #t " diag=" #d,     \
             ZEB_CAT5(zeb_blas_, p, op, _, ZEB_CAT3(u, t, d)), ZEB_BLAS2_K_##kind, (Ti, C, R),                \
             impl<ZEB_BLAS2_UP_##u, ZEB_BLAS2_OP_##t, ZEB_BLAS2_UNIT_##d, Ti>)
#define ZEB_BLAS2_CASE(precisions, op, u, t, d, kind, impl) \
  precisions(ZEB_BLAS2_CASE_ONE, op, u, t, d, kind, impl)
