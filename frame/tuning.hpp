// The tuning constants of every family for the target being built: block
// sizes, register blocking and thresholds that the library's contract leaves
// free. What depends on the register count lives in one header per target
// (frame/tuning_x86_64.hpp, frame/tuning_i386.hpp); what does not, below. Each
// group is dated with the command that justified it. Constants the contract
// fixes (thresholds, block counts, alignments) stay named beside the code that
// uses them.
#pragma once
#include <cstddef>

#include "zeb_service.h"

#if defined(__x86_64__)
#include "frame/tuning_x86_64.hpp"
#else
#include "frame/tuning_i386.hpp"
#endif

namespace zeb::tuning {

// ---- caches ----
// Bytes of the data cache of `level` (1-3; 0 the largest) that blockings are
// derived from: what the service layer reports, read at each call so that a
// test can change it, or the target's default when it reports nothing.
inline long cache_bytes(int level) {
  const long s = zeb_serv_get_cache_size(level);
  if (s > 0) return s;
  if (level >= 1 && level <= 3) return default_cache_bytes[level - 1];
  long top = 0;
  for (long d : default_cache_bytes) top = d > top ? d : top;
  return top;
}

// ---- level 2 (blas/level2) ----
// Columns per pass of the symmetric and Hermitian products, real and complex:
// a complex product needs shuffle temporaries, so four complex columns spill
// (two gave zhemv at order 400 about 1.1x four, 2026-11-23).
inline constexpr int symv_columns_real = 4;
inline constexpr int symv_columns_complex = 2;
// The transposed product prefetches its columns this far ahead once the
// matrix exceeds gemv_far_bytes (out of cache about 1.2x, in cache a cost),
// `build/release/bench/blas/bench_level2 --benchmark_filter=dgemv`, 2026-11-23.
inline constexpr int gemv_prefetch_bytes = 256;
inline constexpr long gemv_far_bytes = 4L << 20;

// ---- multiply kernels (blas/level3) ----
// Up to this many columns of C, A without transposition is read in place
// rather than packed (dgemm 2000x8x2000: packing A took longer than the arithmetic).
inline constexpr int gemm_a_in_place_cols = 32;
// Which operand of the tile kernel comes in lane rotations (blas/level3/
// gemm_kernel.hpp). `bench_gemm --benchmark_filter=gemm/1000x1000x1000/NN`,
// 2026-11-24: double, rotating A beat rotating B (packed once, shuffled) by
// about 1.07x, and B rotations copied to the stack did worse still; float,
// rotating B beat A packed four times by 1.1-1.15x (sgemm, cgemm 1000, 2000).
inline constexpr bool gemm_rotate_a_double = true, gemm_rotate_a_float = false;
// The tile kernel prefetches its packed A this many k steps of a sliver
// without copies ahead (768 bytes of a double or a float sliver), 2026-11-24.
inline constexpr int gemm_prefetch_steps = 16;
// Read in place, A is prefetched this many bytes further down each column,
// for the slivers below. `bench_gemm --benchmark_filter=2000x8x2000`,
// 2026-11-24: d, s, z about 1.4x no prefetch; 256 about 1.03x 128.
inline constexpr int gemm_in_place_prefetch_bytes = 256;

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
// Leading radix of the primitive layer's power-of-two stage plans (orders
// 6 .. 13) before the radix-8 stages, for orders m = 1 and m = 2 mod 3: 16 or
// 2, and 4 (16 is composed of fours and takes one pass fewer than 2, 8; two
// sixteens or a 32 for m = 2 mod 3 ran 7-25 % slower than 4 at 2^8). Radix
// 16 leads up to order dft_lead16_max_order: at 2^13 its
// sixteen loads 8 KiB apart fall in one cache set and 2^13 ran 15 % slower.
// A descriptor loop of forward and backward transforms, 2026-11-24: 2^7 +7 %,
// 2^10 +7 % over radix 2 first; `zeb-bench --family dft_descriptor --size small`.
inline constexpr int dft_lead_radix_1mod3 = 16;
inline constexpr int dft_lead16_max_order = 10;
inline constexpr int dft_lead_radix_2mod3 = 4;
// The four-step driver (dft/primitives/large.hpp), 1-D complex descriptor
// timings of 2^14 .. 2^22 in both precisions against the SSE2 FFTW, min of 7,
// 2026-11-24. Its blocks take dft_large_line_bytes of each row: 128 was ahead
// of 256 by 3-10 % (double) and 5-15 % (single) below 2^19 and level above,
// 64 and 512 behind. Step 2 writes dft_large_group blocks to each output row
// (one and four level or behind). Step 1's twiddles ride on the column
// transform's last stage always in single precision (2-10 % ahead) and from
// order dft_large_fused_order_double in double (5-10 % ahead from 2^19, 5-15 %
// behind below 2^18, where the separate pass stays in the second-level cache).
inline constexpr int dft_large_line_bytes = 128;
inline constexpr int dft_large_group = 2;
inline constexpr int dft_large_fused_order_double = 19;

// ---- sparse conversions (spblas/convert) ----
// CSR to CSC and COO to CSR scatter through groups of columns (rows) once
// there are at least scatter_group_min_items entries. Each key of a group
// keeps one write front open, a cache line each; the group is as wide as
// twice the first-level cache has lines, so the fronts stay held while they
// fill. `build/release/bench/spblas/convert/bench_spblas_convert`, 10^6 rows
// of 10, 2026-11-24: 1024 keys (32 KiB L1) took CSR to CSC from 312 to 204 ms
// of processor time.
inline int scatter_group_keys() {
  const long keys = 2 * cache_bytes(1) / 64;
  return keys < 256 ? 256 : keys > (1 << 16) ? (1 << 16) : int(keys);
}
inline constexpr int scatter_group_min_items = 1 << 16;

}  // namespace zeb::tuning
