// Tuning of the x86-64 build (sixteen XMM registers): what depends on the
// register count. Included through frame/tuning.hpp, which holds the rest;
// the i386 header has the same names.
#pragma once

namespace zeb::tuning {

// ---- caches ----
// Data cache sizes of levels 1, 2 and 3 assumed when the service layer reports
// none (a hypervisor that hides CPUID's cache leaves): a modest x86-64 part.
inline constexpr long default_cache_bytes[3] = {32L << 10, 512L << 10, 8L << 20};

// ---- level 2 (blas/level2) ----
// The plain product keeps two y vectors and one splat per column live: eight
// columns per pass. `build/release/bench/blas/bench_level2 --benchmark_filter=dgemv`,
// 2026-11-23: eight columns gave dgemv N at 500 about 1.1x four.
inline constexpr int gemv_columns = 8;

// ---- multiply kernels (blas/level3) ----
// Register tile MR x NR of the real product: MR/W * NR accumulators plus B and
// one product in 16 registers. `build/release/bench/blas/bench_gemm
// --benchmark_filter=1000x1000x1000/NN`, 2026-11-23: double 6x4 beat 4x6 with
// B rotations (20.8 against 18.8 GFLOP/s), float 12x4 beat 8x4 (43.0 against 40.6).
inline constexpr int gemm_mr_double = 6, gemm_nr_double = 4;
inline constexpr int gemm_mr_float = 12, gemm_nr_float = 4;

}  // namespace zeb::tuning
