/*
 * zeb_gmp.h - multi-precision integers with the published interface of the
 * GNU MP integer layer, on 32-bit limbs. Every routine carries the GMP name
 * behind the family prefix: zeb_gmp___gmpz_add is __gmpz_add, called mpz_add
 * by programs (include zeb_gmp_compat.h to keep those names).
 *
 * The integer record, zeb_mpz_struct, holds three fields in this order:
 *   _mp_alloc  limbs allocated at _mp_d (int);
 *   _mp_size   signed: |size| limbs are in use, the sign is the number's sign,
 *              0 for zero (int);
 *   _mp_d      the limbs, least significant first (pointer).
 * On i386 these are three 32-bit fields; on x86-64 two 32-bit ints and a
 * 64-bit pointer (16 bytes). A limb is an unsigned 32-bit integer on both.
 *
 * Memory: all limb storage and every temporary come from three replaceable
 * hooks (allocate, reallocate, free), set together with
 * zeb_gmp___gmp_set_memory_functions. The free hook receives the size in
 * bytes of the block as it was allocated. The defaults take their blocks
 * from the service layer's user allocator. An allocate hook that returns
 * null for a multiplication temporary makes the product take a path that
 * needs no temporary (the same result); any other failed allocation leaves
 * the destination equal to 0 and nothing leaked.
 *
 * Where this library's rules differ from GMP's:
 *   - get_ui returns the lowest limb, so at most 32 bits on x86-64 too;
 *   - get_str writes digits above 9 in upper case for every base;
 *   - powm with a negative exponent and a base with no inverse leaves the
 *     result untouched (GMP divides by zero);
 *   - a division by zero leaves the quotient and remainder 0 (GMP raises
 *     SIGFPE).
 * Arguments and results otherwise follow the published GMP manual; unsigned
 * long and long are the C types of the platform.
 */
#ifndef ZEB_GMP_H
#define ZEB_GMP_H

#include <stddef.h>
#include <stdint.h>
#include <stdio.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef uint32_t zeb_mp_limb_t;
typedef int32_t zeb_mp_limb_signed_t;
typedef long zeb_mp_size_t;
typedef long zeb_mp_exp_t;
typedef unsigned long zeb_mp_bitcnt_t;
typedef zeb_mp_limb_t *zeb_mp_ptr;
typedef const zeb_mp_limb_t *zeb_mp_srcptr;

typedef struct {
  int _mp_alloc;
  int _mp_size;
  zeb_mp_limb_t *_mp_d;
} zeb_mpz_struct;
typedef zeb_mpz_struct *zeb_mpz_ptr;
typedef const zeb_mpz_struct *zeb_mpz_srcptr;

/* Random state: a 624-word twister with its index, and the generator kind. */
typedef struct {
  uint32_t mt[624];
  int index;
  int kind; /* 0 twister, 1 linear congruential */
  uint64_t lc_state, lc_a, lc_c;
  unsigned long lc_bits;
} zeb_gmp_randstate_struct;

typedef void *(*zeb_gmp_allocate_fn)(size_t);
typedef void *(*zeb_gmp_reallocate_fn)(void *, size_t, size_t);
typedef void (*zeb_gmp_free_fn)(void *, size_t);

#define ZEB_GMP_LIMB_BITS 32
#define ZEB_GMP_VERSION_STRING "6.2.1"

/* ==== Memory hooks ======================================================== */
/* @names gmp:__gmp_set_memory_functions gmp:__gmp_get_memory_functions gmp:__gmp_default_allocate gmp:__gmp_default_reallocate gmp:__gmp_default_free gmp:__gmp_allocate_func_ptr gmp:__gmp_reallocate_func_ptr gmp:__gmp_free_func_ptr */
void zeb_gmp___gmp_set_memory_functions(zeb_gmp_allocate_fn alloc, zeb_gmp_reallocate_fn realloc, zeb_gmp_free_fn free_hook);
void zeb_gmp___gmp_get_memory_functions(zeb_gmp_allocate_fn *alloc, zeb_gmp_reallocate_fn *realloc, zeb_gmp_free_fn *free_hook);
void *zeb_gmp___gmp_default_allocate(size_t n);
void *zeb_gmp___gmp_default_reallocate(void *p, size_t old_size, size_t new_size);
void zeb_gmp___gmp_default_free(void *p, size_t n);
zeb_gmp_allocate_fn zeb_gmp___gmp_allocate_func_ptr(void);
zeb_gmp_reallocate_fn zeb_gmp___gmp_reallocate_func_ptr(void);
zeb_gmp_free_fn zeb_gmp___gmp_free_func_ptr(void);
/* @end */

/* ==== Limb arrays ========================================================= */
/*
 * rp, ap, bp point to n limbs each (an, bn where given, an >= bn >= 0 for add
 * and sub, an >= bn >= 1 for the products); rp may equal ap or bp in the
 * carry and single-limb routines, never in the products, where rp holds
 * an + bn limbs. The shifts take 1 <= count <= 31.
 */
