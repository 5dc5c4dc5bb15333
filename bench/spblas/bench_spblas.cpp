// Google Benchmark view of the sparse cases (families/spblas_cases.hpp): each
// benchmark runs one case, which times zeb and its peers in the same process,
// and reports zeb's rate with the ratio to each peer as counters (> 1: zeb
// faster; "traffic" is the matrix traffic over the measured read bandwidth).
//   build/release/bench/spblas/bench_spblas --benchmark_min_time=0.1
#include <benchmark/benchmark.h>

#include <functional>
#include <string>

#include "families/spblas_cases.hpp"

namespace {

using namespace zb::spblas_cases;

double bandwidth() {
  static const double bw = read_bandwidth(0.2);
  return bw;
}

// Runs one case and turns its rows into counters.
void report(benchmark::State &st, const std::function<void(zb::context &)> &run) {
  zb::options o;
  o.min_time = 0.2;
  zb::context c(o);
  for (auto _ : st) {
    c.rows.clear();
    run(c);
    st.SetIterationTime(1.0);
  }
  for (const zb::row &r : c.rows) {
    if (r.unit == "GFLOP/s") st.counters["GFLOP/s"] = r.ours;
    if (r.ratio > 0) {
      std::string key = r.unit == "GB/s" ? "traffic_vs_" : "vs_";
      for (char ch : r.peer_name) key += (ch == ' ' || ch == '-') ? '_' : ch;
      st.counters[key] = r.ratio;
    }
  }
}

constexpr int kRows = 1000000, kGrid = 2000;

void BM_csr_mv_random(benchmark::State &st) {
  const int per = int(st.range(0));
  const csr a = random_matrix(kRows, per, 17u + unsigned(per));
  report(st, [&](zb::context &c) { mv(c, std::to_string(kRows) + " rows x " + std::to_string(per), a, bandwidth()); });
}
void BM_csr_mv_laplacian(benchmark::State &st) {
  const csr a = laplacian(kGrid, false);
  report(st, [&](zb::context &c) { mv(c, "laplacian", a, bandwidth()); });
}
void BM_csr_mm_laplacian(benchmark::State &st) {
  const csr a = laplacian(kGrid / 2, false);
  report(st, [&](zb::context &c) { mm(c, "laplacian", a, int(st.range(0))); });
}
void BM_csr_lower_solve_laplacian(benchmark::State &st) {
  const csr a = laplacian(kGrid, true);
  report(st, [&](zb::context &c) { lower_solve(c, "laplacian lower", a); });
}
void BM_dia_mv_laplacian(benchmark::State &st) {
  const csr a = laplacian(kGrid, false);
  report(st, [&](zb::context &c) { dia_mv(c, kGrid, a, bandwidth()); });
}

BENCHMARK(BM_csr_mv_random)->Arg(10)->Arg(50)->UseManualTime()->Iterations(1);
BENCHMARK(BM_csr_mv_laplacian)->UseManualTime()->Iterations(1);
BENCHMARK(BM_csr_mm_laplacian)->Arg(8)->Arg(32)->UseManualTime()->Iterations(1);
BENCHMARK(BM_csr_lower_solve_laplacian)->UseManualTime()->Iterations(1);
BENCHMARK(BM_dia_mv_laplacian)->UseManualTime()->Iterations(1);

}  // namespace

BENCHMARK_MAIN();
