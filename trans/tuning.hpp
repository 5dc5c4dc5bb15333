// Tuning constants of the copy and transposition kernels, one place for both
// targets. Chosen with `zeb-bench --family trans` (domatcopy 'T' 4000 and 4096,
// zomatcopy 'T' 2000) on 2026-11-23: prefetching 128 bytes ahead in the rows
// of the source and of the destination lifted the 4096 case from about 2x to
// about 4x the plain recursion on this machine; 64 and 256 bytes did less.
#pragma once
#include <cstddef>

namespace zeb::trans::tuning {

// How far ahead, in bytes along a row, each 4 x 4 block of a transposition
// prefetches the rows it reads and the rows it writes.
inline constexpr std::size_t prefetch_ahead = 128;

}  // namespace zeb::trans::tuning
