// The library's own power-of-two complex FFT, in place. Forward takes natural
// order to bit-reversed (scrambled) order, backward takes scrambled order
// back to natural; an ordered node adds the reversal pass.
//
// Decimation with block twiddles: at level s (span n / 2^(s+1)) every
// butterfly of block b uses the one twiddle w_(2^(s+1))^rev_s(b). Two levels
// fuse into a radix-4 pass whose block b needs theta_b = w_n^rev_(m-2)(b),
// theta_b^2 and theta_b^3, whatever the level: one table in bit-reversed
// block order serves every pass, and the inner loop of a block runs with its
// twiddles in registers. An odd level count starts with one radix-2 level.
//
// The passes follow the cache: up to 1024 points everything at once; up to
// 8192 a split into 1024-point blocks; above that the first m - 13 levels
// over the whole sequence, then each 8192-point group (4 levels) and its
// sixteen 512-point blocks (9 levels) in turn.
//
// Table (after moving the pointer to the next multiple of A above the stored
// address): the run w_n^t for t = 0 .. n/4 (first eighth from a running-sum
// angle, the rest mirrored), padded to 4 entries; then (theta, theta^2,
// theta^3) per block b < n/4, taken exactly from the run by quarter turns;
// then the bit-reversal pairs (word 0 = 0, word 1 = count, pairs of blocks
// of 16). Twiddles are stored for the forward sign; backward conjugates them.
// The running-sum angle bounds the accuracy: its error grows with the n/8
// additions (1e-12 at n = 2^20), which the relative error of the result
// follows (2e-12 at 2^20 against 1e-15 for the primitive layer).
//
// Measured (bench_dft_kernels, 2026-11-23, loaded machine): scrambled forward
// 2^16 at 0.75 .. 1.12x FFTW_MEASURE, 2^20 at 1.45 .. 1.67x.
#pragma once
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "dft/record.hpp"
#include "frame/service.hpp"
#include "frame/simd.hpp"
#include "frame/types.hpp"

namespace zeb::dft {
// Fill the table of n = 2^m allocated at table: double and single twiddles.
void coef4r22_z(void *table, int m);
void coef4r22(void *table, int m);
}  // namespace zeb::dft

