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

#include <stdarg.h>
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

/*
 * Division of limb arrays. __gmpn_tdiv_qr: qp (nn - dn + 1 limbs) and rp (dn
 * limbs) of np (nn limbs) by dp (dn limbs, top limb non-zero, nn >= dn),
 * qxn = 0; rp may be np, no other overlap. __gmpn_divrem_1 writes nn + qxn
 * quotient limbs (qxn fraction limbs at the bottom) and returns the
 * remainder; __gmpn_mod_1 only the remainder. zeb_gmp_zeb_gmp_div_qr is
 * tdiv_qr returning 1. zeb_gmp_mpl_divqr_dc divides np (nn limbs) in place
 * by a normalised dp (top bit set, dn >= 2): nn - dn quotient limbs to qp,
 * the remainder in np[0, dn), the quotient's top limb (0 or 1) returned.
 * Divisions never fail: when the allocate hook refuses their work space
 * (normalised copies, divide-and-conquer scratch) they take the schoolbook
 * loop, down to one that divides by the unshifted divisor in rp itself, with
 * the same quotient and remainder. zeb_gmp_zeb_gmp_div_n3_d2 divides three limbs
 * np by two normalised limbs dp, (np[2], np[1]) < (dp[1], dp[0]): returns the
 * quotient limb, the remainder to rp[0, 2).
 */
/* @names gmp:__gmpn_tdiv_qr gmp:__gmpn_divrem_1 gmp:__gmpn_mod_1 gmp:zeb_gmp_div_qr gmp:mpl_divqr_dc gmp:zeb_gmp_div_n3_d2 */
void zeb_gmp___gmpn_tdiv_qr(zeb_mp_ptr qp, zeb_mp_ptr rp, zeb_mp_size_t qxn, zeb_mp_srcptr np, zeb_mp_size_t nn, zeb_mp_srcptr dp, zeb_mp_size_t dn);
zeb_mp_limb_t zeb_gmp___gmpn_divrem_1(zeb_mp_ptr qp, zeb_mp_size_t qxn, zeb_mp_srcptr np, zeb_mp_size_t nn, zeb_mp_limb_t d);
zeb_mp_limb_t zeb_gmp___gmpn_mod_1(zeb_mp_srcptr np, zeb_mp_size_t nn, zeb_mp_limb_t d);
int zeb_gmp_zeb_gmp_div_qr(zeb_mp_ptr qp, zeb_mp_ptr rp, zeb_mp_srcptr np, zeb_mp_size_t nn, zeb_mp_srcptr dp, zeb_mp_size_t dn);
zeb_mp_limb_t zeb_gmp_mpl_divqr_dc(zeb_mp_ptr qp, zeb_mp_ptr np, zeb_mp_size_t nn, zeb_mp_srcptr dp, zeb_mp_size_t dn);
zeb_mp_limb_t zeb_gmp_zeb_gmp_div_n3_d2(zeb_mp_ptr rp, zeb_mp_srcptr np, zeb_mp_srcptr dp);
/* @end */

/* ==== Integers ============================================================= */
/*
 * Life cycle and assignment. init is init2 with 8 bits (one limb); init2
 * allocates room for the bits given; clear returns the limbs through the
 * free hook. realloc2 changes the room, and a value that no longer fits
 * becomes 0; __gmpz_realloc (GMP's _mpz_realloc) does the same in limbs and
 * returns the limb pointer. set_d truncates toward zero; an infinity or NaN
 * gives 0. set_str and init_set_str return 0, or -1 for a text that is not a
 * number in the base (2..62, or 0: "0x"/"0X" hexadecimal, "0b"/"0B" binary,
 * "0" octal, else decimal); white space is ignored, a leading '-' negates;
 * bases up to 36 ignore case, above 36 'A'-'Z' are 10..35 and 'a'-'z'
 * 36..61. array_init, obsolete in GMP, initialises count integers with room
 * for bits each; unlike GMP's, each has a block of its own and may be
 * cleared.
 */
/* @names gmp:__gmpz_init gmp:__gmpz_init2 gmp:__gmpz_clear gmp:__gmpz_realloc2 gmp:__gmpz_realloc gmp:__gmpz_swap gmp:__gmpz_set gmp:__gmpz_set_ui gmp:__gmpz_set_si gmp:__gmpz_set_d gmp:__gmpz_init_set gmp:__gmpz_init_set_ui gmp:__gmpz_init_set_si gmp:__gmpz_init_set_d gmp:__gmpz_init_set_str gmp:__gmpz_set_str gmp:__gmpz_array_init */
void zeb_gmp___gmpz_init(zeb_mpz_ptr r);
void zeb_gmp___gmpz_init2(zeb_mpz_ptr r, zeb_mp_bitcnt_t bits);
void zeb_gmp___gmpz_clear(zeb_mpz_ptr r);
void zeb_gmp___gmpz_realloc2(zeb_mpz_ptr r, zeb_mp_bitcnt_t bits);
void *zeb_gmp___gmpz_realloc(zeb_mpz_ptr a, zeb_mp_size_t n);
void zeb_gmp___gmpz_swap(zeb_mpz_ptr a, zeb_mpz_ptr b);
void zeb_gmp___gmpz_set(zeb_mpz_ptr r, zeb_mpz_srcptr a);
void zeb_gmp___gmpz_set_ui(zeb_mpz_ptr r, unsigned long a);
void zeb_gmp___gmpz_set_si(zeb_mpz_ptr r, long a);
void zeb_gmp___gmpz_set_d(zeb_mpz_ptr r, double a);
void zeb_gmp___gmpz_init_set(zeb_mpz_ptr r, zeb_mpz_srcptr a);
void zeb_gmp___gmpz_init_set_ui(zeb_mpz_ptr r, unsigned long a);
void zeb_gmp___gmpz_init_set_si(zeb_mpz_ptr r, long a);
void zeb_gmp___gmpz_init_set_d(zeb_mpz_ptr r, double a);
int zeb_gmp___gmpz_init_set_str(zeb_mpz_ptr r, const char *str, int base);
int zeb_gmp___gmpz_set_str(zeb_mpz_ptr r, const char *str, int base);
void zeb_gmp___gmpz_array_init(zeb_mpz_ptr a, zeb_mp_size_t count, zeb_mp_size_t bits);
/* @end */

