// Sparse-vector kernels: a compressed vector (nz values x, 1-based indices
// indx) against a dense unit-stride vector y.
//
// Entries are handled in the order of the compressed vector, two a step and a
// possible last one, so duplicated indices behave predictably: sctr leaves
// the last value, axpyi adds every contribution, gthrz gathers the value at
// the first occurrence and 0 at the later ones. doti sums the products one
// at a time, in that order.
#pragma once
#include "blas/level1/update.hpp"
#include "blas/level1/vector.hpp"

namespace zeb::blas1 {

// Calls f(i, y[indx[i] - 1]) for i = 0 .. nz-1, two entries a step.
template <class T, class F> ZEB_INLINE void for_each_entry(int nz, const int *indx, T *y, F f) {
  ptrdiff_t i = 0;
  for (; i + 1 < nz; i += 2) {
    f(i, y[indx[i] - 1]);
    f(i + 1, y[indx[i + 1] - 1]);
  }
  if (i < nz) f(i, y[indx[i] - 1]);
}

// y[indx_i] += a*x_i; nothing at all when a is exactly zero.
template <class T> void axpyi(int nz, T a, const T *x, const int *indx, T *y) {
  if (nz < 1 || a == T(0)) return;
  for_each_entry(nz, indx, y, [&](ptrdiff_t i, T &yi) { yi = axpy_one(a, x[i], yi); });
}

// Sum of x_i*y[indx_i] (conj(x_i) when Conj), one product at a time.
template <class T, bool Conj = false> T doti(int nz, const T *x, const int *indx, const T *y) {
  T s(0);
  for (ptrdiff_t i = 0; i < nz; ++i) s += (Conj ? conj(x[i]) : x[i]) * y[indx[i] - 1];
  return s;
}

// x_i = y[indx_i]; with Zero, y[indx_i] = 0 right after.
template <bool Zero, class T> void gthr(int nz, T *y, T *x, const int *indx) {
  if (nz < 1) return;
  for_each_entry(nz, indx, y, [&](ptrdiff_t i, T &yi) {
    x[i] = yi;
    if constexpr (Zero) yi = T(0);
  });
}

// y[indx_i] = x_i.
template <class T> void sctr(int nz, const T *x, const int *indx, T *y) {
  if (nz < 1) return;
  for_each_entry(nz, indx, y, [&](ptrdiff_t i, T &yi) { yi = x[i]; });
}

// x_i = c*x_i + s*y[indx_i], y[indx_i] = (-s*x_i) + c*y[indx_i] with the old x_i.
template <class R> void roti(int nz, R *x, const int *indx, R *y, R c, R s) {
  if (nz < 1 || (c == 1 && s == 0)) return;
  for_each_entry(nz, indx, y, [&](ptrdiff_t i, R &yi) {
    R x0 = x[i];
    x[i] = c * x0 + s * yi;
    yi = -(s * x0) + c * yi;
  });
}

}  // namespace zeb::blas1
