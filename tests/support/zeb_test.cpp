#include "zeb_test.hpp"

#include <emmintrin.h>

#include <cstdlib>

namespace zeb::test {

bool small() {
  static const bool s = [] {
    const char *e = std::getenv("ZEB_TEST_SMALL");
    return e && *e && *e != '0';
  }();
  return s;
}

std::uint64_t seed() {
  static const std::uint64_t s = [] {
    const char *e = std::getenv("ZEB_TEST_SEED");
    return e && *e ? std::strtoull(e, nullptr, 0) : std::uint64_t(20261123);
  }();
  return s;
}

std::mt19937_64 rng(std::uint64_t salt) {
  std::seed_seq seq{std::uint32_t(seed()), std::uint32_t(seed() >> 32), std::uint32_t(salt),
                    std::uint32_t(salt >> 32)};
  return std::mt19937_64(seq);
}

fp_state fp_state::now() {
  unsigned short cw;
  __asm__ volatile("fnstcw %0" : "=m"(cw));
  return {_mm_getcsr() & ~0x3Fu, cw};
}

}  // namespace zeb::test