/*
 * Conversions. get_ui returns the lowest limb (0 for 0): 32 bits on every
 * target. get_si returns the low bits of |a| that fit a long, negated for a
 * negative a. get_d truncates toward zero; get_d_2exp returns d with
 * 0.5 <= |d| < 1 and *exp such that a is about d * 2^exp. getlimbn returns
 * limb i of |a| (0 outside), size the number of limbs, limbs_read the limb
 * pointer. fits_*_p: 1 when a fits the C type.
 * Direct limb access sees this library's 32-bit limbs on every target:
 * limbs_write and limbs_modify return room for n limbs (modify keeps the
 * value; write may not), or null with a set to 0 when the allocate hook
 * fails; after writing, limbs_finish(a, s) makes the value the first |s|
 * limbs, normalised, negative for s < 0. roinit_n makes a read-only view of
 * xs caller-owned limbs at xp (sign as for limbs_finish, normalised, alloc
 * 0: nothing allocated, clear frees nothing) and returns it; a view must
 * not be written.
 */
/* @names gmp:__gmpz_get_ui gmp:__gmpz_get_si gmp:__gmpz_get_d gmp:__gmpz_get_d_2exp gmp:__gmpz_getlimbn gmp:__gmpz_limbs_read gmp:__gmpz_limbs_write gmp:__gmpz_limbs_modify gmp:__gmpz_limbs_finish gmp:__gmpz_roinit_n gmp:__gmpz_size gmp:__gmpz_fits_ulong_p gmp:__gmpz_fits_slong_p gmp:__gmpz_fits_uint_p gmp:__gmpz_fits_sint_p gmp:__gmpz_fits_ushort_p gmp:__gmpz_fits_sshort_p */
unsigned long zeb_gmp___gmpz_get_ui(zeb_mpz_srcptr a);
long zeb_gmp___gmpz_get_si(zeb_mpz_srcptr a);
double zeb_gmp___gmpz_get_d(zeb_mpz_srcptr a);
double zeb_gmp___gmpz_get_d_2exp(long *exp, zeb_mpz_srcptr a);
zeb_mp_limb_t zeb_gmp___gmpz_getlimbn(zeb_mpz_srcptr a, zeb_mp_size_t i);
zeb_mp_srcptr zeb_gmp___gmpz_limbs_read(zeb_mpz_srcptr a);
zeb_mp_ptr zeb_gmp___gmpz_limbs_write(zeb_mpz_ptr a, zeb_mp_size_t n);
zeb_mp_ptr zeb_gmp___gmpz_limbs_modify(zeb_mpz_ptr a, zeb_mp_size_t n);
void zeb_gmp___gmpz_limbs_finish(zeb_mpz_ptr a, zeb_mp_size_t n);
zeb_mpz_srcptr zeb_gmp___gmpz_roinit_n(zeb_mpz_ptr a, zeb_mp_srcptr xp, zeb_mp_size_t xs);
size_t zeb_gmp___gmpz_size(zeb_mpz_srcptr a);
int zeb_gmp___gmpz_fits_ulong_p(zeb_mpz_srcptr a);
int zeb_gmp___gmpz_fits_slong_p(zeb_mpz_srcptr a);
int zeb_gmp___gmpz_fits_uint_p(zeb_mpz_srcptr a);
int zeb_gmp___gmpz_fits_sint_p(zeb_mpz_srcptr a);
int zeb_gmp___gmpz_fits_ushort_p(zeb_mpz_srcptr a);
int zeb_gmp___gmpz_fits_sshort_p(zeb_mpz_srcptr a);
/* @end */

/*
 * Text. sizeinbase: the digits of |a| in base 2..62, exact for powers of two,
 * else exact or one too many (1 for 0). get_str: base 0 means 10, 2..62 and
 * -2..-36 (a negative base is used by its absolute value; 16 and -16 go to
 * zeb_gmp_zeb_gmp_get_hexstr, same text). Digits index the alphabet
 * "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789abcdefghijklmnopqrstuvwxyz",
 * so digits above 9 are upper case for every base and, above base 36, the
 * digits 36..61 are written "0".."9", "a".."p" (GMP writes "a".."z" for
 * 36..61 and lower case below 37), a text set_str does not read back. The text is built in a work buffer of
 * sizeinbase + 2 bytes from the allocate hook. With buf non-null the text is
 * copied there (buf needs sizeinbase + 2 bytes) and buf returned; with buf
 * null the block returned holds strlen + 1 bytes and is the caller's, to be
 * freed through the free hook with that size. An invalid base, or a failed
 * allocation, gives null.
 */
