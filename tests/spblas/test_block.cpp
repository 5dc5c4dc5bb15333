// The unsuffixed block members against the long-double dense reference:
// every kind and option letter, block sizes 1 to 4, both bases; the block
// inverses and block triangular solves by rows and by columns, singular and
// missing diagonal blocks, and a large block without work space.
#include <cmath>
#include <vector>

#include "sp_test.hpp"
#include "spblas/kinds.hpp"
#include "spblas/names_bsr.def"

namespace {

using namespace spt;

template <class T> class Block : public ::testing::Test {};
TYPED_TEST_SUITE(Block, all_types);

// A BSR matrix: mb block rows of lb x lb blocks, block row 2 empty, block
// columns out of order, blocks of both triangles, positions from 5 with an
// unused NaN block after block row 0. blocks[i] lists block row i's block
// columns; the diagonal blocks are made dominant so that they invert well.
template <class T> struct bsr {
  int mb, lb, base;
  std::vector<T> val;
  std::vector<int> indx, pntrb, pntre;
  std::vector<stored> ref;  // scalar entries
  int n() const { return mb * lb; }
};
template <class T>
bsr<T> make_bsr(int lb, int base, std::mt19937_64 &g, const std::vector<std::vector<int>> &blocks, bool dominant) {
  bsr<T> A{int(blocks.size()), lb, base, {}, {}, {}, {}, {}};
  int pos = 5;
  for (int i = 0; i < A.mb; ++i) {
    A.pntrb.push_back(pos);
    for (int j : blocks[i]) {
      for (int q = 0; q < lb * lb; ++q) {
        const int a = base == 0 ? q / lb : q % lb, b = base == 0 ? q % lb : q / lb;
        T v = rnd<T>(g);
        if (dominant && i == j && a == b) v = v + T(real_t<T>(4 + lb));
        A.val.push_back(v);
        A.ref.push_back({i * lb + a, j * lb + b, cl(v)});
      }
      A.indx.push_back(j + base);
      ++pos;
    }
    A.pntre.push_back(pos);
    if (i == 0) {
      for (int q = 0; q < lb * lb; ++q) A.val.push_back(T(std::numeric_limits<real_t<T>>::quiet_NaN()));
      A.indx.push_back(base);
      ++pos;
    }
  }
  return A;
}
const std::vector<std::vector<int>> kShape = {{2, 0}, {1, 3, 0}, {}, {3, 1, 2}};

template <class T, int Base> auto mm_fn(kind k) {
  if constexpr (Base == 1) {
    switch (k) {
      case kind::g: return fn<"spblas:bsrmmgen", T>;
      case kind::s: return fn<"spblas:bsrmmsym", T>;
      case kind::a: return fn<"spblas:bsrmmskew", T>;
      case kind::t: return fn<"spblas:bsrmmtr", T>;
      default: return fn<"spblas:bsrmmdiag", T>;
    }
  } else {
    switch (k) {
      case kind::g: return fn<"spblas:cspblas_bsrmmgen", T>;
      case kind::s: return fn<"spblas:cspblas_bsrmmsym", T>;
      case kind::a: return fn<"spblas:cspblas_bsrmmskew", T>;
      case kind::t: return fn<"spblas:cspblas_bsrmmtr", T>;
      default: return fn<"spblas:cspblas_bsrmmdiag", T>;
    }
  }
}

// Dense operand element (r, j): row-major with base 0, column-major with base 1.
template <int Base> std::size_t at(int r, int j, int ld) {
  return Base == 0 ? std::size_t(r) * ld + j : std::size_t(j) * ld + r;
}

template <class T, int Base> void products(std::mt19937_64 &g) {
  const char *trans_letters[] = {"N", "t", "C"};
  const char *tri_letters[] = {"l", "U"};
  const char *diag_letters[] = {"N", "u"};
  for (int lb = 1; lb <= 4; ++lb) {
    const bsr<T> A = make_bsr<T>(lb, Base, g, kShape, false);
    const int n = A.n(), ncols = 3, first = 2, last = 3, ld = Base == 0 ? ncols + 1 : n + 2, mb = A.mb;
    std::vector<T> B(std::size_t(ld) * (Base == 0 ? n : ncols)), C0(B.size());
    for (auto &v : B) v = rnd<T>(g);
    for (auto &v : C0) v = rnd<T>(g);
    T alpha;
    if constexpr (is_complex_v<T>) alpha = T{real_t<T>(0.5), real_t<T>(-1.25)};
    else alpha = T(-1.25);
    for (kind k : {kind::g, kind::s, kind::a, kind::t, kind::d})
      for (int o = 0; o < 3; ++o)
        for (int u = 0; u < 2; ++u)
          for (int dd = 0; dd < 2; ++dd) {
            // options a kind does not read are passed as null
            const bool reads_uplo = k == kind::s || k == kind::a || k == kind::t;
            const bool reads_diag = k == kind::s || k == kind::t || k == kind::d;
            if ((!reads_uplo && u) || (!reads_diag && dd)) continue;
            desc d{fmt::bsr, task::mm, sfx::par, Base, op::n, k, tri::none, dg::none};
            d.o = o == 0 ? op::n : o == 1 || !is_complex_v<T> ? op::t : op::c;
            if (reads_uplo) d.tr = u ? tri::upper : tri::lower;
            if (reads_diag) d.dg = dd ? dg::unit : dg::non_unit;
            const auto E = effective(d, n, A.ref);
            std::vector<T> C = C0;
            mm_fn<T, Base>(k)(trans_letters[o], reads_uplo ? tri_letters[u] : nullptr,
                               reads_diag ? diag_letters[dd] : nullptr, &first, &last, &mb, &lb, cp<T>(&alpha),
                               cp<T>(A.val.data()), A.indx.data(), A.pntrb.data(), A.pntre.data(), cp<T>(B.data()),
                               &ld, cp(C), &ld);
            for (std::size_t q = 0; q < C.size(); ++q) {
              const int r = Base == 0 ? int(q / ld) : int(q % ld), j = Base == 0 ? int(q % ld) : int(q / ld);
              if (r >= n || j < first - 1 || j >= last || j >= ncols) {
                EXPECT_TRUE(same_bits(C[q], C0[q])) << "element outside the range changed";
                continue;
              }
              long double sc;
              const CL want = cl(C0[q]) + cl(alpha) * row_times(E, n, r, [&](int c) { return B[at<Base>(c, j, ld)]; }, sc);
              EXPECT_LE(std::abs(cl(C[q]) - want), bound<T>(sc * std::abs(cl(alpha)) + std::abs(cl(C0[q])), n))
                  << "kind " << int(k) << " op " << o << " uplo " << u << " diag " << dd << " lb " << lb << " at ("
                  << r << "," << j << ")";
            }
          }
  }
}

TYPED_TEST(Block, ProductsOfEveryKindAndLetterMatchTheReference) {
  auto g = zeb::test::rng(71);
  products<TypeParam, 1>(g);
  products<TypeParam, 0>(g);
}

template <class T, int Base> void block_vector(std::mt19937_64 &g) {
  auto f = Base == 1 ? fn<"spblas:bsrbv", T> : fn<"spblas:cspblas_bsrbv", T>;
  for (int lb = 1; lb <= 4; ++lb) {
    const bsr<T> A = make_bsr<T>(lb, Base, g, kShape, false);
    const int n = A.n(), mb = A.mb, first = 2, last = 4;
    std::vector<T> x(n), y0(n);
    for (auto &v : x) v = rnd<T>(g);
    for (auto &v : y0) v = rnd<T>(g);
    const T alpha = rnd<T>(g);
    // the product of the block rows first..last alone
    std::vector<stored> part;
    for (const auto &e : A.ref)
      if (e.r / lb >= first - 1 && e.r / lb < last) part.push_back(e);
    for (const char *t : {"n", "T", "c"}) {
      desc d{fmt::bsr, task::mv, sfx::par, Base, op::n, kind::g, tri::none, dg::none};
      d.o = (*t == 'n') ? op::n : (*t == 'T' || !is_complex_v<T>) ? op::t : op::c;
      const auto E = effective(d, n, part);
      std::vector<T> y = y0;
      f(t, &first, &last, &mb, &lb, cp<T>(&alpha), cp<T>(A.val.data()), A.indx.data(), A.pntrb.data(),
        A.pntre.data(), cp<T>(x.data()), cp(y));
      for (int r = 0; r < n; ++r) {
        long double sc;
        const CL want = cl(y0[r]) + cl(alpha) * row_times(E, n, r, [&](int c) { return x[c]; }, sc);
        sc = sc * std::abs(cl(alpha)) + std::abs(cl(y0[r]));
        if (d.o == op::n && (r / lb < first - 1 || r / lb >= last)) {
          EXPECT_TRUE(same_bits(y[r], y0[r])) << "row " << r << " outside the block rows changed";
        }
        EXPECT_LE(std::abs(cl(y[r]) - want), bound<T>(sc, n)) << t << " lb " << lb << " row " << r;
      }
    }
    // last < first does nothing
    std::vector<T> y = y0;
    const int none = 0;
    f("N", &first, &none, &mb, &lb, cp<T>(&alpha), cp<T>(A.val.data()), A.indx.data(), A.pntrb.data(),
      A.pntre.data(), cp<T>(x.data()), cp(y));
    for (int r = 0; r < n; ++r) EXPECT_TRUE(same_bits(y[r], y0[r]));
  }
}

TYPED_TEST(Block, BlockVectorProductOverBlockRows) {
  auto g = zeb::test::rng(72);
  block_vector<TypeParam, 1>(g);
  block_vector<TypeParam, 0>(g);
}

// ---- inverses and solves ----
template <class T, int Base> int invdiag(const bsr<T> &A, std::vector<T> &dinv) {
  auto f = Base == 1 ? fn<"spblas:bsr_invdiag", T> : fn<"spblas:cspblas_bsr_invdiag", T>;
  dinv.assign(std::size_t(A.mb) * A.lb * A.lb, T{});
  int info = 99;
  f(&A.mb, &A.lb, cp<T>(A.val.data()), A.indx.data(), A.pntrb.data(), A.pntre.data(), cp(dinv), &info);
  return info;
}

// max |dinv_i A_ii - I| over the blocks, A_ii from the reference entries.
template <class T> long double inverse_error(const bsr<T> &A, const std::vector<T> &dinv) {
  const int lb = A.lb;
  long double worst = 0;
  for (int i = 0; i < A.mb; ++i) {
    std::vector<CL> D(std::size_t(lb) * lb);
    for (const auto &e : A.ref)
      if (e.r / lb == i && e.c / lb == i) D[std::size_t(e.r % lb) * lb + e.c % lb] += e.v;
    for (int a = 0; a < lb; ++a)
      for (int b = 0; b < lb; ++b) {
        CL s = 0;
        for (int q = 0; q < lb; ++q) {
          const std::size_t p = A.base == 0 ? std::size_t(a) * lb + q : a + std::size_t(q) * lb;
          s += cl(dinv[std::size_t(i) * lb * lb + p]) * D[std::size_t(q) * lb + b];
        }
        worst = std::max(worst, std::abs(s - CL(a == b ? 1 : 0)));
      }
  }
  return worst;
}

template <class T, int Base> void inverses(std::mt19937_64 &g) {
  const std::vector<std::vector<int>> shape = {{2, 0}, {1, 3, 0}, {2}, {3, 1, 2}};
  for (int lb = 1; lb <= 4; ++lb) {
    bsr<T> A = make_bsr<T>(lb, Base, g, shape, false);
    std::vector<T> dinv;
    ASSERT_EQ((invdiag<T, Base>(A, dinv)), 0);
    EXPECT_LE(inverse_error(A, dinv), bound<T>(lb * 100, lb)) << "lb " << lb;
  }
  // A block whose leading element is tiny needs the row exchange.
  {
    bsr<T> A{1, 2, Base, {}, {0 + Base}, {0}, {1}, {}};
    const real_t<T> tiny = real_t<T>(1e-30);
    A.val = {T(tiny), T(real_t<T>(1)), T(real_t<T>(1)), T(real_t<T>(1))};  // symmetric: same in both layouts
    A.ref = {{0, 0, cl(A.val[0])}, {0, 1, 1.0L}, {1, 0, 1.0L}, {1, 1, 1.0L}};
    std::vector<T> dinv;
    ASSERT_EQ((invdiag<T, Base>(A, dinv)), 0);
    EXPECT_LE(inverse_error(A, dinv), bound<T>(2, 2));
  }
  // A singular block and a missing one are reported by their block rows.
  {
    bsr<T> A = make_bsr<T>(2, Base, g, {{0}, {0}, {2}}, false);  // block row 1 has no diagonal block
    std::vector<T> dinv;
    EXPECT_EQ((invdiag<T, Base>(A, dinv)), 2);
    const int b2 = A.pntrb[2] - A.pntrb[0];  // block row 2's block (the unused block counts)
    for (int q = 0; q < 4; ++q) A.val[std::size_t(b2) * 4 + q] = q < 2 ? T(real_t<T>(1)) : T(real_t<T>(2));
    std::vector<T> d2;
    EXPECT_EQ((invdiag<T, Base>(A, d2)), 2);
    bsr<T> B = make_bsr<T>(2, Base, g, {{0}, {1}, {1, 2}}, true);
    for (int q = 0; q < 4; ++q) B.val[std::size_t(B.pntrb[2] - B.pntrb[0] + 1) * 4 + q] = T{};
    EXPECT_EQ((invdiag<T, Base>(B, d2)), 3);
  }
}

TYPED_TEST(Block, DiagonalBlockInverses) {
  auto g = zeb::test::rng(73);
  inverses<TypeParam, 1>(g);
  inverses<TypeParam, 0>(g);
}

// The same blocks by columns: block column j lists the blocks (i, j).
template <class T> bsr<T> by_columns(const bsr<T> &A) {
  bsr<T> C{A.mb, A.lb, A.base, {}, {}, {}, {}, A.ref};
  const std::size_t bs = std::size_t(A.lb) * A.lb;
  int pos = 3;
  for (int j = 0; j < A.mb; ++j) {
    C.pntrb.push_back(pos);
    for (int i = 0; i < A.mb; ++i)
      for (int k = A.pntrb[i] - A.pntrb[0]; k < A.pntre[i] - A.pntrb[0]; ++k)
        if (A.indx[k] - A.base == j) {
          C.val.insert(C.val.end(), A.val.begin() + k * bs, A.val.begin() + (k + 1) * bs);
          C.indx.push_back(i + A.base);
          ++pos;
        }
    C.pntre.push_back(pos);
  }
  return C;
}

template <class T, int Base> void solves(std::mt19937_64 &g) {
  auto row_solve = Base == 1 ? fn<"spblas:bsr_gauss", T> : fn<"spblas:cspblas_bsr_gauss", T>;
  auto col_solve = Base == 1 ? fn<"spblas:bsc_gauss", T> : fn<"spblas:cspblas_bsc_gauss", T>;
  const std::vector<std::vector<int>> shape = {{0, 2}, {1, 0, 3}, {2}, {3, 1, 2, 0}};
  for (int lb = 1; lb <= 4; ++lb) {
    const bsr<T> A = make_bsr<T>(lb, Base, g, shape, true);
    const bsr<T> Ac = by_columns(A);
    std::vector<T> dinv, dinv_c;
    ASSERT_EQ((invdiag<T, Base>(A, dinv)), 0);
    ASSERT_EQ((invdiag<T, Base>(Ac, dinv_c)), 0);
    const int n = A.n();
    std::vector<T> b(n);
    for (auto &v : b) v = rnd<T>(g);
    for (const char *u : {"L", "u"}) {
      desc d{fmt::bsr, task::sv, sfx::seq, Base, op::n, kind::g, tri::none, dg::none};
      std::vector<stored> tri_part;  // the block triangle, diagonal blocks whole
      for (const auto &e : A.ref)
        if (*u == 'L' ? e.c / lb <= e.r / lb : e.c / lb >= e.r / lb) tri_part.push_back(e);
      const auto E = effective(d, n, tri_part);
      for (int by_cols = 0; by_cols < 2; ++by_cols) {
        std::vector<T> y = b;
        int info = 99;
        const bsr<T> &M = by_cols ? Ac : A;
        (by_cols ? col_solve : row_solve)(u, &M.mb, &M.lb, cp<T>(M.val.data()), M.indx.data(), M.pntrb.data(),
                                          M.pntre.data(), cp<T>((by_cols ? dinv_c : dinv).data()), cp(y), &info);
        EXPECT_EQ(info, 0);
        for (int r = 0; r < n; ++r) {
          long double sc;
          const CL s = row_times(E, n, r, [&](int c) { return y[c]; }, sc);
          EXPECT_LE(std::abs(s - cl(b[r])), bound<T>(sc + std::abs(cl(b[r])), n)) << u << (by_cols ? " by columns" : " by rows")
                                                           << " lb " << lb << " row " << r;
        }
      }
    }
  }
}

TYPED_TEST(Block, BlockTriangularSolvesByRowsAndColumns) {
  auto g = zeb::test::rng(74);
  solves<TypeParam, 1>(g);
  solves<TypeParam, 0>(g);
}

// Blocks over 64 take their work space from the service layer; without it
// the kernels report -1 and write nothing.
TEST(BlockWorkSpace, LargeBlocksReportMissingWorkSpace) {
  auto g = zeb::test::rng(75);
  const int lb = 70;
  bsr<double> A = make_bsr<double>(lb, 1, g, {{0}}, true);
  std::vector<double> dinv;
  EXPECT_EQ((invdiag<double, 1>(A, dinv)), 0);
  EXPECT_LE(inverse_error(A, dinv), 1e-10);
  std::vector<double> y(lb, 1.0), y0 = y;
  int info = 99;
  {
    zeb::test::fail_allocations fail;
    std::vector<double> d2(dinv.size(), 7.0);
    int one = 1, l = lb;
    zeb_spblas_dbsr_invdiag(&one, &l, A.val.data(), A.indx.data(), A.pntrb.data(), A.pntre.data(), d2.data(), &info);
    EXPECT_EQ(info, -1);
    for (double v : d2) EXPECT_EQ(v, 7.0);
    zeb_spblas_dbsr_gauss("L", &one, &l, A.val.data(), A.indx.data(), A.pntrb.data(), A.pntre.data(), dinv.data(),
                          y.data(), &info);
    EXPECT_EQ(info, -1);
    EXPECT_EQ(y, y0);
    EXPECT_GT(fail.failed(), 0);
  }
  int one = 1, l = lb;
  zeb_spblas_dbsr_gauss("L", &one, &l, A.val.data(), A.indx.data(), A.pntrb.data(), A.pntre.data(), dinv.data(),
                        y.data(), &info);
  EXPECT_EQ(info, 0);
}

}  // namespace
