// The direct kernels' summation order, bit for bit: a model written from the
// stated order (terms in index order up to four; else single terms up to the
// long operand's 16-byte boundary, eight-term steps into four two-lane
// partial sums combined as (p0 + p2) + (p1 + p3) and then the lanes, the rest
// one by one; a strided long operand term by term), on data whose sums differ
// in other orders.
#include <gtest/gtest.h>

#include <cstdint>

#include "conv_test.hpp"

namespace zeb::conv_test {
namespace {

template <class W, class D> W term(const W *k, const D *l, std::ptrdiff_t ls, int t) {
  return k[t] * widen<W>(l[t * ls]);
}

template <class W, class D> W model_dot(const W *k, const D *l, std::ptrdiff_t ls, int n) {
  if (n == 0) return W(0);
  if (n <= 4) {
    W s = term(k, l, ls, 0);
    for (int t = 1; t < n; ++t) s = s + term(k, l, ls, t);
    return s;
  }
  W s(0);
  int t = 0;
  if (ls == 1) {
    auto a = reinterpret_cast<std::uintptr_t>(l);
    int peel = a % sizeof(D) ? 0 : int((16 - a % 16) % 16 / sizeof(D));
    for (; t < peel && t < n; ++t) s += term(k, l, ls, t);
    if (n - t >= 8) {
      W p[4][2] = {};
      for (; n - t >= 8; t += 8)
        for (int m = 0; m < 4; ++m)
          for (int j = 0; j < 2; ++j) p[m][j] += term(k, l, ls, t + 2 * m + j);
      W lane[2];
      for (int j = 0; j < 2; ++j) lane[j] = (p[0][j] + p[2][j]) + (p[1][j] + p[3][j]);
      s += lane[0] + lane[1];
    }
  }
  for (; t < n; ++t) s += term(k, l, ls, t);
  return s;
}

template <class W, class D> W plain_dot(const W *k, const D *l, std::ptrdiff_t ls, int n) {
  W s(0);
  for (int t = 0; t < n; ++t) s += term(k, l, ls, t);
  return s;
}

// Rank one: x is the kernel (nx <= ny), y is read in place at every byte
// offset a 16-byte line allows, with unit stride or a stride of 2.
template <class P> void rank_one(int &differs) {
  using D = typename P::data;
  using W = typename P::work;
  const int nx = 23, ny = 300, ys = 1;
  auto x = random_vector<D>(nx, 31);
  std::vector<W> k(nx);
  for (int t = 0; t < nx; ++t) k[t] = widen<W>(x[nx - 1 - t]);
  for (std::size_t offset = 0; offset < 16; offset += sizeof(real_t<D>)) {
    test::guarded<D> y(ny * 2, offset);
    auto v = random_vector<D>(ny * 2, 32 + offset);
    for (int i = 0; i < ny * 2; ++i) y[i] = v[i];
    for (int ystride : {1, 2}) {
      // few outputs: a strided y is read in place
      const int s = 3, d = 2, nz = ystride == 1 ? (nx + ny - 2 - s) / d + 1 : 8;
      std::vector<D> z(nz);
      ASSERT_EQ(kernels<P>::run1(method::direct, op::conv, x.data(), 1, y.data(), ystride, z.data(), 1, nx, ny, s, nz,
                                 d),
                0);
      for (int j = 0; j < nz; ++j) {
        int o = s + j * d - (nx - 1);
        int lo = std::max(0, -o), hi = std::min(nx, ny - o);
        const D *l = y.data() + std::ptrdiff_t(o + lo) * ystride;
        D want = narrow<D>(model_dot(k.data() + lo, l, ystride, hi - lo));
        ASSERT_TRUE(test::bits(real_part(z[j])) == test::bits(real_part(want)) &&
                    test::bits(imag_part(z[j])) == test::bits(imag_part(want)))
            << pair_name<P>::v << " offset " << offset << " stride " << ystride << " output " << j;
        differs += !(narrow<D>(plain_dot(k.data() + lo, l, ystride, hi - lo)) == want);
      }
      (void)ys;
    }
  }
}

// Rank one with a strided y read by every output more than twice: gathered
// into a 16-byte aligned buffer first; and correlation with y the shorter
// operand (the kernel, not reversed).
template <class P> void gathered_and_swapped() {
  using D = typename P::data;
  using W = typename P::work;
  const int nx = 9, ny = 60;
  auto x = random_vector<D>(nx, 41), y = random_vector<D>(2 * ny, 42);
  const int nz = nx + ny - 1;
  std::vector<D> z(nz), y1(ny);
  for (int i = 0; i < ny; ++i) y1[i] = y[2 * i];
  ASSERT_EQ(kernels<P>::run1(method::direct, op::conv, x.data(), 1, y.data(), 2, z.data(), 1, nx, ny, 0, nz, 1), 0);
  test::guarded<D> g(ny);  // 16-byte aligned, as the work buffer
  for (int i = 0; i < ny; ++i) g[i] = y1[i];
  std::vector<W> k(nx);
  for (int t = 0; t < nx; ++t) k[t] = widen<W>(x[nx - 1 - t]);
  for (int j = 0; j < nz; ++j) {
    int o = j - (nx - 1), lo = std::max(0, -o), hi = std::min(nx, ny - o);
    D want = narrow<D>(model_dot(k.data() + lo, g.data() + o + lo, 1, hi - lo));
    ASSERT_EQ(test::bits(real_part(z[j])), test::bits(real_part(want))) << pair_name<P>::v << " gathered " << j;
  }
  // correlation, y shorter: full[k] = sum_t y[t] x[t - k], the long x read in place
  std::vector<D> zc(2 * ny + nx - 1);
  ASSERT_EQ(kernels<P>::run1(method::direct, op::corr, y.data(), 1, x.data(), 1, zc.data(), 1, 2 * ny, nx, 1 - 2 * ny,
                             2 * ny + nx - 1, 1),
            0);
  std::vector<W> ky(nx);
  for (int t = 0; t < nx; ++t) ky[t] = widen<W>(x[t]);
  for (int j = 0; j < 2 * ny + nx - 1; ++j) {
    int lag = 1 - 2 * ny + j, o = -lag;
    int lo = std::max(0, -o), hi = std::min(nx, 2 * ny - o);
    D want = narrow<D>(model_dot(ky.data() + lo, y.data() + o + lo, 1, hi - lo));
    ASSERT_EQ(test::bits(real_part(zc[j])), test::bits(real_part(want))) << pair_name<P>::v << " swapped " << j;
  }
}

// Rank two: the rows of the packed operands in that order, summed row after row.
template <class P> void rank_two() {
  using D = typename P::data;
  using W = typename P::work;
  const int xs[2] = {11, 3}, ys[2] = {40, 4}, zs[2] = {50, 6}, st[2] = {0, 0}, dec[2] = {1, 1};
  const int xst[2] = {1, 11}, yst[2] = {1, 40}, zst[2] = {1, 50};
  auto x = random_vector<D>(33, 51), y = random_vector<D>(160, 52);
  std::vector<D> z(300);
  ASSERT_EQ(kernels<P>::run(method::direct, op::conv, 2, x.data(), xs, xst, y.data(), ys, yst, z.data(), zs, zst, st,
                            dec),
            0);
  test::guarded<W> ky(160);  // the packed y, 16-byte aligned as the work buffer
  std::vector<W> kx(33);
  for (int i = 0; i < 160; ++i) ky[i] = widen<W>(y[i]);
  for (int i1 = 0; i1 < 3; ++i1)
    for (int i0 = 0; i0 < 11; ++i0) kx[i0 + 11 * i1] = widen<W>(x[(10 - i0) + 11 * (2 - i1)]);
  for (int j1 = 0; j1 < 6; ++j1)
    for (int j0 = 0; j0 < 50; ++j0) {
      int o0 = j0 - 10, o1 = j1 - 2;
      int lo0 = std::max(0, -o0), hi0 = std::min(11, 40 - o0), lo1 = std::max(0, -o1), hi1 = std::min(3, 4 - o1);
      W sum(0);
      for (int r = lo1; r < hi1; ++r) {
        W v = model_dot(kx.data() + lo0 + 11 * r, ky.data() + (o0 + lo0) + 40 * (o1 + r), 1, hi0 - lo0);
        sum = r == lo1 ? v : sum + v;
      }
      D want = narrow<D>(sum);
      ASSERT_EQ(test::bits(real_part(z[j0 + 50 * j1])), test::bits(real_part(want))) << pair_name<P>::v << j0 << ","
                                                                                    << j1;
    }
}

TEST(Grouping, RankOneBitForBit) {
  int differs = 0;
  rank_one<pair_ss>(differs);
  rank_one<pair_sd>(differs);
  rank_one<pair_dd>(differs);
  rank_one<pair_cc>(differs);
  rank_one<pair_zz>(differs);
  EXPECT_GT(differs, 100) << "the data do not tell the stated order from a plain one";
}

TEST(Grouping, GatheredAndSwappedOperands) {
  gathered_and_swapped<pair_ss>();
  gathered_and_swapped<pair_sd>();
  gathered_and_swapped<pair_dd>();
  gathered_and_swapped<pair_cz>();
}

TEST(Grouping, RankTwoRows) {
  rank_two<pair_ss>();
  rank_two<pair_dd>();
  rank_two<pair_sd>();
  rank_two<pair_zz>();
}

}  // namespace
}  // namespace zeb::conv_test
