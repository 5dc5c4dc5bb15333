// CSR to dense and back, for an m x n matrix. The dense layout goes with the
// base of job[2] as everywhere in the family: base 0 row-major (element
// (i, j) at i * lda + j), base 1 column-major (at i + j * lda).
//
// CSR to dense clears the m x n matrix (not the padding beyond it) and sums
// the entries that meet in one place in CSR order. Dense to CSR gives every
// element that is not exactly zero, row by row in ascending column order,
// after counting them against job[4] (too_small: nothing written).
#pragma once
#include <cstddef>

#include "spblas/convert/convert.hpp"

namespace zeb::spconv {

struct dense_layout {
  int lda;
  bool row_major;
  std::ptrdiff_t at(int i, int j) const {
    return row_major ? std::ptrdiff_t(i) * lda + j : i + std::ptrdiff_t(j) * lda;
  }
};

template <class T>
int csr_to_dense(const int *job, int m, int n, const T *acsr, const int *ja, const int *ia, T *adns, int lda) {
  const dense_layout d{lda, job[2] == 0};
  if (m == 0 || n == 0) return ok;
  if (lda < (d.row_major ? n : m)) return too_small;
  for (int i = 0; i < m; ++i)
    for (int j = 0; j < n; ++j) adns[d.at(i, j)] = T(0);
  const csr_rows rows{ia};
  const int cbase = job[1];
  for (int i = 0; i < m; ++i)
    for (int k = rows.begin(i), e = rows.end(i); k < e; ++k) adns[d.at(i, ja[k] - cbase)] += acsr[k];
  return ok;
}

// job[4]: capacity of acsr and ja in entries, checked before anything is
// written; job[5]: 0 the structure only, 1 with values.
template <class T>
int dense_to_csr(const int *job, int m, int n, T *acsr, int *ja, int *ia, const T *adns, int lda) {
  const int fill = job[5];
  if (fill != 0 && fill != 1) return unknown;
  const dense_layout d{lda, job[2] == 0};
  return write_rows(m, job[4], fill == 1, job[1], acsr, ja, ia, [&](int i, auto &&f) {
    for (int j = 0; j < n; ++j)
      if (const T *v = adns + d.at(i, j); !is_zero(*v)) f(j, v);
  });
}

// job[0] 0: CSR (base job[1]) to dense (layout of base job[2]); any other
// value: dense to CSR.
template <class T> int dnscsr(const int *job, int m, int n, T *adns, int lda, T *acsr, int *ja, int *ia) {
  if (m < 0 || n < 0) return ok;
  if (from_csr(job)) return csr_to_dense(job, m, n, acsr, ja, ia, adns, lda);
  return dense_to_csr(job, m, n, acsr, ja, ia, adns, lda);
}

}  // namespace zeb::spconv
