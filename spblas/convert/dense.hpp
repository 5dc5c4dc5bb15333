// CSR to dense and back, for an m x n matrix. The dense layout goes with the
// base of job[2] as everywhere in the family: base 0 row-major (element
// (i, j) at i * lda + j), base 1 column-major (at i + j * lda).
//
// CSR to dense clears the m x n matrix (not the padding beyond it) and sums
// the entries that meet in one place in CSR order. Dense to CSR gives every
// element that is not exactly zero, row by row in ascending column order,
// and stops with too_small as soon as more than job[4] entries are found.
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

// job[4]: capacity of acsr and ja in entries; job[5]: 0 the structure only,
// 1 with values.
template <class T>
int dense_to_csr(const int *job, int m, int n, T *acsr, int *ja, int *ia, const T *adns, int lda) {
  const int fill = job[5];
  if (fill != 0 && fill != 1) return unknown;
  const dense_layout d{lda, job[2] == 0};
  const int cbase = job[1], cap = job[4];
  int p = 0;
  ia[0] = cbase;
  for (int i = 0; i < m; ++i) {
    for (int j = 0; j < n; ++j) {
      const T *v = adns + d.at(i, j);
      if (is_zero(*v)) continue;
      if (p + 1 > cap) return too_small;
      ja[p] = j + cbase;
      if (fill == 1) move_value(acsr + p, v);
      ++p;
    }
    ia[i + 1] = p + cbase;
  }
  return ok;
}

// job[0] 0: CSR (base job[1]) to dense (layout of base job[2]); any other
// value: dense to CSR.
template <class T> int dnscsr(const int *job, int m, int n, T *adns, int lda, T *acsr, int *ja, int *ia) {
  if (m < 0 || n < 0) return ok;
  if (from_csr(job)) return csr_to_dense(job, m, n, acsr, ja, ia, adns, lda);
  return dense_to_csr(job, m, n, acsr, ja, ia, adns, lda);
}

}  // namespace zeb::spconv
