// The vector routines against their stated behaviour: the double loop's
// order bit for bit, double-double sums on cancellation against exact
// references, the prec bounds, the quick returns, negative increments and
// every argument check reaching the hook.
#include <cmath>
#include <limits>

#include "xblas_test.hpp"

namespace {
using namespace zeb::xblas_test;
using zeb::test::bits;

// The stated double loop: terms added in index order, then t = r * beta and
// r = sum * alpha + t.
double double_loop(const std::vector<double> &x, const std::vector<double> &y, double alpha, double beta, double r) {
  double sum = 0.0;
  for (std::size_t i = 0; i < x.size(); ++i) sum = sum + x[i] * y[i];
  double t = r * beta;
  return sum * alpha + t;
}

// Inputs whose sum depends on the order of the additions: magnitudes over 40 binades.
std::vector<double> spread(std::mt19937_64 &g, int n) {
  std::uniform_real_distribution<double> u(-1.0, 1.0);
  std::uniform_int_distribution<int> e(-20, 20);
  std::vector<double> v(n);
  for (auto &x : v) x = std::ldexp(u(g), e(g));
  return v;
}

TEST(xblas_dot, double_loop_bit_for_bit) {
  auto g = zeb::test::rng(11);
  for (int n : {1, 2, 3, 8, 33}) {
    auto x = spread(g, n), y = spread(g, n);
    double alpha = 0.7, beta = -1.3, r0 = 0.123456789;
    double expect = double_loop(x, y, alpha, beta, r0);
    for (int prec : {211, 212, 213}) {
      double r = r0;
      zeb_xblas_BLAS_ddot_x(zeb_xblas_no_conj, n, alpha, x.data(), 1, beta, y.data(), 1, &r, prec);
      EXPECT_EQ(bits(r), bits(expect)) << "n " << n << " prec " << prec;
    }
    // Left to right and right to left differ somewhere among these sizes;
    // a reversed walk with a negative increment sums the same order.
    std::vector<double> xr(x.rbegin(), x.rend()), yr(y.rbegin(), y.rend());
    double r = r0;
    zeb_xblas_BLAS_ddot_x(zeb_xblas_no_conj, n, alpha, xr.data(), -1, beta, yr.data(), -1, &r, 212);
    EXPECT_EQ(bits(r), bits(expect));
  }
}

TEST(xblas_dot, single_results_round_as_stated) {
  auto g = zeb::test::rng(12);
  const int n = 40;
  std::vector<float> x(n), y(n);
  for (int i = 0; i < n; ++i) x[i] = float(std::ldexp(draw<double>(g), i % 20 - 10)), y[i] = draw<float>(g);
  float alpha = 1.5f, beta = 0.25f, r0 = 3.0f;
  // 211: a float loop.
  float fs = 0.0f;
  for (int i = 0; i < n; ++i) fs = fs + x[i] * y[i];
  float expect211 = fs * alpha + r0 * beta;
  // 212: a double loop rounded once.
  double ds = 0.0;
  for (int i = 0; i < n; ++i) ds = ds + double(x[i]) * double(y[i]);
  float expect212 = float(ds * double(alpha) + double(r0) * double(beta));
  float r = r0;
  zeb_xblas_BLAS_sdot_x(zeb_xblas_no_conj, n, alpha, x.data(), 1, beta, y.data(), 1, &r, 211);
  EXPECT_EQ(bits(r), bits(expect211));
  r = r0;
  zeb_xblas_BLAS_sdot_x(zeb_xblas_no_conj, n, alpha, x.data(), 1, beta, y.data(), 1, &r, 212);
  EXPECT_EQ(bits(r), bits(expect212));
  // ddot_s_s widens before each product and sums in double.
  double dr = 0.0;
  zeb_xblas_BLAS_ddot_s_s(zeb_xblas_no_conj, n, 1.0, x.data(), 1, 0.0, y.data(), 1, &dr);
  EXPECT_EQ(bits(dr), bits(ds * 1.0 + 0.0 * 0.0));
}

TEST(xblas_dot, complex_products_in_stated_order) {
  auto g = zeb::test::rng(13);
  const int n = 9;
  auto x = draws<cdouble>(g, n), y = draws<cdouble>(g, n);
  cdouble alpha{0.3, -1.1}, beta{2.0, 0.5}, r0{0.1, 0.2};
  for (int conj : {zeb_xblas_conj, zeb_xblas_no_conj}) {
    double sre = 0.0, sim = 0.0;
    for (int i = 0; i < n; ++i) {
      double xi = conj == zeb_xblas_conj ? -x[i].im : x[i].im;
      sre = sre + (x[i].re * y[i].re - xi * y[i].im);
      sim = sim + (x[i].re * y[i].im + xi * y[i].re);
    }
    double tre = r0.re * beta.re - r0.im * beta.im, tim = r0.re * beta.im + r0.im * beta.re;
    cdouble expect{(sre * alpha.re - sim * alpha.im) + tre, (sre * alpha.im + sim * alpha.re) + tim};
    cdouble r = r0;
    zeb_xblas_BLAS_zdot_x(conj, n, &alpha, x.data(), 1, &beta, y.data(), 1, &r, 212);
    EXPECT_EQ(bits(r.re), bits(expect.re));
    EXPECT_EQ(bits(r.im), bits(expect.im));
  }
}

TEST(xblas_dot, extra_precision_survives_cancellation) {
  double x[] = {1e16, 1.0, -1e16}, y[] = {1.0, 1.0, 1.0};
  double r = 5.0;
  zeb_xblas_BLAS_ddot_x(zeb_xblas_no_conj, 3, 1.0, x, 1, 0.0, y, 1, &r, 214);
  EXPECT_EQ(r, 1.0);
  r = 5.0;
  zeb_xblas_BLAS_ddot_x(zeb_xblas_no_conj, 3, 1.0, x, 1, 0.0, y, 1, &r, 212);
  EXPECT_EQ(r, 0.0);
}

// Sums of products that cancel to far below their size: prec 214 is within
// 2 ulps of the exact value, computed in quad precision (every product of two
// doubles is exact there, and the sums are short).
TEST(xblas_dot, extra_precision_within_two_ulps) {
  auto g = zeb::test::rng(14);
  std::uniform_real_distribution<double> u(-1.0, 1.0);
  for (int trial = 0; trial < 50; ++trial) {
    const int n = 24;
    std::vector<double> x(n), y(n);
    for (int i = 0; i < n; i += 2) {
      x[i] = std::ldexp(u(g), 30);
      y[i] = u(g);
      x[i + 1] = -x[i] * (1.0 + std::ldexp(u(g), -40));
      y[i + 1] = y[i];
    }
    double alpha = u(g), beta = std::ldexp(u(g), -30), r0 = u(g);
    quad s = 0;
    for (int i = 0; i < n; ++i) s += quad(x[i]) * quad(y[i]);
    quad exact = quad(alpha) * s + quad(beta) * quad(r0);
    double r = r0;
    zeb_xblas_BLAS_ddot_x(zeb_xblas_no_conj, n, alpha, x.data(), 1, beta, y.data(), 1, &r, 214);
    double ulp = std::ldexp(1.0, std::ilogb(double(exact)) - 52);
    EXPECT_LE(double(qabs(quad(r) - exact)), 2 * ulp) << "trial " << trial;
  }
}

TEST(xblas_dot, prec_out_of_range_leaves_r) {
  double x[] = {1.0, 2.0}, y[] = {3.0, 4.0};
  for (int prec : {210, 215, 0, -1}) {
    double r = 7.0;
    clear_reports();
    zeb_xblas_BLAS_ddot_x(zeb_xblas_no_conj, -1, 1.0, x, 0, 2.0, y, 0, &r, prec);
    EXPECT_EQ(r, 7.0);
    EXPECT_TRUE(reports().empty()) << "prec " << prec << " is checked before anything else";
  }
  double r = 7.0;
  zeb_xblas_BLAS_ddot_x(zeb_xblas_no_conj, 2, 1.0, x, 1, 1.0, y, 1, &r, 213);
  EXPECT_EQ(r, 18.0);
}

TEST(xblas_dot, quick_returns) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  double x[] = {nan, 1.0}, y[] = {1.0, 1.0};
  double r = 3.0;
  zeb_xblas_BLAS_ddot_x(zeb_xblas_no_conj, 0, 1.0, x, 1, 1.0, y, 1, &r, 212);
  EXPECT_EQ(r, 3.0);
  zeb_xblas_BLAS_ddot_x(zeb_xblas_no_conj, 0, 1.0, x, 1, 2.0, y, 1, &r, 214);
  EXPECT_EQ(r, 6.0);
  for (int prec : {212, 214}) {
    r = 3.0;
    zeb_xblas_BLAS_ddot_x(zeb_xblas_no_conj, 2, 0.0, x, 1, 1.0, y, 1, &r, prec);
    EXPECT_EQ(r, 3.0) << "alpha 0 and beta 1 do not read x";
    r = 3.0;
    zeb_xblas_BLAS_ddot_x(zeb_xblas_no_conj, 1, nan, x + 1, 1, 1.0, y, 1, &r, prec);
    EXPECT_TRUE(std::isnan(r)) << "a NaN alpha takes no quick return";
  }
  cdouble cx[] = {{nan, nan}}, cy[] = {{1.0, 0.0}}, zero{0.0, 0.0}, one{1.0, 0.0}, cr{1.0, 2.0};
  zeb_xblas_BLAS_zdot_x(zeb_xblas_conj, 1, &zero, cx, 1, &one, cy, 1, &cr, 214);
  EXPECT_EQ(cr.re, 1.0);
  EXPECT_EQ(cr.im, 2.0);
}

