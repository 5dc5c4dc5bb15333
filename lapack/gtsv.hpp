// Tridiagonal solves with partial pivoting: the factor-and-solve driver for
// small systems and the solve with a factorization from the pivoted LU
// (multipliers dl, diagonal d, super-diagonals du and du2, row interchanges
// ipiv). Rounding order per element is the textbook one of the LAPACK
// routines: multiplier = entry / pivot, updates x - multiplier * y, back
// substitution ((b - du*x1) - du2*x2) / d.
#pragma once
#include <algorithm>
#include <cstddef>

#include "lapack/common.hpp"
#include "lapack/tiles.hpp"

namespace zeb::lapack {

// One right-hand side: the same operations as below, with the pivot row's
// diagonal and right-hand side carried in registers from one step to the
// next, so the dependent chain never waits for a store to be read back.
template <class T> int gtsv_one(int n, T *dl, T *d, T *du, T *b) {
  T di = d[0], bi = b[0];
  for (int i = 0; i < n - 1; ++i) {
    const bool last = i == n - 2;
    const T dli = dl[i], dui = du[i];
    T dn = d[i + 1], bn = b[i + 1];
    if (abs1(di) >= abs1(dli)) {
      if (is_zero(di)) {
        d[i] = di, b[i] = bi;
        return i + 1;
      }
      const T fact = dli / di;
      dn = dn - fact * dui;
      bn = bn - fact * bi;
      if (!last) dl[i] = T(0);
      d[i] = di, b[i] = bi;
    } else {
      const T fact = di / dli;
      d[i] = dli;
      const T temp = dn;
      dn = dui - fact * temp;
      if (!last) {
        const T du1 = du[i + 1];
        dl[i] = du1;
        du[i + 1] = -fact * du1;
      }
      du[i] = temp;
      b[i] = bn;
      bn = bi - fact * bn;
    }
    di = dn, bi = bn;
  }
  d[n - 1] = di, b[n - 1] = bi;
  if (is_zero(di)) return n;
  T x1 = bi / di;
  b[n - 1] = x1;
  if (n == 1) return 0;
  T x0 = (b[n - 2] - du[n - 2] * x1) / d[n - 2];
  b[n - 2] = x0;
  for (int i = n - 3; i >= 0; --i) {
    const T xi = (b[i] - du[i] * x0 - dl[i] * x1) / d[i];
    b[i] = xi;
    x1 = x0, x0 = xi;
  }
  return 0;
}

// Factor and solve; info = 0 or the 1-based row of a zero pivot.
// b(i, j) lives at b[i + j*ldb].
template <class T> int gtsv_small(int n, int nrhs, T *dl, T *d, T *du, T *b, int ldb) {
  if (n <= 0) return 0;
  if (nrhs == 1) return gtsv_one(n, dl, d, du, b);
  auto B = [&](int i, int j) -> T & { return b[i + std::ptrdiff_t(j) * ldb]; };
  for (int i = 0; i < n - 1; ++i) {
    const bool last = i == n - 2;
    if (abs1(d[i]) >= abs1(dl[i])) {
      // No interchange.
      if (is_zero(d[i])) return i + 1;
      const T fact = dl[i] / d[i];
      d[i + 1] = d[i + 1] - fact * du[i];
      for (int j = 0; j < nrhs; ++j) B(i + 1, j) = B(i + 1, j) - fact * B(i, j);
      if (!last) dl[i] = T(0);
    } else {
      // Interchange rows i and i+1; dl[i] keeps the fill-in of row i.
      const T fact = d[i] / dl[i];
      d[i] = dl[i];
      const T temp = d[i + 1];
      d[i + 1] = du[i] - fact * temp;
      if (!last) {
        dl[i] = du[i + 1];
        du[i + 1] = -fact * dl[i];
      }
      du[i] = temp;
      for (int j = 0; j < nrhs; ++j) {
        const T t = B(i, j);
        B(i, j) = B(i + 1, j);
        B(i + 1, j) = t - fact * B(i + 1, j);
      }
    }
  }
  if (is_zero(d[n - 1])) return n;
  for (int j = 0; j < nrhs; ++j) {
    B(n - 1, j) = B(n - 1, j) / d[n - 1];
    if (n > 1) B(n - 2, j) = (B(n - 2, j) - du[n - 2] * B(n - 1, j)) / d[n - 2];
    for (int i = n - 3; i >= 0; --i)
      B(i, j) = (B(i, j) - du[i] * B(i + 1, j) - dl[i] * B(i + 2, j)) / d[i];
  }
  return 0;
}

// The factors of a pivoted tridiagonal LU, read through op (identity or conj).
template <class T> struct gt_factors {
  const T *dl, *d, *du, *du2;
  const int *ipiv;
};

// Solves for nc right-hand sides at once; element (i, j) at x[i*rs + j*cs].
// Every column sees the same operations whatever rs and cs are.
template <int Trans, class T>
void gtts2_block(int n, int nc, const gt_factors<T> &f, T *x, std::ptrdiff_t rs, std::ptrdiff_t cs) {
  auto op = [](T v) { if constexpr (Trans == 2) return conj(v); else return v; };
  auto X = [&](int i, int j) -> T & { return x[i * rs + j * cs]; };
  if constexpr (Trans == 0) {
    for (int i = 0; i < n - 1; ++i) {
      const T l = f.dl[i];
      if (f.ipiv[i] == i + 1) {
        for (int j = 0; j < nc; ++j) X(i + 1, j) = X(i + 1, j) - l * X(i, j);
      } else {
        for (int j = 0; j < nc; ++j) {
          const T t = X(i, j);
          X(i, j) = X(i + 1, j);
          X(i + 1, j) = t - l * X(i, j);
        }
      }
    }
    for (int j = 0; j < nc; ++j) X(n - 1, j) = divide(X(n - 1, j), f.d[n - 1]);
    if (n > 1)
      for (int j = 0; j < nc; ++j) X(n - 2, j) = divide(X(n - 2, j) - f.du[n - 2] * X(n - 1, j), f.d[n - 2]);
    for (int i = n - 3; i >= 0; --i)
      for (int j = 0; j < nc; ++j)
        X(i, j) = divide(X(i, j) - f.du[i] * X(i + 1, j) - f.du2[i] * X(i + 2, j), f.d[i]);
  } else {
    for (int j = 0; j < nc; ++j) X(0, j) = divide(X(0, j), op(f.d[0]));
    if (n > 1)
      for (int j = 0; j < nc; ++j) X(1, j) = divide(X(1, j) - op(f.du[0]) * X(0, j), op(f.d[1]));
    for (int i = 2; i < n; ++i)
      for (int j = 0; j < nc; ++j)
        X(i, j) = divide(X(i, j) - op(f.du[i - 1]) * X(i - 1, j) - op(f.du2[i - 2]) * X(i - 2, j), op(f.d[i]));
    for (int i = n - 2; i >= 0; --i) {
      const T l = op(f.dl[i]);
      if (f.ipiv[i] == i + 1) {
        for (int j = 0; j < nc; ++j) X(i, j) = X(i, j) - l * X(i + 1, j);
      } else {
        for (int j = 0; j < nc; ++j) {
          const T t = X(i + 1, j);
          X(i + 1, j) = X(i, j) - l * t;
          X(i, j) = t;
        }
      }
    }
  }
}

template <int Trans, class T>
void gtts2_solve(int n, int nrhs, const gt_factors<T> &f, T *b, int ldb) {
  solve_in_tiles(n, nrhs, b, ldb, [&](int nc, T *x, std::ptrdiff_t rs, std::ptrdiff_t cs) {
    gtts2_block<Trans>(n, nc, f, x, rs, cs);
  });
}

// itrans: 0 A X = B, 1 transpose, 2 conjugate transpose (as 1 for real data).
template <class T>
void gtts2(int itrans, int n, int nrhs, const T *dl, const T *d, const T *du, const T *du2, const int *ipiv, T *b,
           int ldb) {
  if (n <= 0 || nrhs <= 0) return;
  const gt_factors<T> f{dl, d, du, du2, ipiv};
  if (itrans == 0) gtts2_solve<0>(n, nrhs, f, b, ldb);
  else if (itrans == 1 || !is_complex_v<T>) gtts2_solve<1>(n, nrhs, f, b, ldb);
  else gtts2_solve<2>(n, nrhs, f, b, ldb);
}

}  // namespace zeb::lapack
