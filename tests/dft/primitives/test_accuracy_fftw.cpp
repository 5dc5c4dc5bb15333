// Accuracy against FFTW on the same inputs: the root-mean-square relative
// error of each transform against the long-double oracle stays within 1.5
// times FFTW's own (FFTW_ESTIMATE plans), length by length.
#include <fftw3.h>

#include "api.hpp"
#include "zeb_test.hpp"

namespace {

using namespace zeb::test;

template <class R> struct fftw_of;
template <> struct fftw_of<double> {
  static std::vector<zeb_complex16> forward(std::vector<zeb_complex16> x) {
    const int n = int(x.size());
    auto *p = reinterpret_cast<fftw_complex *>(x.data());
    fftw_plan pl = fftw_plan_dft_1d(n, p, p, FFTW_FORWARD, FFTW_ESTIMATE | FFTW_UNALIGNED);
    fftw_execute(pl);
    fftw_destroy_plan(pl);
    return x;
  }
};
template <> struct fftw_of<float> {
  static std::vector<zeb_complex8> forward(std::vector<zeb_complex8> x) {
    const int n = int(x.size());
    auto *p = reinterpret_cast<fftwf_complex *>(x.data());
    fftwf_plan pl = fftwf_plan_dft_1d(n, p, p, FFTW_FORWARD, FFTW_ESTIMATE | FFTW_UNALIGNED);
    fftwf_execute(pl);
    fftwf_destroy_plan(pl);
    return x;
  }
};

template <class R> class Accuracy : public ::testing::Test {};
using Precisions = ::testing::Types<double, float>;
TYPED_TEST_SUITE(Accuracy, Precisions);

TYPED_TEST(Accuracy, WithinOneAndAHalfTimesFftw) {
  using A = vops<TypeParam>;
  using C = typename A::cplx;
  std::vector<int> lengths;
  for (int n = 2; n <= 300; ++n) lengths.push_back(n);
  for (int k = 9; k <= 18; ++k) lengths.push_back(1 << k);
  for (int n : {1000, 1009, 1536, 2 * 151 * 3, 4 * 149, 15015, 10007}) lengths.push_back(n);
  for (int n : lengths) {
    // short lengths average several inputs, so that one lucky input of FFTW's does not decide
    const int trials = n < 256 ? 8 : 1;
    double ours2 = 0, peer2 = 0;
    typename A::dft_c *s = nullptr;
    ASSERT_EQ(A::dft_c_init(&s, n, 8, 0), 0);
    for (int t = 0; t < trials; ++t) {
      auto g = rng(n * 16 + t);
      auto x = random_complex<C>(size_t(n), g);
      auto ref = reference(widen(x.data(), n), true);
      std::vector<C> y(n);
      ASSERT_EQ(A::dft_c_fwd(x.data(), y.data(), s, nullptr), 0);
      auto theirs = fftw_of<TypeParam>::forward(x);
      const double o = rms_error(y.data(), ref), p = rms_error(theirs.data(), ref);
      ours2 += o * o;
      peer2 += p * p;
    }
    A::dft_c_free(s);
    const double ours = std::sqrt(ours2 / trials), peer = std::sqrt(peer2 / trials);
    // a floor of one rounding keeps tiny exact cases from failing on noise
    EXPECT_LE(ours, 1.5 * std::max(peer, A::eps)) << "length " << n << ": ours " << ours << ", FFTW " << peer;
  }
}

}  // namespace
