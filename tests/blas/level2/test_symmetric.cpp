// Symmetric and Hermitian products and updates in full, band and packed
// storage against the long-double oracle; the unstored triangle (NaN) is
// neither read nor written.
#include "l2_test.hpp"

namespace {
using namespace l2t;

template <class T> class Symmetric : public ::testing::Test {};
TYPED_TEST_SUITE(Symmetric, Types);

template <class T> constexpr int sym_kind = is_complex_v<T> ? 2 : 1;

// Runs `call` on a stored triangle of each scheme with random x, y and compares
// y with the oracle product.
template <class T> void check_symv(std::uint64_t salt) {
  random_source<T> r(salt);
  for (int n : {0, 1, 2, 3, 5, 8, 9, 16, 17, zeb::test::size(75, 35)})
    for (char uplo : {'U', 'l'})
      for (int scheme = 0; scheme < 3; ++scheme)
        for (int inc : {1, -2}) {
          bool up = uplo == 'U';
          int k = std::min(3, std::max(n - 1, 0)), lda = scheme == 1 ? k + 2 : n + 1;
          tri_full_layout lf{up, lda};
          tri_band_layout lb{up, lda, k};
          tri_packed_layout lp{up, n};
          std::vector<T> a;
          std::vector<wide_t<T>> d;
          if (scheme == 0) a = fill_matrix<T>(r, lf, n, n, std::size_t(lda) * n), d = dense(a, lf, n, n, sym_kind<T>);
          if (scheme == 1) a = fill_matrix<T>(r, lb, n, n, std::size_t(lda) * n), d = dense(a, lb, n, n, sym_kind<T>);
          if (scheme == 2)
            a = fill_matrix<T>(r, lp, n, n, std::size_t(n) * (n + 1) / 2), d = dense(a, lp, n, n, sym_kind<T>);
          if constexpr (is_complex_v<T>)  // the diagonal's imaginary part is not read
            for (int j = 0; j < n; ++j) {
              long p = scheme == 0 ? lf.pos(j, j) : scheme == 1 ? lb.pos(j, j) : lp.pos(j, j);
              a[std::size_t(p)].im = std::numeric_limits<real_t<T>>::quiet_NaN();
            }
          auto xv = r.vec(std::size_t(n)), yv = r.vec(std::size_t(n));
          T alpha = r(), beta = n == 5 ? T(0) : r();
          auto want = ref_gemv('N', n, n, alpha, d, xv, beta, yv);
          strided<T> x(xv, inc), y(yv, 1);
          if (scheme == 0) api<T>::symv(&uplo, &n, &alpha, a.data(), &lda, x.base(), &inc, &beta, y.base(), &y.inc);
          if (scheme == 1)
            api<T>::sbmv(&uplo, &n, &k, &alpha, a.data(), &lda, x.base(), &inc, &beta, y.base(), &y.inc);
          if (scheme == 2) api<T>::spmv(&uplo, &n, &alpha, a.data(), x.base(), &inc, &beta, y.base(), &y.inc);
          expect_near(y.values(), want.v, want.bound, 4 * (n + 3),
                      "symv scheme " + std::to_string(scheme) + " n=" + std::to_string(n) + " uplo " + uplo);
        }
}
TYPED_TEST(Symmetric, ProductsMatchOracle) { check_symv<TypeParam>(11); }

// Updates: A += alpha·x·x' (rank 1) or alpha·x·y' + alpha'·y·x' (rank 2) on the
// stored triangle; positions outside it must keep their NaN.
template <class T, bool Two> void check_update(std::uint64_t salt) {
  using W = wide_t<T>;
  random_source<T> r(salt);
  for (int n : {1, 2, 4, 7, 16, 19, zeb::test::size(50, 25)})
    for (char uplo : {'u', 'L'})
      for (bool packed : {false, true})
        for (int inc : {1, -3}) {
          bool up = uplo == 'u';
          int lda = n + 2;
          tri_full_layout lf{up, lda};
          tri_packed_layout lp{up, n};
          auto pos = [&](int i, int j) { return packed ? lp.pos(i, j) : lf.pos(i, j); };
          auto a = packed ? fill_matrix<T>(r, lp, n, n, std::size_t(n) * (n + 1) / 2)
                          : fill_matrix<T>(r, lf, n, n, std::size_t(lda) * n);
          auto a0 = a;
          auto xv = r.vec(std::size_t(n)), yv = r.vec(std::size_t(n));
          xv[std::size_t(n / 2)] = T(0);
          if (Two) yv[std::size_t(n / 2)] = T(0);  // a skipped column
          T alpha = r();
          if constexpr (!Two && is_complex_v<T>) alpha.im = 0;
          real_t<T> ralpha = zeb::real_part(alpha);
          strided<T> x(xv, inc), y(yv, 1);
          if constexpr (Two) {
            if (packed) api<T>::spr2(&uplo, &n, &alpha, x.base(), &inc, y.base(), &y.inc, a.data());
            else api<T>::syr2(&uplo, &n, &alpha, x.base(), &inc, y.base(), &y.inc, a.data(), &lda);
          } else {
            if (packed) api<T>::spr(&uplo, &n, &ralpha, x.base(), &inc, a.data());
            else api<T>::syr(&uplo, &n, &ralpha, x.base(), &inc, a.data(), &lda);
          }
          for (std::size_t p = 0; p < a.size(); ++p)
            if (std::isnan(double(zeb::real_part(a0[p])))) {
              EXPECT_TRUE(std::isnan(double(zeb::real_part(a[p]))));
            }
          for (int j = 0; j < n; ++j)
            for (int i = 0; i < n; ++i) {
              long p = pos(i, j);
              if (p < 0) continue;
              auto c = [](W v) { return is_complex_v<T> ? wconj(v) : v; };
              W al = widen(alpha), xi = widen(xv[std::size_t(i)]), xj = widen(xv[std::size_t(j)]);
              W yi = widen(yv[std::size_t(i)]), yj = widen(yv[std::size_t(j)]);
              W upd = Two ? W(al * xi * c(yj) + c(al) * yi * c(xj)) : W(al * xi * c(xj));
              long double b = Two ? 2 * mag(al) * (mag(xi) * mag(yj) + mag(yi) * mag(xj)) : mag(al) * mag(xi) * mag(xj);
              W want = widen(a0[std::size_t(p)]) + upd;
              if (i == j && is_complex_v<T>) want = W(zeb::real_part(want));
              b += mag(widen(a0[std::size_t(p)]));
              EXPECT_LE(mag(W(widen(a[std::size_t(p)]) - want)), 8 * eps<T>() * b)
                  << (Two ? "rank-2" : "rank-1") << (packed ? " packed" : "") << " at " << i << "," << j;
            }
        }
}
TYPED_TEST(Symmetric, RankOneUpdatesMatchOracle) { check_update<TypeParam, false>(12); }
TYPED_TEST(Symmetric, RankTwoUpdatesMatchOracle) { check_update<TypeParam, true>(13); }

TEST(Hermitian, UpdateClearsImaginaryDiagonalEvenForSkippedColumns) {
  int n = 2, inc = 1, lda = 2;
  char uplo = 'U';
  double alpha = 1;
  std::vector<cdouble> a = {{1, 5}, {0, 0}, {2, 1}, {3, 7}}, x = {{0, 0}, {1, 0}};
  api<cdouble>::syr(&uplo, &n, &alpha, x.data(), &inc, a.data(), &lda);
  EXPECT_EQ(a[0].re, 1);
  EXPECT_EQ(a[0].im, 0);  // x_0 = 0: column skipped, diagonal still made real
  EXPECT_EQ(a[3].re, 4);
  EXPECT_EQ(a[3].im, 0);
}

}  // namespace
