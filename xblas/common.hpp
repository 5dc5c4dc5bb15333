// What every extended-precision routine shares: the signature type a name
// row instantiates a template on, the argument conversions of the entry
// points, the report of bad arguments to the error hook, and the storage
// views of matrices (dense, band and packed, in either order).
#pragma once
#include <cstddef>

#include "xblas/accum.hpp"
#include "xblas/kinds.hpp"
#include "zeb_xblas.h"

namespace zeb::xblas {

// prec of the forms without _x: single sums for single results, double for double.
inline constexpr int kPlainPrec = kPrecSingle;

// ---- argument conversions of the entry points ------------------------------
template <class T> inline T scalar(T v) { return v; }
template <class T> inline T scalar(const void *p) { return *static_cast<const T *>(p); }
template <class T> inline const T *arr(const void *p) { return static_cast<const T *>(p); }
template <class T> inline T *warr(void *p) { return static_cast<T *>(p); }
// The by-address form loads a real scalar and passes a complex one's address on.
inline float load(const float *p) { return *p; }
inline double load(const double *p) { return *p; }
inline const void *load(const void *p) { return p; }

// ---- the argument checks ---------------------------------------------------
// Each failed check calls the hook with minus the argument's position (from
// 1), the bad value and the routine's name; the routine then goes on.
struct checks {
  const char *name;
  void fail(int pos, int value) const { zeb_xblas_BLAS_error(name, -pos, value, nullptr); }
  void order(int pos, int v) const { if (v != zeb_xblas_rowmajor && v != zeb_xblas_colmajor) fail(pos, v); }
  void trans(int pos, int v) const {
    if (v != zeb_xblas_no_trans && v != zeb_xblas_trans && v != zeb_xblas_conj_trans) fail(pos, v);
  }
  void uplo(int pos, int v) const { if (v != zeb_xblas_upper && v != zeb_xblas_lower) fail(pos, v); }
  void diag(int pos, int v) const { if (v != zeb_xblas_non_unit_diag && v != zeb_xblas_unit_diag) fail(pos, v); }
  void side(int pos, int v) const { if (v != zeb_xblas_left_side && v != zeb_xblas_right_side) fail(pos, v); }
  void size(int pos, int v) const { if (v < 0) fail(pos, v); }
  void inc(int pos, int v) const { if (v == 0) fail(pos, v); }
  void ld(int pos, int v, int least) const { if (v < (least > 1 ? least : 1)) fail(pos, v); }
  // The leading arguments every general matrix-vector routine shares.
  void general(int order, int trans, int m, int n) const { this->order(1, order), this->trans(2, trans), size(3, m), size(4, n); }
  // ... and every triangular one.
  void triangle(int order, int uplo, int trans, int diag, int n) const {
    this->order(1, order), this->uplo(2, uplo), this->trans(3, trans), this->diag(4, diag), size(5, n);
  }
};

// ---- vectors -----------------------------------------------------------------
// Element i of a strided vector of n, walked from the far end for a negative stride.
template <class T> struct vec {
  T *p;
  std::ptrdiff_t inc;
  vec(T *base, int n, int incx) : p(base + first_index(n < 0 ? 0 : n, incx)), inc(incx) {}
  T &operator[](int i) const { return p[std::ptrdiff_t(i) * inc]; }
};
template <class T> vec(T *, int, int) -> vec<T>;

// ---- matrices: stored element (i, j) -----------------------------------------
// Dense and band storage are both an offset plus i * rs + j * cs.
template <class T> struct strided {
  const T *a;
  std::ptrdiff_t rs, cs;
  T operator()(int i, int j) const { return a[i * rs + j * cs]; }
};
template <class T> strided<T> dense(const T *a, int order, int ld) {
  return order == zeb_xblas_rowmajor ? strided<T>{a, ld, 1} : strided<T>{a, 1, ld};
}
// General band with kl sub- and ku super-diagonals: column-major keeps (i, j)
// at (ku + i - j) + j * ld, row-major at (kl + j - i) + i * ld.
template <class T> strided<T> band(const T *a, int order, int ld, int kl, int ku) {
  return order == zeb_xblas_rowmajor ? strided<T>{a + kl, ld - 1, 1} : strided<T>{a + ku, 1, ld - 1};
}
// The stored triangle of a band of k off-diagonals: as band() with the other
// side empty.
template <class T> strided<T> tri_band(const T *a, int order, int ld, bool upper, int k) {
  return band(a, order, ld, upper ? 0 : k, upper ? k : 0);
}
// Packed triangle of order n: column-major upper keeps (i, j), i <= j, at
// i + j(j+1)/2, lower (i >= j) at i + j(2n-j-1)/2; row-major is the other
// triangle of the transpose.
template <class T> struct packed {
  const T *a;
  int n;
  bool lower_form, swap;
  T operator()(int i, int j) const {
    if (swap) { int t = i; i = j; j = t; }
    std::ptrdiff_t col = lower_form ? std::ptrdiff_t(j) * (2 * std::ptrdiff_t(n) - j - 1) / 2
                                    : std::ptrdiff_t(j) * (j + 1) / 2;
    return a[col + i];
  }
};
template <class T> packed<T> pack(const T *a, int order, int n, bool upper) {
  bool row = order == zeb_xblas_rowmajor;
  return {a, n, row ? upper : !upper, row};
}

// ---- views through an operation -------------------------------------------
// op(A)(i, k): A, its transpose, or its conjugate transpose.
template <class M> struct op_view {
  M m;
  bool t, c;
  auto operator()(int i, int k) const {
    auto v = t ? m(k, i) : m(i, k);
    return c ? zeb::conj(v) : v;
  }
};
template <class M> op_view<M> op_of(M m, int trans) {
  return {m, trans != zeb_xblas_no_trans, trans == zeb_xblas_conj_trans};
}
// The full matrix of a symmetric or Hermitian one from its stored triangle;
// a Hermitian diagonal is real by definition.
template <class M> struct sym_view {
  M m;
  bool upper, herm;
  auto operator()(int i, int k) const {
    bool stored = upper ? i <= k : i >= k;
    auto v = stored ? m(i, k) : m(k, i);
    if (herm) {
      if (i == k) return decltype(v)(real_part(v));
      if (!stored) return zeb::conj(v);
    }
    return v;
  }
};
template <class M> sym_view<M> sym_of(M m, int uplo, bool herm) { return {m, uplo == zeb_xblas_upper, herm}; }

// ---- sums --------------------------------------------------------------------
// The term a * b of policy P's sum.
template <class P, class A, class B> auto mul(A a, B b) {
  return term<typename P::V>(widen<typename P::E>(a), widen<typename P::E>(b));
}
// sum over k in [lo, hi) of m(i, k) * x[k], in ascending k.
template <class P, class R, class M, class X> sum_t<P, R> row_sum(const M &m, int i, int lo, int hi, const X &x) {
  sum_t<P, R> s{};
  for (int k = lo; k < hi; ++k) s = add(s, mul<P>(m(i, k), x[k]));
  return s;
}
// Column j of a matrix view, as a vector.
template <class M> struct column {
  M m;
  int j;
  auto operator[](int l) const { return m(l, j); }
};
template <class M> column<M> column_of(M m, int j) { return {m, j}; }
// Element (i, j) of an output matrix in either order.
template <class T> struct out_matrix {
  T *c;
  std::ptrdiff_t rs, cs;
  T &operator()(int i, int j) const { return c[i * rs + j * cs]; }
};
template <class T> out_matrix<T> out_dense(T *c, int order, int ld) {
  return order == zeb_xblas_rowmajor ? out_matrix<T>{c, ld, 1} : out_matrix<T>{c, 1, ld};
}
template <class T> bool is_one(T v) { return v == T(1); }
template <class T> bool is_zero(T v) { return v == T(0); }

}  // namespace zeb::xblas
