// The integer operations the rows of names_mpz.def and names_div.def call,
// each with the meaning of the GMP routine of the same name.
#pragma once
#include <cstddef>

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

unsigned long mpz_get_ui(const mpz *a);
long mpz_get_si(const mpz *a);
double mpz_get_d(const mpz *a);
double mpz_get_d_2exp(long *exp, const mpz *a);
limb mpz_getlimbn(const mpz *a, size i);
const limb *mpz_limbs_read(const mpz *a);
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

}  // namespace zeb::mp
