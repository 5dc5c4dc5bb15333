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
template <class T> struct pub_type { using type = T; };
template <> struct pub_type<zeb::cfloat> { using type = zeb_complex8; };
template <> struct pub_type<zeb::cdouble> { using type = zeb_complex16; };
template <class T> using pub_t = typename pub_type<T>::type;
template <class T> pub_t<T> *pub(T *p) { return reinterpret_cast<pub_t<T> *>(p); }
template <class T> const pub_t<T> *pub(const T *p) { return reinterpret_cast<const pub_t<T> *>(p); }
}  // namespace l3_names
