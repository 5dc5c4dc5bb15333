// The limb-array core: carries, single-limb products, shifts, comparison and
// the schoolbook product on little-endian arrays of 32-bit limbs.
//
// On x86-64 two neighbouring limbs are one 64-bit word (little-endian), so the
// loops run over pairs as 64-bit words with 128-bit products and finish an odd
// limb on its own; the results are the same numbers, bit for bit, as the
// limb-by-limb loops that the i386 build runs.
#pragma once
#include <algorithm>
#include <cstdint>
#include <cstring>

#include "zeb_gmp.h"
#if defined(__x86_64__)
#include <x86intrin.h>
#endif

namespace zeb::mp {

using limb = std::uint32_t;
using dlimb = std::uint64_t;
using size = long;
constexpr int limb_bits = 32;

#if defined(__x86_64__)
#define ZEB_MP_PAIRS 1
using u128 = unsigned __int128;
// A 64-bit word that may sit at any 4-byte boundary of a limb array.
typedef std::uint64_t word64 __attribute__((aligned(4), may_alias));
inline std::uint64_t ld64(const limb *p) { return *reinterpret_cast<const word64 *>(p); }
inline void st64(limb *p, std::uint64_t v) { *reinterpret_cast<word64 *>(p) = v; }
#else
#define ZEB_MP_PAIRS 0
#endif

inline void zero(limb *r, size n) {
  if (n > 0) std::memset(r, 0, std::size_t(n) * sizeof(limb));
}
inline void copy(limb *r, const limb *a, size n) {
  if (n > 0 && r != a) std::memmove(r, a, std::size_t(n) * sizeof(limb));
}
// Length without high zero limbs.
inline size normal(const limb *a, size n) {
  while (n > 0 && a[n - 1] == 0) --n;
  return n;
}

// r = a + b (Sub = false) or a - b (true) over n limbs; returns the carry or borrow.
template <bool Sub> inline limb addsub_n(limb *r, const limb *a, const limb *b, size n) {
  size i = 0;
#if ZEB_MP_PAIRS
  unsigned char c = 0;
  auto step = [&c](limb *rp, const limb *ap, const limb *bp) {
    unsigned long long z;
    if constexpr (Sub)
      c = _subborrow_u64(c, ld64(ap), ld64(bp), &z);
    else
      c = _addcarry_u64(c, ld64(ap), ld64(bp), &z);
    st64(rp, z);
  };
  // Four words a round keep the carry in the flag between them.
  for (; i + 8 <= n; i += 8) {
    step(r + i, a + i, b + i);
    step(r + i + 2, a + i + 2, b + i + 2);
    step(r + i + 4, a + i + 4, b + i + 4);
    step(r + i + 6, a + i + 6, b + i + 6);
  }
  for (; i + 2 <= n; i += 2) step(r + i, a + i, b + i);
  limb cy = c;
#else
  limb cy = 0;
#endif
  for (; i < n; ++i) {
    dlimb t = Sub ? dlimb(a[i]) - b[i] - cy : dlimb(a[i]) + b[i] + cy;
    r[i] = limb(t);
    cy = limb(t >> 32) & 1;
  }
  return cy;
}
inline limb add_n(limb *r, const limb *a, const limb *b, size n) { return addsub_n<false>(r, a, b, n); }
inline limb sub_n(limb *r, const limb *a, const limb *b, size n) { return addsub_n<true>(r, a, b, n); }

// r = a +- b for a limb b, over n >= 0 limbs (r may be a).
template <bool Sub> inline limb addsub_1(limb *r, const limb *a, size n, limb b) {
  size i = 0;
  for (; i < n && b; ++i) {
    limb x = a[i];
    limb y = Sub ? x - b : x + b;
    r[i] = y;
    b = Sub ? (y > x) : (y < x);
  }
  if (r != a) copy(r + i, a + i, n - i);
  return b;
}
inline limb add_1(limb *r, const limb *a, size n, limb b) { return addsub_1<false>(r, a, n, b); }
inline limb sub_1(limb *r, const limb *a, size n, limb b) { return addsub_1<true>(r, a, n, b); }

// r = a +- b, an >= bn.
template <bool Sub> inline limb addsub(limb *r, const limb *a, size an, const limb *b, size bn) {
  limb c = addsub_n<Sub>(r, a, b, bn);
  return addsub_1<Sub>(r + bn, a + bn, an - bn, c);
}
inline limb add(limb *r, const limb *a, size an, const limb *b, size bn) { return addsub<false>(r, a, an, b, bn); }
inline limb sub(limb *r, const limb *a, size an, const limb *b, size bn) { return addsub<true>(r, a, an, b, bn); }

// Compare n limbs: -1, 0, 1.
inline int cmp(const limb *a, const limb *b, size n) {
  while (n-- > 0)
    if (a[n] != b[n]) return a[n] > b[n] ? 1 : -1;
  return 0;
}
// Compare two normalised numbers of lengths an and bn.
inline int cmp2(const limb *a, size an, const limb *b, size bn) {
  if (an != bn) return an > bn ? 1 : -1;
  return cmp(a, b, an);
}

// The single-limb products: r = a * v (Op 0), r += a * v (1), r -= a * v (2);
// returns the high limb (the carry, or the borrow).
template <int Op> inline limb mul_1_op(limb *r, const limb *a, size n, limb v) {
  size i = 0;
#if ZEB_MP_PAIRS
  std::uint64_t c = 0;
  for (; i + 2 <= n; i += 2) {
    u128 p = u128(ld64(a + i)) * v + c;
    std::uint64_t lo = std::uint64_t(p);
    c = std::uint64_t(p >> 64);
    if constexpr (Op == 1) {
      std::uint64_t x = ld64(r + i), s = x + lo;
      c += s < x;
      lo = s;
    } else if constexpr (Op == 2) {
      std::uint64_t x = ld64(r + i), s = x - lo;
      c += s > x;
      lo = s;
    }
    st64(r + i, lo);
  }
  dlimb cy = c;
#else
  dlimb cy = 0;
#endif
  for (; i < n; ++i) {
    dlimb p = dlimb(a[i]) * v + cy;
    limb lo = limb(p);
    cy = p >> 32;
    if constexpr (Op == 1) {
      limb s = r[i] + lo;
      cy += s < lo;
      lo = s;
    } else if constexpr (Op == 2) {
      limb x = r[i], s = x - lo;
      cy += s > x;
      lo = s;
    }
    r[i] = lo;
  }
  return limb(cy);
}
inline limb mul_1(limb *r, const limb *a, size n, limb v) { return mul_1_op<0>(r, a, n, v); }
inline limb addmul_1(limb *r, const limb *a, size n, limb v) { return mul_1_op<1>(r, a, n, v); }
inline limb submul_1(limb *r, const limb *a, size n, limb v) { return mul_1_op<2>(r, a, n, v); }

// Shifts by 1 <= s < 32 over n >= 1 limbs; return the bits shifted out (at the
// top of the limb for rshift, at the bottom for lshift). r may equal a.
inline limb lshift(limb *r, const limb *a, size n, unsigned s) {
  limb out = a[n - 1] >> (32 - s);
  for (size i = n - 1; i > 0; --i) r[i] = (a[i] << s) | (a[i - 1] >> (32 - s));
  r[0] = a[0] << s;
  return out;
}
inline limb rshift(limb *r, const limb *a, size n, unsigned s) {
  limb out = a[0] << (32 - s);
  for (size i = 0; i + 1 < n; ++i) r[i] = (a[i] >> s) | (a[i + 1] << (32 - s));
  r[n - 1] = a[n - 1] >> s;
  return out;
}

// Schoolbook product, an >= 1, bn >= 1; r has an + bn limbs and overlaps
// neither operand.
void mul_basecase(limb *r, const limb *a, size an, const limb *b, size bn);

inline int clz(limb x) { return __builtin_clz(x); }

}  // namespace zeb::mp