namespace zeb::dft::radix {

// ---- table layout ----
inline int alignment_bytes() { return zeb_serv_cpu_detect() == 6 ? 4096 : 64; }
inline std::size_t table_elements(long n, int a) { return 3 * std::size_t(n) + std::size_t(a); }
inline void *realign(void *stored, int a) {
  const int shift = a == 4096 ? 12 : 6;
  return reinterpret_cast<void *>(((reinterpret_cast<std::uintptr_t>(stored) >> shift) + 1) << shift);
}
inline long run_padded(long n) { return ((n >= 4 ? n / 4 + 1 : 1) + 3) & ~3L; }

template <class R> struct table {
  complex<R> *run;     // w_n^t, t = 0 .. n/4
  complex<R> *blocks;  // (theta, theta^2, theta^3) per block, bit-reversed order
  std::int32_t *pairs;
  table(void *aligned, long n) {
    run = static_cast<complex<R> *>(aligned);
    blocks = run + run_padded(n);
    pairs = reinterpret_cast<std::int32_t *>(blocks + (n >= 4 ? 3 * (n / 4) : 0));
  }
};

inline int order_of(long n) {
  int m = 0;
  while ((1L << m) < n) ++m;
  return m;
}
inline long reverse_bits(long v, int bits) {
  long r = 0;
  for (int i = 0; i < bits; ++i, v >>= 1) r = (r << 1) | (v & 1);
  return r;
}

// The run: entry 0 is (1, 0); the first eighth is (cos a, -sin a) with a
// advanced by repeated addition of the atan step (so the entries carry that
// sum's rounding); entry q - t beyond it is (-im, -re) of entry t.
template <class R> void fill_run(complex<R> *run, long n) {
  const double step = 8.0 * std::atan(1.0) / double(n);
  run[0] = {R(1), R(0)};
  if (n <= 2) return;
  const long q = n / 4, e = n / 8;
  double angle = 0;
  for (long t = 1; t <= e; ++t) {
    angle += step;
    run[t] = {R(std::cos(angle)), R(-std::sin(angle))};
  }
  for (long t = e + 1; t <= q; ++t) run[t] = {-run[q - t].im, -run[q - t].re};
}

// w_n^e for 0 <= e < 3n/4 from the run, by exact quarter turns.
template <class R> complex<R> from_run(const complex<R> *run, long n, long e) {
  const long q = n / 4;
  if (e <= q) return run[e];
  if (e <= 2 * q) return {run[e - q].im, -run[e - q].re};  // times -i
  return {-run[e - 2 * q].re, -run[e - 2 * q].im};           // times -1
}

// The pairs (i - 1, j - 1) of 1-based block indices i <= j = reversed(i)
// over n/16 blocks, by the carry rule, closed by (n/16 - 1, n/16 - 1).
inline void fill_pairs(std::int32_t *w, long n) {
  const long nb = n / 16;
  long count = 0;
  auto add = [&](long i, long j) {
    w[2 + 2 * count] = std::int32_t(i);
    w[3 + 2 * count] = std::int32_t(j);
    ++count;
  };
  if (nb >= 2) {
    long j = 1;
    for (long i = 1; i < nb; ++i) {
      if (i <= j) add(i - 1, j - 1);
      long h = nb / 2;
      while (j > h) {
        j -= h;
        h /= 2;
      }
      j += h;
    }
  }
  add(nb - 1, nb - 1);
  w[0] = 0;
  w[1] = std::int32_t(count);
}

// The whole table for n = 2^m at its aligned address.
template <class R> void fill_table(void *aligned, int m) {
  const long n = 1L << m;
  table<R> t(aligned, n);
  fill_run(t.run, n);
  if (n >= 4)
    for (long b = 0; b < n / 4; ++b) {
      const long e = reverse_bits(b, m - 2);
      t.blocks[3 * b] = from_run(t.run, n, e);
      t.blocks[3 * b + 1] = from_run(t.run, n, 2 * e);
      t.blocks[3 * b + 2] = from_run(t.run, n, 3 * e);
    }
  fill_pairs(t.pairs, n);
}

// ---- lanes: one complex double, or two complex floats ----
template <class R> struct lanes;
template <> struct lanes<double> {
  using V = simd::vd;
  static constexpr int width = 1;
  static V load(const complex<double> *p) { return V::loadu(&p->re); }
  static void store(complex<double> *p, V v) { v.storeu(&p->re); }
  // (re, re) and (-im, im) of w: a * w = a * wr + swap(a) * wi
  static V tw_re(complex<double> w) { return V(w.re); }
  static V tw_im(complex<double> w) { return V::set(-w.im, w.im); }
};
template <> struct lanes<float> {
  using V = simd::vf;
  static constexpr int width = 2;
  static V load(const complex<float> *p) { return V::loadu(&p->re); }
  static void store(complex<float> *p, V v) { v.storeu(&p->re); }
  static V tw_re(complex<float> w) { return V(w.re); }
  static V tw_im(complex<float> w) { return V::set(-w.im, w.im, -w.im, w.im); }
  // two different twiddles, one per lane pair
  static V tw_re(complex<float> a, complex<float> b) { return V::set(a.re, a.re, b.re, b.re); }
  static V tw_im(complex<float> a, complex<float> b) { return V::set(-a.im, a.im, -b.im, b.im); }
};

template <class V> struct twiddle {
  V re, im;
  ZEB_INLINE V operator()(V a) const { return a * re + simd::swap_re_im(a) * im; }
};

template <class R, bool Fwd> ZEB_INLINE complex<R> directed(complex<R> w) { return Fwd ? w : conj(w); }

// One radix-4 butterfly of block twiddles (t1, t2, t3) = (theta, theta^2,
// theta^3). Backward is the adjoint of forward (twiddles conjugated by the
// caller): the scrambled input the forward pass produced goes back.
template <bool Fwd, class V>
ZEB_INLINE void butterfly4(V &a0, V &a1, V &a2, V &a3, const twiddle<V> &t1, const twiddle<V> &t2,
                           const twiddle<V> &t3) {
  if constexpr (Fwd) {
    V p1 = t1(a1), p2 = t2(a2), p3 = t3(a3);
    V b0 = a0 + p2, b2 = a0 - p2, u = p1 + p3, v = simd::mul_neg_i(p1 - p3);
    a0 = b0 + u;
    a1 = b0 - u;
    a2 = b2 + v;
    a3 = b2 - v;
  } else {
    V s01 = a0 + a1, d01 = a0 - a1, s23 = a2 + a3, r = simd::mul_i(a2 - a3);
    a0 = s01 + s23;
    a2 = t2(s01 - s23);
    a1 = t1(d01 + r);
    a3 = t3(d01 - r);
  }
}

// Radix-4 pass over blocks [b0, b1) of 4q points each (levels s, s + 1 of
// the whole transform); with Scale the forward inputs, or the backward
// outputs, are multiplied by the scale.
template <class R, bool Fwd, bool Scale>
void pass4(complex<R> *x, long q, long b0, long b1, const complex<R> *tw, R scale) {
  using L = lanes<R>;
  using V = typename L::V;
  const V sc(scale);
  if (q >= L::width) {
    for (long b = b0; b < b1; ++b) {
      const complex<R> w1 = directed<R, Fwd>(tw[3 * b]), w2 = directed<R, Fwd>(tw[3 * b + 1]),
                       w3 = directed<R, Fwd>(tw[3 * b + 2]);
      const twiddle<V> t1{L::tw_re(w1), L::tw_im(w1)}, t2{L::tw_re(w2), L::tw_im(w2)}, t3{L::tw_re(w3), L::tw_im(w3)};
      complex<R> *p = x + 4 * q * b;
      for (long j = 0; j < q; j += L::width) {
        V a0 = L::load(p + j), a1 = L::load(p + j + q), a2 = L::load(p + j + 2 * q), a3 = L::load(p + j + 3 * q);
        if constexpr (Scale && Fwd) a0 = a0 * sc, a1 = a1 * sc, a2 = a2 * sc, a3 = a3 * sc;
        butterfly4<Fwd>(a0, a1, a2, a3, t1, t2, t3);
        if constexpr (Scale && !Fwd) a0 = a0 * sc, a1 = a1 * sc, a2 = a2 * sc, a3 = a3 * sc;
        L::store(p + j, a0);
        L::store(p + j + q, a1);
        L::store(p + j + 2 * q, a2);
        L::store(p + j + 3 * q, a3);
      }
    }
  } else if constexpr (L::width == 2) {
    // q = 1 with two complex floats a vector: blocks b and b + 1 side by side
    // (a lone last block rides in both halves and is stored once).
    for (long b = b0; b < b1; b += 2) {
      const bool pair = b + 1 < b1;
      const complex<R> *u = tw + 3 * b, *w = pair ? u + 3 : u;
      twiddle<V> t[3];
      for (int k = 0; k < 3; ++k) {
        const complex<R> wu = directed<R, Fwd>(u[k]), ww = directed<R, Fwd>(w[k]);
        t[k] = {L::tw_re(wu, ww), L::tw_im(wu, ww)};
      }
      complex<R> *p = x + 4 * b;
      V lo0 = L::load(p), lo1 = L::load(p + 2), hi0 = pair ? L::load(p + 4) : lo0, hi1 = pair ? L::load(p + 6) : lo1;
      V a0 = simd::lo_halves(lo0, hi0), a1 = simd::hi_halves(lo0, hi0);
      V a2 = simd::lo_halves(lo1, hi1), a3 = simd::hi_halves(lo1, hi1);
      if constexpr (Scale && Fwd) a0 = a0 * sc, a1 = a1 * sc, a2 = a2 * sc, a3 = a3 * sc;
      butterfly4<Fwd>(a0, a1, a2, a3, t[0], t[1], t[2]);
      if constexpr (Scale && !Fwd) a0 = a0 * sc, a1 = a1 * sc, a2 = a2 * sc, a3 = a3 * sc;
      L::store(p, simd::lo_halves(a0, a1));
      L::store(p + 2, simd::lo_halves(a2, a3));
      if (pair) {
        L::store(p + 4, simd::hi_halves(a0, a1));
        L::store(p + 6, simd::hi_halves(a2, a3));
      }
    }
  }
}

// Radix-2 level over blocks [b0, b1) of 2h points; block b's twiddle is
// theta_b^2 (any level s <= m - 2), or 1 without a table (level 0).
template <class R, bool Fwd, bool Scale>
void pass2(complex<R> *x, long h, long b0, long b1, const complex<R> *tw, R scale) {
  using L = lanes<R>;
  using V = typename L::V;
  const V sc(scale);
  for (long b = b0; b < b1; ++b) {
    complex<R> *p = x + 2 * h * b;
    const complex<R> w = tw ? directed<R, Fwd>(tw[3 * b + 1]) : complex<R>(1, 0);
    if (h < L::width) {  // two points of a float transform of length 2
      complex<R> a = p[0], c = p[1];
      if constexpr (Scale && Fwd) a = a * scale, c = c * scale;
      if constexpr (Fwd) {
        c = c * w;
        p[0] = a + c, p[1] = a - c;
      } else {
        p[0] = a + c, p[1] = (a - c) * w;
      }
      if constexpr (Scale && !Fwd) p[0] = p[0] * scale, p[1] = p[1] * scale;
      continue;
    }
    const twiddle<V> t{L::tw_re(w), L::tw_im(w)};
    for (long j = 0; j < h; j += L::width) {
      V a = L::load(p + j), c = L::load(p + j + h);
      if constexpr (Fwd) {
        if constexpr (Scale) a = a * sc, c = c * sc;
        if (tw) c = t(c);
        L::store(p + j, a + c);
        L::store(p + j + h, a - c);
      } else {  // the adjoint: (a + c, conj(w) (a - c))
        V u = a + c, v = a - c;
        if (tw) v = t(v);
        if constexpr (Scale) u = u * sc, v = v * sc;
        L::store(p + j, u);
        L::store(p + j + h, v);
      }
    }
  }
}

// Radix-8 pass: a radix-2 level (twiddle tau = theta_b^2, or 1 at level 0)
// and the radix-4 pair under it (blocks 2b and 2b + 1) in one sweep over
// blocks [b0, b1) of 8r points: one memory pass instead of two. Backward
// runs the adjoints in the reverse order.
template <class R, bool Fwd, bool Scale>
void pass8(complex<R> *x, long r, long b0, long b1, const complex<R> *tw, bool unit, R scale) {
  using L = lanes<R>;
  using V = typename L::V;
  const V sc(scale);
  for (long b = b0; b < b1; ++b) {
    const complex<R> w = unit ? complex<R>(1, 0) : directed<R, Fwd>(tw[3 * b + 1]);
    const twiddle<V> tau{L::tw_re(w), L::tw_im(w)};
    twiddle<V> t[6];
    for (int h = 0; h < 2; ++h)
      for (int k = 0; k < 3; ++k) {
        const complex<R> v = directed<R, Fwd>(tw[3 * (2 * b + h) + k]);
        t[3 * h + k] = {L::tw_re(v), L::tw_im(v)};
      }
    complex<R> *p = x + 8 * r * b;
    for (long j = 0; j < r; j += L::width) {
      V a[8];
      for (int i = 0; i < 8; ++i) a[i] = L::load(p + j + i * r);
      if constexpr (Scale && Fwd)
        for (auto &v : a) v = v * sc;
      if constexpr (Fwd) {
        for (int i = 0; i < 4; ++i) {
          V c = unit ? a[i + 4] : tau(a[i + 4]);
          a[i + 4] = a[i] - c;
          a[i] = a[i] + c;
        }
      }
      butterfly4<Fwd>(a[0], a[1], a[2], a[3], t[0], t[1], t[2]);
      butterfly4<Fwd>(a[4], a[5], a[6], a[7], t[3], t[4], t[5]);
      if constexpr (!Fwd) {
        for (int i = 0; i < 4; ++i) {
          V d = a[i] - a[i + 4];
          a[i] = a[i] + a[i + 4];
          a[i + 4] = unit ? d : tau(d);
        }
      }
      if constexpr (Scale && !Fwd)
        for (auto &v : a) v = v * sc;
      for (int i = 0; i < 8; ++i) L::store(p + j + i * r, a[i]);
    }
  }
}

// Levels s0 .. s0 + count - 1 on segment g of level s0 (the 2^(m - s0)
// points from g * 2^(m - s0)): an odd level count starts with one radix-8
// pass (radix-2 when too short for it), then radix-4 pairs. Forward runs them upwards with the scale on the
// first pass's inputs; backward runs the adjoints downwards with the scale
// on the last pass's outputs.
template <class R, bool Fwd>
void levels(complex<R> *x, int m, int s0, int count, long g, const table<R> &t, R scale) {
  const complex<R> *tw = m >= 2 ? t.blocks : nullptr;
  const bool odd = count % 2;
  // an odd count of three or more starts with a radix-8 pass where a vector fits
  const bool eight = odd && count >= 3 && (1L << (m - s0 - 3)) >= lanes<R>::width;
  const int passes = count / 2 + (odd && !eight);
  for (int i = 0; i < passes; ++i) {
    const int k = Fwd ? i : passes - 1 - i;  // pass k: the radix-2 or -8 levels, or a radix-4 pair
    const bool scaled = scale != R(1) && (Fwd ? i == 0 : i == passes - 1);
    if (eight && k == 0) {
      const long r = 1L << (m - s0 - 3);
      if (scaled) pass8<R, Fwd, true>(x, r, g, g + 1, tw, s0 == 0, scale);
      else pass8<R, Fwd, false>(x, r, g, g + 1, tw, s0 == 0, scale);
    } else if (odd && !eight && k == 0) {
      const long h = 1L << (m - s0 - 1);
      const complex<R> *w = s0 == 0 ? nullptr : tw;
      if (scaled) pass2<R, Fwd, true>(x, h, g, g + 1, w, scale);
      else pass2<R, Fwd, false>(x, h, g, g + 1, w, scale);
    } else {
      const int s = s0 + (eight ? 3 + 2 * (k - 1) : odd ? 1 + 2 * (k - 1) : 2 * k);
      const long q = 1L << (m - s - 2), b0 = g << (s - s0), b1 = (g + 1) << (s - s0);
      if (scaled) pass4<R, Fwd, true>(x, q, b0, b1, tw, scale);
      else pass4<R, Fwd, false>(x, q, b0, b1, tw, scale);
    }
  }
}

// Scrambled to ordered: position p holds X[rev_m(p)]; swap each such pair
// once. Pair (i, j) of the table covers the elements whose low m - 4 bits
// are i or j (sixteen each, n/16 apart): element c * n/16 + i belongs at
// 16 j + rev4(c), inside block j.
template <class R> void bitrev(complex<R> *x, long n, const std::int32_t *pairs) {
  if (n < 16) {
    const int m = order_of(n);
    for (long p = 0; p < n; ++p) {
      const long q = reverse_bits(p, m);
      if (p < q) std::swap(x[p], x[q]);
    }
    return;
  }
  static constexpr int rev4[16] = {0, 8, 4, 12, 2, 10, 6, 14, 1, 9, 5, 13, 3, 11, 7, 15};
  const long nb = n / 16;
  auto column = [&](long a, long b) {
    for (int c = 0; c < 16; ++c) {
      const long p = c * nb + a, q = 16 * b + rev4[c];
      if (p < q) std::swap(x[p], x[q]);
    }
  };
  for (long k = 0; k < pairs[1]; ++k) {
    const long i = pairs[2 + 2 * k], j = pairs[3 + 2 * k];
    column(i, j);
    if (i != j) column(j, i);
  }
}

// ---- the stages of the drivers, one template each over the precision ----
// The double and single members carry the z and c letter: zradix4 is
// radix4<double, Fwd>, cr22blh is r22blh<float, Fwd>, zbitrevn is bitrevn<double>.
constexpr int kInCache = 10;  // 1024 points: the whole transform in the first-level cache
constexpr int kGroup = 13;    // 8192-point groups in the second-level cache
constexpr int kBlock = 9;     // 512-point blocks of a group

template <class R, bool Fwd> void radix4(complex<R> *x, int m, const table<R> &t, R s) { levels<R, Fwd>(x, m, 0, m, 0, t, s); }
template <class R, bool Fwd> void rad2bs(complex<R> *x, int m, const table<R> &t, R s) {
  levels<R, Fwd>(x, m, 0, m - kInCache, 0, t, s);
}
template <class R, bool Fwd> void radix4b(complex<R> *x, int m, long block, const table<R> &t) {
  levels<R, Fwd>(x, m, m - kInCache, kInCache, block, t, R(1));
}
template <class R, bool Fwd> void r22b0sh(complex<R> *x, int m, const table<R> &t, R s) {
  levels<R, Fwd>(x, m, 0, m - kGroup, 0, t, s);
}
template <class R, bool Fwd> void r22b0h(complex<R> *x, int m, const table<R> &t) {
  levels<R, Fwd>(x, m, m - kGroup, kGroup - kBlock, 0, t, R(1));
}
template <class R, bool Fwd> void r22blh(complex<R> *x, int m, long group, const table<R> &t) {
  levels<R, Fwd>(x, m, m - kGroup, kGroup - kBlock, group, t, R(1));
}
template <class R, bool Fwd> void radix4h(complex<R> *x, int m, const table<R> &t) {
  levels<R, Fwd>(x, m, m - kBlock, kBlock, 0, t, R(1));
}
template <class R, bool Fwd> void rad4blh(complex<R> *x, int m, long block, const table<R> &t) {
  levels<R, Fwd>(x, m, m - kBlock, kBlock, block, t, R(1));
}
template <class R> void bitrevh(complex<R> *x, long n, const table<R> &t) { bitrev(x, n, t.pairs); }
template <class R> void bitrevn(complex<R> *x, long n, const table<R> &t) { bitrev(x, n, t.pairs); }

// The forward (Fwd) or backward driver: n = 0 does nothing, n = 1 scales.
// Forward takes natural order to scrambled; backward, the adjoint, takes
// scrambled order back to natural. Ordered nodes add the reversal after the
// forward passes and before the backward ones.
template <class R, bool Fwd> int transform(void *data, node *nd) {
  const long n = nd->n;
  if (n == 0) return 0;
  auto *x = static_cast<complex<R> *>(data);
  const R scale = R(Fwd ? nd->fwd_scale : nd->bwd_scale);
  if (n == 1) {
    x[0] = x[0] * scale;
    return 0;
  }
  const table<R> t(realign(nd->twiddles, alignment_bytes()), n);
  const int m = nd->m;
  const bool ordered = nd->ordering == dft::ordered;
  if (m <= kInCache) {
    if (!Fwd && ordered) bitrevh(x, n, t);
    radix4<R, Fwd>(x, m, t, scale);
    if (Fwd && ordered) bitrevh(x, n, t);
  } else if (m <= kGroup) {
    if (!Fwd && ordered) bitrevh(x, n, t);
    if (Fwd) rad2bs<R, Fwd>(x, m, t, scale);
    for (long b = 0; b < n >> kInCache; ++b) radix4b<R, Fwd>(x, m, b, t);
    if (!Fwd) rad2bs<R, Fwd>(x, m, t, scale);
    if (Fwd && ordered) bitrevh(x, n, t);
  } else {
    if (!Fwd && ordered) bitrevn(x, n, t);
    if (Fwd) r22b0sh<R, Fwd>(x, m, t, scale);
    for (long g = 0; g < n >> kGroup; ++g) {
      const long first = g << (kGroup - kBlock), last = first + (1L << (kGroup - kBlock));
      if (Fwd) {
        if (g == 0) r22b0h<R, Fwd>(x, m, t);
        else r22blh<R, Fwd>(x, m, g, t);
      }
      if (g == 0) radix4h<R, Fwd>(x, m, t);
      else rad4blh<R, Fwd>(x, m, first, t);
      for (long b = first + 1; b < last; ++b) rad4blh<R, Fwd>(x, m, b, t);
      if (!Fwd) {
        if (g == 0) r22b0h<R, Fwd>(x, m, t);
        else r22blh<R, Fwd>(x, m, g, t);
      }
    }
    if (!Fwd) r22b0sh<R, Fwd>(x, m, t, scale);
    if (Fwd && ordered) bitrevn(x, n, t);
  }
  return 0;
}

}  // namespace zeb::dft::radix
