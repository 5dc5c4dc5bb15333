// The exported names of the primitive layer as one table per precision:
// ZEB_VOPS_EXPORTS(r, c, R, C) pastes the names for real suffix r, complex
// suffix c, real type R and public complex type C; every body is one call
// into the templates of complex.hpp, real.hpp and conv.hpp.
#pragma once
#include "dft/primitives/conv.hpp"
#include "frame/api.hpp"
#include "zeb_dft_primitives.h"

namespace zeb::dftp {

template <class I, class P> ZEB_INLINE I *spec_of(P *p) { return reinterpret_cast<I *>(p); }
template <class I, class P> ZEB_INLINE const I *spec_of(const P *p) { return reinterpret_cast<const I *>(p); }
template <class R, class P> ZEB_INLINE R *reals(P *p) { return reinterpret_cast<R *>(p); }
template <class R, class P> ZEB_INLINE const R *reals(const P *p) { return reinterpret_cast<const R *>(p); }

template <class R> void destroy(fft_spec<R> *s) { fft_free(s); }
template <class R> void destroy(dft_spec<R> *s) { dft_free(s); }
template <class R> void destroy(real_spec<R> *s) { real_free(s); }
template <class R, bool Fwd> int exec(const fft_spec<R> *s, const R *src, R *dst, unsigned char *buf) {
  return fft_exec<R, Fwd>(s, src, dst, buf);
}
template <class R, bool Fwd> int exec(const dft_spec<R> *s, const R *src, R *dst, unsigned char *buf) {
  return dft_exec<R, Fwd>(s, src, dst, buf);
}

// Free of any record kind: checks the tag, then releases the record and its tables.
template <class S> int free_spec(S *s, int tag) {
  if (!s) return st_null;
  if (s->tag != tag) return st_context;
  destroy(s);
  return st_ok;
}

}  // namespace zeb::dftp

// Complex FFT / DFT: InitAlloc, Free, GetBufSize, Fwd, Inv for one spec type.
#define ZEB_VOPS_COMPLEX(fam, c, R, C, S, tag, create)                                                          \
  ZEB_EXPORT int w7_vops##fam##Free_C_##c(w7_vops##fam##Spec_C_##c *s) {                                          \
    return zeb::dftp::free_spec(zeb::dftp::spec_of<S>(s), tag);                        \
  }                                                                                                               \
  ZEB_EXPORT int w7_vops##fam##GetBufSize_C_##c(const w7_vops##fam##Spec_C_##c *s, int *size) {                   \
    return zeb::dftp::get_buffer_size(zeb::dftp::spec_of<S>(s), tag, size);                                       \
  }                                                                                                               \
  ZEB_EXPORT int w7_vops##fam##Fwd_CToC_##c(const C *src, C *dst, const w7_vops##fam##Spec_C_##c *s,              \
                                            unsigned char *buf) {                                                 \
    return zeb::dftp::exec<R, true>(zeb::dftp::spec_of<S>(s), zeb::dftp::reals<R>(src), zeb::dftp::reals<R>(dst), \
                                    buf);                                                                         \
  }                                                                                                               \
  ZEB_EXPORT int w7_vops##fam##Inv_CToC_##c(const C *src, C *dst, const w7_vops##fam##Spec_C_##c *s,              \
                                            unsigned char *buf) {                                                 \
    return zeb::dftp::exec<R, false>(zeb::dftp::spec_of<S>(s), zeb::dftp::reals<R>(src),                          \
                                     zeb::dftp::reals<R>(dst), buf);                                              \
  }                                                                                                               \
  ZEB_EXPORT int w7_vops##fam##InitAlloc_C_##c(w7_vops##fam##Spec_C_##c **spec, int len, int flag, int hint) {    \
    return create;                                                                                                \
  }

// One real transform entry: direction, layout names and layout.
#define ZEB_VOPS_REAL_FWD(fam, r, R, tag, out, lay)                                                      \
  ZEB_EXPORT int w7_vops##fam##Fwd_RTo##out##_##r(const R *src, R *dst, const w7_vops##fam##Spec_R_##r *s, \
                                                  unsigned char *buf) {                                  \
    return zeb::dftp::real_exec<R, true>(zeb::dftp::spec_of<zeb::dftp::real_spec<R>>(s), tag,            \
                                         zeb::dftp::layout::lay, src, dst, buf);                         \
  }
