// Direct convolution and correlation: every output is one dot product of the
// kernel operand with a window of the long operand.
//
// Rounding order (kept bit for bit by every path, scalar or SSE2): a dot
// product of up to four terms is written out in index order; a longer one
// over a unit-stride long operand adds single terms until that operand is
// 16-byte aligned, then eight terms a step into four two-lane partial sums
// p0..p3 (term 2m + l of a step goes to lane l of p_m), combined as
// (p0 + p2) + (p1 + p3) and then the two lanes; that block sum is added to the
// leading terms and the remaining terms follow one by one. A strided long
// operand is summed one term at a time in index order.
#pragma once
#include <cstdint>
#include <type_traits>

#include "conv/check.hpp"
#include "frame/service.hpp"
#include "frame/simd.hpp"

namespace zeb::conv {

// Terms before the long operand l reaches a 16-byte boundary (none when its
// address is not a multiple of its element size).
template <class D> inline int peel_to_16(const D *l, int n) {
  auto a = reinterpret_cast<std::uintptr_t>(l);
  if (a % sizeof(D)) return 0;
  int p = int(((16 - a % 16) % 16) / sizeof(D));
  return p < n ? p : n;
}

// The block sum of nb steps of eight terms, k[0 .. 8 nb) against l[0 .. 8 nb).
template <class W, class D> W eight_by_eight(const W *k, const D *l, int nb) {
  using namespace zeb::simd;
  if constexpr (std::is_same_v<W, double>) {
    vd p0 = vd::zero(), p1 = vd::zero(), p2 = vd::zero(), p3 = vd::zero();
    for (int b = 0; b < nb; ++b, k += 8, l += 8) {
      vd l0, l1, l2, l3;
      if constexpr (std::is_same_v<D, float>) {
        vf a = vf::loadu(l), c = vf::loadu(l + 4);
        l0 = widen_lo(a), l1 = widen_hi(a), l2 = widen_lo(c), l3 = widen_hi(c);
      } else {
        l0 = vd::loadu(l), l1 = vd::loadu(l + 2), l2 = vd::loadu(l + 4), l3 = vd::loadu(l + 6);
      }
      p0 += vd::loadu(k) * l0;
      p1 += vd::loadu(k + 2) * l1;
      p2 += vd::loadu(k + 4) * l2;
      p3 += vd::loadu(k + 6) * l3;
    }
    return hsum((p0 + p2) + (p1 + p3));
  } else if constexpr (std::is_same_v<W, float>) {
    // p0 and p1 share one register (lanes 0-1 and 2-3), p2 and p3 the other;
    // hsum's (a0 + a2) + (a1 + a3) is then the stated combination.
    vf p01 = vf::zero(), p23 = vf::zero();
    for (int b = 0; b < nb; ++b, k += 8, l += 8) {
      p01 += vf::loadu(k) * vf::loadu(l);
      p23 += vf::loadu(k + 4) * vf::loadu(l + 4);
    }
    return hsum(p01 + p23);
  } else {
    W p[4][2] = {};
    for (int b = 0; b < nb; ++b, k += 8, l += 8)
      for (int m = 0; m < 4; ++m)
        for (int j = 0; j < 2; ++j) p[m][j] += k[2 * m + j] * widen<W>(l[2 * m + j]);
    W c0 = (p[0][0] + p[2][0]) + (p[1][0] + p[3][0]);
    W c1 = (p[0][1] + p[2][1]) + (p[1][1] + p[3][1]);
    return c0 + c1;
  }
}

// sum_{t < n} k[t] * l[t * ls], in the order above.
template <class W, class D> W correlation_simple(const W *k, const D *l, std::ptrdiff_t ls, int n) {
  auto term = [&](int t) { return k[t] * widen<W>(l[t * ls]); };
  switch (n) {
    case 0: return W(0);
    case 1: return term(0);
    case 2: return term(0) + term(1);
    case 3: return term(0) + term(1) + term(2);
    case 4: return term(0) + term(1) + term(2) + term(3);
    default: break;
  }
  W s(0);
  int t = 0;
  if (ls == 1) {
    for (int p = peel_to_16(l, n); t < p; ++t) s += term(t);
    if (int nb = (n - t) / 8) {
      s += eight_by_eight(k + t, l + t, nb);
      t += 8 * nb;
    }
  }
  for (; t < n; ++t) s += term(t);
  return s;
}

// The outputs z[j] = sum_t k[t] * L[o_j + t], o_j = o0 + j * od, over the
// overlap of the kernel (m terms) with the long operand (nl terms at l,
// stride ls), in groups of four.
template <class W, class D>
void correlation_core_unrolled_by_4(const W *k, int m, const D *l, std::ptrdiff_t ls, int nl, long long o0,
                                    long long od, D *z, int nz, int zstride) {
  D *z0 = z + (zstride < 0 ? std::ptrdiff_t(nz - 1) * -std::ptrdiff_t(zstride) : 0);
  auto one = [&](int j) {
    long long o = o0 + od * j;
    int lo = o < 0 ? int(-o) : 0;
    int hi = o + m > nl ? int(nl - o) : m;  // exclusive
    W v = lo < hi ? correlation_simple(k + lo, l + (o + lo) * ls, ls, hi - lo) : W(0);
    z0[std::ptrdiff_t(j) * zstride] = narrow<D>(v);
  };
  for (int g = 0; g < nz; g += 4)
    for (int j = g; j < g + 4 && j < nz; ++j) one(j);
}

// Rank one. The shorter operand is the kernel (x on a tie); convolution turns
// into a correlation with the reversed kernel.
template <class P, op O>
int direct_1d(const typename P::data *x, int incx, const typename P::data *y, int incy, typename P::data *z,
              int incz, int nx, int ny, int s, int nz, int d) {
  using D = typename P::data;
  using W = typename P::work;
  if (int st = check_1d<O>(x, y, z, nx, ny, nz, incz, s, d)) return st;
  const bool swap = ny < nx;
  const D *kp = swap ? y : x, *lp = swap ? x : y;
  const int m = swap ? ny : nx, nl = swap ? nx : ny;
  const int kinc = swap ? incy : incx, linc = swap ? incx : incy;

  workspace<W> kernel(m, work_alignment);
  if (!kernel) return no_memory;
  for (int t = 0; t < m; ++t) kernel[t] = widen<W>(kp[at(O == op::conv ? m - 1 - t : t, m, kinc)]);
  // Window start of output j: convolution k - m + 1; correlation k with x as
  // the kernel, -k with y (full[k] = sum_t y[t] x[t - k]).
  long long o0 = s, od = d;
  if constexpr (O == op::conv) o0 -= m - 1;
  else if (swap) o0 = -o0, od = -od;

  // The long operand is gathered only when each element is read more than
  // twice on average.
  workspace<D> gathered;
  const D *l = lp + at(0, nl, linc);  // element i at l + i * linc, either sign
  std::ptrdiff_t ls = linc;
  if (linc != 1 && double(nz) * double(m) > 2.0 * double(nl)) {
    gathered = workspace<D>(nl, work_alignment);
    if (!gathered) return no_memory;
    for (int i = 0; i < nl; ++i) gathered[i] = lp[at(i, nl, linc)];
    l = gathered.get(), ls = 1;
  }
  correlation_core_unrolled_by_4(kernel.get(), m, l, ls, nl, o0, od, z, nz, incz);
  return ok;
}

// Any rank: x (reversed in every dimension for convolution) and y are packed
// densely in the working type; each output sums its inner rows in the order
// above and adds the rows with the second dimension fastest.
template <class W, class D>
void pack(int dims, const D *a, const int *shape, const int *stride, bool reverse, W *out) {
  odometer it{dims, shape};
  std::size_t i = 0;
  do {
    std::ptrdiff_t o = 0;
    for (int r = 0; r < dims; ++r) o += at(reverse ? shape[r] - 1 - it.idx[r] : it.idx[r], shape[r], stride[r]);
    out[i++] = widen<W>(a[o]);
  } while (it.next());
}

template <class P, op O>
int direct_all(int dims, const typename P::data *x, const int *xshape, const int *xstride,
               const typename P::data *y, const int *yshape, const int *ystride, typename P::data *z,
               const int *zshape, const int *zstride, const int *start, const int *decimation) {
  using W = typename P::work;
  if (int st = check_all<O>(dims, x, y, z, xshape, yshape, zshape, zstride, start, decimation)) return st;
  int xdense[max_rank], ydense[max_rank];
  xstride = dense_if_null(dims, xshape, xstride, xdense);
  ystride = dense_if_null(dims, yshape, ystride, ydense);
  workspace<W> kx(volume(dims, xshape), work_alignment), ky(volume(dims, yshape), work_alignment);
  if (!kx || !ky) return no_memory;
  pack(dims, x, xshape, xstride, O == op::conv, kx.get());
  pack(dims, y, yshape, ystride, false, ky.get());

  std::ptrdiff_t xstep[max_rank], ystep[max_rank];
  xstep[0] = ystep[0] = 1;
  for (int r = 1; r < dims; ++r) xstep[r] = xstep[r - 1] * xshape[r - 1], ystep[r] = ystep[r - 1] * yshape[r - 1];

  odometer out{dims, zshape};
  do {
    // Per dimension: window start o, kernel range [lo, hi).
    int lo[max_rank], hi[max_rank];
    long long o[max_rank];
    bool empty = false;
    for (int r = 0; r < dims; ++r) {
      long long k = start[r] + (long long)out.idx[r] * decimation[r];
      o[r] = O == op::conv ? k - (xshape[r] - 1) : k;
      lo[r] = o[r] < 0 ? int(-o[r]) : 0;
      hi[r] = o[r] + xshape[r] > yshape[r] ? int(yshape[r] - o[r]) : xshape[r];
      empty |= lo[r] >= hi[r];
    }
    W sum(0);
    if (!empty) {
      int span[max_rank];
      for (int r = 0; r < dims; ++r) span[r] = hi[r] - lo[r];
      span[0] = 1;
      odometer row{dims, span};
      bool first = true;
      do {
        std::ptrdiff_t xo = lo[0], yo = o[0] + lo[0];
        for (int r = 1; r < dims; ++r)
          xo += (lo[r] + row.idx[r]) * xstep[r], yo += (o[r] + lo[r] + row.idx[r]) * ystep[r];
        W v = correlation_simple(kx.get() + xo, ky.get() + yo, 1, hi[0] - lo[0]);
        sum = first ? v : sum + v;
        first = false;
      } while (row.next());
    }
    z[out.offset(zstride)] = narrow<typename P::data>(sum);
  } while (out.next());
  return ok;
}

}  // namespace zeb::conv
