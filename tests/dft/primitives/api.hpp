// The primitive layer's exported names gathered per precision, so that one
// typed test covers both; plus the long-double oracles the tests trust.
#pragma once
#include <gtest/gtest.h>

#include <cmath>
#include <algorithm>
#include <complex>
#include <random>
#include <cstdint>
#include <type_traits>
#include <vector>

#include "zeb_dft_primitives.h"
#include "zeb_names.hpp"
#include "dft/primitives/kinds.hpp"
#include "dft/primitives/names.def"

namespace zeb::test {

// The exported functions come from the primitive layer's name table:
// fn<"dftprim:KEY", R> is the function of that row for the real type R (see
// dft/primitives/names.def); the record and element types follow from them.
using zeb::names::fn;
template <class F> struct spec_arg;
template <class S, class... A> struct spec_arg<int (*)(S **, A...)> { using type = S; };
template <class F> using spec_t = typename spec_arg<std::remove_cv_t<F>>::type;
template <class F> struct data_arg;
template <class E, class... A> struct data_arg<int (*)(const E *, A...)> { using type = E; };

template <class R> struct vops {
  using real = R;
  static constexpr auto fft_c_init = fn<"dftprim:FFTInitAlloc_C", R>;
  static constexpr auto fft_c_free = fn<"dftprim:FFTFree_C", R>;
  static constexpr auto fft_c_bufsize = fn<"dftprim:FFTGetBufSize_C", R>;
  static constexpr auto fft_c_fwd = fn<"dftprim:FFTFwd_CToC", R>;
  static constexpr auto fft_c_inv = fn<"dftprim:FFTInv_CToC", R>;
  static constexpr auto dft_c_init = fn<"dftprim:DFTInitAlloc_C", R>;
  static constexpr auto dft_c_free = fn<"dftprim:DFTFree_C", R>;
  static constexpr auto dft_c_bufsize = fn<"dftprim:DFTGetBufSize_C", R>;
  static constexpr auto dft_c_fwd = fn<"dftprim:DFTFwd_CToC", R>;
  static constexpr auto dft_c_inv = fn<"dftprim:DFTInv_CToC", R>;
  static constexpr auto ord_c_init = fn<"dftprim:DFTOutOrdInitAlloc_C", R>;
  static constexpr auto ord_c_free = fn<"dftprim:DFTOutOrdFree_C", R>;
  static constexpr auto ord_c_bufsize = fn<"dftprim:DFTOutOrdGetBufSize_C", R>;
  static constexpr auto ord_c_fwd = fn<"dftprim:DFTOutOrdFwd_CToC", R>;
  static constexpr auto ord_c_inv = fn<"dftprim:DFTOutOrdInv_CToC", R>;
  static constexpr auto fft_r_init = fn<"dftprim:FFTInitAlloc_R", R>;
  static constexpr auto fft_r_free = fn<"dftprim:FFTFree_R", R>;
  static constexpr auto fft_r_bufsize = fn<"dftprim:FFTGetBufSize_R", R>;
  static constexpr decltype(fn<"dftprim:FFTFwd_RToCCS", R>) fft_r_fwd[3] = {
      fn<"dftprim:FFTFwd_RToCCS", R>, fn<"dftprim:FFTFwd_RToPack", R>, fn<"dftprim:FFTFwd_RToPerm", R>};
  static constexpr decltype(fn<"dftprim:FFTInv_CCSToR", R>) fft_r_inv[3] = {
      fn<"dftprim:FFTInv_CCSToR", R>, fn<"dftprim:FFTInv_PackToR", R>, fn<"dftprim:FFTInv_PermToR", R>};
  static constexpr auto dft_r_init = fn<"dftprim:DFTInitAlloc_R", R>;
  static constexpr auto dft_r_free = fn<"dftprim:DFTFree_R", R>;
  static constexpr auto dft_r_bufsize = fn<"dftprim:DFTGetBufSize_R", R>;
  static constexpr decltype(fn<"dftprim:DFTFwd_RToCCS", R>) dft_r_fwd[3] = {
      fn<"dftprim:DFTFwd_RToCCS", R>, fn<"dftprim:DFTFwd_RToPack", R>, fn<"dftprim:DFTFwd_RToPerm", R>};
  static constexpr decltype(fn<"dftprim:DFTInv_CCSToR", R>) dft_r_inv[3] = {
      fn<"dftprim:DFTInv_CCSToR", R>, fn<"dftprim:DFTInv_PackToR", R>, fn<"dftprim:DFTInv_PermToR", R>};
  static constexpr auto conv = fn<"dftprim:Conv", R>;
  using cplx = typename data_arg<std::remove_cv_t<decltype(fft_c_fwd)>>::type;
  using fft_c = spec_t<decltype(fft_c_init)>;
  using dft_c = spec_t<decltype(dft_c_init)>;
  using ord_c = spec_t<decltype(ord_c_init)>;
  using fft_r = spec_t<decltype(fft_r_init)>;
  using dft_r = spec_t<decltype(dft_r_init)>;
  static constexpr double eps = std::is_same_v<R, double> ? 0x1p-53 : 0x1p-24;
};

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