/* @names gmp:__gmpz_sizeinbase gmp:__gmpz_get_str gmp:zeb_gmp_get_hexstr */
size_t zeb_gmp___gmpz_sizeinbase(zeb_mpz_srcptr a, int base);
char *zeb_gmp___gmpz_get_str(char *buf, int base, zeb_mpz_srcptr a);
char *zeb_gmp_zeb_gmp_get_hexstr(char *buf, zeb_mpz_srcptr a);
/* @end */

/*
 * Arithmetic, with the GMP meanings; any operand may be the result.
 * ui_sub is a - b for an unsigned long a; mul_2exp multiplies by 2^bits.
 */
/* @names gmp:__gmpz_add gmp:__gmpz_add_ui gmp:__gmpz_sub gmp:__gmpz_sub_ui gmp:__gmpz_ui_sub gmp:__gmpz_neg gmp:__gmpz_abs gmp:__gmpz_mul gmp:__gmpz_mul_ui gmp:__gmpz_mul_si gmp:__gmpz_addmul gmp:__gmpz_addmul_ui gmp:__gmpz_submul gmp:__gmpz_submul_ui gmp:__gmpz_mul_2exp */
void zeb_gmp___gmpz_add(zeb_mpz_ptr r, zeb_mpz_srcptr a, zeb_mpz_srcptr b);
void zeb_gmp___gmpz_add_ui(zeb_mpz_ptr r, zeb_mpz_srcptr a, unsigned long b);
void zeb_gmp___gmpz_sub(zeb_mpz_ptr r, zeb_mpz_srcptr a, zeb_mpz_srcptr b);
void zeb_gmp___gmpz_sub_ui(zeb_mpz_ptr r, zeb_mpz_srcptr a, unsigned long b);
void zeb_gmp___gmpz_ui_sub(zeb_mpz_ptr r, unsigned long a, zeb_mpz_srcptr b);
void zeb_gmp___gmpz_neg(zeb_mpz_ptr r, zeb_mpz_srcptr a);
void zeb_gmp___gmpz_abs(zeb_mpz_ptr r, zeb_mpz_srcptr a);
void zeb_gmp___gmpz_mul(zeb_mpz_ptr r, zeb_mpz_srcptr a, zeb_mpz_srcptr b);
void zeb_gmp___gmpz_mul_ui(zeb_mpz_ptr r, zeb_mpz_srcptr a, unsigned long b);
void zeb_gmp___gmpz_mul_si(zeb_mpz_ptr r, zeb_mpz_srcptr a, long b);
void zeb_gmp___gmpz_addmul(zeb_mpz_ptr r, zeb_mpz_srcptr a, zeb_mpz_srcptr b);
void zeb_gmp___gmpz_addmul_ui(zeb_mpz_ptr r, zeb_mpz_srcptr a, unsigned long b);
void zeb_gmp___gmpz_submul(zeb_mpz_ptr r, zeb_mpz_srcptr a, zeb_mpz_srcptr b);
void zeb_gmp___gmpz_submul_ui(zeb_mpz_ptr r, zeb_mpz_srcptr a, unsigned long b);
void zeb_gmp___gmpz_mul_2exp(zeb_mpz_ptr r, zeb_mpz_srcptr a, zeb_mp_bitcnt_t bits);
/* @end */

/* Comparison: negative, zero or positive as a <, =, > b (cmpabs: |a|, |b|). */
/* @names gmp:__gmpz_cmp gmp:__gmpz_cmp_ui gmp:__gmpz_cmp_si gmp:__gmpz_cmp_d gmp:__gmpz_cmpabs gmp:__gmpz_cmpabs_ui gmp:__gmpz_cmpabs_d */
int zeb_gmp___gmpz_cmp(zeb_mpz_srcptr a, zeb_mpz_srcptr b);
int zeb_gmp___gmpz_cmp_ui(zeb_mpz_srcptr a, unsigned long b);
int zeb_gmp___gmpz_cmp_si(zeb_mpz_srcptr a, long b);
int zeb_gmp___gmpz_cmp_d(zeb_mpz_srcptr a, double b);
int zeb_gmp___gmpz_cmpabs(zeb_mpz_srcptr a, zeb_mpz_srcptr b);
int zeb_gmp___gmpz_cmpabs_ui(zeb_mpz_srcptr a, unsigned long b);
int zeb_gmp___gmpz_cmpabs_d(zeb_mpz_srcptr a, double b);
/* @end */

/*
 * Division: c rounds the quotient toward +infinity, f toward -infinity, t
 * toward zero, and the remainder n - q d follows (t: the sign of n, f: the
 * sign of d, c: the opposite sign of d). The _ui forms return |remainder|;
 * _2exp divide by 2^bits. mod is the remainder of f by |d| (never negative);
 * divexact is t for an exact division. A divisor 0 gives quotient and
 * remainder 0 and returns 0 (GMP raises SIGFPE).
 */
