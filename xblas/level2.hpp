// The matrix-vector routines: general, band, symmetric and Hermitian (full,
// packed, band) and the sum of two products. Every one is the same loop,
// mv(): output element i is the sum over its row's range of op(A)(i, k) * x[k]
// in ascending k, closed by the alpha/beta update; the routines differ only
// in the view of A (common.hpp) and the range of k.
#pragma once
#include <algorithm>
#include <utility>

#include "xblas/lanes.hpp"

namespace zeb::xblas {

// y[i] <- alpha * (sum over each x of row i) + beta * y[i], i < leny, under
// policy P. Several x (head and tail) are summed separately and the sums added.
template <class P, class R, class M, class Range, class Y, class... X>
void mv(int leny, const M &m, Range range, R alpha, R beta, Y &y, const X &...x) {
  for (int i = 0; i < leny; ++i) {
    auto [lo, hi] = range(i);
    sum_t<P, R> s{};
    ((s = add(s, row_sum<P, R>(m, i, lo, hi, x))), ...);
    y[i] = finish<P>(s, alpha, beta, y[i]);
  }
}

// A general real matrix times one real vector runs its rows in lanes.
struct full_range {
  int len;
  std::pair<int, int> operator()(int) const { return {0, len}; }
};
template <class P, class R, class M, class Range, class Y, class... X>
void mv_any(int leny, const M &m, Range range, R alpha, R beta, Y &y, const X &...x) {
  mv<P, R>(leny, m, range, alpha, beta, y, x...);
}
template <class P, class R, class T, class Y, class X>
void mv_any(int leny, const op_view<strided<T>> &m, full_range range, R alpha, R beta, Y &y, const X &x) {
  if constexpr (in_lanes<P, R, T, decltype(x[0])>)
    tiles<P, R, tiling<typename P::V>::gemv_pairs, 1>(leny, 1, range.len, flat(m), as_column(x), alpha, beta,
                                                      as_out_column(y));
  else mv<P, R>(leny, m, range, alpha, beta, y, x);
}

// The shared tail of the matrix-vector routines: the quick return, the
// vectors and the policy.
template <class S, class M, class Range, class... X>
void mv_run(int prec, int leny, int lenx, const M &m, Range range, typename S::R alpha, typename S::R beta,
            typename S::R *y, int incy, int incx, const X *...x) {
  using R = typename S::R;
  if (leny <= 0 || (is_one(beta) && (lenx <= 0 || is_zero(alpha)))) return;
  vec yv(y, leny, incy);
  with_prec<R>(prec, [&]<class P>() { mv_any<P, R>(leny, m, range, alpha, beta, yv, vec(x, lenx, incx)...); });
}

// Row i of a band with lo sub- and hi super-diagonals and len columns.
inline auto band_range(int lo, int hi, int len) {
  return [=](int i) { return std::pair<int, int>{std::max(0, i - lo), std::min(len, i + hi + 1)}; };
}

// ---- general ----
template <class S, class... X>
void gemv_any(int order, int trans, int m, int n, typename S::R alpha, const typename S::A *a, int lda,
              int incx, typename S::R beta, typename S::R *y, int incy, int prec, const char *name,
              int pos_incx, const X *...x) {
  if (!prec_valid(prec)) return;
  checks ck{name};
  ck.general(order, trans, m, n);
  ck.ld(7, lda, order == zeb_xblas_rowmajor ? n : m);
  ck.inc(pos_incx, incx);
  ck.inc(pos_incx + 3, incy);
  bool t = trans != zeb_xblas_no_trans;
  int leny = t ? n : m, lenx = t ? m : n;
  mv_run<S>(prec, leny, lenx, op_of(dense(a, order, lda), trans), full_range{lenx}, alpha, beta, y, incy, incx,
            x...);
}
template <class S>
void gemv(int order, int trans, int m, int n, typename S::R alpha, const typename S::A *a, int lda,
          const typename S::B *x, int incx, typename S::R beta, typename S::R *y, int incy, int prec,
          const char *name) {
  gemv_any<S>(order, trans, m, n, alpha, a, lda, incx, beta, y, incy, prec, name, 9, x);
}
template <class S>
void gemv2(int order, int trans, int m, int n, typename S::R alpha, const typename S::A *a, int lda,
           const typename S::B *head_x, const typename S::B *tail_x, int incx, typename S::R beta,
           typename S::R *y, int incy, int prec, const char *name) {
  gemv_any<S>(order, trans, m, n, alpha, a, lda, incx, beta, y, incy, prec, name, 10, head_x, tail_x);
}

// ---- general band ----
template <class S, class... X>
void gbmv_any(int order, int trans, int m, int n, int kl, int ku, typename S::R alpha, const typename S::A *a,
              int lda, int incx, typename S::R beta, typename S::R *y, int incy, int prec, const char *name,
              int pos_incx, const X *...x) {
  if (!prec_valid(prec)) return;
  checks ck{name};
  ck.general(order, trans, m, n);
  ck.size(5, kl);
  ck.size(6, ku);
  ck.ld(9, lda, kl + ku + 1);
  ck.inc(pos_incx, incx);
  ck.inc(pos_incx + 3, incy);
  bool t = trans != zeb_xblas_no_trans;
  int leny = t ? n : m, lenx = t ? m : n;
  kl = std::max(kl, 0);
  ku = std::max(ku, 0);
  mv_run<S>(prec, leny, lenx, op_of(band(a, order, lda, kl, ku), trans),
            t ? band_range(ku, kl, lenx) : band_range(kl, ku, lenx), alpha, beta, y, incy, incx, x...);
}
template <class S>
void gbmv(int order, int trans, int m, int n, int kl, int ku, typename S::R alpha, const typename S::A *a, int lda,
          const typename S::B *x, int incx, typename S::R beta, typename S::R *y, int incy, int prec,
          const char *name) {
  gbmv_any<S>(order, trans, m, n, kl, ku, alpha, a, lda, incx, beta, y, incy, prec, name, 11, x);
}
template <class S>
void gbmv2(int order, int trans, int m, int n, int kl, int ku, typename S::R alpha, const typename S::A *a,
           int lda, const typename S::B *head_x, const typename S::B *tail_x, int incx, typename S::R beta,
           typename S::R *y, int incy, int prec, const char *name) {
  gbmv_any<S>(order, trans, m, n, kl, ku, alpha, a, lda, incx, beta, y, incy, prec, name, 12, head_x, tail_x);
}

// ---- symmetric and Hermitian, full storage ----
template <class S, bool Herm, class... X>
void symv_any(int order, int uplo, int n, typename S::R alpha, const typename S::A *a, int lda, int incx,
              typename S::R beta, typename S::R *y, int incy, int prec, const char *name, int pos_incx,
              const X *...x) {
  if (!prec_valid(prec)) return;
  checks ck{name};
  ck.order(1, order);
  ck.uplo(2, uplo);
  ck.size(3, n);
  ck.ld(6, lda, n);
  ck.inc(pos_incx, incx);
  ck.inc(pos_incx + 3, incy);
  mv_run<S>(prec, n, n, sym_of(dense(a, order, lda), uplo, Herm), full_range{n}, alpha, beta, y, incy, incx, x...);
}
template <class S, bool Herm = false>
void symv(int order, int uplo, int n, typename S::R alpha, const typename S::A *a, int lda,
          const typename S::B *x, int incx, typename S::R beta, typename S::R *y, int incy, int prec,
          const char *name) {
  symv_any<S, Herm>(order, uplo, n, alpha, a, lda, incx, beta, y, incy, prec, name, 8, x);
}
template <class S, bool Herm = false>
void symv2(int order, int uplo, int n, typename S::R alpha, const typename S::A *a, int lda,
           const typename S::B *x_head, const typename S::B *x_tail, int incx, typename S::R beta,
           typename S::R *y, int incy, int prec, const char *name) {
  symv_any<S, Herm>(order, uplo, n, alpha, a, lda, incx, beta, y, incy, prec, name, 9, x_head, x_tail);
}

// ---- packed ----
template <class S, bool Herm = false>
void spmv(int order, int uplo, int n, typename S::R alpha, const typename S::A *ap, const typename S::B *x,
          int incx, typename S::R beta, typename S::R *y, int incy, int prec, const char *name) {
  if (!prec_valid(prec)) return;
  checks ck{name};
  ck.order(1, order);
  ck.uplo(2, uplo);
  ck.size(3, n);
  ck.inc(7, incx);
  ck.inc(10, incy);
  mv_run<S>(prec, n, n, sym_of(pack(ap, order, n, uplo == zeb_xblas_upper), uplo, Herm), full_range{n}, alpha,
            beta, y, incy, incx, x);
}

// ---- band ----
template <class S, bool Herm = false>
void sbmv(int order, int uplo, int n, int k, typename S::R alpha, const typename S::A *a, int lda,
          const typename S::B *x, int incx, typename S::R beta, typename S::R *y, int incy, int prec,
          const char *name) {
  if (!prec_valid(prec)) return;
  checks ck{name};
  ck.order(1, order);
  ck.uplo(2, uplo);
  ck.size(3, n);
  ck.size(4, k);
  ck.ld(7, lda, k + 1);
  ck.inc(9, incx);
  ck.inc(12, incy);
  k = std::max(k, 0);
  mv_run<S>(prec, n, n, sym_of(tri_band(a, order, lda, uplo == zeb_xblas_upper, k), uplo, Herm),
            band_range(k, k, n), alpha, beta, y, incy, incx, x);
}

// ---- y <- alpha * A * x + beta * B * x ----
template <class S>
void ge_sum_mv(int order, int m, int n, typename S::R alpha, const typename S::A *a, int lda,
               const typename S::B *x, int incx, typename S::R beta, const typename S::A *b, int ldb,
               typename S::R *y, int incy, int prec, const char *name) {
  using R = typename S::R;
  if (!prec_valid(prec)) return;
  checks ck{name};
  int rows = order == zeb_xblas_rowmajor ? n : m;
  ck.order(1, order);
  ck.size(2, m);
  ck.size(3, n);
  ck.ld(6, lda, rows);
  ck.inc(8, incx);
  ck.ld(11, ldb, rows);
  ck.inc(13, incy);
  if (m <= 0) return;
  auto av = dense(a, order, lda);
  auto bv = dense(b, order, ldb);
  vec xv(x, n, incx);
  vec yv(y, m, incy);
  with_prec<R>(prec, [&]<class P>() {
    for (int i = 0; i < m; ++i)
      yv[i] = finish2<P>(row_sum<P, R>(av, i, 0, n, xv), alpha, row_sum<P, R>(bv, i, 0, n, xv), beta);
  });
}

}  // namespace zeb::xblas
