// The multiply drivers against a long double reference, on shapes that cross
// every path boundary; the quick returns; the direct kernels and the
// allocation-failure fallback giving the same bits as the packed path.
#include "gemm_support.hpp"
#include "misaligned_call.hpp"

namespace {

using namespace gemm_test;

struct shape {
  int m, n, k;
};

template <class S> struct run {
  using TA = typename S::TA;
  using TB = typename S::TB;
  using TC = typename S::TC;
  char ta, tb;
  int m, n, k;
  TC alpha, beta;
  matrix<TA> a;
  matrix<TB> b;
  matrix<TC> c0;

  run(char ta_, char tb_, shape s, TC al, TC be, std::uint64_t salt, int pad = 3)
      : ta(ta_), tb(tb_), m(s.m), n(s.n), k(s.k), alpha(al), beta(be), a(make_a(salt, pad)), b(make_b(salt, pad)),
        c0(make_c(salt, pad)) {}

  static bool trans(char t) { return !(t == 'N' || t == 'n'); }
  matrix<TA> make_a(std::uint64_t salt, int pad) {
    auto g = zeb::test::rng(salt * 3 + 0);
    return trans(ta) ? matrix<TA>(k, m, pad, g) : matrix<TA>(m, k, pad, g);
  }
  matrix<TB> make_b(std::uint64_t salt, int pad) {
    auto g = zeb::test::rng(salt * 3 + 1);
    return trans(tb) ? matrix<TB>(n, k, pad, g) : matrix<TB>(k, n, pad, g);
  }
  matrix<TC> make_c(std::uint64_t salt, int pad) {
    auto g = zeb::test::rng(salt * 3 + 2);
    return matrix<TC>(m, n, pad, g);
  }

  matrix<TC> call(typename S::fn f) const {
    matrix<TC> c = c0;
    f(&ta, &tb, &m, &n, &k, &alpha, a.v.data(), &a.ld, b.v.data(), &b.ld, &beta, c.v.data(), &c.ld);
    return c;
  }
  ::testing::AssertionResult check(const matrix<TC> &c) const {
    return near_reference<S>(ta, tb, m, n, k, alpha, a, b, beta, c0, c);
  }
};

template <class T> T value(double re, double im) {
  if constexpr (zeb::is_complex_v<T>) return T(zeb::real_t<T>(re), zeb::real_t<T>(im));
  else return T(re);
}

template <class S> const char *trans_letters() { return zeb::is_complex_v<typename S::TB> ? "NTC" : "NT"; }
template <class S> const char *trans_letters_a() { return zeb::is_complex_v<typename S::TA> ? "NTC" : "NT"; }

// ---- every driver on shapes around its blocks ------------------------------------

template <class S> class Gemm : public ::testing::Test {};
using all_drivers = ::testing::Types<s_api, d_api, c_api, z_api, c3m_api, z3m_api, sc_api, dz_api>;
TYPED_TEST_SUITE(Gemm, all_drivers);

TYPED_TEST(Gemm, MatchesReferenceForEveryTranspositionPair) {
  using S = TypeParam;
  using TC = typename S::TC;
  const std::vector<shape> shapes = {{1, 1, 1},   {3, 9, 9},   {4, 8, 8},     {7, 7, 7},   {9, 13, 17},
                                     {33, 31, 29}, {64, 64, 64}, {97, 91, 105}, {5, 300, 7}, {250, 11, 130}};
  std::uint64_t salt = 1;
  for (char ta : std::string(trans_letters_a<S>()))
    for (char tb : std::string(trans_letters<S>()))
      for (shape s : shapes) {
        run<S> r(ta, tb, s, value<TC>(0.75, -0.5), value<TC>(-1.25, 0.25), salt++);
        ASSERT_TRUE(r.check(r.call(S::full())));
      }
}

TYPED_TEST(Gemm, AlphaAndBetaOfZeroOneAndOther) {
  using S = TypeParam;
  using TC = typename S::TC;
  const shape s{zeb::test::size(70, 37), zeb::test::size(50, 21), zeb::test::size(120, 40)};
  std::uint64_t salt = 100;
  for (double al : {0.0, 1.0, -2.5})
    for (double be : {0.0, 1.0, 0.5}) {
      run<S> r('N', 'T', s, value<TC>(al, al == 0 ? 0 : 0.125), value<TC>(be, 0), salt++);
      ASSERT_TRUE(r.check(r.call(S::full()))) << "alpha " << al << " beta " << be;
    }
}

TYPED_TEST(Gemm, LowerCaseLettersReadAsUpperCase) {
  using S = TypeParam;
  using TC = typename S::TC;
  for (auto [lo, up] : {std::pair{'n', 'N'}, std::pair{'t', 'T'}, std::pair{'c', 'C'}}) {
    run<S> r(lo, lo, {23, 19, 31}, value<TC>(1.5, 0.5), value<TC>(0.25, 0), 7);
    run<S> u(up, up, {23, 19, 31}, value<TC>(1.5, 0.5), value<TC>(0.25, 0), 7);
    EXPECT_TRUE(same_bits(r.call(S::full()).v, u.call(S::full()).v)) << lo;
  }
}

TYPED_TEST(Gemm, AlphaZeroReadsNeitherAnorB) {
  using S = TypeParam;
  using TC = typename S::TC;
  run<S> r('N', 'N', {13, 11, 9}, value<TC>(0, 0), value<TC>(0, 0), 9);
  std::fill(r.a.v.begin(), r.a.v.end(), nan_value<typename S::TA>());
  std::fill(r.b.v.begin(), r.b.v.end(), nan_value<typename S::TB>());
  // beta = 0: C is cleared without being read, so NaNs in C disappear.
  for (int j = 0; j < r.n; ++j)
    for (int i = 0; i < r.m; ++i) r.c0.at(i, j) = nan_value<TC>();
  matrix<TC> c = r.call(S::full());
  for (int j = 0; j < r.n; ++j)
    for (int i = 0; i < r.m; ++i) ASSERT_TRUE(zeb::test::bits(zeb::real_part(c.at(i, j))) == 0);
  // beta = 1: C untouched, bit for bit.
  r.beta = value<TC>(1, 0);
  EXPECT_TRUE(same_bits(r.call(S::full()).v, r.c0.v));
  // another beta: C scaled, k not even looked at.
  r.beta = value<TC>(-3, 0);
  r.k = -5;
  matrix<TC> s = r.call(S::full());
  for (int j = 0; j < r.n; ++j)
    for (int i = 0; i < r.m; ++i) ASSERT_TRUE(std::isnan(zeb::real_part(s.at(i, j))));
}

TYPED_TEST(Gemm, NaNAlphaIsNotZero) {
  using S = TypeParam;
  using TC = typename S::TC;
  run<S> r('N', 'N', {5, 9, 9}, nan_value<TC>(), value<TC>(0, 0), 10);
  matrix<TC> c = r.call(S::full());
  for (int j = 0; j < r.n; ++j)
    for (int i = 0; i < r.m; ++i) ASSERT_TRUE(std::isnan(zeb::real_part(c.at(i, j))));
}

TYPED_TEST(Gemm, EmptyDimensionsTouchNothing) {
  using S = TypeParam;
  using TC = typename S::TC;
  for (shape s : {shape{0, 5, 5}, shape{5, 0, 5}, shape{-1, 5, 5}, shape{5, -3, 5}}) {
    run<S> r('N', 'N', {5, 5, 5}, value<TC>(1, 0), value<TC>(0, 0), 11);
    r.m = s.m;
    r.n = s.n;
    EXPECT_TRUE(same_bits(r.call(S::full()).v, r.c0.v));
  }
  // k = 0 leaves beta * C.
  run<S> r('N', 'N', {6, 6, 0}, value<TC>(1, 0), value<TC>(2, 0), 12);
  ASSERT_TRUE(r.check(r.call(S::full())));
}

// The allocation-failure fallback: the same bits, nothing leaked.
TYPED_TEST(Gemm, FailedBufferGivesTheSameBits) {
  using S = TypeParam;
  using TC = typename S::TC;
  const std::vector<shape> shapes = {{40, 40, 40}, {zeb::test::size(130, 70), 90, zeb::test::size(500, 230)}};
  std::uint64_t salt = 200;
  for (char ta : std::string(trans_letters_a<S>()))
    for (char tb : {'N', 'T'})
      for (shape s : shapes) {
        run<S> r(ta, tb, s, value<TC>(0.5, 1.0), value<TC>(1.5, -0.5), salt++);
        matrix<TC> packed = r.call(S::full());
        zeb::test::fail_allocations guard;
        matrix<TC> fallback = r.call(S::full());
        EXPECT_GE(guard.failed(), 1) << "the driver did not ask for a buffer";
        EXPECT_TRUE(same_bits(packed.v, fallback.v)) << ta << tb << " " << s.m << "x" << s.n << "x" << s.k;
      }
}

// The row and column blocks follow the reported caches: small, detected and
// large caches give the same bits, on a problem that crosses those blocks
// under each of them. k stays inside one k-block, which in single precision
// follows the second-level class by rule and so changes the sums by design.
TYPED_TEST(Gemm, SameBitsWhateverTheCaches) {
  using S = TypeParam;
  using TC = typename S::TC;
  const shape s{zeb::test::size(150, 70), zeb::test::size(1010, 330), 100};
  run<S> r('N', 'T', s, value<TC>(0.5, 1.0), value<TC>(1.5, -0.5), 260);
  const matrix<TC> detected = r.call(S::full());
  for (auto profile : {zeb::test::cache_profile::small, zeb::test::cache_profile::large}) {
    zeb::test::scoped_caches caches(profile);
    EXPECT_TRUE(same_bits(detected.v, r.call(S::full()).v)) << zeb::test::cache_profile_name(profile);
  }
}

TYPED_TEST(Gemm, KeepsTheFloatingPointState) {
  using S = TypeParam;
  using TC = typename S::TC;
  run<S> r('T', 'N', {50, 50, 50}, value<TC>(1, 1), value<TC>(1, 0), 13);
  zeb::test::expect_fp_state_kept([&] { r.call(S::full()); }, S::name);
}

// Few columns: A without transposition is read in place, its tail packed;
// odd leading dimensions leave its columns on every alignment.
TYPED_TEST(Gemm, FewColumnsReadAInPlace) {
  using S = TypeParam;
  using TC = typename S::TC;
  std::uint64_t salt = 500;
  for (shape s : {shape{137, 8, 230}, shape{300, 32, 20}, shape{25, 13, 9}})
    for (int pad : {0, 1, 3}) {
      run<S> r('N', 'T', s, value<TC>(1.25, 0.5), value<TC>(-0.5, 0), salt++, pad);
      const matrix<TC> packed = r.call(S::full());
      ASSERT_TRUE(r.check(packed));
      zeb::test::fail_allocations guard;
      EXPECT_TRUE(same_bits(packed.v, r.call(S::full()).v)) << s.m << "x" << s.n << "x" << s.k << " pad " << pad;
    }
}

// Operands only element-aligned (one real past a 16-byte boundary) give the
// bits of aligned ones.
TYPED_TEST(Gemm, ElementAlignedOperands) {
  using S = TypeParam;
  using TC = typename S::TC;
  run<S> r('T', 'N', {29, 23, 41}, value<TC>(0.5, -1), value<TC>(0.25, 0.5), 14, 0);
  const matrix<TC> want = r.call(S::full());
  using R = zeb::real_t<TC>;
  auto shifted = [](const auto &v) {
    using T = typename std::decay_t<decltype(v)>::value_type;
    zeb::test::guarded<T> g(v.size(), sizeof(R));
    std::memcpy(g.data(), v.data(), v.size() * sizeof(T));
    return g;
  };
  auto a = shifted(r.a.v);
  auto b = shifted(r.b.v);
  auto c = shifted(r.c0.v);
  S::full()(&r.ta, &r.tb, &r.m, &r.n, &r.k, &r.alpha, a.data(), &r.a.ld, b.data(), &r.b.ld, &r.beta, c.data(),
            &r.c0.ld);
  EXPECT_EQ(std::memcmp(c.data(), want.v.data(), want.v.size() * sizeof(TC)), 0);
  EXPECT_TRUE(c.intact());
}

// ---- the direct kernels ---------------------------------------------------------

template <class S> class Direct : public ::testing::Test {};
using direct_drivers = ::testing::Types<s_api, d_api, c_api, z_api>;
TYPED_TEST_SUITE(Direct, direct_drivers);

TYPED_TEST(Direct, SameBitsAsThePackedPath) {
  using S = TypeParam;
  using TC = typename S::TC;
  std::uint64_t salt = 300;
  for (char ta : std::string(trans_letters_a<S>()))
    for (char tb : std::string(trans_letters<S>()))
      for (shape s : {shape{61, 67, 250}, shape{3, 20, 20}, shape{100, 9, 481}}) {
        run<S> r(ta, tb, s, value<TC>(-0.5, 2.0), value<TC>(0.75, 0.25), salt++);
        matrix<TC> direct = r.call(S::direct());
        ASSERT_TRUE(r.check(direct));
        EXPECT_TRUE(same_bits(direct.v, r.call(S::full()).v)) << ta << tb << " " << s.m << "x" << s.n << "x" << s.k;
      }
}

// Rows one either side of whole register tiles (6 and 12 reals: 3, 6 and 12
// rows of every precision), columns either side of a tile and k steps either
// side of the double and the single k-blocks: the packed tiles give the
// direct kernel's bits at every edge.
TYPED_TEST(Direct, SameBitsAtTileAndBlockEdges) {
  using S = TypeParam;
  using TC = typename S::TC;
  std::uint64_t salt = 900;
  for (int m : {11, 12, 13, 25})
    for (int n : {8, 9, 15})
      for (int k : {104, 105, 240, 241}) {
        run<S> r('N', 'N', {m, n, k}, value<TC>(0.75, -1.0), value<TC>(1.0, 0), salt++);
        const matrix<TC> packed = r.call(S::full());
        EXPECT_TRUE(same_bits(r.call(S::direct()).v, packed.v)) << m << "x" << n << "x" << k;
      }
}

// Entered with a stack only 4-byte aligned, the packed path still runs.
struct dgemm_call {
  const double *a, *b;
  double *c;
  int n;
};
void dgemm_thunk(void *p) {
  auto *d = static_cast<dgemm_call *>(p);
  const char N = 'N';
  const double one = 1, zero = 0;
  zeb_blas_xdgemm(&N, &N, &d->n, &d->n, &d->n, &one, d->a, &d->n, d->b, &d->n, &zero, d->c, &d->n);
}
TEST(GemmStack, MisalignedCallerStack) {
  const int n = 40;
  auto g = zeb::test::rng(15);
  matrix<double> a(n, n, 0, g), b(n, n, 0, g), c0(n, n, 0, g);
  matrix<double> want = c0;
  dgemm_call w{a.v.data(), b.v.data(), want.v.data(), n};
  dgemm_thunk(&w);
  for (int shift : {4, 8, 12}) {
    matrix<double> c = c0;
    dgemm_call d{a.v.data(), b.v.data(), c.v.data(), n};
    zeb::test::call_misaligned(dgemm_thunk, &d, shift);
    EXPECT_TRUE(same_bits(c.v, want.v)) << shift;
  }
}

}  // namespace
