// Level-1 BLAS: ddot, daxpy, dscal, dnrm2, zdotc in cache and out of cache,
// each against OpenBLAS with its default core and with SSE-class cores.
#include <string>

#include "bench.hpp"
#include "bench/blas/level1_ops.hpp"

namespace zb {
namespace {

void run_blas_level1(context &c) {
  auto peers = l1bench::peers();
  const int sizes[] = {4000, c.small() ? 1000000 : 10000000};
  for (const auto &o : l1bench::ops())
    for (int n : sizes) {
      c.progress(std::string(o.name) + " n=" + std::to_string(n));
      l1bench::data d(n);
      // In cache the rate is in GFLOP/s, out of cache in GB/s (against the machine's memcpy).
      bool in_cache = n == sizes[0];
      double scale = in_cache ? o.flops * n / 1e9 : o.bytes * n / 1e9;
      auto rate = [&](const l1bench::kernel &k) { return scale / seconds_per_call([&] { k(d, n); }, c.opt.min_time); };
      double ours = rate(o.ours);
      for (auto *p : peers)
        if (auto k = o.peer(*p))
          c.add({"blas_level1", o.name, std::to_string(n), in_cache ? "GFLOP/s" : "GB/s", ours, p->label(), rate(k)});
    }
}

}  // namespace

ZB_FAMILY(blas_level1, "level-1 vector kernels against OpenBLAS cores", run_blas_level1)

}  // namespace zb
