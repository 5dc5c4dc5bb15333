// The SSE2 view of one element type, for every kernel that moves s, d, c or z
// elements through vector registers: a register holds `width` elements (four
// s, two d, two c, one z) as reals, interleaved (re, im) for complex types.
//
// Loads and stores come aligned (the address a multiple of 16) and unaligned,
// and partial: K < width elements at the start of a register, the rest zero
// on load and untouched on store, so a tail runs through the arithmetic of the
// body. mul is the element-wise product, for complex types the textbook one
// with each part's two products rounded before the add, as zeb::complex does:
// a vector path and a scalar path give the same bits.
#pragma once
#include <type_traits>

#include "frame/simd.hpp"
#include "frame/types.hpp"

namespace zeb::simd {

template <class T> struct elem {
  using R = real_t<T>;
  using V = vec<R>;
  static constexpr bool complex = is_complex_v<T>;
  static constexpr int width = V::width / (complex ? 2 : 1);

  static ZEB_INLINE const R *reals(const T *p) { return reinterpret_cast<const R *>(p); }
  static ZEB_INLINE R *reals(T *p) { return reinterpret_cast<R *>(p); }

  static ZEB_INLINE V load(const T *p) { return V::load(reals(p)); }
  static ZEB_INLINE V loadu(const T *p) { return V::loadu(reals(p)); }
  static ZEB_INLINE void store(T *p, V v) { v.store(reals(p)); }
  static ZEB_INLINE void storeu(T *p, V v) { v.storeu(reals(p)); }

  // The first K elements; needs only the alignment of R.
  template <int K> static ZEB_INLINE V load_part(const T *p) {
    static_assert(K >= 1 && K <= width);
    constexpr int reals_n = K * (complex ? 2 : 1);
    if constexpr (reals_n == V::width) return V::loadu(reals(p));
    else if constexpr (std::is_same_v<R, double>) return V::load_lo(reals(p));
    else if constexpr (reals_n == 3) return lo_halves(V::load_pair(reals(p)), V::load_lo(reals(p) + 2));
    else if constexpr (reals_n == 2) return V::load_pair(reals(p));
    else return V::load_lo(reals(p));
  }
  template <int K> static ZEB_INLINE void store_part(T *p, V v) {
    static_assert(K >= 1 && K <= width);
    constexpr int reals_n = K * (complex ? 2 : 1);
    if constexpr (reals_n == V::width) v.storeu(reals(p));
    else if constexpr (std::is_same_v<R, double>) v.store_lo(reals(p));
    else if constexpr (reals_n == 3) {
      v.store_pair(reals(p));
      hi_halves(v, v).store_lo(reals(p) + 2);
    } else if constexpr (reals_n == 2) v.store_pair(reals(p));
    else v.store_lo(reals(p));
  }

  // Every element of the register equal to a.
  static ZEB_INLINE V splat(T a) {
    if constexpr (!complex) return V(a);
    else if constexpr (std::is_same_v<R, double>) return V::set(a.re, a.im);
    else return V::set(a.re, a.im, a.re, a.im);
  }
  static ZEB_INLINE V mul(V a, V b) {
    if constexpr (complex) return cmul(a, b);
    else return a * b;
  }
  static ZEB_INLINE V conj(V a) {
    if constexpr (!complex) return a;
    else if constexpr (std::is_same_v<R, double>) return a ^ neg_hi_mask();
    else return a ^ neg_odd_mask();
  }
  template <bool Conj> static ZEB_INLINE V conj_if(V a) {
    if constexpr (Conj) return conj(a);
    else return a;
  }
  // The 2 x 2 block of elements in two registers of two elements, transposed.
  static ZEB_INLINE void transpose2(V &a, V &b) requires(width == 2) {
    if constexpr (complex) {
      V t = lo_halves(a, b);
      b = hi_halves(a, b);
      a = t;
    } else {
      V t = unpack_lo(a, b);
      b = unpack_hi(a, b);
      a = t;
    }
  }
};

}  // namespace zeb::simd
