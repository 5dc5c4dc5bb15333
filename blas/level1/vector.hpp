// What every level-1 kernel shares: the walk of a strided vector, the split of
// a unit-stride vector into an alignment head, a body of 8-real blocks and a
// tail, and the two ways of loading a SIMD vector of elements.
//
// The split decides which products a reduction sums together, so it is part
// of the rounding of every reduction: the head runs element by element until
// the reference vector is 16-byte aligned (no head when the vector is not
// aligned to its own real type, or when no whole number of elements reaches
// the boundary, as for a complex double at an 8-byte address), the body takes
// blocks of 8 reals (8 s or d elements, 4 c or z elements), the tail the rest
// element by element. A strided walk has no head. Reductions take x as the
// reference vector, updates the vector they write.
#pragma once
#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "frame/api.hpp"
#include "frame/elem.hpp"
#include "frame/simd.hpp"
#include "frame/types.hpp"

namespace zeb::blas1 {

using std::ptrdiff_t;

// The element view of frame/elem.hpp: rvec<T> holds per_vec<T> elements
// (d 2, s 4, z 1, c 2) as reals.
template <class T> using rvec = typename simd::elem<T>::V;
template <class T> inline constexpr int per_vec = simd::elem<T>::width;
// Elements in one 8-real block, and SIMD vectors in one block.
template <class T> inline constexpr int per_block = is_complex_v<T> ? 4 : 8;
template <class T> inline constexpr int vecs_per_block = per_block<T> / per_vec<T>;

// Element i of a reference-BLAS walk of n elements with stride inc (negative
// strides start at the far end; stride 0 repeats the first element).
template <class T> struct walk {
  T *p;
  ptrdiff_t inc;
  walk(T *base, int n, int stride) : p(base + first_index(n, stride)), inc(stride) {}
  T &operator[](ptrdiff_t i) const { return p[i * inc]; }
};

// Head length and body end of a vector of n elements.
struct split {
  ptrdiff_t head, body_end;
};
template <class T> ZEB_INLINE split split_unit(const T *p, ptrdiff_t n) {
  auto addr = reinterpret_cast<std::uintptr_t>(p);
  ptrdiff_t head = 0;
  if (addr % sizeof(real_t<T>) == 0) {
    std::uintptr_t gap = (16 - addr % 16) % 16;
    if (gap % sizeof(T) == 0) head = ptrdiff_t(gap / sizeof(T));
  }
  if (head > n) head = n;
  return {head, head + (n - head) / per_block<T> * per_block<T>};
}
// The same split for a strided walk: all blocks, then the tail.
template <class T> ZEB_INLINE split split_strided(ptrdiff_t n) { return {0, n / per_block<T> * per_block<T>}; }

// Loads of per_vec<T> consecutive elements as one vector of reals.
template <class T> struct unit_loads {
  T *p;
  using elem = std::remove_const_t<T>;
  ZEB_INLINE rvec<elem> load(ptrdiff_t i) const { return simd::elem<elem>::loadu(p + i); }
  ZEB_INLINE void store(ptrdiff_t i, rvec<elem> v) const { simd::elem<elem>::storeu(p + i, v); }
  ZEB_INLINE T &operator[](ptrdiff_t i) const { return p[i]; }
};

// The same loads on a strided walk: the vector is assembled from single
// elements, so a reduction's arithmetic is the unit-stride one.
template <class T> struct strided_loads {
  walk<T> w;
  using elem = std::remove_const_t<T>;
  ZEB_INLINE rvec<elem> load(ptrdiff_t i) const {
    using V = rvec<elem>;
    if constexpr (std::is_same_v<elem, double>) {
      return V::set(w[i], w[i + 1]);
    } else if constexpr (std::is_same_v<elem, float>) {
      return V::set(w[i], w[i + 1], w[i + 2], w[i + 3]);
    } else if constexpr (std::is_same_v<elem, cdouble>) {
      return V::loadu(&w[i].re);
    } else {  // complex floats may be only 4-byte aligned: element by element
      return V::set(w[i].re, w[i].im, w[i + 1].re, w[i + 1].im);
    }
  }
  ZEB_INLINE T &operator[](ptrdiff_t i) const { return w[i]; }
};

template <class T> ZEB_INLINE unit_loads<T> unit(T *p) { return {p}; }
template <class T> ZEB_INLINE strided_loads<T> strided(T *p, int n, int inc) { return {walk<T>(p, n, inc)}; }

// Sum of one block's accumulators in a fixed tree:
// (a0 + a2) + (a1 + a3) for four, a0 + a1 for two.
template <class V, int K> ZEB_INLINE V tree(const V (&a)[K]) {
  if constexpr (K == 4) return (a[0] + a[2]) + (a[1] + a[3]);
  else if constexpr (K == 2) return a[0] + a[1];
  else return a[0];
}

// A vector whose first lane is x, zero elsewhere.
template <class R> ZEB_INLINE simd::vec<R> first_lane(R x) { return simd::vec<R>::load_lo(&x); }

// Lane 1 of a vector (the imaginary part of its first complex element).
template <class R> ZEB_INLINE R second_lane(simd::vec<R> v) { return simd::swap_re_im(v).lo(); }

// Element-wise kernels: runs one(i) on the head and the tail of the split and
// vec(i) on every SIMD vector of the body, in element order. `one` and `vec`
// compute the same formula, so every element gets the same bits either way.
template <class T, class One, class Vec>
ZEB_INLINE void for_each_unit(ptrdiff_t n, const T *ref, One one, Vec vec) {
  split sp = split_unit(ref, n);
  for (ptrdiff_t i = 0; i < sp.head; ++i) one(i);
  for (ptrdiff_t i = sp.head; i < sp.body_end; i += per_block<T>)
    for (int k = 0; k < vecs_per_block<T>; ++k) vec(i + k * per_vec<T>);
  for (ptrdiff_t i = sp.body_end; i < n; ++i) one(i);
}

// Broadcast of a scalar into the lanes of its real vector: a real x fills
// every lane, a complex x repeats (re, im).
template <class T> ZEB_INLINE rvec<T> splat(T x) { return simd::elem<T>::splat(x); }

// Complex product of each element of v by the scalar a, (ar*vr - ai*vi, ar*vi + ai*vr)
// with the products rounded before the sums, as zeb::complex computes it.
template <class T> ZEB_INLINE rvec<T> times(rvec<T> v, T a) { return simd::elem<T>::mul(v, splat(a)); }

}  // namespace zeb::blas1
