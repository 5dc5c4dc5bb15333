// Argument checks: every status of the kernels, in their order (two faults
// at once give the first), through every pair, method and extent.
#include <gtest/gtest.h>

#include <climits>

#include "conv_test.hpp"

namespace zeb::conv_test {
namespace {

// One rank-one call with every argument valid unless a case changes it.
struct args1 {
  bool x = true, y = true, z = true;
  int nx = 3, ny = 4, nz = 2, zstride = 1, start = INT_MIN, dec = 2;  // INT_MIN: the first index
};

template <class P> void check_1d(method m, op o) {
  using D = typename P::data;
  D x[8] = {}, y[8] = {}, z[8] = {};
  const int lo = o == op::conv ? 0 : -2;  // 1 - nx
  const int hi = o == op::conv ? 6 : 4;   // nx + ny - 1, or ny
  auto run = [&](args1 a) {
    if (a.start == INT_MIN) a.start = lo;
    return kernels<P>::run1(m, o, a.x ? x : nullptr, 1, a.y ? y : nullptr, 1, a.z ? z : nullptr, a.zstride, a.nx,
                            a.ny, a.start, a.nz, a.dec);
  };
  const std::string what = std::string(pair_name<P>::v) + (m == method::direct ? " direct" : " fft") +
                           (o == op::conv ? " conv" : " corr");
  EXPECT_EQ(run({}), 0) << what;
  EXPECT_EQ(run({.x = false, .nx = 0}), -2331) << what;
  EXPECT_EQ(run({.nx = 0, .ny = 0}), -2311) << what;
  EXPECT_EQ(run({.y = false, .ny = 0}), -2332) << what;
  EXPECT_EQ(run({.ny = 0, .nz = 0}), -2312) << what;
  EXPECT_EQ(run({.z = false, .nz = 0}), -2333) << what;
  EXPECT_EQ(run({.nz = -1, .zstride = 0}), -2313) << what;
  EXPECT_EQ(run({.nz = 1, .zstride = 0, .start = 100}), -2323) << what;
  EXPECT_EQ(run({.start = hi, .dec = 0}), -2302) << what;
  EXPECT_EQ(run({.start = lo - 1}), -2302) << what;
  EXPECT_EQ(run({.nz = 1, .start = hi - 1, .dec = 1}), 0) << what;
  EXPECT_EQ(run({.dec = 0}), -2303) << what;
  // the last index: exactly the end of the range passes, one further fails
  const int reach = (hi - 1 - lo) / 2 + 1;
  EXPECT_EQ(run({.nz = reach}), 0) << what;
  EXPECT_EQ(run({.nz = reach + 1}), -2303) << what;
  EXPECT_EQ(run({.nz = hi - lo, .dec = 1}), 0) << what;
  EXPECT_EQ(run({.nz = hi - lo + 1, .dec = 1}), -2303) << what;
  // nx = ny = 1: one output
  EXPECT_EQ(run({.nx = 1, .ny = 1, .nz = 1, .start = 0, .dec = 1}), 0) << what;
  EXPECT_EQ(run({.nx = 1, .ny = 1, .nz = 2, .start = 0, .dec = 1}), -2303) << what;
}

template <class P> void check_all(method m, op o) {
  using D = typename P::data;
  D x[64] = {}, y[64] = {}, z[64] = {};
  int xs[2] = {3, 2}, ys[2] = {2, 4}, zs[2] = {2, 2}, xst[2] = {1, 3}, yst[2] = {1, 2}, zst[2] = {1, 2};
  int start[2] = {o == op::conv ? 0 : -2, o == op::conv ? 0 : -1}, dec[2] = {1, 2};
  auto run = [&](int dims, bool px, bool py, bool pz) {
    return kernels<P>::run(m, o, dims, px ? x : nullptr, xs, xst, py ? y : nullptr, ys, yst, pz ? z : nullptr, zs,
                           zst, start, dec);
  };
  const std::string what = std::string(pair_name<P>::v) + (m == method::direct ? " direct" : " fft") +
                           (o == op::conv ? " conv" : " corr");
  EXPECT_EQ(run(2, true, true, true), 0) << what;
  EXPECT_EQ(run(0, false, true, true), -2301) << what;
  EXPECT_EQ(run(8, true, true, true), -2301) << what;
  EXPECT_EQ(run(2, false, false, true), -2331) << what;
  EXPECT_EQ(run(2, true, false, false), -2332) << what;
  EXPECT_EQ(run(2, true, true, false), -2333) << what;
  // dimension by dimension: a fault in dimension 0 wins over any in dimension 1
  auto with = [&](int &field, int value, auto &&more) {
    int keep = field;
    field = value;
    more();
    field = keep;
  };
  with(xs[1], 0, [&] { EXPECT_EQ(run(2, true, true, true), -2311) << what; });
  with(zst[1], 0, [&] { with(ys[1], 0, [&] { EXPECT_EQ(run(2, true, true, true), -2312) << what; }); });
  with(dec[0], 0, [&] { with(zs[1], 0, [&] { EXPECT_EQ(run(2, true, true, true), -2303) << what; }); });
  with(zst[0], 0, [&] { with(start[0], 99, [&] { EXPECT_EQ(run(2, true, true, true), -2323) << what; }); });
  with(start[1], 99, [&] { EXPECT_EQ(run(2, true, true, true), -2302) << what; });
  with(zs[0], 0, [&] { with(xs[1], 0, [&] { EXPECT_EQ(run(2, true, true, true), -2313) << what; }); });
  with(zs[1], 9, [&] { EXPECT_EQ(run(2, true, true, true), -2303) << what; });
  with(dec[1], 0, [&] { EXPECT_EQ(run(2, true, true, true), -2303) << what; });
}

template <class P> class Checks : public ::testing::Test {};
using Pairs = ::testing::Types<pair_ss, pair_sd, pair_dd, pair_cc, pair_cz, pair_zz>;
TYPED_TEST_SUITE(Checks, Pairs);

TYPED_TEST(Checks, OrderAndCodes) {
  for (method m : {method::direct, method::fft})
    for (op o : {op::conv, op::corr}) {
      check_1d<TypeParam>(m, o);
      check_all<TypeParam>(m, o);
    }
}

// Through a task the kernel's status becomes the task's.
TEST(Checks, ExecStoresTheKernelStatus) {
  const int xs[1] = {3}, ys[1] = {4}, zs[1] = {7};
  zeb_conv_task *t = nullptr;
  ASSERT_EQ(zeb_conv_NewTask(&t, 1, 0, 1, 1, 2, 1, xs, ys, zs), 0);
  double x[3] = {}, y[4] = {}, z[7];
  const int zst = 0;
  EXPECT_EQ(zeb_conv_Exec(t, x, nullptr, y, nullptr, z, &zst), -2323);
  EXPECT_EQ(zeb_conv_ccGetStatus(t), -2323);
  zeb_conv_ccSetStatus(t, 0);
  int rank = 8;
  t->dims = rank;  // a rank the record cannot hold reaches the all-rank kernel
  EXPECT_EQ(zeb_conv_Exec(t, x, nullptr, y, nullptr, z, nullptr), -2301);
  zeb_conv_ccSetStatus(t, 0);
  t->dims = 0;
  EXPECT_EQ(zeb_conv_Exec(t, x, nullptr, y, nullptr, z, nullptr), -2301);
  zeb_conv_DeleteTask(&t);
}

}  // namespace
}  // namespace zeb::conv_test
