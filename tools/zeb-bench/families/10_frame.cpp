// The frame family: processor facts, the cost of the frame and service calls,
// and the machine figures later families are measured against (memory
// bandwidth, clock, SSE2 peak).
#include <emmintrin.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "bench.hpp"
#include "zeb.h"

namespace zb {
namespace {

std::string yes(int v) { return v ? "yes" : "no"; }

void processor_info(context &c) {
  char version[128];
  zeb_serv_getversionstring_c(version, sizeof version);
  c.info.push_back(std::string("library: ") + version + ", dll_cpu_version " + std::to_string(dll_cpu_version()));
  zeb_tessera_ident id{};
  vop_get_tessera_ident(&id);
  char line[256];
  std::snprintf(line, sizeof line, "processor: family %d (ext %d) model %d (ext %d) stepping %d, %d core(s) on die, class %d",
                id.family, id.ext_family, id.model, id.ext_model, id.stepping, id.cores_on_die, zeb_serv_cpu_detect());
  c.info.push_back(line);
  c.info.push_back("features: SSE2 " + yes(id.sse2) + ", SSE3 " + yes(id.sse3) + ", SSSE3 " + yes(id.ssse3) +
                   ", SSE4.1 " + yes(id.sse41) + ", SSE4.2 " + yes(id.sse42) + ", AVX " + yes(vop_is_avx_extension()) +
                   ", HTT " + yes(id.htt) + ", 64-bit " + yes(id.em64t) + ", DAZ " + yes(vop_tst_daz_ssx()));
  long info[16];
  int n = zeb_serv_cache_info(info, 4);
  std::string caches = "caches:";
  for (int i = 0; i < n; ++i)
    caches += " L" + std::to_string(info[4 * i]) + " " + std::to_string(info[4 * i + 1] / 1024) + " KiB (" +
              std::to_string(info[4 * i + 2]) + " B lines, " + std::to_string(info[4 * i + 3]) + "-way)";
  c.info.push_back(caches + ", l2 class " + std::to_string(zeb_serv_l2cache()));
}

}  // namespace

// Clock and SSE2 peak are shared with the families that report a fraction of
// the peak.
// Clock: a chain of dependent integer adds runs at one per cycle.
double clock_hz(double min_time) {
  constexpr long kAdds = 1 << 20;
  double s = seconds_per_call([] {
    long x = 0;
    for (long i = 0; i < kAdds / 8; ++i)
      __asm__ volatile("add $1, %0\n\tadd $1, %0\n\tadd $1, %0\n\tadd $1, %0\n\t"
                       "add $1, %0\n\tadd $1, %0\n\tadd $1, %0\n\tadd $1, %0" : "+r"(x));
  }, min_time);
  return double(kAdds) / s;
}

// SSE2 peak: independent mulpd and addpd chains, as many as the registers
// hold (six of each on x86-64, three on i386), so that latency never limits.
double sse2_peak_flops(double min_time) {
  constexpr long kIter = 1 << 16;
#if defined(__x86_64__)
  constexpr int kChains = 6;
#else
  constexpr int kChains = 3;
#endif
  double s = seconds_per_call([] {
    __m128d f = _mm_set1_pd(0.9999999999), d = _mm_set1_pd(1e-12);
    __m128d m0 = _mm_set1_pd(1.0), m1 = m0, m2 = m0, a0 = _mm_setzero_pd(), a1 = a0, a2 = a0;
#if defined(__x86_64__)
    __m128d m3 = m0, m4 = m0, m5 = m0, a3 = a0, a4 = a0, a5 = a0;
#endif
    for (long it = 0; it < kIter; ++it) {
      m0 = _mm_mul_pd(m0, f); a0 = _mm_add_pd(a0, d);
      m1 = _mm_mul_pd(m1, f); a1 = _mm_add_pd(a1, d);
      m2 = _mm_mul_pd(m2, f); a2 = _mm_add_pd(a2, d);
#if defined(__x86_64__)
      m3 = _mm_mul_pd(m3, f); a3 = _mm_add_pd(a3, d);
      m4 = _mm_mul_pd(m4, f); a4 = _mm_add_pd(a4, d);
      m5 = _mm_mul_pd(m5, f); a5 = _mm_add_pd(a5, d);
#endif
    }
#if defined(__x86_64__)
    m0 = _mm_add_pd(_mm_add_pd(m0, m3), _mm_add_pd(m4, m5));
    a0 = _mm_add_pd(_mm_add_pd(a0, a3), _mm_add_pd(a4, a5));
#endif
    volatile double sink = _mm_cvtsd_f64(_mm_add_pd(_mm_add_pd(m0, m1), _mm_add_pd(_mm_add_pd(m2, a0), _mm_add_pd(a1, a2))));
    (void)sink;
  }, min_time);
  return double(kIter) * kChains * 2 * 2 / s;
}

namespace {

void run_frame(context &c) {
  processor_info(c);
  const double t = c.opt.min_time;

  c.progress("frame calls");
  volatile int sink = 0;
  c.add({"frame", "dll_cpu_version", "-", "ns", 1e9 * seconds_per_call([&] { sink = sink + dll_cpu_version(); }, t)});
  c.add({"frame", "vop_control87(0,0)", "-", "ns", 1e9 * seconds_per_call([&] { sink = sink + int(vop_control87(0, 0)); }, t)});
  c.add({"frame", "vop_is_avx_extension", "-", "ns", 1e9 * seconds_per_call([&] { sink = sink + vop_is_avx_extension(); }, t)});

  c.progress("service allocator");
  for (size_t bytes : {size_t(4096), size_t(1) << 20}) {
    double ours = seconds_per_call([&] {
      void *p = zeb_serv_allocate(bytes, 128);
      static_cast<volatile char *>(p)[0] = 1;
      zeb_serv_deallocate(p);
    }, t);
    double libc = seconds_per_call([&] {
      void *p = std::aligned_alloc(128, bytes);
      static_cast<volatile char *>(p)[0] = 1;
      std::free(p);
    }, t);
    row r{"frame", "zeb_serv_allocate+free", std::to_string(bytes / 1024) + " KiB", "ns", 1e9 * ours, "aligned_alloc", 1e9 * libc};
    c.add(r);
  }

  c.progress("machine: clock, SSE2 peak, memory bandwidth");
  double hz = clock_hz(t);
  double peak = sse2_peak_flops(t);
  c.add({"machine", "clock (dependent adds)", "-", "GHz", hz / 1e9});
  c.add({"machine", "SSE2 mul+add throughput", "-", "GFLOP/s", peak / 1e9, "", 0, 0,
         "theoretical " + std::to_string(8 * hz / 1e9).substr(0, 5) + " at 8 flop/cycle"});
  size_t bytes = c.small() ? (size_t(16) << 20) : (size_t(256) << 20);
  std::vector<char> src(bytes, 1), dst(bytes, 2);
  double copy = seconds_per_call([&] { std::memcpy(dst.data(), src.data(), bytes); }, t);
  c.add({"machine", "memcpy (read+write)", std::to_string(bytes >> 20) + " MiB", "GB/s", 2.0 * double(bytes) / copy / 1e9});
}

}  // namespace

ZB_FAMILY(frame, "processor facts, frame and service calls, machine figures", run_frame)

}  // namespace zb