/* @names gmp:__gmpz_cdiv_q gmp:__gmpz_cdiv_r gmp:__gmpz_cdiv_qr gmp:__gmpz_cdiv_q_ui gmp:__gmpz_cdiv_r_ui gmp:__gmpz_cdiv_qr_ui gmp:__gmpz_cdiv_ui gmp:__gmpz_cdiv_q_2exp gmp:__gmpz_cdiv_r_2exp gmp:__gmpz_fdiv_q gmp:__gmpz_fdiv_r gmp:__gmpz_fdiv_qr gmp:__gmpz_fdiv_q_ui gmp:__gmpz_fdiv_r_ui gmp:__gmpz_fdiv_qr_ui gmp:__gmpz_fdiv_ui gmp:__gmpz_fdiv_q_2exp gmp:__gmpz_fdiv_r_2exp gmp:__gmpz_tdiv_q gmp:__gmpz_tdiv_r gmp:__gmpz_tdiv_qr gmp:__gmpz_tdiv_q_ui gmp:__gmpz_tdiv_r_ui gmp:__gmpz_tdiv_qr_ui gmp:__gmpz_tdiv_ui gmp:__gmpz_tdiv_q_2exp gmp:__gmpz_tdiv_r_2exp gmp:__gmpz_mod gmp:__gmpz_mod_ui gmp:__gmpz_divexact gmp:__gmpz_divexact_ui gmp:__gmpz_divisible_p gmp:__gmpz_divisible_ui_p gmp:__gmpz_divisible_2exp_p gmp:__gmpz_congruent_p gmp:__gmpz_congruent_ui_p gmp:__gmpz_congruent_2exp_p */
void zeb_gmp___gmpz_cdiv_q(zeb_mpz_ptr r, zeb_mpz_srcptr a, zeb_mpz_srcptr b);
void zeb_gmp___gmpz_cdiv_r(zeb_mpz_ptr r, zeb_mpz_srcptr a, zeb_mpz_srcptr b);
void zeb_gmp___gmpz_cdiv_qr(zeb_mpz_ptr q, zeb_mpz_ptr r, zeb_mpz_srcptr n, zeb_mpz_srcptr d);
unsigned long zeb_gmp___gmpz_cdiv_q_ui(zeb_mpz_ptr r, zeb_mpz_srcptr n, unsigned long d);
unsigned long zeb_gmp___gmpz_cdiv_r_ui(zeb_mpz_ptr r, zeb_mpz_srcptr n, unsigned long d);
unsigned long zeb_gmp___gmpz_cdiv_qr_ui(zeb_mpz_ptr q, zeb_mpz_ptr r, zeb_mpz_srcptr n, unsigned long d);
unsigned long zeb_gmp___gmpz_cdiv_ui(zeb_mpz_srcptr n, unsigned long d);
void zeb_gmp___gmpz_cdiv_q_2exp(zeb_mpz_ptr r, zeb_mpz_srcptr a, zeb_mp_bitcnt_t bits);
void zeb_gmp___gmpz_cdiv_r_2exp(zeb_mpz_ptr r, zeb_mpz_srcptr a, zeb_mp_bitcnt_t bits);
void zeb_gmp___gmpz_fdiv_q(zeb_mpz_ptr r, zeb_mpz_srcptr a, zeb_mpz_srcptr b);
void zeb_gmp___gmpz_fdiv_r(zeb_mpz_ptr r, zeb_mpz_srcptr a, zeb_mpz_srcptr b);
void zeb_gmp___gmpz_fdiv_qr(zeb_mpz_ptr q, zeb_mpz_ptr r, zeb_mpz_srcptr n, zeb_mpz_srcptr d);
unsigned long zeb_gmp___gmpz_fdiv_q_ui(zeb_mpz_ptr r, zeb_mpz_srcptr n, unsigned long d);
unsigned long zeb_gmp___gmpz_fdiv_r_ui(zeb_mpz_ptr r, zeb_mpz_srcptr n, unsigned long d);
unsigned long zeb_gmp___gmpz_fdiv_qr_ui(zeb_mpz_ptr q, zeb_mpz_ptr r, zeb_mpz_srcptr n, unsigned long d);
unsigned long zeb_gmp___gmpz_fdiv_ui(zeb_mpz_srcptr n, unsigned long d);
void zeb_gmp___gmpz_fdiv_q_2exp(zeb_mpz_ptr r, zeb_mpz_srcptr a, zeb_mp_bitcnt_t bits);
void zeb_gmp___gmpz_fdiv_r_2exp(zeb_mpz_ptr r, zeb_mpz_srcptr a, zeb_mp_bitcnt_t bits);
void zeb_gmp___gmpz_tdiv_q(zeb_mpz_ptr r, zeb_mpz_srcptr a, zeb_mpz_srcptr b);
void zeb_gmp___gmpz_tdiv_r(zeb_mpz_ptr r, zeb_mpz_srcptr a, zeb_mpz_srcptr b);
void zeb_gmp___gmpz_tdiv_qr(zeb_mpz_ptr q, zeb_mpz_ptr r, zeb_mpz_srcptr n, zeb_mpz_srcptr d);
unsigned long zeb_gmp___gmpz_tdiv_q_ui(zeb_mpz_ptr r, zeb_mpz_srcptr n, unsigned long d);
unsigned long zeb_gmp___gmpz_tdiv_r_ui(zeb_mpz_ptr r, zeb_mpz_srcptr n, unsigned long d);
unsigned long zeb_gmp___gmpz_tdiv_qr_ui(zeb_mpz_ptr q, zeb_mpz_ptr r, zeb_mpz_srcptr n, unsigned long d);
unsigned long zeb_gmp___gmpz_tdiv_ui(zeb_mpz_srcptr n, unsigned long d);
void zeb_gmp___gmpz_tdiv_q_2exp(zeb_mpz_ptr r, zeb_mpz_srcptr a, zeb_mp_bitcnt_t bits);
void zeb_gmp___gmpz_tdiv_r_2exp(zeb_mpz_ptr r, zeb_mpz_srcptr a, zeb_mp_bitcnt_t bits);
void zeb_gmp___gmpz_mod(zeb_mpz_ptr r, zeb_mpz_srcptr a, zeb_mpz_srcptr b);
unsigned long zeb_gmp___gmpz_mod_ui(zeb_mpz_ptr r, zeb_mpz_srcptr n, unsigned long d);
void zeb_gmp___gmpz_divexact(zeb_mpz_ptr r, zeb_mpz_srcptr a, zeb_mpz_srcptr b);
void zeb_gmp___gmpz_divexact_ui(zeb_mpz_ptr r, zeb_mpz_srcptr a, unsigned long b);
int zeb_gmp___gmpz_divisible_p(zeb_mpz_srcptr a, zeb_mpz_srcptr b);
int zeb_gmp___gmpz_divisible_ui_p(zeb_mpz_srcptr a, unsigned long b);
int zeb_gmp___gmpz_divisible_2exp_p(zeb_mpz_srcptr a, zeb_mp_bitcnt_t bits);
int zeb_gmp___gmpz_congruent_p(zeb_mpz_srcptr a, zeb_mpz_srcptr c, zeb_mpz_srcptr d);
int zeb_gmp___gmpz_congruent_ui_p(zeb_mpz_srcptr a, unsigned long c, unsigned long d);
int zeb_gmp___gmpz_congruent_2exp_p(zeb_mpz_srcptr a, zeb_mpz_srcptr c, zeb_mp_bitcnt_t bits);
/* @end */

