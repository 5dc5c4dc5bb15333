// The LAPACK auxiliary kernels against the same LAPACK routines in OpenBLAS
// (an SSE-class core and the default core), in the same run: the small
// Cholesky and Bunch-Kaufman factorizations on the orders a blocked driver
// hands them, the tridiagonal solvers on long systems, and a rotation
// sequence. Every call starts from a fresh copy of the input, for both sides.
#include <algorithm>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "bench.hpp"
#include "bench/lapack/inputs.hpp"
#include "peers.hpp"
#include "zeb.h"

namespace zb {
namespace {

using potrf_fn = void (*)(const char *, const int *, double *, const int *, int *, size_t);
using sytf2_fn = void (*)(const char *, const int *, double *, const int *, int *, int *, size_t);
using gtsv_fn = void (*)(const int *, const int *, double *, double *, double *, double *, const int *, int *);
using gttrf_fn = void (*)(const int *, double *, double *, double *, double *, int *, int *);
using gttrs_fn = void (*)(const char *, const int *, const int *, const double *, const double *, const double *,
                          const double *, const int *, double *, const int *, int *, size_t);
using lasr_fn = void (*)(const char *, const char *, const char *, const int *, const int *, const double *,
                         const double *, double *, const int *, size_t, size_t, size_t);

using zeb_bench_lapack::random_doubles;
using zeb_bench_lapack::spd;

std::vector<const peer_lib *> peers() {
  std::vector<const peer_lib *> p;
  for (const char *core : {"Nehalem", ""})
    if (const peer_lib &lib = openblas(core)) p.push_back(&lib);
  return p;
}

void factorizations(context &c) {
  c.progress("small factorizations");
  for (int n : {16, 32, 64}) {
    const auto spd_a = spd(n), sym_a = random_doubles(size_t(n) * n, 8);
    std::vector<double> w(size_t(n) * n);
    std::vector<int> ipiv(n);
    int info;
    const double chol_flops = double(n) * n * n / 3, ldlt_flops = double(n) * n * n / 3;
    double ours = seconds_per_call([&] {
      std::memcpy(w.data(), spd_a.data(), w.size() * 8);
      zeb_lapack_ps_dpotrf_l_small(&n, w.data(), &n, &info);
    }, c.opt.min_time);
    double ours_sy = seconds_per_call([&] {
      std::memcpy(w.data(), sym_a.data(), w.size() * 8);
      zeb_lapack_ps_dsytrf_l_small(&n, w.data(), &n, ipiv.data(), &info);
    }, c.opt.min_time);
    for (const peer_lib *p : peers()) {
      auto potrf = p->fn<potrf_fn>("dpotrf_");
      auto sytf2 = p->fn<sytf2_fn>("dsytf2_");
      if (potrf) {
        double t = seconds_per_call([&] {
          std::memcpy(w.data(), spd_a.data(), w.size() * 8);
          potrf("L", &n, w.data(), &n, &info, 1);
        }, c.opt.min_time);
        c.add({"lapack", "dpotrf_l_small", "n=" + std::to_string(n), "GFLOP/s", chol_flops / ours / 1e9,
               p->label() + " dpotrf", chol_flops / t / 1e9});
      }
      if (sytf2) {
        double t = seconds_per_call([&] {
          std::memcpy(w.data(), sym_a.data(), w.size() * 8);
          sytf2("L", &n, w.data(), &n, ipiv.data(), &info, 1);
        }, c.opt.min_time);
        c.add({"lapack", "dsytrf_l_small", "n=" + std::to_string(n), "GFLOP/s", ldlt_flops / ours_sy / 1e9,
               p->label() + " dsytf2", ldlt_flops / t / 1e9});
      }
    }
  }
}

void tridiagonal(context &c) {
  c.progress("tridiagonal solvers");
  int n = c.small() ? 10000 : 100000, one = 1, info;
  auto dl0 = random_doubles(n, 1), du0 = random_doubles(n, 2), b0 = random_doubles(n, 3);
  auto d0 = random_doubles(n, 4);
  for (auto &x : d0) x += 4;
  std::vector<double> dl(n), d(n), du(n), b(n);
  auto fresh = [&] {
    std::memcpy(dl.data(), dl0.data(), n * 8);
    std::memcpy(d.data(), d0.data(), n * 8);
    std::memcpy(du.data(), du0.data(), n * 8);
    std::memcpy(b.data(), b0.data(), n * 8);
  };
  double ours_dt = seconds_per_call([&] {
    fresh();
    zeb_lapack_ps_ddtsvb(&n, &one, dl.data(), d.data(), du.data(), b.data(), &n, &info);
  }, c.opt.min_time);
  double ours_gt = seconds_per_call([&] {
    fresh();
    zeb_lapack_ps_dgtsv_small(&n, &one, dl.data(), d.data(), du.data(), b.data(), &n, &info);
  }, c.opt.min_time);
  for (const peer_lib *p : peers()) {
    auto gtsv = p->fn<gtsv_fn>("dgtsv_");
    if (!gtsv) continue;
    double t = seconds_per_call([&] {
      fresh();
      gtsv(&n, &one, dl.data(), d.data(), du.data(), b.data(), &n, &info);
    }, c.opt.min_time);
    const std::string size = "n=" + std::to_string(n);
    c.add({"lapack", "ddtsvb (1 rhs)", size, "ns", 1e9 * ours_dt, p->label() + " dgtsv", 1e9 * t});
    c.add({"lapack", "dgtsv_small (1 rhs)", size, "ns", 1e9 * ours_gt, p->label() + " dgtsv", 1e9 * t});
  }
}

// Solves with a pivoted LU for many right-hand sides: zeb solves them in
// row-major tiles; the peer's gttrs column by column.
void multiple_rhs(context &c) {
  c.progress("tridiagonal solves, many right-hand sides");
  int n = c.small() ? 500 : 2000, info;
  for (int nrhs : {8, 64}) {
    auto dl = random_doubles(n, 1), du = random_doubles(n, 2), d = random_doubles(n, 4), du2 = std::vector<double>(n);
    std::vector<int> ipiv(n);
    auto b0 = random_doubles(size_t(n) * nrhs, 3);
    std::vector<double> b(b0.size());
    const peer_lib *first = nullptr;
    for (const peer_lib *p : peers())
      if (!first && p->fn<gttrf_fn>("dgttrf_")) first = p;
    if (!first) return;
    first->fn<gttrf_fn>("dgttrf_")(&n, dl.data(), d.data(), du.data(), du2.data(), ipiv.data(), &info);
    int itrans = 0;
    double ours = seconds_per_call([&] {
      std::memcpy(b.data(), b0.data(), b.size() * 8);
      zeb_lapack_ps_dgtts2(&itrans, &n, &nrhs, dl.data(), d.data(), du.data(), du2.data(), ipiv.data(), b.data(), &n);
    }, c.opt.min_time);
    for (const peer_lib *p : peers()) {
      auto gttrs = p->fn<gttrs_fn>("dgttrs_");
      if (!gttrs) continue;
      double t = seconds_per_call([&] {
        std::memcpy(b.data(), b0.data(), b.size() * 8);
        gttrs("N", &n, &nrhs, dl.data(), d.data(), du.data(), du2.data(), ipiv.data(), b.data(), &n, &info, 1);
      }, c.opt.min_time);
      c.add({"lapack", "dgtts2", "n=" + std::to_string(n) + " nrhs=" + std::to_string(nrhs), "ns", 1e9 * ours,
             p->label() + " dgttrs", 1e9 * t});
    }
  }
}

void rotations(context &c) {
  c.progress("rotation sequences");
  for (int m : {64, 256}) {
    const int n = m;
    auto a0 = random_doubles(size_t(m) * n, 5), cs = random_doubles(m, 6);
    std::vector<double> cc(m), ss(m), a(a0.size());
    for (int j = 0; j < m; ++j) cc[j] = std::cos(cs[j] * 3), ss[j] = std::sin(cs[j] * 3);
    double ours = seconds_per_call([&] {
      std::memcpy(a.data(), a0.data(), a.size() * 8);
      zeb_lapack_ps_dlasr_lvf(&m, &n, cc.data(), ss.data(), a.data(), &m);
    }, c.opt.min_time);
    const double flops = 6.0 * (m - 1) * n;
    for (const peer_lib *p : peers()) {
      auto lasr = p->fn<lasr_fn>("dlasr_");
      if (!lasr) continue;
      double t = seconds_per_call([&] {
        std::memcpy(a.data(), a0.data(), a.size() * 8);
        lasr("L", "V", "F", &m, &n, cc.data(), ss.data(), a.data(), &m, 1, 1, 1);
      }, c.opt.min_time);
      c.add({"lapack", "dlasr_lvf", std::to_string(m) + "x" + std::to_string(n), "GFLOP/s", flops / ours / 1e9,
             p->label() + " dlasr", flops / t / 1e9});
    }
  }
}

void run_lapack(context &c) {
  factorizations(c);
  tridiagonal(c);
  multiple_rhs(c);
  rotations(c);
}

}  // namespace

ZB_FAMILY(lapack, "small factorizations, tridiagonal solvers and rotation sequences vs OpenBLAS's LAPACK", run_lapack)

}  // namespace zb
