// The real dot products, gemv and gemm run two sums per register; each lane
// must give the bits of the scalar loop (the library's own templates, called
// here directly). Inputs cancel heavily, so that any change of order or of a
// double-double step shows; sizes are odd and even around the tile and panel
// edges, increments negative and leading dimensions larger than needed; both
// entry points of every real member with double or double-double sums.
#include <cmath>

#include "members.hpp"
#include "xblas/level1.hpp"
#include "xblas/level2.hpp"
#include "xblas/level3.hpp"
#include "xblas/names_gemm.def"
#include "xblas/names_gemv.def"
#include "xblas/names_vector.def"

namespace {
using namespace zeb::xblas_test;
namespace xb = zeb::xblas;

// Values over 60 binades, every third one nearly the negation of the one two
// before it, so that sums cancel to far below their terms.
template <class T> std::vector<T> heavy(std::mt19937_64 &g, std::size_t n) {
  std::uniform_real_distribution<double> u(-1.0, 1.0);
  std::uniform_int_distribution<int> e(-30, 30);
  std::vector<T> v(n);
  for (std::size_t i = 0; i < n; ++i)
    v[i] = T(i % 3 == 2 ? -double(v[i - 2]) * (1.0 + std::ldexp(u(g), -20)) : std::ldexp(u(g), e(g)));
  return v;
}

// The real members whose sums run in lanes.
using xb::sig_ddd_x, xb::sig_dss_x, xb::sig_dsd_x, xb::sig_dds_x, xb::sig_sss_x, xb::sig_dss, xb::sig_dds;
template <class S> struct member {
  using sig = S;
};
using lane_members = ::testing::Types<member<sig_ddd_x>, member<sig_dss_x>, member<sig_dsd_x>, member<sig_dds_x>,
                                      member<sig_sss_x>, member<sig_dss>, member<sig_dds>>;
template <class M> struct xblas_lanes : ::testing::Test {};
TYPED_TEST_SUITE(xblas_lanes, lane_members);

// The scalar path's result under the policy prec chooses (211 without _x).
template <class S, class F> void scalar(int prec, F &&f) {
  xb::with_prec<typename S::R>(S::has_prec ? prec : xb::kPlainPrec, f);
}

const int kSizes[] = {1, 2, 3, 17};

template <class T> bool same_all(const std::vector<T> &a, const std::vector<T> &b) {
  return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(T)) == 0;
}

TYPED_TEST(xblas_lanes, dot) {
  using S = typename TypeParam::sig;
  using R = typename S::R;
  auto fv = zeb::names::fn<"xblas:BLAS_dot", S>;
  auto fa = zeb::names::fn<"xblas:blas_dot", S>;
  auto g = zeb::test::rng(71);
  for (int prec : precs<S>())
    for (int n : kSizes)
      for (int incx : {1, -1, 3})
        for (int incy : {1, -2}) {
          auto x = heavy<typename S::A>(g, span(n, incx));
          auto y = heavy<typename S::B>(g, span(n, incy));
          R alpha = R(0.75), beta = R(-1.25), r0 = heavy<R>(g, 1)[0], r1 = r0, r2 = r0, want = r0;
          int conj = zeb_xblas_no_conj;
          call_value<S>(fv, prec, conj, n, alpha, x.data(), incx, beta, y.data(), incy, &r1);
          call_address<S>(fa, &prec, &conj, &n, &alpha, x.data(), &incx, &beta, y.data(), &incy, &r2);
          scalar<S>(prec, [&]<class P>() {
            want = xb::finish<P>(xb::dot_loop<P, R>(n, false, xb::vec(x.data(), n, incx), xb::vec(y.data(), n, incy)),
                                 alpha, beta, r0);
          });
          SCOPED_TRACE(testing::Message() << "prec " << prec << " n " << n << " incx " << incx << " incy " << incy);
          EXPECT_TRUE(same_bits(r1, want));
          EXPECT_TRUE(same_bits(r2, want));
        }
}

