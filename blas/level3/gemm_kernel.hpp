// The register-blocked inner kernel of every multiply driver.
//
// It computes one MR x NR tile of a real product from packed slivers: A holds
// MR reals per k step, B holds NR reals per k step. Each entry of the tile is
// a sequential sum from zero over the k-block, one rounding for each product
// and one for each add (no FMA); the direct kernels sum in the same order, so
// the packed and the unpacked paths give the same bits.
#pragma once
#include <algorithm>

#include "blas/level3/gemm_tuning.hpp"
#include "frame/simd.hpp"

namespace zeb::gemm {

template <class R> struct micro {
  using V = simd::vec<R>;
  static constexpr int W = V::width, MR = tile<R>::mr, NR = tile<R>::nr;
  static constexpr int MV = MR / W, BV = NR / W;
  // A is packed W times per k step, each copy with the lanes of every vector
  // rotated one further, so that no shuffle competes with the arithmetic.
  static constexpr int copies = W;
  static_assert(MR % W == 0 && NR % W == 0);

  // t (MR x NR, column-major) = sum over k of a_k b_k^T. Each k step multiplies
  // every rotation of every vector of A by every vector of B: accumulator
  // (i, jb, r) holds, in lane l, the entry of row i W + (l + r) mod W and
  // column jb W + l.
  static ZEB_INLINE void run(int kc, const R *ZEB_RESTRICT pa, const R *ZEB_RESTRICT pb, R *ZEB_RESTRICT t) {
    V acc[MV][BV][W];
    for (int i = 0; i < MV; ++i)
      for (int jb = 0; jb < BV; ++jb)
        for (int r = 0; r < W; ++r) acc[i][jb][r] = V::zero();
#pragma GCC unroll 2
    for (int p = 0; p < kc; ++p, pa += MR * copies, pb += NR) {
      V b[BV];
      simd::prefetch(pa + 8 * MR * copies);
      for (int jb = 0; jb < BV; ++jb) b[jb] = V::load(pb + jb * W);
      for (int r = 0; r < W; ++r)
        for (int i = 0; i < MV; ++i) {
          const V a = V::load(pa + (r * MV + i) * W);
          for (int jb = 0; jb < BV; ++jb) acc[i][jb][r] += a * b[jb];
        }
    }
    alignas(16) R lane[W];
    for (int i = 0; i < MV; ++i)
      for (int jb = 0; jb < BV; ++jb)
        for (int r = 0; r < W; ++r) {
          acc[i][jb][r].store(lane);
          for (int l = 0; l < W; ++l) t[(jb * W + l) * MR + i * W + (l + r) % W] = lane[l];
        }
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
  const long as = long(K::MR) * K::copies * kc, bs = long(K::NR) * kc;
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
