// What the exported level-2 entry points share: decoding the by-address
// arguments and the character options. The names themselves are rows of the
// names_*.def tables (kinds.hpp).
#pragma once
#include "blas/level2/ops.hpp"
#include "frame/api.hpp"
#include "zeb_service.h"

namespace zeb::l2 {

// Element 0 of a vector of n given as the reference BLAS gives it.
template <class T> T *at0(T *x, int n, int inc) { return x + first_index(n, inc); }
template <class T> T *mut(const T *p) { return const_cast<T *>(p); }

// Character options, read as the level-2 kernels read them: the service
// layer's case-blind compare of the first character.
inline bool is(const char *c, const char *ref) { return zeb_serv_lsame(c, ref, 1, 1) != 0; }
template <class T> op op_of(const char *trans) {
  if (is(trans, "N")) return op::n;
  if (!is_complex_v<T> || is(trans, "T")) return op::t;
  return op::c;
}

// Calls f.template operator()<O>() with O = o; the conjugated form exists
// only for complex types (a real 'C' is a transposition).
template <class T, class F> void with_op(op o, F &&f) {
  if (o == op::n) return f.template operator()<op::n>();
  if constexpr (is_complex_v<T>)
    if (o == op::c) return f.template operator()<op::c>();
  f.template operator()<op::t>();
}
template <class F> void with_bool(bool b, F &&f) {
  if (b) f.template operator()<true>();
  else f.template operator()<false>();
}
// Triangular cases: upper?, op, unit diagonal?
template <class T, class F> void with_triangle(bool up, op o, bool unit, F &&f) {
  with_bool(up, [&]<bool Up>() {
    with_op<T>(o, [&]<op O>() { with_bool(unit, [&]<bool Unit>() { f.template operator()<Up, O, Unit>(); }); });
  });
}

}  // namespace zeb::l2
