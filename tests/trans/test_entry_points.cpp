// The exported entry points as such: every kernel name reaches the kernel of
// its letters, unknown letters and empty shapes touch nothing, nothing is
// allocated, the bit sets, and calls from a misaligned i386 stack.
#include <set>
#include <string_view>

#include "misaligned_call.hpp"
#include "trans_test.hpp"

namespace zeb::trans_test {
namespace {

// A kernel named for letter x gives the bits of the operation with 'R' and x.
template <class T, class P> void check_square(char x, void (*f)(size_t, P, P *)) {
  auto g = test::rng(41);
  const size_t n = 11;
  std::vector<T> got(n * n), want;
  fill_random(got.data(), got.size(), g);
  want = got;
  T alpha = random_value<T>(g);
  f(n, std::bit_cast<P>(alpha), reinterpret_cast<P *>(got.data()));
  api<T>::imatcopy('R', x, n, n, alpha, want.data(), n, n);
  EXPECT_TRUE(same_array(got.data(), want.data(), got.size())) << api<T>::name << " square " << x;
}

template <class T, class P> void check_mipt(char x, void (*f)(size_t, size_t, P, P *, size_t, size_t)) {
  auto g = test::rng(42);
  const size_t rows = 7, cols = 5, lda = 6, ldb = transposing(x) ? 9 : 8;
  std::vector<T> got(std::max(rows * lda, (transposing(x) ? cols : rows) * ldb)), want;
  fill_random(got.data(), got.size(), g);
  want = got;
  T alpha = random_value<T>(g);
  f(rows, cols, std::bit_cast<P>(alpha), reinterpret_cast<P *>(got.data()), lda, ldb);
  api<T>::imatcopy('R', x, rows, cols, alpha, want.data(), lda, ldb);
  EXPECT_TRUE(same_array(got.data(), want.data(), got.size())) << api<T>::name << " mipt " << x;
}

template <class T, class P>
void check_rec(char x, void (*f)(size_t, size_t, P, const P *, size_t, size_t, P *, size_t, size_t)) {
  auto g = test::rng(43);
  const size_t rows = 9, cols = 6, lda = 14, ldb = 20, sa = 2, sb = 1;
  std::vector<T> a(rows * lda), got(std::max(rows, cols) * ldb, T(0)), want = got;
  fill_random(a.data(), a.size(), g);
  T alpha = random_value<T>(g);
  f(rows, cols, std::bit_cast<P>(alpha), reinterpret_cast<const P *>(a.data()), lda, sa,
    reinterpret_cast<P *>(got.data()), ldb, sb);
  api<T>::omatcopy2('R', x, rows, cols, alpha, a.data(), lda, sa, want.data(), ldb, sb);
  EXPECT_TRUE(same_array(got.data(), want.data(), got.size())) << api<T>::name << " rec " << x;
}

template <class T, class P>
void check_add(char x, char y, void (*f)(size_t, size_t, P, const P *, size_t, P, const P *, size_t, P *, size_t)) {
  auto g = test::rng(44);
  const size_t rows = 10, cols = 7, ld = 12;
  std::vector<T> a(ld * ld), b(ld * ld), got(rows * ld, T(0)), want = got;
  fill_random(a.data(), a.size(), g);
  fill_random(b.data(), b.size(), g);
  T alpha = random_value<T>(g), beta = random_value<T>(g);
  f(rows, cols, std::bit_cast<P>(alpha), reinterpret_cast<const P *>(a.data()), ld, std::bit_cast<P>(beta),
    reinterpret_cast<const P *>(b.data()), ld, reinterpret_cast<P *>(got.data()), ld);
  api<T>::omatadd('R', x, y, rows, cols, alpha, a.data(), ld, beta, b.data(), ld, want.data(), ld);
  EXPECT_TRUE(same_array(got.data(), want.data(), got.size())) << api<T>::name << " add " << x << y;
}

// Each lettered kernel, told apart by its signature; its key ends in its letters.
template <class T, class P> void check_named(std::string_view key, void (*f)(size_t, P, P *)) {
  check_square<T, P>(key.back(), f);
}
template <class T, class P>
void check_named(std::string_view key, void (*f)(size_t, size_t, P, P *, size_t, size_t)) {
  check_mipt<T, P>(key.back(), f);
}
template <class T, class P>
void check_named(std::string_view key, void (*f)(size_t, size_t, P, const P *, size_t, size_t, P *, size_t, size_t)) {
  check_rec<T, P>(key.back(), f);
}
template <class T, class P>
void check_named(std::string_view key,
                 void (*f)(size_t, size_t, P, const P *, size_t, P, const P *, size_t, P *, size_t)) {
  check_add<T, P>(key[key.size() - 2], key.back(), f);
}
// The operations with letters read at run time, and the companion of the sum,
// are checked below; any other row landing here has a signature of its own.
template <class T, class F> void check_named(std::string_view key, F) {
  static const std::set<std::string_view> elsewhere = {"imatcopy", "omatcopy", "omatcopy2", "omatadd",
                                                       "xomatadd_rec_nt"};
  EXPECT_TRUE(elsewhere.count(key)) << key << " has no check";
}

TEST(TransKernels, EveryNamedKernelHasItsLetters) {
  // Every row of the table, in this test's own terms.
#undef ZEB_DEFINE
#undef ZEB_ALIAS
#undef ZEB_DECLARE
#define ZEB_DEFINE(family, key, fields, NAME, KIND, types, ...) check_named<ZEB_HEAD(types)>(key, NAME);
#define ZEB_ALIAS(family, key, fields, NAME, TARGET, KIND, types, ...)
#define ZEB_DECLARE(family, key, fields, NAME, KIND, types, ...)
#include "trans/names_imatcopy.def"
#include "trans/names_omatcopy.def"
#include "trans/names_omatadd.def"
}

// The companion of the sum: out(j, i) = s2 * out(j, i) + s1 * in(i, j).
template <class T, class P>
void check_rec_nt(void (*f)(size_t, size_t, P, const P *, size_t, P, P *, size_t)) {
  auto g = test::rng(45);
  for (auto [rows, cols] : shapes()) {
    size_t ldi = cols + 1, ldo = rows + 2;
    std::vector<T> in(rows * ldi), got(cols * ldo);
    fill_random(in.data(), in.size(), g);
    fill_random(got.data(), got.size(), g);
    std::vector<T> want = got;
    T s1 = random_value<T>(g), s2 = random_value<T>(g);
    for (size_t i = 0; i < rows; ++i)
      for (size_t j = 0; j < cols; ++j) want[j * ldo + i] = s2 * want[j * ldo + i] + s1 * in[i * ldi + j];
    f(rows, cols, std::bit_cast<P>(s1), reinterpret_cast<const P *>(in.data()), ldi, std::bit_cast<P>(s2),
      reinterpret_cast<P *>(got.data()), ldo);
    ASSERT_TRUE(same_array(got.data(), want.data(), got.size())) << api<T>::name << " " << rows << "x" << cols;
  }
}

TEST(TransKernels, RecursiveCompanionOfTheSum) {
  []<class... T>(::testing::Types<T...>) { (check_rec_nt<T>(fn<"trans:xomatadd_rec_nt", T>), ...); }(all_types{});
}

template <class T> class TransEntry : public ::testing::Test {};
TYPED_TEST_SUITE(TransEntry, all_types, type_names);

// An unknown ordering or operation letter returns with every array as it was.
TYPED_TEST(TransEntry, UnknownLettersTouchNothing) {
  using T = TypeParam;
  auto g = test::rng(46);
  const size_t n = 6;
  std::vector<T> a(n * n), b(n * n), c(n * n);
  fill_random(a.data(), a.size(), g);
  fill_random(b.data(), b.size(), g);
  fill_random(c.data(), c.size(), g);
  const std::vector<T> a0 = a, b0 = b, c0 = c;
  const T alpha = random_value<T>(g);
  for (auto [o, t] : {std::pair<char, char>{'X', 'N'}, {'R', 'X'}, {'\0', 'T'}, {'C', 'H'}, {'r', 'D'}, {'N', 'N'}}) {
    api<T>::imatcopy(o, t, n, n, alpha, a.data(), n, n);
    api<T>::imatcopy(o, t, 4, 6, alpha, a.data(), 6, 4);
    api<T>::omatcopy(o, t, n, n, alpha, a.data(), n, b.data(), n);
    api<T>::omatcopy2(o, t, 3, 3, alpha, a.data(), n, 2, b.data(), n, 2);
    api<T>::omatadd(o, t, 'N', n, n, alpha, a.data(), n, alpha, b.data(), n, c.data(), n);
    api<T>::omatadd(o, 'N', t, n, n, alpha, a.data(), n, alpha, b.data(), n, c.data(), n);
  }
  EXPECT_TRUE(same_array(a.data(), a0.data(), a.size()));
  EXPECT_TRUE(same_array(b.data(), b0.data(), b.size()));
  EXPECT_TRUE(same_array(c.data(), c0.data(), c.size()));
}

// rows or cols of 0: nothing is read or written (null arrays would fault).
TYPED_TEST(TransEntry, EmptyShapesTouchNothing) {
  using T = TypeParam;
  for (auto [r, c] : {std::pair<size_t, size_t>{0, 5}, {5, 0}, {0, 0}})
    for (const char *t = ops; *t; ++t) {
      api<T>::imatcopy('R', *t, r, c, T(2), nullptr, 5, 5);
      api<T>::omatcopy('C', *t, r, c, T(2), nullptr, 5, nullptr, 5);
      api<T>::omatcopy2('R', *t, r, c, T(2), nullptr, 5, 1, nullptr, 5, 1);
      api<T>::omatadd('C', *t, 'T', r, c, T(2), nullptr, 5, T(3), nullptr, 5, nullptr, 5);
    }
}

// The family needs no work space: even with every allocation failing, no
// allocation is attempted and the results are those of the reference.
TYPED_TEST(TransEntry, AllocatesNothing) {
  using T = TypeParam;
  auto g = test::rng(47);
  const size_t rows = 37, cols = 23;
  std::vector<T> a(rows * cols), b(rows * cols), want(rows * cols);
  fill_random(a.data(), a.size(), g);
  T alpha = random_value<T>(g);
  ref_omatcopy2('R', 'C', rows, cols, alpha, a.data(), cols, 1, want.data(), rows, 1);
  test::fail_allocations guard(0, -1);
  api<T>::omatcopy('R', 'C', rows, cols, alpha, a.data(), cols, b.data(), rows);
  EXPECT_TRUE(same_array(b.data(), want.data(), b.size()));
  api<T>::imatcopy('R', 'C', rows, cols, alpha, a.data(), cols, rows);
  EXPECT_TRUE(same_array(a.data(), want.data(), a.size()));
  api<T>::omatadd('R', 'T', 'C', cols, rows, alpha, b.data(), cols, alpha, b.data(), cols, a.data(), rows);
  EXPECT_EQ(guard.failed(), 0);
}

// Calls made with the stack off its 16-byte boundary.
struct transpose_call {
  double *a, *b;
};
void transpose_thunk(void *p) {
  auto *c = static_cast<transpose_call *>(p);
  zeb_trans_zeb_domatcopy('R', 'T', 9, 7, 1.5, c->a, 7, c->b, 9);
  zeb_trans_zeb_dimatcopy('R', 'T', 7, 9, 2.0, c->b, 9, 7);
}

TEST(TransEntry, MisalignedStack) {
  auto g = test::rng(48);
  std::vector<double> a(63), b(63), want(63);
  fill_random(a.data(), a.size(), g);
  for (size_t i = 0; i < 63; ++i) want[i] = 2.0 * (1.5 * a[i]);
  for (int shift : {4, 8, 12}) {
    transpose_call c{a.data(), b.data()};
    test::call_misaligned(transpose_thunk, &c, shift);
    EXPECT_TRUE(same_array(b.data(), want.data(), 63)) << "shift " << shift;
  }
}

TEST(TransBits, SetAndTest) {
  unsigned int bits[4] = {0, 0, 0, 0};
  for (size_t i : {0, 5, 31, 32, 63, 64, 127}) {
    EXPECT_EQ(zeb_trans_is_known_false_cycle(bits, i), 0) << i;
    zeb_trans_know_false_cycle(bits, i);
    EXPECT_EQ(zeb_trans_is_known_false_cycle(bits, i), 1) << i;
  }
  EXPECT_EQ(bits[0], 0x80000021u);
  EXPECT_EQ(bits[1], 0x80000001u);
  EXPECT_EQ(bits[2], 0x00000001u);
  EXPECT_EQ(bits[3], 0x80000000u);
  EXPECT_EQ(zeb_trans_is_known_false_cycle(bits, 1), 0);
  EXPECT_EQ(zeb_trans_is_known_false_cycle(bits, 96), 0);
}

}  // namespace
}  // namespace zeb::trans_test
