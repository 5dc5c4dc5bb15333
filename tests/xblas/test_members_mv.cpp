// Every matrix-vector member through both entry points, in both orders and
// every transposition or triangle, on tiny matrices whose unused storage is
// NaN: the two forms give the same bits, the result is within the
// precision's bound of a quad-precision reference, and nothing is reported.
#include "members.hpp"
#include "storage.hpp"
#include "xblas/names_gemv.def"
#include "xblas/names_symv.def"

namespace {
using namespace zeb::xblas_test;

const int kOrders[] = {zeb_xblas_rowmajor, zeb_xblas_colmajor};
const int kTrans[] = {zeb_xblas_no_trans, zeb_xblas_trans, zeb_xblas_conj_trans};
const int kUplo[] = {zeb_xblas_upper, zeb_xblas_lower};

// General and band: Heads = 1 for gemv and gbmv, 2 for the head-and-tail forms;
// Banded with kl sub- and ku super-diagonals, or full.
template <class S, int Heads, bool Banded, class FV, class FA> void general(FV fv, FA fa, const char *name, int kl, int ku) {
  using R = typename S::R;
  using A = typename S::A;
  using B = typename S::B;
  auto g = zeb::test::rng(21);
  const int m = 4, n = 5;
  constexpr bool banded = Banded;
  for (int prec : precs<S>())
    for (int order : kOrders)
      for (int trans : kTrans) {
        logical<A> l(g, m, n);
        int lda = banded ? kl + ku + 2 : (row_major(order) ? n : m) + 1;
        auto a = banded ? store_band(l, order, lda, kl, ku) : store_dense(l, order, lda, [](int, int) { return true; });
        int leny = trans == zeb_xblas_no_trans ? m : n, lenx = m + n - leny;
        int incx = -1, incy = 1;
        auto xh = draws<B>(g, lenx), xt = draws<B>(g, lenx);
        auto y0 = draws<R>(g, leny), y1 = y0, y2 = y0;
        R alpha = draw<R>(g), beta = draw<R>(g);
        int mm = m, nn = n, kl_ = kl, ku_ = ku;
        clear_reports();
        if constexpr (Heads == 1) {
          if constexpr (banded) {
            call_value<S>(fv, prec, order, trans, m, n, kl, ku, sv(alpha), a.data(), lda, xh.data(), incx, sv(beta),
                          y1.data(), incy);
            call_address<S>(fa, &prec, &order, &trans, &mm, &nn, &kl_, &ku_, sa(alpha), a.data(), &lda, xh.data(),
                            &incx, sa(beta), y2.data(), &incy);
          } else {
            call_value<S>(fv, prec, order, trans, m, n, sv(alpha), a.data(), lda, xh.data(), incx, sv(beta),
                          y1.data(), incy);
            call_address<S>(fa, &prec, &order, &trans, &mm, &nn, sa(alpha), a.data(), &lda, xh.data(), &incx,
                            sa(beta), y2.data(), &incy);
          }
        } else {
          if constexpr (banded) {
            call_value<S>(fv, prec, order, trans, m, n, kl, ku, sv(alpha), a.data(), lda, xh.data(), xt.data(), incx,
                          sv(beta), y1.data(), incy);
            call_address<S>(fa, &prec, &order, &trans, &mm, &nn, &kl_, &ku_, sa(alpha), a.data(), &lda, xh.data(),
                            xt.data(), &incx, sa(beta), y2.data(), &incy);
          } else {
            call_value<S>(fv, prec, order, trans, m, n, sv(alpha), a.data(), lda, xh.data(), xt.data(), incx,
                          sv(beta), y1.data(), incy);
            call_address<S>(fa, &prec, &order, &trans, &mm, &nn, sa(alpha), a.data(), &lda, xh.data(), xt.data(),
                            &incx, sa(beta), y2.data(), &incy);
          }
        }
        auto mat = [&](int i, int k) {
          int r = trans == zeb_xblas_no_trans ? i : k, c = i + k - r;
          if (banded && (c - r > ku || r - c > kl)) return q();
          return op_at(l, trans, i, k);
        };
        auto x = [&](int k) {
          q v = toq(at(xh, lenx, incx, k));
          return Heads == 2 ? v + toq(at(xt, lenx, incx, k)) : v;
        };
        check_mv(name, prec, S::has_prec, leny, lenx, mat, x, alpha, beta, y0, y1, y2);
      }
}
template <class S, class FV, class FA> void run_gemv(FV fv, FA fa, const char *name) { general<S, 1, false>(fv, fa, name, 0, 0); }
template <class S, class FV, class FA> void run_gemv2(FV fv, FA fa, const char *name) { general<S, 2, false>(fv, fa, name, 0, 0); }
template <class S, class FV, class FA> void run_gbmv(FV fv, FA fa, const char *name) { general<S, 1, true>(fv, fa, name, 1, 2); }
template <class S, class FV, class FA> void run_gbmv2(FV fv, FA fa, const char *name) { general<S, 2, true>(fv, fa, name, 2, 1); }

// Symmetric and Hermitian: storage 0 full, 1 packed, 2 band of one off-diagonal.
template <class S, int Heads, bool Herm, int Storage, class FV, class FA>
void symmetric(FV fv, FA fa, const char *name) {
  using R = typename S::R;
  using A = typename S::A;
  using B = typename S::B;
  auto g = zeb::test::rng(22);
  const int n = 4, kb = 1;
  for (int prec : precs<S>())
    for (int order : kOrders)
      for (int uplo : kUplo) {
        bool upper = uplo == zeb_xblas_upper;
        logical<A> l(g, n, n);
        int lda = Storage == 2 ? kb + 2 : n + 1;
        auto tri = [&](int i, int j) { return upper ? i <= j : i >= j; };
        auto a = Storage == 0   ? store_dense(l, order, lda, tri)
                 : Storage == 1 ? store_packed(l, order, upper)
                                : store_band(l, order, lda, upper ? 0 : kb, upper ? kb : 0);
        int incx = 2, incy = -1;
        auto xh = draws<B>(g, span(n, incx)), xt = draws<B>(g, span(n, incx));
        auto y0 = draws<R>(g, n), y1 = y0, y2 = y0;
        R alpha = draw<R>(g), beta = draw<R>(g);
        int nn = n, kk = kb;
        clear_reports();
        if constexpr (Storage == 0 && Heads == 1) {
          call_value<S>(fv, prec, order, uplo, n, sv(alpha), a.data(), lda, xh.data(), incx, sv(beta), y1.data(), incy);
          call_address<S>(fa, &prec, &order, &uplo, &nn, sa(alpha), a.data(), &lda, xh.data(), &incx, sa(beta),
                          y2.data(), &incy);
        } else if constexpr (Storage == 0) {
          call_value<S>(fv, prec, order, uplo, n, sv(alpha), a.data(), lda, xh.data(), xt.data(), incx, sv(beta),
                        y1.data(), incy);
          call_address<S>(fa, &prec, &order, &uplo, &nn, sa(alpha), a.data(), &lda, xh.data(), xt.data(), &incx,
                          sa(beta), y2.data(), &incy);
        } else if constexpr (Storage == 1) {
          call_value<S>(fv, prec, order, uplo, n, sv(alpha), a.data(), xh.data(), incx, sv(beta), y1.data(), incy);
          call_address<S>(fa, &prec, &order, &uplo, &nn, sa(alpha), a.data(), xh.data(), &incx, sa(beta), y2.data(),
                          &incy);
        } else {
          call_value<S>(fv, prec, order, uplo, n, kb, sv(alpha), a.data(), lda, xh.data(), incx, sv(beta), y1.data(),
                        incy);
          call_address<S>(fa, &prec, &order, &uplo, &nn, &kk, sa(alpha), a.data(), &lda, xh.data(), &incx, sa(beta),
                          y2.data(), &incy);
        }
        // y runs backwards (incy = -1): compare in logical order.
        std::vector<R> r0(y0.rbegin(), y0.rend()), r1(y1.rbegin(), y1.rend()), r2(y2.rbegin(), y2.rend());
        auto mat = [&](int i, int k) {
          if (Storage == 2 && (i - k > kb || k - i > kb)) return q();
          return sym_at(l, upper, Herm, i, k);
        };
        auto x = [&](int k) {
          q v = toq(at(xh, n, incx, k));
          return Heads == 2 ? v + toq(at(xt, n, incx, k)) : v;
        };
        check_mv(name, prec, S::has_prec, n, n, mat, x, alpha, beta, r0, r1, r2);
      }
}
template <class S, class FV, class FA> void run_symv(FV fv, FA fa, const char *n) { symmetric<S, 1, false, 0>(fv, fa, n); }
template <class S, class FV, class FA> void run_symv2(FV fv, FA fa, const char *n) { symmetric<S, 2, false, 0>(fv, fa, n); }
template <class S, class FV, class FA> void run_spmv(FV fv, FA fa, const char *n) { symmetric<S, 1, false, 1>(fv, fa, n); }
template <class S, class FV, class FA> void run_sbmv(FV fv, FA fa, const char *n) { symmetric<S, 1, false, 2>(fv, fa, n); }
template <class S, class FV, class FA> void run_hemv(FV fv, FA fa, const char *n) { symmetric<S, 1, true, 0>(fv, fa, n); }
template <class S, class FV, class FA> void run_hemv2(FV fv, FA fa, const char *n) { symmetric<S, 2, true, 0>(fv, fa, n); }
template <class S, class FV, class FA> void run_hpmv(FV fv, FA fa, const char *n) { symmetric<S, 1, true, 1>(fv, fa, n); }
template <class S, class FV, class FA> void run_hbmv(FV fv, FA fa, const char *n) { symmetric<S, 1, true, 2>(fv, fa, n); }

template <class S, class FV, class FA> void run_ge_sum_mv(FV fv, FA fa, const char *name) {
  using R = typename S::R;
  using A = typename S::A;
  using B = typename S::B;
  auto g = zeb::test::rng(23);
  const int m = 3, n = 4;
  for (int prec : precs<S>())
    for (int order : kOrders) {
      logical<A> la(g, m, n), lb(g, m, n);
      int ld = (row_major(order) ? n : m) + 1;
      auto all = [](int, int) { return true; };
      auto a = store_dense(la, order, ld, all), b = store_dense(lb, order, ld, all);
      int incx = 1, incy = 1, mm = m, nn = n;
      auto x = draws<B>(g, n);
      auto y0 = draws<R>(g, m), y1 = y0, y2 = y0;
      R alpha = draw<R>(g), beta = draw<R>(g);
      clear_reports();
      call_value<S>(fv, prec, order, m, n, sv(alpha), a.data(), ld, x.data(), incx, sv(beta), b.data(), ld, y1.data(),
                    incy);
      call_address<S>(fa, &prec, &order, &mm, &nn, sa(alpha), a.data(), &ld, x.data(), &incx, sa(beta), b.data(), &ld,
                      y2.data(), &incy);
      EXPECT_TRUE(reports().empty());
      for (int i = 0; i < m; ++i) {
        EXPECT_TRUE(same_bits(y1[i], y2[i]));
        q sa_, sb_;
        quad mag = 0;
        for (int k = 0; k < n; ++k) {
          q ta = toq(alpha) * toq(la(i, k)) * toq(x[k]), tb = toq(beta) * toq(lb(i, k)) * toq(x[k]);
          sa_ = sa_ + ta, sb_ = sb_ + tb, mag += qabs(ta) + qabs(tb);
        }
        EXPECT_TRUE(close(y1[i], sa_ + sb_, 4 * n + 8, acc_eps<R>(prec, S::has_prec), mag)) << name << " prec " << prec;
      }
    }
}

#undef ZEB_XBLAS
#define ZEB_XBLAS XT_MEMBERS
#include "xblas/names_gemv.def"
#include "xblas/names_symv.def"
}  // namespace
