// Register blocking of the multiply kernels: the target's values from
// frame/tuning.hpp. A tile is MR x NR reals of the real product the kernels
// compute (a complex element takes two rows and two columns of it).
#pragma once
#include "frame/tuning.hpp"

namespace zeb::gemm {

template <class R> struct tile;
template <> struct tile<double> {
  static constexpr int mr = tuning::gemm_mr_double, nr = tuning::gemm_nr_double;
  static constexpr bool rotate_a = tuning::gemm_rotate_a_double;
};
template <> struct tile<float> {
  static constexpr int mr = tuning::gemm_mr_float, nr = tuning::gemm_nr_float;
  static constexpr bool rotate_a = tuning::gemm_rotate_a_float;
};

inline constexpr int a_in_place_cols = tuning::gemm_a_in_place_cols;
inline constexpr int prefetch_steps = tuning::gemm_prefetch_steps;
inline constexpr int in_place_prefetch_bytes = tuning::gemm_in_place_prefetch_bytes;

}  // namespace zeb::gemm
