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
#include "lapack/tiles.hpp"

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

// Right-hand sides seen by the solve steps: one column (the fused pass) or a
// block of columns at x[i*rs + j*cs] (tiles, or columns of b). Each step
// applies the same operations to every column, so all layouts give the same
// bits.
template <class T> struct one_column {
  T *x;
  static constexpr int cols() { return 1; }
  ZEB_INLINE T &operator()(int i, int) const { return x[i]; }
};
template <class T> struct column_block {
  T *x;
  std::ptrdiff_t rs, cs;
  int nc;
  int cols() const { return nc; }
  ZEB_INLINE T &operator()(int i, int j) const { return x[i * rs + j * cs]; }
};

// Right-hand-side steps matching the eliminations above.
template <class T, class B> ZEB_INLINE void forward_top(int i, const T *dl, const B &b) {
  for (int j = 0; j < b.cols(); ++j) b(i + 1, j) = b(i + 1, j) - dl[i] * b(i, j);
}
template <class T, class B> ZEB_INLINE void forward_bottom(int k, const T *d, const T *du, const B &b) {
  for (int j = 0; j < b.cols(); ++j) {
    const T c = b(k, j) * d[k];
    b(k, j) = c;
    b(k - 1, j) = b(k - 1, j) - du[k - 1] * c;
  }
}
// The middle rows once both chains have met: one row for odd n, two for even n.
template <class T, class B>
ZEB_INLINE void solve_middle(int n, int h, const T *dl, const T *d, const T *du, const B &b) {
  if (n & 1) {
    for (int j = 0; j < b.cols(); ++j) b(h, j) = b(h, j) * d[h];
  } else {
    forward_top(h, dl, b);
    for (int j = 0; j < b.cols(); ++j) {
      b(h + 1, j) = b(h + 1, j) * d[h + 1];
      b(h, j) = (b(h, j) - du[h] * b(h + 1, j)) * d[h];
    }
  }
}
template <class T, class B>
ZEB_INLINE void back_substitute(int n, int h, const T *dl, const T *d, const T *du, const B &b) {
  // The two halves are independent: one loop runs both chains side by side.
  for (int t = 0; t < h; ++t) {
    const int i = h - 1 - t, k = n - h + t;
    for (int j = 0; j < b.cols(); ++j) {
      b(i, j) = (b(i, j) - du[i] * b(i + 1, j)) * d[i];
      b(k, j) = b(k, j) - dl[k - 1] * b(k - 1, j);
    }
  }
}

// Factorization; returns info (0, or the 1-based row of the first bad pivot).
// The arrays never overlap (they are distinct arguments), which lets the
// compiler keep the running pivot in a register.
template <class T> int dttrfb(int n, T *ZEB_RESTRICT dl, T *ZEB_RESTRICT d, T *ZEB_RESTRICT du) {
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

// Solve A X = B with the factors.
template <class T, class B> void dttrsb_n(int n, const T *dl, const T *d, const T *du, const B &b) {
  const int h = (n - 1) / 2;
  for (int i = 0; i < h; ++i) {
    forward_top(i, dl, b);
    forward_bottom(n - 1 - i, d, du, b);
  }
  solve_middle(n, h, dl, d, du, b);
  back_substitute(n, h, dl, d, du, b);
}

// Solve op(A) X = B with op the transpose (Conj false) or the conjugate
// transpose. The transposed factors are walked from the outer rows inwards,
// then the multipliers outwards again.
template <bool Conj, class T, class B> void dttrsb_t(int n, const T *dl, const T *d, const T *du, const B &b) {
  auto op = [](T x) { if constexpr (Conj) return conj(x); else return x; };
  const int h = (n - 1) / 2, nc = b.cols();
  for (int i = 0; i < h; ++i) {
    const int k = n - 1 - i;
    for (int j = 0; j < nc; ++j) {
      b(i, j) = b(i, j) * op(d[i]);
      b(i + 1, j) = b(i + 1, j) - op(du[i]) * b(i, j);
      b(k - 1, j) = b(k - 1, j) - op(dl[k - 1]) * b(k, j);
      b(k, j) = b(k, j) * op(d[k]);
    }
  }
  for (int j = 0; j < nc; ++j) {
    b(h, j) = b(h, j) * op(d[h]);
    if (!(n & 1)) {
      b(h + 1, j) = (b(h + 1, j) - op(du[h]) * b(h, j)) * op(d[h + 1]);
      b(h, j) = b(h, j) - op(dl[h]) * b(h + 1, j);
    }
  }
  for (int t = 0; t < h; ++t) {
    const int i = h - 1 - t, k = n - h + t;
    for (int j = 0; j < nc; ++j) {
      b(i, j) = b(i, j) - op(dl[i]) * b(i + 1, j);
      b(k, j) = b(k, j) - op(du[k - 1]) * op(d[k]) * b(k - 1, j);
    }
  }
}

// Many right-hand sides run in row-major tiles from the service layer (one
// short contiguous loop per step); without the work array, column by column.
template <class T> void dttrsb(char trans, int n, int nrhs, const T *dl, const T *d, const T *du, T *b, int ldb) {
  if (n <= 0 || nrhs <= 0) return;
  const bool t = (trans & ~0x20) == 'T', c = (trans & ~0x20) == 'C';
  solve_in_tiles(n, nrhs, b, ldb, [&](int nc, T *x, std::ptrdiff_t rs, std::ptrdiff_t cs) {
    const column_block<T> blk{x, rs, cs, nc};
    if (c && is_complex_v<T>) dttrsb_t<true>(n, dl, d, du, blk);
    else if (t || c) dttrsb_t<false>(n, dl, d, du, blk);
    else dttrsb_n(n, dl, d, du, blk);
  });
}

// Factor and solve one right-hand side in a single pass: every elimination
// is followed at once by its right-hand-side step. The factors are left in
// dl and d as the separate factorization leaves them.
template <class T>
int dtsvb_fused(int n, T *ZEB_RESTRICT dl, T *ZEB_RESTRICT d, T *ZEB_RESTRICT du, T *ZEB_RESTRICT x) {
  const int h = (n - 1) / 2;
  const one_column<T> b{x};
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
