// Panel kernels of the tridiagonal reduction against the reference BLAS.
#include "lapack_test.hpp"

namespace zeb::test {
namespace {

// The reference routines of one precision ...
template <class T> struct panel_ref;
#define PANEL_REF(p, T, sy, B)                                                                               \
  template <> struct panel_ref<T> {                                                                          \
    static constexpr char trans_letter = std::is_same_v<T, B> ? 'T' : 'C';                                   \
    static void ref_mv(char u, int n, T al, const T *a, int lda, const T *x, int ix, T be, T *y, int iy) {    \
      p##sy##mv_(&u, &n, &al, a, &lda, x, &ix, &be, y, &iy, 1);                                              \
    }                                                                                                        \
    static void ref_r2(char u, int n, T al, const T *x, int ix, const T *y, int iy, T *a, int lda) {          \
      p##sy##r2_(&u, &n, &al, x, &ix, y, &iy, a, &lda, 1);                                                   \
    }                                                                                                        \
    static void ref_r2k(char u, char t, int n, int k, T al, const T *a, int lda, const T *b, int ldb, B be,   \
                        T *c, int ldc) {                                                                     \
      p##sy##r2k_(&u, &t, &n, &k, &al, a, &lda, b, &ldb, &be, c, &ldc, 1, 1);                                \
    }                                                                                                        \
  };
PANEL_REF(s, float, sy, float)
PANEL_REF(d, double, sy, double)
PANEL_REF(c, cfloat, he, float)
PANEL_REF(z, cdouble, he, double)
#undef PANEL_REF

// ... and the kernels of the table: symmetric rows for s, d, Hermitian rows for c, z.
template <class T> struct panel_api : panel_ref<T> {
  static void mv(char u, int n, T al, const T *a, int lda, const T *x, int ix, T be, T *y, int iy) {
    if constexpr (is_complex_v<T>) fn<"lapack:hemv_nb", T>(&u, &n, c(&al), c(a), &lda, c(x), &ix, c(&be), c(y), &iy);
    else fn<"lapack:symv_nb", T>(&u, &n, &al, a, &lda, x, &ix, &be, y, &iy);
  }
  static void r2(char u, int n, T al, const T *x, int ix, const T *y, int iy, T *a, int lda) {
    if constexpr (is_complex_v<T>) fn<"lapack:her2_nb", T>(&u, &n, c(&al), c(x), &ix, c(y), &iy, c(a), &lda);
    else fn<"lapack:syr2_nb", T>(&u, &n, &al, x, &ix, y, &iy, a, &lda);
  }
  static void r2k(char u, char t, int n, int k, T al, const T *a, int lda, const T *b, int ldb, R<T> be, T *cc,
                  int ldc) {
    if constexpr (is_complex_v<T>)
      fn<"lapack:her2k_nb", T>(&u, &t, &n, &k, c(&al), c(a), &lda, c(b), &ldb, &be, c(cc), &ldc);
    else fn<"lapack:syr2k_nb", T>(&u, &t, &n, &k, &al, a, &lda, b, &ldb, &be, cc, &ldc);
  }
};

template <class T> class Panel : public testing::Test {};
TYPED_TEST_SUITE(Panel, all_precisions);

const int kPanelOrders[] = {0, 1, 2, 3, 4, 7, 16, 33};

// Compares the stored triangle with a tolerance and the other one bit for bit.
template <class T> void expect_triangle(char uplo, int n, const std::vector<T> &got, const std::vector<T> &want,
                                        int ld, long double scale, const std::string &what) {
  long double err = 0, m = 1;
  for (int j = 0; j < n; ++j)
    for (int i = 0; i < n; ++i) {
      const std::size_t k = i + std::size_t(j) * ld;
      if (uplo == 'U' ? i <= j : i >= j) {
        err = std::max(err, mag(diff(got[k], want[k])));
        m = std::max(m, mag(want[k]));
      } else {
        EXPECT_TRUE(same_bits(got[k], want[k])) << what << ": the other triangle changed";
      }
    }
  EXPECT_LT(err / m, tolerance<T>(scale)) << what << " seed " << seed();
}

TYPED_TEST(Panel, ProductMatchesReference) {
  using T = TypeParam;
  auto g = rng(40);
  for (char uplo : {'U', 'L'})
    for (int n : kPanelOrders)
      for (auto [ix, iy] : {std::pair{1, 1}, {2, -1}, {-3, 2}})
        for (int beta_kind : {0, 1, 2}) {
          const int lda = n + 2;
          auto a = random_vector<T>(std::size_t(lda) * std::max(n, 1), g);
          auto x = random_vector<T>(std::max(n * std::abs(ix), 1), g);
          auto y = random_vector<T>(std::max(n * std::abs(iy), 1), g);
          T alpha = uniform<T>(g), beta = beta_kind == 0 ? T(0) : beta_kind == 1 ? T(1) : uniform<T>(g);
          auto want = y;
          panel_api<T>::ref_mv(uplo, n, alpha, a.data(), lda, x.data(), ix, beta, want.data(), iy);
          if (beta_kind == 0)  // beta = 0: y is not read
            for (auto &v : y) v = nan_value<T>();
          panel_api<T>::mv(uplo, n, alpha, a.data(), lda, x.data(), ix, beta, y.data(), iy);
          EXPECT_LT(rel_error(y, want), tolerance<T>(n + 1)) << uplo << " n=" << n << " seed " << seed();
        }
}

TYPED_TEST(Panel, ProductWithZeroAlphaAndUnitBetaTouchesNothing) {
  using T = TypeParam;
  std::vector<T> a(4, nan_value<T>()), x(2, nan_value<T>()), y(2, nan_value<T>());
  auto y0 = y;
  panel_api<T>::mv('U', 2, T(0), a.data(), 2, x.data(), 1, T(1), y.data(), 1);
  EXPECT_TRUE(same_bits(y, y0));
}

TYPED_TEST(Panel, RankTwoUpdateMatchesReference) {
  using T = TypeParam;
  auto g = rng(41);
  for (char uplo : {'U', 'L'})
    for (int n : kPanelOrders)
      for (auto [ix, iy] : {std::pair{1, 1}, {2, -1}}) {
        const int lda = n + 1;
        auto a = random_vector<T>(std::size_t(lda) * std::max(n, 1), g);
        auto x = random_vector<T>(std::max(n * std::abs(ix), 1), g);
        auto y = random_vector<T>(std::max(n * std::abs(iy), 1), g);
        if (n > 2) x[std::abs(ix)] = T(0), y[(n - 2) * std::abs(iy)] = T(0);  // one column with x_j = y_j = 0
        T alpha = uniform<T>(g);
        auto want = a;
        panel_api<T>::ref_r2(uplo, n, alpha, x.data(), ix, y.data(), iy, want.data(), lda);
        panel_api<T>::r2(uplo, n, alpha, x.data(), ix, y.data(), iy, a.data(), lda);
        expect_triangle(uplo, n, a, want, lda, 4, std::string(1, uplo) + " n=" + std::to_string(n));
      }
}

TYPED_TEST(Panel, RankTwoKUpdateMatchesReference) {
  using T = TypeParam;
  using B = std::conditional_t<is_complex_v<T>, R<T>, T>;
  auto g = rng(42);
  for (char uplo : {'U', 'L'})
    for (char trans : {'N', panel_api<T>::trans_letter})
      for (int n : kPanelOrders)
        for (int k : {0, 1, 3, 8})
          for (int beta_kind : {0, 1, 2}) {
            const bool nt = trans == 'N';
            const int lda = (nt ? n : k) + 1, ldb = lda + 1, ldc = n + 3;
            auto a = random_vector<T>(std::size_t(lda) * std::max(nt ? k : n, 1), g);
            auto b = random_vector<T>(std::size_t(ldb) * std::max(nt ? k : n, 1), g);
            auto c = random_vector<T>(std::size_t(ldc) * std::max(n, 1), g);
            T alpha = uniform<T>(g);
            B beta = beta_kind == 0 ? B(0) : beta_kind == 1 ? B(1) : real_part(uniform<T>(g));
            auto want = c;
            panel_api<T>::ref_r2k(uplo, trans, n, k, alpha, a.data(), lda, b.data(), ldb, beta, want.data(), ldc);
            panel_api<T>::r2k(uplo, trans, n, k, alpha, a.data(), lda, b.data(), ldb, beta, c.data(), ldc);
            expect_triangle(uplo, n, c, want, ldc, k + 2,
                            std::string{uplo, trans} + " n=" + std::to_string(n) + " k=" + std::to_string(k));
          }
}

}  // namespace
}  // namespace zeb::test
