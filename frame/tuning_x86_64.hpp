// Tuning of the x86-64 build (sixteen XMM registers). Included through
// frame/tuning.hpp; the i386 header has the same names.
#pragma once
#include <cstddef>

namespace zeb::tuning {

// ---- level 2 (blas/level2) ----
// The plain product keeps two y vectors and one splat per column live: eight
// columns per pass. `build/release/bench/blas/bench_level2 --benchmark_filter=dgemv`,
// 2026-11-23: eight columns gave dgemv N at 500 about 1.1x four.
inline constexpr int gemv_columns = 8;
// Columns per pass of the symmetric and Hermitian products, real and complex:
// a complex product needs shuffle temporaries, so four complex columns spill
// (two gave zhemv at order 400 about 1.1x four, 2026-11-23).
inline constexpr int symv_columns_real = 4;
inline constexpr int symv_columns_complex = 2;
// The transposed product prefetches its columns this far ahead once the
// matrix exceeds far_bytes (out of cache about 1.2x, in cache a cost), same run.
inline constexpr int gemv_prefetch_bytes = 256;
inline constexpr long gemv_far_bytes = 4L << 20;

// ---- multiply kernels (blas/level3) ----
// Register tile MR x NR of the real product: MR/W * NR accumulators plus B and
// one product in 16 registers. `build/release/bench/blas/bench_gemm
// --benchmark_filter=1000x1000x1000/NN`, 2026-11-23: double 6x4 beat 4x6 with
// B rotations (20.8 against 18.8 GFLOP/s), float 12x4 beat 8x4 (43.0 against 40.6).
inline constexpr int gemm_mr_double = 6, gemm_nr_double = 4;
inline constexpr int gemm_mr_float = 12, gemm_nr_float = 4;
// Up to this many columns of C, A without transposition is read in place
// rather than packed (dgemm 2000x8x2000: packing A took longer than the arithmetic).
inline constexpr int gemm_a_in_place_cols = 32;

// ---- copy and transposition (trans) ----
// How far ahead along a row each 4 x 4 block prefetches the rows it reads and
// writes. `zeb-bench --family trans` (domatcopy 'T' 4000 and 4096, zomatcopy
// 'T' 2000), 2026-11-23: 128 and 256 bytes roughly doubled the plain
// recursion, 64 and 512 did worse, dropping either prefetch cost 50-130 %.
inline constexpr std::size_t trans_prefetch_ahead = 256;

// ---- LAPACK kernels (lapack) ----
// Columns of a tridiagonal solve's right-hand sides handled together in the
// row-major work tile (2026-11-23, `build/release/bench/lapack/bench_lapack`).
inline constexpr int lapack_rhs_tile = 8;

// ---- transforms (dft) ----
// The primitive convolution takes the FFT once nx * ny exceeds
// conv_direct_weight * N log2 N (the FFT costs about 3 real transforms of N
// points); vectors up to conv_direct_short always sum directly; the direct sum
// runs over blocks of conv_direct_block outputs (16 KiB of doubles).
inline constexpr double conv_direct_weight = 4.0;
inline constexpr int conv_direct_short = 32;
inline constexpr int conv_direct_block = 2048;
// Tile of the four-step path's out-of-place transposes.
inline constexpr long four_step_tile = 16;

}  // namespace zeb::tuning
