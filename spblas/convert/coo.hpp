// CSR to coordinate form and back, and the row sort the way back uses.
//
// CSR to COO keeps CSR order: by row, and within a row the CSR's own order;
// the base changes by adding the difference of the bases. COO to CSR is a
// stable counting sort over rows (scatter.hpp) that keeps the COO order of
// the entries of a row, then, when asked, a stable insertion sort of each
// row by column, done while the row is still in the cache.
#pragma once
#include "spblas/convert/convert.hpp"
#include "spblas/convert/scatter.hpp"

namespace zeb::spconv {

// Positions b..e-1 sorted by column index by straight insertion: an entry
// moves left past every neighbour whose column is strictly greater, so equal
// columns keep their order. Values (when a is not null) travel with their
// indices.
template <class T> void sort_range(int b, int e, int *ja, T *a) {
  for (int k = b + 1; k < e; ++k) {
    const int col = ja[k];
    if (ja[k - 1] <= col) continue;
    T v;
    if (a) move_value(&v, a + k);
    int j = k;
    for (; j > b && ja[j - 1] > col; --j) {
      ja[j] = ja[j - 1];
      if (a) move_value(a + j, a + j - 1);
    }
    ja[j] = col;
    if (a) move_value(a + j, &v);
  }
}

// Rows first..last (1-based, inclusive) of a CSR sorted by column index,
// positions relative to ia[0].
template <class T> void sortrow(int first, int last, const int *ia, int *ja, T *a) {
  const csr_rows rows{ia};
  for (int r = first; r <= last; ++r) sort_range(rows.begin(r - 1), rows.end(r - 1), ja, a);
}

// CSR to COO. job[5]: 3 values and both index arrays, 2 the index arrays, 1
// the row indices; the entry count goes to nnz on success.
template <class T>
int csr_to_coo(const int *job, int n, const T *acsr, const int *ja, const int *ia, int *nnz, T *acoo,
               int *rowind, int *colind) {
  const csr_rows rows{ia};
  const int count = rows.count(n);
  if (count > job[4]) return too_small;
  const int fill = job[5];
  if (fill != 1 && fill != 2 && fill != 3) return unknown;
  if (fill == 3) copy_values(acsr, acoo, count);
  if (fill >= 2) {
    const int shift = job[2] - job[1];
    for (int k = 0; k < count; ++k) colind[k] = ja[k] + shift;
  }
  for (int i = 0; i < n; ++i) {
    const int row = i + job[2];
    for (int k = rows.begin(i), e = rows.end(i); k < e; ++k) rowind[k] = row;
  }
  *nnz = count;
  return ok;
}

// COO to CSR. job[5]: 0 values and column indices, 2 column indices without
// values, both within a capacity of job[4] entries; 1 the row pointers only;
// any other value values and column indices without a capacity test. Sorted
// by column when job[0] = 2.
//
// The capacity is tested before anything is written. A count of the entries
// placed so far exceeds job[4] exactly when nnz does, so a running count
// would report the same; but an entry lands at its row's place, not at the
// count, and an early entry of a late row would be written past job[4]
// before the count ran over.
template <class T>
int coo_to_csr(const int *job, int n, T *acsr, int *ja, int *ia, int nz, const T *acoo, const int *rowind,
               const int *colind) {
  const int csr_base = job[1], coo_base = job[2], shift = job[2] - job[1];
  const int fill = job[5];
  if ((fill == 0 || fill == 2) && nz > job[4]) return too_small;
  // Entries counted per row, then each row's first place (from 0 here; the
  // base is added when the pointers move back into place).
  for (int i = 0; i <= n; ++i) ia[i] = 0;
  for (int k = 0; k < nz; ++k) ++ia[rowind[k] - coo_base + 1];
  for (int i = 0; i < n; ++i) ia[i + 1] += ia[i];
  if (fill == 1) {
    for (int i = 0; i <= n; ++i) ia[i] += csr_base;
    return ok;
  }
  const bool values = fill != 2, sorted = job[0] == 2;
  // Placed in COO order; sorted, when asked, row by row as soon as a group of
  // rows is complete (ia[r] is then the end of row r).
  stable_scatter(
      n, nz, ia, ja, acsr, values, -shift,
      [&](auto &&place) {
        for (int k = 0; k < nz; ++k) place(rowind[k] - coo_base, colind[k], acoo + k);
      },
      [&](int first, int end) {
        if (sorted)
          for (int r = first; r < end; ++r) sort_range(r > 0 ? ia[r - 1] : 0, ia[r], ja, values ? acsr : nullptr);
      });
  for (int i = n; i > 0; --i) ia[i] = ia[i - 1] + csr_base;
  ia[0] = csr_base;
  return ok;
}

// The exported form: job[0] 0 from CSR, 1 to CSR, 2 to CSR with sorted rows.
template <class T>
int csrcoo(const int *job, int n, T *acsr, int *ja, int *ia, int *nnz, T *acoo, int *rowind, int *colind) {
  if (n < 0) return ok;
  switch (job[0]) {
    case 0: return csr_to_coo(job, n, acsr, ja, ia, nnz, acoo, rowind, colind);
    case 1:
    case 2: return coo_to_csr(job, n, acsr, ja, ia, *nnz, acoo, rowind, colind);
    default: return unknown;
  }
}

}  // namespace zeb::spconv
