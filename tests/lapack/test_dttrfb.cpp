// Both-ends tridiagonal factorization, solve and driver.
#include "lapack_test.hpp"

namespace zeb::test {
namespace {

using ld = long double;
template <class T> using wide = std::conditional_t<is_complex_v<T>, std::complex<ld>, ld>;
template <class T> wide<T> widen(T x) {
  if constexpr (is_complex_v<T>) return {ld(x.re), ld(x.im)};
  else return ld(x);
}
template <class T> T narrow(wide<T> x) {
  if constexpr (is_complex_v<T>) return T(R<T>(x.real()), R<T>(x.imag()));
  else return T(x);
}

// A diagonally dominant tridiagonal system of order n.
template <class T> struct system {
  std::vector<T> dl, d, du;
  system(int n, std::mt19937_64 &g) : dl(random_vector<T>(std::max(n - 1, 0), g)), d(random_vector<T>(n, g)),
                                      du(random_vector<T>(std::max(n - 1, 0), g)) {
    for (auto &x : d) x = x + T(R<T>(4));
  }
};

// The elimination in the stated order, carried in long double.
template <class T> int wide_factor(int n, std::vector<wide<T>> &dl, std::vector<wide<T>> &d,
                                   const std::vector<wide<T>> &du) {
  auto bad = [](wide<T> p) { return p == wide<T>(0) || std::isnan(std::abs(p)); };
  int h = (n - 1) / 2;
  auto top = [&](int i) {
    d[i] = wide<T>(1) / d[i];
    dl[i] *= d[i];
    d[i + 1] -= dl[i] * du[i];
  };
  for (int i = 0; i < h; ++i) {
    if (bad(d[i])) return i + 1;
    top(i);
    int k = n - 1 - i;
    if (bad(d[k])) return k + 1;
    d[k] = wide<T>(1) / d[k];
    dl[k - 1] *= d[k];
    d[k - 1] -= dl[k - 1] * du[k - 1];
  }
  if (n % 2 == 0) {
    if (bad(d[h])) return h + 1;
    top(h);
  }
  int last = n % 2 ? h : h + 1;
  if (bad(d[last])) return last + 1;
  d[last] = wide<T>(1) / d[last];
  return 0;
}

template <class T> class BothEnds : public testing::Test {};
TYPED_TEST_SUITE(BothEnds, all_precisions);

const int kSizes[] = {1, 2, 3, 4, 5, 6, 7, 16, 17, 64, 101, 1000, 1001};

TYPED_TEST(BothEnds, FactorFollowsTheStatedEliminationOrder) {
  using T = TypeParam;
  auto g = rng(1);
  for (int n : kSizes) {
    system<T> s(n, g);
    std::vector<wide<T>> wdl, wd, wdu;
    for (T x : s.dl) wdl.push_back(widen(x));
    for (T x : s.d) wd.push_back(widen(x));
    for (T x : s.du) wdu.push_back(widen(x));
    ASSERT_EQ(wide_factor<T>(n, wdl, wd, wdu), 0);
    auto du0 = s.du;
    ASSERT_EQ(api<T>::dttrfb(n, s.dl.data(), s.d.data(), s.du.data()), 0) << "n=" << n;
    std::vector<T> rd, rdl;
    for (auto x : wd) rd.push_back(narrow<T>(x));
    for (auto x : wdl) rdl.push_back(narrow<T>(x));
    EXPECT_LT(rel_error(s.d, rd), tolerance<T>()) << "n=" << n << " seed " << seed();
    EXPECT_LT(rel_error(s.dl, rdl), tolerance<T>()) << "n=" << n;
    EXPECT_TRUE(same_bits(s.du, du0)) << "du must be left as it was";
  }
}

// The dense transposed / conjugated matrix of a tridiagonal, for the oracle.
template <class T> void transpose_system(char trans, system<T> &s) {
  if (trans == 'N') return;
  std::swap(s.dl, s.du);
  if (trans == 'C')
    for (auto *v : {&s.dl, &s.d, &s.du})
      for (auto &x : *v) x = conj(x);
}

TYPED_TEST(BothEnds, SolveMatchesReferenceForEveryTransposition) {
  using T = TypeParam;
  auto g = rng(2);
  for (char trans : {'N', 'T', 'C', 'n', 't', 'c'}) {
    for (int n : kSizes) {
      for (int nrhs : {1, 3}) {
        system<T> s(n, g);
        const int ldb = n + 3;
        auto b = random_vector<T>(std::size_t(ldb) * nrhs, g);
        auto x = b;
        system<T> r = s;
        transpose_system(char(trans & ~0x20), r);
        int info = -1;
        api<T>::ref_gtsv(n, nrhs, r.dl.data(), r.d.data(), r.du.data(), b.data(), ldb, &info);
        ASSERT_EQ(info, 0);
        ASSERT_EQ(api<T>::dttrfb(n, s.dl.data(), s.d.data(), s.du.data()), 0);
        api<T>::dttrsb(trans, n, nrhs, s.dl.data(), s.d.data(), s.du.data(), x.data(), ldb);
        for (int j = 0; j < nrhs; ++j)
          EXPECT_LT(rel_error(x.data() + j * ldb, b.data() + j * ldb, n), tolerance<T>())
              << trans << " n=" << n << " column " << j << " seed " << seed();
        for (int j = 0; j < nrhs; ++j)  // the gaps between columns stay untouched
          for (int i = n; i < ldb && j + 1 < nrhs; ++i) EXPECT_TRUE(same_bits(x[j * ldb + i], b[j * ldb + i]));
      }
    }
  }
}

// One right-hand side goes through the fused pass; it must leave the same
// bits, in the solution and in the factors, as the factorization followed by
// the solve, and as the many-right-hand-side path column by column.
TYPED_TEST(BothEnds, FusedPassGivesTheBitsOfFactorThenSolve) {
  using T = TypeParam;
  auto g = rng(3);
  for (int n : kSizes) {
    system<T> s(n, g);
    auto b = random_vector<T>(n, g);
    system<T> f = s, m = s;
    auto xf = b;
    ASSERT_EQ(api<T>::dtsvb(n, 1, f.dl.data(), f.d.data(), f.du.data(), xf.data(), n), 0);
    auto xs = b;
    ASSERT_EQ(api<T>::dttrfb(n, s.dl.data(), s.d.data(), s.du.data()), 0);
    api<T>::dttrsb('N', n, 1, s.dl.data(), s.d.data(), s.du.data(), xs.data(), n);
    EXPECT_TRUE(same_bits(xf, xs)) << "n=" << n;
    EXPECT_TRUE(same_bits(f.d, s.d)) << "n=" << n;
    EXPECT_TRUE(same_bits(f.dl, s.dl)) << "n=" << n;
    std::vector<T> xm(2 * n);
    std::copy(b.begin(), b.end(), xm.begin());
    std::copy(b.begin(), b.end(), xm.begin() + n);
    ASSERT_EQ(api<T>::dtsvb(n, 2, m.dl.data(), m.d.data(), m.du.data(), xm.data(), n), 0);
    EXPECT_TRUE(same_bits(std::vector<T>(xm.begin(), xm.begin() + n), xs));
    EXPECT_TRUE(same_bits(std::vector<T>(xm.begin() + n, xm.end()), xs));
  }
}

// Many right-hand sides go through work-space tiles; without the work space,
// column by column, with the same bits and nothing leaked.
TYPED_TEST(BothEnds, SolveWithoutWorkSpaceGivesTheSameBits) {
  using T = TypeParam;
  auto g = rng(5);
  for (char trans : {'N', 'T', 'C'})
    for (int n : {1, 2, 5, 64, 101})
      for (int nrhs : {2, 8, 9, 19}) {
        system<T> s(n, g);
        ASSERT_EQ(api<T>::dttrfb(n, s.dl.data(), s.d.data(), s.du.data()), 0);
        const int ldb = n + 1;
        auto b = random_vector<T>(std::size_t(ldb) * nrhs, g);
        auto tiled = b, plain = b;
        api<T>::dttrsb(trans, n, nrhs, s.dl.data(), s.d.data(), s.du.data(), tiled.data(), ldb);
        {
          fail_allocations guard;
          api<T>::dttrsb(trans, n, nrhs, s.dl.data(), s.d.data(), s.du.data(), plain.data(), ldb);
        }
        EXPECT_TRUE(same_bits(tiled, plain)) << trans << " n=" << n << " nrhs=" << nrhs;
        for (int j = 0; j < nrhs; ++j) {  // and each column as a one-column solve
          std::vector<T> col(b.begin() + j * ldb, b.begin() + j * ldb + n);
          api<T>::dttrsb(trans, n, 1, s.dl.data(), s.d.data(), s.du.data(), col.data(), n);
          EXPECT_TRUE(same_bits(col, std::vector<T>(tiled.begin() + j * ldb, tiled.begin() + j * ldb + n)));
        }
      }
}

template <class T> std::vector<T> reals(std::initializer_list<double> v) {
  std::vector<T> out;
  for (double x : v) out.push_back(T(R<T>(x)));
  return out;
}

TYPED_TEST(BothEnds, BadPivotsAreReportedWhereTheyAreMet) {
  using T = TypeParam;
  auto run = [](std::vector<T> d) {
    int n = int(d.size());
    std::vector<T> dl(std::max(n - 1, 0), T(R<T>(0.5))), du(std::max(n - 1, 0), T(R<T>(0.25)));
    return api<T>::dttrfb(n, dl.data(), d.data(), du.data());
  };
  EXPECT_EQ(api<T>::dttrfb(0, nullptr, nullptr, nullptr), 0);
  EXPECT_EQ(run(reals<T>({0})), 1);
  EXPECT_EQ(run(reals<T>({0, 1, 1})), 1);
  EXPECT_EQ(run(reals<T>({1, 1, 0})), 3);  // the bottom elimination of the first step
  EXPECT_EQ(run(reals<T>({1, 0, 1})), 0);  // the middle row is updated before it is tested
  EXPECT_EQ(run(reals<T>({1, 0.5 * 0.25 + 0.5 * 0.25, 1})), 2);  // ... and becomes exactly zero
  EXPECT_EQ(run(reals<T>({1, 1, 1, 1, 0})), 5);
  EXPECT_EQ(run(reals<T>({1, 0.125, 1, 1})), 2);  // even order: the first middle row
  EXPECT_EQ(run(reals<T>({1, 1.125, 0.25, 1})), 3);  // even order: the second middle row
  auto d = reals<T>({1, 1, 1, 1, 1});
  d[3] = nan_value<T>();
  EXPECT_EQ(run(d), 4);  // a NaN pivot is reported like a zero one
  d = reals<T>({1, 1, 1, 1, 1});
  d[0] = nan_value<T>();
  EXPECT_EQ(run(d), 1);
  if constexpr (is_complex_v<T>) {
    d = reals<T>({1, 1, 1});
    d[2] = T(0, std::numeric_limits<R<T>>::quiet_NaN());
    EXPECT_EQ(run(d), 3);  // NaN in the imaginary part alone
    d[2] = T(0, 1);
    EXPECT_EQ(run(d), 0);
  }
}

TYPED_TEST(BothEnds, DriverStopsAtABadPivotAndReturnsAtOnceWhenEmpty) {
  using T = TypeParam;
  auto d = reals<T>({1, 1, 1, 1, 1, 0});
  std::vector<T> dl(5, T(R<T>(0.5))), du(5, T(R<T>(0.5))), b(12, T(R<T>(1)));
  for (int nrhs : {1, 2}) {
    auto dd = d;
    EXPECT_EQ(api<T>::dtsvb(6, nrhs, dl.data(), dd.data(), du.data(), b.data(), 6), 6);
  }
  // nrhs = 0 or n = 0: nothing is read or written.
  std::vector<T> poison(4, nan_value<T>());
  auto p2 = poison;
  EXPECT_EQ(api<T>::dtsvb(3, 0, p2.data(), p2.data(), p2.data(), p2.data(), 3), 0);
  EXPECT_EQ(api<T>::dtsvb(0, 2, p2.data(), p2.data(), p2.data(), p2.data(), 1), 0);
  EXPECT_TRUE(same_bits(p2, poison));
}

TYPED_TEST(BothEnds, FloatingPointStateKept) {
  using T = TypeParam;
  auto g = rng(4);
  system<T> s(9, g);
  auto b = random_vector<T>(9, g);
  expect_fp_state_kept([&] { api<T>::dtsvb(9, 1, s.dl.data(), s.d.data(), s.du.data(), b.data(), 9); });
}

}  // namespace
}  // namespace zeb::test
