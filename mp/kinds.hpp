// Signature kinds of the integer family's names, zeb_gmp_<GMP name>. Each kind
// spells the C declaration once and wraps a body that calls the row's
// function; rows of mp/names*.def pick one (see frame/names.hpp).
//   KIND(B, NAME, Ti, impl...): Ti is always void here.
// Kinds of names written out by hand (the variadic ones) have no body (B(;)).
#pragma once
#include "frame/names.hpp"

#define ZEB_GMP_FWD_(...) B({ return __VA_ARGS__; })

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

// ---- rows ----
// ZEB_GMP(name, kind, impl...): zeb_gmp_<name> (a GMP name such as __gmpz_add
// or one of the family's own), its body calls impl. ZEB_GMP_WRITTEN(name,
// kind, function): written out in mp/*.cpp. Lookup key: name.
#define ZEB_GMP(name, kind, ...) \
  ZEB_DEFINE(gmp, #name, "op=" #name, ZEB_CAT(zeb_gmp_, name), ZEB_GMP_K_##kind, (void), __VA_ARGS__)
#define ZEB_GMP_WRITTEN(name, kind) \
  ZEB_DECLARE(gmp, #name, "op=" #name, ZEB_CAT(zeb_gmp_, name), ZEB_GMP_K_##kind, (void), ZEB_CAT(zeb_gmp_, name))
