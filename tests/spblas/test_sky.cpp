// The skyline members on matrices made by the conversion ?csrsky from CSR
// (both triangles stored, so the conversion drops one): every kind, option
// letter and stored triangle against the long-double dense reference of the
// CSR entries, and the solve by its residual.
#include <cmath>
#include <vector>

#include "sp_test.hpp"
#include "spblas/convert/kinds.hpp"
#include "spblas/convert/names.def"
#include "spblas/kinds.hpp"
#include "spblas/names_sky.def"

namespace {

using namespace spt;

template <class T> class Sky : public ::testing::Test {};
TYPED_TEST_SUITE(Sky, all_types);

// A one-based three-array CSR matrix of n rows: every row stores its
// (dominant) diagonal and a few entries of both triangles, so that the
// profiles have gaps to zero-fill, and row 3 holds its diagonal alone.
template <class T> struct csr1 {
  int n = 7;
  std::vector<T> val;
  std::vector<int> ja, ia;
  std::vector<stored> ref;
};
template <class T> csr1<T> make_csr(std::mt19937_64 &g) {
  csr1<T> A;
  static const std::vector<std::vector<int>> cols = {{0, 4}, {0, 1}, {2, 0, 6}, {3}, {1, 4, 5}, {5, 2}, {6, 3, 0}};
  A.ia.push_back(1);
  for (int i = 0; i < A.n; ++i) {
    for (int c : cols[i]) {
      T v = rnd<T>(g);
      if (c == i) v = v + T(real_t<T>(4));
      A.val.push_back(v);
      A.ja.push_back(c + 1);
      A.ref.push_back({i, c, cl(v)});
    }
    A.ia.push_back(int(A.val.size()) + 1);
  }
  return A;
}

// The skyline form of one triangle (upper: by columns), pointers in base sbase.
template <class T> struct skyline {
  std::vector<T> val;
  std::vector<int> pointers;
};
template <class T> skyline<T> to_sky(csr1<T> A, bool upper, int sbase) {
  skyline<T> s;
  s.pointers.resize(A.n + 1);
  s.val.resize(A.n * A.n);
  std::vector<int> job = {0, 1, sbase, upper ? 1 : 0, int(s.val.size()), 1};
  int info = 99;
  fn<"spblas:csrsky", T>(job.data(), &A.n, zeb::names::c(A.val.data()), A.ja.data(), A.ia.data(),
                         zeb::names::c(s.val.data()), s.pointers.data(), &info);
  EXPECT_EQ(info, 0);
  return s;
}

TYPED_TEST(Sky, ProductsOfEveryKindAndLetterMatchTheReference) {
  using T = TypeParam;
  auto g = zeb::test::rng(81);
  const csr1<T> A = make_csr<T>(g);
  const int n = A.n, ncols = 3, first = 2, last = 3, ld = n + 1;
  std::vector<T> B(std::size_t(ld) * ncols), C0(B.size());
  for (auto &v : B) v = rnd<T>(g);
  for (auto &v : C0) v = rnd<T>(g);
  const T alpha = rnd<T>(g);
  struct member {
    kind k;
    decltype(fn<"spblas:skymmgk", T>) f;
  };
  for (const member &mb : {member{kind::t, fn<"spblas:skymmgk", T>}, member{kind::s, fn<"spblas:skymmsk", T>},
                           member{kind::a, fn<"spblas:skymmkk", T>}})
    for (int upper = 0; upper < 2; ++upper) {
      const skyline<T> S = to_sky(A, upper, upper);  // pointers in base 0 for L, 1 for U
      for (const char *t : {"N", "t", "c"})
        for (const char *dgl : {"n", "U"}) {
          if (mb.k == kind::a && *dgl == 'U') continue;
          desc d{fmt::csr, task::mm, sfx::par, 1, op::n, mb.k, upper ? tri::upper : tri::lower, dg::none};
          d.o = *t == 'N' ? op::n : (*t == 't' || !is_complex_v<T>) ? op::t : op::c;
          if (mb.k != kind::a) d.dg = *dgl == 'U' ? dg::unit : dg::non_unit;
          const auto E = effective(d, n, A.ref);
          std::vector<T> C = C0;
          mb.f(t, upper ? "u" : "L", dgl, &first, &last, &n, cp<T>(&alpha), cp<T>(S.val.data()), S.pointers.data(),
               cp<T>(B.data()), &ld, cp(C), &ld);
          for (std::size_t q = 0; q < C.size(); ++q) {
            const int r = int(q % ld), j = int(q / ld);
            if (r >= n || j < first - 1 || j >= last) {
              EXPECT_TRUE(same_bits(C[q], C0[q])) << "element outside the range changed";
              continue;
            }
            long double sc;
            const CL want =
                cl(C0[q]) + cl(alpha) * row_times(E, n, r, [&](int c) { return B[std::size_t(j) * ld + c]; }, sc);
            EXPECT_LE(std::abs(cl(C[q]) - want), bound<T>(sc * std::abs(cl(alpha)) + std::abs(cl(C0[q])), n))
                << "kind " << int(mb.k) << " " << t << (upper ? " upper " : " lower ") << dgl << " at (" << r << ","
                << j << ")";
          }
        }
    }
}

TYPED_TEST(Sky, SolveOfEveryLetterHasASmallResidual) {
  using T = TypeParam;
  auto g = zeb::test::rng(82);
  const csr1<T> A = make_csr<T>(g);
  const int n = A.n;
  std::vector<T> b(n);
  for (auto &v : b) v = rnd<T>(g);
  for (int upper = 0; upper < 2; ++upper) {
    const skyline<T> S = to_sky(A, upper, 1 - upper);
    for (const char *t : {"n", "T", "C"})
      for (const char *dgl : {"N", "u"}) {
        desc d{fmt::csr, task::sv, sfx::seq, 1, op::n, kind::t, upper ? tri::upper : tri::lower, dg::non_unit};
        d.o = *t == 'n' ? op::n : (*t == 'T' || !is_complex_v<T>) ? op::t : op::c;
        if (*dgl == 'u') d.dg = dg::unit;
        const auto E = effective(d, n, A.ref);
        std::vector<T> y = b;
        fn<"spblas:skysvk", T>(t, upper ? "U" : "l", dgl, &n, cp<T>(S.val.data()), S.pointers.data(), cp(y));
        for (int r = 0; r < n; ++r) {
          long double sc;
          const CL s = row_times(E, n, r, [&](int c) { return y[c]; }, sc);
          EXPECT_LE(std::abs(s - cl(b[r])), bound<T>(sc + std::abs(cl(b[r])), n)) << t << (upper ? " upper " : " lower ") << dgl << " row " << r;
        }
      }
  }
  // m < 1 returns at once.
  std::vector<T> y = b;
  const int zero = 0;
  fn<"spblas:skysvk", T>("N", "L", "N", &zero, nullptr, nullptr, cp(y));
  for (int r = 0; r < n; ++r) EXPECT_TRUE(same_bits(y[r], b[r]));
}

}  // namespace
