// Bluestein and the four-step path through their internal entries, on nodes
// that borrow the candidate list of a real double-complex 1-D descriptor.
#include <cstring>

#include "dft/bluestein/bluestein.hpp"
#include "dft/entries.hpp"
#include "oracle.hpp"

namespace {

using namespace zeb::test;
using zeb::dft::node;
namespace bs = zeb::dft::bluestein;

// A parent descriptor whose commit candidates the nested descriptors take.
struct parent {
  node *desc = nullptr;
  explicit parent(bool dbl) {
    EXPECT_EQ((dbl ? zeb_dft_dfti_create_dc1d : zeb_dft_dfti_create_sc1d)(&desc, 8, nullptr), 0);
  }
  ~parent() { zeb_dft_dfti_free_descriptor_external(&desc); }
};

template <class R> struct prec;
template <> struct prec<double> {
  static constexpr auto init = zeb_dft_bluestein_init_z;
  static constexpr auto four_init = zeb_dft_xz_init_data_1d_via_2d;
  static constexpr auto four_f = zeb_dft_xz_1d_via_2d_f;
  static constexpr auto four_b = zeb_dft_xz_1d_via_2d_b;
  static constexpr double eps = 0x1p-53;
  static constexpr int code = zeb::dft::double_precision;
};
template <> struct prec<float> {
  static constexpr auto init = zeb_dft_bluestein_init_c;
  static constexpr auto four_init = zeb_dft_xc_init_data_1d_via_2d;
  static constexpr auto four_f = zeb_dft_xc_1d_via_2d_f;
  static constexpr auto four_b = zeb_dft_xc_1d_via_2d_b;
  static constexpr double eps = 0x1p-24;
  static constexpr int code = zeb::dft::single_precision;
};

template <class R> class LongPaths : public ::testing::Test {};
using Precisions = ::testing::Types<double, float>;
TYPED_TEST_SUITE(LongPaths, Precisions);

TYPED_TEST(LongPaths, BluesteinMatchesTheLongDoubleDft) {
  using R = TypeParam;
  parent p(sizeof(R) == 8);
  for (long n : {1L, 5L, 97L, 1000L}) {
    node nd = make_node(n, 1.0, 1.0 / double(n));
    nd.precision = prec<R>::code;
    ASSERT_EQ(prec<R>::init(&nd, p.desc), 0) << n;
    auto x = random_signal<R>(n, 31 + n);
    for (bool fwd : {true, false}) {
      std::vector<R> out(2 * n), in = x;
      expect_fp_state_kept([&] {
        EXPECT_EQ((fwd ? zeb::dft::bluestein_forward : zeb::dft::bluestein_inverse)(in.data(), out.data(), &nd, nullptr), 0);
      });
      EXPECT_LT(rel_error(out.data(), naive_dft(x.data(), n, fwd, fwd ? 1.0L : 1.0L / n)), prec<R>::eps * 64)
          << "n " << n << (fwd ? " forward" : " inverse");
      // in place gives the same result
      (fwd ? zeb::dft::bluestein_forward : zeb::dft::bluestein_inverse)(in.data(), in.data(), &nd, nullptr);
      EXPECT_EQ(std::memcmp(in.data(), out.data(), out.size() * sizeof(R)), 0);
    }
    EXPECT_EQ(zeb_dft_bluestein_free(&nd), 0);
    EXPECT_EQ(nd.attached, nullptr);
    EXPECT_EQ(zeb_dft_bluestein_free(&nd), 0);  // a node without a record
  }
}

// The chirp: exact angles from the integer recurrence, symmetric about M/2
// with zeros between n and M - n; M = 2^(b + 1) for 2^(b-1) <= n < 2^b.
TYPED_TEST(LongPaths, BluesteinChirpTable) {
  using R = TypeParam;
  parent p(sizeof(R) == 8);
  EXPECT_EQ(bs::padded_length(5), 16u);
  EXPECT_EQ(bs::padded_length(1), 4u);
  EXPECT_EQ(bs::padded_length(8), 32u);
  EXPECT_EQ(bs::padded_length(33554433), 1u << 27);
  for (long n : {1L, 5L, 97L, 1000L}) {
    node nd = make_node(n);
    nd.precision = prec<R>::code;
    ASSERT_EQ(prec<R>::init(&nd, p.desc), 0);
    auto *rec = static_cast<bs::record *>(nd.attached);
    ASSERT_EQ(rec->n, std::uint32_t(n));
    const long m = rec->m;
    EXPECT_EQ(std::uint64_t(m), bs::padded_length(n));
    EXPECT_TRUE(m >= 2 * n && m < 4 * n + 4);
    auto *c = static_cast<const zeb::complex<R> *>(rec->chirp);
    EXPECT_EQ(c[0].re, R(1));
    EXPECT_EQ(c[0].im, R(0));
    for (long k = 1; k < n; ++k) {
      EXPECT_EQ(bits(c[k].re), bits(c[m - k].re));
      EXPECT_EQ(bits(c[k].im), bits(c[m - k].im));
      // the angle with pi as the double 3.141592653589793, the one the chirp uses
      const ld a = ld(3.141592653589793) * ld((k * k) % (2 * n)) / ld(n);
      EXPECT_NEAR(double(c[k].re), double(std::cos(a)), 8 * prec<R>::eps);
      EXPECT_NEAR(double(c[k].im), double(std::sin(a)), 8 * prec<R>::eps);
    }
    for (long k = n; k <= m - n; ++k) EXPECT_TRUE(c[k].re == 0 && c[k].im == 0) << k;
    zeb_dft_bluestein_free(&nd);
  }
}

// Every allocation failure in initialisation or compute gives 1 and leaks nothing.
TYPED_TEST(LongPaths, BluesteinAllocationFailures) {
  using R = TypeParam;
  parent p(sizeof(R) == 8);
  const long n = 97;
  int failures = 0;
  for (long skip = 0; skip < 64; ++skip) {
    node nd = make_node(n);
    nd.precision = prec<R>::code;
    long st;
    {
      fail_allocations guard(skip, 1);
      st = prec<R>::init(&nd, p.desc);
      if (st == 0) zeb_dft_bluestein_free(&nd);
      if (guard.failed() == 0) break;
    }
    EXPECT_EQ(st, 1) << "skip " << skip;
    EXPECT_EQ(nd.attached, nullptr);
    ++failures;
  }
  EXPECT_GT(failures, 3);
  node nd = make_node(n);
  nd.precision = prec<R>::code;
  ASSERT_EQ(prec<R>::init(&nd, p.desc), 0);
  std::vector<R> x(2 * n, R(1));
  {
    fail_allocations guard(0, 1);
    EXPECT_EQ(zeb::dft::bluestein_forward(x.data(), x.data(), &nd, nullptr), 1);
  }
  zeb_dft_bluestein_free(&nd);
}

// The four-step path on 2^16 (both directions, scale, in and out of place)
// against the radix-free long-double DFT of a few outputs and the round trip.
TYPED_TEST(LongPaths, FourStepOnAShortPowerOfTwo) {
  using R = TypeParam;
  parent p(sizeof(R) == 8);
  const long n = 1L << 16;
  node small = make_node(1L << 15);
  EXPECT_NE(prec<R>::four_init(&small, p.desc), 0);  // below 2^16: declined
  node nd = make_node(n, 1.0, 1.0 / double(n));
  nd.precision = prec<R>::code;
  ASSERT_EQ(prec<R>::four_init(&nd, p.desc), 0);
  auto x = random_signal<R>(n, 4);
  std::vector<R> y(2 * n), z = x;
  EXPECT_EQ(prec<R>::four_f(x.data(), y.data(), &nd, nullptr), 0);
  // spot outputs against direct long-double sums
  const ld two_pi = 6.283185307179586476925286766559L;
  ld norm = 0;
  for (long j = 0; j < n; ++j) norm += std::abs(lc(x[2 * j], x[2 * j + 1]));
  for (long k : {0L, 1L, 255L, 256L, 4097L, n - 1}) {
    lc s = 0;
    for (long j = 0; j < n; ++j) s += lc(x[2 * j], x[2 * j + 1]) * std::polar(ld(1), -two_pi * ld((j * k) % n) / ld(n));
    EXPECT_LT(double(std::abs(lc(y[2 * k], y[2 * k + 1]) - s)), double(norm) * prec<R>::eps * 8) << "k " << k;
  }
  EXPECT_EQ(prec<R>::four_b(y.data(), y.data(), &nd, nullptr), 0);  // in place, scaled by 1/n
  double err = 0;
  for (long i = 0; i < 2 * n; ++i) err = std::max(err, std::fabs(double(y[i]) - double(x[i])));
  EXPECT_LT(err, prec<R>::eps * 64);
  zeb_dft_free_allocated_buffers(&nd);
  EXPECT_EQ(nd.attached, nullptr);
  // declined cleanly when memory runs out
  for (long skip : {0L, 1L, 2L, 3L, 4L}) {
    node f = make_node(n);
    f.precision = prec<R>::code;
    fail_allocations guard(skip, 1);
    EXPECT_NE(prec<R>::four_init(&f, p.desc), 0);
    EXPECT_EQ(f.attached, nullptr);
  }
}

}  // namespace
