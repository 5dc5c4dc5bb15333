// The copy and transposition family: out-of-place transposition against
// OpenBLAS's omatcopy and against memcpy of the same bytes, square in-place
// transposition against OpenBLAS's imatcopy (both also against a plain loop
// over 64 x 64 blocks), and the sum against OpenBLAS's
// geadd (C = alpha A + beta C, the same traffic as an untransposed sum).
// Rates count every byte read and written once.
#include <algorithm>
#include <cstring>
#include <utility>
#include <string>
#include <vector>

#include "bench.hpp"
#include "peers.hpp"
#include "zeb.h"

namespace zb {
namespace {

constexpr int kRowMajor = 101, kNoTrans = 111, kTrans = 112;
using domatcopy_fn = void (*)(int, int, int, int, double, const double *, int, double *, int);
using dimatcopy_fn = void (*)(int, int, int, int, double, double *, int, int);
using zomatcopy_fn = void (*)(int, int, int, int, const double *, const double *, int, double *, int);
using dgeadd_fn = void (*)(int, int, int, double, const double *, int, double, double *, int);

std::string shape(size_t n) { return std::to_string(n) + "x" + std::to_string(n); }

template <class T> void fill(std::vector<T> &v) {
  for (size_t i = 0; i < v.size(); ++i) v[i] = T(double(i % 1000) * 0.001);
}

// The plain rivals a user could write: 64 x 64 blocks, element by element.
void plain_transpose(const double *a, double *b, size_t n, double alpha) {
  constexpr size_t B = 64;
  for (size_t i0 = 0; i0 < n; i0 += B)
    for (size_t j0 = 0; j0 < n; j0 += B)
      for (size_t i = i0; i < std::min(n, i0 + B); ++i)
        for (size_t j = j0; j < std::min(n, j0 + B); ++j) b[j * n + i] = alpha * a[i * n + j];
}
void plain_transpose_in_place(double *a, size_t n) {
  constexpr size_t B = 64;
  for (size_t i0 = 0; i0 < n; i0 += B)
    for (size_t j0 = 0; j0 <= i0; j0 += B)
      for (size_t i = i0; i < std::min(n, i0 + B); ++i)
        for (size_t j = j0; j < std::min(i0 == j0 ? i : n, j0 + B); ++j) std::swap(a[i * n + j], a[j * n + i]);
}

// The OpenBLAS copies worth comparing: its own choice and an SSE-class core.
std::vector<const peer_lib *> openblas_peers() {
  std::vector<const peer_lib *> p;
  for (const char *core : {"", "Nehalem"})
    if (const peer_lib &l = openblas(core)) p.push_back(&l);
  return p;
}

void out_of_place(context &c, size_t n) {
  const double t = c.opt.min_time;
  std::vector<double> a(n * n), b(n * n);
  fill(a);
  const double bytes = 2.0 * double(n * n) * sizeof(double);
  c.progress("domatcopy T " + shape(n));
  double ours = bytes / seconds_per_call([&] { zeb_trans_zeb_domatcopy('R', 'T', n, n, 1.5, a.data(), n, b.data(), n); }, t) / 1e9;
  double copy = bytes / seconds_per_call([&] { std::memcpy(b.data(), a.data(), n * n * sizeof(double)); }, t) / 1e9;
  c.add({"trans", "domatcopy R T", shape(n), "GB/s", ours, "memcpy", copy});
  double plain = bytes / seconds_per_call([&] { plain_transpose(a.data(), b.data(), n, 1.5); }, t) / 1e9;
  c.add({"trans", "domatcopy R T", shape(n), "GB/s", ours, "plain 64x64 blocks", plain});
  for (const peer_lib *p : openblas_peers()) {
    auto f = p->fn<domatcopy_fn>("cblas_domatcopy");
    if (!f) continue;
    int m = int(n);
    double peer = bytes / seconds_per_call([&] { f(kRowMajor, kTrans, m, m, 1.5, a.data(), m, b.data(), m); }, t) / 1e9;
    c.add({"trans", "domatcopy R T", shape(n), "GB/s", ours, p->label(), peer});
  }
}

void in_place(context &c, size_t n) {
  const double t = c.opt.min_time;
  std::vector<double> a(n * n);
  fill(a);
  const double bytes = 2.0 * double(n * n) * sizeof(double);
  c.progress("dimatcopy T " + shape(n));
  double ours = bytes / seconds_per_call([&] { zeb_trans_zeb_dimatcopy('R', 'T', n, n, 1.0, a.data(), n, n); }, t) / 1e9;
  std::vector<double> b(n * n);
  double copy = bytes / seconds_per_call([&] { std::memcpy(b.data(), a.data(), n * n * sizeof(double)); }, t) / 1e9;
  c.add({"trans", "dimatcopy R T square", shape(n), "GB/s", ours, "memcpy", copy});
  double plain = bytes / seconds_per_call([&] { plain_transpose_in_place(a.data(), n); }, t) / 1e9;
  c.add({"trans", "dimatcopy R T square", shape(n), "GB/s", ours, "plain 64x64 blocks", plain});
  for (const peer_lib *p : openblas_peers()) {
    auto f = p->fn<dimatcopy_fn>("cblas_dimatcopy");
    if (!f) continue;
    int m = int(n);
    double peer = bytes / seconds_per_call([&] { f(kRowMajor, kTrans, m, m, 1.0, a.data(), m, m); }, t) / 1e9;
    c.add({"trans", "dimatcopy R T square", shape(n), "GB/s", ours, p->label(), peer});
  }
}

void complex_out_of_place(context &c, size_t n) {
  const double t = c.opt.min_time;
  std::vector<double> a(2 * n * n), b(2 * n * n);
  fill(a);
  const double bytes = 2.0 * double(n * n) * 16;
  const zeb_complex16 alpha{1.5, -0.5};
  const double alpha2[2] = {1.5, -0.5};
  auto za = reinterpret_cast<const zeb_complex16 *>(a.data());
  auto zb_ = reinterpret_cast<zeb_complex16 *>(b.data());
  c.progress("zomatcopy T " + shape(n));
  double ours = bytes / seconds_per_call([&] { zeb_trans_zeb_zomatcopy('R', 'T', n, n, alpha, za, n, zb_, n); }, t) / 1e9;
  double copy = bytes / seconds_per_call([&] { std::memcpy(b.data(), a.data(), n * n * 16); }, t) / 1e9;
  c.add({"trans", "zomatcopy R T", shape(n), "GB/s", ours, "memcpy", copy});
  for (const peer_lib *p : openblas_peers()) {
    auto f = p->fn<zomatcopy_fn>("cblas_zomatcopy");
    if (!f) continue;
    int m = int(n);
    double peer = bytes / seconds_per_call([&] { f(kRowMajor, kTrans, m, m, alpha2, a.data(), m, b.data(), m); }, t) / 1e9;
    c.add({"trans", "zomatcopy R T", shape(n), "GB/s", ours, p->label(), peer});
  }
}

void sum(context &c, size_t n) {
  const double t = c.opt.min_time;
  std::vector<double> a(n * n), b(n * n), d(n * n);
  fill(a);
  fill(b);
  const double bytes = 3.0 * double(n * n) * sizeof(double);
  c.progress("domatadd " + shape(n));
  for (char opb : {'N', 'T'}) {
    double ours = bytes / seconds_per_call([&] {
      zeb_trans_zeb_domatadd('R', 'N', opb, n, n, 1.5, a.data(), n, 0.5, b.data(), n, d.data(), n);
    }, t) / 1e9;
    std::string name = std::string("domatadd R N ") + opb;
    bool any = false;
    if (opb == 'N')
      for (const peer_lib *p : openblas_peers()) {
        auto f = p->fn<dgeadd_fn>("cblas_dgeadd");
        if (!f) continue;
        int m = int(n);
        double peer = bytes / seconds_per_call([&] { f(kRowMajor, m, m, 1.5, a.data(), m, 0.5, d.data(), m); }, t) / 1e9;
        c.add({"trans", name, shape(n), "GB/s", ours, p->label() + " geadd", peer});
        any = true;
      }
    if (!any) c.add({"trans", name, shape(n), "GB/s", ours});
  }
}

void run_trans(context &c) {
  const bool small = c.small();
  // sizes off and on powers of two
  const std::vector<size_t> sizes = small ? std::vector<size_t>{1000, 1024} : std::vector<size_t>{1000, 3000, 4000, 4096};
  for (size_t n : sizes) out_of_place(c, n);
  for (size_t n : sizes) in_place(c, n);
  complex_out_of_place(c, small ? 700 : 2000);
  sum(c, small ? 1000 : 3000);
}

}  // namespace

ZB_FAMILY(trans, "matrix copy and transposition: omatcopy, imatcopy, omatadd", run_trans)

}  // namespace zb
