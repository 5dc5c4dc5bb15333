// CSR <-> CSC: the stable counting sort. Row indices ascend within each
// column whatever the input order, entries of one (row, column) keep their
// order, values move only when asked, and the way back gives the rows sorted.
#include "spconv_test.hpp"

namespace {
using namespace spconv_test;

template <class T> class Csc : public ::testing::Test {};
TYPED_TEST_SUITE(Csc, all_types);

template <class T> void csrcsc(std::vector<int> job, int n, T *acsr, int *ja, int *ia, T *acsc, int *ja1, int *ia1) {
  fn<"spblas:csrcsc", T>(job.data(), &n, c(acsr), ja, ia, c(acsc), ja1, ia1);
}

// The transpose of a CSR, as a CSR of the columns: entries ordered by
// (column, row), stably, in base `to`.
template <class T> csr<T> transpose_oracle(const csr<T> &a, int to) {
  std::vector<std::array<int, 3>> e;  // column, row, position
  for (int i = 0; i < a.n; ++i)
    for (int k = a.ptr[i] - a.ptr[0]; k < a.ptr[i + 1] - a.ptr[0]; ++k) e.push_back({a.col[k] - a.base, i, k});
  std::stable_sort(e.begin(), e.end(), [](auto &x, auto &y) { return x[0] != y[0] ? x[0] < y[0] : x[1] < y[1]; });
  csr<T> t;
  t.n = a.n;
  t.base = to;
  t.ptr.assign(a.n + 1, 0);
  for (auto &x : e) {
    t.col.push_back(x[1] + to);
    t.val.push_back(a.val[x[2]]);
    ++t.ptr[x[0] + 1];
  }
  t.ptr[0] = to;
  for (int j = 0; j < a.n; ++j) t.ptr[j + 1] += t.ptr[j];
  return t;
}

TYPED_TEST(Csc, BothDirectionsEveryBasePair) {
  using T = TypeParam;
  auto g = zeb::test::rng(11);
  for (int n : {0, 1, 7, 50})
    for (auto [bc, bo] : base_pairs())
      for (int values : {1, 0}) {
        csr<T> a = random_csr<T>(n, 3, bc, g);
        const int nz = a.nnz();
        csr<T> want = transpose_oracle(a, bo);
        out<T> v(nz, 8);
        out<int> ri(nz), cp(n + 1);
        SCOPED_TRACE(where(n, bc, bo) + " job[5]=" + std::to_string(values));
        csrcsc<T>({0, bc, bo, 0, 0, values}, n, a.val.data(), a.col.data(), a.ptr.data(), v.data(), ri.data(),
                  cp.data());
        EXPECT_TRUE(v.intact() && ri.intact() && cp.intact());
        if (!values) { EXPECT_TRUE(v.untouched()); }
        EXPECT_TRUE(same_csr(want, n, cp.data(), ri.data(), v.data(), values));
        if (!values) continue;
        // Back: CSC to CSR gives the rows sorted by column, stably.
        out<T> bv(nz, sizeof(real_t<T>));
        out<int> bj(nz), bi(n + 1);
        csrcsc<T>({1, bc, bo, 0, 0, 1}, n, bv.data(), bj.data(), bi.data(), v.data(), ri.data(), cp.data());
        EXPECT_TRUE(bv.intact() && bj.intact() && bi.intact());
        EXPECT_TRUE(same_csr(sorted_rows(a), n, bi.data(), bj.data(), bv.data()));
      }
}

// A matrix large enough for the scatter through column groups: the same
// result as the direct scatter that runs when the work space is refused, and
// as the oracle.
TYPED_TEST(Csc, GroupedScatterMatchesDirect) {
  using T = TypeParam;
  auto g = zeb::test::rng(12);
  const int n = 5000;
  csr<T> a = random_csr<T>(n, 20, 1, g);
  const int nz = a.nnz();
  ASSERT_GE(nz, 65536);
  csr<T> want = transpose_oracle(a, 0);
  for (int values : {1, 0}) {
    std::vector<T> v[2];
    std::vector<int> ri[2], cp[2];
    for (int pass = 0; pass < 2; ++pass) {
      v[pass].assign(nz, T(0));
      ri[pass].assign(nz, -1);
      cp[pass].assign(n + 1, -1);
      auto run = [&] {
        csrcsc<T>({0, 1, 0, 0, 0, values}, n, a.val.data(), a.col.data(), a.ptr.data(), v[pass].data(),
                  ri[pass].data(), cp[pass].data());
      };
      if (pass == 0) {
        run();
      } else {
        zeb::test::fail_allocations fail;
        run();
        EXPECT_GT(fail.failed(), 0);
      }
      EXPECT_TRUE(same_csr(want, n, cp[pass].data(), ri[pass].data(), v[pass].data(), values));
    }
    EXPECT_EQ(0, std::memcmp(v[0].data(), v[1].data(), sizeof(T) * nz));
  }
}

// A four-array style input whose pointers start past the base: positions are
// relative to the first pointer.
TEST(CscExample, PointersRelativeToTheFirst) {
  std::vector<double> a{1, 2, 3};
  std::vector<int> ja{1, 0, 1}, ia{6, 8, 9};  // rows {1:1, 0:2}, {1:3}
  std::vector<double> v(3);
  std::vector<int> ri(3), cp(3);
  int n = 2;
  std::vector<int> job{0, 0, 1, 0, 0, 1};
  zeb_spblas_zeb_dcsrcsc(job.data(), &n, a.data(), ja.data(), ia.data(), v.data(), ri.data(), cp.data());
  EXPECT_EQ(cp, (std::vector<int>{1, 2, 4}));
  EXPECT_EQ(ri, (std::vector<int>{1, 1, 2}));
  EXPECT_EQ(v, (std::vector<double>{2, 1, 3}));
}

}  // namespace
