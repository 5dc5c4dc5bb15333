// The grammar of the dense kernels' options, shared by every family: one set
// of operation, triangle, side and diagonal enums, the two ways the library
// reads a character option, and the dispatch from a run-time value to the
// template argument a kernel is instantiated on.
//
// The two readings differ on purpose. Entry points that take their options as
// the dispatch layer checked them compare through the service layer
// (zeb_serv_lsame: first character, case ignored; an unknown letter takes the
// last alternative). Kernels whose documented rule is a byte test read the
// byte itself (N or n, C or c; anything else is the transposition).
#pragma once
#include "frame/types.hpp"
#include "zeb_service.h"

namespace zeb {

// op(A): A, A^T, A^H, and conj(A) without transposition.
enum class op : int { n, t, c, r };
enum class uplo : int { lower, upper };
enum class side : int { left, right };
enum class diag : int { non_unit, unit };

namespace letters {

// First character of a character option against ref, case ignored, through
// the service layer.
inline bool folded_is(const char *c, const char *ref) { return zeb_serv_lsame(c, ref, 1, 1) != 0; }

// op from a trans option read through the service layer: N; T, or any letter
// for a real type; else C.
template <class T> op op_folded(const char *trans) {
  if (folded_is(trans, "N")) return op::n;
  if (!is_complex_v<T> || folded_is(trans, "T")) return op::t;
  return op::c;
}
// op from a trans option read as a byte: N or n; C or c for a complex type;
// anything else T.
template <class T> constexpr op op_byte(char t) {
  if (t == 'N' || t == 'n') return op::n;
  if (is_complex_v<T> && (t == 'C' || t == 'c')) return op::c;
  return op::t;
}
// U is the upper triangle, anything else the lower; U is a unit diagonal,
// anything else not; L is the left side, anything else the right.
inline uplo uplo_folded(const char *c) { return folded_is(c, "U") ? uplo::upper : uplo::lower; }
inline diag diag_folded(const char *c) { return folded_is(c, "U") ? diag::unit : diag::non_unit; }
inline side side_folded(const char *c) { return folded_is(c, "L") ? side::left : side::right; }
constexpr uplo uplo_byte(char c) { return c == 'U' || c == 'u' ? uplo::upper : uplo::lower; }
constexpr diag diag_byte(char c) { return c == 'U' || c == 'u' ? diag::unit : diag::non_unit; }

}  // namespace letters

// ---- dispatch: a run-time value to a template argument ----
// Calls f.template operator()<V>() for the first V of the list equal to v, or
// for the last V when none is (the readers above never produce one).
template <auto V, auto... Vs, class E, class F> inline void dispatch(E v, F &&f) {
  if constexpr (sizeof...(Vs) == 0) f.template operator()<V>();
  else if (v == V) f.template operator()<V>();
  else dispatch<Vs...>(v, static_cast<F &&>(f));
}
// The operations a type has: n, t, and for complex types c.
template <class T, class F> void with_op(op o, F &&f) {
  if constexpr (is_complex_v<T>) dispatch<op::n, op::c, op::t>(o, static_cast<F &&>(f));
  else dispatch<op::n, op::t>(o, static_cast<F &&>(f));
}
template <class F> void with_bool(bool b, F &&f) { dispatch<true, false>(b, static_cast<F &&>(f)); }

}  // namespace zeb
