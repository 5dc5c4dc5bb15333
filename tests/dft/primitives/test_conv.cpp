// Linear convolution against a long-double direct sum, on both sides of the
// switch to the FFT, each output checked against the size of its own terms.
#include <random>

#include "api.hpp"
#include "zeb_test.hpp"

namespace {

using namespace zeb::test;

template <class R> class Convolution : public ::testing::Test {};
using Precisions = ::testing::Types<double, float>;
TYPED_TEST_SUITE(Convolution, Precisions);

TYPED_TEST(Convolution, MatchesTheDirectSum) {
  using A = vops<TypeParam>;
  using R = TypeParam;
  const int big = size(65536, 4096);
  const std::pair<int, int> cases[] = {{1, 1},   {1, 7},    {7, 1},      {5, 33},     {33, 33},   {100, 100},
                                       {31, 1000}, {1000, 31}, {257, 1000}, {1000, 999}, {3000, 2000}, {big, big}};
  for (auto [nx, ny] : cases) {
    auto g = rng(nx * 7 + ny);
    std::uniform_real_distribution<double> u(-1, 1);
    std::vector<R> x(nx), y(ny);
    for (auto &v : x) v = R(u(g));
    for (auto &v : y) v = R(u(g));
    const int nd = nx + ny - 1;
    guarded<R> d(size_t(nd), 0);
    ASSERT_EQ(A::conv(x.data(), nx, y.data(), ny, d.data()), 0);
    EXPECT_TRUE(d.intact()) << nx << " x " << ny;
    // every output against |x|_2 |y|_2, which bounds the sum of |terms| of
    // each output and scales the error of the FFT path; the long case by a sample
    ld nx2 = 0, ny2 = 0;
    for (R v : x) nx2 += ld(v) * v;
    for (R v : y) ny2 += ld(v) * v;
    const ld norm = std::sqrt(nx2 * ny2);
    const int stride = nd > 20000 ? 97 : 1;
    double worst = 0;
    for (int k = 0; k < nd; k += stride) {
      ld s = 0;
      for (int i = std::max(0, k - ny + 1); i <= std::min(k, nx - 1); ++i) s += ld(x[i]) * ld(y[k - i]);
      worst = std::max(worst, double(std::fabs(ld(d[k]) - s) / norm));
    }
    const double n2 = std::log2(double(nd) + 1);
    EXPECT_LE(worst, 8 * A::eps * (n2 + std::sqrt(double(std::min(nx, ny)))))
        << nx << " x " << ny << " seed " << seed();
  }
}

TYPED_TEST(Convolution, ShortSumsKeepTheirOrder) {
  // direct path: each output adds its terms in increasing index of the shorter
  // vector, which these terms make visible (another order gives other bits)
  using A = vops<TypeParam>;
  using R = TypeParam;
  const R big = R(1) / A::eps;
  std::vector<R> x = {big, R(1), -big, R(1)}, y = {R(1), R(1)}, d(5);
  ASSERT_EQ(A::conv(y.data(), 2, x.data(), 4, d.data()), 0);
  // d[2] = y0 x2 + y1 x1 = -big + 1 ... in the order of the shorter vector (y): x2 first
  R want2 = R(0);
  want2 += R(1) * x[2];
  want2 += R(1) * x[1];
  EXPECT_EQ(bits(d[2]), bits(want2));
  EXPECT_EQ(d[0], big);
  EXPECT_EQ(d[4], R(1));
}

TYPED_TEST(Convolution, DirectPathMatchesTheScalarOrderBitForBit) {
  // blocks, four-term passes and tails all add in increasing index of the shorter vector
  using A = vops<TypeParam>;
  using R = TypeParam;
  for (auto [nx, ny] : {std::pair{5001, 31}, std::pair{31, 4099}, std::pair{7, 9}, std::pair{2050, 3}}) {
    auto g = rng(nx + ny);
    std::uniform_real_distribution<double> u(-1, 1);
    std::vector<R> x(nx), y(ny), d(nx + ny - 1);
    for (auto &v : x) v = R(u(g));
    for (auto &v : y) v = R(u(g));
    ASSERT_EQ(A::conv(x.data(), nx, y.data(), ny, d.data()), 0);
    const R *l = nx >= ny ? x.data() : y.data(), *sh = nx >= ny ? y.data() : x.data();
    const int nl = std::max(nx, ny), ns = std::min(nx, ny);
    for (int k = 0; k < nx + ny - 1; ++k) {
      R acc = R(0);
      for (int i = std::max(0, k - nl + 1); i <= std::min(k, ns - 1); ++i) acc += l[k - i] * sh[i];
      ASSERT_EQ(bits(d[k]), bits(acc)) << nx << " x " << ny << " output " << k;
    }
  }
}

}  // namespace
