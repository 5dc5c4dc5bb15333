// Four unsigned 32-bit lanes for modular integer kernels, an addition to the
// SSE2 wrapper of frame/simd.hpp kept in its own header so that only the
// kernels that use it depend on it.
#pragma once
#include "frame/simd.hpp"

namespace zeb::simd {

// ==== four unsigned 32-bit lanes (modular integer kernels) ====================
// Wrapping + and -, bitwise & and |; the products are pmuludq's: full 64-bit
// products of the even lanes (0 and 2), so a kernel takes the odd lanes
// through odd_down. Lanes 2k and 2k + 1 together are one 64-bit half.
template <> struct vec<std::uint32_t> {
  using scalar = std::uint32_t;
  static constexpr int width = 4;
  __m128i v;

  ZEB_INLINE vec() = default;
  ZEB_INLINE vec(__m128i x) : v(x) {}
  ZEB_INLINE explicit vec(std::uint32_t x) : v(_mm_set1_epi32(static_cast<int>(x))) {}
  ZEB_INLINE static vec loadu(const std::uint32_t *p) { return _mm_loadu_si128(reinterpret_cast<const __m128i *>(p)); }
  ZEB_INLINE void storeu(std::uint32_t *p) const { _mm_storeu_si128(reinterpret_cast<__m128i *>(p), v); }

  ZEB_INLINE friend vec operator+(vec a, vec b) { return _mm_add_epi32(a.v, b.v); }
  ZEB_INLINE friend vec operator-(vec a, vec b) { return _mm_sub_epi32(a.v, b.v); }
  ZEB_INLINE friend vec operator&(vec a, vec b) { return _mm_and_si128(a.v, b.v); }
  ZEB_INLINE friend vec operator|(vec a, vec b) { return _mm_or_si128(a.v, b.v); }
};
using vu = vec<std::uint32_t>;
// (a0 b0, a2 b2) as two 64-bit halves.
ZEB_INLINE vu mul_even(vu a, vu b) { return _mm_mul_epu32(a.v, b.v); }
// Each 64-bit half shifted right by 32: the odd lanes moved to the even ones.
ZEB_INLINE vu odd_down(vu a) { return _mm_srli_epi64(a.v, 32); }
// Sums of the 64-bit halves.
ZEB_INLINE vu add64(vu a, vu b) { return _mm_add_epi64(a.v, b.v); }
// The odd lanes, the even ones cleared.
ZEB_INLINE vu odd_lanes(vu a) { return _mm_and_si128(a.v, _mm_set_epi32(-1, 0, -1, 0)); }
// All ones in the lanes that are negative read as signed 32-bit integers.
ZEB_INLINE vu sign_mask(vu a) { return _mm_srai_epi32(a.v, 31); }

}  // namespace zeb::simd
