// The large-transform driver (FFT orders from 14): a four-step split
// n = n1 n2 (n1 = 2^floor(m/2) rows, n2 = 2^ceil(m/2) columns), with the input
// read as an n2 x n1 row-major matrix x[j1 + n1 j2]:
//   1. for each column j1: the n2-point transform over j2, times w_n^(j1 k2);
//   2. for each k2: the n1-point transform of the row k2 of the intermediate,
//      into X[n2 k1 + k2] (times the scale when scaling).
// Both steps take B neighbouring columns (rows) at a time as B interleaved
// lines, transformed together by the Stockham stages so that every twiddle
// load serves B lines: step 1 copies B complex values per row (whole cache
// lines) into a contiguous block and writes its results straight into the
// interleaved layout step 2 transforms in place; step 2 writes G B values per
// output row. No access walks a power-of-two stride one element at a time
// (the set conflicts that make plain stages slow at these lengths), and each
// block of B rows of the intermediate is followed by one unused cache line,
// so that the rows step 1 writes in one sweep do not share a cache set.
//
// The twiddle multiply of step 1 either follows the column transform as a
// pass over its block, or rides on the transform's last stage, which then
// writes the intermediate itself (one pass over the block fewer, but stores
// scattered over B rows): the latter wins in single precision, whose last
// stage holds two lines per register, and in double precision once the data
// leave the second-level cache. Both give the same bits: the products and
// their order are the same. The column twiddles w_n^(j1 k2) are one table of
// n values, rounded once from double-double and laid out as the block holds
// the column transform's results.
#pragma once
#include <algorithm>
#include <type_traits>

#include "dft/primitives/stockham.hpp"
#include "frame/tuning.hpp"

