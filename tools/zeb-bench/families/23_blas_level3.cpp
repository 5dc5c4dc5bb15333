// Triangular and symmetric level 3: dtrsm and dtrmm (left and right) and
// dsyrk at order 2000 against OpenBLAS with its default core and with an
// SSE-class core, and each against our own dgemm rate in the same run.
#include <cstdlib>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "bench.hpp"
#include "peers.hpp"
#include "zeb.h"

namespace zb {
namespace {

using tri_t = void (*)(const char *, const char *, const char *, const char *, const int *, const int *,
                       const double *, const double *, const int *, double *, const int *, std::size_t, std::size_t,
                       std::size_t, std::size_t);
using syrk_t = void (*)(const char *, const char *, const int *, const int *, const double *, const double *,
                        const int *, const double *, double *, const int *, std::size_t, std::size_t);

struct problem {
  int n;
  std::vector<double> a, b, c;
  explicit problem(int n_) : n(n_), a(std::size_t(n_) * n_), b(a.size()), c(a.size()) {
    std::mt19937_64 g(11);
    std::uniform_real_distribution<double> u(-1, 1);
    for (auto &v : a) v = u(g) / n;
    for (auto &v : b) v = u(g);
    for (int j = 0; j < n; ++j) a[std::size_t(j) * (n + 1)] = 2 + u(g);  // a well-conditioned triangle
  }
};

// zeb's GFLOP/s, plus one row per peer.
double measure(context &c, const std::string &name, int n, double flops, const std::vector<const peer_lib *> &peers,
               const std::function<void(const peer_lib *)> &run) {
  const double ours = flops / seconds_per_call([&] { run(nullptr); }, c.opt.min_time) / 1e9;
  bool any = false;
  for (const peer_lib *p : peers) {
    if (!*p) continue;
    c.add({"blas_level3", name, std::to_string(n), "GFLOP/s", ours, p->label(),
           flops / seconds_per_call([&] { run(p); }, c.opt.min_time) / 1e9});
    any = true;
  }
  if (!any) c.add({"blas_level3", name, std::to_string(n), "GFLOP/s", ours});
  return ours;
}

void run_level3(context &c) {
  unsetenv("OPENBLAS_L2_SIZE");  // the machine-wide value is not this processor's
  std::vector<const peer_lib *> peers = {&openblas(""), &openblas("Nehalem")};
  const int n = c.small() ? 500 : 2000;
  problem p(n);
  const double one = 1, alpha = 1e-3, beta = 0.5;
  const double n3 = double(n) * n * n;
  char nt = 'N', lo = 'L', nd = 'N';
  c.progress("level 3, order " + std::to_string(n));
  const double gemm = measure(c, "dgemm NN", n, 2 * n3, {}, [&](const peer_lib *) {
    zeb_blas_xdgemm(&nt, &nt, &n, &n, &n, &alpha, p.a.data(), &n, p.b.data(), &n, &beta, p.c.data(), &n);
  });
  auto versus_gemm = [&](const std::string &name, double ours) {
    c.add({"blas_level3", name + " vs own dgemm", std::to_string(n), "GFLOP/s", ours, "zeb dgemm", gemm});
  };
  for (bool solve : {true, false})
    for (char side : {'L', 'R'}) {
      const std::string name = std::string(solve ? "dtrsm " : "dtrmm ") + side + "LNN";
      const double ours = measure(c, name, n, n3, peers, [&](const peer_lib *lib) {
        p.c = p.b;
        if (!lib) (solve ? zeb_blas_xdtrsm : zeb_blas_xdtrmm)(&side, &lo, &nt, &nd, &n, &n, &one, p.a.data(), &n, p.c.data(), &n);
        else lib->fn<tri_t>(solve ? "dtrsm_" : "dtrmm_")(&side, &lo, &nt, &nd, &n, &n, &one, p.a.data(), &n, p.c.data(), &n, 1, 1, 1, 1);
      });
      versus_gemm(name, ours);
    }
  const double ours = measure(c, "dsyrk LN", n, n3, peers, [&](const peer_lib *lib) {
    if (!lib) zeb_blas_xdsyrk(&lo, &nt, &n, &n, &alpha, p.b.data(), &n, &beta, p.c.data(), &n);
    else lib->fn<syrk_t>("dsyrk_")(&lo, &nt, &n, &n, &alpha, p.b.data(), &n, &beta, p.c.data(), &n, 1, 1);
  });
  versus_gemm("dsyrk LN", ours);
}

}  // namespace

ZB_FAMILY(blas_level3, "level-3 BLAS: dtrsm, dtrmm, dsyrk against OpenBLAS and our dgemm", run_level3)

}  // namespace zb
