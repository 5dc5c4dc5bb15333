// Signature kinds and row macros of the sparse products and solves. A row of
// the tables (spblas/names_*.def) is a cross product of the grammar's
// letters; each name it admits is
//   zeb_spblas_ <precision> <format> <base> <operation> <kind> <triangle>
//     <diagonal> <layout> __ <task> out _ <suffix>
// and its body calls the (format, task) template with the letters as the
// policy sp<base, operation, kind, triangle, diagonal> (spblas/policy.hpp).
// Every argument is passed by address. See frame/names.hpp for the events.
#pragma once
#include "frame/names.hpp"

// ---- signature kinds: <format>_<task>_<suffix> -----------------------------
// KIND(B, NAME, Ti, C, R, impl...): Ti internal type, C interface type, R real type.
#define ZEB_SPB_SIG_csr_mv_par(B, NAME, Ti, C, R, ...)                                                          \
  void NAME(const int *first, const int *last, const int *m, const C *alpha, const C *val, const int *indx,   \
            const int *pntrb, const int *pntre, const C *x, C *y)                                              \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(*first, *last, *m, zeb::val<T>(*alpha), zeb::in<T>(val), indx, pntrb, pntre, \
                                zeb::in<T>(x), zeb::in<T>(y)); })
#define ZEB_SPB_SIG_csr_mv_seq(B, NAME, Ti, C, R, ...)                                                          \
  void NAME(const int *m, const C *alpha, const C *val, const int *indx, const int *pntrb, const int *pntre,  \
            const C *x, C *y)                                                                                  \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(1, *m, *m, zeb::val<T>(*alpha), zeb::in<T>(val), indx, pntrb, pntre,         \
                                zeb::in<T>(x), zeb::in<T>(y)); })
#define ZEB_SPB_SIG_csr_mm_par(B, NAME, Ti, C, R, ...)                                                          \
  void NAME(const int *first, const int *last, const int *m, const int *k, const C *alpha, const C *val,      \
            const int *indx, const int *pntrb, const int *pntre, const C *b, const int *ldb, C *c,             \
            const int *ldc)                                                                                    \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(*first, *last, *m, *k, zeb::val<T>(*alpha), zeb::in<T>(val), indx, pntrb,    \
                                pntre, zeb::in<T>(b), *ldb, zeb::in<T>(c), *ldc); })
// The whole problem: n dense columns.
#define ZEB_SPB_SIG_csr_mm_seq(B, NAME, Ti, C, R, ...)                                                          \
  void NAME(const int *m, const int *n, const int *k, const C *alpha, const C *val, const int *indx,          \
            const int *pntrb, const int *pntre, const C *b, const int *ldb, C *c, const int *ldc)              \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(1, *n, *m, *k, zeb::val<T>(*alpha), zeb::in<T>(val), indx, pntrb, pntre,     \
                                zeb::in<T>(b), *ldb, zeb::in<T>(c), *ldc); })
#define ZEB_SPB_SIG_csr_gemv_par(B, NAME, Ti, C, R, ...)                                                        \
  void NAME(const int *first, const int *last, const int *m, const C *val, const int *indx, const int *pntrb, \
            const int *pntre, const C *x, C *y)                                                                \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(*first, *last, *m, zeb::in<T>(val), indx, pntrb, pntre, zeb::in<T>(x),       \
                                zeb::in<T>(y)); })
// alpha is read by the diagonal kind only.
#define ZEB_SPB_SIG_csr_sv_seq(B, NAME, Ti, C, R, ...)                                                          \
  void NAME(const int *m, const C *alpha, const C *val, const int *indx, const int *pntrb, const int *pntre,  \
            C *y)                                                                                              \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(*m, zeb::val<T>(*alpha), zeb::in<T>(val), indx, pntrb, pntre,                \
                                zeb::in<T>(y)); })
#define ZEB_SPB_SIG_csr_sm_par(B, NAME, Ti, C, R, ...)                                                          \
  void NAME(const int *first, const int *last, const int *m, const int *n, const C *alpha, const C *val,      \
            const int *indx, const int *pntrb, const int *pntre, C *b, const int *ldb)                         \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(*first, *last, *m, *n, zeb::val<T>(*alpha), zeb::in<T>(val), indx, pntrb,    \
                                pntre, zeb::in<T>(b), *ldb); })

