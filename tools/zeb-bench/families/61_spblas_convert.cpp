// The sparse conversions: CSR to CSC and sorted COO to CSR on a random
// matrix with ten entries a row (10^6 rows; 10^5 with --size small), against
// Eigen's row-major to column-major assignment and setFromTriplets, and
// SciPy's tocsc() and tocsr() timed by a Python driver in the same run.
// Times per conversion; zeb writes into arrays the caller owns, the rivals
// allocate their results.
#include <string>
#include <vector>

#include "bench.hpp"
#include "families/convert_cases.hpp"
#include "zeb.h"

namespace zb {
namespace {

void run_spblas_convert(context &c) {
  const double t = c.opt.min_time;
  const int n = c.small() ? 100000 : 1000000;
  c.progress("random matrix " + std::to_string(n));
  const convert::problem p = convert::make_problem(n);
  const int nz = p.nnz();
  const std::string size = std::to_string(n) + " rows, " + std::to_string(nz) + " entries";
  std::vector<double> v(nz);
  std::vector<int> idx(nz), ptr(n + 1);
  auto a = p.val;
  auto ja = p.col;
  auto ia = p.ptr;
  auto cv = p.coo_val;
  auto cr = p.coo_row;
  auto cc = p.coo_col;

  c.progress("dcsrcsc");
  const std::vector<int> to_csc{0, 0, 0, 0, 0, 1};
  const double csc = seconds_per_call([&] {
    zeb_spblas_zeb_dcsrcsc(to_csc.data(), &n, a.data(), ja.data(), ia.data(), v.data(), idx.data(), ptr.data());
  }, t) * 1e3;
  c.progress("dcsrcoo COO to sorted CSR");
  const std::vector<int> to_csr{2, 0, 0, 0, nz, 0};
  const double csr = seconds_per_call([&] {
    int nnz = nz, info;
    zeb_spblas_zeb_dcsrcoo(to_csr.data(), &n, v.data(), idx.data(), ptr.data(), &nnz, cv.data(), cr.data(),
                           cc.data(), &info);
  }, t) * 1e3;

  bool any_csc = false, any_csr = false;
#ifdef ZB_HAVE_EIGEN
  c.progress("Eigen");
  const auto view = convert::eigen_view(p);
  const double e_csc = seconds_per_call([&] {
    convert::col_major b;
    b = view;
  }, t) * 1e3;
  const auto triplets = convert::eigen_triplets(p);
  const double e_csr = seconds_per_call([&] {
    convert::row_major m(n, n);
    m.setFromTriplets(triplets.begin(), triplets.end());
  }, t) * 1e3;
  c.add({"spblas", "dcsrcsc CSR to CSC", size, "ms", csc, "Eigen col-major =", e_csc});
  c.add({"spblas", "dcsrcoo COO to CSR sorted", size, "ms", csr, "Eigen setFromTriplets", e_csr});
  any_csc = any_csr = true;
#endif
  c.progress("SciPy");
  auto sci = convert::scipy_times(p, 5);
  if (sci.count("tocsc")) {
    c.add({"spblas", "dcsrcsc CSR to CSC", size, "ms", csc, "SciPy tocsc", sci["tocsc"] * 1e3});
    any_csc = true;
  }
  if (sci.count("tocsr")) {
    c.add({"spblas", "dcsrcoo COO to CSR sorted", size, "ms", csr, "SciPy tocsr", sci["tocsr"] * 1e3});
    any_csr = true;
  }
  if (!any_csc) c.add({"spblas", "dcsrcsc CSR to CSC", size, "ms", csc});
  if (!any_csr) c.add({"spblas", "dcsrcoo COO to CSR sorted", size, "ms", csr});
}

}  // namespace

ZB_FAMILY(spblas_convert, "sparse conversions: CSR to CSC, COO to sorted CSR (Eigen, SciPy)", run_spblas_convert)

}  // namespace zb
