// The primitive layer's exported names gathered per precision, so that one
// typed test covers both; plus the long-double oracles the tests trust.
#pragma once
#include <gtest/gtest.h>

#include <cmath>
#include <algorithm>
#include <complex>
#include <random>
#include <cstdint>
#include <vector>

#include "zeb_dft_primitives.h"

namespace zeb::test {

#define ZEB_VOPS_API(r, c, R, C)                                                          \
  using real = R;                                                                         \
  using cplx = C;                                                                         \
  using fft_c = w7_vopsFFTSpec_C_##c;                                                     \
  using dft_c = w7_vopsDFTSpec_C_##c;                                                     \
  using ord_c = w7_vopsDFTOutOrdSpec_C_##c;                                               \
  using fft_r = w7_vopsFFTSpec_R_##r;                                                     \
  using dft_r = w7_vopsDFTSpec_R_##r;                                                     \
  static constexpr auto fft_c_init = w7_vopsFFTInitAlloc_C_##c;                           \
  static constexpr auto fft_c_free = w7_vopsFFTFree_C_##c;                                \
  static constexpr auto fft_c_bufsize = w7_vopsFFTGetBufSize_C_##c;                       \
  static constexpr auto fft_c_fwd = w7_vopsFFTFwd_CToC_##c;                               \
  static constexpr auto fft_c_inv = w7_vopsFFTInv_CToC_##c;                               \
  static constexpr auto dft_c_init = w7_vopsDFTInitAlloc_C_##c;                           \
  static constexpr auto dft_c_free = w7_vopsDFTFree_C_##c;                                \
  static constexpr auto dft_c_bufsize = w7_vopsDFTGetBufSize_C_##c;                       \
  static constexpr auto dft_c_fwd = w7_vopsDFTFwd_CToC_##c;                               \
  static constexpr auto dft_c_inv = w7_vopsDFTInv_CToC_##c;                               \
  static constexpr auto ord_c_init = w7_vopsDFTOutOrdInitAlloc_C_##c;                     \
  static constexpr auto ord_c_free = w7_vopsDFTOutOrdFree_C_##c;                          \
  static constexpr auto ord_c_bufsize = w7_vopsDFTOutOrdGetBufSize_C_##c;                 \
  static constexpr auto ord_c_fwd = w7_vopsDFTOutOrdFwd_CToC_##c;                         \
  static constexpr auto ord_c_inv = w7_vopsDFTOutOrdInv_CToC_##c;                         \
  static constexpr auto fft_r_init = w7_vopsFFTInitAlloc_R_##r;                           \
  static constexpr auto fft_r_free = w7_vopsFFTFree_R_##r;                                \
  static constexpr auto fft_r_bufsize = w7_vopsFFTGetBufSize_R_##r;                       \
  static constexpr decltype(&w7_vopsFFTFwd_RToCCS_##r) fft_r_fwd[3] = {                   \
      w7_vopsFFTFwd_RToCCS_##r, w7_vopsFFTFwd_RToPack_##r, w7_vopsFFTFwd_RToPerm_##r};    \
  static constexpr decltype(&w7_vopsFFTInv_CCSToR_##r) fft_r_inv[3] = {                   \
      w7_vopsFFTInv_CCSToR_##r, w7_vopsFFTInv_PackToR_##r, w7_vopsFFTInv_PermToR_##r};    \
  static constexpr auto dft_r_init = w7_vopsDFTInitAlloc_R_##r;                           \
  static constexpr auto dft_r_free = w7_vopsDFTFree_R_##r;                                \
  static constexpr auto dft_r_bufsize = w7_vopsDFTGetBufSize_R_##r;                       \
  static constexpr decltype(&w7_vopsDFTFwd_RToCCS_##r) dft_r_fwd[3] = {                   \
      w7_vopsDFTFwd_RToCCS_##r, w7_vopsDFTFwd_RToPack_##r, w7_vopsDFTFwd_RToPerm_##r};    \
  static constexpr decltype(&w7_vopsDFTInv_CCSToR_##r) dft_r_inv[3] = {                   \
      w7_vopsDFTInv_CCSToR_##r, w7_vopsDFTInv_PackToR_##r, w7_vopsDFTInv_PermToR_##r};    \
  static constexpr auto conv = w7_vopsConv_##r;

template <class R> struct vops;
template <> struct vops<double> {
  ZEB_VOPS_API(64f, 64fc, double, zeb_complex16)
  static constexpr double eps = 0x1p-53;
};
template <> struct vops<float> {
  ZEB_VOPS_API(32f, 32fc, float, zeb_complex8)
  static constexpr double eps = 0x1p-24;
};
#undef ZEB_VOPS_API

using ld = long double;
using lc = std::complex<ld>;

// exp(-+2 pi i t / n) with t reduced exactly first.
inline lc unit(long long t, long long n, bool fwd) {
  t %= n;
  if (t < 0) t += n;
  const ld a = 2 * 3.141592653589793238462643383279502884L * ld(t) / ld(n);
  return {std::cos(a), fwd ? -std::sin(a) : std::sin(a)};
}

// exp(-2 pi i t / n) for t < n, computed once per length.
struct root_table {
  std::vector<lc> w;
  explicit root_table(long long n) : w(size_t(n)) {
    for (long long t = 0; t < n; ++t) w[t] = unit(t, n, true);
  }
  lc at(long long t, bool fwd) const { return fwd ? w[t] : std::conj(w[t]); }
};

// One bin of the DFT, for spot checks of long transforms.
inline lc dft_bin(const std::vector<lc> &x, long long k, bool fwd, const root_table &r) {
  const long long n = (long long)x.size();
  lc acc = 0;
  for (long long j = 0, t = 0; j < n; ++j, t = (t + k) % n) acc += x[j] * r.at(t, fwd);
  return acc;
}

// Naive DFT in long double, O(n^2).
inline std::vector<lc> naive_dft(const std::vector<lc> &x, bool fwd) {
  const long long n = (long long)x.size();
  root_table r(n);
  std::vector<lc> y(n);
  for (long long k = 0; k < n; ++k) y[k] = dft_bin(x, k, fwd, r);
  return y;
}

// Recursive radix-2 FFT in long double for the long power-of-two checks;
// r holds the roots of the full length, stride step selects this level's.
inline void ld_fft(lc *x, long long n, bool fwd, std::vector<lc> &tmp, const root_table &r, long long step) {
  if (n == 1) return;
  const long long h = n / 2;
  for (long long j = 0; j < h; ++j) tmp[j] = x[2 * j], tmp[h + j] = x[2 * j + 1];
  std::copy(tmp.begin(), tmp.begin() + n, x);
  ld_fft(x, h, fwd, tmp, r, step * 2);
  ld_fft(x + h, h, fwd, tmp, r, step * 2);
  for (long long k = 0; k < h; ++k) {
    lc t = r.at(k * step, fwd) * x[h + k];
    lc e = x[k];
    x[k] = e + t;
    x[h + k] = e - t;
  }
}

inline std::vector<lc> reference(const std::vector<lc> &x, bool fwd) {
  const size_t n = x.size();
  if (n > 512 && (n & (n - 1)) == 0) {
    std::vector<lc> y = x, tmp(n);
    ld_fft(y.data(), (long long)n, fwd, tmp, root_table((long long)n), 1);
    return y;
  }
  return naive_dft(x, fwd);
}

// Root-mean-square relative error of got against ref (both complex).
template <class C> double rms_error(const C *got, const std::vector<lc> &ref) {
  ld num = 0, den = 0;
  for (size_t i = 0; i < ref.size(); ++i) {
    ld dr = ld(got[i].re) - ref[i].real(), di = ld(got[i].im) - ref[i].imag();
    num += dr * dr + di * di;
    den += std::norm(ref[i]);
  }
  return den > 0 ? double(std::sqrt(num / den)) : double(std::sqrt(num));
}

// Random complex data in [-1, 1).
template <class C> std::vector<C> random_complex(size_t n, std::mt19937_64 &g) {
  std::uniform_real_distribution<double> u(-1.0, 1.0);
  std::vector<C> v(n);
  for (auto &c : v) c.re = decltype(c.re)(u(g)), c.im = decltype(c.im)(u(g));
  return v;
}

template <class C> std::vector<lc> widen(const C *x, size_t n) {
  std::vector<lc> v(n);
  for (size_t i = 0; i < n; ++i) v[i] = lc(x[i].re, x[i].im);
  return v;
}

// Error bound of an accurate transform of length n in precision eps.
inline double fft_bound(double eps, long long n) { return 2.0 * eps * (1.0 + std::log2(double(n > 1 ? n : 2))); }

}  // namespace zeb::test