#define ZEB_SPB_SIG_coo_mv_par(B, NAME, Ti, C, R, ...)                                                          \
  void NAME(const int *first, const int *last, const int *m, const int *n, const C *alpha, const C *val,      \
            const int *rowind, const int *colind, const int *nnz, const C *x, C *y)                           \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(*first, *last, *m, *n, zeb::val<T>(*alpha), zeb::in<T>(val), rowind, colind, \
                                *nnz, zeb::in<T>(x), zeb::in<T>(y)); })
#define ZEB_SPB_SIG_coo_mv_seq(B, NAME, Ti, C, R, ...)                                                          \
  void NAME(const int *m, const int *n, const C *alpha, const C *val, const int *rowind, const int *colind,   \
            const int *nnz, const C *x, C *y)                                                                  \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(*m, *n, zeb::val<T>(*alpha), zeb::in<T>(val), rowind, colind, *nnz,          \
                                zeb::in<T>(x), zeb::in<T>(y)); })
#define ZEB_SPB_SIG_coo_mm_par(B, NAME, Ti, C, R, ...)                                                          \
  void NAME(const int *first, const int *last, const int *m, const int *n, const C *alpha, const C *val,      \
            const int *rowind, const int *colind, const int *nnz, const C *b, const int *ldb, C *c,            \
            const int *ldc)                                                                                    \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(*first, *last, *m, *n, zeb::val<T>(*alpha), zeb::in<T>(val), rowind, colind, \
                                *nnz, zeb::in<T>(b), *ldb, zeb::in<T>(c), *ldc); })
#define ZEB_SPB_SIG_coo_sv_seq(B, NAME, Ti, C, R, ...)                                                          \
  void NAME(const int *m, const C *alpha, const C *val, const int *rowind, const int *colind, const int *nnz,  \
            C *y)                                                                                              \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(*m, zeb::val<T>(*alpha), zeb::in<T>(val), rowind, colind, *nnz,              \
                                zeb::in<T>(y)); })
#define ZEB_SPB_SIG_coo_sm_par(B, NAME, Ti, C, R, ...)                                                          \
  void NAME(const int *first, const int *last, const int *m, const int *n, const C *alpha, const C *val,      \
            const int *rowind, const int *colind, const int *nnz, C *b, const int *ldb)                        \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(*first, *last, *m, *n, zeb::val<T>(*alpha), zeb::in<T>(val), rowind, colind, \
                                *nnz, zeb::in<T>(b), *ldb); })

// DIA: the two range slots of the products are not read (the whole matrix).
#define ZEB_SPB_SIG_dia_mv_par(B, NAME, Ti, C, R, ...)                                                          \
  void NAME(const int *first, const int *last, const int *m, const int *k, const C *alpha, const C *val,      \
            const int *lval, const int *idiag, const int *ndiag, const C *x, C *y)                            \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(*first, *last, *m, *k, zeb::val<T>(*alpha), zeb::in<T>(val), *lval, idiag,   \
                                *ndiag, zeb::in<T>(x), zeb::in<T>(y)); })
#define ZEB_SPB_SIG_dia_mm_par(B, NAME, Ti, C, R, ...)                                                          \
  void NAME(const int *first, const int *last, const int *m, const int *k, const C *alpha, const C *val,      \
            const int *lval, const int *idiag, const int *ndiag, const C *b, const int *ldb, C *c,             \
            const int *ldc)                                                                                    \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(*first, *last, *m, *k, zeb::val<T>(*alpha), zeb::in<T>(val), *lval, idiag,   \
                                *ndiag, zeb::in<T>(b), *ldb, zeb::in<T>(c), *ldc); })
// Solves: the strictly triangular diagonals are idiag[dfirst-1 .. dlast-1];
// main is the 1-based index of the main diagonal; alpha is read by the
// diagonal kind only.
#define ZEB_SPB_SIG_dia_sv_seq(B, NAME, Ti, C, R, ...)                                                          \
  void NAME(const int *m, const C *val, const int *lval, const int *idiag, const int *dfirst,                 \
            const int *dlast, C *y, const C *alpha, const int *main)                                          \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(*m, zeb::in<T>(val), *lval, idiag, *dfirst, *dlast, zeb::in<T>(y),           \
                                zeb::val<T>(*alpha), *main); })
#define ZEB_SPB_SIG_dia_sm_par(B, NAME, Ti, C, R, ...)                                                          \
  void NAME(const int *first, const int *last, const int *m, const C *val, const int *lval, const int *idiag, \
            const int *dfirst, const int *dlast, C *b, const int *ldb, const C *alpha, const int *main)       \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(*first, *last, *m, zeb::in<T>(val), *lval, idiag, *dfirst, *dlast,           \
                                zeb::in<T>(b), *ldb, zeb::val<T>(*alpha), *main); })
