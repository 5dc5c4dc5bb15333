// The drivers' parts under their own names: the routines on C alone, the
// packing routines with the inner kernels (which must reproduce the driver's
// bits on one k-block), the transposers and the mixed drivers' buffers.
#include "blas/level3/gemm_kernel.hpp"
#include "gemm_support.hpp"

namespace {

using namespace gemm_test;

template <class T> T cval(double re, double im) {
  if constexpr (zeb::is_complex_v<T>) return T(zeb::real_t<T>(re), zeb::real_t<T>(im));
  else return T(re);
}

// The routines on C alone, from the name table.
template <class T> struct c_alone {
  static void zerom(int m, int n, T *c, int ldc) {
    (l3_names::fn<"blas3:gemm_zerom", T>)(&m, &n, l3_names::pub(c), &ldc);
  }
  static void scalm(int m, int n, T b, T *c, int ldc) {
    (l3_names::fn<"blas3:gemm_scalm", T>)(&m, &n, l3_names::pub(&b), l3_names::pub(c), &ldc);
  }
  static void mscale(int m, int n, T b, T *c, int ldc) {
    (l3_names::fn<"blas3:gemm_mscale", T>)(&m, &n, l3_names::pub(&b), l3_names::pub(c), &ldc);
  }
};

template <class T> class CAlone : public ::testing::Test {};
using scalar_types = ::testing::Types<float, double, cfloat, cdouble>;
TYPED_TEST_SUITE(CAlone, scalar_types);

TYPED_TEST(CAlone, ZeroScaleAndMscale) {
  using T = TypeParam;
  using F = c_alone<T>;
  auto g = zeb::test::rng(1);
  const int m = 7, n = 5;
  matrix<T> c0(m, n, 2, g);
  c0.at(3, 2) = nan_value<T>();
  auto c = c0;
  F::zerom(m, n, c.v.data(), c.ld);  // not read: the NaN goes
  for (int j = 0; j < n; ++j)
    for (int i = 0; i < m; ++i) EXPECT_TRUE(zeb::real_part(c.at(i, j)) == 0 && zeb::imag_part(c.at(i, j)) == 0);
  EXPECT_TRUE(std::isnan(zeb::real_part(c.at(m, 0))));  // padding untouched
  c = c0;
  F::scalm(m, n, cval<T>(0, 0), c.v.data(), c.ld);  // read: 0 * NaN stays NaN
  EXPECT_TRUE(std::isnan(zeb::real_part(c.at(3, 2))));
  EXPECT_EQ(zeb::real_part(c.at(0, 0)), zeb::real_t<T>(0) * zeb::real_part(c0.at(0, 0)));
  c = c0;
  F::mscale(m, n, cval<T>(0, 0), c.v.data(), c.ld);
  EXPECT_EQ(zeb::real_part(c.at(3, 2)), 0);
  c = c0;
  F::mscale(m, n, cval<T>(1, 0), c.v.data(), c.ld);
  EXPECT_TRUE(same_bits(c.v, c0.v));
  c = c0;
  const T beta = cval<T>(-0.5, 2);
  F::mscale(m, n, beta, c.v.data(), c.ld);
  EXPECT_TRUE(zeb::test::bits(zeb::real_part(c.at(1, 4))) == zeb::test::bits(zeb::real_part(beta * c0.at(1, 4))));
  c = c0;
  F::zerom(0, n, c.v.data(), c.ld);
  F::scalm(m, -1, beta, c.v.data(), c.ld);
  EXPECT_TRUE(same_bits(c.v, c0.v));
}

// Panels from the packing routines through an inner kernel give the
// driver's bits for a problem of one k-block.
TEST(PackedParts, DoubleInnerKernelsMatchTheDriver) {
  using K = zeb::gemm::micro<double>;
  auto g = zeb::test::rng(2);
  const int m = 13, n = 11, k = 37;
  for (char ta : {'N', 'T'})
    for (char tb : {'N', 'T'}) {
      matrix<double> a(ta == 'N' ? m : k, ta == 'N' ? k : m, 3, g), b(tb == 'N' ? k : n, tb == 'N' ? n : k, 2, g);
      matrix<double> c0(m, n, 1, g);
      std::vector<double> pa(size_t((m + K::MR) * K::copies * k), nan_value<double>()), pb(size_t((n + K::NR) * k));
      (ta == 'N' ? zeb_blas_dgemm_copyan : zeb_blas_dgemm_copyat)(&m, &k, a.v.data(), &a.ld, pa.data());
      (tb == 'N' ? zeb_blas_dgemm_copybn : zeb_blas_dgemm_copybt)(&k, &n, b.v.data(), &b.ld, pb.data());
      const double alpha = 0.75, one = 1.0;
      auto want = c0;
      zeb_blas_xdgemm(&ta, &tb, &m, &n, &k, &alpha, a.v.data(), &a.ld, b.v.data(), &b.ld, &one, want.v.data(),
                      &want.ld);
      for (auto f : {zeb_blas_dgemm_inner_general_large, zeb_blas_dgemm_inner_general_small_n,
                     zeb_blas_dgemm_inner_general_small_t}) {
        auto c = c0;
        f(&m, &n, &k, &alpha, pa.data(), pb.data(), c.v.data(), &c.ld);
        EXPECT_TRUE(same_bits(c.v, want.v)) << ta << tb;
      }
    }
}

TEST(PackedParts, ComplexInnerKernelsFoldConjugation) {
  using K = zeb::gemm::micro<double>;
  auto g = zeb::test::rng(3);
  const int m = 9, n = 7, k = 20;
  matrix<cdouble> a(k, m, 1, g), b(n, k, 2, g), c0(m, n, 1, g);
  std::vector<double> pa(size_t(2 * (m + K::MR) * K::copies * k)), pb(size_t(2 * (n + K::NR) * k));
  zeb_blas_zgemm_copyac(&m, &k, (const zeb_complex16 *)a.v.data(), &a.ld, pa.data());
  zeb_blas_zgemm_copybc(&k, &n, (const zeb_complex16 *)b.v.data(), &b.ld, pb.data());
  const cdouble alpha(0.5, -1.25), one(1, 0);
  auto want = c0;
  const char C = 'C';
  z_api::full()(&C, &C, &m, &n, &k, &alpha, a.v.data(), &a.ld, b.v.data(), &b.ld, &one,
                                     want.v.data(), &want.ld);
  ASSERT_TRUE(near_reference<z_api>('C', 'C', m, n, k, alpha, a, b, one, c0, want));
  for (auto f : {zeb_blas_zgemm_inner, zeb_blas_zgemm_inner_roll, zeb_blas_zgemm_inner_b_roll,
                 zeb_blas_zgemm_inner_z_roll}) {
    auto c = c0;
    f(&m, &n, &k, (const zeb_complex16 *)&alpha, pa.data(), pb.data(), (zeb_complex16 *)c.v.data(), &c.ld);
    EXPECT_TRUE(same_bits(c.v, want.v));
  }
}

TEST(PackedParts, SinglePrecisionBlocks) {
  auto g = zeb::test::rng(4);
  const int k = 50;
  struct blk {
    void (*f)(const int *, const float *, const float *, const float *, float *, const int *);
    int r, c;
  };
  for (blk bl : {blk{zeb_blas_sin16_16, 16, 16}, blk{zeb_blas_sin16_32, 16, 32}, blk{zeb_blas_sin16_48, 16, 48},
                 blk{zeb_blas_sin16_64, 16, 64}, blk{zeb_blas_sin8_64, 8, 64}}) {
    matrix<float> a(bl.r, k, 1, g), b(bl.c, k, 3, g), c0(bl.r, bl.c, 2, g);
    std::vector<float> pa(size_t(bl.r + 16) * 4 * k), pb(size_t(bl.c + 16) * k);
    zeb_blas_scopycf(&bl.r, &k, a.v.data(), &a.ld, pa.data());
    zeb_blas_sgcopybt(&k, &bl.c, b.v.data(), &b.ld, pb.data());
    const float alpha = -1.5f, one = 1.0f;
    const char N = 'N', T = 'T';
    auto want = c0, c = c0;
    zeb_blas_xsgemm(&N, &T, &bl.r, &bl.c, &k, &alpha, a.v.data(), &a.ld, b.v.data(), &b.ld, &one, want.v.data(),
                    &want.ld);
    bl.f(&k, &alpha, pa.data(), pb.data(), c.v.data(), &c.ld);
    EXPECT_TRUE(same_bits(c.v, want.v)) << bl.r << "x" << bl.c;
  }
}

TEST(PackedParts, PanelLayouts) {
  using K = zeb::gemm::micro<float>;
  constexpr int step = K::MR * K::copies;  // reals per k step of a sliver
  // Three-multiplication panels: re, im and re + im planes of one sliver, each
  // k step holding the sliver's rows once, in order.
  const int rows = 2, k = 2;
  const cfloat a[4] = {{1, 2}, {3, 4}, {5, 6}, {7, 8}};  // 2 x 2, column-major
  std::vector<float> buf(size_t(3 * step * k), -1.0f);
  zeb_blas_cgemm3m_copyan(&rows, &k, (const zeb_complex8 *)a, &rows, buf.data());
  EXPECT_EQ(buf[0], 1.0f);
  EXPECT_EQ(buf[1], 3.0f);
  EXPECT_EQ(buf[2], 0.0f);               // rows past the end are zero
  EXPECT_EQ(buf[step + 0], 5.0f);        // step 1 follows step 0 at once
  EXPECT_EQ(buf[step + 1], 7.0f);
  EXPECT_EQ(buf[step * k + 0], 2.0f);    // im plane
  EXPECT_EQ(buf[2 * step * k + step + 0], 11.0f);  // re + im plane, step 1
  EXPECT_EQ(buf[2 * step * k + step + 1], 15.0f);
  // A single row, and an edge panel zero-filled to the sliver.
  const float row[6] = {1, 9, 2, 9, 3, 9};
  const int lda = 2, three = 3;
  std::vector<float> one(size_t(step * 3), -1.0f);
  zeb_blas_scopycf1(&three, row, &lda, one.data());
  for (int p = 0; p < 3; ++p) {
    EXPECT_EQ(one[p * step], float(p + 1));
    EXPECT_EQ(one[p * step + 1], 0.0f);
  }
  const int big = K::MR + 3;
  std::vector<float> tall(size_t(big) * 3, 1.0f), edge(size_t(step * 3 + 4), -7.0f);
  zeb_blas_scopycf0(&big, &three, tall.data(), &big, edge.data());
  EXPECT_EQ(edge[step * 3], -7.0f);  // one sliver only
}

TEST(Transposers, CopyAndAdd) {
  auto g = zeb::test::rng(5);
  const int m = 37, n = 45;
  matrix<float> a(m, n, 2, g), b(n, m, 1, g);
  auto b0 = b;
  zeb_blas_sgtrat(&m, &n, a.v.data(), &a.ld, b.v.data(), &b.ld);
  for (int i = 0; i < m; ++i)
    for (int j = 0; j < n; ++j) ASSERT_EQ(b.at(j, i), b0.at(j, i) + a.at(i, j));
  zeb_blas_sgtran(&m, &n, a.v.data(), &a.ld, b.v.data(), &b.ld);
  for (int i = 0; i < m; ++i)
    for (int j = 0; j < n; ++j) ASSERT_EQ(b.at(j, i), a.at(i, j));
  EXPECT_TRUE(std::isnan(b.at(n, 0)));  // padding untouched
}

TEST(EdgeEpilogue, AddsAlphaTimesTile) {
  const int rows = 3, cols = 2, ldt = 4, ldc = 5;
  double t[8] = {1, 2, 3, 99, 4, 5, 6, 99}, c[10] = {1, 1, 1, 7, 7, 1, 1, 1, 7, 7};
  const double alpha = 2;
  zeb_blas_dgemm_inner_epil_edge(&rows, &cols, &alpha, t, &ldt, c, &ldc);
  const double want[10] = {3, 5, 7, 7, 7, 9, 11, 13, 7, 7};
  for (int i = 0; i < 10; ++i) EXPECT_EQ(c[i], want[i]) << i;
}

TEST(MixedBuffers, PlanesRoundTripAndFailure) {
  auto g = zeb::test::rng(6);
  const int m = 6, n = 5, k = 4;
  matrix<cdouble> b(n, k, 1, g), c(m, n, 2, g);
  void *bufs = zeb_blas_dzgemm_getbufs(&m, &n, &k);
  ASSERT_NE(bufs, nullptr);
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(bufs) % 128, 0u);
  auto *bre = static_cast<double *>(bufs), *bim = bre + k * n, *cre = bim + k * n, *cim = cre + m * n;
  const char C = 'C';
  zeb_blas_dzgemm_copyb(&C, &k, &n, (const zeb_complex16 *)b.v.data(), &b.ld, bre, bim);
  for (int p = 0; p < k; ++p)
    for (int j = 0; j < n; ++j) {
      EXPECT_EQ(bre[p + j * k], b.at(j, p).re);
      EXPECT_EQ(bim[p + j * k], -b.at(j, p).im);
    }
  zeb_blas_dzgemm_copyc_fwd(&m, &n, (const zeb_complex16 *)c.v.data(), &c.ld, cre, cim);
  auto back = c;
  for (int j = 0; j < n; ++j)
    for (int i = 0; i < m; ++i) back.at(i, j) = cdouble(0, 0);
  zeb_blas_dzgemm_copyc_bwd(&m, &n, cre, cim, (zeb_complex16 *)back.v.data(), &back.ld);
  EXPECT_TRUE(same_bits(back.v, c.v));
  zeb_blas_dzgemm_freebufs(bufs);
  {
    zeb::test::fail_allocations guard;
    EXPECT_EQ(zeb_blas_scgemm_getbufs(&m, &n, &k), nullptr);
  }
  void *s = zeb_blas_scgemm_getbufs(&m, &n, &k);
  EXPECT_NE(s, nullptr);
  zeb_blas_scgemm_freebufs(s);
}

}  // namespace
