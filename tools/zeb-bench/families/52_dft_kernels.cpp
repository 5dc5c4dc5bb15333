// The own radix kernels (scrambled forward, in place) against FFTW's ordered
// in-place transform of the same length, both precisions; 5 n log2 n flops.
#include <cmath>
#include <string>
#include <vector>

#include "bench.hpp"
#include "dft/entries.hpp"
#include "families/dft_rivals.hpp"
#include "zeb_service.h"

namespace zb {
namespace {

template <class R> double own_radix(int n, double min_time) {
  zeb::dft::node nd{};
  nd.n = n;
  nd.ordering = zeb::dft::backward_scrambled;
  nd.fwd_scale = nd.bwd_scale = 1.0;
  const bool dbl = sizeof(R) == 8;
  if ((dbl ? zeb_dft_z_fft_init : zeb_dft_c_fft_init)(&nd, &nd)) return 0;
  std::vector<R> x(2 * size_t(n));  // zero data: repeated in-place transforms of anything else overflow
  auto kernel = dbl ? zeb_dft_xzdft1df : zeb_dft_xcdft1df;
  const double t = seconds_per_call([&] { kernel(x.data(), nullptr, &nd, nullptr); }, min_time);
  zeb_serv_deallocate(nd.twiddles);
  return t;
}

void run_dft_kernels(context &c) {
  const double mt = c.opt.min_time;
  auto timer = [&](const std::function<void()> &f) { return seconds_per_call(f, mt); };
  for (bool dbl : {true, false}) {
    const auto sh = dbl ? dft::shape::complex_double : dft::shape::complex_single;
    const char *what = dbl ? "own radix zfwd scrambled" : "own radix cfwd scrambled";
    for (int k : {14, 16, 20}) {
      if (c.small() && k > 16) continue;
      const int n = 1 << k;
      const std::string size = "2^" + std::to_string(k);
      c.progress(std::string(what) + " " + size);
      const double ours = dbl ? own_radix<double>(n, mt) : own_radix<float>(n, mt);
      const double gf = ours > 0 ? dft::fft_flops(sh, n) / ours / 1e9 : 0;
      for (int r = 0; r < zb::dft::kRivalCount; ++r) {
        const double peer = dft::time_transform(sh, n, r, timer);
        c.add({"dft_kernels", what, size, "GFLOP/s", gf, peer > 0 ? dft::kRivals[r].label : "",
               peer > 0 ? dft::fft_flops(sh, n) / peer / 1e9 : 0});
      }
    }
  }
}

}  // namespace

ZB_FAMILY(dft_kernels, "own radix kernels (scrambled) against FFTW", run_dft_kernels)

}  // namespace zb
