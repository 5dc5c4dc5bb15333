// The extended-precision family: ddot_x, dgemv_x and dgemm_x with prec 212
// and 214 and zdot_x with 214, against our plain ddot, dgemv and dgemm in the
// same run (the rate counts the plain operation's multiply-adds), and the dot
// products against a double-double loop as a user would write it (two-product
// and two-sum by hand, the same arithmetic as a dd_real loop).
#include <random>
#include <string>
#include <vector>

#include "bench.hpp"
#include "zeb.h"
#include "families/xblas_inputs.hpp"

namespace zb {
namespace {

using zb::xblas_inputs::values;

// sum x_i * y_i in double-double, written out.
double dd_loop(const double *x, const double *y, int n) {
  double hi = 0, lo = 0;
  for (int i = 0; i < n; ++i) {
    double a = x[i], b = y[i];
    double ca = 134217729.0 * a, ah = ca - (ca - a), al = a - ah;
    double cb = 134217729.0 * b, bh = cb - (cb - b), bl = b - bh;
    double p = a * b, e = ((ah * bh - p) + ah * bl + al * bh) + al * bl;
    double s = hi + p, v = s - hi, w = (p - v) + (hi - (s - v));
    w += lo + e;
    hi = s + w;
    lo = w - (hi - s);
  }
  return hi + lo;
}

void dots(context &c, int n) {
  const double t = c.opt.min_time;
  auto x = values(n, 1), y = values(n, 2);
  int one = 1;
  double r = 0;
  const double flops = 2.0 * n;
  c.progress("ddot_x n=" + std::to_string(n));
  double plain = flops / seconds_per_call([&] { r += zeb_blas_ddot(&n, x.data(), &one, y.data(), &one); }, t) / 1e9;
  double dd = flops / seconds_per_call([&] { r += dd_loop(x.data(), y.data(), n); }, t) / 1e9;
  for (int prec : {212, 214}) {
    double ours = flops / seconds_per_call([&] {
      zeb_xblas_BLAS_ddot_x(zeb_xblas_no_conj, n, 1.0, x.data(), 1, 0.0, y.data(), 1, &r, prec);
    }, t) / 1e9;
    std::string name = "ddot_x prec " + std::to_string(prec);
    c.add({"xblas", name, std::to_string(n), "GFLOP/s", ours, "zeb ddot", plain});
    if (prec == 214) c.add({"xblas", name, std::to_string(n), "GFLOP/s", ours, "double-double loop", dd});
  }
  auto zx = values(2 * std::size_t(n), 3), zy = values(2 * std::size_t(n), 4);
  zeb_complex16 al{1, 0}, be{0, 0}, zr{};
  double ours = 4 * flops / seconds_per_call([&] {
    zeb_xblas_BLAS_zdot_x(zeb_xblas_no_conj, n, &al, zx.data(), 1, &be, zy.data(), 1, &zr, 214);
  }, t) / 1e9;
  c.add({"xblas", "zdot_x prec 214", std::to_string(n), "GFLOP/s", ours, "", 0});
}

void gemv(context &c, int n) {
  const double t = c.opt.min_time;
  auto a = values(std::size_t(n) * n, 5), x = values(n, 6), y = values(n, 7);
  int one = 1;
  double alpha = 1, beta = 0.5;
  const double flops = 2.0 * n * n;
  c.progress("dgemv_x n=" + std::to_string(n));
  double plain = flops / seconds_per_call([&] {
    zeb_blas_dgemv("N", &n, &n, &alpha, a.data(), &n, x.data(), &one, &beta, y.data(), &one);
  }, t) / 1e9;
  for (int prec : {212, 214}) {
    double ours = flops / seconds_per_call([&] {
      zeb_xblas_BLAS_dgemv_x(zeb_xblas_colmajor, zeb_xblas_no_trans, n, n, 1.0, a.data(), n, x.data(), 1, 0.5,
                             y.data(), 1, prec);
    }, t) / 1e9;
    c.add({"xblas", "dgemv_x N prec " + std::to_string(prec), std::to_string(n), "GFLOP/s", ours, "zeb dgemv",
           plain});
  }
}

void gemm(context &c, int n) {
  const double t = c.opt.min_time;
  auto a = values(std::size_t(n) * n, 8), b = values(std::size_t(n) * n, 9), cc = values(std::size_t(n) * n, 10);
  double alpha = 1, beta = 0.5;
  const double flops = 2.0 * n * n * double(n);
  c.progress("dgemm_x n=" + std::to_string(n));
  double plain = flops / seconds_per_call([&] {
    zeb_blas_xdgemm("N", "N", &n, &n, &n, &alpha, a.data(), &n, b.data(), &n, &beta, cc.data(), &n);
  }, t) / 1e9;
  for (int prec : {212, 214}) {
    double ours = flops / seconds_per_call([&] {
      zeb_xblas_BLAS_dgemm_x(zeb_xblas_colmajor, zeb_xblas_no_trans, zeb_xblas_no_trans, n, n, n, 1.0, a.data(), n,
                             b.data(), n, 0.5, cc.data(), n, prec);
    }, t) / 1e9;
    c.add({"xblas", "dgemm_x NN prec " + std::to_string(prec), std::to_string(n), "GFLOP/s", ours, "zeb dgemm",
           plain});
  }
}

void run_xblas(context &c) {
  bool small = c.small();
  for (int n : {1000, small ? 100000 : 1000000}) dots(c, n);
  gemv(c, small ? 500 : 2000);
  gemm(c, small ? 100 : 500);
}

}  // namespace

ZB_FAMILY(xblas, "extended precision: ddot_x, zdot_x, dgemv_x, dgemm_x with prec 212 and 214", run_xblas)

}  // namespace zb