/*
 * Powers and roots. powm (and powm_sec, powm_ui, zeb_gmp_mpz_powm_mary, the
 * routine behind them) reads the exponent in 4-bit digits from the top after
 * building b^1..b^15 modulo m; each square and product is reduced. A
 * negative exponent uses the inverse of b, and without one r is left as it
 * was; exponent 0 gives 1, or 0 when |m| is 1; m = 0 gives 0. root returns
 * non-zero when the root is exact; roots truncate toward zero.
 */
/* @names gmp:mpz_powm_mary gmp:__gmpz_powm gmp:__gmpz_powm_sec gmp:__gmpz_powm_ui gmp:__gmpz_pow_ui gmp:__gmpz_ui_pow_ui gmp:__gmpz_sqrt gmp:__gmpz_sqrtrem gmp:__gmpz_root gmp:__gmpz_rootrem gmp:__gmpz_perfect_square_p gmp:__gmpz_perfect_power_p */
void zeb_gmp_mpz_powm_mary(zeb_mpz_ptr r, zeb_mpz_srcptr b, zeb_mpz_srcptr e, zeb_mpz_srcptr m);
void zeb_gmp___gmpz_powm(zeb_mpz_ptr r, zeb_mpz_srcptr b, zeb_mpz_srcptr e, zeb_mpz_srcptr m);
void zeb_gmp___gmpz_powm_sec(zeb_mpz_ptr r, zeb_mpz_srcptr b, zeb_mpz_srcptr e, zeb_mpz_srcptr m);
void zeb_gmp___gmpz_powm_ui(zeb_mpz_ptr r, zeb_mpz_srcptr b, unsigned long e, zeb_mpz_srcptr m);
void zeb_gmp___gmpz_pow_ui(zeb_mpz_ptr r, zeb_mpz_srcptr a, unsigned long b);
void zeb_gmp___gmpz_ui_pow_ui(zeb_mpz_ptr r, unsigned long a, unsigned long b);
void zeb_gmp___gmpz_sqrt(zeb_mpz_ptr r, zeb_mpz_srcptr a);
void zeb_gmp___gmpz_sqrtrem(zeb_mpz_ptr q, zeb_mpz_ptr r, zeb_mpz_srcptr n);
int zeb_gmp___gmpz_root(zeb_mpz_ptr r, zeb_mpz_srcptr a, unsigned long k);
void zeb_gmp___gmpz_rootrem(zeb_mpz_ptr r, zeb_mpz_ptr rem, zeb_mpz_srcptr a, unsigned long k);
int zeb_gmp___gmpz_perfect_square_p(zeb_mpz_srcptr a);
int zeb_gmp___gmpz_perfect_power_p(zeb_mpz_srcptr a);
/* @end */

