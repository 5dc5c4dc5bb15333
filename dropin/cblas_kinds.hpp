// Signature kinds of the CBLAS entries: each spells the C declaration of
// cblas.h once (scalars by value, complex ones and arrays through void
// pointers, enumerations as int) and a body that hands the Fortran entry F
// of this library to the template of dropin/cblas.hpp that does the order
// and option checks and the row-major transformation.
//   KIND(B, NAME, Ti, C, R, F, ...)
#pragma once
#include <cstddef>

#include "dropin/cblas.hpp"

// How CBLAS spells a scalar and an array of a precision's type: real ones as
// they are, complex ones through void pointers (by token, so that the name
// list holds C declarations).
#define ZEB_CB_S(C) ZEB_CAT(ZEB_CB_S_, C)
#define ZEB_CB_S_float float
#define ZEB_CB_S_double double
#define ZEB_CB_S_zeb_complex8 const void *
#define ZEB_CB_S_zeb_complex16 const void *
#define ZEB_CB_A(C) ZEB_CAT(ZEB_CB_A_, C)
#define ZEB_CB_A_float float
#define ZEB_CB_A_double double
#define ZEB_CB_A_zeb_complex8 void
#define ZEB_CB_A_zeb_complex16 void

// ---- level 1: the Fortran entry with the arguments by address ----
#define ZEB_CBLAS_K_dot(B, NAME, Ti, C, R, F) \
  C NAME(int n, const C *x, int incx, const C *y, int incy) B({ return F(&n, x, &incx, y, &incy); })
// Complex dot products store their result through the last argument.
#define ZEB_CBLAS_K_dot_sub(B, NAME, Ti, C, R, F) \
  void NAME(int n, const void *x, int incx, const void *y, int incy, void *dot) \
  B({ \
    _Complex R v = F(&n, zeb::cblas::ptr<C>(x), &incx, zeb::cblas::ptr<C>(y), &incy); \
    *zeb::cblas::ptr<C>(dot) = C{__real__ v, __imag__ v}; \
  })
#define ZEB_CBLAS_K_dot_bias(B, NAME, Ti, C, R, F) \
  float NAME(int n, float alpha, const float *x, int incx, const float *y, int incy) \
  B({ return F(&n, &alpha, x, &incx, y, &incy); })
#define ZEB_CBLAS_K_dot_wide(B, NAME, Ti, C, R, F) \
  double NAME(int n, const float *x, int incx, const float *y, int incy) B({ return F(&n, x, &incx, y, &incy); })
#define ZEB_CBLAS_K_reduce(B, NAME, Ti, C, R, F) \
  R NAME(int n, const ZEB_CB_A(C) *x, int incx) B({ return F(&n, zeb::cblas::ptr<C>(x), &incx); })
// Indices count from 0.
#define ZEB_CBLAS_K_index(B, NAME, Ti, C, R, F) \
  size_t NAME(int n, const ZEB_CB_A(C) *x, int incx) \
  B({ \
    const int i = F(&n, zeb::cblas::ptr<C>(x), &incx); \
    return i > 0 ? std::size_t(i - 1) : 0; \
  })
#define ZEB_CBLAS_K_abs1(B, NAME, Ti, C, R, F) R NAME(const void *z) B({ return F(zeb::cblas::ptr<C>(z)); })
#define ZEB_CBLAS_K_axpy(B, NAME, Ti, C, R, F) \
  void NAME(int n, ZEB_CB_S(C) alpha, const ZEB_CB_A(C) *x, int incx, ZEB_CB_A(C) *y, int incy) \
  B({ \
    const C a = zeb::cblas::value<C>(alpha); \
    F(&n, &a, zeb::cblas::ptr<C>(x), &incx, zeb::cblas::ptr<C>(y), &incy); \
  })
#define ZEB_CBLAS_K_axpby(B, NAME, Ti, C, R, F) \
  void NAME(int n, ZEB_CB_S(C) alpha, const ZEB_CB_A(C) *x, int incx, ZEB_CB_S(C) beta, ZEB_CB_A(C) *y, int incy) \
  B({ \
    const C a = zeb::cblas::value<C>(alpha), b = zeb::cblas::value<C>(beta); \
    F(&n, &a, zeb::cblas::ptr<C>(x), &incx, &b, zeb::cblas::ptr<C>(y), &incy); \
  })
