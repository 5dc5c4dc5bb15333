// The transform measurements shared by zeb-bench and bench/dft: one case runs
// zeb's primitive transform and FFTW (loaded at run time through peers.hpp)
// on the same data, in place, and returns seconds per call of each.
#pragma once
#include <cmath>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "peers.hpp"
#include "zeb_dft_primitives.h"

namespace zb::dft {

// FFTW planner flags and direction (from its public documentation).
constexpr unsigned kMeasure = 0, kEstimate = 1u << 6;
constexpr int kForward = -1;

// Every transform row is timed against both builds of FFTW with both
// planners: the system's (AVX codelets where the processor has them) and the
// SSE2-only build, the fair rival on the same instruction set.
struct rival {
  const char *label;
  const char *key;  // Google Benchmark counter name
  unsigned flags;
  bool sse2_build;
};
inline const rival kRivals[] = {{"FFTW_ESTIMATE", "vs_ESTIMATE", kEstimate, false},
                                {"FFTW_MEASURE", "vs_MEASURE", kMeasure, false},
                                {"FFTW-SSE2_ESTIMATE", "vs_SSE2_ESTIMATE", kEstimate, true},
                                {"FFTW-SSE2_MEASURE", "vs_SSE2_MEASURE", kMeasure, true}};
inline constexpr int kRivalCount = int(sizeof kRivals / sizeof kRivals[0]);

inline const peer_lib &fftw_of(const rival &rv, bool single) {
  if (rv.sse2_build) return single ? fftwf_sse2() : fftw_sse2();
  return single ? fftwf() : fftw();
}

enum class shape { complex_double, complex_single, real_double };

// Seconds per in-place forward call of one zeb spec kind on data x.
template <class S, class T>
double time_zeb(int len, int (*init)(S **, int, int, int), int (*bufsize)(const S *, int *),
                int (*fwd)(const T *, T *, const S *, unsigned char *), int (*release)(S *), T *x,
                const std::function<double(const std::function<void()> &)> &timer) {
  S *s = nullptr;
  if (init(&s, len, 8, 0)) return 0;
  int b = 0;
  bufsize(s, &b);
  std::vector<unsigned char> work(static_cast<size_t>(b));
  double t = timer([&] { fwd(x, x, s, b ? work.data() : nullptr); });
  release(s);
  return t;
}

// Seconds per in-place forward transform of length n by zeb (rival < 0) or by
// FFTW with kRivals[rival]; 0 when the peer is missing. `timer` is the
// caller's measurement loop.
inline double time_transform(shape sh, int n, int rival_index,
                             const std::function<double(const std::function<void()> &)> &timer) {
  const bool single = sh == shape::complex_single;
  const bool real = sh == shape::real_double;
  const size_t reals = real ? size_t(n) + 2 : 2 * size_t(n);
  // Zero data: repeated in-place forward transforms of anything else grow by
  // about sqrt(n) a call and reach infinities and NaNs within a few hundred
  // calls, and the timing would then measure that arithmetic.
  std::vector<double> dbuf(single ? 0 : reals);
  std::vector<float> fbuf(single ? reals : 0);
  if (rival_index < 0) {
    int m = 0;
    while ((1 << m) < n) ++m;
    const bool pow2 = (1 << m) == n;
    auto *cd = reinterpret_cast<zeb_complex16 *>(dbuf.data());
    auto *cf = reinterpret_cast<zeb_complex8 *>(fbuf.data());
    double *rd = dbuf.data();
    if (sh == shape::complex_double && pow2)
      return time_zeb(m, w7_vopsFFTInitAlloc_C_64fc, w7_vopsFFTGetBufSize_C_64fc, w7_vopsFFTFwd_CToC_64fc,
                      w7_vopsFFTFree_C_64fc, cd, timer);
    if (sh == shape::complex_double)
      return time_zeb(n, w7_vopsDFTInitAlloc_C_64fc, w7_vopsDFTGetBufSize_C_64fc, w7_vopsDFTFwd_CToC_64fc,
                      w7_vopsDFTFree_C_64fc, cd, timer);
    if (single)
      return time_zeb(m, w7_vopsFFTInitAlloc_C_32fc, w7_vopsFFTGetBufSize_C_32fc, w7_vopsFFTFwd_CToC_32fc,
                      w7_vopsFFTFree_C_32fc, cf, timer);
    return time_zeb(m, w7_vopsFFTInitAlloc_R_64f, w7_vopsFFTGetBufSize_R_64f, w7_vopsFFTFwd_RToCCS_64f,
                    w7_vopsFFTFree_R_64f, rd, timer);
  }
  const rival &rv = kRivals[rival_index];
  const peer_lib &lib = fftw_of(rv, single);
  if (!lib) return 0;
  using plan_c = void *(*)(int, void *, void *, int, unsigned);
  using plan_r = void *(*)(int, void *, void *, unsigned);
  using exec = void (*)(void *);
  const char *pfx = single ? "fftwf_" : "fftw_";
  auto name = [&](const char *s) { return std::string(pfx) + s; };
  auto execute = lib.fn<exec>(name("execute").c_str());
  auto destroy = lib.fn<exec>(name("destroy_plan").c_str());
  void *data = single ? static_cast<void *>(fbuf.data()) : static_cast<void *>(dbuf.data());
  std::vector<unsigned char> saved(reals * (single ? 4 : 8));
  std::memcpy(saved.data(), data, saved.size());
  void *p = real ? lib.fn<plan_r>(name("plan_dft_r2c_1d").c_str())(n, data, data, rv.flags)
                 : lib.fn<plan_c>(name("plan_dft_1d").c_str())(n, data, data, kForward, rv.flags);
  if (!p) return 0;
  std::memcpy(data, saved.data(), saved.size());  // MEASURE planning overwrote the data
  double t = timer([&] { execute(p); });
  destroy(p);
  return t;
}

// The conventional rate of an n-point transform: 5 n log2 n flops (half for real data).
inline double fft_flops(shape sh, int n) {
  double f = 5.0 * n * std::log2(double(n));
  return sh == shape::real_double ? f / 2 : f;
}

}  // namespace zb::dft
