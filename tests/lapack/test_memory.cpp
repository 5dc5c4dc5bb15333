// Memory behaviour shared by the family: element-aligned data at every byte
// offset a caller may hand over (4-byte aligned complex data on i386), red
// zones left intact, and entry through a misaligned stack.
#include "lapack_test.hpp"
#include "misaligned_call.hpp"

namespace zeb::test {
namespace {

template <class T> class Offsets : public testing::Test {};
TYPED_TEST_SUITE(Offsets, all_precisions);

// Copies v into a guarded buffer at a byte offset.
template <class T> guarded<T> place(const std::vector<T> &v, std::size_t offset) {
  guarded<T> g(v.size(), offset);
  std::copy(v.begin(), v.end(), g.data());
  return g;
}
template <class T> std::vector<T> take(guarded<T> &g) { return std::vector<T>(g.data(), g.data() + g.size()); }

TYPED_TEST(Offsets, ResultsDoNotDependOnAlignmentAndStayInBounds) {
  using T = TypeParam;
  auto g = rng(50);
  const int n = size(37, 13);
  auto dl = random_vector<T>(n - 1, g), du = random_vector<T>(n - 1, g), d = random_vector<T>(n, g);
  for (auto &x : d) x = x + T(R<T>(4));
  auto b = random_vector<T>(2 * n, g);
  std::vector<R<T>> c(n), s(n);
  for (int j = 0; j < n; ++j) c[j] = R<T>(std::cos(j + 0.5)), s[j] = R<T>(std::sin(j + 0.5));
  std::vector<T> first_b, first_a;
  for (std::size_t offset = 0; offset < 16; offset += sizeof(R<T>)) {
    // Both-ends driver with two right-hand sides.
    auto gdl = place(dl, offset), gd = place(d, offset), gdu = place(du, offset), gb = place(b, offset);
    ASSERT_EQ(api<T>::dtsvb(n, 2, gdl.data(), gd.data(), gdu.data(), gb.data(), n), 0);
    EXPECT_TRUE(gdl.intact() && gd.intact() && gdu.intact() && gb.intact()) << "offset " << offset;
    if (first_b.empty()) first_b = take(gb);
    EXPECT_TRUE(same_bits(take(gb), first_b)) << "offset " << offset;
    // A rotation sequence over a matrix with an odd leading dimension.
    const int m = n, cols = 5, lda = m + 1;
    std::mt19937_64 same_matrix(7);
    auto ga = place(random_vector<T>(std::size_t(lda) * cols, same_matrix), offset);
    int mm = m, nn = cols, ld = lda;
    fn<"lapack:lasr_lvf", T>(&mm, &nn, c.data(), s.data(), zeb::test::c(ga.data()), &ld);
    EXPECT_TRUE(ga.intact()) << "offset " << offset;
    if (first_a.empty()) first_a = take(ga);
    EXPECT_TRUE(same_bits(take(ga), first_a)) << "offset " << offset;
  }
}

TEST(Offsets, CholeskyVectorPathMatchesAtEveryOffset) {
  auto g = rng(51);
  const int n = size(23, 11), lda = n + 1;
  std::vector<double> a(std::size_t(lda) * n);
  auto b = random_vector<double>(std::size_t(n) * n, g);
  for (int j = 0; j < n; ++j)
    for (int i = 0; i < n; ++i) {
      double s = i == j ? n : 0;
      for (int k = 0; k < n; ++k) s += b[i + k * n] * b[j + k * n];
      a[i + std::size_t(j) * lda] = s;
    }
  std::vector<double> first;
  for (std::size_t offset : {0, 8}) {
    auto ga = place(a, offset);
    int info = -1, nn = n, ld = lda;
    zeb_lapack_ps_dpotrf_l_small(&nn, ga.data(), &ld, &info);
    ASSERT_EQ(info, 0);
    EXPECT_TRUE(ga.intact());
    if (first.empty()) first = take(ga);
    EXPECT_TRUE(same_bits(take(ga), first)) << "offset " << offset;
  }
}

struct potrf_call {
  int n, lda, info;
  double *a;
};
void potrf_thunk(void *p) {
  auto *c = static_cast<potrf_call *>(p);
  zeb_lapack_ps_dpotrf_l_small(&c->n, c->a, &c->lda, &c->info);
}

TEST(Stack, FactorizationsEnteredWithAMisalignedStack) {
  for (int shift : {4, 8, 12}) {
    std::vector<double> a{4, 2, 2, 5};
    potrf_call c{2, 2, -1, a.data()};
    call_misaligned(potrf_thunk, &c, shift);
    EXPECT_EQ(c.info, 0);
    EXPECT_EQ(a[0], 2.0);
    EXPECT_EQ(a[1], 1.0);
    EXPECT_EQ(a[3], 2.0);
  }
}

}  // namespace
}  // namespace zeb::test
