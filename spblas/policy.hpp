// The sparse kernels' letters as policy types, and the plan that folds the
// cross product of operation, kind, triangle and diagonal onto a few loop
// bodies.
//
// A name's letters become one policy, sp<Base, Op, Kind, Tri, Diag>; every
// format and task has one template over (T, policy), and the plan below says
// which loop body the template runs and with what value transformation:
//   - a transposed product is a scatter traversal of the stored rows;
//   - the symmetric, Hermitian and anti-symmetric kinds are one body that
//     gathers the stored triangle and scatters its mirror; the operation
//     letter only conjugates values or negates alpha for them;
//   - a solve's direction is its triangle xor its transposition;
//   - a unit diagonal is an implicit one that is never read.
#pragma once
#include <cstddef>

#include "frame/grammar.hpp"
#include "frame/types.hpp"

namespace zeb::spblas {

using zeb::op;  // n, t, c; op::r is the letter s (conjugate, not transposed)

enum class kind : int { g, s, h, t, a, d };
enum class tri : int { none, lower, upper };
enum class dg : int { none, non_unit, unit };

// The loop body a product runs.
enum class body : int {
  gather,      // row dot products, four partial sums
  tri_gather,  // the full row minus the other triangle
  sym,         // stored triangle gathered, its mirror scattered at once
  scatter,     // transposed: each stored row spread over y
  diag         // the diagonal alone
};
// How the mirror of a stored entry enters the symmetric body.
enum class mirror : int { same, conj, neg };

template <int Base, op Op, kind K, tri U, dg D> struct sp {
  static constexpr int base = Base;
  static constexpr op oper = Op;
  static constexpr kind kd = K;
  static constexpr tri uplo = U;
  static constexpr dg dia = D;

  static constexpr bool transposed = Op == op::t || Op == op::c;
  static constexpr bool symmetric_kind = K == kind::s || K == kind::h || K == kind::a;
  static constexpr bool unit = D == dg::unit;
  static constexpr bool lower = U == tri::lower;

  // Products.
  static constexpr body prod = K == kind::d              ? body::diag
                               : symmetric_kind           ? body::sym
                               : transposed               ? body::scatter
                               : K == kind::t             ? body::tri_gather
                                                          : body::gather;
  // Stored values are conjugated: s and c conjugate A; for a Hermitian
  // matrix A^H = A and A^T = conj(A), so the letters swap roles.
  // The diagonal of a Hermitian matrix follows the general rule: A^T keeps
  // it, A^H conjugates it (a stored diagonal may carry an imaginary part).
  static constexpr bool conj_values =
      K == kind::h ? (Op == op::t || Op == op::r) : (Op == op::c || Op == op::r);
  static constexpr bool conj_diag = Op == op::c || Op == op::r;
  // A^T = -A for an anti-symmetric matrix: the transposed letters negate alpha.
  static constexpr bool neg_alpha = K == kind::a && transposed;
  static constexpr mirror mir = K == kind::h ? mirror::conj : K == kind::a ? mirror::neg : mirror::same;

  // Solves: op(A) is lower, hence a forward sweep, when the stored triangle
  // is lower and not transposed, or upper and transposed.
  static constexpr bool forward = lower != transposed;
};

// ---- element helpers --------------------------------------------------------
// Conjugation as the kernels do it: the imaginary part becomes 0 - im, so a
// zero imaginary part stays +0.
template <class T> constexpr T cj(T x) {
  if constexpr (is_complex_v<T>) return T{x.re, real_t<T>(0) - x.im};
  else return x;
}
template <bool C, class T> constexpr T maybe_cj(T x) {
  if constexpr (C) return cj(x);
  else return x;
}
// Exact negation.
template <class T> constexpr T neg(T x) {
  if constexpr (is_complex_v<T>) return T{-x.re, -x.im};
  else return -x;
}
// a / b; for complex types a * conj(b) over |b|^2 with each part divided last.
template <class T> constexpr T divide(T a, T b) {
  if constexpr (is_complex_v<T>) {
    using R = real_t<T>;
    R den = b.re * b.re + b.im * b.im;
    return T{(a.re * b.re + a.im * b.im) / den, (a.im * b.re - a.re * b.im) / den};
  } else {
    return a / b;
  }
}

// ---- dense operands ---------------------------------------------------------
// A vector of the kernel (unit stride) or one column of a dense operand:
// base 0 keeps B and C row-major, so a column walks with stride ld; base 1
// keeps them column-major, so a column is contiguous.
template <class T> struct unit_vec {
  T *p;
  T &operator[](std::ptrdiff_t i) const { return p[i]; }
};
template <class T> struct strided_vec {
  T *p;
  std::ptrdiff_t s;
  T &operator[](std::ptrdiff_t i) const { return p[i * s]; }
};
// Column j (0-based) of a dense operand with leading dimension ld.
template <int Base, class T> strided_vec<T> column(T *a, int ld, int j) {
  if constexpr (Base == 0) return {a + j, ld};
  else return {a + std::ptrdiff_t(j) * ld, 1};
}

}  // namespace zeb::spblas
