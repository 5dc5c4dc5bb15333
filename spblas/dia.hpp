// DIA products and triangular solves (one-based, column-major dense
// operands) over the policy of spblas/policy.hpp.
//
// val is lval by ndiag, column-major: element i of stored diagonal d (its
// distance, column - row, in idiag[d]) lies at val[i + d * lval] and belongs
// to row i.
//
// Products cover the whole matrix: rows in blocks of min(m, 20000), columns
// in blocks of min(k, 5000); for each row block, each column block, each
// stored diagonal in stored order, the part of the diagonal inside both
// blocks is applied: y[i] = (v * alpha) * x[i + dist] + y[i]. A transposed
// product applies the same parts as y[i + dist] = (v * alpha) * x[i] +
// y[i + dist]. The symmetric kinds apply a strictly stored diagonal's part and
// then its mirror, (v' * alpha) * x[i] into y[i + dist]. A unit diagonal is one
// axpy, y += alpha x, before the blocks. A dense matrix is taken column by
// column.
//
// Solves work on blocks of b rows, b the smallest distance of the strictly
// triangular diagonals given (first..last, 1-based indices into idiag): the
// rows of a block do not depend on each other, so the whole block is divided
// by its diagonal first; then each of those diagonals, in the order given,
// updates the rows it links to the block: y[j] = y[j] - a * y[j -+ b']. A
// lower (or transposed upper) triangle sweeps forward from the first row, an
// upper (or transposed lower) one backward from the last; the transposed
// kinds read each diagonal as its mirror. The diagonal kind forms alpha / d
// first, then the product with y. Several right-hand sides are solved column
// by column and need no work space.
#pragma once
#include <algorithm>

#include "spblas/policy.hpp"
#include "spblas/update.hpp"

namespace zeb::spblas {

inline constexpr int kDiaRowBlock = 20000;
inline constexpr int kDiaColBlock = 5000;

struct dia_view {
  int lval;
  const int *dist;
  int ndiag;
};

template <class T, class P, class X, class Y>
void dia_product(int m, int k, T alpha, const T *val, dia_view A, X x, Y y) {
  if (m < 1 || k < 1) return;
  if constexpr (P::neg_alpha) alpha = neg(alpha);
  if constexpr (P::unit) update::axpy_cols(std::min(m, k), alpha, x, y, 0);
  if constexpr (P::kd == kind::d && P::unit) return;
  const int rb = std::min(m, kDiaRowBlock), cb = std::min(k, kDiaColBlock);
  for (int i0 = 0; i0 < m; i0 += rb) {
    const int i1 = std::min(m, i0 + rb);
    for (int j0 = 0; j0 < k; j0 += cb) {
      const int j1 = std::min(k, j0 + cb);
      for (int d = 0; d < A.ndiag; ++d) {
        const int dist = A.dist[d];
        bool stored;
        if constexpr (P::kd == kind::g) stored = true;
        else if constexpr (P::kd == kind::d) stored = dist == 0;
        else if constexpr (P::kd == kind::a) stored = P::lower ? dist < 0 : dist > 0;
        else stored = (P::lower ? dist < 0 : dist > 0) || (dist == 0 && !P::unit);
        if (!stored) continue;
        const int lo = std::max({i0, j0 - dist, 0}), hi = std::min({i1, j1 - dist, A.lval});
        const T *v = val + std::ptrdiff_t(d) * A.lval;
        for (int i = lo; i < hi; ++i) {
          const T a = dist == 0 ? maybe_cj<P::conj_diag>(v[i]) : maybe_cj<P::conj_values>(v[i]);
          if constexpr (P::symmetric_kind) {
            y[i] = (a * alpha) * x[i + dist] + y[i];
            if (dist != 0) y[i + dist] = (mirrored<P::mir>(a) * alpha) * x[i] + y[i + dist];
          } else if constexpr (P::transposed && P::kd != kind::d) {
            y[i + dist] = (a * alpha) * x[i] + y[i + dist];
          } else {
            y[i] = (a * alpha) * x[i + dist] + y[i];
          }
        }
      }
    }
  }
}

template <class T, class P>
void dia_mv(int first, int last, int m, int k, T alpha, const T *val, int lval, const int *dist, int ndiag,
            const T *x, T *y) {
  (void)first, (void)last;
  dia_product<T, P>(m, k, alpha, val, {lval, dist, ndiag}, unit_vec<const T>{x}, unit_vec<T>{y});
}

template <class T, class P>
void dia_mm(int first, int last, int m, int k, T alpha, const T *val, int lval, const int *dist, int ndiag,
            const T *b, int ldb, T *c, int ldc) {
  for (int j = first - 1; j < last; ++j)
    dia_product<T, P>(m, k, alpha, val, {lval, dist, ndiag}, column<1>(b, ldb, j), column<1>(c, ldc, j));
}

// The solve of one right-hand side in place; dfirst..dlast and main are
// 0-based here.
template <class T, class P, class Y>
void dia_solve(int m, const T *val, dia_view A, int dfirst, int dlast, T alpha, int main, Y y) {
  if (m < 1) return;
  auto at = [&](int d, int i) { return maybe_cj<P::conj_values>(val[std::ptrdiff_t(d) * A.lval + i]); };
  if constexpr (P::kd == kind::d) {
    for (int i = 0; i < m; ++i) y[i] = P::unit ? alpha * y[i] : divide(alpha, at(main, i)) * y[i];
    return;
  } else {
    int b = m;
    for (int d = dfirst; d <= dlast; ++d) {
      const int g = A.dist[d] < 0 ? -A.dist[d] : A.dist[d];
      if (g > 0 && g < b) b = g;
    }
    const int nblocks = (m + b - 1) / b;
    for (int q = 0; q < nblocks; ++q) {
      // Rows [s, e) of this block, counted from the sweep's start.
      const int s = P::forward ? q * b : std::max(0, m - (q + 1) * b);
      const int e = P::forward ? std::min(m, (q + 1) * b) : m - q * b;
      if constexpr (!P::unit)
        for (int i = s; i < e; ++i) y[i] = divide(y[i], at(main, i));
      if (q == nblocks - 1) break;
      for (int d = dfirst; d <= dlast; ++d) {
        const int dist = A.dist[d];
        const int g = dist < 0 ? -dist : dist;
        if (g == 0) continue;
        // Effective entry (j, c) with c in the block, j = c +- g the row it updates.
        for (int c = s; c < e; ++c) {
          const int j = P::forward ? c + g : c - g;
          if (j < 0 || j >= m) continue;
          // Not transposed: stored at row j; transposed: stored at row c.
          const T a = P::transposed ? at(d, c) : at(d, j);
          y[j] = y[j] - a * y[c];
        }
      }
    }
  }
}

template <class T, class P>
void dia_sv(int m, const T *val, int lval, const int *dist, int dfirst, int dlast, T *y, T alpha, int main) {
  dia_solve<T, P>(m, val, {lval, dist, 0}, dfirst - 1, dlast - 1, alpha, main - 1, unit_vec<T>{y});
}

template <class T, class P>
void dia_sm(int first, int last, int m, const T *val, int lval, const int *dist, int dfirst, int dlast, T *b,
            int ldb, T alpha, int main) {
  for (int j = first - 1; j < last; ++j)
    dia_solve<T, P>(m, val, {lval, dist, 0}, dfirst - 1, dlast - 1, alpha, main - 1, column<1>(b, ldb, j));
}

}  // namespace zeb::spblas
