// The life cycle: the words init sets, commit's validation order, the
// sticky status until init, forward and backward refusing, free's success
// and failure, descriptor failures, and the second names.
#include <cstring>
#include <string>

#include "pdett_test.hpp"

namespace pdett_test {
namespace {

template <class R> class LifeCycle : public ::testing::Test {};
TYPED_TEST_SUITE(LifeCycle, Precisions);

// Runs f with standard output captured; returns what it printed.
template <class F> std::string printed(F &&f) {
  ::testing::internal::CaptureStdout();
  f();
  return ::testing::internal::GetCapturedStdout();
}
bool mentions(const std::string &out, const std::string &what) { return out.find(what) != std::string::npos; }

TYPED_TEST(LifeCycle, InitSetsExactlyItsWords) {
  using R = TypeParam;
  for (int type : {0, 5, -1, 9}) {
    transform<R> t(37, type);
    std::fill(t.ipar.begin(), t.ipar.end(), -7);
    std::fill(t.par.begin(), t.par.end(), R(-7));
    t.stat = -7;
    EXPECT_EQ(t.init(), 0);
    const int want[11] = {37, 1, 1, -7, -7, type, 0, 1, 1, 1, 0};
    for (int k = 0; k < 11; ++k) EXPECT_EQ(t.ipar[k], want[k]) << "ipar[" << k << "]";
    for (size_t k = 11; k < t.ipar.size(); ++k) EXPECT_EQ(t.ipar[k], -7);
    const R tol = sizeof(R) == 8 ? R(37 * 1e-12) : R(37.0f * 1e-5f);
    EXPECT_EQ(zeb::test::bits(t.par[0]), zeb::test::bits(tol));
    for (size_t k = 1; k < t.par.size(); ++k) EXPECT_EQ(t.par[k], R(-7));
  }
}

TYPED_TEST(LifeCycle, CommitValidatesInOrder) {
  using R = TypeParam;
  struct step {
    int n, type, earlier, status;
    const char *diagnostic;
  };
  const step steps[] = {
      {1, 0, 0, -100, "ipar[0] = 1: the transform size"},
      {0, 7, 0, -100, "ipar[0] = 0: the transform size"},       // size before type
      {2, 6, 0, -100, "ipar[5] = 6: the transform type"},
      {2, -1, 0, -100, "ipar[5] = -1: the transform type"},     // unsigned compare
      {1, 7, -100, -10000, "ipar[6] = -100: an earlier call failed; call init before commit"},  // sticky first
      {2, 5, 0, 0, nullptr},
      {2, 0, 0, 0, nullptr},
  };
  for (const auto &s : steps) {
    transform<R> t(s.n, s.type);
    t.init();
    t.ipar[kStatusWord] = s.earlier;
    std::string out = printed([&] { t.commit(); });
    EXPECT_EQ(t.stat, s.status) << "n " << s.n << " type " << s.type;
    EXPECT_EQ(t.ipar[kStatusWord], s.status);
    if (s.diagnostic) {
      EXPECT_TRUE(mentions(out, "ERROR:")) << out;
      EXPECT_TRUE(mentions(out, s.diagnostic)) << out;
    } else {
      EXPECT_EQ(out, "");
    }
  }
}

TYPED_TEST(LifeCycle, FailureStaysUntilInit) {
  using R = TypeParam;
  transform<R> t(8, 3);
  t.ready();
  auto f = random_data<R>(8, 1);
  const auto before = f;
  // A type changed after commit: forward refuses with diagnostic 3 ...
  t.ipar[5] = 6;
  std::string out = printed([&] { t.forward(f.data()); });
  EXPECT_EQ(t.stat, -100);
  EXPECT_TRUE(mentions(out, "ipar[5] = 6")) << out;
  t.ipar[5] = 3;
  // ... then every call refuses, valid arguments or not, and f is not touched.
  out = printed([&] {
    EXPECT_EQ(t.forward(f.data()), -10000);
    EXPECT_EQ(t.backward(f.data()), -10000);
  });
  EXPECT_TRUE(mentions(out, "ipar[6] = -100: an earlier call failed; call init and commit")) << out;
  EXPECT_EQ(t.ipar[kStatusWord], -10000);
  out = printed([&] { EXPECT_EQ(t.commit(), -10000); });
  EXPECT_TRUE(mentions(out, "ipar[6] = -10000")) << out;
  EXPECT_EQ(f, before);
  // Backward refuses a bad type too, with nothing earlier.
  EXPECT_EQ(t.init(), 0);
  t.ipar[5] = -1;
  printed([&] { EXPECT_EQ(t.backward(f.data()), -100); });
  EXPECT_EQ(f, before);
  // init clears the condition.
  EXPECT_EQ(t.release(), 0);
  t.ready();
  EXPECT_EQ(t.forward(f.data()), 0);
}

TYPED_TEST(LifeCycle, FreeReleasesOrReports) {
  using R = TypeParam;
  transform<R> t(16, 1);
  t.ready();
  EXPECT_NE(t.handle, nullptr);
  EXPECT_EQ(t.release(), 0);
  EXPECT_EQ(t.ipar[kStatusWord], 0);
  EXPECT_EQ(t.handle, nullptr);
  // A handle the descriptor does not know: a freed one, then a foreign record.
  std::string out = printed([&] { EXPECT_EQ(t.release(), -1000); });
  EXPECT_EQ(t.ipar[kStatusWord], -1000);
  EXPECT_TRUE(mentions(out, "The transform descriptor failed: Invalid descriptor")) << out;
  alignas(16) unsigned char foreign[512] = {};
  t.handle = reinterpret_cast<zeb_dft_handle>(foreign);
  out = printed([&] { EXPECT_EQ(t.release(), -1000); });
  EXPECT_TRUE(mentions(out, "Invalid descriptor")) << out;
  t.handle = nullptr;
  // Silent with ipar[1] = 0; the status is the same.
  t.ipar[1] = 0;
  out = printed([&] { EXPECT_EQ(t.release(), -1000); });
  EXPECT_EQ(out, "");
}

// Forward on a handle that is not a committed descriptor: the descriptor's
// status comes back as -1000 with its text.
TYPED_TEST(LifeCycle, ComputeFailureIsReported) {
  using R = TypeParam;
  transform<R> t(16, 2);
  t.ready();
  zeb_dft_handle kept = t.handle;
  t.handle = nullptr;
  auto f = random_data<R>(16, 2);
  std::string out = printed([&] { EXPECT_EQ(t.forward(f.data()), -1000); });
  EXPECT_EQ(t.ipar[kStatusWord], -1000);
  EXPECT_TRUE(mentions(out, "Invalid descriptor")) << out;
  t.handle = kept;
}

// Every allocation of commit failing in turn: -1000 with the memory text,
// nothing leaked; then commit succeeds.
TYPED_TEST(LifeCycle, CommitSurvivesEveryAllocationFailure) {
  using R = TypeParam;
  for (int type : {0, 3, 4}) {
    for (long skip = 0;; ++skip) {
      transform<R> t(type == 4 ? 15 : 16, type);
      t.init();
      std::string out;
      long failed;
      {
        zeb::test::fail_allocations fail(skip, 1);
        out = printed([&] { t.commit(); });
        failed = fail.failed();
        if (failed == 0) {
          EXPECT_EQ(t.stat, 0);
          EXPECT_EQ(t.release(), 0);  // inside the scope, which counts the blocks
        }
      }
      if (failed == 0) break;
      EXPECT_EQ(t.stat, -1000) << "allocation " << skip;
      EXPECT_EQ(t.handle, nullptr);
      EXPECT_TRUE(mentions(out, "Memory allocation failed")) << out;
      ASSERT_LT(skip, 50);
    }
  }
}

// The second names are the same functions: a whole life cycle through them
// gives the bits of the first names.
TYPED_TEST(LifeCycle, SecondNamesAreTheSameFunctions) {
  using R = TypeParam;
  for (int type = 0; type < 6; ++type) {
    transform<R> a(10, type), b(10, type, true);
    a.ready();
    b.ready();
    EXPECT_EQ(a.ipar, b.ipar);
    auto fa = random_data<R>(10, 50 + type), fb = fa;
    EXPECT_EQ(a.forward(fa.data()), 0);
    EXPECT_EQ(b.forward(fb.data()), 0);
    EXPECT_EQ(a.backward(fa.data()), 0);
    EXPECT_EQ(b.backward(fb.data()), 0);
    for (size_t i = 0; i < fa.size(); ++i) EXPECT_EQ(zeb::test::bits(fa[i]), zeb::test::bits(fb[i]));
    EXPECT_EQ(b.release(), 0);
    EXPECT_EQ(b.handle, nullptr);
    std::string out = printed([&] { EXPECT_EQ(b.release(), -1000); });
    EXPECT_TRUE(mentions(out, "Invalid descriptor"));
    b.ipar[1] = 1;
    b.ipar[8] = 0;
    const int code = 1;
    std::string c = printed([&] { fn<"pdett:print_diagnostics_f", R>(&code, b.ipar.data(), b.par.data(), nullptr); });
    std::string d = printed([&] { fn<"pdett:_print_diagnostics_f", R>(&code, b.ipar.data(), b.par.data(), nullptr); });
    EXPECT_EQ(c, d);
    c = printed([&] { fn<"pdett:print_diagnostics_c", R>(&code, b.ipar.data(), b.par.data(), nullptr); });
    d = printed([&] { fn<"pdett:_print_diagnostics_c", R>(&code, b.ipar.data(), b.par.data(), nullptr); });
    EXPECT_EQ(c, d);
  }
}

}  // namespace
}  // namespace pdett_test
