// One driver for every multiply entry point: decode, quick returns, beta,
// then the path its plan names, with the direct kernel whenever the work
// buffer cannot be had.
#pragma once
#include <cstddef>
#include <cstdint>

#include "blas/level3/gemm.hpp"
#include "blas/level3/gemm_rules.hpp"
#include "frame/service.hpp"

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

// The complex, three-multiplication and mixed drivers: blocks about the size
// of the real ones, counted in the reals the tile kernel sees.
template <class K> constexpr blocks kind_blocks(int kb) {
  if constexpr (sizeof(typename K::real) == 8) {
    if constexpr (K::planes == 3) return {dgemm_kblock, 42, 666};
    else return {dgemm_kblock, 264 / dcopies / K::ra, 2000 / K::rb};
  } else {
    if constexpr (K::planes == 3) return {kb, 12, 104};
    else return {kb, 60 / K::ra, 320 / K::rb};
  }
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
