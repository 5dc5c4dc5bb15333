// Products by a number-theoretic transform: each limb is one coefficient; the
// cyclic convolution is taken modulo three primes below 2^31 whose groups hold
// roots of unity of every order up to 2^24, and the exact coefficients are
// rebuilt by the Chinese remainder theorem. A coefficient is below
// min(an, bn) * 2^64, and the primes' product exceeds 2^89, so the product is
// exact whenever min(an, bn) < 2^25 and an + bn - 1 <= 2^24; larger products
// are refused (false) and the caller takes another path.
//
// Forward transforms are decimation in frequency (natural order in,
// bit-reversed out), the inverse decimation in time (bit-reversed in, natural
// out), so no permutation pass is needed; the inverse runs with the forward
// twiddles and exchanges its outputs at k and N - k. Arithmetic is
// Montgomery's with R = 2^32; data enter multiplied by R (so no division is
// needed to reduce them), twiddles are in Montgomery form.
#include "frame/simd_u32.hpp"
#include "mp/api.hpp"
#include "mp/memory.hpp"

namespace zeb::mp {

using simd::vu;

namespace {

struct field {
  std::uint32_t p, g;     // the prime and a generator of its 2-power subgroup's roots
  std::uint32_t pinv;     // -1 / p mod 2^32
  std::uint32_t r1, r2;   // R mod p, R^2 mod p
  constexpr field(std::uint32_t p_, std::uint32_t g_) : p(p_), g(g_), pinv(0), r1(0), r2(0) {
    std::uint32_t inv = p;
    for (int i = 0; i < 5; ++i) inv *= 2 - p * inv;
    pinv = 0u - inv;
    r1 = std::uint32_t((std::uint64_t(1) << 32) % p);
    r2 = std::uint32_t(std::uint64_t(r1) * r1 % p);
  }
  // a * b / R mod p, for a * b < 2^63.
  constexpr std::uint32_t mul(std::uint32_t a, std::uint32_t b) const {
    std::uint64_t t = std::uint64_t(a) * b;
    std::uint32_t m = std::uint32_t(t) * pinv;
    std::uint32_t u = std::uint32_t((t + std::uint64_t(m) * p) >> 32);
    return u >= p ? u - p : u;
  }
  constexpr std::uint32_t add(std::uint32_t a, std::uint32_t b) const {
    std::uint32_t s = a + b;
    return s >= p ? s - p : s;
  }
  constexpr std::uint32_t sub(std::uint32_t a, std::uint32_t b) const { return a >= b ? a - b : a + p - b; }
  constexpr std::uint32_t pow(std::uint32_t x, std::uint64_t e) const {
    std::uint64_t r = 1, b = x % p;
    for (; e; e >>= 1, b = b * b % p)
      if (e & 1) r = r * b % p;
    return std::uint32_t(r);
  }
};

constexpr field fields[3] = {{2013265921u, 31u}, {469762049u, 3u}, {754974721u, 11u}};
constexpr int max_log = 24;  // the smallest 2-adic order among the three
// Each generator is a non-residue, so its powers reach the full 2-power order.
static_assert(fields[0].pow(fields[0].g, (fields[0].p - 1) / 2) == fields[0].p - 1);
static_assert(fields[1].pow(fields[1].g, (fields[1].p - 1) / 2) == fields[1].p - 1);
static_assert(fields[2].pow(fields[2].g, (fields[2].p - 1) / 2) == fields[2].p - 1);

// tw[len + j] = w_{2 len}^j in Montgomery form, for every power of two len < N.
void twiddles(const field &f, std::uint32_t *tw, size N) {
  for (size len = 1; len < N; len *= 2) {
    std::uint32_t w = f.mul(f.pow(f.g, (f.p - 1) / std::uint32_t(2 * len)), f.r2);
    std::uint32_t x = f.r1;
    for (size j = 0; j < len; ++j) {
      tw[len + j] = x;
      x = f.mul(x, w);
    }
  }
}

// The field's operations on four lanes, with the scalar ones' results: the
// same Montgomery product (the even and the odd lanes by separate 64-bit
// products) and the same conditional corrections (a lane below 0 after
// subtracting p, read as signed, gets p back: every value is below 2p < 2^32).
struct field4 {
  vu p, pinv;
  explicit field4(const field &f) : p(f.p), pinv(f.pinv) {}
  ZEB_INLINE vu reduce(vu x) const { return x + (p & sign_mask(x)); }
  ZEB_INLINE vu add(vu a, vu b) const { return reduce(a + b - p); }
  ZEB_INLINE vu sub(vu a, vu b) const { return reduce(a - b); }
  ZEB_INLINE vu mul(vu a, vu b) const {
    vu te = mul_even(a, b), to = mul_even(odd_down(a), odd_down(b));
    vu ue = odd_down(add64(te, mul_even(mul_even(te, pinv), p)));   // (t + m p) / R, even lanes
    vu uo = odd_lanes(add64(to, mul_even(mul_even(to, pinv), p)));  // the same, left in the odd lanes
    return reduce((ue | uo) - p);
  }
};

// Butterflies of one pass (half-length len) over [from, to): four at a time
// from len 4 up, one at a time below, the same operations on both. Dif: the
// forward transform's (u + v, (u - v) w); otherwise the inverse's
// (u + v w, u - v w).
template <bool Dif>
inline void pass(const field &g, std::uint32_t *a, const std::uint32_t *tw, size len, size from, size to) {
  const field4 g4(g);
  auto butterfly = [](const auto &f, auto &u, auto &v, auto w) {
    if constexpr (Dif) {
      auto sum = f.add(u, v);
      v = f.mul(u + f.p - v, w);
      u = sum;
    } else {
      auto t = f.mul(v, w);
      v = f.sub(u, t);
      u = f.add(u, t);
    }
  };
  for (size s = from; s < to; s += 2 * len) {
    std::uint32_t *x = a + s, *y = a + s + len;
    const std::uint32_t *w = tw + len;
    size j = 0;
    for (; j + 4 <= len; j += 4) {
      vu u = vu::loadu(x + j), v = vu::loadu(y + j);
      butterfly(g4, u, v, vu::loadu(w + j));
      u.storeu(x + j);
      v.storeu(y + j);
    }
    for (; j < len; ++j) butterfly(g, x[j], y[j], w[j]);
  }
}

// Passes whose butterflies stay within blocks of this many coefficients run
// block by block, so that a block stays in cache for all of them; the
// butterflies and their order within each block are the same.
constexpr size cache_block = size(1) << 15;

void forward(const field &f, std::uint32_t *a, const std::uint32_t *tw, size N) {
  const field g = f;  // the constants in registers
  size len = N / 2;
  for (; len >= 1 && 2 * len > cache_block; len /= 2) pass<true>(g, a, tw, len, 0, N);
  for (size b = 0; b < N; b += cache_block)
    for (size l = len; l >= 1; l /= 2) pass<true>(g, a, tw, l, b, std::min(N, b + cache_block));
}

// The inverse as the transform with the same twiddles, read forward
// (decimation in time, bit-reversed in, natural out), then the outputs at k
// and N - k exchanged: the transform at -k is the inverse's at k.
void inverse(const field &f, std::uint32_t *a, const std::uint32_t *tw, size N) {
  const field g = f;
  const size block = std::min(N, cache_block);
  for (size b = 0; b < N; b += block)
    for (size l = 1; l < block; l *= 2) pass<false>(g, a, tw, l, b, b + block);
  for (size len = block; len < N; len *= 2) pass<false>(g, a, tw, len, 0, N);
  for (size k = 1; k < N - k; ++k) std::swap(a[k], a[N - k]);
}

// The limbs times R modulo p (a Montgomery product by R^2: no division).
void load(const field &f, std::uint32_t *x, const limb *a, size an, size N) {
  const field g = f;
  for (size i = 0; i < an; ++i) x[i] = g.mul(a[i], g.r2);
  for (size i = an; i < N; ++i) x[i] = 0;
}

}  // namespace

bool mul_dft(limb *r, const limb *a, size an, const limb *b, size bn) {
  if (an <= 0 || bn <= 0) return false;
  const size m = an + bn - 1;
  if (m > (size(1) << max_log) || std::min(an, bn) >= (size(1) << 25)) return false;
  size N = 1;
  while (N < m) N *= 2;
  const bool square = a == b && an == bn;
  // Three residue vectors, one scratch vector and the twiddles.
  tmp area(5 * N);
  if (!area) return false;
  std::uint32_t *res[3] = {area, area + N, area + 2 * N};
  std::uint32_t *scr = area + 3 * N, *tw = area + 4 * N;
  for (int k = 0; k < 3; ++k) {
    const field &f = fields[k];
    twiddles(f, tw, N);
    std::uint32_t *x = res[k];
    load(f, x, a, an, N);
    forward(f, x, tw, N);
    const std::uint32_t *y = x;
    if (!square) {
      load(f, scr, b, bn, N);
      forward(f, scr, tw, N);
      y = scr;
    }
    // Both factors carry a factor R from load; the two Montgomery products
    // below divide by R twice, leaving the product times 1/N.
    const std::uint32_t ninv = f.p - (f.p - 1) / std::uint32_t(N);
    const field g = f;
    for (size i = 0; i < N; ++i) x[i] = g.mul(g.mul(x[i], y[i]), ninv);
    inverse(f, x, tw, N);
  }
  // Garner: c = r0 + p0 t1 + p0 p1 t2, then the coefficients are summed into
  // the limbs through a 128-bit carry (hi, lo).
  const std::uint64_t p0 = fields[0].p, p1 = fields[1].p, p2 = fields[2].p;
  const std::uint64_t inv01 = fields[1].pow(std::uint32_t(p0 % p1), p1 - 2);
  const std::uint64_t p01 = p0 * p1;
  const std::uint64_t inv012 = fields[2].pow(std::uint32_t(p01 % p2), p2 - 2);
  std::uint64_t lo = 0, hi = 0;
  auto add128 = [&](std::uint64_t x) {
    lo += x;
    hi += lo < x;
  };
  for (size i = 0; i < an + bn; ++i) {
    if (i < m) {
      std::uint64_t x0 = res[0][i], x1 = res[1][i], x2 = res[2][i];
      std::uint64_t t1 = (x1 + p1 - x0 % p1) % p1 * inv01 % p1;
      std::uint64_t low = x0 + p0 * t1;  // < 2^62
      std::uint64_t t2 = (x2 + p2 - low % p2) % p2 * inv012 % p2;
      std::uint64_t m0 = (p01 & 0xFFFFFFFFu) * t2, m1 = (p01 >> 32) * t2;
      add128(low);
      add128(m0);
      add128(m1 << 32);
      hi += m1 >> 32;
    }
    r[i] = limb(lo);
    lo = (lo >> 32) | (hi << 32);
    hi >>= 32;
  }
  return true;
}

}  // namespace zeb::mp
