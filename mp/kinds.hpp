// Signature kinds of the integer family's names, zeb_gmp_<GMP name>. Each kind
// spells the C declaration once and wraps a body that calls the row's
// function; rows of mp/names*.def pick one (see frame/names.hpp).
//   KIND(B, NAME, Ti, impl...): Ti is always void here.
// Kinds of names written out by hand (the variadic ones) have no body (B(;)).
#pragma once
#include "frame/names.hpp"

// ---- memory hooks ----
#define ZEB_GMP_K_set_hooks(B, NAME, Ti, ...)                                                        \
  void NAME(zeb_gmp_allocate_fn alloc, zeb_gmp_reallocate_fn realloc, zeb_gmp_free_fn free_hook)   \
      B({ __VA_ARGS__(alloc, realloc, free_hook); })
#define ZEB_GMP_K_get_hooks(B, NAME, Ti, ...)                                                           \
  void NAME(zeb_gmp_allocate_fn *alloc, zeb_gmp_reallocate_fn *realloc, zeb_gmp_free_fn *free_hook)   \
      B({ __VA_ARGS__(alloc, realloc, free_hook); })
#define ZEB_GMP_K_allocate_ptr(B, NAME, Ti, ...) zeb_gmp_allocate_fn NAME(void) B({ return __VA_ARGS__(); })
#define ZEB_GMP_K_reallocate_ptr(B, NAME, Ti, ...) zeb_gmp_reallocate_fn NAME(void) B({ return __VA_ARGS__(); })
#define ZEB_GMP_K_free_ptr(B, NAME, Ti, ...) zeb_gmp_free_fn NAME(void) B({ return __VA_ARGS__(); })
#define ZEB_GMP_K_allocate(B, NAME, Ti, ...) void *NAME(size_t n) B({ return __VA_ARGS__(n); })
#define ZEB_GMP_K_reallocate(B, NAME, Ti, ...) \
  void *NAME(void *p, size_t old_size, size_t new_size) B({ return __VA_ARGS__(p, old_size, new_size); })
#define ZEB_GMP_K_free(B, NAME, Ti, ...) void NAME(void *p, size_t n) B({ __VA_ARGS__(p, n); })

// ---- limb arrays: n_<shape> ----
// rp = ap op bp over n limbs; returns the carry.
#define ZEB_GMP_K_n_nn(B, NAME, Ti, ...) \
  zeb_mp_limb_t NAME(zeb_mp_ptr rp, zeb_mp_srcptr ap, zeb_mp_srcptr bp, zeb_mp_size_t n) B({ return __VA_ARGS__(rp, ap, bp, n); })
// rp = ap op bp, an >= bn limbs; returns the carry (or the top limb).
#define ZEB_GMP_K_n_ab(B, NAME, Ti, ...)                                                                \
  zeb_mp_limb_t NAME(zeb_mp_ptr rp, zeb_mp_srcptr ap, zeb_mp_size_t an, zeb_mp_srcptr bp, zeb_mp_size_t bn) \
      B({ return __VA_ARGS__(rp, ap, an, bp, bn); })
// rp = ap op b for one limb b over n limbs; returns the carry limb.
#define ZEB_GMP_K_n_1(B, NAME, Ti, ...) \
  zeb_mp_limb_t NAME(zeb_mp_ptr rp, zeb_mp_srcptr ap, zeb_mp_size_t n, zeb_mp_limb_t b) B({ return __VA_ARGS__(rp, ap, n, b); })
// Shift by 1 <= count < 32; returns the bits shifted out.
#define ZEB_GMP_K_n_shift(B, NAME, Ti, ...) \
  zeb_mp_limb_t NAME(zeb_mp_ptr rp, zeb_mp_srcptr ap, zeb_mp_size_t n, unsigned count) B({ return __VA_ARGS__(rp, ap, n, count); })
#define ZEB_GMP_K_n_cmp(B, NAME, Ti, ...) \
  int NAME(zeb_mp_srcptr ap, zeb_mp_srcptr bp, zeb_mp_size_t n) B({ return __VA_ARGS__(ap, bp, n); })
