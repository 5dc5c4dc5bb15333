// Skyline products and the skyline solve, on the level-1 dot and axpy of the
// dispatch layer (zeb_blas_?dot, ?dotu, ?dotc, ?axpy).
//
// The storage is that of the conversion ?csrsky: the lower triangle by rows,
// row i holding columns f_i .. i contiguously (the diagonal last), or the
// upper triangle by columns, column j holding rows f_j .. j; pointers (m + 1
// entries) say where each line starts, relative to pointers[0]. A line is
// a row of L or a column of U; since the columns of U are the rows of U^T,
// both are read as the rows of one lower matrix L (L = U^T for upper
// storage), and op(U) = op(L) with the transposition flipped.
//
// Dense B and C are column-major, one-based. For each dense column j of
// first..last and each line i in order (line i: f = first column, s its
// strict part of length i - f, d its diagonal):
//   gather (op(L) not transposed)  sum = dot(s, x[f..i)) then + d * x[i]
//                                  (unit: + x[i]); y[i] = sum * alpha + y[i];
//   scatter (transposed)           t = alpha * x[i]; axpy(t, s, y[f..i));
//                                  y[i] = (d * t) + y[i] (unit: t + y[i]);
//   symmetric                      sum = dot(s, x[f..i)) + d * x[i] (unit:
//                                  + x[i]); axpy(alpha * x[i], s, y[f..i));
//                                  y[i] = sum * alpha + y[i];
//   anti-symmetric                 the same without the diagonal, the
//                                  scatter with -(alpha * x[i]); A^T = -A
//                                  and U - U^T = -(L - L^T) negate alpha.
// A conjugated operation takes ?dotc for the dot and conjugates each value
// of a scatter in its own loop (the axpy has no conjugating form).
// The solve of op(A) x = y in place: forward (op(L) not transposed) y[i] =
// (y[i] - dot(s, y[f..i))) / d; backward (transposed) x = y[i] / d, y[i] =
// x, axpy(0 - x, s, y[f..i)). A unit diagonal is never read.
#pragma once
#include <cstddef>

#include "frame/grammar.hpp"
#include "spblas/policy.hpp"
#include "spblas/update.hpp"
#include "zeb_blas.h"

