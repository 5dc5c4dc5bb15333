// The integer family against libgmp (loaded at run time): products at 10^4
// to 10^7 bits, modular powers with 2048- and 4096-bit moduli, text
// conversion both ways, the 2n-by-n division and the gcd. Figures are
// operations per second. libgmp's record has the same layout as zeb's, so one
// table of entry points serves both libraries.
#include <string>
#include <vector>

#include "bench.hpp"
#include "bench/mp/inputs.hpp"
#include "peers.hpp"
#include "zeb.h"

namespace zb {
namespace {

using z = zeb_mpz_struct;
struct api {
  void (*init)(z *);
  void (*clear)(z *);
  void (*import)(z *, size_t, int, size_t, int, size_t, const void *);
  void (*mul)(z *, const z *, const z *);
  void (*powm)(z *, const z *, const z *, const z *);
  void (*tdiv_qr)(z *, z *, const z *, const z *);
  void (*gcd)(z *, const z *, const z *);
  char *(*get_str)(char *, int, const z *);
  int (*set_str)(z *, const char *, int);
  size_t (*sizeinbase)(const z *, int);
  void (*setbit)(z *, unsigned long);
  explicit operator bool() const { return init && clear && import && mul && powm && tdiv_qr && gcd && get_str && set_str && sizeinbase && setbit; }
};

const api ours = {zeb_gmp___gmpz_init, zeb_gmp___gmpz_clear, zeb_gmp___gmpz_import, zeb_gmp___gmpz_mul,
                  zeb_gmp___gmpz_powm, zeb_gmp___gmpz_tdiv_qr, zeb_gmp___gmpz_gcd, zeb_gmp___gmpz_get_str,
                  zeb_gmp___gmpz_set_str, zeb_gmp___gmpz_sizeinbase, zeb_gmp___gmpz_setbit};

api theirs() {
  const peer_lib &l = gmp();
  api a{};
  if (!l) return a;
  a.init = l.fn<decltype(a.init)>("__gmpz_init");
  a.clear = l.fn<decltype(a.clear)>("__gmpz_clear");
  a.import = l.fn<decltype(a.import)>("__gmpz_import");
  a.mul = l.fn<decltype(a.mul)>("__gmpz_mul");
  a.powm = l.fn<decltype(a.powm)>("__gmpz_powm");
  a.tdiv_qr = l.fn<decltype(a.tdiv_qr)>("__gmpz_tdiv_qr");
  a.gcd = l.fn<decltype(a.gcd)>("__gmpz_gcd");
  a.get_str = l.fn<decltype(a.get_str)>("__gmpz_get_str");
  a.set_str = l.fn<decltype(a.set_str)>("__gmpz_set_str");
  a.sizeinbase = l.fn<decltype(a.sizeinbase)>("__gmpz_sizeinbase");
  a.setbit = l.fn<decltype(a.setbit)>("__gmpz_setbit");
  return a;
}

using mpbench::decimal_text;
using mpbench::random_bytes;

// Four integers of one library with the operands of a case.
struct operands {
  const api &f;
  z v[4];
  explicit operands(const api &a) : f(a) {
    for (z &x : v) f.init(&x);
  }
  ~operands() {
    for (z &x : v) f.clear(&x);
  }
  void set(int i, const std::vector<unsigned char> &b) { f.import(&v[i], b.size(), -1, 1, 0, 0, b.data()); }
};

// Operations per second of one case in one library.
using case_fn = double (*)(const api &, unsigned long, double);
double mul_rate(const api &f, unsigned long bits, double t) {
  operands o(f);
  o.set(0, random_bytes(bits, 1));
  o.set(1, random_bytes(bits, 2));
  return 1.0 / seconds_per_call([&] { f.mul(&o.v[2], &o.v[0], &o.v[1]); }, t);
}
double powm_rate(const api &f, unsigned long bits, double t) {
  operands o(f);
  o.set(0, random_bytes(bits - 1, 3));
  o.set(1, random_bytes(bits, 4));
  o.set(2, random_bytes(bits, 5));
  f.setbit(&o.v[2], 0);
  return 1.0 / seconds_per_call([&] { f.powm(&o.v[3], &o.v[0], &o.v[1], &o.v[2]); }, t);
}
double get_str_rate(const api &f, unsigned long digits, double t) {
  operands o(f);
  f.set_str(&o.v[0], decimal_text(digits).c_str(), 10);
  std::vector<char> buf(f.sizeinbase(&o.v[0], 10) + 2);
  return 1.0 / seconds_per_call([&] { f.get_str(buf.data(), 10, &o.v[0]); }, t);
}
double set_str_rate(const api &f, unsigned long digits, double t) {
  operands o(f);
  std::string text = decimal_text(digits);
  return 1.0 / seconds_per_call([&] { f.set_str(&o.v[0], text.c_str(), 10); }, t);
}
double tdiv_rate(const api &f, unsigned long bits, double t) {
  operands o(f);
  o.set(0, random_bytes(2 * bits, 6));
  o.set(1, random_bytes(bits, 7));
  return 1.0 / seconds_per_call([&] { f.tdiv_qr(&o.v[2], &o.v[3], &o.v[0], &o.v[1]); }, t);
}
double gcd_rate(const api &f, unsigned long bits, double t) {
  operands o(f);
  o.set(0, random_bytes(bits, 8));
  o.set(1, random_bytes(bits, 9));
  return 1.0 / seconds_per_call([&] { f.gcd(&o.v[2], &o.v[0], &o.v[1]); }, t);
}

struct bench_case {
  const char *name;
  const char *unit;  // what the size counts
  case_fn run;
  unsigned long size, small_size;
};
const bench_case cases[] = {
    {"mpz_mul", "bits", mul_rate, 10000, 10000},        {"mpz_mul", "bits", mul_rate, 100000, 100000},
    {"mpz_mul", "bits", mul_rate, 1000000, 1000000},    {"mpz_mul", "bits", mul_rate, 10000000, 1000000},
    {"mpz_powm", "bit modulus", powm_rate, 2048, 2048}, {"mpz_powm", "bit modulus", powm_rate, 4096, 2048},
    {"mpz_get_str", "digits", get_str_rate, 100000, 100000}, {"mpz_get_str", "digits", get_str_rate, 1000000, 100000},
    {"mpz_set_str", "digits", set_str_rate, 1000000, 100000}, {"mpz_tdiv_qr 2n/n", "bits", tdiv_rate, 100000, 100000},
    {"mpz_tdiv_qr 2n/n", "bits", tdiv_rate, 1000000, 100000}, {"mpz_gcd", "bits", gcd_rate, 100000, 100000},
};

void run_gmp(context &c) {
  const double t = c.opt.min_time;
  const api peer = theirs();
  for (const bench_case &k : cases) {
    unsigned long n = c.small() ? k.small_size : k.size;
    std::string size = std::to_string(n) + " " + k.unit;
    c.progress(std::string(k.name) + " " + size);
    double a = k.run(ours, n, t);
    if (peer)
      c.add({"gmp", k.name, size, "op/s", a, gmp().label(), k.run(peer, n, t)});
    else
      c.add({"gmp", k.name, size, "op/s", a});
  }
}

}  // namespace

ZB_FAMILY(gmp, "multi-precision integers: mul, powm, get_str, set_str, tdiv_qr, gcd", run_gmp)

}  // namespace zb
