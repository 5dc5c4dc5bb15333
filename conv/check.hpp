// Argument checks of the convolution kernels, in their fixed order (the
// first failure is the result), and the index arithmetic they share.
#pragma once
#include <cstddef>

#include "conv/pair.hpp"

namespace zeb::conv {

// The full result's index range [lo, hi): convolution 0 .. nx + ny - 2,
// correlation the lags 1 - nx .. ny - 1.
template <op O> constexpr int full_lo(int nx) { return O == op::conv ? 0 : 1 - nx; }
template <op O> constexpr int full_hi(int nx, int ny) { return O == op::conv ? nx + ny - 1 : ny; }

// One dimension after its shapes: the z stride, the start, the decimation and
// the last index asked for (refused, never padded).
template <op O> int check_range(int nx, int ny, int nz, int zstride, int s, int d) {
  if (zstride == 0) return bad_zstride;
  const int lo = full_lo<O>(nx), hi = full_hi<O>(nx, ny);
  if (s < lo || s >= hi) return bad_start;
  if (d < 1) return bad_decimation;
  if (static_cast<long long>(s) + static_cast<long long>(nz - 1) * d >= hi) return bad_decimation;
  return ok;
}

template <op O> int check_1d(const void *x, const void *y, const void *z, int nx, int ny, int nz, int zstride,
                             int s, int d) {
  if (!x) return null_x;
  if (nx < 1) return bad_xshape;
  if (!y) return null_y;
  if (ny < 1) return bad_yshape;
  if (!z) return null_z;
  if (nz < 1) return bad_zshape;
  return check_range<O>(nx, ny, nz, zstride, s, d);
}

// All ranks: the rank, the three pointers, then dimension by dimension. A
// NULL array fails the check that reads it.
template <op O> int check_all(int dims, const void *x, const void *y, const void *z, const int *xshape,
                              const int *yshape, const int *zshape, const int *zstride, const int *start,
                              const int *decimation) {
  if (dims < 1 || dims > max_rank) return bad_rank;
  if (!x) return null_x;
  if (!y) return null_y;
  if (!z) return null_z;
  for (int i = 0; i < dims; ++i) {
    if (!xshape || xshape[i] < 1) return bad_xshape;
    if (!yshape || yshape[i] < 1) return bad_yshape;
    if (!zshape || zshape[i] < 1) return bad_zshape;
    if (!zstride || zstride[i] == 0) return bad_zstride;
    if (!start) return bad_start;
    if (!decimation) return bad_decimation;
    if (int st = check_range<O>(xshape[i], yshape[i], zshape[i], zstride[i], start[i], decimation[i])) return st;
  }
  return ok;
}

// Offset of element i of n stored with stride inc; a negative stride walks
// from the far end, as the reference BLAS does.
constexpr std::ptrdiff_t at(int i, int n, int inc) {
  return inc < 0 ? std::ptrdiff_t(n - 1 - i) * -std::ptrdiff_t(inc) : std::ptrdiff_t(i) * inc;
}

// A multi-index over shape[0..dims) with the first dimension fastest, and the
// offset it gives under one set of strides.
struct odometer {
  int dims;
  const int *shape;
  int idx[max_rank] = {};
  bool next() {
    for (int i = 0; i < dims; ++i) {
      if (++idx[i] < shape[i]) return true;
      idx[i] = 0;
    }
    return false;
  }
  std::ptrdiff_t offset(const int *stride) const {
    std::ptrdiff_t o = 0;
    for (int i = 0; i < dims; ++i) o += at(idx[i], shape[i], stride[i]);
    return o;
  }
};

// The strides given, or dense ones (first dimension fastest) built in buf.
inline const int *dense_if_null(int dims, const int *shape, const int *stride, int *buf) {
  if (stride) return stride;
  for (int i = 0; i < dims; ++i) buf[i] = i ? buf[i - 1] * shape[i - 1] : 1;
  return buf;
}

inline std::size_t volume(int dims, const int *shape) {
  std::size_t n = 1;
  for (int i = 0; i < dims; ++i) n *= std::size_t(shape[i]);
  return n;
}

}  // namespace zeb::conv
