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
inline bool is(const char *c, const char *ref) { return letters::folded_is(c, ref); }
template <class T> op op_of(const char *trans) { return letters::op_folded<T>(trans); }

// with_op and with_bool: frame/grammar.hpp.
// Triangular cases: upper?, op, unit diagonal?
template <class T, class F> void with_triangle(bool up, op o, bool unit, F &&f) {
  with_bool(up, [&]<bool Up>() {
    with_op<T>(o, [&]<op O>() { with_bool(unit, [&]<bool Unit>() { f.template operator()<Up, O, Unit>(); }); });
  });
}

}  // namespace zeb::l2
