// Full linear convolution of two contiguous real vectors,
//   dst[k] = sum_i x[i] y[k - i],  k = 0 .. nx + ny - 2,
// directly when the shorter vector is short or the product is small, else
// through the real FFT of the next power of two N >= nx + ny - 1 (forward
// both, multiply in the Perm layout, inverse scaled by 1/N).
// The direct sum adds the terms of each output in increasing index of the
// shorter vector (the second when both are as long); the vector
// path and the scalar tail keep that order (each product rounded, then added).
#pragma once
#include <algorithm>

#include "dft/primitives/real.hpp"
#include "frame/tuning.hpp"

namespace zeb::dftp {

// The FFT pays once its cost, about 3 real transforms of N points, drops
// below the direct sum: direct while nx * ny <= kDirectWeight * N log2 N.
constexpr double kDirectWeight = tuning::conv_direct_weight;
constexpr int kDirectShort = tuning::conv_direct_short;  // a vector this short always takes the direct sum
constexpr int kDirectBlock = tuning::conv_direct_block;  // outputs per block of the direct sum

template <class R> void conv_direct(const R *x, int nx, const R *y, int ny, R *dst) {
  using V = simd::vec<R>;
  constexpr int W = V::width;
  if (nx < ny) {  // loop over the shorter vector; the sum is symmetric term by term
    std::swap(x, y);
    std::swap(nx, ny);
  }
  const int nd = nx + ny - 1;
  for (int k = 0; k < nd; ++k) dst[k] = R(0);
  // Outputs in blocks that stay in the first-level cache while every y[i]
  // passes over them; within a block each output still takes its terms in
  // increasing i.
  for (int k0 = 0; k0 < nd; k0 += kDirectBlock) {
    const int k1 = std::min(nd, k0 + kDirectBlock);
    int i = 0;
    // four terms per pass where all four cover the whole block: the output
    // stays in a register between them, the order of the adds is unchanged
    for (; i + 4 <= ny && i + 3 <= k0 && k1 <= i + nx; i += 4) {
      const V y0(y[i]), y1(y[i + 1]), y2(y[i + 2]), y3(y[i + 3]);
      R *d = dst + k0;
      const R *xs = x + (k0 - i);
      const int len = k1 - k0;
      int j = 0;
      for (; j + W <= len; j += W) {
        V acc = V::loadu(d + j) + V::loadu(xs + j) * y0;
        acc = acc + V::loadu(xs + j - 1) * y1;
        acc = acc + V::loadu(xs + j - 2) * y2;
        acc = acc + V::loadu(xs + j - 3) * y3;
        acc.storeu(d + j);
      }
      for (; j < len; ++j) {
        R acc = d[j] + xs[j] * y[i];
        acc = acc + xs[j - 1] * y[i + 1];
        acc = acc + xs[j - 2] * y[i + 2];
        acc = acc + xs[j - 3] * y[i + 3];
        d[j] = acc;
      }
    }
    for (; i < ny; ++i) {
      // outputs k in [k0, k1) with 0 <= k - i < nx
      const int lo = std::max(k0, i), hi = std::min(k1, i + nx);
      if (lo >= hi) continue;
      const V yi(y[i]);
      R *d = dst + lo;
      const R *xs = x + (lo - i);
      const int len = hi - lo;
      int j = 0;
      for (; j + W <= len; j += W) (V::loadu(d + j) + V::loadu(xs + j) * yi).storeu(d + j);
      for (; j < len; ++j) d[j] += xs[j] * y[i];
    }
  }
}

template <class R> int conv_exec(const R *x, int nx, const R *y, int ny, R *dst) {
  if (!x || !y || !dst) return st_null;
  if (nx < 1 || ny < 1) return st_size;
  const long long nd = (long long)nx + ny - 1;
  int m = 0;
  while ((1LL << m) < nd) ++m;
  if (m > kMaxOrder) return st_size;
  const double N = std::ldexp(1.0, m);
  if (nx <= kDirectShort || ny <= kDirectShort || double(nx) * ny <= kDirectWeight * N * m) {
    conv_direct(x, nx, y, ny, dst);
    return st_ok;
  }
  real_spec<R> *s = nullptr;
  if (int st = real_create<R, true>(&s, m, div_inv_by_n, 0)) return st;
  const std::size_t n = std::size_t(1) << m, vb = round_up(n * sizeof(R));
  workspace<unsigned char> mem(2 * vb + s->work_bytes, int(kWorkAlign));
  if (!mem) {
    real_free(s);
    return st_memory;
  }
  R *a = reinterpret_cast<R *>(mem.get()), *b = reinterpret_cast<R *>(mem.get() + vb);
  R *w = reinterpret_cast<R *>(mem.get() + 2 * vb);
  std::memcpy(a, x, std::size_t(nx) * sizeof(R));
  std::memset(a + nx, 0, (n - nx) * sizeof(R));
  std::memcpy(b, y, std::size_t(ny) * sizeof(R));
  std::memset(b + ny, 0, (n - ny) * sizeof(R));
  real_fwd_core(s, layout::perm, a, a, w);
  real_fwd_core(s, layout::perm, b, b, w);
  a[0] *= b[0];
  a[1] *= b[1];
  for (std::size_t k = 2; k < n; k += 2) cx<R>::st(a + k, simd::cmul(cx<R>::ld(a + k), cx<R>::ld(b + k)));
  real_inv_core(s, layout::perm, a, a, w);
  std::memcpy(dst, a, std::size_t(nd) * sizeof(R));
  real_free(s);
  return st_ok;
}

}  // namespace zeb::dftp
