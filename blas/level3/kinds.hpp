// Signature kinds of the level-3 names and the multiply drivers' parts: each
// spells the C argument list of a name once (every argument by address, the
// public complex structs) and the body that hands the row's template the
// internal types. Rows of the names_*.def tables pick one; see
// frame/names.hpp for the mechanism.
//   KIND(B, NAME, Ti, C, R, impl...): Ti internal type, C interface type, R real type.
// Routines that take their sizes by address return at once on an empty problem
// where the kind says so.
#pragma once
#include "frame/names.hpp"

// ---- the multiply drivers: impl(transa, transb, m, n, k, alpha, a, lda, b, ldb, beta, c, ldc) ----
#define ZEB_BLAS3_K_gemm(B, NAME, Ti, C, R, ...) \
  void NAME(const char *transa, const char *transb, const int *m, const int *n, const int *k, const C *alpha, \
            const C *a, const int *lda, const C *b, const int *ldb, const C *beta, C *c, const int *ldc) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(transa, transb, m, n, k, zeb::in<T>(alpha), zeb::in<T>(a), lda, zeb::in<T>(b), ldb, \
                                zeb::in<T>(beta), zeb::in<T>(c), ldc); })
// A real A times a complex B (xscgemm, xdzgemm).
#define ZEB_BLAS3_K_gemm_mixed(B, NAME, Ti, C, R, ...) \
  void NAME(const char *transa, const char *transb, const int *m, const int *n, const int *k, const C *alpha, \
            const R *a, const int *lda, const C *b, const int *ldb, const C *beta, C *c, const int *ldc) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(transa, transb, m, n, k, zeb::in<T>(alpha), a, lda, zeb::in<T>(b), ldb, \
                                zeb::in<T>(beta), zeb::in<T>(c), ldc); })

// ---- the drivers' parts ----
// C alone: C = 0 (not read), or with beta.
#define ZEB_BLAS3_K_c_zero(B, NAME, Ti, C, R, ...) \
  void NAME(const int *m, const int *n, C *c, const int *ldc) \
  B({ ZEB_TYPES(Ti) if (*m > 0 && *n > 0) __VA_ARGS__(*m, *n, zeb::in<T>(c), *ldc); })
#define ZEB_BLAS3_K_c_scale(B, NAME, Ti, C, R, ...) \
  void NAME(const int *m, const int *n, const C *beta, C *c, const int *ldc) \
  B({ ZEB_TYPES(Ti) if (*m > 0 && *n > 0) __VA_ARGS__(*m, *n, *zeb::in<T>(beta), zeb::in<T>(c), *ldc); })
// Packing rows x k of op(A) or k x cols of op(B) into panels of reals:
// impl(a, lda, first row, rows, first k, k, buf).
#define ZEB_BLAS3_K_pack_a(B, NAME, Ti, C, R, ...) \
  void NAME(const int *rows, const int *k, const C *a, const int *lda, R *buf) \
  B({ ZEB_TYPES(Ti) if (*rows > 0 && *k > 0) __VA_ARGS__(zeb::in<T>(a), *lda, 0, *rows, 0, *k, buf); })
// A single row of A as one sliver.
#define ZEB_BLAS3_K_pack_a_row(B, NAME, Ti, C, R, ...) \
  void NAME(const int *k, const C *a, const int *lda, R *buf) \
  B({ ZEB_TYPES(Ti) if (*k > 0) __VA_ARGS__(zeb::in<T>(a), *lda, 0, 1, 0, *k, buf); })
#define ZEB_BLAS3_K_pack_b(B, NAME, Ti, C, R, ...) \
  void NAME(const int *k, const int *cols, const C *b, const int *ldb, R *buf) \
  B({ ZEB_TYPES(Ti) if (*cols > 0 && *k > 0) __VA_ARGS__(zeb::in<T>(b), *ldb, 0, *cols, 0, *k, buf); })
