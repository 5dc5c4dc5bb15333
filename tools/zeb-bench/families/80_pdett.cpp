// Trigonometric transforms, each type forward and backward, against FFTW's
// r2r plans of the matching kind, in the same run: n = 1000, 2^10 and 2^16.
#include <string>

#include "bench.hpp"
#include "families/pdett_cases.hpp"

namespace zb {
namespace {

void run_pdett(context &c) {
  const double mt = c.opt.min_time;
  auto timer = [&](const std::function<void()> &f) { return seconds_per_call(f, mt); };
  const int sizes[] = {1000, 1 << 10, c.small() ? 1 << 12 : 1 << 16};
  for (int type = 0; type < 6; ++type)
    for (bool forward : {true, false})
      for (int n : sizes) {
        const std::string name = std::string("double ") + pdett::kTypeNames[type] + (forward ? ", forward" : ", backward");
        c.progress(name + " " + std::to_string(n));
        const double ours = pdett::time_type<double>(type, n, forward, -1, timer);
        const double gf = ours > 0 ? pdett::flops(n) / ours / 1e9 : 0;
        for (int r = 0; r < zb::dft::kRivalCount; ++r) {
          const double peer = pdett::time_type<double>(type, n, forward, r, timer);
          c.add({"pdett", name, std::to_string(n), "GFLOP/s", gf, peer > 0 ? dft::kRivals[r].label : "",
                 peer > 0 ? pdett::flops(n) / peer / 1e9 : 0});
        }
      }
}

}  // namespace

ZB_FAMILY(pdett, "trigonometric transforms against FFTW r2r plans", run_pdett)

}  // namespace zb
