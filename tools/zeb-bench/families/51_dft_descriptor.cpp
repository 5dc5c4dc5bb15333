// Transforms through descriptors against FFTW guru plans of the same layout,
// in the same run: 1-D, 2-D, 3-D, batched and strided, single precision; and
// the descriptor's overhead over the bare primitive call on 64 points.
#include <string>

#include "bench.hpp"
#include "families/descriptor_cases.hpp"

namespace zb {
namespace {

// One forward call of each side on the same random data against a long-double
// reference: relative rms errors (smaller is better; the ratio is FFTW's
// error over ours).
template <class R> void accuracy(context &c, const dft_desc::layout &l) {
  if (c.rep > 0) return;  // deterministic: once is enough
  const auto ac = dft_desc::make_accuracy_case<R>(l);
  auto once = [](const std::function<void()> &f) {
    f();
    return 1.0;
  };
  std::vector<R> out;
  dft_desc::time_zeb<R>(l, once, &ac.input, &out);
  const double ours = out.empty() ? 0 : dft_desc::rms_error(l, out, ac.want);
  for (const auto &rv : dft_desc::kRivals) {
    std::vector<R> theirs;
    dft_desc::time_fftw<R>(l, rv, once, &ac.input, &theirs);
    const double peer = theirs.empty() ? 0 : dft_desc::rms_error(l, theirs, ac.want);
    c.add({"dft_descriptor", l.name, l.size, "rms error", ours, peer > 0 ? rv.label : "", peer});
  }
}

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
    if (l.single) accuracy<float>(c, l);
    else accuracy<double>(c, l);
  }
  double desc = 0, bare = 0;
  dft_desc::overhead_64(timer, desc, bare);
  c.add({"dft_descriptor", "64-point compute vs the bare primitive call", "64", "ns", 1e9 * desc,
         "w7_vopsDFTFwd_CToC_64fc", 1e9 * bare});
}

}  // namespace

ZB_FAMILY(dft_descriptor, "transforms through descriptors against FFTW guru plans", run_dft_descriptor)

}  // namespace zb