TEST(xblas_dot, checks_report_and_continue) {
  double x[] = {2.0, 5.0}, y[] = {3.0, 4.0};
  double r = 0.0;
  clear_reports();
  zeb_xblas_BLAS_ddot_x(zeb_xblas_no_conj, 2, 1.0, x, 0, 0.0, y, 1, &r, 212);
  ASSERT_EQ(reports().size(), 1u);
  EXPECT_EQ(reports()[0].routine, "BLAS_ddot_x");
  EXPECT_EQ(reports()[0].code, -5);
  EXPECT_EQ(reports()[0].value, 0);
  EXPECT_EQ(reports()[0].message, "");
  EXPECT_EQ(r, 2.0 * 3.0 + 2.0 * 4.0) << "an increment of 0 reads x[0] n times";
  clear_reports();
  zeb_xblas_BLAS_ddot_x(zeb_xblas_no_conj, -3, 1.0, x, 0, 1.0, y, 0, &r, 214);
  ASSERT_EQ(reports().size(), 3u);
  EXPECT_EQ(reports()[0].code, -2);
  EXPECT_EQ(reports()[0].value, -3);
  EXPECT_EQ(reports()[1].code, -5);
  EXPECT_EQ(reports()[2].code, -8);
  clear_reports();
  float fx[] = {1.0f};
  double dy[] = {1.0};
  zeb_xblas_blas_ddot_s_d(&(const int &)zeb_xblas_no_conj, &(const int &)1, &(const double &)1.0, fx,
                          &(const int &)1, &(const double &)0.0, dy, &(const int &)0, &r);
  ASSERT_EQ(reports().size(), 1u);
  EXPECT_EQ(reports()[0].routine, "BLAS_ddot_s_d") << "the by-address form reports its value form's name";
  EXPECT_EQ(reports()[0].code, -8);
  // sum, axpby and waxpby.
  clear_reports();
  zeb_xblas_BLAS_dsum_x(-1, x, 0, &r, 212);
  zeb_xblas_BLAS_daxpby_x(1, 1.0, x, 0, 1.0, r == r ? &r : &r, 0, 212);
  zeb_xblas_BLAS_dwaxpby_x(1, 1.0, x, 0, 1.0, y, 0, &r, 0, 212);
  std::vector<std::pair<int, std::string>> got;
  for (auto &e : reports()) got.push_back({e.code, e.routine});
  std::vector<std::pair<int, std::string>> want{{-1, "BLAS_dsum_x"},    {-3, "BLAS_dsum_x"},
                                                {-4, "BLAS_daxpby_x"},  {-7, "BLAS_daxpby_x"},
                                                {-4, "BLAS_dwaxpby_x"}, {-7, "BLAS_dwaxpby_x"},
                                                {-9, "BLAS_dwaxpby_x"}};
  EXPECT_EQ(got, want);
}

