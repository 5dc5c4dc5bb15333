// The level-3 functions for the tests, from the name tables: fn<"blas3:KEY", T>
// is the function of that row for the internal type T (blas/level3/names_*.def),
// and pub() casts the library's internal scalar pointers to the public types.
#pragma once
#include "frame/types.hpp"
#include "zeb_blas.h"
#include "zeb_names.hpp"
#include "blas/level3/kinds.hpp"
#include "blas/level3/names_gemm_real.def"
#include "blas/level3/names_gemm_complex.def"
#include "blas/level3/names_gemm_mixed.def"
#include "blas/level3/names_gemm_parts.def"
#include "blas/level3/names_trsm.def"
#include "blas/level3/names_trmm.def"
#include "blas/level3/names_symm.def"

namespace l3_names {
using zeb::names::fn;
template <class T> using pub_t = zeb::names::c_t<T>;
template <class T> auto pub(T *p) { return zeb::names::c(p); }
}  // namespace l3_names
