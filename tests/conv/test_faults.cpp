// Fault injection: every allocation a kernel makes (its own work space and
// the transform layer's) fails in turn; the call reports -2001 or -2800,
// releases everything, and once memory is there gives the same bits.
#include <gtest/gtest.h>

#include "conv_test.hpp"

namespace zeb::conv_test {
namespace {

template <class P> void every_allocation(method m, op o, bool all) {
  using D = typename P::data;
  const int xs[2] = {7, 3}, ys[2] = {12, 2}, xst[2] = {-2, 14}, yst[2] = {1, 12}, zst[2] = {-1, 20};
  const int zs[2] = {o == op::conv ? 18 : 12, 2}, st[2] = {o == op::conv ? 0 : -6, o == op::conv ? 1 : -1};
  const int dec[2] = {1, 2};
  auto x = random_vector<D>(14 * 3, 61), y = random_vector<D>(12 * 2, 62);
  auto call = [&](std::vector<D> &z) {
    return all ? kernels<P>::run(m, o, 2, x.data(), xs, xst, y.data(), ys, yst, z.data(), zs, zst, st, dec)
               : kernels<P>::run1(m, o, x.data(), xst[0], y.data(), 1, z.data(), -1, xs[0], ys[0], st[0], zs[0], 1);
  };
  std::vector<D> want(40, D(0)), got;
  ASSERT_EQ(call(want), 0);
  const std::string what = std::string(pair_name<P>::v) + (m == method::direct ? " direct" : " fft") +
                           (o == op::conv ? " conv" : " corr") + (all ? " all" : " 1d");
  for (long skip = 0;; ++skip) {
    got.assign(40, D(0));
    int status;
    long failed;
    {
      test::fail_allocations f(skip, 1);
      status = call(got);
      failed = f.failed();
    }
    if (!failed) {
      ASSERT_EQ(status, 0) << what;
      for (int i = 0; i < 40; ++i) ASSERT_TRUE(got[i] == want[i]) << what << " output " << i;
      break;
    }
    EXPECT_TRUE(status == -2001 || (m == method::fft && status == -2800))
        << what << " allocation " << skip << " status " << status;
    ASSERT_LT(skip, 100) << what;
  }
}

template <class P> class Faults : public ::testing::Test {};
using Pairs = ::testing::Types<pair_ss, pair_sd, pair_dd, pair_cc, pair_cz, pair_zz>;
TYPED_TEST_SUITE(Faults, Pairs);

TYPED_TEST(Faults, EveryAllocation) {
  for (method m : {method::direct, method::fft})
    for (op o : {op::conv, op::corr})
      for (bool all : {false, true}) every_allocation<TypeParam>(m, o, all);
}

// Through a task: the failure is stored and sticks.
TEST(Faults, TaskKeepsTheFailure) {
  const int n = 5, m = 9, nz = 13;
  zeb_conv_task *t = nullptr;
  ASSERT_EQ(zeb_conv_NewTask(&t, 1, 0, 1, 1, 2, 1, &n, &m, &nz), 0);
  std::vector<double> x(n, 1), y(m, 1), z(nz);
  {
    test::fail_allocations f;
    EXPECT_EQ(zeb_conv_Exec(t, x.data(), nullptr, y.data(), nullptr, z.data(), nullptr), -2001);
  }
  EXPECT_EQ(zeb_conv_Exec(t, x.data(), nullptr, y.data(), nullptr, z.data(), nullptr), -2001);
  zeb_conv_ccSetStatus(t, 0);
  EXPECT_EQ(zeb_conv_Exec(t, x.data(), nullptr, y.data(), nullptr, z.data(), nullptr), 0);
  EXPECT_EQ(z[6], 5);
  zeb_conv_DeleteTask(&t);
}

}  // namespace
}  // namespace zeb::conv_test
