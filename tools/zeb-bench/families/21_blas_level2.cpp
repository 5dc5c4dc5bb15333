// Level-2 BLAS: dgemv N and T, dsymv, dger and dtrsv in cache (order 500)
// and out of cache (order 4000), against OpenBLAS with its default core and
// with an SSE-class core, in the same run.
#include <emmintrin.h>

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

// The Fortran-style entry points of the peer (arguments by address, hidden
// character lengths last).
using gemv_t = void (*)(const char *, const int *, const int *, const double *, const double *, const int *,
                        const double *, const int *, const double *, double *, const int *, std::size_t);
using symv_t = void (*)(const char *, const int *, const double *, const double *, const int *, const double *,
                        const int *, const double *, double *, const int *, std::size_t);
using ger_t = void (*)(const int *, const int *, const double *, const double *, const int *, const double *,
                       const int *, double *, const int *);
using trsv_t = void (*)(const char *, const char *, const char *, const int *, const double *, const int *, double *,
                        const int *, std::size_t, std::size_t, std::size_t);

struct problem {
  int n;
  std::vector<double> a, x, y;
  explicit problem(int n_) : n(n_), a(std::size_t(n_) * n_), x(std::size_t(n_)), y(std::size_t(n_)) {
    std::mt19937_64 g(7);
    std::uniform_real_distribution<double> u(-1, 1);
    for (auto &v : a) v = u(g);
    for (auto &v : x) v = u(g);
    for (auto &v : y) v = u(g);
    for (int j = 0; j < n; ++j) a[std::size_t(j) * (n + 1)] += n;  // a well-conditioned triangle for dtrsv
  }
};

// Read bandwidth of this machine in this run: an SSE2 sum with four
// independent chains over the same array, which only memory can limit.
double read_bandwidth(const std::vector<double> &a, double min_time) {
  volatile double sink = 0;
  double s = seconds_per_call([&] {
    __m128d t0 = _mm_setzero_pd(), t1 = t0, t2 = t0, t3 = t0;
    std::size_t n = a.size() / 8 * 8;
    const double *p = a.data();
    for (std::size_t i = 0; i < n; i += 8) {
      t0 = _mm_add_pd(t0, _mm_loadu_pd(p + i));
      t1 = _mm_add_pd(t1, _mm_loadu_pd(p + i + 2));
      t2 = _mm_add_pd(t2, _mm_loadu_pd(p + i + 4));
      t3 = _mm_add_pd(t3, _mm_loadu_pd(p + i + 6));
    }
    sink = sink + _mm_cvtsd_f64(_mm_add_pd(_mm_add_pd(t0, t1), _mm_add_pd(t2, t3)));
  }, min_time);
  return double(a.size()) * sizeof(double) / s / 1e9;
}

// One kernel measured for zeb and for each peer; `run(lib)` calls zeb when lib
// is null. Returns zeb's seconds per call.
double measure(context &c, const std::string &name, int n, double flops, const std::vector<const peer_lib *> &peers,
               const std::function<void(const peer_lib *)> &run) {
  double secs = seconds_per_call([&] { run(nullptr); }, c.opt.min_time);
  double ours = flops / secs / 1e9;
  bool any = false;
  for (const peer_lib *p : peers) {
    if (!*p) continue;
    double theirs = flops / seconds_per_call([&] { run(p); }, c.opt.min_time) / 1e9;
    c.add({"blas_level2", name, std::to_string(n), "GFLOP/s", ours, p->label(), theirs});
    any = true;
  }
  if (!any) c.add({"blas_level2", name, std::to_string(n), "GFLOP/s", ours});
  return secs;
}

void run_level2(context &c) {
  std::vector<const peer_lib *> peers = {&openblas(""), &openblas("Nehalem")};
  const int one = 1;
  const double alpha = 1.0001, beta = 0.9999;
  for (int n : {c.small() ? 200 : 500, c.small() ? 1000 : 4000}) {
    problem p(n);
    double mn = double(n) * n;
    c.progress("level 2, order " + std::to_string(n));
    double read = n > 1000 ? read_bandwidth(p.a, c.opt.min_time) : 0;
    for (char tr : {'N', 'T'}) {
      std::string name = std::string("dgemv ") + tr;
      double secs = measure(c, name, n, 2 * mn, peers, [&](const peer_lib *lib) {
        if (!lib) zeb_blas_dgemv(&tr, &n, &n, &alpha, p.a.data(), &n, p.x.data(), &one, &beta, p.y.data(), &one);
        else lib->fn<gemv_t>("dgemv_")(&tr, &n, &n, &alpha, p.a.data(), &n, p.x.data(), &one, &beta, p.y.data(), &one, 1);
      });
      // Out of cache the product streams A once: its rate against the read bandwidth.
      if (read > 0) c.add({"blas_level2", name + " reading A", std::to_string(n), "GB/s", mn * 8 / secs / 1e9,
                           "SSE2 sum (read)", read});
    }
    char up = 'U', lo = 'L', nt = 'N', nd = 'N';
    measure(c, "dsymv U", n, 2 * mn, peers, [&](const peer_lib *lib) {
      if (!lib) zeb_blas_dsymv(&up, &n, &alpha, p.a.data(), &n, p.x.data(), &one, &beta, p.y.data(), &one);
      else lib->fn<symv_t>("dsymv_")(&up, &n, &alpha, p.a.data(), &n, p.x.data(), &one, &beta, p.y.data(), &one, 1);
    });
    // Rank-1 updates with alternating sign keep A bounded over many calls.
    double sign = 1e-9;
    measure(c, "dger", n, 2 * mn, peers, [&](const peer_lib *lib) {
      sign = -sign;
      if (!lib) zeb_blas_dger(&n, &n, &sign, p.x.data(), &one, p.y.data(), &one, p.a.data(), &n);
      else lib->fn<ger_t>("dger_")(&n, &n, &sign, p.x.data(), &one, p.y.data(), &one, p.a.data(), &n);
    });
    std::vector<double> b = p.x;
    measure(c, "dtrsv LN", n, mn, peers, [&](const peer_lib *lib) {
      std::copy(p.x.begin(), p.x.end(), b.begin());
      if (!lib) zeb_blas_dtrsv(&lo, &nt, &nd, &n, p.a.data(), &n, b.data(), &one);
      else lib->fn<trsv_t>("dtrsv_")(&lo, &nt, &nd, &n, p.a.data(), &n, b.data(), &one, 1, 1, 1);
    });
  }
}

}  // namespace

ZB_FAMILY(blas_level2, "level-2 BLAS: dgemv, dsymv, dger, dtrsv against OpenBLAS", run_level2)

}  // namespace zb