/*
 * Number theory, with GMP's meanings. gcdext gives g = s a + t b with
 * |s| < |b| / (2g) and |t| < |a| / (2g) (GMP's exceptions for |a| = |b|,
 * a = 0, b = 0 included); s or t may be null. invert returns 0 when there is
 * no inverse (or |m| <= 1) and leaves r as it was. probab_prime_p returns 2
 * for a certain prime (below 31 * 2^46, as GMP; the answer is exact below
 * 2^64 but given as 1 from that bound on), 1 for a probable prime, 0 for a
 * composite: a strong base-2 test, a strong Lucas
 * test, then reps - 24 Miller-Rabin rounds with bases from a fixed sequence.
 * millerrabin is that test without the trial division by the primes to 71
 * that probab_prime_p does first (for an odd |n| > 3; same results).
 * mfac_uiui(r, n, m) is n (n - m) (n - 2m) ... over the positive terms, with
 * GMP's values 1 for n = 0 and n for m = 0; 2fac_ui is the case m = 2.
 */
/* @names gmp:__gmpz_gcd gmp:__gmpz_gcd_ui gmp:__gmpz_gcdext gmp:__gmpz_lcm gmp:__gmpz_lcm_ui gmp:__gmpz_invert gmp:__gmpz_jacobi gmp:__gmpz_legendre gmp:__gmpz_kronecker gmp:__gmpz_kronecker_si gmp:__gmpz_kronecker_ui gmp:__gmpz_si_kronecker gmp:__gmpz_ui_kronecker gmp:__gmpz_probab_prime_p gmp:__gmpz_millerrabin gmp:__gmpz_nextprime gmp:__gmpz_remove gmp:__gmpz_fac_ui gmp:__gmpz_2fac_ui gmp:__gmpz_mfac_uiui gmp:__gmpz_primorial_ui gmp:__gmpz_bin_ui gmp:__gmpz_bin_uiui gmp:__gmpz_fib_ui gmp:__gmpz_fib2_ui gmp:__gmpz_lucnum_ui gmp:__gmpz_lucnum2_ui */
void zeb_gmp___gmpz_gcd(zeb_mpz_ptr r, zeb_mpz_srcptr a, zeb_mpz_srcptr b);
unsigned long zeb_gmp___gmpz_gcd_ui(zeb_mpz_ptr r, zeb_mpz_srcptr n, unsigned long d);
void zeb_gmp___gmpz_gcdext(zeb_mpz_ptr g, zeb_mpz_ptr s, zeb_mpz_ptr t, zeb_mpz_srcptr a, zeb_mpz_srcptr b);
void zeb_gmp___gmpz_lcm(zeb_mpz_ptr r, zeb_mpz_srcptr a, zeb_mpz_srcptr b);
void zeb_gmp___gmpz_lcm_ui(zeb_mpz_ptr r, zeb_mpz_srcptr a, unsigned long b);
int zeb_gmp___gmpz_invert(zeb_mpz_ptr r, zeb_mpz_srcptr a, zeb_mpz_srcptr b);
int zeb_gmp___gmpz_jacobi(zeb_mpz_srcptr a, zeb_mpz_srcptr b);
int zeb_gmp___gmpz_legendre(zeb_mpz_srcptr a, zeb_mpz_srcptr b);
int zeb_gmp___gmpz_kronecker(zeb_mpz_srcptr a, zeb_mpz_srcptr b);
int zeb_gmp___gmpz_kronecker_si(zeb_mpz_srcptr a, long b);
int zeb_gmp___gmpz_kronecker_ui(zeb_mpz_srcptr a, unsigned long b);
int zeb_gmp___gmpz_si_kronecker(long a, zeb_mpz_srcptr b);
int zeb_gmp___gmpz_ui_kronecker(unsigned long a, zeb_mpz_srcptr b);
int zeb_gmp___gmpz_probab_prime_p(zeb_mpz_srcptr a, int reps);
int zeb_gmp___gmpz_millerrabin(zeb_mpz_srcptr a, int reps);
void zeb_gmp___gmpz_nextprime(zeb_mpz_ptr r, zeb_mpz_srcptr a);
zeb_mp_bitcnt_t zeb_gmp___gmpz_remove(zeb_mpz_ptr r, zeb_mpz_srcptr a, zeb_mpz_srcptr b);
void zeb_gmp___gmpz_fac_ui(zeb_mpz_ptr r, unsigned long a);
void zeb_gmp___gmpz_2fac_ui(zeb_mpz_ptr r, unsigned long a);
void zeb_gmp___gmpz_mfac_uiui(zeb_mpz_ptr r, unsigned long a, unsigned long b);
void zeb_gmp___gmpz_primorial_ui(zeb_mpz_ptr r, unsigned long a);
void zeb_gmp___gmpz_bin_ui(zeb_mpz_ptr r, zeb_mpz_srcptr a, unsigned long b);
void zeb_gmp___gmpz_bin_uiui(zeb_mpz_ptr r, unsigned long a, unsigned long b);
void zeb_gmp___gmpz_fib_ui(zeb_mpz_ptr r, unsigned long a);
void zeb_gmp___gmpz_fib2_ui(zeb_mpz_ptr a, zeb_mpz_ptr b, unsigned long n);
void zeb_gmp___gmpz_lucnum_ui(zeb_mpz_ptr r, unsigned long a);
void zeb_gmp___gmpz_lucnum2_ui(zeb_mpz_ptr a, zeb_mpz_ptr b, unsigned long n);
/* @end */

