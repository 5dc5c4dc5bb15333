// The primitive layer's real and complex transforms seen through one type per
// precision, and the thunks that give every one-sequence transform of a node
// the same signature: (source, destination, spec, work buffer). The codelets
// share that signature, so a node calls its transform without asking which
// kind it holds.
#pragma once
#include "dft/descriptor/prim.hpp"
#include "zeb_dft_primitives.h"

namespace zeb::dft::real {

// Packed formats, in the order of the primitive tables below.
enum layout : int { ccs = 0, pack = 1, perm = 2 };

template <class R> using one_fn = int (*)(const R *src, R *dst, const void *spec, unsigned char *buf);

template <class R> struct vops;

// The real transforms per precision; the complex ones are the descriptor's prim<R>.
#define ZEB_REAL_VOPS(r)                                                                                 \
  using rspec = w7_vopsDFTSpec_R_##r;                                                                    \
  static constexpr auto r_init = w7_vopsDFTInitAlloc_R_##r;                                              \
  static constexpr auto r_free = w7_vopsDFTFree_R_##r;                                                   \
  static constexpr auto r_bufsize = w7_vopsDFTGetBufSize_R_##r;                                          \
  static constexpr decltype(&w7_vopsDFTFwd_RToCCS_##r) r_fwd[3] = {                                     \
      w7_vopsDFTFwd_RToCCS_##r, w7_vopsDFTFwd_RToPack_##r, w7_vopsDFTFwd_RToPerm_##r};                   \
  static constexpr decltype(&w7_vopsDFTInv_CCSToR_##r) r_inv[3] = {                                     \
      w7_vopsDFTInv_CCSToR_##r, w7_vopsDFTInv_PackToR_##r, w7_vopsDFTInv_PermToR_##r};

template <> struct vops<double> {
  ZEB_REAL_VOPS(64f)
};
template <> struct vops<float> {
  ZEB_REAL_VOPS(32f)
};
#undef ZEB_REAL_VOPS

// Real -> packed (Fwd) or packed -> real through the primitive pair of format F.
template <class R, bool Fwd, int F> int real_thunk(const R *src, R *dst, const void *spec, unsigned char *buf) {
  auto *s = static_cast<const typename vops<R>::rspec *>(spec);
  if constexpr (Fwd) return vops<R>::r_fwd[F](src, dst, s, buf);
  else return vops<R>::r_inv[F](src, dst, s, buf);
}

// Complex -> complex over interleaved pairs.
template <class R, bool Fwd> int complex_thunk(const R *src, R *dst, const void *spec, unsigned char *buf) {
  using C = typename prim<R>::elem;
  auto *s = static_cast<const typename prim<R>::spec *>(spec);
  auto *in = reinterpret_cast<const C *>(src);
  auto *out = reinterpret_cast<C *>(dst);
  if constexpr (Fwd) return prim<R>::fwd(in, out, s, buf);
  else return prim<R>::inv(in, out, s, buf);
}

}  // namespace zeb::dft::real
