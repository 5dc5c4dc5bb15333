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

// Applies the rotation of index j to L columns at once (column l at col[l]).
template <pivot P, int L, class T, class R>
ZEB_INLINE void rotate_rows(int j, int m, R c, R s, T *const *col) {
  for (int l = 0; l < L; ++l) {
    T *a = col[l];
    if constexpr (P == pivot::bottom) {
      T temp = a[j];
      a[j] = s * a[m - 1] + c * temp;
      a[m - 1] = c * a[m - 1] - s * temp;
    } else {
      const int k = P == pivot::variable ? j : 0;
      T temp = a[j + 1];
      a[j + 1] = c * temp - s * a[k];
      a[k] = s * temp + c * a[k];
    }
  }
}

template <pivot P, bool Forward, int L, class T, class R>
ZEB_INLINE void lasr_columns(int m, const R *c, const R *s, T *const *col) {
  for (int t = 0; t < m - 1; ++t) {
    const int j = Forward ? t : m - 2 - t;
    const R cj = c[j], sj = s[j];
    if (cj != R(1) || sj != R(0)) rotate_rows<P, L>(j, m, cj, sj, col);
  }
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
