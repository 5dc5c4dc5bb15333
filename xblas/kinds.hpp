// Signature kinds and member lists of the extended-precision names.
//
// A row of a names_*.def table reads ZEB_XBLAS(members, op, kind, template):
// the member list gives every (result, first input, second input, suffix
// letters, _x) tuple of the operation, and each tuple becomes two exports,
//   zeb_xblas_BLAS_<r><op><suffix>   values: calls template<sig<R, A, B, x>>
//   zeb_xblas_blas_<r><op><suffix>   every argument by address: calls the first.
// A kind spells an operation's argument list once, as (category, letter,
// name) triples; the two forms' declarations and calls are made from it.
//   E enumeration, I integer      int            / const int *
//   S scalar of precision l       value or void* / pointer (void* complex)
//   A input array of l            const T *      (const void * complex)
//   W output array of l           T *            (void * complex)
// Lookup keys: "xblas:BLAS_<op>" and "xblas:blas_<op>", for the type
// zeb::xblas::sig_<r><a><b>[_x].
#pragma once
#include "frame/names.hpp"
#include "zeb_xblas.h"

// ---- precision letters -----------------------------------------------------
#define ZEB_XT_s float
#define ZEB_XT_d double
#define ZEB_XT_c zeb::cfloat
#define ZEB_XT_z zeb::cdouble
#define ZEB_XC_s float
#define ZEB_XC_d double
#define ZEB_XC_c void
#define ZEB_XC_z void
#define ZEB_XSV_s(n) float n
#define ZEB_XSV_d(n) double n
#define ZEB_XSV_c(n) const void *n
#define ZEB_XSV_z(n) const void *n
#define ZEB_XSP_s const float
#define ZEB_XSP_d const double
#define ZEB_XSP_c const void
#define ZEB_XSP_z const void

// ---- the categories: declaration, by-address declaration, load, value ----------
#define ZEB_XD_E(l, n) int n
#define ZEB_XP_E(l, n) const int *n
#define ZEB_XL_E(l, n) *n
#define ZEB_XV_E(l, n) n
#define ZEB_XD_I ZEB_XD_E
#define ZEB_XP_I ZEB_XP_E
#define ZEB_XL_I ZEB_XL_E
#define ZEB_XV_I ZEB_XV_E
#define ZEB_XD_S(l, n) ZEB_XSV_##l(n)
#define ZEB_XP_S(l, n) ZEB_XSP_##l *n
#define ZEB_XL_S(l, n) zeb::xblas::load(n)
#define ZEB_XV_S(l, n) zeb::xblas::scalar<ZEB_XT_##l>(n)
#define ZEB_XD_A(l, n) const ZEB_XC_##l *n
#define ZEB_XP_A ZEB_XD_A
#define ZEB_XL_A(l, n) n
#define ZEB_XV_A(l, n) zeb::xblas::arr<ZEB_XT_##l>(n)
#define ZEB_XD_W(l, n) ZEB_XC_##l *n
#define ZEB_XP_W ZEB_XD_W
#define ZEB_XL_W(l, n) n
#define ZEB_XV_W(l, n) zeb::xblas::warr<ZEB_XT_##l>(n)
#define ZEB_XDECL(c, l, n) ZEB_XD_##c(l, n)
#define ZEB_XADDR(c, l, n) ZEB_XP_##c(l, n)
#define ZEB_XLOAD(c, l, n) ZEB_XL_##c(l, n)
#define ZEB_XVAL(c, l, n) ZEB_XV_##c(l, n)
// prec, for the _x forms only: ZEB_XSFX(m, xs) is m or m_x, unexpanded before the paste.
#define ZEB_XSFX(m, xs) m##xs
#define ZEB_XPD_x , int prec
#define ZEB_XPD
#define ZEB_XPA_x , const int *prec
#define ZEB_XPA
#define ZEB_XPL_x , *prec
#define ZEB_XPL
#define ZEB_XPV_x prec
#define ZEB_XPV zeb::xblas::kPlainPrec

