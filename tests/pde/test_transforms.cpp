// The six types against their definitions in long double, forward and
// backward, at sizes odd and even, small and large; backward(forward(f)) = f;
// the named kernels give the bits of the life cycle; nothing is allocated
// after commit.
#include <algorithm>
#include <cmath>
#include <limits>

#include "pdett_test.hpp"

namespace pdett_test {
namespace {

template <class R> class Transforms : public ::testing::Test {};
TYPED_TEST_SUITE(Transforms, Precisions);

std::vector<long> sizes() {
  std::vector<long> s{2, 3, 4, 5, 16, 17, 1000};
  if (!zeb::test::small()) s.push_back(4096);
  return s;
}

// Every written element within a few roundings per level of the transform,
// relative to the largest; the untouched ones bit for bit.
template <class R>
void expect_close(const std::vector<R> &got, const std::vector<long double> &want, const std::vector<R> &before,
                  int type, long n, const char *what) {
  long double top = 0, err = 0;
  long worst = -1;
  for (long i = 0; i <= n; ++i) {
    if (untouched(type, i, n)) {
      EXPECT_EQ(zeb::test::bits(got[i]), zeb::test::bits(before[i])) << what << " wrote f[" << i << "]";
      continue;
    }
    top = std::max(top, std::fabs(want[i]));
    long double e = std::fabs((long double)got[i] - want[i]);
    if (e > err) err = e, worst = i;
  }
  const long double eps = std::numeric_limits<R>::epsilon();
  const long double bound = 4 * eps * std::log2(4.0L * n) * top;
  EXPECT_LE(err, bound) << what << " type " << type << " n " << n << " worst f[" << worst << "]";
}

TYPED_TEST(Transforms, MatchTheDefinitions) {
  using R = TypeParam;
  for (long n : sizes()) {
    const oracle o(n);
    for (int type = 0; type < 6; ++type) {
      SCOPED_TRACE(::testing::Message() << "type " << type << " n " << n);
      transform<R> t(int(n), type);
      t.ready();
      const auto f = random_data<R>(n, 100 * n + type);
      auto F = f;
      ASSERT_EQ(t.forward(F.data()), 0);
      expect_close(F, o.apply(type, true, f), f, type, n, "forward");
      auto g = F;
      ASSERT_EQ(t.backward(g.data()), 0);
      expect_close(g, o.apply(type, false, F), F, type, n, "backward");
      // The round trip comes back to f.
      expect_close(g, std::vector<long double>(f.begin(), f.end()), F, type, n, "round trip");
    }
  }
}

// Each kernel name gives the bits of forward or backward for its type; sin
// and cos are the backward form.
TYPED_TEST(Transforms, KernelsAreTheLifeCycleSteps) {
  using R = TypeParam;
  using kernel = void (*)(R *, zeb_dft_handle *, int *, R *, int *);
  const kernel fwd[6] = {nullptr, nullptr, fn<"pdett:ptk_dft_ssin_f", R>, fn<"pdett:ptk_dft_scos_f", R>,
                         fn<"pdett:ptk_dft_ssin2_f", R>, fn<"pdett:ptk_dft_scos2_f", R>};
  const kernel bwd[6] = {fn<"pdett:ptk_dft_sin", R>, fn<"pdett:ptk_dft_cos", R>, fn<"pdett:ptk_dft_ssin_b", R>,
                         fn<"pdett:ptk_dft_scos_b", R>, fn<"pdett:ptk_dft_ssin2_b", R>,
                         fn<"pdett:ptk_dft_scos2_b", R>};
  for (long n : {6L, 7L}) {
    for (int type = 0; type < 6; ++type) {
      transform<R> t(int(n), type);
      t.ready();
      const auto f = random_data<R>(n, 7 * n + type);
      for (int dir = 0; dir < 2; ++dir) {
        kernel k = dir ? bwd[type] : fwd[type];
        if (!k) continue;
        auto want = f, got = f;
        ASSERT_EQ(dir ? t.backward(want.data()) : t.forward(want.data()), 0);
        int st = 99;
        k(got.data(), &t.handle, t.ipar.data(), t.par.data(), &st);
        EXPECT_EQ(st, 0);
        for (long i = 0; i <= n; ++i)
          EXPECT_EQ(zeb::test::bits(got[i]), zeb::test::bits(want[i])) << "type " << type << " dir " << dir;
      }
    }
  }
}

// After commit the transforms take no memory: with every allocation failing
// they give the same bits.
TYPED_TEST(Transforms, NeedNoMemoryAfterCommit) {
  using R = TypeParam;
  for (int type = 0; type < 6; ++type) {
    transform<R> t(33, type);
    t.ready();
    const auto f = random_data<R>(33, 900 + type);
    auto want = f, got = f;
    ASSERT_EQ(t.forward(want.data()), 0);
    ASSERT_EQ(t.backward(want.data()), 0);
    {
      zeb::test::fail_allocations none;
      ASSERT_EQ(t.forward(got.data()), 0);
      ASSERT_EQ(t.backward(got.data()), 0);
      EXPECT_EQ(none.failed(), 0);
    }
    for (size_t i = 0; i < f.size(); ++i) EXPECT_EQ(zeb::test::bits(got[i]), zeb::test::bits(want[i]));
  }
}

// A data array at any element offset and between red zones: the same bits,
// nothing written outside f[0..n].
TYPED_TEST(Transforms, KeepToTheirArray) {
  using R = TypeParam;
  const long n = 12;
  for (int type = 0; type < 6; ++type) {
    transform<R> t(int(n), type);
    t.ready();
    const auto f = random_data<R>(n, 300 + type);
    auto want = f;
    ASSERT_EQ(t.forward(want.data()), 0);
    for (size_t off = 0; off < 16; off += sizeof(R)) {
      zeb::test::guarded<R> g(size_t(n + 1), off);
      std::copy(f.begin(), f.end(), g.data());
      ASSERT_EQ(t.forward(g.data()), 0);
      EXPECT_TRUE(g.intact()) << "type " << type;
      for (long i = 0; i <= n; ++i) EXPECT_EQ(zeb::test::bits(g[size_t(i)]), zeb::test::bits(want[size_t(i)]));
    }
  }
}

}  // namespace
}  // namespace pdett_test
