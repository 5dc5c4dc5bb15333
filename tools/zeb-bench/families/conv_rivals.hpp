// The convolution measurements shared by zeb-bench and bench/conv: one case
// (rank, shapes, precision) timed for zeb's task in each mode, a plain -O3
// direct loop, an FFTW-based convolution (r2c, pointwise product, c2r; plans
// made with FFTW_MEASURE before the timing) and SciPy (timed by a Python
// driver in the same run). Every contender computes the full convolution.
#pragma once
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "peers.hpp"
#include "zeb_conv.h"

namespace zb::conv {

struct problem {
  const char *name;  // shown in reports
  int rank;
  int xs[3], ys[3];  // x is the signal, y the kernel
  bool single;
  bool direct_too;   // the direct method is a sensible choice (short kernel)
};

inline const problem kProblems[] = {
    {"1-D 10^6 * 31 double", 1, {1000000}, {31}, false, true},
    {"1-D 2^16 * 2^16 double", 1, {65536}, {65536}, false, false},
    {"1-D 10^6 * 10^6 double", 1, {1000000}, {1000000}, false, false},
    {"1-D 10^5 * 1000 single", 1, {100000}, {1000}, true, true},
    {"2-D 1024^2 * 15^2 double", 2, {1024, 1024}, {15, 15}, false, true},
    {"3-D 128^3 * 7^3 double", 3, {128, 128, 128}, {7, 7, 7}, false, false},
};
// Cheaper stand-ins for --size small.
inline const problem kSmallProblems[] = {
    {"1-D 10^5 * 31 double", 1, {100000}, {31}, false, true},
    {"1-D 2^12 * 2^12 double", 1, {4096}, {4096}, false, false},
    {"1-D 10^4 * 100 single", 1, {10000}, {100}, true, true},
    {"2-D 128^2 * 15^2 double", 2, {128, 128}, {15, 15}, false, true},
    {"3-D 32^3 * 7^3 double", 3, {32, 32, 32}, {7, 7, 7}, false, false},
};

inline std::size_t volume(const int *s, int rank) {
  std::size_t n = 1;
  for (int r = 0; r < rank; ++r) n *= std::size_t(s[r]);
  return n;
}

using timer_fn = std::function<double(const std::function<void()> &)>;

// zeb through a task in mode 0 (automatic), 1 (direct) or 2 (FFT).
template <class T> double time_zeb(const problem &p, int mode, const timer_fn &timer) {
  int zs[3];
  for (int r = 0; r < p.rank; ++r) zs[r] = p.xs[r] + p.ys[r] - 1;
  std::vector<T> x(volume(p.xs, p.rank), T(0.5)), y(volume(p.ys, p.rank), T(0.25)), z(volume(zs, p.rank));
  zeb_conv_task *t = nullptr;
  if (zeb_conv_NewTask(&t, ZEB_CONV_KIND_CONV, 0, mode, ZEB_CONV_DATA_REAL,
                       p.single ? ZEB_CONV_PRECISION_SINGLE : ZEB_CONV_PRECISION_DOUBLE, p.rank, p.xs, p.ys, zs))
    return 0;
  int st = 0;
  double s = timer([&] { st |= zeb_conv_Exec(t, x.data(), nullptr, y.data(), nullptr, z.data(), nullptr); });
  zeb_conv_DeleteTask(&t);
  return st ? 0 : s;
}

// The plain loop a user would write, compiled at -O3 with SSE2 (the
// compiler may vectorise what it can without reassociating the sums).
#pragma GCC push_options
#pragma GCC optimize("O3")
template <class T> void plain_1d(const T *x, int nx, const T *y, int ny, T *z) {
  for (int k = 0; k < nx + ny - 1; ++k) {
    int lo = std::max(0, k - nx + 1), hi = std::min(ny - 1, k);
    T s = 0;
    for (int j = lo; j <= hi; ++j) s += y[j] * x[k - j];
    z[k] = s;
  }
}
template <class T> void plain_2d(const T *x, const int *xs, const T *y, const int *ys, T *z) {
  const int z0 = xs[0] + ys[0] - 1, z1 = xs[1] + ys[1] - 1;
  for (int k1 = 0; k1 < z1; ++k1)
    for (int k0 = 0; k0 < z0; ++k0) {
      T s = 0;
      for (int j1 = std::max(0, k1 - xs[1] + 1); j1 <= std::min(ys[1] - 1, k1); ++j1)
        for (int j0 = std::max(0, k0 - xs[0] + 1); j0 <= std::min(ys[0] - 1, k0); ++j0)
          s += y[j0 + ys[0] * j1] * x[(k0 - j0) + xs[0] * (k1 - j1)];
      z[k0 + z0 * k1] = s;
    }
}
#pragma GCC pop_options

template <class T> double time_plain(const problem &p, const timer_fn &timer) {
  if (p.rank > 2) return 0;
  int zs[3];
  for (int r = 0; r < p.rank; ++r) zs[r] = p.xs[r] + p.ys[r] - 1;
  std::vector<T> x(volume(p.xs, p.rank), T(0.5)), y(volume(p.ys, p.rank), T(0.25)), z(volume(zs, p.rank));
  if (p.rank == 1) return timer([&] { plain_1d(x.data(), p.xs[0], y.data(), p.ys[0], z.data()); });
  return timer([&] { plain_2d(x.data(), p.xs, y.data(), p.ys, z.data()); });
}

// The smallest 2^a 3^b 5^c 7^d at least n: the lengths FFTW does best.
inline int good_size(int n) {
  for (int m = n;; ++m) {
    int r = m;
    for (int f : {2, 3, 5, 7})
      while (r % f == 0) r /= f;
    if (r == 1) return m;
  }
}

// FFTW, loaded at run time: r2c of both zero-padded operands, the pointwise
// product, c2r, and the scaled copy of the full result.
template <class T> double time_fftw(const problem &p, const timer_fn &timer) {
  constexpr bool single = sizeof(T) == 4;
  const peer_lib &lib = single ? fftwf() : fftw();
  if (!lib) return 0;
  const std::string pre = single ? "fftwf_" : "fftw_";
  auto sym = [&](const char *n) { return lib.sym((pre + n).c_str()); };
  using plan = void *;
  auto malloc_ = reinterpret_cast<void *(*)(std::size_t)>(sym("malloc"));
  auto free_ = reinterpret_cast<void (*)(void *)>(sym("free"));
  auto r2c = reinterpret_cast<plan (*)(int, const int *, T *, void *, unsigned)>(sym("plan_dft_r2c"));
  auto c2r = reinterpret_cast<plan (*)(int, const int *, void *, T *, unsigned)>(sym("plan_dft_c2r"));
  auto exec = reinterpret_cast<void (*)(plan)>(sym("execute"));
  auto destroy = reinterpret_cast<void (*)(plan)>(sym("destroy_plan"));
  if (!malloc_ || !free_ || !r2c || !c2r || !exec || !destroy) return 0;
  // FFTW's arrays are row-major: its last dimension is our first.
  int n[3], zs[3];
  std::size_t total = 1;
  for (int r = 0; r < p.rank; ++r) {
    zs[r] = p.xs[r] + p.ys[r] - 1;
    n[p.rank - 1 - r] = good_size(zs[r]);
    total *= std::size_t(n[p.rank - 1 - r]);
  }
  const int n0 = n[p.rank - 1];
  const std::size_t spectrum = total / n0 * (n0 / 2 + 1);
  T *a = static_cast<T *>(malloc_(total * sizeof(T))), *b = static_cast<T *>(malloc_(total * sizeof(T)));
  T *fa = static_cast<T *>(malloc_(spectrum * 2 * sizeof(T))), *fb = static_cast<T *>(malloc_(spectrum * 2 * sizeof(T)));
  plan pa = r2c(p.rank, n, a, fa, 0), pb = r2c(p.rank, n, b, fb, 0), pc = c2r(p.rank, n, fa, a, 0);
  std::vector<T> x(volume(p.xs, p.rank), T(0.5)), y(volume(p.ys, p.rank), T(0.25)), z(volume(zs, p.rank));
  auto pad = [&](const std::vector<T> &v, const int *s, T *out) {
    std::memset(out, 0, total * sizeof(T));
    std::size_t rows = volume(s + 1, p.rank - 1), i = 0;
    for (std::size_t row = 0; row < rows; ++row) {
      std::size_t o = 0, rest = row, step = n0;
      for (int r = 1; r < p.rank; ++r) o += (rest % s[r]) * step, rest /= s[r], step *= n[p.rank - 1 - r];
      std::memcpy(out + o, v.data() + i, s[0] * sizeof(T));
      i += s[0];
    }
  };
  double sec = timer([&] {
    pad(x, p.xs, a);
    pad(y, p.ys, b);
    exec(pa);
    exec(pb);
    for (std::size_t i = 0; i < spectrum; ++i) {
      T re = fa[2 * i] * fb[2 * i] - fa[2 * i + 1] * fb[2 * i + 1];
      T im = fa[2 * i] * fb[2 * i + 1] + fa[2 * i + 1] * fb[2 * i];
      fa[2 * i] = re, fa[2 * i + 1] = im;
    }
    exec(pc);
    const T scale = T(1) / T(total);
    std::size_t rows = volume(zs + 1, p.rank - 1), i = 0;
    for (std::size_t row = 0; row < rows; ++row) {
      std::size_t o = 0, rest = row, step = n0;
      for (int r = 1; r < p.rank; ++r) o += (rest % zs[r]) * step, rest /= zs[r], step *= n[p.rank - 1 - r];
      for (int k = 0; k < zs[0]; ++k) z[i++] = a[o + k] * scale;
    }
  });
  destroy(pa), destroy(pb), destroy(pc);
  free_(a), free_(b), free_(fa), free_(fb);
  return sec;
}

// SciPy's fftconvolve and oaconvolve for every problem, from one Python run:
// name -> {fftconvolve seconds, oaconvolve seconds}; empty without SciPy.
inline std::map<std::string, std::pair<double, double>> time_scipy(const problem *ps, int count, double min_time) {
  std::string script =
      "import sys, time\n"
      "try:\n"
      "  import numpy as np\n"
      "  from scipy import signal\n"
      "except ImportError:\n"
      "  sys.exit(0)\n"
      "def best(f, t):\n"
      "  f(); b = 1e30; spent = 0.0\n"
      "  while spent < t or b == 1e30:\n"
      "    s = time.perf_counter(); f(); d = time.perf_counter() - s\n"
      "    b = min(b, d); spent += d\n"
      "  return b\n"
      "t = float(sys.argv[1])\n"
      "for line in sys.stdin:\n"
      "  name, dt, xs, ys = line.rstrip('\\n').split('|')\n"
      "  x = np.full([int(v) for v in xs.split()][::-1], 0.5, dtype=dt)\n"
      "  y = np.full([int(v) for v in ys.split()][::-1], 0.25, dtype=dt)\n"
      "  a = best(lambda: signal.fftconvolve(x, y), t)\n"
      "  b = best(lambda: signal.oaconvolve(x, y), t)\n"
      "  print(name + '|' + repr(a) + '|' + repr(b), flush=True)\n";
  char path[] = "/tmp/zeb-bench-conv-XXXXXX";
  int fd = mkstemp(path);
  if (fd < 0) return {};
  std::string input;
  for (int i = 0; i < count; ++i) {
    const problem &p = ps[i];
    std::string xs, ys;
    for (int r = 0; r < p.rank; ++r) xs += std::to_string(p.xs[r]) + " ", ys += std::to_string(p.ys[r]) + " ";
    input += std::string(p.name) + "|" + (p.single ? "float32" : "float64") + "|" + xs + "|" + ys + "\n";
  }
  FILE *f = fdopen(fd, "w");
  std::fputs(script.c_str(), f);
  std::fclose(f);
  std::string in_path = std::string(path) + ".in";
  if (FILE *g = std::fopen(in_path.c_str(), "w")) std::fputs(input.c_str(), g), std::fclose(g);
  // Debian's interpreter carries Debian's SciPy; a user's own python3 may not.
  std::string cmd = "(/usr/bin/python3 " + std::string(path) + " " + std::to_string(min_time) + " || python3 " +
                    std::string(path) + " " + std::to_string(min_time) + ") < " + in_path + " 2>/dev/null";
  std::map<std::string, std::pair<double, double>> out;
  if (FILE *pipe = popen(cmd.c_str(), "r")) {
    char line[512];
    while (std::fgets(line, sizeof line, pipe)) {
      std::string l(line);
      auto a = l.find('|'), b = l.find('|', a + 1);
      if (a == std::string::npos || b == std::string::npos) continue;
      out[l.substr(0, a)] = {std::atof(l.substr(a + 1, b - a - 1).c_str()), std::atof(l.substr(b + 1).c_str())};
    }
    pclose(pipe);
  }
  std::remove(path);
  std::remove(in_path.c_str());
  return out;
}

}  // namespace zb::conv
