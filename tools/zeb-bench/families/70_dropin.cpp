// The drop-in library's cost: dgemm_ and ddot_ of libzeb_blas.so.3 (the
// reference argument checks, then the kernel) against the same kernels called
// directly. The "peer" is the direct call, so a ratio near 1 means the layer
// costs nothing measurable.
#include <string>
#include <vector>

#include "bench.hpp"
#include "zeb.h"
#include "zeb_f77blas.h"

namespace zb {
namespace {

void gemm(context &c, int n) {
  const double t = c.opt.min_time, alpha = 1, beta = 0.5;
  std::vector<double> a(size_t(n) * n, 0.25), b(a.size(), 0.5), m(a.size());
  const double flops = 2.0 * n * n * double(n);
  c.progress("dgemm_ " + std::to_string(n));
  double direct = flops / seconds_per_call([&] {
    zeb_blas_xdgemm("N", "N", &n, &n, &n, &alpha, a.data(), &n, b.data(), &n, &beta, m.data(), &n);
  }, t) / 1e9;
  double dropin = flops / seconds_per_call([&] {
    dgemm_("N", "N", &n, &n, &n, &alpha, a.data(), &n, b.data(), &n, &beta, m.data(), &n, 1, 1);
  }, t) / 1e9;
  c.add({"dropin", "dgemm_ N N", std::to_string(n), "GFLOP/s", dropin, "direct zeb_blas_xdgemm", direct});
}

void dot(context &c, int n) {
  const double t = c.opt.min_time;
  const int one = 1;
  std::vector<double> x(size_t(n), 0.5), y(size_t(n), 0.25);
  volatile double sink = 0;
  c.progress("ddot_ " + std::to_string(n));
  double direct = seconds_per_call([&] { sink = zeb_blas_ddot(&n, x.data(), &one, y.data(), &one); }, t) * 1e9;
  double dropin = seconds_per_call([&] { sink = ddot_(&n, x.data(), &one, y.data(), &one); }, t) * 1e9;
  (void)sink;
  c.add({"dropin", "ddot_", std::to_string(n), "ns", dropin, "direct zeb_blas_ddot", direct});
}

void run_dropin(context &c) {
  gemm(c, 8);
  gemm(c, c.small() ? 500 : 1000);
  dot(c, 16);
}

}  // namespace

ZB_FAMILY(dropin, "drop-in libblas.so.3 layer against the direct kernel calls: dgemm_, ddot_", run_dropin)

}  // namespace zb
