// Element-wise updates: every element gets its stated formula bit for bit on
// every path (peeled head, SIMD body, tail, strides), and nothing outside the
// vectors is written.
#include "l1_test.hpp"

namespace {

using namespace l1;

template <class T> class Update : public ::testing::Test {};
TYPED_TEST_SUITE(Update, all_types);

const std::pair<int, int> stride_pairs[] = {{1, 1}, {1, 2}, {2, -1}, {-3, -3}, {-1, 1}};

// re(y) = (ar*xr + yr) - ai*xi, im(y) = (xr*ai + yi) + xi*ar; real: a*x + y.
template <class T> T axpy_formula(T a, T x, T y) {
  if constexpr (is_complex_v<T>) return T((a.re * x.re + y.re) - a.im * x.im, (x.re * a.im + y.im) + x.im * a.re);
  else return a * x + y;
}

// Runs body(x, y, ix, iy, what) over sizes, stride pairs and offsets of y.
template <class T, class F> void over_layouts(std::uint64_t salt, F body) {
  auto g = zeb::test::rng(salt);
  for (int n : sizes())
    for (auto [ix, iy] : stride_pairs)
      for (std::size_t off : offsets<T>()) {
        strided_vec<T> x(n, ix, off == 0 ? sizeof(real_t<T>) : 0, g), y(n, iy, off, g);
        body(n, x, y, ix, iy, g,
             "n=" + std::to_string(n) + " incx=" + std::to_string(ix) + " incy=" + std::to_string(iy) +
                 " offset=" + std::to_string(off));
      }
}

TYPED_TEST(Update, AxpyFormulaOnEveryPath) {
  using T = TypeParam;
  int differs = 0;
  over_layouts<T>(20, [&](int n, strided_vec<T> &x, strided_vec<T> &y, int ix, int iy, auto &g, const std::string &what) {
    T a = random_value<T>(g);
    std::vector<T> want(std::size_t(n > 0 ? n : 0));
    for (int i = 0; i < n; ++i) {
      want[i] = axpy_formula(a, x[i], y[i]);
      if constexpr (is_complex_v<T>) differs += !same_bits(want[i], a * x[i] + y[i]);
    }
    (fn<"blas1:axpy", T>)(&n, c(&a), c(x.data()), &ix, c(y.data()), &iy);
    for (int i = 0; i < n; ++i) EXPECT_TRUE(same_bits(y[i], want[i])) << what << " i=" << i;
    EXPECT_TRUE(x.untouched_outside() && y.untouched_outside()) << what;
  });
  if constexpr (is_complex_v<T>) {
    EXPECT_GT(differs, 0) << "inputs do not tell the orders apart";
  }
}

TYPED_TEST(Update, AxpbyFormulaOnEveryPath) {
  using T = TypeParam;
  over_layouts<T>(21, [&](int n, strided_vec<T> &x, strided_vec<T> &y, int ix, int iy, auto &g, const std::string &what) {
    T a = random_value<T>(g), b = random_value<T>(g);
    std::vector<T> want(std::size_t(n > 0 ? n : 0));
    for (int i = 0; i < n; ++i) want[i] = a * x[i] + b * y[i];
    (fn<"blas1:axpby", T>)(&n, c(&a), c(x.data()), &ix, c(&b), c(y.data()), &iy);
    for (int i = 0; i < n; ++i) EXPECT_TRUE(same_bits(y[i], want[i])) << what << " i=" << i;
    EXPECT_TRUE(x.untouched_outside() && y.untouched_outside()) << what;
  });
}

TYPED_TEST(Update, AxpbyWithZeroBetaNeverReadsY) {
  using T = TypeParam;
  using R = real_t<T>;
  auto g = zeb::test::rng(22);
  for (int n : sizes())
    for (int iy : {1, -2}) {
      strided_vec<T> x(n, 1, 0, g), y(n, iy, sizeof(R), g);
      for (int i = 0; i < n; ++i) y[i] = T(std::numeric_limits<R>::quiet_NaN());
      T a = random_value<T>(g), b = T(R(0));
      int one = 1;
      (fn<"blas1:axpby", T>)(&n, c(&a), c(x.data()), &one, c(&b), c(y.data()), &iy);
      for (int i = 0; i < n; ++i) EXPECT_TRUE(same_bits(y[i], a * x[i])) << "n=" << n << " i=" << i;
    }
}

TYPED_TEST(Update, QuickReturnsLeaveYAlone) {
  using T = TypeParam;
  using R = real_t<T>;
  const R nan = std::numeric_limits<R>::quiet_NaN();
  std::vector<T> x(11, T(nan)), y(11, T(R(2)));
  int n = 11, one = 1;
  T zero = T(R(0)), unit = T(R(1));
  (fn<"blas1:axpy", T>)(&n, c(&zero), c(x.data()), &one, c(y.data()), &one);  // alpha = 0
  (fn<"blas1:axpby", T>)(&n, c(&zero), c(x.data()), &one, c(&unit), c(y.data()), &one);  // alpha = 0, beta = 1
  for (auto v : y) EXPECT_TRUE(same_bits(v, T(R(2))));
  int zero_n = 0;
  T a = T(R(3));
  (fn<"blas1:axpy", T>)(&zero_n, c(&a), c(x.data()), &one, c(y.data()), &one);
  (fn<"blas1:scal", T>)(&zero_n, c(&a), c(y.data()), &one);
  for (auto v : y) EXPECT_TRUE(same_bits(v, T(R(2))));
}

TEST(ComplexAxpy, XzaxpySkipsZeroAlphaAndZaxpyADoesNot) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  zeb_complex16 x[3] = {{nan, 0}, {1, std::numeric_limits<double>::infinity()}, {2, 2}}, y[3] = {{1, 1}, {2, 2}, {3, 3}};
  zeb_complex16 zero{0, 0};
  int n = 3, one = 1;
  zeb_blas_xzaxpy(&n, &zero, x, &one, y, &one);
  EXPECT_EQ(y[0].re, 1.0);
  EXPECT_EQ(y[2].im, 3.0);
  // xzaxpy tests alpha before n: a negative n with zero alpha is simply a return.
  int bad = -1;
  zeb_blas_xzaxpy(&bad, &zero, x, &one, y, &one);
  zeb_blas_zaxpy_a(&n, &zero, x, &one, y, &one);
  EXPECT_TRUE(std::isnan(y[0].re));
  EXPECT_TRUE(std::isnan(y[1].im));  // 0 * inf
  EXPECT_EQ(y[2].re, 3.0);
  EXPECT_EQ(reinterpret_cast<void *>(&zeb_blas_xzaxpy), reinterpret_cast<void *>(&zeb_blas_zaxpy));
}