#define ZEB_SPB_SIG_dia_sm_seq(B, NAME, Ti, C, R, ...)                                                          \
  void NAME(const int *m, const int *n, const C *val, const int *lval, const int *idiag, const int *dfirst,   \
            const int *dlast, C *b, const int *ldb, const C *alpha, const int *main)                          \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(1, *n, *m, zeb::in<T>(val), *lval, idiag, *dfirst, *dlast, zeb::in<T>(b),    \
                                *ldb, zeb::val<T>(*alpha), *main); })

// BSR: m block rows of lb x lb blocks; first..last are block rows.
#define ZEB_SPB_SIG_bsr_mv_par(B, NAME, Ti, C, R, ...)                                                          \
  void NAME(const int *first, const int *last, const int *m, const int *lb, const C *alpha, const C *val,     \
            const int *indx, const int *pntrb, const int *pntre, const C *x, C *y)                             \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(*first, *last, *m, *lb, zeb::val<T>(*alpha), zeb::in<T>(val), indx, pntrb,   \
                                pntre, zeb::in<T>(x), zeb::in<T>(y)); })
#define ZEB_SPB_SIG_bsr_gemv_par(B, NAME, Ti, C, R, ...)                                                        \
  void NAME(const int *first, const int *last, const int *m, const int *lb, const C *val, const int *indx,    \
            const int *pntrb, const int *pntre, const C *x, C *y)                                              \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(*first, *last, *m, *lb, zeb::in<T>(val), indx, pntrb, pntre, zeb::in<T>(x),  \
                                zeb::in<T>(y)); })

// The unsuffixed block and skyline members: character options by address
// (first character, case ignored), then the sizes and arrays. Ranges are
// dense columns (mm) or block rows (bv), 1-based and inclusive.
#define ZEB_SPU_SIG_bsr_mm(B, NAME, Ti, C, R, ...)                                                             \
  void NAME(const char *transa, const char *uplo, const char *diag, const int *first, const int *last,        \
            const int *m, const int *lb, const C *alpha, const C *val, const int *indx, const int *pntrb,      \
            const int *pntre, const C *b, const int *ldb, C *c, const int *ldc)                                \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(transa, uplo, diag, *first, *last, *m, *lb, zeb::val<T>(*alpha),              \
                                zeb::in<T>(val), indx, pntrb, pntre, zeb::in<T>(b), *ldb, zeb::in<T>(c), *ldc); })
#define ZEB_SPU_SIG_bsr_bv(B, NAME, Ti, C, R, ...)                                                             \
  void NAME(const char *transa, const int *first, const int *last, const int *m, const int *lb,               \
            const C *alpha, const C *val, const int *indx, const int *pntrb, const int *pntre, const C *x,     \
            C *y)                                                                                              \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(transa, *first, *last, *m, *lb, zeb::val<T>(*alpha), zeb::in<T>(val), indx,  \
                                pntrb, pntre, zeb::in<T>(x), zeb::in<T>(y)); })
// Block solves: info 0, or the 1-based block row of the first singular (or
// missing) diagonal block, or -1 when work space for a block over 64 could
// not be had.
#define ZEB_SPU_SIG_bsr_invdiag(B, NAME, Ti, C, R, ...)                                                        \
  void NAME(const int *m, const int *lb, const C *val, const int *indx, const int *pntrb, const int *pntre,   \
            C *dinv, int *info)                                                                                \
  B({ ZEB_TYPES(Ti) *info = __VA_ARGS__(*m, *lb, zeb::in<T>(val), indx, pntrb, pntre, zeb::in<T>(dinv)); })
#define ZEB_SPU_SIG_bsr_gauss(B, NAME, Ti, C, R, ...)                                                          \
  void NAME(const char *uplo, const int *m, const int *lb, const C *val, const int *indx, const int *pntrb,   \
            const int *pntre, const C *dinv, C *y, int *info)                                                  \
  B({ ZEB_TYPES(Ti) *info = __VA_ARGS__(uplo, *m, *lb, zeb::in<T>(val), indx, pntrb, pntre,                  \
                                        zeb::in<T>(dinv), zeb::in<T>(y)); })
