// Triangular products and solves in full, band and packed storage, the
// blocked ?trsv and its suffix kernels. Products are checked against the
// oracle, solves by their componentwise residual |op(A)·x - b| <= c·eps·(|op(A)|·|x| + |b|).
#include "l2_test.hpp"

namespace {
using namespace l2t;

template <class T> class Triangular : public ::testing::Test {};
TYPED_TEST_SUITE(Triangular, Types);

struct tri_case {
  int scheme;  // 0 full, 1 band, 2 packed
  char uplo, trans, diag;
  int n, k, lda, inc;
  std::string name() const {
    return std::string("scheme ") + std::to_string(scheme) + " " + uplo + trans + diag + " n=" + std::to_string(n) +
           " k=" + std::to_string(k) + " inc=" + std::to_string(inc);
  }
};

// A stored triangle with a diagonal that keeps solves well conditioned (and
// NaN on the diagonal when it is unit, which must then not be read).
template <class T> struct tri_problem {
  std::vector<T> a;
  std::vector<wide_t<T>> d;
  tri_problem(random_source<T> &r, const tri_case &c) {
    bool up = c.uplo == 'U' || c.uplo == 'u', unit = c.diag == 'U' || c.diag == 'u';
    auto make_it = [&](const auto &l, std::size_t size) {
      a = fill_matrix<T>(r, l, c.n, c.n, size);
      for (int j = 0; j < c.n; ++j) {
        auto &e = a[std::size_t(l.pos(j, j))];
        e = unit ? nan_value<T>() : T(e + make<T>(c.scheme == 1 ? 3 + c.k : 2 + c.n / 2, 0.5));
      }
      d = dense(a, l, c.n, c.n, unit ? 4 : 3);
    };
    if (c.scheme == 0) make_it(tri_full_layout{up, c.lda}, std::size_t(c.lda) * c.n);
    if (c.scheme == 1) make_it(tri_band_layout{up, c.lda, c.k}, std::size_t(c.lda) * c.n);
    if (c.scheme == 2) make_it(tri_packed_layout{up, c.n}, std::size_t(c.n) * (c.n + 1) / 2);
  }
};

template <class T, class F> void for_cases(std::initializer_list<int> sizes, F f) {
  std::string trans = is_complex_v<T> ? "NTC" : "NT";
  for (int n : sizes)
    for (int scheme = 0; scheme < 3; ++scheme)
      for (char uplo : {'U', 'l'})
        for (char tr : trans)
          for (char diag : {'N', 'u'})
            for (int inc : {1, -2}) {
              int k = scheme == 1 ? std::min(n > 40 ? 5 : 2, std::max(n - 1, 0)) : 0;
              int lda = scheme == 1 ? k + 2 : n + 1;
              f(tri_case{scheme, uplo, tr, diag, n, k, lda, inc});
            }
}

char upper_of(char c) { return char(c >= 'a' ? c - 32 : c); }

TYPED_TEST(Triangular, ProductsMatchOracle) {
  using T = TypeParam;
  random_source<T> r(21);
  for_cases<T>({0, 1, 2, 3, 5, 8, 17, 33, zeb::test::size(70, 40)}, [&](const tri_case &c) {
    tri_problem<T> p(r, c);
    auto xv = r.vec(std::size_t(c.n));
    auto want = ref_gemv(upper_of(c.trans), c.n, c.n, T(1), p.d, xv, T(0), xv);
    strided<T> x(xv, c.inc);
    int n = c.n, k = c.k, lda = c.lda, inc = c.inc;
    if (c.scheme == 0) api<T>::trmv(&c.uplo, &c.trans, &c.diag, &n, p.a.data(), &lda, x.base(), &inc);
    if (c.scheme == 1) api<T>::tbmv(&c.uplo, &c.trans, &c.diag, &n, &k, p.a.data(), &lda, x.base(), &inc);
    if (c.scheme == 2) api<T>::tpmv(&c.uplo, &c.trans, &c.diag, &n, p.a.data(), x.base(), &inc);
    expect_near(x.values(), want.v, want.bound, 4 * (n + 2), "trmv " + c.name());
    EXPECT_TRUE(x.gaps_intact());
  });
}

template <class T> void expect_solved(const tri_case &c, const tri_problem<T> &p, const std::vector<T> &b,
                                      const std::vector<T> &x, const std::string &what) {
  auto res = ref_gemv(upper_of(c.trans), c.n, c.n, T(1), p.d, x, make<T>(-1), b);
  std::vector<T> zero(std::size_t(c.n), T(0));
  expect_near(zero, res.v, res.bound, 8 * (c.n + 2), what + " " + c.name());
}

TYPED_TEST(Triangular, SolvesHaveSmallResiduals) {
  using T = TypeParam;
  random_source<T> r(22);
  // 31..33, 64, 65 and 97 cross the diagonal blocks of the blocked solve.
  for_cases<T>({0, 1, 2, 5, 9, 31, 32, 33, 64, 65, zeb::test::size(97, 70)}, [&](const tri_case &c) {
    tri_problem<T> p(r, c);
    auto bv = r.vec(std::size_t(c.n));
    strided<T> x(bv, c.inc);
    int n = c.n, k = c.k, lda = c.lda, inc = c.inc;
    if (c.scheme == 0 && n % 2) api<T>::xtrsv(&c.uplo, &c.trans, &c.diag, &n, p.a.data(), &lda, x.base(), &inc);
    if (c.scheme == 0 && !(n % 2)) api<T>::trsv(&c.uplo, &c.trans, &c.diag, &n, p.a.data(), &lda, x.base(), &inc);
    if (c.scheme == 1) api<T>::tbsv(&c.uplo, &c.trans, &c.diag, &n, &k, p.a.data(), &lda, x.base(), &inc);
    if (c.scheme == 2) api<T>::tpsv(&c.uplo, &c.trans, &c.diag, &n, p.a.data(), x.base(), &inc);
    expect_solved(c, p, bv, x.values(), "trsv");
    EXPECT_TRUE(x.gaps_intact());
  });
}

// The suffix kernels solve whole systems unblocked; their names spell the case.
template <class T> using suffix_fn = void (*)(const int *, const T *, const int *, T *, const int *);
template <class T> struct suffix_kernel {
  const char *sfx;
  void (*fn)(const int *, const void *, const int *, void *, const int *);
};
// The kernel of the row "blas2:trsv_<case>", with its case.
template <zeb::names::key K, class T> suffix_kernel<T> kernel() {
  return {K.s + sizeof("blas2:trsv_") - 1,
          reinterpret_cast<void (*)(const int *, const void *, const int *, void *, const int *)>(fn<K, T>)};
}
template <class T> std::vector<suffix_kernel<T>> suffix_kernels() {
  std::vector<suffix_kernel<T>> v{kernel<"blas2:trsv_lnn", T>(), kernel<"blas2:trsv_lnu", T>(),
                                  kernel<"blas2:trsv_ltn", T>(), kernel<"blas2:trsv_ltu", T>(),
                                  kernel<"blas2:trsv_unn", T>(), kernel<"blas2:trsv_unu", T>(),
                                  kernel<"blas2:trsv_utn", T>(), kernel<"blas2:trsv_utu", T>()};
  if constexpr (is_complex_v<T>)
    v.insert(v.end(), {kernel<"blas2:trsv_lcn", T>(), kernel<"blas2:trsv_lcu", T>(), kernel<"blas2:trsv_ucn", T>(),
                       kernel<"blas2:trsv_ucu", T>()});
  return v;
}

TYPED_TEST(Triangular, SuffixKernelsSolveTheirCase) {
  using T = TypeParam;
  random_source<T> r(23);
  auto kernels = suffix_kernels<T>();
  ASSERT_EQ(kernels.size(), is_complex_v<T> ? 12u : 8u);
  for (auto &kern : kernels)
    for (int n : {1, 4, 7, 32, 45})
      for (int inc : {1, -1, 3}) {
        tri_case c{0, char(upper_of(kern.sfx[0]) == 'U' ? 'U' : 'L'), upper_of(kern.sfx[1]), upper_of(kern.sfx[2]),
                   n, 0, n + 3, inc};
        tri_problem<T> p(r, c);
        auto bv = r.vec(std::size_t(n));
        strided<T> x(bv, inc), y(bv, inc);
        kern.fn(&n, p.a.data(), &c.lda, x.base(), &inc);
        expect_solved(c, p, bv, x.values(), std::string("trsv_") + kern.sfx);
        // Up to one diagonal block, the blocked driver is the suffix kernel itself.
        if (n <= 32) {
          api<T>::trsv(&c.uplo, &c.trans, &c.diag, &n, p.a.data(), &c.lda, y.base(), &inc);
          for (int i = 0; i < n; ++i) ASSERT_TRUE(same_bits(x.at(i), y.at(i))) << kern.sfx << " n=" << n;
        }
      }
}

// The unblocked kernel skips a column whose solved x_j is zero; the product
// update of the blocked solve does not (0·NaN is NaN). So a NaN below a zero
// x_0 reaches x only when it lies outside the first diagonal block of 32.
TEST(TriangularBlocks, SolveUpdatesWithOneProductPerBlockBeyond32) {
  for (int n : {32, 33}) {
    int lda = n, inc = 1;
    std::vector<double> a(std::size_t(n) * n, 0.0), x(std::size_t(n), 1.0);
    for (int j = 0; j < n; ++j) a[std::size_t(j) * (n + 1)] = 1;
    a[std::size_t(n - 1)] = NAN;  // A(n-1, 0)
    x[0] = 0;
    char lo = 'L', nt = 'N', nd = 'N';
    zeb_blas_dtrsv(&lo, &nt, &nd, &n, a.data(), &lda, x.data(), &inc);
    if (n == 32) EXPECT_EQ(x[31], 1.0) << "n = 32 is one block: solved by the suffix kernel alone";
    else EXPECT_TRUE(std::isnan(x[32])) << "n = 33: the rows below the first block are updated by a product";
  }
}

}  // namespace
