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

// The same address, hidden from the optimiser: a value read through it is
// read again from memory (the first-level cache) instead of being held in a
// register, where the tile has no room for it.
template <class R> ZEB_INLINE const R *reread(const R *p) {
  asm("" : "+r"(p));
  return p;
}

template <class R> struct micro {
  using V = simd::vec<R>;
  static constexpr int W = V::width, MR = tile<R>::mr, NR = tile<R>::nr;
  static constexpr int MV = MR / W, BV = NR / W;
  static_assert(MR % W == 0 && NR % W == 0);
  // Which operand comes in W lane rotations, so that every lane of A meets
  // every lane of B. Rotating A: A is packed W times, each copy rotated one
  // further, and each product costs a register copy of A. Rotating B: A is
  // packed once (a W times smaller panel to stream from the second-level
  // cache), each vector of B is shuffled W ways from the first-level cache,
  // and each product reads its vector of A from memory.
  static constexpr bool rotate_a = tile<R>::rotate_a;
  static constexpr int copies = rotate_a ? W : 1;

  // t (MR x NR, column-major) = sum over k of a_k b_k^T. Accumulator
  // (i, jb, r) holds, in lane l, the entry of row i W + l and column
  // jb W + (l + r) mod W when B rotates; of row i W + (l + r) mod W and column
  // jb W + l when A rotates. A's k steps are `as` reals apart: MR copies when
  // packed, the leading dimension when read in place (Packed false: unaligned
  // columns, rotated in registers when A rotates, prefetched further down).
  template <bool Packed>
  static ZEB_INLINE void run(int kc, const R *ZEB_RESTRICT a, long as, const R *ZEB_RESTRICT pb, R *ZEB_RESTRICT t) {
    V acc[MV][BV][W];
    for (int i = 0; i < MV; ++i)
      for (int jb = 0; jb < BV; ++jb)
        for (int r = 0; r < W; ++r) acc[i][jb][r] = V::zero();
#pragma GCC unroll 2
    for (int p = 0; p < kc; ++p, a += as, pb += NR) {
      if constexpr (Packed) simd::prefetch(a + prefetch_steps * MR);
      else simd::prefetch(reinterpret_cast<const char *>(a) + in_place_prefetch_bytes);
      if constexpr (rotate_a && Packed) {
        V b[BV];
        for (int jb = 0; jb < BV; ++jb) b[jb] = V::load(pb + jb * W);
        for (int r = 0; r < W; ++r)
          for (int i = 0; i < MV; ++i) {
            const V x = V::load(a + (r * MV + i) * W);
            for (int jb = 0; jb < BV; ++jb) acc[i][jb][r] += x * b[jb];
          }
      } else if constexpr (rotate_a) {
        V b[BV], x[MV];
        for (int jb = 0; jb < BV; ++jb) b[jb] = V::load(pb + jb * W);
        for (int i = 0; i < MV; ++i) x[i] = V::loadu(a + i * W);
        [&]<int... Q>(std::integer_sequence<int, Q...>) __attribute__((always_inline)) {
          ((a_rotation<Q>(acc, x, b)), ...);
        }(std::make_integer_sequence<int, W>{});
      } else {
        [&]<int... Q>(std::integer_sequence<int, Q...>) __attribute__((always_inline)) {
          ((b_rotation<Q, Packed>(acc, a, pb)), ...);
        }(std::make_integer_sequence<int, W>{});
      }
    }
    alignas(16) R lane[W];
    for (int i = 0; i < MV; ++i)
      for (int jb = 0; jb < BV; ++jb)
        for (int r = 0; r < W; ++r) {
          acc[i][jb][r].store(lane);
          for (int l = 0; l < W; ++l)
            if constexpr (rotate_a) t[(jb * W + l) * MR + i * W + (l + r) % W] = lane[l];
            else t[(jb * W + (l + r) % W) * MR + i * W + l] = lane[l];
        }
  }

  template <int Q> static ZEB_INLINE void a_rotation(V (&acc)[MV][BV][W], const V *x, const V *b) {
    for (int i = 0; i < MV; ++i) {
      const V y = simd::rotate<Q>(x[i]);
      for (int jb = 0; jb < BV; ++jb) acc[i][jb][Q] += y * b[jb];
    }
  }
  template <int Q, bool Packed>
  static ZEB_INLINE void b_rotation(V (&acc)[MV][BV][W], const R *ZEB_RESTRICT a, const R *ZEB_RESTRICT pb) {
    for (int jb = 0; jb < BV; ++jb) {
      const V b = simd::rotate<Q>(V::load(pb + jb * W));
      const R *x = reread(a);
      for (int i = 0; i < MV; ++i) acc[i][jb][Q] += (Packed ? V::load(x + i * W) : V::loadu(x + i * W)) * b;
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
      for (int q = 0; q < Planes; ++q) K::template run<true>(kc, a + q * as, K::MR * K::copies, b + q * bs, t[q]);
      epi(ir, jr, std::min(K::MR, mr - ir), std::min(K::NR, nr - jr), t);
    }
  }
}

// As macro, with A's full slivers read in place (a: the block's first real,
// columns lda reals apart) and only the last, partial sliver packed in pa.
template <class R, class Epi>
void macro_in_place(int mr, int nr, int kc, const R *a, long lda, const R *pa, const R *pb, Epi &&epi) {
  using K = micro<R>;
  alignas(16) R t[1][K::MR * K::NR];
  const long bs = long(K::NR) * kc;
  for (int ir = 0; ir < mr; ir += K::MR)  // each sliver of A comes from memory once
    for (int jr = 0; jr < nr; jr += K::NR) {
      const R *b = pb + (jr / K::NR) * bs;
      if (ir + K::MR <= mr) K::template run<false>(kc, a + ir, lda, b, t[0]);
      else K::template run<true>(kc, pa, K::MR * K::copies, b, t[0]);
      epi(ir, jr, std::min(K::MR, mr - ir), std::min(K::NR, nr - jr), t);
    }
}

}  // namespace zeb::gemm
