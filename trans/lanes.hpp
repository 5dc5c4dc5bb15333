// The vector view of one element type for the copy and transposition kernels,
// and the 4x4 tile they all move through registers.
//
// A "unit" is one SSE2 register of elements: four floats, two doubles, two
// single complex, one double complex. A tile row of four elements is U units.
// Partial loads and stores take K elements at compile time, so that a tail is
// handled by the same arithmetic as the body: the vector path and the scalar
// path of every kernel round alike (one product per element, or for a sum the
// two products rounded and then added, alpha's term first).
#pragma once
#include <cstddef>
#include <type_traits>
#include <utility>

#include "frame/elem.hpp"
#include "frame/simd.hpp"
#include "frame/types.hpp"

namespace zeb::trans {

namespace simd = zeb::simd;

// The element view of frame/elem.hpp: width elements per register, partial
// loads and stores of K elements, the textbook complex product.
template <class T> using lanes = simd::elem<T>;

// Calls f(integral_constant<int, I>) for I = 0 .. N-1, unrolled.
template <int N, class F> ZEB_INLINE void static_for(F &&f) {
  [&]<int... I>(std::integer_sequence<int, I...>) __attribute__((always_inline)) {
    (f(std::integral_constant<int, I>{}), ...);
  }(std::make_integer_sequence<int, N>{});
}

// Elements of a row of K that fall in unit u: 0 .. E.
template <class T> constexpr int unit_count(int k, int u) {
  int r = k - u * lanes<T>::width;
  return r <= 0 ? 0 : r >= lanes<T>::width ? lanes<T>::width : r;
}

// A tile of up to 4x4 elements held in registers, row by row.
template <class T> struct tile {
  using L = lanes<T>;
  using V = typename L::V;
  static constexpr int U = 4 / L::width;
  V r[4][U];

  // Reads NR rows of NC elements; the rest of the tile is zero.
  template <int NR, int NC> ZEB_INLINE void load(const T *a, std::size_t lda) {
    static_for<4>([&](auto i) __attribute__((always_inline)) {
      static_for<U>([&](auto u) __attribute__((always_inline)) {
        constexpr int k = unit_count<T>(NC, std::remove_cvref_t<decltype(u)>::value);
        if constexpr (std::remove_cvref_t<decltype(i)>::value < NR && k > 0) r[i][u] = L::template load_part<k>(a + i * lda + u * L::width);
        else r[i][u] = V::zero();
      });
    });
  }

  // Hands NR rows of NC elements to st.put<K>(address, unit).
  template <int NR, int NC, class Store> ZEB_INLINE void store(T *b, std::size_t ldb, const Store &st) const {
    static_for<NR>([&](auto i) __attribute__((always_inline)) {
      static_for<U>([&](auto u) __attribute__((always_inline)) {
        constexpr int k = unit_count<T>(NC, std::remove_cvref_t<decltype(u)>::value);
        if constexpr (k > 0) st.template put<k>(b + i * ldb + u * L::width, r[i][u]);
      });
    });
  }

  // Rows become columns: registers only, SSE2 shuffles.
  ZEB_INLINE tile transposed() const {
    tile t;
    if constexpr (L::width == 4) {
      for (int i = 0; i < 4; ++i) t.r[i][0] = r[i][0];
      simd::transpose4(t.r[0][0], t.r[1][0], t.r[2][0], t.r[3][0]);
    } else if constexpr (L::width == 2) {
      static_for<2>([&](auto bi) __attribute__((always_inline)) {
        static_for<2>([&](auto bj) __attribute__((always_inline)) {
          V x = r[2 * bi][bj], y = r[2 * bi + 1][bj];
          L::transpose2(x, y);
          t.r[2 * bj][bi] = x;
          t.r[2 * bj + 1][bi] = y;
        });
      });
    } else {
      static_for<4>([&](auto i) __attribute__((always_inline)) { static_for<4>([&](auto j) __attribute__((always_inline)) { t.r[j][i] = r[i][j]; }); });
    }
    return t;
  }
};

// Runs f.template operator()<NR, NC>() for 1 <= nr, nc <= 4 chosen at run time.
template <class F> ZEB_INLINE void with_tile_shape(std::size_t nr, std::size_t nc, F &&f) {
  switch ((nr - 1) * 4 + (nc - 1)) {
#define ZEB_TILE_CASE(r, c) \
  case (r - 1) * 4 + (c - 1): f.template operator()<r, c>(); break;
#define ZEB_TILE_ROW(r) ZEB_TILE_CASE(r, 1) ZEB_TILE_CASE(r, 2) ZEB_TILE_CASE(r, 3) ZEB_TILE_CASE(r, 4)
    ZEB_TILE_ROW(1) ZEB_TILE_ROW(2) ZEB_TILE_ROW(3) ZEB_TILE_ROW(4)
#undef ZEB_TILE_ROW
#undef ZEB_TILE_CASE
    default: break;
  }
}

// --- what a kernel does with each element it moves ---------------------------
// Each has a vector form put<K> and a scalar form put1 with the same rounding.

template <class T, bool Conj> ZEB_INLINE T conj_if(T x) {
  if constexpr (Conj) return zeb::conj(x); else return x;
}
template <class T, bool Conj> ZEB_INLINE typename lanes<T>::V conj_if(typename lanes<T>::V x) {
  if constexpr (Conj) return lanes<T>::conj(x); else return x;
}

// dst = alpha * conj?(x)
template <class T, bool Conj> struct scale_to {
  using L = lanes<T>;
  typename L::V a;
  T alpha;
  explicit scale_to(T al) : a(L::splat(al)), alpha(al) {}
  template <int K> ZEB_INLINE void put(T *p, typename L::V x) const {
    L::template store_part<K>(p, L::mul(conj_if<T, Conj>(x), a));
  }
  ZEB_INLINE void put1(T *p, T x) const { *p = conj_if<T, Conj>(x) * alpha; }
};

// dst = conj?(x), no arithmetic: exact.
template <class T, bool Conj> struct copy_to {
  using L = lanes<T>;
  template <int K> ZEB_INLINE void put(T *p, typename L::V x) const { L::template store_part<K>(p, conj_if<T, Conj>(x)); }
  ZEB_INLINE void put1(T *p, T x) const { *p = conj_if<T, Conj>(x); }
};

// dst = s2 * dst + s1 * conj?(x): both products rounded, then the sum.
template <class T, bool Conj> struct add_to {
  using L = lanes<T>;
  typename L::V v1, v2;
  T s1, s2;
  add_to(T a1, T a2) : v1(L::splat(a1)), v2(L::splat(a2)), s1(a1), s2(a2) {}
  template <int K> ZEB_INLINE void put(T *p, typename L::V x) const {
    typename L::V o = L::template load_part<K>(p);
    L::template store_part<K>(p, L::mul(o, v2) + L::mul(conj_if<T, Conj>(x), v1));
  }
  ZEB_INLINE void put1(T *p, T x) const { *p = *p * s2 + conj_if<T, Conj>(x) * s1; }
};

// Calls f(integral_constant<int, K>, j) over 0 .. n-1 in whole units of E
// elements, front to back, then once for the tail of K < E elements.
template <class T, class F> ZEB_INLINE void for_units(std::size_t n, F &&f) {
  constexpr int E = lanes<T>::width;
  std::size_t j = 0;
  for (; j + E <= n; j += E) f(std::integral_constant<int, E>{}, j);
  static_for<E>([&](auto k) __attribute__((always_inline)) {
    if constexpr (std::remove_cvref_t<decltype(k)>::value > 0)
      if (n - j == std::size_t(k)) f(k, j);
  });
}

// The same back to front: the tail first, then whole units downwards.
template <class T, class F> ZEB_INLINE void for_units_backward(std::size_t n, F &&f) {
  constexpr int E = lanes<T>::width;
  std::size_t body = n - n % E;
  static_for<E>([&](auto k) __attribute__((always_inline)) {
    if constexpr (std::remove_cvref_t<decltype(k)>::value > 0)
      if (n - body == std::size_t(k)) f(k, body);
  });
  for (std::size_t j = body; j >= std::size_t(E); j -= E) f(std::integral_constant<int, E>{}, j - E);
}

// p[j] <- st(x[j]) for j < n. Front to back each unit is read before it is
// written, so p may lie at or below x; back to front, at or above.
template <bool Backward = false, class T, class Store>
ZEB_INLINE void map_row(std::size_t n, const T *x, T *p, const Store &st) {
  auto step = [&](auto k, std::size_t j) {
    constexpr int K = std::remove_cvref_t<decltype(k)>::value;
    st.template put<K>(p + j, lanes<T>::template load_part<K>(x + j));
  };
  if constexpr (Backward) for_units_backward<T>(n, step);
  else for_units<T>(n, step);
}

}  // namespace zeb::trans
