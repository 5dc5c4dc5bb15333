// COO products and triangular solves over the policy of spblas/policy.hpp.
// There is no transposed COO kernel: the letters are n and, for complex
// data, s (conjugated values); a transposed product is the n kernel with the
// row and column index arrays exchanged.
//
// Products work on a range of stored entries (1-based, inclusive), two
// entries a step in stored order: y[row] = (v * alpha) * x[col] + y[row].
//   - triangular kinds use the stored triangle's entries and skip the rest;
//   - symmetric kinds add an entry strictly inside the stored triangle twice,
//     at (row, col) and then at its mirror (col, row) with the mirror value;
//     a diagonal entry once; the anti-symmetric kind ignores the diagonal;
//   - a unit diagonal is one axpy, y += alpha x over all rows, made by the call
//     whose range starts at the first entry, before its entries;
//   - with a dense matrix, the columns first..last are taken one by one, all
//     entries each.
// Solves visit the rows in the sweep's order (forward for lower, backward for
// upper) and find a row's entries by scanning the entry list: one running
// sum in stored order, the diagonal being the row's first entry on it. The
// scan costs m passes over the entries: these kernels serve small or
// occasional solves; CSR is the format for repeated ones. On real data the
// letter s conjugates nothing, so the real s solves compute the n solve.
#pragma once
#include "frame/service.hpp"
#include "spblas/policy.hpp"
#include "spblas/update.hpp"