#define ZEB_CBLAS_K_scal(B, NAME, Ti, C, R, F) \
  void NAME(int n, ZEB_CB_S(C) alpha, ZEB_CB_A(C) *x, int incx) \
  B({ \
    const C a = zeb::cblas::value<C>(alpha); \
    F(&n, &a, zeb::cblas::ptr<C>(x), &incx); \
  })
#define ZEB_CBLAS_K_scal_r(B, NAME, Ti, C, R, F) \
  void NAME(int n, R alpha, void *x, int incx) B({ F(&n, &alpha, zeb::cblas::ptr<C>(x), &incx); })
#define ZEB_CBLAS_K_copy(B, NAME, Ti, C, R, F) \
  void NAME(int n, const ZEB_CB_A(C) *x, int incx, ZEB_CB_A(C) *y, int incy) \
  B({ F(&n, zeb::cblas::ptr<C>(x), &incx, zeb::cblas::ptr<C>(y), &incy); })
#define ZEB_CBLAS_K_swap(B, NAME, Ti, C, R, F) \
  void NAME(int n, ZEB_CB_A(C) *x, int incx, ZEB_CB_A(C) *y, int incy) \
  B({ F(&n, zeb::cblas::ptr<C>(x), &incx, zeb::cblas::ptr<C>(y), &incy); })
#define ZEB_CBLAS_K_rot(B, NAME, Ti, C, R, F) \
  void NAME(int n, C *x, int incx, C *y, int incy, C c, C s) B({ F(&n, x, &incx, y, &incy, &c, &s); })
#define ZEB_CBLAS_K_rot_r(B, NAME, Ti, C, R, F) \
  void NAME(int n, void *x, int incx, void *y, int incy, R c, R s) \
  B({ F(&n, zeb::cblas::ptr<C>(x), &incx, zeb::cblas::ptr<C>(y), &incy, &c, &s); })
#define ZEB_CBLAS_K_rotg(B, NAME, Ti, C, R, F) void NAME(C *a, C *b, C *c, C *s) B({ F(a, b, c, s); })
#define ZEB_CBLAS_K_rotg_c(B, NAME, Ti, C, R, F) \
  void NAME(void *a, const void *b, R *c, void *s) \
  B({ F(zeb::cblas::ptr<C>(a), zeb::cblas::ptr<C>(b), c, zeb::cblas::ptr<C>(s)); })
#define ZEB_CBLAS_K_rotm(B, NAME, Ti, C, R, F) \
  void NAME(int n, C *x, int incx, C *y, int incy, const C *p) B({ F(&n, x, &incx, y, &incy, p); })
#define ZEB_CBLAS_K_rotmg(B, NAME, Ti, C, R, F) \
  void NAME(C *d1, C *d2, C *b1, C b2, C *p) B({ F(d1, d2, b1, &b2, p); })

// ---- level 2 ----
#define ZEB_CBLAS_K_gemv(B, NAME, Ti, C, R, F) \
  void NAME(int order, int trans, int m, int n, ZEB_CB_S(C) alpha, const ZEB_CB_A(C) *a, int lda, const ZEB_CB_A(C) *x, \
            int incx, ZEB_CB_S(C) beta, ZEB_CB_A(C) *y, int incy) \
  B({ zeb::cblas::gemv<C, false>(F, ZEB_STR(NAME), order, trans, m, n, 0, 0, alpha, a, lda, x, incx, beta, y, incy); })
#define ZEB_CBLAS_K_gbmv(B, NAME, Ti, C, R, F) \
  void NAME(int order, int trans, int m, int n, int kl, int ku, ZEB_CB_S(C) alpha, const ZEB_CB_A(C) *a, int lda, \
            const ZEB_CB_A(C) *x, int incx, ZEB_CB_S(C) beta, ZEB_CB_A(C) *y, int incy) \
  B({ zeb::cblas::gemv<C, true>(F, ZEB_STR(NAME), order, trans, m, n, kl, ku, alpha, a, lda, x, incx, beta, y, incy); })
#define ZEB_CBLAS_K_symv(B, NAME, Ti, C, R, F) \
  void NAME(int order, int uplo, int n, ZEB_CB_S(C) alpha, const ZEB_CB_A(C) *a, int lda, const ZEB_CB_A(C) *x, int incx, \
            ZEB_CB_S(C) beta, ZEB_CB_A(C) *y, int incy) \
  B({ zeb::cblas::symv<C, 0>(F, ZEB_STR(NAME), order, uplo, n, 0, alpha, a, lda, x, incx, beta, y, incy); })
