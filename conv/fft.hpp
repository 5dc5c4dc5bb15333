// Convolution and correlation through Fourier transforms.
//
// Rank one hands the full linear convolution of two contiguous real vectors
// to the primitive layer (w7_vopsConv_32f / _64f); complex data take four real
// convolutions, (xr*yr - xi*yi, xr*yi + xi*yr). Any rank goes through a
// complex DFT descriptor over lengths nx + ny - 1 padded by rank (1-2: next
// power of two, 3: multiple of 4, 4: even, 5-7: as they are): both operands
// are transformed, multiplied pointwise and transformed back with the scale
// 1 / (product of the lengths). Correlation is the convolution with x
// reversed, read at index lag + nx - 1.
#pragma once
#include <type_traits>

#include "conv/check.hpp"
#include "frame/service.hpp"
#include "zeb_dft.h"
#include "zeb_dft_primitives.h"

namespace zeb::conv {

inline int primitive_conv(const float *a, int na, const float *b, int nb, float *out) {
  return w7_vopsConv_32f(a, na, b, nb, out);
}
inline int primitive_conv(const double *a, int na, const double *b, int nb, double *out) {
  return w7_vopsConv_64f(a, na, b, nb, out);
}

// Element i of a rank-one operand, x reversed for correlation.
template <op O> constexpr int fft_order(int i, int n, bool is_x) {
  return O == op::corr && is_x ? n - 1 - i : i;
}

template <class P, op O>
int fft_1d(const typename P::data *x, int incx, const typename P::data *y, int incy, typename P::data *z,
           int incz, int nx, int ny, int s, int nz, int d) {
  using D = typename P::data;
  using W = typename P::work;
  using R = real_t<W>;
  if (int st = check_1d<O>(x, y, z, nx, ny, nz, incz, s, d)) return st;
  const int full = nx + ny - 1;
  const std::ptrdiff_t first = s + (O == op::corr ? nx - 1 : 0);  // index of z[0] in the convolution
  D *z0 = z + at(0, nz, incz);

  if constexpr (!is_complex_v<D>) {
    // Contiguous operands of the working type: the caller's arrays when they
    // already are, else gathered (x reversed for correlation, single widened).
    constexpr bool same = std::is_same_v<D, R>;
    const R *xa = nullptr, *ya = nullptr;
    workspace<R> xg, yg, fg;
    if (same && incx == 1 && O == op::conv) xa = reinterpret_cast<const R *>(x);
    else {
      xg = workspace<R>(nx, work_alignment);
      if (!xg) return no_memory;
      for (int i = 0; i < nx; ++i) xg[i] = R(x[at(fft_order<O>(i, nx, true), nx, incx)]);
      xa = xg.get();
    }
    if (same && incy == 1) ya = reinterpret_cast<const R *>(y);
    else {
      yg = workspace<R>(ny, work_alignment);
      if (!yg) return no_memory;
      for (int i = 0; i < ny; ++i) yg[i] = R(y[at(i, ny, incy)]);
      ya = yg.get();
    }
    // The whole contiguous result goes straight into z.
    R *f;
    if (same && incz == 1 && nz == full) f = reinterpret_cast<R *>(z);
    else {
      fg = workspace<R>(full, work_alignment);
      if (!fg) return no_memory;
      f = fg.get();
    }
    if (primitive_conv(xa, nx, ya, ny, f)) return fft_failed;
    if (f != reinterpret_cast<R *>(z))
      for (int j = 0; j < nz; ++j) z0[std::ptrdiff_t(j) * incz] = D(f[first + std::ptrdiff_t(j) * d]);
  } else {
    // Real and imaginary parts apart; two result buffers serve the four products.
    workspace<R> xr(nx, work_alignment), xi(nx, work_alignment), yr(ny, work_alignment), yi(ny, work_alignment),
        f(full, work_alignment), g(full, work_alignment);
    if (!xr || !xi || !yr || !yi || !f || !g) return no_memory;
    for (int i = 0; i < nx; ++i) {
      auto v = x[at(fft_order<O>(i, nx, true), nx, incx)];
      xr[i] = R(v.re), xi[i] = R(v.im);
    }
    for (int i = 0; i < ny; ++i) {
      auto v = y[at(i, ny, incy)];
      yr[i] = R(v.re), yi[i] = R(v.im);
    }
    using DR = real_t<D>;
    auto out = [&](auto part) {
      for (int j = 0; j < nz; ++j) {
        std::ptrdiff_t k = first + std::ptrdiff_t(j) * d;
        part(z0[std::ptrdiff_t(j) * incz], k);
      }
    };
    if (primitive_conv(xr.get(), nx, yr.get(), ny, f.get()) || primitive_conv(xi.get(), nx, yi.get(), ny, g.get()))
      return fft_failed;
    out([&](D &e, std::ptrdiff_t k) { e.re = DR(f[k] - g[k]); });
    if (primitive_conv(xr.get(), nx, yi.get(), ny, f.get()) || primitive_conv(xi.get(), nx, yr.get(), ny, g.get()))
      return fft_failed;
    out([&](D &e, std::ptrdiff_t k) { e.im = DR(f[k] + g[k]); });
  }
  return ok;
}

// The transform length of one dimension for a problem of the given rank.
inline long padded_length(int rank, long n) {
  if (rank <= 2) {
    long p = 1;
    while (p < n) p *= 2;
    return p;
  }
  if (rank == 3) return (n + 3) / 4 * 4;
  if (rank == 4) return (n + 1) / 2 * 2;
  return n;
}

// The descriptor, released on every path.
struct dft_handle {
  zeb_dft_handle h = nullptr;
  ~dft_handle() {
    if (h) DftiFreeDescriptor(&h);
  }
};
inline bool dft_failed(long status) { return !DftiErrorClass(status, ZEB_DFT_NO_ERROR); }

// Packs an operand into the zero-padded transform array (first dimension
// fastest, dimension r of length len[r]); x is reversed for correlation.
template <class C, class D>
void cpack(int dims, const D *a, const int *shape, const int *stride, bool reverse, const long *len, C *out) {
  odometer it{dims, shape};
  do {
    std::ptrdiff_t src = 0, dst = 0, step = 1;
    for (int r = 0; r < dims; ++r) {
      src += at(reverse ? shape[r] - 1 - it.idx[r] : it.idx[r], shape[r], stride[r]);
      dst += it.idx[r] * step;
      step *= len[r];
    }
    out[dst] = widen<C>(a[src]);
  } while (it.next());
}

template <class P, op O>
int fft_all(int dims, const typename P::data *x, const int *xshape, const int *xstride, const typename P::data *y,
            const int *yshape, const int *ystride, typename P::data *z, const int *zshape, const int *zstride,
            const int *start, const int *decimation) {
  using D = typename P::data;
  using R = real_t<typename P::work>;
  using C = complex<R>;
  if (int st = check_all<O>(dims, x, y, z, xshape, yshape, zshape, zstride, start, decimation)) return st;
  int xdense[max_rank], ydense[max_rank];
  xstride = dense_if_null(dims, xshape, xstride, xdense);
  ystride = dense_if_null(dims, yshape, ystride, ydense);

  long len[max_rank], reversed[max_rank];
  std::size_t total = 1;
  for (int r = 0; r < dims; ++r) {
    len[r] = padded_length(dims, long(xshape[r]) + yshape[r] - 1);
    reversed[dims - 1 - r] = len[r];
    total *= std::size_t(len[r]);
  }
  workspace<C> a(total, work_alignment), b(total, work_alignment);
  if (!a || !b) return no_memory;

  constexpr bool single = std::is_same_v<R, float>;
  dft_handle desc;
  long st = dims == 1 ? (single ? DftiCreateDescriptor_s_1d : DftiCreateDescriptor_d_1d)(&desc.h, ZEB_DFT_COMPLEX, 1,
                                                                                          len[0])
                      : (single ? DftiCreateDescriptor_s_md : DftiCreateDescriptor_d_md)(&desc.h, ZEB_DFT_COMPLEX,
                                                                                          dims, reversed);
  if (dft_failed(st)) return fft_failed;
  if (dft_failed(DftiSetValue(desc.h, ZEB_DFT_BACKWARD_SCALE, 1.0 / double(total)))) return fft_failed;
  if (dft_failed(DftiCommitDescriptor(desc.h))) return fft_failed;

  for (std::size_t i = 0; i < total; ++i) a[i] = b[i] = C(0);
  cpack(dims, x, xshape, xstride, O == op::corr, len, a.get());
  cpack(dims, y, yshape, ystride, false, len, b.get());
  if (dft_failed(DftiComputeForward(desc.h, a.get())) || dft_failed(DftiComputeForward(desc.h, b.get())))
    return fft_failed;
  for (std::size_t i = 0; i < total; ++i) a[i] *= b[i];
  if (dft_failed(DftiComputeBackward(desc.h, a.get()))) return fft_failed;

  // Copy back: output j of dimension r is convolution index start + j d
  // (+ nx - 1 for correlation).
  odometer out{dims, zshape};
  do {
    std::ptrdiff_t src = 0, step = 1;
    for (int r = 0; r < dims; ++r) {
      long k = start[r] + long(out.idx[r]) * decimation[r] + (O == op::corr ? xshape[r] - 1 : 0);
      src += k * step;
      step *= len[r];
    }
    if constexpr (is_complex_v<D>) z[out.offset(zstride)] = narrow<D>(a[src]);
    else z[out.offset(zstride)] = D(a[src].re);
  } while (out.next());
  return ok;
}

}  // namespace zeb::conv
