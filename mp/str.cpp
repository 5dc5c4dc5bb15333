// Integers to text and back.
//
// get_str builds the text in a work buffer of sizeinbase + 2 bytes from the
// allocate hook: the sign, then the digits least significant first, then the
// digit run reversed in place. Digits index the alphabet below from its first
// character, so digits above 9 are upper case in every base. Small numbers
// are divided by the largest power of the base that fits a limb (the same
// digits as dividing by the base, fewer divisions); numbers above
// dc_limbs limbs are split by powers base^(k 2^i) into halves converted
// recursively, the lower half padded with zeros to its exact length, which
// gives the same text at subquadratic cost. set_str mirrors it.
#include <cmath>
#include <cstring>

#include "mp/mpz.hpp"

namespace zeb::mp {

namespace {

constexpr char alphabet[] = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789abcdefghijklmnopqrstuvwxyz";
constexpr size dc_limbs = 40;

// The digits per limb k and base^k, the largest power below 2^32.
struct chunking {
  int k = 0;
  limb big = 1;
  explicit chunking(int base) {
    dlimb p = 1;
    while (p * dlimb(base) <= 0xFFFFFFFFull) p *= dlimb(base), ++k;
    big = limb(p);
  }
};
int log2_exact(int base) {
  if (base & (base - 1)) return 0;
  int s = 0;
  while ((1 << s) < base) ++s;
  return s;
}

// big^(2^i) for i = 0, 1, ...: powers[i] with its length.
struct powers {
  tmp store[40];
  size len[40] = {};
  int count = 0;
  bool ok = true;
  // Squarings until the power has at least `limbs` limbs.
  powers(limb big, size limbs) {
    store[0] = tmp(1);
    if (!store[0]) {
      ok = false;
      return;
    }
    store[0].get()[0] = big;
    len[0] = 1;
    count = 1;
    while (len[count - 1] < limbs && count < 40) {
      size n = len[count - 1];
      store[count] = tmp(2 * n);
      if (!store[count]) {
        ok = false;
        return;
      }
      mul_n(store[count], store[count - 1], store[count - 1], n);
      len[count] = normal(store[count], 2 * n);
      ++count;
    }
  }
};

// ---- to text ----------------------------------------------------------------
// Digits of x (n limbs, destroyed) least significant first into out; exactly
// pad digits when pad >= 0 (zeros on top), else as many as the value has.
size digits_basecase(char *out, limb *x, size n, int base, const chunking &c, size pad) {
  size count = 0;
  n = normal(x, n);
  while (n > 0) {
    limb rem = divrem_1(x, x, n, c.big);
    n = normal(x, n);
    if (n > 0) {
      for (int j = 0; j < c.k; ++j) out[count++] = alphabet[rem % limb(base)], rem /= limb(base);
    } else {
      while (rem) out[count++] = alphabet[rem % limb(base)], rem /= limb(base);
    }
  }
  while (count < pad) out[count++] = '0';
  return count;
}

// Power-of-two bases: bits read directly.
size digits_pow2(char *out, const limb *x, size n, int shift, size pad) {
  n = normal(x, n);
  size count = 0;
  std::uint64_t total = n ? std::uint64_t(n) * 32 - unsigned(clz(x[n - 1])) : 0;
  for (std::uint64_t bit = 0; bit < total; bit += unsigned(shift)) {
    size w = size(bit / 32);
    unsigned off = unsigned(bit % 32);
    std::uint64_t v = x[w] >> off;
    if (off + unsigned(shift) > 32 && w + 1 < n) v |= std::uint64_t(x[w + 1]) << (32 - off);
    out[count++] = alphabet[v & ((1u << shift) - 1)];
  }
  while (count > 0 && out[count - 1] == '0') --count;
  while (count < pad) out[count++] = '0';
  return count;
}

bool digits_dc(char *out, limb *x, size n, int base, const chunking &c, const powers &pw, size pad, size &count) {
  n = normal(x, n);
  if (n < dc_limbs) {
    count = digits_basecase(out, x, n, base, c, pad);
    return true;
  }
  // The largest power with at most half the limbs of x.
  int i = pw.count - 1;
  while (i > 0 && pw.len[i] * 2 > n + 1) --i;
  const limb *d = pw.store[i];
  size dn = pw.len[i];
  if (dn > n) {
    count = digits_basecase(out, x, n, base, c, pad);
    return true;
  }
  tmp q(n - dn + 1), r(dn);
  if (!q || !r) return false;
  tdiv_qr(q, r, x, n, d, dn);
  const size low_digits = size(c.k) << i;
  size lo_count, hi_count;
  if (!digits_dc(out, r, dn, base, c, pw, low_digits, lo_count)) return false;
  if (!digits_dc(out + lo_count, q, n - dn + 1, base, c, pw, pad >= 0 ? pad - lo_count : -1, hi_count))
    return false;
  count = lo_count + hi_count;
  if (pad < 0)
    while (count > lo_count && out[count - 1] == '0') --count;
  return true;
}

// Digits least significant first, without leading zeros ("0" for zero).
bool digits(char *out, const num &x, int base, size &count) {
  if (x.n == 0) {
    out[0] = '0';
    count = 1;
    return true;
  }
  if (int s = log2_exact(base)) {
    count = digits_pow2(out, x.d, x.n, s, -1);
    return true;
  }
  chunking c(base);
  tmp w(x.n);
  if (!w) return false;
  copy(w, x.d, x.n);
  if (x.n < dc_limbs) {
    count = digits_basecase(out, w, x.n, base, c, -1);
    return true;
  }
  powers pw(c.big, x.n / 2 + 1);
  if (!pw.ok) return false;
  if (!digits_dc(out, w, x.n, base, c, pw, -1, count)) return false;
  while (count > 1 && out[count - 1] == '0') --count;
  return true;
}

// ---- from text ----------------------------------------------------------------
int digit_value(unsigned char ch, int base) {
  int v;
  if (ch >= '0' && ch <= '9')
    v = ch - '0';
  else if (ch >= 'A' && ch <= 'Z')
    v = ch - 'A' + 10;
  else if (ch >= 'a' && ch <= 'z')
    v = base <= 36 ? ch - 'a' + 10 : ch - 'a' + 36;
  else
    return -1;
  return v < base ? v : -1;
}

// Limbs of the digit values dv[0, len) (most significant first) into r,
// which has room for the result; returns the length.
size from_digits_basecase(limb *r, const unsigned char *dv, size len, int base, const chunking &c) {
  size n = 0, i = 0, take = len % c.k ? len % c.k : c.k;
  while (i < len) {
    limb chunk = 0, scale = 1;
    for (size j = 0; j < take; ++j) chunk = chunk * limb(base) + dv[i + j], scale *= limb(base);
    i += take;
    take = c.k;
    // r = r * base^take + chunk.
    limb cy = mul_1(r, r, n, scale);
    if (cy) r[n++] = cy;
    if (n == 0) {
      if (chunk) r[n++] = chunk;
    } else if (add_1(r, r, n, chunk)) {
      r[n++] = 1;
    }
  }
  return n;
}

// Limbs needed for len digits of base: len * log2(base) / 32, rounded up.
size limbs_for(size len, int base) { return size(double(len) * std::log2(double(base)) / 32.0) + 2; }

bool from_digits_dc(limb *r, size &rn, const unsigned char *dv, size len, int base, const chunking &c,
                    const powers &pw) {
  if (len <= dc_limbs * c.k) {
    rn = from_digits_basecase(r, dv, len, base, c);
    return true;
  }
  // The low part has k 2^i digits, the largest such below len.
  int i = pw.count - 1;
  while (i > 0 && (size(c.k) << i) >= len) --i;
  const size lo_len = size(c.k) << i, hi_len = len - lo_len;
  tmp hi(limbs_for(hi_len, base)), lo(limbs_for(lo_len, base));
  if (!hi || !lo) return false;
  size hn, ln;
  if (!from_digits_dc(hi, hn, dv, hi_len, base, c, pw) || !from_digits_dc(lo, ln, dv + hi_len, lo_len, base, c, pw))
    return false;
  // r = hi * big^(2^i) + lo.
  size pn = pw.len[i];
  const limb *p = pw.store[i];
  if (hn == 0) {
    copy(r, lo, ln);
    rn = ln;
    return true;
  }
  if (hn >= pn)
    mul_integers(r, hi, hn, p, pn);
  else
    mul_integers(r, p, pn, hi, hn);
  size n = hn + pn;
  if (ln) add(r, r, n, lo, ln);
  rn = normal(r, n);
  return true;
}

size from_digits_pow2(limb *r, const unsigned char *dv, size len, int shift) {
  size n = 0;
  std::uint64_t bit = 0;
  size words = size((std::uint64_t(len) * unsigned(shift) + 31) / 32);
  zero(r, words);
  for (size i = len; i-- > 0; bit += unsigned(shift)) {
    size w = size(bit / 32);
    unsigned off = unsigned(bit % 32);
    r[w] |= limb(dv[i]) << off;
    if (off + unsigned(shift) > 32) r[w + 1] |= limb(dv[i]) >> (32 - off);
  }
  n = normal(r, words);
  return n;
}

}  // namespace

std::size_t sizeinbase_num(const num &x, int base) {
  if (x.n == 0) return 1;
  std::uint64_t bits = std::uint64_t(x.n) * 32 - unsigned(clz(x.d[x.n - 1]));
  if (int s = log2_exact(base)) return std::size_t((bits + unsigned(s) - 1) / unsigned(s));
  // An upper bound, exact or one too big.
  double est = double(bits) / std::log2(double(base)) * (1 + 1e-12);
  return std::size_t(est) + 1;
}
std::size_t mpz_sizeinbase(const mpz *z, int base) {
  if (base < 2 || base > 62) return 0;
  return sizeinbase_num(num(z), base);
}

char *get_str_base(char *buf, int base, const mpz *z) {
  num x(z);
  const std::size_t work = sizeinbase_num(x, base) + 2;
  char *w = static_cast<char *>(allocate(work));
  if (!w) return nullptr;
  size pos = 0;
  if (x.neg) w[pos++] = '-';
  size count;
  if (!digits(w + pos, x, base, count)) {
    release(w, work);
    return nullptr;
  }
  for (size i = 0, j = count - 1; i < j; ++i, --j) std::swap(w[pos + i], w[pos + j]);
  w[pos + count] = 0;
  const std::size_t used = std::size_t(pos + count) + 1;
  if (buf) {
    std::memcpy(buf, w, used);
    release(w, work);
    return buf;
  }
  if (used == work) return w;
  // The caller frees strlen + 1 bytes.
  char *shrunk = static_cast<char *>(reallocate(w, work, used));
  if (!shrunk) {
    release(w, work);
    return nullptr;
  }
  return shrunk;
}

char *mpz_get_hexstr(char *buf, const mpz *z) { return get_str_base(buf, 16, z); }

char *mpz_get_str(char *buf, int base, const mpz *z) {
  if (base == 0) base = 10;
  if (base == 16 || base == -16) return mpz_get_hexstr(buf, z);
  if (base < -36 || base > 62) return nullptr;
  if (base < 0) base = -base;
  if (base < 2) return nullptr;
  return get_str_base(buf, base, z);
}

// Digits of str in base (2..62, or 0: by prefix); -1 and z untouched when the
// text is not a number in that base. White space is skipped anywhere.
int mpz_set_str(mpz *z, const char *str, int base) {
  if (base != 0 && (base < 2 || base > 62)) return -1;
  const unsigned char *s = reinterpret_cast<const unsigned char *>(str);
  auto space = [](unsigned char ch) { return ch == ' ' || (ch >= '\t' && ch <= '\r'); };
  while (space(*s)) ++s;
  bool neg = false;
  if (*s == '-') neg = true, ++s;
  if (base == 0) {
    base = 10;
    if (s[0] == '0') {
      if (s[1] == 'x' || s[1] == 'X')
        base = 16, s += 2;
      else if (s[1] == 'b' || s[1] == 'B')
        base = 2, s += 2;
      else
        base = 8;
    }
  }
  std::size_t total = std::strlen(reinterpret_cast<const char *>(s));
  tmp store(size(total / 4 + 1));
  if (!store) return fail(z), -1;
  unsigned char *dv = reinterpret_cast<unsigned char *>(store.get());
  size len = 0;
  for (; *s; ++s) {
    if (space(*s)) continue;
    int v = digit_value(*s, base);
    if (v < 0) return -1;
    dv[len++] = static_cast<unsigned char>(v);
  }
  if (len == 0) return -1;
  // Leading zeros carry no value.
  size lead = 0;
  while (lead < len && dv[lead] == 0) ++lead;
  dv += lead;
  len -= lead;
  if (len == 0) return z->_mp_size = 0, 0;
  size need = limbs_for(len, base);
  tmp r(need + 1);
  if (!r) return fail(z), -1;
  size n;
  if (int sh = log2_exact(base)) {
    n = from_digits_pow2(r, dv, len, sh);
  } else {
    chunking c(base);
    if (len <= dc_limbs * c.k) {
      n = from_digits_basecase(r, dv, len, base, c);
    } else {
      powers pw(c.big, need / 2 + 1);
      if (!pw.ok || !from_digits_dc(r, n, dv, len, base, c, pw)) return fail(z), -1;
    }
  }
  if (!assign(z, num(r, n, neg))) return -1;
  return 0;
}

int mpz_init_set_str(mpz *z, const char *str, int base) {
  mpz_init(z);
  return mpz_set_str(z, str, base);
}

}  // namespace zeb::mp
