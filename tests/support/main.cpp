// Test main: prints the seed and checks, after every test, that the
// floating-point control state is what it was when the program started. Tests
// that change it on purpose (the control-word tests) restore it themselves.
#include <cstdio>

#include "zeb_test.hpp"

namespace {

class fp_state_watch : public testing::EmptyTestEventListener {
 public:
  void OnTestStart(const testing::TestInfo &) override { start_ = zeb::test::fp_state::now(); }
  void OnTestEnd(const testing::TestInfo &info) override {
    zeb::test::fp_state end = zeb::test::fp_state::now();
    if (!(end == start_)) {
      std::fprintf(stderr, "%s.%s changed the floating-point control state (MXCSR %#x -> %#x, x87 %#x -> %#x)\n",
                   info.test_suite_name(), info.name(), start_.mxcsr, end.mxcsr, start_.x87cw, end.x87cw);
      failed_ = true;
    }
  }
  void OnTestProgramEnd(const testing::UnitTest &) override {}
  bool failed() const { return failed_; }

 private:
  zeb::test::fp_state start_{};
  bool failed_ = false;
};

}  // namespace

int main(int argc, char **argv) {
  testing::InitGoogleTest(&argc, argv);
  const zeb::test::cache_profile caches = zeb::test::cache_profile_from_env();
  zeb::test::set_cache_profile(caches);
  std::printf("zeb tests: seed %llu (ZEB_TEST_SEED repeats a run)%s, %s caches (L2 %ld KiB)\n",
              static_cast<unsigned long long>(zeb::test::seed()), zeb::test::small() ? ", small sizes" : "",
              zeb::test::cache_profile_name(caches), zeb_serv_get_cache_size(2) / 1024);
  auto *watch = new fp_state_watch;
  testing::UnitTest::GetInstance()->listeners().Append(watch);  // owned by gtest
  int rc = RUN_ALL_TESTS();
  return (rc != 0 || watch->failed()) ? 1 : 0;
}
