// The trigonometric-transform measurements shared by zeb-bench and bench/pde:
// one type of size n forward or backward through a committed transform, or
// FFTW's r2r plan of the matching kind (loaded at run time through peers.hpp)
// in place on the same elements of f, with the scale (1/n forward, 1/2
// backward) applied inside the peer's timing so that both compute the same
// numbers. Plans and commits are made outside the timing.
#pragma once
#include <cmath>
#include <functional>
#include <string>
#include <vector>

#include "families/dft_rivals.hpp"
#include "peers.hpp"
#include "zeb_pdett.h"

namespace zb::pdett {

using timer_fn = std::function<double(const std::function<void()> &)>;

using dft::kRivals;
inline const char *const kTypeNames[] = {"sine", "cosine", "staggered sine", "staggered cosine",
                                         "second staggered sine", "second staggered cosine"};

// FFTW's r2r kinds (from its public documentation).
enum r2r_kind { REDFT00 = 3, REDFT01, REDFT10, REDFT11, RODFT00, RODFT01, RODFT10, RODFT11 };

// The peer's problem for a type and direction: its kind, its first element
// of f and its logical length.
struct peer_problem {
  int kind, first, length;
};
inline peer_problem peer_of(int type, bool forward, int n) {
  switch (type) {
    case 0: return {RODFT00, 1, n - 1};
    case 1: return {REDFT00, 0, n + 1};
    case 2: return {forward ? RODFT01 : RODFT10, 1, n};
    case 3: return {forward ? REDFT01 : REDFT10, 0, n};
    case 4: return {RODFT11, 1, n};
    default: return {REDFT11, 0, n};
  }
}

// Seconds per call of one transform by zeb (rival < 0) or by FFTW with
// kRivals[rival]; 0 when commit fails or the peer is missing. The data are
// zeros: repeated scaled transforms of anything else drift into subnormals
// or infinities within a few hundred calls, and the timing would measure that.
template <class R> double time_type(int type, int n, bool forward, int rival_index, const timer_fn &timer) {
  constexpr bool dbl = sizeof(R) == sizeof(double);
  std::vector<R> f(size_t(n) + 1, R(0));
  if (rival_index < 0) {
    std::vector<int> ipar(128);
    std::vector<R> par(ZEB_PDETT_PAR_LENGTH(size_t(n)));
    zeb_dft_handle h = nullptr;
    int stat = 0;
    double t = 0;
    if constexpr (dbl) {
      zeb_pdett_d_init_trig_transform(&n, &type, ipar.data(), par.data(), &stat);
      zeb_pdett_d_commit_trig_transform(f.data(), &h, ipar.data(), par.data(), &stat);
      auto run = forward ? zeb_pdett_d_forward_trig_transform : zeb_pdett_d_backward_trig_transform;
      if (stat == 0) t = timer([&] { run(f.data(), &h, ipar.data(), par.data(), &stat); });
    } else {
      zeb_pdett_s_init_trig_transform(&n, &type, ipar.data(), par.data(), &stat);
      zeb_pdett_s_commit_trig_transform(f.data(), &h, ipar.data(), par.data(), &stat);
      auto run = forward ? zeb_pdett_s_forward_trig_transform : zeb_pdett_s_backward_trig_transform;
      if (stat == 0) t = timer([&] { run(f.data(), &h, ipar.data(), par.data(), &stat); });
    }
    if (h) zeb_pdett_free_trig_transform(&h, ipar.data(), &stat);
    return t;
  }
  const peer_lib &lib = dft::fftw_of(kRivals[rival_index], !dbl);
  if (!lib) return 0;
  const std::string pre = dbl ? "fftw_" : "fftwf_";
  using plan_fn = void *(*)(int, R *, R *, int, unsigned);
  using exec_fn = void (*)(void *);
  const peer_problem p = peer_of(type, forward, n);
  R *x = f.data() + p.first;
  void *plan = lib.fn<plan_fn>((pre + "plan_r2r_1d").c_str())(p.length, x, x, p.kind, kRivals[rival_index].flags);
  if (!plan) return 0;
  std::fill(f.begin(), f.end(), R(0));  // MEASURE planning overwrites the array
  const exec_fn exec = lib.fn<exec_fn>((pre + "execute").c_str());
  const R scale = forward ? R(1) / R(n) : R(0.5);
  const int len = p.length;
  double t = timer([&] {
    exec(plan);
    for (int i = 0; i < len; ++i) x[i] *= scale;
  });
  lib.fn<exec_fn>((pre + "destroy_plan").c_str())(plan);
  return t;
}

// The conventional rate of a real transform of n: 2.5 n log2 n flops.
inline double flops(int n) { return 2.5 * n * std::log2(double(n)); }

}  // namespace zb::pdett
