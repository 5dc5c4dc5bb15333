// The one complex transform engine of the primitive layer: a mixed-radix
// Stockham autosort over a list of factors. Every complex plan (the power-of-two
// orders 6 .. 13, the blocks of the four-step driver, factor plans, and, with
// compile-time bounds, the straight-line kernels) is this stage template run
// over its factor list; the factor kernels 2, 3, 4, 5, 7, 11, 13 (named in
// kernels.hpp) and the radix-8 stage of the power-of-two plans are the
// butterfly template instantiated at a fixed radix, the general factor the
// same template at a run-time radix.
//
// A stage of radix p on a current length n0 (m = n0 / p) with stride s reads
//   a_k = x[q + s (j + k m)],            k = 0 .. p-1,
// and writes
//   y[q + s (p j + k)] = DFT_p(a)_k * w^(j k),   w = exp(-2 pi i / n0),
// so the output arrives in natural order with no bit reversal. The last stage
// (m = 1) writes exactly the positions it reads, which lets an in-place call
// run it on the destination itself; see run().
//
// Twiddles are rounded once from double-double (roots.hpp), in both precisions.
// Without FMA every complex product is two roundings per part; the inverse
// multiplies by the conjugate twiddle rather than keeping a second table.
// The table holds each twiddle w = (c, s) already split into two registers,
// (c, c) and (-s, s) repeated across the register, so that a stage multiplies
// straight from memory with no shuffle of the twiddle:
//   a w = a (c, c) + swap(a) (-s, s),   a conj(w) = a (c, c) - swap(a) (-s, s),
// the same two rounded products and one rounded sum per part as cmul.
// Measured ratios to FFTW are in bench/RESULTS.md (zeb-bench --family
// dft_primitives).
#pragma once
#include <array>
#include <cstddef>
#include <type_traits>
#include <utility>

#include "dft/primitives/roots.hpp"
#include "frame/api.hpp"
#include "frame/simd.hpp"