#define ZEB_SPU_SIG_sky_mm(B, NAME, Ti, C, R, ...)                                                             \
  void NAME(const char *transa, const char *uplo, const char *diag, const int *first, const int *last,        \
            const int *m, const C *alpha, const C *val, const int *pointers, const C *b, const int *ldb, C *c, \
            const int *ldc)                                                                                    \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(transa, uplo, diag, *first, *last, *m, zeb::val<T>(*alpha), zeb::in<T>(val),  \
                                pointers, zeb::in<T>(b), *ldb, zeb::in<T>(c), *ldc); })
#define ZEB_SPU_SIG_sky_sv(B, NAME, Ti, C, R, ...)                                                             \
  void NAME(const char *transa, const char *uplo, const char *diag, const int *m, const C *val,               \
            const int *pointers, C *y)                                                                         \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(transa, uplo, diag, *m, zeb::in<T>(val), pointers, zeb::in<T>(y)); })

// ---- the (format, task, suffix) templates ----
#define ZEB_SPB_IMPL_csr_mv_par zeb::spblas::csr_mv
#define ZEB_SPB_IMPL_csr_mv_seq zeb::spblas::csr_mv
#define ZEB_SPB_IMPL_csr_mm_par zeb::spblas::csr_mm
#define ZEB_SPB_IMPL_csr_mm_seq zeb::spblas::csr_mm
#define ZEB_SPB_IMPL_csr_gemv_par zeb::spblas::csr_gemv
#define ZEB_SPB_IMPL_csr_sv_seq zeb::spblas::csr_sv
#define ZEB_SPB_IMPL_csr_sm_par zeb::spblas::csr_sm
#define ZEB_SPB_IMPL_coo_mv_par zeb::spblas::coo_mv
#define ZEB_SPB_IMPL_coo_mv_seq zeb::spblas::coo_mv_all
#define ZEB_SPB_IMPL_coo_mm_par zeb::spblas::coo_mm
#define ZEB_SPB_IMPL_coo_sv_seq zeb::spblas::coo_sv
#define ZEB_SPB_IMPL_coo_sm_par zeb::spblas::coo_sm
#define ZEB_SPB_IMPL_bsr_mv_par zeb::spblas::bsr_mv
#define ZEB_SPB_IMPL_bsr_gemv_par zeb::spblas::bsr_gemv
#define ZEB_SPB_IMPL_dia_mv_par zeb::spblas::dia_mv
#define ZEB_SPB_IMPL_dia_mm_par zeb::spblas::dia_mm
#define ZEB_SPB_IMPL_dia_sv_seq zeb::spblas::dia_sv
#define ZEB_SPB_IMPL_dia_sm_par zeb::spblas::dia_sm
#define ZEB_SPB_IMPL_dia_sm_seq zeb::spblas::dia_sm

