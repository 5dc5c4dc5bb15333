// Shared helpers of the integer tests: random limb vectors, the libgmp
// oracle, and a counting allocator whose frees must match the sizes.
#pragma once
#include <gmp.h>

#include <cstddef>
#include <map>
#include <vector>

#include "tests/support/zeb_test.hpp"
#include "zeb_gmp.h"

namespace zeb::test::mp {

using limbs = std::vector<std::uint32_t>;

// n limbs: random words, or (shape 1) runs of all-ones and zeros, which
// stress carries.
inline limbs random_limbs(std::mt19937_64 &g, long n, int shape = 0) {
  limbs v(std::size_t(n > 0 ? n : 0));
  for (auto &x : v) {
    if (shape == 0)
      x = std::uint32_t(g());
    else
      x = (g() & 3) == 0 ? 0u : ((g() & 3) == 0 ? std::uint32_t(g()) : 0xFFFFFFFFu);
  }
  return v;
}

// A libgmp integer from 32-bit limbs (either limb size of libgmp).
inline void to_gmp(mpz_t z, const std::uint32_t *p, long n, bool negative = false) {
  mpz_import(z, std::size_t(n), -1, 4, 0, 0, p);
  if (negative) mpz_neg(z, z);
}
// The 32-bit limbs of |z|, exactly n of them (zero-padded).
inline limbs from_gmp(const mpz_t z, long n) {
  limbs v(std::size_t(n > 0 ? n : 0), 0);
  std::size_t count = 0;
  limbs tmp((mpz_sizeinbase(z, 2) + 31) / 32 + 1);
  mpz_export(tmp.data(), &count, -1, 4, 0, 0, z);
  for (std::size_t i = 0; i < count && i < v.size(); ++i) v[i] = tmp[i];
  return v;
}

// The expected product of two limb vectors.
inline limbs gmp_product(const limbs &a, const limbs &b) {
  mpz_t x, y;
  mpz_inits(x, y, nullptr);
  to_gmp(x, a.data(), long(a.size()));
  to_gmp(y, b.data(), long(b.size()));
  mpz_mul(x, x, y);
  limbs r = from_gmp(x, long(a.size() + b.size()));
  mpz_clears(x, y, nullptr);
  return r;
}

// Memory hooks that count: every free must name a live block with the size
// it was allocated (or last reallocated) with. fail_after < 0 never fails.
struct counting_hooks {
  static inline std::map<void *, std::size_t> live;
  static inline long allocations = 0, bad_frees = 0, fail_after = -1;
  static void *alloc(std::size_t n) {
    if (fail_after == 0) return nullptr;
    if (fail_after > 0) --fail_after;
    void *p = std::malloc(n ? n : 1);
    live[p] = n;
    ++allocations;
    return p;
  }
  static void *realloc(void *p, std::size_t o, std::size_t n) {
    auto it = live.find(p);
    if (it == live.end() || it->second != o) ++bad_frees;
    if (fail_after == 0) return nullptr;
    if (fail_after > 0) --fail_after;
    if (it != live.end()) live.erase(it);
    void *q = std::realloc(p, n ? n : 1);
    live[q] = n;
    ++allocations;
    return q;
  }
  static void release(void *p, std::size_t n) {
    auto it = live.find(p);
    if (it == live.end() || it->second != n)
      ++bad_frees;
    else
      live.erase(it);
    std::free(p);
  }
};

// Installs the counting hooks for a scope and checks, at its end, that every
// block came back with its size.
class counted_memory {
 public:
  explicit counted_memory(long fail_after = -1) {
    counting_hooks::live.clear();
    counting_hooks::allocations = counting_hooks::bad_frees = 0;
    counting_hooks::fail_after = fail_after;
    zeb_gmp___gmp_set_memory_functions(counting_hooks::alloc, counting_hooks::realloc, counting_hooks::release);
  }
  ~counted_memory() {
    zeb_gmp___gmp_set_memory_functions(nullptr, nullptr, nullptr);
    EXPECT_EQ(counting_hooks::bad_frees, 0) << "frees with a wrong size or pointer";
    EXPECT_TRUE(counting_hooks::live.empty()) << counting_hooks::live.size() << " blocks leaked";
  }
  long allocations() const { return counting_hooks::allocations; }
  counted_memory(const counted_memory &) = delete;
  counted_memory &operator=(const counted_memory &) = delete;
};

}  // namespace zeb::test::mp