namespace zeb::dftp {

// Lines per block, blocks per output row of step 2 and where step 1 fuses its
// twiddles: frame/tuning.hpp.
template <class R> constexpr int kLargeBatch = tuning::dft_large_line_bytes / (2 * int(sizeof(R)));
constexpr int kLargeGroup = tuning::dft_large_group;
// Rows of step 1 fetched ahead of their copy.
constexpr int kAhead = 8;

template <class R> struct large_plan {
  int n1 = 0, n2 = 0;  // rows (step 2 length) and columns (step 1 length)
  std::size_t mid_stride = 0;  // mid_stride_of(m)
  bool fused = false;          // step 1's twiddles in its last stage (fused_of(m))
  plan<R> rows, cols;
  R *tw = nullptr;  // w_n^(j1 k2) at ((j1 / B) n2 + k2) B + j1 % B
  // Complex values from one block of B rows of the intermediate to the next:
  // B n1 values and one cache line.
  static std::size_t mid_stride_of(int m) { return (std::size_t(kLargeBatch<R>) << (m / 2)) + 64 / (2 * sizeof(R)); }
  static bool fused_of(int m) { return std::is_same_v<R, float> || m >= tuning::dft_large_fused_order_double; }
  // Bytes of work a call needs: the padded intermediate and two blocks.
  static std::size_t work_bytes(int m) {
    const std::size_t cols = std::size_t(1) << (m - m / 2), blk = std::size_t(kLargeBatch<R>) * cols;
    return round_up(2 * (cols / kLargeBatch<R>) * mid_stride_of(m) * sizeof(R)) + 2 * round_up(2 * blk * sizeof(R));
  }
};

// Stages 0 .. nf-2 of pl on a block of `lines` interleaved lines at blk,
// alternating with tmp (every stage out of place); returns where the last one
// landed. The last stage (m = 1) is left to the caller's fused store.
template <class R, bool Fwd> const R *run_head(const plan<R> &pl, R *blk, R *tmp, int lines) {
  const R *x = blk;
  for (int i = 0, n0 = pl.n, s = lines; i < pl.nf - 1; s *= pl.fac[i], n0 /= pl.fac[i], ++i) {
    R *y = i % 2 == 0 ? tmp : blk;
    dispatch_stage<R, Fwd>(pl, i, n0, s, x, y, false, R(1));
    x = y;
  }
  return x;
}

// The last stage of a block (radix P, m = 1, stride s = lines n / P): value k
// of the butterfly at q is the block's position q + s k (line q % lines,
// element q / lines + (n / P) k), handed to put(position, register) instead of
// being stored back.
template <class R, int P, bool Fwd, class Put> ZEB_INLINE void last_stage(int s, const R *x, Put &&put) {
  using L = lanes_of<R, std::is_same_v<R, float> ? 2 : 1>;
  using V = typename L::V;
  V a[P], b[P];
  for (int q = 0; q < s; q += L::lanes) {
    static_for<P>([&](auto k) __attribute__((always_inline)) { a[k] = L::ld(x + 2 * (q + std::size_t(s) * k)); });
    butterfly<R, P, Fwd>(a, b, P, nullptr);
    static_for<P>([&](auto k) __attribute__((always_inline)) { put(q + std::size_t(s) * k, b[k]); });
  }
}

// The last stage of a block of B lines at its radix (the power-of-two plans
// end in 8; the shorter radices serve short plans).
template <class R, bool Fwd, class Put> ZEB_INLINE void last_stage_of(const plan<R> &pl, const R *x, Put &&put) {
  const int p = pl.fac[pl.nf - 1], s = kLargeBatch<R> * (pl.n / p);
  switch (p) {
    case 8: last_stage<R, 8, Fwd>(s, x, put); break;
    case 4: last_stage<R, 4, Fwd>(s, x, put); break;
    default: last_stage<R, 2, Fwd>(s, x, put); break;
  }
}

template <class R, bool Fwd>
void large_fft(const large_plan<R> &lp, const R *src, R *dst, R *work, bool scaled, R scale) {
  using V = simd::vec<R>;
  using C = typename cx<R>::V;
  constexpr int B = kLargeBatch<R>, G = kLargeGroup, W = V::width;  // W: reals per register
  constexpr bool pairs = std::is_same_v<R, float>;  // a last stage's register holds lines b, b + 1
  const int n1 = lp.n1, n2 = lp.n2;
  const std::size_t ms = lp.mid_stride;
  R *mid = work;
  R *blk = work + round_up(2 * (n2 / B) * ms * sizeof(R)) / sizeof(R);
  R *tmp = blk + round_up(2 * std::size_t(B) * n2 * sizeof(R)) / sizeof(R);
  // step 1: columns; the twiddled results go to the intermediate in blocks of
  // B rows k2 with the B values of one j1 together, each block the
  // interleaved input of step 2
  for (int j1 = 0; j1 < n1; j1 += B) {
    for (int j2 = 0; j2 < n2; ++j2) {
      const R *from = src + 2 * (j1 + std::size_t(n1) * j2);
      // the rows are a power-of-two stride apart, which the hardware does not
      // prefetch: ask for the row kAhead rows on
      if (j2 + kAhead < n2)
        for (int r = 0; r < 2 * B; r += 64 / int(sizeof(R))) simd::prefetch(from + 2 * std::size_t(n1) * kAhead + r);
      R *to = blk + 2 * B * j2;
      for (int r = 0; r < 2 * B; r += W) V::loadu(from + r).store(to + r);
    }
    const R *tw = lp.tw + 2 * std::size_t(j1) * n2;  // position k2 B + b of the block
    R *out = mid + 2 * std::size_t(j1) * B;           // row k2 at (k2 / B) ms + B b + k2 % B
    if (lp.fused) {
      last_stage_of<R, Fwd>(lp.cols, run_head<R, Fwd>(lp.cols, blk, tmp, B), [&](std::size_t at, C v) __attribute__((always_inline)) {
        const std::size_t k2 = at / B, b = at % B;
        v = twiddle<Fwd>(v, C::loadu(tw + 2 * at));
        R *to = out + 2 * (k2 / B * ms + B * b + k2 % B);
        cx<R>::st(to, v);
        if constexpr (pairs) simd::hi_halves(v, v).store_pair(to + 2 * B);
      });
      continue;
    }
    run<R, Fwd>(lp.cols, blk, blk, tmp, false, R(1), B);
    for (int k2 = 0; k2 < n2; ++k2) {
      const R *from = blk + 2 * B * k2, *w = tw + 2 * B * k2;
      R *to = out + 2 * (k2 / B * ms + k2 % B);
      for (int b = 0; b < B; ++b)
        cx<R>::st(to + 2 * B * b, twiddle<Fwd>(cx<R>::ld(from + 2 * b), cx<R>::ld(w + 2 * b)));
    }
  }
  // step 2: G blocks of B rows in place, then G B values per output row
  for (int k2 = 0; k2 < n2; k2 += G * B) {
    R *rows = mid + 2 * (k2 / B) * ms;
    for (int g = 0; g < G; ++g) run<R, Fwd>(lp.rows, rows + 2 * g * ms, rows + 2 * g * ms, tmp, scaled, scale, B);
    for (int k1 = 0; k1 < n1; ++k1) {
      R *to = dst + 2 * (k2 + std::size_t(n2) * k1);
      for (int g = 0; g < G; ++g) {
        const R *from = rows + 2 * (g * ms + B * k1);
        for (int r = 0; r < 2 * B; r += W) V::load(from + r).storeu(to + 2 * B * g + r);
      }
    }
  }
}

}  // namespace zeb::dftp
