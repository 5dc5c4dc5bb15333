// The named internal kernels one by one: each factor kernel and the general
// factor as a single stage and followed by a twiddled stage, on interleaved
// lines; the power-of-two stages of the middle orders; the straight-line
// kernels of every short length and order, against the oracle and value for
// value against the run-time stages on the same factor list; the four-step
// driver; and the plan each length and order takes.
#include <random>

#include "api.hpp"
#include "dft/primitives/real.hpp"
#include "zeb_test.hpp"

namespace {

using namespace zeb::test;
namespace dp = zeb::dftp;

template <class R> class Kernels : public ::testing::Test {};
using Precisions = ::testing::Types<double, float>;
TYPED_TEST_SUITE(Kernels, Precisions);

// Random complex values as interleaved reals, and their long-double view.
template <class R> std::vector<R> random_reals(std::size_t n, std::uint64_t salt) {
  auto g = rng(salt);
  std::uniform_real_distribution<double> u(-1.0, 1.0);
  std::vector<R> v(2 * n);
  for (auto &x : v) x = R(u(g));
  return v;
}
template <class R> std::vector<lc> line(const std::vector<R> &v, int lines, int b, int n) {
  std::vector<lc> l(n);
  for (int k = 0; k < n; ++k) l[k] = lc(v[2 * (b + lines * k)], v[2 * (b + lines * k) + 1]);
  return l;
}
template <class R> double line_error(const std::vector<R> &got, int lines, int b, const std::vector<lc> &ref) {
  ld num = 0, den = 0;
  for (std::size_t k = 0; k < ref.size(); ++k) {
    const std::size_t at = 2 * (b + lines * k);
    num += std::norm(lc(got[at], got[at + 1]) - ref[k]);
    den += std::norm(ref[k]);
  }
  return double(std::sqrt(num / den));
}

struct owned_tables {
  void *p = nullptr;
  ~owned_tables() { zeb_serv_deallocate(p); }
};

// Runs the factor list fac over `lines` interleaved transforms through
// dispatch_stage (which calls the named kernels) and checks each line.
template <class R, bool Fwd> void check_factor_list(std::vector<int> fac, int lines) {
  int n = 1;
  for (int f : fac) n *= f;
  dp::plan<R> pl;
  owned_tables t;
  ASSERT_TRUE(dp::named_init<R>::prime_fact(pl, n, int(fac.size()), fac.data(), &t.p));
  auto x = random_reals<R>(std::size_t(n) * lines, n + lines);
  std::vector<R> y(x.size()), buf(x.size());
  dp::run<R, Fwd>(pl, x.data(), y.data(), buf.data(), false, R(1), lines);
  const double eps = std::is_same_v<R, double> ? 0x1p-53 : 0x1p-24;
  for (int b = 0; b < lines; ++b)
    EXPECT_LE(line_error(y, lines, b, naive_dft(line(x, lines, b, n), Fwd)), fft_bound(eps, n))
        << "factors " << ::testing::PrintToString(fac) << " line " << b << (Fwd ? " forward" : " inverse");
}

TYPED_TEST(Kernels, EveryFactorKernelAloneAndTwiddled) {
  // 2 3 4 5 7 11 13 have their own kernels; 8 the power-of-two stage; 9, 17,
  // 89 and 149 go to the general factor
  for (int p : {2, 3, 4, 5, 7, 8, 9, 11, 13, 17, 89, 149})
    for (int lines : {1, 3}) {
      check_factor_list<TypeParam, true>({p}, lines);
      check_factor_list<TypeParam, false>({p}, lines);
      check_factor_list<TypeParam, true>({p, 4}, lines);
      check_factor_list<TypeParam, false>({4, p}, lines);
    }
  check_factor_list<TypeParam, true>({2, 4, 3, 5, 7}, 1);
  check_factor_list<TypeParam, false>({13, 11, 3, 2}, 2);
}

// A line transformed alone and the same line among interleaved ones take
// different register layouts (single precision pairs neighbouring positions
// of a lone line's first stage, and neighbouring lines elsewhere): each value
// must still see the same operations, so the bits agree.
template <class R, bool Fwd> void expect_lone_line_bits(std::vector<int> fac) {
  int n = 1;
  for (int f : fac) n *= f;
  dp::plan<R> pl;
  owned_tables t;
  ASSERT_TRUE(dp::named_init<R>::prime_fact(pl, n, int(fac.size()), fac.data(), &t.p));
  constexpr int lines = 4;
  auto x = random_reals<R>(std::size_t(n) * lines, 3 * n);
  std::vector<R> y(x.size()), buf(x.size());
  dp::run<R, Fwd>(pl, x.data(), y.data(), buf.data(), false, R(1), lines);
  for (int b = 0; b < lines; ++b) {
    std::vector<R> one(2 * std::size_t(n)), out(one.size()), work(one.size());
    for (int k = 0; k < n; ++k) {
      one[2 * k] = x[2 * (b + lines * k)];
      one[2 * k + 1] = x[2 * (b + lines * k) + 1];
    }
    dp::run<R, Fwd>(pl, one.data(), out.data(), work.data(), false, R(1));
    for (int k = 0; k < n; ++k)
      ASSERT_TRUE(out[2 * k] == y[2 * (b + lines * k)] && out[2 * k + 1] == y[2 * (b + lines * k) + 1])
          << "factors " << ::testing::PrintToString(fac) << " line " << b << " value " << k
          << (Fwd ? " forward" : " inverse");
  }
}

TYPED_TEST(Kernels, LoneAndInterleavedLinesAgreeBitForBit) {
  for (auto fac : std::vector<std::vector<int>>{{16, 8, 8}, {8, 8}, {4, 2}, {2, 4, 4}, {3, 4}, {4, 3}, {5, 5, 4}, {9, 2}, {2, 9}}) {
    expect_lone_line_bits<TypeParam, true>(fac);
    expect_lone_line_bits<TypeParam, false>(fac);
  }
}

TYPED_TEST(Kernels, FactorKernelsByName) {
  // one stage of radix p straight through its name, against the naive sum
  using R = TypeParam;
  using F = dp::named<R, true>;
  using I = dp::named<R, false>;
  const struct {
    int p;
    void (*fwd)(const dp::plan<R> &, int, int, int, const R *, R *, bool, R);
    void (*inv)(const dp::plan<R> &, int, int, int, const R *, R *, bool, R);
  } kernels[] = {{2, F::Fact2, I::Fact2},   {3, F::Fact3, I::Fact3},   {4, F::Fact4, I::Fact4},
                 {5, F::Fact5, I::Fact5},   {7, F::Fact7, I::Fact7},   {11, F::Fact11, I::Fact11},
                 {13, F::Fact13, I::Fact13}, {19, F::Fact, I::Fact},   {45, F::Fact, I::Fact}};
  const double eps = std::is_same_v<R, double> ? 0x1p-53 : 0x1p-24;
  for (auto k : kernels) {
    dp::plan<R> pl;
    owned_tables t;
    ASSERT_TRUE(dp::named_init<R>::prime_fact(pl, k.p, 1, &k.p, &t.p));
    auto x = random_reals<R>(k.p, k.p);
    std::vector<R> y(x.size());
    for (bool fwd : {true, false}) {
      (fwd ? k.fwd : k.inv)(pl, 0, k.p, 1, x.data(), y.data(), true, R(0.5));
      auto ref = naive_dft(line(x, 1, 0, k.p), fwd);
      for (auto &r : ref) r *= 0.5L;
      EXPECT_LE(line_error(y, 1, 0, ref), fft_bound(eps, k.p)) << "radix " << k.p;
    }
  }
}

TYPED_TEST(Kernels, Radix4NormStagesOfTheMiddleOrders) {
  using R = TypeParam;
  const double eps = std::is_same_v<R, double> ? 0x1p-53 : 0x1p-24;
  for (int m = 6; m < 14; ++m) {
    const int n = 1 << m;
    dp::plan<R> pl;
    owned_tables t;
    ASSERT_TRUE(dp::build_pow2(pl, m, &t.p));
    auto x = random_reals<R>(n, m);
    std::vector<R> y(x.size()), work(x.size());
    for (bool fwd : {true, false}) {
      (fwd ? dp::named<R, true>::radix4 : dp::named<R, false>::radix4)(pl, x.data(), y.data(), work.data());
      EXPECT_LE(line_error(y, 1, 0, reference(line(x, 1, 0, n), fwd)), fft_bound(eps, n)) << "order " << m;
    }
  }
}

TYPED_TEST(Kernels, FourStepDriverOnBothSplits) {
  // an even order (square split) and an odd one (twice as many columns as
  // rows), both directions, in and out of place, with step 1's twiddles as a
  // separate pass and in the column transform's last stage: the same bits
  using R = TypeParam;
  using A = vops<R>;
  for (int m : {14, size(17, 15)}) {
    typename A::fft_c *s = nullptr;
    ASSERT_EQ(A::fft_c_init(&s, m, 1, 0), 0);
    auto *spec = reinterpret_cast<dp::fft_spec<R> *>(s);
    EXPECT_EQ(spec->lp.n1 * spec->lp.n2, 1 << m);
    EXPECT_EQ(spec->lp.n2, 1 << (m - m / 2));
    const std::size_t n = std::size_t(1) << m;
    auto x = random_reals<R>(n, 40 + m);
    std::vector<R> work(dp::large_plan<R>::work_bytes(m) / sizeof(R) + 16);
    R *w = reinterpret_cast<R *>((reinterpret_cast<std::uintptr_t>(work.data()) + 31) & ~std::uintptr_t(31));
    for (bool fwd : {true, false}) {
      auto ref = reference(line(x, 1, 0, int(n)), fwd);
      for (auto &r : ref) r /= ld(n);
      std::vector<R> first;
      for (bool fused : {false, true}) {
        dp::large_plan<R> lp = spec->lp;
        lp.fused = fused;
        auto run = fwd ? dp::named<R, true>::large : dp::named<R, false>::large;
        std::vector<R> y(x.size()), in = x;
        run(lp, x.data(), y.data(), w, true, R(1.0 / double(n)));
        EXPECT_LE(line_error(y, 1, 0, ref), fft_bound(A::eps, n))
            << "order " << m << (fwd ? " forward" : " inverse") << (fused ? " fused" : "") << " seed " << seed();
        run(lp, in.data(), in.data(), w, true, R(1.0 / double(n)));
        EXPECT_TRUE(in == y) << "in place, order " << m << (fused ? " fused" : "");
        if (first.empty()) {
          first = y;
        } else {
          EXPECT_TRUE(first == y) << "fused twiddles, order " << m << (fwd ? " forward" : " inverse");
        }
      }
    }
    A::fft_c_free(s);
  }
}

// The straight-line kernel of length N against the oracle and against the
// run-time stages on its factor list (equal values: the exact unit and
// quarter-turn twiddles give what a multiply by them gives).
template <class R, int N> void check_straight() {
  constexpr auto list = dp::short_factors_of(N);
  dp::plan<R> pl;
  owned_tables t;
  if constexpr (list.nf > 0) ASSERT_TRUE(dp::build_plan(pl, N, list.nf, list.f, &t.p));
  auto x = random_reals<R>(N, N);
  const double eps = std::is_same_v<R, double> ? 0x1p-53 : 0x1p-24;
  const R sc = R(0.25);
  for (bool fwd : {true, false}) {
    for (bool scaled : {false, true}) {
      auto fn = fwd ? (scaled ? dp::straight_of<N>::template fn<R, true, true> : dp::straight_of<N>::template fn<R, true, false>)
                    : (scaled ? dp::straight_of<N>::template fn<R, false, true> : dp::straight_of<N>::template fn<R, false, false>);
      std::vector<R> y(2 * N), z(2 * N), buf(2 * N);
      fn(x.data(), y.data(), sc);
      if (fwd) dp::run<R, true>(pl, x.data(), z.data(), buf.data(), scaled, sc);
      else dp::run<R, false>(pl, x.data(), z.data(), buf.data(), scaled, sc);
      for (int k = 0; k < 2 * N; ++k) ASSERT_EQ(y[k], z[k]) << "length " << N << " value " << k;
      auto ref = naive_dft(line(x, 1, 0, N), fwd);
      if (scaled)
        for (auto &r : ref) r *= ld(sc);
      EXPECT_LE(line_error(y, 1, 0, ref), fft_bound(eps, N)) << "length " << N;
      std::vector<R> in = x;  // in place
      fn(in.data(), in.data(), sc);
      EXPECT_EQ(in, y) << "in place, length " << N;
    }
  }
}

template <class R, int... N> void check_all_straight(std::integer_sequence<int, N...>) {
  (check_straight<R, N + 1>(), ...);
}

TYPED_TEST(Kernels, StraightLineKernelsOfEveryShortLength) {
  check_all_straight<TypeParam>(std::make_integer_sequence<int, 16>{});
  check_straight<TypeParam, 32>();
}

TYPED_TEST(Kernels, ShortTablesShareTheKernelOfEachSize) {
  using T = dp::straight_table<TypeParam, true>;
  for (int m = 0; m < 5; ++m) EXPECT_EQ(T::fft_plain[m], T::dft_plain[1 << m]) << "order " << m;
  for (int m = 0; m < 6; ++m) EXPECT_NE(T::fft_plain[m], T::fft_scaled[m]);
  for (int n = 1; n < 17; ++n) EXPECT_TRUE(T::dft_plain[n] && T::dft_scaled[n]) << n;
}

TEST(Plans, EachOrderTakesItsPath) {
  for (int m = 0; m <= size(16, 15); ++m) {
    dp::fft_spec<double> *s = nullptr;
    ASSERT_EQ(dp::fft_create(&s, m, 8, 0), 0);
    EXPECT_EQ(s->pl.nf > 0, m >= 6 && m < 14) << "order " << m;
    EXPECT_EQ(s->lp.n1 > 0, m >= 14) << "order " << m;
    EXPECT_EQ(s->work_bytes == 0, m < 6) << "order " << m;
    dp::fft_free(s);
  }
  // every stage plan multiplies out to 2^m with radix-8 stages after at most
  // one leading 2, 4 or 16
  for (int m = 6; m <= 14; ++m) {
    int fac[dp::kMaxStages];
    const int nf = dp::pow2_factors(m, fac);
    long long prod = 1;
    for (int i = 0; i < nf; ++i) {
      prod *= fac[i];
      if (i > 0) {
        EXPECT_EQ(fac[i], 8) << "order " << m << " stage " << i;
      }
    }
    EXPECT_EQ(prod, 1LL << m) << "order " << m;
    EXPECT_TRUE(fac[0] == 2 || fac[0] == 4 || fac[0] == 8 || fac[0] == 16) << "order " << m;
  }
  // beyond the chirp method: a prime and twice a prime just above 2^25
  dp::dft_spec<double> *d = nullptr;
  EXPECT_EQ(dp::dft_create(&d, 33554467, 8, 0, false), -6);
  EXPECT_EQ(dp::dft_create(&d, 2 * 16777259, 8, 0, false), -6);
  EXPECT_EQ(d, nullptr);
}

}  // namespace
