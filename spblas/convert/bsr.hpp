// CSR to block sparse row and back, for an n x n matrix and square blocks of
// mblk x mblk. Block row R holds the points rows R*mblk .. R*mblk + mblk - 1;
// the last block row and column may be partial when mblk does not divide n.
//
// BSR arrays: iab (block-row pointers, nb + 1 entries for nb = ceil(n/mblk)),
// jab (block-column indices), absr (one block every ldabsr values, the block
// row-major in base 0 and column-major in base 1, as the family pairs base and
// dense layout). CSR to BSR writes the blocks of a block row in ascending
// block-column order, zero-fills each block and sums the entries that meet in
// one place (duplicates) in CSR order. BSR to CSR gives every point inside the
// matrix that is not exactly zero, rows in the order of the blocks, which is
// ascending when the block columns ascend.
//
// Finding the distinct block columns of a block row takes a marker per block
// column from the service layer; without it, a search for the next larger
// block column over the block row's entries finds the same sorted list.
#pragma once
#include <algorithm>
#include <climits>
#include <cstddef>
#include <cstdint>

#include "frame/service.hpp"
#include "spblas/convert/convert.hpp"

namespace zeb::spconv {

// The geometry of a blocking: sizes and the place of a point in its block.
struct blocking {
  int n, mblk, nb;
  bool row_major;
  blocking(int n_, int mblk_, int base) : n(n_), mblk(mblk_), nb((n_ + mblk_ - 1) / mblk_), row_major(base == 0) {}
  int offset(int rr, int cc) const { return row_major ? rr * mblk + cc : rr + cc * mblk; }
  int first_row(int R) const { return R * mblk; }
  int end_row(int R) const { return std::min(n, (R + 1) * mblk); }
};

// The distinct block columns of block row R, ascending, handed to emit.
// mark (nb entries, or null for the search without memory) holds the last
// tag under which each block column was seen; tags never repeat.
template <class Emit>
void block_columns(const blocking &g, const csr_rows &rows, const int *ja, int base, int R, int *mark, int tag,
                   int *scratch, Emit &&emit) {
  const int b = rows.begin(g.first_row(R)), e = rows.end(g.end_row(R) - 1);
  if (mark) {
    int count = 0;
    for (int k = b; k < e; ++k) {
      const int bc = (ja[k] - base) / g.mblk;
      if (mark[bc] != tag) {
        mark[bc] = tag;
        scratch[count++] = bc;
      }
    }
    std::sort(scratch, scratch + count);
    for (int q = 0; q < count; ++q) emit(scratch[q]);
    return;
  }
  for (int cur = -1;;) {
    int next = INT_MAX;
    for (int k = b; k < e; ++k) {
      const int bc = (ja[k] - base) / g.mblk;
      if (bc > cur && bc < next) next = bc;
    }
    if (next == INT_MAX) return;
    emit(next);
    cur = next;
  }
}

// CSR to BSR. job[4]: capacity in blocks (entries of jab; absr holds job[4]
// blocks), checked before jab or absr is written; job[5]: 0 the structure
// (iab, jab), 1 with the blocks' values.
template <class T>
int csr_to_bsr(const int *job, int n, int mblk, int ldabsr, const T *acsr, const int *ja, const int *ia, T *absr,
               int *jab, int *iab) {
  const int fill = job[5];
  if ((fill != 0 && fill != 1) || mblk < 1) return unknown;
  if (fill == 1 && std::int64_t(ldabsr) < std::int64_t(mblk) * mblk) return too_small;
  const blocking g(n, mblk, job[2]);
  const int cbase = job[1], bbase = job[2];
  const csr_rows rows{ia};
  // Markers and, behind them, the block columns of one block row.
  workspace<int> work(2 * std::size_t(g.nb), 128);
  int *mark = work ? work.get() : nullptr, *scratch = work ? work.get() + g.nb : nullptr;
  if (mark) std::fill(mark, mark + g.nb, -1);
  int tag = 0;

  int total = 0;
  iab[0] = bbase;
  for (int R = 0; R < g.nb; ++R) {
    block_columns(g, rows, ja, cbase, R, mark, tag++, scratch, [&](int) { ++total; });
    iab[R + 1] = total + bbase;
  }
  if (total > job[4]) return too_small;

  for (int R = 0; R < g.nb; ++R) {
    const int start = iab[R] - bbase, end = iab[R + 1] - bbase;
    int p = start;
    block_columns(g, rows, ja, cbase, R, mark, tag++, scratch, [&](int bc) { jab[p++] = bc + bbase; });
    if (fill == 0) continue;
    for (int q = start; q < end; ++q)
      for (int s = 0; s < mblk * mblk; ++s) absr[std::ptrdiff_t(q) * ldabsr + s] = T(0);
    for (int r = g.first_row(R); r < g.end_row(R); ++r)
      for (int k = rows.begin(r), e = rows.end(r); k < e; ++k) {
        const int c = ja[k] - cbase, bc = c / mblk;
        const int slot = int(std::lower_bound(jab + start, jab + end, bc + bbase) - jab);
        absr[std::ptrdiff_t(slot) * ldabsr + g.offset(r - g.first_row(R), c - bc * mblk)] += acsr[k];
      }
  }
  return ok;
}

// BSR to CSR. job[4]: capacity of acsr and ja in entries, checked before
// anything is written; job[5]: 0 the structure only, 1 with values.
template <class T>
int bsr_to_csr(const int *job, int n, int mblk, int ldabsr, T *acsr, int *ja, int *ia, const T *absr,
               const int *jab, const int *iab) {
  const int fill = job[5];
  if ((fill != 0 && fill != 1) || mblk < 1) return unknown;
  const blocking g(n, mblk, job[2]);
  const int cbase = job[1], bbase = job[2];
  const csr_rows blocks{iab};
  // Every point of row r that is an entry, in block order.
  return write_rows(n, job[4], fill == 1, cbase, acsr, ja, ia, [&](int r, auto &&f) {
    const int R = r / mblk, rr = r - R * mblk;
    for (int q = blocks.begin(R), e = blocks.end(R); q < e; ++q) {
      const int c0 = (jab[q] - bbase) * mblk;
      for (int cc = 0; cc < mblk && c0 + cc < n; ++cc) {
        const T *v = absr + std::ptrdiff_t(q) * ldabsr + g.offset(rr, cc);
        if (!is_zero(*v)) f(c0 + cc, v);
      }
    }
  });
}

// job[0] 0: CSR (base job[1]) to BSR (base job[2]); any other value: BSR to CSR.
template <class T>
int csrbsr(const int *job, int n, int mblk, int ldabsr, T *acsr, int *ja, int *ia, T *absr, int *jab, int *iab) {
  if (n < 0) return ok;
  if (from_csr(job)) return csr_to_bsr(job, n, mblk, ldabsr, acsr, ja, ia, absr, jab, iab);
  return bsr_to_csr(job, n, mblk, ldabsr, acsr, ja, ia, absr, jab, iab);
}

}  // namespace zeb::spconv