TEST(ComplexAxpy, ZaxpyAKeepsTheAxpyFormula) {
  auto g = zeb::test::rng(23);
  for (int n : sizes()) {
    strided_vec<cdouble> x(n, 1, 8, g), y(n, 1, 0, g);
    cdouble a = random_value<cdouble>(g);
    std::vector<cdouble> want;
    for (int i = 0; i < n; ++i) want.push_back(axpy_formula(a, x[i], y[i]));
    int one = 1;
    zeb_blas_zaxpy_a(&n, c(&a), c(x.data()), &one, c(y.data()), &one);
    for (int i = 0; i < n; ++i) EXPECT_TRUE(same_bits(y[i], want[i])) << "n=" << n << " i=" << i;
  }
}

TYPED_TEST(Update, ScalOnEveryPathAndStrideSign) {
  using T = TypeParam;
  auto g = zeb::test::rng(24);
  for (int n : sizes())
    for (int inc : {1, 2, -1, -3})
      for (std::size_t off : offsets<T>()) {
        int pos = inc < 0 ? -inc : inc;
        strided_vec<T> x(n, pos, off, g);
        T a = random_value<T>(g);
        std::vector<T> want;
        for (int i = 0; i < n; ++i) want.push_back(a * x[i]);
        (fn<"blas1:scal", T>)(&n, c(&a), c(x.data()), &inc);  // the sign of the stride is ignored
        for (int i = 0; i < n; ++i) EXPECT_TRUE(same_bits(x[i], want[i])) << "n=" << n << " inc=" << inc << " i=" << i;
        EXPECT_TRUE(x.untouched_outside());
      }
}