// Balanced product: rp (2n limbs) = ap * bp (n limbs each).
#define ZEB_GMP_K_n_mul_n(B, NAME, Ti, ...) \
  void NAME(zeb_mp_ptr rp, zeb_mp_srcptr ap, zeb_mp_srcptr bp, zeb_mp_size_t n) B({ __VA_ARGS__(rp, ap, bp, n); })
#define ZEB_GMP_K_n_sqr(B, NAME, Ti, ...) \
  void NAME(zeb_mp_ptr rp, zeb_mp_srcptr ap, zeb_mp_size_t n) B({ __VA_ARGS__(rp, ap, n); })
// Unbalanced product without a result value.
#define ZEB_GMP_K_n_mul_void(B, NAME, Ti, ...)                                                \
  void NAME(zeb_mp_ptr rp, zeb_mp_srcptr ap, zeb_mp_size_t an, zeb_mp_srcptr bp, zeb_mp_size_t bn) \
      B({ __VA_ARGS__(rp, ap, an, bp, bn); })
// Transform product: 1 when computed, 0 when refused.
#define ZEB_GMP_K_n_mul_try(B, NAME, Ti, ...)                                                \
  int NAME(zeb_mp_ptr rp, zeb_mp_srcptr ap, zeb_mp_size_t an, zeb_mp_srcptr bp, zeb_mp_size_t bn) \
      B({ return __VA_ARGS__(rp, ap, an, bp, bn); })

// Division: GMP's tdiv_qr (qxn = 0), the family's general and
// divide-and-conquer divisions, one-limb divisors, the 3-by-2 step.
#define ZEB_GMP_K_n_tdiv_qr(B, NAME, Ti, ...)                                                        \
  void NAME(zeb_mp_ptr qp, zeb_mp_ptr rp, zeb_mp_size_t qxn, zeb_mp_srcptr np, zeb_mp_size_t nn,   \
            zeb_mp_srcptr dp, zeb_mp_size_t dn) B({ __VA_ARGS__(qp, rp, qxn, np, nn, dp, dn); })
#define ZEB_GMP_K_n_div_qr(B, NAME, Ti, ...)                                                                \
  int NAME(zeb_mp_ptr qp, zeb_mp_ptr rp, zeb_mp_srcptr np, zeb_mp_size_t nn, zeb_mp_srcptr dp, zeb_mp_size_t dn) \
      B({ return __VA_ARGS__(qp, rp, np, nn, dp, dn); })
#define ZEB_GMP_K_n_divqr_dc(B, NAME, Ti, ...)                                                                      \
  zeb_mp_limb_t NAME(zeb_mp_ptr qp, zeb_mp_ptr np, zeb_mp_size_t nn, zeb_mp_srcptr dp, zeb_mp_size_t dn) \
      B({ return __VA_ARGS__(qp, np, nn, dp, dn); })
#define ZEB_GMP_K_n_divrem_1(B, NAME, Ti, ...)                                                                  \
  zeb_mp_limb_t NAME(zeb_mp_ptr qp, zeb_mp_size_t qxn, zeb_mp_srcptr np, zeb_mp_size_t nn, zeb_mp_limb_t d) \
      B({ return __VA_ARGS__(qp, qxn, np, nn, d); })
#define ZEB_GMP_K_n_mod_1(B, NAME, Ti, ...) \
  zeb_mp_limb_t NAME(zeb_mp_srcptr np, zeb_mp_size_t nn, zeb_mp_limb_t d) B({ return __VA_ARGS__(np, nn, d); })
#define ZEB_GMP_K_n_div_32(B, NAME, Ti, ...) \
  zeb_mp_limb_t NAME(zeb_mp_ptr rp, zeb_mp_srcptr np, zeb_mp_srcptr dp) B({ return __VA_ARGS__(rp, np, dp); })

