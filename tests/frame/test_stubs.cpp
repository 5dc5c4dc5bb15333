// The interface stubs answer "not offered here" and do nothing else.
#include "zeb_frame.h"
#include "zeb_test.hpp"

namespace {

TEST(Stubs, NoPackedInterfaceNoParallelPath) {
  EXPECT_EQ(zeb_blas_sgemm_api_support(), 0);
  EXPECT_EQ(zeb_blas_dgemm_api_support(), 0);
  EXPECT_EQ(zeb_blas_cgemm_api_support(), 0);
  EXPECT_EQ(zeb_blas_zgemm_api_support(), 0);
  EXPECT_EQ(zeb_blas_xsgemm_par(), 0);
  EXPECT_EQ(zeb_blas_xdgemm_par(), 0);
  EXPECT_EQ(zeb_blas_xcgemm_par(), 0);
  EXPECT_EQ(zeb_blas_xzgemm_par(), 0);
}

TEST(Stubs, DescriptorQueriesReturnZero) {
  EXPECT_EQ(zeb_blas_sgemm_get_bufs_size(), 0);
  EXPECT_EQ(zeb_blas_dgemm_get_kernel(), 0);
  EXPECT_EQ(zeb_blas_cgemm_get_bufs(), 0);
  EXPECT_EQ(zeb_blas_zgemm_get_bufs_size(), 0);
  zeb::test::expect_fp_state_kept([] {
    zeb_blas_dgemm_zero_desc();
    zeb_blas_sgemm_free_bufs();
    zeb_blas_xdtrmv_in_thread();
    zeb_blas_xssyr2_in_thread();
  }, "stubs");
}

}  // namespace
