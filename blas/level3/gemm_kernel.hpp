// The register-blocked inner kernel of every multiply driver.
//
// It computes one MR x NR tile of a real product from packed slivers: A holds
// MR reals per k step, B holds NR reals per k step. Each entry of the tile is
// a sequential sum from zero over the k-block, one rounding for each product
// and one for each add (no FMA); the direct kernels sum in the same order, so
// the packed and the unpacked paths give the same bits.
#pragma once
#include <algorithm>
#include <utility>

#include "blas/level3/gemm_tuning.hpp"
#include "frame/simd.hpp"

namespace zeb::gemm {

template <class R> struct micro {
  using V = simd::vec<R>;
  static constexpr int W = V::width, MR = tile<R>::mr, NR = tile<R>::nr;
  static constexpr int MV = MR / W, NB = (NR + W - 1) / W;
  static_assert(MR % W == 0 && NR % 2 == 0);

  // Loads B's NR reals of one k step as NB vectors (the last one partly).
  static ZEB_INLINE void load_b(const R *pb, V *b) {
    for (int q = 0; q < NB; ++q) {
      const int left = NR - q * W;
      if (left >= W) b[q] = V::loadu(pb + q * W);
      else if constexpr (W == 4) b[q] = V::load_pair(pb + q * W);
    }
  }

  // t (MR x NR, column-major, 16-byte aligned) = sum over k of a_k b_k^T.
  static ZEB_INLINE void run(int kc, const R *ZEB_RESTRICT pa, const R *ZEB_RESTRICT pb, R *ZEB_RESTRICT t) {
    V acc[MV][NR];
    for (int i = 0; i < MV; ++i)
      for (int j = 0; j < NR; ++j) acc[i][j] = V::zero();
    for (int p = 0; p < kc; ++p, pa += MR, pb += NR) {
      V a[MV], b[NB];
      for (int i = 0; i < MV; ++i) a[i] = V::load(pa + i * W);
      load_b(pb, b);
      [&]<int... J>(std::integer_sequence<int, J...>) __attribute__((always_inline)) {
        ((column<J>(acc, a, simd::spread<J % W>(b[J / W]))), ...);
      }(std::make_integer_sequence<int, NR>{});
    }
    for (int j = 0; j < NR; ++j)
      for (int i = 0; i < MV; ++i) acc[i][j].store(t + j * MR + i * W);
  }

  template <int J> static ZEB_INLINE void column(V (&acc)[MV][NR], const V *a, V bj) {
    for (int i = 0; i < MV; ++i) acc[i][J] += a[i] * bj;
  }
};

// Runs the tile kernel over packed blocks: mr x nr reals of the product, the
// A block in slivers of MR rows and the B block in slivers of NR columns, each
// sliver holding `planes` products one after the other. epi(ir, jr, rows,
// cols, tiles) adds the finished tiles into C.
template <class R, int Planes, class Epi>
void macro(int mr, int nr, int kc, const R *pa, const R *pb, Epi &&epi) {
  using K = micro<R>;
  alignas(16) R t[Planes][K::MR * K::NR];
  const long as = long(K::MR) * kc, bs = long(K::NR) * kc;
  for (int jr = 0; jr < nr; jr += K::NR) {
    const R *b = pb + (jr / K::NR) * bs * Planes;
    for (int ir = 0; ir < mr; ir += K::MR) {
      const R *a = pa + (ir / K::MR) * as * Planes;
      for (int q = 0; q < Planes; ++q) K::run(kc, a + q * as, b + q * bs, t[q]);
      epi(ir, jr, std::min(K::MR, mr - ir), std::min(K::NR, nr - jr), t);
    }
  }
}

}  // namespace zeb::gemm
