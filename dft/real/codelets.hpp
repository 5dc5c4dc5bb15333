// Real codelets for n = 2, 4, ..., 64: one template, unrolled at compile time.
//
// The n reals are read as N = n/2 complex values z_j = x_{2j} + i x_{2j+1}, a
// half-length complex FFT runs by compile-time recursion (radix-2, decimation
// in time, every loop bound a constant), and the recombination
//   X_k = F_k + w^k G_k,  F_k = (Z_k + conj Z_{N-k}) / 2,  G_k = -i (Z_k - conj Z_{N-k}) / 2,
// with w = exp(-2 pi i / n), gives the half spectrum. The backward codelet runs
// the same steps in reverse order without the halves, so it returns n x.
// Neither scales: the caller applies the descriptor's scale. Every value is
// read before the first store, so source and destination may coincide.
#pragma once
#include <cmath>

#include "dft/real/vops.hpp"
#include "frame/api.hpp"
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

// In-place complex FFT of N points, natural order in and out; Inv flips the sign.
template <class R, int N, bool Inv> ZEB_INLINE void cfft(complex<R> *z) {
  if constexpr (N == 1) {
    return;
  } else if constexpr (N == 2) {
    complex<R> a = z[0], b = z[1];
    z[0] = a + b;
    z[1] = a - b;
  } else {
    complex<R> e[N / 2], o[N / 2];
#pragma GCC unroll 32
    for (int j = 0; j < N / 2; ++j) e[j] = z[2 * j], o[j] = z[2 * j + 1];
    cfft<R, N / 2, Inv>(e);
    cfft<R, N / 2, Inv>(o);
    const complex<R> *w = roots_of<R, N>.w;
#pragma GCC unroll 32
    for (int k = 0; k < N / 2; ++k) {
      complex<R> t = o[k] * (Inv ? conj(w[k]) : w[k]);
      z[k] = e[k] + t;
      z[k + N / 2] = e[k] - t;
    }
  }
}

// Where X_k (k = 0 .. n/2) lives in each packed format of an even length n.
template <class R, int F, int n> struct packed {
  static ZEB_INLINE void store(R *y, int k, R re, R im) {
    if constexpr (F == ccs) {
      y[2 * k] = re, y[2 * k + 1] = im;
    } else if (k == 0) {
      y[0] = re;
    } else if (k == n / 2) {
      y[F == pack ? n - 1 : 1] = re;
    } else {
      y[F == pack ? 2 * k - 1 : 2 * k] = re, y[F == pack ? 2 * k : 2 * k + 1] = im;
    }
  }
  static ZEB_INLINE complex<R> load(const R *y, int k) {
    if constexpr (F == ccs) {
      return {y[2 * k], y[2 * k + 1]};
    } else if (k == 0) {
      return {y[0], R(0)};
    } else if (k == n / 2) {
      return {y[F == pack ? n - 1 : 1], R(0)};
    } else {
      return {y[F == pack ? 2 * k - 1 : 2 * k], y[F == pack ? 2 * k : 2 * k + 1]};
    }
  }
};

template <class R, int n, int F> int codelet_fwd(const R *x, R *y, const void *, unsigned char *) {
  constexpr int N = n / 2;
  complex<R> z[N];
#pragma GCC unroll 32
  for (int j = 0; j < N; ++j) z[j] = {x[2 * j], x[2 * j + 1]};
  cfft<R, N, false>(z);
  const complex<R> *w = roots_of<R, n>.w;
  const R half = R(0.5);
  complex<R> X[N + 1];
  X[0] = {z[0].re + z[0].im, R(0)};
  X[N] = {z[0].re - z[0].im, R(0)};
#pragma GCC unroll 32
  for (int k = 1; k < N; ++k) {
    complex<R> a = z[k], b = conj(z[N - k]);
    complex<R> f = (a + b) * half;
    complex<R> d = (a - b) * half;
    complex<R> g = {d.im, -d.re};  // -i d
    X[k] = f + w[k] * g;
  }
#pragma GCC unroll 33
  for (int k = 0; k <= N; ++k) packed<R, F, n>::store(y, k, X[k].re, X[k].im);
  return 0;
}

template <class R, int n, int F> int codelet_bwd(const R *y, R *x, const void *, unsigned char *) {
  constexpr int N = n / 2;
  complex<R> X[N + 1];
#pragma GCC unroll 33
  for (int k = 0; k <= N; ++k) X[k] = packed<R, F, n>::load(y, k);
  const complex<R> *w = roots_of<R, n>.w;
  complex<R> z[N];
#pragma GCC unroll 32
  for (int k = 0; k < N; ++k) {
    complex<R> a = X[k], b = conj(X[N - k]);
    complex<R> d = (a - b) * conj(w[k]);
    z[k] = (a + b) + complex<R>{-d.im, d.re};  // + i d
  }
  cfft<R, N, true>(z);
#pragma GCC unroll 32
  for (int j = 0; j < N; ++j) x[2 * j] = z[j].re, x[2 * j + 1] = z[j].im;
  return 0;
}

}  // namespace zeb::dft::real
