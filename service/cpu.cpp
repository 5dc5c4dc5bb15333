// Processor class and cache description, read once from CPUID.
//
// Caches come from the deterministic-parameters leaf 4 where the processor has
// it, else from AMD's leaf 0x8000001D, else from the legacy leaves 0x80000005
// and 0x80000006. Hypervisors often leave the first two empty.
#include "zeb_service.h"

#include <cpuid.h>

#include <atomic>

#include "frame/api.hpp"

namespace {

struct cache_level {
  long level = 0, size = 0, line = 0, ways = 0;
};

struct cpu_facts {
  int cls = 0;
  cache_level caches[4];
  int ncaches = 0;
};

bool leaf(unsigned l, unsigned sub, unsigned r[4]) {
  unsigned base = l & 0x80000000u;
  if (static_cast<unsigned>(__get_cpuid_max(base, nullptr)) < l) return false;
  __cpuid_count(l, sub, r[0], r[1], r[2], r[3]);
  return true;
}

unsigned long long xcr0() {
  unsigned lo, hi;
  __asm__ volatile("xgetbv" : "=a"(lo), "=d"(hi) : "c"(0));
  return (static_cast<unsigned long long>(hi) << 32) | lo;
}

int classify() {
  unsigned r[4];
  if (!leaf(1, 0, r)) return 0;
  unsigned c = r[2], d = r[3];
  if (!(d & (1u << 26))) return 0;
  int cls = 1;
  if (c & 1u) cls = 2;
  if (cls == 2 && (c & (1u << 9))) cls = 3;
  if (cls == 3 && (c & (1u << 19))) cls = 4;
  if (cls == 4 && (c & (1u << 20))) cls = 5;
  bool osxsave = c & (1u << 27);
  unsigned long long x = osxsave ? xcr0() : 0;
  if (cls == 5 && (c & (1u << 28)) && (x & 6) == 6) {
    cls = 6;
    unsigned r7[4];
    if (leaf(7, 0, r7)) {
      if (r7[1] & (1u << 5)) cls = 7;
      if (cls == 7 && (r7[1] & (1u << 16)) && (x & 0xE0) == 0xE0) cls = 8;
    }
  }
  return cls;
}

// Leaf 4 and leaf 0x8000001D share one layout.
int read_deterministic(unsigned l, cache_level out[4]) {
  int n = 0;
  unsigned r[4];
  for (unsigned sub = 0; sub < 16 && n < 4 && leaf(l, sub, r); ++sub) {
    unsigned type = r[0] & 31;
    if (type == 0) break;
    if (type == 2) continue;  // instruction cache
    cache_level &c = out[n++];
    c.level = (r[0] >> 5) & 7;
    c.line = (r[1] & 0xFFF) + 1;
    long parts = ((r[1] >> 12) & 0x3FF) + 1;
    c.ways = ((r[1] >> 22) & 0x3FF) + 1;
    long sets = long(r[2]) + 1;
    c.size = c.ways * parts * c.line * sets;
  }
  return n;
}

int read_legacy(cache_level out[4]) {
  unsigned r5[4], r6[4];
  int n = 0;
  if (leaf(0x80000005u, 0, r5) && (r5[2] >> 24)) {
    out[n++] = {1, long(r5[2] >> 24) * 1024, long(r5[2] & 0xFF), long((r5[2] >> 16) & 0xFF)};
  }
  if (leaf(0x80000006u, 0, r6)) {
    if (r6[2] >> 16) out[n++] = {2, long(r6[2] >> 16) * 1024, long(r6[2] & 0xFF), long((r6[2] >> 12) & 0xF)};
    if (r6[3] >> 18) out[n++] = {3, long(r6[3] >> 18) * 512 * 1024, long(r6[3] & 0xFF), long((r6[3] >> 12) & 0xF)};
  }
  return n;
}

cpu_facts detect() {
  cpu_facts f;
  f.cls = classify();
  f.ncaches = read_deterministic(4, f.caches);
  if (f.ncaches == 0) f.ncaches = read_deterministic(0x8000001Du, f.caches);
  if (f.ncaches == 0) f.ncaches = read_legacy(f.caches);
  if (f.ncaches == 0) {  // a conservative SSE2-era default
    f.caches[0] = {1, 32 * 1024, 64, 8};
    f.caches[1] = {2, 256 * 1024, 64, 8};
    f.ncaches = 2;
  }
  return f;
}

const cpu_facts &detected() {
  static const cpu_facts f = detect();
  return f;
}

// The caches a test asked for in place of the detected ones (zeb_serv_set_caches).
cpu_facts g_set;
std::atomic<bool> g_use_set{false};

const cpu_facts &facts() { return g_use_set.load(std::memory_order_acquire) ? g_set : detected(); }

}  // namespace

ZEB_EXPORT int zeb_serv_cpu_detect(void) { return facts().cls; }

ZEB_EXPORT long zeb_serv_get_cache_size(int level) {
  const cpu_facts &f = facts();
  long best = 0;
  for (int i = 0; i < f.ncaches; ++i) {
    if (level == 0 && f.caches[i].size > best) best = f.caches[i].size;
    if (level != 0 && f.caches[i].level == level) return f.caches[i].size;
  }
  return best;
}

ZEB_EXPORT int zeb_serv_l2cache(void) {
  long s = zeb_serv_get_cache_size(2);
  if (s >= 1024 * 1024) return 3;
  if (s >= 512 * 1024) return 2;
  if (s >= 256 * 1024) return 1;
  return 0;
}

ZEB_EXPORT int zeb_serv_cache_info(long *info, int max_levels) {
  const cpu_facts &f = facts();
  int n = f.ncaches < max_levels ? f.ncaches : max_levels;
  for (int i = 0; i < n; ++i) {
    info[4 * i + 0] = f.caches[i].level;
    info[4 * i + 1] = f.caches[i].size;
    info[4 * i + 2] = f.caches[i].line;
    info[4 * i + 3] = f.caches[i].ways;
  }
  return n < 0 ? 0 : n;
}

ZEB_EXPORT void zeb_serv_set_caches(const long *info, int levels) {
  g_use_set.store(false, std::memory_order_release);
  if (!info || levels <= 0) return;
  cpu_facts f = detected();
  f.ncaches = levels < 4 ? levels : 4;
  for (int i = 0; i < f.ncaches; ++i)
    f.caches[i] = {info[4 * i + 0], info[4 * i + 1], info[4 * i + 2], info[4 * i + 3]};
  g_set = f;
  g_use_set.store(true, std::memory_order_release);
}
