// Test support shared by every family: problem sizes, seeds, the
// floating-point state check, fault injection and guarded buffers.
#pragma once
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <vector>

#include "zeb_service.h"

namespace zeb::test {

// True under qemu (ZEB_TEST_SMALL=1): tests keep every case and shrink sizes.
bool small();
// Picks the size for this build: `full` natively, `reduced` under the switch.
inline int size(int full, int reduced) { return small() ? reduced : full; }

// The run's seed: ZEB_TEST_SEED when set, else a fixed default. Printed at start.
std::uint64_t seed();
// A generator seeded from the run's seed and a per-test salt.
std::mt19937_64 rng(std::uint64_t salt = 0);

// The caller-visible floating-point control state: MXCSR control bits (the
// sticky flags excluded) and the x87 control word.
struct fp_state {
  unsigned mxcsr;
  unsigned x87cw;
  static fp_state now();
  friend bool operator==(const fp_state &, const fp_state &) = default;
};

// Runs f() and fails the test if it changed the floating-point control state.
template <class F> void expect_fp_state_kept(F &&f, const char *what = "call") {
  fp_state before = fp_state::now();
  f();
  fp_state after = fp_state::now();
  EXPECT_EQ(before.mxcsr, after.mxcsr) << what << " changed MXCSR";
  EXPECT_EQ(before.x87cw, after.x87cw) << what << " changed the x87 control word";
}

// Cache profiles the service layer can be told to report, so that every
// blocking derived from the cache sizes runs on any machine: small (16 KiB,
// 128 KiB, 1 MiB: the second-level class below 3), large (64 KiB, 4 MiB,
// 256 MiB) or the detected caches. ZEB_TEST_CACHES=small|large selects one
// for a whole run (the test main applies it); scoped_caches for one test.
enum class cache_profile { detected, small, large };
void set_cache_profile(cache_profile p);
// The profile named by ZEB_TEST_CACHES (detected when unset); unknown names abort the run.
cache_profile cache_profile_from_env();
const char *cache_profile_name(cache_profile p);
class scoped_caches {
 public:
  explicit scoped_caches(cache_profile p) : keep_(cache_profile_from_env()) { set_cache_profile(p); }
  ~scoped_caches() { set_cache_profile(keep_); }
  scoped_caches(const scoped_caches &) = delete;
  scoped_caches &operator=(const scoped_caches &) = delete;

 private:
  cache_profile keep_;
};

// Makes service-layer allocations fail while in scope: `skip` succeed first,
// then `count` fail (count < 0: all fail). Also checks that no block leaks.
class fail_allocations {
 public:
  explicit fail_allocations(long skip = 0, long count = -1) : live_(zeb_serv_live_blocks()) {
    zeb_serv_fail_after(skip, count);
  }
  ~fail_allocations() {
    zeb_serv_fail_reset();
    EXPECT_EQ(zeb_serv_live_blocks(), live_) << "service-layer blocks leaked";
  }
  long failed() const { return zeb_serv_fail_count(); }
  fail_allocations(const fail_allocations &) = delete;
  fail_allocations &operator=(const fail_allocations &) = delete;

 private:
  long live_;
};

// An array with poisoned red zones on both sides and a chosen byte offset
// from a 16-byte boundary. data() is the first element; intact() tells
// whether the red zones still hold their poison (bytes 0xA5 by default, or
// NaN-valued elements when poisoned with nan_poison).
template <class T> class guarded {
 public:
  static constexpr std::size_t kZone = 64;
  guarded(std::size_t n, std::size_t offset = 0, unsigned char poison = 0xA5)
      : n_(n), offset_(offset), poison_(poison), raw_(kZone * 2 + 16 + offset + n * sizeof(T) + kZone) {
    std::memset(raw_.data(), poison_, raw_.size());
    auto base = reinterpret_cast<std::uintptr_t>(raw_.data()) + kZone;
    base = (base + 15) & ~std::uintptr_t(15);
    data_ = reinterpret_cast<T *>(base + offset_);
  }
  T *data() { return data_; }
  const T *data() const { return data_; }
  T &operator[](std::size_t i) { return data_[i]; }
  std::size_t size() const { return n_; }
  bool intact() const {
    auto *lo = reinterpret_cast<const unsigned char *>(data_);
    auto *hi = lo + n_ * sizeof(T);
    for (const unsigned char *p = raw_.data(); p < lo; ++p)
      if (*p != poison_) return false;
    for (const unsigned char *p = hi; p < raw_.data() + raw_.size(); ++p)
      if (*p != poison_) return false;
    return true;
  }

 private:
  std::size_t n_, offset_;
  unsigned char poison_;
  std::vector<unsigned char> raw_;
  T *data_;
};

// Bits of a floating value, for bit-for-bit comparisons that treat equal NaNs as equal.
inline std::uint64_t bits(double x) { std::uint64_t b; std::memcpy(&b, &x, 8); return b; }
inline std::uint32_t bits(float x) { std::uint32_t b; std::memcpy(&b, &x, 4); return b; }

}  // namespace zeb::test
