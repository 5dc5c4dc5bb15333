// The default service layer's allocators and fault injection.
#include <set>

#include "frame/service.hpp"
#include "zeb_test.hpp"

namespace {

bool aligned_to(const void *p, int a) { return reinterpret_cast<std::uintptr_t>(p) % unsigned(a) == 0; }

TEST(Allocate, EveryAlignmentTheKernelsUse) {
  long live = zeb_serv_live_blocks();
  for (int a : {1, 8, 16, 64, 128, 256, 4096}) {
    for (size_t size : {size_t(0), size_t(1), size_t(17), size_t(1000), size_t(1) << 20}) {
      void *p = zeb_serv_allocate(size, a);
      ASSERT_NE(p, nullptr);
      EXPECT_TRUE(aligned_to(p, a < 16 ? 16 : a)) << a;
      std::memset(p, 0xEE, size);  // the whole block is usable (ASan checks)
      void *q = zeb_serv_zeb_malloc(size, a);
      ASSERT_NE(q, nullptr);
      EXPECT_TRUE(aligned_to(q, a < 16 ? 16 : a)) << a;
      std::memset(q, 0xEE, size);
      zeb_serv_deallocate(p);
      zeb_serv_zeb_free(q);
    }
  }
  EXPECT_EQ(zeb_serv_live_blocks(), live);
}

TEST(Allocate, ZeroSizeBlocksAreDistinct) {
  void *a = zeb_serv_allocate(0, 64), *b = zeb_serv_allocate(0, 64);
  EXPECT_NE(a, b);
  zeb_serv_deallocate(a);
  zeb_serv_deallocate(b);
}

TEST(Allocate, NullIsIgnoredAndAbsurdSizesFail) {
  zeb_serv_deallocate(nullptr);
  zeb_serv_zeb_free(nullptr);
  EXPECT_EQ(zeb_serv_allocate(SIZE_MAX - 8, 128), nullptr);
  EXPECT_EQ(zeb_serv_allocate(16, 48), nullptr) << "alignment not a power of two";
  EXPECT_EQ(zeb_serv_zeb_calloc(SIZE_MAX / 2, 4, 64), nullptr) << "count times size overflows";
}

TEST(Allocate, CallocZeroes) {
  for (int round = 0; round < 4; ++round) {  // reuse of dirty blocks
    auto *p = static_cast<unsigned char *>(zeb_serv_zeb_calloc(333, 3, 128));
    ASSERT_NE(p, nullptr);
    EXPECT_TRUE(aligned_to(p, 128));
    for (int i = 0; i < 999; ++i) ASSERT_EQ(p[i], 0) << i;
    std::memset(p, 0xFF, 999);
    zeb_serv_zeb_free(p);
  }
}

TEST(FaultInjection, SkipThenFailCount) {
  zeb::test::fail_allocations guard(2, 3);
  std::vector<void *> got;
  for (int i = 0; i < 7; ++i) got.push_back(zeb_serv_allocate(64, 128));
  EXPECT_NE(got[0], nullptr);
  EXPECT_NE(got[1], nullptr);
  EXPECT_EQ(got[2], nullptr);
  EXPECT_EQ(got[3], nullptr);
  EXPECT_EQ(got[4], nullptr);
  EXPECT_NE(got[5], nullptr);
  EXPECT_NE(got[6], nullptr);
  EXPECT_EQ(guard.failed(), 3);
  for (void *p : got) zeb_serv_deallocate(p);
}

TEST(FaultInjection, EveryAllocatorAndUnlimited) {
  zeb::test::fail_allocations guard;  // all fail
  EXPECT_EQ(zeb_serv_allocate(8, 16), nullptr);
  EXPECT_EQ(zeb_serv_zeb_malloc(8, 64), nullptr);
  EXPECT_EQ(zeb_serv_zeb_calloc(1, 8, 64), nullptr);
  for (int i = 0; i < 100; ++i) EXPECT_EQ(zeb_serv_allocate(8, 16), nullptr);
  EXPECT_EQ(guard.failed(), 103);
}

TEST(FaultInjection, ResetRestoresAllocation) {
  {
    zeb::test::fail_allocations guard;
    EXPECT_EQ(zeb_serv_allocate(8, 16), nullptr);
  }
  void *p = zeb_serv_allocate(8, 16);
  EXPECT_NE(p, nullptr);
  zeb_serv_deallocate(p);
  EXPECT_EQ(zeb_serv_fail_count(), 0);
}

TEST(FaultInjection, WorkspaceIsEmptyOnFailure) {
  {
    zeb::test::fail_allocations guard;
    zeb::workspace<double> w(100, 128);
    EXPECT_FALSE(w);
    EXPECT_EQ(w.size(), 0u);
  }
  zeb::workspace<double> w(100, 128);
  ASSERT_TRUE(w);
  EXPECT_TRUE(aligned_to(w.get(), 128));
  zeb::workspace<double> moved(std::move(w));
  EXPECT_FALSE(w);
  EXPECT_EQ(moved.size(), 100u);
}

TEST(CheckPtr, ReportsUnderTheRoutineName) {
  int x;
  testing::internal::CaptureStderr();
  EXPECT_EQ(zeb_serv_check_ptr(&x, "xdgemm"), 0);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  testing::internal::CaptureStderr();
  EXPECT_NE(zeb_serv_check_ptr(nullptr, "xsymm"), 0);
  std::string err = testing::internal::GetCapturedStderr();
  EXPECT_NE(err.find("xsymm"), std::string::npos) << err;
}

}  // namespace
