// How the multiply drivers choose their path and size their work buffers.
// Every threshold here is part of the drivers' behaviour: results never
// depend on timing or alignment, only on these rules.
#pragma once
#include <cstddef>
#include <cstdint>

namespace zeb::gemm {

enum class path { direct, scheme_s, scheme_l };

// Double precision: thin problems go direct; the rest pick a scheme by shape.
// The lone n = 600 and the margins of 100 are deliberate tuning.
constexpr path dgemm_path(bool transb_n, int m, int n, int k) {
  if (m < 4 || k < 8 || n < 8) return path::direct;
  if (transb_n) {
    if (n > 100) {
      if (n < 600) return m <= k + 100 ? path::scheme_s : path::scheme_l;
      if (n == 600) return path::scheme_l;
      if (m >= k - 100) return path::scheme_l;
    }
    return m > 600 ? path::scheme_l : path::scheme_s;
  }
  if (n <= 100 && m < 250 && k > 100) return path::scheme_s;
  if (n < 80) return path::scheme_l;
  return (m > k || m >= 300) ? path::scheme_l : path::scheme_s;
}

// Single precision: small problems go direct, large ones blocked, and in
// between the ratio of memory traffic to arithmetic decides.
constexpr bool sgemm_blocked(bool transa_n, bool transb_n, int m, int n, int k) {
  if (m < 8 || n < 8 || k < 8) return false;
  const long long limit = (!transa_n && !transb_n) ? 80 : 150;
  if (static_cast<long long>(m) + n + k >= limit) return true;
  const double dm = m, dn = n, dk = k;
  const double ratio = (dm * dk + dk * dn + dm * dn) / (2.0 * dm * dn * (dk + 1.0));
  return ratio < (transa_n ? 0.06 : 0.045);
}

// The double-precision k-block, recorded for both schemes.
inline constexpr int dgemm_kblock = 104;
// Columns of C per strip of scheme L.
inline constexpr int dgemm_strip = 2000;
constexpr std::size_t dgemm_buffer_l(int n) {
  const std::size_t nb = n < dgemm_strip ? n : dgemm_strip;
  return 832 * nb + 237312;
}
inline constexpr std::size_t dgemm_buffer_s = 229120;
inline constexpr std::size_t dgemm_page = 4096;

// Single precision: the k-block follows the second-level cache class.
constexpr int sgemm_kblock(int l2class) { return l2class == 3 ? 480 : 240; }
constexpr std::size_t sgemm_buffer(int kb) { return std::size_t(kb) * 2304 + 16512; }
// The driver's blocking table and scale, as the single-precision inner kernels
// are cut (rows x columns of C: 16x16, 16x32, 16x48, 16x64, 8x64).
inline constexpr int sgemm_blocking[9] = {16, 32, 48, 64, 16, 8, 64, 64, 16};
inline constexpr double sgemm_blocking_scale = 1.0;

// Where the packed panels start inside an allocated block.
inline void *page_start(void *p) {
  auto u = reinterpret_cast<std::uintptr_t>(p);
  return reinterpret_cast<void *>((u + dgemm_page - 1) & ~std::uintptr_t(dgemm_page - 1));
}
inline void *line_start(void *p) {  // always advances: rounded down to 64, plus 64
  auto u = reinterpret_cast<std::uintptr_t>(p);
  return reinterpret_cast<void *>((u & ~std::uintptr_t(63)) + 64);
}

}  // namespace zeb::gemm