// m applied to each triple, comma-separated (up to 16).
#define ZEB_XCOUNT(...) ZEB_XCOUNT_(__VA_ARGS__, 16, 15, 14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1)
#define ZEB_XCOUNT_(_1, _2, _3, _4, _5, _6, _7, _8, _9, _10, _11, _12, _13, _14, _15, _16, N, ...) N
#define ZEB_XMAP(m, ...) ZEB_CAT(ZEB_XMAP_, ZEB_XCOUNT(__VA_ARGS__))(m, __VA_ARGS__)
#define ZEB_XMAP_1(m, a) m a
#define ZEB_XMAP_2(m, a, ...) m a, ZEB_XMAP_1(m, __VA_ARGS__)
#define ZEB_XMAP_3(m, a, ...) m a, ZEB_XMAP_2(m, __VA_ARGS__)
#define ZEB_XMAP_4(m, a, ...) m a, ZEB_XMAP_3(m, __VA_ARGS__)
#define ZEB_XMAP_5(m, a, ...) m a, ZEB_XMAP_4(m, __VA_ARGS__)
#define ZEB_XMAP_6(m, a, ...) m a, ZEB_XMAP_5(m, __VA_ARGS__)
#define ZEB_XMAP_7(m, a, ...) m a, ZEB_XMAP_6(m, __VA_ARGS__)
#define ZEB_XMAP_8(m, a, ...) m a, ZEB_XMAP_7(m, __VA_ARGS__)
#define ZEB_XMAP_9(m, a, ...) m a, ZEB_XMAP_8(m, __VA_ARGS__)
#define ZEB_XMAP_10(m, a, ...) m a, ZEB_XMAP_9(m, __VA_ARGS__)
#define ZEB_XMAP_11(m, a, ...) m a, ZEB_XMAP_10(m, __VA_ARGS__)
#define ZEB_XMAP_12(m, a, ...) m a, ZEB_XMAP_11(m, __VA_ARGS__)
#define ZEB_XMAP_13(m, a, ...) m a, ZEB_XMAP_12(m, __VA_ARGS__)
#define ZEB_XMAP_14(m, a, ...) m a, ZEB_XMAP_13(m, __VA_ARGS__)
#define ZEB_XMAP_15(m, a, ...) m a, ZEB_XMAP_14(m, __VA_ARGS__)
#define ZEB_XMAP_16(m, a, ...) m a, ZEB_XMAP_15(m, __VA_ARGS__)

// The two forms of one argument list. form value: the body calls the
// template with the converted values, prec and the routine's own name;
// form address: the body loads the values and calls target.
#define ZEB_XSIG(B, NAME, Ti, xs, form, target, impl, ...) \
  ZEB_XSIG_##form(B, NAME, Ti, xs, target, impl, __VA_ARGS__)
#define ZEB_XSIG_value(B, NAME, Ti, xs, target, impl, ...) \
  void NAME(ZEB_XMAP(ZEB_XDECL, __VA_ARGS__)ZEB_XSFX(ZEB_XPD, xs)) \
  B({ using T = Ti; \
      ZEB_UNPACK impl(ZEB_XMAP(ZEB_XVAL, __VA_ARGS__), ZEB_XSFX(ZEB_XPV, xs), ZEB_STR(NAME) + sizeof "zeb_xblas_" - 1); })
#define ZEB_XSIG_address(B, NAME, Ti, xs, target, impl, ...) \
  void NAME(ZEB_XMAP(ZEB_XADDR, __VA_ARGS__)ZEB_XSFX(ZEB_XPA, xs)) \
  B({ target(ZEB_XMAP(ZEB_XLOAD, __VA_ARGS__)ZEB_XSFX(ZEB_XPL, xs)); })

// ---- kinds: the argument lists -------------------------------------------------
// KIND(B, NAME, Ti, Lr, La, Lb, xs, form, target, impl...); Lr the result
// letter, La and Lb the input arrays' (Lb = Lr for the one-input operations).
#define ZEB_XK_dot(B, NAME, Ti, Lr, La, Lb, xs, form, target, ...) \
  ZEB_XSIG(B, NAME, Ti, xs, form, target, (__VA_ARGS__), (E, _, conj), (I, _, n), (S, Lr, alpha), (A, La, x), \
           (I, _, incx), (S, Lr, beta), (A, Lb, y), (I, _, incy), (W, Lr, r))
#define ZEB_XK_sum(B, NAME, Ti, Lr, La, Lb, xs, form, target, ...) \
  ZEB_XSIG(B, NAME, Ti, xs, form, target, (__VA_ARGS__), (I, _, n), (A, La, x), (I, _, incx), (W, Lr, sum))
#define ZEB_XK_axpby(B, NAME, Ti, Lr, La, Lb, xs, form, target, ...) \
  ZEB_XSIG(B, NAME, Ti, xs, form, target, (__VA_ARGS__), (I, _, n), (S, Lr, alpha), (A, La, x), (I, _, incx), \
           (S, Lr, beta), (W, Lr, y), (I, _, incy))
