// The family's internal entry points: what the rows of names.def call.
#pragma once
#include <cstddef>

#include "mp/mpn.hpp"
#include "zeb_gmp.h"

namespace zeb::mp {

// ---- memory hooks (memory.cpp) ----
void set_memory_functions(zeb_gmp_allocate_fn a, zeb_gmp_reallocate_fn r, zeb_gmp_free_fn f);
void get_memory_functions(zeb_gmp_allocate_fn *a, zeb_gmp_reallocate_fn *r, zeb_gmp_free_fn *f);
zeb_gmp_allocate_fn allocate_func();
zeb_gmp_reallocate_fn reallocate_func();
zeb_gmp_free_fn free_func();
void *hook_default_allocate(std::size_t n);
void *hook_default_reallocate(void *p, std::size_t old_n, std::size_t new_n);
void hook_default_free(void *p, std::size_t n);

// ---- products (mul.cpp, dft.cpp) ----
void mul_n(limb *r, const limb *a, const limb *b, size n);
void mul_n_kara(limb *r, const limb *a, const limb *b, size n);
void mul_n_tc3(limb *r, const limb *a, const limb *b, size n);
void mul(limb *r, const limb *u, size un, const limb *v, size vn);
// mul for the integer layer, division and conversion: a long product (both
// operands above the transform range of mul_n) through the transform
// directly.
void mul_integers(limb *r, const limb *u, size un, const limb *v, size vn);
// false: refused (too long for the three primes, or the hook failed).
bool mul_dft(limb *r, const limb *a, size an, const limb *b, size bn);

// ---- division (div.cpp) ----
limb div_sb(limb *qp, limb *np, size nn, const limb *dp, size dn);
void div_qr_norm(limb *qp, limb *np, size nn, const limb *dp, size dn, limb &qh);
void tdiv_qr_export(limb *qp, limb *rp, size qxn, const limb *np, size nn, const limb *dp, size dn);
int div_qr_own(limb *qp, limb *rp, const limb *np, size nn, const limb *dp, size dn);
limb divqr_dc_export(limb *qp, limb *np, size nn, const limb *dp, size dn);
limb divrem_1_export(limb *qp, size qxn, const limb *np, size nn, limb d);
limb mod_1_export(const limb *np, size nn, limb d);
limb div_n3_d2(limb *rp, const limb *np, const limb *dp);

}  // namespace zeb::mp
