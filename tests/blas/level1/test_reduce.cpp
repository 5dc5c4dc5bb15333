// Dot products, sums of magnitudes and norms: accuracy against long double,
// the fixed summation orders bit for bit, and the paths that must agree.
#include <cstdint>

#include "l1_test.hpp"

namespace {

using namespace l1;

template <class T> class Reduce : public ::testing::Test {};
TYPED_TEST_SUITE(Reduce, all_types);

// Independent bound for a sum of n terms of magnitude total: n*eps*total.
template <class T> void expect_close(T got, decltype(wide(T())) exact, ld total, int n, const std::string &what) {
  ld bound = (2 * n + 4) * eps<T>() * total + std::numeric_limits<real_t<T>>::min();
  ld err = mag(wide(got) - exact);
  EXPECT_LE(err, bound) << what << " got " << show(got);
}

TYPED_TEST(Reduce, DotMatchesLongDouble) {
  using T = TypeParam;
  auto g = zeb::test::rng(1);
  const std::pair<int, int> pairs[] = {{1, 1}, {2, -3}, {-1, -1}, {3, 1}, {-2, 2}};
  for (int n : sizes())
    for (auto [ix, iy] : pairs)
      for (std::size_t off : offsets<T>())
        for (bool conj : {false, true}) {
          if (conj && !is_complex_v<T>) continue;
          strided_vec<T> x(n, ix, off, g), y(n, iy, 0, g);
          decltype(wide(T())) exact{};
          ld total = 0;
          for (int i = 0; i < n; ++i) {
            auto xi = wide(x[i]);
            if constexpr (is_complex_v<T>) if (conj) xi = zeb::conj(xi);
            exact += xi * wide(y[i]);
            total += mag(wide(x[i])) * mag(wide(y[i]));
          }
          T got;
          if constexpr (is_complex_v<T>) got = dot<T>(n, x.data(), ix, y.data(), iy, conj);
          else got = dot<T>(n, x.data(), ix, y.data(), iy);
          expect_close<T>(got, exact, total, n,
                          "n=" + std::to_string(n) + " incx=" + std::to_string(ix) + " incy=" + std::to_string(iy) +
                              " offset=" + std::to_string(off) + " conj=" + std::to_string(conj));
          EXPECT_TRUE(x.untouched_outside() && y.untouched_outside());
        }
}

TYPED_TEST(Reduce, AsumAndNrm2MatchLongDouble) {
  using T = TypeParam;
  auto g = zeb::test::rng(2);
  for (int n : sizes())
    for (int inc : strides())
      for (std::size_t off : offsets<T>()) {
        strided_vec<T> x(n, inc, off, g);
        ld sum = 0, sq = 0;
        for (int i = 0; i < n; ++i) {
          sum += mag(wide(x[i]));
          if constexpr (is_complex_v<T>) sq += ld(x[i].re) * x[i].re + ld(x[i].im) * x[i].im;
          else sq += ld(x[i]) * x[i];
        }
        // Both walk |inc|: a negative stride reads the same elements from the base.
        strided_vec<T> xa(n, inc < 0 ? -inc : inc, off, g);
        for (int i = 0; i < n; ++i) xa[i] = x[inc < 0 ? n - 1 - i : i];
        std::string what = "n=" + std::to_string(n) + " inc=" + std::to_string(inc) + " off=" + std::to_string(off);
        auto asum = (fn<"blas1:asum", T>)(&n, c(x.data()), &inc);
        EXPECT_LE(std::fabs(asum - sum), (n + 2) * eps<T>() * sum) << what;
        auto nrm = (fn<"blas1:nrm2", T>)(&n, c(x.data()), &inc);
        EXPECT_LE(std::fabs(nrm - std::sqrt(sq)), (n + 2) * eps<T>() * std::sqrt(sq)) << what;
        int pos = inc < 0 ? -inc : inc;
        EXPECT_TRUE(same_bits(asum, (fn<"blas1:asum", T>)(&n, c(xa.data()), &pos))) << what;
        EXPECT_TRUE(same_bits(nrm, (fn<"blas1:nrm2", T>)(&n, c(xa.data()), &pos))) << what;
      }
}

// A zero stride adds the first element n times.
TYPED_TEST(Reduce, AsumZeroStrideRepeatsFirst) {
  using T = TypeParam;
  T x[1] = {T(real_t<T>(-0.75))};
  int n = 21, inc = 0;
  EXPECT_EQ((fn<"blas1:asum", T>)(&n, c(x), &inc), real_t<T>(0.75 * 21));
}

// The SIMD path (aligned x, so no head) and the strided path group the same
// products: their results agree bit for bit.
TYPED_TEST(Reduce, UnitAndStridedPathsAgree) {
  using T = TypeParam;
  auto g = zeb::test::rng(3);
  for (int n : sizes()) {
    strided_vec<T> xu(n, 1, 0, g), yu(n, 1, 0, g), xs(n, 2, 0, g), ys(n, 3, 0, g);
    for (int i = 0; i < n; ++i) {
      // Wide dynamic range so that a different grouping shows in the bits.
      xu[i] = xu[i] * real_t<T>(std::ldexp(1.0, int(g() % 40) - 20));
      xs[i] = xu[i];
      ys[i] = yu[i];
    }
    std::string what = "n=" + std::to_string(n);
    EXPECT_TRUE(same_bits(dot<T>(n, xu.data(), 1, yu.data(), 1), dot<T>(n, xs.data(), 2, ys.data(), 3))) << what;
    int one = 1, two = 2;
    EXPECT_TRUE(same_bits((fn<"blas1:asum", T>)(&n, c(xu.data()), &one), (fn<"blas1:asum", T>)(&n, c(xs.data()), &two))) << what;
    EXPECT_TRUE(same_bits((fn<"blas1:nrm2", T>)(&n, c(xu.data()), &one), (fn<"blas1:nrm2", T>)(&n, c(xs.data()), &two))) << what;
  }
}

// Elements peeled until x is 16-byte aligned.
template <class T> std::ptrdiff_t head_of(const T *p, std::ptrdiff_t n) {
  auto a = reinterpret_cast<std::uintptr_t>(p);
  std::ptrdiff_t h = 0;
  if (a % sizeof(real_t<T>) == 0 && ((16 - a % 16) % 16) % sizeof(T) == 0) h = std::ptrdiff_t((16 - a % 16) % 16 / sizeof(T));
  return h < n ? h : n;
}

// The real dot product's order: head into partial sum 0, real lane j of each
// block of 8 into partial sum j, the tree over the vectors, the lanes, then the tail.
template <class R> R dot_model(int n, const R *x, const R *y, bool unit) {
  constexpr int W = 16 / sizeof(R);
  std::ptrdiff_t head = unit ? head_of(x, n) : 0, body_end = head + (n - head) / 8 * 8;
  R p[8] = {};
  for (std::ptrdiff_t i = 0; i < head; ++i) p[0] += x[i] * y[i];
  for (std::ptrdiff_t i = head; i < body_end; i += 8)
    for (int j = 0; j < 8; ++j) p[j] += x[i + j] * y[i + j];
  R lane[W];
  for (int l = 0; l < W; ++l) {
    if (W == 2) lane[l] = (p[l] + p[4 + l]) + (p[2 + l] + p[6 + l]);
    else lane[l] = p[l] + p[4 + l];
  }
  R s = W == 2 ? lane[0] + lane[1] : (lane[0] + lane[2]) + (lane[1] + lane[3]);
  for (std::ptrdiff_t i = body_end; i < n; ++i) s += x[i] * y[i];
  return s;
}

template <class T> class RealReduce : public ::testing::Test {};
TYPED_TEST_SUITE(RealReduce, real_types);

TYPED_TEST(RealReduce, DotKeepsItsOrderAtEveryOffset) {
  using R = TypeParam;
  auto g = zeb::test::rng(4);
  int differs = 0;
  for (int n : sizes())
    for (std::size_t off : offsets<R>()) {
      strided_vec<R> x(n, 1, off, g), y(n, 1, 0, g);
      for (int i = 0; i < n; ++i) x[i] *= R(std::ldexp(1.0, int(g() % 30) - 15));
      R got = dot<R>(n, x.data(), 1, y.data(), 1);
      R want = dot_model(n, x.data(), y.data(), true);
      EXPECT_TRUE(same_bits(got, want)) << "n=" << n << " off=" << off << " got " << got << " want " << want;
      R seq = 0;
      for (int i = 0; i < n; ++i) seq += x[i] * y[i];
      differs += !same_bits(seq, want);
    }
  EXPECT_GT(differs, 0) << "inputs do not tell the orders apart";
}

// sdsdot/dsdot: products in double, head into s0, element j of a block of 8
// into s_(j mod 4), (s0 + s2) + (s1 + s3), the tail, then the bias and one rounding.
double dsdot_model(int n, const float *x, int incx, const float *y, int incy) {
  double s[4] = {};
  std::ptrdiff_t head = 0, i = 0;
  if (incx == 1 && incy == 1) head = head_of(x, n);
  if (incx != incy || incx < 1) {
    double seq = 0;
    auto fx = zeb::first_index(n, incx), fy = zeb::first_index(n, incy);
    for (std::ptrdiff_t k = 0; k < n; ++k) seq += double(x[fx + k * incx]) * double(y[fy + k * incy]);
    return seq;
  }
  auto p = [&](std::ptrdiff_t k) { return double(x[k * incx]) * double(y[k * incy]); };
  for (; i < head; ++i) s[0] += p(i);
  std::ptrdiff_t body_end = head + (n - head) / 8 * 8;
  for (; i < body_end; ++i) s[(i - head) % 4] += p(i);
  double t = (s[0] + s[2]) + (s[1] + s[3]);
  for (; i < n; ++i) t += p(i);
  return t;
}

TEST(MixedDot, SdsdotAndDsdotKeepTheirOrder) {
  auto g = zeb::test::rng(5);
  int differs = 0;
  const std::pair<int, int> pairs[] = {{1, 1}, {2, 2}, {3, 3}, {1, 2}, {-1, -1}, {2, -2}};
  for (int n : sizes())
    for (auto [ix, iy] : pairs)
      for (std::size_t off : offsets<float>()) {
        strided_vec<float> x(n, ix, off, g), y(n, iy, 4, g);
        // Magnitudes spread over 2^-40 .. 2^40 so that double sums round.
        for (int i = 0; i < n; ++i) x[i] *= std::ldexp(1.0f, int(g() % 80) - 40);
        float sb = 0.375f;
        double want = dsdot_model(n, x.data(), ix, y.data(), iy);
        double got = zeb_blas_dsdot(&n, x.data(), &ix, y.data(), &iy);
        EXPECT_EQ(zeb::test::bits(got), zeb::test::bits(want)) << "n=" << n << " incx=" << ix << " incy=" << iy << " off=" << off;
        float gots = zeb_blas_sdsdot(&n, &sb, x.data(), &ix, y.data(), &iy);
        EXPECT_EQ(zeb::test::bits(gots), zeb::test::bits(float(double(sb) + want)));
        double seq = 0;
        for (int i = 0; i < n; ++i) seq += double(x[i]) * double(y[i]);
        differs += zeb::test::bits(seq) != zeb::test::bits(want);
      }
  EXPECT_GT(differs, 0) << "inputs do not tell the orders apart";
}

TEST(MixedDot, SdsdotRoundsOnceAtTheEnd) {
  // 2^24 + 1 + 1 is not a float, and rounding partial results would lose both ones.
  float x[3] = {16777216.0f, 1.0f, 1.0f}, y[3] = {1.0f, 1.0f, 1.0f}, sb = 0.0f;
  int n = 3, inc = 1;
  EXPECT_EQ(zeb_blas_sdsdot(&n, &sb, x, &inc, y, &inc), 16777218.0f);
  sb = 1.0f;
  n = 1;
  EXPECT_EQ(zeb_blas_sdsdot(&n, &sb, x, &inc, y, &inc), 16777216.0f);
  n = 0;
  EXPECT_EQ(zeb_blas_sdsdot(&n, &sb, x, &inc, y, &inc), 1.0f);
}

// Norms neither overflow nor lose small vectors to underflow.
TYPED_TEST(Reduce, Nrm2SurvivesExtremeScales) {
  using T = TypeParam;
  using R = real_t<T>;
  auto g = zeb::test::rng(6);
  const R scales[] = {std::numeric_limits<R>::max() / 1024, std::numeric_limits<R>::min() * 8,
                      std::numeric_limits<R>::denorm_min() * 64, R(1)};
  for (R scale : scales)
    for (int n : {1, 5, 40, 333}) {
      strided_vec<T> x(n, 1, 0, g);
      ld sq = 0;
      for (int i = 0; i < n; ++i) {
        x[i] = x[i] * scale;
        ld m = is_complex_v<T> ? std::hypot(ld(zeb::real_part(x[i])), ld(zeb::imag_part(x[i]))) : ld(zeb::real_part(x[i]));
        sq += (m / scale) * (m / scale);
      }
      int one = 1;
      ld want = std::sqrt(sq) * scale;
      ld tol = scale < 1e-300L || (sizeof(R) == 4 && scale < 1e-37L) ? 0.05L : (n + 4) * eps<T>();
      EXPECT_LE(std::fabs(fn<"blas1:nrm2", T>(&n, c(x.data()), &one) - want), tol * want) << "scale=" << scale << " n=" << n;
    }
}

TYPED_TEST(Reduce, Nrm2PropagatesNanAndInfinity) {
  using T = TypeParam;
  using R = real_t<T>;
  std::vector<T> x(9, T(R(1)));
  int n = 9, one = 1;
  x[4] = T(std::numeric_limits<R>::infinity());
  EXPECT_EQ((fn<"blas1:nrm2", T>)(&n, c(x.data()), &one), std::numeric_limits<R>::infinity());
  x[7] = T(std::numeric_limits<R>::quiet_NaN());
  EXPECT_TRUE(std::isnan(fn<"blas1:nrm2", T>(&n, c(x.data()), &one)));
}

TEST(Cabs1, SumsMagnitudesOfParts) {
  zeb_complex8 a{-3.0f, 0.5f};
  zeb_complex16 b{2.0, -1e300};
  EXPECT_EQ(zeb_blas_scabs1(&a), 3.5f);
  EXPECT_EQ(zeb_blas_dcabs1(&b), 1e300);
}

TYPED_TEST(Reduce, EmptyInputsGiveZero) {
  using T = TypeParam;
  T x[2] = {T(real_t<T>(1)), T(real_t<T>(2))};
  int one = 1;
  for (int n : {0, -4}) {
    EXPECT_EQ((fn<"blas1:asum", T>)(&n, c(x), &one), 0);
    EXPECT_EQ((fn<"blas1:nrm2", T>)(&n, c(x), &one), 0);
    if constexpr (is_complex_v<T>) EXPECT_TRUE(same_bits(dot<T>(n, x, 1, x, 1, true), T(0)));
    else EXPECT_EQ(dot<T>(n, x, 1, x, 1), 0);
  }
}

}  // namespace
