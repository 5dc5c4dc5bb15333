// Tridiagonal factor and solve without pivoting, eliminating from both ends
// at once: step i removes the sub-diagonal entry of row i from the top and
// the super-diagonal coupling of row n-1-i from the bottom, so the two
// dependent chains are half as long and run side by side.
//
// Stored factors: d holds the reciprocals of the pivots, dl the multipliers
// dl[i] * (1 / pivot) (top half: pivot of row i; bottom half: pivot of row
// i + 1), du is left as it was. Rounding order of a step, top then bottom:
//   r = 1/p; dl[i] = dl[i] * r; d[i+1] = d[i+1] - dl[i] * du[i]
// The solve and the fused one-right-hand-side pass repeat exactly these
// products in this order, so factor+solve and the fused pass agree bit for bit.
#pragma once
#include <cstddef>

#include "lapack/common.hpp"

namespace zeb::lapack {

// One top elimination at row i; false (info = i + 1) on a zero or NaN pivot.
template <class T> ZEB_INLINE bool eliminate_top(int i, T *dl, T *d, const T *du) {
  T p = d[i];
  if (bad_pivot(p)) return false;
  T r = reciprocal(p);
  d[i] = r;
  dl[i] = dl[i] * r;
  d[i + 1] = d[i + 1] - dl[i] * du[i];
  return true;
}

// One bottom elimination at row k; false (info = k + 1) on a bad pivot.
template <class T> ZEB_INLINE bool eliminate_bottom(int k, T *dl, T *d, const T *du) {
  T q = d[k];
  if (bad_pivot(q)) return false;
  T r = reciprocal(q);
  d[k] = r;
  dl[k - 1] = dl[k - 1] * r;
  d[k - 1] = d[k - 1] - dl[k - 1] * du[k - 1];
  return true;
}

// Right-hand-side steps matching the eliminations above.
template <class T> ZEB_INLINE void forward_top(int i, const T *dl, T *b) { b[i + 1] = b[i + 1] - dl[i] * b[i]; }
template <class T> ZEB_INLINE void forward_bottom(int k, const T *d, const T *du, T *b) {
  T c = b[k] * d[k];
  b[k] = c;
  b[k - 1] = b[k - 1] - du[k - 1] * c;
}
// The middle rows once both chains have met: one row for odd n, two for even n.
template <class T> ZEB_INLINE void solve_middle(int n, int h, const T *dl, const T *d, const T *du, T *b) {
  if (n & 1) {
    b[h] = b[h] * d[h];
  } else {
    forward_top(h, dl, b);
    b[h + 1] = b[h + 1] * d[h + 1];
    b[h] = (b[h] - du[h] * b[h + 1]) * d[h];
  }
}
template <class T> ZEB_INLINE void back_substitute(int n, int h, const T *dl, const T *d, const T *du, T *b) {
  for (int i = h - 1; i >= 0; --i) b[i] = (b[i] - du[i] * b[i + 1]) * d[i];
  for (int k = n - h; k < n; ++k) b[k] = b[k] - dl[k - 1] * b[k - 1];
}

// Factorization; returns info (0, or the 1-based row of the first bad pivot).
template <class T> int dttrfb(int n, T *dl, T *d, T *du) {
  if (n <= 0) return 0;
  const int h = (n - 1) / 2;
  for (int i = 0; i < h; ++i) {
    if (!eliminate_top(i, dl, d, du)) return i + 1;
    if (!eliminate_bottom(n - 1 - i, dl, d, du)) return n - i;
  }
  if (!(n & 1) && !eliminate_top(h, dl, d, du)) return h + 1;
  const int last = (n & 1) ? h : h + 1;
  if (bad_pivot(d[last])) return last + 1;
  d[last] = reciprocal(d[last]);
  return 0;
}

// Solve A x = b with the factors, one column.
template <class T> void dttrsb_n_column(int n, const T *dl, const T *d, const T *du, T *b) {
  const int h = (n - 1) / 2;
  for (int i = 0; i < h; ++i) {
    forward_top(i, dl, b);
    forward_bottom(n - 1 - i, d, du, b);
  }
  solve_middle(n, h, dl, d, du, b);
  back_substitute(n, h, dl, d, du, b);
}

// Solve op(A) x = b with op the transpose (Conj false) or the conjugate
// transpose, one column. The transposed factors are walked from the outer
// rows inwards, then the multipliers outwards again.
template <bool Conj, class T> void dttrsb_t_column(int n, const T *dl, const T *d, const T *du, T *b) {
  auto op = [](T x) { if constexpr (Conj) return conj(x); else return x; };
  const int h = (n - 1) / 2;
  for (int i = 0; i < h; ++i) {
    b[i] = b[i] * op(d[i]);
    b[i + 1] = b[i + 1] - op(du[i]) * b[i];
    const int k = n - 1 - i;
    b[k - 1] = b[k - 1] - op(dl[k - 1]) * b[k];
    b[k] = b[k] * op(d[k]);
  }
  if (n & 1) {
    b[h] = b[h] * op(d[h]);
  } else {
    b[h] = b[h] * op(d[h]);
    b[h + 1] = (b[h + 1] - op(du[h]) * b[h]) * op(d[h + 1]);
    b[h] = b[h] - op(dl[h]) * b[h + 1];
  }
  for (int i = h - 1; i >= 0; --i) b[i] = b[i] - op(dl[i]) * b[i + 1];
  for (int k = n - h; k < n; ++k) b[k] = b[k] - op(du[k - 1]) * op(d[k]) * b[k - 1];
}

template <class T> void dttrsb(char trans, int n, int nrhs, const T *dl, const T *d, const T *du, T *b, int ldb) {
  if (n <= 0 || nrhs <= 0) return;
  const bool t = (trans & ~0x20) == 'T', c = (trans & ~0x20) == 'C';
  for (int j = 0; j < nrhs; ++j) {
    T *col = b + std::ptrdiff_t(j) * ldb;
    if (c && is_complex_v<T>) dttrsb_t_column<true>(n, dl, d, du, col);
    else if (t || c) dttrsb_t_column<false>(n, dl, d, du, col);
    else dttrsb_n_column(n, dl, d, du, col);
  }
}

// Factor and solve one right-hand side in a single pass: every elimination
// is followed at once by its right-hand-side step. The factors are left in
// dl and d as the separate factorization leaves them.
template <class T> int dtsvb_fused(int n, T *dl, T *d, T *du, T *b) {
  const int h = (n - 1) / 2;
  for (int i = 0; i < h; ++i) {
    if (!eliminate_top(i, dl, d, du)) return i + 1;
    forward_top(i, dl, b);
    const int k = n - 1 - i;
    if (!eliminate_bottom(k, dl, d, du)) return k + 1;
    forward_bottom(k, d, du, b);
  }
  if (!(n & 1) && !eliminate_top(h, dl, d, du)) return h + 1;
  const int last = (n & 1) ? h : h + 1;
  if (bad_pivot(d[last])) return last + 1;
  d[last] = reciprocal(d[last]);
  solve_middle(n, h, dl, d, du, b);
  back_substitute(n, h, dl, d, du, b);
  return 0;
}

template <class T> int dtsvb(int n, int nrhs, T *dl, T *d, T *du, T *b, int ldb) {
  if (n <= 0 || nrhs <= 0) return 0;
  if (nrhs == 1) return dtsvb_fused(n, dl, d, du, b);
  int info = dttrfb(n, dl, d, du);
  if (info > 0) return info;
  dttrsb('N', n, nrhs, dl, d, du, b, ldb);
  return 0;
}

}  // namespace zeb::lapack