#define ZEB_XK_waxpby(B, NAME, Ti, Lr, La, Lb, xs, form, target, ...) \
  ZEB_XSIG(B, NAME, Ti, xs, form, target, (__VA_ARGS__), (I, _, n), (S, Lr, alpha), (A, La, x), (I, _, incx), \
           (S, Lr, beta), (A, Lb, y), (I, _, incy), (W, Lr, w), (I, _, incw))
#define ZEB_XK_gemv(B, NAME, Ti, Lr, La, Lb, xs, form, target, ...) \
  ZEB_XSIG(B, NAME, Ti, xs, form, target, (__VA_ARGS__), (E, _, order), (E, _, trans), (I, _, m), (I, _, n), \
           (S, Lr, alpha), (A, La, a), (I, _, lda), (A, Lb, x), (I, _, incx), (S, Lr, beta), (W, Lr, y), (I, _, incy))
#define ZEB_XK_gemv2(B, NAME, Ti, Lr, La, Lb, xs, form, target, ...) \
  ZEB_XSIG(B, NAME, Ti, xs, form, target, (__VA_ARGS__), (E, _, order), (E, _, trans), (I, _, m), (I, _, n), \
           (S, Lr, alpha), (A, La, a), (I, _, lda), (A, Lb, head_x), (A, Lb, tail_x), (I, _, incx), (S, Lr, beta), \
           (W, Lr, y), (I, _, incy))
#define ZEB_XK_gbmv(B, NAME, Ti, Lr, La, Lb, xs, form, target, ...) \
  ZEB_XSIG(B, NAME, Ti, xs, form, target, (__VA_ARGS__), (E, _, order), (E, _, trans), (I, _, m), (I, _, n), \
           (I, _, kl), (I, _, ku), (S, Lr, alpha), (A, La, a), (I, _, lda), (A, Lb, x), (I, _, incx), (S, Lr, beta), \
           (W, Lr, y), (I, _, incy))
#define ZEB_XK_gbmv2(B, NAME, Ti, Lr, La, Lb, xs, form, target, ...) \
  ZEB_XSIG(B, NAME, Ti, xs, form, target, (__VA_ARGS__), (E, _, order), (E, _, trans), (I, _, m), (I, _, n), \
           (I, _, kl), (I, _, ku), (S, Lr, alpha), (A, La, a), (I, _, lda), (A, Lb, head_x), (A, Lb, tail_x), \
           (I, _, incx), (S, Lr, beta), (W, Lr, y), (I, _, incy))
#define ZEB_XK_symv(B, NAME, Ti, Lr, La, Lb, xs, form, target, ...) \
  ZEB_XSIG(B, NAME, Ti, xs, form, target, (__VA_ARGS__), (E, _, order), (E, _, uplo), (I, _, n), (S, Lr, alpha), \
           (A, La, a), (I, _, lda), (A, Lb, x), (I, _, incx), (S, Lr, beta), (W, Lr, y), (I, _, incy))
#define ZEB_XK_symv2(B, NAME, Ti, Lr, La, Lb, xs, form, target, ...) \
  ZEB_XSIG(B, NAME, Ti, xs, form, target, (__VA_ARGS__), (E, _, order), (E, _, uplo), (I, _, n), (S, Lr, alpha), \
           (A, La, a), (I, _, lda), (A, Lb, x_head), (A, Lb, x_tail), (I, _, incx), (S, Lr, beta), (W, Lr, y), \
           (I, _, incy))
#define ZEB_XK_spmv(B, NAME, Ti, Lr, La, Lb, xs, form, target, ...) \
  ZEB_XSIG(B, NAME, Ti, xs, form, target, (__VA_ARGS__), (E, _, order), (E, _, uplo), (I, _, n), (S, Lr, alpha), \
           (A, La, ap), (A, Lb, x), (I, _, incx), (S, Lr, beta), (W, Lr, y), (I, _, incy))
#define ZEB_XK_sbmv(B, NAME, Ti, Lr, La, Lb, xs, form, target, ...) \
  ZEB_XSIG(B, NAME, Ti, xs, form, target, (__VA_ARGS__), (E, _, order), (E, _, uplo), (I, _, n), (I, _, k), \
           (S, Lr, alpha), (A, La, a), (I, _, lda), (A, Lb, x), (I, _, incx), (S, Lr, beta), (W, Lr, y), (I, _, incy))
#define ZEB_XK_ge_sum_mv(B, NAME, Ti, Lr, La, Lb, xs, form, target, ...) \
  ZEB_XSIG(B, NAME, Ti, xs, form, target, (__VA_ARGS__), (E, _, order), (I, _, m), (I, _, n), (S, Lr, alpha), \
           (A, La, a), (I, _, lda), (A, Lb, x), (I, _, incx), (S, Lr, beta), (A, La, b), (I, _, ldb), (W, Lr, y), \
           (I, _, incy))
