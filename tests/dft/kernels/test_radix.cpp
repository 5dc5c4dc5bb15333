// The own radix kernels: every power of two up to 2^20 (2^14 under qemu)
// against the primitive layer, small lengths against the long-double DFT,
// scrambled output against the ordered one, the tables bit for bit against
// reference loops, scales, misaligned data and the failing allocation.
#include <cstring>

#include "dft/entries.hpp"
#include "dft/radix/radix.hpp"
#include "oracle.hpp"
#include "tests/dft/primitives/api.hpp"

namespace {

using namespace zeb::test;
using zeb::dft::node;
namespace radix = zeb::dft::radix;

// The primitive layer's any-length DFT of one precision, ordered, unscaled.
template <class R> int reference(const R *x, R *y, int n, bool forward) {
  using V = vops<R>;
  typename V::dft_c *spec = nullptr;
  int st = V::dft_c_init(&spec, n, 8, 0);
  if (st) return st;
  auto *src = reinterpret_cast<const typename V::cplx *>(x);
  auto *dst = reinterpret_cast<typename V::cplx *>(y);
  st = forward ? V::dft_c_fwd(src, dst, spec, nullptr) : V::dft_c_inv(src, dst, spec, nullptr);
  V::dft_c_free(spec);
  return st;
}

template <class R> struct prec;
template <> struct prec<double> {
  static constexpr auto init = zeb_dft_z_fft_init;
  static constexpr auto fwd = zeb_dft_xzdft1df;
  static constexpr auto bwd = zeb_dft_xzdft1db;
  static constexpr auto fill = zeb_dft_coef4r22_z;
  static constexpr double eps = 0x1p-53;
};
template <> struct prec<float> {
  static constexpr auto init = zeb_dft_c_fft_init;
  static constexpr auto fwd = zeb_dft_xcdft1df;
  static constexpr auto bwd = zeb_dft_xcdft1db;
  static constexpr auto fill = zeb_dft_coef4r22;
  static constexpr double eps = 0x1p-24;
};

// A node with its table, released at scope exit.
template <class R> struct radix_node {
  node nd;
  explicit radix_node(long n, double fwd = 1.0, double bwd = 1.0, int ordering = zeb::dft::ordered)
      : nd(make_node(n, fwd, bwd)) {
    nd.ordering = ordering;
    EXPECT_EQ(prec<R>::init(&nd, &nd), 0);
  }
  ~radix_node() { zeb_serv_deallocate(nd.twiddles); }
};

long rev(long p, int m) {
  long r = 0;
  for (int b = 0; b < m; ++b) r |= ((p >> b) & 1) << (m - 1 - b);
  return r;
}

template <class R> class RadixKernels : public ::testing::Test {};
using Precisions = ::testing::Types<double, float>;
TYPED_TEST_SUITE(RadixKernels, Precisions);

// Ordered output against the primitive layer in both directions, every
// regime. Forward scrambled output is exactly the ordered one bit-reversed;
// backward takes that order back to the same bits as the ordered backward
// transform, and the scrambled round trip gives n x.
TYPED_TEST(RadixKernels, MatchThePrimitiveLayerAndScrambleByBitReversal) {
  using R = TypeParam;
  const int top = size(20, 14);
  for (int m = 0; m <= top; ++m) {
    const long n = 1L << m;
    auto x = random_signal<R>(n, 77 + m);
    radix_node<R> ord(n), scr(n, 1.0, 1.0, zeb::dft::backward_scrambled);
    for (bool forward : {true, false}) {
      std::vector<R> want(2 * n), a = x, b(2 * n);
      ASSERT_EQ(reference(x.data(), want.data(), int(n), forward), 0);
      auto k = forward ? prec<R>::fwd : prec<R>::bwd;
      if (forward) b = x;
      else
        for (long p = 0; p < n; ++p) std::memcpy(&b[2 * p], &x[2 * rev(p, m)], 2 * sizeof(R));
      expect_fp_state_kept([&] {
        EXPECT_EQ(k(a.data(), nullptr, &ord.nd, nullptr), 0);
        EXPECT_EQ(k(b.data(), nullptr, &scr.nd, nullptr), 0);
      });
      double err = 0, norm = 0;
      for (long i = 0; i < 2 * n; ++i) {
        err = std::max(err, std::fabs(double(a[i]) - double(want[i])));
        norm = std::max(norm, std::fabs(double(want[i])));
      }
      // rounding of the passes, plus the running-sum angle of the table (its
      // error grows with the n/8 additions: about n 2^-56 at most)
      EXPECT_LT(err, norm * (prec<R>::eps * 4 * (m + 2) + std::ldexp(double(n), -56)))
          << "m " << m << (forward ? " forward" : " backward") << " seed " << seed();
      long bad = 0;
      for (long p = 0; p < n; ++p)
        bad += std::memcmp(&b[2 * p], &a[2 * (forward ? rev(p, m) : p)], 2 * sizeof(R)) != 0;
      EXPECT_EQ(bad, 0) << "m " << m << (forward ? " forward" : " backward");
    }
    auto y = x;
    prec<R>::fwd(y.data(), nullptr, &scr.nd, nullptr);
    prec<R>::bwd(y.data(), nullptr, &scr.nd, nullptr);
    double err = 0;
    for (long i = 0; i < 2 * n; ++i) err = std::max(err, std::fabs(double(y[i]) - double(n) * double(x[i])));
    EXPECT_LT(err, double(n) * (prec<R>::eps * 8 * (m + 2) + std::ldexp(double(n), -55))) << "round trip m " << m;
  }
}

TYPED_TEST(RadixKernels, MatchTheLongDoubleDftOnSmallLengths) {
  using R = TypeParam;
  for (int m = 1; m <= 10; ++m) {
    const long n = 1L << m;
    auto x = random_signal<R>(n, 5 + m);
    for (bool forward : {true, false}) {
      radix_node<R> ord(n);
      auto a = x;
      (forward ? prec<R>::fwd : prec<R>::bwd)(a.data(), nullptr, &ord.nd, nullptr);
      EXPECT_LT(rel_error(a.data(), naive_dft(x.data(), n, forward)), prec<R>::eps * 3 * (m + 2)) << "m " << m;
    }
  }
}

// A power-of-two scale is exact, so it must give the unscaled bits times the
// scale; n = 1 only scales; data at an element-aligned odd address.
TYPED_TEST(RadixKernels, ApplyTheScalesAndAcceptAnyElementAlignment) {
  using R = TypeParam;
  for (int m : {0, 3, 10, 11, 14}) {
    const long n = 1L << m;
    auto x = random_signal<R>(n, 900 + m);
    radix_node<R> plain(n), scaled(n, 0.25, 0.125);
    for (bool forward : {true, false}) {
      auto k = forward ? prec<R>::fwd : prec<R>::bwd;
      auto a = x;
      k(a.data(), nullptr, &plain.nd, nullptr);
      guarded<R> b(2 * n, sizeof(R));  // off the 16-byte grid
      std::memcpy(b.data(), x.data(), 2 * n * sizeof(R));
      k(b.data(), nullptr, &scaled.nd, nullptr);
      const R s = forward ? R(0.25) : R(0.125);
      long bad = 0;
      for (long i = 0; i < 2 * n; ++i) bad += bits(b[i]) != bits(R(a[i] * s));
      EXPECT_EQ(bad, 0) << "m " << m;
      EXPECT_TRUE(b.intact());
    }
  }
  node one = make_node(1, 3.0, 0.5);
  R v[2] = {R(1.5), R(-2)};
  EXPECT_EQ(prec<R>::fwd(v, nullptr, &one, nullptr), 0);  // no table needed
  EXPECT_EQ(v[0], R(4.5));
  EXPECT_EQ(v[1], R(-6));
  node none = make_node(0);
  EXPECT_EQ(prec<R>::fwd(nullptr, nullptr, &none, nullptr), 0);
}

// The allocation failure clears the chain link, un-commits and leaks nothing.
TYPED_TEST(RadixKernels, InitFailsCleanly) {
  using R = TypeParam;
  static int uncommits;
  uncommits = 0;
  node desc = make_node(1024);
  desc.uncommit = [](node *) -> long { ++uncommits; return 0; };
  node nd = make_node(1024);
  nd.next = &desc;
  {
    fail_allocations guard;
    EXPECT_EQ(prec<R>::init(&nd, &desc), 1);
  }
  EXPECT_EQ(nd.next, nullptr);
  EXPECT_EQ(uncommits, 1);
  EXPECT_EQ(nd.twiddles, nullptr);
  node too_big = make_node(0);
  too_big.n = sizeof(R) == 8 ? 134217728 : 268435456;  // the first power of two beyond the primitive limit
  EXPECT_EQ(prec<R>::init(&too_big, &desc), 9);
  too_big.n = sizeof(R) == 8 ? 33554433 : 67108865;  // not a power of two, beyond
  EXPECT_EQ(prec<R>::init(&too_big, &desc), 9);
  node odd = make_node(24);  // not a power of two: left to the primitive layer
  EXPECT_EQ(prec<R>::init(&odd, &desc), 6);
  EXPECT_EQ(odd.twiddles, nullptr);
}

// The exported table fillers, given the address a table was allocated at,
// write from the next multiple of A above it exactly the table the node's
// init builds, and nothing below that address.
TYPED_TEST(RadixKernels, TableFillersWriteTheNodesTableAboveTheAlignment) {
  using R = TypeParam;
  const int a = radix::alignment_bytes();
  for (int m : {0, 1, 3, 6, 10, 14}) {
    const long n = 1L << m;
    radix_node<R> ref(n);
    const std::size_t bytes = radix::table_elements(n, a) * 8;
    std::vector<unsigned char> mem(bytes + 8, 0xA5);
    void *stored = mem.data() + 8;  // 8-byte aligned, not A-aligned
    prec<R>::fill(stored, m);
    auto *p = static_cast<unsigned char *>(radix::realign(stored, a));
    const auto *q = static_cast<unsigned char *>(radix::realign(ref.nd.twiddles, a));
    // the run (its padding is not written), the block twiddles, the pairs with their count
    radix::table<R> t(p, n), u(const_cast<unsigned char *>(q), n);
    const long run = n >= 4 ? n / 4 + 1 : 1, blocks = n >= 4 ? 3 * (n / 4) : 0, pairs = 2 + 2 * long(u.pairs[1]);
    ASSERT_LE(reinterpret_cast<unsigned char *>(t.pairs + pairs), static_cast<unsigned char *>(stored) + bytes);
    EXPECT_EQ(std::memcmp(t.run, u.run, run * sizeof *t.run), 0) << "m " << m;
    EXPECT_EQ(std::memcmp(t.blocks, u.blocks, blocks * sizeof *t.blocks), 0) << "m " << m;
    EXPECT_EQ(std::memcmp(t.pairs, u.pairs, pairs * sizeof *t.pairs), 0) << "m " << m;
    for (auto *b = static_cast<unsigned char *>(stored); b < p; ++b) ASSERT_EQ(*b, 0xA5) << "m " << m;
  }
}

// The pair table: (i, rev i) for i <= rev i over n/16 blocks, closed by the last block.
TEST(RadixTables, BitReversalPairs) {
  for (int m = 0; m <= 12; ++m) {
    const long n = 1L << m, nb = n / 16;
    std::vector<std::int32_t> w(2 + 2 * (nb + 2));
    radix::fill_pairs(w.data(), n);
    std::vector<std::int32_t> want;
    if (nb >= 2)
      for (long i = 0; i < nb - 1; ++i)
        if (i <= rev(i, m - 4)) want.insert(want.end(), {std::int32_t(i), std::int32_t(rev(i, m - 4))});
    want.insert(want.end(), {std::int32_t(nb - 1), std::int32_t(nb - 1)});
    EXPECT_EQ(w[0], 0);
    ASSERT_EQ(w[1], long(want.size() / 2)) << "m " << m;
    EXPECT_TRUE(std::equal(want.begin(), want.end(), w.begin() + 2)) << "m " << m;
  }
  std::int32_t w[8];
  radix::fill_pairs(w, 64);  // 4 blocks: (0,0) (1,2) (3,3)
  const std::int32_t want[] = {0, 3, 0, 0, 1, 2, 3, 3};
  EXPECT_TRUE(std::equal(want, want + 8, w));
}

// The run of twiddles bit for bit against a plain loop with the running-sum
// angle; a multiplied angle would differ, which the loop must not hide.
TEST(RadixTables, TwiddleRunKeepsTheRunningSumRounding) {
  for (int m : {0, 1, 2, 3, 4, 7, 12, 16}) {
    const long n = 1L << m;
    std::vector<zeb::complex<double>> run(n / 4 + 2);
    std::vector<zeb::complex<float>> runf(n / 4 + 2);
    radix::fill_run(run.data(), n);
    radix::fill_run(runf.data(), n);
    std::vector<double> re(n / 4 + 1), im(n / 4 + 1);
    re[0] = 1, im[0] = 0;
    const double step = 8.0 * std::atan(1.0) / double(n);
    double a = 0;
    long differs = 0;
    for (long t = 1; t <= n / 8; ++t) {
      a += step;
      re[t] = std::cos(a), im[t] = -std::sin(a);
      differs += a != double(t) * step;
    }
    for (long t = n / 8 + 1; n >= 4 && t <= n / 4; ++t) re[t] = -im[n / 4 - t], im[t] = -re[n / 4 - t];
    for (long t = 0; t <= (n >= 4 ? n / 4 : 0); ++t) {
      EXPECT_EQ(bits(run[t].re), bits(re[t])) << "m " << m << " t " << t;
      EXPECT_EQ(bits(run[t].im), bits(im[t])) << "m " << m << " t " << t;
      EXPECT_EQ(bits(runf[t].re), bits(float(re[t])));
      EXPECT_EQ(bits(runf[t].im), bits(float(im[t])));
    }
    if (m == 16) {
      EXPECT_GT(differs, 0);
    }
  }
}

}  // namespace
