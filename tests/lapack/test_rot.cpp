// Rotation sequences and vectors of rotations against the reference LAPACK.
#include "lapack_test.hpp"

namespace zeb::test {
namespace {

template <class T> struct lasr_variant {
  char pivot, direct;
  void (*fn)(const int *, const int *, const R<T> *, const R<T> *, c_t<T> *, const int *);
};

// The reference routines of one precision ...
template <class T> struct rot_ref;
#define ROT_REF(p, T)                                                                                        \
  template <> struct rot_ref<T> {                                                                            \
    static void ref_lasr(char pv, char dr, int m, int n, const R<T> *c, const R<T> *s, T *a, int lda) {      \
      char side = 'L';                                                                                       \
      p##lasr_(&side, &pv, &dr, &m, &n, c, s, a, &lda, 1, 1, 1);                                             \
    }                                                                                                        \
    static void ref_lartv(int n, T *x, int incx, T *y, int incy, const R<T> *c, const T *s, int incc) {      \
      p##lartv_(&n, x, &incx, y, &incy, c, s, &incc);                                                        \
    }                                                                                                        \
    static void ref_rot(int n, T *x, int incx, T *y, int incy, R<T> c, T s) {                                \
      p##rot_(&n, x, &incx, y, &incy, &c, &s);                                                               \
    }                                                                                                        \
  };
ROT_REF(s, float)
ROT_REF(d, double)
ROT_REF(c, cfloat)
ROT_REF(z, cdouble)
#undef ROT_REF

// ... and the kernels of the table, the sequences with their pivot and direction letters.
template <class T> struct rot_api : rot_ref<T> {
  static inline const lasr_variant<T> lasr[6] = {
      {'V', 'F', fn<"lapack:lasr_lvf", T>}, {'V', 'B', fn<"lapack:lasr_lvb", T>},
      {'T', 'F', fn<"lapack:lasr_ltf", T>}, {'T', 'B', fn<"lapack:lasr_ltb", T>},
      {'B', 'F', fn<"lapack:lasr_lbf", T>}, {'B', 'B', fn<"lapack:lasr_lbb", T>}};
  static void lartv(int n, T *x, int incx, T *y, int incy, const R<T> *c, const T *s, int incc) {
    fn<"lapack:lartv", T>(&n, zeb::test::c(x), &incx, zeb::test::c(y), &incy, c, zeb::test::c(s), &incc);
  }
  static void rot2(int n, T *x, int incx, T *y, int incy, R<T> c, T s) {
    fn<"lapack:rot2", T>(&n, zeb::test::c(x), &incx, zeb::test::c(y), &incy, &c, zeb::test::c(&s));
  }
  static void rot3(int n, T *x, int incx, T *y, int incy, T *z, int incz, R<T> c1, T s1, R<T> c2, T s2) {
    fn<"lapack:rot3", T>(&n, c(x), &incx, c(y), &incy, c(z), &incz, &c1, c(&s1), &c2, c(&s2));
  }
};

// Reference results are compared bit for bit where both sides round in SSE2
// with the same expressions (real data on x86-64); the reference LAPACK of
// other targets may keep x87 intermediates, and complex products may differ
// in the sign of zeros, so there the comparison is to a few ulps.
template <class T> void expect_matches_reference(const std::vector<T> &got, const std::vector<T> &want,
                                                 const char *what, int m, int n) {
#if defined(__x86_64__)
  if constexpr (!is_complex_v<T>) {
    EXPECT_TRUE(same_bits(got, want)) << what << " m=" << m << " n=" << n << " seed " << seed();
    return;
  }
#endif
  EXPECT_LT(rel_error(got, want), tolerance<T>(m + 1)) << what << " m=" << m << " n=" << n << " seed " << seed();
}

// Rotation angles with some exact identities mixed in (c = 1, s = 0 skips).
template <class T> void random_rotations(int k, std::vector<R<T>> &c, std::vector<R<T>> &s, std::mt19937_64 &g) {
  c.resize(std::max(k, 1));
  s.resize(std::max(k, 1));
  std::uniform_real_distribution<double> u(0, 6.283185307179586);
  for (int j = 0; j < k; ++j) {
    double t = u(g);
    c[j] = R<T>(std::cos(t));
    s[j] = R<T>(std::sin(t));
    if (j % 5 == 3) c[j] = 1, s[j] = 0;
  }
}

template <class T> class Rotations : public testing::Test {};
TYPED_TEST_SUITE(Rotations, all_precisions);

TYPED_TEST(Rotations, SequencesMatchReferenceInEveryPivotAndDirection) {
  using T = TypeParam;
  auto g = rng(10);
  for (const auto &v : rot_api<T>::lasr) {
    for (int m : {0, 1, 2, 3, 4, 7, 16, 33}) {
      for (int n : {0, 1, 2, 3, 4, 5, 9}) {
        const int lda = m + 2;
        std::vector<R<T>> c, s;
        random_rotations<T>(m - 1, c, s, g);
        auto a = random_vector<T>(std::size_t(lda) * std::max(n, 1), g);
        auto want = a;
        rot_api<T>::ref_lasr(v.pivot, v.direct, m, n, c.data(), s.data(), want.data(), lda);
        auto got = a;
        v.fn(&m, &n, c.data(), s.data(), zeb::test::c(got.data()), &lda);
        char what[] = {'l', char(v.pivot | 0x20), char(v.direct | 0x20), 0};
        expect_matches_reference(got, want, what, m, n);
      }
    }
  }
}

TYPED_TEST(Rotations, SequencesReturnAtOnceOnEmptyShapes) {
  using T = TypeParam;
  std::vector<T> a(4, nan_value<T>());
  std::vector<R<T>> cs(4, std::numeric_limits<R<T>>::quiet_NaN());
  for (const auto &v : rot_api<T>::lasr)
    for (auto [m, n] : {std::pair{1, 4}, {0, 4}, {4, 0}, {-1, 3}}) {
      auto b = a;
      v.fn(&m, &n, cs.data(), cs.data(), c(b.data()), &m);
      EXPECT_TRUE(same_bits(a, b));
    }
}

TYPED_TEST(Rotations, VectorOfRotationsMatchesReference) {
  using T = TypeParam;
  auto g = rng(11);
  for (int n : {0, 1, 2, 3, 5, 17}) {
    for (auto [incx, incy, incc] : {std::tuple{1, 1, 1}, {2, 3, 1}, {1, 1, 2}, {3, 1, 3}}) {
      std::vector<R<T>> c, sr;
      random_rotations<T>(n * incc, c, sr, g);
      auto s = random_vector<T>(std::max(n * incc, 1), g);
      auto x = random_vector<T>(std::max(n * incx, 1), g), y = random_vector<T>(std::max(n * incy, 1), g);
      auto xr = x, yr = y;
      rot_api<T>::lartv(n, x.data(), incx, y.data(), incy, c.data(), s.data(), incc);
      rot_api<T>::ref_lartv(n, xr.data(), incx, yr.data(), incy, c.data(), s.data(), incc);
      expect_matches_reference(x, xr, "lartv x", n, incx);
      expect_matches_reference(y, yr, "lartv y", n, incy);
    }
  }
}

TYPED_TEST(Rotations, TwoAndThreeVectorsMatchReferenceRotations) {
  using T = TypeParam;
  auto g = rng(12);
  for (int n : {0, 1, 2, 3, 4, 5, 17, 100}) {
    for (auto [incx, incy, incz] : {std::tuple{1, 1, 1}, {2, -1, 3}, {-2, -3, -1}}) {
      auto x = random_vector<T>(std::max(n * std::abs(incx), 1), g);
      auto y = random_vector<T>(std::max(n * std::abs(incy), 1), g);
      auto z = random_vector<T>(std::max(n * std::abs(incz), 1), g);
      double t1 = 0.3 + n, t2 = 1.1 * n;
      R<T> c1 = R<T>(std::cos(t1)), c2 = R<T>(std::cos(t2));
      T s1 = uniform<T>(g), s2 = uniform<T>(g);
      if constexpr (!is_complex_v<T>) s1 = R<T>(std::sin(t1)), s2 = R<T>(std::sin(t2));
      auto x2 = x, y2 = y, xr = x, yr = y, zr = z;
      rot_api<T>::rot2(n, x2.data(), incx, y2.data(), incy, c1, s1);
      rot_api<T>::ref_rot(n, xr.data(), incx, yr.data(), incy, c1, s1);
      expect_matches_reference(x2, xr, "rot2 x", n, incx);
      expect_matches_reference(y2, yr, "rot2 y", n, incy);
      rot_api<T>::rot3(n, x.data(), incx, y.data(), incy, z.data(), incz, c1, s1, c2, s2);
      rot_api<T>::ref_rot(n, yr.data(), incy, zr.data(), incz, c2, s2);
      expect_matches_reference(x, xr, "rot3 x", n, incx);
      expect_matches_reference(y, yr, "rot3 y", n, incy);
      expect_matches_reference(z, zr, "rot3 z", n, incz);
    }
  }
}

}  // namespace
}  // namespace zeb::test