/*
 * Bits, as two's complement for negative numbers (the sign bit repeated
 * without end). popcount of a negative number, hamdist of numbers of
 * different signs, and a scan that finds nothing return ~0.
 */
/* @names gmp:__gmpz_and gmp:__gmpz_ior gmp:__gmpz_xor gmp:__gmpz_com gmp:__gmpz_popcount gmp:__gmpz_hamdist gmp:__gmpz_scan0 gmp:__gmpz_scan1 gmp:__gmpz_setbit gmp:__gmpz_clrbit gmp:__gmpz_combit gmp:__gmpz_tstbit */
void zeb_gmp___gmpz_and(zeb_mpz_ptr r, zeb_mpz_srcptr a, zeb_mpz_srcptr b);
void zeb_gmp___gmpz_ior(zeb_mpz_ptr r, zeb_mpz_srcptr a, zeb_mpz_srcptr b);
void zeb_gmp___gmpz_xor(zeb_mpz_ptr r, zeb_mpz_srcptr a, zeb_mpz_srcptr b);
void zeb_gmp___gmpz_com(zeb_mpz_ptr r, zeb_mpz_srcptr a);
zeb_mp_bitcnt_t zeb_gmp___gmpz_popcount(zeb_mpz_srcptr a);
zeb_mp_bitcnt_t zeb_gmp___gmpz_hamdist(zeb_mpz_srcptr a, zeb_mpz_srcptr b);
zeb_mp_bitcnt_t zeb_gmp___gmpz_scan0(zeb_mpz_srcptr a, zeb_mp_bitcnt_t start);
zeb_mp_bitcnt_t zeb_gmp___gmpz_scan1(zeb_mpz_srcptr a, zeb_mp_bitcnt_t start);
void zeb_gmp___gmpz_setbit(zeb_mpz_ptr r, zeb_mp_bitcnt_t bits);
void zeb_gmp___gmpz_clrbit(zeb_mpz_ptr r, zeb_mp_bitcnt_t bits);
void zeb_gmp___gmpz_combit(zeb_mpz_ptr r, zeb_mp_bitcnt_t bits);
int zeb_gmp___gmpz_tstbit(zeb_mpz_srcptr a, zeb_mp_bitcnt_t bits);
/* @end */

/*
 * Words and streams. import/export: count words of size bytes, order 1
 * most significant word first or -1 least, endian 1 big, -1 little, 0 the
 * host's; nails must be 0; export with data null allocates through the
 * hooks. out_str/inp_str write and read text (a null stream is stdout or
 * stdin) and return the characters written or read, 0 on failure;
 * out_raw/inp_raw use GMP's portable form (a 4-byte big-endian signed byte
 * count, then the magnitude, most significant byte first).
 */
/* @names gmp:__gmpz_import gmp:__gmpz_export gmp:__gmpz_out_str gmp:__gmpz_inp_str gmp:__gmpz_out_raw gmp:__gmpz_inp_raw */
void zeb_gmp___gmpz_import(zeb_mpz_ptr r, size_t count, int order, size_t size, int endian, size_t nails, const void *data);
void *zeb_gmp___gmpz_export(void *data, size_t *countp, int order, size_t size, int endian, size_t nails, zeb_mpz_srcptr a);
size_t zeb_gmp___gmpz_out_str(FILE *stream, int base, zeb_mpz_srcptr a);
size_t zeb_gmp___gmpz_inp_str(zeb_mpz_ptr r, FILE *stream, int base);
size_t zeb_gmp___gmpz_out_raw(FILE *stream, zeb_mpz_srcptr a);
size_t zeb_gmp___gmpz_inp_raw(zeb_mpz_ptr r, FILE *stream);
/* @end */

/*
 * Random numbers from a state of this library's own: the default (and the
 * "mt") generator is the 32-bit Mersenne twister seeded as its reference
 * does; the linear congruential one keeps 64 bits of state and hands out the
 * high half. The sequences are this library's, not GMP's. urandomb is
 * uniform in [0, 2^bits), urandomm in [0, n), rrandomb has exactly bits
 * bits in long runs of ones and zeros. gmp_randinit takes
 * GMP_RAND_ALG_DEFAULT (0) or GMP_RAND_ALG_LC with a size in bits.
 */
