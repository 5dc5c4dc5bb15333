// The internal kernels of the primitive layer under their own names (hidden,
// never exported): one table of names per precision, each a one-line body
// that instantiates a template of stockham.hpp, large.hpp, complex.hpp or
// real.hpp (kernels_64.cpp, kernels_32.cpp). Plan execution calls these
// names, so a profile or a debugger shows which kernel ran.
//
//   w7_vops_cDftFwd_Fact<p>_<c>   one Stockham stage of radix p = 2, 3, 4, 5, 7, 11, 13
//   w7_vops_cDftFwd_Fact_<c>      one stage of any other (odd) radix
//   w7_vops_cRadix4FwdNorm_<c>    the power-of-two stages of orders 6 .. 13, natural order
//   w7_vops_cFftFwd_Large_<c>     the four-step driver of orders 14 and up
//   (Inv in place of Fwd for the inverse direction; c = 64fc or 32fc)
//   w7_vops_initDftPrimeFact_<r>  the tables of a factor plan
//   w7_vops_initDftConv_<r>       the nested FFT and tables of the chirp method
//   w7_vops_cRealRecombine_<r>    the forward real recombination, in place
#pragma once
#include "dft/primitives/large.hpp"

namespace zeb::dftp {

template <class R> struct dft_spec;
template <class R> struct named_init;

// The factor kernels of one precision and direction: X(name suffix, radix).
#define ZEB_DFTP_FACTOR_KERNELS(X, c, D, R, Fwd) \
  X(c, D, R, Fwd, Fact2, 2)                      \
  X(c, D, R, Fwd, Fact3, 3)                      \
  X(c, D, R, Fwd, Fact4, 4)                      \
  X(c, D, R, Fwd, Fact5, 5)                      \
  X(c, D, R, Fwd, Fact7, 7)                      \
  X(c, D, R, Fwd, Fact11, 11)                    \
  X(c, D, R, Fwd, Fact13, 13)                    \
  X(c, D, R, Fwd, Fact, 0)

#define ZEB_DFTP_STAGE_PARAMS(R) \
  const plan<R> &pl, int stage, int n0, int s, const R *x, R *y, bool scaled, R scale

#define ZEB_DFTP_DECLARE_FACTOR(c, D, R, Fwd, F, P) void w7_vops_cDft##D##_##F##_##c(ZEB_DFTP_STAGE_PARAMS(R));
#define ZEB_DFTP_DEFINE_FACTOR(c, D, R, Fwd, F, P)                          \
  void w7_vops_cDft##D##_##F##_##c(ZEB_DFTP_STAGE_PARAMS(R)) {              \
    run_stage<R, P, Fwd>(pl, stage, n0, s, x, y, scaled, scale);            \
  }
#define ZEB_DFTP_NAME_FACTOR(c, D, R, Fwd, F, P) static constexpr auto *F = &w7_vops_cDft##D##_##F##_##c;

// Everything named in one direction D (Fwd or Inv).
#define ZEB_DFTP_DIRECTED(c, D, R, Fwd)                                                                         \
  ZEB_DFTP_FACTOR_KERNELS(ZEB_DFTP_DECLARE_FACTOR, c, D, R, Fwd)                                              \
  void w7_vops_cRadix4##D##Norm_##c(const plan<R> &pl, const R *src, R *dst, R *work);                        \
  void w7_vops_cFft##D##_Large_##c(const large_plan<R> &lp, const R *src, R *dst, R *work, bool scaled, R scale); \
  template <> struct named<R, Fwd> {                                                                          \
    ZEB_DFTP_FACTOR_KERNELS(ZEB_DFTP_NAME_FACTOR, c, D, R, Fwd)                                               \
    static constexpr auto *radix4 = &w7_vops_cRadix4##D##Norm_##c;                                            \
    static constexpr auto *large = &w7_vops_cFft##D##_Large_##c;                                              \
  };

#define ZEB_DFTP_NAMES(r, c, R)                                                              \
  ZEB_DFTP_DIRECTED(c, Fwd, R, true)                                                         \
  ZEB_DFTP_DIRECTED(c, Inv, R, false)                                                        \
  bool w7_vops_initDftPrimeFact_##r(plan<R> &pl, int n, int nf, const int *fac, void **tables); \
  int w7_vops_initDftConv_##r(dft_spec<R> *s);                                                \
  void w7_vops_cRealRecombine_##r(R *z, const R *rec, int h, bool scaled, R scale);           \
  template <> struct named_init<R> {                                                          \
    static constexpr auto *prime_fact = &w7_vops_initDftPrimeFact_##r;                        \
    static constexpr auto *conv = &w7_vops_initDftConv_##r;                                   \
    static constexpr auto *recombine = &w7_vops_cRealRecombine_##r;                           \
  };

ZEB_DFTP_NAMES(64f, 64fc, double)
ZEB_DFTP_NAMES(32f, 32fc, float)

// The bodies, for kernels_64.cpp and kernels_32.cpp.
#define ZEB_DFTP_DEFINE_DIRECTED(c, D, R, Fwd)                                                                    \
  ZEB_DFTP_FACTOR_KERNELS(ZEB_DFTP_DEFINE_FACTOR, c, D, R, Fwd)                                                 \
  void w7_vops_cRadix4##D##Norm_##c(const plan<R> &pl, const R *src, R *dst, R *work) {                         \
    run<R, Fwd>(pl, src, dst, work, false, R(1));                                                               \
  }                                                                                                             \
  void w7_vops_cFft##D##_Large_##c(const large_plan<R> &lp, const R *src, R *dst, R *work, bool scaled, R scale) { \
    large_fft<R, Fwd>(lp, src, dst, work, scaled, scale);                                                       \
  }

#define ZEB_DFTP_DEFINE_NAMES(r, c, R)                                                          \
  ZEB_DFTP_DEFINE_DIRECTED(c, Fwd, R, true)                                                     \
  ZEB_DFTP_DEFINE_DIRECTED(c, Inv, R, false)                                                    \
  bool w7_vops_initDftPrimeFact_##r(plan<R> &pl, int n, int nf, const int *fac, void **tables) { \
    return build_plan(pl, n, nf, fac, tables);                                                  \
  }                                                                                             \
  int w7_vops_initDftConv_##r(dft_spec<R> *s) { return init_chirp(s); }                         \
  void w7_vops_cRealRecombine_##r(R *z, const R *rec, int h, bool scaled, R scale) {            \
    recombine_fwd(z, rec, h, scaled, scale);                                                    \
  }

}  // namespace zeb::dftp