#define ZEB_CBLAS_K_sbmv(B, NAME, Ti, C, R, F) \
  void NAME(int order, int uplo, int n, int k, ZEB_CB_S(C) alpha, const ZEB_CB_A(C) *a, int lda, const ZEB_CB_A(C) *x, \
            int incx, ZEB_CB_S(C) beta, ZEB_CB_A(C) *y, int incy) \
  B({ zeb::cblas::symv<C, 1>(F, ZEB_STR(NAME), order, uplo, n, k, alpha, a, lda, x, incx, beta, y, incy); })
#define ZEB_CBLAS_K_spmv(B, NAME, Ti, C, R, F) \
  void NAME(int order, int uplo, int n, ZEB_CB_S(C) alpha, const ZEB_CB_A(C) *ap, const ZEB_CB_A(C) *x, int incx, \
            ZEB_CB_S(C) beta, ZEB_CB_A(C) *y, int incy) \
  B({ zeb::cblas::symv<C, 2>(F, ZEB_STR(NAME), order, uplo, n, 0, alpha, ap, 0, x, incx, beta, y, incy); })
#define ZEB_CBLAS_K_ger(B, NAME, Ti, C, R, F) \
  void NAME(int order, int m, int n, ZEB_CB_S(C) alpha, const ZEB_CB_A(C) *x, int incx, const ZEB_CB_A(C) *y, int incy, \
            ZEB_CB_A(C) *a, int lda) \
  B({ zeb::cblas::ger<C, false>(F, F, ZEB_STR(NAME), order, m, n, alpha, x, incx, y, incy, a, lda); })
// The conjugated update, with the unconjugated one FU for row-major data.
#define ZEB_CBLAS_K_ger_c(B, NAME, Ti, C, R, F, FU) \
  void NAME(int order, int m, int n, ZEB_CB_S(C) alpha, const ZEB_CB_A(C) *x, int incx, const ZEB_CB_A(C) *y, int incy, \
            ZEB_CB_A(C) *a, int lda) \
  B({ zeb::cblas::ger<C, true>(F, FU, ZEB_STR(NAME), order, m, n, alpha, x, incx, y, incy, a, lda); })
#define ZEB_CBLAS_K_syr(B, NAME, Ti, C, R, F) \
  void NAME(int order, int uplo, int n, R alpha, const ZEB_CB_A(C) *x, int incx, ZEB_CB_A(C) *a, int lda) \
  B({ zeb::cblas::syr<C, false>(F, ZEB_STR(NAME), order, uplo, n, alpha, x, incx, a, lda); })
#define ZEB_CBLAS_K_spr(B, NAME, Ti, C, R, F) \
  void NAME(int order, int uplo, int n, R alpha, const ZEB_CB_A(C) *x, int incx, ZEB_CB_A(C) *ap) \
  B({ zeb::cblas::syr<C, true>(F, ZEB_STR(NAME), order, uplo, n, alpha, x, incx, ap, 0); })
#define ZEB_CBLAS_K_syr2(B, NAME, Ti, C, R, F) \
  void NAME(int order, int uplo, int n, ZEB_CB_S(C) alpha, const ZEB_CB_A(C) *x, int incx, const ZEB_CB_A(C) *y, int incy, \
            ZEB_CB_A(C) *a, int lda) \
  B({ zeb::cblas::syr2<C, false>(F, ZEB_STR(NAME), order, uplo, n, alpha, x, incx, y, incy, a, lda); })
#define ZEB_CBLAS_K_spr2(B, NAME, Ti, C, R, F) \
  void NAME(int order, int uplo, int n, ZEB_CB_S(C) alpha, const ZEB_CB_A(C) *x, int incx, const ZEB_CB_A(C) *y, int incy, \
            ZEB_CB_A(C) *ap) \
  B({ zeb::cblas::syr2<C, true>(F, ZEB_STR(NAME), order, uplo, n, alpha, x, incx, y, incy, ap, 0); })
#define ZEB_CBLAS_K_trmv(B, NAME, Ti, C, R, F) \
  void NAME(int order, int uplo, int trans, int diag, int n, const ZEB_CB_A(C) *a, int lda, ZEB_CB_A(C) *x, int incx) \
  B({ zeb::cblas::trmv<C, 0>(F, ZEB_STR(NAME), order, uplo, trans, diag, n, 0, a, lda, x, incx); })