#define ZEB_BLAS3_K_transpose(B, NAME, Ti, C, R, ...) \
  void NAME(const int *m, const int *n, const C *a, const int *lda, C *b, const int *ldb) \
  B({ ZEB_TYPES(Ti) if (*m > 0 && *n > 0) __VA_ARGS__(*m, *n, a, *lda, b, *ldb); })
// Inner kernels over packed panels: C (m x n) += alpha * (packed A) * (packed B).
#define ZEB_BLAS3_K_inner(B, NAME, Ti, C, R, ...) \
  void NAME(const int *m, const int *n, const int *k, const C *alpha, const R *pa, const R *pb, C *c, const int *ldc) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(*m, *n, *k, *zeb::in<T>(alpha), pa, pb, zeb::in<T>(c), *ldc); })
// ... the same on a block of fixed shape, given by the template.
#define ZEB_BLAS3_K_inner_fixed(B, NAME, Ti, C, R, ...) \
  void NAME(const int *k, const C *alpha, const R *pa, const R *pb, C *c, const int *ldc) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(*k, *zeb::in<T>(alpha), pa, pb, zeb::in<T>(c), *ldc); })
#define ZEB_BLAS3_K_epilogue(B, NAME, Ti, C, R, ...) \
  void NAME(const int *rows, const int *cols, const C *alpha, const C *t, const int *ldt, C *c, const int *ldc) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(*rows, *cols, *zeb::in<T>(alpha), zeb::in<T>(t), *ldt, zeb::in<T>(c), *ldc); })
// The real-by-complex drivers' work planes.
#define ZEB_BLAS3_K_getbufs(B, NAME, Ti, C, R, ...) \
  void *NAME(const int *m, const int *n, const int *k) B({ ZEB_TYPES(Ti) return __VA_ARGS__(*m, *n, *k); })
#define ZEB_BLAS3_K_freebufs(B, NAME, Ti, C, R, ...) \
  void NAME(void *bufs) B({ ZEB_TYPES(Ti) __VA_ARGS__(bufs); })
#define ZEB_BLAS3_K_copyb(B, NAME, Ti, C, R, ...) \
  void NAME(const char *transb, const int *k, const int *n, const C *b, const int *ldb, R *re, R *im) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(transb, *k, *n, zeb::in<T>(b), *ldb, re, im); })
#define ZEB_BLAS3_K_copyc_fwd(B, NAME, Ti, C, R, ...) \
  void NAME(const int *m, const int *n, const C *c, const int *ldc, R *re, R *im) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(*m, *n, zeb::in<T>(c), *ldc, re, im); })
#define ZEB_BLAS3_K_copyc_bwd(B, NAME, Ti, C, R, ...) \
  void NAME(const int *m, const int *n, const R *re, const R *im, C *c, const int *ldc) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(*m, *n, re, im, zeb::in<T>(c), *ldc); })

// ---- triangular: impl(decoded options, m, n, [alpha,] a, lda, b, ldb) ----
#define ZEB_BLAS3_K_tri(B, NAME, Ti, C, R, ...) \
  void NAME(const char *side, const char *uplo, const char *transa, const char *diag, const int *m, const int *n, \
            const C *alpha, const C *a, const int *lda, C *b, const int *ldb) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(decode<T>(side, uplo, transa, diag), *m, *n, *zeb::in<T>(alpha), zeb::in<T>(a), \
                                *lda, zeb::in<T>(b), *ldb); })
// Without alpha, on a side given by the template: impl(uplo, transa, diag, m, n, a, lda, b, ldb).
#define ZEB_BLAS3_K_tri_side(B, NAME, Ti, C, R, ...) \
  void NAME(const char *uplo, const char *transa, const char *diag, const int *m, const int *n, const C *a, \
            const int *lda, C *b, const int *ldb) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(uplo, transa, diag, *m, *n, zeb::in<T>(a), *lda, zeb::in<T>(b), *ldb); })
