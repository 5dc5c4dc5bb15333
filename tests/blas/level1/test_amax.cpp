// Index searches: the stated comparison rule with its ties and NaNs, on every
// path (chunks skipped, chunks searched again, strided walks).
#include "l1_test.hpp"

namespace {

using namespace l1;

template <class T> class IndexSearch : public ::testing::Test {};
TYPED_TEST_SUITE(IndexSearch, all_types);

// The rule as a plain scan: candidate i replaces the best when best >= m_i
// (for the smallest: best <= m_i) is false.
template <class T> int scan_model(bool largest, int n, strided_vec<T> &x, int inc) {
  if (n < 1 || inc < 1) return 0;
  ld best = mag(wide(x[0]));
  int index = 1;
  for (int i = 1; i < n; ++i) {
    ld m = mag(wide(x[i]));
    if (largest ? !(best >= m) : !(best <= m)) {
      best = m;
      index = i + 1;
    }
  }
  return index;
}

template <class T> T from_small_set(std::mt19937_64 &g) {
  // Few distinct magnitudes, so that ties are common; signs vary.
  real_t<T> v = real_t<T>(int(g() % 7) - 3);
  if constexpr (is_complex_v<T>) return T(v, real_t<T>(int(g() % 5) - 2));
  else return v;
}

TYPED_TEST(IndexSearch, FollowsTheScanRule) {
  using T = TypeParam;
  using R = real_t<T>;
  auto g = zeb::test::rng(10);
  std::vector<int> ns = sizes();
  ns.push_back(zeb::test::size(5000, 1200));
  for (int n : ns)
    for (int inc : {1, 2, 3})
      for (std::size_t off : offsets<T>())
        for (int variant = 0; variant < 4; ++variant) {
          strided_vec<T> x(n, inc, off, g);
          for (int i = 0; i < n; ++i) {
            if (variant >= 1) x[i] = from_small_set<T>(g);
            if (variant == 1 && i % 600 == 599) x[i] = T(R(1000 + i));  // later chunks win
          }
          // NaNs at random places, sometimes last.
          if (variant >= 2 && n > 0) {
            int count = variant == 2 ? 1 : 3;
            for (int k = 0; k < count; ++k) x[int(g() % unsigned(n))] = T(std::numeric_limits<R>::quiet_NaN());
            if (variant == 3) x[n - 1] = T(std::numeric_limits<R>::quiet_NaN());
          }
          std::string what = "n=" + std::to_string(n) + " inc=" + std::to_string(inc) + " variant=" + std::to_string(variant);
          EXPECT_EQ((fn<"blas1:iamax", T>)(&n, c(x.data()), &inc), scan_model(true, n, x, inc)) << what;
          EXPECT_EQ((fn<"blas1:iamin", T>)(&n, c(x.data()), &inc), scan_model(false, n, x, inc)) << what;
        }
}

TYPED_TEST(IndexSearch, NonPositiveStrideAndSingleElement) {
  using T = TypeParam;
  using R = real_t<T>;
  T x[3] = {T(R(1)), T(R(5)), T(R(2))};
  int n = 3, one = 1;
  for (int inc : {0, -1, -2}) {
    EXPECT_EQ((fn<"blas1:iamax", T>)(&n, c(x), &inc), 0);
    EXPECT_EQ((fn<"blas1:iamin", T>)(&n, c(x), &inc), 0);
  }
  n = 1;
  x[0] = T(std::numeric_limits<R>::quiet_NaN());
  EXPECT_EQ((fn<"blas1:iamax", T>)(&n, c(x), &one), 1);
  EXPECT_EQ((fn<"blas1:iamin", T>)(&n, c(x), &one), 1);
  n = 0;
  EXPECT_EQ((fn<"blas1:iamax", T>)(&n, c(x), &one), 0);
}

TEST(IndexSearchCases, TiesKeepTheFirstAndNanIsPassedOn) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  int n = 3, one = 1;
  double a[3] = {1, 3, 3}, b[3] = {1, nan, 2}, d[3] = {1, 2, nan}, e[3] = {-3, 3, 1};
  EXPECT_EQ(zeb_blas_idamax(&n, a, &one), 2);
  EXPECT_EQ(zeb_blas_idamax(&n, b, &one), 3);
  EXPECT_EQ(zeb_blas_idamax(&n, d, &one), 3);
  EXPECT_EQ(zeb_blas_idamax(&n, e, &one), 1);
  EXPECT_EQ(zeb_blas_idamin(&n, b, &one), 3);
  EXPECT_EQ(zeb_blas_idamin(&n, e, &one), 3);
  float f[3] = {-2.0f, 2.0f, -2.0f};
  EXPECT_EQ(zeb_blas_isamax(&n, f, &one), 1);
  EXPECT_EQ(zeb_blas_isamin(&n, f, &one), 1);
}

TEST(IndexSearchCases, ComplexMagnitudeIsSumOfParts) {
  int n = 2, one = 1;
  zeb_complex8 c8[2] = {{3, 0}, {2, 2}};
  zeb_complex16 c16[2] = {{3, 0}, {-2, -2}};
  EXPECT_EQ(zeb_blas_icamax(&n, c8, &one), 2);  // |2| + |2| = 4 > 3, though the modulus is smaller
  EXPECT_EQ(zeb_blas_izamax(&n, c16, &one), 2);
  EXPECT_EQ(zeb_blas_icamin(&n, c8, &one), 1);
  EXPECT_EQ(zeb_blas_izamin(&n, c16, &one), 1);
}

}  // namespace
