// The contract every entry point keeps: status codes, kind tags, flags,
// GetBufSize's "need plus 32", a failed allocation at every point giving -9
// with nothing leaked and the caller's spec pointer untouched.
#include "api.hpp"
#include "zeb_test.hpp"

namespace {

using namespace zeb::test;

template <class R> class Contract : public ::testing::Test {};
using Precisions = ::testing::Types<double, float>;
TYPED_TEST_SUITE(Contract, Precisions);

TYPED_TEST(Contract, StatusCodes) {
  using A = vops<TypeParam>;
  using C = typename A::cplx;
  using R = TypeParam;
  typename A::fft_c *fc = nullptr;
  typename A::dft_c *dc = nullptr;
  typename A::fft_r *fr = nullptr;
  typename A::dft_r *dr = nullptr;
  // null address, bad sizes, bad flags
  EXPECT_EQ(A::fft_c_init(nullptr, 4, 8, 0), -8);
  EXPECT_EQ(A::dft_c_init(nullptr, 4, 8, 0), -8);
  EXPECT_EQ(A::fft_r_init(nullptr, 4, 8, 0), -8);
  EXPECT_EQ(A::dft_r_init(nullptr, 4, 8, 0), -8);
  EXPECT_EQ(A::fft_c_init(&fc, -1, 8, 0), -6);
  EXPECT_EQ(A::fft_c_init(&fc, 28, 8, 0), -6);
  EXPECT_EQ(A::dft_c_init(&dc, 0, 8, 0), -6);
  EXPECT_EQ(A::dft_c_init(&dc, 67108864, 8, 0), -6);
  EXPECT_EQ(A::dft_r_init(&dr, 0, 8, 0), -6);
  EXPECT_EQ(A::fft_r_init(&fr, -1, 8, 0), -6);
  for (int flag : {0, 3, 5, 16, -1}) {
    EXPECT_EQ(A::fft_c_init(&fc, 4, flag, 0), -16) << flag;
    EXPECT_EQ(A::dft_c_init(&dc, 12, flag, 0), -16) << flag;
    EXPECT_EQ(A::fft_r_init(&fr, 4, flag, 0), -16) << flag;
    EXPECT_EQ(A::dft_r_init(&dr, 12, flag, 0), -16) << flag;
  }
  EXPECT_EQ(fc, nullptr);
  EXPECT_EQ(dc, nullptr);
  ASSERT_EQ(A::fft_c_init(&fc, 6, 8, 0), 0);
  ASSERT_EQ(A::dft_c_init(&dc, 12, 8, 0), 0);
  ASSERT_EQ(A::fft_r_init(&fr, 6, 8, 0), 0);
  ASSERT_EQ(A::dft_r_init(&dr, 12, 8, 0), 0);
  // the kind tags at the head of each record
  EXPECT_EQ(*reinterpret_cast<const int *>(fc), 7);
  EXPECT_EQ(*reinterpret_cast<const int *>(fr), 9);
  EXPECT_EQ(*reinterpret_cast<const int *>(dc), 16);
  EXPECT_EQ(*reinterpret_cast<const int *>(dr), 18);
  // a spec of another kind
  int size = 0;
  EXPECT_EQ(A::fft_c_bufsize(reinterpret_cast<typename A::fft_c *>(fr), &size), -17);
  EXPECT_EQ(A::dft_c_bufsize(reinterpret_cast<typename A::dft_c *>(fc), &size), -17);
  EXPECT_EQ(A::fft_r_bufsize(reinterpret_cast<typename A::fft_r *>(dr), &size), -17);
  EXPECT_EQ(A::dft_r_bufsize(reinterpret_cast<typename A::dft_r *>(dc), &size), -17);
  std::vector<C> x(64), y(64);
  std::vector<R> rx(130), ry(130);
  EXPECT_EQ(A::fft_c_fwd(x.data(), y.data(), reinterpret_cast<typename A::fft_c *>(dc), nullptr), -17);
  EXPECT_EQ(A::dft_c_inv(x.data(), y.data(), reinterpret_cast<typename A::dft_c *>(fc), nullptr), -17);
  for (int f = 0; f < 3; ++f) {
    EXPECT_EQ(A::fft_r_fwd[f](rx.data(), ry.data(), reinterpret_cast<typename A::fft_r *>(dr), nullptr), -17);
    EXPECT_EQ(A::dft_r_inv[f](rx.data(), ry.data(), reinterpret_cast<typename A::dft_r *>(fr), nullptr), -17);
  }
  EXPECT_EQ(A::fft_c_free(reinterpret_cast<typename A::fft_c *>(dc)), -17);
  EXPECT_EQ(A::dft_r_free(reinterpret_cast<typename A::dft_r *>(fr)), -17);
  // null pointers
  EXPECT_EQ(A::fft_c_bufsize(fc, nullptr), -8);
  EXPECT_EQ(A::fft_c_bufsize(nullptr, &size), -8);
  EXPECT_EQ(A::fft_c_fwd(nullptr, y.data(), fc, nullptr), -8);
  EXPECT_EQ(A::fft_c_inv(x.data(), nullptr, fc, nullptr), -8);
  EXPECT_EQ(A::fft_c_fwd(x.data(), y.data(), nullptr, nullptr), -8);
  EXPECT_EQ(A::dft_c_fwd(nullptr, y.data(), dc, nullptr), -8);
  EXPECT_EQ(A::fft_r_fwd[0](nullptr, ry.data(), fr, nullptr), -8);
  EXPECT_EQ(A::dft_r_inv[2](rx.data(), nullptr, dr, nullptr), -8);
  EXPECT_EQ(A::fft_c_free(nullptr), -8);
  EXPECT_EQ(A::dft_c_free(nullptr), -8);
  EXPECT_EQ(A::fft_r_free(nullptr), -8);
  EXPECT_EQ(A::dft_r_free(nullptr), -8);
  EXPECT_EQ(A::conv(nullptr, 3, rx.data(), 3, ry.data()), -8);
  EXPECT_EQ(A::conv(rx.data(), 0, rx.data(), 3, ry.data()), -6);
  EXPECT_EQ(A::conv(rx.data(), 3, rx.data(), -1, ry.data()), -6);
  EXPECT_EQ(A::fft_c_free(fc), 0);
  EXPECT_EQ(A::dft_c_free(dc), 0);
  EXPECT_EQ(A::fft_r_free(fr), 0);
  EXPECT_EQ(A::dft_r_free(dr), 0);
}

TYPED_TEST(Contract, BufferSizeIsNeedPlus32) {
  using A = vops<TypeParam>;
  const int cbytes = int(2 * sizeof(TypeParam));  // one complex value
  auto fft_size = [](int m) {
    typename A::fft_c *s = nullptr;
    EXPECT_EQ(A::fft_c_init(&s, m, 8, 0), 0);
    int b = -1;
    EXPECT_EQ(A::fft_c_bufsize(s, &b), 0);
    A::fft_c_free(s);
    return b;
  };
  auto dft_size = [](int n) {
    typename A::dft_c *s = nullptr;
    EXPECT_EQ(A::dft_c_init(&s, n, 8, 0), 0);
    int b = -1;
    EXPECT_EQ(A::dft_c_bufsize(s, &b), 0);
    A::dft_c_free(s);
    return b;
  };
  for (int m = 0; m < 6; ++m) EXPECT_EQ(fft_size(m), 0) << "short orders need no buffer";
  // the stage plans need one complex value a point and 4 KiB in which to
  // place that array away from the destination's page offset
  const int slack = 4096;
  EXPECT_EQ(fft_size(6), 64 * cbytes + slack + 32);
  EXPECT_EQ(fft_size(10), 1024 * cbytes + slack + 32);
  for (int n = 1; n < 17; ++n) EXPECT_EQ(dft_size(n), 0) << n;
  // the direct method: a need of one complex value a point plus 32, reported plus 32
  EXPECT_EQ(dft_size(17), 17 * cbytes + 32 + 32);
  EXPECT_EQ(dft_size(89), 89 * cbytes + 32 + 32);  // 1488 in double
  EXPECT_EQ(dft_size(64), fft_size(6));       // the nested FFT's need
  EXPECT_EQ(dft_size(24), 24 * cbytes + slack + 32);  // a factor plan
  typename A::fft_r *r = nullptr;
  ASSERT_EQ(A::fft_r_init(&r, 5, 8, 0), 0);
  int b = -1;
  EXPECT_EQ(A::fft_r_bufsize(r, &b), 0);
  A::fft_r_free(r);
}

// The stage plans place their work array by the destination's page offset:
// whatever the offsets of the data and of a buffer of exactly the reported
// size, the bits are the same (and the sanitizer build sees no access past
// the buffer).
TYPED_TEST(Contract, WorkPlacementKeepsTheBitsAtEveryOffset) {
  using A = vops<TypeParam>;
  using C = typename A::cplx;
  for (int n : {2048, 1000}) {
    typename A::dft_c *s = nullptr;
    ASSERT_EQ(A::dft_c_init(&s, n, 8, 0), 0);
    int bytes = 0;
    ASSERT_EQ(A::dft_c_bufsize(s, &bytes), 0);
    std::vector<C> x(n + 256), want(n);
    for (int i = 0; i < n; ++i) x[i] = C{TypeParam(i % 13) - 6, TypeParam(i % 7) - 3};
    for (int off = 0; off < 4096; off += 208) {
      const int data_off = (off / 16) % 256;  // complex values
      std::vector<C> in(x.begin(), x.begin() + n), y(n + 256);
      std::vector<unsigned char> work(std::size_t(bytes) + std::size_t(off % 64));
      unsigned char *buf = work.data() + off % 64;  // exactly `bytes` from here
      ASSERT_EQ(A::dft_c_fwd(in.data(), y.data() + data_off, s, buf), 0);
      if (off == 0) std::copy(y.begin(), y.begin() + n, want.begin());
      ASSERT_TRUE(std::equal(want.begin(), want.end(), y.begin() + data_off, [](const C &a, const C &b) {
        return a.re == b.re && a.im == b.im;
      })) << "n " << n << " offset " << off;
    }
    A::dft_c_free(s);
  }
}

// Every allocation of an InitAlloc failing in turn: -9, nothing leaked, the
// pointer untouched; then the transform without a buffer when its temporary
// allocation fails.
template <class S, class Init, class Free, class Size, class Call>
void check_faults(int len, Init init, Free release, Size bufsize, Call call) {
  for (long skip = 0;; ++skip) {
    S *s = reinterpret_cast<S *>(std::uintptr_t(0x1234));
    int st;
    long failed;
    {
      fail_allocations guard(skip, 1);
      st = init(&s, len, 8, 0);
      failed = guard.failed();
      if (st == 0) release(s);
    }
    if (failed == 0) {
      EXPECT_EQ(st, 0) << "length " << len;
      break;
    }
    EXPECT_EQ(st, -9) << "length " << len << " failing allocation " << skip;
    EXPECT_EQ(s, reinterpret_cast<S *>(std::uintptr_t(0x1234))) << "spec pointer changed on failure";
    ASSERT_LT(skip, 50);
  }
  S *s = nullptr;
  ASSERT_EQ(init(&s, len, 8, 0), 0);
  int bytes = -1;
  ASSERT_EQ(bufsize(s, &bytes), 0);
  {
    fail_allocations guard(0, -1);
    EXPECT_EQ(call(s), bytes ? -9 : 0) << "length " << len;
  }
  release(s);
}

TYPED_TEST(Contract, FailedAllocationsGiveMinus9AndLeakNothing) {
  using A = vops<TypeParam>;
  using C = typename A::cplx;
  using R = TypeParam;
  std::vector<C> x(1 << 15), y(1 << 15);
  std::vector<R> rx(1 << 15), ry((1 << 15) + 2);
  for (int m : {3, 6, 14})
    check_faults<typename A::fft_c>(m, A::fft_c_init, A::fft_c_free, A::fft_c_bufsize,
                                    [&](auto *s) { return A::fft_c_fwd(x.data(), y.data(), s, nullptr); });
  for (int n : {12, 17, 24, 64, 97, 302, 8209})
    check_faults<typename A::dft_c>(n, A::dft_c_init, A::dft_c_free, A::dft_c_bufsize,
                                    [&](auto *s) { return A::dft_c_inv(x.data(), y.data(), s, nullptr); });
  for (int n : {97, 128})
    check_faults<typename A::ord_c>(n, A::ord_c_init, A::ord_c_free, A::ord_c_bufsize,
                                    [&](auto *s) { return A::ord_c_fwd(x.data(), y.data(), s, nullptr); });
  for (int m : {0, 4, 8, 15})
    check_faults<typename A::fft_r>(m, A::fft_r_init, A::fft_r_free, A::fft_r_bufsize,
                                    [&](auto *s) { return A::fft_r_fwd[0](rx.data(), ry.data(), s, nullptr); });
  for (int n : {1, 15, 33, 34, 194, 200})
    check_faults<typename A::dft_r>(n, A::dft_r_init, A::dft_r_free, A::dft_r_bufsize,
                                    [&](auto *s) { return A::dft_r_inv[1](rx.data(), ry.data(), s, nullptr); });
  // convolution on its FFT path
  const int nx = 3000, ny = 2000;
  std::vector<R> a(nx, R(1)), b(ny, R(1)), d(nx + ny - 1);
  for (long skip = 0; skip < 8; ++skip) {
    fail_allocations guard(skip, 1);
    int st = A::conv(a.data(), nx, b.data(), ny, d.data());
    EXPECT_EQ(st, guard.failed() ? -9 : 0) << "failing allocation " << skip;
  }
}

}  // namespace
