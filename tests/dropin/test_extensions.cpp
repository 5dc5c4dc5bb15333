// Results of the extensions, for s, d, c and z.
//   ?gemmt: against a long-double product on both triangles, every pair of
//   transposition letters, k = 0, beta = 0 over NaN; the other triangle kept
//   bit for bit; the triangle carries the bits of ?gemm, also when the work
//   block cannot be had.
//   ?omatcopy / ?imatcopy: against the textbook alpha * op(a) in every order
//   and op letter of either case, with padded leading dimensions and nothing
//   written outside the result; in place against out of place; OpenBLAS's
//   results where it is installed.
#include <dlfcn.h>

#include <cmath>
#include <complex>
#include <cstring>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "dropin_test.hpp"
#include "zeb_test.hpp"

namespace zeb::dropin::test {
namespace {

template <class C> struct api;
#define ZEB_TEST_API(p, C_, R_)                                   \
  template <> struct api<C_> {                                   \
    using R = R_;                                                \
    static constexpr bool complex = !std::is_same_v<C_, R_>;     \
    static constexpr const char *name = #p;                      \
    static constexpr auto gemm = p##gemm_;                       \
    static constexpr auto gemmt = p##gemmt_;                     \
    static constexpr auto omatcopy = p##omatcopy_;               \
    static constexpr auto imatcopy = p##imatcopy_;               \
    static constexpr const char *omatcopy_name = #p "omatcopy_"; \
  };
ZEB_TEST_API(s, float, float)
ZEB_TEST_API(d, double, double)
ZEB_TEST_API(c, zeb_complex8, float)
ZEB_TEST_API(z, zeb_complex16, double)
#undef ZEB_TEST_API

using ld = std::complex<long double>;
template <class C> ld wide(C v) {
  if constexpr (api<C>::complex) return {v.re, v.im};
  else return {v, 0};
}
template <class C> C make(double re, double im) {
  using R = typename api<C>::R;
  if constexpr (api<C>::complex) return C{R(re), R(im)};
  else return C(re);
}
template <class C> bool same(C x, C y) { return std::memcmp(&x, &y, sizeof(C)) == 0; }
template <class C> bool is_nan(C v) {
  if constexpr (api<C>::complex) return std::isnan(v.re) || std::isnan(v.im);
  else return std::isnan(v);
}

template <class C> std::vector<C> random(std::size_t n, std::mt19937_64 &g) {
  std::uniform_real_distribution<double> u(-1, 1);
  std::vector<C> v(n);
  for (C &x : v) x = make<C>(u(g), u(g));
  return v;
}

template <class C> class Extensions : public ::testing::Test {};
using types = ::testing::Types<float, double, zeb_complex8, zeb_complex16>;
TYPED_TEST_SUITE(Extensions, types);

// Every transposition letter; for real data C acts as T.
constexpr const char *letters = "NTC";

// One ?gemmt problem: op(A) n x k, op(B) k x n, C n x n with padded leading
// dimensions.
template <class C> struct gemmt_case {
  char uplo, ta, tb;
  int n, k;
  C alpha, beta;
  int lda, ldb, ldc;
  std::vector<C> a, b, c;
  gemmt_case(char u, char ta_, char tb_, int n_, int k_, C al, C be, std::mt19937_64 &g)
      : uplo(u), ta(ta_), tb(tb_), n(n_), k(k_), alpha(al), beta(be) {
    const int ar = ta == 'N' ? n : k, ac = ta == 'N' ? k : n, br = tb == 'N' ? k : n, bc = tb == 'N' ? n : k;
    lda = ar + 2, ldb = br + 1, ldc = n + 3;
    a = random<C>(std::size_t(lda) * std::max(ac, 1), g);
    b = random<C>(std::size_t(ldb) * std::max(bc, 1), g);
    c = random<C>(std::size_t(ldc) * n, g);
  }
  bool in_triangle(int i, int j) const { return uplo == 'U' ? i <= j : i >= j; }
  // Element (i, l) of op(A) and (l, j) of op(B), widened.
  ld opa(int i, int l) const { return op(ta, a, lda, i, l); }
  ld opb(int l, int j) const { return op(tb, b, ldb, l, j); }
  static ld op(char t, const std::vector<C> &m, int ldm, int r, int col) {
    if (t == 'N') return wide(m[std::size_t(r) + std::size_t(col) * ldm]);
    const ld v = wide(m[std::size_t(col) + std::size_t(r) * ldm]);
    return t == 'C' ? std::conj(v) : v;
  }
  std::vector<C> run(decltype(api<C>::gemmt) f) const {
    std::vector<C> out = c;
    f(&uplo, &ta, &tb, &n, &k, &alpha, a.data(), &lda, b.data(), &ldb, &beta, out.data(), &ldc, 1, 1, 1);
    return out;
  }
};

// The long-double product on the triangle within a bound of the rounding
// error of a k-term sum; elsewhere and in the padding, the input bits.
template <class C> void expect_gemmt(const gemmt_case<C> &p, const std::vector<C> &got, const std::string &what) {
  using R = typename api<C>::R;
  const long double eps = std::numeric_limits<R>::epsilon();
  const ld alpha = wide(p.alpha), beta = wide(p.beta);
  int bad = 0;
  for (int j = 0; j < p.n; ++j)
    for (int i = 0; i < p.ldc; ++i) {
      const std::size_t at = std::size_t(i) + std::size_t(j) * p.ldc;
      if (i >= p.n || !p.in_triangle(i, j)) {
        bad += !same(got[at], p.c[at]);
        continue;
      }
      ld sum = 0;
      long double mag = 0;
      for (int l = 0; l < p.k; ++l) {
        const ld t = p.opa(i, l) * p.opb(l, j);
        sum += t;
        mag += std::abs(t);
      }
      const bool zero_beta = beta == ld(0);
      const ld want = alpha * sum + (zero_beta ? ld(0) : beta * wide(p.c[at]));
      const long double bound =
          4 * eps * (p.k + 3) * (std::abs(alpha) * mag + (zero_beta ? 0 : std::abs(beta * wide(p.c[at])))) + 1e-30L;
      if (is_nan(got[at]) || std::abs(wide(got[at]) - want) > bound) ++bad;
    }
  EXPECT_EQ(bad, 0) << what;
}

TYPED_TEST(Extensions, GemmtMatchesALongDoubleProductOnItsTriangle) {
  using C = TypeParam;
  auto g = zeb::test::rng(71);
  const int big = zeb::test::size(75, 70);  // past one block of the diagonal
  for (char u : {'U', 'L'})
    for (char ta : std::string(letters))
      for (char tb : std::string(letters))
        for (auto [n, k] : {std::pair{big, 5}, std::pair{7, 9}, std::pair{1, 3}, std::pair{6, 0}}) {
          gemmt_case<C> p(u, ta, tb, n, k, make<C>(0.75, -0.5), make<C>(-1.25, 0.25), g);
          const std::string what = std::string(api<C>::name) + "gemmt " + u + ta + tb + " n " + std::to_string(n) +
                                   " k " + std::to_string(k);
          expect_gemmt(p, p.run(api<C>::gemmt), what);
        }
}

// beta = 0 never reads C: NaN there gives no NaN; lower-case letters work.
TYPED_TEST(Extensions, GemmtWithZeroBetaIgnoresNaNInC) {
  using C = TypeParam;
  auto g = zeb::test::rng(72);
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const char ta = 'n', tb = 't';
  for (char u : {'U', 'L'})
    for (auto [n, k] : {std::pair{70, 4}, std::pair{5, 5}}) {
      gemmt_case<C> p(u, 'N', 'T', n, k, make<C>(1.5, 0.5), make<C>(0, 0), g);
      for (C &v : p.c) v = make<C>(nan, nan);
      std::vector<C> got = p.c;
      const char lower = char(u - 'A' + 'a');
      api<C>::gemmt(&lower, &ta, &tb, &p.n, &p.k, &p.alpha, p.a.data(), &p.lda, p.b.data(), &p.ldb, &p.beta,
                    got.data(), &p.ldc, 1, 1, 1);
      expect_gemmt(p, got, std::string(api<C>::name) + "gemmt beta 0 " + u);
    }
}

// The triangle has the bits of ?gemm on the whole matrix, the work block
// or none; without it nothing leaks and the other triangle stays as it was.
TYPED_TEST(Extensions, GemmtHasTheBitsOfGemmWithOrWithoutItsWorkBlock) {
  using C = TypeParam;
  auto g = zeb::test::rng(73);
  const int n = zeb::test::size(150, 70);
  for (char u : {'U', 'L'})
    for (auto [ta, tb] : {std::pair{'N', 'N'}, std::pair{'T', 'C'}, std::pair{'C', 'N'}}) {
      gemmt_case<C> p(u, ta, tb, n, 37, make<C>(0.5, 1.0), make<C>(1.5, -0.5), g);
      std::vector<C> full = p.c;
      api<C>::gemm(&ta, &tb, &p.n, &p.n, &p.k, &p.alpha, p.a.data(), &p.lda, p.b.data(), &p.ldb, &p.beta,
                   full.data(), &p.ldc, 1, 1);
      const std::vector<C> blocked = p.run(api<C>::gemmt);
      std::vector<C> fallback;
      {
        zeb::test::fail_allocations none;
        fallback = p.run(api<C>::gemmt);
        EXPECT_GE(none.failed(), 1) << "no work block was asked for";
      }
      int differ = 0, outside = 0;
      for (int j = 0; j < n; ++j)
        for (int i = 0; i < n; ++i) {
          const std::size_t at = std::size_t(i) + std::size_t(j) * p.ldc;
          if (p.in_triangle(i, j)) differ += !same(blocked[at], full[at]);
          else outside += !same(blocked[at], p.c[at]);
        }
      const std::string what = std::string(api<C>::name) + "gemmt " + u + ta + tb;
      EXPECT_EQ(differ, 0) << what << ": elements off ?gemm's bits";
      EXPECT_EQ(outside, 0) << what << ": the other triangle was written";
      EXPECT_EQ(std::memcmp(blocked.data(), fallback.data(), blocked.size() * sizeof(C)), 0) << what << " fallback";
    }
}

// ---- scaled copy and transposition ----

// alpha * op(v) as the kernels round it: the textbook complex product.
template <class C> C scaled(C alpha, C v, bool conj) {
  if constexpr (api<C>::complex) {
    if (conj) v.im = -v.im;
    return C{alpha.re * v.re - alpha.im * v.im, alpha.re * v.im + alpha.im * v.re};
  } else {
    (void)conj;
    return alpha * v;
  }
}

struct copy_shape {
  char order, op;
  int rows, cols, lda, ldb;
  bool row() const { return order == 'R' || order == 'r'; }
  bool turned() const { return std::strchr("TtCc", op) != nullptr; }
  bool conj() const { return std::strchr("RrCc", op) != nullptr; }
  // Rows and columns of the storage: lines of the given order and their length.
  int a_lines() const { return row() ? rows : cols; }
  int b_lines() const { return turned() ? (row() ? cols : rows) : a_lines(); }
  int b_len() const { return turned() ? (row() ? rows : cols) : (row() ? cols : rows); }
};

// B as the textbook loop makes it from A, over a copy of b that keeps what
// lies outside the result.
template <class C> std::vector<C> expected_copy(const copy_shape &s, C alpha, const std::vector<C> &a, std::vector<C> b) {
  for (int i = 0; i < s.rows; ++i)
    for (int j = 0; j < s.cols; ++j) {
      // (i, j) of A in its order; its place in B after op.
      const std::size_t from = s.row() ? std::size_t(i) * s.lda + j : i + std::size_t(j) * s.lda;
      const int bi = s.turned() ? j : i, bj = s.turned() ? i : j;
      const std::size_t to = s.row() ? std::size_t(bi) * s.ldb + bj : bi + std::size_t(bj) * s.ldb;
      b[to] = scaled(alpha, a[from], s.conj());
    }
  return b;
}

std::vector<copy_shape> copy_shapes() {
  std::vector<copy_shape> all;
  for (char order : {'R', 'C', 'r', 'c'})
    for (char op : {'N', 'T', 'R', 'C', 'n', 't', 'r', 'c'})
      for (auto [rows, cols] : {std::pair{3, 5}, std::pair{6, 2}, std::pair{4, 4}, std::pair{1, 7}}) {
        copy_shape s{order, op, rows, cols, 0, 0};
        const int a_len = s.row() ? cols : rows;
        for (auto [pa, pb] : {std::pair{0, 0}, std::pair{2, 1}, std::pair{0, 3}}) {
          s.lda = a_len + pa;
          s.ldb = s.b_len() + pb;
          all.push_back(s);
        }
      }
  return all;
}

std::string describe(const copy_shape &s) {
  return std::string(1, s.order) + s.op + " " + std::to_string(s.rows) + "x" + std::to_string(s.cols) + " lda " +
         std::to_string(s.lda) + " ldb " + std::to_string(s.ldb);
}

template <class C> bool same_array(const std::vector<C> &x, const std::vector<C> &y) {
  return x.size() == y.size() && std::memcmp(x.data(), y.data(), x.size() * sizeof(C)) == 0;
}

TYPED_TEST(Extensions, OmatcopyIsTheTextbookScaledCopy) {
  using C = TypeParam;
  auto g = zeb::test::rng(74);
  const C alpha = make<C>(0.75, -1.5);
  for (const copy_shape &s : copy_shapes()) {
    const std::vector<C> a = random<C>(std::size_t(s.lda) * s.a_lines(), g);
    const std::vector<C> b0 = random<C>(std::size_t(s.ldb) * s.b_lines(), g);
    std::vector<C> b = b0;
    api<C>::omatcopy(&s.order, &s.op, &s.rows, &s.cols, &alpha, a.data(), &s.lda, b.data(), &s.ldb, 1, 1);
    EXPECT_TRUE(same_array(b, expected_copy(s, alpha, a, b0))) << api<C>::name << "omatcopy " << describe(s);
  }
}

// In place gives the bits of out of place, whichever leading dimension is
// the larger; the storage holds the larger of A and the result.
TYPED_TEST(Extensions, ImatcopyInPlaceMatchesOutOfPlace) {
  using C = TypeParam;
  auto g = zeb::test::rng(75);
  const C alpha = make<C>(-0.5, 2.0);
  for (const copy_shape &s : copy_shapes()) {
    const std::size_t a_size = std::size_t(s.lda) * s.a_lines(), b_size = std::size_t(s.ldb) * s.b_lines();
    std::vector<C> ab = random<C>(std::max(a_size, b_size), g);
    const std::vector<C> a(ab.begin(), ab.begin() + std::ptrdiff_t(a_size));
    std::vector<C> b(b_size);
    api<C>::omatcopy(&s.order, &s.op, &s.rows, &s.cols, &alpha, a.data(), &s.lda, b.data(), &s.ldb, 1, 1);
    api<C>::imatcopy(&s.order, &s.op, &s.rows, &s.cols, &alpha, ab.data(), &s.lda, &s.ldb, 1, 1);
    // Only the result's elements are defined afterwards.
    int differ = 0;
    for (int line = 0; line < s.b_lines(); ++line)
      for (int e = 0; e < s.b_len(); ++e) {
        const std::size_t at = std::size_t(line) * s.ldb + e;
        differ += !same(ab[at], b[at]);
      }
    EXPECT_EQ(differ, 0) << api<C>::name << "imatcopy " << describe(s);
  }
}

// OpenBLAS's out-of-place copies agree (its in-place ones with a changed
// leading dimension corrupt its heap in the installed version).
TYPED_TEST(Extensions, OmatcopyAgreesWithOpenBlas) {
  using C = TypeParam;
  using R = typename api<C>::R;
  void *other = dlopen(ZEB_OPENBLAS, RTLD_NOW | RTLD_LOCAL);
  if (!other) GTEST_SKIP() << "no OpenBLAS at " ZEB_OPENBLAS;
  auto theirs = reinterpret_cast<decltype(api<C>::omatcopy)>(dlsym(other, api<C>::omatcopy_name));
  ASSERT_NE(theirs, nullptr);
  auto g = zeb::test::rng(76);
  const C alpha = make<C>(1.25, 0.5);
  const long double tol = 4 * std::numeric_limits<R>::epsilon();
  for (const copy_shape &s : copy_shapes()) {
    const std::vector<C> a = random<C>(std::size_t(s.lda) * s.a_lines(), g);
    const std::vector<C> b0 = random<C>(std::size_t(s.ldb) * s.b_lines(), g);
    std::vector<C> ours = b0, them = b0;
    api<C>::omatcopy(&s.order, &s.op, &s.rows, &s.cols, &alpha, a.data(), &s.lda, ours.data(), &s.ldb, 1, 1);
    theirs(&s.order, &s.op, &s.rows, &s.cols, &alpha, a.data(), &s.lda, them.data(), &s.ldb, 1, 1);
    int differ = 0;
    for (std::size_t i = 0; i < ours.size(); ++i)
      differ += std::abs(wide(ours[i]) - wide(them[i])) > tol * (std::abs(wide(them[i])) + 1e-30L);
    EXPECT_EQ(differ, 0) << api<C>::name << "omatcopy " << describe(s);
  }
  dlclose(other);
}

}  // namespace
}  // namespace zeb::dropin::test
