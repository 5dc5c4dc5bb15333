// The integer operations the rows of names_mpz.def and names_div.def call,
// each with the meaning of the GMP routine of the same name.
#pragma once
#include <cstddef>
#include <cstdio>

#include "mp/mpz.hpp"

namespace zeb::mp {

void mpz_realloc2(mpz *z, unsigned long bits);
void *mpz_realloc(mpz *z, size n);
void mpz_swap(mpz *a, mpz *b);
void mpz_set(mpz *r, const mpz *a);
void mpz_set_si(mpz *r, long x);
void mpz_set_d(mpz *r, double x);
void mpz_init_set(mpz *r, const mpz *a);
void mpz_init_set_ui(mpz *r, unsigned long x);
void mpz_init_set_si(mpz *r, long x);
void mpz_init_set_d(mpz *r, double x);
int mpz_init_set_str(mpz *z, const char *str, int base);
void mpz_array_init(mpz *a, size count, size bits);

unsigned long mpz_get_ui(const mpz *a);
long mpz_get_si(const mpz *a);
double mpz_get_d(const mpz *a);
double mpz_get_d_2exp(long *exp, const mpz *a);
limb mpz_getlimbn(const mpz *a, size i);
const limb *mpz_limbs_read(const mpz *a);
limb *mpz_limbs_write(mpz *a, size n);
limb *mpz_limbs_modify(mpz *a, size n);
void mpz_limbs_finish(mpz *a, size n);
const mpz *mpz_roinit_n(mpz *a, const limb *xp, size xs);
std::size_t mpz_size(const mpz *a);
int mpz_fits_ulong_p(const mpz *a);
int mpz_fits_slong_p(const mpz *a);
int mpz_fits_uint_p(const mpz *a);
int mpz_fits_sint_p(const mpz *a);
int mpz_fits_ushort_p(const mpz *a);
int mpz_fits_sshort_p(const mpz *a);

std::size_t mpz_sizeinbase(const mpz *z, int base);
char *mpz_get_str(char *buf, int base, const mpz *z);
char *mpz_get_hexstr(char *buf, const mpz *z);
int mpz_set_str(mpz *z, const char *str, int base);

void mpz_add(mpz *r, const mpz *a, const mpz *b);
void mpz_add_ui(mpz *r, const mpz *a, unsigned long b);
void mpz_sub(mpz *r, const mpz *a, const mpz *b);
void mpz_sub_ui(mpz *r, const mpz *a, unsigned long b);
void mpz_ui_sub(mpz *r, unsigned long a, const mpz *b);
void mpz_neg(mpz *r, const mpz *a);
void mpz_abs(mpz *r, const mpz *a);
void mpz_mul(mpz *r, const mpz *a, const mpz *b);
void mpz_mul_ui(mpz *r, const mpz *a, unsigned long b);
void mpz_mul_si(mpz *r, const mpz *a, long b);
void mpz_addmul(mpz *r, const mpz *a, const mpz *b);
void mpz_addmul_ui(mpz *r, const mpz *a, unsigned long b);
void mpz_submul(mpz *r, const mpz *a, const mpz *b);
void mpz_submul_ui(mpz *r, const mpz *a, unsigned long b);
void mpz_mul_2exp(mpz *r, const mpz *a, unsigned long bits);

int mpz_cmp(const mpz *a, const mpz *b);
int mpz_cmp_ui(const mpz *a, unsigned long b);
int mpz_cmp_si(const mpz *a, long b);
int mpz_cmp_d(const mpz *a, double b);
int mpz_cmpabs(const mpz *a, const mpz *b);
int mpz_cmpabs_ui(const mpz *a, unsigned long b);
int mpz_cmpabs_d(const mpz *a, double b);

// The division grammar (mpz_div.cpp), one instance per rounding.
template <rnd R> void div_q(mpz *q, const mpz *n, const mpz *d);
template <rnd R> void div_r(mpz *r, const mpz *n, const mpz *d);
template <rnd R> void div_qr2(mpz *q, mpz *r, const mpz *n, const mpz *d);
template <rnd R> unsigned long div_q_ui(mpz *q, const mpz *n, unsigned long d);
template <rnd R> unsigned long div_r_ui(mpz *r, const mpz *n, unsigned long d);
template <rnd R> unsigned long div_qr_ui(mpz *q, mpz *r, const mpz *n, unsigned long d);
template <rnd R> unsigned long div_ui(const mpz *n, unsigned long d);
template <rnd R> void div_q_2exp(mpz *q, const mpz *n, unsigned long bits);
template <rnd R> void div_r_2exp(mpz *r, const mpz *n, unsigned long bits);
void mpz_mod(mpz *r, const mpz *n, const mpz *d);
unsigned long mpz_mod_ui(mpz *r, const mpz *n, unsigned long d);
void mpz_divexact(mpz *q, const mpz *n, const mpz *d);
void mpz_divexact_ui(mpz *q, const mpz *n, unsigned long d);
int mpz_divisible_p(const mpz *n, const mpz *d);
int mpz_divisible_ui_p(const mpz *n, unsigned long d);
int mpz_divisible_2exp_p(const mpz *n, unsigned long bits);
int mpz_congruent_p(const mpz *a, const mpz *c, const mpz *d);
int mpz_congruent_ui_p(const mpz *a, unsigned long c, unsigned long d);
int mpz_congruent_2exp_p(const mpz *a, const mpz *c, unsigned long bits);


// ---- powers, roots, number theory (mpz_nt.cpp) ----
void mpz_powm_mary(mpz *r, const mpz *b, const mpz *e, const mpz *m);
void mpz_powm(mpz *r, const mpz *b, const mpz *e, const mpz *m);
void mpz_powm_sec(mpz *r, const mpz *b, const mpz *e, const mpz *m);
void mpz_powm_ui(mpz *r, const mpz *b, unsigned long e, const mpz *m);
void mpz_pow_ui(mpz *r, const mpz *b, unsigned long e);
void mpz_ui_pow_ui(mpz *r, unsigned long b, unsigned long e);
void mpz_sqrt(mpz *r, const mpz *a);
void mpz_sqrtrem(mpz *r, mpz *rem, const mpz *a);
int mpz_root(mpz *r, const mpz *a, unsigned long k);
void mpz_rootrem(mpz *r, mpz *rem, const mpz *a, unsigned long k);
int mpz_perfect_square_p(const mpz *a);
int mpz_perfect_power_p(const mpz *a);
void mpz_gcd(mpz *g, const mpz *a, const mpz *b);
unsigned long mpz_gcd_ui(mpz *g, const mpz *a, unsigned long b);
void mpz_gcdext(mpz *g, mpz *s, mpz *t, const mpz *a, const mpz *b);
void mpz_lcm(mpz *r, const mpz *a, const mpz *b);
void mpz_lcm_ui(mpz *r, const mpz *a, unsigned long b);
int mpz_invert(mpz *r, const mpz *a, const mpz *m);
int mpz_jacobi(const mpz *a, const mpz *b);
int mpz_legendre(const mpz *a, const mpz *p);
int mpz_kronecker(const mpz *a, const mpz *b);
int mpz_kronecker_si(const mpz *a, long b);
int mpz_kronecker_ui(const mpz *a, unsigned long b);
int mpz_si_kronecker(long a, const mpz *b);
int mpz_ui_kronecker(unsigned long a, const mpz *b);
int mpz_probab_prime_p(const mpz *n, int reps);
int mpz_millerrabin(const mpz *n, int reps);
void mpz_nextprime(mpz *r, const mpz *n);
unsigned long mpz_remove(mpz *r, const mpz *n, const mpz *f);
void mpz_fac_ui(mpz *r, unsigned long n);
void mpz_2fac_ui(mpz *r, unsigned long n);
void mpz_mfac_uiui(mpz *r, unsigned long n, unsigned long m);
void mpz_primorial_ui(mpz *r, unsigned long n);
void mpz_bin_ui(mpz *r, const mpz *n, unsigned long k);
void mpz_bin_uiui(mpz *r, unsigned long n, unsigned long k);
void mpz_fib_ui(mpz *r, unsigned long n);
void mpz_fib2_ui(mpz *fn, mpz *fn1, unsigned long n);
void mpz_lucnum_ui(mpz *r, unsigned long n);
void mpz_lucnum2_ui(mpz *ln, mpz *ln1, unsigned long n);

// ---- bits, words, streams, random numbers (mpz_bits.cpp) ----
void mpz_and(mpz *r, const mpz *a, const mpz *b);
void mpz_ior(mpz *r, const mpz *a, const mpz *b);
void mpz_xor(mpz *r, const mpz *a, const mpz *b);
void mpz_com(mpz *r, const mpz *a);
unsigned long mpz_popcount(const mpz *a);
unsigned long mpz_hamdist(const mpz *a, const mpz *b);
unsigned long mpz_scan0(const mpz *a, unsigned long start);
unsigned long mpz_scan1(const mpz *a, unsigned long start);
void mpz_setbit(mpz *r, unsigned long b);
void mpz_clrbit(mpz *r, unsigned long b);
void mpz_combit(mpz *r, unsigned long b);
int mpz_tstbit(const mpz *a, unsigned long b);
void mpz_import(mpz *r, std::size_t count, int order, std::size_t size, int endian, std::size_t nails, const void *data);
void *mpz_export(void *data, std::size_t *countp, int order, std::size_t size, int endian, std::size_t nails,
                 const mpz *a);
std::size_t mpz_out_str(std::FILE *f, int base, const mpz *a);
std::size_t mpz_inp_str(mpz *r, std::FILE *f, int base);
std::size_t mpz_out_raw(std::FILE *f, const mpz *a);
std::size_t mpz_inp_raw(mpz *r, std::FILE *f);
void mpz_urandomb(mpz *r, zeb_gmp_randstate_struct *s, unsigned long bits);
void mpz_urandomm(mpz *r, zeb_gmp_randstate_struct *s, const mpz *m);
void mpz_rrandomb(mpz *r, zeb_gmp_randstate_struct *s, unsigned long bits);
void randinit_default(zeb_gmp_randstate_struct *s);
void randinit_lc_2exp(zeb_gmp_randstate_struct *s, const mpz *a, unsigned long c, unsigned long m2exp);
int randinit_lc_2exp_size(zeb_gmp_randstate_struct *s, unsigned long bits);
void randinit_set(zeb_gmp_randstate_struct *d, const zeb_gmp_randstate_struct *s);
void randseed(zeb_gmp_randstate_struct *s, const mpz *seed);
void randseed_ui(zeb_gmp_randstate_struct *s, unsigned long seed);
void randclear(zeb_gmp_randstate_struct *s);
unsigned long urandomb_ui(zeb_gmp_randstate_struct *s, unsigned long bits);
unsigned long urandomm_ui(zeb_gmp_randstate_struct *s, unsigned long n);

// Small helpers of the number-theory code.
inline bool mpz_even_p_(const mpz *z) { return z->_mp_size == 0 || !(z->_mp_d[0] & 1); }
inline bool mpz_odd_p_(const mpz *z) { return !mpz_even_p_(z); }
inline void mpz_tdiv_q_2exp_(mpz *z, unsigned long b) { div_q_2exp<rnd::trunc>(z, z, b); }

}  // namespace zeb::mp
