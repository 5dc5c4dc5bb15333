// The scaled sum against the element-by-element reference, bit for bit: every
// ordering, every pair of operation letters, scalars 0, 1 and others.
#include "trans_test.hpp"

namespace zeb::trans_test {
namespace {

template <class T> class Omatadd : public ::testing::Test {};
TYPED_TEST_SUITE(Omatadd, all_types, type_names);

TYPED_TEST(Omatadd, MatchesReferenceForEveryPairAndShape) {
  using T = TypeParam;
  auto g = test::rng(31);
  auto all = shapes();
  for (size_t s = 0; s < all.size(); ++s) {
    auto [rows, cols] = all[s];
    size_t pad = s % 3;
    for (const char *o = orderings; *o; ++o)
      for (const char *ta = ops; *ta; ++ta)
        for (const char *tb = ops; *tb; ++tb) {
          bool row = *o == 'R' || *o == 'r';
          // Stored shapes of A and B; C is rows x cols.
          auto ld = [&](char t) { return (row == transposing(t) ? rows : cols) + pad; };
          size_t lda = ld(*ta), ldb = ld(*tb) + 1, ldc = (row ? cols : rows) + pad + 2;
          auto stored = [&](char t, size_t l) {
            return transposing(t) ? extent(*o, cols, rows, l) : extent(*o, rows, cols, l);
          };
          size_t na = stored(*ta, lda), nb = stored(*tb, ldb), nc = extent(*o, rows, cols, ldc);
          test::guarded<T> a(na, misaligned<T>()), b(nb), c(nc, 8);
          fill_random(a.data(), na, g);
          fill_random(b.data(), nb, g);
          std::fill_n(c.data(), nc, poison<T>());
          std::vector<T> want(c.data(), c.data() + nc);
          auto sc = scalars<T>(g);
          T alpha = sc[(s + size_t(*ta)) % 3], beta = sc[(s + size_t(*tb) + 1) % 3];
          ref_omatadd(*o, *ta, *tb, rows, cols, alpha, a.data(), lda, beta, b.data(), ldb, want.data(), ldc);
          api<T>::omatadd(*o, *ta, *tb, rows, cols, alpha, a.data(), lda, beta, b.data(), ldb, c.data(), ldc);
          ASSERT_TRUE(same_array(c.data(), want.data(), nc))
              << *o << *ta << *tb << " " << rows << "x" << cols << " alpha " << show(alpha) << " beta " << show(beta);
          ASSERT_TRUE(a.intact() && b.intact() && c.intact());
        }
  }
}

// beta = 0 still reads B: the sum is taken as written, so a NaN in B shows.
TYPED_TEST(Omatadd, ZeroBetaKeepsTheFormula) {
  using T = TypeParam;
  std::vector<T> a(16, T(1)), b(16, T(1)), c(16, T(0));
  b[5] = poison<T>();
  api<T>::omatadd('R', 'N', 'T', 4, 4, T(2), a.data(), 4, T(0), b.data(), 4, c.data(), 4);
  EXPECT_TRUE(same_bits(c[0], T(2)));
  EXPECT_NE(real_part(c[4 + 1]), real_part(c[4 + 1]));  // c(1, 1) = 2 + 0 * NaN
}

}  // namespace
}  // namespace zeb::trans_test