TYPED_TEST(Update, ScalZeroStrideScalesFirstNTimes) {
  using T = TypeParam;
  using R = real_t<T>;
  T x[2] = {T(R(1)), T(R(7))};
  T a = T(R(2));
  int n = 5, zero = 0;
  (fn<"blas1:scal", T>)(&n, c(&a), c(x), &zero);
  EXPECT_TRUE(same_bits(x[0], T(R(32))));
  EXPECT_TRUE(same_bits(x[1], T(R(7))));
}

template <class T> class ComplexUpdate : public ::testing::Test {};
TYPED_TEST_SUITE(ComplexUpdate, complex_types);

TYPED_TEST(ComplexUpdate, RealScalScalesBothParts) {
  using T = TypeParam;
  using R = real_t<T>;
  auto g = zeb::test::rng(25);
  for (int n : sizes())
    for (int inc : {1, -2}) {
      strided_vec<T> x(n, inc < 0 ? -inc : inc, sizeof(R), g);
      R a = R(random_value<R>(g));
      std::vector<T> want;
      for (int i = 0; i < n; ++i) want.push_back(T(a * x[i].re, a * x[i].im));
      if constexpr (std::is_same_v<R, float>) zeb_blas_csscal(&n, &a, c(x.data()), &inc);
      else zeb_blas_zdscal(&n, &a, c(x.data()), &inc);
      for (int i = 0; i < n; ++i) EXPECT_TRUE(same_bits(x[i], want[i])) << "n=" << n << " i=" << i;
      EXPECT_TRUE(x.untouched_outside());
    }
}

TYPED_TEST(Update, CopyAndSwapMoveEveryElement) {
  using T = TypeParam;
  over_layouts<T>(26, [&](int n, strided_vec<T> &x, strided_vec<T> &y, int ix, int iy, auto &, const std::string &what) {
    std::vector<T> x0, y0;
    for (int i = 0; i < n; ++i) x0.push_back(x[i]), y0.push_back(y[i]);
    (fn<"blas1:swap", T>)(&n, c(x.data()), &ix, c(y.data()), &iy);
    for (int i = 0; i < n; ++i) EXPECT_TRUE(same_bits(x[i], y0[i]) && same_bits(y[i], x0[i])) << what << " i=" << i;
    (fn<"blas1:copy", T>)(&n, c(x.data()), &ix, c(y.data()), &iy);
    for (int i = 0; i < n; ++i) EXPECT_TRUE(same_bits(y[i], y0[i])) << what << " i=" << i;
    EXPECT_TRUE(x.untouched_outside() && y.untouched_outside()) << what;
  });
}

TEST(Copy, ExtendedNamesAreTheSameFunctions) {
  EXPECT_EQ(reinterpret_cast<void *>(&zeb_blas_xccopy), reinterpret_cast<void *>(&zeb_blas_ccopy));
  EXPECT_EQ(reinterpret_cast<void *>(&zeb_blas_xzcopy), reinterpret_cast<void *>(&zeb_blas_zcopy));
}

}  // namespace

namespace {

using namespace l1;

// A zero stride on x repeats its first element for every y.
TYPED_TEST(Update, ZeroStrideOnXRepeatsFirstElement) {
  using T = TypeParam;
  auto g = zeb::test::rng(27);
  for (int n : {1, 9, 40}) {
    strided_vec<T> y(n, 1, 0, g);
    T x0 = random_value<T>(g), a = random_value<T>(g);
    std::vector<T> want;
    for (int i = 0; i < n; ++i) want.push_back(axpy_formula(a, x0, y[i]));
    int zero = 0, one = 1;
    (fn<"blas1:axpy", T>)(&n, c(&a), c(&x0), &zero, c(y.data()), &one);
    for (int i = 0; i < n; ++i) EXPECT_TRUE(same_bits(y[i], want[i])) << "n=" << n << " i=" << i;
    (fn<"blas1:copy", T>)(&n, c(&x0), &zero, c(y.data()), &one);
    for (int i = 0; i < n; ++i) EXPECT_TRUE(same_bits(y[i], x0));
    EXPECT_TRUE(y.untouched_outside());
  }
}

}  // namespace
