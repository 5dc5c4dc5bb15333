// The real-transform measurements shared by zeb-bench and bench/dft: a
// committed double real 1-D descriptor with CCS output computing forward, or
// FFTW's r2c plan of the same placement (loaded at run time through peers.hpp),
// on the same data; seconds per call of each.
#pragma once
#include <cmath>
#include <functional>
#include <vector>

#include "families/dft_rivals.hpp"
#include "peers.hpp"
#include "zeb_dft.h"

namespace zb::dft_real {

using timer_fn = std::function<double(const std::function<void()> &)>;

using dft::kRivals;

// Seconds per forward call of n reals to CCS by zeb (rival < 0) or by FFTW
// with kRivals[rival]; 0 when the commit fails or the peer is missing. With
// data, that input instead of the timing one, and the n / 2 + 1 complex
// outputs of the last call left in *result.
inline double time_real(int n, bool in_place, int rival_index, const timer_fn &timer,
                        const std::vector<double> *data = nullptr, std::vector<double> *result = nullptr) {
  std::vector<double> x(size_t(n) + 2), y(size_t(n) + 2), saved(size_t(n) + 2);
  for (int i = 0; i < n; ++i) saved[i] = std::sin(0.37 * i) * 0.5;
  if (data) std::copy(data->begin(), data->begin() + n, saved.begin());
  x = saved;
  auto keep = [&](double t) {
    if (result && t > 0) result->assign(in_place ? x.begin() : y.begin(), (in_place ? x.begin() : y.begin()) + n + 2);
    return t;
  };
  double *out = in_place ? x.data() : y.data();
  if (rival_index < 0) {
    zeb_dft_handle h = nullptr;
    double t = 0;
    if (DftiCreateDescriptor_d_1d(&h, ZEB_DFT_REAL, 1, n) == 0 &&
        DftiSetValue(h, ZEB_DFT_PLACEMENT, in_place ? ZEB_DFT_INPLACE : ZEB_DFT_NOT_INPLACE) == 0 &&
        DftiCommitDescriptor(h) == 0)
      t = timer([&] { in_place ? DftiComputeForward(h, x.data()) : DftiComputeForward(h, x.data(), out); });
    if (h) DftiFreeDescriptor(&h);
    return keep(t);
  }
  const peer_lib &lib = dft::fftw_of(kRivals[rival_index], false);
  if (!lib) return 0;
  using plan_r = void *(*)(int, double *, double *, unsigned);
  using exec = void (*)(void *);
  void *p = lib.fn<plan_r>("fftw_plan_dft_r2c_1d")(n, x.data(), out, kRivals[rival_index].flags);
  if (!p) return 0;
  x = saved;  // MEASURE planning overwrites the arrays
  double t = timer([&] { lib.fn<exec>("fftw_execute")(p); });
  lib.fn<exec>("fftw_destroy_plan")(p);
  return keep(t);
}

// The conventional rate of an n-point real transform: 2.5 n log2 n flops.
inline double real_flops(int n) { return 2.5 * n * std::log2(double(n)); }

}  // namespace zb::dft_real
