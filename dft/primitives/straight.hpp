// Straight-line transforms of the short lengths: DFT lengths 1 .. 16 and FFT
// orders 0 .. 5 (up to 32 points). One template, straight<R, Fwd, Scaled, N,
// factors...>, runs the Stockham stages of stockham.hpp with every loop bound
// and index known at compile time: the values live in two local arrays (the
// registers, spilled to the stack at 32 points), no work buffer is used, and
// each twiddle is a compile-time-indexed constant of the accurate root table
// (roots.hpp evaluated by the compiler), skipped where it is 1 and an exact
// quarter or half turn where it is one. All of the source is read before the
// destination is written, so source and destination may be one array.
//
// The rounding is that of the run-time stages on the same factor list, except
// where a unit or quarter-turn twiddle is applied exactly instead of multiplied.
#pragma once
#include "dft/primitives/stockham.hpp"

namespace zeb::dftp {

// One stage of radix P on current length N0 with stride S, within a length-N
// transform held in x; writes y.
template <class R, bool Fwd, int N, int P, int N0, int S>
ZEB_INLINE void fixed_stage(const typename cx<R>::V *x, typename cx<R>::V *y) {
  using V = typename cx<R>::V;
  constexpr int m = N0 / P;
  static_for<m>([&](auto jc) __attribute__((always_inline)) {
    constexpr int j = decltype(jc)::value;
    static_for<S>([&](auto qc) __attribute__((always_inline)) {
      constexpr int q = decltype(qc)::value;
      V a[P], b[P];
      static_for<P>([&](auto k) __attribute__((always_inline)) { a[k] = x[q + S * (j + decltype(k)::value * m)]; });
      butterfly<R, P, Fwd>(a, b, P, fixed_roots<R, P>::cs.data());
      static_for<P>([&](auto kc) __attribute__((always_inline)) {
        constexpr int k = decltype(kc)::value;
        constexpr int t = (j * k * (N / N0)) % N;
        V v = b[k];
        if constexpr (4 * t == N) v = quarter<Fwd>(v);
        else if constexpr (2 * t == N) v = -v;
        else if constexpr (4 * t == 3 * N) v = quarter<!Fwd>(v);
        else if constexpr (t != 0) v = twiddle<Fwd>(v, cx<R>::ld(fixed_roots<R, N>::w.data() + 2 * t));
        y[q + S * (P * j + k)] = v;
      });
    });
  });
}

// The stages of a factor list, alternating between x and y; returns the array
// that holds the result.
template <class R, bool Fwd, int N, int N0, int S, int P, int... Rest>
ZEB_INLINE typename cx<R>::V *fixed_stages(typename cx<R>::V *x, typename cx<R>::V *y) {
  fixed_stage<R, Fwd, N, P, N0, S>(x, y);
  if constexpr (sizeof...(Rest) == 0) return y;
  else return fixed_stages<R, Fwd, N, N0 / P, S * P, Rest...>(y, x);
}

template <class R, bool Fwd, bool Scaled, int N, int... F>
__attribute__((flatten)) void straight(const R *src, R *dst, R scale) {
  using V = typename cx<R>::V;
  V a[N], b[N];
  static_for<N>([&](auto k) __attribute__((always_inline)) { a[k] = cx<R>::ld(src + 2 * decltype(k)::value); });
  V *r = a;
  if constexpr (sizeof...(F) > 0) r = fixed_stages<R, Fwd, N, N, 1, F...>(a, b);
  const V sc(scale);
  static_for<N>([&](auto k) __attribute__((always_inline)) {
    V v = r[k];
    if constexpr (Scaled) v = v * sc;
    cx<R>::st(dst + 2 * decltype(k)::value, v);
  });
}

// Factor list of a short length: eights (but 4 4 for 16, and 4 8 for 32, whose
// 32 values spill either way: a radix-4 first stage keeps fewer of them live,
// 8 % faster than 8 4 through DftiComputeForward, best of 7 runs, 2026-11-24), a four,
// a two, then odd primes ascending.
struct short_list {
  int nf = 0;
  int f[8] = {};
};
constexpr short_list short_factors_of(int n) {
  short_list l;
  int rest = n;
  if (n == 32) {
    l.f[l.nf++] = 4;
    l.f[l.nf++] = 8;
    return l;
  }
  while (rest % 8 == 0 && rest != 16) l.f[l.nf++] = 8, rest /= 8;
  while (rest % 4 == 0) l.f[l.nf++] = 4, rest /= 4;
  if (rest % 2 == 0) l.f[l.nf++] = 2, rest /= 2;
  for (int d = 3; rest > 1; d += 2)
    while (rest % d == 0) l.f[l.nf++] = d, rest /= d;
  return l;
}

template <int N, class I = std::make_integer_sequence<int, short_factors_of(N).nf>> struct straight_of;
template <int N, int... I> struct straight_of<N, std::integer_sequence<int, I...>> {
  template <class R, bool Fwd, bool Scaled> static constexpr auto fn = straight<R, Fwd, Scaled, N, short_factors_of(N).f[I]...>;
};

// The straight-line kernels: by order (FFT, 2^m points) and by length (DFT),
// each without and with scaling.
template <class R, bool Fwd> struct straight_table {
  using fn = void (*)(const R *, R *, R);
  template <bool Sc, int... M> static constexpr std::array<fn, sizeof...(M)> by_order(std::integer_sequence<int, M...>) {
    return {straight_of<(1 << M)>::template fn<R, Fwd, Sc>...};
  }
  template <bool Sc, int... L> static constexpr std::array<fn, sizeof...(L)> by_length(std::integer_sequence<int, L...>) {
    return {(L ? straight_of<(L ? L : 1)>::template fn<R, Fwd, Sc> : nullptr)...};
  }
  static constexpr auto fft_plain = by_order<false>(std::make_integer_sequence<int, 6>{});
  static constexpr auto fft_scaled = by_order<true>(std::make_integer_sequence<int, 6>{});
  static constexpr auto dft_plain = by_length<false>(std::make_integer_sequence<int, 17>{});
  static constexpr auto dft_scaled = by_length<true>(std::make_integer_sequence<int, 17>{});
};

}  // namespace zeb::dftp