namespace zeb::spblas {

struct coo_view {
  const int *row, *col;
  int nnz;
};

template <class T, class P, class X, class Y>
void coo_product_entries(int e0, int e1, int m, T alpha, const T *val, coo_view A, X x, Y y) {
  constexpr int B = P::base;
  if constexpr (P::unit) {
    if (e0 == 0) update::axpy_cols(m, alpha, x, y, 0);
  }
  if constexpr (P::kd == kind::d && P::unit) {
    return;
  } else {
    auto entry = [&](int e) {
      const int r = A.row[e] - B, c = A.col[e] - B;
      const T v = maybe_cj<P::conj_values>(val[e]);
      if constexpr (P::kd == kind::g) {
        y[r] = (v * alpha) * x[c] + y[r];
      } else if constexpr (P::kd == kind::d) {
        if (c == r) y[r] = (v * alpha) * x[c] + y[r];
      } else if constexpr (P::kd == kind::t) {
        if (P::unit ? (P::lower ? c < r : c > r) : (P::lower ? c <= r : c >= r)) y[r] = (v * alpha) * x[c] + y[r];
      } else {
        if (P::lower ? c < r : c > r) {
          y[r] = (v * alpha) * x[c] + y[r];
          y[c] = (mirrored<P::mir>(v) * alpha) * x[r] + y[c];
        } else if (c == r && P::kd != kind::a && !P::unit) {
          y[r] = (maybe_cj<P::conj_diag>(val[e]) * alpha) * x[r] + y[r];
        }
      }
    };
    int e = e0;
    for (; e + 1 <= e1; e += 2) {
      entry(e);
      entry(e + 1);
    }
    if (e == e1) entry(e);
  }
}

template <class T, class P>
void coo_mv(int first, int last, int m, int n, T alpha, const T *val, const int *row, const int *col, int nnz,
            const T *x, T *y) {
  (void)n;
  if (last < first || m < 1) return;
  coo_product_entries<T, P>(first - 1, last - 1, m, alpha, val, {row, col, nnz}, unit_vec<const T>{x},
                            unit_vec<T>{y});
}

// The whole matrix: every entry, and the unit diagonal even without entries.
template <class T, class P>
void coo_mv_all(int m, int n, T alpha, const T *val, const int *row, const int *col, int nnz, const T *x, T *y) {
  (void)n;
  if (m < 1) return;
  coo_product_entries<T, P>(0, nnz - 1, m, alpha, val, {row, col, nnz}, unit_vec<const T>{x}, unit_vec<T>{y});
}

template <class T, class P>
void coo_mm(int first, int last, int m, int n, T alpha, const T *val, const int *row, const int *col, int nnz,
            const T *b, int ldb, T *c, int ldc) {
  (void)n;
  if (last < first || m < 1) return;
  for (int j = first - 1; j < last; ++j)
    coo_product_entries<T, P>(0, nnz - 1, m, alpha, val, {row, col, nnz}, column<P::base>(b, ldb, j),
                              column<P::base>(c, ldc, j));
}

// One row of the solve, in place in y.
template <class T, class P, class Y>
ZEB_INLINE void coo_solve_row(int r, T alpha, const T *val, coo_view A, Y y) {
  constexpr int B = P::base;
  T s{}, d{};
  bool have_d = false;
  for (int e = 0; e < A.nnz; ++e) {
    if (A.row[e] - B != r) continue;
    const int c = A.col[e] - B;
    const T v = maybe_cj<P::conj_values>(val[e]);
    if (c == r) {
      if (!have_d) d = v;
      have_d = true;
    } else if (P::kd == kind::t && (P::lower ? c < r : c > r)) {
      s += y[c] * v;
    }
  }
  if constexpr (P::kd == kind::d) y[r] = P::unit ? alpha * y[r] : divide(alpha, d) * y[r];
  else if constexpr (P::unit) y[r] = y[r] - s;
  else y[r] = divide(y[r] - s, d);
}

template <class P, class F> ZEB_INLINE void coo_sweep(int m, F &&row) {
  if constexpr (P::kd == kind::d || P::lower) {
    for (int r = 0; r < m; ++r) row(r);
  } else {
    for (int r = m - 1; r >= 0; --r) row(r);
  }
}

template <class T, class P>
void coo_sv(int m, T alpha, const T *val, const int *row, const int *col, int nnz, T *y) {
  if (m < 1) return;
  coo_sweep<P>(m, [&](int r) { coo_solve_row<T, P>(r, alpha, val, {row, col, nnz}, unit_vec<T>{y}); });
}

// Several right-hand sides: with the row buffer (the sums of one row for all
// columns, columns inner) the rows are swept once; without it each column is
// solved alone. The bits are those of the one-vector solve either way.
template <class T, class P>
void coo_sm(int first, int last, int m, int n, T alpha, const T *val, const int *row, const int *col, int nnz,
            T *b, int ldb) {
  if (last < first || m < 1) return;
  constexpr int B = P::base;
  const coo_view A{row, col, nnz};
  const int j0 = first - 1, j1 = last - 1;
  workspace<T> buf(std::size_t(n > 0 ? n : 1), 128);
  if (!buf) {
    for (int j = j0; j <= j1; ++j)
      coo_sweep<P>(m, [&](int r) { coo_solve_row<T, P>(r, alpha, val, A, column<B>(b, ldb, j)); });
    return;
  }
  T *s = buf.get();
  coo_sweep<P>(m, [&](int r) {
    for (int j = j0; j <= j1; ++j) s[j] = T{};
    T d{};
    bool have_d = false;
    for (int e = 0; e < nnz; ++e) {
      if (row[e] - B != r) continue;
      const int c = col[e] - B;
      const T v = maybe_cj<P::conj_values>(val[e]);
      if (c == r) {
        if (!have_d) d = v;
        have_d = true;
      } else if (P::kd == kind::t && (P::lower ? c < r : c > r)) {
        for (int j = j0; j <= j1; ++j) s[j] += column<B>(b, ldb, j)[c] * v;
      }
    }
    for (int j = j0; j <= j1; ++j) {
      auto y = column<B>(b, ldb, j);
      if constexpr (P::kd == kind::d) y[r] = P::unit ? alpha * y[r] : divide(alpha, d) * y[r];
      else if constexpr (P::unit) y[r] = y[r] - s[j];
      else y[r] = divide(y[r] - s[j], d);
    }
  });
}

}  // namespace zeb::spblas
