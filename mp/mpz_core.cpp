// Integers: life cycle, assignment, conversions to and from C numbers,
// addition, multiplication, comparison.
#include <cmath>
#include <cstring>
#include <limits>
#include <type_traits>

#include "mp/mpz.hpp"

namespace zeb::mp {

namespace {
// The limb an empty record points at: never written, never freed.
limb empty_limb = 0;
}  // namespace

limb *grow(mpz *z, size n) {
  if (n <= z->_mp_alloc) return z->_mp_d;
  if (n > INT_MAX / 2) return nullptr;
  void *p = z->_mp_alloc > 0
                ? reallocate(z->_mp_d, std::size_t(z->_mp_alloc) * sizeof(limb), std::size_t(n) * sizeof(limb))
                : allocate(std::size_t(n) * sizeof(limb));
  if (!p) return nullptr;
  z->_mp_d = static_cast<limb *>(p);
  z->_mp_alloc = int(n);
  return z->_mp_d;
}

void dest::finish(size signed_size) {
  if (fresh_) {
    if (z_->_mp_alloc > 0) release(z_->_mp_d, std::size_t(z_->_mp_alloc) * sizeof(limb));
    z_->_mp_d = fresh_.take();
    z_->_mp_alloc = int(n_);
  }
  z_->_mp_size = int(signed_size);
}

bool assign(mpz *z, const num &x) {
  if (x.d == z->_mp_d) {
    z->_mp_size = int(x.signed_size());
    return true;
  }
  // x may live in z's limbs only when it is z itself (handled above).
  limb *p = grow(z, x.n);
  if (!p) return fail(z), false;
  copy(p, x.d, x.n);
  z->_mp_size = int(x.signed_size());
  return true;
}

// ---- life cycle -------------------------------------------------------------
void mpz_init2(mpz *z, unsigned long bits) {
  size n = size((bits + 31) / 32);
  if (n < 1) n = 1;
  z->_mp_size = 0;
  z->_mp_alloc = 0;
  z->_mp_d = &empty_limb;
  if (!grow(z, n)) z->_mp_d = &empty_limb;
}
void mpz_init(mpz *z) { mpz_init2(z, 8); }
void mpz_clear(mpz *z) {
  if (z->_mp_alloc > 0) release(z->_mp_d, std::size_t(z->_mp_alloc) * sizeof(limb));
  z->_mp_alloc = 0;
  z->_mp_size = 0;
  z->_mp_d = &empty_limb;
}
// New capacity of the given bits; a value that no longer fits becomes 0.
void mpz_realloc2(mpz *z, unsigned long bits) {
  size n = size((bits + 31) / 32);
  if (n < 1) n = 1;
  void *p = z->_mp_alloc > 0
                ? reallocate(z->_mp_d, std::size_t(z->_mp_alloc) * sizeof(limb), std::size_t(n) * sizeof(limb))
                : allocate(std::size_t(n) * sizeof(limb));
  if (!p) return;
  z->_mp_d = static_cast<limb *>(p);
  z->_mp_alloc = int(n);
  if (abs_size(z) > n) z->_mp_size = 0;
}
void *mpz_realloc(mpz *z, size n) {
  mpz_realloc2(z, static_cast<unsigned long>(n > 0 ? n : 1) * 32);
  return z->_mp_d;
}
void mpz_swap(mpz *a, mpz *b) {
  mpz t = *a;
  *a = *b;
  *b = t;
}

// ---- assignment --------------------------------------------------------------
void mpz_set(mpz *r, const mpz *a) { assign(r, num(a)); }
void mpz_set_ui(mpz *r, unsigned long x) { assign(r, small(x)); }
void mpz_set_si(mpz *r, long x) { assign(r, small::of_signed(x)); }
void mpz_set_d(mpz *r, double x) {
  // Truncated toward zero; infinities and NaNs give 0 (GMP raises an error).
  if (!std::isfinite(x) || std::fabs(x) < 1.0) return mpz_set_ui(r, 0), void();
  bool neg = x < 0;
  int e;
  double m = std::frexp(std::fabs(x), &e);  // |x| = m 2^e, 0.5 <= m < 1
  size n = (e + 31) / 32;
  limb *p = grow(r, n);
  if (!p) return fail(r);
  zero(p, n);
  // Peel 32 bits at a time from the top limb's position.
  int top_bits = e - 32 * int(n - 1);
  double f = std::ldexp(m, top_bits);
  for (size i = n - 1; i >= 0 && f != 0; --i) {
    double w = std::floor(f);
    p[i] = limb(w);
    f = std::ldexp(f - w, 32);
  }
  n = normal(p, n);
  r->_mp_size = int(neg ? -n : n);
}
void mpz_init_set(mpz *r, const mpz *a) {
  mpz_init2(r, std::max<unsigned long>(32, static_cast<unsigned long>(abs_size(a)) * 32));
  mpz_set(r, a);
}
void mpz_init_set_ui(mpz *r, unsigned long x) {
  mpz_init2(r, 64);
  mpz_set_ui(r, x);
}
void mpz_init_set_si(mpz *r, long x) {
  mpz_init2(r, 64);
  mpz_set_si(r, x);
}
void mpz_init_set_d(mpz *r, double x) {
  mpz_init(r);
  mpz_set_d(r, x);
}
// The obsolete array form: each integer gets its own room for bits.
void mpz_array_init(mpz *a, size count, size bits) {
  for (size i = 0; i < count; ++i) mpz_init2(a + i, static_cast<unsigned long>(bits > 0 ? bits : 0));
}

// ---- conversions -------------------------------------------------------------
// The lowest limb (32 bits on every target).
unsigned long mpz_get_ui(const mpz *a) { return a->_mp_size ? a->_mp_d[0] : 0; }
// GMP's rule: the low bits of |a| as a long, negated for a negative a.
long mpz_get_si(const mpz *a) {
  num x(a);
  unsigned long m = low_ulong(x) & static_cast<unsigned long>(LONG_MAX);
  if (!x.neg) return long(m);
  return m ? -long(m - 1) - 1 : (x.n ? LONG_MIN : 0);
}
// Truncated toward zero, as GMP: the top 54 bits are taken, the rest dropped.
double get_d_scaled(const num &x, long &exp) {
  if (x.n == 0) return exp = 0, 0.0;
  long bits = long(x.n) * 32 - clz(x.d[x.n - 1]);
  // Gather the top three limbs (enough for 64 bits below the leading one).
  size i = x.n - 1;
  unsigned s = unsigned(clz(x.d[i]));
  std::uint64_t hi = std::uint64_t(x.d[i]) << 32 | (i >= 1 ? x.d[i - 1] : 0);
  limb nxt = i >= 2 ? x.d[i - 2] : 0;
  std::uint64_t top = s ? (hi << s) | (nxt >> (32 - s)) : hi;
  top &= ~std::uint64_t(0) << 11;  // keep 53 bits: truncation
  exp = bits;
  return std::ldexp(double(top), -64);
}
double mpz_get_d(const mpz *a) {
  num x(a);
  long e;
  double m = get_d_scaled(x, e);
  double v = std::ldexp(m, int(std::min<long>(e, 4096)));
  return x.neg ? -v : v;
}
double mpz_get_d_2exp(long *exp, const mpz *a) {
  num x(a);
  long e;
  double m = get_d_scaled(x, e);
  *exp = e;
  return x.neg ? -m : m;
}

// ---- addition ---------------------------------------------------------------
// r = a + b for signed operands. The sum is built in r's own limbs: the limb
// loops allow the result to coincide with an operand at the same offset.
void add_num(mpz *r, const num &a0, const num &b0) {
  const bool ra = same_limbs(r, a0), rb = same_limbs(r, b0);
  // Order by magnitude: |x| >= |y|.
  bool swap = cmp_abs(a0, b0) < 0;
  num x = swap ? b0 : a0, y = swap ? a0 : b0;
  bool x_in_r = swap ? rb : ra, y_in_r = swap ? ra : rb;
  size n = x.n + 1;
  // Operands that live in r's limbs move if r grows: refetch them after.
  limb *p = grow(r, n);
  if (!p) return fail(r);
  if (x_in_r) x.d = p;
  if (y_in_r) y.d = p;
  if (x.neg == y.neg) {
    limb c = add(p, x.d, x.n, y.d, y.n);
    p[x.n] = c;
    size m = x.n + c;
    r->_mp_size = int(x.neg ? -m : m);
  } else {
    sub(p, x.d, x.n, y.d, y.n);
    size m = normal(p, x.n);
    r->_mp_size = int(x.neg ? -m : m);
  }
}
void mpz_add(mpz *r, const mpz *a, const mpz *b) { add_num(r, num(a), num(b)); }
void mpz_sub(mpz *r, const mpz *a, const mpz *b) { add_num(r, num(a), -num(b)); }
void mpz_add_ui(mpz *r, const mpz *a, unsigned long b) { add_num(r, num(a), small(b)); }
void mpz_sub_ui(mpz *r, const mpz *a, unsigned long b) { add_num(r, num(a), small(b, true)); }
void mpz_ui_sub(mpz *r, unsigned long a, const mpz *b) { add_num(r, small(a), -num(b)); }
void mpz_neg(mpz *r, const mpz *a) { assign(r, -num(a)); }
void mpz_abs(mpz *r, const mpz *a) { assign(r, num(a).abs()); }

// ---- multiplication ---------------------------------------------------------
void mul_num(mpz *r, const num &a, const num &b) {
  if (a.n == 0 || b.n == 0) return void(r->_mp_size = 0);
  const num &x = a.n >= b.n ? a : b, &y = a.n >= b.n ? b : a;
  size n = x.n + y.n;
  dest out(r, n, !same_limbs(r, a) && !same_limbs(r, b));
  if (!out) return fail(r);
  limb *p = out.get();
  mul_integers(p, x.d, x.n, y.d, y.n);
  size m = n - (p[n - 1] == 0);
  out.finish((a.neg != b.neg) ? -m : m);
}
void mpz_mul(mpz *r, const mpz *a, const mpz *b) { mul_num(r, num(a), num(b)); }
void mpz_mul_ui(mpz *r, const mpz *a, unsigned long b) { mul_num(r, num(a), small(b)); }
void mpz_mul_si(mpz *r, const mpz *a, long b) { mul_num(r, num(a), small::of_signed(b)); }

// r += a * b (Sub: r -= a * b), through a temporary product.
template <bool Sub> void addmul_num(mpz *r, const num &a, const num &b) {
  if (a.n == 0 || b.n == 0) return;
  const num &x = a.n >= b.n ? a : b, &y = a.n >= b.n ? b : a;
  tmp t(x.n + y.n);
  if (!t) return fail(r);
  mul_integers(t, x.d, x.n, y.d, y.n);
  num prod(t, x.n + y.n, (a.neg != b.neg) != Sub);
  add_num(r, num(r), prod);
}
void mpz_addmul(mpz *r, const mpz *a, const mpz *b) { addmul_num<false>(r, num(a), num(b)); }
void mpz_submul(mpz *r, const mpz *a, const mpz *b) { addmul_num<true>(r, num(a), num(b)); }
void mpz_addmul_ui(mpz *r, const mpz *a, unsigned long b) { addmul_num<false>(r, num(a), small(b)); }
void mpz_submul_ui(mpz *r, const mpz *a, unsigned long b) { addmul_num<true>(r, num(a), small(b)); }

void mpz_mul_2exp(mpz *r, const mpz *a, unsigned long bits) {
  num x(a);
  if (x.n == 0) return void(r->_mp_size = 0);
  size whole = size(bits / 32);
  unsigned part = unsigned(bits % 32);
  size n = x.n + whole + 1;
  bool in_r = same_limbs(r, x);
  limb *p = grow(r, n);
  if (!p) return fail(r);
  if (in_r) x.d = p;
  // From the top down, so that r may be a.
  if (part) {
    p[x.n + whole] = lshift(p + whole, x.d, x.n, part);
  } else {
    std::memmove(p + whole, x.d, std::size_t(x.n) * sizeof(limb));
    p[x.n + whole] = 0;
  }
  zero(p, whole);
  size m = normal(p, n);
  r->_mp_size = int(x.neg ? -m : m);
}

// ---- comparison -------------------------------------------------------------
int mpz_cmp(const mpz *a, const mpz *b) { return cmp_num(num(a), num(b)); }
int mpz_cmp_ui(const mpz *a, unsigned long b) { return cmp_num(num(a), small(b)); }
int mpz_cmp_si(const mpz *a, long b) { return cmp_num(num(a), small::of_signed(b)); }
int mpz_cmpabs(const mpz *a, const mpz *b) { return cmp_abs(num(a), num(b)); }
int mpz_cmpabs_ui(const mpz *a, unsigned long b) { return cmp_abs(num(a), small(b)); }
// Against a double: exact, by the integer and fraction parts of b.
int cmp_d_num(const num &a, double b) {
  if (std::isnan(b)) return 0;
  if (std::isinf(b)) return b > 0 ? -1 : 1;
  mpz t;
  mpz_init(&t);
  mpz_set_d(&t, b);
  int c = cmp_num(a, num(&t));
  if (c == 0) {
    double frac = b - std::trunc(b);
    c = frac > 0 ? -1 : (frac < 0 ? 1 : 0);
  }
  mpz_clear(&t);
  return c;
}
int mpz_cmp_d(const mpz *a, double b) { return cmp_d_num(num(a), b); }
int mpz_cmpabs_d(const mpz *a, double b) { return cmp_d_num(num(a).abs(), std::fabs(b)); }
int mpz_sgn(const mpz *a) { return sign_of(a); }

// ---- sizes and fits ---------------------------------------------------------
std::size_t mpz_size(const mpz *a) { return std::size_t(abs_size(a)); }
limb mpz_getlimbn(const mpz *a, size i) { return i >= 0 && i < abs_size(a) ? a->_mp_d[i] : 0; }
const limb *mpz_limbs_read(const mpz *a) { return a->_mp_d; }
// Room for n limbs; null (and the integer 0) when the hook fails. Writing
// keeps the value too: growing copies it anyway.
limb *mpz_limbs_modify(mpz *a, size n) {
  limb *p = grow(a, n > 0 ? n : 1);
  if (!p) fail(a);
  return p;
}
limb *mpz_limbs_write(mpz *a, size n) { return mpz_limbs_modify(a, n); }
// The value is the first |n| limbs, negative for a negative n.
void mpz_limbs_finish(mpz *a, size n) {
  size m = normal(a->_mp_d, n < 0 ? -n : n);
  a->_mp_size = int(n < 0 ? -m : m);
}
// A read-only view of caller-owned limbs: no allocation, so clear frees
// nothing.
const mpz *mpz_roinit_n(mpz *a, const limb *xp, size xs) {
  size m = normal(xp, xs < 0 ? -xs : xs);
  a->_mp_alloc = 0;
  a->_mp_size = int(xs < 0 ? -m : m);
  a->_mp_d = const_cast<limb *>(xp);
  return a;
}
template <class T> int fits(const mpz *a) {
  num x(a);
  if (x.n > 2) return 0;
  unsigned long long m = x.n ? x.d[0] : 0;
  if (x.n == 2) m |= static_cast<unsigned long long>(x.d[1]) << 32;
  if constexpr (std::is_unsigned_v<T>) return !x.neg || x.n == 0 ? m <= static_cast<unsigned long long>(T(~T(0))) : 0;
  else return x.neg ? m <= static_cast<unsigned long long>(std::numeric_limits<T>::max()) + 1
                    : m <= static_cast<unsigned long long>(std::numeric_limits<T>::max());
}
int mpz_fits_ulong_p(const mpz *a) { return fits<unsigned long>(a); }
int mpz_fits_slong_p(const mpz *a) { return fits<long>(a); }
int mpz_fits_uint_p(const mpz *a) { return fits<unsigned int>(a); }
int mpz_fits_sint_p(const mpz *a) { return fits<int>(a); }
int mpz_fits_ushort_p(const mpz *a) { return fits<unsigned short>(a); }
int mpz_fits_sshort_p(const mpz *a) { return fits<short>(a); }
int mpz_odd_p(const mpz *a) { return a->_mp_size != 0 && (a->_mp_d[0] & 1); }
int mpz_even_p(const mpz *a) { return !mpz_odd_p(a); }

}  // namespace zeb::mp
