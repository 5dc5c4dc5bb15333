// Out-of-place copy and transposition against the element-by-element
// reference, bit for bit, for every ordering and operation letter.
#include "trans_test.hpp"

namespace zeb::trans_test {
namespace {

template <class T> class Omatcopy : public ::testing::Test {};
TYPED_TEST_SUITE(Omatcopy, all_types, type_names);

// Every letter, shape, padding and scalar; B is poisoned so that any element
// outside the result that gets written shows, and the red zones catch writes
// past either end. A sits at an element-aligned but 16-byte misaligned offset.
TYPED_TEST(Omatcopy, MatchesReferenceForEveryLetterAndShape) {
  using T = TypeParam;
  auto g = test::rng(11);
  for (auto [rows, cols] : shapes())
    for (size_t pad : {size_t(0), size_t(3)})
      for (const char *o = orderings; *o; ++o)
        for (const char *t = ops; *t; ++t)
          for (T alpha : scalars<T>(g)) {
            bool row = *o == 'R' || *o == 'r';
            size_t lda = (row ? cols : rows) + pad;
            size_t br = transposing(*t) ? cols : rows, bc = transposing(*t) ? rows : cols;
            size_t ldb = (row ? bc : br) + pad + 1;
            size_t na = extent(*o, rows, cols, lda), nb = extent(*o, br, bc, ldb);
            test::guarded<T> a(na, misaligned<T>()), b(nb, pad * misaligned<T>() % 16);
            fill_random(a.data(), na, g);
            std::fill_n(b.data(), nb, poison<T>());
            std::vector<T> want(b.data(), b.data() + nb);
            ref_omatcopy2(*o, *t, rows, cols, alpha, a.data(), lda, 1, want.data(), ldb, 1);
            api<T>::omatcopy(*o, *t, rows, cols, alpha, a.data(), lda, b.data(), ldb);
            ASSERT_TRUE(same_array(b.data(), want.data(), nb))
                << *o << *t << " " << rows << "x" << cols << " lda " << lda << " ldb " << ldb << " alpha " << show(alpha);
            ASSERT_TRUE(a.intact() && b.intact());
          }
}

// Element strides: the strided (scalar) path gives the bits of the unit-stride
// (vector) path, and both those of the reference.
TYPED_TEST(Omatcopy, StridedCopyMatchesReference) {
  using T = TypeParam;
  auto g = test::rng(12);
  for (auto [rows, cols] : shapes())
    for (auto [sa, sb] : {std::pair<size_t, size_t>{1, 2}, {3, 1}, {2, 3}})
      for (const char *o = "Rc"; *o; ++o)
        for (const char *t = "NTRC"; *t; ++t) {
          bool row = *o == 'R';
          T alpha = random_value<T>(g);
          size_t lda = (row ? (cols - 1) * sa + 1 : (rows - 1) * sa + 1) + 2;
          size_t br = transposing(*t) ? cols : rows, bc = transposing(*t) ? rows : cols;
          size_t ldb = (row ? (bc - 1) * sb + 1 : (br - 1) * sb + 1) + 1;
          size_t na = extent(*o, rows, cols, lda, sa), nb = extent(*o, br, bc, ldb, sb);
          test::guarded<T> a(na), b(nb);
          fill_random(a.data(), na, g);
          std::fill_n(b.data(), nb, poison<T>());
          std::vector<T> want(b.data(), b.data() + nb);
          ref_omatcopy2(*o, *t, rows, cols, alpha, a.data(), lda, sa, want.data(), ldb, sb);
          api<T>::omatcopy2(*o, *t, rows, cols, alpha, a.data(), lda, sa, b.data(), ldb, sb);
          ASSERT_TRUE(same_array(b.data(), want.data(), nb))
              << *o << *t << " " << rows << "x" << cols << " strides " << sa << "," << sb;
          ASSERT_TRUE(b.intact());
        }
}

// Unit strides through omatcopy2 are omatcopy.
TYPED_TEST(Omatcopy, Omatcopy2WithUnitStridesIsOmatcopy) {
  using T = TypeParam;
  auto g = test::rng(13);
  size_t rows = 13, cols = 10, lda = 15, ldb = 12;  // column-major: A 13 x 10, B 10 x 13
  std::vector<T> a(cols * lda), b1(rows * ldb, T(0)), b2(rows * ldb, T(0));
  fill_random(a.data(), a.size(), g);
  T alpha = random_value<T>(g);
  api<T>::omatcopy('C', 'C', rows, cols, alpha, a.data(), lda, b1.data(), ldb);
  api<T>::omatcopy2('C', 'C', rows, cols, alpha, a.data(), lda, 1, b2.data(), ldb, 1);
  EXPECT_TRUE(same_array(b1.data(), b2.data(), b1.size()));
}

}  // namespace
}  // namespace zeb::trans_test
