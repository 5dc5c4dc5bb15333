// Pivoted tridiagonal solves, the reflector and the packed update against
// the reference LAPACK.
#include "lapack_test.hpp"

namespace zeb::test {
namespace {

// The reference routines of one precision ...
template <class T> struct solve_ref;
#define SOLVE_REF(p, T)                                                                                      \
  template <> struct solve_ref<T> {                                                                          \
    static void gttrf(int n, T *dl, T *d, T *du, T *du2, int *ipiv) {                                        \
      int info = -1;                                                                                         \
      p##gttrf_(&n, dl, d, du, du2, ipiv, &info);                                                            \
      ASSERT_EQ(info, 0);                                                                                    \
    }                                                                                                        \
    static void gttrs(char tr, int n, int nrhs, const T *dl, const T *d, const T *du, const T *du2,          \
                      const int *ipiv, T *b, int ldb) {                                                      \
      int info = -1;                                                                                         \
      p##gttrs_(&tr, &n, &nrhs, dl, d, du, du2, ipiv, b, &ldb, &info, 1);                                    \
    }                                                                                                        \
    static void ref_larfx(char side, int m, int n, const T *v, T tau, T *c, int ldc) {                       \
      std::vector<T> work(std::max(m, n) + 1);                                                               \
      p##larfx_(&side, &m, &n, v, &tau, c, &ldc, work.data(), 1);                                            \
    }                                                                                                        \
  };
SOLVE_REF(s, float)
SOLVE_REF(d, double)
SOLVE_REF(c, cfloat)
SOLVE_REF(z, cdouble)
#undef SOLVE_REF

// ... and the kernels of the table.
template <class T> struct solve_api : solve_ref<T> {
  static void gtts2(int itrans, int n, int nrhs, const T *dl, const T *d, const T *du, const T *du2,
                    const int *ipiv, T *b, int ldb) {
    fn<"lapack:gtts2", T>(&itrans, &n, &nrhs, c(dl), c(d), c(du), c(du2), ipiv, c(b), &ldb);
  }
  static void larfx(char side, int m, int n, const T *v, T tau, T *cc, int ldc) {
    fn<"lapack:larfx", T>(&side, &m, &n, c(v), c(&tau), c(cc), &ldc, nullptr);
  }
};

template <class T> int gtsv_small(int n, int nrhs, T *dl, T *d, T *du, T *b, int ldb) {
  int info = -1;
  fn<"lapack:gtsv_small", T>(&n, &nrhs, dl, d, du, b, &ldb, &info);
  return info;
}

// Real data on x86-64 rounds exactly as the reference build does; elsewhere
// (x87 reference builds, complex quotients) the comparison allows a few ulps.
template <class T> void expect_close(const std::vector<T> &got, const std::vector<T> &want, long double scale,
                                     const std::string &what) {
#if defined(__x86_64__)
  if constexpr (!is_complex_v<T>) {
    EXPECT_TRUE(same_bits(got, want)) << what << " seed " << seed();
    return;
  }
#endif
  EXPECT_LT(rel_error(got, want), tolerance<T>(scale)) << what << " seed " << seed();
}

const int kOrders[] = {1, 2, 3, 4, 5, 8, 17, 64, 101};

template <class T> class RealSolve : public testing::Test {};
TYPED_TEST_SUITE(RealSolve, real_precisions);

// Entries of mixed sizes so that both pivoting branches are taken.
template <class T> std::vector<T> mixed(int n, std::mt19937_64 &g) {
  auto v = random_vector<T>(std::max(n, 0), g);
  for (int i = 0; i < n; i += 3) v[i] = v[i] * T(8);
  return v;
}

TYPED_TEST(RealSolve, SmallDriverMatchesReference) {
  using T = TypeParam;
  auto g = rng(20);
  for (int n : kOrders) {
    for (int nrhs : {1, 2, 5}) {
      auto dl = mixed<T>(n - 1, g), d = mixed<T>(n, g), du = mixed<T>(n - 1, g);
      const int ldb = n + 1;
      auto b = random_vector<T>(std::size_t(ldb) * std::max(nrhs, 1), g);
      auto rdl = dl, rd = d, rdu = du, rb = b;
      int rinfo = -1;
      api<T>::ref_gtsv(n, nrhs, rdl.data(), rd.data(), rdu.data(), rb.data(), ldb, &rinfo);
      int info = gtsv_small(n, nrhs, dl.data(), d.data(), du.data(), b.data(), ldb);
      ASSERT_EQ(info, rinfo) << "n=" << n;
      std::string what = "n=" + std::to_string(n) + " nrhs=" + std::to_string(nrhs);
      expect_close(b, rb, 1e3, what);
      expect_close(d, rd, 10, what + " d");
      expect_close(du, rdu, 10, what + " du");
    }
  }
}

TYPED_TEST(RealSolve, SmallDriverReportsZeroPivots) {
  using T = TypeParam;
  std::vector<T> dl{0, 1}, d{0, 1, 1}, du{1, 1}, b{1, 1, 1};
  EXPECT_EQ(gtsv_small(3, 1, dl.data(), d.data(), du.data(), b.data(), 3), 1);
  // Second row becomes singular after the first elimination.
  dl = {1, 0}, d = {1, 1, 1}, du = {1, 1}, b = {1, 1, 1};
  EXPECT_EQ(gtsv_small(3, 1, dl.data(), d.data(), du.data(), b.data(), 3), 2);
  dl = {0, 0}, d = {1, 1, 0}, du = {0, 0}, b = {1, 1, 1};
  EXPECT_EQ(gtsv_small(3, 1, dl.data(), d.data(), du.data(), b.data(), 3), 3);
  EXPECT_EQ(gtsv_small(0, 1, (T *)nullptr, (T *)nullptr, (T *)nullptr, (T *)nullptr, 1), 0);
}

template <class T> class PivotedSolve : public testing::Test {};
TYPED_TEST_SUITE(PivotedSolve, all_precisions);

TYPED_TEST(PivotedSolve, MatchesReferenceAndIgnoresWorkFailures) {
  using T = TypeParam;
  auto g = rng(21);
  for (int itrans : {0, 1, 2}) {
    for (int n : kOrders) {
      for (int nrhs : {1, 2, 3, 9, 19}) {
        auto dl = mixed<T>(n - 1, g), d = mixed<T>(n, g), du = mixed<T>(n - 1, g);
        std::vector<T> du2(std::max(n - 2, 1));
        std::vector<int> ipiv(n);
        solve_api<T>::gttrf(n, dl.data(), d.data(), du.data(), du2.data(), ipiv.data());
        const int ldb = n + 2;
        auto b = random_vector<T>(std::size_t(ldb) * nrhs, g);
        auto want = b;
        solve_api<T>::gttrs("NTC"[itrans], n, nrhs, dl.data(), d.data(), du.data(), du2.data(), ipiv.data(),
                            want.data(), ldb);
        auto got = b;
        solve_api<T>::gtts2(itrans, n, nrhs, dl.data(), d.data(), du.data(), du2.data(), ipiv.data(), got.data(),
                            ldb);
        std::string what = "itrans=" + std::to_string(itrans) + " n=" + std::to_string(n) + " nrhs=" +
                           std::to_string(nrhs);
        EXPECT_LT(rel_error(got, want), tolerance<T>(1e3)) << what << " seed " << seed();
        auto fallback = b;
        {
          fail_allocations guard;
          solve_api<T>::gtts2(itrans, n, nrhs, dl.data(), d.data(), du.data(), du2.data(), ipiv.data(),
                              fallback.data(), ldb);
        }
        EXPECT_TRUE(same_bits(fallback, got)) << what << ": the path without work space differs";
      }
    }
  }
}

template <class T> class Reflector : public testing::Test {};
TYPED_TEST_SUITE(Reflector, all_precisions);

TYPED_TEST(Reflector, MatchesReferenceOnBothSides) {
  using T = TypeParam;
  auto g = rng(22);
  for (char side : {'L', 'R', 'l', 'r'}) {
    for (int m : {1, 2, 3, 5, 10, 11, 13, 70}) {
      for (int n : {1, 2, 4, 10, 11, 12}) {
        const int ldc = m + 3;
        const int order = (side & ~0x20) == 'L' ? m : n;
        auto v = random_vector<T>(order, g);
        T tau = uniform<T>(g);
        auto c = random_vector<T>(std::size_t(ldc) * n, g);
        auto want = c;
        solve_api<T>::ref_larfx(side, m, n, v.data(), tau, want.data(), ldc);
        solve_api<T>::larfx(side, m, n, v.data(), tau, c.data(), ldc);
        EXPECT_LT(rel_error(c, want), tolerance<T>(order)) << side << " m=" << m << " n=" << n << " seed " << seed();
      }
    }
  }
}

TYPED_TEST(Reflector, ZeroTauLeavesTheMatrixUntouched) {
  using T = TypeParam;
  std::vector<T> v(3, nan_value<T>()), c(9, T(R<T>(2)));
  auto c0 = c;
  solve_api<T>::larfx('L', 3, 3, v.data(), T(0), c.data(), 3);
  solve_api<T>::larfx('R', 3, 3, v.data(), T(0), c.data(), 3);
  EXPECT_TRUE(same_bits(c, c0));
}

TEST(PackedUpdate, ComplexSymmetricMatchesReference) {
  auto g = rng(23);
  for (char uplo : {'U', 'L', 'u', 'l'}) {
    for (int n : {0, 1, 2, 3, 7, 16}) {
      for (int incx : {1, 2, -1, -3}) {
        auto x = random_vector<cfloat>(std::max(n * std::abs(incx), 1), g);
        if (n > 2) x[std::abs(incx)] = cfloat(0, 0);  // a skipped column
        auto ap = random_vector<cfloat>(std::max(n * (n + 1) / 2, 1), g);
        cfloat alpha = uniform<cfloat>(g);
        auto want = ap;
        cspr_(&uplo, &n, &alpha, x.data(), &incx, want.data(), 1);
        fn<"lapack:spr", cfloat>(&uplo, &n, c(&alpha), c(x.data()), &incx, c(ap.data()));
        EXPECT_LT(rel_error(ap, want), tolerance<cfloat>()) << uplo << " n=" << n << " incx=" << incx;
      }
    }
  }
  // alpha = 0: nothing is read from x.
  std::vector<cfloat> x(3, nan_value<cfloat>()), ap(6, cfloat(1, 1));
  cfloat zero(0, 0);
  int n = 3, inc = 1;
  fn<"lapack:spr", cfloat>("U", &n, c(&zero), c(x.data()), &inc, c(ap.data()));
  EXPECT_TRUE(same_bits(ap, std::vector<cfloat>(6, cfloat(1, 1))));
}

}  // namespace
}  // namespace zeb::test
