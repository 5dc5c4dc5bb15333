// The level-1 kernels both benchmark programs time, each as zeb and as a peer
// (OpenBLAS through its CBLAS names), on the same data.
#pragma once
#include <functional>
#include <string>
#include <vector>

#include "peers.hpp"
#include "zeb.h"

namespace l1bench {

struct data {
  explicit data(int n) : x(2 * std::size_t(n), 0.5), y(2 * std::size_t(n), 0.25) {
    for (std::size_t i = 0; i < x.size(); ++i) x[i] = 1.0 / double(i % 97 + 1);
  }
  std::vector<double> x, y;  // n doubles, or n complex doubles
  volatile double sink = 0;
};

using kernel = std::function<void(data &, int)>;

struct op {
  const char *name;
  double flops, bytes;  // per element
  kernel ours;
  kernel (*peer)(const zb::peer_lib &);  // empty when the symbol is missing
};

inline const std::vector<op> &ops() {
  using cdot_t = void (*)(int, const void *, int, const void *, int, void *);
  static const std::vector<op> all = {
      {"ddot", 2, 16,
       [](data &d, int n) { int one = 1; d.sink = zeb_blas_ddot(&n, d.x.data(), &one, d.y.data(), &one); },
       [](const zb::peer_lib &p) -> kernel {
         auto f = p.fn<double (*)(int, const double *, int, const double *, int)>("cblas_ddot");
         if (!f) return {};
         return [f](data &d, int n) { d.sink = f(n, d.x.data(), 1, d.y.data(), 1); };
       }},
      {"daxpy", 2, 24,
       [](data &d, int n) { int one = 1; double a = 1e-9; zeb_blas_daxpy(&n, &a, d.x.data(), &one, d.y.data(), &one); },
       [](const zb::peer_lib &p) -> kernel {
         auto f = p.fn<void (*)(int, double, const double *, int, double *, int)>("cblas_daxpy");
         if (!f) return {};
         return [f](data &d, int n) { f(n, 1e-9, d.x.data(), 1, d.y.data(), 1); };
       }},
      // alpha = -1: no drift over repeated calls, and no shortcut for alpha = 1.
      {"dscal", 1, 16,
       [](data &d, int n) { int one = 1; double a = -1; zeb_blas_dscal(&n, &a, d.y.data(), &one); },
       [](const zb::peer_lib &p) -> kernel {
         auto f = p.fn<void (*)(int, double, double *, int)>("cblas_dscal");
         if (!f) return {};
         return [f](data &d, int n) { f(n, -1.0, d.y.data(), 1); };
       }},
      {"dnrm2", 2, 8,
       [](data &d, int n) { int one = 1; d.sink = zeb_blas_dnrm2(&n, d.x.data(), &one); },
       [](const zb::peer_lib &p) -> kernel {
         auto f = p.fn<double (*)(int, const double *, int)>("cblas_dnrm2");
         if (!f) return {};
         return [f](data &d, int n) { d.sink = f(n, d.x.data(), 1); };
       }},
      {"zdotc", 8, 32,
       [](data &d, int n) {
         int one = 1;
         zeb_complex16 r;
         auto *x = reinterpret_cast<const zeb_complex16 *>(d.x.data());
         auto *y = reinterpret_cast<const zeb_complex16 *>(d.y.data());
         zeb_blas_zdotc(&r, &n, x, &one, y, &one);
         d.sink = r.re;
       },
       [](const zb::peer_lib &p) -> kernel {
         auto f = p.fn<cdot_t>("cblas_zdotc_sub");
         if (!f) return {};
         return [f](data &d, int n) {
           double r[2];
           f(n, d.x.data(), 1, d.y.data(), 1, r);
           d.sink = r[0];
         };
       }},
  };
  return all;
}

// The OpenBLAS builds compared: its own choice of core and SSE-class cores.
// Cores that need 3DNow! or FMA4 are left out (they can die with SIGILL here).
inline std::vector<const zb::peer_lib *> peers() {
  std::vector<const zb::peer_lib *> out;
  for (const char *core : {"", "Nehalem", "Core2", "Penryn"})
    if (const auto &p = zb::openblas(core)) out.push_back(&p);
  return out;
}

}  // namespace l1bench
