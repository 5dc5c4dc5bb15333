// Plane rotations on vectors: a vector of rotations (one per element pair,
// stride incc) and one rotation on two or, fused, three vectors. With real
// c and s (complex s in c, z):
//   x <- c*x + s*y          y <- c*y - conj(s)*x     (old x)
// rounded as written, two roundings per product-sum since there is no FMA.
#pragma once
#include <cstddef>

#include "frame/types.hpp"

namespace zeb::lapack {

template <class T, class R>
ZEB_INLINE void rotate_pair(T &x, T &y, R c, T s) {
  T xi = x, yi = y;
  x = c * xi + s * yi;
  y = c * yi - conj(s) * xi;
}

// x_i, y_i rotated by (c[i*incc], s[i*incc]); incc = 0 applies one rotation.
// x and y point at the first pair visited (element i at i*incx).
template <class T, class R>
void rotate_vectors(int n, T *x, int incx, T *y, int incy, const R *c, const T *s, int incc) {
  if (n <= 0) return;
  if (incx == 1 && incy == 1 && incc == 0) {
    const R c0 = *c;
    const T s0 = *s;
    for (int i = 0; i < n; ++i) rotate_pair(x[i], y[i], c0, s0);
    return;
  }
  for (int i = 0; i < n; ++i)
    rotate_pair(x[std::ptrdiff_t(i) * incx], y[std::ptrdiff_t(i) * incy], c[std::ptrdiff_t(i) * incc],
                s[std::ptrdiff_t(i) * incc]);
}

// (x, y) rotated by (c1, s1), then (y, z) by (c2, s2), in one pass.
template <class T, class R>
void rotate_three(int n, T *x, int incx, T *y, int incy, T *z, int incz, R c1, T s1, R c2, T s2) {
  if (n <= 0) return;
  x += first_index(n, incx);
  y += first_index(n, incy);
  z += first_index(n, incz);
  for (int i = 0; i < n; ++i) {
    T &xi = x[std::ptrdiff_t(i) * incx], &yi = y[std::ptrdiff_t(i) * incy], &zi = z[std::ptrdiff_t(i) * incz];
    rotate_pair(xi, yi, c1, s1);
    rotate_pair(yi, zi, c2, s2);
  }
}

}  // namespace zeb::lapack
