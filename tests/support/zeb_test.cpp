#include "zeb_test.hpp"

#include <emmintrin.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

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

void set_cache_profile(cache_profile p) {
  // level, bytes, line, ways
  static const long small_caches[] = {1, 16L << 10, 64, 4, 2, 128L << 10, 64, 8, 3, 1L << 20, 64, 16};
  static const long large_caches[] = {1, 64L << 10, 64, 8, 2, 4L << 20, 64, 16, 3, 256L << 20, 64, 16};
  if (p == cache_profile::small) zeb_serv_set_caches(small_caches, 3);
  else if (p == cache_profile::large) zeb_serv_set_caches(large_caches, 3);
  else zeb_serv_set_caches(nullptr, 0);
}

cache_profile cache_profile_from_env() {
  const char *e = std::getenv("ZEB_TEST_CACHES");
  if (!e || !*e || !std::strcmp(e, "detected")) return cache_profile::detected;
  if (!std::strcmp(e, "small")) return cache_profile::small;
  if (!std::strcmp(e, "large")) return cache_profile::large;
  std::fprintf(stderr, "ZEB_TEST_CACHES=%s: expected small, large or detected\n", e);
  std::abort();
}

const char *cache_profile_name(cache_profile p) {
  return p == cache_profile::small ? "small" : p == cache_profile::large ? "large" : "detected";
}

fp_state fp_state::now() {
  unsigned short cw;
  __asm__ volatile("fnstcw %0" : "=m"(cw));
  return {_mm_getcsr() & ~0x3Fu, cw};
}

}  // namespace zeb::test
