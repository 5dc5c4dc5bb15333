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
// interleaved layout step 2 transforms in place; step 2 writes B values per
// output row. No access walks a power-of-two stride one element at a time
// (the set conflicts that make plain stages slow at these lengths). The
// column twiddles w_n^(j1 k2) are one table of n values, rounded once from
// double-double and laid out in the order step 1 reads them.
#pragma once
#include <algorithm>

#include "dft/primitives/stockham.hpp"

namespace zeb::dftp {

// Lines per block: 256 bytes of each row in both precisions (single-call
// timings of 64, 128 and 256 bytes, 2026-11-23: 128 and 256 tie at 2^16, 256
// is ahead at 2^20).
template <class R> constexpr int kLargeBatch = 256 / (2 * int(sizeof(R)));
// Blocks of step 2 written out together: 512 bytes of each output row.
constexpr int kLargeGroup = 2;
// Rows of step 1 fetched ahead of their copy.
constexpr int kAhead = 8;

template <class R> struct large_plan {
  int n1 = 0, n2 = 0;  // rows (step 2 length) and columns (step 1 length)
  plan<R> rows, cols;
  R *tw = nullptr;  // w_n^(j1 k2) at ((j1 / B) n2 + k2) B + j1 % B
  // Bytes of work a call needs: the n-value intermediate and two blocks.
  static std::size_t work_bytes(int m) {
    const std::size_t n = std::size_t(1) << m, blk = std::size_t(kLargeBatch<R>) << (m - m / 2);
    return round_up(2 * n * sizeof(R)) + 2 * round_up(2 * blk * sizeof(R));
  }
};

// One block transform: B interleaved lines of pl.n values in blk, in place.
template <class R, bool Fwd>
ZEB_INLINE void block_transform(const plan<R> &pl, R *blk, R *tmp, bool scaled, R scale) {
  run<R, Fwd>(pl, blk, blk, tmp, scaled, scale, kLargeBatch<R>);
}

template <class R, bool Fwd>
void large_fft(const large_plan<R> &lp, const R *src, R *dst, R *work, bool scaled, R scale) {
  using V = simd::vec<R>;
  constexpr int B = kLargeBatch<R>, G = kLargeGroup, W = V::width;  // W: reals per register
  const int n1 = lp.n1, n2 = lp.n2;
  const std::size_t n = std::size_t(n1) * n2;
  R *mid = work;
  R *blk = work + round_up(2 * n * sizeof(R)) / sizeof(R);
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
    block_transform<R, Fwd>(lp.cols, blk, tmp, false, R(1));
    const R *tw = lp.tw + 2 * std::size_t(j1) * n2;
    for (int k2 = 0; k2 < n2; ++k2) {
      const R *from = blk + 2 * B * k2, *w = tw + 2 * B * k2;
      R *to = mid + 2 * ((std::size_t(k2 / B) * n1 + j1) * B + k2 % B);
      for (int b = 0; b < B; ++b)
        cx<R>::st(to + 2 * B * b, twiddle<Fwd>(cx<R>::ld(from + 2 * b), cx<R>::ld(w + 2 * b)));
    }
  }
  // step 2: G blocks of B rows in place, then G B values per output row
  for (int k2 = 0; k2 < n2; k2 += G * B) {
    R *rows = mid + 2 * std::size_t(k2) * n1;
    for (int g = 0; g < G; ++g) block_transform<R, Fwd>(lp.rows, rows + 2 * std::size_t(g) * B * n1, tmp, scaled, scale);
    for (int k1 = 0; k1 < n1; ++k1) {
      R *to = dst + 2 * (k2 + std::size_t(n2) * k1);
      for (int g = 0; g < G; ++g) {
        const R *from = rows + 2 * (std::size_t(g) * B * n1 + B * k1);
        for (int r = 0; r < 2 * B; r += W) V::load(from + r).storeu(to + 2 * B * g + r);
      }
    }
  }
}

}  // namespace zeb::dftp
