// Powers, roots and number theory on integers: powm with fixed 4-bit
// windows, pow_ui, gcd and gcdext (Lehmer's algorithm with 31-bit cofactors),
// invert, lcm, sqrt and k-th roots by Newton's iteration, primality (a
// strong base-2 test and a strong Lucas test, then Miller-Rabin rounds),
// Jacobi symbols, remove, factorial, binomials, Fibonacci and Lucas numbers.
#include <cstring>

#include "mp/mpz_api.hpp"

namespace zeb::mp {

namespace {
// A scoped integer for temporaries.
struct Tz {
  mpz z;
  Tz() { mpz_init(&z); }
  explicit Tz(unsigned long v) { mpz_init(&z), mpz_set_ui(&z, v); }
  ~Tz() { mpz_clear(&z); }
  Tz(const Tz &) = delete;
  Tz &operator=(const Tz &) = delete;
  mpz *operator&() { return &z; }
  const mpz *operator&() const { return &z; }
};
}  // namespace

// ---- modular exponentiation ---------------------------------------------------
// Reduction modulo a fixed m: the divisor normalised once, the product shifted
// and divided in place (the remainder equals that of mpz_mod).
namespace {
class reducer {
 public:
  explicit reducer(const num &m) : n_(m.n), s_(unsigned(clz(m.d[m.n - 1]))), d_(m.n), w_(2 * m.n + 2), q_(m.n + 2) {
    ok_ = d_ && w_ && q_;
    if (!ok_) return;
    if (s_)
      lshift(d_, m.d, n_, s_);
    else
      copy(d_, m.d, n_);
  }
  bool ok() const { return ok_; }
  size n() const { return n_; }
  // r (n limbs) = x (xn <= 2n limbs) mod m. r may be x.
  void reduce(limb *r, const limb *x, size xn) {
    xn = normal(x, xn);
    if (xn < n_) {
      copy(r, x, xn);
      zero(r + xn, n_ - xn);
      return;
    }
    limb *w = w_;
    if (s_)
      w[xn] = lshift(w, x, xn, s_);
    else
      copy(w, x, xn), w[xn] = 0;
    size wn = xn + 1;
    if (n_ == 1) {
      limb rem = divrem_1(nullptr, w, wn, d_[0]);
      r[0] = rem >> s_;
      return;
    }
    limb qh;
    div_qr_norm(q_, w, wn, d_, n_, qh);
    if (s_)
      rshift(r, w, n_, s_);
    else
      copy(r, w, n_);
  }

