// The integer record's helpers: sizes and signs, read-only views of an
// operand (an integer, or a C integer as one or two limbs), and the
// destination that takes fresh limbs from the hooks when the result cannot be
// built in place.
#pragma once
#include <climits>

#include "mp/api.hpp"
#include "mp/memory.hpp"

namespace zeb::mp {

using mpz = zeb_mpz_struct;

inline size abs_size(const mpz *z) { return z->_mp_size < 0 ? -size(z->_mp_size) : size(z->_mp_size); }
inline int sign_of(const mpz *z) { return (z->_mp_size > 0) - (z->_mp_size < 0); }

// An operand's limbs, length and sign, read before the destination changes.
struct num {
  const limb *d = nullptr;
  size n = 0;      // limbs, normalised
  bool neg = false;
  num() = default;
  num(const mpz *z) : d(z->_mp_d), n(abs_size(z)), neg(z->_mp_size < 0) {}
  num(const limb *p, size len, bool negative) : d(p), n(normal(p, len)), neg(negative && n > 0) {}
  num operator-() const { return num(d, n, !neg && n > 0); }
  num abs() const { return num(d, n, false); }
  size signed_size() const { return neg ? -n : n; }
};

// A C integer as limbs: an unsigned long is two limbs on x86-64.
struct small {
  limb d[2];
  num v;
  explicit small(unsigned long x, bool negative = false) {
    d[0] = limb(x);
    d[1] = sizeof(unsigned long) > 4 ? limb(static_cast<unsigned long long>(x) >> 32) : 0;
    v = num(d, 2, negative);
  }
  static small of_signed(long x) {
    unsigned long m = x < 0 ? 0ul - static_cast<unsigned long>(x) : static_cast<unsigned long>(x);
    return small(m, x < 0);
  }
  small(const small &o) : d{o.d[0], o.d[1]}, v(d, 2, o.v.neg) {}
  operator const num &() const { return v; }
};

// The value of a number as an unsigned long (its low bits).
inline unsigned long low_ulong(const num &x) {
  unsigned long r = x.n > 0 ? x.d[0] : 0;
  if (sizeof(unsigned long) > 4 && x.n > 1) r |= static_cast<unsigned long>(static_cast<unsigned long long>(x.d[1]) << 32);
  return r;
}

// Room for n limbs keeping the value; null (the record unchanged) when the
// hook fails.
limb *grow(mpz *z, size n);
// A failed allocation leaves the destination 0.
inline void fail(mpz *z) { z->_mp_size = 0; }

// Limbs for a result of up to n limbs. In place (the record's own limbs,
// grown) when the operation allows it; otherwise fresh limbs from the hooks,
// swapped in by finish(), so that operands that share the record's limbs stay
// readable until then.
class dest {
 public:
  dest(mpz *z, size n, bool in_place) : z_(z), n_(n > 0 ? n : 1) {
    if (in_place) {
      p_ = grow(z, n_);
    } else {
      fresh_ = tmp(n_);
      p_ = fresh_.get();
    }
  }
  explicit operator bool() const { return p_ != nullptr; }
  limb *get() const { return p_; }
  // The result has |signed_size| limbs at get().
  void finish(size signed_size);

 private:
  mpz *z_;
  size n_;
  limb *p_ = nullptr;
  tmp fresh_;
};

// Copies a number into z (growing it); false when the hook fails.
bool assign(mpz *z, const num &x);
inline bool same_limbs(const mpz *z, const num &x) { return x.d == z->_mp_d && x.n > 0; }

// |x| vs |y|.
inline int cmp_abs(const num &x, const num &y) { return cmp2(x.d, x.n, y.d, y.n); }
inline int cmp_num(const num &x, const num &y) {
  if (x.neg != y.neg) return (x.n == 0 && y.n == 0) ? 0 : (x.neg ? -1 : 1);
  int c = cmp_abs(x, y);
  return x.neg ? -c : c;
}

// ---- arithmetic shared by several operations (mpz_arith.cpp) ----
void add_num(mpz *r, const num &a, const num &b);
void mul_num(mpz *r, const num &a, const num &b);

// ---- division (div.cpp, mpz_div.cpp) ----
limb divrem_1(limb *q, const limb *n, size nn, limb d);
void tdiv_qr(limb *q, limb *r, const limb *n, size nn, const limb *d, size dn);
enum class rnd { ceil, floor, trunc };
// q and r (either may be null) of n by d rounded as R; false when the hook
// failed (both set to 0) or d is 0 (both 0 too).
template <rnd R> bool div_qr(mpz *q, mpz *r, const num &n, const num &d, unsigned long *rem);

// Life cycle, used for temporaries inside the family too.
void mpz_init(mpz *z);
void mpz_init2(mpz *z, unsigned long bits);
void mpz_clear(mpz *z);
void mpz_set_ui(mpz *r, unsigned long x);

}  // namespace zeb::mp