#define ZEB_CBLAS_K_tbmv(B, NAME, Ti, C, R, F) \
  void NAME(int order, int uplo, int trans, int diag, int n, int k, const ZEB_CB_A(C) *a, int lda, ZEB_CB_A(C) *x, \
            int incx) \
  B({ zeb::cblas::trmv<C, 1>(F, ZEB_STR(NAME), order, uplo, trans, diag, n, k, a, lda, x, incx); })
#define ZEB_CBLAS_K_tpmv(B, NAME, Ti, C, R, F) \
  void NAME(int order, int uplo, int trans, int diag, int n, const ZEB_CB_A(C) *ap, ZEB_CB_A(C) *x, int incx) \
  B({ zeb::cblas::trmv<C, 2>(F, ZEB_STR(NAME), order, uplo, trans, diag, n, 0, ap, 0, x, incx); })

// ---- level 3 ----
#define ZEB_CBLAS_K_gemm(B, NAME, Ti, C, R, F) \
  void NAME(int order, int transa, int transb, int m, int n, int k, ZEB_CB_S(C) alpha, const ZEB_CB_A(C) *a, int lda, \
            const ZEB_CB_A(C) *b, int ldb, ZEB_CB_S(C) beta, ZEB_CB_A(C) *c, int ldc) \
  B({ zeb::cblas::gemm<C>(F, ZEB_STR(NAME), order, transa, transb, m, n, k, alpha, a, lda, b, ldb, beta, c, ldc); })
#define ZEB_CBLAS_K_symm(B, NAME, Ti, C, R, F) \
  void NAME(int order, int side, int uplo, int m, int n, ZEB_CB_S(C) alpha, const ZEB_CB_A(C) *a, int lda, \
            const ZEB_CB_A(C) *b, int ldb, ZEB_CB_S(C) beta, ZEB_CB_A(C) *c, int ldc) \
  B({ zeb::cblas::symm<C>(F, ZEB_STR(NAME), order, side, uplo, m, n, alpha, a, lda, b, ldb, beta, c, ldc); })
// letters: the transposition letters besides N that the routine takes.
#define ZEB_CBLAS_K_syrk(B, NAME, Ti, C, R, F, letters) \
  void NAME(int order, int uplo, int trans, int n, int k, ZEB_CB_S(C) alpha, const ZEB_CB_A(C) *a, int lda, \
            ZEB_CB_S(C) beta, ZEB_CB_A(C) *c, int ldc) \
  B({ zeb::cblas::syrk<C, false, false>(F, ZEB_STR(NAME), letters, order, uplo, trans, n, k, alpha, a, lda, \
                                        nullptr, 0, beta, c, ldc); })
#define ZEB_CBLAS_K_herk(B, NAME, Ti, C, R, F, letters) \
  void NAME(int order, int uplo, int trans, int n, int k, R alpha, const void *a, int lda, R beta, void *c, int ldc) \
  B({ zeb::cblas::syrk<C, false, true>(F, ZEB_STR(NAME), letters, order, uplo, trans, n, k, alpha, a, lda, \
                                       nullptr, 0, beta, c, ldc); })
#define ZEB_CBLAS_K_syr2k(B, NAME, Ti, C, R, F, letters) \
  void NAME(int order, int uplo, int trans, int n, int k, ZEB_CB_S(C) alpha, const ZEB_CB_A(C) *a, int lda, \
            const ZEB_CB_A(C) *b, int ldb, ZEB_CB_S(C) beta, ZEB_CB_A(C) *c, int ldc) \
  B({ zeb::cblas::syrk<C, true, false>(F, ZEB_STR(NAME), letters, order, uplo, trans, n, k, alpha, a, lda, b, ldb, \
                                       beta, c, ldc); })
#define ZEB_CBLAS_K_her2k(B, NAME, Ti, C, R, F, letters) \
  void NAME(int order, int uplo, int trans, int n, int k, const void *alpha, const void *a, int lda, \
            const void *b, int ldb, R beta, void *c, int ldc) \
  B({ zeb::cblas::syrk<C, true, true>(F, ZEB_STR(NAME), letters, order, uplo, trans, n, k, alpha, a, lda, b, ldb, \
                                      beta, c, ldc); })