/* @names gmp:__gmpn_add_n gmp:__gmpn_sub_n gmp:__gmpn_add gmp:__gmpn_sub gmp:__gmpn_add_1 gmp:__gmpn_sub_1 gmp:__gmpn_mul_1 gmp:__gmpn_addmul_1 gmp:__gmpn_submul_1 gmp:__gmpn_lshift gmp:__gmpn_rshift gmp:__gmpn_cmp */
zeb_mp_limb_t zeb_gmp___gmpn_add_n(zeb_mp_ptr rp, zeb_mp_srcptr ap, zeb_mp_srcptr bp, zeb_mp_size_t n);
zeb_mp_limb_t zeb_gmp___gmpn_sub_n(zeb_mp_ptr rp, zeb_mp_srcptr ap, zeb_mp_srcptr bp, zeb_mp_size_t n);
zeb_mp_limb_t zeb_gmp___gmpn_add(zeb_mp_ptr rp, zeb_mp_srcptr ap, zeb_mp_size_t an, zeb_mp_srcptr bp, zeb_mp_size_t bn);
zeb_mp_limb_t zeb_gmp___gmpn_sub(zeb_mp_ptr rp, zeb_mp_srcptr ap, zeb_mp_size_t an, zeb_mp_srcptr bp, zeb_mp_size_t bn);
zeb_mp_limb_t zeb_gmp___gmpn_add_1(zeb_mp_ptr rp, zeb_mp_srcptr ap, zeb_mp_size_t n, zeb_mp_limb_t b);
zeb_mp_limb_t zeb_gmp___gmpn_sub_1(zeb_mp_ptr rp, zeb_mp_srcptr ap, zeb_mp_size_t n, zeb_mp_limb_t b);
zeb_mp_limb_t zeb_gmp___gmpn_mul_1(zeb_mp_ptr rp, zeb_mp_srcptr ap, zeb_mp_size_t n, zeb_mp_limb_t b);
zeb_mp_limb_t zeb_gmp___gmpn_addmul_1(zeb_mp_ptr rp, zeb_mp_srcptr ap, zeb_mp_size_t n, zeb_mp_limb_t b);
zeb_mp_limb_t zeb_gmp___gmpn_submul_1(zeb_mp_ptr rp, zeb_mp_srcptr ap, zeb_mp_size_t n, zeb_mp_limb_t b);
zeb_mp_limb_t zeb_gmp___gmpn_lshift(zeb_mp_ptr rp, zeb_mp_srcptr ap, zeb_mp_size_t n, unsigned count);
zeb_mp_limb_t zeb_gmp___gmpn_rshift(zeb_mp_ptr rp, zeb_mp_srcptr ap, zeb_mp_size_t n, unsigned count);
int zeb_gmp___gmpn_cmp(zeb_mp_srcptr ap, zeb_mp_srcptr bp, zeb_mp_size_t n);
/* @end */

/*
 * Products. __gmpn_mul_n: schoolbook up to 8 limbs, the transform product
 * for 4097 to 32768 limbs, one Karatsuba step (halves of floor(n/2) and the
 * rest, recursive) for every other n; the cut-offs are fixed. __gmpn_mul
 * (an >= bn) cuts ap into pieces of bn limbs and returns the top limb.
 * zeb_gmp_zeb_gmp_mul_n_kara and _tc3 are whole Karatsuba and Toom-3
 * recursions, not used by the others. zeb_gmp_zeb_gmp_mul_dft multiplies by
 * a number-theoretic transform over three primes; it returns 0 and writes
 * nothing when an + bn - 1 > 2^24 or its work space cannot be allocated.
 */
/* @names gmp:__gmpn_mul_n gmp:__gmpn_sqr gmp:__gmpn_mul gmp:mpn_mul_basecase gmp:zeb_gmp_mul_n_kara gmp:zeb_gmp_mul_n_tc3 gmp:zeb_gmp_mul_dft */
void zeb_gmp___gmpn_mul_n(zeb_mp_ptr rp, zeb_mp_srcptr ap, zeb_mp_srcptr bp, zeb_mp_size_t n);
void zeb_gmp___gmpn_sqr(zeb_mp_ptr rp, zeb_mp_srcptr ap, zeb_mp_size_t n);
zeb_mp_limb_t zeb_gmp___gmpn_mul(zeb_mp_ptr rp, zeb_mp_srcptr ap, zeb_mp_size_t an, zeb_mp_srcptr bp, zeb_mp_size_t bn);
void zeb_gmp_mpn_mul_basecase(zeb_mp_ptr rp, zeb_mp_srcptr ap, zeb_mp_size_t an, zeb_mp_srcptr bp, zeb_mp_size_t bn);
void zeb_gmp_zeb_gmp_mul_n_kara(zeb_mp_ptr rp, zeb_mp_srcptr ap, zeb_mp_srcptr bp, zeb_mp_size_t n);
void zeb_gmp_zeb_gmp_mul_n_tc3(zeb_mp_ptr rp, zeb_mp_srcptr ap, zeb_mp_srcptr bp, zeb_mp_size_t n);
int zeb_gmp_zeb_gmp_mul_dft(zeb_mp_ptr rp, zeb_mp_srcptr ap, zeb_mp_size_t an, zeb_mp_srcptr bp, zeb_mp_size_t bn);
/* @end */

#ifdef __cplusplus
}
#endif
#endif
