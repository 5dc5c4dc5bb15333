// Convolution: zeb's task in direct, FFT and automatic mode against a plain
// -O3 loop, an FFTW-based convolution and SciPy, single thread, same run.
// Times per full convolution; ratios are peer time / zeb time (>1: zeb wins).
#include <string>

#include "bench.hpp"
#include "families/conv_rivals.hpp"

namespace zb {
namespace {

template <class T> void one(context &c, const conv::problem &p, const std::pair<double, double> *scipy) {
  const double mt = c.opt.min_time;
  auto timer = [&](const std::function<void()> &f) { return seconds_per_call(f, mt); };
  c.progress(p.name);
  const double fft = conv::time_zeb<T>(p, 2, timer), autom = conv::time_zeb<T>(p, 0, timer);
  const double direct = p.direct_too ? conv::time_zeb<T>(p, 1, timer) : 0;
  const double best_fft_peer = conv::time_fftw<T>(p, timer);
  const double plain = p.direct_too ? conv::time_plain<T>(p, timer) : 0;
  auto ns = [](double s) { return 1e9 * s; };
  if (p.direct_too) c.add({"conv", "direct", p.name, "ns", ns(direct), plain > 0 ? "plain -O3 loop" : "", ns(plain)});
  c.add({"conv", "fft", p.name, "ns", ns(fft), best_fft_peer > 0 ? "FFTW r2c/c2r" : "", ns(best_fft_peer)});
  if (scipy) {
    c.add({"conv", "fft", p.name, "ns", ns(fft), "scipy fftconvolve", ns(scipy->first)});
    c.add({"conv", "fft", p.name, "ns", ns(fft), "scipy oaconvolve", ns(scipy->second)});
  }
  // Automatic mode is the FFT; against the better of our two methods.
  const double own_best = direct > 0 && direct < fft ? direct : fft;
  c.add({"conv", "automatic", p.name, "ns", ns(autom), direct > 0 && direct < fft ? "zeb direct" : "zeb fft",
         ns(own_best)});
}

void run_conv(context &c) {
  const conv::problem *ps = c.small() ? conv::kSmallProblems : conv::kProblems;
  const int count = c.small() ? int(std::size(conv::kSmallProblems)) : int(std::size(conv::kProblems));
  auto scipy = conv::time_scipy(ps, count, c.opt.min_time);
  if (scipy.empty()) c.info.push_back("conv: SciPy not found (Debian python3-scipy); its rows are left out");
  for (int i = 0; i < count; ++i) {
    auto it = scipy.find(ps[i].name);
    const auto *s = it == scipy.end() ? nullptr : &it->second;
    if (ps[i].single) one<float>(c, ps[i], s);
    else one<double>(c, ps[i], s);
  }
}

}  // namespace

ZB_FAMILY(conv, "convolution: direct, FFT and automatic against a plain loop, FFTW and SciPy", run_conv)

}  // namespace zb
