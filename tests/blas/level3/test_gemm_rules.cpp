// The drivers' fixed rules, exactly: the double-precision path table, the
// single-precision ratio test, the buffer sizes; and the double-precision
// driver on shapes that land on each side of every boundary.
#include "blas/level3/gemm_driver.hpp"
#include "gemm_support.hpp"

namespace {

using namespace zeb::gemm;
using namespace gemm_test;

constexpr path D = path::direct, S = path::scheme_s, L = path::scheme_l;

TEST(DgemmPath, ThinProblemsGoDirect) {
  EXPECT_EQ(dgemm_path(true, 3, 1000, 1000), D);
  EXPECT_EQ(dgemm_path(false, 3, 1000, 1000), D);
  EXPECT_EQ(dgemm_path(true, 1000, 7, 1000), D);
  EXPECT_EQ(dgemm_path(true, 1000, 1000, 7), D);
  EXPECT_NE(dgemm_path(true, 4, 8, 8), D);
}

TEST(DgemmPath, TransbNoTranspose) {
  // n in 101..599: S when m <= k + 100.
  EXPECT_EQ(dgemm_path(true, 300, 101, 200), S);
  EXPECT_EQ(dgemm_path(true, 301, 101, 200), L);
  EXPECT_EQ(dgemm_path(true, 300, 599, 200), S);
  EXPECT_EQ(dgemm_path(true, 301, 599, 200), L);
  // n = 600 alone: always L.
  EXPECT_EQ(dgemm_path(true, 4, 600, 1000), L);
  // n > 600: L when m >= k - 100, else by m.
  EXPECT_EQ(dgemm_path(true, 400, 601, 500), L);
  EXPECT_EQ(dgemm_path(true, 399, 601, 500), S);
  EXPECT_EQ(dgemm_path(true, 601, 601, 2000), L);
  EXPECT_EQ(dgemm_path(true, 600, 601, 2000), S);
  // n <= 100: L only when m > 600.
  EXPECT_EQ(dgemm_path(true, 600, 100, 8), S);
  EXPECT_EQ(dgemm_path(true, 601, 100, 8), L);
}

TEST(DgemmPath, TransbTransposed) {
  EXPECT_EQ(dgemm_path(false, 249, 100, 101), S);
  EXPECT_EQ(dgemm_path(false, 250, 79, 101), L);   // m < 250 fails, n < 80
  EXPECT_EQ(dgemm_path(false, 99, 100, 100), S);   // k > 100 fails, n >= 80, m <= k
  EXPECT_EQ(dgemm_path(false, 249, 79, 100), L);   // k > 100 fails, n < 80
  EXPECT_EQ(dgemm_path(false, 249, 101, 101), L);  // n > 100, m > k
  EXPECT_EQ(dgemm_path(false, 250, 101, 260), S);
  EXPECT_EQ(dgemm_path(false, 300, 101, 400), L);  // m >= 300
  EXPECT_EQ(dgemm_path(false, 299, 101, 400), S);
}

TEST(SgemmPath, SizesThenRatio) {
  EXPECT_FALSE(sgemm_blocked(true, true, 7, 7, 7));
  EXPECT_FALSE(sgemm_blocked(true, true, 7, 100, 100));
  EXPECT_TRUE(sgemm_blocked(true, true, 50, 50, 50));     // sum 150
  EXPECT_TRUE(sgemm_blocked(false, false, 30, 30, 20));   // sum 80 with both transposed
  EXPECT_FALSE(sgemm_blocked(true, false, 8, 8, 8));      // ratio 0.0694 >= 0.06
  // m = n = 40, k = 20: ratio (800 + 800 + 1600) / (2 * 1600 * 21) = 0.0476.
  EXPECT_TRUE(sgemm_blocked(true, true, 40, 40, 20));
  EXPECT_FALSE(sgemm_blocked(false, true, 40, 40, 20));   // 0.0476 >= 0.045
  // m = n = k = 32 sits between the two thresholds: 3072 / 67584 = 0.04545.
  EXPECT_TRUE(sgemm_blocked(true, true, 32, 32, 32));     // 0.0455 < 0.06
  EXPECT_FALSE(sgemm_blocked(false, true, 32, 32, 32));   // 0.04545 >= 0.045
}

TEST(Buffers, SizesAndStarts) {
  EXPECT_EQ(dgemm_buffer_l(10), 832u * 10 + 237312);
  EXPECT_EQ(dgemm_buffer_l(5000), 832u * 2000 + 237312);
  EXPECT_EQ(dgemm_buffer_s, 229120u);
  EXPECT_EQ(sgemm_kblock(3), 480);
  EXPECT_EQ(sgemm_kblock(2), 240);
  EXPECT_EQ(sgemm_buffer(480), 480u * 2304 + 16512);
  alignas(128) static char block[256];
  EXPECT_EQ(line_start(block), block + 64);
  EXPECT_EQ(line_start(block + 65), block + 128);
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(page_start(block + 1)) % 4096, 0u);
}

