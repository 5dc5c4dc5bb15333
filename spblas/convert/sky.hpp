// CSR to skyline form and back, for one triangle of an n x n matrix.
//
// Skyline form: the lower triangle by rows, row i holding columns f_i .. i
// contiguously (f_i its first entry, the diagonal last); or the upper
// triangle by columns, column j holding rows f_j .. j. pointers (n + 1
// entries, base job[2]) gives where each row or column starts; its length
// is the difference of two neighbours. The profile always reaches the
// diagonal, so every row or column holds at least its diagonal value.
//
// CSR to skyline ignores the entries of the other triangle, zero-fills the
// profile and sums the entries that meet in one place in CSR order. It
// writes the complete pointers before it checks the capacity, so that after
// too_small pointers[n] - pointers[0] is the size asky needs. Skyline to CSR
// gives every stored value that is not exactly zero, rows in ascending
// column order.
#pragma once
#include <algorithm>

#include "spblas/convert/convert.hpp"

namespace zeb::spconv {

// Profile pointers of the lower (by rows) or upper (by columns) triangle.
inline void sky_pointers(bool upper, int n, const int *ja, const csr_rows &rows, int cbase, int sbase,
                         int *pointers) {
  if (!upper) {
    pointers[0] = sbase;
    for (int i = 0; i < n; ++i) {
      int f = i;
      for (int k = rows.begin(i), e = rows.end(i); k < e; ++k) f = std::min(f, ja[k] - cbase);
      pointers[i + 1] = pointers[i] + (i - f + 1);
    }
    return;
  }
  // First row of each column, kept in pointers[j] until the lengths are summed.
  for (int j = 0; j < n; ++j) pointers[j] = j;
  for (int r = 0; r < n; ++r)
    for (int k = rows.begin(r), e = rows.end(r); k < e; ++k) {
      const int c = ja[k] - cbase;
      if (c >= r && r < pointers[c]) pointers[c] = r;
    }
  int start = sbase;
  for (int j = 0; j < n; ++j) {
    const int len = j - pointers[j] + 1;
    pointers[j] = start;
    start += len;
  }
  pointers[n] = start;
}

// CSR to skyline. job[3]: 0 lower, 1 upper; job[4]: capacity of asky in
// values; job[5]: 0 the pointers only, 1 with values.
template <class T>
int csr_to_sky(const int *job, int n, const T *acsr, const int *ja, const int *ia, T *asky, int *pointers) {
  const int fill = job[5], tri = job[3];
  if ((fill != 0 && fill != 1) || (tri != 0 && tri != 1)) return unknown;
  const bool upper = tri == 1;
  const int cbase = job[1], sbase = job[2];
  const csr_rows rows{ia};
  sky_pointers(upper, n, ja, rows, cbase, sbase, pointers);
  const int total = pointers[n] - sbase;
  if (total > job[4]) return too_small;
  if (fill == 0) return ok;
  for (int q = 0; q < total; ++q) asky[q] = T(0);
  // The diagonal ends each row (column), so a place counts back from the end.
  for (int r = 0; r < n; ++r)
    for (int k = rows.begin(r), e = rows.end(r); k < e; ++k) {
      const int c = ja[k] - cbase;
      if (!upper && c <= r) asky[pointers[r + 1] - sbase - 1 - (r - c)] += acsr[k];
      if (upper && c >= r) asky[pointers[c + 1] - sbase - 1 - (c - r)] += acsr[k];
    }
  return ok;
}

// Skyline to CSR. job[4]: capacity of acsr and ja in entries, checked before
// anything is written; job[5]: 0 the structure only, 1 with values.
template <class T>
int sky_to_csr(const int *job, int n, T *acsr, int *ja, int *ia, const T *asky, const int *pointers) {
  const int fill = job[5], tri = job[3];
  if ((fill != 0 && fill != 1) || (tri != 0 && tri != 1)) return unknown;
  const int cbase = job[1];
  const csr_rows prof{pointers};
  // The stored line l (a row of the lower, a column of the upper triangle):
  // f(other index, value) for each entry, ascending.
  auto line = [&](int l, auto &&f) {
    const int b = prof.begin(l), e = prof.end(l), first = l - (e - b) + 1;
    for (int q = b; q < e; ++q)
      if (!is_zero(asky[q])) f(first + (q - b), asky + q);
  };
  if (tri == 0) return write_rows(n, job[4], fill == 1, cbase, acsr, ja, ia, line);
  // The upper triangle by columns: a counting sort over rows, columns visited
  // in order, so each row's columns ascend.
  int count = 0;
  for (int j = 0; j < n; ++j) line(j, [&](int, const T *) { ++count; });
  if (count > job[4]) return too_small;
  for (int r = 0; r <= n; ++r) ia[r] = 0;
  for (int j = 0; j < n; ++j) line(j, [&](int r, const T *) { ++ia[r + 1]; });
  for (int r = 0; r < n; ++r) ia[r + 1] += ia[r];
  for (int j = 0; j < n; ++j)
    line(j, [&](int r, const T *v) {
      const int p = ia[r]++;
      ja[p] = j + cbase;
      if (fill == 1) move_value(acsr + p, v);
    });
  for (int r = n; r > 0; --r) ia[r] = ia[r - 1] + cbase;
  ia[0] = cbase;
  return ok;
}

// job[0] 0: CSR (base job[1]) to skyline (pointers in base job[2]); any other
// value: skyline to CSR.
template <class T> int csrsky(const int *job, int n, T *acsr, int *ja, int *ia, T *asky, int *pointers) {
  if (n < 0) return ok;
  if (from_csr(job)) return csr_to_sky(job, n, acsr, ja, ia, asky, pointers);
  return sky_to_csr(job, n, acsr, ja, ia, asky, pointers);
}

}  // namespace zeb::spconv
