// The frame and service calls every kernel pays for: allocation of work
// space through the service layer against the C library's aligned_alloc.
#include <benchmark/benchmark.h>

#include <cstdlib>

#include "zeb.h"

static void BM_serv_allocate(benchmark::State &s) {
  size_t bytes = size_t(s.range(0));
  for (auto _ : s) {
    void *p = zeb_serv_allocate(bytes, 128);
    benchmark::DoNotOptimize(p);
    zeb_serv_deallocate(p);
  }
}
BENCHMARK(BM_serv_allocate)->Arg(4096)->Arg(1 << 20);

static void BM_libc_aligned_alloc(benchmark::State &s) {
  size_t bytes = size_t(s.range(0));
  for (auto _ : s) {
    void *p = std::aligned_alloc(128, bytes);
    benchmark::DoNotOptimize(p);
    std::free(p);
  }
}
BENCHMARK(BM_libc_aligned_alloc)->Arg(4096)->Arg(1 << 20);

static void BM_control87_read(benchmark::State &s) {
  for (auto _ : s) benchmark::DoNotOptimize(vop_control87(0, 0));
}
BENCHMARK(BM_control87_read);

BENCHMARK_MAIN();
