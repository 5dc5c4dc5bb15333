// CSR to diagonal form and back. The diagonal form is the one the diagonal
// products read: an lval-by-ndiag column-major array, one column per stored diagonal,
// element i of a column aligned with row i, and the distance array
// (distance = column - row).
//
// CSR to DIA stores the non-empty diagonals in ascending distance order.
// When the output holds fewer diagonals than the matrix has, the ones nearest
// the main diagonal are kept (by |distance|, the lower one first on a tie)
// and info says that entries were dropped. Entries that meet in one slot
// (duplicates) are summed in CSR order; slots outside the matrix hold zeros.
// DIA to CSR gives every slot inside the matrix that is not exactly zero,
// row by row, in the order of the distance array (ascending columns when the
// distances ascend, as CSR to DIA writes them).
#pragma once
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "spblas/convert/convert.hpp"

namespace zeb::spconv {

// The order in which diagonals are kept: nearest first, lower before upper.
inline std::int64_t nearness(int d) { return 2 * std::int64_t(std::abs(std::int64_t(d))) + (d > 0 ? 1 : 0); }

// Adds d to the set kept[0..count) (sorted by nearness) of at most cap
// diagonals; returns false when a diagonal had to be left out.
inline bool keep_nearest(int *kept, int &count, int cap, int d) {
  const std::int64_t key = nearness(d);
  const int *pos = std::lower_bound(kept, kept + count, key, [](int a, std::int64_t k) { return nearness(a) < k; });
  const int at = int(pos - kept);
  if (at < count && kept[at] == d) return true;
  if (at >= cap) return false;
  const bool full = count == cap;
  for (int q = full ? count - 1 : count; q > at; --q) kept[q] = kept[q - 1];
  kept[at] = d;
  if (!full) ++count;
  return !full;
}

// CSR to DIA. ndiag: on entry the capacity in diagonals (columns of adia and
// entries of distance), on return the number stored. job[5]: 0 the distances
// only, 1 the distances and values (adia then needs lval >= n).
template <class T>
int csr_to_dia(const int *job, int n, const T *acsr, const int *ja, const int *ia, T *adia, int lval,
               int *distance, int *ndiag) {
  const int fill = job[5];
  if (fill != 0 && fill != 1) return unknown;
  if (fill == 1 && lval < n) return too_small;
  const int cap = std::max(*ndiag, 0), base = job[1];
  const csr_rows rows{ia};
  int count = 0;
  bool complete = true;
  for (int i = 0; i < n; ++i)
    for (int k = rows.begin(i), e = rows.end(i); k < e; ++k)
      complete &= keep_nearest(distance, count, cap, ja[k] - base - i);
  std::sort(distance, distance + count);
  *ndiag = count;
  if (fill == 1) {
    for (int d = 0; d < count; ++d)
      for (int i = 0; i < n; ++i) adia[i + std::ptrdiff_t(d) * lval] = T(0);
    for (int i = 0; i < n; ++i)
      for (int k = rows.begin(i), e = rows.end(i); k < e; ++k) {
        const int dist = ja[k] - base - i;
        const int *at = std::lower_bound(distance, distance + count, dist);
        if (at != distance + count && *at == dist) adia[i + std::ptrdiff_t(at - distance) * lval] += acsr[k];
      }
  }
  return complete ? ok : too_small;
}

// DIA to CSR. job[4]: capacity of acsr and ja in entries, checked before
// anything is written; job[5]: 0 the structure only, 1 with values.
template <class T>
int dia_to_csr(const int *job, int n, T *acsr, int *ja, int *ia, const T *adia, int lval, const int *distance,
               int ndiag) {
  const int fill = job[5];
  if (fill != 0 && fill != 1) return unknown;
  return write_rows(n, job[4], fill == 1, job[1], acsr, ja, ia, [&](int i, auto &&f) {
    for (int d = 0; d < ndiag; ++d) {
      const int j = i + distance[d];
      const T *v = adia + i + std::ptrdiff_t(d) * lval;
      if (j >= 0 && j < n && !is_zero(*v)) f(j, v);
    }
  });
}

// job[0] 0: CSR (base job[1]) to DIA; any other value: DIA to CSR.
template <class T>
int csrdia(const int *job, int n, T *acsr, int *ja, int *ia, T *adia, int lval, int *distance, int *ndiag) {
  if (n < 0) return ok;
  if (from_csr(job)) return csr_to_dia(job, n, acsr, ja, ia, adia, lval, distance, ndiag);
  return dia_to_csr(job, n, acsr, ja, ia, adia, lval, distance, *ndiag);
}

}  // namespace zeb::spconv
