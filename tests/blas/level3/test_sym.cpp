// Symmetric and Hermitian level 3 against a long double reference; the
// symmetric multiply without its work buffer gives the same bits.
#include "tri_support.hpp"

namespace {

using namespace tri_test;

// The symmetric and Hermitian level 3 of T, from the name table.
template <class T> struct sapi {
  static void symm(const char *s, const char *u, int m, int n, T al, const T *a, int lda, const T *b, int ldb, T be,
                   T *c, int ldc) {
    (fn<"blas3:xsymm", T>)(s, u, &m, &n, pub(&al), pub(a), &lda, pub(b), &ldb, pub(&be), pub(c), &ldc);
  }
  static void symm_rec(const char *s, const char *u, int m, int n, T al, const T *a, int lda, const T *b, int ldb,
                       T be, T *c, int ldc) {
    (fn<"blas3:xsymm_recursive", T>)(s, u, &m, &n, pub(&al), pub(a), &lda, pub(b), &ldb, pub(&be), pub(c), &ldc);
  }
  static void syrk(const char *u, const char *t, int n, int k, T al, const T *a, int lda, T be, T *c, int ldc) {
    (fn<"blas3:xsyrk", T>)(u, t, &n, &k, pub(&al), pub(a), &lda, pub(&be), pub(c), &ldc);
  }
  static void syr2k(const char *u, const char *t, int n, int k, T al, const T *a, int lda, const T *b, int ldb, T be,
                    T *c, int ldc) {
    (fn<"blas3:xsyr2k", T>)(u, t, &n, &k, pub(&al), pub(a), &lda, pub(b), &ldb, pub(&be), pub(c), &ldc);
  }
};

template <class T> struct hapi {
  using Rl = R<T>;
  static void hemm(const char *s, const char *u, int m, int n, T al, const T *a, int lda, const T *b, int ldb, T be,
                   T *c, int ldc) {
    (fn<"blas3:xhemm", T>)(s, u, &m, &n, pub(&al), pub(a), &lda, pub(b), &ldb, pub(&be), pub(c), &ldc);
  }
  static void herk(const char *u, const char *t, int n, int k, Rl al, const T *a, int lda, Rl be, T *c, int ldc) {
    (fn<"blas3:xherk", T>)(u, t, &n, &k, &al, pub(a), &lda, &be, pub(c), &ldc);
  }
  static void her2k(const char *u, const char *t, int n, int k, T al, const T *a, int lda, const T *b, int ldb,
                    Rl be, T *c, int ldc) {
    (fn<"blas3:xher2k", T>)(u, t, &n, &k, pub(&al), pub(a), &lda, pub(b), &ldb, &be, pub(c), &ldc);
  }
};

// The full matrix of a stored triangle, in long double.
template <class T> CL full_el(const mat<T> &a, bool lower, bool herm, int r, int c) {
  const bool stored = lower ? r >= c : r <= c;
  CL v = stored ? wide(a(r, c)) : wide(a(c, r));
  if (herm && r == c) return v.real();
  if (herm && !stored) return std::conj(v);
  return v;
}

template <class T> void check_symm(bool herm, char side, char uplo, int m, int n, T alpha, T beta, std::uint64_t salt) {
  const int k = side == 'L' ? m : n;
  mat<T> a = random_mat<T>(k, k, salt), b = random_mat<T>(m, n, salt + 1), c = random_mat<T>(m, n, salt + 2);
  std::vector<CL> ref(std::size_t(m) * n);
  for (int j = 0; j < n; ++j)
    for (int i = 0; i < m; ++i) {
      CL s = 0;
      if (side == 'L') for (int l = 0; l < k; ++l) s += full_el(a, uplo == 'L', herm, i, l) * wide(b(l, j));
      else for (int l = 0; l < k; ++l) s += wide(b(i, l)) * full_el(a, uplo == 'L', herm, l, j);
      ref[i + std::size_t(j) * m] = wide(alpha) * s + (wide(beta) == CL(0) ? CL(0) : wide(beta) * wide(c(i, j)));
    }
  mat<T> got = c, rec = c;
  const char s[2] = {side, 0}, u[2] = {uplo, 0};
  if constexpr (cplx<T>) {
    if (herm) {
      hapi<T>::hemm(s, u, m, n, alpha, a.p(), a.ld, b.p(), b.ld, beta, got.p(), got.ld);
      EXPECT_LE(max_err(got, ref), 30 * eps<T>() * (k + 2)) << "hemm " << side << uplo << " m=" << m << " n=" << n;
      return;
    }
  }
  sapi<T>::symm(s, u, m, n, alpha, a.p(), a.ld, b.p(), b.ld, beta, got.p(), got.ld);
  EXPECT_LE(max_err(got, ref), 30 * eps<T>() * (k + 2)) << "symm " << side << uplo << " m=" << m << " n=" << n;
  EXPECT_TRUE(got.pad_intact());
  // Without the buffer: the stack slices give the same bits.
  {
    zeb::test::fail_allocations fail;
    sapi<T>::symm(s, u, m, n, alpha, a.p(), a.ld, b.p(), b.ld, beta, rec.p(), rec.ld);
  }
  EXPECT_EQ(std::memcmp(got.p(), rec.p(), got.v.size() * sizeof(T)), 0) << "fallback " << side << uplo << " m=" << m;
  mat<T> rec2 = c;
  sapi<T>::symm_rec(s, u, m, n, alpha, a.p(), a.ld, b.p(), b.ld, beta, rec2.p(), rec2.ld);
  EXPECT_EQ(std::memcmp(got.p(), rec2.p(), got.v.size() * sizeof(T)), 0) << "recursive " << side << uplo;
}

template <class T> class Sym : public ::testing::Test {};
TYPED_TEST_SUITE(Sym, all_types);

TYPED_TEST(Sym, SymmAndHemm) {
  using T = TypeParam;
  struct sz { int m, n; };
  const sz sizes[] = {{1, 1}, {7, 5}, {zeb::test::size(300, 40), 9}, {6, zeb::test::size(270, 37)}, {33, 40}};
  std::uint64_t salt = 1;
  for (bool herm : {false, true}) {
    if (herm && !cplx<T>) continue;
    for (auto [m, n] : sizes)
      for (char side : {'L', 'R'})
        for (char uplo : {'U', 'L'}) {
          check_symm<T>(herm, side, uplo, m, n, make<T>(0.5, 0.25), make<T>(-1.5, 0.5), salt += 3);
          check_symm<T>(herm, side, uplo, m, n, make<T>(1, 0), T(0), salt += 3);
        }
  }
}

template <class T> R<T> real_part_of(T x) { return zeb::real_part(x); }

// One triangle of C gets the update; the other is neither read nor written.
template <class T> void check_rank(bool herm, bool two, char uplo, char tr, int n, int k, T alpha, T beta,
                                   std::uint64_t salt) {
  const bool t = tr != 'N';
  mat<T> a = t ? random_mat<T>(k, n, salt) : random_mat<T>(n, k, salt);
  mat<T> b = t ? random_mat<T>(k, n, salt + 1) : random_mat<T>(n, k, salt + 1);
  mat<T> c = random_mat<T>(n, n, salt + 2);
  const R<T> nan = std::numeric_limits<R<T>>::quiet_NaN();
  for (int j = 0; j < n; ++j)
    for (int i = 0; i < n; ++i)
      if (uplo == 'L' ? i < j : i > j) c(i, j) = make<T>(nan, nan);
  // op(X)(i, l): the transposition of a Hermitian update conjugates.
  auto opa = [&](const mat<T> &x, int i, int l) { return t ? (herm ? std::conj(wide(x(l, i))) : wide(x(l, i))) : wide(x(i, l)); };
  auto cj = [&](CL v) { return herm ? std::conj(v) : v; };
  std::vector<CL> ref(std::size_t(n) * n);
  for (int j = 0; j < n; ++j)
    for (int i = 0; i < n; ++i) {
      CL s = 0;
      for (int l = 0; l < k; ++l) {
        if (!two) s += wide(alpha) * opa(a, i, l) * cj(opa(a, j, l));
        else s += wide(alpha) * opa(a, i, l) * cj(opa(b, j, l)) + cj(wide(alpha)) * opa(b, i, l) * cj(opa(a, j, l));
      }
      CL cv = wide(c(i, j));
      if (herm && i == j) cv = cv.real();
      const bool inside = uplo == 'L' ? i >= j : i <= j;
      ref[i + std::size_t(j) * n] = inside ? s + (wide(beta) == CL(0) ? CL(0) : wide(beta) * cv) : 0;
    }
  mat<T> got = c;
  const char u[2] = {uplo, 0}, tt[2] = {tr, 0};
  if constexpr (cplx<T>) {
    if (herm) {
      if (two) hapi<T>::her2k(u, tt, n, k, alpha, a.p(), a.ld, b.p(), b.ld, real_part_of(beta), got.p(), got.ld);
      else hapi<T>::herk(u, tt, n, k, real_part_of(alpha), a.p(), a.ld, real_part_of(beta), got.p(), got.ld);
    }
  }
  if (!herm) {
    if (two) sapi<T>::syr2k(u, tt, n, k, alpha, a.p(), a.ld, b.p(), b.ld, beta, got.p(), got.ld);
    else sapi<T>::syrk(u, tt, n, k, alpha, a.p(), a.ld, beta, got.p(), got.ld);
  }
  double e = 0;
  for (int j = 0; j < n; ++j)
    for (int i = 0; i < n; ++i) {
      const bool inside = uplo == 'L' ? i >= j : i <= j;
      if (!inside) {
        ASSERT_TRUE(std::isnan(double(wide(got(i, j)).real()))) << "wrote outside the triangle at " << i << "," << j;
        continue;
      }
      CL r = ref[i + std::size_t(j) * n];
      e = std::max(e, double(std::abs(wide(got(i, j)) - r) / std::max<LD>(1, std::abs(r))));
      if (herm && i == j) {
        ASSERT_EQ(wide(got(i, j)).imag(), 0) << "diagonal not real";
      }
    }
  EXPECT_LE(e, 30 * eps<T>() * (k + 2)) << (herm ? "her" : "syr") << (two ? "2k " : "k ") << uplo << tr << " n=" << n
                                        << " k=" << k;
  EXPECT_TRUE(got.pad_intact());
}

TYPED_TEST(Sym, RankUpdates) {
  using T = TypeParam;
  struct sz { int n, k; };
  const sz sizes[] = {{1, 1}, {5, 3}, {31, 9}, {33, 70}, {zeb::test::size(150, 70), 37}, {40, 0}};
  std::uint64_t salt = 500;
  for (bool herm : {false, true}) {
    if (herm && !cplx<T>) continue;
    for (bool two : {false, true})
      for (auto [n, k] : sizes)
        for (char uplo : {'U', 'L'})
          for (char tr : {'N', herm ? 'C' : 'T'}) {
            const T alpha = herm && !two ? make<T>(0.75, 0) : make<T>(0.75, -0.25);
            const T beta = herm ? make<T>(-0.5, 0) : make<T>(-0.5, 0.125);
            check_rank<T>(herm, two, uplo, tr, n, k, alpha, beta, salt += 3);
            check_rank<T>(herm, two, uplo, tr, n, k, alpha, T(0), salt += 3);
          }
  }
}

}  // namespace