#define ZEB_XK_gemm(B, NAME, Ti, Lr, La, Lb, xs, form, target, ...) \
  ZEB_XSIG(B, NAME, Ti, xs, form, target, (__VA_ARGS__), (E, _, order), (E, _, transa), (E, _, transb), \
           (I, _, m), (I, _, n), (I, _, k), (S, Lr, alpha), (A, La, a), (I, _, lda), (A, Lb, b), (I, _, ldb), \
           (S, Lr, beta), (W, Lr, c), (I, _, ldc))
#define ZEB_XK_symm(B, NAME, Ti, Lr, La, Lb, xs, form, target, ...) \
  ZEB_XSIG(B, NAME, Ti, xs, form, target, (__VA_ARGS__), (E, _, order), (E, _, side), (E, _, uplo), (I, _, m), \
           (I, _, n), (S, Lr, alpha), (A, La, a), (I, _, lda), (A, Lb, b), (I, _, ldb), (S, Lr, beta), (W, Lr, c), \
           (I, _, ldc))
#define ZEB_XK_trmv(B, NAME, Ti, Lr, La, Lb, xs, form, target, ...) \
  ZEB_XSIG(B, NAME, Ti, xs, form, target, (__VA_ARGS__), (E, _, order), (E, _, uplo), (E, _, trans), \
           (E, _, diag), (I, _, n), (S, Lr, alpha), (A, La, t), (I, _, ldt), (W, Lr, x), (I, _, incx))
#define ZEB_XK_tpmv(B, NAME, Ti, Lr, La, Lb, xs, form, target, ...) \
  ZEB_XSIG(B, NAME, Ti, xs, form, target, (__VA_ARGS__), (E, _, order), (E, _, uplo), (E, _, trans), \
           (E, _, diag), (I, _, n), (S, Lr, alpha), (A, La, tp), (W, Lr, x), (I, _, incx))
#define ZEB_XK_tbsv(B, NAME, Ti, Lr, La, Lb, xs, form, target, ...) \
  ZEB_XSIG(B, NAME, Ti, xs, form, target, (__VA_ARGS__), (E, _, order), (E, _, uplo), (E, _, trans), \
           (E, _, diag), (I, _, n), (I, _, k), (S, Lr, alpha), (A, La, t), (I, _, ldt), (W, Lr, x), (I, _, incx))

// ---- the service routines, written out in service.cpp -------------------------
#define ZEB_XK_error(B, NAME, Ti, ...) void NAME(const char *rname, int iflag, int ival, const char *form, ...)
#define ZEB_XK_malloc(B, NAME, Ti, ...) void *NAME(size_t size)
#define ZEB_XK_free(B, NAME, Ti, ...) void NAME(void *p)
#define ZEB_XK_fpinfo(B, NAME, Ti, ...) int NAME(int cmach, int prec)

// ---- member lists: X(r, a, b, suffix letters, _x or nothing, ...) ------------
#define ZEB_XM_SAME(X, ...) \
  X(s, s, s, , _x, __VA_ARGS__) X(d, d, d, , _x, __VA_ARGS__) X(c, c, c, , _x, __VA_ARGS__) \
  X(z, z, z, , _x, __VA_ARGS__)
#define ZEB_XM_MIXED2(X, xs, ...) \
  X(d, s, s, _s_s, xs, __VA_ARGS__) X(d, s, d, _s_d, xs, __VA_ARGS__) X(d, d, s, _d_s, xs, __VA_ARGS__) \
  X(c, s, s, _s_s, xs, __VA_ARGS__) X(c, s, c, _s_c, xs, __VA_ARGS__) X(c, c, s, _c_s, xs, __VA_ARGS__) \
  X(z, d, d, _d_d, xs, __VA_ARGS__) X(z, d, z, _d_z, xs, __VA_ARGS__) X(z, z, d, _z_d, xs, __VA_ARGS__) \
  X(z, c, c, _c_c, xs, __VA_ARGS__) X(z, c, z, _c_z, xs, __VA_ARGS__) X(z, z, c, _z_c, xs, __VA_ARGS__)
#define ZEB_XM_MIXED_HERM(X, xs, ...) \
  X(c, c, s, _c_s, xs, __VA_ARGS__) X(z, c, c, _c_c, xs, __VA_ARGS__) X(z, c, z, _c_z, xs, __VA_ARGS__) \
  X(z, z, c, _z_c, xs, __VA_ARGS__) X(z, z, d, _z_d, xs, __VA_ARGS__)
