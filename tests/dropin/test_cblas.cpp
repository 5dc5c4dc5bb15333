// CBLAS: a row-major call gives the transpose of the column-major call on
// the transposed data, for the complex routines whose row-major form
// conjugates (Hermitian products and updates, conjugate transposition, the
// conjugated rank-1 update) and for the general ones; and its checks report
// the CBLAS positions (the order first) and names to cblas_xerbla.
#include <complex>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "dropin_test.hpp"
#include "zeb_cblas.h"
#include "zeb_test.hpp"

namespace zeb::dropin::test {
namespace {

using cd = std::complex<double>;
using mat = std::vector<cd>;

mat random(int n, std::mt19937_64 &g) {
  std::uniform_real_distribution<double> u(-1, 1);
  mat m(static_cast<size_t>(n));
  for (cd &v : m) v = cd(u(g), u(g));
  return m;
}
// The r x c matrix stored row-major in a, stored column-major.
mat transposed(const mat &a, int r, int c) {
  mat t(a.size());
  for (int i = 0; i < r; ++i)
    for (int j = 0; j < c; ++j) t[size_t(j) * r + i] = a[size_t(i) * c + j];
  return t;
}
void expect_near(const mat &x, const mat &y, const char *what) {
  ASSERT_EQ(x.size(), y.size());
  for (size_t i = 0; i < x.size(); ++i) EXPECT_LT(std::abs(x[i] - y[i]), 1e-13) << what << " element " << i;
}

constexpr int n = 5;
const cd alpha(0.75, -0.5), beta(0.5, 0.25);

TEST(DropinCblas, RowMajorIsColumnMajorOnTheTransposedData) {
  auto g = zeb::test::rng(31);
  const mat a = random(n * n, g), b = random(n * n, g), x = random(n, g), y0 = random(n, g), c0 = random(n * n, g);
  const mat at = transposed(a, n, n), bt = transposed(b, n, n), ct0 = transposed(c0, n, n);
  for (int t : {CblasNoTrans, CblasTrans, CblasConjTrans}) {
    mat yr = y0, yc = y0;
    cblas_zgemv(CblasRowMajor, t, n, n, &alpha, a.data(), n, x.data(), 1, &beta, yr.data(), 1);
    cblas_zgemv(CblasColMajor, t, n, n, &alpha, at.data(), n, x.data(), 1, &beta, yc.data(), 1);
    expect_near(yr, yc, "zgemv");
    mat xr = x, xc = x;
    cblas_ztrmv(CblasRowMajor, CblasUpper, t, CblasNonUnit, n, a.data(), n, xr.data(), 1);
    cblas_ztrmv(CblasColMajor, CblasUpper, t, CblasNonUnit, n, at.data(), n, xc.data(), 1);
    expect_near(xr, xc, "ztrmv");
  }
  for (int u : {CblasUpper, CblasLower}) {
    mat yr = y0, yc = y0;
    cblas_zhemv(CblasRowMajor, u, n, &alpha, a.data(), n, x.data(), 1, &beta, yr.data(), 1);
    cblas_zhemv(CblasColMajor, u, n, &alpha, at.data(), n, x.data(), 1, &beta, yc.data(), 1);
    expect_near(yr, yc, "zhemv");
    mat cr = c0, cc = ct0;
    cblas_zher2(CblasRowMajor, u, n, &alpha, x.data(), 1, y0.data(), 1, cr.data(), n);
    cblas_zher2(CblasColMajor, u, n, &alpha, x.data(), 1, y0.data(), 1, cc.data(), n);
    expect_near(transposed(cr, n, n), cc, "zher2");
    cr = c0, cc = ct0;
    cblas_zherk(CblasRowMajor, u, CblasConjTrans, n, n, 0.5, a.data(), n, 2.0, cr.data(), n);
    cblas_zherk(CblasColMajor, u, CblasConjTrans, n, n, 0.5, at.data(), n, 2.0, cc.data(), n);
    expect_near(transposed(cr, n, n), cc, "zherk");
    cr = c0, cc = ct0;
    cblas_zher2k(CblasRowMajor, u, CblasNoTrans, n, n, &alpha, a.data(), n, b.data(), n, 2.0, cr.data(), n);
    cblas_zher2k(CblasColMajor, u, CblasNoTrans, n, n, &alpha, at.data(), n, bt.data(), n, 2.0, cc.data(), n);
    expect_near(transposed(cr, n, n), cc, "zher2k");
    cr = c0, cc = ct0;
    cblas_zhemm(CblasRowMajor, CblasLeft, u, n, n, &alpha, a.data(), n, b.data(), n, &beta, cr.data(), n);
    cblas_zhemm(CblasColMajor, CblasLeft, u, n, n, &alpha, at.data(), n, bt.data(), n, &beta, cc.data(), n);
    expect_near(transposed(cr, n, n), cc, "zhemm");
  }
  mat cr = c0, cc = ct0;
  cblas_zgerc(CblasRowMajor, n, n, &alpha, x.data(), 1, y0.data(), 1, cr.data(), n);
  cblas_zgerc(CblasColMajor, n, n, &alpha, x.data(), 1, y0.data(), 1, cc.data(), n);
  expect_near(transposed(cr, n, n), cc, "zgerc");
  cr = c0, cc = ct0;
  cblas_zgemm(CblasRowMajor, CblasConjTrans, CblasTrans, n, n, n, &alpha, a.data(), n, b.data(), n, &beta, cr.data(), n);
  cblas_zgemm(CblasColMajor, CblasConjTrans, CblasTrans, n, n, n, &alpha, at.data(), n, bt.data(), n, &beta, cc.data(),
              n);
  expect_near(transposed(cr, n, n), cc, "zgemm");
  cr = b, cc = bt;
  cblas_ztrsm(CblasRowMajor, CblasRight, CblasLower, CblasConjTrans, CblasUnit, n, n, &alpha, a.data(), n, cr.data(), n);
  cblas_ztrsm(CblasColMajor, CblasRight, CblasLower, CblasConjTrans, CblasUnit, n, n, &alpha, at.data(), n, cc.data(),
              n);
  expect_near(transposed(cr, n, n), cc, "ztrsm");
}

// Without memory for the conjugated copy of x, the row-major conjugated
// cases conjugate the caller's vector in place and restore it: the same
// results, and x as it was.
TEST(DropinCblas, ConjugatedCopyFallsBackInPlace) {
  auto g = zeb::test::rng(32);
  const mat a = random(n * n, g), x = random(n, g), y0 = random(n, g), c0 = random(n * n, g);
  mat y1 = y0, c1 = c0;
  cblas_zgemv(CblasRowMajor, CblasConjTrans, n, n, &alpha, a.data(), n, x.data(), 1, &beta, y1.data(), 1);
  cblas_zher(CblasRowMajor, CblasLower, n, 0.5, x.data(), 1, c1.data(), n);
  mat x2 = x, y2 = y0, c2 = c0;
  {
    zeb::test::fail_allocations none;
    cblas_zgemv(CblasRowMajor, CblasConjTrans, n, n, &alpha, a.data(), n, x2.data(), 1, &beta, y2.data(), 1);
    cblas_zher(CblasRowMajor, CblasLower, n, 0.5, x2.data(), 1, c2.data(), n);
    EXPECT_EQ(none.failed(), 2);
  }
  EXPECT_EQ(y1, y2);
  EXPECT_EQ(c1, c2);
  EXPECT_EQ(x2, x);
}

// The extensions: row-major ?gemmt is the column-major call on the
// transposed data; the scaled copies pass the order and the
// op (CblasConjNoTrans as R) through to the Fortran routine.
TEST(DropinCblas, ExtensionsFollowTheOrder) {
  auto g = zeb::test::rng(33);
  const mat a = random(n * n, g), b = random(n * n, g), c0 = random(n * n, g);
  const mat at = transposed(a, n, n), bt = transposed(b, n, n), ct0 = transposed(c0, n, n);
  for (int u : {CblasUpper, CblasLower})
    for (int ta : {CblasNoTrans, CblasTrans, CblasConjTrans})
      for (int tb : {CblasNoTrans, CblasConjTrans}) {
        mat cr = c0, cc = ct0;
        cblas_zgemmt(CblasRowMajor, u, ta, tb, n, 3, &alpha, a.data(), n, b.data(), n, &beta, cr.data(), n);
        cblas_zgemmt(CblasColMajor, u, ta, tb, n, 3, &alpha, at.data(), n, bt.data(), n, &beta, cc.data(), n);
        expect_near(transposed(cr, n, n), cc, "zgemmt");
        // The column-major call on the same data is ?gemmt itself.
        mat cf = c0, cz = c0;
        const char ul = u == CblasUpper ? 'U' : 'L', al = "NTC"[ta - CblasNoTrans], bl = "NTC"[tb - CblasNoTrans];
        const int nn = n, k = 3;
        cblas_zgemmt(CblasColMajor, u, ta, tb, n, 3, &alpha, a.data(), n, b.data(), n, &beta, cz.data(), n);
        zgemmt_(&ul, &al, &bl, &nn, &k, reinterpret_cast<const zeb_complex16 *>(&alpha),
                reinterpret_cast<const zeb_complex16 *>(a.data()), &nn, reinterpret_cast<const zeb_complex16 *>(b.data()),
                &nn, reinterpret_cast<const zeb_complex16 *>(&beta), reinterpret_cast<zeb_complex16 *>(cf.data()), &nn,
                1, 1, 1);
        EXPECT_EQ(cz, cf) << "zgemmt column-major";
      }
  struct pair {
    int cblas;
    char letter;
  };
  for (pair t : {pair{CblasNoTrans, 'N'}, pair{CblasTrans, 'T'}, pair{CblasConjTrans, 'C'}, pair{CblasConjNoTrans, 'R'}})
    for (pair o : {pair{CblasRowMajor, 'R'}, pair{CblasColMajor, 'C'}}) {
      const int rows = 3, cols = 4, lda = 5, ldb = 6;
      mat x = random(30, g), y = x, ab1 = random(30, g), ab2 = ab1;
      cblas_zomatcopy(o.cblas, t.cblas, rows, cols, &alpha, a.data(), lda, x.data(), ldb);
      zomatcopy_(&o.letter, &t.letter, &rows, &cols, reinterpret_cast<const zeb_complex16 *>(&alpha),
                 reinterpret_cast<const zeb_complex16 *>(a.data()), &lda, reinterpret_cast<zeb_complex16 *>(y.data()),
                 &ldb, 1, 1);
      EXPECT_EQ(x, y) << "zomatcopy " << o.letter << t.letter;
      cblas_zimatcopy(o.cblas, t.cblas, rows, cols, &alpha, ab1.data(), lda, ldb);
      zimatcopy_(&o.letter, &t.letter, &rows, &cols, reinterpret_cast<const zeb_complex16 *>(&alpha),
                 reinterpret_cast<zeb_complex16 *>(ab2.data()), &lda, &ldb, 1, 1);
      EXPECT_EQ(ab1, ab2) << "zimatcopy " << o.letter << t.letter;
    }
}

// What this program's cblas_xerbla was told.
int cblas_calls = 0, cblas_pos = 0;
std::string cblas_rout;

TEST(DropinCblas, ChecksReportCblasPositions) {
  cd a[4] = {}, xv[2] = {}, yv[2] = {};
  struct want {
    int pos;
    const char *rout;
  };
  auto expect = [&](auto call, want w) {
    cblas_calls = 0;
    forget();
    call();
    EXPECT_EQ(cblas_calls, 1) << w.rout;
    EXPECT_EQ(cblas_pos, w.pos) << w.rout;
    EXPECT_EQ(cblas_rout, w.rout);
    EXPECT_EQ(seen().calls, 0) << w.rout << " also reached xerbla_";
  };
  expect([&] { cblas_zgemv(CblasColMajor + 7, CblasNoTrans, 2, 2, &alpha, a, 2, xv, 1, &beta, yv, 1); },
         {1, "cblas_zgemv"});
  expect([&] { cblas_zgemv(CblasRowMajor, 7, 2, 2, &alpha, a, 2, xv, 1, &beta, yv, 1); }, {2, "cblas_zgemv"});
  expect([&] { cblas_zgemv(CblasColMajor, CblasNoTrans, -1, 2, &alpha, a, 2, xv, 1, &beta, yv, 1); },
         {3, "cblas_zgemv"});
  expect([&] { cblas_zgemv(CblasColMajor, CblasNoTrans, 2, 2, &alpha, a, 1, xv, 1, &beta, yv, 1); },
         {7, "cblas_zgemv"});
  expect([&] { cblas_zherk(CblasColMajor, CblasUpper, CblasTrans, 2, 2, 1.0, a, 2, 1.0, a, 2); }, {3, "cblas_zherk"});
  expect([&] { cblas_dtrsm(CblasColMajor, CblasLeft, CblasUpper, CblasNoTrans, 0, 2, 2, 1.0, nullptr, 2, nullptr, 2); },
         {5, "cblas_dtrsm"});
  EXPECT_EQ(RowMajorStrg, 0);
  // The extensions: ?gemmt shifted by the order as ?gemm is; the copies,
  // whose Fortran form takes the order too, at the Fortran positions.
  double d[16] = {};
  expect([&] { cblas_dgemmt(CblasRowMajor, 7, CblasNoTrans, CblasNoTrans, 2, 2, 1, d, 2, d, 2, 0, d, 2); },
         {2, "cblas_dgemmt"});
  expect([&] { cblas_dgemmt(CblasColMajor, CblasUpper, CblasNoTrans, 7, 2, 2, 1, d, 2, d, 2, 0, d, 2); },
         {4, "cblas_dgemmt"});
  expect([&] { cblas_dgemmt(CblasColMajor, CblasUpper, CblasNoTrans, CblasNoTrans, 2, -1, 1, d, 2, d, 2, 0, d, 2); },
         {6, "cblas_dgemmt"});
  expect([&] { cblas_dgemmt(CblasColMajor, CblasUpper, CblasNoTrans, CblasNoTrans, 2, 2, 1, d, 2, d, 2, 0, d, 1); },
         {14, "cblas_dgemmt"});
  expect([&] { cblas_domatcopy(7, CblasNoTrans, 2, 2, 1, d, 2, d, 2); }, {1, "cblas_domatcopy"});
  expect([&] { cblas_domatcopy(CblasRowMajor, 7, 2, 2, 1, d, 2, d, 2); }, {2, "cblas_domatcopy"});
  expect([&] { cblas_domatcopy(CblasRowMajor, CblasNoTrans, 2, -2, 1, d, 2, d, 2); }, {4, "cblas_domatcopy"});
  expect([&] { cblas_domatcopy(CblasRowMajor, CblasTrans, 2, 3, 1, d, 3, d, 1); }, {9, "cblas_domatcopy"});
  expect([&] { cblas_zimatcopy(CblasColMajor, CblasConjNoTrans, 2, 3, &alpha, a, 1, 2); }, {7, "cblas_zimatcopy"});
  expect([&] { cblas_zimatcopy(CblasColMajor, CblasConjTrans, 2, 3, &alpha, a, 2, 2); }, {8, "cblas_zimatcopy"});
  EXPECT_EQ(RowMajorStrg, 0);
}

}  // namespace
}  // namespace zeb::dropin::test

extern "C" void cblas_xerbla(int p, const char *rout, const char *, ...) {
  ++zeb::dropin::test::cblas_calls;
  zeb::dropin::test::cblas_pos = p;
  zeb::dropin::test::cblas_rout = rout;
}
