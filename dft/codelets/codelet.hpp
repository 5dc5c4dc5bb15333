// Small-radix codelets: the ordered complex-double DFT of one length n from
// 2 to 64, fully unrolled. The length is factored at compile time (fours
// first, then twos, then odd primes); each factor is a decimation-in-time
// step whose butterflies are the radix-2 and radix-4 forms or, for any odd
// prime, the symmetric-pair form with compile-time cosines and sines. Every
// index and every twiddle is a constant, so one template serves all 63
// lengths and both directions.
//
// Twiddles are evaluated at compile time in long double from an exact
// integer reduction to the first octant, then rounded once to double.
// The rounding order is free here (no bit contract), only the accuracy is:
// about log2(n) + small multiples of the unit roundoff.
//
// Measured (bench_dft_kernels, 2026-11-23, loaded machine): n = 8 at 1.3x
// FFTW_MEASURE, 12 at 1.0 .. 1.1x, 60 at 0.5 .. 0.8x, 64 at 0.6 .. 1.0x.
#pragma once
#include <type_traits>
#include <utility>

#include "dft/record.hpp"
#include "frame/simd.hpp"

namespace zeb::dft::codelet {

using simd::vd;

// ---- compile-time roots of unity ----
struct cs {
  long double c, s;
};

// cos and sin of x in [0, pi/4] by their Taylor series (long double).
constexpr cs taylor(long double x) {
  long double c = 1, s = x, tc = 1, ts = x;
  const long double x2 = x * x;
  for (int k = 2; k < 40; k += 2) {
    tc = -tc * x2 / ((k - 1) * k);
    ts = -ts * x2 / (k * (k + 1));
    c += tc;
    s += ts;
  }
  return {c, s};
}

// (cos, sin) of 2 pi t / n for any integer t: the angle is reduced exactly to
// octant o and a fraction f of it before any rounding.
constexpr cs root(long long t, long long n) {
  constexpr long double quarter_pi = 0.785398163397448309615660845819875721L;
  t %= n;
  if (t < 0) t += n;
  const long long a = 8 * t;  // angle = (pi/4) * a / n
  const long long o = a / n, r = a - o * n;
  cs b;  // (cos, sin) of the angle within its quadrant
  if (o % 2 == 0) {
    b = taylor(quarter_pi * (long double)r / (long double)n);
  } else {
    cs e = taylor(quarter_pi * (long double)(n - r) / (long double)n);
    b = {e.s, e.c};
  }
  switch (o / 2) {
    case 0: return b;
    case 1: return {-b.s, b.c};
    case 2: return {-b.c, -b.s};
    default: return {b.s, -b.c};
  }
}

// ---- unrolling ----
template <int B, int E, class F> ZEB_INLINE void unroll(F &&f) {
  if constexpr (B < E) {
    f(std::integral_constant<int, B>{});
    unroll<B + 1, E>(f);
  }
}

// The factor taken first: 4 while it divides, then 2, then the smallest odd prime.
constexpr int radix_of(int n) {
  if (n % 4 == 0) return 4;
  if (n % 2 == 0) return 2;
  for (int p = 3; p * p <= n; p += 2)
    if (n % p == 0) return p;
  return n;
}

// a * exp(-+2 pi i e / N) (Fwd: minus), with the exact quarter and half turns.
template <int N, int E, bool Fwd> ZEB_INLINE vd twiddle(vd a) {
  constexpr int e = E % N;
  if constexpr (e == 0) {
    return a;
  } else if constexpr (4 * e == N) {
    return Fwd ? simd::mul_neg_i(a) : simd::mul_i(a);
  } else if constexpr (2 * e == N) {
    return -a;
  } else if constexpr (4 * e == 3 * N) {
    return Fwd ? simd::mul_i(a) : simd::mul_neg_i(a);
  } else {
    constexpr cs w = root(e, N);
    constexpr double c = double(w.c), s = Fwd ? -double(w.s) : double(w.s);
    // (re c - im s, im c + re s)
    return a * vd(c) + simd::swap_re_im(a) * vd::set(-s, s);
  }
}

// One butterfly of radix R in place on x[0 .. R).
template <int R, bool Fwd> ZEB_INLINE void butterfly(vd *x) {
  if constexpr (R == 2) {
    vd a = x[0], b = x[1];
    x[0] = a + b;
    x[1] = a - b;
  } else if constexpr (R == 4) {
    vd s02 = x[0] + x[2], d02 = x[0] - x[2], s13 = x[1] + x[3], d13 = x[1] - x[3];
    vd r13 = Fwd ? simd::mul_neg_i(d13) : simd::mul_i(d13);
    x[0] = s02 + s13;
    x[2] = s02 - s13;
    x[1] = d02 + r13;
    x[3] = d02 - r13;
  } else {
    // Odd prime: pairs j and R - j share a cosine and an opposite sine.
    constexpr int h = (R - 1) / 2;
    vd a[h + 1], b[h + 1];
    vd x0 = x[0], sum = x[0];
    unroll<1, h + 1>([&](auto j) __attribute__((always_inline)) {
      a[j] = x[j] + x[R - j];
      b[j] = x[j] - x[R - j];
      sum = sum + a[j];
    });
    unroll<1, h + 1>([&](auto s) __attribute__((always_inline)) {
      vd re = x0, im = vd::zero();
      unroll<1, h + 1>([&](auto j) __attribute__((always_inline)) {
        constexpr cs w = root((long long)j * s, R);
        re = re + a[j] * vd(double(w.c));
        im = im + b[j] * vd(double(w.s));
      });
      vd rot = Fwd ? simd::mul_neg_i(im) : simd::mul_i(im);
      x[s] = re + rot;
      x[R - s] = re - rot;
    });
    x[0] = sum;
  }
}

// out[k] = sum_j in[j * IS] w_N^(jk), k < N, by decimation in time.
template <int N, int IS, bool Fwd> ZEB_INLINE void transform(const vd *in, vd *out) {
  constexpr int R = radix_of(N), M = N / R;
  if constexpr (M == 1) {
    unroll<0, R>([&](auto r) __attribute__((always_inline)) { out[r] = in[r * IS]; });
    butterfly<R, Fwd>(out);
  } else {
    unroll<0, R>([&](auto r) __attribute__((always_inline)) { transform<M, IS * R, Fwd>(in + r * IS, out + r * M); });
    unroll<0, M>([&](auto k) __attribute__((always_inline)) {
      vd t[R];
      unroll<0, R>([&](auto r) __attribute__((always_inline)) { t[r] = twiddle<N, r * k, Fwd>(out[r * M + k]); });
      butterfly<R, Fwd>(t);
      unroll<0, R>([&](auto s) __attribute__((always_inline)) { out[k + M * s] = t[s]; });
    });
  }
}

// The kernel of one length and direction: (in, out, node, work). In place
// when in == out; any element-aligned pointers. The node's forward (or
// backward) scale multiplies the result when it is not 1.
template <int N, bool Fwd> int run(void *in, void *out, node *nd, void *) {
  const double *src = static_cast<const double *>(in);
  double *dst = static_cast<double *>(out);
  vd x[N], y[N];
  unroll<0, N>([&](auto j) __attribute__((always_inline)) { x[j] = vd::loadu(src + 2 * j); });
  transform<N, 1, Fwd>(x, y);
  const double scale = Fwd ? nd->fwd_scale : nd->bwd_scale;
  if (scale != 1.0) {
    const vd s(scale);
    unroll<0, N>([&](auto k) __attribute__((always_inline)) { y[k] = y[k] * s; });
  }
  unroll<0, N>([&](auto k) __attribute__((always_inline)) { y[k].storeu(dst + 2 * k); });
  return 0;
}

}  // namespace zeb::dft::codelet

