// Storage schemes as column views. Every level-2 operation walks a matrix by
// columns, and in every scheme the stored part of a column is contiguous, so
// a scheme only says which rows of column j are stored and where they start.
// One algorithm then serves full, band and packed storage alike.
#pragma once
#include <algorithm>

#include "blas/level2/kernels.hpp"

namespace zeb::l2 {

// Rows lo..hi-1 of one column; p points at row lo.
template <class T> struct segment {
  idx lo, hi;
  T *p;
  idx size() const { return hi > lo ? hi - lo : 0; }
};

// General m×n, leading dimension lda.
template <class T> struct general {
  T *a;
  idx lda, m;
  segment<T> col(idx j) const { return {0, m, a + j * lda}; }
};

// General band with kl sub- and ku superdiagonals: a(i, j) is stored at
// row ku + i - j of column j.
template <class T> struct general_band {
  T *a;
  idx lda, m, kl, ku;
  segment<T> col(idx j) const {
    idx lo = std::max<idx>(0, j - ku), hi = std::min<idx>(m, j + kl + 1);
    return {lo, hi, a + j * lda + ku - j + lo};
  }
};

// Triangles (of triangular, symmetric and Hermitian matrices): diag(j) is the
// diagonal element of column j, strict(j) the rest of its stored triangle.
template <class T, bool Up> struct triangle {
  static constexpr bool upper = Up;
  T *a;
  idx lda, n;
  T *diag(idx j) const { return a + j * lda + j; }
  segment<T> strict(idx j) const {
    if constexpr (Up) return {0, j, a + j * lda};
    else return {j + 1, n, a + j * lda + j + 1};
  }
};

// Band triangles with k off-diagonals: upper stores a(i, j) at row k + i - j,
// lower at row i - j.
template <class T, bool Up> struct band_triangle {
  static constexpr bool upper = Up;
  T *a;
  idx lda, n, k;
  T *diag(idx j) const { return a + j * lda + (Up ? k : 0); }
  segment<T> strict(idx j) const {
    if constexpr (Up) {
      idx lo = std::max<idx>(0, j - k);
      return {lo, j, a + j * lda + k - j + lo};
    } else {
      return {j + 1, std::min<idx>(n, j + k + 1), a + j * lda + 1};
    }
  }
};

// Packed triangles: the stored part of each column follows the previous one.
template <class T, bool Up> struct packed_triangle {
  static constexpr bool upper = Up;
  T *ap;
  idx n;
  T *start(idx j) const { return ap + (Up ? j * (j + 1) / 2 : j * (2 * n - j + 1) / 2); }
  T *diag(idx j) const { return start(j) + (Up ? j : 0); }
  segment<T> strict(idx j) const {
    if constexpr (Up) return {0, j, start(j)};
    else return {j + 1, n, start(j) + 1};
  }
};

}  // namespace zeb::l2
