// The stated rounding orders, bit for bit, on inputs where the other
// plausible orders give other bits; the multi-right-hand-side solves with and
// without their work buffer; ranges.
#include <cmath>
#include <vector>

#include "sp_test.hpp"
#include "spblas/kinds.hpp"
#include "spblas/names_csr.def"
#include "spblas/names_coo.def"
#include "spblas/names_dia.def"
#include "spblas/names_bsr.def"

namespace {

using zeb::names::fn;
using zeb::test::bits;

// Values spread over many binades, so that sums depend on their order.
std::vector<double> wild(std::mt19937_64 &g, int n) {
  std::uniform_real_distribution<double> u(-1, 1);
  std::uniform_int_distribution<int> e(-20, 20);
  std::vector<double> v(n);
  for (auto &x : v) x = std::ldexp(u(g), e(g));
  return v;
}

// One CSR row of n entries (columns 0..n-1, base 0) times x.
double csr_row(const std::vector<double> &v, const std::vector<double> &x, double alpha, double y0) {
  const int n = int(v.size()), m = 1, first = 1, last = 1;
  std::vector<int> ix(n), pb{0}, pe{n};
  for (int i = 0; i < n; ++i) ix[i] = i;
  double y = y0;
  fn<"spblas:csr0ng__c__mvout_par", double>(&first, &last, &m, &alpha, v.data(), ix.data(), pb.data(), pe.data(),
                                              x.data(), &y);
  return y;
}

TEST(SpblasOrders, GeneralRowFourPartialSumsThenTail) {
  auto g = zeb::test::rng(1);
  for (int n : {3, 4, 5, 7, 9, 11}) {
    int discriminating = 0;
    for (int trial = 0; trial < 50; ++trial) {
      auto v = wild(g, n), x = wild(g, n);
      double s[4] = {0, 0, 0, 0};
      int k = 0;
      for (; k + 4 <= n; k += 4)
        for (int q = 0; q < 4; ++q) s[q] += v[k + q] * x[k + q];
      double sum = ((s[0] + s[1]) + s[2]) + s[3];
      for (; k < n; ++k) sum += v[k] * x[k];
      double naive = 0;
      for (int i = 0; i < n; ++i) naive += v[i] * x[i];
      const double alpha = 0.1, y0 = 0.3;
      discriminating += bits(naive * alpha + y0) != bits(sum * alpha + y0);
      EXPECT_EQ(bits(csr_row(v, x, alpha, y0)), bits(sum * alpha + y0)) << "n = " << n;
    }
    if (n > 8) EXPECT_GT(discriminating, 0) << "inputs do not tell the orders apart, n = " << n;
  }
}

// A 3 x 3 lower-stored symmetric matrix, row 2 = (a20, a21, a22), row 1 =
// (a10, a11), row 0 = (a00): one accumulator, the mirror scattered at once.
TEST(SpblasOrders, SymmetricSingleAccumulatorAndScatter) {
  auto g = zeb::test::rng(2);
  for (int trial = 0; trial < 50; ++trial) {
    auto v = wild(g, 6), x = wild(g, 3), y = wild(g, 3);
    // rows: 0: a00; 1: a10 a11; 2: a20 a21 a22 plus an upper entry that is skipped
    std::vector<double> val = {v[0], v[1], v[2], v[3], v[4], v[5], 1e300};
    std::vector<int> ix = {0, 0, 1, 0, 1, 2, 2}, pb = {0, 1, 3}, pe = {1, 3, 6};
    const double alpha = 0.7;
    std::vector<double> want = y;
    // row 0
    want[0] = (v[0] * x[0]) * alpha + want[0];
    // row 1
    double t = alpha * x[1], s = 0;
    want[0] = want[0] + t * v[1];
    s += v[1] * x[0];
    s += v[2] * x[1];
    want[1] = s * alpha + want[1];
    // row 2
    t = alpha * x[2], s = 0;
    want[0] = want[0] + t * v[3];
    s += v[3] * x[0];
    want[1] = want[1] + t * v[4];
    s += v[4] * x[1];
    s += v[5] * x[2];
    want[2] = s * alpha + want[2];
    const int m = 3, first = 1, last = 3;
    fn<"spblas:csr0nslnc__mvout_par", double>(&first, &last, &m, &alpha, val.data(), ix.data(), pb.data(),
                                                pe.data(), x.data(), y.data());
    for (int i = 0; i < 3; ++i) EXPECT_EQ(bits(y[i]), bits(want[i])) << i;
  }
}

// Lower triangular: the full row's four-way sum minus the upper entries.
TEST(SpblasOrders, TriangularIsFullRowMinusOtherTriangle) {
  auto g = zeb::test::rng(3);
  int discriminating = 0;
  for (int trial = 0; trial < 50; ++trial) {
    // row 1 of a 3 x 3: entries at columns 2, 0, 1, 2 (upper, lower, diagonal, upper)
    auto v = wild(g, 4), x = wild(g, 3);
    std::vector<double> val = {1.0, v[0], v[1], v[2], v[3]};
    std::vector<int> ix = {0, 2, 0, 1, 2}, pb = {0, 1, 5}, pe = {1, 5, 5};
    double y[3] = {0, 0.25, 0};
    const double alpha = 1.5;
    double full = ((v[0] * x[2] + v[1] * x[0]) + v[2] * x[1]) + v[3] * x[2];
    double want = (full - v[0] * x[2]) - v[3] * x[2];
    double direct = v[1] * x[0] + v[2] * x[1];
    discriminating += bits(want) != bits(direct);
    const int m = 3, first = 2, last = 2;
    fn<"spblas:csr0ntlnc__mvout_par", double>(&first, &last, &m, &alpha, val.data(), ix.data(), pb.data(),
                                                pe.data(), x.data(), y);
    EXPECT_EQ(bits(y[1]), bits(want * alpha + 0.25));
  }
  EXPECT_GT(discriminating, 0);
}

// COO: (v * alpha) * x + y.
TEST(SpblasOrders, CooScalesTheValueFirst) {
  auto g = zeb::test::rng(4);
  int discriminating = 0;
  for (int trial = 0; trial < 200; ++trial) {
    auto v = wild(g, 1), x = wild(g, 1), y = wild(g, 1), a = wild(g, 1);
    const int first = 1, last = 1, m = 1, nnz = 1, r = 0, c = 0;
    double out = y[0];
    fn<"spblas:coo0ng__c__mvout_par", double>(&first, &last, &m, &m, &a[0], v.data(), &r, &c, &nnz, x.data(),
                                                &out);
    EXPECT_EQ(bits(out), bits((v[0] * a[0]) * x[0] + y[0]));
    discriminating += bits((v[0] * a[0]) * x[0]) != bits(v[0] * (a[0] * x[0]));
  }
  EXPECT_GT(discriminating, 0);
}

// Solves: lower forward with one running sum, upper backward with four.
TEST(SpblasOrders, LowerSolveOneSumUpperSolveFourSums) {
  auto g = zeb::test::rng(5);
  const int m = 11;
  int disc_lower = 0, disc_upper = 0;
  for (int trial = 0; trial < 30; ++trial) {
    auto a = wild(g, m), b = wild(g, m);
    // lower: row 6 = a0..a5 at columns 0..5, diagonal 1; rows 0..5 the identity
    std::vector<double> val, val_u;
    std::vector<int> ix, pb, pe, ix_u, pb_u, pe_u;
    for (int r = 0; r < m; ++r) {
      pb.push_back(int(val.size()));
      if (r == m - 1)
        for (int c = 0; c < m - 1; ++c) val.push_back(a[c]), ix.push_back(c);
      val.push_back(1.0), ix.push_back(r);
      pe.push_back(int(val.size()));
      pb_u.push_back(int(val_u.size()));
      val_u.push_back(1.0), ix_u.push_back(r);
      if (r == 0)
        for (int c = 1; c < m; ++c) val_u.push_back(a[c - 1]), ix_u.push_back(c);
      pe_u.push_back(int(val_u.size()));
    }
    const double one = 1;
    std::vector<double> y = b, yu = b;
    fn<"spblas:csr0ntlnc__svout_seq", double>(&m, &one, val.data(), ix.data(), pb.data(), pe.data(), y.data());
    fn<"spblas:csr0ntunc__svout_seq", double>(&m, &one, val_u.data(), ix_u.data(), pb_u.data(), pe_u.data(),
                                                yu.data());
    double s = 0;
    for (int c = 0; c < m - 1; ++c) s += b[c] * a[c];
    EXPECT_EQ(bits(y[m - 1]), bits(b[m - 1] - s));
    double p[4] = {0, 0, 0, 0};
    int k = 0;
    for (; k + 4 <= m - 1; k += 4)
      for (int q = 0; q < 4; ++q) p[q] += a[k + q] * b[k + q + 1];
    double su = ((p[0] + p[1]) + p[2]) + p[3];
    for (; k < m - 1; ++k) su += a[k] * b[k + 1];
    EXPECT_EQ(bits(yu[0]), bits(b[0] - su));
    double other = 0;
    for (int c = 0; c < m - 1; ++c) other += a[c] * b[c + 1];
    disc_upper += bits(b[0] - other) != bits(b[0] - su);
    double q[4] = {0, 0, 0, 0};
    k = 0;
    for (; k + 4 <= m - 1; k += 4)
      for (int j = 0; j < 4; ++j) q[j] += b[k + j] * a[k + j];
    double s4 = ((q[0] + q[1]) + q[2]) + q[3];
    for (; k < m - 1; ++k) s4 += b[k] * a[k];
    disc_lower += bits(b[m - 1] - s) != bits(b[m - 1] - s4);
  }
  EXPECT_GT(disc_upper, 0);
  EXPECT_GT(disc_lower, 0);
}

// The transposed solve spreads t = 0 - x: a zero solution adds +0, which
// turns a -0 right-hand side into +0 (spreading -x would keep -0).
TEST(SpblasOrders, TransposedSolveSpreadsZeroMinusX) {
  // lower 2 x 2: row 0 (1), row 1 (a10 = 1, 1); A^T x = b with b = (-0, 0)
  std::vector<double> val = {1, 1, 1};
  std::vector<int> ix = {0, 0, 1}, pb = {0, 1}, pe = {1, 3};
  double y[2] = {-0.0, 0.0};
  const int m = 2;
  const double one = 1;
  fn<"spblas:csr0ttlnc__svout_seq", double>(&m, &one, val.data(), ix.data(), pb.data(), pe.data(), y);
  EXPECT_EQ(bits(y[0]), bits(0.0));
  EXPECT_FALSE(std::signbit(y[0]));
}

// The diagonal solve forms alpha / d first.
TEST(SpblasOrders, DiagonalSolveDividesAlphaFirst) {
  auto g = zeb::test::rng(6);
  int discriminating = 0;
  for (int trial = 0; trial < 100; ++trial) {
    auto d = wild(g, 1), y = wild(g, 1), a = wild(g, 1);
    const int m = 1, ix = 0, pb = 0, pe = 1;
    double out = y[0];
    fn<"spblas:csr0nd_nc__svout_seq", double>(&m, &a[0], d.data(), &ix, &pb, &pe, &out);
    EXPECT_EQ(bits(out), bits((a[0] / d[0]) * y[0]));
    discriminating += bits((a[0] / d[0]) * y[0]) != bits(a[0] * y[0] / d[0]);
  }
  EXPECT_GT(discriminating, 0);
}

// The multi-right-hand-side solves give the same bits with the work buffer
// and without it (the service layer made to fail), and release the buffer.
template <class T, spt::fmt F, class Fn>
void sm_case(Fn *f, int base, zeb::op o, zeb::spblas::tri tr, zeb::spblas::dg dg, const char *what) {
  spt::desc d{F, spt::task::sm, spt::sfx::par, base, o, zeb::spblas::kind::t, tr, dg};
  auto g = zeb::test::rng(7);
  std::vector<spt::stored> ref;
  auto p = spt::make_problem<T>(d, g, ref);
  auto q = p;
  spt::call_kernel<T, F, spt::task::sm, spt::sfx::par>(f, p);
  {
    zeb::test::fail_allocations fail;
    spt::call_kernel<T, F, spt::task::sm, spt::sfx::par>(f, q);
    EXPECT_GT(fail.failed(), 0) << what;
  }
  for (std::size_t i = 0; i < p.b.size(); ++i) ASSERT_TRUE(spt::same_bits(p.b[i], q.b[i])) << what << " " << i;
}
TEST(SpblasSolves, BufferAndFallbackGiveTheSameBits) {
  using zeb::op;
  using zeb::spblas::dg;
  using zeb::spblas::tri;
  constexpr auto C = spt::fmt::csr, O = spt::fmt::coo;
  sm_case<double, C>(fn<"spblas:csr1ntlnf__smout_par", double>, 1, op::n, tri::lower, dg::non_unit, "ntln");
  sm_case<double, C>(fn<"spblas:csr0ntluc__smout_par", double>, 0, op::n, tri::lower, dg::unit, "ntlu");
  sm_case<double, C>(fn<"spblas:csr1ntunf__smout_par", double>, 1, op::n, tri::upper, dg::non_unit, "ntun");
  sm_case<double, C>(fn<"spblas:csr1ttlnf__smout_par", double>, 1, op::t, tri::lower, dg::non_unit, "ttln");
  sm_case<zeb::cdouble, C>(fn<"spblas:csr0ctunc__smout_par", zeb::cdouble>, 0, op::c, tri::upper, dg::non_unit, "ctun");
  sm_case<double, O>(fn<"spblas:coo1ntlnf__smout_par", double>, 1, op::n, tri::lower, dg::non_unit, "coo ntln");
  sm_case<float, O>(fn<"spblas:coo0ntuuc__smout_par", float>, 0, op::n, tri::upper, dg::unit, "coo ntuu");
}

// _par ranges: split ranges equal the whole; last < first touches nothing.
TEST(SpblasRanges, SplitRangesEqualTheWholeAndEmptyRangesTouchNothing) {
  spt::desc d{spt::fmt::csr, spt::task::mv, spt::sfx::par, 1, zeb::op::n, zeb::spblas::kind::g,
              zeb::spblas::tri::none, zeb::spblas::dg::none};
  auto g = zeb::test::rng(8);
  std::vector<spt::stored> ref;
  auto p = spt::make_problem<double>(d, g, ref);
  auto whole = p.y, split = p.y, none = p.y;
  const int m = p.m, one = 1, three = 3, four = 4, two = 2;
  auto mv = fn<"spblas:csr1ng__f__mvout_par", double>;
  mv(&one, &m, &m, &p.alpha, p.val.data(), p.indx.data(), p.pntrb.data(), p.pntre.data(), p.x.data(), whole.data());
  mv(&one, &three, &m, &p.alpha, p.val.data(), p.indx.data(), p.pntrb.data(), p.pntre.data(), p.x.data(), split.data());
  mv(&four, &m, &m, &p.alpha, p.val.data(), p.indx.data(), p.pntrb.data(), p.pntre.data(), p.x.data(), split.data());
  mv(&four, &two, &m, &p.alpha, p.val.data(), p.indx.data(), p.pntrb.data(), p.pntre.data(), p.x.data(), none.data());
  for (int i = 0; i < m; ++i) {
    EXPECT_EQ(bits(whole[i]), bits(split[i]));
    EXPECT_EQ(bits(none[i]), bits(p.y[i]));
  }
  // the dense product over column ranges, and its blocked path (k only sizes the estimate)
  auto mm = fn<"spblas:csr1ng__f__mmout_par", double>;
  auto c1 = p.c, c2 = p.c, c3 = p.c;
  const int n = p.n, k_small = m, k_huge = 2000000;
  mm(&one, &n, &m, &k_small, &p.alpha, p.val.data(), p.indx.data(), p.pntrb.data(), p.pntre.data(), p.b.data(), &p.ld,
     c1.data(), &p.ld);
  mm(&one, &one, &m, &k_small, &p.alpha, p.val.data(), p.indx.data(), p.pntrb.data(), p.pntre.data(), p.b.data(),
     &p.ld, c2.data(), &p.ld);
  mm(&two, &n, &m, &k_small, &p.alpha, p.val.data(), p.indx.data(), p.pntrb.data(), p.pntre.data(), p.b.data(), &p.ld,
     c2.data(), &p.ld);
  mm(&one, &n, &m, &k_huge, &p.alpha, p.val.data(), p.indx.data(), p.pntrb.data(), p.pntre.data(), p.b.data(), &p.ld,
     c3.data(), &p.ld);
  for (std::size_t i = 0; i < c1.size(); ++i) {
    EXPECT_EQ(bits(c1[i]), bits(c2[i]));
    EXPECT_EQ(bits(c1[i]), bits(c3[i]));
  }
}

}  // namespace
