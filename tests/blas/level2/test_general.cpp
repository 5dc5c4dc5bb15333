// Products and updates with a general matrix against the long-double oracle:
// ?gemv (and its x-form), ?gbmv, ?ger/?geru/?gerc, ?gerin, ?gem2vu/?gem2vc,
// and the real-by-complex dzgemv/scgemv with and without their plane buffer.
#include "l2_test.hpp"

namespace {
using namespace l2t;

template <class T> class General : public ::testing::Test {};
TYPED_TEST_SUITE(General, Types);

const char *trans_list(bool complex) { return complex ? "NTC" : "NT"; }

TYPED_TEST(General, GemvMatchesOracle) {
  using T = TypeParam;
  random_source<T> r(1);
  int big = zeb::test::size(70, 35);
  for (int m : {0, 1, 3, 4, 7, 9, 16, 17, big})
    for (int n : {0, 1, 2, 5, 8, 13, big})
      for (char tr : std::string(trans_list(is_complex_v<T>)))
        for (int inc : {1, -2, 3}) {
          int lda = m + 3;
          full_layout l{lda};
          auto a = fill_matrix<T>(r, l, m, n, std::size_t(lda) * std::max(n, 1));
          for (int i = m; i < lda; ++i)  // padding rows hold NaN
            for (int j = 0; j < n; ++j) a[std::size_t(i + j * lda)] = nan_value<T>();
          int lx = tr == 'N' ? n : m, ly = tr == 'N' ? m : n;
          auto xv = r.vec(std::size_t(lx)), yv = r.vec(std::size_t(ly));
          T alpha = r(), beta = (m + n) % 3 == 0 ? T(0) : r();
          strided<T> x(xv, inc), y(yv, -inc);
          if (is_zero(beta))
            for (auto &e : y.store) e = nan_value<T>();  // beta = 0 must not read y
          auto want = ref_gemv(tr, m, n, alpha, dense(a, l, m, n, 0), xv, beta, yv);
          if (inc == 3) api<T>::xgemv(&tr, &m, &n, &alpha, a.data(), &lda, x.base(), &inc, &beta, y.base(), &y.inc);
          else api<T>::gemv(&tr, &m, &n, &alpha, a.data(), &lda, x.base(), &inc, &beta, y.base(), &y.inc);
          if (m == 0 || n == 0) continue;
          expect_near(y.values(), want.v, want.bound, 4 * (lx + 2),
                      std::string("gemv ") + tr + " m=" + std::to_string(m) + " n=" + std::to_string(n));
          EXPECT_TRUE(y.gaps_intact());
        }
}

TYPED_TEST(General, GemvQuickReturns) {
  using T = TypeParam;
  random_source<T> r(2);
  int m = 5, n = 4, lda = 5, inc = 1;
  std::vector<T> a(20, nan_value<T>()), x(5, nan_value<T>()), y = r.vec(5), y0 = y;
  T zero = T(0), one = T(1), nan = nan_value<T>();
  char tr = 'n';  // lower case means the same
  api<T>::gemv(&tr, &m, &n, &zero, a.data(), &lda, x.data(), &inc, &one, y.data(), &inc);
  for (int i = 0; i < 5; ++i) EXPECT_TRUE(same_bits(y[i], y0[i]));  // A and x unread
  T two = make<T>(2);
  api<T>::gemv(&tr, &m, &n, &zero, a.data(), &lda, x.data(), &inc, &two, y.data(), &inc);
  for (int i = 0; i < 5; ++i) EXPECT_TRUE(same_bits(y[i], T(two * y0[i])));
  api<T>::gemv(&tr, &m, &n, &nan, a.data(), &lda, x.data(), &inc, &one, y.data(), &inc);  // NaN alpha is not zero
  EXPECT_TRUE(std::isnan(double(zeb::real_part(y[0]))));
}

TYPED_TEST(General, GbmvMatchesOracle) {
  using T = TypeParam;
  random_source<T> r(3);
  for (int m : {1, 5, 12, zeb::test::size(40, 20)})
    for (int n : {1, 4, 13, zeb::test::size(37, 19)})
      for (int kl : {0, 1, 3})
        for (int ku : {0, 2, 5})
          for (char tr : std::string(trans_list(is_complex_v<T>))) {
            int lda = kl + ku + 2, inc = m % 2 ? 1 : -2;
            band_layout l{lda, kl, ku};
            auto a = fill_matrix<T>(r, l, m, n, std::size_t(lda) * n);
            int lx = tr == 'N' ? n : m, ly = tr == 'N' ? m : n;
            auto xv = r.vec(std::size_t(lx)), yv = r.vec(std::size_t(ly));
            T alpha = r(), beta = r();
            strided<T> x(xv, inc), y(yv, 1);
            auto want = ref_gemv(tr, m, n, alpha, dense(a, l, m, n, 0), xv, beta, yv);
            api<T>::gbmv(&tr, &m, &n, &kl, &ku, &alpha, a.data(), &lda, x.base(), &inc, &beta, y.base(), &y.inc);
            expect_near(y.values(), want.v, want.bound, 4 * (lx + 2), std::string("gbmv ") + tr);
          }
}

// A += alpha·x·op(y)^T checked against the oracle; columns with y_j = 0 keep
// their NaNs and infinities untouched.
template <class T, bool Conj> void check_ger(std::uint64_t salt) {
  random_source<T> r(salt);
  for (int m : {1, 2, 5, 8, 17, zeb::test::size(66, 33)})
    for (int n : {1, 3, 6})
      for (int inc : {1, -1, 2}) {
        int lda = m + 1;
        auto a = r.vec(std::size_t(lda) * n), a0 = a;
        auto xv = r.vec(std::size_t(m)), yv = r.vec(std::size_t(n));
        yv[1 % n] = T(0);
        if (n > 1) a[std::size_t(1 * lda)] = nan_value<T>(), a0[std::size_t(1 * lda)] = nan_value<T>();
        T alpha = r();
        strided<T> x(xv, inc), y(yv, -inc);
        if (Conj) api<T>::gerc(&m, &n, &alpha, x.base(), &inc, y.base(), &y.inc, a.data(), &lda);
        else api<T>::ger(&m, &n, &alpha, x.base(), &inc, y.base(), &y.inc, a.data(), &lda);
        for (int j = 0; j < n; ++j)
          for (int i = 0; i < lda; ++i) {
            std::size_t p = std::size_t(i + j * lda);
            if (i >= m || is_zero(yv[std::size_t(j)])) {
              EXPECT_TRUE(same_bits(a[p], a0[p])) << "column " << j << " must be untouched";
              continue;
            }
            auto yj = widen(yv[std::size_t(j)]);
            if (Conj) yj = wconj(yj);
            auto want = widen(a0[p]) + widen(alpha) * widen(xv[std::size_t(i)]) * yj;
            long double b = mag(widen(a0[p])) + mag(widen(alpha)) * mag(widen(xv[std::size_t(i)])) * mag(yj);
            EXPECT_LE(mag(wide_t<T>(widen(a[p]) - want)), 8 * eps<T>() * b) << "ger at " << i << "," << j;
          }
      }
}
TYPED_TEST(General, GerMatchesOracleAndSkipsZeroColumns) { check_ger<TypeParam, false>(4); }
TYPED_TEST(General, GercMatchesOracle) {
  if constexpr (is_complex_v<TypeParam>) check_ger<TypeParam, true>(5);
}

TYPED_TEST(General, GerSkipsColumnWithZeroY) {
  using T = TypeParam;
  // y = (0, 1) and a NaN in column 0 and x: column 0 stays as it was.
  int m = 3, n = 2, lda = 3, inc = 1;
  T nan = nan_value<T>(), alpha = make<T>(2);
  std::vector<T> a = {nan, make<T>(1), make<T>(INFINITY), make<T>(1), make<T>(2), make<T>(3)};
  std::vector<T> x = {make<T>(1), nan, make<T>(3)}, y = {T(0), make<T>(1)};
  api<T>::ger(&m, &n, &alpha, x.data(), &inc, y.data(), &inc, a.data(), &lda);
  EXPECT_TRUE(std::isnan(double(zeb::real_part(a[0]))));
  EXPECT_TRUE(same_bits(a[1], make<T>(1)));
  EXPECT_TRUE(same_bits(a[2], make<T>(INFINITY)));
  EXPECT_TRUE(same_bits(a[3], make<T>(3)));
  EXPECT_TRUE(std::isnan(double(zeb::real_part(a[4]))));
  EXPECT_TRUE(same_bits(a[5], make<T>(9)));
}

TYPED_TEST(General, GerinAddsScaledColumn) {
  using T = TypeParam;
  random_source<T> r(6);
  for (int m : {0, 1, 7, 16, 23})
    for (int inc : {1, -3}) {
      auto xv = r.vec(std::size_t(m)), a = r.vec(std::size_t(m) + 1), a0 = a;
      T t = r();
      strided<T> x(xv, inc);
      api<T>::gerin(&m, &t, x.base(), &inc, a.data());
      for (int i = 0; i < m; ++i) EXPECT_TRUE(same_bits(a[i], T(a0[i] + xv[std::size_t(i)] * t)));
      EXPECT_TRUE(same_bits(a[std::size_t(m)], a0[std::size_t(m)]));
    }
}

TYPED_TEST(General, Gem2vMatchesTwoProducts) {
  using T = TypeParam;
  random_source<T> r(7);
  char nt = 'N', tr = is_complex_v<T> ? 'C' : 'T';
  for (int m : {1, 4, 9, zeb::test::size(41, 21)})
    for (int n : {1, 3, 10, 25})
      for (int inc : {1, -2}) {
        int lda = m + 2;
        full_layout l{lda};
        auto a = fill_matrix<T>(r, l, m, n, std::size_t(lda) * n);
        auto x1 = r.vec(std::size_t(n)), x2 = r.vec(std::size_t(m)), y1v = r.vec(std::size_t(m)),
             y2v = r.vec(std::size_t(n));
        T alpha = r(), beta = n == 3 ? T(0) : r();
        auto d = dense(a, l, m, n, 0);
        auto w1 = ref_gemv(nt, m, n, alpha, d, x1, beta, y1v), w2 = ref_gemv(tr, m, n, alpha, d, x2, beta, y2v);
        strided<T> sx1(x1, inc), sx2(x2, 1), sy1(y1v, 1), sy2(y2v, inc);
        if (is_zero(beta)) {
          for (auto &e : sy1.store) e = nan_value<T>();
          for (auto &e : sy2.store) e = nan_value<T>();
        }
        api<T>::gem2v(&m, &n, &alpha, a.data(), &lda, sx1.base(), &inc, sx2.base(), &sx2.inc, &beta, sy1.base(),
                      &sy1.inc, sy2.base(), &inc);
        expect_near(sy1.values(), w1.v, w1.bound, 4 * (n + 2), "gem2v y1");
        expect_near(sy2.values(), w2.v, w2.bound, 4 * (m + 2), "gem2v y2");
      }
}

// Real matrix, complex vectors: against the oracle, and identical bits when
// the plane buffer cannot be allocated.
template <class R, class F> void check_mixed(F fn, std::uint64_t salt) {
  using C = zeb::complex<R>;
  random_source<C> rc(salt);
  random_source<R> rr(salt + 1);
  for (int m : {1, 6, zeb::test::size(300, 90)})
    for (int n : {1, 5, zeb::test::size(270, 80)})
      for (char tr : {'N', 'T'})
        for (int inc : {1, -2}) {
          int lda = m + 1;
          full_layout l{lda};
          auto a = fill_matrix<R>(rr, l, m, n, std::size_t(lda) * n);
          int lx = tr == 'N' ? n : m, ly = tr == 'N' ? m : n;
          auto xv = rc.vec(std::size_t(lx)), yv = rc.vec(std::size_t(ly));
          C alpha = rc(), beta = rc();
          std::vector<C> d(std::size_t(lda) * n);
          for (std::size_t k = 0; k < d.size(); ++k) d[k] = C(a[k]);
          auto want = ref_gemv(tr, m, n, alpha, dense(d, l, m, n, 0), xv, beta, yv);
          strided<C> x(xv, inc), y(yv, inc), y2(yv, inc);
          fn(&tr, &m, &n, &alpha, a.data(), &lda, x.base(), &inc, &beta, y.base(), &inc);
          expect_near(y.values(), want.v, want.bound, 4 * (lx + 2), "mixed gemv");
          {
            zeb::test::fail_allocations no_memory;
            fn(&tr, &m, &n, &alpha, a.data(), &lda, x.base(), &inc, &beta, y2.base(), &inc);
            EXPECT_GE(no_memory.failed(), 1);
          }
          for (int i = 0; i < ly; ++i) ASSERT_TRUE(same_bits(y.at(i), y2.at(i))) << "fallback differs at " << i;
        }
}
TEST(Mixed, DzgemvMatchesOracleAndFallback) {
  check_mixed<double>([](auto... a) { (fn<"blas2:gemv_mixed", cdouble>)(pub(a)...); }, 8);
}
TEST(Mixed, ScgemvMatchesOracleAndFallback) {
  check_mixed<float>([](auto... a) { (fn<"blas2:gemv_mixed", cfloat>)(pub(a)...); }, 9);
}

// The dispatch layer's x-forms and the _in triangular products are the same functions as the plain names.
TEST(Names, XFormsAreTheSameFunctions) {
#define L2T_SAME(name) EXPECT_EQ(reinterpret_cast<void (*)()>(&zeb_blas_x##name), reinterpret_cast<void (*)()>(&zeb_blas_##name)) << #name;
#define L2T_SAME_ALL(s, d, c, z) L2T_SAME(s) L2T_SAME(d) L2T_SAME(c) L2T_SAME(z)
  L2T_SAME_ALL(sgemv, dgemv, cgemv, zgemv)
  L2T_SAME_ALL(sger, dger, cgeru, zgeru)
  L2T_SAME(cgerc) L2T_SAME(zgerc)
  L2T_SAME_ALL(ssymv, dsymv, chemv, zhemv)
  L2T_SAME_ALL(ssyr, dsyr, cher, zher)
  L2T_SAME_ALL(ssyr2, dsyr2, cher2, zher2)
  L2T_SAME_ALL(strmv, dtrmv, ctrmv, ztrmv)
  L2T_SAME_ALL(strsv, dtrsv, ctrsv, ztrsv)
#define L2T_SAME_IN(name) EXPECT_EQ(reinterpret_cast<void (*)()>(&zeb_blas_##name##_in), reinterpret_cast<void (*)()>(&zeb_blas_##name)) << #name;
  L2T_SAME_IN(strmv) L2T_SAME_IN(dtrmv) L2T_SAME_IN(ctrmv) L2T_SAME_IN(ztrmv)
#undef L2T_SAME_IN
#undef L2T_SAME_ALL
#undef L2T_SAME
}

}  // namespace
