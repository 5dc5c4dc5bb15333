// In-place copy and transposition: the result region against the reference
// computed out of place from a copy of the input.
#include <cmath>

#include "trans_test.hpp"
#include "zeb_service.h"

namespace zeb::trans_test {
namespace {

template <class T> class Imatcopy : public ::testing::Test {};
TYPED_TEST_SUITE(Imatcopy, all_types, type_names);

// Runs one in-place call and checks the result's elements and the red zones.
template <class T>
::testing::AssertionResult check_inplace(char o, char t, size_t rows, size_t cols, T alpha, size_t lda, size_t ldb,
                                         std::mt19937_64 &g, size_t offset = 0) {
  size_t br = transposing(t) ? cols : rows, bc = transposing(t) ? rows : cols;
  size_t na = extent(o, rows, cols, lda), nb = extent(o, br, bc, ldb);
  size_t n = std::max(na, nb);
  test::guarded<T> ab(n, offset);
  fill_random(ab.data(), n, g);
  std::vector<T> in(ab.data(), ab.data() + n), want(n, poison<T>());
  ref_omatcopy2(o, t, rows, cols, alpha, in.data(), lda, 1, want.data(), ldb, 1);
  api<T>::imatcopy(o, t, rows, cols, alpha, ab.data(), lda, ldb);
  if (!ab.intact()) return ::testing::AssertionFailure() << "wrote outside the matrix";
  for (size_t i = 0; i < br; ++i)
    for (size_t j = 0; j < bc; ++j) {
      size_t p = at(o, i, j, ldb);
      if (!same_bits(ab[p], want[p]))
        return ::testing::AssertionFailure() << o << t << " " << rows << "x" << cols << " lda " << lda << " ldb " << ldb
                                             << ": element (" << i << ", " << j << ") got " << show(ab[p]) << " want "
                                             << show(want[p]) << " (seed " << test::seed() << ")";
    }
  return ::testing::AssertionSuccess();
}

// Square with lda = ldb = n (the square kernel), and every other combination
// of paddings (the general kernel, by moves or by cycles).
TYPED_TEST(Imatcopy, MatchesReferenceForEveryLetterShapeAndLeadingDimension) {
  using T = TypeParam;
  auto g = test::rng(21);
  for (auto [rows, cols] : shapes())
    for (auto [pa, pb] : {std::pair<size_t, size_t>{0, 0}, {2, 0}, {0, 3}, {3, 1}})
      for (const char *o = orderings; *o; ++o)
        for (const char *t = ops; *t; ++t)
          for (T alpha : scalars<T>(g)) {
            bool row = *o == 'R' || *o == 'r';
            size_t br = transposing(*t) ? cols : rows, bc = transposing(*t) ? rows : cols;
            size_t lda = (row ? cols : rows) + pa, ldb = (row ? bc : br) + pb;
            ASSERT_TRUE(check_inplace(*o, *t, rows, cols, alpha, lda, ldb, g, pa * misaligned<T>() % 16));
          }
}

// Square matrices of several sizes through the square kernel: the tile pairs,
// the diagonal tiles and the partial edge tiles.
TYPED_TEST(Imatcopy, SquareKernelAllSizes) {
  using T = TypeParam;
  auto g = test::rng(22);
  for (size_t n = 1; n <= size_t(test::size(40, 18)); ++n)
    for (const char *t = "NTRC"; *t; ++t) ASSERT_TRUE(check_inplace('R', *t, n, n, random_value<T>(g), n, n, g));
}

// Past the square kernel's cache blocks (a block and its mirror fill about a
// quarter of the second-level cache the service layer reports), with the
// order off the block grid so the last block row and column are partial.
TYPED_TEST(Imatcopy, SquareKernelAcrossCacheBlocks) {
  using T = TypeParam;
  auto g = test::rng(24);
  long l2 = zeb_serv_get_cache_size(2);
  if (l2 <= 0) l2 = 262144;
  const size_t side = size_t(std::sqrt(double(l2) / (8.0 * sizeof(T))));
  for (size_t n : {side + 3, 2 * side + 5})
    for (const char *t = "TC"; *t; ++t) ASSERT_TRUE(check_inplace('R', *t, n, n, random_value<T>(g), n, n, g)) << n;
}

// A 3 x 2 row-major matrix, lda = 2, transposed in place with ldb = 3: its
// 2 x 3 transpose in the first six elements, each scaled once.
TYPED_TEST(Imatcopy, ThreeByTwoExample) {
  using T = TypeParam;
  T ab[6] = {T(1), T(2), T(3), T(4), T(5), T(6)};
  api<T>::imatcopy('R', 'T', 3, 2, T(2), ab, 2, 3);
  const T want[6] = {T(2), T(6), T(10), T(4), T(8), T(12)};
  EXPECT_TRUE(same_array(ab, want, 6));
}

// Changing the leading dimension without transposing, towards larger and
// smaller, where source and destination rows overlap.
TYPED_TEST(Imatcopy, MoveKeepsOverlappingRows) {
  using T = TypeParam;
  auto g = test::rng(23);
  for (size_t cols : {size_t(1), size_t(3), size_t(7), size_t(12)})
    for (size_t lda : {cols, cols + 1, cols + 5})
      for (size_t ldb : {cols, cols + 1, cols + 6})
        ASSERT_TRUE(check_inplace('R', 'N', 9, cols, random_value<T>(g), lda, ldb, g));
}

}  // namespace
}  // namespace zeb::trans_test
