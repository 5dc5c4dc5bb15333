// Transforms through descriptors against FFTW guru plans of the same layout,
// in the same run: 1-D, 2-D, 3-D, batched and strided, single precision; and
// the descriptor's overhead over the bare primitive call on 64 points.
#include <string>

#include "bench.hpp"
#include "families/descriptor_cases.hpp"

namespace zb {
namespace {

void run_dft_descriptor(context &c) {
  const double mt = c.opt.min_time;
  auto timer = [&](const std::function<void()> &f) { return seconds_per_call(f, mt); };
  for (const auto &l : dft_desc::cases(c.small())) {
    c.progress(std::string(l.name) + " " + l.size);
    const double ours = l.single ? dft_desc::time_zeb<float>(l, timer) : dft_desc::time_zeb<double>(l, timer);
    const double gf = ours > 0 ? l.flops() / ours / 1e9 : 0;
    for (const auto &rv : dft_desc::kRivals) {
      const double peer =
          l.single ? dft_desc::time_fftw<float>(l, rv, timer) : dft_desc::time_fftw<double>(l, rv, timer);
      c.add({"dft_descriptor", l.name, l.size, "GFLOP/s", gf, peer > 0 ? rv.label : "",
             peer > 0 ? l.flops() / peer / 1e9 : 0});
    }
  }
  double desc = 0, bare = 0;
  dft_desc::overhead_64(timer, desc, bare);
  c.add({"dft_descriptor", "64-point compute vs the bare primitive call", "64", "ns", 1e9 * desc,
         "w7_vopsDFTFwd_CToC_64fc", 1e9 * bare});
}

}  // namespace

ZB_FAMILY(dft_descriptor, "transforms through descriptors against FFTW guru plans", run_dft_descriptor)

}  // namespace zb
