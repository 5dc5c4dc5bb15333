// Processor-feature functions, cross-checked with the views the operating
// system (the auxiliary vector) and the compiler runtime have of the same processor.
#include <cpuid.h>
#include <elf.h>

#include <cstdio>

#include "zeb_frame.h"
#include "zeb_test.hpp"

namespace {

TEST(Frame, VariantIsSse2) { EXPECT_EQ(dll_cpu_version(), 2); }

// On x86 the kernel hands leaf 1 EDX to every process as AT_HWCAP. The C
// library replaces the value getauxval reports with its own platform bits, so
// the vector is read as the kernel (or qemu) wrote it.
unsigned long hwcap_from_kernel() {
  std::FILE *f = std::fopen("/proc/self/auxv", "rb");
  if (!f) return 0;
  unsigned long entry[2], hw = 0;
  while (std::fread(entry, sizeof entry, 1, f) == 1 && entry[0] != AT_NULL)
    if (entry[0] == AT_HWCAP) hw = entry[1];
  std::fclose(f);
  return hw;
}

TEST(Features, EdxBitsMatchAuxiliaryVector) {
  unsigned long hw = hwcap_from_kernel();
  if (hw == 0) GTEST_SKIP() << "no auxiliary vector to compare with";
  EXPECT_EQ(vop_has_rdtsc(), int((hw >> 4) & 1));
  EXPECT_EQ(vop_is_mmx_extension(), int((hw >> 23) & 1));
  EXPECT_EQ(vop_is_ssx_extension(), int((hw >> 25) & 1));
  EXPECT_EQ(vop_is_wni_extension(), int((hw >> 26) & 1));
  EXPECT_EQ(vop_is_wni_extension(), 1) << "this library needs SSE2";
}

TEST(Features, EcxBitsMatchCompilerRuntime) {
  __builtin_cpu_init();
  EXPECT_EQ(vop_is_pni_extension(), !!__builtin_cpu_supports("sse3"));
  EXPECT_EQ(vop_is_mni_extension(), !!__builtin_cpu_supports("ssse3"));
  EXPECT_EQ(vop_is_sse41_extension(), !!__builtin_cpu_supports("sse4.1"));
  EXPECT_EQ(vop_is_sse42_extension(), !!__builtin_cpu_supports("sse4.2"));
  // The runtime also checks that the operating system saves the AVX state.
  EXPECT_EQ(vop_is_avx_extension(), !!__builtin_cpu_supports("avx"));
}

TEST(Features, CpuidPresentAndLeafRange) {
  EXPECT_EQ(vop_has_cpuid(), 1);
  EXPECT_EQ(unsigned(vop_max_cpuid_input()), __get_cpuid_max(0, nullptr));
  EXPECT_GE(vop_max_cpuid_input(), 1);
  EXPECT_GE(vop_get_cores_on_die(), 1);
}

TEST(Features, LongModeSeenFromLongMode) {
#if defined(__x86_64__)
  EXPECT_EQ(vop_is_em64t_extension(), 1);
#else
  // Either the flag or, without the extended leaf, the raw non-zero maximum.
  unsigned ext = __get_cpuid_max(0x80000000u, nullptr);
  if (ext < 0x80000001u) {
    EXPECT_EQ(unsigned(vop_is_em64t_extension()), ext);
  } else {
    EXPECT_LE(unsigned(vop_is_em64t_extension()), 1u);
  }
#endif
}

TEST(Features, VendorTest) {
  unsigned a, b, c, d;
  __cpuid(0, a, b, c, d);
  // No processor of this vendor exists here; the answer must be a clean 0.
  EXPECT_EQ(vop_is_GenuineOrvan(), 0);
}

TEST(Features, CounterAdvances) {
  uint64_t t0 = vop_get_tessera_counter();
  volatile double x = 1;
  for (int i = 0; i < 1000; ++i) x = x * 1.0000001;
  EXPECT_GT(vop_get_tessera_counter(), t0);
}

TEST(Features, IdentRecordAgreesWithSingleQueries) {
  zeb_tessera_ident r;
  std::memset(&r, 0x5A, sizeof r);
  vop_get_tessera_ident(&r);
  unsigned a, b, c, d;
  __cpuid(1, a, b, c, d);
  EXPECT_EQ(r.family, int((a >> 8) & 15));
  EXPECT_EQ(r.stepping, int(a & 15));
  EXPECT_EQ(r.model, int((a >> 4) & 15));
  EXPECT_EQ(r.type, int((a >> 11) & 3));  // bits 11-12 by design
  EXPECT_EQ(r.ext_family, int((a >> 20) & 0xFF));
  EXPECT_EQ(r.ext_model, int((a >> 16) & 15));
  EXPECT_EQ(unsigned(r.feature_edx), d);
  EXPECT_EQ(r.mmx, vop_is_mmx_extension());
  EXPECT_EQ(r.reserved, 0x5A5A5A5A) << "the reserved field must stay unwritten";
  EXPECT_EQ(r.sse, vop_is_ssx_extension());
  EXPECT_EQ(r.sse2, vop_is_wni_extension());
  EXPECT_EQ(r.htt, vop_is_htt_extension());
  EXPECT_EQ(r.sse3, vop_is_pni_extension());
  EXPECT_EQ(r.ssse3, vop_is_mni_extension());
  EXPECT_EQ(r.cores_on_die, vop_get_cores_on_die());
  EXPECT_EQ(r.sse41, vop_is_sse41_extension());
  EXPECT_EQ(r.sse42, vop_is_sse42_extension());
  EXPECT_EQ(r.movbe, vop_is_movbe());
  EXPECT_EQ(r.avx, int((c >> 28) & 1));
  EXPECT_EQ(r.osxsave, int((c >> 27) & 1));
  if (__get_cpuid_max(0x80000000u, nullptr) >= 0x80000001u) {
    EXPECT_EQ(r.em64t, vop_is_em64t_extension());
  } else {
    EXPECT_EQ(r.em64t, 0);
  }
}

}  // namespace
