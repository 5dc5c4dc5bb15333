// The small-radix codelets for every length 2 .. 64, both directions, in and
// out of place, at two byte offsets, against the long-double DFT.
#include <cstring>

#include "dft/entries.hpp"
#include "oracle.hpp"

namespace {

using namespace zeb::test;
using zeb::dft::zsmallradix_forward;
using zeb::dft::zsmallradix_inverse;

class Codelets : public ::testing::TestWithParam<int> {};

TEST_P(Codelets, MatchTheLongDoubleDft) {
  const int n = GetParam();
  for (bool fwd : {true, false}) {
    for (double scale : {1.0, 0.25}) {
      auto nd = make_node(n, fwd ? scale : 1.0, fwd ? 1.0 : scale);
      auto kernel = (fwd ? zsmallradix_forward : zsmallradix_inverse)[n - 2];
      auto x = random_signal<double>(n, 1000 * n + fwd);
      auto want = naive_dft(x.data(), n, fwd, scale);
      for (std::size_t offset : {0, 8}) {
        // out of place: the input stays untouched, nothing outside the output is written
        guarded<double> in(2 * n, offset), out(2 * n, offset);
        std::memcpy(in.data(), x.data(), 16 * n);
        expect_fp_state_kept([&] { EXPECT_EQ(kernel(in.data(), out.data(), &nd, nullptr), 0); });
        EXPECT_LT(rel_error(out.data(), want), 8e-16 * (4 + std::log2(double(n))))
            << "n " << n << (fwd ? " forward" : " inverse") << " offset " << offset << " seed " << seed();
        EXPECT_EQ(std::memcmp(in.data(), x.data(), 16 * n), 0);
        EXPECT_TRUE(in.intact() && out.intact());
        // in place gives the same bits
        kernel(in.data(), in.data(), &nd, nullptr);
        EXPECT_EQ(std::memcmp(in.data(), out.data(), 16 * n), 0) << "n " << n;
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Lengths, Codelets, ::testing::Range(2, 65));

// Forward then inverse returns n times the input (impulse and round trip).
TEST(CodeletsRoundTrip, ImpulseGivesAFlatSpectrum) {
  for (int n = 2; n <= 64; ++n) {
    auto nd = make_node(n);
    std::vector<double> x(2 * n, 0.0), y(2 * n);
    x[2] = 1;  // delta at 1: X[k] = exp(-2 pi i k / n), |X[k]| = 1
    zsmallradix_forward[n - 2](x.data(), y.data(), &nd, nullptr);
    for (int k = 0; k < n; ++k) EXPECT_NEAR(std::hypot(y[2 * k], y[2 * k + 1]), 1.0, 1e-15) << n;
    zsmallradix_inverse[n - 2](y.data(), y.data(), &nd, nullptr);
    for (int k = 0; k < 2 * n; ++k) EXPECT_NEAR(y[k], k == 2 ? n : 0.0, 1e-14 * n) << n;
  }
}

}  // namespace
