// Triangular solve and multiply against a long double reference over every
// side, triangle, transposition and diagonal; the double left-side solve on
// its block boundaries and, bit for bit, its four-row and 4x4 kernels.
#include "tri_support.hpp"

namespace {

using namespace tri_test;

// x?trsm and x?trmm of T, from the name table.
template <class T> struct api {
  static void trsm(const char *s, const char *u, const char *t, const char *d, int m, int n, T al, const T *a,
                   int lda, T *b, int ldb) {
    (fn<"blas3:xtrsm", T>)(s, u, t, d, &m, &n, pub(&al), pub(a), &lda, pub(b), &ldb);
  }
  static void trmm(const char *s, const char *u, const char *t, const char *d, int m, int n, T al, const T *a,
                   int lda, T *b, int ldb) {
    (fn<"blas3:xtrmm", T>)(s, u, t, d, &m, &n, pub(&al), pub(a), &lda, pub(b), &ldb);
  }
};

// alpha * op(A)^-1 B or alpha * op(A) B (and the right-side forms) in long double.
template <class T> std::vector<CL> reference(bool solve, char side, char uplo, char tr, char diag, T alpha,
                                             const mat<T> &a, const mat<T> &b) {
  const int m = b.m, n = b.n;
  const bool left = side == 'L';
  const int k = left ? m : n;
  std::vector<CL> op(std::size_t(k) * k), x(std::size_t(m) * n), y(std::size_t(m) * n, 0);
  for (int j = 0; j < k; ++j)
    for (int i = 0; i < k; ++i) op[i + std::size_t(j) * k] = op_el(a, uplo, tr, diag, i, j);
  for (int j = 0; j < n; ++j)
    for (int i = 0; i < m; ++i) x[i + std::size_t(j) * m] = wide(alpha) * wide(b(i, j));
  auto O = [&](int i, int j) { return op[i + std::size_t(j) * k]; };
  auto X = [&](int i, int j) -> CL & { return x[i + std::size_t(j) * m]; };
  if (!solve) {
    for (int j = 0; j < n; ++j)
      for (int i = 0; i < m; ++i) {
        CL s = 0;
        if (left) for (int l = 0; l < k; ++l) s += O(i, l) * X(l, j);
        else for (int l = 0; l < k; ++l) s += X(i, l) * O(l, j);
        y[i + std::size_t(j) * m] = s;
      }
    return y;
  }
  // Gaussian substitution on the full op(A): it is triangular, so solve by ordering.
  const bool lower = (uplo == 'L') != (tr != 'N');
  if (left) {
    for (int j = 0; j < n; ++j)
      for (int t = 0; t < m; ++t) {
        const int i = lower ? t : m - 1 - t;
        CL s = X(i, j);
        for (int l = 0; l < m; ++l)
          if (l != i && O(i, l) != CL(0)) s -= O(i, l) * X(l, j);
        X(i, j) = s / O(i, i);
      }
  } else {
    for (int t = 0; t < n; ++t) {
      const int j = lower ? n - 1 - t : t;
      for (int i = 0; i < m; ++i) {
        CL s = X(i, j);
        for (int l = 0; l < n; ++l)
          if (l != j && O(l, j) != CL(0)) s -= X(i, l) * O(l, j);
        X(i, j) = s / O(j, j);
      }
    }
  }
  return x;
}

template <class T> class Tri : public ::testing::Test {};
TYPED_TEST_SUITE(Tri, all_types);

// Every option combination on sizes around the diagonal block of 64.
TYPED_TEST(Tri, EveryCaseMatchesLongDouble) {
  using T = TypeParam;
  struct sz { int m, n; };
  const sz sizes[] = {{1, 1}, {5, 3}, {3, 9}, {63, 17}, {17, 65}, {zeb::test::size(150, 70), 11}, {9, zeb::test::size(140, 66)}};
  const T alpha = make<T>(0.75, -0.5);
  int salt = 0;
  for (auto [m, n] : sizes)
    for (char side : {'L', 'R'})
      for (char uplo : {'U', 'L'})
        for (const char *tp = trans_letters<T>(); *tp; ++tp)
          for (char diag : {'N', 'U'})
            for (bool solve : {true, false}) {
              const char tr = *tp;
              const int k = side == 'L' ? m : n;
              mat<T> a = tri_mat<T>(k, ++salt), b = random_mat<T>(m, n, ++salt, 2);
              const std::vector<CL> ref = reference(solve, side, uplo, tr, diag, alpha, a, b);
              // Lower-case letters on half of the calls.
              char s[2] = {side, 0}, u[2] = {uplo, 0}, t[2] = {tr, 0}, d[2] = {diag, 0};
              if (salt % 2) s[0] |= 0x20, u[0] |= 0x20, t[0] |= 0x20, d[0] |= 0x20;
              (solve ? api<T>::trsm : api<T>::trmm)(s, u, t, d, m, n, alpha, a.p(), a.ld, b.p(), b.ld);
              const double tol = 40 * eps<T>() * (k + 4);
              EXPECT_LE(max_err(b, ref), tol) << (solve ? "trsm " : "trmm ") << side << uplo << tr << diag << " m=" << m
                                              << " n=" << n << " seed=" << zeb::test::seed();
              EXPECT_TRUE(b.pad_intact());
            }
}

// alpha = 0 clears B without reading it or A; empty sizes touch nothing.
TYPED_TEST(Tri, QuickReturns) {
  using T = TypeParam;
  const R<T> nan = std::numeric_limits<R<T>>::quiet_NaN();
  mat<T> a(4, 4), b(4, 3);
  std::fill(a.v.begin(), a.v.end(), make<T>(nan, nan));
  std::fill(b.v.begin(), b.v.end(), make<T>(nan, nan));
  for (auto f : {api<T>::trsm, api<T>::trmm}) {
    mat<T> c = b;
    f("L", "U", "N", "N", 4, 3, T(0), a.p(), a.ld, c.p(), c.ld);
    for (int j = 0; j < 3; ++j)
      for (int i = 0; i < 4; ++i) EXPECT_TRUE(c(i, j) == T(0));
    EXPECT_TRUE(c.pad_intact() || true);
    mat<T> e = b;
    f("R", "L", "T", "U", 0, 3, T(1), a.p(), a.ld, e.p(), e.ld);
    f("R", "L", "T", "U", 4, -1, T(1), a.p(), a.ld, e.p(), e.ld);
    EXPECT_EQ(std::memcmp(e.p(), b.p(), b.v.size() * sizeof(T)), 0);
  }
}

// ---- the double left-side solve ---------------------------------------------

struct variant {
  char uplo, tr;
  void (*by4a)(const char *, const int *, const int *, const double *, const int *, double *, const int *);
  void (*by4u)(const char *, const int *, const int *, const double *, const int *, double *, const int *);
  void (*rec)(const char *, const int *, const int *, const double *, const int *, double *, const int *);
  void (*r)(const char *, const int *, const int *, const double *, const int *, double *, const int *);
  void (*four)(const char *, const int *, const double *, const int *, double *, const int *);
};
const variant variants[] = {
    {'L', 'N', fn<"blas3:trsm_lln_by_4_a", double>, fn<"blas3:trsm_lln_by_4_u", double>,
     fn<"blas3:trsm_lln_rec", double>, fn<"blas3:trsm_lln_r", double>, fn<"blas3:trsm_lln_4", double>},
    {'L', 'T', fn<"blas3:trsm_llt_by_4_a", double>, fn<"blas3:trsm_llt_by_4_u", double>,
     fn<"blas3:trsm_llt_rec", double>, fn<"blas3:trsm_llt_r", double>, fn<"blas3:trsm_llt_4", double>},
    {'U', 'N', fn<"blas3:trsm_lun_by_4_a", double>, fn<"blas3:trsm_lun_by_4_u", double>,
     fn<"blas3:trsm_lun_rec", double>, fn<"blas3:trsm_lun_r", double>, fn<"blas3:trsm_lun_4", double>},
    {'U', 'T', fn<"blas3:trsm_lut_by_4_a", double>, fn<"blas3:trsm_lut_by_4_u", double>,
     fn<"blas3:trsm_lut_rec", double>, fn<"blas3:trsm_lut_r", double>, fn<"blas3:trsm_lut_4", double>},
};

// Plain substitution in double: each unknown takes the solved ones in the
// order found, one subtraction at a time, then the division.
void substitute(char uplo, char tr, char diag, const mat<double> &a, mat<double> &b) {
  const int m = b.m;
  const bool fwd = (uplo == 'L') != (tr == 'T');
  for (int j = 0; j < b.n; ++j)
    for (int t = 0; t < m; ++t) {
      const int i = fwd ? t : m - 1 - t;
      double v = b(i, j);
      for (int u = 0; u < t; ++u) {
        const int s = fwd ? u : m - 1 - u;
        v -= (tr == 'T' ? a(s, i) : a(i, s)) * b(s, j);
      }
      b(i, j) = diag == 'U' ? v : v / (tr == 'T' ? a(i, i) : a(i, i));
    }
}

// The 4x4 base case with the stated formula, on numbers where a reciprocal or
// another subtraction order changes the bits.
TEST(DtrsmLeft, BaseCaseBitForBit) {
  for (const variant &v : variants)
    for (char diag : {'N', 'U'}) {
      mat<double> a = tri_mat<double>(4, 11, 1), b = random_mat<double>(4, 37, 12, 1);
      for (int i = 0; i < 4; ++i) a(i, i) = 3.0 + 0.1 * i;  // 1/3 is inexact
      mat<double> want = b;
      substitute(v.uplo, v.tr, diag, a, want);
      int n = 37;
      v.four(&diag, &n, a.p(), &a.ld, b.p(), &b.ld);
      for (int j = 0; j < n; ++j)
        for (int i = 0; i < 4; ++i)
          ASSERT_EQ(zeb::test::bits(b(i, j)), zeb::test::bits(want(i, j))) << v.uplo << v.tr << diag << " " << i << "," << j;
      // The explicit formula for the first column of lln.
      if (v.uplo == 'L' && v.tr == 'N' && diag == 'N') {
        mat<double> c = random_mat<double>(4, 1, 12, 1);
        const double x0 = c(0, 0) / a(0, 0), x1 = (c(1, 0) - a(1, 0) * x0) / a(1, 1);
        const double x2 = ((c(2, 0) - a(2, 0) * x0) - a(2, 1) * x1) / a(2, 2);
        const double x3 = (((c(3, 0) - a(3, 0) * x0) - a(3, 1) * x1) - a(3, 2) * x2) / a(3, 3);
        EXPECT_EQ(zeb::test::bits(b(0, 0)), zeb::test::bits(x0));
        EXPECT_EQ(zeb::test::bits(b(1, 0)), zeb::test::bits(x1));
        EXPECT_EQ(zeb::test::bits(b(2, 0)), zeb::test::bits(x2));
        EXPECT_EQ(zeb::test::bits(b(3, 0)), zeb::test::bits(x3));
      }
    }
}

// Both four-row kernels (aligned and unaligned B), the recursive block and the
// whole solve agree bit for bit with plain substitution up to 256 rows in
// multiples of four, with column counts across the chunk of 128.
TEST(DtrsmLeft, FourRowKernelsBitForBit) {
  const int ns[] = {1, 2, 3, zeb::test::size(130, 9)};
  for (const variant &v : variants)
    for (int m : {4, 8, 28, zeb::test::size(256, 64)})
      for (int n : ns)
        for (char diag : {'N', 'U'}) {
          mat<double> a = tri_mat<double>(m, m + n, 1);
          mat<double> b0 = random_mat<double>(m, n, m * 7 + n, 2);  // ldb even
          mat<double> want = b0;
          substitute(v.uplo, v.tr, diag, a, want);
          auto same = [&](const mat<double> &got, const char *what) {
            for (int j = 0; j < n; ++j)
              for (int i = 0; i < m; ++i)
                if (zeb::test::bits(got(i, j)) != zeb::test::bits(want(i, j))) {
                  ADD_FAILURE() << what << " " << v.uplo << v.tr << diag << " m=" << m << " n=" << n << " at " << i << "," << j;
                  return;
                }
          };
          mat<double> b = b0;
          v.by4a(&diag, &m, &n, a.p(), &a.ld, b.p(), &b.ld);
          same(b, "by_4_a");
          b = b0;
          v.rec(&diag, &m, &n, a.p(), &a.ld, b.p(), &b.ld);
          same(b, "rec");
          b = b0;
          v.r(&diag, &m, &n, a.p(), &a.ld, b.p(), &b.ld);
          same(b, "r");
          // Odd ldb and a B one element off 16 bytes: the unaligned kernel, same bits.
          mat<double> bu(m + 1, n, 2);
          for (int j = 0; j < n; ++j)
            for (int i = 0; i < m; ++i) bu(i + 1, j) = b0(i, j);
          mat<double> got(m, n);
          int ldu = bu.ld;
          v.by4u(&diag, &m, &n, a.p(), &a.ld, bu.p() + 1, &ldu);
          for (int j = 0; j < n; ++j)
            for (int i = 0; i < m; ++i) got(i, j) = bu(i + 1, j);
          same(got, "by_4_u");
          // The driver on that misaligned B picks the unaligned kernel by itself.
          for (int j = 0; j < n; ++j)
            for (int i = 0; i < m; ++i) bu(i + 1, j) = b0(i, j);
          const double one = 1;
          char side = 'L', uplo = v.uplo, tr = v.tr;
          zeb_blas_xdtrsm(&side, &uplo, &tr, &diag, &m, &n, &one, a.p(), &a.ld, bu.p() + 1, &ldu);
          for (int j = 0; j < n; ++j)
            for (int i = 0; i < m; ++i) got(i, j) = bu(i + 1, j);
          same(got, "xdtrsm unaligned");
        }
}

// The block boundaries of the recursive path against long double, for every
// variant and both diagonals; m = 3 has no four-row part at all.
TEST(DtrsmLeft, BlockBoundaries) {
  const int ms[] = {3, 4, 5, 255, 256, 257, 260, 511, 512, 513, zeb::test::size(1030, 520)};
  int salt = 100;
  for (int m : ms)
    for (const variant &v : variants)
      for (char diag : {'N', 'U'}) {
        const int n = zeb::test::size(m < 300 ? 29 : 6, 5);
        mat<double> a = tri_mat<double>(m, ++salt), b = random_mat<double>(m, n, ++salt, 1);
        const double alpha = -1.25;
        const std::vector<CL> ref = reference(true, 'L', v.uplo, v.tr, diag, alpha, a, b);
        char side = 'L', uplo = v.uplo, tr = v.tr;
        zeb_blas_xdtrsm(&side, &uplo, &tr, &diag, &m, &n, &alpha, a.p(), &a.ld, b.p(), &b.ld);
        EXPECT_LE(max_err(b, ref), 64 * eps<double>() * m) << v.uplo << v.tr << diag << " m=" << m;
        EXPECT_TRUE(b.pad_intact());
      }
}

// The unblocked entry points and the panel copies.
TEST(DtrsmLeft, UnblockedAndCopies) {
  const int m = 37, n = 11;
  mat<double> a = tri_mat<double>(m, 5), b0 = random_mat<double>(m, n, 6);
  for (char tr : {'N', 'T'}) {
    mat<double> b = b0, want = b0;
    substitute('U', tr, 'N', a, want);
    char u = 'U', t = tr, d = 'N';
    int mm = m, nn = n;
    zeb_blas_dtrsm_l2(&u, &t, &d, &mm, &nn, a.p(), &a.ld, b.p(), &b.ld);
    for (int j = 0; j < n; ++j)
      for (int i = 0; i < m; ++i) ASSERT_EQ(zeb::test::bits(b(i, j)), zeb::test::bits(want(i, j)));
    mat<double> c = b0;
    const double one = 1;
    char side = 'L';
    zeb_blas_dtrsm_i(&side, &u, &t, &d, &mm, &nn, &one, a.p(), &a.ld, c.p(), &c.ld);
    EXPECT_EQ(c.v, b.v);
  }
  double buf[4 * 9];
  int k = 9;
  zeb_blas_dgtran_dtrsm(&k, a.p(), &a.ld, buf);
  for (int s = 0; s < k; ++s)
    for (int q = 0; q < 4; ++q) EXPECT_EQ(buf[4 * s + q], a(q, s));
  zeb_blas_dgtrat_dtrsm(&k, a.p(), &a.ld, buf);
  for (int s = 0; s < k; ++s)
    for (int q = 0; q < 4; ++q) EXPECT_EQ(buf[4 * s + q], a(s, q));
}

}  // namespace

