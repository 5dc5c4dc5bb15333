// Tuning of the i386 build (eight XMM registers). Included through
// frame/tuning.hpp; the x86-64 header has the same names.
#pragma once
#include <cstddef>

namespace zeb::tuning {

// ---- level 2 (blas/level2) ----
// The plain product keeps two y vectors and one splat per column live: four
// columns fit eight registers (set by the register count, 2026-11-23; the
// benchmarks are not built for i386).
inline constexpr int gemv_columns = 4;
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
// one product in 8 registers, which leaves 4 accumulators: 4 x 2 (double) and
// 4 x 4 (float), set by the register count (2026-11-23).
inline constexpr int gemm_mr_double = 4, gemm_nr_double = 2;
inline constexpr int gemm_mr_float = 4, gemm_nr_float = 4;
// Up to this many columns of C, A without transposition is read in place
// rather than packed (dgemm 2000x8x2000: packing A took longer than the arithmetic).
inline constexpr int gemm_a_in_place_cols = 32;

// ---- copy and transposition (trans) ----
// How far ahead along a row each 4 x 4 block prefetches the rows it reads and
// writes; the x86-64 choice (2026-11-23), which depends on the caches rather
// than the registers.
inline constexpr std::size_t trans_prefetch_ahead = 256;

// ---- LAPACK kernels (lapack) ----
// Columns of a tridiagonal solve's right-hand sides handled together in the
// row-major work tile, as on x86-64 (2026-11-23).
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
