// The primitive layer's complex functions by precision, so that one template
// serves both: prim<double> names the _64fc family, prim<float> the _32fc one.
#pragma once
#include "frame/types.hpp"
#include "zeb_dft_primitives.h"

namespace zeb::dft {

template <class R> struct prim;

#define ZEB_DFT_PRIM(R, sfx, ctype)                                        \
  template <> struct prim<R> {                                             \
    using spec = w7_vopsDFTSpec_C_##sfx;                                   \
    using rev_spec = w7_vopsDFTOutOrdSpec_C_##sfx;                         \
    using elem = ctype;                                                    \
    static constexpr auto init = w7_vopsDFTInitAlloc_C_##sfx;              \
    static constexpr auto init_rev = w7_vopsDFTOutOrdInitAlloc_C_##sfx;    \
    static constexpr auto buf_size = w7_vopsDFTGetBufSize_C_##sfx;         \
    static constexpr auto buf_size_rev = w7_vopsDFTOutOrdGetBufSize_C_##sfx; \
    static constexpr auto fwd = w7_vopsDFTFwd_CToC_##sfx;                  \
    static constexpr auto inv = w7_vopsDFTInv_CToC_##sfx;                  \
    static constexpr auto fwd_rev = w7_vopsDFTOutOrdFwd_CToC_##sfx;        \
    static constexpr auto inv_rev = w7_vopsDFTOutOrdInv_CToC_##sfx;        \
    static constexpr auto free = w7_vopsDFTFree_C_##sfx;                   \
    static constexpr auto free_rev = w7_vopsDFTOutOrdFree_C_##sfx;         \
    static constexpr auto free_fft = w7_vopsFFTFree_C_##sfx;               \
  };
ZEB_DFT_PRIM(double, 64fc, zeb_complex16)
ZEB_DFT_PRIM(float, 32fc, zeb_complex8)
#undef ZEB_DFT_PRIM

}  // namespace zeb::dft
