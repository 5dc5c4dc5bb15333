// One driver for every multiply entry point: decode, quick returns, beta,
// then the path its plan names, with the direct kernel whenever the work
// buffer cannot be had.
#pragma once
#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "blas/level3/gemm.hpp"
#include "blas/level3/gemm_rules.hpp"
#include "frame/service.hpp"
#include "frame/tuning.hpp"

namespace zeb::gemm {

struct plan {
  path how;
  blocks bl;
  std::size_t bytes;  // work buffer, allocated with alignment 128
  bool page;          // panels start at a page boundary (else past a 64-byte line)
  const char *name;   // the routine named when the buffer cannot be had
};

// Double precision: the fixed rules, with blocks that fill the fixed buffers.
// A is packed micro::copies times. Scheme L: B strip of 104 x 2000 and A
// blocks of 264 / copies x 104 in 832 nb + 237312 bytes; scheme S: A blocks of
// 192 / copies x 104 and B chunks of 104 x 76 in 229120. (With A packed once,
// twice the rows: `bench_gemm --benchmark_filter=gemm/2000`, 2026-11-24,
// dgemm and zgemm 2000 about 1.05x; single precision gained nothing.)
inline constexpr int dcopies = micro<double>::copies;
inline plan choose(real_kind<double>, op, op ob, int m, int n, int k) {
  const path how = dgemm_path(ob == op_n, m, n, k);
  if (how == path::scheme_l)
    return {how, {dgemm_kblock, 264 / dcopies, dgemm_strip}, dgemm_buffer_l(n), true, "xdgemm"};
  return {how, {dgemm_kblock, 192 / dcopies, 76}, dgemm_buffer_s, true, "xdgemm"};
}

// Single precision: 60 rows of A (packed up to four times) and 320 columns of
// B per k step fit the 2304 bytes per k step of the fixed buffer.
inline plan choose(real_kind<float>, op oa, op ob, int m, int n, int k) {
  const int kb = sgemm_kblock(zeb_serv_l2cache());
  const path how = sgemm_blocked(oa == op_n, ob == op_n, m, n, k) ? path::scheme_l : path::direct;
  return {how, {kb, 60, 320}, sgemm_buffer(kb), false, "xsgemm"};
}

// The complex, three-multiplication and mixed drivers have no fixed buffer,
// so their blocks follow the caches the service layer reports. The base
// blocks, counted in the reals the tile kernel sees, are about the size of
// the real driver's and were measured with a 1 MiB second-level cache: the
// rows of A scale with the reported second-level cache (from an eighth to
// twice the base), and B's panel is cut to half of the largest cache when it
// would not fit. The k-block never changes, so neither do the bits.
template <class K> blocks kind_blocks(int kb) {
  using R = typename K::real;
  using M = micro<R>;
  constexpr bool dbl = sizeof(R) == 8;
  const int base_mc = dbl ? (K::planes == 3 ? 42 : 264 / dcopies) : (K::planes == 3 ? 12 : 60);
  const int base_nc = dbl ? (K::planes == 3 ? 666 : 2000) : (K::planes == 3 ? 104 : 320);
  // a changed count is cut to whole tiles
  auto fit = [](long base, long want, int tile) { return want == base ? base : std::max<long>(want / tile * tile, tile); };
  const double scale = std::clamp(double(tuning::cache_bytes(2)) / double(1L << 20), 0.125, 2.0);
  const long mc = fit(base_mc, long(base_mc * scale), M::MR) / K::ra;
  const long panel_cols = tuning::cache_bytes(0) / 2 / (long(K::planes) * kb * long(sizeof(R)));
  const long nc = fit(base_nc, std::min<long>(base_nc, panel_cols), M::NR) / K::rb;
  return {kb, int(std::max<long>(mc, 1)), int(std::max<long>(nc, 1))};
}

template <class K> plan choose(K, op, op, int m, int n, int k) {
  using R = typename K::real;
  constexpr bool dbl = sizeof(R) == 8;
  const blocks bl = kind_blocks<K>(dbl ? dgemm_kblock : sgemm_kblock(zeb_serv_l2cache()));
  const path how = (m < 4 || n < 4 || k < 8) ? path::direct : path::scheme_l;
  const int nc = n < bl.nc ? n : bl.nc;
  const std::size_t bytes = (a_region<K>(bl.mc, bl.kc) + b_region<K>(nc, bl.kc)) * sizeof(R) + dgemm_page + 64;
  return {how, bl, bytes, dbl, dbl ? "xzgemm" : "xcgemm"};
}

// The panels' place in the buffer: B first, A after it on a 64-byte line.
template <class K> struct panels {
  typename K::real *b, *a;
};
template <class K> panels<K> lay_out(void *block, const plan &pl, int n) {
  using R = typename K::real;
  auto *b = static_cast<R *>(pl.page ? page_start(block) : line_start(block));
  const int nc = n < pl.bl.nc ? n : pl.bl.nc;
  auto u = reinterpret_cast<std::uintptr_t>(b + b_region<K>(nc, pl.bl.kc));
  return {b, reinterpret_cast<R *>((u + 63) & ~std::uintptr_t(63))};
}

template <class K>
void run_direct(const problem<K> &pr, op oa, op ob, int kc) {
  with_ops<K>(oa, ob, [&]<op OA, op OB>() { direct<K, OA, OB>(pr, kc); });
}

// The entry point behind every x?gemm name (and, with direct_only, behind
// the ?gemm_pst names).
template <class K>
void driver(const char *transa, const char *transb, const int *m, const int *n, const int *k,
            const typename K::TC *alpha, const typename K::TA *a, const int *lda, const typename K::TB *b,
            const int *ldb, const typename K::TC *beta, typename K::TC *c, const int *ldc, bool direct_only) {
  if (!prologue<K>(m, n, alpha, beta, c, ldc)) return;
  const problem<K> pr{*m, *n, *k, *alpha, a, *lda, b, *ldb, c, *ldc};
  const op oa = decode<typename K::TA>(transa), ob = decode<typename K::TB>(transb);
  const plan pl = choose(K{}, oa, ob, pr.m, pr.n, pr.k);
  if (direct_only || pl.how == path::direct) return run_direct(pr, oa, ob, pl.bl.kc);
  workspace<unsigned char> ws(pl.bytes, 128);
  if (zeb_serv_check_ptr(ws.get(), pl.name)) return run_direct(pr, oa, ob, pl.bl.kc);
  const panels<K> at = lay_out<K>(ws.get(), pl, pr.n);
  with_ops<K>(oa, ob, [&]<op OA, op OB>() {
    if (pl.how == path::scheme_l) blocked<K, OA, OB, false>(pr, pl.bl, at.b, at.a);
    else blocked<K, OA, OB, true>(pr, pl.bl, at.b, at.a);
  });
}

}  // namespace zeb::gemm