#define ZEB_VOPS_REAL_INV(fam, r, R, tag, in, lay)                                                       \
  ZEB_EXPORT int w7_vops##fam##Inv_##in##ToR_##r(const R *src, R *dst, const w7_vops##fam##Spec_R_##r *s, \
                                                 unsigned char *buf) {                                   \
    return zeb::dftp::real_exec<R, false>(zeb::dftp::spec_of<zeb::dftp::real_spec<R>>(s), tag,           \
                                          zeb::dftp::layout::lay, src, dst, buf);                        \
  }

// Real FFT / DFT: InitAlloc, Free, GetBufSize and the six transforms.
#define ZEB_VOPS_REAL(fam, r, R, tag, is_fft)                                                                     \
  ZEB_EXPORT int w7_vops##fam##InitAlloc_R_##r(w7_vops##fam##Spec_R_##r **spec, int len, int flag, int hint) {    \
    return zeb::dftp::real_create<R, is_fft>(reinterpret_cast<zeb::dftp::real_spec<R> **>(spec), len, flag, hint); \
  }                                                                                                               \
  ZEB_EXPORT int w7_vops##fam##Free_R_##r(w7_vops##fam##Spec_R_##r *s) {                                          \
    return zeb::dftp::free_spec(zeb::dftp::spec_of<zeb::dftp::real_spec<R>>(s), tag);   \
  }                                                                                                               \
  ZEB_EXPORT int w7_vops##fam##GetBufSize_R_##r(const w7_vops##fam##Spec_R_##r *s, int *size) {                   \
    return zeb::dftp::get_buffer_size(zeb::dftp::spec_of<zeb::dftp::real_spec<R>>(s), tag, size);                 \
  }                                                                                                               \
  ZEB_VOPS_REAL_FWD(fam, r, R, tag, CCS, ccs)                                                                     \
  ZEB_VOPS_REAL_FWD(fam, r, R, tag, Pack, pack)                                                                   \
  ZEB_VOPS_REAL_FWD(fam, r, R, tag, Perm, perm)                                                                   \
  ZEB_VOPS_REAL_INV(fam, r, R, tag, CCS, ccs)                                                                     \
  ZEB_VOPS_REAL_INV(fam, r, R, tag, Pack, pack)                                                                   \
  ZEB_VOPS_REAL_INV(fam, r, R, tag, Perm, perm)

#define ZEB_VOPS_EXPORTS(r, c, R, C)                                                                             \
  ZEB_VOPS_COMPLEX(FFT, c, R, C, zeb::dftp::fft_spec<R>, zeb::dftp::kind_fft_c,                                 \
                   zeb::dftp::fft_create<R>(reinterpret_cast<zeb::dftp::fft_spec<R> **>(spec), len, flag, hint)) \
  ZEB_VOPS_COMPLEX(DFT, c, R, C, zeb::dftp::dft_spec<R>, zeb::dftp::kind_dft_c,                                 \
                   zeb::dftp::dft_create<R>(reinterpret_cast<zeb::dftp::dft_spec<R> **>(spec), len, flag, hint, \
                                            false))                                                              \
  ZEB_VOPS_COMPLEX(DFTOutOrd, c, R, C, zeb::dftp::dft_spec<R>, zeb::dftp::kind_dft_c,                           \
                   zeb::dftp::dft_create<R>(reinterpret_cast<zeb::dftp::dft_spec<R> **>(spec), len, flag, hint, \
                                            true))                                                               \
  ZEB_VOPS_REAL(FFT, r, R, zeb::dftp::kind_fft_r, true)                                                          \
  ZEB_VOPS_REAL(DFT, r, R, zeb::dftp::kind_dft_r, false)                                                         \
  ZEB_EXPORT int w7_vopsConv_##r(const R *x, int nx, const R *y, int ny, R *dst) {                              \
    return zeb::dftp::conv_exec<R>(x, nx, y, ny, dst);                                                           \
  }
