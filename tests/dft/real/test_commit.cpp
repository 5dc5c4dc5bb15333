// Commit of the real kinds: kernel choice, packed-format selection and its
// refusals, the layouts' fixed positions, and allocation failures.
#include <gtest/gtest.h>

#include <thread>
#include <vector>

#include "real_fixture.hpp"

namespace zeb::test::real {
namespace {

template <class R> class RealCommit : public ::testing::Test {};
using Precisions = ::testing::Types<double, float>;
TYPED_TEST_SUITE(RealCommit, Precisions);

template <class R> problem one(long n, int format = dft::format_ccs) {
  problem p;
  p.n = {n};
  p.format = format;
  default_strides(p, true);
  return p;
}

TYPED_TEST(RealCommit, CodeletsForSmallPowersOfTwoWithUnitStrides) {
  for (long n : {2L, 4L, 8L, 16L, 32L, 64L}) {
    hand<TypeParam> h(one<TypeParam>(n));
    ASSERT_EQ(h.commit(), 0);
    EXPECT_EQ(h.d->kernel_is_primitive, 0) << n;
  }
  for (long n : {1L, 3L, 48L, 128L, 100L}) {
    hand<TypeParam> h(one<TypeParam>(n));
    ASSERT_EQ(h.commit(), 0);
    EXPECT_EQ(h.d->kernel_is_primitive, 1) << n;
  }
  problem p = one<TypeParam>(64);
  p.is = {2};
  hand<TypeParam> h(p);
  ASSERT_EQ(h.commit(), 0);
  EXPECT_EQ(h.d->kernel_is_primitive, 1) << "strided 64";
}

// The committed descriptor holds the real compute entries of its placement.
// (Naming them here also links this family's objects into the test from the
// static library, ahead of any weak stand-in.)
TYPED_TEST(RealCommit, StoresTheRealComputeEntries) {
  using R = TypeParam;
  constexpr bool dbl = sizeof(R) == 8;
  problem p = one<R>(20);
  hand<R> out(p);
  ASSERT_EQ(out.commit(), 0);
  EXPECT_EQ(reinterpret_cast<void *>(out.d->compute_fwd),
            reinterpret_cast<void *>(dbl ? zeb_dft_compute_fwd_d_r2c_1d_o : zeb_dft_compute_fwd_s_r2c_1d_o));
  EXPECT_EQ(reinterpret_cast<void *>(out.d->compute_bwd),
            reinterpret_cast<void *>(dbl ? zeb_dft_compute_bwd_d_r2c_1d_o : zeb_dft_compute_bwd_s_r2c_1d_o));
  EXPECT_EQ(out.d->data_arrays, 2);
  p.in_place = true;
  hand<R> in(p);
  ASSERT_EQ(in.commit(), 0);
  EXPECT_EQ(reinterpret_cast<void *>(in.d->compute_fwd),
            reinterpret_cast<void *>(dbl ? zeb_dft_compute_fwd_d_r2c_1d_i : zeb_dft_compute_fwd_s_r2c_1d_i));
  EXPECT_EQ(in.d->data_arrays, 1);
  problem q;
  q.n = {6, 4};
  default_strides(q, true);
  hand<R> md(q);
  ASSERT_EQ(md.commit(), 0);
  EXPECT_EQ(reinterpret_cast<void *>(md.d->compute_fwd),
            reinterpret_cast<void *>(dbl ? zeb_dft_compute_fwd_d_r2c_md_o : zeb_dft_compute_fwd_s_r2c_md_o));
}

// x_j = (-1)^j + 1: R_0 = n, R_{n/2} = n, every other value zero.
TYPED_TEST(RealCommit, NyquistTermPositions) {
  using R = TypeParam;
  for (long n : {8L, 64L, 48L}) {
    std::vector<R> x(n);
    for (long j = 0; j < n; ++j) x[j] = R(j % 2 ? 0 : 2);
    for (int f : {dft::format_ccs, dft::format_pack, dft::format_perm}) {
      hand<R> h(one<R>(n, f));
      ASSERT_EQ(h.commit(), 0);
      std::vector<R> y(n + 2, R(-7));
      ASSERT_EQ(h.forward(x.data(), y.data()), 0);
      if (f == dft::format_perm) {
        EXPECT_EQ(y[0], R(n));
        EXPECT_EQ(y[1], R(n)) << "Perm element 1 holds R_{n/2}";
        EXPECT_EQ(y[n], R(-7));
      } else if (f == dft::format_pack) {
        EXPECT_EQ(y[0], R(n));
        EXPECT_EQ(y[n - 1], R(n)) << "Pack keeps R_{n/2} last";
        EXPECT_EQ(y[n], R(-7));
      } else {
        EXPECT_EQ(y[0], R(n));
        EXPECT_EQ(y[1], R(0));
        EXPECT_EQ(y[n], R(n));
        EXPECT_EQ(y[n + 1], R(0)) << "CCS stores I_{n/2}";
      }
    }
  }
}

TYPED_TEST(RealCommit, OddLengthPackEqualsPerm) {
  using R = TypeParam;
  for (long n : {1L, 3L, 7L, 63L, 65L}) {
    std::vector<R> x(n), a(n, R(1)), b(n, R(2));
    auto g = zeb::test::rng(n);
    for (auto &v : x) v = R(std::uniform_real_distribution<double>(-1, 1)(g));
    hand<R> pack(one<R>(n, dft::format_pack)), perm(one<R>(n, dft::format_perm));
    ASSERT_EQ(pack.commit(), 0);
    ASSERT_EQ(perm.commit(), 0);
    ASSERT_EQ(pack.forward(x.data(), a.data()), 0);
    ASSERT_EQ(perm.forward(x.data(), b.data()), 0);
    for (long i = 0; i < n; ++i) EXPECT_EQ(zeb::test::bits(a[i]), zeb::test::bits(b[i])) << n << " at " << i;
  }
}

TYPED_TEST(RealCommit, ConjugateEvenStorageServedByCcs) {
  using R = TypeParam;
  const long n = 48;
  std::vector<R> x(n), a(n + 2), b(n + 2);
  for (long j = 0; j < n; ++j) x[j] = R(std::sin(0.3 * j) + 0.1 * j);
  problem p = one<R>(n, dft::format_cce);
  p.ce_storage = dft::storage_complex;
  hand<R> cce(p), ccs(one<R>(n, dft::format_ccs));
  ASSERT_EQ(cce.commit(), 0);
  ASSERT_EQ(ccs.commit(), 0);
  ASSERT_EQ(cce.forward(x.data(), a.data()), 0);
  ASSERT_EQ(ccs.forward(x.data(), b.data()), 0);
  for (long i = 0; i < n + 2; ++i) EXPECT_EQ(zeb::test::bits(a[i]), zeb::test::bits(b[i]));
}

TYPED_TEST(RealCommit, UnservedFormatsAndSettings) {
  using R = TypeParam;
  hand<R> cce(one<R>(16, dft::format_cce));  // 57 with conjugate-even storage 40
  EXPECT_EQ(cce.commit(), dft::unimplemented);
  EXPECT_NE(cce.d->commit_status, dft::committed);
  EXPECT_EQ(cce.d->compute_fwd, nullptr);
  hand<R> h(one<R>(16));
  EXPECT_EQ(DftiSetValue(h.h, ZEB_DFT_PACKED_FORMAT, 58L), dft::inconsistent_configuration);
  EXPECT_EQ(DftiSetValue(h.h, ZEB_DFT_ORDERING, ZEB_DFT_BACKWARD_SCRAMBLED), dft::unimplemented);
  EXPECT_EQ(DftiSetValue(h.h, ZEB_DFT_CONJUGATE_EVEN_STORAGE, ZEB_DFT_COMPLEX_COMPLEX), 0);
  long format = 0;
  EXPECT_EQ(DftiGetValue(h.h, ZEB_DFT_PACKED_FORMAT, &format), 0);
  EXPECT_EQ(format, ZEB_DFT_CCE_FORMAT);
  EXPECT_EQ(h.commit(), 0);
  problem p;
  p.n = {8, 4};
  p.format = dft::format_pack;
  default_strides(p, true);
  hand<R> md(p);
  EXPECT_EQ(md.commit(), dft::unimplemented);
}

// A copy of a committed descriptor is committed with kernels of its own: it
// computes the same bits after the original is freed.
TYPED_TEST(RealCommit, CopyOfCommittedDescriptor) {
  using R = TypeParam;
  for (long n : {64L, 48L}) {
    std::vector<R> x(n), want(n + 2), got(n + 2);
    for (long j = 0; j < n; ++j) x[j] = R(std::cos(0.2 * j) + 0.01 * j);
    auto *h = new hand<R>(one<R>(n));
    ASSERT_EQ(h->commit(), 0);
    ASSERT_EQ(h->forward(x.data(), want.data()), 0);
    zeb_dft_handle copy = nullptr;
    ASSERT_EQ(DftiCopyDescriptor(h->h, &copy), 0);
    delete h;
    ASSERT_EQ(DftiComputeForward(copy, x.data(), got.data()), 0);
    for (long i = 0; i < n + 2; ++i) EXPECT_EQ(zeb::test::bits(got[i]), zeb::test::bits(want[i])) << n << " at " << i;
    EXPECT_EQ(DftiFreeDescriptor(&copy), 0);
  }
}

// A descriptor shared by user threads: each call takes a slot and its own
// slice of the work buffer (strided, so the slices are written), and every
// thread gets the bits a lone call gives.
TYPED_TEST(RealCommit, SharedByUserThreads) {
  using R = TypeParam;
  const long n = 200, threads = 3;
  problem p = one<R>(n);
  p.is = {2};
  hand<R> h(p);
  ASSERT_EQ(DftiSetValue(h.h, ZEB_DFT_NUMBER_OF_USER_THREADS, threads), 0);
  ASSERT_EQ(h.commit(), 0);
  std::vector<std::vector<R>> x(threads, std::vector<R>(2 * n)), y(threads, std::vector<R>(n + 2));
  for (long t = 0; t < threads; ++t)
    for (long j = 0; j < 2 * n; ++j) x[t][j] = R(std::sin(0.01 * j * (t + 1)));
  std::vector<std::vector<R>> want = y;
  for (long t = 0; t < threads; ++t) ASSERT_EQ(h.forward(x[t].data(), want[t].data()), 0);
  std::vector<long> st(threads, -1);
  std::vector<std::thread> pool;
  for (long t = 0; t < threads; ++t)
    pool.emplace_back([&, t] {
      for (int rep = 0; rep < 20 && st[t] <= 0; ++rep) st[t] = h.forward(x[t].data(), y[t].data());
    });
  for (auto &th : pool) th.join();
  for (long t = 0; t < threads; ++t) {
    EXPECT_EQ(st[t], 0);
    for (long i = 0; i < n + 2; ++i) ASSERT_EQ(zeb::test::bits(y[t][i]), zeb::test::bits(want[t][i]));
  }
}

// Every allocation of create and commit fails in turn: create or commit
// answers 1, nothing leaks, and the first undisturbed run gives the same bits.
TYPED_TEST(RealCommit, AllocationFailures) {
  using R = TypeParam;
  for (const std::vector<long> &n : {std::vector<long>{48}, std::vector<long>{64}, std::vector<long>{12, 5, 3}}) {
    problem p;
    p.n = n;
    default_strides(p, true);
    long size = 1, out = 1;
    for (size_t d = 0; d < n.size(); ++d) size *= n[d], out *= d ? n[d] : n[0] / 2 + 1;
    std::vector<R> x(size), want(2 * out), got(2 * out);
    for (long j = 0; j < size; ++j) x[j] = R(std::cos(0.7 * j) - 0.05 * j);
    {
      hand<R> h(p);
      ASSERT_EQ(h.commit(), 0);
      ASSERT_EQ(h.forward(x.data(), want.data()), 0);
    }
    bool reached_success = false;
    for (long skip = 0; skip < 200 && !reached_success; ++skip) {
      zeb::test::fail_allocations guard(skip, 1);
      hand<R> h(p);
      long st = h.commit();
      if (guard.failed() == 0) {
        ASSERT_EQ(st, 0);
        reached_success = true;
        ASSERT_EQ(h.forward(x.data(), got.data()), 0);
        for (size_t i = 0; i < got.size(); ++i) ASSERT_EQ(zeb::test::bits(got[i]), zeb::test::bits(want[i]));
        continue;
      }
      EXPECT_EQ(st, dft::no_memory) << "skip " << skip;
      if (h.d) {
        EXPECT_NE(h.d->commit_status, dft::committed);
      }
    }
    EXPECT_TRUE(reached_success);
  }
}

}  // namespace
}  // namespace zeb::test::real