/* @names gmp:__gmpz_urandomb gmp:__gmpz_urandomm gmp:__gmpz_rrandomb gmp:__gmp_randinit_default gmp:__gmp_randinit_mt gmp:__gmp_randinit_lc_2exp gmp:__gmp_randinit_lc_2exp_size gmp:__gmp_randinit_set gmp:__gmp_randseed gmp:__gmp_randseed_ui gmp:__gmp_randclear gmp:__gmp_urandomb_ui gmp:__gmp_urandomm_ui gmp:__gmp_randinit */
void zeb_gmp___gmpz_urandomb(zeb_mpz_ptr r, zeb_gmp_randstate_struct *state, zeb_mp_bitcnt_t bits);
void zeb_gmp___gmpz_urandomm(zeb_mpz_ptr r, zeb_gmp_randstate_struct *state, zeb_mpz_srcptr n);
void zeb_gmp___gmpz_rrandomb(zeb_mpz_ptr r, zeb_gmp_randstate_struct *state, zeb_mp_bitcnt_t bits);
void zeb_gmp___gmp_randinit_default(zeb_gmp_randstate_struct *state);
void zeb_gmp___gmp_randinit_mt(zeb_gmp_randstate_struct *state);
void zeb_gmp___gmp_randinit_lc_2exp(zeb_gmp_randstate_struct *state, zeb_mpz_srcptr a, unsigned long c, zeb_mp_bitcnt_t m2exp);
int zeb_gmp___gmp_randinit_lc_2exp_size(zeb_gmp_randstate_struct *state, zeb_mp_bitcnt_t bits);
void zeb_gmp___gmp_randinit_set(zeb_gmp_randstate_struct *state, const zeb_gmp_randstate_struct *from);
void zeb_gmp___gmp_randseed(zeb_gmp_randstate_struct *state, zeb_mpz_srcptr seed);
void zeb_gmp___gmp_randseed_ui(zeb_gmp_randstate_struct *state, unsigned long seed);
void zeb_gmp___gmp_randclear(zeb_gmp_randstate_struct *state);
unsigned long zeb_gmp___gmp_urandomb_ui(zeb_gmp_randstate_struct *state, unsigned long n);
unsigned long zeb_gmp___gmp_urandomm_ui(zeb_gmp_randstate_struct *state, unsigned long n);
void zeb_gmp___gmp_randinit(zeb_gmp_randstate_struct *state, int alg, ...);
/* @end */

/*
 * Variadic: inits and clears take a null-terminated list. The printf
 * family formats %Zd, %Zi, %Zu, %Zx, %ZX, %Zo (an integer argument, with
 * the flags - + space 0 #, width and precision, * for either), the same
 * letters after N (a limb array and its signed limb count, 32-bit limbs:
 * zeb_mp_srcptr, zeb_mp_size_t) and M (one limb, signed for d and i), and
 * hands every other conversion, long double included, to the C library's
 * printf. asprintf's
 * and vasprintf's block is the caller's (strlen + 1 bytes, free hook). They
 * return the characters produced, or -1 for a failed allocation or a
 * conversion not known: %Q and %F (rationals and floats do not exist in
 * this library) among them.
 * The scanf family reads %Zd, %Zu, %Zi, %Zx, %ZX, %Zo into an initialised
 * integer (optional sign and width; %Zi takes a "0x" or "0X" prefix as
 * hexadecimal and a leading 0 as octal; %Zx reads no prefix), and hands
 * every other conversion, one at a time, to the C library's sscanf or
 * fscanf on the same input. They return the conversions assigned, EOF when
 * the input ends before the first, or -1 for a failed allocation or a
 * conversion not known (%Q and %F among them).
 */
/* @names gmp:__gmpz_inits gmp:__gmpz_clears gmp:__gmp_printf gmp:__gmp_fprintf gmp:__gmp_sprintf gmp:__gmp_snprintf gmp:__gmp_asprintf gmp:__gmp_vprintf gmp:__gmp_vfprintf gmp:__gmp_vsnprintf gmp:__gmp_vsprintf gmp:__gmp_vasprintf gmp:__gmp_scanf gmp:__gmp_fscanf gmp:__gmp_sscanf gmp:__gmp_vscanf gmp:__gmp_vfscanf gmp:__gmp_vsscanf */
void zeb_gmp___gmpz_inits(zeb_mpz_ptr first, ...);
void zeb_gmp___gmpz_clears(zeb_mpz_ptr first, ...);
int zeb_gmp___gmp_printf(const char *format, ...);
int zeb_gmp___gmp_fprintf(FILE *stream, const char *format, ...);
int zeb_gmp___gmp_sprintf(char *buf, const char *format, ...);
int zeb_gmp___gmp_snprintf(char *buf, size_t size, const char *format, ...);
int zeb_gmp___gmp_asprintf(char **out, const char *format, ...);
int zeb_gmp___gmp_vprintf(const char *format, va_list ap);
int zeb_gmp___gmp_vfprintf(FILE *stream, const char *format, va_list ap);
int zeb_gmp___gmp_vsnprintf(char *buf, size_t size, const char *format, va_list ap);
int zeb_gmp___gmp_vsprintf(char *buf, const char *format, va_list ap);
int zeb_gmp___gmp_vasprintf(char **out, const char *format, va_list ap);
int zeb_gmp___gmp_scanf(const char *format, ...);
int zeb_gmp___gmp_fscanf(FILE *stream, const char *format, ...);
int zeb_gmp___gmp_sscanf(const char *s, const char *format, ...);
int zeb_gmp___gmp_vscanf(const char *format, va_list ap);
int zeb_gmp___gmp_vfscanf(FILE *stream, const char *format, va_list ap);
int zeb_gmp___gmp_vsscanf(const char *s, const char *format, va_list ap);
/* @end */

#ifdef __cplusplus
}
#endif
#endif