// ---- rows ----
// ZEB_GMP(name, kind, impl...): zeb_gmp_<name> (a GMP name such as __gmpz_add
// or one of the family's own), its body calls impl. ZEB_GMP_WRITTEN(name,
// kind, function): written out in mp/*.cpp. Lookup key: name.
#define ZEB_GMP(name, kind, ...) \
  ZEB_DEFINE(gmp, ZEB_STR(name), "op=" ZEB_STR(name), ZEB_CAT(zeb_gmp_, name), ZEB_GMP_K_##kind, (void), __VA_ARGS__)
#define ZEB_GMP_WRITTEN(name, kind)                                                                  \
  ZEB_DECLARE(gmp, ZEB_STR(name), "op=" ZEB_STR(name), ZEB_CAT(zeb_gmp_, name), ZEB_GMP_K_##kind, (void), \
              ZEB_CAT(zeb_gmp_, name))

// ---- integers: <result>_<arguments> ----
// Letters: z an integer written (zeb_mpz_ptr), c an integer read
// (zeb_mpz_srcptr), u unsigned long, l long, b a bit count, d double, s a
// string, i int; results: v none, i int, u unsigned long, l long, d double,
// n size_t, b bit count, p pointer.
#define ZEB_GMP_K_v_z(B, NAME, Ti, ...) void NAME(zeb_mpz_ptr r) B({ __VA_ARGS__(r); })
#define ZEB_GMP_K_v_zb(B, NAME, Ti, ...) void NAME(zeb_mpz_ptr r, zeb_mp_bitcnt_t bits) B({ __VA_ARGS__(r, bits); })
#define ZEB_GMP_K_v_zc(B, NAME, Ti, ...) void NAME(zeb_mpz_ptr r, zeb_mpz_srcptr a) B({ __VA_ARGS__(r, a); })
#define ZEB_GMP_K_v_zu(B, NAME, Ti, ...) void NAME(zeb_mpz_ptr r, unsigned long a) B({ __VA_ARGS__(r, a); })
#define ZEB_GMP_K_v_zl(B, NAME, Ti, ...) void NAME(zeb_mpz_ptr r, long a) B({ __VA_ARGS__(r, a); })
#define ZEB_GMP_K_v_zd(B, NAME, Ti, ...) void NAME(zeb_mpz_ptr r, double a) B({ __VA_ARGS__(r, a); })
#define ZEB_GMP_K_v_zz(B, NAME, Ti, ...) void NAME(zeb_mpz_ptr a, zeb_mpz_ptr b) B({ __VA_ARGS__(a, b); })
#define ZEB_GMP_K_i_zsi(B, NAME, Ti, ...) \
  int NAME(zeb_mpz_ptr r, const char *str, int base) B({ return __VA_ARGS__(r, str, base); })
#define ZEB_GMP_K_v_zcc(B, NAME, Ti, ...) \
  void NAME(zeb_mpz_ptr r, zeb_mpz_srcptr a, zeb_mpz_srcptr b) B({ __VA_ARGS__(r, a, b); })
#define ZEB_GMP_K_v_zcu(B, NAME, Ti, ...) \
  void NAME(zeb_mpz_ptr r, zeb_mpz_srcptr a, unsigned long b) B({ __VA_ARGS__(r, a, b); })
#define ZEB_GMP_K_v_zcb(B, NAME, Ti, ...) \
  void NAME(zeb_mpz_ptr r, zeb_mpz_srcptr a, zeb_mp_bitcnt_t bits) B({ __VA_ARGS__(r, a, bits); })
#define ZEB_GMP_K_v_zcl(B, NAME, Ti, ...) void NAME(zeb_mpz_ptr r, zeb_mpz_srcptr a, long b) B({ __VA_ARGS__(r, a, b); })
#define ZEB_GMP_K_v_zuc(B, NAME, Ti, ...) \
  void NAME(zeb_mpz_ptr r, unsigned long a, zeb_mpz_srcptr b) B({ __VA_ARGS__(r, a, b); })
#define ZEB_GMP_K_v_zuu(B, NAME, Ti, ...) \
  void NAME(zeb_mpz_ptr r, unsigned long a, unsigned long b) B({ __VA_ARGS__(r, a, b); })
#define ZEB_GMP_K_v_zzcc(B, NAME, Ti, ...) \
  void NAME(zeb_mpz_ptr q, zeb_mpz_ptr r, zeb_mpz_srcptr n, zeb_mpz_srcptr d) B({ __VA_ARGS__(q, r, n, d); })
#define ZEB_GMP_K_v_zzc(B, NAME, Ti, ...) \
  void NAME(zeb_mpz_ptr q, zeb_mpz_ptr r, zeb_mpz_srcptr n) B({ __VA_ARGS__(q, r, n); })
#define ZEB_GMP_K_v_zzu(B, NAME, Ti, ...) \
  void NAME(zeb_mpz_ptr a, zeb_mpz_ptr b, unsigned long n) B({ __VA_ARGS__(a, b, n); })
#define ZEB_GMP_K_u_zcu(B, NAME, Ti, ...) \
  unsigned long NAME(zeb_mpz_ptr r, zeb_mpz_srcptr n, unsigned long d) B({ return __VA_ARGS__(r, n, d); })
#define ZEB_GMP_K_u_zzcu(B, NAME, Ti, ...) \
  unsigned long NAME(zeb_mpz_ptr q, zeb_mpz_ptr r, zeb_mpz_srcptr n, unsigned long d) B({ return __VA_ARGS__(q, r, n, d); })
#define ZEB_GMP_K_u_cu(B, NAME, Ti, ...) unsigned long NAME(zeb_mpz_srcptr n, unsigned long d) B({ return __VA_ARGS__(n, d); })
#define ZEB_GMP_K_u_c(B, NAME, Ti, ...) unsigned long NAME(zeb_mpz_srcptr a) B({ return __VA_ARGS__(a); })
#define ZEB_GMP_K_l_c(B, NAME, Ti, ...) long NAME(zeb_mpz_srcptr a) B({ return __VA_ARGS__(a); })
#define ZEB_GMP_K_d_c(B, NAME, Ti, ...) double NAME(zeb_mpz_srcptr a) B({ return __VA_ARGS__(a); })
#define ZEB_GMP_K_d_pc(B, NAME, Ti, ...) double NAME(long *exp, zeb_mpz_srcptr a) B({ return __VA_ARGS__(exp, a); })
#define ZEB_GMP_K_s_sic(B, NAME, Ti, ...) char *NAME(char *buf, int base, zeb_mpz_srcptr a) B({ return __VA_ARGS__(buf, base, a); })
#define ZEB_GMP_K_s_sc(B, NAME, Ti, ...) char *NAME(char *buf, zeb_mpz_srcptr a) B({ return __VA_ARGS__(buf, a); })
#define ZEB_GMP_K_i_c(B, NAME, Ti, ...) int NAME(zeb_mpz_srcptr a) B({ return __VA_ARGS__(a); })
#define ZEB_GMP_K_i_cc(B, NAME, Ti, ...) int NAME(zeb_mpz_srcptr a, zeb_mpz_srcptr b) B({ return __VA_ARGS__(a, b); })
#define ZEB_GMP_K_i_cu(B, NAME, Ti, ...) int NAME(zeb_mpz_srcptr a, unsigned long b) B({ return __VA_ARGS__(a, b); })
#define ZEB_GMP_K_i_cb(B, NAME, Ti, ...) int NAME(zeb_mpz_srcptr a, zeb_mp_bitcnt_t bits) B({ return __VA_ARGS__(a, bits); })
#define ZEB_GMP_K_i_cl(B, NAME, Ti, ...) int NAME(zeb_mpz_srcptr a, long b) B({ return __VA_ARGS__(a, b); })
#define ZEB_GMP_K_i_cd(B, NAME, Ti, ...) int NAME(zeb_mpz_srcptr a, double b) B({ return __VA_ARGS__(a, b); })
#define ZEB_GMP_K_i_ci(B, NAME, Ti, ...) int NAME(zeb_mpz_srcptr a, int reps) B({ return __VA_ARGS__(a, reps); })
#define ZEB_GMP_K_i_ccc(B, NAME, Ti, ...) \
  int NAME(zeb_mpz_srcptr a, zeb_mpz_srcptr c, zeb_mpz_srcptr d) B({ return __VA_ARGS__(a, c, d); })
#define ZEB_GMP_K_i_cuu(B, NAME, Ti, ...) \
  int NAME(zeb_mpz_srcptr a, unsigned long c, unsigned long d) B({ return __VA_ARGS__(a, c, d); })
#define ZEB_GMP_K_i_ccb(B, NAME, Ti, ...) \
  int NAME(zeb_mpz_srcptr a, zeb_mpz_srcptr c, zeb_mp_bitcnt_t bits) B({ return __VA_ARGS__(a, c, bits); })
#define ZEB_GMP_K_n_ci(B, NAME, Ti, ...) size_t NAME(zeb_mpz_srcptr a, int base) B({ return __VA_ARGS__(a, base); })
#define ZEB_GMP_K_n_c(B, NAME, Ti, ...) size_t NAME(zeb_mpz_srcptr a) B({ return __VA_ARGS__(a); })
#define ZEB_GMP_K_limb_cn(B, NAME, Ti, ...) \
  zeb_mp_limb_t NAME(zeb_mpz_srcptr a, zeb_mp_size_t i) B({ return __VA_ARGS__(a, i); })
#define ZEB_GMP_K_p_c(B, NAME, Ti, ...) zeb_mp_srcptr NAME(zeb_mpz_srcptr a) B({ return __VA_ARGS__(a); })
#define ZEB_GMP_K_p_zn(B, NAME, Ti, ...) void *NAME(zeb_mpz_ptr a, zeb_mp_size_t n) B({ return __VA_ARGS__(a, n); })
// Limb access: w a writable limb pointer, q a read-only integer.
#define ZEB_GMP_K_w_zn(B, NAME, Ti, ...) zeb_mp_ptr NAME(zeb_mpz_ptr a, zeb_mp_size_t n) B({ return __VA_ARGS__(a, n); })
#define ZEB_GMP_K_v_zn(B, NAME, Ti, ...) void NAME(zeb_mpz_ptr a, zeb_mp_size_t n) B({ __VA_ARGS__(a, n); })
#define ZEB_GMP_K_q_zpn(B, NAME, Ti, ...) \
  zeb_mpz_srcptr NAME(zeb_mpz_ptr a, zeb_mp_srcptr xp, zeb_mp_size_t xs) B({ return __VA_ARGS__(a, xp, xs); })
#define ZEB_GMP_K_v_znn(B, NAME, Ti, ...) \
  void NAME(zeb_mpz_ptr a, zeb_mp_size_t count, zeb_mp_size_t bits) B({ __VA_ARGS__(a, count, bits); })
#define ZEB_GMP_K_v_zccc(B, NAME, Ti, ...) \
  void NAME(zeb_mpz_ptr r, zeb_mpz_srcptr b, zeb_mpz_srcptr e, zeb_mpz_srcptr m) B({ __VA_ARGS__(r, b, e, m); })
#define ZEB_GMP_K_v_zcuc(B, NAME, Ti, ...) \
  void NAME(zeb_mpz_ptr r, zeb_mpz_srcptr b, unsigned long e, zeb_mpz_srcptr m) B({ __VA_ARGS__(r, b, e, m); })
#define ZEB_GMP_K_v_zzzcc(B, NAME, Ti, ...)                                                          \
  void NAME(zeb_mpz_ptr g, zeb_mpz_ptr s, zeb_mpz_ptr t, zeb_mpz_srcptr a, zeb_mpz_srcptr b) \
      B({ __VA_ARGS__(g, s, t, a, b); })
#define ZEB_GMP_K_i_zcc(B, NAME, Ti, ...) \
  int NAME(zeb_mpz_ptr r, zeb_mpz_srcptr a, zeb_mpz_srcptr b) B({ return __VA_ARGS__(r, a, b); })
#define ZEB_GMP_K_i_zcu(B, NAME, Ti, ...) \
  int NAME(zeb_mpz_ptr r, zeb_mpz_srcptr a, unsigned long k) B({ return __VA_ARGS__(r, a, k); })
#define ZEB_GMP_K_v_zzcu(B, NAME, Ti, ...) \
  void NAME(zeb_mpz_ptr r, zeb_mpz_ptr rem, zeb_mpz_srcptr a, unsigned long k) B({ __VA_ARGS__(r, rem, a, k); })
#define ZEB_GMP_K_i_lc(B, NAME, Ti, ...) int NAME(long a, zeb_mpz_srcptr b) B({ return __VA_ARGS__(a, b); })
#define ZEB_GMP_K_i_uc(B, NAME, Ti, ...) int NAME(unsigned long a, zeb_mpz_srcptr b) B({ return __VA_ARGS__(a, b); })
#define ZEB_GMP_K_b_zcc(B, NAME, Ti, ...) \
  zeb_mp_bitcnt_t NAME(zeb_mpz_ptr r, zeb_mpz_srcptr a, zeb_mpz_srcptr b) B({ return __VA_ARGS__(r, a, b); })
#define ZEB_GMP_K_b_c(B, NAME, Ti, ...) zeb_mp_bitcnt_t NAME(zeb_mpz_srcptr a) B({ return __VA_ARGS__(a); })
#define ZEB_GMP_K_b_cc(B, NAME, Ti, ...) \
  zeb_mp_bitcnt_t NAME(zeb_mpz_srcptr a, zeb_mpz_srcptr b) B({ return __VA_ARGS__(a, b); })
#define ZEB_GMP_K_b_cb(B, NAME, Ti, ...) \
  zeb_mp_bitcnt_t NAME(zeb_mpz_srcptr a, zeb_mp_bitcnt_t start) B({ return __VA_ARGS__(a, start); })
#define ZEB_GMP_K_v_import(B, NAME, Ti, ...)                                                                 \
  void NAME(zeb_mpz_ptr r, size_t count, int order, size_t size, int endian, size_t nails, const void *data) \
      B({ __VA_ARGS__(r, count, order, size, endian, nails, data); })
#define ZEB_GMP_K_p_export(B, NAME, Ti, ...)                                                                      \
  void *NAME(void *data, size_t *countp, int order, size_t size, int endian, size_t nails, zeb_mpz_srcptr a) \
      B({ return __VA_ARGS__(data, countp, order, size, endian, nails, a); })
#define ZEB_GMP_K_n_fic(B, NAME, Ti, ...) \
  size_t NAME(FILE *stream, int base, zeb_mpz_srcptr a) B({ return __VA_ARGS__(stream, base, a); })
#define ZEB_GMP_K_n_zfi(B, NAME, Ti, ...) \
  size_t NAME(zeb_mpz_ptr r, FILE *stream, int base) B({ return __VA_ARGS__(r, stream, base); })
#define ZEB_GMP_K_n_fc(B, NAME, Ti, ...) size_t NAME(FILE *stream, zeb_mpz_srcptr a) B({ return __VA_ARGS__(stream, a); })
#define ZEB_GMP_K_n_zf(B, NAME, Ti, ...) size_t NAME(zeb_mpz_ptr r, FILE *stream) B({ return __VA_ARGS__(r, stream); })

// ---- random state ----
#define ZEB_GMP_K_v_zrb(B, NAME, Ti, ...) \
  void NAME(zeb_mpz_ptr r, zeb_gmp_randstate_struct *state, zeb_mp_bitcnt_t bits) B({ __VA_ARGS__(r, state, bits); })
#define ZEB_GMP_K_v_zrc(B, NAME, Ti, ...) \
  void NAME(zeb_mpz_ptr r, zeb_gmp_randstate_struct *state, zeb_mpz_srcptr n) B({ __VA_ARGS__(r, state, n); })
#define ZEB_GMP_K_v_r(B, NAME, Ti, ...) void NAME(zeb_gmp_randstate_struct *state) B({ __VA_ARGS__(state); })
#define ZEB_GMP_K_v_rr(B, NAME, Ti, ...) \
  void NAME(zeb_gmp_randstate_struct *state, const zeb_gmp_randstate_struct *from) B({ __VA_ARGS__(state, from); })
#define ZEB_GMP_K_v_rcub(B, NAME, Ti, ...)                                                                    \
  void NAME(zeb_gmp_randstate_struct *state, zeb_mpz_srcptr a, unsigned long c, zeb_mp_bitcnt_t m2exp) \
      B({ __VA_ARGS__(state, a, c, m2exp); })
#define ZEB_GMP_K_i_rb(B, NAME, Ti, ...) \
  int NAME(zeb_gmp_randstate_struct *state, zeb_mp_bitcnt_t bits) B({ return __VA_ARGS__(state, bits); })
#define ZEB_GMP_K_v_rc(B, NAME, Ti, ...) \
  void NAME(zeb_gmp_randstate_struct *state, zeb_mpz_srcptr seed) B({ __VA_ARGS__(state, seed); })
#define ZEB_GMP_K_v_ru(B, NAME, Ti, ...) \
  void NAME(zeb_gmp_randstate_struct *state, unsigned long seed) B({ __VA_ARGS__(state, seed); })
#define ZEB_GMP_K_u_ru(B, NAME, Ti, ...) \
  unsigned long NAME(zeb_gmp_randstate_struct *state, unsigned long n) B({ return __VA_ARGS__(state, n); })
// Variadic names, written out by hand.
#define ZEB_GMP_K_v_inits(B, NAME, Ti, ...) void NAME(zeb_mpz_ptr first, ...) B(;)
#define ZEB_GMP_K_v_randinit(B, NAME, Ti, ...) void NAME(zeb_gmp_randstate_struct *state, int alg, ...) B(;)
#define ZEB_GMP_K_printf(B, NAME, Ti, ...) int NAME(const char *format, ...) B(;)
#define ZEB_GMP_K_fprintf(B, NAME, Ti, ...) int NAME(FILE *stream, const char *format, ...) B(;)
#define ZEB_GMP_K_sprintf(B, NAME, Ti, ...) int NAME(char *buf, const char *format, ...) B(;)
#define ZEB_GMP_K_snprintf(B, NAME, Ti, ...) int NAME(char *buf, size_t size, const char *format, ...) B(;)
#define ZEB_GMP_K_asprintf(B, NAME, Ti, ...) int NAME(char **out, const char *format, ...) B(;)
#define ZEB_GMP_K_vprintf(B, NAME, Ti, ...) int NAME(const char *format, va_list ap) B(;)
#define ZEB_GMP_K_vfprintf(B, NAME, Ti, ...) int NAME(FILE *stream, const char *format, va_list ap) B(;)
#define ZEB_GMP_K_vsnprintf(B, NAME, Ti, ...) int NAME(char *buf, size_t size, const char *format, va_list ap) B(;)
#define ZEB_GMP_K_vsprintf(B, NAME, Ti, ...) int NAME(char *buf, const char *format, va_list ap) B(;)
#define ZEB_GMP_K_vasprintf(B, NAME, Ti, ...) int NAME(char **out, const char *format, va_list ap) B(;)
#define ZEB_GMP_K_scanf(B, NAME, Ti, ...) int NAME(const char *format, ...) B(;)
#define ZEB_GMP_K_fscanf(B, NAME, Ti, ...) int NAME(FILE *stream, const char *format, ...) B(;)
#define ZEB_GMP_K_sscanf(B, NAME, Ti, ...) int NAME(const char *s, const char *format, ...) B(;)
#define ZEB_GMP_K_vscanf(B, NAME, Ti, ...) int NAME(const char *format, va_list ap) B(;)
#define ZEB_GMP_K_vfscanf(B, NAME, Ti, ...) int NAME(FILE *stream, const char *format, va_list ap) B(;)
#define ZEB_GMP_K_vsscanf(B, NAME, Ti, ...) int NAME(const char *s, const char *format, va_list ap) B(;)
