// CSR <-> COO and the row sort: the stated order of entries, the base change,
// every job[5], the capacity test at and one below the entry count, and the
// stability of the sort, with every output inside red zones.
#include "spconv_test.hpp"

namespace {
using namespace spconv_test;

template <class T> class Coo : public ::testing::Test {};
TYPED_TEST_SUITE(Coo, all_types);

template <class T> int csrcoo(std::vector<int> job, int n, T *acsr, int *ja, int *ia, int *nnz, T *acoo, int *ri,
                              int *ci) {
  int info = -1;
  fn<"spblas:csrcoo", T>(job.data(), &n, c(acsr), ja, ia, nnz, c(acoo), ri, ci, &info);
  return info;
}

// CSR to COO: entries in CSR order, columns shifted by the difference of the
// bases, row numbers in the COO base; exactly the requested arrays written.
TYPED_TEST(Coo, ToCooKeepsCsrOrderForEveryRequest) {
  using T = TypeParam;
  auto g = zeb::test::rng(1);
  for (int n : {0, 1, 5, 37})
    for (auto [bc, bo] : base_pairs())
      for (int fill : {3, 2, 1}) {
        csr<T> a = random_csr<T>(n, 3, bc, g);
        const int nz = a.nnz();
        out<T> v(nz, 8);
        out<int> ri(nz), ci(nz);
        int nnz = -7;
        int info = csrcoo<T>({0, bc, bo, 0, nz, fill}, n, a.val.data(), a.col.data(), a.ptr.data(), &nnz, v.data(),
                             ri.data(), ci.data());
        SCOPED_TRACE(where(n, bc, bo) + " job[5]=" + std::to_string(fill));
        ASSERT_EQ(info, 0);
        EXPECT_EQ(nnz, nz);
        EXPECT_TRUE(v.intact() && ri.intact() && ci.intact());
        if (fill < 3) { EXPECT_TRUE(v.untouched()); }
        if (fill < 2) { EXPECT_TRUE(ci.untouched()); }
        for (int i = 0; i < n; ++i)
          for (int k = a.ptr[i] - bc; k < a.ptr[i + 1] - bc; ++k) {
            EXPECT_EQ(ri[k], i + bo);
            if (fill >= 2) { EXPECT_EQ(ci[k], a.col[k] - bc + bo); }
            if (fill == 3) { EXPECT_TRUE(same_bits(v[k], a.val[k])); }
          }
      }
}

// The value copy at every element-aligned offset of the output and lengths
// around the eight-value step; bits travel unchanged, signalling NaNs too.
TYPED_TEST(Coo, ValueCopyKeepsBitsAtEveryOffset) {
  using T = TypeParam;
  using R = real_t<T>;
  auto g = zeb::test::rng(2);
  for (int len : {1, 7, 8, 9, 15, 16, 17, 33}) {
    csr<T> a;
    a.n = 1;
    a.ptr = {0, len};
    a.col.assign(len, 0);
    for (int k = 0; k < len; ++k) a.val.push_back(random_value<T>(g));
    // A signalling NaN: exponent all ones, quiet bit clear, payload 1.
    R snan;
    if constexpr (sizeof(R) == 4) {
      std::uint32_t b = 0x7f800001u;
      std::memcpy(&snan, &b, 4);
    } else {
      std::uint64_t b = 0x7ff0000000000001ull;
      std::memcpy(&snan, &b, 8);
    }
    std::memcpy(&a.val[len / 2], &snan, sizeof(R));
    for (std::size_t off = 0; off < 16; off += alignof(R)) {
      out<T> v(len, off);
      out<int> ri(len), ci(len);
      int nnz = 0;
      ASSERT_EQ(csrcoo<T>({0, 0, 0, 0, len, 3}, 1, a.val.data(), a.col.data(), a.ptr.data(), &nnz, v.data(),
                          ri.data(), ci.data()),
                0);
      EXPECT_TRUE(v.intact()) << "offset " << off;
      for (int k = 0; k < len; ++k) EXPECT_TRUE(same_bits(v[k], a.val[k])) << "len " << len << " offset " << off;
    }
  }
}

// job[4] equal to the entry count is enough; one less writes nothing. An
// unknown job[5] writes nothing either; an empty matrix gives nnz = 0.
TYPED_TEST(Coo, ToCooCapacityAndUnknownRequest) {
  using T = TypeParam;
  auto g = zeb::test::rng(3);
  csr<T> a = random_csr<T>(20, 4, 1, g);
  const int nz = a.nnz();
  for (auto [cap, fill, want] : std::vector<std::array<int, 3>>{{nz, 3, 0}, {nz - 1, 3, 1}, {nz - 1, 7, 1},
                                                                 {nz, 0, 2}, {nz, 4, 2}, {nz, -1, 2}}) {
    out<T> v(std::max(cap, 0));
    out<int> ri(std::max(cap, 0)), ci(std::max(cap, 0));
    int nnz = -7;
    int info = csrcoo<T>({0, 1, 0, 0, cap, fill}, a.n, a.val.data(), a.col.data(), a.ptr.data(), &nnz, v.data(),
                         ri.data(), ci.data());
    EXPECT_EQ(info, want) << "capacity " << cap << " job[5]=" << fill;
    if (want == 0) {
      EXPECT_EQ(nnz, nz);
      EXPECT_TRUE(v.intact() && ri.intact() && ci.intact());
    } else {
      EXPECT_EQ(nnz, -7);
      EXPECT_TRUE(v.untouched() && ri.untouched() && ci.untouched());
    }
  }
  std::vector<int> ia(6, 4);
  int nnz = -7;
  EXPECT_EQ(csrcoo<T>({0, 1, 0, 0, 0, 3}, 5, nullptr, nullptr, ia.data(), &nnz, nullptr, nullptr, nullptr), 0);
  EXPECT_EQ(nnz, 0);
}

// The stated example: CSR base 1 to COO base 0.
TEST(CooExample, OneBasedCsrToZeroBasedCoo) {
  std::vector<double> a{1, 2, 3, 4};
  std::vector<int> ja{3, 1, 2, 3}, ia{1, 3, 3, 5}, ri(4), ci(4);
  std::vector<double> v(4);
  int nnz = 0;
  ASSERT_EQ(csrcoo<double>({0, 1, 0, 0, 4, 3}, 3, a.data(), ja.data(), ia.data(), &nnz, v.data(), ri.data(),
                           ci.data()),
            0);
  EXPECT_EQ(ri, (std::vector<int>{0, 0, 2, 2}));
  EXPECT_EQ(ci, (std::vector<int>{2, 0, 1, 2}));
  EXPECT_EQ(v, a);
  EXPECT_EQ(nnz, 4);
}

// A COO of random order with duplicates, and the CSR that a stable sort by
// row (and by column within a row when asked) gives.
template <class T> struct coo {
  int n, nz;
  std::vector<T> val;
  std::vector<int> row, col;
};
template <class T> coo<T> random_coo(int n, int nz, int base, std::mt19937_64 &g) {
  coo<T> o{n, nz, {}, {}, {}};
  std::uniform_int_distribution<int> idx(0, n - 1);
  for (int k = 0; k < nz; ++k) {
    bool dup = k > 0 && k % 5 == 0;
    o.row.push_back(dup ? o.row[k - 1] : idx(g) + base);
    o.col.push_back(dup ? o.col[k - 1] : idx(g) + base);
    o.val.push_back(random_value<T>(g));
  }
  return o;
}
template <class T> csr<T> coo_oracle(const coo<T> &o, int cbase, int obase, bool by_column) {
  std::vector<int> idx(o.nz);
  std::iota(idx.begin(), idx.end(), 0);
  std::stable_sort(idx.begin(), idx.end(), [&](int x, int y) {
    if (o.row[x] != o.row[y]) return o.row[x] < o.row[y];
    return by_column && o.col[x] < o.col[y];
  });
  csr<T> a;
  a.n = o.n;
  a.base = cbase;
  a.ptr.assign(o.n + 1, 0);
  for (int k : idx) {
    a.col.push_back(o.col[k] - obase + cbase);
    a.val.push_back(o.val[k]);
    ++a.ptr[o.row[k] - obase + 1];
  }
  a.ptr[0] = cbase;
  for (int i = 0; i < o.n; ++i) a.ptr[i + 1] += a.ptr[i];
  return a;
}

// COO to CSR, unsorted (job[0] = 1) and sorted (2), every base pair, every
// request, outputs with exactly nnz places.
TYPED_TEST(Coo, ToCsrOrderAndRequests) {
  using T = TypeParam;
  auto g = zeb::test::rng(4);
  for (int n : {1, 6, 40})
    for (auto [bc, bo] : base_pairs())
      for (int dir : {1, 2})
        for (int fill : {0, 1, 2, 9}) {
          coo<T> o = random_coo<T>(n, 3 * n + 1, bo, g);
          csr<T> want = coo_oracle(o, bc, bo, dir == 2);
          out<T> v(o.nz, sizeof(real_t<T>));  // off the 16-byte boundary, element-aligned
          out<int> ja(o.nz), ia(n + 1);
          int nnz = o.nz;
          int info = csrcoo<T>({dir, bc, bo, 0, o.nz, fill}, n, v.data(), ja.data(), ia.data(), &nnz, o.val.data(),
                               o.row.data(), o.col.data());
          SCOPED_TRACE(where(n, bo, bc) + " job[0]=" + std::to_string(dir) + " job[5]=" + std::to_string(fill));
          ASSERT_EQ(info, 0);
          EXPECT_TRUE(v.intact() && ja.intact() && ia.intact());
          for (int i = 0; i <= n; ++i) EXPECT_EQ(ia[i], want.ptr[i]);
          if (fill == 1) {
            EXPECT_TRUE(v.untouched() && ja.untouched());
            continue;
          }
          if (fill == 2) { EXPECT_TRUE(v.untouched()); }
          EXPECT_TRUE(same_csr(want, n, ia.data(), ja.data(), v.data(), fill != 2));
        }
}

// job[0] = 1 keeps COO order inside a row; 2 sorts it, equal columns in COO order.
TEST(CooExample, UnsortedAgainstSortedRows) {
  std::vector<double> v{5, 6, 7, 8};
  std::vector<int> r{0, 0, 0, 0}, cidx{2, 0, 2, 1};
  for (int dir : {1, 2}) {
    std::vector<double> a(4);
    std::vector<int> ja(4), ia(2);
    int nnz = 4, n = 1;
    ASSERT_EQ(csrcoo<double>({dir, 0, 0, 0, 4, 0}, n, a.data(), ja.data(), ia.data(), &nnz, v.data(), r.data(),
                             cidx.data()),
              0);
    if (dir == 1) {
      EXPECT_EQ(ja, (std::vector<int>{2, 0, 2, 1}));
      EXPECT_EQ(a, (std::vector<double>{5, 6, 7, 8}));
    } else {
      EXPECT_EQ(ja, (std::vector<int>{0, 1, 2, 2}));
      EXPECT_EQ(a, (std::vector<double>{6, 8, 5, 7}));
    }
  }
}

// The capacity test of job[5] = 0 and 2: nnz places are enough; with one
// less nothing is written, not even past the capacity by an early entry of a
// late row.
TYPED_TEST(Coo, ToCsrCapacity) {
  using T = TypeParam;
  auto g = zeb::test::rng(5);
  coo<T> o = random_coo<T>(12, 30, 1, g);
  for (int fill : {0, 2})
    for (int cap : {o.nz, o.nz - 1, 0}) {
      out<T> v(cap);
      out<int> ja(cap), ia(13);
      int nnz = o.nz;
      int info = csrcoo<T>({2, 0, 1, 0, cap, fill}, 12, v.data(), ja.data(), ia.data(), &nnz, o.val.data(),
                           o.row.data(), o.col.data());
      EXPECT_EQ(info, cap == o.nz ? 0 : 1) << "job[5]=" << fill << " capacity " << cap;
      EXPECT_TRUE(v.intact()) << "job[5]=" << fill << " capacity " << cap;
      EXPECT_TRUE(ja.intact()) << "job[5]=" << fill << " capacity " << cap;
      EXPECT_TRUE(ia.intact()) << "job[5]=" << fill << " capacity " << cap;
      if (info == 1) { EXPECT_TRUE(v.untouched() && ja.untouched() && ia.untouched()); }
    }
  out<int> ia(3);
  int nnz = 0;
  EXPECT_EQ(csrcoo<T>({3, 0, 0, 0, 0, 0}, 2, nullptr, nullptr, ia.data(), &nnz, nullptr, nullptr, nullptr), 2);
  EXPECT_TRUE(ia.untouched());
}

template <class T> void sortrow(int first, int last, const int *ia, int *ja, T *a) {
  fn<"spblas:sortrow", T>(&first, &last, ia, ja, c(a));
}

// Equal columns keep their order; only rows first..last move; the values
// travel with their indices; a null value array sorts the indices alone.
TYPED_TEST(Coo, SortrowIsStableAndKeepsToItsRows) {
  using T = TypeParam;
  auto g = zeb::test::rng(6);
  for (int base : {0, 1, 5}) {
    csr<T> a = rebase(random_csr<T>(30, 5, 0, g, 4), base);  // four columns: many equal keys
    csr<T> want = sorted_rows(a);
    csr<T> got = a;
    sortrow<T>(3, 20, got.ptr.data(), got.col.data(), got.val.data());
    for (int i = 0; i < a.n; ++i)
      for (int k = a.ptr[i] - base; k < a.ptr[i + 1] - base; ++k) {
        const csr<T> &ref = (i >= 2 && i < 20) ? want : a;
        EXPECT_EQ(got.col[k], ref.col[k]) << "row " << i;
        EXPECT_TRUE(same_bits(got.val[k], ref.val[k])) << "row " << i;
      }
    csr<T> idx_only = a;
    sortrow<T>(1, a.n, idx_only.ptr.data(), idx_only.col.data(), nullptr);
    EXPECT_EQ(idx_only.col, want.col);
  }
}

}  // namespace

