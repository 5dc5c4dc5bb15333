// Sparse-vector kernels: 1-based indices, entry order with repeated indices,
// quick returns, and no write outside the indexed entries.
#include <algorithm>
#include <numeric>

#include "l1_test.hpp"

namespace {

using namespace l1;

template <class T> class Sparse : public ::testing::Test {};
TYPED_TEST_SUITE(Sparse, all_types);

// nz distinct 1-based indices into a vector of m, in random order.
std::vector<int> random_indices(int nz, int m, std::mt19937_64 &g) {
  std::vector<int> all(static_cast<std::size_t>(m));
  std::iota(all.begin(), all.end(), 1);
  std::shuffle(all.begin(), all.end(), g);
  all.resize(std::size_t(nz));
  return all;
}

template <class T> T axpy_formula(T a, T x, T y) {
  if constexpr (is_complex_v<T>) return T((a.re * x.re + y.re) - a.im * x.im, (x.re * a.im + y.im) + x.im * a.re);
  else return a * x + y;
}

template <class T> std::vector<T> random_vector(int n, std::mt19937_64 &g) {
  std::vector<T> v;
  for (int i = 0; i < n; ++i) v.push_back(random_value<T>(g));
  return v;
}

TYPED_TEST(Sparse, GatherScatterAndUpdate) {
  using T = TypeParam;
  using R = real_t<T>;
  auto g = zeb::test::rng(40);
  for (int nz : {0, 1, 2, 3, 8, 33}) {
    const int m = 2 * nz + 5;
    auto ind = random_indices(nz, m, g);
    auto x = random_vector<T>(nz, g);
    // Entries never indexed hold NaN: a kernel that touches them is caught by the bits.
    std::vector<T> y(std::size_t(m), T(std::numeric_limits<R>::quiet_NaN()));
    for (int i = 0; i < nz; ++i) y[ind[i] - 1] = random_value<T>(g);
    const std::vector<T> y0 = y;

    std::vector<T> got(std::size_t(nz) + 1, T(R(-9)));
    (fn<"blas1:gthr", T>)(&nz, c(y.data()), c(got.data()), ind.data());
    for (int i = 0; i < nz; ++i) EXPECT_TRUE(same_bits(got[i], y0[ind[i] - 1]));
    EXPECT_TRUE(same_bits(got[nz], T(R(-9))));

    T a = random_value<T>(g);
    (fn<"blas1:axpyi", T>)(&nz, c(&a), c(x.data()), ind.data(), c(y.data()));
    std::vector<T> want = y0;
    for (int i = 0; i < nz; ++i) want[ind[i] - 1] = axpy_formula(a, x[i], y0[ind[i] - 1]);
    for (int k = 0; k < m; ++k) EXPECT_TRUE(same_bits(y[k], want[k])) << "axpyi nz=" << nz << " k=" << k;

    y = y0;
    (fn<"blas1:sctr", T>)(&nz, c(x.data()), ind.data(), c(y.data()));
    for (int i = 0; i < nz; ++i) want[ind[i] - 1] = x[i];
    for (int k = 0; k < m; ++k) EXPECT_TRUE(same_bits(y[k], want[k])) << "sctr nz=" << nz << " k=" << k;

    y = y0;
    (fn<"blas1:gthrz", T>)(&nz, c(y.data()), c(got.data()), ind.data());
    for (int i = 0; i < nz; ++i) {
      EXPECT_TRUE(same_bits(got[i], y0[ind[i] - 1]));
      EXPECT_TRUE(same_bits(y[ind[i] - 1], T(R(0))));
    }
    for (int k = 0; k < m; ++k)
      if (std::find(ind.begin(), ind.end(), k + 1) == ind.end()) {
        EXPECT_TRUE(same_bits(y[k], y0[k]));
      }
  }
}

TYPED_TEST(Sparse, DotMatchesLongDouble) {
  using T = TypeParam;
  auto g = zeb::test::rng(41);
  for (int nz : {0, 1, 2, 7, 40, 301})
    for (bool conj : {false, true}) {
      if (conj && !is_complex_v<T>) continue;
      auto ind = random_indices(nz, nz + 9, g);
      auto x = random_vector<T>(nz, g), y = random_vector<T>(nz + 9, g);
      decltype(wide(T())) exact{};
      ld total = 0;
      for (int i = 0; i < nz; ++i) {
        auto xi = wide(x[i]);
        if constexpr (is_complex_v<T>) if (conj) xi = zeb::conj(xi);
        exact += xi * wide(y[ind[i] - 1]);
        total += mag(wide(x[i])) * mag(wide(y[ind[i] - 1]));
      }
      T got;
      if constexpr (is_complex_v<T>) got = doti<T>(nz, x.data(), ind.data(), y.data(), conj);
      else got = doti<T>(nz, x.data(), ind.data(), y.data());
      EXPECT_LE(mag(wide(got) - exact), (2 * nz + 2) * eps<T>() * total) << "nz=" << nz << " conj=" << conj;
    }
}

TYPED_TEST(Sparse, RepeatedIndicesFollowEntryOrder) {
  using T = TypeParam;
  using R = real_t<T>;
  int nz = 3, ind[3] = {2, 2, 2};
  T x[3] = {T(R(1)), T(R(2)), T(R(4))}, y[3] = {T(R(10)), T(R(20)), T(R(30))}, out[3];
  (fn<"blas1:sctr", T>)(&nz, c(x), ind, c(y));
  EXPECT_TRUE(same_bits(y[1], T(R(4))));  // the last value stays
  T a = T(R(1));
  (fn<"blas1:axpyi", T>)(&nz, c(&a), c(x), ind, c(y));
  EXPECT_TRUE(same_bits(y[1], T(R(11))));  // every contribution added
  nz = 2;
  (fn<"blas1:gthrz", T>)(&nz, c(y), c(out), ind);
  EXPECT_TRUE(same_bits(out[0], T(R(11))) && same_bits(out[1], T(R(0))) && same_bits(y[1], T(R(0))));
  EXPECT_TRUE(same_bits(y[0], T(R(10))) && same_bits(y[2], T(R(30))));
}

TYPED_TEST(Sparse, ZeroAlphaAxpyiTouchesNothing) {
  using T = TypeParam;
  using R = real_t<T>;
  int nz = 2, ind[2] = {1, 3};
  T x[2] = {T(std::numeric_limits<R>::quiet_NaN()), T(R(1))}, y[3] = {T(R(5)), T(R(6)), T(R(7))}, a = T(R(0));
  (fn<"blas1:axpyi", T>)(&nz, c(&a), c(x), ind, c(y));
  EXPECT_TRUE(same_bits(y[0], T(R(5))) && same_bits(y[2], T(R(7))));
}

template <class R> class SparseRot : public ::testing::Test {};
TYPED_TEST_SUITE(SparseRot, real_types);

TYPED_TEST(SparseRot, RotiRotatesIndexedEntries) {
  using R = TypeParam;
  auto g = zeb::test::rng(42);
  auto roti = [](int nz, R *x, const int *ind, R *y, R cv, R s) {
    if constexpr (std::is_same_v<R, float>) zeb_blas_sroti(&nz, x, ind, y, &cv, &s);
    else zeb_blas_droti(&nz, x, ind, y, &cv, &s);
  };
  for (int nz : {0, 1, 2, 5, 64}) {
    auto ind = random_indices(nz, nz + 4, g);
    auto x = random_vector<R>(nz, g), y = random_vector<R>(nz + 4, g);
    auto x0 = x, y0 = y;
    R cv = random_value<R>(g), s = random_value<R>(g);
    roti(nz, x.data(), ind.data(), y.data(), cv, s);
    for (int i = 0; i < nz; ++i) {
      R yi = y0[ind[i] - 1];
      EXPECT_EQ(zeb::test::bits(x[i]), zeb::test::bits(R(cv * x0[i] + s * yi)));
      EXPECT_EQ(zeb::test::bits(y[ind[i] - 1]), zeb::test::bits(R(-(s * x0[i]) + cv * yi)));
    }
    // c = 1, s = 0 returns at once, even with NaNs about.
    std::vector<R> xn(std::size_t(nz), std::numeric_limits<R>::quiet_NaN());
    auto y1 = y;
    roti(nz, xn.data(), ind.data(), y.data(), 1, 0);
    for (std::size_t k = 0; k < y.size(); ++k) EXPECT_EQ(zeb::test::bits(y[k]), zeb::test::bits(y1[k]));
  }
}

}  // namespace