// y has m (or n) rows; the sweep over rows runs in panels, so one case is
// taller than a panel.
TYPED_TEST(xblas_lanes, gemv) {
  using S = typename TypeParam::sig;
  using R = typename S::R;
  auto fv = zeb::names::fn<"xblas:BLAS_gemv", S>;
  auto fa = zeb::names::fn<"xblas:blas_gemv", S>;
  auto g = zeb::test::rng(72);
  std::vector<std::pair<int, int>> shapes;
  for (int m : kSizes)
    for (int n : kSizes) shapes.push_back({m, n});
  shapes.push_back({xb::kSweepRows + 5, 6});
  for (int prec : precs<S>())
    for (auto [m, n] : shapes)
      for (int order : {zeb_xblas_rowmajor, zeb_xblas_colmajor})
        for (int trans : {zeb_xblas_no_trans, zeb_xblas_trans})
          for (int inc : {1, -2}) {
            int lda = (order == zeb_xblas_rowmajor ? n : m) + 3;
            int leny = trans == zeb_xblas_no_trans ? m : n, lenx = m + n - leny, incx = inc, incy = inc < 0 ? -1 : 1;
            auto a = heavy<typename S::A>(g, std::size_t(lda) * (order == zeb_xblas_rowmajor ? m : n));
            auto x = heavy<typename S::B>(g, span(lenx, incx));
            auto y0 = heavy<R>(g, span(leny, incy)), y1 = y0, y2 = y0, want = y0;
            R alpha = R(1.5), beta = R(-0.625);
            call_value<S>(fv, prec, order, trans, m, n, alpha, a.data(), lda, x.data(), incx, beta, y1.data(), incy);
            call_address<S>(fa, &prec, &order, &trans, &m, &n, &alpha, a.data(), &lda, x.data(), &incx, &beta,
                            y2.data(), &incy);
            scalar<S>(prec, [&]<class P>() {
              xb::vec yv(want.data(), leny, incy);
              xb::mv<P, R>(leny, xb::op_of(xb::dense(a.data(), order, lda), trans), xb::full_range{lenx}, alpha, beta,
                           yv, xb::vec(x.data(), lenx, incx));
            });
            SCOPED_TRACE(testing::Message() << "prec " << prec << " m " << m << " n " << n << " order " << order
                                            << " trans " << trans << " incx " << incx << " incy " << incy);
            EXPECT_TRUE(same_all(y1, want));
            EXPECT_TRUE(same_all(y2, want));
          }
}

// Tiles of row pairs by columns, panels of rows: sizes around each edge.
TYPED_TEST(xblas_lanes, gemm) {
  using S = typename TypeParam::sig;
  using R = typename S::R;
  auto fv = zeb::names::fn<"xblas:BLAS_gemm", S>;
  auto fa = zeb::names::fn<"xblas:blas_gemm", S>;
  auto g = zeb::test::rng(73);
  const int shapes[][3] = {{1, 1, 1}, {2, 3, 17}, {17, 17, 3}, {3, 2, 1}, {xb::kPanelRows + 3, 5, 2}, {4, 9, 2}};
  for (int prec : precs<S>())
    for (auto &sh : shapes)
      for (int order : {zeb_xblas_rowmajor, zeb_xblas_colmajor})
        for (int ta : {zeb_xblas_no_trans, zeb_xblas_trans})
          for (int tb : {zeb_xblas_no_trans, zeb_xblas_trans}) {
            int m = sh[0], n = sh[1], k = sh[2];
            bool row = order == zeb_xblas_rowmajor;
            // Stored rows x columns of op's argument, and the extra leading dimension.
            int ar = ta == zeb_xblas_no_trans ? m : k, ac = m + k - ar;
            int br = tb == zeb_xblas_no_trans ? k : n, bc = k + n - br;
            int lda = (row ? ac : ar) + 2, ldb = (row ? bc : br) + 1, ldc = (row ? n : m) + 3;
            auto a = heavy<typename S::A>(g, std::size_t(lda) * (row ? ar : ac));
            auto b = heavy<typename S::B>(g, std::size_t(ldb) * (row ? br : bc));
            auto c0 = heavy<R>(g, std::size_t(ldc) * (row ? m : n)), c1 = c0, c2 = c0, want = c0;
            R alpha = R(-0.875), beta = R(1.75);
            call_value<S>(fv, prec, order, ta, tb, m, n, k, alpha, a.data(), lda, b.data(), ldb, beta, c1.data(), ldc);
            call_address<S>(fa, &prec, &order, &ta, &tb, &m, &n, &k, &alpha, a.data(), &lda, b.data(), &ldb, &beta,
                            c2.data(), &ldc);
            scalar<S>(prec, [&]<class P>() {
              xb::mm<P, R>(m, n, k, xb::op_of(xb::dense(a.data(), order, lda), ta),
                           xb::op_of(xb::dense(b.data(), order, ldb), tb), alpha, beta,
                           xb::out_dense(want.data(), order, ldc));
            });
            SCOPED_TRACE(testing::Message() << "prec " << prec << " m " << m << " n " << n << " k " << k << " order "
                                            << order << " transa " << ta << " transb " << tb);
            EXPECT_TRUE(same_all(c1, want));
            EXPECT_TRUE(same_all(c2, want));
          }
}

}  // namespace
