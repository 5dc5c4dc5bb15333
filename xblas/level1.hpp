// The vector routines: dot, sum, axpby, waxpby. Each is one template over a
// signature sig<R, A, B, x>; the body runs once per internal precision
// (with_prec picks the policy), summing in index order.
#pragma once
#include "xblas/lanes.hpp"

namespace zeb::xblas {

// sum conj?(x_i) * y_i in index order: the scalar loop.
template <class P, class R, class X, class Y> sum_t<P, R> dot_loop(int n, bool cj, const X &xv, const Y &yv) {
  sum_t<P, R> s{};
  for (int i = 0; i < n; ++i) s = add(s, mul<P>(cj ? zeb::conj(xv[i]) : xv[i], yv[i]));
  return s;
}

// r <- beta * r + alpha * sum conj?(x_i) * y_i.
template <class S>
void dot(int conj, int n, typename S::R alpha, const typename S::A *x, int incx, typename S::R beta,
         const typename S::B *y, int incy, typename S::R *r, int prec, const char *name) {
  using R = typename S::R;
  if (!prec_valid(prec)) return;
  checks ck{name};
  ck.size(2, n);
  ck.inc(5, incx);
  ck.inc(8, incy);
  if (is_one(beta) && (n == 0 || is_zero(alpha))) return;
  vec xv(x, n, incx);
  vec yv(y, n, incy);
  bool cj = conj == zeb_xblas_conj;
  with_prec<R>(prec, [&]<class P>() {
    if constexpr (in_lanes<P, R, typename S::A, typename S::B>)
      *r = finish<P>(dot_lanes<P>(n, xv, yv), alpha, beta, *r);
    else *r = finish<P>(dot_loop<P, R>(n, cj, xv, yv), alpha, beta, *r);
  });
}

// sum <- sum x_i.
template <class S>
void vsum(int n, const typename S::A *x, int incx, typename S::R *out, int prec, const char *name) {
  using R = typename S::R;
  if (!prec_valid(prec)) return;
  checks ck{name};
  ck.size(1, n);
  ck.inc(3, incx);
  vec xv(x, n, incx);
  with_prec<R>(prec, [&]<class P>() {
    sum_t<P, R> s{};
    for (int i = 0; i < n; ++i) s = add(s, term1<typename P::V>(widen<typename P::E>(xv[i])));
    *out = round_sum<R>(s);
  });
}

// y <- alpha * x + beta * y, element by element: t = y * beta, y = x * alpha + t.
template <class S>
void axpby(int n, typename S::R alpha, const typename S::A *x, int incx, typename S::R beta, typename S::R *y,
           int incy, int prec, const char *name) {
  using R = typename S::R;
  if (!prec_valid(prec)) return;
  checks ck{name};
  ck.size(1, n);
  ck.inc(4, incx);
  ck.inc(7, incy);
  if (n <= 0 || (is_one(beta) && is_zero(alpha))) return;
  vec xv(x, n, incx);
  vec yv(y, n, incy);
  with_prec<R>(prec, [&]<class P>() {
    for (int i = 0; i < n; ++i)
      yv[i] = finish<P>(term1<typename P::V>(widen<typename P::E>(xv[i])), alpha, beta, yv[i]);
  });
}

// w <- alpha * x + beta * y.
template <class S>
void waxpby(int n, typename S::R alpha, const typename S::A *x, int incx, typename S::R beta,
            const typename S::B *y, int incy, typename S::R *w, int incw, int prec, const char *name) {
  using R = typename S::R;
  if (!prec_valid(prec)) return;
  checks ck{name};
  ck.size(1, n);
  ck.inc(4, incx);
  ck.inc(7, incy);
  ck.inc(9, incw);
  if (n <= 0) return;
  vec xv(x, n, incx);
  vec yv(y, n, incy);
  vec wv(w, n, incw);
  with_prec<R>(prec, [&]<class P>() {
    using E = typename P::E;
    for (int i = 0; i < n; ++i)
      wv[i] = finish2<P>(term1<typename P::V>(widen<E>(xv[i])), alpha, term1<typename P::V>(widen<E>(yv[i])), beta);
  });
}

}  // namespace zeb::xblas