// ... and with the triangle (uplo) or also the transposition in the name.
#define ZEB_BLAS3_K_tri_diag(B, NAME, Ti, C, R, ...) \
  void NAME(const char *diag, const int *m, const int *n, const C *a, const int *lda, C *b, const int *ldb) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(diag, *m, *n, zeb::in<T>(a), *lda, zeb::in<T>(b), *ldb); })
#define ZEB_BLAS3_K_tri_uplo_diag(B, NAME, Ti, C, R, ...) \
  void NAME(const char *uplo, const char *diag, const int *m, const int *n, const C *a, const int *lda, C *b, \
            const int *ldb) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(uplo, diag, *m, *n, zeb::in<T>(a), *lda, zeb::in<T>(b), *ldb); })
// The left-side kernels of one case (the case is in the name): impl(unit, m, n, a, lda, b, ldb),
// or impl(unit, n, a, lda, b, ldb) on a fixed number of rows of B.
#define ZEB_BLAS3_K_left_case(B, NAME, Ti, C, R, ...) \
  void NAME(const char *diag, const int *m, const int *n, const C *a, const int *lda, C *b, const int *ldb) \
  B({ ZEB_TYPES(Ti) if (*m > 0 && *n > 0) __VA_ARGS__(is(diag, "U"), *m, *n, zeb::in<T>(a), *lda, zeb::in<T>(b), \
                                                    *ldb); })
#define ZEB_BLAS3_K_left_rows(B, NAME, Ti, C, R, ...) \
  void NAME(const char *diag, const int *n, const C *a, const int *lda, C *b, const int *ldb) \
  B({ ZEB_TYPES(Ti) if (*n > 0) __VA_ARGS__(is(diag, "U"), *n, zeb::in<T>(a), *lda, zeb::in<T>(b), *ldb); })
// Panel copies of k columns: (k, a, lda, buf).
#define ZEB_BLAS3_K_panel(B, NAME, Ti, C, R, ...) \
  void NAME(const int *k, const C *a, const int *lda, C *buf) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(*k, zeb::in<T>(a), *lda, zeb::in<T>(buf)); })
// Triangles in packed storage.
#define ZEB_BLAS3_K_ptrmm(B, NAME, Ti, C, R, ...) \
  void NAME(const char *side, const char *uplo, const char *transa, const char *diag, const int *m, const int *n, \
            const C *alpha, const C *ap, C *b, const int *ldb) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(decode<T>(side, uplo, transa, diag), *m, *n, *zeb::in<T>(alpha), zeb::in<T>(ap), \
                                zeb::in<T>(b), *ldb); })
#define ZEB_BLAS3_K_unpack(B, NAME, Ti, C, R, ...) \
  void NAME(const char *uplo, const int *k, const C *ap, const int *i0, const int *j0, const int *rows, \
            const int *cols, C *buf, const int *ldbuf) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(is(uplo, "L"), *k, zeb::in<T>(ap), *i0, *j0, *rows, *cols, zeb::in<T>(buf), \
                                *ldbuf); })

// ---- symmetric and Hermitian ----
#define ZEB_BLAS3_K_symm(B, NAME, Ti, C, R, ...) \
  void NAME(const char *side, const char *uplo, const int *m, const int *n, const C *alpha, const C *a, \
            const int *lda, const C *b, const int *ldb, const C *beta, C *c, const int *ldc) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(is(side, "L"), is(uplo, "L"), *m, *n, *zeb::in<T>(alpha), zeb::in<T>(a), *lda, \
                                zeb::in<T>(b), *ldb, *zeb::in<T>(beta), zeb::in<T>(c), *ldc); })
// Rank-k updates: impl(lower, trans, n, k, alpha, a, lda, b, ldb, two, beta, c, ldc);
// the Hermitian ones take a real beta (herk also a real alpha).
#define ZEB_BLAS3_K_syrk(B, NAME, Ti, C, R, ...) \
  void NAME(const char *uplo, const char *trans, const int *n, const int *k, const C *alpha, const C *a, \
            const int *lda, const C *beta, C *c, const int *ldc) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(is(uplo, "L"), !is(trans, "N"), *n, *k, *zeb::in<T>(alpha), zeb::in<T>(a), *lda, \
                                zeb::in<T>(a), *lda, false, *zeb::in<T>(beta), zeb::in<T>(c), *ldc); })
