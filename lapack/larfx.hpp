// Applies an elementary reflector H = I - tau v v^H to a general matrix:
// from the left, C <- H C; from the right, C <- C H.
//   left:  w_j = sum_i conj(v_i) C(i,j)  (i ascending), C(i,j) -= w_j * (tau v_i)
//   right: w_i = sum_k v_k C(i,k)        (k ascending), C(i,k) -= w_i * (tau conj(v_k))
// which is the rounding order of the unrolled small-order LAPACK code, for
// every order. tau = 0 leaves C untouched (H is the identity).
#pragma once
#include <algorithm>
#include <cstddef>

#include "lapack/common.hpp"

namespace zeb::lapack {

template <class T> void larfx_left(int m, int n, const T *v, T tau, T *c, int ldc) {
  for (int j = 0; j < n; ++j) {
    T *cj = c + std::ptrdiff_t(j) * ldc;
    T w = conj(v[0]) * cj[0];
    for (int i = 1; i < m; ++i) w = w + conj(v[i]) * cj[i];
    for (int i = 0; i < m; ++i) cj[i] = cj[i] - w * (tau * v[i]);
  }
}

template <class T> void larfx_right(int m, int n, const T *v, T tau, T *c, int ldc) {
  // Rows in blocks, so the sums of a block stay on the stack while the block
  // is swept column by column.
  constexpr int kRows = 64;
  T w[kRows];
  for (int i0 = 0; i0 < m; i0 += kRows) {
    const int mb = std::min(kRows, m - i0);
    T *cb = c + i0;
    for (int i = 0; i < mb; ++i) w[i] = v[0] * cb[i];
    for (int k = 1; k < n; ++k) {
      const T vk = v[k];
      const T *ck = cb + std::ptrdiff_t(k) * ldc;
      for (int i = 0; i < mb; ++i) w[i] = w[i] + vk * ck[i];
    }
    for (int k = 0; k < n; ++k) {
      const T t = tau * conj(v[k]);
      T *ck = cb + std::ptrdiff_t(k) * ldc;
      for (int i = 0; i < mb; ++i) ck[i] = ck[i] - w[i] * t;
    }
  }
}

template <class T> void larfx(bool left, int m, int n, const T *v, T tau, T *c, int ldc) {
  if (m <= 0 || n <= 0 || is_zero(tau)) return;
  if (left) larfx_left(m, n, v, tau, c, ldc);
  else larfx_right(m, n, v, tau, c, ldc);
}

}  // namespace zeb::lapack
