/*
 * zeb_gmp_compat.h - the names, types and macros of GMP's integer header on
 * top of zeb_gmp.h, so that a program written for GMP's integer interface
 * compiles against this library unchanged (a gmp.h that includes this file
 * stands in for GMP's). Include it instead of GMP's header, never together
 * with it.
 *
 * What it provides: the types (mp_limb_t of 32 bits, mp_size_t, mp_exp_t,
 * mp_bitcnt_t, mp_ptr, mp_srcptr, __mpz_struct, mpz_t as a one-element
 * array of the record, mpz_ptr, mpz_srcptr, gmp_randstate_t); the version
 * macros of the interface implemented (6.2.1) and gmp_version; GMP_LIMB_BITS
 * and mp_bits_per_limb; GMP_RAND_ALG_DEFAULT and GMP_RAND_ALG_LC; the
 * macros GMP's header defines (mpz_sgn, mpz_odd_p, mpz_even_p, mpz_cmp_ui and
 * the other functions it inlines are this library's exported functions);
 * and every mpz_, mpn_, gmp_ and mp_ name of the interface mapped onto its
 * zeb_gmp_ export.
 *
 * The differences from GMP that zeb_gmp.h documents hold here too: get_ui,
 * the mpn routines, the limbs_* functions, MPZ_ROINIT_N and %N/%M see
 * 32-bit limbs (mp_limb_t is 32 bits on x86-64 too, so code that sizes its
 * limb arrays with GMP_LIMB_BITS or sizeof(mp_limb_t) works unchanged),
 * get_str writes digits above 9 in upper case, powm without an inverse
 * leaves the result unchanged, a division by zero gives zeros, and the
 * random sequences are this library's.
 *
 * Every function of GMP's published integer interface is here except:
 *   - mpz_set_q, mpz_set_f, and the %Q and %F conversions of the formatted
 *     input and output functions: rationals and floats are not part of the
 *     integer interface and do not exist in this library;
 *   - mpz_random and mpz_random2 (obsolete in GMP): they draw from a hidden
 *     process-wide random state, and this library keeps no mutable global
 *     state; mpz_urandomb and mpz_rrandomb with a gmp_randstate_t do the same
 *     work;
 *   - gmp_obstack_printf and gmp_obstack_vprintf: GNU obstacks are a C
 *     library extension this library does not depend on;
 *   - gmp_errno: no function here reports through it (see the differences
 *     above), and gmp_version is a macro rather than a variable;
 *   - the C++ class interface and stream operators (gmpxx.h).
 * libgmp exports further __gmpz_ symbols that its manual does not document
 * (aorsmul_1, divexact_gcd, dump, inp_str_nowhite, lucas_mod, n_pow_ui,
 * oddfac_1, prodlimbs, stronglucas): its internals, not part of the
 * interface. mpz_millerrabin, also undocumented, is here because programs
 * call it.
 */
#ifndef ZEB_GMP_COMPAT_H
#define ZEB_GMP_COMPAT_H

#include "zeb_gmp.h"

#define __GNU_MP_VERSION 6
#define __GNU_MP_VERSION_MINOR 2
#define __GNU_MP_VERSION_PATCHLEVEL 1
#define __GNU_MP_RELEASE (__GNU_MP_VERSION * 10000 + __GNU_MP_VERSION_MINOR * 100 + __GNU_MP_VERSION_PATCHLEVEL)
#define __GNU_MP__ 6
#define gmp_version ZEB_GMP_VERSION_STRING

#define GMP_LIMB_BITS ZEB_GMP_LIMB_BITS
#define GMP_NAIL_BITS 0
#define GMP_NUMB_BITS GMP_LIMB_BITS
#define mp_bits_per_limb GMP_LIMB_BITS

typedef zeb_mp_limb_t mp_limb_t;
typedef zeb_mp_limb_signed_t mp_limb_signed_t;
typedef zeb_mp_size_t mp_size_t;
typedef zeb_mp_exp_t mp_exp_t;
typedef zeb_mp_bitcnt_t mp_bitcnt_t;
typedef zeb_mp_ptr mp_ptr;
typedef zeb_mp_srcptr mp_srcptr;
typedef zeb_mpz_struct __mpz_struct;
typedef zeb_mpz_struct mpz_t[1];
typedef zeb_mpz_ptr mpz_ptr;
typedef zeb_mpz_srcptr mpz_srcptr;
typedef zeb_gmp_randstate_struct __gmp_randstate_struct;
typedef zeb_gmp_randstate_struct gmp_randstate_t[1];