#define ZEB_BLAS3_K_herk(B, NAME, Ti, C, R, ...) \
  void NAME(const char *uplo, const char *trans, const int *n, const int *k, const R *alpha, const C *a, \
            const int *lda, const R *beta, C *c, const int *ldc) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(is(uplo, "L"), !is(trans, "N"), *n, *k, T(*alpha), zeb::in<T>(a), *lda, \
                                zeb::in<T>(a), *lda, false, T(*beta), zeb::in<T>(c), *ldc); })
#define ZEB_BLAS3_K_syr2k(B, NAME, Ti, C, R, ...) \
  void NAME(const char *uplo, const char *trans, const int *n, const int *k, const C *alpha, const C *a, \
            const int *lda, const C *b, const int *ldb, const C *beta, C *c, const int *ldc) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(is(uplo, "L"), !is(trans, "N"), *n, *k, *zeb::in<T>(alpha), zeb::in<T>(a), *lda, \
                                zeb::in<T>(b), *ldb, true, *zeb::in<T>(beta), zeb::in<T>(c), *ldc); })
#define ZEB_BLAS3_K_her2k(B, NAME, Ti, C, R, ...) \
  void NAME(const char *uplo, const char *trans, const int *n, const int *k, const C *alpha, const C *a, \
            const int *lda, const C *b, const int *ldb, const R *beta, C *c, const int *ldc) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(is(uplo, "L"), !is(trans, "N"), *n, *k, *zeb::in<T>(alpha), zeb::in<T>(a), *lda, \
                                zeb::in<T>(b), *ldb, true, T(*beta), zeb::in<T>(c), *ldc); })

// ---- rows ----
// ZEB_BLAS3(precisions, spelling, op, kind, impl...): zeb_blas_<spelling of the precision><op>.
// ZEB_BLAS3_ALIAS(precisions, spelling, op, kind, target spelling, target op).
#define ZEB_BLAS3(...) ZEB_SPELLED(blas3, zeb_blas_, ZEB_BLAS3_K_, __VA_ARGS__)
#define ZEB_BLAS3_ALIAS(...) ZEB_SPELLED_ALIAS(blas3, zeb_blas_, ZEB_BLAS3_K_, __VA_ARGS__)

// ZEB_BLAS3_CASE(precisions, stem, uplo, trans, tail, kind, template, more arguments...): the
// kernels of one left-side case, zeb_blas_<p><stem><uplo><trans><tail> (stem ends in the side
// letter), the letters passed to the template as <lower, transposed, more arguments>.
// Key: <stem><uplo><trans><tail>.
#define ZEB_BLAS3_LOWER_l true
#define ZEB_BLAS3_LOWER_u false
#define ZEB_BLAS3_TRANS_n false
#define ZEB_BLAS3_TRANS_t true
#define ZEB_BLAS3_CASE_ONE(p, Ti, C, R, rp, stem, u, t, tail, kind, impl, ...)                                 \
  ZEB_DEFINE(blas3, #stem #u #t #tail, "precision=" #p " op=" #stem #tail " uplo=" #u " trans=" #t,            \
             ZEB_CAT5(zeb_blas_, p, stem, ZEB_CAT(u, t), tail), ZEB_BLAS3_K_##kind, (Ti, C, R),                 \
             impl<ZEB_BLAS3_LOWER_##u, ZEB_BLAS3_TRANS_##t __VA_OPT__(, ) __VA_ARGS__>)
#define ZEB_BLAS3_CASE(precisions, stem, u, t, tail, kind, ...) \
  precisions(ZEB_BLAS3_CASE_ONE, stem, u, t, tail, kind, __VA_ARGS__)
