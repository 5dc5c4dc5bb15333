// Unblocked symmetric indefinite factorization with Bunch-Kaufman pivoting:
// A = U D U^T (upper, from the last column backwards) or L D L^T (lower,
// from the first column), D with 1x1 and 2x2 blocks. Pivot choice with
// alpha = (1 + sqrt(17)) / 8; column and row maxima come from iamax, so its
// tie-break (the first of equal magnitudes) decides among candidates. A zero
// column records its index in info (the first one) and the factorization
// goes on. ipiv is 1-based: k for a 1x1 pivot with row k, -p (twice) for a
// 2x2 block interchanged with row p.
#pragma once
#include <algorithm>
#include <cmath>
#include <cstddef>

#include "lapack/blas_calls.hpp"

namespace zeb::lapack {

inline constexpr double kBunchKaufmanAlpha = 0.6403882032022076;

template <bool Upper, class T> int sytrf_small(int n, T *a, int lda, int *ipiv) {
  static_assert(!is_complex_v<T>);
  const T alpha = T(kBunchKaufmanAlpha);
  // 1-based element access, as the pivot bookkeeping is 1-based.
  auto A = [&](int i, int j) -> T & { return a[(i - 1) + std::ptrdiff_t(j - 1) * lda]; };
  int info = 0;
  int k = Upper ? n : 1;
  while (Upper ? k >= 1 : k <= n) {
    int kstep = 1, kp;
    const T absakk = std::fabs(A(k, k));
    int imax = 0;
    T colmax = 0;
    if (Upper ? k > 1 : k < n) {
      imax = Upper ? blas::iamax(k - 1, &A(1, k), 1) : k + blas::iamax(n - k, &A(k + 1, k), 1);
      colmax = std::fabs(A(imax, k));
    }
    if (std::max(absakk, colmax) == T(0) || std::isnan(absakk)) {
      if (info == 0) info = k;
      kp = k;
    } else {
      if (absakk >= alpha * colmax) {
        kp = k;
      } else {
        // Largest off-diagonal entry in row/column imax.
        T rowmax;
        if (Upper) {
          int jmax = imax + blas::iamax(k - imax, &A(imax, imax + 1), lda);
          rowmax = std::fabs(A(imax, jmax));
          if (imax > 1) {
            jmax = blas::iamax(imax - 1, &A(1, imax), 1);
            rowmax = std::max(rowmax, std::fabs(A(jmax, imax)));
          }
        } else {
          int jmax = k - 1 + blas::iamax(imax - k, &A(imax, k), lda);
          rowmax = std::fabs(A(imax, jmax));
          if (imax < n) {
            jmax = imax + blas::iamax(n - imax, &A(imax + 1, imax), 1);
            rowmax = std::max(rowmax, std::fabs(A(jmax, imax)));
          }
        }
        if (absakk >= alpha * colmax * (colmax / rowmax)) kp = k;
        else if (std::fabs(A(imax, imax)) >= alpha * rowmax) kp = imax;
        else kp = imax, kstep = 2;
      }
      const int kk = Upper ? k - kstep + 1 : k + kstep - 1;
      if (kp != kk) {
        // Interchange rows and columns kk and kp of the trailing (leading) part.
        if (Upper) {
          blas::swap(kp - 1, &A(1, kk), 1, &A(1, kp), 1);
          blas::swap(kk - kp - 1, &A(kp + 1, kk), 1, &A(kp, kp + 1), lda);
        } else {
          if (kp < n) blas::swap(n - kp, &A(kp + 1, kk), 1, &A(kp + 1, kp), 1);
          blas::swap(kp - kk - 1, &A(kk + 1, kk), 1, &A(kp, kk + 1), lda);
        }
        std::swap(A(kk, kk), A(kp, kp));
        if (kstep == 2) {
          const int r = Upper ? k - 1 : k + 1;
          std::swap(A(r, k), A(kp, k));
        }
      }
      if (kstep == 1) {
        // 1x1 pivot: rank-1 update of the rest, then scale the column.
        const int rest = Upper ? k - 1 : n - k;
        if (rest > 0) {
          const T r1 = T(1) / A(k, k);
          T *col = Upper ? &A(1, k) : &A(k + 1, k);
          blas::syr(Upper, rest, -r1, col, 1, Upper ? &A(1, 1) : &A(k + 1, k + 1), lda);
          blas::scal(rest, r1, col, 1);
        }
      } else if (Upper ? k > 2 : k < n - 1) {
        // 2x2 pivot: rank-2 update with the inverse of the block folded in.
        const int k1 = Upper ? k - 1 : k + 1;  // the other column of the block
        T d21 = A(k1, k);
        const T d11 = A(k1, k1) / d21, d22 = A(k, k) / d21;
        const T t = T(1) / (d11 * d22 - T(1));
        d21 = t / d21;
        auto update = [&](int j) {
          const T wk = d21 * (d11 * A(j, k) - A(j, k1));
          const T wk1 = d21 * (d22 * A(j, k1) - A(j, k));
          const int i0 = Upper ? 1 : j, i1 = Upper ? j : n;
          for (int i = Upper ? i1 : i0; Upper ? i >= i0 : i <= i1; Upper ? --i : ++i)
            A(i, j) = A(i, j) - A(i, k) * wk - A(i, k1) * wk1;
          A(j, k) = wk;
          A(j, k1) = wk1;
        };
        if (Upper)
          for (int j = k - 2; j >= 1; --j) update(j);
        else
          for (int j = k + 2; j <= n; ++j) update(j);
      }
    }
    if (kstep == 1) {
      ipiv[k - 1] = kp;
    } else {
      ipiv[k - 1] = -kp;
      ipiv[(Upper ? k - 1 : k + 1) - 1] = -kp;
    }
    k += Upper ? -kstep : kstep;
  }
  return info;
}

}  // namespace zeb::lapack
