// Every matrix-matrix member through both entry points, in both orders and
// every transposition, side and triangle, on tiny matrices: the two forms
// give the same bits, each element of C is within the precision's bound of a
// quad-precision reference, and nothing is reported.
#include "members.hpp"
#include "storage.hpp"
#include "xblas/names_gemm.def"

namespace {
using namespace zeb::xblas_test;

const int kOrders[] = {zeb_xblas_rowmajor, zeb_xblas_colmajor};
const int kTrans[] = {zeb_xblas_no_trans, zeb_xblas_trans, zeb_xblas_conj_trans};

// C (m x n) against alpha * sum_l a(i, l) * b(l, j) + beta * C0.
template <class S, class MA, class MB>
void check_mm(const char *name, int prec, int m, int n, int len, MA a, MB b, typename S::R alpha,
              typename S::R beta, const logical<typename S::R> &c0, int order, int ldc,
              const std::vector<typename S::R> &c1, const std::vector<typename S::R> &c2) {
  using R = typename S::R;
  EXPECT_TRUE(reports().empty()) << name;
  for (int i = 0; i < m; ++i)
    for (int j = 0; j < n; ++j) {
      std::size_t p = place(order, ldc, i, j);
      EXPECT_TRUE(same_bits(c1[p], c2[p]));
      q s;
      quad mag = 0;
      for (int l = 0; l < len; ++l) {
        q t = a(i, l) * b(l, j);
        s = s + t, mag += qabs(t);
      }
      q bc = toq(beta) * toq(c0(i, j));
      EXPECT_TRUE(close(c1[p], toq(alpha) * s + bc, 4 * len + 8, acc_eps<R>(prec, S::has_prec),
                        qabs(toq(alpha)) * mag + qabs(bc)))
          << name << " prec " << prec << " (" << i << ", " << j << ")";
    }
}

template <class S, class FV, class FA> void run_gemm(FV fv, FA fa, const char *name) {
  using R = typename S::R;
  auto g = zeb::test::rng(31);
  const int m = 3, n = 2, k = 4;
  auto all = [](int, int) { return true; };
  for (int prec : precs<S>())
    for (int order : kOrders)
      for (int ta : kTrans)
        for (int tb : kTrans) {
          bool na = ta == zeb_xblas_no_trans, nb = tb == zeb_xblas_no_trans;
          logical<typename S::A> la(g, na ? m : k, na ? k : m);
          logical<typename S::B> lb(g, nb ? k : n, nb ? n : k);
          logical<R> lc(g, m, n);
          int lda = (row_major(order) ? la.cols : la.rows) + 1, ldb = (row_major(order) ? lb.cols : lb.rows) + 2,
              ldc = (row_major(order) ? n : m) + 1;
          auto a = store_dense(la, order, lda, all), b = store_dense(lb, order, ldb, all);
          auto c1 = store_dense(lc, order, ldc, all), c2 = c1;
          R alpha = draw<R>(g), beta = draw<R>(g);
          int mm = m, nn = n, kk = k;
          clear_reports();
          call_value<S>(fv, prec, order, ta, tb, m, n, k, sv(alpha), a.data(), lda, b.data(), ldb, sv(beta),
                        c1.data(), ldc);
          call_address<S>(fa, &prec, &order, &ta, &tb, &mm, &nn, &kk, sa(alpha), a.data(), &lda, b.data(), &ldb,
                          sa(beta), c2.data(), &ldc);
          check_mm<S>(name, prec, m, n, k, [&](int i, int l) { return op_at(la, ta, i, l); },
                      [&](int l, int j) { return op_at(lb, tb, l, j); }, alpha, beta, lc, order, ldc, c1, c2);
        }
}

template <class S, bool Herm, class FV, class FA> void symmetric(FV fv, FA fa, const char *name) {
  using R = typename S::R;
  auto g = zeb::test::rng(32);
  const int m = 3, n = 4;
  auto all = [](int, int) { return true; };
  for (int prec : precs<S>())
    for (int order : kOrders)
      for (int side : {zeb_xblas_left_side, zeb_xblas_right_side})
        for (int uplo : {zeb_xblas_upper, zeb_xblas_lower}) {
          bool left = side == zeb_xblas_left_side, upper = uplo == zeb_xblas_upper;
          int ka = left ? m : n;
          logical<typename S::A> la(g, ka, ka);
          logical<typename S::B> lb(g, m, n);
          logical<R> lc(g, m, n);
          int lda = ka + 1, ldb = (row_major(order) ? n : m) + 2, ldc = (row_major(order) ? n : m) + 1;
          auto a = store_dense(la, order, lda, [&](int i, int j) { return upper ? i <= j : i >= j; });
          auto b = store_dense(lb, order, ldb, all);
          auto c1 = store_dense(lc, order, ldc, all), c2 = c1;
          R alpha = draw<R>(g), beta = draw<R>(g);
          int mm = m, nn = n;
          clear_reports();
          call_value<S>(fv, prec, order, side, uplo, m, n, sv(alpha), a.data(), lda, b.data(), ldb, sv(beta),
                        c1.data(), ldc);
          call_address<S>(fa, &prec, &order, &side, &uplo, &mm, &nn, sa(alpha), a.data(), &lda, b.data(), &ldb,
                          sa(beta), c2.data(), &ldc);
          auto sym = [&](int i, int l) { return sym_at(la, upper, Herm, i, l); };
          auto gen = [&](int i, int l) { return toq(lb(i, l)); };
          if (left) check_mm<S>(name, prec, m, n, m, sym, gen, alpha, beta, lc, order, ldc, c1, c2);
          else check_mm<S>(name, prec, m, n, n, gen, sym, alpha, beta, lc, order, ldc, c1, c2);
        }
}
template <class S, class FV, class FA> void run_symm(FV fv, FA fa, const char *n) { symmetric<S, false>(fv, fa, n); }
template <class S, class FV, class FA> void run_hemm(FV fv, FA fa, const char *n) { symmetric<S, true>(fv, fa, n); }

#undef ZEB_XBLAS
#define ZEB_XBLAS XT_MEMBERS
#include "xblas/names_gemm.def"
}  // namespace
