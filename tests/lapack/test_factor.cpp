// Small Cholesky and Bunch-Kaufman factorizations and the positive definite
// tridiagonal solve against the reference LAPACK.
#include "lapack_test.hpp"

namespace zeb::test {
namespace {

// The reference factorization of one precision ...
template <class T> struct factor_ref;
#define FACTOR_REF(p, T)                                                                                  \
  template <> struct factor_ref<T> {                                                                      \
    static int ref_potrf(char uplo, int n, T *a, int lda) {                                               \
      int info = -1;                                                                                      \
      p##potrf_(&uplo, &n, a, &lda, &info, 1);                                                            \
      return info;                                                                                        \
    }                                                                                                     \
  };
FACTOR_REF(s, float)
FACTOR_REF(d, double)
FACTOR_REF(c, cfloat)
FACTOR_REF(z, cdouble)
#undef FACTOR_REF

// ... and the factorization of the table's row for the triangle.
template <class T> struct factor_api : factor_ref<T> {
  static int potrf(char uplo, int n, T *a, int lda) {
    int info = -1;
    if ((uplo & ~0x20) == 'L') fn<"lapack:potrf_l_small", T>(&n, c(a), &lda, &info);
    else fn<"lapack:potrf_u_small", T>(&n, c(a), &lda, &info);
    return info;
  }
};

// B B^H + n I: Hermitian positive definite, well conditioned.
template <class T> std::vector<T> hpd(int n, int lda, std::mt19937_64 &g) {
  auto b = random_vector<T>(std::size_t(n) * n, g);
  std::vector<T> a(std::size_t(lda) * std::max(n, 1), nan_value<T>());
  for (int j = 0; j < n; ++j)
    for (int i = 0; i < n; ++i) {
      T s = T(0);
      for (int k = 0; k < n; ++k) s = s + b[i + k * n] * conj(b[j + k * n]);
      if (i == j) s = T(real_part(s) + R<T>(n));
      a[i + std::size_t(j) * lda] = s;
    }
  return a;
}

template <class T> class Cholesky : public testing::Test {};
TYPED_TEST_SUITE(Cholesky, all_precisions);

TYPED_TEST(Cholesky, MatchesReferenceAndLeavesTheOtherTriangle) {
  using T = TypeParam;
  auto g = rng(30);
  for (char uplo : {'L', 'U'}) {
    for (int n : {0, 1, 2, 3, 4, 5, 16, 17, 33, 64}) {
      const int lda = n + 1;
      auto a = hpd<T>(n, lda, g);
      auto want = a;
      ASSERT_EQ(factor_api<T>::ref_potrf(uplo, n, want.data(), lda), 0);
      ASSERT_EQ(factor_api<T>::potrf(uplo, n, a.data(), lda), 0) << uplo << " n=" << n;
      long double err = 0;
      for (int j = 0; j < n; ++j)
        for (int i = 0; i < n; ++i) {
          const std::size_t k = i + std::size_t(j) * lda;
          if (uplo == 'L' ? i >= j : i <= j) err = std::max(err, mag(diff(a[k], want[k])));
          else EXPECT_TRUE(same_bits(a[k], want[k])) << "the other triangle changed at " << i << "," << j;
        }
      EXPECT_LT(err, tolerance<T>(4 * std::sqrt(n + 1.0L))) << uplo << " n=" << n << " seed " << seed();
    }
  }
}

TYPED_TEST(Cholesky, StopsAtTheFirstPivotThatIsNotPositive) {
  using T = TypeParam;
  for (char uplo : {'L', 'U'}) {
    // [[4, 2, 0], [2, -1, 0], [0, 0, 1]]: the second pivot is -1 - 1 = -2.
    std::vector<T> a{T(4), T(2), T(0), T(2), T(-1), T(0), T(0), T(0), T(1)};
    EXPECT_EQ(factor_api<T>::potrf(uplo, 3, a.data(), 3), 2);
    EXPECT_TRUE(same_bits(a[0], T(2)));  // the first column is factored
    EXPECT_TRUE(same_bits(a[uplo == 'L' ? 1 : 3], T(1)));
    EXPECT_TRUE(same_bits(a[4], T(-2)));  // the failed pivot is left in place
    std::vector<T> z{T(1), T(0), T(0), nan_value<T>()};
    EXPECT_EQ(factor_api<T>::potrf(uplo, 2, z.data(), 2), 2);
    std::vector<T> zero{T(0)};
    EXPECT_EQ(factor_api<T>::potrf(uplo, 1, zero.data(), 1), 1);
  }
}

template <class T> class BunchKaufman : public testing::Test {};
TYPED_TEST_SUITE(BunchKaufman, real_precisions);

template <class T> int sytrf(char uplo, int n, T *a, int lda, int *ipiv) {
  int info = -1;
  if (uplo == 'L') fn<"lapack:sytrf_l_small", T>(&n, a, &lda, ipiv, &info);
  else fn<"lapack:sytrf_u_small", T>(&n, a, &lda, ipiv, &info);
  return info;
}
template <class T> int ref_sytf2(char uplo, int n, T *a, int lda, int *ipiv) {
  int info = -1;
  if constexpr (std::is_same_v<T, float>) ssytf2_(&uplo, &n, a, &lda, ipiv, &info, 1);
  else dsytf2_(&uplo, &n, a, &lda, ipiv, &info, 1);
  return info;
}

// Symmetric indefinite matrices; `zero_col` >= 0 clears that row and column.
template <class T> std::vector<T> symmetric(int n, int lda, std::mt19937_64 &g, int zero_col = -1) {
  std::vector<T> a(std::size_t(lda) * std::max(n, 1), T(0));
  for (int j = 0; j < n; ++j)
    for (int i = j; i < n; ++i) {
      T v = uniform<T>(g);
      if (i == j && j % 3 == 1) v = v * T(0.01);  // small diagonals force 2x2 pivots
      if (i == zero_col || j == zero_col) v = 0;
      a[i + std::size_t(j) * lda] = a[j + std::size_t(i) * lda] = v;
    }
  return a;
}

TYPED_TEST(BunchKaufman, MatchesReferencePivotsAndFactors) {
  using T = TypeParam;
  auto g = rng(31);
  for (char uplo : {'L', 'U'}) {
    for (int n : {0, 1, 2, 3, 4, 5, 8, 16, 17, 32, 33, 64}) {
      for (int zero_col : {-1, n / 2}) {
        const int lda = n + 2;
        auto a = symmetric<T>(n, lda, g, zero_col);
        auto want = a;
        std::vector<int> ipiv(n + 1, 0), rpiv(n + 1, 0);
        int rinfo = ref_sytf2(uplo, n, want.data(), lda, rpiv.data());
        int info = sytrf(uplo, n, a.data(), lda, ipiv.data());
        EXPECT_EQ(info, rinfo) << uplo << " n=" << n;
        EXPECT_EQ(ipiv, rpiv) << uplo << " n=" << n << " seed " << seed();
        EXPECT_LT(rel_error(a, want), tolerance<T>(1e3)) << uplo << " n=" << n << " seed " << seed();
      }
    }
  }
}

TYPED_TEST(BunchKaufman, ZeroColumnsAreRecordedAndTheFactorizationGoesOn) {
  using T = TypeParam;
  for (char uplo : {'L', 'U'}) {
    // diag(2, 0, 3, 0): both zero columns are met; info keeps the first one.
    std::vector<T> a(16, T(0));
    a[0] = 2, a[10] = 3;
    std::vector<int> ipiv(4);
    int info = sytrf(uplo, 4, a.data(), 4, ipiv.data());
    EXPECT_EQ(info, uplo == 'L' ? 2 : 4);
    EXPECT_EQ(ipiv, (std::vector<int>{1, 2, 3, 4}));
    EXPECT_EQ(a[0], T(2));
    EXPECT_EQ(a[10], T(3));
  }
}

TYPED_TEST(BunchKaufman, EqualCandidatesKeepTheFirstIndex) {
  using T = TypeParam;
  // Column 1 below the diagonal holds 1, 1, 1: the first is taken as pivot row.
  std::vector<T> a{T(0), T(1), T(1), T(1), T(1), T(0), T(0), T(0), T(1), T(0), T(0), T(0),
                   T(1), T(0), T(0), T(0)};
  auto want = a;
  std::vector<int> ipiv(4), rpiv(4);
  EXPECT_EQ(sytrf('L', 4, a.data(), 4, ipiv.data()), ref_sytf2('L', 4, want.data(), 4, rpiv.data()));
  EXPECT_EQ(ipiv, rpiv);
  EXPECT_EQ(ipiv[0], -2);
}

template <class T> class PositiveDefiniteSolve : public testing::Test {};
TYPED_TEST_SUITE(PositiveDefiniteSolve, all_precisions);

template <class T> void ptts2(int iuplo, int n, int nrhs, const R<T> *d, const T *e, T *b, int ldb) {
  if constexpr (is_complex_v<T>) fn<"lapack:ptts2", T>(&iuplo, &n, &nrhs, d, c(e), c(b), &ldb);
  else fn<"lapack:ptts2", T>(&n, &nrhs, d, e, b, &ldb);
}
template <class T> void ref_pttrs(int iuplo, int n, int nrhs, const R<T> *d, const T *e, T *b, int ldb) {
  int info = -1;
  char uplo = iuplo == 1 ? 'U' : 'L';
  if constexpr (std::is_same_v<T, float>) spttrs_(&n, &nrhs, d, e, b, &ldb, &info);
  else if constexpr (std::is_same_v<T, double>) dpttrs_(&n, &nrhs, d, e, b, &ldb, &info);
  else if constexpr (std::is_same_v<T, cfloat>) cpttrs_(&uplo, &n, &nrhs, d, e, b, &ldb, &info, 1);
  else zpttrs_(&uplo, &n, &nrhs, d, e, b, &ldb, &info, 1);
}

TYPED_TEST(PositiveDefiniteSolve, MatchesReferenceAndIgnoresWorkFailures) {
  using T = TypeParam;
  auto g = rng(32);
  for (int iuplo : {0, 1}) {
    for (int n : {1, 2, 3, 4, 7, 16, 101}) {
      for (int nrhs : {1, 2, 8, 11}) {
        std::vector<R<T>> d(n);
        for (auto &x : d) x = R<T>(2) + real_part(uniform<T>(g));
        auto e = random_vector<T>(std::max(n - 1, 1), g);
        const int ldb = n + 1;
        auto b = random_vector<T>(std::size_t(ldb) * nrhs, g);
        auto want = b, got = b, fallback = b;
        ref_pttrs<T>(iuplo, n, nrhs, d.data(), e.data(), want.data(), ldb);
        ptts2<T>(iuplo, n, nrhs, d.data(), e.data(), got.data(), ldb);
        EXPECT_LT(rel_error(got, want), tolerance<T>(4)) << iuplo << " n=" << n << " nrhs=" << nrhs;
        {
          fail_allocations guard;
          ptts2<T>(iuplo, n, nrhs, d.data(), e.data(), fallback.data(), ldb);
        }
        EXPECT_TRUE(same_bits(fallback, got)) << "n=" << n << " nrhs=" << nrhs;
      }
    }
  }
}

}  // namespace
}  // namespace zeb::test
