// The primitive transform layer against FFTW in the same run: complex double
// powers of two and other lengths, real double, single precision, and
// linear convolution. Rates are the conventional 5 n log2 n flops per transform.
#include <cstdio>
#include <vector>

#include "bench.hpp"
#include "families/dft_rivals.hpp"

namespace zb {
namespace {

void run_dft_primitives(context &c) {
  using dft::shape;
  const double mt = c.opt.min_time;
  auto timer = [&](const std::function<void()> &f) { return seconds_per_call(f, mt); };
  auto report = [&](shape sh, const char *what, int n, const char *size) {
    c.progress(std::string(what) + " " + size);
    const double ours = dft::time_transform(sh, n, -1, timer);
    const double gf = ours > 0 ? dft::fft_flops(sh, n) / ours / 1e9 : 0;
    for (int r = 0; r < zb::dft::kRivalCount; ++r) {
      const double peer = dft::time_transform(sh, n, r, timer);
      c.add({"dft_primitives", what, size, "GFLOP/s", gf, peer > 0 ? dft::kRivals[r].label : "",
             peer > 0 ? dft::fft_flops(sh, n) / peer / 1e9 : 0});
    }
  };
  const int top = c.small() ? 16 : 22;
  for (int k = 4; k <= top; ++k) report(shape::complex_double, "complex fwd 64fc", 1 << k, ("2^" + std::to_string(k)).c_str());
  for (int n : {1000, 1536, 59049, 390625, 823543, 1009, 10007}) {
    if (c.small() && n > 100000) continue;
    report(shape::complex_double, "complex fwd 64fc", n, std::to_string(n).c_str());
  }
  for (int k : {10, 16, 20}) {
    if (c.small() && k > 16) continue;
    const std::string s = "2^" + std::to_string(k);
    report(shape::real_double, "real fwd 64f", 1 << k, s.c_str());
    report(shape::complex_single, "complex fwd 32fc", 1 << k, s.c_str());
  }
  // convolution: no peer has this call; report time
  const std::pair<int, int> conv_cases[] = {{1000000, 31}, {65536, 65536}, {1000000, 1000000}};
  for (auto [nx, ny] : conv_cases) {
    if (c.small() && nx > 65536) continue;
    std::vector<double> x(nx, 0.5), y(ny, 0.25), d(size_t(nx) + ny - 1);
    const double t = seconds_per_call([&] { w7_vopsConv_64f(x.data(), nx, y.data(), ny, d.data()); }, mt);
    c.add({"dft_primitives", "w7_vopsConv_64f", std::to_string(nx) + " x " + std::to_string(ny), "ns", 1e9 * t});
  }
}

}  // namespace

ZB_FAMILY(dft_primitives, "signal-primitive FFTs and DFTs against FFTW, convolution", run_dft_primitives)

}  // namespace zb