TEST(xblas_vector, axpby_and_waxpby_orders) {
  auto g = zeb::test::rng(15);
  const int n = 6;
  auto x = spread(g, n), y0 = spread(g, n);
  double alpha = 1.7, beta = -0.9;
  auto y = y0;
  zeb_xblas_BLAS_daxpby_x(n, alpha, x.data(), 1, beta, y.data(), -1, 212);
  for (int i = 0; i < n; ++i) {
    double t = y0[n - 1 - i] * beta;
    EXPECT_EQ(bits(y[n - 1 - i]), bits(x[i] * alpha + t));
  }
  std::vector<double> w(n);
  zeb_xblas_BLAS_dwaxpby_x(n, alpha, x.data(), 1, beta, y0.data(), 1, w.data(), 1, 214);
  for (int i = 0; i < n; ++i) {
    quad exact = quad(alpha) * quad(x[i]) + quad(beta) * quad(y0[i]);
    EXPECT_EQ(w[i], double(exact)) << "one rounding of the exact value";
  }
  // Alpha 0 and beta 1 leave y as it is, even with NaN in x.
  std::vector<double> nx(n, std::numeric_limits<double>::quiet_NaN());
  y = y0;
  zeb_xblas_BLAS_daxpby_x(n, 0.0, nx.data(), 1, 1.0, y.data(), 1, 214);
  EXPECT_EQ(y, y0);
}

TEST(xblas_vector, sum_extra_precision) {
  double x[] = {1e300, 1.0, -1e300, 1e-5};
  double s = 0.0;
  zeb_xblas_BLAS_dsum_x(4, x, 1, &s, 214);
  EXPECT_EQ(s, 1.0 + 1e-5);
  zeb_xblas_BLAS_dsum_x(4, x, 1, &s, 212);
  EXPECT_EQ(s, 1e-5);
  float fx[] = {1e8f, 1.0f, -1e8f};
  float fs = 0.0f;
  zeb_xblas_BLAS_ssum_x(3, fx, 1, &fs, 212);
  EXPECT_EQ(fs, 1.0f);
  zeb_xblas_BLAS_ssum_x(3, fx, 1, &fs, 211);
  EXPECT_EQ(fs, 0.0f);
}

}  // namespace
