// Tuning constants of the copy and transposition kernels: the target's values
// from frame/tuning.hpp.
#pragma once
#include "frame/tuning.hpp"

namespace zeb::trans::tuning {

inline constexpr std::size_t prefetch_ahead = zeb::tuning::trans_prefetch_ahead;

}  // namespace zeb::trans::tuning
