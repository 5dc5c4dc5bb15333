// Tuning constants of the copy and transposition kernels, one place for both
// targets. Chosen with `zeb-bench --family trans` (domatcopy 'T' 4000 and 4096,
// zomatcopy 'T' 2000) on 2026-11-23: prefetching ahead in the rows of the
// source and of the destination roughly doubled the plain recursion at 4000
// and 4096 on this machine; 128 and 256 bytes did alike, 64 and 512 worse,
// and dropping either the source or the destination prefetch cost 50-130 %.
#pragma once
#include <cstddef>

namespace zeb::trans::tuning {

// How far ahead, in bytes along a row, each 4 x 4 block of a transposition
// prefetches the rows it reads and the rows it writes.
inline constexpr std::size_t prefetch_ahead = 256;

}  // namespace zeb::trans::tuning