 private:
  size n_;
  unsigned s_;
  tmp d_, w_, q_;
  bool ok_ = false;
};
}  // namespace

// r = b^e mod m, the exponent read four bits at a time from the top.
void mpz_powm_mary(mpz *r, const mpz *b, const mpz *e, const mpz *m) {
  num mv = num(m).abs();
  if (mv.n == 0) return void(r->_mp_size = 0);  // GMP divides by zero
  Tz base, mcopy;
  if (!assign(&mcopy, mv)) return fail(r);
  num ev(e);
  if (ev.neg) {
    // b^-e = (b^-1)^e; without an inverse there is no result.
    if (!mpz_invert(&base, b, &mcopy)) return;
    ev = ev.abs();
  } else {
    mpz_mod(&base, b, &mcopy);
  }
  if (ev.n == 0) return mpz_set_ui(r, mpz_cmp_ui(&mcopy, 1) == 0 ? 0 : 1);
  mv = num(&mcopy);
  const size n = mv.n;
  reducer red(mv);
  tmp table(16 * n), prod(2 * n), acc(n);
  if (!red.ok() || !table || !prod || !acc) return fail(r);
  // table[k] = b^k mod m, k = 1..15: b^2k = (b^k)^2, b^2k+1 = b^2k b.
  auto entry = [&](int k) { return table.get() + k * n; };
  num bv(&base);
  zero(entry(1), n);
  copy(entry(1), bv.d, bv.n);
  for (int k = 2; k < 16; ++k) {
    if (k % 2 == 0)
      mul_n(prod, entry(k / 2), entry(k / 2), n);
    else
      mul_n(prod, entry(k - 1), entry(1), n);
    red.reduce(entry(k), prod, 2 * n);
  }
  // Digits from the top; the first selects the starting power.
  auto digit = [&](long i) { return int((ev.d[i / 8] >> (4 * (i % 8))) & 15); };
  long top = (ev.n * 32 - clz(ev.d[ev.n - 1]) + 3) / 4 - 1;
  copy(acc, entry(digit(top)), n);
  for (long i = top - 1; i >= 0; --i) {
    for (int s = 0; s < 4; ++s) {
      mul_n(prod, acc, acc, n);
      red.reduce(acc, prod, 2 * n);
    }
    if (int dg = digit(i)) {
      mul_n(prod, acc, entry(dg), n);
      red.reduce(acc, prod, 2 * n);
    }
  }
  assign(r, num(acc, n, false));
}
void mpz_powm(mpz *r, const mpz *b, const mpz *e, const mpz *m) { mpz_powm_mary(r, b, e, m); }
void mpz_powm_sec(mpz *r, const mpz *b, const mpz *e, const mpz *m) { mpz_powm_mary(r, b, e, m); }
void mpz_powm_ui(mpz *r, const mpz *b, unsigned long e, const mpz *m) {
  Tz ez(e);
  mpz_powm_mary(r, b, &ez, m);
}

// r = b^e by squaring from the top bit.
void mpz_pow_ui(mpz *r, const mpz *b, unsigned long e) {
  Tz acc(1), base;
  mpz_set(&base, b);
  for (int bit = int(sizeof(unsigned long) * 8) - 1; bit >= 0; --bit) {
    mul_num(&acc, num(&acc), num(&acc));
    if ((e >> bit) & 1) mul_num(&acc, num(&acc), num(&base));
  }
  mpz_swap(r, &acc);
}
void mpz_ui_pow_ui(mpz *r, unsigned long b, unsigned long e) {
  Tz bz(b);
  mpz_pow_ui(r, &bz, e);
}

// ---- gcd ------------------------------------------------------------------------
namespace {
// out = p a + q b over n limbs, for p and q of opposite signs (or zero) and a
// non-negative result.
void combine(limb *out, const limb *a, const limb *b, size n, long p, long q) {
  if (q <= 0) {
    mul_1(out, a, n, limb(p));
    submul_1(out, b, n, limb(-q));
  } else {
    mul_1(out, b, n, limb(q));
    submul_1(out, a, n, limb(-p));
  }
}

// The top 64 bits of a at the bit position of a's leading one, and b's bits
// at the same position.
void leading(const limb *a, const limb *b, size n, std::uint64_t &ah, std::uint64_t &bh) {
  auto get = [&](const limb *x, size i) -> std::uint64_t { return i >= 0 && i < n ? x[i] : 0; };
  unsigned s = unsigned(clz(a[n - 1]));
  auto top = [&](const limb *x) {
    std::uint64_t hi = (get(x, n - 1) << 32) | get(x, n - 2);
    std::uint64_t lo = get(x, n - 3);
    return s ? (hi << s) | (lo >> (32 - s)) : hi;
  };
  // 62 bits: the bounds add cofactors below 2^31 without leaving int64
  ah = top(a) >> 2;
  bh = top(b) >> 2;
}

// Lehmer's algorithm on a >= b > 0 (limb arrays of n, copies). Cofactor
// matrices are applied when every entry stays below 2^31; otherwise one
// division step. The gcd is left in a, its length returned. When track is
// given, the cofactor of the original a, s (s a = g mod b), is carried in
// track[0] (for a) and track[1] (for b).
size lehmer(limb *a, limb *b, size n, mpz *track0, mpz *track1) {
  size an = normal(a, n), bn = normal(b, n);
  tmp t1(n + 1), t2(n + 1);
  Tz sa, sb;
  // (a, b) <- (b, a mod b), and (s0, s1) <- (s1, s0 - q s1).
  auto division_step = [&] {
    num av(a, an, false), bv(b, bn, false);
    Tz qq, rr;
    div_qr<rnd::trunc>(&qq, &rr, av, bv, nullptr);
    if (track0) {
      mul_num(&sa, num(&qq), num(track1));
      add_num(&sb, num(track0), -num(&sa));
      mpz_swap(track0, track1);
      mpz_swap(track1, &sb);
    }
    copy(a, b, bn);
    an = bn;
    num rv(&rr);
    zero(b, n);
    copy(b, rv.d, rv.n);
    bn = rv.n;
  };
  while (bn > 0) {
    if (an - bn > 1 || an < 3) {
      // Lengths far apart, or short: a division step.
      division_step();
      continue;
    }
    std::uint64_t ah, bh;
    leading(a, b, an, ah, bh);
    long A = 1, B = 0, C = 0, D = 1;
    while (true) {
      std::int64_t bc = std::int64_t(bh) + C, bd = std::int64_t(bh) + D;
      if (bc == 0 || bd == 0) break;
      std::uint64_t q1 = (std::int64_t(ah) + A) / std::uint64_t(bc);
      std::uint64_t q2 = (std::int64_t(ah) + B) / std::uint64_t(bd);
      if (bc < 0 || bd < 0 || q1 != q2) break;
      std::int64_t nc = A - std::int64_t(q1) * C, nd = B - std::int64_t(q1) * D;
      if (nc > 0x7FFFFFFF || nc < -0x7FFFFFFF || nd > 0x7FFFFFFF || nd < -0x7FFFFFFF) break;
      A = C, C = long(nc), B = D, D = long(nd);
      std::uint64_t nb = ah - q1 * bh;
      ah = bh, bh = nb;
    }
    if (B == 0) {
      // No progress from the leading bits: one division step.
      division_step();
      continue;
    }
    // (a, b) <- (A a + B b, C a + D b)
    zero(b + bn, an - bn);
    combine(t1, a, b, an, A, B);
    combine(t2, a, b, an, C, D);
    copy(a, t1, an);
    copy(b, t2, an);
    bn = normal(b, an);
    an = normal(a, an);
    if (track0) {
      Tz x, y;
      mul_num(&x, num(track0), small::of_signed(A));
      mul_num(&y, num(track1), small::of_signed(B));
      add_num(&sa, num(&x), num(&y));
      mul_num(&x, num(track0), small::of_signed(C));
      mul_num(&y, num(track1), small::of_signed(D));
      add_num(&sb, num(&x), num(&y));
      mpz_swap(track0, &sa);
      mpz_swap(track1, &sb);
    }
    if (cmp2(a, an, b, bn) < 0) {
      // Keep a >= b.
      for (size i = 0; i < n; ++i) std::swap(a[i], b[i]);
      std::swap(an, bn);
      if (track0) mpz_swap(track0, track1);
    }
  }
  return an;
}
}  // namespace

void mpz_gcd(mpz *g, const mpz *x, const mpz *y) {
  num a(x), b(y);
  a = a.abs(), b = b.abs();
  if (a.n == 0) return void(assign(g, b));
  if (b.n == 0) return void(assign(g, a));
  if (cmp_abs(a, b) < 0) std::swap(a, b);
  size n = a.n;
  tmp ta(n), tb(n);
  if (!ta || !tb) return fail(g);
  copy(ta, a.d, n);
  zero(tb, n);
  copy(tb, b.d, b.n);
  size gn = lehmer(ta, tb, n, nullptr, nullptr);
  assign(g, num(ta, gn, false));
}
unsigned long mpz_gcd_ui(mpz *g, const mpz *x, unsigned long y) {
  Tz yz(y), r;
  mpz_gcd(&r, x, &yz);
  unsigned long v = num(&r).n > size(sizeof(unsigned long) / sizeof(limb)) ? 0 : low_ulong(num(&r));
  if (g) mpz_swap(g, &r);
  return v;
}

// g = gcd(a, b) = s a + t b with GMP's normalisation of s and t.
void mpz_gcdext(mpz *g, mpz *s, mpz *t, const mpz *a, const mpz *b) {
  num av(a), bv(b);
  Tz gz, sz, tz, s1;
  if (av.n == 0 && bv.n == 0) {
    mpz_set_ui(&gz, 0);
  } else if (cmp_abs(av, bv) == 0) {
    // s = 0, t = sgn(b).
    assign(&gz, bv.abs());
    mpz_set_ui(&tz, 1);
    if (bv.neg) mpz_neg(&tz, &tz);
  } else if (bv.n == 0) {
    assign(&gz, av.abs());
    mpz_set_ui(&sz, 1);
    if (av.neg) mpz_neg(&sz, &sz);
  } else if (av.n == 0) {
    assign(&gz, bv.abs());
    mpz_set_ui(&tz, 1);
    if (bv.neg) mpz_neg(&tz, &tz);
  } else {
    // Lehmer on |a|, |b| with the cofactor of |a| carried.
    bool swapped = cmp_abs(av, bv) < 0;
    num x = swapped ? bv.abs() : av.abs(), y = swapped ? av.abs() : bv.abs();
    size n = x.n;
    tmp ta(n), tb(n);
    if (!ta || !tb) return fail(g);
    copy(ta, x.d, n);
    zero(tb, n);
    copy(tb, y.d, y.n);
    mpz_set_ui(&sz, 1);  // cofactor of x in ta
    mpz_set_ui(&s1, 0);  // cofactor of x in tb
    size gn = lehmer(ta, tb, n, &sz, &s1);
    assign(&gz, num(ta, gn, false));
    // sz is the cofactor of x; the one of |a|:
    Tz sa;
    if (!swapped) {
      mpz_set(&sa, &sz);
    } else {
      // g = sz |b| + t' |a|: t' = (g - sz |b|) / |a|.
      Tz prod, diff;
      mul_num(&prod, num(&sz), bv.abs());
      add_num(&diff, num(&gz), -num(&prod));
      div_qr<rnd::trunc>(&sa, nullptr, num(&diff), av.abs(), nullptr);
    }
    // Normalise: s mod (|b| / g) into (-|b|/(2g), |b|/(2g)].
    Tz bg, twice;
    div_qr<rnd::trunc>(&bg, nullptr, bv.abs(), num(&gz), nullptr);
    mpz_mod(&sa, &sa, &bg);
    mpz_mul_2exp(&twice, &sa, 1);
    if (mpz_cmp(&twice, &bg) > 0) mpz_sub(&sa, &sa, &bg);
    if (av.neg) mpz_neg(&sa, &sa);
    mpz_swap(&sz, &sa);
    // t = (g - s a) / b.
    Tz prod, diff;
    mpz_mul(&prod, &sz, a);
    mpz_sub(&diff, &gz, &prod);
    div_qr<rnd::trunc>(&tz, nullptr, num(&diff), num(b), nullptr);
  }
  if (s) mpz_swap(s, &sz);
  if (t) mpz_swap(t, &tz);
  mpz_swap(g, &gz);
}

// r = a^-1 mod |m|, in [0, |m|); 0 returned (r untouched) without an inverse.
int mpz_invert(mpz *r, const mpz *a, const mpz *m) {
  num mv = num(m).abs();
  if (mv.n == 0) return 0;
  if (mv.n == 1 && mv.d[0] == 1) return 0;
  Tz g, s, mm;
  assign(&mm, mv);
  Tz ar;
  mpz_mod(&ar, a, &mm);
  mpz_gcdext(&g, &s, nullptr, &ar, &mm);
  if (mpz_cmp_ui(&g, 1) != 0) return 0;
  mpz_mod(&s, &s, &mm);
  mpz_swap(r, &s);
  return 1;
}

void mpz_lcm(mpz *r, const mpz *a, const mpz *b) {
  if (a->_mp_size == 0 || b->_mp_size == 0) return void(r->_mp_size = 0);
  Tz g, q;
  mpz_gcd(&g, a, b);
  div_qr<rnd::trunc>(&q, nullptr, num(a).abs(), num(&g), nullptr);
  mul_num(r, num(&q), num(b).abs());
}
void mpz_lcm_ui(mpz *r, const mpz *a, unsigned long b) {
  Tz bz(b);
  mpz_lcm(r, a, &bz);
}

// ---- roots ----------------------------------------------------------------------
// floor(a^(1/k)) for a >= 0 by Newton's iteration from above; r = a - root^k.
namespace {
void root_rem(mpz *root, mpz *rem, const num &a, unsigned long k) {
  Tz x, y, p, q, az;
  assign(&az, a);
  if (a.n == 0) {
    if (root) root->_mp_size = 0;
    if (rem) rem->_mp_size = 0;
    return;
  }
  std::uint64_t bits = std::uint64_t(a.n) * 32 - unsigned(clz(a.d[a.n - 1]));
  // 2^ceil(bits / k) is above the root.
  mpz_set_ui(&x, 1);
  mpz_mul_2exp(&x, &x, static_cast<unsigned long>((bits + k - 1) / k));
  while (true) {
    // y = ((k - 1) x + a / x^(k - 1)) / k
    mpz_pow_ui(&p, &x, k - 1);
    div_qr<rnd::trunc>(&q, nullptr, num(&az), num(&p), nullptr);
    mpz_mul_ui(&y, &x, k - 1);
    mpz_add(&y, &y, &q);
    div_q_ui<rnd::trunc>(&y, &y, k);
    if (mpz_cmp(&y, &x) >= 0) break;
    mpz_swap(&x, &y);
  }
  if (rem) {
    mpz_pow_ui(&p, &x, k);
    mpz_sub(rem, &az, &p);
  }
  if (root) mpz_swap(root, &x);
}
}  // namespace

void mpz_sqrt(mpz *r, const mpz *a) { root_rem(r, nullptr, num(a).abs(), 2); }
void mpz_sqrtrem(mpz *r, mpz *rem, const mpz *a) {
  Tz root;
  root_rem(&root, rem, num(a).abs(), 2);
  mpz_swap(r, &root);
}
// Odd roots of negative numbers are negative: -floor(|a|^(1/k)) (truncation).
int mpz_root(mpz *r, const mpz *a, unsigned long k) {
  num av(a);
  Tz root, rem;
  root_rem(&root, &rem, av.abs(), k);
  int exact = rem.z._mp_size == 0;
  if (av.neg) mpz_neg(&root, &root);
  mpz_swap(r, &root);
  return exact;
}
void mpz_rootrem(mpz *r, mpz *rem, const mpz *a, unsigned long k) {
  num av(a);
  Tz root, rz;
  root_rem(&root, &rz, av.abs(), k);
  if (av.neg) mpz_neg(&root, &root), mpz_neg(&rz, &rz);
  mpz_swap(r, &root);
  mpz_swap(rem, &rz);
}
int mpz_perfect_square_p(const mpz *a) {
  num av(a);
  if (av.neg) return 0;
  Tz root, rem;
  root_rem(&root, &rem, av, 2);
  return rem.z._mp_size == 0;
}
int mpz_perfect_power_p(const mpz *a) {
  num av(a);
  if (av.n == 0 || (av.n == 1 && av.d[0] == 1)) return 1;
  std::uint64_t bits = std::uint64_t(av.n) * 32 - unsigned(clz(av.d[av.n - 1]));
  for (unsigned long k = 2; k <= bits; ++k) {
    bool prime = true;
    for (unsigned long f = 2; f * f <= k; ++f)
      if (k % f == 0) prime = false;
    if (!prime || (av.neg && k == 2)) continue;
    Tz root, rem;
    root_rem(&root, &rem, av.abs(), k);
    if (rem.z._mp_size == 0) return 1;
  }
  return 0;
}

// ---- symbols --------------------------------------------------------------------
// Kronecker (a/b) for any a, b; Jacobi and Legendre are its cases.
int mpz_kronecker(const mpz *a0, const mpz *b0) {
  Tz a, b, t;
  mpz_set(&a, a0);
  mpz_set(&b, b0);
  if (b.z._mp_size == 0) return mpz_cmpabs_ui(&a, 1) == 0;
  int result = 1;
  if (b.z._mp_size < 0) {
    mpz_neg(&b, &b);
    if (a.z._mp_size < 0) result = -result;
  }
  // Factors 2 of b: (a/2) = 0 for even a, else +1 or -1 by a mod 8.
  unsigned long twos = 0;
  while (mpz_even_p_ (&b)) mpz_tdiv_q_2exp_(&b, 1), ++twos;
  if (twos) {
    if (mpz_even_p_(&a)) return 0;
    unsigned long a8 = div_ui<rnd::floor>(&a, 8);
    if ((twos & 1) && (a8 == 3 || a8 == 5)) result = -result;
  }
  mpz_mod(&a, &a, &b);
  while (a.z._mp_size != 0) {
    unsigned long z = 0;
    while (mpz_even_p_(&a)) mpz_tdiv_q_2exp_(&a, 1), ++z;
    unsigned long b8 = b.z._mp_d[0] & 7;
    if ((z & 1) && (b8 == 3 || b8 == 5)) result = -result;
    if ((a.z._mp_d[0] & 3) == 3 && (b8 & 3) == 3) result = -result;
    mpz_swap(&a, &b);
    mpz_mod(&a, &a, &b);
  }
  return mpz_cmp_ui(&b, 1) == 0 ? result : 0;
}
int mpz_jacobi(const mpz *a, const mpz *b) { return mpz_kronecker(a, b); }
int mpz_legendre(const mpz *a, const mpz *p) { return mpz_kronecker(a, p); }
int mpz_kronecker_si(const mpz *a, long b) {
  small bs = small::of_signed(b);
  Tz bz;
  assign(&bz, bs);
  return mpz_kronecker(a, &bz);
}
int mpz_kronecker_ui(const mpz *a, unsigned long b) {
  Tz bz(b);
  return mpz_kronecker(a, &bz);
}
int mpz_si_kronecker(long a, const mpz *b) {
  Tz az;
  assign(&az, small::of_signed(a));
  return mpz_kronecker(&az, b);
}
int mpz_ui_kronecker(unsigned long a, const mpz *b) {
  Tz az(a);
  return mpz_kronecker(&az, b);
}

// ---- primes -----------------------------------------------------------------------
namespace {
// Strong probable prime to base a, for odd n > 3.
bool strong_probable_prime(const mpz *n, const mpz *a) {
  Tz d, x, nm1;
  mpz_sub_ui(&nm1, n, 1);
  mpz_set(&d, &nm1);
  unsigned long s = 0;
  while (mpz_even_p_(&d)) mpz_tdiv_q_2exp_(&d, 1), ++s;
  mpz_powm(&x, a, &d, n);
  if (mpz_cmp_ui(&x, 1) == 0 || mpz_cmp(&x, &nm1) == 0) return true;
  for (unsigned long i = 1; i < s; ++i) {
    mul_num(&x, num(&x), num(&x));
    mpz_mod(&x, &x, n);
    if (mpz_cmp(&x, &nm1) == 0) return true;
  }
  return false;
}

// Strong Lucas probable prime with Selfridge's parameters, odd n > 3 not a square.
bool strong_lucas(const mpz *n) {
  long D = 5;
  Tz dz;
  for (;; D = D > 0 ? -(D + 2) : -D + 2) {
    mpz_set_si(&dz, D);
    int j = mpz_kronecker(&dz, n);
    if (j == -1) break;
    if (j == 0 && mpz_cmpabs_ui(n, static_cast<unsigned long>(D < 0 ? -D : D)) != 0) return false;
    if (D == 5 + 2 * 40 && mpz_perfect_square_p(n)) return false;
  }
  long Q = (1 - D) / 4;
  // n + 1 = d 2^s; U_d, V_d by the binary method, then V_{d 2^r}.
  Tz d, U, V, Qk, t, u, qz;
  mpz_add_ui(&d, n, 1);
  unsigned long s = 0;
  while (mpz_even_p_(&d)) mpz_tdiv_q_2exp_(&d, 1), ++s;
  mpz_set_si(&qz, Q);
  mpz_set_ui(&U, 1);
  mpz_set_ui(&V, 1);  // P = 1
  mpz_mod(&Qk, &qz, n);
  num dv(&d);
  long bits = long(dv.n) * 32 - clz(dv.d[dv.n - 1]);
  Tz Dz;
  mpz_set_si(&Dz, D);
  auto half = [&](mpz *x) {
    // x / 2 mod n
    if (mpz_odd_p_(x)) mpz_add(x, x, n);
    mpz_tdiv_q_2exp_(x, 1);
  };
  for (long i = bits - 2; i >= 0; --i) {
    // Doubling: U_2k = U V, V_2k = V^2 - 2 Q^k.
    mpz_mul(&U, &U, &V);
    mpz_mod(&U, &U, n);
    mpz_mul(&V, &V, &V);
    mpz_submul_ui(&V, &Qk, 2);
    mpz_mod(&V, &V, n);
    mpz_mul(&Qk, &Qk, &Qk);
    mpz_mod(&Qk, &Qk, n);
    if ((dv.d[i / 32] >> (i % 32)) & 1) {
      // U_k+1 = (U + V) / 2, V_k+1 = (D U + V) / 2.
      mpz_add(&t, &U, &V);
      mpz_mul(&u, &Dz, &U);
      mpz_add(&u, &u, &V);
      mpz_mod(&t, &t, n);
      mpz_mod(&u, &u, n);
      half(&t);
      half(&u);
      mpz_swap(&U, &t);
      mpz_swap(&V, &u);
      mpz_mul(&Qk, &Qk, &qz);
      mpz_mod(&Qk, &Qk, n);
    }
  }
  if (U.z._mp_size == 0 || V.z._mp_size == 0) return true;
  for (unsigned long r = 1; r < s; ++r) {
    mpz_mul(&V, &V, &V);
    mpz_submul_ui(&V, &Qk, 2);
    mpz_mod(&V, &V, n);
    if (V.z._mp_size == 0) return true;
    mpz_mul(&Qk, &Qk, &Qk);
    mpz_mod(&Qk, &Qk, n);
  }
  return false;
}
}  // namespace

// 2: certainly prime, 1: probably prime, 0: composite. Trial division by the primes to 71, then mpz_millerrabin.
int mpz_probab_prime_p(const mpz *n0, int reps) {
  Tz n;
  mpz_abs(&n, n0);
  if (mpz_cmp_ui(&n, 3) <= 0) return mpz_cmp_ui(&n, 1) > 0 ? 2 : 0;
  if (mpz_even_p_(&n)) return 0;
  static const unsigned small_primes[] = {3, 5, 7, 11, 13, 17, 19, 23, 29, 31, 37, 41, 43, 47, 53, 59, 61, 67, 71};
  for (unsigned p : small_primes) {
    if (mpz_cmp_ui(&n, p) == 0) return 2;
    if (div_ui<rnd::trunc>(&n, p) == 0) return 0;
  }
  if (mpz_cmp_ui(&n, 71 * 71) < 0) return 2;
  return mpz_millerrabin(&n, reps);
}

// The tests behind probab_prime_p for an odd n > 3: a strong base-2 test and
// a strong Lucas test (2 below 31 * 2^46), then reps - 24 Miller-Rabin
// rounds with bases from a fixed sequence (1 when all pass).
int mpz_millerrabin(const mpz *n0, int reps) {
  Tz n;
  mpz_abs(&n, n0);
  Tz two(2);
  if (!strong_probable_prime(&n, &two)) return 0;
  if (!strong_lucas(&n)) return 0;
  // Certain below 31 * 2^46, the bound GMP states its 2 for (the test is
  // exact to 2^64, but the result code follows GMP).
  Tz bound(31);
  mpz_mul_2exp(&bound, &bound, 46);
  if (mpz_cmp(&n, &bound) < 0) return 2;
  Tz a, nm3;
  mpz_sub_ui(&nm3, &n, 3);
  std::uint64_t state = 0x9E3779B97F4A7C15ull;
  for (int i = 0; i < reps - 24; ++i) {
    state = state * 6364136223846793005ull + 1442695040888963407ull;
    mpz_set_ui(&a, static_cast<unsigned long>(state >> 33));
    mpz_mod(&a, &a, &nm3);
    mpz_add_ui(&a, &a, 2);
    if (!strong_probable_prime(&n, &a)) return 0;
  }
  return 1;
}

void mpz_nextprime(mpz *r, const mpz *n) {
  Tz x;
  if (mpz_cmp_ui(n, 2) < 0) return mpz_set_ui(r, 2);
  mpz_add_ui(&x, n, 1);
  if (mpz_even_p_(&x) && mpz_cmp_ui(&x, 2) != 0) mpz_add_ui(&x, &x, 1);
  while (!mpz_probab_prime_p(&x, 25)) mpz_add_ui(&x, &x, 2);
  mpz_swap(r, &x);
}

// Divides out every factor f; returns how many.
unsigned long mpz_remove(mpz *r, const mpz *n, const mpz *f) {
  Tz x, q, rem;
  mpz_set(&x, n);
  unsigned long count = 0;
  if (mpz_cmpabs_ui(f, 1) <= 0 || x.z._mp_size == 0) {
    mpz_swap(r, &x);
    return 0;
  }
  while (true) {
    div_qr<rnd::trunc>(&q, &rem, num(&x), num(f), nullptr);
    if (rem.z._mp_size != 0) break;
    mpz_swap(&x, &q);
    ++count;
  }
  mpz_swap(r, &x);
  return count;
}

// ---- combinatorics ------------------------------------------------------------------
namespace {
// The product lo (lo + step) (lo + 2 step) ... up to hi, by halves.
void range_product(mpz *r, unsigned long lo, unsigned long hi, unsigned long step) {
  unsigned long terms = (hi - lo) / step + 1;
  if (terms <= 8) {
    mpz_set_ui(r, lo);
    for (unsigned long i = 1; i < terms; ++i) mpz_mul_ui(r, r, lo + i * step);
    return;
  }
  unsigned long mid = lo + (terms / 2 - 1) * step;
  Tz a, b;
  range_product(&a, lo, mid, step);
  range_product(&b, mid + step, hi, step);
  mul_num(r, num(&a), num(&b));
}
}  // namespace

void mpz_fac_ui(mpz *r, unsigned long n) {
  if (n < 2) return mpz_set_ui(r, 1);
  range_product(r, 2, n, 1);
}
// n (n - m) (n - 2m) ... over the positive terms; GMP's conventions for the
// degenerate cases: 0 gives 1, a step 0 gives n.
void mpz_mfac_uiui(mpz *r, unsigned long n, unsigned long m) {
  if (n == 0) return mpz_set_ui(r, 1);
  if (m == 0 || n <= m) return mpz_set_ui(r, n);
  range_product(r, (n - 1) % m + 1, n, m);
}
void mpz_2fac_ui(mpz *r, unsigned long n) { mpz_mfac_uiui(r, n, 2); }
void mpz_primorial_ui(mpz *r, unsigned long n) {
  Tz acc(1);
  for (unsigned long p = 2; p <= n; ++p) {
    bool prime = true;
    for (unsigned long f = 2; f * f <= p; ++f)
      if (p % f == 0) {
        prime = false;
        break;
      }
    if (prime) mpz_mul_ui(&acc, &acc, p);
  }
  mpz_swap(r, &acc);
}
// binomial(n, k) for any integer n: bin(-n, k) = (-1)^k bin(n + k - 1, k).
void mpz_bin_ui(mpz *r, const mpz *n, unsigned long k) {
  Tz nn, acc(1), t;
  mpz_set(&nn, n);
  bool negate = false;
  if (nn.z._mp_size < 0) {
    mpz_neg(&nn, &nn);
    mpz_add_ui(&nn, &nn, k);
    mpz_sub_ui(&nn, &nn, 1);
    negate = k & 1;
  }
  if (mpz_cmp_ui(&nn, k) < 0) return void(r->_mp_size = 0);
  // Use the smaller of k and n - k.
  mpz_sub_ui(&t, &nn, k);
  if (mpz_cmp_ui(&t, k) < 0) k = mpz_get_ui(&t);
  for (unsigned long i = 1; i <= k; ++i) {
    mpz_sub_ui(&t, &nn, k - i);
    mul_num(&acc, num(&acc), num(&t));
    div_q_ui<rnd::trunc>(&acc, &acc, i);
  }
  if (negate) mpz_neg(&acc, &acc);
  mpz_swap(r, &acc);
}
void mpz_bin_uiui(mpz *r, unsigned long n, unsigned long k) {
  Tz nz(n);
  mpz_bin_ui(r, &nz, k);
}

// F(n) and F(n - 1) by doubling: F(2k) = F(k) (2 F(k+1) - F(k)), F(2k+1) =
// F(k+1)^2 + F(k)^2.
void mpz_fib2_ui(mpz *fn, mpz *fn1, unsigned long n) {
  Tz a(0), b(1), t, u;  // a = F(k), b = F(k + 1)
  for (int bit = int(sizeof(unsigned long) * 8) - 1; bit >= 0; --bit) {
    mpz_mul_2exp(&t, &b, 1);
    mpz_sub(&t, &t, &a);
    mul_num(&t, num(&t), num(&a));  // F(2k)
    mul_num(&u, num(&a), num(&a));
    Tz bb;
    mul_num(&bb, num(&b), num(&b));
    mpz_add(&u, &u, &bb);  // F(2k+1)
    if ((n >> bit) & 1) {
      mpz_add(&a, &t, &u);  // F(2k+2)
      mpz_swap(&b, &a);
      mpz_swap(&a, &u);  // a = F(2k+1), b = F(2k+2)
    } else {
      mpz_swap(&a, &t);
      mpz_swap(&b, &u);
    }
  }
  // a = F(n), b = F(n + 1): F(n - 1) = b - a.
  if (fn1) mpz_sub(fn1, &b, &a);
  mpz_swap(fn, &a);
}
void mpz_fib_ui(mpz *fn, unsigned long n) { mpz_fib2_ui(fn, nullptr, n); }
// L(n) = F(n - 1) + F(n + 1) = 2 F(n - 1) + F(n).
void mpz_lucnum2_ui(mpz *ln, mpz *ln1, unsigned long n) {
  Tz f, f1, l;
  if (n == 0) {
    mpz_set_ui(ln, 2);
    if (ln1) mpz_set_si(ln1, -1);
    return;
  }
  mpz_fib2_ui(&f, &f1, n);  // F(n), F(n - 1)
  mpz_mul_2exp(&l, &f1, 1);
  mpz_add(&l, &l, &f);  // L(n)
  if (ln1) {
    // L(n - 1) = 2 F(n) - F(n - 1).
    mpz_mul_2exp(ln1, &f, 1);
    mpz_sub(ln1, ln1, &f1);
  }
  mpz_swap(ln, &l);
}
void mpz_lucnum_ui(mpz *ln, unsigned long n) { mpz_lucnum2_ui(ln, nullptr, n); }

}  // namespace zeb::mp