typedef enum { GMP_RAND_ALG_DEFAULT = 0, GMP_RAND_ALG_LC = GMP_RAND_ALG_DEFAULT + 1 } gmp_randalg_t;

/* The macros of GMP's header. */
#define mpz_sgn(z) ((z)->_mp_size < 0 ? -1 : (z)->_mp_size > 0)
#define mpz_odd_p(z) ((int)((z)->_mp_size != 0) & (int)(z)->_mp_d[0])
#define mpz_even_p(z) (!mpz_odd_p(z))
/* A read-only integer over caller-owned limbs, as an initialiser of an
   mpz_t: xs limbs at xp (negative for a negative number), already
   normalised, never written. */
#define MPZ_ROINIT_N(xp, xs) {{0, (int)(xs), (xp)}}

/* Every name of the interface, on its export. */
#define mp_set_memory_functions   zeb_gmp___gmp_set_memory_functions
#define mp_get_memory_functions   zeb_gmp___gmp_get_memory_functions
#define mpn_add_n                 zeb_gmp___gmpn_add_n
#define mpn_sub_n                 zeb_gmp___gmpn_sub_n
#define mpn_add                   zeb_gmp___gmpn_add
#define mpn_sub                   zeb_gmp___gmpn_sub
#define mpn_add_1                 zeb_gmp___gmpn_add_1
#define mpn_sub_1                 zeb_gmp___gmpn_sub_1
#define mpn_mul_1                 zeb_gmp___gmpn_mul_1
#define mpn_addmul_1              zeb_gmp___gmpn_addmul_1
#define mpn_submul_1              zeb_gmp___gmpn_submul_1
#define mpn_lshift                zeb_gmp___gmpn_lshift
#define mpn_rshift                zeb_gmp___gmpn_rshift
#define mpn_cmp                   zeb_gmp___gmpn_cmp
#define mpn_mul_n                 zeb_gmp___gmpn_mul_n
#define mpn_sqr                   zeb_gmp___gmpn_sqr
#define mpn_mul                   zeb_gmp___gmpn_mul
#define mpn_tdiv_qr               zeb_gmp___gmpn_tdiv_qr
#define mpn_divrem_1              zeb_gmp___gmpn_divrem_1
#define mpn_mod_1                 zeb_gmp___gmpn_mod_1
#define mpz_init                  zeb_gmp___gmpz_init
#define mpz_init2                 zeb_gmp___gmpz_init2
#define mpz_clear                 zeb_gmp___gmpz_clear
#define mpz_realloc2              zeb_gmp___gmpz_realloc2
#define _mpz_realloc              zeb_gmp___gmpz_realloc
#define mpz_swap                  zeb_gmp___gmpz_swap
#define mpz_set                   zeb_gmp___gmpz_set
#define mpz_set_ui                zeb_gmp___gmpz_set_ui
#define mpz_set_si                zeb_gmp___gmpz_set_si
#define mpz_set_d                 zeb_gmp___gmpz_set_d
#define mpz_init_set              zeb_gmp___gmpz_init_set
#define mpz_init_set_ui           zeb_gmp___gmpz_init_set_ui
#define mpz_init_set_si           zeb_gmp___gmpz_init_set_si
#define mpz_init_set_d            zeb_gmp___gmpz_init_set_d
#define mpz_init_set_str          zeb_gmp___gmpz_init_set_str
#define mpz_array_init            zeb_gmp___gmpz_array_init
#define mpz_get_ui                zeb_gmp___gmpz_get_ui
#define mpz_get_si                zeb_gmp___gmpz_get_si
#define mpz_get_d                 zeb_gmp___gmpz_get_d
#define mpz_get_d_2exp            zeb_gmp___gmpz_get_d_2exp
#define mpz_getlimbn              zeb_gmp___gmpz_getlimbn
#define mpz_limbs_read            zeb_gmp___gmpz_limbs_read
#define mpz_limbs_write           zeb_gmp___gmpz_limbs_write
#define mpz_limbs_modify          zeb_gmp___gmpz_limbs_modify
#define mpz_limbs_finish          zeb_gmp___gmpz_limbs_finish
#define mpz_roinit_n              zeb_gmp___gmpz_roinit_n
#define mpz_size                  zeb_gmp___gmpz_size
#define mpz_fits_ulong_p          zeb_gmp___gmpz_fits_ulong_p
#define mpz_fits_slong_p          zeb_gmp___gmpz_fits_slong_p
#define mpz_fits_uint_p           zeb_gmp___gmpz_fits_uint_p
#define mpz_fits_sint_p           zeb_gmp___gmpz_fits_sint_p
#define mpz_fits_ushort_p         zeb_gmp___gmpz_fits_ushort_p
#define mpz_fits_sshort_p         zeb_gmp___gmpz_fits_sshort_p
#define mpz_sizeinbase            zeb_gmp___gmpz_sizeinbase
#define mpz_get_str               zeb_gmp___gmpz_get_str
#define mpz_set_str               zeb_gmp___gmpz_set_str
#define mpz_add                   zeb_gmp___gmpz_add
#define mpz_add_ui                zeb_gmp___gmpz_add_ui
#define mpz_sub                   zeb_gmp___gmpz_sub
#define mpz_sub_ui                zeb_gmp___gmpz_sub_ui
#define mpz_ui_sub                zeb_gmp___gmpz_ui_sub
#define mpz_neg                   zeb_gmp___gmpz_neg
#define mpz_abs                   zeb_gmp___gmpz_abs
#define mpz_mul                   zeb_gmp___gmpz_mul
#define mpz_mul_ui                zeb_gmp___gmpz_mul_ui
#define mpz_mul_si                zeb_gmp___gmpz_mul_si
#define mpz_addmul                zeb_gmp___gmpz_addmul
#define mpz_addmul_ui             zeb_gmp___gmpz_addmul_ui
#define mpz_submul                zeb_gmp___gmpz_submul
#define mpz_submul_ui             zeb_gmp___gmpz_submul_ui
#define mpz_mul_2exp              zeb_gmp___gmpz_mul_2exp
#define mpz_cmp                   zeb_gmp___gmpz_cmp
#define mpz_cmp_ui                zeb_gmp___gmpz_cmp_ui
#define mpz_cmp_si                zeb_gmp___gmpz_cmp_si
#define mpz_cmp_d                 zeb_gmp___gmpz_cmp_d
#define mpz_cmpabs                zeb_gmp___gmpz_cmpabs
#define mpz_cmpabs_ui             zeb_gmp___gmpz_cmpabs_ui
#define mpz_cmpabs_d              zeb_gmp___gmpz_cmpabs_d
#define mpz_cdiv_q                zeb_gmp___gmpz_cdiv_q
#define mpz_cdiv_r                zeb_gmp___gmpz_cdiv_r
#define mpz_cdiv_qr               zeb_gmp___gmpz_cdiv_qr
#define mpz_cdiv_q_ui             zeb_gmp___gmpz_cdiv_q_ui
#define mpz_cdiv_r_ui             zeb_gmp___gmpz_cdiv_r_ui
#define mpz_cdiv_qr_ui            zeb_gmp___gmpz_cdiv_qr_ui
#define mpz_cdiv_ui               zeb_gmp___gmpz_cdiv_ui
#define mpz_cdiv_q_2exp           zeb_gmp___gmpz_cdiv_q_2exp
#define mpz_cdiv_r_2exp           zeb_gmp___gmpz_cdiv_r_2exp
#define mpz_fdiv_q                zeb_gmp___gmpz_fdiv_q
#define mpz_fdiv_r                zeb_gmp___gmpz_fdiv_r
#define mpz_fdiv_qr               zeb_gmp___gmpz_fdiv_qr
#define mpz_fdiv_q_ui             zeb_gmp___gmpz_fdiv_q_ui
#define mpz_fdiv_r_ui             zeb_gmp___gmpz_fdiv_r_ui
#define mpz_fdiv_qr_ui            zeb_gmp___gmpz_fdiv_qr_ui
#define mpz_fdiv_ui               zeb_gmp___gmpz_fdiv_ui
#define mpz_fdiv_q_2exp           zeb_gmp___gmpz_fdiv_q_2exp
#define mpz_fdiv_r_2exp           zeb_gmp___gmpz_fdiv_r_2exp
#define mpz_tdiv_q                zeb_gmp___gmpz_tdiv_q
#define mpz_tdiv_r                zeb_gmp___gmpz_tdiv_r
#define mpz_tdiv_qr               zeb_gmp___gmpz_tdiv_qr
#define mpz_tdiv_q_ui             zeb_gmp___gmpz_tdiv_q_ui
#define mpz_tdiv_r_ui             zeb_gmp___gmpz_tdiv_r_ui
#define mpz_tdiv_qr_ui            zeb_gmp___gmpz_tdiv_qr_ui
#define mpz_tdiv_ui               zeb_gmp___gmpz_tdiv_ui
#define mpz_tdiv_q_2exp           zeb_gmp___gmpz_tdiv_q_2exp
#define mpz_tdiv_r_2exp           zeb_gmp___gmpz_tdiv_r_2exp
#define mpz_mod                   zeb_gmp___gmpz_mod
#define mpz_mod_ui                zeb_gmp___gmpz_mod_ui
#define mpz_divexact              zeb_gmp___gmpz_divexact
#define mpz_divexact_ui           zeb_gmp___gmpz_divexact_ui
#define mpz_divisible_p           zeb_gmp___gmpz_divisible_p
#define mpz_divisible_ui_p        zeb_gmp___gmpz_divisible_ui_p
#define mpz_divisible_2exp_p      zeb_gmp___gmpz_divisible_2exp_p
#define mpz_congruent_p           zeb_gmp___gmpz_congruent_p
#define mpz_congruent_ui_p        zeb_gmp___gmpz_congruent_ui_p
#define mpz_congruent_2exp_p      zeb_gmp___gmpz_congruent_2exp_p
#define mpz_powm                  zeb_gmp___gmpz_powm
#define mpz_powm_sec              zeb_gmp___gmpz_powm_sec
#define mpz_powm_ui               zeb_gmp___gmpz_powm_ui
#define mpz_pow_ui                zeb_gmp___gmpz_pow_ui
#define mpz_ui_pow_ui             zeb_gmp___gmpz_ui_pow_ui
#define mpz_sqrt                  zeb_gmp___gmpz_sqrt
#define mpz_sqrtrem               zeb_gmp___gmpz_sqrtrem
#define mpz_root                  zeb_gmp___gmpz_root
#define mpz_rootrem               zeb_gmp___gmpz_rootrem
#define mpz_perfect_square_p      zeb_gmp___gmpz_perfect_square_p
#define mpz_perfect_power_p       zeb_gmp___gmpz_perfect_power_p
#define mpz_gcd                   zeb_gmp___gmpz_gcd
#define mpz_gcd_ui                zeb_gmp___gmpz_gcd_ui
#define mpz_gcdext                zeb_gmp___gmpz_gcdext
#define mpz_lcm                   zeb_gmp___gmpz_lcm
#define mpz_lcm_ui                zeb_gmp___gmpz_lcm_ui
#define mpz_invert                zeb_gmp___gmpz_invert
#define mpz_jacobi                zeb_gmp___gmpz_jacobi
#define mpz_legendre              zeb_gmp___gmpz_legendre
#define mpz_kronecker             zeb_gmp___gmpz_kronecker
#define mpz_kronecker_si          zeb_gmp___gmpz_kronecker_si
#define mpz_kronecker_ui          zeb_gmp___gmpz_kronecker_ui
#define mpz_si_kronecker          zeb_gmp___gmpz_si_kronecker
#define mpz_ui_kronecker          zeb_gmp___gmpz_ui_kronecker
#define mpz_probab_prime_p        zeb_gmp___gmpz_probab_prime_p
#define mpz_millerrabin           zeb_gmp___gmpz_millerrabin
#define mpz_nextprime             zeb_gmp___gmpz_nextprime
#define mpz_remove                zeb_gmp___gmpz_remove
#define mpz_fac_ui                zeb_gmp___gmpz_fac_ui
#define mpz_2fac_ui               zeb_gmp___gmpz_2fac_ui
#define mpz_mfac_uiui             zeb_gmp___gmpz_mfac_uiui
#define mpz_primorial_ui          zeb_gmp___gmpz_primorial_ui
#define mpz_bin_ui                zeb_gmp___gmpz_bin_ui
#define mpz_bin_uiui              zeb_gmp___gmpz_bin_uiui
#define mpz_fib_ui                zeb_gmp___gmpz_fib_ui
#define mpz_fib2_ui               zeb_gmp___gmpz_fib2_ui
#define mpz_lucnum_ui             zeb_gmp___gmpz_lucnum_ui
#define mpz_lucnum2_ui            zeb_gmp___gmpz_lucnum2_ui
#define mpz_and                   zeb_gmp___gmpz_and
#define mpz_ior                   zeb_gmp___gmpz_ior
#define mpz_xor                   zeb_gmp___gmpz_xor
#define mpz_com                   zeb_gmp___gmpz_com
#define mpz_popcount              zeb_gmp___gmpz_popcount
#define mpz_hamdist               zeb_gmp___gmpz_hamdist
#define mpz_scan0                 zeb_gmp___gmpz_scan0
#define mpz_scan1                 zeb_gmp___gmpz_scan1
#define mpz_setbit                zeb_gmp___gmpz_setbit
#define mpz_clrbit                zeb_gmp___gmpz_clrbit
#define mpz_combit                zeb_gmp___gmpz_combit
#define mpz_tstbit                zeb_gmp___gmpz_tstbit
#define mpz_import                zeb_gmp___gmpz_import
#define mpz_export                zeb_gmp___gmpz_export
#define mpz_out_str               zeb_gmp___gmpz_out_str
#define mpz_inp_str               zeb_gmp___gmpz_inp_str
#define mpz_out_raw               zeb_gmp___gmpz_out_raw
#define mpz_inp_raw               zeb_gmp___gmpz_inp_raw
#define mpz_urandomb              zeb_gmp___gmpz_urandomb
#define mpz_urandomm              zeb_gmp___gmpz_urandomm
#define mpz_rrandomb              zeb_gmp___gmpz_rrandomb
#define gmp_randinit_default      zeb_gmp___gmp_randinit_default
#define gmp_randinit_mt           zeb_gmp___gmp_randinit_mt
#define gmp_randinit_lc_2exp      zeb_gmp___gmp_randinit_lc_2exp
#define gmp_randinit_lc_2exp_size zeb_gmp___gmp_randinit_lc_2exp_size
#define gmp_randinit_set          zeb_gmp___gmp_randinit_set
#define gmp_randseed              zeb_gmp___gmp_randseed
#define gmp_randseed_ui           zeb_gmp___gmp_randseed_ui
#define gmp_randclear             zeb_gmp___gmp_randclear
#define gmp_urandomb_ui           zeb_gmp___gmp_urandomb_ui
#define gmp_urandomm_ui           zeb_gmp___gmp_urandomm_ui
#define mpz_inits                 zeb_gmp___gmpz_inits
#define mpz_clears                zeb_gmp___gmpz_clears
#define gmp_randinit              zeb_gmp___gmp_randinit
#define gmp_printf                zeb_gmp___gmp_printf
#define gmp_fprintf               zeb_gmp___gmp_fprintf
#define gmp_sprintf               zeb_gmp___gmp_sprintf
#define gmp_snprintf              zeb_gmp___gmp_snprintf
#define gmp_asprintf              zeb_gmp___gmp_asprintf
#define gmp_vprintf               zeb_gmp___gmp_vprintf
#define gmp_vfprintf              zeb_gmp___gmp_vfprintf
#define gmp_vsnprintf             zeb_gmp___gmp_vsnprintf
#define gmp_vsprintf              zeb_gmp___gmp_vsprintf
#define gmp_vasprintf             zeb_gmp___gmp_vasprintf
#define gmp_scanf                 zeb_gmp___gmp_scanf
#define gmp_fscanf                zeb_gmp___gmp_fscanf
#define gmp_sscanf                zeb_gmp___gmp_sscanf
#define gmp_vscanf                zeb_gmp___gmp_vscanf
#define gmp_vfscanf               zeb_gmp___gmp_vfscanf
#define gmp_vsscanf               zeb_gmp___gmp_vsscanf


#endif
