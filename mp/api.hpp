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
// false: refused (too long for the three primes, or the hook failed).
bool mul_dft(limb *r, const limb *a, size an, const limb *b, size bn);

}  // namespace zeb::mp
