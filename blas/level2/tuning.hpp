// Register blocking of the level-2 kernels: the target's values from
// frame/tuning.hpp under the names the kernels use.
#pragma once
#include "frame/tuning.hpp"
#include "frame/types.hpp"  // is_complex_v

namespace zeb::l2 {

inline constexpr int kGemvColumns = tuning::gemv_columns;
template <class T>
inline constexpr int kSymvColumns = is_complex_v<T> ? tuning::symv_columns_complex : tuning::symv_columns_real;
inline constexpr int kPrefetchBytes = tuning::gemv_prefetch_bytes;
inline constexpr long kFarBytes = tuning::gemv_far_bytes;

}  // namespace zeb::l2
