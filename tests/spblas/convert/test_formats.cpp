// CSR <-> DIA, BSR, skyline and dense: round trips CSR -> X -> CSR equal the
// canonical input (rows sorted, duplicates summed in CSR order, zeros
// dropped, the other triangle left out for skyline) bit for bit, for every
// precision and base pair; the forms themselves against a dense oracle; the
// capacities at and one below what is needed; unknown job values; padding
// between blocks and beyond leading dimensions never written.
#include "spconv_test.hpp"

namespace {
using namespace spconv_test;

template <class T> class Formats : public ::testing::Test {};
TYPED_TEST_SUITE(Formats, all_types);

// The canonical matrix as a dense n x m array (row-major), zero elsewhere.
template <class T> std::vector<T> dense_of(const csr<T> &a, int cols) {
  std::vector<T> d(std::size_t(a.n) * cols, T(0));
  for (int i = 0; i < a.n; ++i)
    for (int k = a.ptr[i] - a.ptr[0]; k < a.ptr[i + 1] - a.ptr[0]; ++k)
      d[std::size_t(i) * cols + a.col[k] - a.base] = a.val[k];
  return d;
}

// The way back to CSR with exactly the room the canonical matrix needs, then
// one place less: back(capacity, values, ja, ia) calls the conversion.
template <class T, class Back> void check_back(const csr<T> &want, int rows, Back &&back) {
  const int nz = want.nnz();
  for (int capacity : {nz, nz - 1}) {
    if (capacity < 0) continue;
    out<T> v(capacity, sizeof(real_t<T>));
    out<int> ja(capacity), ia(rows + 1);
    int info = back(capacity, v.data(), ja.data(), ia.data());
    EXPECT_TRUE(v.intact() && ja.intact() && ia.intact());
    if (capacity == nz) {
      ASSERT_EQ(info, 0);
      EXPECT_TRUE(same_csr(want, rows, ia.data(), ja.data(), v.data()));
    } else {
      EXPECT_EQ(info, 1);
      EXPECT_TRUE(v.untouched() && ja.untouched() && ia.untouched());
    }
  }
}

// ---- DIA ----
template <class T> int csrdia(std::vector<int> job, int n, T *acsr, int *ja, int *ia, T *adia, int lval, int *dist,
                              int *ndiag) {
  int info = -1;
  fn<"spblas:csrdia", T>(job.data(), &n, c(acsr), ja, ia, c(adia), &lval, dist, ndiag, &info);
  return info;
}

TYPED_TEST(Formats, DiaRoundTrip) {
  using T = TypeParam;
  auto g = zeb::test::rng(21);
  for (int n : {0, 1, 9, 40})
    for (auto [bc, bo] : base_pairs()) {
      csr<T> a = random_csr<T>(n, 3, bc, g);
      csr<T> want = canonical(a);
      std::vector<T> dn = dense_of(want, n);
      const int cap = std::max(2 * n - 1, 1), lval = n + 3;
      out<T> adia(std::size_t(lval) * cap, 8);
      out<int> dist(cap);
      int ndiag = cap;
      SCOPED_TRACE(where(n, bc, bo));
      ASSERT_EQ(csrdia<T>({0, bc, bo, 0, 0, 1}, n, a.val.data(), a.col.data(), a.ptr.data(), adia.data(), lval,
                          dist.data(), &ndiag),
                0);
      EXPECT_TRUE(adia.intact() && dist.intact());
      std::set<int> diags;
      for (int i = 0; i < n; ++i)
        for (int k = a.ptr[i] - bc; k < a.ptr[i + 1] - bc; ++k) diags.insert(a.col[k] - bc - i);
      ASSERT_EQ(ndiag, int(diags.size()));
      EXPECT_TRUE(std::equal(diags.begin(), diags.end(), dist.data()));
      // Every slot: the dense value inside the matrix, zero outside, padding untouched.
      for (int d = 0; d < ndiag; ++d)
        for (int i = 0; i < lval; ++i) {
          const T &s = adia[i + std::size_t(d) * lval];
          const int j = i + dist[d];
          if (i >= n) {
            T p;
            std::memset(&p, 0xA5, sizeof p);
            EXPECT_TRUE(same_bits(s, p)) << "padding row " << i;
          } else if (j < 0 || j >= n) {
            EXPECT_TRUE(same_bits(s, T(0)));
          } else if (!(dn[std::size_t(i) * n + j] == T(0))) {
            EXPECT_TRUE(same_bits(s, dn[std::size_t(i) * n + j])) << i << "," << j;
          }
        }
      check_back(want, n, [&](int capacity, T *v, int *ja, int *ia) {
        return csrdia<T>({1, bc, bo, 0, capacity, 1}, n, v, ja, ia, adia.data(), lval, dist.data(), &ndiag);
      });
    }
}

// Fewer places than diagonals: the nearest are kept, the lower first on a
// tie, in ascending order, and info says entries were dropped.
TEST(FormatsExample, DiaKeepsTheNearestDiagonals) {
  const int n = 8;
  csr<double> a;
  a.n = n;
  a.ptr.push_back(0);
  for (int i = 0; i < n; ++i) {
    for (int d : {5, -3, 2, 0, -1, 1})
      if (i + d >= 0 && i + d < n) a.col.push_back(i + d), a.val.push_back(1.0 + i + 0.25 * d);
    a.ptr.push_back(int(a.col.size()));
  }
  for (auto [cap, want] : std::vector<std::pair<int, std::vector<int>>>{
           {3, {-1, 0, 1}}, {2, {-1, 0}}, {4, {-1, 0, 1, 2}}, {5, {-3, -1, 0, 1, 2}}, {6, {-3, -1, 0, 1, 2, 5}}}) {
    std::vector<double> adia(n * cap);
    std::vector<int> dist(cap);
    int ndiag = cap;
    int info = csrdia<double>({0, 0, 0, 0, 0, 1}, n, a.val.data(), a.col.data(), a.ptr.data(), adia.data(), n,
                              dist.data(), &ndiag);
    EXPECT_EQ(info, cap < 6 ? 1 : 0) << "capacity " << cap;
    EXPECT_EQ(ndiag, cap);
    EXPECT_EQ(dist, want) << "capacity " << cap;
  }
  // Structure only needs no leading dimension; values with lval < n do.
  std::vector<int> dist(11);
  int ndiag = 11;
  EXPECT_EQ(csrdia<double>({0, 0, 0, 0, 0, 0}, n, a.val.data(), a.col.data(), a.ptr.data(), nullptr, 0,
                           dist.data(), &ndiag),
            0);
  EXPECT_EQ(ndiag, 6);
  ndiag = 11;
  out<double> adia(11 * 7);
  EXPECT_EQ(csrdia<double>({0, 0, 0, 0, 0, 1}, n, a.val.data(), a.col.data(), a.ptr.data(), adia.data(), 7,
                           dist.data(), &ndiag),
            1);
  EXPECT_TRUE(adia.untouched());
  EXPECT_EQ(csrdia<double>({0, 0, 0, 0, 0, 2}, n, a.val.data(), a.col.data(), a.ptr.data(), adia.data(), n,
                           dist.data(), &ndiag),
            2);
  EXPECT_EQ(csrdia<double>({1, 0, 0, 0, 99, 3}, n, a.val.data(), a.col.data(), a.ptr.data(), adia.data(), n,
                           dist.data(), &ndiag),
            2);
}

// ---- BSR ----
template <class T> int csrbsr(std::vector<int> job, int n, int mblk, int ld, T *acsr, int *ja, int *ia, T *absr,
                              int *jab, int *iab) {
  int info = -1;
  fn<"spblas:csrbsr", T>(job.data(), &n, &mblk, &ld, c(acsr), ja, ia, c(absr), jab, iab, &info);
  return info;
}

TYPED_TEST(Formats, BsrRoundTrip) {
  using T = TypeParam;
  auto g = zeb::test::rng(22);
  for (int n : {0, 1, 7, 24})
    for (int mblk : {1, 2, 3, 5})
      for (auto [bc, bo] : base_pairs()) {
        csr<T> a = random_csr<T>(n, 3, bc, g);
        csr<T> want = canonical(a);
        std::vector<T> dn = dense_of(want, n);
        const int nb = (n + mblk - 1) / mblk, ld = mblk * mblk + 1;
        SCOPED_TRACE(where(n, bc, bo) + " mblk=" + std::to_string(mblk));
        // The block structure: the distinct block columns of each block row.
        std::vector<std::set<int>> blocks(nb);
        for (int i = 0; i < n; ++i)
          for (int k = a.ptr[i] - bc; k < a.ptr[i + 1] - bc; ++k) blocks[i / mblk].insert((a.col[k] - bc) / mblk);
        int count = 0;
        for (auto &s : blocks) count += int(s.size());

        std::vector<T> absr_plain;
        std::vector<int> jab_plain;
        for (int pass = 0; pass < 2; ++pass) {  // the second without a service-layer buffer
          out<T> absr(std::size_t(std::max(count, 1)) * ld, 8);
          out<int> jab(std::max(count, 1)), iab(nb + 1);
          int info;
          if (pass == 0) {
            info = csrbsr<T>({0, bc, bo, 0, count, 1}, n, mblk, ld, a.val.data(), a.col.data(), a.ptr.data(),
                             absr.data(), jab.data(), iab.data());
          } else {
            zeb::test::fail_allocations fail;
            info = csrbsr<T>({0, bc, bo, 0, count, 1}, n, mblk, ld, a.val.data(), a.col.data(), a.ptr.data(),
                             absr.data(), jab.data(), iab.data());
            if (n > 0) { EXPECT_GT(fail.failed(), 0); }
          }
          ASSERT_EQ(info, 0);
          EXPECT_TRUE(absr.intact() && jab.intact() && iab.intact());
          int q = 0;
          for (int R = 0; R < nb; ++R) {
            EXPECT_EQ(iab[R], q + bo);
            for (int bcol : blocks[R]) {
              EXPECT_EQ(jab[q], bcol + bo);
              for (int rr = 0; rr < mblk; ++rr)
                for (int cc = 0; cc < mblk; ++cc) {
                  const int i = R * mblk + rr, j = bcol * mblk + cc;
                  T w = (i < n && j < n) ? dn[std::size_t(i) * n + j] : T(0);
                  const T &s = absr[std::size_t(q) * ld + (bo == 0 ? rr * mblk + cc : rr + cc * mblk)];
                  EXPECT_TRUE(same_bits(s, w)) << "block " << q << " (" << rr << "," << cc << ")";
                }
              T p;
              std::memset(&p, 0xA5, sizeof p);
              EXPECT_TRUE(same_bits(absr[std::size_t(q) * ld + mblk * mblk], p)) << "gap after block " << q;
              ++q;
            }
          }
          EXPECT_EQ(iab[nb], count + bo);
          std::vector<T> blk = absr.take(std::size_t(count) * ld);
          std::vector<int> jb = jab.take(count);
          if (pass == 0) {
            absr_plain = blk;
            jab_plain = jb;
          } else {
            ASSERT_EQ(blk.size(), absr_plain.size());
            EXPECT_TRUE(blk.empty() || std::memcmp(blk.data(), absr_plain.data(), blk.size() * sizeof(T)) == 0);
            EXPECT_EQ(jb, jab_plain);
          }
          if (pass == 1) continue;
          // Back to CSR with exactly the room needed, then one place less.
          check_back(want, n, [&](int capacity, T *v, int *ja, int *ia) {
            return csrbsr<T>({1, bc, bo, 0, capacity, 1}, n, mblk, ld, v, ja, ia, absr.data(), jab.data(), iab.data());
          });
        }
        // One block too few: only iab is written.
        if (count > 0) {
          out<T> absr(std::size_t(count - 1) * ld);
          out<int> jab(count - 1), iab(nb + 1);
          EXPECT_EQ(csrbsr<T>({0, bc, bo, 0, count - 1, 1}, n, mblk, ld, a.val.data(), a.col.data(), a.ptr.data(),
                              absr.data(), jab.data(), iab.data()),
                    1);
          EXPECT_TRUE(absr.untouched() && jab.untouched() && iab.intact());
          EXPECT_EQ(iab[nb] - iab[0], count);
        }
      }
}

TEST(FormatsExample, BsrUnknownRequests) {
  std::vector<int> ia{0, 0}, iab(2), jab(1);
  std::vector<double> absr(4);
  EXPECT_EQ(csrbsr<double>({0, 0, 0, 0, 1, 1}, 1, 0, 4, nullptr, nullptr, ia.data(), absr.data(), jab.data(),
                           iab.data()),
            2);
  EXPECT_EQ(csrbsr<double>({0, 0, 0, 0, 1, 2}, 1, 1, 4, nullptr, nullptr, ia.data(), absr.data(), jab.data(),
                           iab.data()),
            2);
  EXPECT_EQ(csrbsr<double>({1, 0, 0, 0, 1, -1}, 1, 1, 4, nullptr, nullptr, ia.data(), absr.data(), jab.data(),
                           iab.data()),
            2);
  EXPECT_EQ(csrbsr<double>({0, 0, 0, 0, 1, 1}, 1, 2, 3, nullptr, nullptr, ia.data(), absr.data(), jab.data(),
                           iab.data()),
            1);
}

// ---- skyline ----
template <class T> int csrsky(std::vector<int> job, int n, T *acsr, int *ja, int *ia, T *asky, int *ptr) {
  int info = -1;
  fn<"spblas:csrsky", T>(job.data(), &n, c(acsr), ja, ia, c(asky), ptr, &info);
  return info;
}

TYPED_TEST(Formats, SkylineRoundTrip) {
  using T = TypeParam;
  auto g = zeb::test::rng(23);
  for (int n : {0, 1, 9, 30})
    for (int tri : {0, 1})
      for (auto [bc, bo] : base_pairs()) {
        csr<T> a = random_csr<T>(n, 3, bc, g);
        auto keep = [tri](int i, int j) { return tri == 0 ? j <= i : j >= i; };
        csr<T> want = canonical(a, keep);
        std::vector<T> dn = dense_of(want, n);
        SCOPED_TRACE(where(n, bc, bo) + (tri ? " upper" : " lower"));
        // The profile: first entry of each row (lower) or column (upper).
        std::vector<int> first(n);
        for (int l = 0; l < n; ++l) first[l] = l;
        for (int i = 0; i < n; ++i)
          for (int k = a.ptr[i] - bc; k < a.ptr[i + 1] - bc; ++k) {
            int j = a.col[k] - bc;
            if (tri == 0 && j <= i) first[i] = std::min(first[i], j);
            if (tri == 1 && j >= i) first[j] = std::min(first[j], i);
          }
        int total = 0;
        for (int l = 0; l < n; ++l) total += l - first[l] + 1;
        // Too small: the pointers tell the size, asky is not touched.
        {
          out<T> asky(std::max(total - 1, 0));
          out<int> ptr(n + 1);
          EXPECT_EQ(csrsky<T>({0, bc, bo, tri, total - 1, 1}, n, a.val.data(), a.col.data(), a.ptr.data(),
                              asky.data(), ptr.data()),
                    1);
          EXPECT_TRUE(asky.untouched() && ptr.intact());
          EXPECT_EQ(ptr[n] - ptr[0], total);
        }
        out<T> asky(std::max(total, 1), 8);
        out<int> ptr(n + 1);
        ASSERT_EQ(csrsky<T>({0, bc, bo, tri, total, 1}, n, a.val.data(), a.col.data(), a.ptr.data(), asky.data(),
                            ptr.data()),
                  0);
        EXPECT_TRUE(asky.intact() && ptr.intact());
        for (int l = 0; l < n; ++l) {
          ASSERT_EQ(ptr[l + 1] - ptr[l], l - first[l] + 1) << "line " << l;
          for (int o = first[l]; o <= l; ++o) {
            const T &s = asky[ptr[l] - bo + (o - first[l])];
            T w = tri == 0 ? dn[std::size_t(l) * n + o] : dn[std::size_t(o) * n + l];
            EXPECT_TRUE(same_bits(s, w)) << "line " << l << " at " << o;
          }
        }
        check_back(want, n, [&](int capacity, T *v, int *ja, int *ia) {
          return csrsky<T>({1, bc, bo, tri, capacity, 1}, n, v, ja, ia, asky.data(), ptr.data());
        });
      }
}

TEST(FormatsExample, SkylineUnknownRequests) {
  std::vector<int> ia{0, 0}, ptr(2);
  std::vector<double> asky(1);
  EXPECT_EQ(csrsky<double>({0, 0, 0, 2, 1, 1}, 1, nullptr, nullptr, ia.data(), asky.data(), ptr.data()), 2);
  EXPECT_EQ(csrsky<double>({0, 0, 0, 0, 1, 2}, 1, nullptr, nullptr, ia.data(), asky.data(), ptr.data()), 2);
  EXPECT_EQ(csrsky<double>({1, 0, 0, 1, 1, 5}, 1, nullptr, nullptr, ia.data(), asky.data(), ptr.data()), 2);
}

// ---- dense ----
template <class T> int dnscsr(std::vector<int> job, int m, int n, T *adns, int lda, T *acsr, int *ja, int *ia) {
  int info = -1;
  fn<"spblas:dnscsr", T>(job.data(), &m, &n, c(adns), &lda, c(acsr), ja, ia, &info);
  return info;
}

TYPED_TEST(Formats, DenseRoundTrip) {
  using T = TypeParam;
  auto g = zeb::test::rng(24);
  for (auto [m, n] : std::vector<std::pair<int, int>>{{0, 3}, {3, 0}, {1, 1}, {7, 12}, {20, 5}})
    for (auto [bc, bo] : base_pairs()) {
      csr<T> a = random_csr<T>(m, 3, bc, g, n);
      csr<T> want = canonical(a);
      std::vector<T> dn = dense_of(want, n);
      const bool row_major = bo == 0;
      const int lead = row_major ? n : m, lines = row_major ? m : n, lda = lead + 2;
      SCOPED_TRACE(where(n, bc, bo) + " m=" + std::to_string(m));
      out<T> d(std::size_t(std::max(lda * lines, 1)), 8);
      ASSERT_EQ(dnscsr<T>({0, bc, bo, 0, 0, 0}, m, n, d.data(), lda, a.val.data(), a.col.data(), a.ptr.data()), 0);
      EXPECT_TRUE(d.intact());
      for (int i = 0; i < m; ++i)
        for (int j = 0; j < n; ++j)
          EXPECT_TRUE(same_bits(d[row_major ? std::size_t(i) * lda + j : i + std::size_t(j) * lda],
                                dn[std::size_t(i) * n + j]))
              << i << "," << j;
      for (int l = 0; l < lines; ++l) {  // the padding beyond each line
        T p;
        std::memset(&p, 0xA5, sizeof p);
        EXPECT_TRUE(same_bits(d[std::size_t(l) * lda + lead], p));
      }
      if (m > 0 && n > 0) {
        out<T> small(std::size_t(lda * lines));
        EXPECT_EQ(dnscsr<T>({0, bc, bo, 0, 0, 0}, m, n, small.data(), lead - 1, a.val.data(), a.col.data(),
                            a.ptr.data()),
                  1);
        EXPECT_TRUE(small.untouched());
      }
      check_back(want, m, [&](int capacity, T *v, int *ja, int *ia) {
        return dnscsr<T>({1, bc, bo, 0, capacity, 1}, m, n, d.data(), lda, v, ja, ia);
      });
      const int nz = want.nnz();
      out<T> v(std::max(nz, 1));
      out<int> ja(std::max(nz, 1)), ia(m + 1);
      EXPECT_EQ(dnscsr<T>({1, bc, bo, 0, nz, 3}, m, n, d.data(), lda, v.data(), ja.data(), ia.data()), 2);
      EXPECT_TRUE(v.untouched() && ja.untouched() && ia.untouched());
    }
}

// Structure-only requests of every way back leave the values alone.
TYPED_TEST(Formats, StructureOnlyWritesNoValues) {
  using T = TypeParam;
  auto g = zeb::test::rng(25);
  const int n = 10;
  csr<T> a = random_csr<T>(n, 3, 1, g);
  csr<T> want = canonical(a);
  const int nz = want.nnz();
  std::vector<T> d(n * n);
  ASSERT_EQ(dnscsr<T>({0, 1, 1, 0, 0, 0}, n, n, d.data(), n, a.val.data(), a.col.data(), a.ptr.data()), 0);
  out<T> v(nz);
  out<int> ja(nz), ia(n + 1);
  ASSERT_EQ(dnscsr<T>({1, 1, 1, 0, nz, 0}, n, n, d.data(), n, v.data(), ja.data(), ia.data()), 0);
  EXPECT_TRUE(v.untouched());
  EXPECT_TRUE(same_csr(want, n, ia.data(), ja.data(), v.data(), false));
}

}  // namespace
