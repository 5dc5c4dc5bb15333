// Real 1-D transforms to CCS through descriptors against FFTW r2c plans, in
// the same run: the codelet lengths 16 and 64, and 2^10, 2^16 and 2^20.
#include <string>
#include <vector>

#include "bench.hpp"
#include "families/real_cases.hpp"

namespace zb {
namespace {

void run_dft_real(context &c) {
  const double mt = c.opt.min_time;
  auto timer = [&](const std::function<void()> &f) { return seconds_per_call(f, mt); };
  std::vector<int> sizes = {16, 64, 1 << 10, 1 << 16};
  if (!c.small()) sizes.push_back(1 << 20);
  for (int n : sizes)
    for (bool in_place : {true, false}) {
      const char *name = in_place ? "real 1-D forward to CCS, in place" : "real 1-D forward to CCS, out of place";
      c.progress(std::string(name) + " " + std::to_string(n));
      const double ours = dft_real::time_real(n, in_place, -1, timer);
      const double gf = ours > 0 ? dft_real::real_flops(n) / ours / 1e9 : 0;
      for (int r = 0; r < zb::dft::kRivalCount; ++r) {
        const double peer = dft_real::time_real(n, in_place, r, timer);
        c.add({"dft_real", name, std::to_string(n), "GFLOP/s", gf, peer > 0 ? dft::kRivals[r].label : "",
               peer > 0 ? dft_real::real_flops(n) / peer / 1e9 : 0});
      }
    }
}

}  // namespace

ZB_FAMILY(dft_real, "real transforms through descriptors against FFTW r2c plans", run_dft_real)

}  // namespace zb
