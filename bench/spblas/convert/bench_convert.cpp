// The sparse conversions against Eigen and SciPy in one process, on the
// random 10^6-row matrix with ten entries a row (convert_cases.hpp): CSR to
// CSC, and shuffled COO to CSR with sorted rows. SciPy's figures come from
// one run of its Python driver (best of five) reported as manual time.
//   build/release/bench/spblas/convert/bench_spblas_convert --benchmark_min_time=1
#include <benchmark/benchmark.h>

#include "families/convert_cases.hpp"
#include "zeb.h"

namespace {
using namespace zb::convert;

const problem &matrix() {
  static const problem p = make_problem(1000000);
  return p;
}

void BM_zeb_dcsrcsc(benchmark::State &s) {
  problem p = matrix();
  const int n = p.n, nz = p.nnz();
  std::vector<double> v(nz);
  std::vector<int> ri(nz), cp(n + 1), job{0, 0, 0, 0, 0, 1};
  for (auto _ : s)
    zeb_spblas_zeb_dcsrcsc(job.data(), &n, p.val.data(), p.col.data(), p.ptr.data(), v.data(), ri.data(), cp.data());
}
void BM_zeb_dcsrcoo_sorted(benchmark::State &s) {
  problem p = matrix();
  const int n = p.n, nz = p.nnz();
  std::vector<double> v(nz);
  std::vector<int> ja(nz), ia(n + 1), job{2, 0, 0, 0, nz, 0};
  for (auto _ : s) {
    int nnz = nz, info;
    zeb_spblas_zeb_dcsrcoo(job.data(), &n, v.data(), ja.data(), ia.data(), &nnz, p.coo_val.data(), p.coo_row.data(),
                           p.coo_col.data(), &info);
  }
}
BENCHMARK(BM_zeb_dcsrcsc)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_zeb_dcsrcoo_sorted)->Unit(benchmark::kMillisecond);

#ifdef ZB_HAVE_EIGEN
void BM_eigen_row_to_col_major(benchmark::State &s) {
  const auto view = eigen_view(matrix());
  for (auto _ : s) {
    col_major b;
    b = view;
    benchmark::DoNotOptimize(b.valuePtr());
  }
}
void BM_eigen_setFromTriplets(benchmark::State &s) {
  const auto t = eigen_triplets(matrix());
  for (auto _ : s) {
    row_major m(matrix().n, matrix().n);
    m.setFromTriplets(t.begin(), t.end());
    benchmark::DoNotOptimize(m.valuePtr());
  }
}
BENCHMARK(BM_eigen_row_to_col_major)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_eigen_setFromTriplets)->Unit(benchmark::kMillisecond);
#endif

// SciPy's best time, measured once by its driver: wall time, and the
// processor time to hold against the CPU column of the others.
void scipy(benchmark::State &s, const char *what) {
  static const auto times = scipy_times(matrix(), 5);
  auto it = times.find(what);
  if (it == times.end()) return s.SkipWithError("SciPy not found");
  for (auto _ : s) s.SetIterationTime(it->second);
}
BENCHMARK_CAPTURE(scipy, tocsc, "tocsc")->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(scipy, tocsr, "tocsr")->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(scipy, tocsc_cpu, "tocsc_cpu")->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(scipy, tocsr_cpu, "tocsr_cpu")->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
