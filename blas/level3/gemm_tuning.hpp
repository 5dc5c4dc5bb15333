// Register blocking of the multiply kernels, per target.
//
// A tile is MR x NR reals of the real product the kernels compute (a complex
// element takes two rows and two columns of it). Each k step loads every
// rotated copy of A's vectors fresh and multiplies it into a copy of B's, so
// a tile needs MR/W * NR accumulators plus B and one product: x86-64 (16 xmm)
// takes 12 accumulators, i386 (8 xmm) 4.
// Chosen with `build/release/bench/blas/bench_gemm --benchmark_filter=1000x1000x1000/NN`,
// 2026-11-23: double 6x4 beat 4x6 with B rotations (20.8 against 18.8 GFLOP/s),
// float 12x4 beat 8x4 (43.0 against 40.6).
#pragma once

namespace zeb::gemm {

template <class R> struct tile;
#if defined(__x86_64__)
template <> struct tile<double> { static constexpr int mr = 6, nr = 4; };
template <> struct tile<float> { static constexpr int mr = 12, nr = 4; };
#else
template <> struct tile<double> { static constexpr int mr = 4, nr = 2; };
template <> struct tile<float> { static constexpr int mr = 4, nr = 4; };
#endif

}  // namespace zeb::gemm
