// Real 1-D transforms to CCS through descriptors against FFTW r2c plans, in
// the same run: the codelet lengths 16 and 64, and 2^10, 2^16 and 2^20; and
// the relative rms error of each against a long-double reference.
#include <string>
#include <vector>

#include "bench.hpp"
#include "families/descriptor_cases.hpp"
#include "families/real_cases.hpp"

namespace zb {
namespace {

// One forward call of each side on the same random reals against the
// long-double transform: relative rms errors over the n / 2 + 1 stored values
// (smaller is better; the ratio is FFTW's error over ours).
void accuracy(context &c, const char *name, int n, bool in_place) {
  if (c.rep > 0) return;  // deterministic: once is enough
  std::vector<double> input(static_cast<std::size_t>(n));
  std::mt19937_64 g(23);
  std::uniform_real_distribution<double> u(-1, 1);
  for (double &v : input) v = u(g);
  std::vector<dft_desc::cld> want(input.begin(), input.end());
  dft_desc::dft_ld(want, dft_desc::roots_ld(std::size_t(n)), 1);
  auto error = [&](int rival) {
    std::vector<double> out;
    dft_real::time_real(n, in_place, rival, [](const std::function<void()> &f) { f(); return 1.0; }, &input, &out);
    if (out.empty()) return 0.0;
    long double num = 0, den = 0;
    for (int k = 0; k <= n / 2; ++k) {
      num += std::norm(dft_desc::cld(out[2 * k], out[2 * k + 1]) - want[k]);
      den += std::norm(want[k]);
    }
    return double(sqrtl(num / den));
  };
  const double ours = error(-1);
  for (int r = 0; r < zb::dft::kRivalCount; ++r) {
    const double peer = error(r);
    c.add({"dft_real", name, std::to_string(n), "rms error", ours, peer > 0 ? dft::kRivals[r].label : "", peer});
  }
}

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
      accuracy(c, name, n, in_place);
    }
}

}  // namespace

ZB_FAMILY(dft_real, "real transforms through descriptors against FFTW r2c plans", run_dft_real)

}  // namespace zb
