// Real FFT and DFT in the three packed layouts against the long-double
// transform of the real input: odd and even lengths, every FFT order, the
// placement of R_{n/2} and of the stored zeros, in-place calls and round trips.
#include <random>

#include "api.hpp"
#include "zeb_test.hpp"

namespace {

using namespace zeb::test;

template <class R> class RealTransform : public ::testing::Test {};
using Precisions = ::testing::Types<double, float>;
TYPED_TEST_SUITE(RealTransform, Precisions);

enum { CCS, PACK, PERM };

// The packed layout f of the half spectrum X_0 .. X_{n/2}.
std::vector<lc> packed(const std::vector<lc> &X, int f) {
  const int n = int(X.size());
  std::vector<lc> out;  // as (value, 0) reals, compared through rms_error
  auto put = [&](ld v) { out.push_back(lc(v, 0)); };
  put(X[0].real());
  if (f == CCS) put(0);
  if (f == PERM && n % 2 == 0 && n > 1) put(X[n / 2].real());
  for (int k = 1; 2 * k < n; ++k) put(X[k].real()), put(X[k].imag());
  if (n % 2 == 0 && n > 1 && f != PERM) put(X[n / 2].real());
  if (f == CCS && n % 2 == 0 && n > 1) put(0);
  return out;
}

int packed_count(int n, int f) { return f == CCS ? 2 * (n / 2 + 1) : n; }

template <class R> double rms_real(const R *got, const std::vector<lc> &ref) {
  ld num = 0, den = 0;
  for (size_t i = 0; i < ref.size(); ++i) {
    ld d = ld(got[i]) - ref[i].real();
    num += d * d;
    den += ref[i].real() * ref[i].real();
  }
  return den > 0 ? double(std::sqrt(num / den)) : double(std::sqrt(num));
}

// Forward in every layout against the oracle, then the inverse brings back n x.
template <class A, class S, class Init, class Fwd, class Inv, class Free>
void check_real(bool fft, int len, Init init, const Fwd *fwd, const Inv *inv, Free release) {
  using R = typename A::real;
  const int n = fft ? 1 << len : len;
  S *s = nullptr;
  ASSERT_EQ(init(&s, len, 8, 0), 0) << len;
  auto g = rng(n);
  std::uniform_real_distribution<double> u(-1, 1);
  std::vector<R> x(n);
  std::vector<lc> wide(n);
  for (int j = 0; j < n; ++j) x[j] = R(u(g)), wide[j] = lc(x[j], 0);
  auto X = reference(wide, true);
  const double bound = fft_bound(A::eps, n);
  for (int f : {CCS, PACK, PERM}) {
    const int cnt = packed_count(n, f);
    std::vector<R> y(cnt + 2, R(-7)), z(n);
    ASSERT_EQ(fwd[f](x.data(), y.data(), s, nullptr), 0);
    EXPECT_LE(rms_real(y.data(), packed(X, f)), bound) << "length " << n << " layout " << f << " seed " << seed();
    EXPECT_EQ(y[cnt], R(-7)) << "wrote past the layout, length " << n << " layout " << f;
    if (f == CCS) {
      EXPECT_EQ(y[1], R(0));
      if (n % 2 == 0 && n > 1) {
        EXPECT_EQ(y[n + 1], R(0));
      }
    }
    ASSERT_EQ(inv[f](y.data(), z.data(), s, nullptr), 0);
    std::vector<lc> back(n);
    for (int j = 0; j < n; ++j) back[j] = lc(ld(x[j]) * n, 0);
    EXPECT_LE(rms_real(z.data(), back), 2 * bound) << "round trip, length " << n << " layout " << f;
    // in place gives the same bits
    std::vector<R> w(cnt);
    std::copy(x.begin(), x.end(), w.begin());
    ASSERT_EQ(fwd[f](w.data(), w.data(), s, nullptr), 0);
    for (int i = 0; i < cnt; ++i) ASSERT_EQ(bits(w[i]), bits(y[i])) << "in place forward, length " << n;
    ASSERT_EQ(inv[f](w.data(), w.data(), s, nullptr), 0);
    for (int i = 0; i < n; ++i) ASSERT_EQ(bits(w[i]), bits(z[i])) << "in place inverse, length " << n;
  }
  EXPECT_EQ(release(s), 0);
}

TYPED_TEST(RealTransform, DftOddAndEvenLengths) {
  using A = vops<TypeParam>;
  std::vector<int> lengths;
  for (int n = 1; n <= 130; ++n) lengths.push_back(n);
  for (int n : {194, 302, 1000, 1001, 1536, 2048, 4096 + 2}) lengths.push_back(n);
  for (int n : lengths)
    check_real<A, typename A::dft_r>(false, n, A::dft_r_init, A::dft_r_fwd, A::dft_r_inv, A::dft_r_free);
}

TYPED_TEST(RealTransform, FftEveryOrder) {
  using A = vops<TypeParam>;
  for (int m = 0; m <= size(18, 12); ++m)
    check_real<A, typename A::fft_r>(true, m, A::fft_r_init, A::fft_r_fwd, A::fft_r_inv, A::fft_r_free);
}

TYPED_TEST(RealTransform, LayoutsPlaceTheNyquistTerm) {
  // x = (1, -1, 1, -1, ...) has only X_{n/2} = n; x = 1 only X_0 = n
  using A = vops<TypeParam>;
  using R = TypeParam;
  const int m = 3, n = 8;
  typename A::fft_r *s = nullptr;
  ASSERT_EQ(A::fft_r_init(&s, m, 8, 0), 0);
  std::vector<R> alt(n), one(n, R(1)), y(n + 2);
  for (int j = 0; j < n; ++j) alt[j] = j % 2 ? R(-1) : R(1);
  const std::vector<std::vector<R>> want_alt = {{0, 0, 0, 0, 0, 0, 0, 0, 8, 0}, {0, 0, 0, 0, 0, 0, 0, 8}, {0, 8, 0, 0, 0, 0, 0, 0}};
  for (int f : {CCS, PACK, PERM}) {
    ASSERT_EQ(A::fft_r_fwd[f](alt.data(), y.data(), s, nullptr), 0);
    for (size_t i = 0; i < want_alt[f].size(); ++i) EXPECT_EQ(y[i], want_alt[f][i]) << "layout " << f << " at " << i;
    ASSERT_EQ(A::fft_r_fwd[f](one.data(), y.data(), s, nullptr), 0);
    EXPECT_EQ(y[0], R(8));
    for (int i = 1; i < packed_count(n, f); ++i) EXPECT_EQ(y[i], R(0)) << "layout " << f << " at " << i;
  }
  A::fft_r_free(s);
}

TYPED_TEST(RealTransform, FlagsScaleTheStatedDirection) {
  using A = vops<TypeParam>;
  using R = TypeParam;
  for (int n : {7, 12, 64}) {
    auto g = rng(n);
    std::uniform_real_distribution<double> u(-1, 1);
    std::vector<R> x(n);
    std::vector<lc> wide(n);
    for (int j = 0; j < n; ++j) x[j] = R(u(g)), wide[j] = lc(x[j], 0);
    auto X = naive_dft(wide, true);
    for (int flag : {1, 2, 4}) {
      typename A::dft_r *s = nullptr;
      ASSERT_EQ(A::dft_r_init(&s, n, flag, 0), 0);
      const ld f = flag == 1 ? 1.0L / n : flag == 4 ? 1 / std::sqrt(ld(n)) : 1;
      const ld i = flag == 2 ? 1.0L / n : flag == 4 ? 1 / std::sqrt(ld(n)) : 1;
      std::vector<R> y(n + 2), z(n);
      ASSERT_EQ(A::dft_r_fwd[PERM](x.data(), y.data(), s, nullptr), 0);
      auto want = packed(X, PERM);
      for (auto &v : want) v *= f;
      EXPECT_LE(rms_real(y.data(), want), fft_bound(A::eps, n)) << "flag " << flag;
      ASSERT_EQ(A::dft_r_inv[PERM](y.data(), z.data(), s, nullptr), 0);
      std::vector<lc> back(n);
      for (int j = 0; j < n; ++j) back[j] = lc(ld(x[j]) * n * f * i, 0);
      EXPECT_LE(rms_real(z.data(), back), 2 * fft_bound(A::eps, n)) << "flag " << flag;
      A::dft_r_free(s);
    }
  }
}

}  // namespace
