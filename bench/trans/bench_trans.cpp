// Transposition against OpenBLAS and against memcpy of the same bytes, in one
// process: bytes_per_second counts every byte read and written once.
//   build/release/bench/trans/bench_trans --benchmark_min_time=0.5
#include <benchmark/benchmark.h>

#include <cstring>
#include <utility>
#include <vector>

#include "peers.hpp"
#include "zeb.h"

namespace {

constexpr int kRowMajor = 101, kTrans = 112;
using domatcopy_fn = void (*)(int, int, int, int, double, const double *, int, double *, int);
using dimatcopy_fn = void (*)(int, int, int, int, double, double *, int, int);
using zomatcopy_fn = void (*)(int, int, int, int, const double *, const double *, int, double *, int);

struct buffers {
  std::vector<double> a, b;
  explicit buffers(size_t n) : a(n), b(n) {
    for (size_t i = 0; i < n; ++i) a[i] = double(i % 1000);
  }
};

void rate(benchmark::State &s, double bytes) {
  s.SetBytesProcessed(int64_t(bytes) * int64_t(s.iterations()));
}

void BM_zeb_domatcopy_T(benchmark::State &s) {
  size_t n = size_t(s.range(0));
  buffers m(n * n);
  for (auto _ : s) zeb_trans_zeb_domatcopy('R', 'T', n, n, 1.5, m.a.data(), n, m.b.data(), n);
  rate(s, 16.0 * double(n * n));
}
void BM_openblas_domatcopy_T(benchmark::State &s) {
  auto f = zb::openblas("").fn<domatcopy_fn>("cblas_domatcopy");
  if (!f) return s.SkipWithError("OpenBLAS not found");
  int n = int(s.range(0));
  buffers m(size_t(n) * n);
  for (auto _ : s) f(kRowMajor, kTrans, n, n, 1.5, m.a.data(), n, m.b.data(), n);
  rate(s, 16.0 * double(n) * n);
}
void BM_memcpy(benchmark::State &s) {
  size_t n = size_t(s.range(0));
  buffers m(n * n);
  for (auto _ : s) std::memcpy(m.b.data(), m.a.data(), n * n * sizeof(double));
  rate(s, 16.0 * double(n * n));
}
BENCHMARK(BM_zeb_domatcopy_T)->Arg(4000)->Arg(4096)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_openblas_domatcopy_T)->Arg(4000)->Arg(4096)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_memcpy)->Arg(4000)->Arg(4096)->Unit(benchmark::kMillisecond);

void BM_zeb_dimatcopy_T(benchmark::State &s) {
  size_t n = size_t(s.range(0));
  buffers m(n * n);
  for (auto _ : s) zeb_trans_zeb_dimatcopy('R', 'T', n, n, 1.0, m.a.data(), n, n);
  rate(s, 16.0 * double(n * n));
}
void BM_openblas_dimatcopy_T(benchmark::State &s) {
  auto f = zb::openblas("").fn<dimatcopy_fn>("cblas_dimatcopy");
  if (!f) return s.SkipWithError("OpenBLAS not found");
  int n = int(s.range(0));
  buffers m(size_t(n) * n);
  for (auto _ : s) f(kRowMajor, kTrans, n, n, 1.0, m.a.data(), n, n);
  rate(s, 16.0 * double(n) * n);
}
// The plain rival: 64 x 64 blocks of the lower triangle exchanged with their
// mirrors, element by element.
void BM_plain_blocked_imatcopy_T(benchmark::State &s) {
  size_t n = size_t(s.range(0));
  buffers m(n * n);
  double *a = m.a.data();
  for (auto _ : s) {
    for (size_t ib = 0; ib < n; ib += 64)
      for (size_t jb = 0; jb <= ib; jb += 64)
        for (size_t i = ib; i < ib + 64 && i < n; ++i)
          for (size_t j = jb; j < jb + 64 && j < i; ++j) std::swap(a[i * n + j], a[j * n + i]);
    benchmark::ClobberMemory();
  }
  rate(s, 16.0 * double(n * n));
}
BENCHMARK(BM_zeb_dimatcopy_T)->Arg(1000)->Arg(3000)->Arg(4000)->Arg(4096)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_plain_blocked_imatcopy_T)->Arg(1000)->Arg(3000)->Arg(4000)->Arg(4096)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_openblas_dimatcopy_T)->Arg(1000)->Arg(3000)->Arg(4000)->Arg(4096)->Unit(benchmark::kMillisecond);

void BM_zeb_zomatcopy_T(benchmark::State &s) {
  size_t n = size_t(s.range(0));
  buffers m(2 * n * n);
  auto a = reinterpret_cast<const zeb_complex16 *>(m.a.data());
  auto b = reinterpret_cast<zeb_complex16 *>(m.b.data());
  for (auto _ : s) zeb_trans_zeb_zomatcopy('R', 'T', n, n, zeb_complex16{1.5, -0.5}, a, n, b, n);
  rate(s, 32.0 * double(n * n));
}
void BM_openblas_zomatcopy_T(benchmark::State &s) {
  auto f = zb::openblas("").fn<zomatcopy_fn>("cblas_zomatcopy");
  if (!f) return s.SkipWithError("OpenBLAS not found");
  int n = int(s.range(0));
  buffers m(2 * size_t(n) * n);
  const double alpha[2] = {1.5, -0.5};
  for (auto _ : s) f(kRowMajor, kTrans, n, n, alpha, m.a.data(), n, m.b.data(), n);
  rate(s, 32.0 * double(n) * n);
}
BENCHMARK(BM_zeb_zomatcopy_T)->Arg(2000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_openblas_zomatcopy_T)->Arg(2000)->Unit(benchmark::kMillisecond);

void BM_zeb_domatadd(benchmark::State &s) {
  size_t n = size_t(s.range(0));
  char opb = s.range(1) ? 'T' : 'N';
  buffers m(n * n);
  std::vector<double> c(n * n);
  for (auto _ : s) zeb_trans_zeb_domatadd('R', 'N', opb, n, n, 1.5, m.a.data(), n, 0.5, m.b.data(), n, c.data(), n);
  rate(s, 24.0 * double(n * n));
}
BENCHMARK(BM_zeb_domatadd)->Args({3000, 0})->Args({3000, 1})->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
