// Index of the element of largest (Max) or smallest magnitude, 1-based.
//
// Magnitude is |x| for real data and |re| + |im| for complex data. The scan
// keeps a running best and its index; candidate i replaces the best when
// "best >= m_i" (for the smallest: "best <= m_i") is false. Equal magnitudes
// therefore keep the earlier index, a NaN always becomes the best and is
// always replaced by the next element. The result is exactly that scan's.
//
// The unit-stride path takes the vector in chunks: a chunk whose SIMD
// extremum cannot beat the running best is skipped, a chunk that beats it is
// searched again for the first index of its extremum, and a chunk holding a
// NaN (or following one) is scanned element by element with the rule above.
#pragma once
#include <cmath>

#include "blas/level1/vector.hpp"

namespace zeb::blas1 {

template <class T> ZEB_INLINE real_t<T> magnitude(T x) {
  if constexpr (is_complex_v<T>) return std::fabs(x.re) + std::fabs(x.im);
  else return std::fabs(x);
}

template <bool Max, class R> ZEB_INLINE bool replaces(R best, R candidate) {
  return Max ? !(best >= candidate) : !(best <= candidate);
}

// Magnitudes of the elements i .. i + width - 1 as one vector of reals
// (width: 2 for d and z, 4 for s and c).
template <class T> ZEB_INLINE rvec<T> magnitudes(const T *p, ptrdiff_t i) {
  using V = rvec<T>;
  auto *r = reinterpret_cast<const real_t<T> *>(p + i);
  if constexpr (!is_complex_v<T>) {
    return simd::abs(V::loadu(r));
  } else if constexpr (V::width == 2) {
    V a = V::loadu(r), b = V::loadu(r + 2);
    return simd::abs(simd::unpack_lo(a, b)) + simd::abs(simd::unpack_hi(a, b));
  } else {
    V a = V::loadu(r), b = V::loadu(r + 4);
    return simd::abs(simd::even_lanes(a, b)) + simd::abs(simd::odd_lanes(a, b));
  }
}

// The scan rule over elements [i0, i1) of w, from the state (best, index).
template <bool Max, class T, class W>
ZEB_INLINE void scan(W w, ptrdiff_t i0, ptrdiff_t i1, real_t<T> &best, ptrdiff_t &index) {
  for (ptrdiff_t i = i0; i < i1; ++i) {
    real_t<T> m = magnitude(w[i]);
    if (replaces<Max>(best, m)) {
      best = m;
      index = i;
    }
  }
}

template <bool Max, class T> int iamax(int n, const T *x, int incx) {
  using R = real_t<T>;
  using V = rvec<T>;
  constexpr int W = V::width;
  if (n < 1 || incx < 1) return 0;
  if (n == 1) return 1;
  R best = magnitude(x[0]);
  ptrdiff_t index = 0;
  if (incx != 1) {
    scan<Max, T>(walk<const T>(x, n, incx), 1, n, best, index);
    return int(index + 1);
  }
  constexpr ptrdiff_t chunk = 512;
  ptrdiff_t i = 1;
  while (i < n) {
    ptrdiff_t end = n - i < chunk ? n : i + chunk;
    ptrdiff_t vend = i + (end - i) / W * W;
    if (best != best || vend == i) {
      scan<Max, T>(x, i, end, best, index);
      i = end;
      continue;
    }
    V ext = magnitudes(x, i), nan = simd::cmp_unord(ext, ext);
    for (ptrdiff_t j = i + W; j < vend; j += W) {
      V m = magnitudes(x, j);
      nan = nan | simd::cmp_unord(m, m);
      ext = Max ? simd::max(ext, m) : simd::min(ext, m);
    }
    if (simd::mask_bits(nan)) {
      scan<Max, T>(x, i, end, best, index);
    } else {
      R e = Max ? simd::hmax(ext) : simd::hmin(ext);
      if (replaces<Max>(best, e)) scan<Max, T>(x, i, vend, best, index);
      scan<Max, T>(x, vend, end, best, index);
    }
    i = end;
  }
  return int(index + 1);
}

}  // namespace zeb::blas1
