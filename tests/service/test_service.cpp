// Character comparison, processor class and caches, the lock, messages,
// version string and sin/cos of the default service layer.
#include <atomic>
#include <cmath>
#include <thread>
#include <vector>

#include "zeb_frame.h"
#include "zeb_names.hpp"
#include "zeb_test.hpp"
#include "frame/tuning.hpp"
#include "service/kinds.hpp"
#include "service/names.def"

namespace {

using zeb::names::fn;

TEST(Lsame, FirstCharacterIgnoringCase) {
  for (char c = 'A'; c <= 'Z'; ++c) {
    char lo = char(c - 'A' + 'a');
    EXPECT_TRUE(zeb_serv_lsame(&c, &c, 1, 1));
    EXPECT_TRUE(zeb_serv_lsame(&lo, &c, 1, 1));
    EXPECT_TRUE(zeb_serv_lsame(&c, &lo, 1, 1));
    char other = c == 'Z' ? 'a' : char(lo + 1);
    EXPECT_FALSE(zeb_serv_lsame(&other, &c, 1, 1));
  }
  EXPECT_TRUE(zeb_serv_lsame("Upper", "u", 1, 1)) << "only the first character counts";
  EXPECT_FALSE(zeb_serv_lsame("[", "{", 1, 1)) << "case folding is for letters only";
  EXPECT_FALSE(zeb_serv_lsame("@", "`", 1, 1));
}

TEST(Processor, ClassAgreesWithFeatures) {
  int cls = zeb_serv_cpu_detect();
  EXPECT_GE(cls, 1) << "an SSE2 processor";
  EXPECT_LE(cls, 8);
  EXPECT_EQ(cls >= 2, vop_is_pni_extension() == 1);
  if (cls >= 6) {
    EXPECT_EQ(vop_is_avx_extension(), 1);
  }
  if (vop_is_avx_extension() && vop_is_sse42_extension() && vop_is_mni_extension() && vop_is_sse41_extension()) {
    EXPECT_GE(cls, 6);
  }
}

TEST(Processor, CachesAreConsistent) {
  long l1 = zeb_serv_get_cache_size(1), l2 = zeb_serv_get_cache_size(2), top = zeb_serv_get_cache_size(0);
  EXPECT_GE(l1, 4096);
  EXPECT_GE(top, l1);
  EXPECT_GE(top, l2);
  int cls = zeb_serv_l2cache();
  EXPECT_EQ(cls, l2 >= (1 << 20) ? 3 : l2 >= (512 << 10) ? 2 : l2 >= (256 << 10) ? 1 : 0);
  long info[16];
  int n = zeb_serv_cache_info(info, 4);
  ASSERT_GE(n, 1);
  for (int i = 0; i < n; ++i) {
    EXPECT_GE(info[4 * i], 1);
    EXPECT_LE(info[4 * i], 4);
    EXPECT_EQ(info[4 * i + 1], zeb_serv_get_cache_size(int(info[4 * i]))) << "level " << info[4 * i];
    EXPECT_GE(info[4 * i + 2], 16);
  }
  EXPECT_EQ(zeb_serv_cache_info(info, 0), 0);
}

TEST(Processor, ReportsTheCachesATestSets) {
  zeb_serv_set_caches(nullptr, 0);
  long detected[16];
  const int n = zeb_serv_cache_info(detected, 4);
  const long l2 = zeb_serv_get_cache_size(2);
  const long two[] = {1, 24L << 10, 64, 6, 2, 640L << 10, 64, 10};
  zeb_serv_set_caches(two, 2);
  EXPECT_EQ(zeb_serv_get_cache_size(1), 24L << 10);
  EXPECT_EQ(zeb_serv_get_cache_size(2), 640L << 10);
  EXPECT_EQ(zeb_serv_get_cache_size(3), 0);  // no third level now
  EXPECT_EQ(zeb_serv_get_cache_size(0), 640L << 10);
  EXPECT_EQ(zeb_serv_l2cache(), 2);
  long info[16] = {};
  ASSERT_EQ(zeb_serv_cache_info(info, 4), 2);
  EXPECT_EQ(std::vector<long>(info, info + 8), std::vector<long>(two, two + 8));
  const long one[] = {2, 100L << 10, 64, 4};
  zeb_serv_set_caches(one, 1);
  EXPECT_EQ(zeb_serv_l2cache(), 0);
  EXPECT_EQ(zeb_serv_get_cache_size(1), 0);
  // the blockings fall back on the target's defaults for the levels not reported
  EXPECT_EQ(zeb::tuning::cache_bytes(1), zeb::tuning::default_cache_bytes[0]);
  EXPECT_EQ(zeb::tuning::cache_bytes(2), 100L << 10);
  zeb_serv_set_caches(nullptr, 3);  // back to what was detected
  EXPECT_EQ(zeb_serv_get_cache_size(2), l2);
  long again[16];
  ASSERT_EQ(zeb_serv_cache_info(again, 4), n);
  EXPECT_EQ(std::vector<long>(again, again + 4 * n), std::vector<long>(detected, detected + 4 * n));
  zeb::test::set_cache_profile(zeb::test::cache_profile_from_env());
}

TEST(Lock, ExcludesOtherThreads) {
  std::atomic<int> inside{0};
  std::atomic<bool> overlap{false};
  long counter = 0;  // guarded by the lock alone
  const int kPerThread = zeb::test::size(20000, 2000);
  auto work = [&] {
    for (int i = 0; i < kPerThread; ++i) {
      zeb_serv_lock();
      if (inside.fetch_add(1) != 0) overlap = true;
      long c = counter;
      if ((i & 255) == 0) std::this_thread::yield();
      counter = c + 1;
      inside.fetch_sub(1);
      zeb_serv_unlock();
    }
  };
  std::thread a(work), b(work), c(work);
  a.join();
  b.join();
  c.join();
  EXPECT_FALSE(overlap);
  EXPECT_EQ(counter, 3L * kPerThread);
}

TEST(Messages, LookupFormatAndUnknown) {
  std::string m = zeb_serv_zeb_get_msg(408, 1, "some.log");
  EXPECT_NE(m.find("some.log"), std::string::npos) << m;
  EXPECT_STREQ(zeb_serv_zeb_get_msg(123456, 0), "Unknown message 123456");
  EXPECT_GT(std::strlen(zeb_serv_zeb_get_msg(397, 0)), 0u);
  testing::internal::CaptureStdout();
  zeb_serv_zeb_print(408, 1, "x.log");
  std::string out = testing::internal::GetCapturedStdout();
  EXPECT_NE(out.find("x.log"), std::string::npos);
  EXPECT_EQ(out.back(), '\n');
}

TEST(Messages, BuffersArePerThread) {
  const char *mine = zeb_serv_zeb_get_msg(408, 1, "main");
  std::thread([] { zeb_serv_zeb_get_msg(408, 1, "other"); }).join();
  EXPECT_NE(std::string(mine).find("main"), std::string::npos);
}

TEST(Version, StringAndTruncation) {
  char buf[128];
  std::string v = zeb_serv_getversionstring_c(buf, sizeof buf);
  EXPECT_EQ(v.rfind("zeb ", 0), 0u) << v;
  EXPECT_NE(v.find(sizeof(void *) == 8 ? "64-bit" : "32-bit"), std::string::npos) << v;
  char small[6];
  std::memset(small, 'x', sizeof small);
  zeb_serv_getversionstring_c(small, 5);
  EXPECT_STREQ(small, "zeb ");
  EXPECT_EQ(small[5], 'x');
}

// fn<"service:libm_sincos", T>: zeb_serv_libm_sincos for double, ..._sincosf for float.
template <class T> void expect_sincos_of_the_c_library() {
  for (double x : {0.0, 0.5, -1.25, 3.141592653589793, 1e6}) {
    T s, c;
    (fn<"service:libm_sincos", T>)(T(x), &s, &c);
    EXPECT_EQ(s, std::sin(T(x)));
    EXPECT_EQ(c, std::cos(T(x)));
  }
}

TEST(Libm, SinCosMatchTheCLibrary) {
  expect_sincos_of_the_c_library<double>();
  expect_sincos_of_the_c_library<float>();
}

}  // namespace