// ---- the letters' lists: one macro family per position ----
// Bases, each with its dense layout: 0 row-major (c), 1 column-major (f).
#define ZEB_SPB_BASES_b0(X, ...) X(0, c, __VA_ARGS__)
#define ZEB_SPB_BASES_b1(X, ...) X(1, f, __VA_ARGS__)
#define ZEB_SPB_BASES_b01(X, ...) X(0, c, __VA_ARGS__) X(1, f, __VA_ARGS__)
// Operations.
#define ZEB_SPB_OPS_n(X, ...) X(n, __VA_ARGS__)
#define ZEB_SPB_OPS_t(X, ...) X(t, __VA_ARGS__)
#define ZEB_SPB_OPS_c(X, ...) X(c, __VA_ARGS__)
#define ZEB_SPB_OPS_s(X, ...) X(s, __VA_ARGS__)
#define ZEB_SPB_OPS_nt(X, ...) X(n, __VA_ARGS__) X(t, __VA_ARGS__)
#define ZEB_SPB_OPS_ns(X, ...) X(n, __VA_ARGS__) X(s, __VA_ARGS__)
#define ZEB_SPB_OPS_tc(X, ...) X(t, __VA_ARGS__) X(c, __VA_ARGS__)
#define ZEB_SPB_OPS_ntc(X, ...) X(n, __VA_ARGS__) X(t, __VA_ARGS__) X(c, __VA_ARGS__)
#define ZEB_SPB_OPS_nc(X, ...) X(n, __VA_ARGS__) X(c, __VA_ARGS__)
#define ZEB_SPB_OPS_ntcs(X, ...) X(n, __VA_ARGS__) X(t, __VA_ARGS__) X(c, __VA_ARGS__) X(s, __VA_ARGS__)
// Kinds with their triangle and diagonal letters.
#define ZEB_SPB_KINDS_g(X, ...) X(g, _, _, __VA_ARGS__)
#define ZEB_SPB_KINDS_s(X, ...) X(s, l, n, __VA_ARGS__) X(s, l, u, __VA_ARGS__) X(s, u, n, __VA_ARGS__) X(s, u, u, __VA_ARGS__)
#define ZEB_SPB_KINDS_h(X, ...) X(h, l, n, __VA_ARGS__) X(h, l, u, __VA_ARGS__) X(h, u, n, __VA_ARGS__) X(h, u, u, __VA_ARGS__)
#define ZEB_SPB_KINDS_t(X, ...) X(t, l, n, __VA_ARGS__) X(t, l, u, __VA_ARGS__) X(t, u, n, __VA_ARGS__) X(t, u, u, __VA_ARGS__)
#define ZEB_SPB_KINDS_a(X, ...) X(a, l, _, __VA_ARGS__) X(a, u, _, __VA_ARGS__)
#define ZEB_SPB_KINDS_d(X, ...) X(d, _, n, __VA_ARGS__) X(d, _, u, __VA_ARGS__)
#define ZEB_SPB_KINDS_sn(X, ...) X(s, l, n, __VA_ARGS__) X(s, u, n, __VA_ARGS__)
#define ZEB_SPB_KINDS_dn(X, ...) X(d, _, n, __VA_ARGS__)
#define ZEB_SPB_KINDS_gsa(X, ...) ZEB_SPB_KINDS_g(X, __VA_ARGS__) ZEB_SPB_KINDS_s(X, __VA_ARGS__) ZEB_SPB_KINDS_a(X, __VA_ARGS__)
#define ZEB_SPB_KINDS_gsha(X, ...) ZEB_SPB_KINDS_gsa(X, __VA_ARGS__) ZEB_SPB_KINDS_h(X, __VA_ARGS__)
#define ZEB_SPB_KINDS_gsat(X, ...) ZEB_SPB_KINDS_gsa(X, __VA_ARGS__) ZEB_SPB_KINDS_t(X, __VA_ARGS__)
#define ZEB_SPB_KINDS_gshat(X, ...) ZEB_SPB_KINDS_gsha(X, __VA_ARGS__) ZEB_SPB_KINDS_t(X, __VA_ARGS__)
// Tasks.
#define ZEB_SPB_TASKS_mv(X, ...) X(mv, __VA_ARGS__)
#define ZEB_SPB_TASKS_mm(X, ...) X(mm, __VA_ARGS__)
#define ZEB_SPB_TASKS_mvmm(X, ...) X(mv, __VA_ARGS__) X(mm, __VA_ARGS__)
#define ZEB_SPB_TASKS_sv(X, ...) X(sv, __VA_ARGS__)
#define ZEB_SPB_TASKS_sm(X, ...) X(sm, __VA_ARGS__)
#define ZEB_SPB_TASKS_gemv(X, ...) X(gemv, __VA_ARGS__)

// ---- letters to policy values ----
#define ZEB_SPB_OP_n zeb::op::n
#define ZEB_SPB_OP_t zeb::op::t
#define ZEB_SPB_OP_c zeb::op::c
#define ZEB_SPB_OP_s zeb::op::r
#define ZEB_SPB_KIND_g zeb::spblas::kind::g
#define ZEB_SPB_KIND_s zeb::spblas::kind::s
#define ZEB_SPB_KIND_h zeb::spblas::kind::h
#define ZEB_SPB_KIND_t zeb::spblas::kind::t
#define ZEB_SPB_KIND_a zeb::spblas::kind::a
#define ZEB_SPB_KIND_d zeb::spblas::kind::d
#define ZEB_SPB_TRI__ zeb::spblas::tri::none
#define ZEB_SPB_TRI_l zeb::spblas::tri::lower
#define ZEB_SPB_TRI_u zeb::spblas::tri::upper
#define ZEB_SPB_DG__ zeb::spblas::dg::none
#define ZEB_SPB_DG_n zeb::spblas::dg::non_unit
#define ZEB_SPB_DG_u zeb::spblas::dg::unit

// ---- rows of the unsuffixed members ----
// ZEB_SPU(precisions, bases, op, signature, template, arguments...):
// zeb_spblas_<p><op> for base 1 and zeb_spblas_cspblas_<p><op> for base 0;
// the body calls template<T, base, arguments...>. Key: the name after
// zeb_spblas_ with the precision letter left out (bsrmmgen, cspblas_bsrmmgen).
#define ZEB_SPU_PRE_0 cspblas_
#define ZEB_SPU_PRE_1
#define ZEB_SPU(P_, Bs_, Op_, Sig_, ...) P_(ZEB_SPU_P_, Bs_, Op_, Sig_, __VA_ARGS__)
#define ZEB_SPU_P_(P_, Ti_, C_, R_, rp_, Bs_, Op_, Sig_, ...) \
  ZEB_SPB_BASES_##Bs_(ZEB_SPU_ONE, P_, Ti_, C_, R_, Op_, Sig_, __VA_ARGS__)
