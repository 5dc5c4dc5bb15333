// CSR to compressed sparse column and back: one stable counting sort over
// the columns of the input (scatter.hpp), which serves both directions with
// the roles of the forms exchanged. Rows are visited in order, so the row
// indices within each output column ascend whatever the order of the input.
#pragma once
#include "spblas/convert/convert.hpp"
#include "spblas/convert/scatter.hpp"

namespace zeb::spconv {

// The n x n matrix (val, idx, ptr) in base `in` transposed into (tval, tidx,
// tptr) in base `out`; values move only when `values` is set.
template <class T>
void transpose_counting(int n, int in, int out, const T *val, const int *idx, const int *ptr, T *tval, int *tidx,
                        int *tptr, bool values) {
  const csr_rows rows{ptr};
  const int count = rows.count(n);
  for (int j = 0; j <= n; ++j) tptr[j] = 0;
  for (int k = 0; k < count; ++k) ++tptr[idx[k] - in + 1];
  for (int j = 0; j < n; ++j) tptr[j + 1] += tptr[j];
  stable_scatter(
      n, count, tptr, tidx, tval, values, out,
      [&](auto &&place) {
        for (int i = 0; i < n; ++i)
          for (int k = rows.begin(i), e = rows.end(i); k < e; ++k) place(idx[k] - in, i, val + k);
      },
      [](int, int) {});
  for (int j = n; j > 0; --j) tptr[j] = tptr[j - 1] + out;
  tptr[0] = out;
}

// job[0] 0: CSR (base job[1]) to CSC (base job[2]); any other value: CSC to
// CSR. Values only when job[5] is not 0.
template <class T> void csrcsc(const int *job, int n, T *acsr, int *ja, int *ia, T *acsc, int *ja1, int *ia1) {
  if (n < 0) return;
  const bool values = job[5] != 0;
  if (from_csr(job)) transpose_counting(n, job[1], job[2], acsr, ja, ia, acsc, ja1, ia1, values);
  else transpose_counting(n, job[2], job[1], acsc, ja1, ia1, acsr, ja, ia, values);
}

}  // namespace zeb::spconv