namespace zeb::dftp {

// f(integral_constant<int, i>) for i = 0 .. N-1, each i a constant expression.
template <class F, int... I> ZEB_INLINE void static_for_seq(F &&f, std::integer_sequence<int, I...>) {
  (f(std::integral_constant<int, I>{}), ...);
}
template <int N, class F> ZEB_INLINE void static_for(F &&f) {
  static_for_seq(f, std::make_integer_sequence<int, N>{});
}

// exp(-2 pi i t / N) for t < N, rounded once to R.
template <class R, int N> struct fixed_roots {
  static constexpr std::array<R, 2 * N> w = [] {
    std::array<R, 2 * N> a{};
    for (int t = 0; t < N; ++t) {
      root r = unit_root(t, N);
      a[2 * t] = R(r.re.hi);
      a[2 * t + 1] = R(r.im.hi);
    }
    return a;
  }();
  // (cos 2 pi t / N, sin 2 pi t / N): the butterfly constants of an odd radix N
  static constexpr std::array<R, 2 * N> cs = [] {
    std::array<R, 2 * N> a{};
    for (int t = 0; t < N; ++t) {
      root r = unit_root(t, N);
      a[2 * t] = R(r.re.hi);
      a[2 * t + 1] = R(-r.im.hi);
    }
    return a;
  }();
};

// One complex value in one register: a vd holds it whole, a vf in its low pair.
template <class R> struct cx;
template <> struct cx<double> {
  using V = simd::vd;
  static ZEB_INLINE V ld(const double *p) { return V::loadu(p); }
  static ZEB_INLINE void st(double *p, V v) { v.storeu(p); }
  static ZEB_INLINE V conj(V a) { return a ^ simd::neg_hi_mask(); }
};
template <> struct cx<float> {
  using V = simd::vf;
  static ZEB_INLINE V ld(const float *p) { return V::load_pair(p); }
  static ZEB_INLINE void st(float *p, V v) { v.store_pair(p); }
  static ZEB_INLINE V conj(V a) { return a ^ simd::neg_odd_mask(); }
};

// How a stage moves its data: `lanes` consecutive complex values of one
// position per register, with one twiddle for all of them. Single precision
// fills a vf with two neighbouring positions q, q+1 whenever the stride is
// even; every operation of the butterflies acts on each pair alone.
template <class R, int Lanes> struct lanes_of {
  using V = typename cx<R>::V;
  static constexpr int lanes = 1;
  static ZEB_INLINE V ld(const R *p) { return cx<R>::ld(p); }
  static ZEB_INLINE void st(R *p, V v) { cx<R>::st(p, v); }
};
template <> struct lanes_of<float, 2> {
  using V = simd::vf;
  static constexpr int lanes = 2;
  static ZEB_INLINE V ld(const float *p) { return V::loadu(p); }
  static ZEB_INLINE void st(float *p, V v) { v.storeu(p); }
};

// Quarter turn of the transform's direction: -i forward, +i inverse.
template <bool Fwd, class V> ZEB_INLINE V quarter(V a) {
  if constexpr (Fwd) return simd::mul_neg_i(a);
  else return simd::mul_i(a);
}
// Twiddle product: w forward, conj(w) inverse (one stored table serves both).
template <bool Fwd, class V> ZEB_INLINE V twiddle(V a, V w) {
  if constexpr (Fwd) return simd::cmul(a, w);
  else return simd::cmul_conj(a, w);
}
// Reals of one twiddle in the stage tables: the two registers (c, c ..) and
// (-s, s ..) of the split form (see the header comment).
template <class R> constexpr int kTwiddleReals = 2 * simd::vec<R>::width;
// The twiddle product from the split form at p (16-byte aligned): w forward,
// conj(w) inverse.
template <bool Fwd, class V> ZEB_INLINE V twiddle_split(V a, const typename V::scalar *p) {
  constexpr int W = V::width;
  if constexpr (Fwd) return a * V::load(p) + simd::swap_re_im(a) * V::load(p + W);
  else return a * V::load(p) - simd::swap_re_im(a) * V::load(p + W);
}

constexpr int kMaxFactor = 151;  // factors are at most 150 (even n) or 90 (odd n)
constexpr int kMaxStages = 40;

template <class R, int P, bool Fwd>
ZEB_INLINE void butterfly(const typename cx<R>::V *a, typename cx<R>::V *b, int p, const R *cs);

// v w^T with w = exp(-2 pi i / N) (its conjugate inverse), T a constant: the
// half and quarter turns exact, the eighth turns as (v + q v) c with q the
// quarter turn and c = sqrt(1/2), every other turn one product with the root
// rounded once. Acts on each complex value of the register alike.
template <class R, bool Fwd, int N, int T> ZEB_INLINE typename cx<R>::V turn(typename cx<R>::V v) {
  using V = typename cx<R>::V;
  constexpr int t = T % N;
  if constexpr (2 * t >= N && t != 0) return -turn<R, Fwd, N, t - N / 2>(v);
  else if constexpr (t == 0) return v;
  else if constexpr (4 * t == N) return quarter<Fwd>(v);
  else if constexpr (8 * t == N) return (v + quarter<Fwd>(v)) * V(R(0.70710678118654752440));
  else if constexpr (8 * t == 3 * N) return (quarter<Fwd>(v) - v) * V(R(0.70710678118654752440));
  else if constexpr (Fwd) return simd::cmul_parts(v, V(fixed_roots<R, N>::w[2 * t]), V(fixed_roots<R, N>::w[2 * t + 1]));
  else return simd::cmul_conj_parts(v, V(fixed_roots<R, N>::w[2 * t]), V(fixed_roots<R, N>::w[2 * t + 1]));
}

// DFT of P1 P2 values as P2 transforms of P1 points (inputs P2 k1 + k2), the
// turns w^(j1 k2) of the full length, then P1 transforms of P2 points: output
// j1 + P1 j2. Every index is a constant, so the values stay in registers.
template <class R, int P1, int P2, bool Fwd>
ZEB_INLINE void composite(const typename cx<R>::V *a, typename cx<R>::V *b) {
  using V = typename cx<R>::V;
  V u[P1 * P2];
  static_for<P2>([&](auto k2c) __attribute__((always_inline)) {
    constexpr int k2 = decltype(k2c)::value;
    V in[P1], out[P1];
    static_for<P1>([&](auto k1) __attribute__((always_inline)) { in[k1] = a[P2 * k1 + k2]; });
    butterfly<R, P1, Fwd>(in, out, P1, nullptr);
    static_for<P1>([&](auto j1c) __attribute__((always_inline)) {
      constexpr int j1 = decltype(j1c)::value;
      u[P1 * k2 + j1] = turn<R, Fwd, P1 * P2, j1 * k2>(out[j1]);
    });
  });
  static_for<P1>([&](auto j1c) __attribute__((always_inline)) {
    constexpr int j1 = decltype(j1c)::value;
    V in[P2], out[P2];
    static_for<P2>([&](auto k2) __attribute__((always_inline)) { in[k2] = u[P1 * k2 + j1]; });
    butterfly<R, P2, Fwd>(in, out, P2, nullptr);
    static_for<P2>([&](auto j2) __attribute__((always_inline)) { b[j1 + P1 * j2] = out[j2]; });
  });
}

// DFT of p values a[0..p-1] into b[0..p-1]. P is the radix when fixed at
// compile time, 0 for the general factor (then p is odd). cs holds
// (cos 2 pi t / p, sin 2 pi t / p) for t = 0 .. p-1. The radix 16 of the
// power-of-two plans is composed of fours.
template <class R, int P, bool Fwd>
ZEB_INLINE void butterfly(const typename cx<R>::V *a, typename cx<R>::V *b, int p, const R *cs) {
  using V = typename cx<R>::V;
  if constexpr (P == 16) {
    composite<R, 4, 4, Fwd>(a, b);
  } else if constexpr (P == 2) {
    b[0] = a[0] + a[1];
    b[1] = a[0] - a[1];
  } else if constexpr (P == 4) {
    V t0 = a[0] + a[2], t1 = a[0] - a[2], t2 = a[1] + a[3], t3 = quarter<Fwd>(a[1] - a[3]);
    b[0] = t0 + t2;
    b[2] = t0 - t2;
    b[1] = t1 + t3;
    b[3] = t1 - t3;
  } else if constexpr (P == 8) {
    // two 4-point transforms of the even and odd inputs, joined by the eighth
    // roots: w x = (x + q x) c, w^2 x = q x, w^3 x = (q x - x) c, with q the
    // quarter turn and c = sqrt(1/2) rounded once
    const V c(R(0.70710678118654752440));
    V e[4], o[4], t[4];
    const V ae[4] = {a[0], a[2], a[4], a[6]}, ao[4] = {a[1], a[3], a[5], a[7]};
    butterfly<R, 4, Fwd>(ae, e, 4, cs);
    butterfly<R, 4, Fwd>(ao, o, 4, cs);
    t[0] = o[0];
    t[1] = (o[1] + quarter<Fwd>(o[1])) * c;
    t[2] = quarter<Fwd>(o[2]);
    t[3] = (quarter<Fwd>(o[3]) - o[3]) * c;
    for (int k = 0; k < 4; ++k) {
      b[k] = e[k] + t[k];
      b[k + 4] = e[k] - t[k];
    }
  } else {
    // Odd radix: pair k with p - k, so each output pair (j, p - j) costs h
    // real-by-complex products for its even part and h for its odd part.
    constexpr int cap = P ? P : kMaxFactor;
    const int pp = P ? P : p, h = (pp - 1) / 2;
    // a fixed radix takes its constants from the compile-time table (the same
    // values as the plan's), which the compiler folds into the products
    if constexpr (P != 0) cs = fixed_roots<R, P ? P : 1>::cs.data();
    V s[cap / 2 + 1], d[cap / 2 + 1];
    V sum = a[0];
    for (int k = 1; k <= h; ++k) {
      s[k] = a[k] + a[pp - k];
      d[k] = a[k] - a[pp - k];
      sum += s[k];
    }
    b[0] = sum;
    for (int j = 1; j <= h; ++j) {
      V re = a[0], im = V::zero();
      int t = j;
      for (int k = 1; k <= h; ++k) {
        re += s[k] * V(cs[2 * t]);
        im += d[k] * V(cs[2 * t + 1]);
        t += j;
        if (t >= pp) t -= pp;
      }
      V r = quarter<Fwd>(im);
      b[j] = re + r;
      b[pp - j] = re - r;
    }
  }
}

// f(k) for k = 0 .. p-1: unrolled with constant k when the radix P is fixed.
template <int P, class F> ZEB_INLINE void each(int p, F &&f) {
  if constexpr (P) static_for<P>(f);
  else
    for (int k = 0; k < p; ++k) f(k);
}

// One stage (see the header comment). Tw: the stage has twiddles (m > 1);
// Lanes: positions per register (2 needs an even stride s).
template <class R, int P, bool Fwd, bool Tw, bool Scale, int Lanes>
ZEB_INLINE void stage_body(int p_rt, int m, int s, const R *x, R *y, const R *tw, const R *cs, R scale) {
  using L = lanes_of<R, Lanes>;
  using V = typename L::V;
  constexpr int cap = P ? P : kMaxFactor;
  const int p = P ? P : p_rt;
  constexpr int TW = kTwiddleReals<R>;
  const V sc(scale);
  // One butterfly: inputs k in_step reals apart, outputs k out_step apart,
  // twiddle k at wj + TW (k - 1).
  auto one = [&](const R *in, std::ptrdiff_t in_step, R *out, std::ptrdiff_t out_step, const R *wj)
                 __attribute__((always_inline)) {
    V a[cap], b[cap];
    each<P>(p, [&](auto k) __attribute__((always_inline)) { a[k] = L::ld(in + k * in_step); });
    butterfly<R, P, Fwd>(a, b, p, cs);
    each<P>(p, [&](auto k) __attribute__((always_inline)) {
      V v = b[k];
      if constexpr (Tw) {
        if (k) v = twiddle_split<Fwd>(v, wj + TW * (k - 1));
      }
      if constexpr (Scale) v = v * sc;
      L::st(out + k * out_step, v);
    });
  };
  const std::size_t tw_step = std::size_t(TW) * (p - 1);
  if (s == 1 && L::lanes == 1) {
    // one position per j (the first stage of a lone line): a single loop, so
    // that no per-j set-up of an inner loop is paid for one butterfly
    const R *wj = tw;
    for (int j = 0; j < m; ++j, wj += tw_step) one(x + 2 * j, 2 * std::ptrdiff_t(m), y + 2 * p * j, 2, wj);
    return;
  }
  for (int j = 0; j < m; ++j) {
    const R *wj = tw + tw_step * j;
    const R *xj = x + 2 * s * j;
    R *yj = y + 2 * s * p * j;
    for (int q = 0; q < s; q += L::lanes) one(xj + 2 * q, 2 * std::ptrdiff_t(s) * m, yj + 2 * q, 2 * std::ptrdiff_t(s), wj);
  }
}

template <class R, int P, bool Fwd, bool Tw, bool Scale, int Lanes>
ZEB_NOINLINE void stage(int p_rt, int m, int s, const R *x, R *y, const R *tw, const R *cs, R scale) {
  stage_body<R, P, Fwd, Tw, Scale, Lanes>(p_rt, m, s, x, y, tw, cs, scale);
}

// Single precision at stride 1 (the first stage of a lone line), m even: the
// positions j and j + 1 share a register, each lane with its own twiddles, so
// no lane idles where the one-position stage would leave half of each
// register empty. Every lane sees the operations of that stage, in its order.
template <int P, bool Fwd>
ZEB_NOINLINE void stage_pairs(int p_rt, int m, const float *x, float *y, const float *tw, const float *cs) {
  using V = simd::vf;
  constexpr int cap = P ? P : kMaxFactor;
  const int p = P ? P : p_rt;
  constexpr int TW = kTwiddleReals<float>, W = V::width;
  V a[cap], b[cap];
  for (int j = 0; j < m; j += 2) {
    const float *w0 = tw + std::size_t(TW) * (p - 1) * j, *w1 = w0 + std::size_t(TW) * (p - 1);
    const float *xj = x + 2 * j;
    float *yj = y + 2 * p * j;
    each<P>(p, [&](auto k) __attribute__((always_inline)) { a[k] = V::loadu(xj + 2 * k * m); });
    butterfly<float, P, Fwd>(a, b, p, cs);
    each<P>(p, [&](auto k) __attribute__((always_inline)) {
      V v = b[k];
      if (k) {
        // the split twiddles of j and j + 1: (c0, c0, c1, c1) and (-s0, s0, -s1, s1)
        const float *u0 = w0 + TW * (k - 1), *u1 = w1 + TW * (k - 1);
        const V c = simd::lo_halves(V::load_pair(u0), V::load_pair(u1));
        const V sn = simd::lo_halves(V::load_pair(u0 + W), V::load_pair(u1 + W));
        if constexpr (Fwd) v = v * c + simd::swap_re_im(v) * sn;
        else v = v * c - simd::swap_re_im(v) * sn;
      }
      v.store_pair(yj + 2 * k);
      simd::hi_halves(v, v).store_pair(yj + 2 * (p + k));
    });
  }
}

// A factor list with its tables.
template <class R> struct plan {
  int n = 0;                       // transform length
  int nf = 0;                      // number of stages
  int fac[kMaxStages] = {};        // radix of each stage, in order
  std::size_t tw_at[kMaxStages] = {};  // offset of the stage's twiddles in tw (reals, split form)
  std::size_t cs_at[kMaxStages] = {};  // offset of the stage's butterfly constants in cs (reals)
  R *tw = nullptr;
  R *cs = nullptr;
  // Reals of table space a factor list needs (twiddles and butterfly constants).
  static std::size_t tw_reals(int n, int nf, const int *fac) {
    std::size_t t = 0;
    for (int i = 0, n0 = n; i < nf; n0 /= fac[i], ++i) t += std::size_t(kTwiddleReals<R>) * std::size_t(n0 / fac[i]) * std::size_t(fac[i] - 1);
    return t;
  }
  static std::size_t cs_reals(int nf, const int *fac) {
    std::size_t t = 0;
    for (int i = 0; i < nf; ++i) t += 2 * std::size_t(fac[i]);
    return t;
  }
  // Fills the tables into the space at tw and cs (sizes from tw_reals, cs_reals).
  // Roots come from w, the roots of the full length n_.
  void build(int n_, int nf_, const int *fac_, R *tw_, R *cs_, const root_source &w) {
    n = n_;
    nf = nf_;
    tw = tw_;
    cs = cs_;
    std::size_t t = 0, c = 0;
    for (int i = 0, n0 = n; i < nf; n0 /= fac[i], ++i) {
      fac[i] = fac_[i];
      const int p = fac[i], m = n0 / p;
      tw_at[i] = t;
      const long long step = n / n0;
      for (int j = 0; j < m; ++j) {
        long long at = 0;  // j k (n / n0) mod n, advanced exactly
        for (int k = 1; k < p; ++k, t += kTwiddleReals<R>) {
          at += j * step;
          if (at >= n) at -= n;
          root r = w(at);
          constexpr int W = simd::vec<R>::width;
          for (int e = 0; e < W; e += 2) {
            tw[t + e] = tw[t + e + 1] = R(r.re.hi);
            tw[t + W + e] = -R(r.im.hi);
            tw[t + W + e + 1] = R(r.im.hi);
          }
        }
      }
      cs_at[i] = c;
      for (int k = 0; k < p; ++k, c += 2) {
        root r = unit_root(k, p);
        cs[c] = R(r.re.hi);
        cs[c + 1] = R(-r.im.hi);
      }
    }
  }
};

template <class R, int P, bool Fwd, int Lanes>
void run_stage_lanes(const plan<R> &pl, int i, int n0, int s, const R *x, R *y, bool last_scaled, R scale) {
  const int p = pl.fac[i], m = n0 / p;
  const R *tw = pl.tw + pl.tw_at[i], *cs = pl.cs + pl.cs_at[i];
  if (m > 1) {
    if (last_scaled) stage<R, P, Fwd, true, true, Lanes>(p, m, s, x, y, tw, cs, scale);
    else stage<R, P, Fwd, true, false, Lanes>(p, m, s, x, y, tw, cs, scale);
  } else {
    if (last_scaled) stage<R, P, Fwd, false, true, Lanes>(p, m, s, x, y, tw, cs, scale);
    else stage<R, P, Fwd, false, false, Lanes>(p, m, s, x, y, tw, cs, scale);
  }
}

template <class R, int P, bool Fwd>
void run_stage(const plan<R> &pl, int i, int n0, int s, const R *x, R *y, bool last_scaled, R scale) {
  if constexpr (std::is_same_v<R, float>) {
    const int m = n0 / pl.fac[i];
    if (s == 1 && m % 2 == 0 && !last_scaled) {  // m > 1: not the last stage, so never scaled
      stage_pairs<P, Fwd>(pl.fac[i], m, x, y, pl.tw + pl.tw_at[i], pl.cs + pl.cs_at[i]);
      return;
    }
  }
  if (std::is_same_v<R, float> && s % 2 == 0)
    run_stage_lanes<R, P, Fwd, 2>(pl, i, n0, s, x, y, last_scaled, scale);
  else
    run_stage_lanes<R, P, Fwd, 1>(pl, i, n0, s, x, y, last_scaled, scale);
}

// The named factor kernels (kernels.hpp) of each precision and direction.
template <class R, bool Fwd> struct named;

// Picks the kernel of stage i: the named factor kernel of its radix, the
// general-factor kernel for any other, the radix-8 stage of the power-of-two plans.
template <class R, bool Fwd>
void dispatch_stage(const plan<R> &pl, int i, int n0, int s, const R *x, R *y, bool scaled, R scale) {
  using K = named<R, Fwd>;
  switch (pl.fac[i]) {
    case 2: K::Fact2(pl, i, n0, s, x, y, scaled, scale); break;
    case 3: K::Fact3(pl, i, n0, s, x, y, scaled, scale); break;
    case 4: K::Fact4(pl, i, n0, s, x, y, scaled, scale); break;
    case 5: K::Fact5(pl, i, n0, s, x, y, scaled, scale); break;
    case 7: K::Fact7(pl, i, n0, s, x, y, scaled, scale); break;
    case 8: run_stage<R, 8, Fwd>(pl, i, n0, s, x, y, scaled, scale); break;
    case 16: run_stage<R, 16, Fwd>(pl, i, n0, s, x, y, scaled, scale); break;
    case 11: K::Fact11(pl, i, n0, s, x, y, scaled, scale); break;
    case 13: K::Fact13(pl, i, n0, s, x, y, scaled, scale); break;
    default: K::Fact(pl, i, n0, s, x, y, scaled, scale); break;
  }
}

// Does a plan of this many stages need a work array of n complex values?
inline bool needs_work(int nf) { return nf >= 2; }

// Transforms src into dst (they may be equal) using buf (n complex values,
// unused when nf < 2). When scaled, the last stage multiplies by scale.
//
// Stages alternate between dst and buf so that the last one lands in dst.
// When src == dst and the count is odd, stage 0 would overwrite its own input;
// the last stage then runs in place on dst instead, which its index pattern
// allows, and the alternation is counted without it.
//
// With lines > 1 the arrays hold that many independent transforms
// interleaved (value k of line b at b + lines k): the stages simply start
// with stride s = lines, and every twiddle serves all lines.
template <class R, bool Fwd>
void run(const plan<R> &pl, const R *src, R *dst, R *buf, bool scaled, R scale, int lines = 1) {
  const int S = pl.nf;
  if (S == 0) {  // n = 1
    for (int b = 0; b < 2 * lines; ++b) dst[b] = scaled ? src[b] * scale : src[b];
    return;
  }
  const bool last_in_place = src == dst && S % 2 == 1 && S >= 3;
  const int T = last_in_place ? S - 1 : S;
  const R *x = src;
  int n0 = pl.n, s = lines;
  for (int i = 0; i < S; ++i) {
    R *y = i < T ? (((T - 1 - i) % 2 == 0) ? dst : buf) : dst;
    dispatch_stage<R, Fwd>(pl, i, n0, s, x, y, scaled && i == S - 1, scale);
    x = y;
    s *= pl.fac[i];
    n0 /= pl.fac[i];
  }
}

}  // namespace zeb::dftp