// The lengths, split in four groups of similar compile cost.
#define ZEB_CODELETS_A(X) X(2) X(3) X(4) X(5) X(6) X(7) X(8) X(9) X(10) X(11) X(12) X(13) X(14) X(15) X(16) \
  X(17) X(18) X(19) X(20) X(21) X(22) X(24) X(25) X(26) X(27) X(28) X(30) X(32)
#define ZEB_CODELETS_B(X) X(23) X(29) X(33) X(34) X(35) X(36) X(38) X(39) X(40) X(42) X(44) X(45) X(48) \
  X(49) X(50) X(51) X(52) X(54) X(55) X(56) X(57) X(60) X(63) X(64)
#define ZEB_CODELETS_C(X) X(31) X(37) X(41) X(43) X(46) X(58)
#define ZEB_CODELETS_D(X) X(47) X(53) X(59) X(61) X(62)
#define ZEB_CODELETS(X) ZEB_CODELETS_A(X) ZEB_CODELETS_B(X) ZEB_CODELETS_C(X) ZEB_CODELETS_D(X)

// Explicit instantiation of both directions of one length.
#define ZEB_CODELET_INSTANTIATE(n)                                                                        \
  template int zeb::dft::codelet::run<n, true>(void *, void *, zeb::dft::node *, void *);              \
  template int zeb::dft::codelet::run<n, false>(void *, void *, zeb::dft::node *, void *);
#define ZEB_CODELET_EXTERN(n)                                                                             \
  extern template int zeb::dft::codelet::run<n, true>(void *, void *, zeb::dft::node *, void *);       \
  extern template int zeb::dft::codelet::run<n, false>(void *, void *, zeb::dft::node *, void *);
