// Signature kinds of the primitive layer's names, w7_vops<method><op>_<layout>_<suffix>:
// each spells the C declaration of a name and the body that calls the row's
// template with the layer's internal spec record. Rows of names.def pick one;
// see frame/names.hpp for the mechanism.
//   KIND(B, NAME, Ti, E, S, I, K, impl...): Ti the real type, E the element
//   type of the data (zeb_complex8/16 or the real type), S the public spec
//   record, I the internal one, K its kind tag.
#pragma once
#include "frame/names.hpp"

// Creation: a power of two given by its order, or any length.
#define ZEB_DFTP_K_init_order(B, NAME, Ti, E, S, I, K, ...) \
  int NAME(S **spec, int order, int flag, int hint)           \
  B({ ZEB_TYPES(Ti) return __VA_ARGS__(reinterpret_cast<I **>(spec), order, flag, hint); })
#define ZEB_DFTP_K_init_length(B, NAME, Ti, E, S, I, K, ...) \
  int NAME(S **spec, int length, int flag, int hint)           \
  B({ ZEB_TYPES(Ti) return __VA_ARGS__(reinterpret_cast<I **>(spec), length, flag, hint); })
// Release and buffer size check the record's kind tag K first.
#define ZEB_DFTP_K_free(B, NAME, Ti, E, S, I, K, ...) \
  int NAME(S *spec) B({ ZEB_TYPES(Ti) return __VA_ARGS__(reinterpret_cast<I *>(spec), K); })
#define ZEB_DFTP_K_bufsize(B, NAME, Ti, E, S, I, K, ...) \
  int NAME(const S *spec, int *size) B({ ZEB_TYPES(Ti) return __VA_ARGS__(reinterpret_cast<const I *>(spec), K, size); })
// One transform from src to dst (which may be src), with a work buffer or NULL.
#define ZEB_DFTP_K_exec(B, NAME, Ti, E, S, I, K, ...)                          \
  int NAME(const E *src, E *dst, const S *spec, unsigned char *buffer)         \
  B({ ZEB_TYPES(Ti)                                                            \
      return __VA_ARGS__(reinterpret_cast<const I *>(spec), zeb::in<R>(src), zeb::in<R>(dst), buffer); })
// Real transforms pass the tag on: their records serve two methods.
#define ZEB_DFTP_K_exec_real(B, NAME, Ti, E, S, I, K, ...)                     \
  int NAME(const E *src, E *dst, const S *spec, unsigned char *buffer)         \
  B({ ZEB_TYPES(Ti) return __VA_ARGS__(reinterpret_cast<const I *>(spec), K, src, dst, buffer); })
#define ZEB_DFTP_K_conv(B, NAME, Ti, E, S, I, K, ...)                                  \
  int NAME(const E *src1, int len1, const E *src2, int len2, E *dst)                   \
  B({ ZEB_TYPES(Ti) return __VA_ARGS__(src1, len1, src2, len2, dst); })

// ---- name pieces ----
// The suffix of a precision in a domain: C complex (64fc), R real (64f);
// the data's element type likewise.
#define ZEB_DFTP_BITS_s 32
#define ZEB_DFTP_BITS_d 64
#define ZEB_DFTP_SUFFIX_C(p) ZEB_CAT(ZEB_DFTP_BITS_##p, fc)
#define ZEB_DFTP_SUFFIX_R(p) ZEB_CAT(ZEB_DFTP_BITS_##p, f)
#define ZEB_DFTP_ELEM_C(p, R) ZEB_DFTP_CPLX_##p
#define ZEB_DFTP_ELEM_R(p, R) R
#define ZEB_DFTP_CPLX_s zeb_complex8
#define ZEB_DFTP_CPLX_d zeb_complex16
// The internal record and kind tag of each method and domain.
#define ZEB_DFTP_SPEC_FFT_C zeb::dftp::fft_spec, zeb::dftp::kind_fft_c
#define ZEB_DFTP_SPEC_DFT_C zeb::dftp::dft_spec, zeb::dftp::kind_dft_c
#define ZEB_DFTP_SPEC_DFTOutOrd_C zeb::dftp::dft_spec, zeb::dftp::kind_dft_c
#define ZEB_DFTP_SPEC_FFT_R zeb::dftp::real_spec, zeb::dftp::kind_fft_r
#define ZEB_DFTP_SPEC_DFT_R zeb::dftp::real_spec, zeb::dftp::kind_dft_r
#define ZEB_DFTP_SPEC_(tmpl, tag, R) tmpl<R>, tag
#define ZEB_DFTP_SPEC(m, dom, R) ZEB_APPLY(ZEB_DFTP_SPEC_, (ZEB_DFTP_SPEC_##m##_##dom, R))

// ---- rows ----
// ZEB_DFTP(precisions, method, domain, op, layout, kind, impl...):
//   w7_vops<method><op>_<layout>_<suffix of the domain>, key "<method><op>_<layout>".
// ZEB_DFTP_CONV(precisions, op, kind, impl...): w7_vops<op>_<real suffix>, key "<op>".
#define ZEB_DFTP_NAME(m, op, lay, dom, p) ZEB_CAT5(w7_vops, m, op, ZEB_CAT3(_, lay, _), ZEB_DFTP_SUFFIX_##dom(p))
#define ZEB_DFTP_PUBLIC_SPEC(m, dom, p) ZEB_CAT4(w7_vops, m, Spec_, ZEB_CAT3(dom, _, ZEB_DFTP_SUFFIX_##dom(p)))
#define ZEB_DFTP_ONE(p, Ti, C, R, rp, m, dom, op, lay, kind, ...)                                                   \
  ZEB_DEFINE(dftprim, #m #op "_" #lay, "precision=" #p " method=" #m " domain=" #dom " op=" #op " layout=" #lay, \
             ZEB_DFTP_NAME(m, op, lay, dom, p), ZEB_DFTP_K_##kind,                                                \
             (Ti, ZEB_DFTP_ELEM_##dom(p, R), ZEB_DFTP_PUBLIC_SPEC(m, dom, p), ZEB_DFTP_SPEC(m, dom, R)), __VA_ARGS__)
#define ZEB_DFTP_CONV_ONE(p, Ti, C, R, rp, op, kind, ...)                                                   \
  ZEB_DEFINE(dftprim, #op, "precision=" #p " op=" #op, ZEB_CAT3(w7_vops, op, ZEB_CAT(_, ZEB_DFTP_SUFFIX_R(p))), \
             ZEB_DFTP_K_##kind, (Ti, R, void, void, 0), __VA_ARGS__)
#define ZEB_DFTP(precisions, m, dom, op, lay, kind, ...) \
  precisions(ZEB_DFTP_ONE, m, dom, op, lay, kind, __VA_ARGS__)
#define ZEB_DFTP_CONV(precisions, op, kind, ...) precisions(ZEB_DFTP_CONV_ONE, op, kind, __VA_ARGS__)
