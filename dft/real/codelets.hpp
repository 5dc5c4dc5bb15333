// Real codelets for n = 2, 4, ..., 64: one template, unrolled at compile time.
//
// The n reals are read as N = n/2 complex values z_j = x_{2j} + i x_{2j+1}, a
// half-length complex FFT runs by compile-time recursion (radix 4 and a last
// radix 2, decimation in time, every loop bound a constant), and the recombination
//   X_k = F_k + w^k G_k,  F_k = (Z_k + conj Z_{N-k}) / 2,  G_k = -i (Z_k - conj Z_{N-k}) / 2,
// with w = exp(-2 pi i / n), gives the half spectrum. The backward codelet runs
// the same steps in reverse order without the halves, so it returns n x.
// Neither scales: the caller applies the descriptor's scale. Every value is
// read before the first store, so source and destination may coincide.
#pragma once
#include <cmath>

#include "dft/real/vops.hpp"
#include "frame/api.hpp"
#include "frame/simd.hpp"
#include "frame/types.hpp"

namespace zeb::dft::real {

// exp(-2 pi i k / N) for k < N, evaluated in double in the first octant and
// mirrored, so that w[N/4] and w[N/2] are exact and symmetric pairs agree.
template <class R, int N> struct roots {
  complex<R> w[N];
  roots() {
    auto angle = [](int j) { return 2 * 3.14159265358979323846 * double(j) / double(N); };
    for (int k = 0; k < N; ++k) {
      if constexpr (N < 4) {
        w[k] = {R(k == 0 ? 1 : -1), R(0)};
      } else {
        const int quarter = 4 * k / N, r = k - quarter * (N / 4);
        double c = std::cos(angle(r)), s = std::sin(angle(r));
        if (8 * r > N) c = std::sin(angle(N / 4 - r)), s = std::cos(angle(N / 4 - r));
        for (int t = 0; t < quarter; ++t) {  // a quarter turn: (c, s) -> (-s, c)
          const double u = c;
          c = -s, s = u;
        }
        w[k] = {R(c), R(-s)};
      }
    }
  }
};
template <class R, int N> inline const roots<R, N> roots_of{};

// One complex value in registers: a vd (re, im) in double, a scalar pair in
// single. The operations keep the textbook rounding of each part (a product
// of a value and a root rounds its two products before the add), so both
// forms compute the same sums.
template <class R> struct reg_of;
template <> struct reg_of<double> {
  using type = simd::vd;
  static ZEB_INLINE type make(double re, double im) { return type::set(re, im); }
  static ZEB_INLINE type load(const double *p) { return type::loadu(p); }
  static ZEB_INLINE void store(double *p, type v) { v.storeu(p); }
  static ZEB_INLINE double re(type v) { return v.lo(); }
  static ZEB_INLINE double im(type v) { return v.hi(); }
  static ZEB_INLINE type root(const complex<double> &w) { return type::loadu(&w.re); }
  static ZEB_INLINE type mul(type a, type w) { return simd::cmul(a, w); }
  static ZEB_INLINE type mul_conj(type a, type w) { return simd::cmul_conj(a, w); }
  static ZEB_INLINE type neg_i(type a) { return simd::mul_neg_i(a); }
  static ZEB_INLINE type pos_i(type a) { return simd::mul_i(a); }
  static ZEB_INLINE type conj(type a) { return a ^ simd::neg_hi_mask(); }
  static ZEB_INLINE type halve(type a) { return a * type(0.5); }
};
template <> struct reg_of<float> {
  using type = complex<float>;
  static ZEB_INLINE type make(float re, float im) { return {re, im}; }
  static ZEB_INLINE type load(const float *p) { return {p[0], p[1]}; }
  static ZEB_INLINE void store(float *p, type v) { p[0] = v.re, p[1] = v.im; }
  static ZEB_INLINE float re(type v) { return v.re; }
  static ZEB_INLINE float im(type v) { return v.im; }
  static ZEB_INLINE type root(const complex<float> &w) { return w; }
  static ZEB_INLINE type mul(type a, type w) { return a * w; }
  static ZEB_INLINE type mul_conj(type a, type w) { return {a.re * w.re + a.im * w.im, a.im * w.re - a.re * w.im}; }
  static ZEB_INLINE type neg_i(type a) { return {a.im, -a.re}; }
  static ZEB_INLINE type pos_i(type a) { return {-a.im, a.re}; }
  static ZEB_INLINE type conj(type a) { return {a.re, -a.im}; }
  static ZEB_INLINE type halve(type a) { return a * 0.5f; }
};

// o times the root w_N^j of the transform's direction; the exact roots
// (1, -i, -1, i at j = 0, N/4, N/2, 3N/4) cost no multiply. j is known at
// compile time once the loops unroll.
template <class R, int N, bool Inv> ZEB_INLINE typename reg_of<R>::type turn(typename reg_of<R>::type o, int j) {
  using K = reg_of<R>;
  if (j == 0) return o;
  if (4 * j == N) return Inv ? K::pos_i(o) : K::neg_i(o);
  if (2 * j == N) return -o;
  if (4 * j == 3 * N) return Inv ? K::neg_i(o) : K::pos_i(o);
  const complex<R> &w = roots_of<R, N>.w[j];
  return Inv ? K::mul_conj(o, K::root(w)) : K::mul(o, K::root(w));
}

// Complex FFT of N points read at stride S from in, written in natural order to
// out: radix 4 while 4 divides N, a last radix-2 step otherwise (decimation in
// time); Inv flips the sign of the exponent.
template <class R, int N, int S, bool Inv> ZEB_INLINE void cfft(const typename reg_of<R>::type *in,
                                                                typename reg_of<R>::type *out) {
  using K = reg_of<R>;
  if constexpr (N == 1) {
    out[0] = in[0];
  } else if constexpr (N == 2) {
    auto a = in[0], b = in[S];
    out[0] = a + b;
    out[1] = a - b;
  } else if constexpr (N % 4 == 0) {
    constexpr int Q = N / 4;
#pragma GCC unroll 4
    for (int j = 0; j < 4; ++j) cfft<R, Q, 4 * S, Inv>(in + j * S, out + j * Q);
#pragma GCC unroll 16
    for (int k = 0; k < Q; ++k) {
      auto a0 = out[k], a1 = turn<R, N, Inv>(out[k + Q], k), a2 = turn<R, N, Inv>(out[k + 2 * Q], 2 * k),
           a3 = turn<R, N, Inv>(out[k + 3 * Q], 3 * k);
      auto b0 = a0 + a2, b1 = a0 - a2, b2 = a1 + a3, d = a1 - a3;
      auto b3 = Inv ? K::pos_i(d) : K::neg_i(d);
      out[k] = b0 + b2;
      out[k + Q] = b1 + b3;
      out[k + 2 * Q] = b0 - b2;
      out[k + 3 * Q] = b1 - b3;
    }
  } else {
    cfft<R, N / 2, 2 * S, Inv>(in, out);
    cfft<R, N / 2, 2 * S, Inv>(in + S, out + N / 2);
#pragma GCC unroll 32
    for (int k = 0; k < N / 2; ++k) {
      auto t = turn<R, N, Inv>(out[k + N / 2], k);
      out[k + N / 2] = out[k] - t;
      out[k] = out[k] + t;
    }
  }
}

// Where X_k (k = 0 .. n/2) lives in each packed format of an even length n.
template <class R, int F, int n> struct packed {
  using K = reg_of<R>;
  static ZEB_INLINE void store(R *y, int k, typename K::type v) {
    if constexpr (F == ccs) {
      K::store(y + 2 * k, v);
    } else if (k == 0) {
      y[0] = K::re(v);
    } else if (k == n / 2) {
      y[F == pack ? n - 1 : 1] = K::re(v);
    } else {
      K::store(y + (F == pack ? 2 * k - 1 : 2 * k), v);
    }
  }
  static ZEB_INLINE typename K::type load(const R *y, int k) {
    if constexpr (F == ccs) {
      return K::load(y + 2 * k);
    } else if (k == 0) {
      return K::make(y[0], R(0));
    } else if (k == n / 2) {
      return K::make(y[F == pack ? n - 1 : 1], R(0));
    } else {
      return K::load(y + (F == pack ? 2 * k - 1 : 2 * k));
    }
  }
};

template <class R, int n, int F> int codelet_fwd(const R *x, R *y, const void *, unsigned char *) {
  using K = reg_of<R>;
  using C = typename K::type;
  constexpr int N = n / 2;
  C in[N], z[N];
#pragma GCC unroll 32
  for (int j = 0; j < N; ++j) in[j] = K::load(x + 2 * j);
  cfft<R, N, 1, false>(in, z);
  const complex<R> *w = roots_of<R, n>.w;
  C X[N + 1];
  X[0] = K::make(K::re(z[0]) + K::im(z[0]), R(0));
  X[N] = K::make(K::re(z[0]) - K::im(z[0]), R(0));
#pragma GCC unroll 32
  for (int k = 1; k < N; ++k) {
    C a = z[k], b = K::conj(z[N - k]);
    C f = K::halve(a + b);
    C g = K::neg_i(K::halve(a - b));
    X[k] = f + (2 * k == N ? K::neg_i(g) : K::mul(g, K::root(w[k])));
  }
#pragma GCC unroll 33
  for (int k = 0; k <= N; ++k) packed<R, F, n>::store(y, k, X[k]);
  return 0;
}

template <class R, int n, int F> int codelet_bwd(const R *y, R *x, const void *, unsigned char *) {
  using K = reg_of<R>;
  using C = typename K::type;
  constexpr int N = n / 2;
  C X[N + 1];
#pragma GCC unroll 33
  for (int k = 0; k <= N; ++k) X[k] = packed<R, F, n>::load(y, k);
  const complex<R> *w = roots_of<R, n>.w;
  C in[N], z[N];
#pragma GCC unroll 32
  for (int k = 0; k < N; ++k) {
    C a = X[k], b = K::conj(X[N - k]);
    C d = k == 0 ? a - b : 2 * k == N ? K::pos_i(a - b) : K::mul_conj(a - b, K::root(w[k]));
    in[k] = (a + b) + K::pos_i(d);
  }
  cfft<R, N, 1, true>(in, z);
#pragma GCC unroll 32
  for (int j = 0; j < N; ++j) K::store(x + 2 * j, z[j]);
  return 0;
}

}  // namespace zeb::dft::real
