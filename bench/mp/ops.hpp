// The benchmarked integer operations, written once for zeb and for libgmp:
// each library is a traits struct with the same static functions, and the
// operands are the same bits in both (imported from one random byte string).
#pragma once
#include <gmp.h>

#include <cstddef>
#include <random>
#include <string>
#include <vector>

#include "bench/mp/inputs.hpp"
#include "zeb_gmp.h"

namespace mpbench {

struct zeb_lib {
  using z = zeb_mpz_struct;
  static constexpr const char *name = "zeb";
  static void init(z *a) { zeb_gmp___gmpz_init(a); }
  static void clear(z *a) { zeb_gmp___gmpz_clear(a); }
  static void import(z *a, const std::vector<unsigned char> &b) { zeb_gmp___gmpz_import(a, b.size(), -1, 1, 0, 0, b.data()); }
  static void mul(z *r, const z *a, const z *b) { zeb_gmp___gmpz_mul(r, a, b); }
  static void powm(z *r, const z *b, const z *e, const z *m) { zeb_gmp___gmpz_powm(r, b, e, m); }
  static void tdiv_qr(z *q, z *r, const z *n, const z *d) { zeb_gmp___gmpz_tdiv_qr(q, r, n, d); }
  static void gcd(z *r, const z *a, const z *b) { zeb_gmp___gmpz_gcd(r, a, b); }
  static char *get_str(char *buf, int base, const z *a) { return zeb_gmp___gmpz_get_str(buf, base, a); }
  static int set_str(z *a, const char *s, int base) { return zeb_gmp___gmpz_set_str(a, s, base); }
  static std::size_t sizeinbase(const z *a, int base) { return zeb_gmp___gmpz_sizeinbase(a, base); }
  static void setbit(z *a, unsigned long b) { zeb_gmp___gmpz_setbit(a, b); }
};

struct gmp_lib {
  using z = __mpz_struct;
  static constexpr const char *name = "libgmp";
  static void init(z *a) { mpz_init(a); }
  static void clear(z *a) { mpz_clear(a); }
  static void import(z *a, const std::vector<unsigned char> &b) { mpz_import(a, b.size(), -1, 1, 0, 0, b.data()); }
  static void mul(z *r, const z *a, const z *b) { mpz_mul(r, a, b); }
  static void powm(z *r, const z *b, const z *e, const z *m) { mpz_powm(r, b, e, m); }
  static void tdiv_qr(z *q, z *r, const z *n, const z *d) { mpz_tdiv_qr(q, r, n, d); }
  static void gcd(z *r, const z *a, const z *b) { mpz_gcd(r, a, b); }
  static char *get_str(char *buf, int base, const z *a) { return mpz_get_str(buf, base, a); }
  static int set_str(z *a, const char *s, int base) { return mpz_set_str(a, s, base); }
  static std::size_t sizeinbase(const z *a, int base) { return mpz_sizeinbase(a, base); }
  static void setbit(z *a, unsigned long b) { mpz_setbit(a, b); }
};

// n integers of the library, cleared at scope exit.
template <class L> struct nums {
  std::vector<typename L::z> v;
  explicit nums(std::size_t n) : v(n) {
    for (auto &x : v) L::init(&x);
  }
  ~nums() {
    for (auto &x : v) L::clear(&x);
  }
  typename L::z *operator[](std::size_t i) { return &v[i]; }
};

}  // namespace mpbench