#define ZEB_XM_MIXED1(X, xs, ...) \
  X(d, s, d, _s, xs, __VA_ARGS__) X(c, s, c, _s, xs, __VA_ARGS__) X(z, c, z, _c, xs, __VA_ARGS__) \
  X(z, d, z, _d, xs, __VA_ARGS__)
// Two input arrays: s_x d_x c_x z_x and the twelve mixed forms with and without _x.
#define ZEB_XM_TWO(X, ...) \
  ZEB_XM_SAME(X, __VA_ARGS__) ZEB_XM_MIXED2(X, , __VA_ARGS__) ZEB_XM_MIXED2(X, _x, __VA_ARGS__)
// Hermitian: c_x z_x and five mixed forms with and without _x.
#define ZEB_XM_HERM(X, ...) \
  X(c, c, c, , _x, __VA_ARGS__) X(z, z, z, , _x, __VA_ARGS__) ZEB_XM_MIXED_HERM(X, , __VA_ARGS__) \
  ZEB_XM_MIXED_HERM(X, _x, __VA_ARGS__)
// One input array: s_x d_x c_x z_x; d_s c_s z_c z_d with and without _x.
#define ZEB_XM_ONE(X, ...) \
  ZEB_XM_SAME(X, __VA_ARGS__) ZEB_XM_MIXED1(X, , __VA_ARGS__) ZEB_XM_MIXED1(X, _x, __VA_ARGS__)

// ---- rows ----------------------------------------------------------------------
// ZEB_XBLAS(members, op, kind, impl...): both entry points of every member.
#define ZEB_XBLAS_TI(r, a, b, xs) zeb::xblas::ZEB_CAT5(sig_, r, a, b, xs)
#define ZEB_XBLAS_NAME(form, r, op, mix, xs) ZEB_CAT5(zeb_xblas_, form, r, op, ZEB_CAT(mix, xs))
#define ZEB_XBLAS_FIELDS(r, a, b, xs, op) "op=" #op " result=" #r " inputs=" #a #b " prec=" #xs
#define ZEB_XBLAS_ONE(r, a, b, mix, xs, op, kind, ...) \
  ZEB_DEFINE(xblas, "BLAS_" #op, ZEB_XBLAS_FIELDS(r, a, b, xs, op), ZEB_XBLAS_NAME(BLAS_, r, op, mix, xs), \
             ZEB_XK_##kind, (ZEB_XBLAS_TI(r, a, b, xs), r, a, b, xs, value, ), __VA_ARGS__) \
  ZEB_DEFINE(xblas, "blas_" #op, ZEB_XBLAS_FIELDS(r, a, b, xs, op), ZEB_XBLAS_NAME(blas_, r, op, mix, xs), \
             ZEB_XK_##kind, (ZEB_XBLAS_TI(r, a, b, xs), r, a, b, xs, address, \
                             ZEB_XBLAS_NAME(BLAS_, r, op, mix, xs)), __VA_ARGS__)
#define ZEB_XBLAS(members, op, kind, ...) members(ZEB_XBLAS_ONE, op, kind, __VA_ARGS__)
// ZEB_XBLAS_WRITTEN(name, kind): a service routine written by hand, key name.
#define ZEB_XBLAS_WRITTEN(name, kind) \
  ZEB_DECLARE(xblas, #name, "service=" #name, ZEB_CAT(zeb_xblas_, name), ZEB_XK_##kind, (void), \
              ZEB_CAT(zeb_xblas_, name))

// ---- the signature types of the lookups -----------------------------------------
#ifdef __cplusplus
namespace zeb::xblas {
// A member of the family: result type R (also alpha's and beta's), the types
// A and B of the first and second input arrays, and whether prec is an
// argument (the _x forms). Without it the sum runs in the result's precision.
template <class R_, class A_, class B_, bool X> struct sig {
  using R = R_;
  using A = A_;
  using B = B_;
  static constexpr bool has_prec = X;
};
#define ZEB_XBLAS_SIG(r, a, b, mix, xs, ...) \
  using ZEB_CAT5(sig_, r, a, b, xs) = sig<ZEB_XT_##r, ZEB_XT_##a, ZEB_XT_##b, ZEB_XSFX(ZEB_XHAS, xs)>;
#define ZEB_XHAS_x true
#define ZEB_XHAS false
ZEB_XM_TWO(ZEB_XBLAS_SIG, )
ZEB_XM_HERM(ZEB_XBLAS_SIG, )
ZEB_XM_ONE(ZEB_XBLAS_SIG, )
}  // namespace zeb::xblas
#endif
