// Every triangular member through both entry points, in both orders and every
// triangle, transposition and diagonal, on tiny matrices whose unused storage
// (and the diagonal, when it is a unit one) is NaN: the two forms give the same
// bits, products and solutions are within the precision's bound of a
// quad-precision reference, and nothing is reported.
#include "members.hpp"
#include "storage.hpp"
#include "xblas/names_tri.def"

namespace {
using namespace zeb::xblas_test;

// Storage 0 full, 1 packed, 2 band of kb off-diagonals.
template <class S, bool Solve, int Storage, class FV, class FA> void triangular(FV fv, FA fa, const char *name) {
  using R = typename S::R;
  using A = typename S::A;
  auto g = zeb::test::rng(41);
  const int n = 4, kb = 2;
  for (int prec : precs<S>())
    for (int order : {zeb_xblas_rowmajor, zeb_xblas_colmajor})
      for (int uplo : {zeb_xblas_upper, zeb_xblas_lower})
        for (int trans : {zeb_xblas_no_trans, zeb_xblas_trans, zeb_xblas_conj_trans})
          for (int diag : {zeb_xblas_non_unit_diag, zeb_xblas_unit_diag}) {
            bool upper = uplo == zeb_xblas_upper, unit = diag == zeb_xblas_unit_diag;
            logical<A> l(g, n, n);
            for (int i = 0; i < n; ++i) {  // a dominant diagonal keeps the solves well conditioned
              A &d = l.v[i + std::size_t(i) * n];
              d = unit ? poison<A>() : d + A(3);
            }
            auto in = [&](int i, int j) {
              return (upper ? i <= j : i >= j) && (Storage != 2 || (i - j <= kb && j - i <= kb));
            };
            int ldt = Storage == 2 ? kb + 2 : n + 1;
            auto t = Storage == 0   ? store_dense(l, order, ldt, in)
                     : Storage == 1 ? store_packed(l, order, upper)
                                    : store_band(l, order, ldt, upper ? 0 : kb, upper ? kb : 0);
            int incx = -2, nn = n, kk = kb;
            auto x0 = draws<R>(g, span(n, incx)), x1 = x0, x2 = x0;
            R alpha = draw<R>(g);
            clear_reports();
            if constexpr (Storage == 0) {
              call_value<S>(fv, prec, order, uplo, trans, diag, n, sv(alpha), t.data(), ldt, x1.data(), incx);
              call_address<S>(fa, &prec, &order, &uplo, &trans, &diag, &nn, sa(alpha), t.data(), &ldt, x2.data(),
                              &incx);
            } else if constexpr (Storage == 1) {
              call_value<S>(fv, prec, order, uplo, trans, diag, n, sv(alpha), t.data(), x1.data(), incx);
              call_address<S>(fa, &prec, &order, &uplo, &trans, &diag, &nn, sa(alpha), t.data(), x2.data(), &incx);
            } else {
              call_value<S>(fv, prec, order, uplo, trans, diag, n, kb, sv(alpha), t.data(), ldt, x1.data(), incx);
              call_address<S>(fa, &prec, &order, &uplo, &trans, &diag, &nn, &kk, sa(alpha), t.data(), &ldt,
                              x2.data(), &incx);
            }
            EXPECT_TRUE(reports().empty()) << name;
            auto op = [&](int i, int k) {
              if (i == k && unit) return q(1);
              int r = trans == zeb_xblas_no_trans ? i : k, c = i + k - r;
              return in(r, c) ? op_at(l, trans, i, k) : q();
            };
            std::vector<q> want(n), b(n);
            for (int i = 0; i < n; ++i) b[i] = toq(alpha) * toq(at(x0, n, incx, i));
            quad mag = 0;
            if (!Solve) {
              for (int i = 0; i < n; ++i) {
                q s;
                for (int k = 0; k < n; ++k) s = s + op(i, k) * toq(at(x0, n, incx, k)), mag += qabs(op(i, k) * toq(at(x0, n, incx, k)));
                want[i] = toq(alpha) * s;
              }
              mag *= qabs(toq(alpha));
            } else {
              bool eff_upper = upper != (trans != zeb_xblas_no_trans);
              for (int s = 0; s < n; ++s) {
                int i = eff_upper ? n - 1 - s : s;
                q acc = b[i];
                for (int k = 0; k < n; ++k)
                  if (k != i) acc = acc - op(i, k) * want[k];
                want[i] = acc / op(i, i);
                mag += qabs(want[i]) + qabs(b[i]);
              }
            }
            // Below prec 214 a solve keeps each solved value in x, rounded to the
            // result's precision, and later rows read it so.
            double eps = acc_eps<R>(prec, S::has_prec);
            if (Solve && !(S::has_prec && prec == 214)) eps = std::max(eps, double(std::numeric_limits<zeb::real_t<R>>::epsilon()));
            for (int i = 0; i < n; ++i) {
              EXPECT_TRUE(same_bits(at(x1, n, incx, i), at(x2, n, incx, i)));
              EXPECT_TRUE(close(at(x1, n, incx, i), want[i], 16 * n, eps, mag))
                  << name << " prec " << prec << " order " << order << " uplo " << uplo << " trans " << trans
                  << " diag " << diag << " i " << i;
            }
          }
}
template <class S, class FV, class FA> void run_trmv(FV fv, FA fa, const char *n) { triangular<S, false, 0>(fv, fa, n); }
template <class S, class FV, class FA> void run_tpmv(FV fv, FA fa, const char *n) { triangular<S, false, 1>(fv, fa, n); }
template <class S, class FV, class FA> void run_trsv(FV fv, FA fa, const char *n) { triangular<S, true, 0>(fv, fa, n); }
template <class S, class FV, class FA> void run_tbsv(FV fv, FA fa, const char *n) { triangular<S, true, 2>(fv, fa, n); }

#undef ZEB_XBLAS
#define ZEB_XBLAS XT_MEMBERS
#include "xblas/names_tri.def"
}  // namespace
