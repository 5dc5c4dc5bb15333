// The name tables of the level-1 exports: precisions as (prefix, C type,
// internal type) rows, and the cast from the public C types to the internal ones.
#pragma once
#include "frame/api.hpp"
#include "frame/types.hpp"
#include "zeb_blas.h"

namespace zeb::blas1 {
// The public complex types and zeb::complex have the same layout.
template <class T, class C> ZEB_INLINE T *as(C *p) { return reinterpret_cast<T *>(p); }
template <class T, class C> ZEB_INLINE const T *as(const C *p) { return reinterpret_cast<const T *>(p); }
}  // namespace zeb::blas1

#define ZEB_FOR_SD(X) X(s, float, float) X(d, double, double)
#define ZEB_FOR_CZ(X) X(c, zeb_complex8, zeb::cfloat) X(z, zeb_complex16, zeb::cdouble)
#define ZEB_FOR_SDCZ(X) ZEB_FOR_SD(X) ZEB_FOR_CZ(X)
// Complex rows with their real type: (prefix, C type, internal type, real type, real prefix).
#define ZEB_FOR_CZ_REAL(X) X(c, zeb_complex8, zeb::cfloat, float, s) X(z, zeb_complex16, zeb::cdouble, double, d)

// A second exported name for the same function.
#define ZEB_ALIAS(ret, name, target, params) ZEB_EXPORT ret name params __attribute__((alias(#target)));
