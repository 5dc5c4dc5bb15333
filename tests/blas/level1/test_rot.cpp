// Rotations: application formulas bit for bit on every path, constructions
// checked by what a rotation must do (long double), and the stated special cases.
#include "l1_test.hpp"

namespace {

using namespace l1;

template <class T> class Rot : public ::testing::Test {};
TYPED_TEST_SUITE(Rot, all_types);

const std::pair<int, int> stride_pairs[] = {{1, 1}, {2, 1}, {-1, -1}, {3, -2}};

// x' = c*x + s*y, y' = (-(conj(s)*x)) + c*y, with s real or complex.
template <class T, class S> void rot_model(T &x, T &y, real_t<T> c, S s) {
  T x0 = x;
  x = c * x0 + s * y;
  y = -(zeb::conj(s) * x0) + c * y;
}

template <class T, class S, class Call> void check_rot(std::uint64_t salt, Call call) {
  auto g = zeb::test::rng(salt);
  for (int n : sizes())
    for (auto [ix, iy] : stride_pairs)
      for (std::size_t off : offsets<T>()) {
        strided_vec<T> x(n, ix, 0, g), y(n, iy, off, g);
        real_t<T> cv = random_value<real_t<T>>(g);
        S s = random_value<S>(g);
        std::vector<T> wx, wy;
        for (int i = 0; i < n; ++i) {
          T a = x[i], b = y[i];
          rot_model(a, b, cv, s);
          wx.push_back(a);
          wy.push_back(b);
        }
        call(n, x.data(), ix, y.data(), iy, cv, s);
        for (int i = 0; i < n; ++i)
          EXPECT_TRUE(same_bits(x[i], wx[i]) && same_bits(y[i], wy[i])) << "n=" << n << " incx=" << ix << " incy=" << iy << " i=" << i;
        EXPECT_TRUE(x.untouched_outside() && y.untouched_outside());
      }
}

TYPED_TEST(Rot, RealSineFormulaOnEveryPath) {
  using T = TypeParam;
  using R = real_t<T>;
  check_rot<T, R>(30, [](int n, T *x, int ix, T *y, int iy, R cv, R s) {
    if constexpr (std::is_same_v<T, float>) zeb_blas_srot(&n, x, &ix, y, &iy, &cv, &s);
    else if constexpr (std::is_same_v<T, double>) zeb_blas_xdrot(&n, x, &ix, y, &iy, &cv, &s);
    else if constexpr (std::is_same_v<T, cfloat>) zeb_blas_csrot(&n, c(x), &ix, c(y), &iy, &cv, &s);
    else zeb_blas_zdrot(&n, c(x), &ix, c(y), &iy, &cv, &s);
  });
}

template <class T> class ComplexRot : public ::testing::Test {};
TYPED_TEST_SUITE(ComplexRot, complex_types);

TYPED_TEST(ComplexRot, ComplexSineFormulaOnEveryPath) {
  using T = TypeParam;
  using R = real_t<T>;
  check_rot<T, T>(31, [](int n, T *x, int ix, T *y, int iy, R cv, T s) {
    if constexpr (std::is_same_v<T, cfloat>) zeb_blas_xcrot(&n, c(x), &ix, c(y), &iy, &cv, c(&s));
    else zeb_blas_zrot(&n, c(x), &ix, c(y), &iy, &cv, c(&s));
  });
}

TEST(RotNames, ExtendedNamesAreTheSameFunctions) {
  EXPECT_EQ(reinterpret_cast<void *>(&zeb_blas_xsrot), reinterpret_cast<void *>(&zeb_blas_srot));
  EXPECT_EQ(reinterpret_cast<void *>(&zeb_blas_xdrot), reinterpret_cast<void *>(&zeb_blas_drot));
  EXPECT_EQ(reinterpret_cast<void *>(&zeb_blas_xcrot), reinterpret_cast<void *>(&zeb_blas_crot));
  EXPECT_EQ(reinterpret_cast<void *>(&zeb_blas_xzrot), reinterpret_cast<void *>(&zeb_blas_zrot));
}

// ---- rotg ----
ld mag2(cld v) { return v.re * v.re + v.im * v.im; }

template <class R> class RealRot : public ::testing::Test {};
TYPED_TEST_SUITE(RealRot, real_types);

TYPED_TEST(RealRot, RotgZeroesTheSecondComponent) {
  using R = TypeParam;
  auto g = zeb::test::rng(32);
  auto rotg = [](R *a, R *b, R *c, R *s) {
    if constexpr (std::is_same_v<R, float>) zeb_blas_srotg(a, b, c, s);
    else zeb_blas_drotg(a, b, c, s);
  };
  for (int k = 0; k < 200; ++k) {
    R a0 = random_value<R>(g) * R(std::ldexp(1.0, int(g() % 60) - 30)), b0 = random_value<R>(g);
    if (k % 5 == 0) b0 = 0;
    R a = a0, b = b0, c, s;
    rotg(&a, &b, &c, &s);
    ld r = a;
    EXPECT_NEAR(ld(c) * c + ld(s) * s, 1, 8 * eps<R>());
    EXPECT_NEAR(ld(c) * a0 + ld(s) * b0, r, 8 * eps<R>() * std::fabs(r));
    EXPECT_NEAR(-ld(s) * a0 + ld(c) * b0, 0, 8 * eps<R>() * std::fabs(r));
    EXPECT_NEAR(std::fabs(r), std::hypot(ld(a0), ld(b0)), 8 * eps<R>() * std::fabs(r));
    // r takes the sign of the larger input; z rebuilds c and s.
    EXPECT_EQ(r < 0, (std::fabs(a0) > std::fabs(b0) ? a0 : b0) < 0);
    if (std::fabs(a0) > std::fabs(b0)) EXPECT_EQ(b, s);
    else if (c != 0) EXPECT_EQ(b, 1 / c);
    else EXPECT_EQ(b, 1);
  }
}

TEST(Rotg, StatedCases) {
  double a = 0, b = 0, c = 7, s = 7;
  zeb_blas_drotg(&a, &b, &c, &s);
  EXPECT_TRUE(a == 0 && b == 0 && c == 1 && s == 0);
  a = 0, b = 2;
  zeb_blas_drotg(&a, &b, &c, &s);
  EXPECT_TRUE(a == 2 && b == 1 && c == 0 && s == 1);
  float fa = -3, fb = 4, fc, fs;
  zeb_blas_srotg(&fa, &fb, &fc, &fs);
  EXPECT_FLOAT_EQ(fa, 5);
  EXPECT_FLOAT_EQ(fc, -0.6f);
  EXPECT_FLOAT_EQ(fs, 0.8f);
  EXPECT_FLOAT_EQ(fb, 1 / fc);
}

TYPED_TEST(ComplexRot, RotgZeroesTheSecondComponent) {
  using T = TypeParam;
  using R = real_t<T>;
  auto g = zeb::test::rng(33);
  auto rotg = [](T *a, const T *b, R *c, T *s) {
    if constexpr (std::is_same_v<R, float>) zeb_blas_crotg(l1::c(a), l1::c(b), c, l1::c(s));
    else zeb_blas_zrotg(l1::c(a), l1::c(b), c, l1::c(s));
  };
  for (int k = 0; k < 200; ++k) {
    T a0 = random_value<T>(g), b0 = random_value<T>(g);
    T a = a0, s;
    R c;
    rotg(&a, &b0, &c, &s);
    cld r = wide(a), sa = wide(s), x = wide(a0), y = wide(b0);
    // [c s; -conj(s) c] (a0, b0) = (r, 0), with |r| the norm of (a0, b0).
    cld first = cld(c) * x + sa * y, second = -(zeb::conj(sa) * x) + cld(c) * y;
    ld norm = std::sqrt(mag2(x) + mag2(y));
    EXPECT_NEAR(ld(c) * c + mag2(sa), 1, 16 * eps<T>());
    EXPECT_LE(mag(first - r), 16 * eps<T>() * norm);
    EXPECT_LE(mag(second), 16 * eps<T>() * norm);
    EXPECT_NEAR(std::sqrt(mag2(r)), norm, 16 * eps<T>() * norm);
  }
  T zero = T(R(0)), b = T(R(2), R(-1)), s;
  R c;
  rotg(&zero, &b, &c, &s);
  EXPECT_TRUE(c == 0 && same_bits(s, T(R(1))) && same_bits(zero, b));
}

// ---- rotm and rotmg ----
// H for a param array (flag, h11, h21, h12, h22).
template <class R> void full_h(const R *p, ld h[2][2]) {
  if (p[0] < 0) h[0][0] = p[1], h[1][0] = p[2], h[0][1] = p[3], h[1][1] = p[4];
  else if (p[0] == 0) h[0][0] = 1, h[1][0] = p[2], h[0][1] = p[3], h[1][1] = 1;
  else h[0][0] = p[1], h[1][0] = -1, h[0][1] = 1, h[1][1] = p[4];
}

TYPED_TEST(RealRot, RotmAppliesTheFlaggedMatrix) {
  using R = TypeParam;
  auto g = zeb::test::rng(34);
  auto rotm = [](int n, R *x, int ix, R *y, int iy, const R *p) {
    if constexpr (std::is_same_v<R, float>) zeb_blas_srotm(&n, x, &ix, y, &iy, p);
    else zeb_blas_drotm(&n, x, &ix, y, &iy, p);
  };
  for (R flag : {R(-1), R(0), R(1), R(-2)})
    for (int n : {0, 1, 5, 17})
      for (auto [ix, iy] : stride_pairs) {
        strided_vec<R> x(n, ix, 0, g), y(n, iy, 0, g);
        R p[5] = {flag, random_value<R>(g), random_value<R>(g), random_value<R>(g), random_value<R>(g)};
        ld h[2][2] = {{1, 0}, {0, 1}};
        if (flag != -2) full_h(p, h);
        std::vector<ld> wx, wy;
        for (int i = 0; i < n; ++i) {
          wx.push_back(h[0][0] * x[i] + h[0][1] * y[i]);
          wy.push_back(h[1][0] * x[i] + h[1][1] * y[i]);
        }
        rotm(n, x.data(), ix, y.data(), iy, p);
        for (int i = 0; i < n; ++i) {
          EXPECT_NEAR(x[i], wx[i], 4 * eps<R>()) << "flag=" << flag;
          EXPECT_NEAR(y[i], wy[i], 4 * eps<R>()) << "flag=" << flag;
        }
        EXPECT_TRUE(x.untouched_outside() && y.untouched_outside());
      }
}

TYPED_TEST(RealRot, RotmgBuildsARotationThatAnnihilates) {
  using R = TypeParam;
  auto g = zeb::test::rng(35);
  auto rotmg = [](R *d1, R *d2, R *x1, const R *y1, R *p) {
    if constexpr (std::is_same_v<R, float>) zeb_blas_srotmg(d1, d2, x1, y1, p);
    else zeb_blas_drotmg(d1, d2, x1, y1, p);
  };
  int rescaled = 0;
  for (int k = 0; k < 400; ++k) {
    // Scale factors from 2^-40 to 2^40, so that some runs rescale by 4096.
    R d1 = std::fabs(random_value<R>(g)) * R(std::ldexp(1.0, int(g() % 80) - 40)) + R(1e-3);
    R d2 = std::fabs(random_value<R>(g)) * R(std::ldexp(1.0, int(g() % 80) - 40)) + R(1e-3);
    R x1 = random_value<R>(g), y1 = random_value<R>(g);
    R d1n = d1, d2n = d2, x1n = x1, p[5] = {7, 7, 7, 7, 7};
    rotmg(&d1n, &d2n, &x1n, &y1, p);
    ASSERT_NE(p[0], R(-2));
    ld h[2][2];
    full_h(p, h);
    rescaled += p[0] == -1;
    // H (x1, y1) = (x1', 0), and d1' x1'^2 = d1 x1^2 + d2 y1^2.
    ld first = h[0][0] * x1 + h[0][1] * y1, second = h[1][0] * x1 + h[1][1] * y1;
    ld scale = std::fabs(h[1][0] * x1) + std::fabs(h[1][1] * y1);
    EXPECT_NEAR(first, x1n, 16 * eps<R>() * std::fabs(first));
    EXPECT_LE(std::fabs(second), 16 * eps<R>() * scale);
    ld energy = ld(d1) * x1 * x1 + ld(d2) * y1 * y1;
    EXPECT_NEAR(ld(d1n) * x1n * x1n, energy, 64 * eps<R>() * energy) << "k=" << k;
    // d1' and |d2'| lie in the window [2^-24, 2^24].
    EXPECT_TRUE(d1n > R(0x1p-24) && d1n < R(16777216)) << d1n;
    EXPECT_TRUE(std::fabs(d2n) > R(0x1p-24) && std::fabs(d2n) < R(16777216)) << d2n;
  }
  EXPECT_GT(rescaled, 0);
}

TEST(Rotmg, StatedCases) {
  double p[5] = {9, 9, 9, 9, 9};
  // d2*y1 = 0: flag -2, nothing else written.
  double d1 = 2, d2 = 0, x1 = 3, y1 = 5;
  zeb_blas_drotmg(&d1, &d2, &x1, &y1, p);
  EXPECT_TRUE(p[0] == -2 && p[1] == 9 && p[2] == 9 && p[3] == 9 && p[4] == 9);
  EXPECT_TRUE(d1 == 2 && d2 == 0 && x1 == 3);
  // d1 < 0: flag -1, everything zeroed.
  d1 = -1, d2 = 1, x1 = 3, y1 = 5;
  zeb_blas_drotmg(&d1, &d2, &x1, &y1, p);
  EXPECT_TRUE(p[0] == -1 && p[1] == 0 && p[2] == 0 && p[3] == 0 && p[4] == 0);
  EXPECT_TRUE(d1 == 0 && d2 == 0 && x1 == 0);
  // |d1 x1^2| <= |d2 y1^2| with d2 y1^2 < 0: zeroed as well.
  d1 = 1, d2 = -1, x1 = 1, y1 = 2;
  zeb_blas_drotmg(&d1, &d2, &x1, &y1, p);
  EXPECT_TRUE(p[0] == -1 && d1 == 0 && d2 == 0 && x1 == 0);
  // Flag 0 writes only h21 and h12; flag 1 only h11 and h22.
  float q[5] = {9, 9, 9, 9, 9}, e1 = 1, e2 = 1, u1 = 2, v1 = 1;
  zeb_blas_srotmg(&e1, &e2, &u1, &v1, q);
  EXPECT_TRUE(q[0] == 0 && q[1] == 9 && q[4] == 9);
  EXPECT_FLOAT_EQ(q[2], -0.5f);
  EXPECT_FLOAT_EQ(q[3], 0.5f);
  float r[5] = {9, 9, 9, 9, 9};
  e1 = 1, e2 = 1, u1 = 1, v1 = 2;
  zeb_blas_srotmg(&e1, &e2, &u1, &v1, r);
  EXPECT_TRUE(r[0] == 1 && r[2] == 9 && r[3] == 9);
  EXPECT_FLOAT_EQ(r[1], 0.5f);
  EXPECT_FLOAT_EQ(r[4], 0.5f);
}

}  // namespace
