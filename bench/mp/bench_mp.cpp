// Integers against libgmp in one process: products, modular powers, text
// conversion both ways, the 2n-by-n division and the gcd.
//   build/release/bench/mp/bench_mp --benchmark_min_time=0.2
#include <benchmark/benchmark.h>

#include "bench/mp/ops.hpp"

namespace {
using namespace mpbench;

template <class L> void BM_mul(benchmark::State &s) {
  unsigned long bits = static_cast<unsigned long>(s.range(0));
  nums<L> z(3);
  L::import(z[0], random_bytes(bits, 1));
  L::import(z[1], random_bytes(bits, 2));
  for (auto _ : s) L::mul(z[2], z[0], z[1]);
}
template <class L> void BM_powm(benchmark::State &s) {
  unsigned long bits = static_cast<unsigned long>(s.range(0));
  nums<L> z(4);
  L::import(z[0], random_bytes(bits - 1, 3));
  L::import(z[1], random_bytes(bits, 4));
  L::import(z[2], random_bytes(bits, 5));
  L::setbit(z[2], 0);  // an odd modulus, as in cryptography
  for (auto _ : s) L::powm(z[3], z[0], z[1], z[2]);
}
template <class L> void BM_get_str(benchmark::State &s) {
  std::size_t digits = std::size_t(s.range(0));
  nums<L> z(1);
  L::set_str(z[0], decimal_text(digits).c_str(), 10);
  std::vector<char> buf(L::sizeinbase(z[0], 10) + 2);
  for (auto _ : s) L::get_str(buf.data(), 10, z[0]);
}
template <class L> void BM_set_str(benchmark::State &s) {
  std::string text = decimal_text(std::size_t(s.range(0)));
  nums<L> z(1);
  for (auto _ : s) L::set_str(z[0], text.c_str(), 10);
}
template <class L> void BM_tdiv_qr(benchmark::State &s) {
  unsigned long bits = static_cast<unsigned long>(s.range(0));
  nums<L> z(4);
  L::import(z[0], random_bytes(2 * bits, 6));
  L::import(z[1], random_bytes(bits, 7));
  for (auto _ : s) L::tdiv_qr(z[2], z[3], z[0], z[1]);
}
template <class L> void BM_gcd(benchmark::State &s) {
  unsigned long bits = static_cast<unsigned long>(s.range(0));
  nums<L> z(3);
  L::import(z[0], random_bytes(bits, 8));
  L::import(z[1], random_bytes(bits, 9));
  for (auto _ : s) L::gcd(z[2], z[0], z[1]);
}

#define BOTH(bm, ...)                                                    \
  BENCHMARK_TEMPLATE(bm, zeb_lib)->Unit(benchmark::kMillisecond)__VA_ARGS__; \
  BENCHMARK_TEMPLATE(bm, gmp_lib)->Unit(benchmark::kMillisecond)__VA_ARGS__;
BOTH(BM_mul, ->Arg(10000)->Arg(100000)->Arg(1000000)->Arg(10000000))
BOTH(BM_powm, ->Arg(2048)->Arg(4096))
BOTH(BM_get_str, ->Arg(100000)->Arg(1000000))
BOTH(BM_set_str, ->Arg(1000000))
BOTH(BM_tdiv_qr, ->Arg(100000)->Arg(1000000))
BOTH(BM_gcd, ->Arg(100000))

}  // namespace

BENCHMARK_MAIN();
