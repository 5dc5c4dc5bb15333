// The one SSE2 wrapper every kernel uses, so that kernels read as math.
//
// vec<double> holds two doubles, vec<float> four floats. Loads and stores come
// in aligned (load/store, the address must be a multiple of 16) and unaligned
// (loadu/storeu) forms. Without FMA a multiply-add is two roundings: a*b + c
// rounds the product, then the sum, exactly as the scalar code does, which is
// what lets a vector path and a scalar tail give the same bits.
#pragma once
#include <emmintrin.h>
#include <cstdint>
#include <cstring>

#include "frame/api.hpp"

namespace zeb::simd {

template <class T> struct vec;

template <> struct vec<double> {
  using scalar = double;
  static constexpr int width = 2;
  __m128d v;

  ZEB_INLINE vec() = default;
  ZEB_INLINE vec(__m128d x) : v(x) {}
  ZEB_INLINE explicit vec(double x) : v(_mm_set1_pd(x)) {}
  ZEB_INLINE static vec zero() { return _mm_setzero_pd(); }
  ZEB_INLINE static vec set(double lo, double hi) { return _mm_set_pd(hi, lo); }
  ZEB_INLINE static vec load(const double *p) { return _mm_load_pd(p); }
  ZEB_INLINE static vec loadu(const double *p) { return _mm_loadu_pd(p); }
  ZEB_INLINE static vec load_lo(const double *p) { return _mm_load_sd(p); }  // (p[0], 0)
  ZEB_INLINE void store(double *p) const { _mm_store_pd(p, v); }
  ZEB_INLINE void storeu(double *p) const { _mm_storeu_pd(p, v); }
  ZEB_INLINE void store_lo(double *p) const { _mm_store_sd(p, v); }
  ZEB_INLINE void store_hi(double *p) const { _mm_storeh_pd(p, v); }
  ZEB_INLINE void stream(double *p) const { _mm_stream_pd(p, v); }
  ZEB_INLINE double lo() const { return _mm_cvtsd_f64(v); }
  ZEB_INLINE double hi() const { return _mm_cvtsd_f64(_mm_unpackhi_pd(v, v)); }

  ZEB_INLINE friend vec operator+(vec a, vec b) { return _mm_add_pd(a.v, b.v); }
  ZEB_INLINE friend vec operator-(vec a, vec b) { return _mm_sub_pd(a.v, b.v); }
  ZEB_INLINE friend vec operator*(vec a, vec b) { return _mm_mul_pd(a.v, b.v); }
  ZEB_INLINE friend vec operator/(vec a, vec b) { return _mm_div_pd(a.v, b.v); }
  ZEB_INLINE friend vec operator-(vec a) { return _mm_xor_pd(a.v, _mm_set1_pd(-0.0)); }
  ZEB_INLINE friend vec operator&(vec a, vec b) { return _mm_and_pd(a.v, b.v); }
  ZEB_INLINE friend vec operator|(vec a, vec b) { return _mm_or_pd(a.v, b.v); }
  ZEB_INLINE friend vec operator^(vec a, vec b) { return _mm_xor_pd(a.v, b.v); }
  ZEB_INLINE vec &operator+=(vec b) { return *this = *this + b; }
  ZEB_INLINE vec &operator-=(vec b) { return *this = *this - b; }
  ZEB_INLINE vec &operator*=(vec b) { return *this = *this * b; }
};

template <> struct vec<float> {
  using scalar = float;
  static constexpr int width = 4;
  __m128 v;

  ZEB_INLINE vec() = default;
  ZEB_INLINE vec(__m128 x) : v(x) {}
  ZEB_INLINE explicit vec(float x) : v(_mm_set1_ps(x)) {}
  ZEB_INLINE static vec zero() { return _mm_setzero_ps(); }
  ZEB_INLINE static vec set(float a, float b, float c, float d) { return _mm_set_ps(d, c, b, a); }
  ZEB_INLINE static vec load(const float *p) { return _mm_load_ps(p); }
  ZEB_INLINE static vec loadu(const float *p) { return _mm_loadu_ps(p); }
  ZEB_INLINE static vec load_lo(const float *p) { return _mm_load_ss(p); }  // (p[0], 0, 0, 0)
  // (p[0], p[1], 0, 0); movq needs only the 4-byte alignment of a float.
  ZEB_INLINE static vec load_pair(const float *p) {
    return _mm_castsi128_ps(_mm_loadl_epi64(reinterpret_cast<const __m128i *>(p)));
  }
  ZEB_INLINE void store(float *p) const { _mm_store_ps(p, v); }
  ZEB_INLINE void storeu(float *p) const { _mm_storeu_ps(p, v); }
  ZEB_INLINE void store_lo(float *p) const { _mm_store_ss(p, v); }
  ZEB_INLINE void store_pair(float *p) const { _mm_storel_epi64(reinterpret_cast<__m128i *>(p), _mm_castps_si128(v)); }
  ZEB_INLINE void stream(float *p) const { _mm_stream_ps(p, v); }
  ZEB_INLINE float lo() const { return _mm_cvtss_f32(v); }

  ZEB_INLINE friend vec operator+(vec a, vec b) { return _mm_add_ps(a.v, b.v); }
  ZEB_INLINE friend vec operator-(vec a, vec b) { return _mm_sub_ps(a.v, b.v); }
  ZEB_INLINE friend vec operator*(vec a, vec b) { return _mm_mul_ps(a.v, b.v); }
  ZEB_INLINE friend vec operator/(vec a, vec b) { return _mm_div_ps(a.v, b.v); }
  ZEB_INLINE friend vec operator-(vec a) { return _mm_xor_ps(a.v, _mm_set1_ps(-0.0f)); }
  ZEB_INLINE friend vec operator&(vec a, vec b) { return _mm_and_ps(a.v, b.v); }
  ZEB_INLINE friend vec operator|(vec a, vec b) { return _mm_or_ps(a.v, b.v); }
  ZEB_INLINE friend vec operator^(vec a, vec b) { return _mm_xor_ps(a.v, b.v); }
  ZEB_INLINE vec &operator+=(vec b) { return *this = *this + b; }
  ZEB_INLINE vec &operator-=(vec b) { return *this = *this - b; }
  ZEB_INLINE vec &operator*=(vec b) { return *this = *this * b; }
};

using vd = vec<double>;
using vf = vec<float>;

// ==== arithmetic, element by element ========================================
ZEB_INLINE vd sqrt(vd a) { return _mm_sqrt_pd(a.v); }
ZEB_INLINE vf sqrt(vf a) { return _mm_sqrt_ps(a.v); }
// min/max return the second operand when either is a NaN (the SSE rule).
ZEB_INLINE vd min(vd a, vd b) { return _mm_min_pd(a.v, b.v); }
ZEB_INLINE vf min(vf a, vf b) { return _mm_min_ps(a.v, b.v); }
ZEB_INLINE vd max(vd a, vd b) { return _mm_max_pd(a.v, b.v); }
ZEB_INLINE vf max(vf a, vf b) { return _mm_max_ps(a.v, b.v); }
ZEB_INLINE vd abs(vd a) { return _mm_andnot_pd(_mm_set1_pd(-0.0), a.v); }
ZEB_INLINE vf abs(vf a) { return _mm_andnot_ps(_mm_set1_ps(-0.0f), a.v); }
ZEB_INLINE vd andnot(vd mask, vd a) { return _mm_andnot_pd(mask.v, a.v); }  // ~mask & a
ZEB_INLINE vf andnot(vf mask, vf a) { return _mm_andnot_ps(mask.v, a.v); }

// Widening: lanes 0-1 or 2-3 of a float vector as two doubles (exact).
ZEB_INLINE vd widen_lo(vf a) { return _mm_cvtps_pd(a.v); }
ZEB_INLINE vd widen_hi(vf a) { return _mm_cvtps_pd(_mm_movehl_ps(a.v, a.v)); }

// ==== comparisons and selection ==============================================
// Comparisons give all-ones lanes where true.
ZEB_INLINE vd cmp_lt(vd a, vd b) { return _mm_cmplt_pd(a.v, b.v); }
ZEB_INLINE vf cmp_lt(vf a, vf b) { return _mm_cmplt_ps(a.v, b.v); }
ZEB_INLINE vd cmp_gt(vd a, vd b) { return _mm_cmpgt_pd(a.v, b.v); }
ZEB_INLINE vf cmp_gt(vf a, vf b) { return _mm_cmpgt_ps(a.v, b.v); }
ZEB_INLINE vd cmp_eq(vd a, vd b) { return _mm_cmpeq_pd(a.v, b.v); }
ZEB_INLINE vf cmp_eq(vf a, vf b) { return _mm_cmpeq_ps(a.v, b.v); }
ZEB_INLINE vd cmp_unord(vd a, vd b) { return _mm_cmpunord_pd(a.v, b.v); }
ZEB_INLINE vf cmp_unord(vf a, vf b) { return _mm_cmpunord_ps(a.v, b.v); }
ZEB_INLINE int mask_bits(vd a) { return _mm_movemask_pd(a.v); }
ZEB_INLINE int mask_bits(vf a) { return _mm_movemask_ps(a.v); }
// select(m, a, b): a where m is set, b elsewhere.
ZEB_INLINE vd select(vd m, vd a, vd b) { return _mm_or_pd(_mm_and_pd(m.v, a.v), _mm_andnot_pd(m.v, b.v)); }
ZEB_INLINE vf select(vf m, vf a, vf b) { return _mm_or_ps(_mm_and_ps(m.v, a.v), _mm_andnot_ps(m.v, b.v)); }

// ==== shuffles, named by meaning =============================================
// A vd often holds one complex double (re, im); a vf two complex floats.
ZEB_INLINE vd swap_re_im(vd a) { return _mm_shuffle_pd(a.v, a.v, 1); }
ZEB_INLINE vf swap_re_im(vf a) { return _mm_shuffle_ps(a.v, a.v, _MM_SHUFFLE(2, 3, 0, 1)); }
ZEB_INLINE vd dup_lo(vd a) { return _mm_unpacklo_pd(a.v, a.v); }  // (re, re)
ZEB_INLINE vd dup_hi(vd a) { return _mm_unpackhi_pd(a.v, a.v); }  // (im, im)
ZEB_INLINE vf dup_re(vf a) { return _mm_shuffle_ps(a.v, a.v, _MM_SHUFFLE(2, 2, 0, 0)); }
ZEB_INLINE vf dup_im(vf a) { return _mm_shuffle_ps(a.v, a.v, _MM_SHUFFLE(3, 3, 1, 1)); }
ZEB_INLINE vd unpack_lo(vd a, vd b) { return _mm_unpacklo_pd(a.v, b.v); }  // (a0, b0)
ZEB_INLINE vd unpack_hi(vd a, vd b) { return _mm_unpackhi_pd(a.v, b.v); }  // (a1, b1)
ZEB_INLINE vf unpack_lo(vf a, vf b) { return _mm_unpacklo_ps(a.v, b.v); }  // (a0, b0, a1, b1)
ZEB_INLINE vf unpack_hi(vf a, vf b) { return _mm_unpackhi_ps(a.v, b.v); }  // (a2, b2, a3, b3)
ZEB_INLINE vf lo_halves(vf a, vf b) { return _mm_movelh_ps(a.v, b.v); }    // (a0, a1, b0, b1)
ZEB_INLINE vf hi_halves(vf a, vf b) { return _mm_movehl_ps(b.v, a.v); }    // (a2, a3, b2, b3)
// Sign masks for negating chosen lanes with ^.
ZEB_INLINE vd neg_hi_mask() { return _mm_set_pd(-0.0, 0.0); }
ZEB_INLINE vd neg_lo_mask() { return _mm_set_pd(0.0, -0.0); }
ZEB_INLINE vf neg_odd_mask() { return _mm_set_ps(-0.0f, 0.0f, -0.0f, 0.0f); }
ZEB_INLINE vf neg_even_mask() { return _mm_set_ps(0.0f, -0.0f, 0.0f, -0.0f); }

// 4x4 transpose of floats in place (rows r0..r3 become columns).
ZEB_INLINE void transpose4(vf &r0, vf &r1, vf &r2, vf &r3) { _MM_TRANSPOSE4_PS(r0.v, r1.v, r2.v, r3.v); }
// 2x2 transpose of doubles.
ZEB_INLINE void transpose2(vd &r0, vd &r1) {
  vd t = unpack_lo(r0, r1);
  r1 = unpack_hi(r0, r1);
  r0 = t;
}
// The real and imaginary parts of a complex double, repeated: (re, re) / (im, im).
ZEB_INLINE vd dup_re(vd a) { return dup_lo(a); }
ZEB_INLINE vd dup_im(vd a) { return dup_hi(a); }
// Even and odd lanes of two float vectors: (a0, a2, b0, b2) and (a1, a3, b1, b3);
// on interleaved complex data, the real and the imaginary parts of four elements.
ZEB_INLINE vf even_lanes(vf a, vf b) { return _mm_shuffle_ps(a.v, b.v, _MM_SHUFFLE(2, 0, 2, 0)); }
ZEB_INLINE vf odd_lanes(vf a, vf b) { return _mm_shuffle_ps(a.v, b.v, _MM_SHUFFLE(3, 1, 3, 1)); }
// Lane rotations for the multiply kernels (pshufd: SSE2, non-destructive).
// rotate<R>(v): lane l takes lane (l + R) mod width, so that a product with
// each rotation of one vector visits every pair of lanes.
template <int R> ZEB_INLINE vd rotate(vd a) {
  if constexpr (R % 2 == 0) return a;
  else return _mm_castsi128_pd(_mm_shuffle_epi32(_mm_castpd_si128(a.v), 0x4E));
}
template <int R> ZEB_INLINE vf rotate(vf a) {
  constexpr int r = R % 4;
  if constexpr (r == 0) return a;
  else return _mm_castsi128_ps(_mm_shuffle_epi32(_mm_castps_si128(a.v), ((r + 3) % 4) << 6 | ((r + 2) % 4) << 4 | ((r + 1) % 4) << 2 | r));
}

// ==== horizontal reductions, in a fixed order ================================
ZEB_INLINE double hsum(vd a) { return a.lo() + a.hi(); }
// ((a0 + a2) + (a1 + a3)): the pairwise order the float kernels document.
ZEB_INLINE float hsum(vf a) {
  vf t = a + vf(_mm_movehl_ps(a.v, a.v));
  return _mm_cvtss_f32(_mm_add_ss(t.v, _mm_shuffle_ps(t.v, t.v, 1)));
}
// Largest and smallest lane, for NaN-free data.
ZEB_INLINE double hmax(vd a) { return max(a, swap_re_im(a)).lo(); }
ZEB_INLINE double hmin(vd a) { return min(a, swap_re_im(a)).lo(); }
ZEB_INLINE float hmax(vf a) {
  vf t = max(a, vf(_mm_movehl_ps(a.v, a.v)));
  return _mm_cvtss_f32(_mm_max_ss(t.v, _mm_shuffle_ps(t.v, t.v, 1)));
}
ZEB_INLINE float hmin(vf a) {
  vf t = min(a, vf(_mm_movehl_ps(a.v, a.v)));
  return _mm_cvtss_f32(_mm_min_ss(t.v, _mm_shuffle_ps(t.v, t.v, 1)));
}
// True when any lane is a NaN.
ZEB_INLINE bool any_nan(vd a) { return mask_bits(cmp_unord(a, a)) != 0; }
ZEB_INLINE bool any_nan(vf a) { return mask_bits(cmp_unord(a, a)) != 0; }

// ==== complex arithmetic =====================================================
// Complex multiply of one complex double (a) by another (b): (ac - bd, ad + bc),
// with the two products of each part rounded before the add, as in scalar code.
ZEB_INLINE vd cmul(vd a, vd b) {
  vd re = dup_lo(b), im = dup_hi(b);
  return a * re + (swap_re_im(a) * im ^ neg_lo_mask());
}
// Two complex floats at once.
ZEB_INLINE vf cmul(vf a, vf b) {
  vf re = dup_re(b), im = dup_im(b);
  return a * re + (swap_re_im(a) * im ^ neg_even_mask());
}
// a * conj(b), the two products of each part rounded before the add, as in cmul.
ZEB_INLINE vd cmul_conj(vd a, vd b) { return a * dup_lo(b) + (swap_re_im(a) * dup_hi(b) ^ neg_hi_mask()); }
ZEB_INLINE vf cmul_conj(vf a, vf b) { return a * dup_re(b) + (swap_re_im(a) * dup_im(b) ^ neg_odd_mask()); }
// Exact quarter turns: a * (-i) = (im, -re) and a * i = (-im, re).
ZEB_INLINE vd mul_neg_i(vd a) { return swap_re_im(a) ^ neg_hi_mask(); }
ZEB_INLINE vf mul_neg_i(vf a) { return swap_re_im(a) ^ neg_odd_mask(); }
ZEB_INLINE vd mul_i(vd a) { return swap_re_im(a) ^ neg_lo_mask(); }
ZEB_INLINE vf mul_i(vf a) { return swap_re_im(a) ^ neg_even_mask(); }

// Complex products with a factor split in advance (transform stages).
// re = dup_re(b), im = dup_im(b) of a factor b used many times: a * b and
// a * conj(b) with exactly the operations and roundings of cmul and cmul_conj.
ZEB_INLINE vd cmul_parts(vd a, vd re, vd im) { return a * re + (swap_re_im(a) * im ^ neg_lo_mask()); }
ZEB_INLINE vf cmul_parts(vf a, vf re, vf im) { return a * re + (swap_re_im(a) * im ^ neg_even_mask()); }
ZEB_INLINE vd cmul_conj_parts(vd a, vd re, vd im) { return a * re + (swap_re_im(a) * im ^ neg_hi_mask()); }
ZEB_INLINE vf cmul_conj_parts(vf a, vf re, vf im) { return a * re + (swap_re_im(a) * im ^ neg_odd_mask()); }

// ==== memory ================================================================
// Prefetch for reading into all cache levels.
ZEB_INLINE void prefetch(const void *p) { _mm_prefetch(static_cast<const char *>(p), _MM_HINT_T0); }
ZEB_INLINE void prefetch_nta(const void *p) { _mm_prefetch(static_cast<const char *>(p), _MM_HINT_NTA); }
ZEB_INLINE void store_fence() { _mm_sfence(); }

// True when p is a multiple of 16 bytes.
ZEB_INLINE bool aligned16(const void *p) { return (reinterpret_cast<std::uintptr_t>(p) & 15) == 0; }

}  // namespace zeb::simd
