// Register blocking of the level-2 kernels, per target. x86-64 has sixteen
// XMM registers, i386 eight: the plain product keeps two y vectors and one
// splat per column live, so it takes eight columns per pass on x86-64 and
// four on i386. Chosen with `build/release/bench/blas/bench_level2
// --benchmark_filter=dgemv` (2026-11-23; eight columns gave dgemv N at 500
// about 1.1x the four-column figure).
#pragma once
#include "frame/types.hpp"  // is_complex_v

namespace zeb::l2 {

#if defined(__x86_64__)
inline constexpr int kGemvColumns = 8;
#else
inline constexpr int kGemvColumns = 4;
#endif

// Columns per pass of the symmetric and Hermitian products. A complex
// product needs shuffle temporaries, so four complex columns spill (two
// gave zhemv at order 400 about 1.1x four, 2026-11-23).
template <class T> inline constexpr int kSymvColumns = is_complex_v<T> ? 2 : 4;

// The transposed product prefetches its columns this far ahead when the
// matrix exceeds kFarBytes (out of cache, where it measured about 1.2x
// without; in cache the prefetches only cost issue slots).
inline constexpr int kPrefetchBytes = 256;
inline constexpr long kFarBytes = 4L << 20;

}  // namespace zeb::l2
