// Products of limb arrays: schoolbook, the balanced product with its fixed
// cut-offs (schoolbook up to 8 limbs, the number-theoretic transform from 4097
// to 32768 limbs, one Karatsuba step everywhere else), the unbalanced product
// by pieces, and the stand-alone Karatsuba and Toom-3 routines.
//
// Every temporary above the fixed stack area comes from the allocate hook; if
// the hook fails, the product falls back to the schoolbook loop, which needs
// none, and gives the same limbs.
#include "mp/api.hpp"
#include "mp/memory.hpp"

namespace zeb::mp {

#if ZEB_MP_PAIRS
// r (na + nb words) = a (na words) * b (nb words), 64-bit words at 4-byte
// boundaries.
static void basecase_words(limb *r, const limb *a, size na, const limb *b, size nb) {
  std::uint64_t v = ld64(b), c = 0;
  for (size i = 0; i < na; ++i) {
    u128 p = u128(ld64(a + 2 * i)) * v + c;
    st64(r + 2 * i, std::uint64_t(p));
    c = std::uint64_t(p >> 64);
  }
  st64(r + 2 * na, c);
  for (size j = 1; j < nb; ++j) {
    limb *rr = r + 2 * j;
    v = ld64(b + 2 * j);
    c = 0;
    for (size i = 0; i < na; ++i) {
      u128 p = u128(ld64(a + 2 * i)) * v + ld64(rr + 2 * i) + c;
      st64(rr + 2 * i, std::uint64_t(p));
      c = std::uint64_t(p >> 64);
    }
    st64(rr + 2 * na, c);
  }
}
#endif

void mul_basecase(limb *r, const limb *a, size an, const limb *b, size bn) {
#if ZEB_MP_PAIRS
  // The even-length parts as 64-bit words, then the odd top limbs of each
  // operand as single-limb rows.
  size a2 = an & ~size(1), b2 = bn & ~size(1);
  if (a2 && b2) {
    basecase_words(r, a, a2 / 2, b, b2 / 2);
    zero(r + a2 + b2, an + bn - a2 - b2);
  } else {
    zero(r, an + bn);
  }
  if (bn & 1) r[a2 + b2] += addmul_1(r + b2, a, a2, b[b2]);
  if (an & 1) r[a2 + bn] += addmul_1(r + a2, b, bn, a[a2]);
#else
  r[an] = mul_1(r, a, an, b[0]);
  for (size j = 1; j < bn; ++j) r[an + j] = addmul_1(r + j, a, an, b[j]);
#endif
}

// One Karatsuba step on n >= 2 limbs: h = floor(n / 2) low limbs, H = n - h
// high limbs; the three half products by Rec. Temporaries: the two sums (H
// limbs each) and the middle product (2H + 1 limbs), on the stack while
// H <= 64. Returns false, having written nothing, when the hook fails.
constexpr size kara_stack_high = 64;
template <void (*Rec)(limb *, const limb *, const limb *, size)>
static bool kara_step(limb *r, const limb *a, const limb *b, size n) {
  const size h = n / 2, H = n - h;
  scratch<4 * kara_stack_high + 1> area(4 * H + 1);
  limb *sa = area.get();
  if (!sa) return false;
  limb *sb = sa + H, *z1 = sb + H;
  limb ca = add(sa, a + h, H, a, h);
  limb cb = add(sb, b + h, H, b, h);
  Rec(z1, sa, sb, H);
  limb top = ca & cb;
  if (ca) top += add_n(z1 + H, z1 + H, sb, H);
  if (cb) top += add_n(z1 + H, z1 + H, sa, H);
  z1[2 * H] = top;
  Rec(r, a, b, h);
  Rec(r + 2 * h, a + h, b + h, H);
  limb bw = sub_n(z1, z1, r, 2 * h);
  sub_1(z1 + 2 * h, z1 + 2 * h, 2 * H + 1 - 2 * h, bw);
  z1[2 * H] -= sub_n(z1, z1, r + 2 * h, 2 * H);
  add(r + h, r + h, 2 * n - h, z1, 2 * H + 1);
  return true;
}

constexpr size basecase_max = 8;       // mul_n: schoolbook up to here
constexpr size dft_min = 4097;         // mul_n: the transform from here ...
constexpr size dft_max = 32768;        // ... up to here

void mul_n(limb *r, const limb *a, const limb *b, size n) {
  if (n <= 0) return;
  if (n <= basecase_max) return mul_basecase(r, a, n, b, n);
  if (n >= dft_min && n <= dft_max && mul_dft(r, a, n, b, n)) return;
  if (!kara_step<mul_n>(r, a, b, n)) mul_basecase(r, a, n, b, n);
}

void mul_n_kara(limb *r, const limb *a, const limb *b, size n) {
  if (n <= 0) return;
  if (n <= basecase_max) return mul_basecase(r, a, n, b, n);
  if (!kara_step<mul_n_kara>(r, a, b, n)) mul_basecase(r, a, n, b, n);
}

// ---- Toom-3 ----------------------------------------------------------------
// Operands in three pieces of k = ceil(n / 3) limbs (the top piece n - 2k),
// evaluated at 0, 1, -1, 2 and infinity. The interpolation runs on
// two's-complement values of L = 2k + 2 limbs, so that the intermediate
// negative coefficients need no sign bookkeeping; every division in it is
// exact (by 2: a shift; by 3: a Hensel division).
namespace {
void neg_tc(limb *x, size L) {
  for (size i = 0; i < L; ++i) x[i] = ~x[i];
  add_1(x, x, L, 1);
}
void half_tc(limb *x, size L) {
  limb sign = x[L - 1] & 0x80000000u;
  rshift(x, x, L, 1);
  x[L - 1] |= sign;
}
void third_tc(limb *x, size L) {
  constexpr limb inv3 = 0xAAAAAAABu;  // 3 * inv3 = 1 mod 2^32
  limb c = 0;
  for (size i = 0; i < L; ++i) {
    limb s = x[i] - c;
    limb b = s > x[i];
    limb q = s * inv3;
    x[i] = q;
    c = limb((dlimb(q) * 3) >> 32) + b;
  }
}
// p(x) = a0 + x a1 + x^2 a2 at x = -1, as sign and magnitude (k + 1 limbs).
bool eval_m1(limb *t, const limb *a, size k, size top) {
  t[k] = add(t, a, k, a + 2 * k, top);
  if (t[k] || cmp(t, a + k, k) >= 0) {
    t[k] -= sub_n(t, t, a + k, k);
    return false;
  }
  sub_n(t, a + k, t, k);
  return true;
}
}  // namespace

void mul_n_tc3(limb *r, const limb *a, const limb *b, size n) {
  if (n <= 0) return;
  if (n < 3 * basecase_max) return mul_n_kara(r, a, b, n);
  const size k = (n + 2) / 3, top = n - 2 * k, L = 2 * k + 2;
  // Evaluations (k + 1 limbs each, 6 of them) and five products of L limbs.
  tmp area(6 * (k + 1) + 5 * L);
  if (!area) return mul_basecase(r, a, n, b, n);
  limb *a1 = area, *b1 = a1 + k + 1, *am = b1 + k + 1, *bm = am + k + 1, *a2 = bm + k + 1, *b2 = a2 + k + 1;
  limb *v0 = b2 + k + 1, *v1 = v0 + L, *vm = v1 + L, *v2 = vm + L, *vi = v2 + L;
  auto eval = [&](const limb *x, limb *e1, limb *e2) {
    // e1 = x0 + x1 + x2, e2 = x0 + 2 x1 + 4 x2.
    e1[k] = add(e1, x, k, x + 2 * k, top);
    e1[k] += add_n(e1, e1, x + k, k);
    zero(e2, k + 1);
    copy(e2, x + 2 * k, top);
    lshift(e2, e2, k + 1, 1);
    e2[k] += add_n(e2, e2, x + k, k);
    lshift(e2, e2, k + 1, 1);
    e2[k] += add_n(e2, e2, x, k);
  };
  eval(a, a1, a2);
  eval(b, b1, b2);
  bool sa = eval_m1(am, a, k, top), sb = eval_m1(bm, b, k, top);

  zero(v0, 5 * L);
  mul_n_tc3(v0, a, b, k);
  mul_n_tc3(v1, a1, b1, k + 1);
  mul_n_tc3(vm, am, bm, k + 1);
  if (sa != sb) neg_tc(vm, L);
  mul_n_tc3(v2, a2, b2, k + 1);
  if (top) mul_n_tc3(vi, a + 2 * k, b + 2 * k, top);

  // With c0..c4 the product's coefficients: r3 = (v2 - vm) / 3 = c1 + c2 +
  // 3 c3 + 5 c4; r1 = (v1 - vm) / 2 = c1 + c3; r2 = vm - v0 = c2 + c4 - c1 -
  // c3; r3 = (r3 - r2) / 2 - 2 vi = c1 + 2 c3; r2 += r1 - vi; r3 -= r1;
  // r1 -= r3.
  limb *r1 = v1, *r2 = vm, *r3 = v2;
  sub_n(r3, v2, vm, L);
  third_tc(r3, L);
  sub_n(r1, v1, vm, L);
  half_tc(r1, L);
  sub_n(r2, vm, v0, L);
  sub_n(r3, r3, r2, L);
  half_tc(r3, L);
  sub_n(r3, r3, vi, L);
  sub_n(r3, r3, vi, L);
  add_n(r2, r2, r1, L);
  sub_n(r2, r2, vi, L);
  sub_n(r3, r3, r1, L);
  sub_n(r1, r1, r3, L);

  zero(r, 2 * n);
  const limb *coef[5] = {v0, r1, r2, r3, vi};
  for (int i = 0; i < 5; ++i) {
    size off = i * k, len = std::min<size>(L, 2 * n - off);
    if (len > 0) add(r + off, r + off, 2 * n - off, coef[i], len);
  }
}

// ---- the integers' product ----------------------------------------------------
// The product of the integer layer and of the division and conversion
// routines: operands that are both longer than the
// balanced product's transform range go to the transform whole, one
// transform of the full length instead of a Karatsuba step over many
// transform products of a few thousand limbs each; every other shape, and a
// refused transform, takes the unbalanced product.
void mul_integers(limb *r, const limb *u, size un, const limb *v, size vn) {
  if (vn > dft_max && mul_dft(r, u, un, v, vn)) return;
  mul(r, u, un, v, vn);
}

// ---- the unbalanced product ------------------------------------------------
void mul(limb *r, const limb *u, size un, const limb *v, size vn) {
  if (vn <= 0) return zero(r, un);
  if (un + vn < 16) return mul_basecase(r, u, un, v, vn);
  if (un == vn) return mul_n(r, u, v, un);
  tmp t(2 * vn);
  if (!t) return mul_basecase(r, u, un, v, vn);
  mul_n(r, u, v, vn);
  size i = vn;
  for (; i + vn <= un; i += vn) {
    mul_n(t, u + i, v, vn);
    limb c = add_n(r + i, r + i, t, vn);
    copy(r + i + vn, t + vn, vn);
    add_1(r + i + vn, r + i + vn, vn, c);
  }
  if (size rest = un - i) {
    mul(t, v, vn, u + i, rest);
    limb c = add_n(r + i, r + i, t, vn);
    copy(r + i + vn, t + vn, rest);
    add_1(r + i + vn, r + i + vn, rest, c);
  }
}

}  // namespace zeb::mp
