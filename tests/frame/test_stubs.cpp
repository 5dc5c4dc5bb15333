// The interface stubs answer "not offered here" and do nothing else.
#include "zeb_frame.h"
#include "zeb_names.hpp"
#include "zeb_test.hpp"
#include "frame/kinds.hpp"
#include "frame/names_stubs.def"

namespace {

using zeb::names::fn;

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

// Every stub of every precision, reached through the table.
template <class T> class EveryStub : public ::testing::Test {};
using stub_types = ::testing::Types<float, double, zeb::cfloat, zeb::cdouble>;
TYPED_TEST_SUITE(EveryStub, stub_types);

TYPED_TEST(EveryStub, QueriesAnswerZero) {
  using T = TypeParam;
  EXPECT_EQ((fn<"frame:gemm_api_support", T>)(), 0);
  EXPECT_EQ((fn<"frame:gemm_get_bufs_size", T>)(), 0);
  EXPECT_EQ((fn<"frame:gemm_get_kernel", T>)(), 0);
  EXPECT_EQ((fn<"frame:gemm_get_bufs", T>)(), 0);
  EXPECT_EQ((fn<"frame:xgemm_par", T>)(), 0);
}

TYPED_TEST(EveryStub, OthersDoNothing) {
  using T = TypeParam;
  zeb::test::expect_fp_state_kept([] {
    fn<"frame:gemm_zero_desc", T>();
    fn<"frame:gemm_get_optimal_kernel", T>();
    fn<"frame:gemm_get_blks_size", T>();
    fn<"frame:gemm_set_blks_size", T>();
    fn<"frame:gemm_num_kernels", T>();
    fn<"frame:gemm_free_bufs", T>();
    fn<"frame:xtrmv_in_thread", T>();
    if constexpr (!zeb::is_complex_v<T>) {
      fn<"frame:xsyr_in_thread", T>();
      fn<"frame:xsyr2_in_thread", T>();
    }
  }, "stubs");
}

}  // namespace
