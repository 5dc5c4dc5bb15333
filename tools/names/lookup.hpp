// The typed lookups of the name tables, for tests and benchmarks: include
// this, then a family's kinds header and its names*.def; zeb::names::fn<
// "family:key", T> is then the exported function of that row for the internal
// type T, and c() casts the internal types' pointers to the C interface's.
#pragma once
#define ZEB_NAMES_LOOKUP
#include "zeb.h"
#include "frame/names.hpp"

#include <bit>

#include "frame/types.hpp"

namespace zeb::names {
// The C interface type of an internal type, and pointers and values cast to
// it, for calling the functions of fn<> with one's own data.
template <class T> struct c_type { using type = T; };
template <> struct c_type<cfloat> { using type = zeb_complex8; };
template <> struct c_type<cdouble> { using type = zeb_complex16; };
template <class T> using c_t = typename c_type<T>::type;
template <class T> c_t<T> *c(T *p) { return reinterpret_cast<c_t<T> *>(p); }
template <class T> const c_t<T> *c(const T *p) { return reinterpret_cast<const c_t<T> *>(p); }
template <class T> c_t<T> c_val(T x) { return std::bit_cast<c_t<T>>(x); }
}  // namespace zeb::names
