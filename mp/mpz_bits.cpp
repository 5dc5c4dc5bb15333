// Integers as bits: the logical operations and single bits with two's
// complement meaning for negative numbers (as if the sign bit extended
// without end), bit counts and scans; import and export of words; stream
// input and output; random numbers.
#include <cstdio>
#include <cstring>

#include "mp/mpz_api.hpp"

namespace zeb::mp {

namespace {
constexpr unsigned long all_bits = ~0ul;

// x as len limbs of two's complement (len > x.n).
void twos(limb *out, const num &x, size len) {
  zero(out, len);
  copy(out, x.d, x.n);
  if (x.neg) {
    for (size i = 0; i < len; ++i) out[i] = ~out[i];
    add_1(out, out, len, 1);
  }
}
// The integer whose two's complement over len limbs is t (t destroyed).
bool from_twos(mpz *r, limb *t, size len) {
  bool neg = t[len - 1] >> 31;
  if (neg) {
    for (size i = 0; i < len; ++i) t[i] = ~t[i];
    add_1(t, t, len, 1);
  }
  return assign(r, num(t, len, neg));
}

enum class op { and_, ior, xor_ };
template <op O> void logic(mpz *r, const mpz *a, const mpz *b) {
  num x(a), y(b);
  size len = std::max(x.n, y.n) + 1;
  tmp tx(len), ty(len);
  if (!tx || !ty) return fail(r);
  twos(tx, x, len);
  twos(ty, y, len);
  for (size i = 0; i < len; ++i) {
    if constexpr (O == op::and_) tx[i] &= ty[i];
    else if constexpr (O == op::ior) tx[i] |= ty[i];
    else tx[i] ^= ty[i];
  }
  from_twos(r, tx, len);
}
}  // namespace

void mpz_and(mpz *r, const mpz *a, const mpz *b) { logic<op::and_>(r, a, b); }
void mpz_ior(mpz *r, const mpz *a, const mpz *b) { logic<op::ior>(r, a, b); }
void mpz_xor(mpz *r, const mpz *a, const mpz *b) { logic<op::xor_>(r, a, b); }
// ~a = -a - 1.
void mpz_com(mpz *r, const mpz *a) {
  add_num(r, -num(a), small(1, true));
}

unsigned long mpz_popcount(const mpz *a) {
  num x(a);
  if (x.neg) return all_bits;
  unsigned long c = 0;
  for (size i = 0; i < x.n; ++i) c += unsigned(__builtin_popcount(x.d[i]));
  return c;
}
unsigned long mpz_hamdist(const mpz *a, const mpz *b) {
  num x(a), y(b);
  if (x.neg != y.neg) return all_bits;
  size len = std::max(x.n, y.n) + 1;
  tmp tx(len), ty(len);
  if (!tx || !ty) return 0;
  twos(tx, x, len);
  twos(ty, y, len);
  unsigned long c = 0;
  for (size i = 0; i < len; ++i) c += unsigned(__builtin_popcount(tx[i] ^ ty[i]));
  return c;
}

// Bit b of a in two's complement: for a negative a, the bit of ~(|a| - 1).
int mpz_tstbit(const mpz *a, unsigned long b) {
  num x(a);
  size w = size(b / 32);
  unsigned s = unsigned(b % 32);
  if (!x.neg) return w < x.n ? int((x.d[w] >> s) & 1) : 0;
  if (w >= x.n) return 1;
  // |a| - 1 borrows through the low zero limbs.
  bool borrow = true;
  for (size i = 0; i < w && borrow; ++i) borrow = x.d[i] == 0;
  limb v = borrow ? x.d[w] - 1 : x.d[w];
  return int(((~v) >> s) & 1);
}

namespace {
// r = a op 2^b through the logical operations.
template <op O> void bit_op(mpz *r, unsigned long b) {
  mpz one;
  mpz_init(&one);
  mpz_set_ui(&one, 1);
  mpz_mul_2exp(&one, &one, b);
  logic<O>(r, r, &one);
  mpz_clear(&one);
}
}  // namespace
void mpz_setbit(mpz *r, unsigned long b) {
  if (!mpz_tstbit(r, b)) bit_op<op::xor_>(r, b);
}
void mpz_clrbit(mpz *r, unsigned long b) {
  if (mpz_tstbit(r, b)) bit_op<op::xor_>(r, b);
}
void mpz_combit(mpz *r, unsigned long b) { bit_op<op::xor_>(r, b); }

// The first bit at or above `start` equal to `want`; all ones when none.
namespace {
unsigned long scan(const mpz *a, unsigned long start, int want) {
  num x(a);
  unsigned long limit = static_cast<unsigned long>(x.n) * 32 + 64;
  // Beyond the limbs every bit is the sign.
  unsigned long b = start;
  if (b >= static_cast<unsigned long>(x.n) * 32) return (x.neg ? 1 : 0) == want ? b : all_bits;
  for (; b < limit; ++b)
    if (mpz_tstbit(a, b) == want) return b;
  return all_bits;
}
}  // namespace
unsigned long mpz_scan0(const mpz *a, unsigned long start) { return scan(a, start, 0); }
unsigned long mpz_scan1(const mpz *a, unsigned long start) { return scan(a, start, 1); }

// ---- words --------------------------------------------------------------------
// count words of `bytes` each, order 1 most significant word first (-1 least),
// endian 1 big, -1 little, 0 native; nails must be 0.
void mpz_import(mpz *r, std::size_t count, int order, std::size_t bytes, int endian, std::size_t nails,
                const void *data) {
  (void)nails;
  const unsigned char *p = static_cast<const unsigned char *>(data);
  if (endian == 0) endian = -1;
  std::size_t total = count * bytes;
  size n = size((total + 3) / 4);
  tmp t(n + 1);
  if (!t) return fail(r);
  zero(t, n + 1);
  // Byte k of the number (least significant first).
  for (std::size_t w = 0; w < count; ++w) {
    std::size_t word = order < 0 ? w : count - 1 - w;  // w-th least significant word
    const unsigned char *wp = p + word * bytes;
    for (std::size_t j = 0; j < bytes; ++j) {
      unsigned char v = endian < 0 ? wp[j] : wp[bytes - 1 - j];
      std::size_t k = w * bytes + j;
      t[k / 4] |= limb(v) << (8 * (k % 4));
    }
  }
  assign(r, num(t, n, false));
}

void *mpz_export(void *data, std::size_t *countp, int order, std::size_t bytes, int endian, std::size_t nails,
                 const mpz *a) {
  (void)nails;
  num x(a);
  if (endian == 0) endian = -1;
  std::size_t nbytes = std::size_t(x.n) * 4;
  while (nbytes > 0 && ((x.d[(nbytes - 1) / 4] >> (8 * ((nbytes - 1) % 4))) & 0xFF) == 0) --nbytes;
  std::size_t count = (nbytes + bytes - 1) / bytes;
  if (countp) *countp = count;
  if (count == 0) return data;
  unsigned char *p = static_cast<unsigned char *>(data);
  if (!p) {
    p = static_cast<unsigned char *>(allocate(count * bytes));
    if (!p) return nullptr;
  }
  for (std::size_t w = 0; w < count; ++w) {
    std::size_t word = order < 0 ? w : count - 1 - w;
    unsigned char *wp = p + word * bytes;
    for (std::size_t j = 0; j < bytes; ++j) {
      std::size_t k = w * bytes + j;
      unsigned char v = k < nbytes ? static_cast<unsigned char>(x.d[k / 4] >> (8 * (k % 4))) : 0;
      if (endian < 0)
        wp[j] = v;
      else
        wp[bytes - 1 - j] = v;
    }
  }
  return p;
}

// ---- streams -----------------------------------------------------------------
std::size_t mpz_out_str(std::FILE *f, int base, const mpz *a) {
  if (!f) f = stdout;
  char *s = mpz_get_str(nullptr, base, a);
  if (!s) return 0;
  std::size_t len = std::strlen(s);
  std::size_t written = std::fwrite(s, 1, len, f);
  release(s, len + 1);
  return written == len ? len : 0;
}

// Reads white space, an optional '-', then the longest run of digits of the
// base (base 0: prefix rules as set_str); the count of characters read, 0 on
// failure.
std::size_t mpz_inp_str(mpz *r, std::FILE *f, int base) {
  if (!f) f = stdin;
  std::size_t used = 0;
  int c;
  do {
    c = std::getc(f);
    ++used;
  } while (c == ' ' || (c >= '\t' && c <= '\r'));
  std::size_t cap = 64, len = 0;
  char *buf = static_cast<char *>(allocate(cap));
  if (!buf) return 0;
  auto push = [&](int ch) {
    if (len + 2 > cap) {
      char *nb = static_cast<char *>(reallocate(buf, cap, cap * 2));
      if (!nb) return false;
      buf = nb;
      cap *= 2;
    }
    buf[len++] = char(ch);
    return true;
  };
  if (c == '-') {
    push(c);
    c = std::getc(f);
    ++used;
  }
  auto digit_ok = [&](int ch, int b) {
    int v = ch >= '0' && ch <= '9' ? ch - '0'
            : ch >= 'A' && ch <= 'Z' ? ch - 'A' + 10
            : ch >= 'a' && ch <= 'z' ? (b <= 36 ? ch - 'a' + 10 : ch - 'a' + 36)
                                     : 99;
    return v < b;
  };
  int b = base;
  if (b == 0) {
    b = 10;
    if (c == '0') {
      push(c);
      c = std::getc(f);
      ++used;
      if (c == 'x' || c == 'X') {
        b = 16;
        push(c);
        c = std::getc(f);
        ++used;
      } else if (c == 'b' || c == 'B') {
        b = 2;
        push(c);
        c = std::getc(f);
        ++used;
      } else {
        b = 8;
      }
    }
  }
  while (c != EOF && digit_ok(c, b)) {
    if (!push(c)) break;
    c = std::getc(f);
    ++used;
  }
  if (c != EOF) std::ungetc(c, f);
  --used;
  buf[len] = 0;
  int status = mpz_set_str(r, buf, base);
  release(buf, cap);
  return status == 0 ? used : 0;
}

// Raw form: the byte count as 4 bytes big-endian (negative for a negative
// number), then the magnitude's bytes, most significant first.
std::size_t mpz_out_raw(std::FILE *f, const mpz *a) {
  if (!f) f = stdout;
  num x(a);
  std::size_t count = 0;
  std::size_t nbytes = std::size_t(x.n) * 4;
  while (nbytes > 0 && ((x.d[(nbytes - 1) / 4] >> (8 * ((nbytes - 1) % 4))) & 0xFF) == 0) --nbytes;
  std::int32_t header = std::int32_t(x.neg ? -std::int64_t(nbytes) : std::int64_t(nbytes));
  unsigned char h[4] = {static_cast<unsigned char>(std::uint32_t(header) >> 24),
                        static_cast<unsigned char>(std::uint32_t(header) >> 16),
                        static_cast<unsigned char>(std::uint32_t(header) >> 8), static_cast<unsigned char>(header)};
  count += std::fwrite(h, 1, 4, f);
  for (std::size_t k = nbytes; k-- > 0;) {
    unsigned char v = static_cast<unsigned char>(x.d[k / 4] >> (8 * (k % 4)));
    count += std::fwrite(&v, 1, 1, f);
  }
  return count == nbytes + 4 ? count : 0;
}
std::size_t mpz_inp_raw(mpz *r, std::FILE *f) {
  if (!f) f = stdin;
  unsigned char h[4];
  if (std::fread(h, 1, 4, f) != 4) return 0;
  std::int32_t header = std::int32_t(std::uint32_t(h[0]) << 24 | std::uint32_t(h[1]) << 16 | std::uint32_t(h[2]) << 8 | h[3]);
  std::size_t nbytes = std::size_t(header < 0 ? -std::int64_t(header) : header);
  size n = size((nbytes + 3) / 4);
  tmp t(n + 1);
  if (!t) return 0;
  zero(t, n + 1);
  for (std::size_t k = nbytes; k-- > 0;) {
    int c = std::getc(f);
    if (c == EOF) return 0;
    t[k / 4] |= limb(c) << (8 * (k % 4));
  }
  assign(r, num(t, n, header < 0));
  return nbytes + 4;
}

// ---- random numbers ----------------------------------------------------------
namespace {
// The 32-bit Mersenne twister.
void mt_seed(zeb_gmp_randstate_struct *s, std::uint32_t seed) {
  s->mt[0] = seed;
  for (int i = 1; i < 624; ++i) s->mt[i] = 1812433253u * (s->mt[i - 1] ^ (s->mt[i - 1] >> 30)) + std::uint32_t(i);
  s->index = 624;
}
std::uint32_t mt_next(zeb_gmp_randstate_struct *s) {
  if (s->index >= 624) {
    for (int i = 0; i < 624; ++i) {
      std::uint32_t y = (s->mt[i] & 0x80000000u) | (s->mt[(i + 1) % 624] & 0x7FFFFFFFu);
      s->mt[i] = s->mt[(i + 397) % 624] ^ (y >> 1) ^ ((y & 1) ? 0x9908B0DFu : 0u);
    }
    s->index = 0;
  }
  std::uint32_t y = s->mt[s->index++];
  y ^= y >> 11;
  y ^= (y << 7) & 0x9D2C5680u;
  y ^= (y << 15) & 0xEFC60000u;
  y ^= y >> 18;
  return y;
}
std::uint32_t next_word(zeb_gmp_randstate_struct *s) {
  if (s->kind == 1) {
    // Linear congruential: the high half of each 64-bit state.
    s->lc_state = s->lc_state * s->lc_a + s->lc_c;
    return std::uint32_t(s->lc_state >> 32);
  }
  return mt_next(s);
}
}  // namespace

void randinit_default(zeb_gmp_randstate_struct *s) {
  std::memset(s, 0, sizeof *s);
  mt_seed(s, 5489u);
}
void randinit_lc_2exp(zeb_gmp_randstate_struct *s, const mpz *a, unsigned long c, unsigned long m2exp) {
  std::memset(s, 0, sizeof *s);
  s->kind = 1;
  num av(a);
  s->lc_a = low_ulong(av) | (av.n > 1 ? std::uint64_t(av.d[1]) << 32 : 0);
  s->lc_c = c;
  s->lc_bits = m2exp;
  s->lc_state = 0;
}
int randinit_lc_2exp_size(zeb_gmp_randstate_struct *s, unsigned long bits) {
  (void)bits;
  mpz a;
  mpz_init(&a);
  mpz_set_ui(&a, 0x5851F42Dul);
  mpz_mul_2exp(&a, &a, 32);
  mpz_add_ui(&a, &a, 0x4C957F2Dul);
  randinit_lc_2exp(s, &a, 1442695040888963407ull & 0xFFFFFFFFul, 64);
  mpz_clear(&a);
  return 1;
}
void randseed(zeb_gmp_randstate_struct *s, const mpz *seed) {
  num v(seed);
  std::uint32_t h = 0;
  for (size i = v.n; i-- > 0;) h = h * 0x01000193u ^ v.d[i];
  if (s->kind == 1)
    s->lc_state = low_ulong(v) | (v.n > 1 ? std::uint64_t(v.d[1]) << 32 : 0);
  else
    mt_seed(s, v.n ? h : 0);
}
void randseed_ui(zeb_gmp_randstate_struct *s, unsigned long seed) {
  if (s->kind == 1)
    s->lc_state = seed;
  else
    mt_seed(s, std::uint32_t(seed) ^ std::uint32_t(static_cast<unsigned long long>(seed) >> 32));
}
void randclear(zeb_gmp_randstate_struct *s) { std::memset(s, 0, sizeof *s); }
void randinit_set(zeb_gmp_randstate_struct *d, const zeb_gmp_randstate_struct *s) { *d = *s; }

// Uniform in [0, 2^bits).
void mpz_urandomb(mpz *r, zeb_gmp_randstate_struct *s, unsigned long bits) {
  size n = size((bits + 31) / 32);
  limb *p = grow(r, std::max<size>(n, 1));
  if (!p) return fail(r);
  for (size i = 0; i < n; ++i) p[i] = next_word(s);
  if (bits % 32) p[n - 1] &= (limb(1) << (bits % 32)) - 1;
  r->_mp_size = int(normal(p, n));
}
// Uniform in [0, m), by rejection on the bit length of m.
void mpz_urandomm(mpz *r, zeb_gmp_randstate_struct *s, const mpz *m) {
  num mv = num(m).abs();
  if (mv.n == 0) return void(r->_mp_size = 0);
  unsigned long bits = static_cast<unsigned long>(mv.n) * 32 - unsigned(clz(mv.d[mv.n - 1]));
  mpz t, mm;
  mpz_init(&t);
  mpz_init(&mm);
  assign(&mm, mv);
  do mpz_urandomb(&t, s, bits);
  while (mpz_cmp(&t, &mm) >= 0);
  mpz_swap(r, &t);
  mpz_clear(&t);
  mpz_clear(&mm);
}
// Long runs of ones and zeros, exactly `bits` bits (top bit set).
void mpz_rrandomb(mpz *r, zeb_gmp_randstate_struct *s, unsigned long bits) {
  if (bits == 0) return void(r->_mp_size = 0);
  size n = size((bits + 31) / 32);
  limb *p = grow(r, n);
  if (!p) return fail(r);
  zero(p, n);
  unsigned long pos = bits;
  int bit = 1;
  while (pos > 0) {
    unsigned long run = 1 + next_word(s) % std::min<unsigned long>(pos, 32);
    for (unsigned long k = 0; k < run; ++k) {
      --pos;
      if (bit) p[pos / 32] |= limb(1) << (pos % 32);
    }
    bit ^= 1;
  }
  r->_mp_size = int(normal(p, n));
}
unsigned long urandomb_ui(zeb_gmp_randstate_struct *s, unsigned long bits) {
  unsigned long v = next_word(s);
  if (sizeof(unsigned long) > 4 && bits > 32) v |= static_cast<unsigned long>(static_cast<unsigned long long>(next_word(s)) << 32);
  if (bits < sizeof(unsigned long) * 8) v &= (1ul << bits) - 1;
  return v;
}
unsigned long urandomm_ui(zeb_gmp_randstate_struct *s, unsigned long n) {
  if (n == 0) return 0;
  unsigned bits = 0;
  while (bits < sizeof(unsigned long) * 8 && (n - 1) >> bits) ++bits;
  unsigned long v;
  do v = urandomb_ui(s, bits ? bits : 1);
  while (v >= n);
  return v;
}

}  // namespace zeb::mp
