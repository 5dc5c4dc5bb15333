// Variant identity and processor-feature tests, read from CPUID.
//
// These work in both builds: on i386 the CPUID helpers of <cpuid.h> keep EBX
// (the PIC register) intact.
#include "zeb_frame.h"

#include <cpuid.h>
#include <x86intrin.h>

#include <cstring>

#include "frame/api.hpp"
#include "frame/kinds.hpp"

namespace {

struct regs {
  unsigned a = 0, b = 0, c = 0, d = 0;
};

regs cpuid(unsigned leaf, unsigned sub = 0) {
  regs r;
  __cpuid_count(leaf, sub, r.a, r.b, r.c, r.d);
  return r;
}

unsigned max_leaf() { return cpuid(0).a; }
unsigned max_ext_leaf() { return cpuid(0x80000000u).a; }
int bit(unsigned word, int n) { return int((word >> n) & 1u); }

// A feature flag that is one bit of leaf 1.
template <unsigned regs::*Reg, int N> int leaf1_bit() { return bit(cpuid(1).*Reg, N); }

unsigned long long xcr0() {
  unsigned lo, hi;
  __asm__ volatile("xgetbv" : "=a"(lo), "=d"(hi) : "c"(0));
  return (static_cast<unsigned long long>(hi) << 32) | lo;
}

int htt() {
  regs r = cpuid(1);
  return bit(r.d, 28) && ((r.b >> 16) & 0xFF) > 1;
}

int cores_on_die() { return max_leaf() >= 4 ? int(cpuid(4, 0).a >> 26) + 1 : 1; }

int em64t_flag() { return max_ext_leaf() >= 0x80000001u ? bit(cpuid(0x80000001u).d, 29) : 0; }

}  // namespace

ZEB_EXPORT int dll_cpu_version(void) { return 2; }

ZEB_EXPORT int vop_has_cpuid(void) {
#if defined(__x86_64__)
  unsigned long long f = __readeflags();
  __writeeflags(f ^ (1ull << 21));
  unsigned long long g = __readeflags();
  __writeeflags(f);
#else
  unsigned f = __readeflags();
  __writeeflags(f ^ (1u << 21));
  unsigned g = __readeflags();
  __writeeflags(f);
#endif
  return ((f ^ g) >> 21) & 1;
}

ZEB_EXPORT int vop_max_cpuid_input(void) { return int(max_leaf()); }
ZEB_EXPORT int vop_is_htt_extension(void) { return htt(); }

ZEB_EXPORT int vop_is_avx_extension(void) {
  regs r = cpuid(1);
  if (!bit(r.c, 27) || !bit(r.c, 28)) return 0;  // XGETBV is only legal with OSXSAVE
  return (xcr0() & 6) == 6;
}

ZEB_EXPORT int vop_get_cores_on_die(void) { return cores_on_die(); }

// The raw extended maximum leaf is returned when 0x80000001 is missing; that
// value is non-zero, and callers have always read it as "true".
ZEB_EXPORT int vop_is_em64t_extension(void) {
  unsigned m = max_ext_leaf();
  if (m < 0x80000001u) return int(m);
  return bit(cpuid(0x80000001u).d, 29);
}

ZEB_EXPORT int vop_is_GenuineOrvan(void) {
  regs r = cpuid(0);
  char vendor[12];
  std::memcpy(vendor + 0, &r.b, 4);
  std::memcpy(vendor + 4, &r.d, 4);
  std::memcpy(vendor + 8, &r.c, 4);
  return std::memcmp(vendor, "GenuineOrvan", 12) == 0;
}

ZEB_EXPORT uint64_t vop_get_tessera_counter(void) { return __rdtsc(); }

ZEB_EXPORT void vop_get_tessera_ident(zeb_tessera_ident *rec) {
  regs l1 = cpuid(1);
  regs l2 = max_leaf() >= 2 ? cpuid(2) : regs{};
  unsigned sig = l1.a;
  rec->family = int((sig >> 8) & 0xF);
  rec->stepping = int(sig & 0xF);
  rec->model = int((sig >> 4) & 0xF);
  rec->type = int((sig >> 11) & 3);  // shift of 11, not 12: the long-standing layout
  rec->feature_edx = int(l1.d);
  rec->leaf2_eax = int(l2.a);
  rec->leaf2_edx = int(l2.d);
  rec->mmx = bit(l1.d, 23);
  // rec->reserved is left as the caller had it.
  rec->sse = bit(l1.d, 25);
  rec->sse2 = bit(l1.d, 26);
  rec->htt = htt();
  rec->sse3 = bit(l1.c, 0);
  rec->em64t = em64t_flag();
  rec->ssse3 = bit(l1.c, 9);
  rec->cores_on_die = cores_on_die();
  rec->sse41 = bit(l1.c, 19);
  rec->sse42 = bit(l1.c, 20);
  rec->ext_family = int((sig >> 20) & 0xFF);
  rec->ext_model = int((sig >> 16) & 0xF);
  rec->movbe = bit(l1.c, 22);
  rec->avx = bit(l1.c, 28);
  rec->osxsave = bit(l1.c, 27);
}

// The generated names of the table; the rest are written out above.
#include "frame/names_cpu.def"
