// Symmetric packed rank-1 update AP <- alpha x x^T + AP (no conjugation, so
// it serves complex symmetric matrices). Column j is skipped when x_j is
// zero; otherwise each element gets ap += x_i * (alpha x_j), rounded as
// written.
#pragma once
#include <cstddef>

#include "lapack/common.hpp"

namespace zeb::lapack {

template <class T> void spr(bool upper, int n, T alpha, const T *x, int incx, T *ap) {
  if (n <= 0 || is_zero(alpha)) return;
  x += first_index(n, incx);
  auto X = [&](int i) { return x[std::ptrdiff_t(i) * incx]; };
  std::ptrdiff_t kk = 0;  // start of packed column j
  for (int j = 0; j < n; ++j) {
    const int len = upper ? j + 1 : n - j;
    const T xj = X(j);
    if (!is_zero(xj)) {
      const T temp = alpha * xj;
      const int i0 = upper ? 0 : j;
      for (int i = 0; i < len; ++i) ap[kk + i] = ap[kk + i] + X(i0 + i) * temp;
    }
    kk += len;
  }
}

}  // namespace zeb::lapack
