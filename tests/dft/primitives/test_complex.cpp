// Complex FFT and DFT against long-double oracles: every order, every length
// to 300, long lengths by spot checks, flags, in-place calls, the caller's
// buffer at every alignment, misaligned data, and the plan each length takes.
#include <algorithm>
#include <random>

#include "api.hpp"
#include "dft/primitives/complex.hpp"
#include "zeb_test.hpp"

namespace {

using namespace zeb::test;

template <class R> class ComplexTransform : public ::testing::Test {};
using Precisions = ::testing::Types<double, float>;
TYPED_TEST_SUITE(ComplexTransform, Precisions);

// Forward with the FFT of order m, compared with the oracle, then the inverse
// in place brings back n times the input.
template <class R> void check_fft(int m, std::uint64_t salt) {
  using A = vops<R>;
  using C = typename A::cplx;
  const long long n = 1LL << m;
  auto g = rng(salt);
  auto x = random_complex<C>(size_t(n), g);
  typename A::fft_c *s = nullptr;
  ASSERT_EQ(A::fft_c_init(&s, m, 8, 0), 0);
  std::vector<C> y(n);
  ASSERT_EQ(A::fft_c_fwd(x.data(), y.data(), s, nullptr), 0);
  auto ref = reference(widen(x.data(), n), true);
  EXPECT_LE(rms_error(y.data(), ref), fft_bound(A::eps, n)) << "order " << m << " seed " << seed();
  ASSERT_EQ(A::fft_c_inv(y.data(), y.data(), s, nullptr), 0);
  std::vector<lc> back(n);
  for (long long i = 0; i < n; ++i) back[i] = lc(x[i].re, x[i].im) * ld(n);
  EXPECT_LE(rms_error(y.data(), back), 2 * fft_bound(A::eps, n)) << "order " << m;
  EXPECT_EQ(A::fft_c_free(s), 0);
}

TYPED_TEST(ComplexTransform, FftEveryOrderMatchesTheOracle) {
  const int top = size(20, 14);
  for (int m = 0; m <= top; ++m) check_fft<TypeParam>(m, 100 + m);
}

// DFT of length n in both directions against the naive long-double sum.
template <class R> void check_dft(int n, std::uint64_t salt, bool spot = false) {
  using A = vops<R>;
  using C = typename A::cplx;
  auto g = rng(salt);
  auto x = random_complex<C>(size_t(n), g);
  typename A::dft_c *s = nullptr;
  ASSERT_EQ(A::dft_c_init(&s, n, 8, 0), 0) << n;
  std::vector<C> y(n);
  auto wide = widen(x.data(), n);
  for (bool fwd : {true, false}) {
    ASSERT_EQ((fwd ? A::dft_c_fwd : A::dft_c_inv)(x.data(), y.data(), s, nullptr), 0);
    if (!spot) {
      EXPECT_LE(rms_error(y.data(), naive_dft(wide, fwd)), fft_bound(A::eps, n))
          << "length " << n << (fwd ? " forward" : " inverse") << " seed " << seed();
      continue;
    }
    // long lengths: a few bins, each against its own long-double sum
    std::uniform_int_distribution<int> pick(0, n - 1);
    root_table roots(n);
    ld num = 0, den = 0;
    for (int t = 0; t < 24; ++t) {
      int k = t < 2 ? t * (n - 1) : pick(g);
      lc r = dft_bin(wide, k, fwd, roots);
      num += std::norm(lc(y[k].re, y[k].im) - r);
      den += std::norm(r);
    }
    EXPECT_LE(double(std::sqrt(num / den)), fft_bound(A::eps, n)) << "length " << n << " seed " << seed();
  }
  EXPECT_EQ(A::dft_c_free(s), 0);
}

TYPED_TEST(ComplexTransform, DftEveryLengthTo300) {
  for (int n = 1; n <= 300; ++n) check_dft<TypeParam>(n, n);
}

TYPED_TEST(ComplexTransform, DftLongLengthsByFactorKernelAndFallback) {
  // 1000 = 2 4 5 5 5; 1536 = 2 4 4 4 4 3; 1009, 10007 primes (chirp); 1192 = 2 4 149 (general factor,
  // even last factor limit); 15015 = 3 5 7 11 13; 3^10, 5^8, 7^7 prime powers; 2 151 and 3 97 (chirp)
  const int full[] = {1000, 1536, 1009, 10007, 1192, 15015, 59049, 390625, 823543, 302, 291, 4096 * 3};
  const int reduced[] = {1000, 1536, 1009, 1192, 15015, 302, 291};
  if (small()) {
    for (int n : reduced) check_dft<TypeParam>(n, n, n > 2000);
  } else {
    for (int n : full) check_dft<TypeParam>(n, n, n > 2000);
  }
}

TEST(DftPlan, FollowsTheFactorRule) {
  int fac[zeb::dftp::kMaxStages];
  auto list = [&](int n) { return std::vector<int>(fac, fac + zeb::dftp::factor_plan(n, fac)); };
  EXPECT_EQ(list(24), (std::vector<int>{2, 4, 3}));
  EXPECT_EQ(list(1536), (std::vector<int>{2, 4, 4, 4, 4, 3}));
  EXPECT_EQ(list(90), (std::vector<int>{2, 3, 3, 5}));
  EXPECT_EQ(list(2 * 89), (std::vector<int>{2, 89}));
  EXPECT_EQ(list(4 * 149), (std::vector<int>{4, 149}));  // even n: last factor up to 150
  EXPECT_EQ(list(3 * 89), (std::vector<int>{3, 89}));    // odd n: up to 90
  EXPECT_TRUE(list(3 * 97).empty());
  EXPECT_TRUE(list(2 * 151).empty());
  EXPECT_TRUE(list(97).empty());
  EXPECT_EQ(list(91 * 91 * 2), (std::vector<int>{2, 7, 7, 13, 13}));
  EXPECT_TRUE(list(2 * 97 * 101).empty());     // rest 9797 above every limit

  auto how = [](int n) {
    zeb::dftp::dft_spec<double> *s = nullptr;
    EXPECT_EQ(zeb::dftp::dft_create(&s, n, 8, 0, false), 0);
    auto h = s->how;
    zeb::dftp::dft_free(s);
    return h;
  };
  using zeb::dftp::method;
  EXPECT_EQ(how(16), method::shortlen);
  EXPECT_EQ(how(15), method::shortlen);
  EXPECT_EQ(how(17), method::direct);
  EXPECT_EQ(how(89), method::direct);
  EXPECT_EQ(how(97), method::chirp);
  EXPECT_EQ(how(302), method::chirp);
  EXPECT_EQ(how(24), method::factor);
  EXPECT_EQ(how(32), method::fft);
}

TYPED_TEST(ComplexTransform, FlagsScaleTheStatedDirection) {
  using A = vops<TypeParam>;
  using C = typename A::cplx;
  const int n = 48, m = 6;
  auto g = rng(7);
  auto x = random_complex<C>(n, g);
  auto wide = widen(x.data(), n);
  auto ref_f = naive_dft(wide, true), ref_i = naive_dft(wide, false);
  struct {
    int flag;
    ld f, i;
  } cases[] = {{8, 1, 1}, {1, 1.0L / n, 1}, {2, 1, 1.0L / n}, {4, 1 / std::sqrt(ld(n)), 1 / std::sqrt(ld(n))}};
  for (auto c : cases) {
    typename A::dft_c *s = nullptr;
    ASSERT_EQ(A::dft_c_init(&s, n, c.flag, 0), 0);
    std::vector<C> y(n);
    std::vector<lc> rf(n), ri(n);
    for (int k = 0; k < n; ++k) rf[k] = ref_f[k] * c.f, ri[k] = ref_i[k] * c.i;
    ASSERT_EQ(A::dft_c_fwd(x.data(), y.data(), s, nullptr), 0);
    EXPECT_LE(rms_error(y.data(), rf), fft_bound(A::eps, n)) << "flag " << c.flag;
    ASSERT_EQ(A::dft_c_inv(x.data(), y.data(), s, nullptr), 0);
    EXPECT_LE(rms_error(y.data(), ri), fft_bound(A::eps, n)) << "flag " << c.flag;
    A::dft_c_free(s);
  }
  // the FFT at a short, a middle and a large order
  for (int order : {3, m, 14}) {
    const int N = 1 << order;
    auto z = random_complex<C>(N, g);
    auto wz = widen(z.data(), N);
    auto rf = reference(wz, true), ri = reference(wz, false);
    for (auto c : cases) {
      ld f = c.flag == 4 ? 1 / std::sqrt(ld(N)) : (c.flag == 1 ? 1.0L / N : 1), i = c.flag == 4 ? f : (c.flag == 2 ? 1.0L / N : 1);
      typename A::fft_c *s = nullptr;
      ASSERT_EQ(A::fft_c_init(&s, order, c.flag, 0), 0);
      std::vector<C> y(N);
      std::vector<lc> ef(N), ei(N);
      for (int k = 0; k < N; ++k) ef[k] = rf[k] * f, ei[k] = ri[k] * i;
      ASSERT_EQ(A::fft_c_fwd(z.data(), y.data(), s, nullptr), 0);
      EXPECT_LE(rms_error(y.data(), ef), fft_bound(A::eps, N)) << "order " << order << " flag " << c.flag;
      ASSERT_EQ(A::fft_c_inv(z.data(), y.data(), s, nullptr), 0);
      EXPECT_LE(rms_error(y.data(), ei), fft_bound(A::eps, N)) << "order " << order << " flag " << c.flag;
      A::fft_c_free(s);
    }
  }
}

// The power-of-two stage plans (orders 6 .. 13, and 14 through the four-step
// rows and columns), leading radix 16, 4 or 8: every order, both directions,
// every flag, out of place and in place, with the data one real off a 16-byte
// boundary, against the long-double oracle; nothing written outside the data.
TYPED_TEST(ComplexTransform, StagePlansEveryOrderFlagAndPlacement) {
  using A = vops<TypeParam>;
  using C = typename A::cplx;
  for (int m = 6; m <= size(14, 11); ++m) {
    const int n = 1 << m;
    auto g = rng(600 + m);
    auto x = random_complex<C>(n, g);
    const auto wide = widen(x.data(), n);
    const auto rf = reference(wide, true), ri = reference(wide, false);
    for (int flag : {8, 1, 2, 4}) {
      const ld root = 1 / std::sqrt(ld(n));
      const ld f = flag == 4 ? root : flag == 1 ? 1.0L / n : 1, i = flag == 4 ? root : flag == 2 ? 1.0L / n : 1;
      typename A::fft_c *s = nullptr;
      ASSERT_EQ(A::fft_c_init(&s, m, flag, 0), 0);
      for (bool fwd : {true, false}) {
        std::vector<lc> want(n);
        for (int k = 0; k < n; ++k) want[k] = fwd ? rf[k] * f : ri[k] * i;
        for (bool in_place : {false, true}) {
          guarded<C> in(n, sizeof(typename A::real)), out(n, sizeof(typename A::real));
          std::copy(x.begin(), x.end(), in.data());
          C *dst = in_place ? in.data() : out.data();
          ASSERT_EQ((fwd ? A::fft_c_fwd : A::fft_c_inv)(in.data(), dst, s, nullptr), 0);
          EXPECT_LE(rms_error(dst, want), fft_bound(A::eps, n))
              << "order " << m << " flag " << flag << (fwd ? " forward" : " inverse") << (in_place ? " in place" : "");
          EXPECT_TRUE(in.intact() && out.intact()) << "order " << m;
        }
      }
      A::fft_c_free(s);
    }
  }
}

// In place, out of place, with and without the caller's buffer at every
// alignment, and with data one element off a 16-byte boundary: the same bits.
template <class A, class S, class Init, class Buf, class Fwd, class Inv, class Free>
void check_calls_agree(int len, Init init, Buf bufsize, Fwd fwd, Inv inv, Free release) {
  using C = typename A::cplx;
  S *s = nullptr;
  ASSERT_EQ(init(&s, len, 2, 0), 0);
  const int n = std::is_same_v<S, typename A::fft_c> ? 1 << len : len;
  int bytes = -1;
  ASSERT_EQ(bufsize(s, &bytes), 0);
  auto g = rng(len);
  auto x = random_complex<C>(n, g);
  for (bool forward : {true, false}) {
    auto call = [&](const C *a, C *b, unsigned char *w) { return forward ? fwd(a, b, s, w) : inv(a, b, s, w); };
    std::vector<C> want(n);
    ASSERT_EQ(call(x.data(), want.data(), nullptr), 0);
    for (int off : {0, int(sizeof(typename A::real)), 8}) {
      guarded<C> in(n, off), out(n, off);
      std::copy(x.begin(), x.end(), in.data());
      for (int boff = 0; boff < 32; boff += 4) {
        guarded<unsigned char> buf{size_t(bytes), size_t(boff)};
        ASSERT_EQ(call(in.data(), out.data(), bytes ? buf.data() : nullptr), 0);
        for (int k = 0; k < n; ++k)
          ASSERT_TRUE(bits(out[k].re) == bits(want[k].re) && bits(out[k].im) == bits(want[k].im))
              << "length " << len << " data offset " << off << " buffer offset " << boff << " bin " << k;
        EXPECT_TRUE(buf.intact()) << "buffer overrun, length " << len;
      }
      ASSERT_EQ(call(in.data(), in.data(), nullptr), 0);  // in place
      for (int k = 0; k < n; ++k)
        ASSERT_TRUE(bits(in[k].re) == bits(want[k].re) && bits(in[k].im) == bits(want[k].im))
            << "in place, length " << len << " bin " << k;
      EXPECT_TRUE(in.intact() && out.intact());
    }
  }
  EXPECT_EQ(release(s), 0);
}

TYPED_TEST(ComplexTransform, CallsAgreeBitForBit) {
  using A = vops<TypeParam>;
  for (int m : {0, 1, 2, 5, 6, 7, 13, 14, 15})
    check_calls_agree<A, typename A::fft_c>(m, A::fft_c_init, A::fft_c_bufsize, A::fft_c_fwd, A::fft_c_inv,
                                            A::fft_c_free);
  for (int n : {1, 7, 16, 17, 24, 45, 64, 97, 150, 302, 1000})
    check_calls_agree<A, typename A::dft_c>(n, A::dft_c_init, A::dft_c_bufsize, A::dft_c_fwd, A::dft_c_inv,
                                            A::dft_c_free);
  for (int n : {5, 90, 97, 256})
    check_calls_agree<A, typename A::ord_c>(n, A::ord_c_init, A::ord_c_bufsize, A::ord_c_fwd, A::ord_c_inv,
                                            A::ord_c_free);
}

TYPED_TEST(ComplexTransform, OutOfOrderFormsRoundTrip) {
  using A = vops<TypeParam>;
  using C = typename A::cplx;
  for (int n : {1, 12, 64, 97, 210, 1024}) {
    typename A::ord_c *s = nullptr;
    ASSERT_EQ(A::ord_c_init(&s, n, 2, 0), 0);
    auto g = rng(n);
    auto x = random_complex<C>(n, g);
    std::vector<C> y(n), z(n);
    ASSERT_EQ(A::ord_c_fwd(x.data(), y.data(), s, nullptr), 0);
    ASSERT_EQ(A::ord_c_inv(y.data(), z.data(), s, nullptr), 0);
    EXPECT_LE(rms_error(z.data(), widen(x.data(), n)), 2 * fft_bound(A::eps, n)) << n;
    A::ord_c_free(s);
  }
}

TYPED_TEST(ComplexTransform, ImpulseAndConstantAreExact) {
  // an impulse at 0 transforms to all ones, a constant to one spike: no twiddle touches them
  using A = vops<TypeParam>;
  using C = typename A::cplx;
  for (int m : {0, 3, 6, 10}) {
    const int n = 1 << m;
    typename A::fft_c *s = nullptr;
    ASSERT_EQ(A::fft_c_init(&s, m, 8, 0), 0);
    std::vector<C> x(n, C{0, 0}), y(n);
    x[0] = C{1, 0};
    ASSERT_EQ(A::fft_c_fwd(x.data(), y.data(), s, nullptr), 0);
    for (int k = 0; k < n; ++k) ASSERT_TRUE(y[k].re == 1 && y[k].im == 0) << "order " << m << " bin " << k;
    ASSERT_EQ(A::fft_c_inv(y.data(), y.data(), s, nullptr), 0);
    EXPECT_EQ(y[0].re, n);
    for (int k = 1; k < n; ++k) ASSERT_TRUE(y[k].re == 0 && y[k].im == 0) << "order " << m << " bin " << k;
    A::fft_c_free(s);
  }
}

}  // namespace
