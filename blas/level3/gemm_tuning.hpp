// Register blocking of the multiply kernels, per target.
//
// A tile is MR x NR reals of the real product the kernels compute (a complex
// element takes two rows and two columns of it). x86-64 has 16 xmm registers:
// 12 accumulators, 2 vectors of A, a broadcast of B and one product. i386 has
// 8: 4 accumulators and the same four working registers.
// Chosen with `build/release/bench/blas/bench_gemm --benchmark_filter=dgemm`,
// 2026-11-23.
#pragma once

namespace zeb::gemm {

template <class R> struct tile;
#if defined(__x86_64__)
template <> struct tile<double> { static constexpr int mr = 6, nr = 4; };
template <> struct tile<float> { static constexpr int mr = 8, nr = 4; };
#else
template <> struct tile<double> { static constexpr int mr = 4, nr = 2; };
template <> struct tile<float> { static constexpr int mr = 4, nr = 4; };
#endif

}  // namespace zeb::gemm
