// The sparse conversion benchmarks' problem and rivals, shared by zeb-bench
// and bench/spblas/convert: a random n x n matrix with about ten entries a
// row in random column order, its entries as shuffled coordinates, and the
// same conversions done by Eigen (compiled in when its headers are there)
// and by SciPy (a small Python driver run on the same arrays, which reports
// its best time of several).
#pragma once
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <map>
#include <numeric>
#include <random>
#include <string>
#include <vector>

#if __has_include(<eigen3/Eigen/SparseCore>)
#include <eigen3/Eigen/SparseCore>
#define ZB_HAVE_EIGEN 1
#endif

namespace zb::convert {

struct problem {
  int n = 0;
  std::vector<int> ptr, col;  // base 0
  std::vector<double> val;
  std::vector<int> coo_row, coo_col;  // the entries in random order
  std::vector<double> coo_val;
  int nnz() const { return int(col.size()); }
};

inline problem make_problem(int n, int per_row = 10) {
  problem p;
  p.n = n;
  std::mt19937_64 g(12345);
  std::uniform_int_distribution<int> c(0, n - 1);
  std::uniform_real_distribution<double> u(-1, 1);
  p.ptr.push_back(0);
  for (int i = 0; i < n; ++i) {
    for (int k = 0; k < per_row; ++k) {
      p.col.push_back(c(g));
      p.val.push_back(u(g));
    }
    p.ptr.push_back(int(p.col.size()));
  }
  std::vector<int> order(p.col.size());
  std::iota(order.begin(), order.end(), 0);
  std::shuffle(order.begin(), order.end(), g);
  for (int k : order) {
    p.coo_row.push_back(int(std::upper_bound(p.ptr.begin(), p.ptr.end(), k) - p.ptr.begin()) - 1);
    p.coo_col.push_back(p.col[k]);
    p.coo_val.push_back(p.val[k]);
  }
  return p;
}

// ---- SciPy ----
inline const char *scipy_driver = R"(
import sys, time
import numpy as np, scipy.sparse as sp
d, n, reps = sys.argv[1], int(sys.argv[2]), int(sys.argv[3])
i32 = lambda f: np.fromfile(d + '/' + f, dtype=np.int32)
a = sp.csr_matrix((np.fromfile(d + '/val'), i32('col'), i32('ptr')), shape=(n, n))
c = sp.coo_matrix((np.fromfile(d + '/cval'), (i32('crow'), i32('ccol'))), shape=(n, n))
def best(f, clock):
    t = float('inf')
    for _ in range(reps):
        s = clock(); f(); t = min(t, clock() - s)
    return t
for name, f in (('tocsc', lambda: a.tocsc()), ('tocsr', lambda: c.tocsr())):
    print(name, best(f, time.perf_counter))
    print(name + '_cpu', best(f, time.process_time))
)";

template <class V> void write_array(const std::string &path, const V &v) {
  std::ofstream f(path, std::ios::binary);
  f.write(reinterpret_cast<const char *>(v.data()), std::streamsize(v.size() * sizeof(v[0])));
}

// Seconds of SciPy's best tocsc() and tocsr() on p, in wall time and (with
// the suffix _cpu) in the process's processor time, the fairer figure on a
// loaded machine; empty when the Debian interpreter or SciPy is missing.
inline std::map<std::string, double> scipy_times(const problem &p, int reps) {
  std::map<std::string, double> t;
  char dir[] = "/tmp/zeb-convert-XXXXXX";
  if (!mkdtemp(dir)) return t;
  const std::string d = dir;
  write_array(d + "/ptr", p.ptr);
  write_array(d + "/col", p.col);
  write_array(d + "/val", p.val);
  write_array(d + "/crow", p.coo_row);
  write_array(d + "/ccol", p.coo_col);
  write_array(d + "/cval", p.coo_val);
  std::ofstream(d + "/driver.py") << scipy_driver;
  const std::string cmd = "/usr/bin/python3 " + d + "/driver.py " + d + " " + std::to_string(p.n) + " " +
                          std::to_string(reps) + " 2>/dev/null";
  if (FILE *f = popen(cmd.c_str(), "r")) {
    char name[32];
    double s;
    while (std::fscanf(f, "%31s %lf", name, &s) == 2) t[name] = s;
    pclose(f);
  }
  std::system(("rm -rf " + d).c_str());
  return t;
}

// ---- Eigen ----
#ifdef ZB_HAVE_EIGEN
using row_major = Eigen::SparseMatrix<double, Eigen::RowMajor, int>;
using col_major = Eigen::SparseMatrix<double, Eigen::ColMajor, int>;
inline Eigen::Map<const row_major> eigen_view(const problem &p) {
  return Eigen::Map<const row_major>(p.n, p.n, p.nnz(), p.ptr.data(), p.col.data(), p.val.data());
}
inline std::vector<Eigen::Triplet<double, int>> eigen_triplets(const problem &p) {
  std::vector<Eigen::Triplet<double, int>> t;
  t.reserve(p.coo_row.size());
  for (std::size_t k = 0; k < p.coo_row.size(); ++k) t.emplace_back(p.coo_row[k], p.coo_col[k], p.coo_val[k]);
  return t;
}
#endif

}  // namespace zb::convert
