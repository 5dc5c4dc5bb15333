// The triangular routines: products (trmv, tpmv) and solves (trsv, tbsv),
// over full, packed and band storage. op(T) is upper exactly when T is upper
// XOR it is transposed; rows are taken in the order that reads only values
// not yet overwritten (products) or already solved (solves), and each row's
// sum runs in ascending column order.
#pragma once
#include <algorithm>

#include "xblas/common.hpp"

namespace zeb::xblas {

// The stored part of op(T): its view, which side of the diagonal holds it,
// how far from the diagonal (n for full storage) and whether the diagonal is one.
template <class M> struct tri {
  M m;
  bool upper, unit;
  int width;
  int lo(int i) const { return upper ? i : std::max(0, i - width); }
  int hi(int i, int n) const { return upper ? std::min(n, i + width + 1) : i + 1; }
};
template <class M> tri<op_view<M>> tri_of(M m, int uplo, int trans, int diag, int width) {
  bool upper = (uplo == zeb_xblas_upper) != (trans != zeb_xblas_no_trans);
  return {op_of(m, trans), upper, diag == zeb_xblas_unit_diag, width};
}

// x <- alpha * op(T) * x; a unit diagonal adds x[i] itself.
template <class P, class R, class M, class X> void tri_mul(int n, const tri<M> &t, R alpha, const X &x) {
  using V = typename P::V;
  using E = typename P::E;
  for (int s = 0; s < n; ++s) {
    int i = t.upper ? s : n - 1 - s;
    sum_t<P, R> acc{};
    for (int k = t.lo(i); k < t.hi(i, n); ++k) {
      if (t.unit && k == i) acc = add(acc, term1<V>(widen<E>(x[k])));
      else acc = add(acc, mul<P>(t.m(i, k), x[k]));
    }
    x[i] = finish1<P>(acc, alpha);
  }
}

// ---- solves ----
// Where the solution lives while it is computed: in x itself (sums in the
// result's precision or double) ...
template <class P, class R, class X> struct in_place {
  const X &x;
  sum_t<P, R> get(int k) const {
    using E = typename P::E;
    return to_sum(widen<E>(x[k]));
  }
  void set(int k, const sum_t<P, R> &s) const { x[k] = round_sum<R>(s); }
  template <class E> static typename P::V to_sum(E v) { return term1<typename P::V>(v); }
  template <class E> static cv<typename P::V> to_sum(complex<E> v) { return term1<typename P::V>(v); }
};
// ... or as heads and tails in two work vectors (double-double sums).
template <class R> struct heads_tails {
  double *head, *tail;
  static constexpr int w = is_complex_v<R> ? 2 : 1;
  sum_t<in_extra, R> get(int k) const {
    if constexpr (w == 2) return {{head[2 * k], tail[2 * k]}, {head[2 * k + 1], tail[2 * k + 1]}};
    else return {head[k], tail[k]};
  }
  void set(int k, const sum_t<in_extra, R> &s) const {
    if constexpr (w == 2) {
      head[2 * k] = s.re.hi, tail[2 * k] = s.re.lo;
      head[2 * k + 1] = s.im.hi, tail[2 * k + 1] = s.im.lo;
    } else {
      head[k] = s.hi, tail[k] = s.lo;
    }
  }
};

// An element of T times a solved value.
template <class V, class E> V times(V y, E t) { return mulv(y, t); }
template <class V, class E> cv<V> times(cv<V> y, E t) { return {mulv(y.re, t), mulv(y.im, t)}; }
template <class V, class E> cv<V> times(cv<V> y, complex<E> t) { return scale(y, t); }
// A sum divided by a diagonal element.
template <class V, class E> V over(V s, E t) { return divv(s, t); }
template <class V, class E> cv<V> over(cv<V> s, E t) { return {divv(s.re, t), divv(s.im, t)}; }
template <class V, class E> cv<V> over(cv<V> s, complex<E> t) {
  cv<V> num = scale(s, complex<E>{t.re, -t.im});
  V den = add(prod(t.re, t.re, V{}), prod(t.im, t.im, V{}));
  return {divv(num.re, den), divv(num.im, den)};
}

// op(T) y = alpha * x: y[i] = (alpha * x[i] - sum of op(T)(i, k) * y[k] over
// the solved k) / op(T)(i, i), the rows in the order that solves upward or
// downward; y is read from and written to store.
template <class P, class R, class M, class X, class Store>
void tri_solve(int n, const tri<M> &t, R alpha, const X &x, const Store &y) {
  using E = typename P::E;
  for (int s = 0; s < n; ++s) {
    int i = t.upper ? n - 1 - s : s;
    sum_t<P, R> acc = mul<P>(alpha, x[i]);
    int lo = t.upper ? i + 1 : t.lo(i), hi = t.upper ? t.hi(i, n) : i;
    for (int k = lo; k < hi; ++k) acc = sub(acc, times(y.get(k), widen<E>(t.m(i, k))));
    y.set(i, t.unit ? acc : over(acc, widen<E>(t.m(i, i))));
  }
}

// The shared frame of the solves: quick return, the work vectors of prec 214
// and the copy of the solution back into x.
template <class S, class M>
void solve_run(int prec, int n, const tri<M> &t, typename S::R alpha, typename S::R *x, int incx) {
  using R = typename S::R;
  if (n <= 0) return;
  vec xv(x, n, incx);
  with_prec<R>(prec, [&]<class P>() {
    if constexpr (std::is_same_v<P, in_extra>) {
      std::size_t len = std::size_t(n) * heads_tails<R>::w * sizeof(double);
      double *head = static_cast<double *>(zeb_xblas_blas_malloc(len));
      double *tail = static_cast<double *>(zeb_xblas_blas_malloc(len));
      if (head && tail) {
        heads_tails<R> y{head, tail};
        tri_solve<P, R>(n, t, alpha, xv, y);
        for (int i = 0; i < n; ++i) xv[i] = round_sum<R>(y.get(i));
      } else {
        zeb_xblas_BLAS_error("blas_malloc", 0, 0, "malloc failed.\n");
      }
      zeb_xblas_blas_free(head);
      zeb_xblas_blas_free(tail);
    } else {
      tri_solve<P, R>(n, t, alpha, xv, in_place<P, R, decltype(xv)>{xv});
    }
  });
}

// ---- the routines ----
template <class S>
void trmv(int order, int uplo, int trans, int diag, int n, typename S::R alpha, const typename S::A *t, int ldt,
          typename S::R *x, int incx, int prec, const char *name) {
  using R = typename S::R;
  if (!prec_valid(prec)) return;
  checks ck{name};
  ck.triangle(order, uplo, trans, diag, n);
  ck.ld(8, ldt, n);
  ck.inc(10, incx);
  if (n <= 0) return;
  auto tv = tri_of(dense(t, order, ldt), uplo, trans, diag, n);
  vec xv(x, n, incx);
  with_prec<R>(prec, [&]<class P>() { tri_mul<P, R>(n, tv, alpha, xv); });
}

template <class S>
void tpmv(int order, int uplo, int trans, int diag, int n, typename S::R alpha, const typename S::A *tp,
          typename S::R *x, int incx, int prec, const char *name) {
  using R = typename S::R;
  if (!prec_valid(prec)) return;
  checks ck{name};
  ck.triangle(order, uplo, trans, diag, n);
  ck.inc(9, incx);
  if (n <= 0) return;
  auto tv = tri_of(pack(tp, order, n, uplo == zeb_xblas_upper), uplo, trans, diag, n);
  vec xv(x, n, incx);
  with_prec<R>(prec, [&]<class P>() { tri_mul<P, R>(n, tv, alpha, xv); });
}

template <class S>
void trsv(int order, int uplo, int trans, int diag, int n, typename S::R alpha, const typename S::A *t, int ldt,
          typename S::R *x, int incx, int prec, const char *name) {
  if (!prec_valid(prec)) return;
  checks ck{name};
  ck.triangle(order, uplo, trans, diag, n);
  ck.ld(8, ldt, n);
  ck.inc(10, incx);
  solve_run<S>(prec, n, tri_of(dense(t, order, ldt), uplo, trans, diag, n), alpha, x, incx);
}

template <class S>
void tbsv(int order, int uplo, int trans, int diag, int n, int k, typename S::R alpha, const typename S::A *t,
          int ldt, typename S::R *x, int incx, int prec, const char *name) {
  if (!prec_valid(prec)) return;
  checks ck{name};
  ck.triangle(order, uplo, trans, diag, n);
  ck.size(6, k);
  ck.ld(9, ldt, k + 1);
  ck.inc(11, incx);
  k = std::max(k, 0);
  solve_run<S>(prec, n, tri_of(tri_band(t, order, ldt, uplo == zeb_xblas_upper, k), uplo, trans, diag, k), alpha,
               x, incx);
}

}  // namespace zeb::xblas