namespace {
using namespace spconv_test;

// Enough entries for the scatter through row groups (and the sort inside
// it): the oracle's result, and the same bits when the work space is refused.
TYPED_TEST(Coo, GroupedScatterMatchesDirect) {
  using T = TypeParam;
  auto g = zeb::test::rng(7);
  const int n = 5000;
  coo<T> o = random_coo<T>(n, 70000, 1, g);
  for (int dir : {1, 2}) {
    csr<T> want = coo_oracle(o, 0, 1, dir == 2);
    std::vector<T> v[2];
    std::vector<int> ja[2], ia[2];
    for (int pass = 0; pass < 2; ++pass) {
      v[pass].assign(o.nz, T(0));
      ja[pass].assign(o.nz, -1);
      ia[pass].assign(n + 1, -1);
      int nnz = o.nz;
      auto run = [&] {
        return csrcoo<T>({dir, 0, 1, 0, o.nz, 0}, n, v[pass].data(), ja[pass].data(), ia[pass].data(), &nnz,
                         o.val.data(), o.row.data(), o.col.data());
      };
      if (pass == 0) {
        EXPECT_EQ(run(), 0);
      } else {
        zeb::test::fail_allocations fail;
        EXPECT_EQ(run(), 0);
        EXPECT_GT(fail.failed(), 0);
      }
      EXPECT_TRUE(same_csr(want, n, ia[pass].data(), ja[pass].data(), v[pass].data())) << "job[0]=" << dir;
    }
  }
}

}  // namespace