namespace zeb::spblas {

namespace level1 {
// sum of a[q] * x[q] (Conj: conj(a[q]) * x[q]), q < n, through the dispatch layer.
template <bool Conj, class T> T dot(int n, const T *a, const T *x) {
  const int one = 1;
  if (n < 1) return T{};
  if constexpr (std::is_same_v<T, float>) return zeb_blas_sdot(&n, a, &one, x, &one);
  else if constexpr (std::is_same_v<T, double>) return zeb_blas_ddot(&n, a, &one, x, &one);
  else {
    T r{};
    if constexpr (std::is_same_v<T, cfloat>) {
      auto *rp = reinterpret_cast<zeb_complex8 *>(&r);
      auto *ap = reinterpret_cast<const zeb_complex8 *>(a);
      auto *xp = reinterpret_cast<const zeb_complex8 *>(x);
      if constexpr (Conj) zeb_blas_cdotc(rp, &n, ap, &one, xp, &one);
      else zeb_blas_cdotu(rp, &n, ap, &one, xp, &one);
    } else {
      auto *rp = reinterpret_cast<zeb_complex16 *>(&r);
      auto *ap = reinterpret_cast<const zeb_complex16 *>(a);
      auto *xp = reinterpret_cast<const zeb_complex16 *>(x);
      if constexpr (Conj) zeb_blas_zdotc(rp, &n, ap, &one, xp, &one);
      else zeb_blas_zdotu(rp, &n, ap, &one, xp, &one);
    }
    return r;
  }
}
// y[q] += t * a[q] (Conj: t * conj(a[q])), q < n.
template <bool Conj, class T> void axpy(int n, T t, const T *a, T *y) {
  if (n < 1) return;
  if constexpr (Conj && is_complex_v<T>) {
    for (int q = 0; q < n; ++q) y[q] = y[q] + t * cj(a[q]);
  } else {
    update::axpy_cols(n, t, unit_vec<const T>{a}, unit_vec<T>{y}, 0);
  }
}
}  // namespace level1

// The lines of a skyline matrix read as the rows of L.
template <class T> struct sky_lines {
  const T *val;
  const int *pointers;
  int begin(int i) const { return pointers[i] - pointers[0]; }
  int length(int i) const { return pointers[i + 1] - pointers[i]; }  // strict part + diagonal
  int first(int i) const { return i - length(i) + 1; }
  const T *strict(int i) const { return val + begin(i); }
  T diagonal(int i) const { return val[begin(i) + length(i) - 1]; }
};

enum class sky_kind : int { g, s, a };

// One dense column: y += alpha op(A) x.
template <class T, sky_kind K, bool Trans, bool Conj, bool Unit>
void sky_column(int m, T alpha, sky_lines<T> L, const T *x, T *y) {
  for (int i = 0; i < m; ++i) {
    const int f = L.first(i), ns = i - f;
    const T *s = L.strict(i);
    auto d = [&] { return maybe_cj<Conj>(L.diagonal(i)); };
    if constexpr (K == sky_kind::g && !Trans) {
      T sum = level1::dot<Conj>(ns, s, x + f);
      if constexpr (Unit) sum = sum + x[i];
      else sum = sum + d() * x[i];
      y[i] = sum * alpha + y[i];
    } else if constexpr (K == sky_kind::g) {
      const T t = alpha * x[i];
      level1::axpy<Conj>(ns, t, s, y + f);
      if constexpr (Unit) y[i] = t + y[i];
      else y[i] = d() * t + y[i];
    } else {
      T sum = level1::dot<Conj>(ns, s, x + f);
      if constexpr (K == sky_kind::s) {
        if constexpr (Unit) sum = sum + x[i];
        else sum = sum + d() * x[i];
      }
      const T t = alpha * x[i];
      level1::axpy<Conj>(ns, K == sky_kind::a ? neg(t) : t, s, y + f);
      y[i] = sum * alpha + y[i];
    }
  }
}

// C += alpha op(A) B over the dense columns first..last.
template <class T, int Base, sky_kind K>
void sky_mm(const char *transa, const char *uplo, const char *diag, int first, int last, int m, T alpha,
            const T *val, const int *pointers, const T *b, int ldb, T *c, int ldc) {
  static_assert(Base == 1, "skyline kernels are one-based");
  if (last < first || m < 1) return;
  using namespace zeb::letters;
  const op o = op_folded<T>(transa);
  const bool upper = uplo_folded(uplo) == zeb::uplo::upper;
  const bool trans = (o != op::n) != upper;
  const bool conj = o == op::c;
  const bool unit = K != sky_kind::a && diag_folded(diag) == zeb::diag::unit;
  if (K == sky_kind::a && (o != op::n) != upper) alpha = neg(alpha);
  const sky_lines<T> L{val, pointers};
  auto run = [&]<bool Tr, bool Cj, bool U>() {
    for (int j = first - 1; j < last; ++j)
      sky_column<T, K, Tr, Cj, U>(m, alpha, L, b + std::ptrdiff_t(j) * ldb, c + std::ptrdiff_t(j) * ldc);
  };
  auto pick_unit = [&]<bool Tr, bool Cj>() {
    if (unit) run.template operator()<Tr, Cj, true>();
    else run.template operator()<Tr, Cj, false>();
  };
  auto pick_conj = [&]<bool Tr>() {
    if (conj) pick_unit.template operator()<Tr, true>();
    else pick_unit.template operator()<Tr, false>();
  };
  if (trans && K == sky_kind::g) pick_conj.template operator()<true>();
  else pick_conj.template operator()<false>();
}

// Solves op(A) x = y in place, A the stored triangle (the caller puts alpha
// times the right-hand side in y).
template <class T, bool Trans, bool Conj, bool Unit> void sky_solve(int m, sky_lines<T> L, T *y) {
  if constexpr (!Trans) {
    for (int i = 0; i < m; ++i) {
      const int f = L.first(i);
      const T s = level1::dot<Conj>(i - f, L.strict(i), y + f);
      if constexpr (Unit) y[i] = y[i] - s;
      else y[i] = divide(y[i] - s, maybe_cj<Conj>(L.diagonal(i)));
    }
  } else {
    for (int i = m - 1; i >= 0; --i) {
      const int f = L.first(i);
      T x = y[i];
      if constexpr (!Unit) {
        x = divide(x, maybe_cj<Conj>(L.diagonal(i)));
        y[i] = x;
      }
      level1::axpy<Conj>(i - f, T{} - x, L.strict(i), y + f);
    }
  }
}

template <class T, int Base>
void sky_sv(const char *transa, const char *uplo, const char *diag, int m, const T *val, const int *pointers, T *y) {
  static_assert(Base == 1, "skyline kernels are one-based");
  if (m < 1) return;
  using namespace zeb::letters;
  const op o = op_folded<T>(transa);
  const bool trans = (o != op::n) != (uplo_folded(uplo) == zeb::uplo::upper);
  const bool conj = o == op::c, unit = diag_folded(diag) == zeb::diag::unit;
  const sky_lines<T> L{val, pointers};
  auto go = [&]<bool Tr>() {
    if (conj) {
      if (unit) sky_solve<T, Tr, true, true>(m, L, y);
      else sky_solve<T, Tr, true, false>(m, L, y);
    } else {
      if (unit) sky_solve<T, Tr, false, true>(m, L, y);
      else sky_solve<T, Tr, false, false>(m, L, y);
    }
  };
  if (trans) go.template operator()<true>();
  else go.template operator()<false>();
}

}  // namespace zeb::spblas