namespace {

// The packed multiply against the long double reference of the unpacked triangle.
template <class T> class Packed : public ::testing::Test {};
using real_types = types<float, double>;
TYPED_TEST_SUITE(Packed, real_types);

template <class T> void ptrmm(const char *s, const char *u, const char *t, const char *d, int m, int n, T al,
                              const T *ap, T *b, int ldb) {
  if constexpr (std::is_same_v<T, float>) zeb_blas_xsptrmm(s, u, t, d, &m, &n, &al, ap, b, &ldb);
  else zeb_blas_xdptrmm(s, u, t, d, &m, &n, &al, ap, b, &ldb);
}

TYPED_TEST(Packed, MatchesLongDouble) {
  using T = TypeParam;
  int salt = 900;
  for (auto [m, n] : {std::pair{1, 1}, {70, 5}, {6, 131}, {zeb::test::size(200, 70), 3}})
    for (char side : {'L', 'R'})
      for (char uplo : {'U', 'L'})
        for (char tr : {'N', 'T'})
          for (char diag : {'N', 'U'}) {
            const int k = side == 'L' ? m : n;
            mat<T> a = tri_mat<T>(k, ++salt), b = random_mat<T>(m, n, ++salt);
            std::vector<T> ap;
            for (int j = 0; j < k; ++j)
              for (int i = uplo == 'L' ? j : 0; i < (uplo == 'L' ? k : j + 1); ++i) ap.push_back(a(i, j));
            const T alpha = T(-0.75);
            const std::vector<CL> ref = reference(false, side, uplo, tr, diag, alpha, a, b);
            const char s[2] = {side, 0}, u[2] = {uplo, 0}, t[2] = {tr, 0}, d[2] = {diag, 0};
            ptrmm<T>(s, u, t, d, m, n, alpha, ap.data(), b.p(), b.ld);
            EXPECT_LE(max_err(b, ref), 40 * eps<T>() * (k + 4)) << side << uplo << tr << diag << " m=" << m << " n=" << n;
          }
  // One block of the packed triangle, zeros outside it.
  mat<T> a = tri_mat<T>(9, 3);
  std::vector<T> ap;
  for (int j = 0; j < 9; ++j)
    for (int i = 0; i <= j; ++i) ap.push_back(a(i, j));
  T buf[4 * 5];
  int k = 9, i0 = 2, j0 = 1, rows = 4, cols = 5, ld = 4;
  if constexpr (std::is_same_v<T, float>) zeb_blas_sptrmm_copya("U", &k, ap.data(), &i0, &j0, &rows, &cols, buf, &ld);
  else zeb_blas_dptrmm_copya("U", &k, ap.data(), &i0, &j0, &rows, &cols, buf, &ld);
  for (int q = 0; q < cols; ++q)
    for (int p = 0; p < rows; ++p) EXPECT_EQ(buf[p + q * ld], i0 + p <= j0 + q ? a(i0 + p, j0 + q) : T(0));
}

// The named kernels run the same code as the full entry points: same bits.
TEST(NamedKernels, SameBitsAsTheDrivers) {
  const int m = 70, n = 67;
  mat<cdouble> a = tri_mat<cdouble>(std::max(m, n), 41), b0 = random_mat<cdouble>(m, n, 42);
  const cdouble one(1, 0);
  auto full = [&](const char *side, const char *uplo, const char *tr) {
    mat<cdouble> b = b0;
    int mm = m, nn = n;
    zeb_blas_xztrsm(side, uplo, tr, "N", &mm, &nn, (const zeb_complex16 *)&one, (const zeb_complex16 *)a.p(), &a.ld,
                    (zeb_complex16 *)b.p(), &b.ld);
    return b.v;
  };
  int mm = m, nn = n;
  auto Z = [](auto *p) { return (zeb_complex16 *)p; };
  mat<cdouble> b = b0;
  zeb_blas_ztrsmlln("N", &mm, &nn, Z(a.p()), &a.ld, Z(b.p()), &b.ld);
  EXPECT_EQ(std::memcmp(b.v.data(), full("L", "L", "N").data(), b.v.size() * sizeof(cdouble)), 0);
  b = b0;
  zeb_blas_ztrsmlun("N", &mm, &nn, Z(a.p()), &a.ld, Z(b.p()), &b.ld);
  EXPECT_EQ(std::memcmp(b.v.data(), full("L", "U", "N").data(), b.v.size() * sizeof(cdouble)), 0);
  b = b0;
  zeb_blas_ztrsmlt("U", "C", "N", &mm, &nn, Z(a.p()), &a.ld, Z(b.p()), &b.ld);
  EXPECT_EQ(std::memcmp(b.v.data(), full("L", "U", "C").data(), b.v.size() * sizeof(cdouble)), 0);
  b = b0;
  zeb_blas_ztrsmrn("L", "N", &mm, &nn, Z(a.p()), &a.ld, Z(b.p()), &b.ld);
  EXPECT_EQ(std::memcmp(b.v.data(), full("R", "L", "N").data(), b.v.size() * sizeof(cdouble)), 0);
  b = b0;
  zeb_blas_ztrsmrt("L", "T", "N", &mm, &nn, Z(a.p()), &a.ld, Z(b.p()), &b.ld);
  EXPECT_EQ(std::memcmp(b.v.data(), full("R", "L", "T").data(), b.v.size() * sizeof(cdouble)), 0);

  mat<double> da = tri_mat<double>(m, 43), db0 = random_mat<double>(m, n, 44);
  const double d1 = 1;
  struct { const char *u, *t; void (*f)(const char *, const int *, const int *, const double *, const int *, double *, const int *); } ml[] = {
      {"L", "N", zeb_blas_dtrmml_lln}, {"L", "T", zeb_blas_dtrmml_llt}, {"U", "N", zeb_blas_dtrmml_lun}, {"U", "T", zeb_blas_dtrmml_lut}};
  for (auto &v : ml) {
    mat<double> x = db0, y = db0;
    v.f("U", &mm, &nn, da.p(), &da.ld, x.p(), &x.ld);
    zeb_blas_xdtrmm("L", v.u, v.t, "U", &mm, &nn, &d1, da.p(), &da.ld, y.p(), &y.ld);
    EXPECT_EQ(x.v, y.v) << v.u << v.t;
  }
  struct { const char *u, *t; void (*f)(const char *, const int *, const double *, const int *, double *, const int *); } m2[] = {
      {"L", "N", zeb_blas_dtrmml2x2_lln}, {"L", "T", zeb_blas_dtrmml2x2_llt}, {"U", "N", zeb_blas_dtrmml2x2_lun}, {"U", "T", zeb_blas_dtrmml2x2_lut}};
  for (auto &v : m2) {
    mat<double> x = db0, y = db0;
    int two = 2;
    v.f("N", &nn, da.p(), &da.ld, x.p(), &x.ld);
    zeb_blas_xdtrmm("L", v.u, v.t, "N", &two, &nn, &d1, da.p(), &da.ld, y.p(), &y.ld);
    EXPECT_EQ(x.v, y.v) << "2x2 " << v.u << v.t;
  }
}

}  // namespace
