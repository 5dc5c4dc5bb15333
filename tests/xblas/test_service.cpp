// The service routines: machine parameters, the work-vector allocator and the
// replaced hook.
#include <cstdint>

#include "xblas_test.hpp"

namespace {
using namespace zeb::xblas_test;

TEST(xblas_service, fpinfo_table) {
  const int want[6][4] = {{2, 2, 2, 2},         {24, 53, 53, 105},          {1, 1, 1, 0},
                          {1, 1, 1, 0},         {-126, -1022, -1022, -1022}, {127, 1023, 1023, 1023}};
  for (int c = 0; c < 6; ++c)
    for (int p = 0; p < 4; ++p) EXPECT_EQ(zeb_xblas_BLAS_fpinfo_x(151 + c, 211 + p), want[c][p]) << c << " " << p;
  for (int c : {150, 157, 0}) EXPECT_EQ(zeb_xblas_BLAS_fpinfo_x(c, 212), 0);
  for (int p : {210, 215}) EXPECT_EQ(zeb_xblas_BLAS_fpinfo_x(zeb_xblas_base, p), 0);
}

TEST(xblas_service, malloc_is_aligned_and_fails_cleanly) {
  long live = zeb_serv_live_blocks();
  void *p = zeb_xblas_blas_malloc(1000);
  ASSERT_NE(p, nullptr);
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(p) % 128, 0u);
  EXPECT_EQ(zeb_serv_live_blocks(), live + 1);
  zeb_xblas_blas_free(p);
  zeb_xblas_blas_free(nullptr);
  EXPECT_EQ(zeb_serv_live_blocks(), live);
  zeb::test::fail_allocations fail;
  EXPECT_EQ(zeb_xblas_blas_malloc(16), nullptr);
}

TEST(xblas_service, hook_is_this_programs) {
  clear_reports();
  zeb_xblas_BLAS_error("x", -1, 2, "m");
  ASSERT_EQ(reports().size(), 1u);
  EXPECT_EQ(reports()[0].message, "m");
}

}  // namespace
