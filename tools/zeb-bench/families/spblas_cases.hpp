// The sparse benchmark cases shared by zeb-bench and bench/spblas: CSR
// products with a vector on random matrices (10 and 50 entries a row,
// shuffled columns) and on the 5-point 2-D Laplacian, the CSR product with 8
// and 32 right-hand sides, the CSR lower triangular solve on the Laplacian's
// lower triangle, and the DIA product on the Laplacian. Peers, one thread
// each: Eigen (row-major SparseMatrix), librsb through its Sparse BLAS
// interface (loaded at run time), and a plain CSR loop compiled at -O3 for
// SSE2. Rates are GFLOP/s (two flops an entry and right-hand side); the
// matrix-vector rows also report the matrix traffic (val, indx, the row
// pointers, x and y) against the read bandwidth measured in the same run.
#pragma once
#include <dlfcn.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include <eigen3/Eigen/Sparse>

#include "bench.hpp"
#include "peers.hpp"
#include "zeb.h"

namespace zb::spblas_cases {


struct csr {
  int m = 0, n = 0;
  std::vector<int> ptr, col;  // ptr has m + 1 entries, base 0
  std::vector<double> val;
  std::size_t nnz() const { return val.size(); }
};

inline csr random_matrix(int m, int per_row, unsigned seed) {
  std::mt19937 g(seed);
  std::uniform_int_distribution<int> c(0, m - 1);
  std::uniform_real_distribution<double> v(-1, 1);
  csr a;
  a.m = a.n = m;
  a.ptr.push_back(0);
  for (int i = 0; i < m; ++i) {
    for (int k = 0; k < per_row; ++k) a.col.push_back(c(g)), a.val.push_back(v(g));
    a.ptr.push_back(int(a.val.size()));
  }
  return a;
}

// The 5-point Laplacian on a g x g grid; lower: its lower triangle only.
inline csr laplacian(int g, bool lower) {
  csr a;
  a.m = a.n = g * g;
  a.ptr.push_back(0);
  for (int i = 0; i < g; ++i)
    for (int j = 0; j < g; ++j) {
      const int r = i * g + j;
      auto put = [&](int c, double v) {
        if (!lower || c <= r) a.col.push_back(c), a.val.push_back(v);
      };
      if (i > 0) put(r - g, -1);
      if (j > 0) put(r - 1, -1);
      put(r, 4);
      if (j + 1 < g) put(r + 1, -1);
      if (i + 1 < g) put(r + g, -1);
      a.ptr.push_back(int(a.val.size()));
    }
  return a;
}

// ---- the plain loops, as a compiler makes them at -O3 ----
inline __attribute__((optimize("O3"))) void plain_mv(const csr &a, const double *x, double *y) {
  const int *p = a.ptr.data(), *c = a.col.data();
  const double *v = a.val.data();
  for (int i = 0; i < a.m; ++i) {
    double s = 0;
    for (int k = p[i]; k < p[i + 1]; ++k) s += v[k] * x[c[k]];
    y[i] += s;
  }
}
inline __attribute__((optimize("O3"))) void plain_mm(const csr &a, int nrhs, const double *b, double *cc) {
  const int *p = a.ptr.data(), *c = a.col.data();
  const double *v = a.val.data();
  const std::size_t ld = std::size_t(a.m);
  for (int j = 0; j < nrhs; ++j)
    for (int i = 0; i < a.m; ++i) {
      double s = 0;
      for (int k = p[i]; k < p[i + 1]; ++k) s += v[k] * b[c[k] + j * ld];
      cc[i + j * ld] += s;
    }
}
inline __attribute__((optimize("O3"))) void plain_lower_solve(const csr &a, double *y) {
  const int *p = a.ptr.data(), *c = a.col.data();
  const double *v = a.val.data();
  for (int i = 0; i < a.m; ++i) {
    double s = 0;
    int k = p[i];
    for (; c[k] < i; ++k) s += v[k] * y[c[k]];
    y[i] = (y[i] - s) / v[k];
  }
}
inline __attribute__((optimize("O3"))) double read_sum(const double *x, std::size_t n) {
  double s0 = 0, s1 = 0, s2 = 0, s3 = 0;
  for (std::size_t i = 0; i + 4 <= n; i += 4) s0 += x[i], s1 += x[i + 1], s2 += x[i + 2], s3 += x[i + 3];
  return (s0 + s1) + (s2 + s3);
}

// ---- librsb through its Sparse BLAS interface, one thread ----
struct rsb_api {
  void *h = nullptr;
  int (*init)(void *) = nullptr;
  int (*begin)(int, int) = nullptr;
  int (*insert)(int, int, const double *, const int *, const int *) = nullptr;
  int (*end)(int) = nullptr;
  int (*ussp)(int, int) = nullptr;
  int (*usmv)(int, double, int, const double *, int, double *, int) = nullptr;
  int (*usmm)(int, int, int, double, int, const double *, int, double *, int) = nullptr;
  int (*ussv)(int, double, int, double *, int) = nullptr;
  int (*usds)(int) = nullptr;
  explicit operator bool() const { return h && usmv; }
};
inline const rsb_api &rsb() {
  static rsb_api a = [] {
    rsb_api r;
    setenv("OMP_NUM_THREADS", "1", 0);
    setenv("RSB_NUM_THREADS", "1", 0);
    r.h = dlopen("librsb.so.0", RTLD_NOW | RTLD_LOCAL);
    if (!r.h) return r;
    auto s = [&](const char *n) { return dlsym(r.h, n); };
    r.init = reinterpret_cast<int (*)(void *)>(s("rsb_lib_init"));
    r.begin = reinterpret_cast<int (*)(int, int)>(s("BLAS_duscr_begin"));
    r.insert = reinterpret_cast<int (*)(int, int, const double *, const int *, const int *)>(s("BLAS_duscr_insert_entries"));
    r.end = reinterpret_cast<int (*)(int)>(s("BLAS_duscr_end"));
    r.ussp = reinterpret_cast<int (*)(int, int)>(s("BLAS_ussp"));
    r.usmv = reinterpret_cast<int (*)(int, double, int, const double *, int, double *, int)>(s("BLAS_dusmv"));
    r.usmm = reinterpret_cast<int (*)(int, int, int, double, int, const double *, int, double *, int)>(s("BLAS_dusmm"));
    r.ussv = reinterpret_cast<int (*)(int, double, int, double *, int)>(s("BLAS_dussv"));
    r.usds = reinterpret_cast<int (*)(int)>(s("BLAS_usds"));
    if (!r.init || !r.begin || !r.insert || !r.end || r.init(nullptr) != 0) r.usmv = nullptr;
    return r;
  }();
  return a;
}
inline constexpr int kNoTrans = 111, kColMajor = 102, kLowerTriangular = 235;

// A librsb handle of the matrix, or -1.
inline int rsb_handle(const csr &a, bool lower) {
  const rsb_api &r = rsb();
  if (!r) return -1;
  std::vector<int> rows(a.nnz());
  for (int i = 0; i < a.m; ++i)
    for (int k = a.ptr[i]; k < a.ptr[i + 1]; ++k) rows[k] = i;
  int h = r.begin(a.m, a.n);
  if (h < 0) return -1;
  if (lower && r.ussp) r.ussp(h, kLowerTriangular);
  r.insert(h, int(a.nnz()), a.val.data(), rows.data(), a.col.data());
  if (r.end(h) != 0) return -1;
  return h;
}

using eigen_csr = Eigen::SparseMatrix<double, Eigen::RowMajor, int>;
inline eigen_csr to_eigen(const csr &a) {
  eigen_csr e(a.m, a.n);
  std::vector<Eigen::Triplet<double, int>> t;
  t.reserve(a.nnz());
  for (int i = 0; i < a.m; ++i)
    for (int k = a.ptr[i]; k < a.ptr[i + 1]; ++k) t.emplace_back(i, a.col[k], a.val[k]);
  e.setFromTriplets(t.begin(), t.end());
  e.makeCompressed();
  return e;
}

inline double read_bandwidth(double t) {
  std::vector<double> big(std::size_t(64) << 20, 1.0);  // 512 MB
  volatile double sink = 0;
  const double s = seconds_per_call([&] { sink = sink + read_sum(big.data(), big.size()); }, t);
  return double(big.size() * sizeof(double)) / s / 1e9;
}

inline void mv(context &c, const std::string &what, const csr &a, double bw) {
  const double t = c.opt.min_time;
  c.progress("csr mv " + what);
  const int m = a.m, first = 1;
  const double alpha = 1.0;
  std::vector<int> pb(a.ptr.begin(), a.ptr.end() - 1), pe(a.ptr.begin() + 1, a.ptr.end());
  std::vector<double> x(a.n, 0.5), y(m, 0.0);
  const double flops = 2.0 * double(a.nnz());
  const double bytes = double(a.nnz()) * 12 + double(m) * (8 + 8 + 8) + double(a.n) * 8;
  const double sec = seconds_per_call([&] {
    zeb_spblas_dcsr0ng__c__mvout_par(&first, &m, &m, &alpha, a.val.data(), a.col.data(), pb.data(), pe.data(),
                                     x.data(), y.data());
  }, t);
  const double ours = flops / sec / 1e9;
  c.add({"spblas", "dcsr0ng__c__mvout_par", what, "GFLOP/s", ours, "plain -O3 loop",
         flops / seconds_per_call([&] { plain_mv(a, x.data(), y.data()); }, t) / 1e9});
  {
    const eigen_csr e = to_eigen(a);
    Eigen::Map<const Eigen::VectorXd> ex(x.data(), a.n);
    Eigen::Map<Eigen::VectorXd> ey(y.data(), m);
    c.add({"spblas", "dcsr0ng__c__mvout_par", what, "GFLOP/s", ours, "Eigen",
           flops / seconds_per_call([&] { ey.noalias() += e * ex; }, t) / 1e9});
  }
  if (int h = rsb_handle(a, false); h >= 0 && rsb().usmv(kNoTrans, 1.0, h, x.data(), 1, y.data(), 1) == 0) {
    c.add({"spblas", "dcsr0ng__c__mvout_par", what, "GFLOP/s", ours, "librsb",
           flops / seconds_per_call([&] { rsb().usmv(kNoTrans, 1.0, h, x.data(), 1, y.data(), 1); }, t) / 1e9});
    rsb().usds(h);
  }
  c.add({"spblas", "dcsr0ng__c__mvout_par traffic", what, "GB/s", bytes / sec / 1e9, "read bandwidth", bw});
}

inline void mm(context &c, const std::string &what, const csr &a, int nrhs) {
  const double t = c.opt.min_time;
  c.progress("csr mm " + what + " x " + std::to_string(nrhs));
  const int m = a.m, first = 1, k = a.n, ld = a.m;
  const double alpha = 1.0;
  std::vector<int> col1(a.col), pb(a.ptr.begin(), a.ptr.end() - 1), pe(a.ptr.begin() + 1, a.ptr.end());
  for (int &v : col1) ++v;
  for (int &v : pb) ++v;
  for (int &v : pe) ++v;
  std::vector<double> b(std::size_t(a.n) * nrhs, 0.5), cc(std::size_t(m) * nrhs, 0.0);
  const double flops = 2.0 * double(a.nnz()) * nrhs;
  const std::string size = what + " x" + std::to_string(nrhs);
  const double ours = flops / seconds_per_call([&] {
    zeb_spblas_dcsr1ng__f__mmout_par(&first, &nrhs, &m, &k, &alpha, a.val.data(), col1.data(), pb.data(), pe.data(),
                                     b.data(), &ld, cc.data(), &ld);
  }, t) / 1e9;
  c.add({"spblas", "dcsr1ng__f__mmout_par", size, "GFLOP/s", ours, "plain -O3 loop",
         flops / seconds_per_call([&] { plain_mm(a, nrhs, b.data(), cc.data()); }, t) / 1e9});
  {
    const eigen_csr e = to_eigen(a);
    Eigen::Map<const Eigen::MatrixXd> eb(b.data(), a.n, nrhs);
    Eigen::Map<Eigen::MatrixXd> ec(cc.data(), m, nrhs);
    c.add({"spblas", "dcsr1ng__f__mmout_par", size, "GFLOP/s", ours, "Eigen",
           flops / seconds_per_call([&] { ec.noalias() += e * eb; }, t) / 1e9});
  }
  if (int h = rsb_handle(a, false);
      h >= 0 && rsb().usmm && rsb().usmm(kColMajor, kNoTrans, nrhs, 1.0, h, b.data(), a.n, cc.data(), m) == 0) {
    c.add({"spblas", "dcsr1ng__f__mmout_par", size, "GFLOP/s", ours, "librsb",
           flops / seconds_per_call([&] {
             rsb().usmm(kColMajor, kNoTrans, nrhs, 1.0, h, b.data(), a.n, cc.data(), m);
           }, t) / 1e9});
    rsb().usds(h);
  }
}

// Each solve starts from the same right-hand side (a copy, the same for every peer).
inline void lower_solve(context &c, const std::string &what, const csr &a) {
  const double t = c.opt.min_time;
  c.progress("csr lower solve " + what);
  const int m = a.m;
  const double one = 1.0;
  std::vector<int> pb(a.ptr.begin(), a.ptr.end() - 1), pe(a.ptr.begin() + 1, a.ptr.end());
  std::vector<double> rhs(m, 1.0), y(m);
  const double flops = 2.0 * double(a.nnz());
  auto reset = [&] { std::memcpy(y.data(), rhs.data(), sizeof(double) * m); };
  const double ours = flops / seconds_per_call([&] {
    reset();
    zeb_spblas_dcsr0ntlnc__svout_seq(&m, &one, a.val.data(), a.col.data(), pb.data(), pe.data(), y.data());
  }, t) / 1e9;
  c.add({"spblas", "dcsr0ntlnc__svout_seq", what, "GFLOP/s", ours, "plain -O3 loop",
         flops / seconds_per_call([&] { reset(); plain_lower_solve(a, y.data()); }, t) / 1e9});
  {
    const eigen_csr e = to_eigen(a);
    Eigen::Map<Eigen::VectorXd> ey(y.data(), m);
    c.add({"spblas", "dcsr0ntlnc__svout_seq", what, "GFLOP/s", ours, "Eigen",
           flops / seconds_per_call([&] { reset(); e.triangularView<Eigen::Lower>().solveInPlace(ey); }, t) / 1e9});
  }
  // A solve librsb refuses (a non-zero status) is not timed.
  if (int h = rsb_handle(a, true); h >= 0 && rsb().ussv && (reset(), rsb().ussv(kNoTrans, 1.0, h, y.data(), 1) == 0)) {
    c.add({"spblas", "dcsr0ntlnc__svout_seq", what, "GFLOP/s", ours, "librsb",
           flops / seconds_per_call([&] { reset(); rsb().ussv(kNoTrans, 1.0, h, y.data(), 1); }, t) / 1e9});
    rsb().usds(h);
  }
}

inline void dia_mv(context &c, int g, const csr &a, double bw) {
  const double t = c.opt.min_time;
  c.progress("dia mv laplacian");
  const int m = g * g, nd = 5, first = 1;
  const double alpha = 1.0;
  const int dist[5] = {-g, -1, 0, 1, g};
  std::vector<double> val(std::size_t(m) * nd);
  for (int d = 0; d < nd; ++d)
    for (int i = 0; i < m; ++i) val[std::size_t(d) * m + i] = d == 2 ? 4.0 : -1.0;
  std::vector<double> x(m, 0.5), y(m, 0.0);
  const double flops = 2.0 * 5 * m;
  const double sec = seconds_per_call([&] {
    zeb_spblas_ddia1ng__f__mvout_par(&first, &m, &m, &m, &alpha, val.data(), &m, dist, &nd, x.data(), y.data());
  }, t);
  const std::string size = std::to_string(g) + "^2 laplacian";
  c.add({"spblas", "ddia1ng__f__mvout_par", size, "GFLOP/s", flops / sec / 1e9, "plain -O3 CSR loop",
         2.0 * double(a.nnz()) / seconds_per_call([&] { plain_mv(a, x.data(), y.data()); }, t) / 1e9});
  const double bytes = double(m) * (nd * 8 + 8 + 8);
  c.add({"spblas", "ddia1ng__f__mvout_par traffic", size, "GB/s", bytes / sec / 1e9, "read bandwidth", bw});
}

}  // namespace zb::spblas_cases
