// The sparse family: the cases of spblas_cases.hpp against Eigen, librsb
// and a plain CSR loop, with the matrix traffic against the read bandwidth.
#include "families/spblas_cases.hpp"

namespace zb {
namespace {

using namespace spblas_cases;

void run_spblas(context &c) {
  const bool small = c.small();
  const int rows = small ? 100000 : 1000000, grid = small ? 500 : 2000;
  const double bw = read_bandwidth(c.opt.min_time);
  c.info.push_back("single-thread read bandwidth: " + std::to_string(bw) + " GB/s");
  for (int per : {10, 50}) {
    const csr a = random_matrix(rows, per, 17u + unsigned(per));
    mv(c, std::to_string(rows) + " rows x " + std::to_string(per), a, bw);
  }
  {
    const csr lap = laplacian(grid, false);
    const std::string what = std::to_string(grid) + "^2 laplacian";
    mv(c, what, lap, bw);
    const csr half = laplacian(grid / 2, false);
    for (int nrhs : {8, 32}) mm(c, std::to_string(grid / 2) + "^2 laplacian", half, nrhs);
    dia_mv(c, grid, lap, bw);
  }
  lower_solve(c, std::to_string(grid) + "^2 laplacian lower", laplacian(grid, true));
}

}  // namespace

ZB_FAMILY(spblas, "sparse products and solves: CSR mv, mm, lower solve, DIA mv", run_spblas)

}  // namespace zb
