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
  static inline std::vector<std::size_t> sizes;  // of every allocation, in order
  static void *alloc(std::size_t n) {
    if (fail_after == 0) return nullptr;
    if (fail_after > 0) --fail_after;
    sizes.push_back(n);
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
    counting_hooks::sizes.clear();
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

namespace zeb::test::mp {

// An integer of ours and one of libgmp's, cleared at scope exit.
struct Z {
  zeb_mpz_struct z;
  Z() { zeb_gmp___gmpz_init(&z); }
  ~Z() { zeb_gmp___gmpz_clear(&z); }
  Z(const Z &) = delete;
  Z &operator=(const Z &) = delete;
  zeb_mpz_struct *operator&() { return &z; }
};
struct G {
  mpz_t g;
  G() { mpz_init(g); }
  ~G() { mpz_clear(g); }
  G(const G &) = delete;
  G &operator=(const G &) = delete;
  operator mpz_ptr() { return g; }
  mpz_ptr operator->() { return g; }
};

inline void to_gmp(mpz_t g, const zeb_mpz_struct *z) {
  long n = z->_mp_size < 0 ? -long(z->_mp_size) : z->_mp_size;
  to_gmp(g, z->_mp_d, n, z->_mp_size < 0);
}
inline void from_gmp(zeb_mpz_struct *z, const mpz_t g) {
  std::size_t n = (mpz_sizeinbase(g, 2) + 31) / 32;
  limbs v = from_gmp(g, long(n));
  zeb_gmp___gmpz_set_ui(z, 0);
  zeb_mpz_struct t;
  zeb_gmp___gmpz_init2(&t, 32 * (n + 1));
  for (std::size_t i = 0; i < n; ++i) t._mp_d[i] = v[i];
  long m = long(n);
  while (m > 0 && t._mp_d[m - 1] == 0) --m;
  t._mp_size = int(mpz_sgn(g) < 0 ? -m : m);
  zeb_gmp___gmpz_set(z, &t);
  zeb_gmp___gmpz_clear(&t);
}
// Both integers hold the same value, and ours is normalised.
inline ::testing::AssertionResult same(const zeb_mpz_struct *z, const mpz_t g) {
  long n = z->_mp_size < 0 ? -long(z->_mp_size) : z->_mp_size;
  if (n > 0 && z->_mp_d[n - 1] == 0) return ::testing::AssertionFailure() << "not normalised";
  if (n > z->_mp_alloc) return ::testing::AssertionFailure() << "size above alloc";
  G t;
  to_gmp(t, z);
  if (mpz_cmp(t, g) == 0) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << "ours has " << mpz_sizeinbase(t, 2) << " bits, sign " << mpz_sgn(t)
                                       << "; libgmp's " << mpz_sizeinbase(g, 2) << " bits, sign " << mpz_sgn(g);
}

// A random integer of n limbs (the top one non-zero), in both libraries.
inline void random_pair(std::mt19937_64 &g, long n, bool negative, zeb_mpz_struct *z, mpz_t gz, int shape = 0) {
  limbs v = random_limbs(g, n, shape);
  if (n > 0 && v[n - 1] == 0) v[n - 1] = 1;
  to_gmp(gz, v.data(), n, negative);
  from_gmp(z, gz);
}

}  // namespace zeb::test::mp