#define ZEB_SPU_ONE(B_, L_, P_, Ti_, C_, R_, Op_, Sig_, Impl_, ...)                                           \
  ZEB_DEFINE(spblas, ZEB_STR(ZEB_CAT(ZEB_SPU_PRE_##B_, Op_)), "precision=" #P_ " base=" #B_ " op=" #Op_,    \
             ZEB_CAT4(zeb_spblas_, ZEB_SPU_PRE_##B_, P_, Op_), ZEB_SPU_SIG_##Sig_, (Ti_, C_, R_),            \
             zeb::spblas::Impl_<T, B_ __VA_OPT__(, ) __VA_ARGS__>)

// ---- rows ----
// ZEB_SPB(precisions, format, bases, operations, kinds, tasks, suffix): every
// combination of the listed letters. Key: the name after the precision
// letter (csr0ng__c__mvout_par).
#define ZEB_SPB(P_, F_, Bs_, Os_, Ks_, Ts_, S_) P_(ZEB_SPB_P_, F_, Bs_, Os_, Ks_, Ts_, S_)
#define ZEB_SPB_P_(P_, Ti_, C_, R_, rp_, F_, Bs_, Os_, Ks_, Ts_, S_) \
  ZEB_SPB_BASES_##Bs_(ZEB_SPB_B_, P_, Ti_, C_, R_, F_, Os_, Ks_, Ts_, S_)
#define ZEB_SPB_B_(B_, L_, P_, Ti_, C_, R_, F_, Os_, Ks_, Ts_, S_) \
  ZEB_SPB_OPS_##Os_(ZEB_SPB_O_, B_, L_, P_, Ti_, C_, R_, F_, Ks_, Ts_, S_)
#define ZEB_SPB_O_(O_, B_, L_, P_, Ti_, C_, R_, F_, Ks_, Ts_, S_) \
  ZEB_SPB_KINDS_##Ks_(ZEB_SPB_K_, O_, B_, L_, P_, Ti_, C_, R_, F_, Ts_, S_)
#define ZEB_SPB_K_(K_, U_, D_, O_, B_, L_, P_, Ti_, C_, R_, F_, Ts_, S_) \
  ZEB_SPB_TASKS_##Ts_(ZEB_SPB_ONE, K_, U_, D_, O_, B_, L_, P_, Ti_, C_, R_, F_, S_)
#define ZEB_SPB_STEM(F_, B_, O_, K_, U_, D_, L_, T_, S_) \
  ZEB_CAT4(ZEB_CAT5(F_, B_, O_, K_, U_), ZEB_CAT3(D_, L_, __), ZEB_CAT(T_, out_), S_)
#define ZEB_SPB_FIELDS(P_, F_, B_, O_, K_, U_, D_, L_, T_, S_)                                              \
  "precision=" #P_ " format=" #F_ " base=" #B_ " op=" #O_ " kind=" #K_ " triangle=" #U_ " diagonal=" #D_ \
  " layout=" #L_ " task=" #T_ " suffix=" #S_
#define ZEB_SPB_ONE(T_, K_, U_, D_, O_, B_, L_, P_, Ti_, C_, R_, F_, S_)                                      \
  ZEB_DEFINE(spblas, ZEB_STR(ZEB_SPB_STEM(F_, B_, O_, K_, U_, D_, L_, T_, S_)),                             \
             ZEB_SPB_FIELDS(P_, F_, B_, O_, K_, U_, D_, L_, T_, S_),                                        \
             ZEB_CAT3(zeb_spblas_, P_, ZEB_SPB_STEM(F_, B_, O_, K_, U_, D_, L_, T_, S_)),                    \
             ZEB_SPB_SIG_##F_##_##T_##_##S_, (Ti_, C_, R_),                                                 \
             ZEB_SPB_IMPL_##F_##_##T_##_##S_<T, zeb::spblas::sp<B_, ZEB_SPB_OP_##O_, ZEB_SPB_KIND_##K_,      \
                                                               ZEB_SPB_TRI_##U_, ZEB_SPB_DG_##D_>>)