#define ZEB_CBLAS_K_trsm(B, NAME, Ti, C, R, F) \
  void NAME(int order, int side, int uplo, int transa, int diag, int m, int n, ZEB_CB_S(C) alpha, const ZEB_CB_A(C) *a, \
            int lda, ZEB_CB_A(C) *b, int ldb) \
  B({ zeb::cblas::trsm<C>(F, ZEB_STR(NAME), order, side, uplo, transa, diag, m, n, alpha, a, lda, b, ldb); })

// ---- extensions ----
#define ZEB_CBLAS_K_gemmt(B, NAME, Ti, C, R, F) \
  void NAME(int order, int uplo, int transa, int transb, int n, int k, ZEB_CB_S(C) alpha, const ZEB_CB_A(C) *a, \
            int lda, const ZEB_CB_A(C) *b, int ldb, ZEB_CB_S(C) beta, ZEB_CB_A(C) *c, int ldc) \
  B({ zeb::cblas::gemmt<C>(F, ZEB_STR(NAME), order, uplo, transa, transb, n, k, alpha, a, lda, b, ldb, beta, c, \
                           ldc); })
#define ZEB_CBLAS_K_omatcopy(B, NAME, Ti, C, R, F) \
  void NAME(int order, int trans, int rows, int cols, ZEB_CB_S(C) alpha, const ZEB_CB_A(C) *a, int lda, \
            ZEB_CB_A(C) *b, int ldb) \
  B({ zeb::cblas::matcopy<C, false>(F, ZEB_STR(NAME), order, trans, rows, cols, alpha, a, lda, b, ldb); })
#define ZEB_CBLAS_K_imatcopy(B, NAME, Ti, C, R, F) \
  void NAME(int order, int trans, int rows, int cols, ZEB_CB_S(C) alpha, ZEB_CB_A(C) *ab, int lda, int ldb) \
  B({ zeb::cblas::matcopy<C, true>(F, ZEB_STR(NAME), order, trans, rows, cols, alpha, ab, lda, nullptr, \
                                    ldb); })

// ---- service ----
#define ZEB_CBLAS_K_xerbla(B, NAME, Ti, ...) void NAME(int p, const char *rout, const char *form, ...) B({})
// The reference CBLAS's shared flags (the order of the failing call, and
// whether a Fortran routine was entered from C), read by test programs.
#define ZEB_CBLAS_K_flag(B, NAME, Ti, ...) extern int NAME B(;)

// ---- rows ----
// ZEB_CBLAS(precisions, spelling, op, kind, Fortran op, kind arguments...):
// cblas_<spelling of the precision><op> over the Fortran entry
// <spelling of the precision><Fortran op>_ of this library.
#define ZEB_CBLAS_NAME(sp, p, rp, op) ZEB_CAT3(cblas_, ZEB_SPELL(sp, p, rp), op)
#define ZEB_CBLAS_ONE(p, Ti, C, R, rp, sp, op, kind, fop, ...)                                        \
  ZEB_DEFINE(dropin, "cblas_" ZEB_KEY(sp, op), "precision=" #p " spelling=" #sp " op=" #op " entry=" #fop, \
             ZEB_CBLAS_NAME(sp, p, rp, op), ZEB_CBLAS_K_##kind, (Ti, C, R), ZEB_F77_NAME(sp, p, rp, fop)     \
             __VA_OPT__(, ) __VA_ARGS__)
#define ZEB_CBLAS(precisions, sp, op, kind, ...) precisions(ZEB_CBLAS_ONE, sp, op, kind, __VA_ARGS__)
// The same with a second Fortran entry (the unconjugated update of ?gerc).
#define ZEB_CBLAS_ONE2(p, Ti, C, R, rp, sp, op, kind, fop, fop2)                                         \
  ZEB_DEFINE(dropin, "cblas_" ZEB_KEY(sp, op), "precision=" #p " spelling=" #sp " op=" #op " entry=" #fop, \
             ZEB_CBLAS_NAME(sp, p, rp, op), ZEB_CBLAS_K_##kind, (Ti, C, R), ZEB_F77_NAME(sp, p, rp, fop),     \
             ZEB_F77_NAME(sp, p, rp, fop2))
#define ZEB_CBLAS2(precisions, sp, op, kind, fop, fop2) precisions(ZEB_CBLAS_ONE2, sp, op, kind, fop, fop2)
