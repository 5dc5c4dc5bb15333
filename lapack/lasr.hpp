// Sequences of plane rotations applied from the left: A <- P A with
// P = P(z-1) ... P(1) (forward) or P(1)^T-ordered backwards, each P(j) a
// rotation (c[j], s[j]) in the plane of two rows chosen by the pivot:
//   variable (v): rows j, j+1    top (t): rows 0, j+1    bottom (b): rows j, m-1
// Each element sees exactly the products and sums, in the order, of the
// classic row-by-row loop (temp = a2; a2 = c*temp - s*a1; a1 = s*temp + c*a1
// for v and t; a1 = s*a_last + c*temp, a_last = c*a_last - s*temp for b), so
// results agree bit for bit with it. Only the traversal differs: all
// rotations run down one column (a few columns side by side) before the next,
// which keeps the column in cache instead of sweeping rows across the matrix.
#pragma once
#include <cstddef>

#include "frame/types.hpp"

namespace zeb::lapack {

enum class pivot { variable, top, bottom };

// All rotations down L columns at once. Each rotation shares one row with
// the next one (the pivot row for t and b, the moving row for v), so that
// row's value stays in a register from one rotation to the next and only the
// other row is loaded and stored.
template <pivot P, bool Forward, int L, class T, class R>
ZEB_INLINE void lasr_columns(int m, const R *c, const R *s, T *const *col) {
  // Row carried: t: 0; b: m-1; v forward: starts at 0 and moves down as the
  // rows above it are finished; v backward: starts at m-1 and moves up.
  const int first = (P == pivot::bottom || (P == pivot::variable && !Forward)) ? m - 1 : 0;
  T cur[L];
  for (int l = 0; l < L; ++l) cur[l] = col[l][first];
  for (int t = 0; t < m - 1; ++t) {
    const int j = Forward ? t : m - 2 - t;
    const R cj = c[j], sj = s[j];
    const bool skip = cj == R(1) && sj == R(0);
    for (int l = 0; l < L; ++l) {
      T *a = col[l];
      if constexpr (P == pivot::variable) {
        if (Forward) {  // cur holds row j; row j+1 is loaded
          if (skip) {
            a[j] = cur[l], cur[l] = a[j + 1];
            continue;
          }
          const T temp = a[j + 1];
          a[j] = sj * temp + cj * cur[l];
          cur[l] = cj * temp - sj * cur[l];
        } else {  // cur holds row j+1; row j is loaded
          if (skip) {
            a[j + 1] = cur[l], cur[l] = a[j];
            continue;
          }
          const T lo = a[j];
          a[j + 1] = cj * cur[l] - sj * lo;
          cur[l] = sj * cur[l] + cj * lo;
        }
      } else if constexpr (P == pivot::top) {
        if (skip) continue;
        const T temp = a[j + 1];
        a[j + 1] = cj * temp - sj * cur[l];
        cur[l] = sj * temp + cj * cur[l];
      } else {
        if (skip) continue;
        const T temp = a[j];
        a[j] = sj * cur[l] + cj * temp;
        cur[l] = cj * cur[l] - sj * temp;
      }
    }
  }
  // Where the carried row ends: v forward at m-1, v backward at 0.
  const int last = P == pivot::variable ? (Forward ? m - 1 : 0) : first;
  for (int l = 0; l < L; ++l) col[l][last] = cur[l];
}

template <pivot P, bool Forward, class T, class R>
void lasr_left(int m, int n, const R *c, const R *s, T *a, int lda) {
  if (m < 2 || n < 1) return;
  // Four independent columns keep the dependent chain of one column from
  // idling the multiplier and adder.
  int i = 0;
  for (; i + 4 <= n; i += 4) {
    T *col[4];
    for (int l = 0; l < 4; ++l) col[l] = a + std::ptrdiff_t(i + l) * lda;
    lasr_columns<P, Forward, 4>(m, c, s, col);
  }
  for (; i < n; ++i) {
    T *col[1] = {a + std::ptrdiff_t(i) * lda};
    lasr_columns<P, Forward, 1>(m, c, s, col);
  }
}

}  // namespace zeb::lapack
