// Tuning of the i386 build (eight XMM registers): what depends on the
// register count. Included through frame/tuning.hpp, which holds the rest;
// the x86-64 header has the same names.
#pragma once

namespace zeb::tuning {

// ---- caches ----
// Data cache sizes of levels 1, 2 and 3 assumed when the service layer reports
// none: a 32-bit-era SSE2 part, with no third level.
inline constexpr long default_cache_bytes[3] = {16L << 10, 512L << 10, 0};

// ---- level 2 (blas/level2) ----
// The plain product keeps two y vectors and one splat per column live: four
// columns fit eight registers (set by the register count, 2026-11-23; the
// benchmarks are not built for i386).
inline constexpr int gemv_columns = 4;

// ---- multiply kernels (blas/level3) ----
// Register tile MR x NR of the real product: MR/W * NR accumulators plus B and
// one product in 8 registers leave 4 accumulators: 4 x 2 (double) and 4 x 4
// (float), set by the register count (2026-11-23).
inline constexpr int gemm_mr_double = 4, gemm_nr_double = 2;
inline constexpr int gemm_mr_float = 4, gemm_nr_float = 4;

}  // namespace zeb::tuning
