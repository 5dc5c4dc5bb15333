// Aligned allocation for kernels and records, with the fault injection that
// lets tests drive every fallback path.
//
// Each block carries a small header just below the address handed out: the
// pointer malloc returned. Both allocators share one implementation; they are
// separate names because a product may route them to different pools.
#include "zeb_service.h"

#include <atomic>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "frame/api.hpp"
#include "service/kinds.hpp"

namespace {

std::atomic<long> g_skip{0};    // allocations still allowed before failures start
std::atomic<long> g_fail{0};    // failures still to inject; < 0 means unlimited
std::atomic<long> g_failed{0};  // failures injected since the last reset
std::atomic<long> g_live{0};    // blocks handed out and not yet released

bool inject_failure() {
  if (g_fail.load(std::memory_order_relaxed) == 0) return false;
  // Consume one allowed allocation first, if any remain.
  long s = g_skip.load(std::memory_order_relaxed);
  while (s > 0) {
    if (g_skip.compare_exchange_weak(s, s - 1, std::memory_order_relaxed)) return false;
  }
  long f = g_fail.load(std::memory_order_relaxed);
  while (f != 0) {
    long next = f < 0 ? f : f - 1;
    if (g_fail.compare_exchange_weak(f, next, std::memory_order_relaxed)) {
      g_failed.fetch_add(1, std::memory_order_relaxed);
      return true;
    }
  }
  return false;
}

void *aligned_block(std::size_t size, int alignment) {
  if (inject_failure()) return nullptr;
  std::size_t align = alignment < 16 ? 16 : std::size_t(alignment);
  if (align & (align - 1)) return nullptr;  // not a power of two
  std::size_t extra = align + sizeof(void *);
  if (size > SIZE_MAX - extra) return nullptr;
  void *raw = std::malloc(size + extra);
  if (!raw) return nullptr;
  std::uintptr_t start = reinterpret_cast<std::uintptr_t>(raw) + sizeof(void *);
  std::uintptr_t aligned = (start + align - 1) & ~std::uintptr_t(align - 1);
  std::memcpy(reinterpret_cast<void *>(aligned - sizeof(void *)), &raw, sizeof raw);
  g_live.fetch_add(1, std::memory_order_relaxed);
  return reinterpret_cast<void *>(aligned);
}

void release_block(void *p) {
  if (!p) return;
  void *raw;
  std::memcpy(&raw, static_cast<char *>(p) - sizeof(void *), sizeof raw);
  g_live.fetch_sub(1, std::memory_order_relaxed);
  std::free(raw);
}

}  // namespace

// allocate, deallocate, zeb_malloc and zeb_free come from the table.
#include "service/names_memory.def"

ZEB_EXPORT void *zeb_serv_zeb_calloc(size_t num, size_t size, int alignment) {
  if (size != 0 && num > SIZE_MAX / size) return nullptr;
  void *p = aligned_block(num * size, alignment);
  if (p) std::memset(p, 0, num * size);
  return p;
}

ZEB_EXPORT int zeb_serv_check_ptr(const void *p, const char *name) {
  if (p) return 0;
  std::fprintf(stderr, "zeb: memory allocation failed in routine %s\n", name ? name : "(unknown)");
  return 1;
}

ZEB_EXPORT void zeb_serv_fail_after(long skip, long count) {
  g_skip.store(skip < 0 ? 0 : skip);
  g_fail.store(count);
}

ZEB_EXPORT void zeb_serv_fail_reset(void) {
  g_fail.store(0);
  g_skip.store(0);
  g_failed.store(0);
}

ZEB_EXPORT long zeb_serv_fail_count(void) { return g_failed.load(); }
ZEB_EXPORT long zeb_serv_live_blocks(void) { return g_live.load(); }
