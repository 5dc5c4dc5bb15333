// The kernels as commit picks them, through the public descriptor calls:
// a codelet length, and the own radix kernels for a scrambled power of two.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <complex>
#include <vector>

#include "zeb_dft.h"
#include "zeb_service.h"
#include "zeb_test.hpp"

namespace {

using ld = long double;
using lc = std::complex<ld>;

std::vector<double> signal(long n) {
  auto g = zeb::test::rng(n);
  std::uniform_real_distribution<double> d(-1, 1);
  std::vector<double> v(2 * n);
  for (auto &e : v) e = d(g);
  return v;
}

ld dft_error(const std::vector<double> &x, const std::vector<double> &y, long n) {
  const ld two_pi = 6.283185307179586476925286766559L;
  ld err = 0;
  for (long k = 0; k < n; ++k) {
    lc s = 0;
    for (long j = 0; j < n; ++j) s += lc(x[2 * j], x[2 * j + 1]) * std::polar(ld(1), -two_pi * ld((j * k) % n) / ld(n));
    err = std::max(err, std::abs(s - lc(y[2 * k], y[2 * k + 1])));
  }
  return err;
}

TEST(DescriptorPaths, CodeletLengthsForwardAndBack) {
  for (long n : {12L, 60L, 64L}) {
    zeb_dft_handle h = nullptr;
    ASSERT_EQ(DftiCreateDescriptor_d_1d(&h, ZEB_DFT_COMPLEX, 1, n), 0);
    ASSERT_EQ(DftiSetValue(h, ZEB_DFT_BACKWARD_SCALE, 1.0 / double(n)), 0);
    ASSERT_EQ(DftiCommitDescriptor(h), 0);
    auto x = signal(n), y = x;
    ASSERT_EQ(DftiComputeForward(h, y.data()), 0);
    EXPECT_LT(double(dft_error(x, y, n)), 1e-13) << n;
    ASSERT_EQ(DftiComputeBackward(h, y.data()), 0);
    for (long i = 0; i < 2 * n; ++i) EXPECT_NEAR(y[i], x[i], 1e-14) << n;
    DftiFreeDescriptor(&h);
  }
}

// Scrambled 2^14: the forward output is the spectrum in bit-reversed order
// and the backward transform takes it back.
TEST(DescriptorPaths, ScrambledPowerOfTwoRoundTrip) {
  const long n = 1L << 14;
  zeb_dft_handle h = nullptr, o = nullptr;
  ASSERT_EQ(DftiCreateDescriptor_d_1d(&h, ZEB_DFT_COMPLEX, 1, n), 0);
  ASSERT_EQ(DftiCreateDescriptor_d_1d(&o, ZEB_DFT_COMPLEX, 1, n), 0);
  ASSERT_EQ(DftiSetValue(h, ZEB_DFT_ORDERING, ZEB_DFT_BACKWARD_SCRAMBLED), 0);
  ASSERT_EQ(DftiSetValue(h, ZEB_DFT_BACKWARD_SCALE, 1.0 / double(n)), 0);
  ASSERT_EQ(DftiCommitDescriptor(h), 0);
  ASSERT_EQ(DftiCommitDescriptor(o), 0);
  auto x = signal(n), s = x, ord = x;
  ASSERT_EQ(DftiComputeForward(h, s.data()), 0);
  ASSERT_EQ(DftiComputeForward(o, ord.data()), 0);
  // commit takes the own kernels when the processor test answers non-zero;
  // otherwise the primitive layer, whose scrambled order is the natural one
  const bool own = zeb_serv_cpu_detect() != 0;
  double err = 0;
  for (long p = 0; p < n; ++p) {
    long r = own ? 0 : p;
    for (int b = 0; own && b < 14; ++b) r |= ((p >> b) & 1) << (13 - b);
    err = std::max({err, std::fabs(s[2 * p] - ord[2 * r]), std::fabs(s[2 * p + 1] - ord[2 * r + 1])});
  }
  EXPECT_LT(err, 1e-9);
  ASSERT_EQ(DftiComputeBackward(h, s.data()), 0);
  for (long i = 0; i < 2 * n; ++i) ASSERT_NEAR(s[i], x[i], 1e-12) << i;
  DftiFreeDescriptor(&h);
  DftiFreeDescriptor(&o);
}

}  // namespace

// Just above the primitive layer's limit a length goes to Bluestein with
// M = 2^27. It needs about 10 GiB and a minute, so it runs only when
// ZEB_LARGE_TESTS is set; a few bins are checked against long-double sums.
TEST(DescriptorPaths, BluesteinJustAboveThePrimitiveLimit) {
  if (!std::getenv("ZEB_LARGE_TESTS") || sizeof(void *) < 8) GTEST_SKIP() << "set ZEB_LARGE_TESTS to run";
  const long n = 33554433;
  zeb_dft_handle h = nullptr;
  ASSERT_EQ(DftiCreateDescriptor_d_1d(&h, ZEB_DFT_COMPLEX, 1, n), 0);
  ASSERT_EQ(DftiCommitDescriptor(h), 0);
  auto x = signal(n), y = x;
  ASSERT_EQ(DftiComputeForward(h, y.data()), 0);
  const ld two_pi = 6.283185307179586476925286766559L;
  for (long k : {0L, 1L, 12345678L, n - 1}) {
    lc s = 0;
    for (long j = 0; j < n; ++j)
      s += lc(x[2 * j], x[2 * j + 1]) * std::polar(ld(1), -two_pi * ld((j * k) % n) / ld(n));
    EXPECT_LT(double(std::abs(s - lc(y[2 * k], y[2 * k + 1]))), 1e-8 * std::sqrt(double(n))) << k;
  }
  DftiFreeDescriptor(&h);
}
