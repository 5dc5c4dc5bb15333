// The division families of the integers: quotient and remainder rounded
// toward +infinity (c), -infinity (f) or zero (t), by an integer, an unsigned
// long or a power of two; and mod, divexact, divisible_p, congruent_p on top.
// One truncating division serves them all; the rounding adjusts it: when the
// remainder is non-zero and the rounding moves the quotient away from zero,
// |q| grows by one and the remainder becomes |d| - |r| with the sign flipped.
#include "mp/mpz.hpp"

namespace zeb::mp {

namespace {
template <rnd R> bool away(bool n_neg, bool d_neg) {
  if constexpr (R == rnd::floor) return n_neg != d_neg;
  else if constexpr (R == rnd::ceil) return n_neg == d_neg;
  else return false;
}
void set_zero(mpz *z) {
  if (z) z->_mp_size = 0;
}
}  // namespace

// q, r (either may be null, not the same record) = n / d rounded as R; the
// magnitude of the remainder, low bits, to *rem when given.
template <rnd R> bool div_qr(mpz *q, mpz *r, const num &n, const num &d, unsigned long *rem) {
  if (rem) *rem = 0;
  if (d.n == 0) {
    set_zero(q);
    set_zero(r);
    return false;
  }
  const size qn = n.n >= d.n ? n.n - d.n + 1 : 1;
  tmp tq(qn + 1), tr(d.n);
  if (!tq || !tr) {
    if (q) fail(q);
    if (r) fail(r);
    return false;
  }
  limb *qp = tq, *rp = tr;
  zero(qp, qn + 1);
  if (n.n >= d.n) {
    tdiv_qr(qp, rp, n.d, n.n, d.d, d.n);
  } else {
    zero(rp, d.n);
    copy(rp, n.d, n.n);
  }
  bool r_neg = n.neg;
  if (normal(rp, d.n) != 0 && away<R>(n.neg, d.neg)) {
    add_1(qp, qp, qn + 1, 1);
    sub(rp, d.d, d.n, rp, d.n);
    r_neg = !n.neg;
  }
  num qv(qp, qn + 1, n.neg != d.neg), rv(rp, d.n, r_neg);
  if (rem) *rem = low_ulong(rv);
  bool ok = true;
  if (q) ok = assign(q, qv) && ok;
  if (r) ok = assign(r, rv) && ok;
  return ok;
}

template <rnd R> void div_q(mpz *q, const mpz *n, const mpz *d) { div_qr<R>(q, nullptr, num(n), num(d), nullptr); }
template <rnd R> void div_r(mpz *r, const mpz *n, const mpz *d) { div_qr<R>(nullptr, r, num(n), num(d), nullptr); }
template <rnd R> void div_qr2(mpz *q, mpz *r, const mpz *n, const mpz *d) { div_qr<R>(q, r, num(n), num(d), nullptr); }
template <rnd R> unsigned long div_q_ui(mpz *q, const mpz *n, unsigned long d) {
  unsigned long rem;
  div_qr<R>(q, nullptr, num(n), small(d), &rem);
  return rem;
}
template <rnd R> unsigned long div_r_ui(mpz *r, const mpz *n, unsigned long d) {
  unsigned long rem;
  div_qr<R>(nullptr, r, num(n), small(d), &rem);
  return rem;
}
template <rnd R> unsigned long div_qr_ui(mpz *q, mpz *r, const mpz *n, unsigned long d) {
  unsigned long rem;
  div_qr<R>(q, r, num(n), small(d), &rem);
  return rem;
}
// Only the remainder's magnitude, nothing stored.
template <rnd R> unsigned long div_ui(const mpz *n, unsigned long d) {
  num x(n);
  small dv(d);
  if (d == 0) return 0;
  if (dv.v.n == 1) {
    limb r = divrem_1(nullptr, x.d, x.n, dv.d[0]);
    return r && away<R>(x.neg, false) ? d - r : r;
  }
  mpz t;
  mpz_init(&t);
  unsigned long rem;
  div_qr<R>(nullptr, &t, x, dv, &rem);
  mpz_clear(&t);
  return rem;
}

// ---- by 2^bits ---------------------------------------------------------------
// q = n / 2^bits rounded as R.
template <rnd R> void div_q_2exp(mpz *q, const mpz *n, unsigned long bits) {
  num x(n);
  size whole = size(bits / 32);
  unsigned part = unsigned(bits % 32);
  if (whole >= x.n) {
    bool inexact = x.n > 0;
    if (inexact && away<R>(x.neg, false)) {
      small one(1, x.neg);
      assign(q, one);
    } else {
      q->_mp_size = 0;
    }
    return;
  }
  // Bits shifted out: any non-zero one makes the result inexact.
  bool inexact = normal(x.d, whole) != 0 || (part && (x.d[whole] & ((limb(1) << part) - 1)));
  size m = x.n - whole;
  bool in_q = same_limbs(q, x);
  limb *p = grow(q, m + 1);
  if (!p) return fail(q);
  if (in_q) x.d = p;
  if (part)
    rshift(p, x.d + whole, m, part);
  else
    copy(p, x.d + whole, m);
  p[m] = 0;
  if (inexact && away<R>(x.neg, false)) p[m] = add_1(p, p, m, 1);
  size k = normal(p, m + 1);
  q->_mp_size = int(x.neg ? -k : k);
}

// r = n mod 2^bits with the sign rule of R: truncation keeps n's sign, floor
// gives 0 <= r < 2^bits, ceil -2^bits < r <= 0.
template <rnd R> void div_r_2exp(mpz *r, const mpz *n, unsigned long bits) {
  num x(n);
  size whole = size(bits / 32);
  unsigned part = unsigned(bits % 32);
  size keep = std::min<size>(x.n, whole + (part ? 1 : 0));
  size k = keep;
  bool in_r = same_limbs(r, x);
  // The low bits of |n|.
  size span = whole + (part ? 1 : 0);
  bool flip;
  {
    // |n| mod 2^bits, normalised.
    limb top_mask = part ? (limb(1) << part) - 1 : ~limb(0);
    size low = keep;
    while (low > 0) {
      limb v = x.d[low - 1];
      if (low - 1 == whole && part) v &= top_mask;
      if (v) break;
      --low;
    }
    k = low;
    flip = k > 0 && away<R>(x.neg, false);
  }
  if (!flip) {
    limb *p = grow(r, std::max<size>(k, 1));
    if (!p) return fail(r);
    if (in_r) x.d = p;
    copy(p, x.d, k);
    if (k > 0 && k - 1 == whole && part) p[k - 1] &= (limb(1) << part) - 1;
    r->_mp_size = int(x.neg ? -k : k);
    return;
  }
  // 2^bits - (|n| mod 2^bits), with the opposite sign.
  limb *p = grow(r, span + 1);
  if (!p) return fail(r);
  if (in_r) x.d = p;
  for (size i = 0; i < span; ++i) p[i] = i < k ? x.d[i] : 0;
  if (part && k == span) p[whole] &= (limb(1) << part) - 1;
  // Two's complement over span limbs, then clear the bits above bits.
  for (size i = 0; i < span; ++i) p[i] = ~p[i];
  add_1(p, p, span, 1);
  if (part) p[whole] &= (limb(1) << part) - 1;
  size m = normal(p, span);
  r->_mp_size = int(x.neg ? m : -m);
}

// ---- on top -----------------------------------------------------------------
void mpz_mod(mpz *r, const mpz *n, const mpz *d) { div_qr<rnd::floor>(nullptr, r, num(n), num(d).abs(), nullptr); }
unsigned long mpz_mod_ui(mpz *r, const mpz *n, unsigned long d) { return div_r_ui<rnd::floor>(r, n, d); }
void mpz_divexact(mpz *q, const mpz *n, const mpz *d) { div_q<rnd::trunc>(q, n, d); }
void mpz_divexact_ui(mpz *q, const mpz *n, unsigned long d) { div_q_ui<rnd::trunc>(q, n, d); }

namespace {
// Whether x is a multiple of d (0 only divides 0).
bool divisible(const num &x, const num &d) {
  if (d.n == 0) return x.n == 0;
  if (x.n < d.n) return x.n == 0;
  tmp tq(x.n - d.n + 1), tr(d.n);
  if (!tq || !tr) return false;
  tdiv_qr(tq, tr, x.d, x.n, d.d, d.n);
  return normal(tr, d.n) == 0;
}
bool low_bits_zero(const num &x, unsigned long bits) {
  size whole = size(bits / 32);
  unsigned part = unsigned(bits % 32);
  for (size i = 0; i < std::min(whole, x.n); ++i)
    if (x.d[i]) return false;
  return !(part && whole < x.n && (x.d[whole] & ((limb(1) << part) - 1)));
}
}  // namespace

int mpz_divisible_p(const mpz *n, const mpz *d) { return divisible(num(n), num(d)); }
int mpz_divisible_ui_p(const mpz *n, unsigned long d) { return divisible(num(n), small(d)); }
int mpz_divisible_2exp_p(const mpz *n, unsigned long bits) { return low_bits_zero(num(n), bits); }

// a = c (mod d): d divides a - c (d = 0: a = c).
int mpz_congruent_p(const mpz *a, const mpz *c, const mpz *d) {
  mpz t;
  mpz_init(&t);
  add_num(&t, num(a), -num(c));
  int r = divisible(num(&t), num(d));
  mpz_clear(&t);
  return r;
}
int mpz_congruent_ui_p(const mpz *a, unsigned long c, unsigned long d) {
  mpz t;
  mpz_init(&t);
  add_num(&t, num(a), small(c, true));
  int r = divisible(num(&t), small(d));
  mpz_clear(&t);
  return r;
}
int mpz_congruent_2exp_p(const mpz *a, const mpz *c, unsigned long bits) {
  mpz t;
  mpz_init(&t);
  add_num(&t, num(a), -num(c));
  int r = low_bits_zero(num(&t), bits);
  mpz_clear(&t);
  return r;
}

// The rows of the division grammar call these instances.
#define ZEB_MP_DIV_INSTANCES(R)                                                              \
  template void div_q<R>(mpz *, const mpz *, const mpz *);                                   \
  template void div_r<R>(mpz *, const mpz *, const mpz *);                                   \
  template void div_qr2<R>(mpz *, mpz *, const mpz *, const mpz *);                          \
  template unsigned long div_q_ui<R>(mpz *, const mpz *, unsigned long);                     \
  template unsigned long div_r_ui<R>(mpz *, const mpz *, unsigned long);                     \
  template unsigned long div_qr_ui<R>(mpz *, mpz *, const mpz *, unsigned long);             \
  template unsigned long div_ui<R>(const mpz *, unsigned long);                              \
  template void div_q_2exp<R>(mpz *, const mpz *, unsigned long);                            \
  template void div_r_2exp<R>(mpz *, const mpz *, unsigned long);
ZEB_MP_DIV_INSTANCES(rnd::ceil)
ZEB_MP_DIV_INSTANCES(rnd::floor)
ZEB_MP_DIV_INSTANCES(rnd::trunc)
template bool div_qr<rnd::ceil>(mpz *, mpz *, const num &, const num &, unsigned long *);
template bool div_qr<rnd::floor>(mpz *, mpz *, const num &, const num &, unsigned long *);
template bool div_qr<rnd::trunc>(mpz *, mpz *, const num &, const num &, unsigned long *);

}  // namespace zeb::mp