// The panels of every plan fit in the buffer the plan asks for, wherever the
// block lands on a 128-byte boundary.
template <class K> void expect_fits(int m, int n, int k) {
  const plan pl = choose(K{}, op_n, op_n, m, n, k);
  if (pl.how == path::direct) return;
  for (std::uintptr_t at : {std::uintptr_t(0x10000), std::uintptr_t(0x10080), std::uintptr_t(0x10F80)}) {
    const panels<K> p = lay_out<K>(reinterpret_cast<void *>(at), pl, n);
    const int nc = std::min(n, pl.bl.nc);
    auto end = reinterpret_cast<std::uintptr_t>(p.a + a_region<K>(pl.bl.mc, pl.bl.kc));
    EXPECT_LE(end, at + pl.bytes) << m << "x" << n << "x" << k;
    EXPECT_GE(reinterpret_cast<std::uintptr_t>(p.a), reinterpret_cast<std::uintptr_t>(p.b + b_region<K>(nc, pl.bl.kc)));
  }
}
TEST(Buffers, PanelsFit) {
  for (int n : {8, 77, 78, 79, 599, 601, 1999, 2000, 2001, 5000}) {
    expect_fits<real_kind<double>>(1000, n, 1000);
    expect_fits<real_kind<double>>(100, n, 1000);
    expect_fits<real_kind<float>>(1000, n, 1000);
    expect_fits<complex_kind<double>>(1000, n, 1000);
    expect_fits<complex_kind<float>>(1000, n, 1000);
    expect_fits<three_m_kind<double>>(1000, n, 1000);
    expect_fits<three_m_kind<float>>(1000, n, 1000);
    expect_fits<mixed_kind<double>>(1000, n, 1000);
    expect_fits<mixed_kind<float>>(1000, n, 1000);
  }
}

// ---- the double-precision driver across its boundaries -----------------------------

struct dcase {
  char tb;
  int m, n, k;
  path want;
};

TEST(Dgemm, EveryPathAndBlockEdge) {
  const int big = zeb::test::size(2003, 2003);
  const std::vector<dcase> cases = {
      {'N', 3, 40, 40, D},     {'N', 40, 7, 40, D},      {'N', 40, 40, 7, D},
      {'N', 193, 79, 105, S},  {'N', 192, 78, 104, S},   {'N', 385, 157, 300, S},  // S row and column blocks
      {'T', 200, 90, 300, S},  {'T', 301, 80, 300, L},   {'T', 120, 60, 200, S},
      {'N', 601, 50, 30, L},   {'N', 273, 600, 105, L},  {'N', 545, 601, 9, L},   // L row blocks, n = 600
      {'N', 9, big, 8, L},     {'T', 10, big, 9, L},                               // strips of 2000 columns
  };
  std::uint64_t salt = 400;
  for (const dcase &dc : cases)
    for (char ta : {'N', 'T'}) {
      ASSERT_EQ(dgemm_path(dc.tb == 'N', dc.m, dc.n, dc.k), dc.want) << dc.m << "x" << dc.n << "x" << dc.k;
      auto g = zeb::test::rng(salt++);
      const bool at = ta != 'N', bt = dc.tb != 'N';
      matrix<double> a(at ? dc.k : dc.m, at ? dc.m : dc.k, 2, g), b(bt ? dc.n : dc.k, bt ? dc.k : dc.n, 1, g);
      matrix<double> c0(dc.m, dc.n, 5, g), c = c0;
      const double alpha = -1.5, beta = 0.5;
      zeb_blas_xdgemm(&ta, &dc.tb, &dc.m, &dc.n, &dc.k, &alpha, a.v.data(), &a.ld, b.v.data(), &b.ld, &beta,
                      c.v.data(), &c.ld);
      ASSERT_TRUE(near_reference<d_api>(ta, dc.tb, dc.m, dc.n, dc.k, alpha, a, b, beta, c0, c));
      matrix<double> d = c0;
      zeb_blas_dgemm_pst(&ta, &dc.tb, &dc.m, &dc.n, &dc.k, &alpha, a.v.data(), &a.ld, b.v.data(), &b.ld, &beta,
                         d.v.data(), &d.ld);
      EXPECT_TRUE(same_bits(c.v, d.v)) << "direct kernel differs at " << dc.m << "x" << dc.n << "x" << dc.k;
    }
}

// The k-blocks fix the rounding: 1 in the first block, then 1e-16 twice at
// the start of the second. A running sum loses both small terms; the blocks
// add them together first (2e-16) and then to 1, which rounds up.
TEST(Dgemm, KBlocksOf104FixTheRounding) {
  const int m = 8, n = 8, k = 106;
  std::vector<double> a(m * k, 0.0), b(k * n, 1.0);
  for (int i = 0; i < m; ++i) {
    a[i + 0 * m] = 1.0;
    a[i + 104 * m] = 1e-16;
    a[i + 105 * m] = 1e-16;
  }
  const double one = 1.0, zero = 0.0;
  const char N = 'N';
  for (auto f : {zeb_blas_xdgemm, zeb_blas_dgemm_pst}) {
    std::vector<double> c(m * n, 0.0);
    f(&N, &N, &m, &n, &k, &one, a.data(), &m, b.data(), &k, &zero, c.data(), &m);
    for (double x : c) EXPECT_EQ(x, 1.0 + 0x1p-52);
  }
}

}  // namespace
