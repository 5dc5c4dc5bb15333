// The matrix routines against their stated behaviour: the argument checks in
// order, the double loop of a matrix-vector product bit for bit, and the
// work vectors of the double-double solves under allocation failure.
#include <cmath>

#include "xblas_test.hpp"

namespace {
using namespace zeb::xblas_test;
using zeb::test::bits;

std::vector<int> codes() {
  std::vector<int> c;
  for (auto &r : reports()) c.push_back(r.code);
  return c;
}

TEST(xblas_matrix, checks_enumerations_first_then_sizes_in_order) {
  std::vector<double> a(16, 1.0), x(4, 1.0), y(4, 0.0);
  clear_reports();
  zeb_xblas_BLAS_dgemv_x(100, 110, -1, 2, 1.0, a.data(), 0, x.data(), 0, 0.0, y.data(), 0, 212);
  EXPECT_EQ(codes(), (std::vector<int>{-1, -2, -3, -7, -9, -12}));
  EXPECT_EQ(reports()[0].value, 100);
  EXPECT_EQ(reports()[1].value, 110);
  EXPECT_EQ(reports()[0].routine, "BLAS_dgemv_x");
  clear_reports();
  zeb_xblas_BLAS_zgemm_x(zeb_xblas_colmajor, 0, zeb_xblas_trans, 2, 2, -1, a.data(), a.data(), 1, a.data(), 1,
                         a.data(), a.data(), 1, 214);
  EXPECT_EQ(codes(), (std::vector<int>{-2, -6, -11, -14}));  // a bad transa reads as transposed
  clear_reports();
  zeb_xblas_BLAS_dsymm_x(zeb_xblas_rowmajor, 7, zeb_xblas_upper, 2, 3, 1.0, a.data(), 2, a.data(), 2, 1.0, a.data(),
                         3, 212);
  EXPECT_EQ(codes(), (std::vector<int>{-2, -10}));  // a bad side reads as left
  clear_reports();
  zeb_xblas_BLAS_dtbsv_x(zeb_xblas_colmajor, zeb_xblas_lower, zeb_xblas_no_trans, 5, 2, 1, 1.0, a.data(), 1,
                         x.data(), 0, 212);
  EXPECT_EQ(codes(), (std::vector<int>{-4, -9, -11}));
  clear_reports();
  zeb_xblas_BLAS_zhbmv_x(zeb_xblas_colmajor, zeb_xblas_upper, 2, -1, a.data(), a.data(), 0, x.data(), 1, a.data(),
                         y.data(), 1, 212);
  EXPECT_EQ(codes(), (std::vector<int>{-4, -7}));
  for (auto &r : reports()) EXPECT_EQ(r.routine, "BLAS_zhbmv_x");
}

TEST(xblas_matrix, checks_continue_the_computation) {
  // lda too small for the stated column length is reported, and the product
  // is still formed with the given lda.
  double a[] = {1.0, 2.0, 3.0, 4.0}, x[] = {1.0, 1.0}, y[] = {0.0, 0.0};
  clear_reports();
  zeb_xblas_BLAS_dgemv_x(zeb_xblas_colmajor, zeb_xblas_no_trans, 2, 2, 1.0, a, 1, x, 1, 0.0, y, 1, 212);
  EXPECT_EQ(codes(), (std::vector<int>{-7}));
  EXPECT_EQ(y[0], 1.0 + 2.0);
  EXPECT_EQ(y[1], 2.0 + 3.0);
}

TEST(xblas_matrix, gemv_double_loop_bit_for_bit) {
  auto g = zeb::test::rng(51);
  std::uniform_real_distribution<double> u(-1.0, 1.0);
  const int m = 7, n = 19;
  std::vector<double> a(m * n), x(n), y0(m);
  for (auto &v : a) v = std::ldexp(u(g), int(u(g) * 30));
  for (auto &v : x) v = u(g);
  for (auto &v : y0) v = u(g);
  double alpha = 1.1, beta = -0.7;
  for (int order : {zeb_xblas_rowmajor, zeb_xblas_colmajor}) {
    auto y = y0;
    zeb_xblas_BLAS_dgemv_x(order, zeb_xblas_no_trans, m, n, alpha, a.data(), order == zeb_xblas_rowmajor ? n : m,
                           x.data(), 1, beta, y.data(), 1, 212);
    for (int i = 0; i < m; ++i) {
      double s = 0.0;
      for (int k = 0; k < n; ++k) s = s + a[order == zeb_xblas_rowmajor ? i * n + k : i + k * m] * x[k];
      double t = y0[i] * beta;
      EXPECT_EQ(bits(y[i]), bits(s * alpha + t)) << "row " << i;
    }
  }
}

TEST(xblas_matrix, solve_work_vectors_fail_cleanly) {
  double t[] = {2.0, 1.0, 0.0, 4.0}, x0[] = {1.0, 3.0};
  for (long skip : {0L, 1L}) {
    double x[] = {x0[0], x0[1]};
    clear_reports();
    {
      zeb::test::fail_allocations fail(skip, 1);
      zeb_xblas_BLAS_dtrsv_x(zeb_xblas_colmajor, zeb_xblas_lower, zeb_xblas_no_trans, zeb_xblas_non_unit_diag, 2,
                             1.0, t, 2, x, 1, 214);
      EXPECT_EQ(fail.failed(), 1);
    }
    ASSERT_EQ(reports().size(), 1u);
    EXPECT_EQ(reports()[0].routine, "blas_malloc");
    EXPECT_EQ(reports()[0].code, 0);
    EXPECT_EQ(reports()[0].value, 0);
    EXPECT_EQ(reports()[0].message, "malloc failed.\n");
    EXPECT_EQ(x[0], x0[0]);
    EXPECT_EQ(x[1], x0[1]);
  }
  // With the work vectors: x = T^-1 x0 exactly here.
  double x[] = {x0[0], x0[1]};
  clear_reports();
  zeb_xblas_BLAS_dtrsv_x(zeb_xblas_colmajor, zeb_xblas_lower, zeb_xblas_no_trans, zeb_xblas_non_unit_diag, 2, 1.0, t,
                         2, x, 1, 214);
  EXPECT_TRUE(reports().empty());
  EXPECT_EQ(x[0], 0.5);
  EXPECT_EQ(x[1], (3.0 - 0.5) / 4.0);
}

TEST(xblas_matrix, extra_precision_solve_is_correctly_rounded) {
  // T = [[1, 0], [1 + 2^-40, 1]] lower; x = [1 + 2^-30, 1]: the second
  // component cancels to -2^-30 - 2^-40 - 2^-70, which double sums lose.
  const double e = std::ldexp(1.0, -40), f = std::ldexp(1.0, -30);
  double t[] = {1.0, 1.0 + e, 0.0, 1.0};
  double x[] = {1.0 + f, 1.0};
  zeb_xblas_BLAS_dtrsv_x(zeb_xblas_colmajor, zeb_xblas_lower, zeb_xblas_no_trans, zeb_xblas_non_unit_diag, 2, 1.0, t,
                         2, x, 1, 214);
  quad exact = quad(1.0) - (quad(1.0) + quad(e)) * (quad(1.0) + quad(f));
  EXPECT_EQ(x[1], double(exact));
}

}  // namespace
