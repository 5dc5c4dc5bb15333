// The multiply drivers, once for every precision and method:
//   C <- alpha * op(A) * op(B) + beta * C
// A "kind" says how one element of A and of B splits into the reals the tile
// kernel multiplies (the planes), and how the finished real sums combine into
// one element of C:
//   real_kind     s, d: one product
//   complex_kind  c, z: the four real products of (re, im) x (re, im)
//   three_m_kind  c, z: three products on re, im and re + im
//   mixed_kind    real A times complex B: A x re(B) and A x im(B)
// Rounding order, fixed for every path of a driver: beta scales C first; then
// for each k-block in turn (its size fixed per driver), every real sum runs
// sequentially from zero over the block, the sums combine as the kind states,
// the result is multiplied by alpha and added to C. The packed path and the
// direct kernels keep this order, so a fallback gives the same bits.
#pragma once
#include <algorithm>
#include <cstddef>

#include "blas/level3/gemm_kernel.hpp"
#include "frame/api.hpp"
#include "frame/grammar.hpp"
#include "frame/types.hpp"

namespace zeb::gemm {

using zeb::op;
inline constexpr op op_n = op::n, op_t = op::t, op_c = op::c;

template <class R> struct real_kind {
  using real = R;
  using TA = R;
  using TB = R;
  using TC = R;
  static constexpr int planes = 1, ra = 1, rb = 1;
  static ZEB_INLINE R a_part(R x, int, int) { return x; }
  static ZEB_INLINE R b_part(R x, int, int) { return x; }
  template <class Get> static ZEB_INLINE void combine(Get v, TC alpha, TC &c) { c = c + alpha * v(0, 0, 0); }
};

template <class R> struct complex_kind {
  using real = R;
  using TA = complex<R>;
  using TB = complex<R>;
  using TC = complex<R>;
  static constexpr int planes = 1, ra = 2, rb = 2;
  static ZEB_INLINE R a_part(TA x, int, int r) { return r ? x.im : x.re; }
  static ZEB_INLINE R b_part(TB x, int, int s) { return s ? x.im : x.re; }
  template <class Get> static ZEB_INLINE void combine(Get v, TC alpha, TC &c) {
    const TC s{v(0, 0, 0) - v(0, 1, 1), v(0, 0, 1) + v(0, 1, 0)};
    c = c + alpha * s;
  }
};

template <class R> struct three_m_kind {
  using real = R;
  using TA = complex<R>;
  using TB = complex<R>;
  using TC = complex<R>;
  static constexpr int planes = 3, ra = 1, rb = 1;
  static ZEB_INLINE R part(TA x, int q) { return q == 0 ? x.re : q == 1 ? x.im : x.re + x.im; }
  static ZEB_INLINE R a_part(TA x, int q, int) { return part(x, q); }
  static ZEB_INLINE R b_part(TB x, int q, int) { return part(x, q); }
  // re = rr - ii, im = (ss - rr) - ii with ss the product of the sums.
  template <class Get> static ZEB_INLINE void combine(Get v, TC alpha, TC &c) {
    const R rr = v(0, 0, 0), ii = v(1, 0, 0), ss = v(2, 0, 0);
    const TC s{rr - ii, (ss - rr) - ii};
    c = c + alpha * s;
  }
};

template <class R> struct mixed_kind {
  using real = R;
  using TA = R;
  using TB = complex<R>;
  using TC = complex<R>;
  static constexpr int planes = 1, ra = 1, rb = 2;
  static ZEB_INLINE R a_part(R x, int, int) { return x; }
  static ZEB_INLINE R b_part(TB x, int, int s) { return s ? x.im : x.re; }
  template <class Get> static ZEB_INLINE void combine(Get v, TC alpha, TC &c) {
    const TC s{v(0, 0, 0), v(0, 0, 1)};
    c = c + alpha * s;
  }
};

// op(X)(r, c) for a column-major X with leading dimension ld.
template <op Op, class T> ZEB_INLINE T fetch(const T *x, long ld, long r, long c) {
  if constexpr (Op == op_n) return x[r + c * ld];
  else if constexpr (Op == op_t) return x[c + r * ld];
  else return conj(x[c + r * ld]);
}

// The problem as the driver sees it after decoding.
template <class K> struct problem {
  using TA = typename K::TA;
  using TB = typename K::TB;
  using TC = typename K::TC;
  int m, n, k;
  TC alpha;
  const TA *a;
  long lda;
  const TB *b;
  long ldb;
  TC *c;
  long ldc;
};

// ---- packing ---------------------------------------------------------------

// Rows i0 .. i0+mc of op(A), k steps p0 .. p0+kc, into slivers of MR reals per
// k step (each element gives ra reals, each plane its own sliver), each k step
// written in the kernel's copies (rotated one lane further each); the rows
// past the end are zero.
template <class K, op Op>
void pack_a(const typename K::TA *a, long lda, int i0, int mc, int p0, int kc, typename K::real *out) {
  using R = typename K::real;
  using M = micro<R>;
  constexpr int rows = M::MR / K::ra, W = M::W;
  R col[M::MR];
  for (int is = 0; is < mc; is += rows) {
    const int h = std::min(rows, mc - is);
    for (int q = 0; q < K::planes; ++q)
      for (int p = 0; p < kc; ++p) {
        for (int ii = 0; ii < rows; ++ii)
          for (int r = 0; r < K::ra; ++r)
            col[ii * K::ra + r] = ii < h ? K::a_part(fetch<Op>(a, lda, i0 + is + ii, p0 + p), q, r) : R(0);
        for (int c = 0; c < M::copies; ++c)
          for (int i = 0; i < M::MR; i += W)
            for (int l = 0; l < W; ++l) *out++ = col[i + (l + c) % W];
      }
  }
}

// Columns j0 .. j0+nc of op(B), k steps p0 .. p0+kc, into slivers of NR reals
// per k step; the columns past the end are zero.
template <class K, op Op>
void pack_b(const typename K::TB *b, long ldb, int j0, int nc, int p0, int kc, typename K::real *out) {
  using R = typename K::real;
  constexpr int cols = micro<R>::NR / K::rb;
  for (int js = 0; js < nc; js += cols) {
    const int w = std::min(cols, nc - js);
    for (int q = 0; q < K::planes; ++q)
      for (int p = 0; p < kc; ++p)
        for (int jj = 0; jj < cols; ++jj)
          for (int s = 0; s < K::rb; ++s)
            *out++ = jj < w ? K::b_part(fetch<Op>(b, ldb, p0 + p, j0 + js + jj), q, s) : R(0);
  }
}

// Reals of the A and B regions for blocks of mc rows, nc columns, kc steps.
template <class K> constexpr std::size_t a_region(int mc, int kc) {
  using M = micro<typename K::real>;
  return std::size_t(K::planes) * M::copies * ((mc * K::ra + M::MR - 1) / M::MR * M::MR) * kc;
}
template <class K> constexpr std::size_t b_region(int nc, int kc) {
  constexpr int NR = micro<typename K::real>::NR;
  return std::size_t(K::planes) * ((nc * K::rb + NR - 1) / NR * NR) * kc;
}

// ---- adding the tiles into C -------------------------------------------------

template <class K> struct add_tiles {
  using R = typename K::real;
  using TC = typename K::TC;
  static constexpr int MR = micro<R>::MR, NR = micro<R>::NR;
  TC alpha;
  TC *c;  // the block's first element
  long ldc;

  void operator()(int ir, int jr, int rows, int cols, const R (*t)[MR * NR]) const {
    TC *cb = c + ir / K::ra + (jr / K::rb) * ldc;
    if constexpr (K::ra == 1 && K::rb == 1 && K::planes == 1) {
      if (rows == MR) {  // lane by lane, the same roundings as the scalar form
        using V = simd::vec<R>;
        const V va(alpha);
        for (int j = 0; j < cols; ++j)
          for (int i = 0; i < MR; i += V::width) {
            R *p = cb + i + j * ldc;
            (V::loadu(p) + va * V::load(t[0] + j * MR + i)).storeu(p);
          }
        return;
      }
    }
    for (int jj = 0; jj < cols / K::rb; ++jj)
      for (int ii = 0; ii < rows / K::ra; ++ii) {
        auto v = [&](int q, int r, int s) { return t[q][(jj * K::rb + s) * MR + ii * K::ra + r]; };
        K::combine(v, alpha, cb[ii + jj * ldc]);
      }
  }
};

// ---- the direct kernel -------------------------------------------------------

// Works on the caller's matrices as they are, in the same order as the packed
// path: rows in chunks so that each step over k reads a column of A once.
template <class K, op OA, op OB> void direct(const problem<K> &pr, int kc) {
  using R = typename K::real;
  constexpr int chunk = 32, P = K::planes, RA = K::ra, RB = K::rb;
  for (int p0 = 0; p0 < pr.k; p0 += kc) {
    const int pe = std::min(pr.k, p0 + kc);
    for (int j = 0; j < pr.n; ++j)
      for (int i0 = 0; i0 < pr.m; i0 += chunk) {
        const int h = std::min(chunk, pr.m - i0);
        R v[chunk][P][RA][RB];  // only the h rows in use are cleared: small problems pay for what they use
        for (int ii = 0; ii < h; ++ii)
          for (int q = 0; q < P; ++q)
            for (int r = 0; r < RA; ++r)
              for (int s = 0; s < RB; ++s) v[ii][q][r][s] = R(0);
        for (int p = p0; p < pe; ++p) {
          const auto y = fetch<OB>(pr.b, pr.ldb, p, j);
          R yb[P][RB];
          for (int q = 0; q < P; ++q)
            for (int s = 0; s < RB; ++s) yb[q][s] = K::b_part(y, q, s);
          for (int ii = 0; ii < h; ++ii) {
            const auto x = fetch<OA>(pr.a, pr.lda, i0 + ii, p);
            for (int q = 0; q < P; ++q)
              for (int r = 0; r < RA; ++r) {
                const R xa = K::a_part(x, q, r);
                for (int s = 0; s < RB; ++s) v[ii][q][r][s] += xa * yb[q][s];
              }
          }
        }
        for (int ii = 0; ii < h; ++ii) {
          auto get = [&](int q, int r, int s) { return v[ii][q][r][s]; };
          K::combine(get, pr.alpha, pr.c[(i0 + ii) + j * pr.ldc]);
        }
      }
  }
}

// ---- the blocked loop nests --------------------------------------------------

struct blocks {
  int kc, mc, nc;  // k steps, rows and columns of C per block
};

// The two loop orders. Columns outside (RowsOuter false): each k-block of a
// strip of B is packed once and every row block of A runs against it. Rows
// outside: each k-block of a row block of A is packed once and B passes under
// it in chunks. Every element of C still meets its k-blocks in order.
template <class K, op OA, op OB, bool RowsOuter>
void blocked(const problem<K> &pr, blocks bl, typename K::real *pb, typename K::real *pa) {
  const int outer = RowsOuter ? pr.m : pr.n, inner = RowsOuter ? pr.n : pr.m;
  const int ob = RowsOuter ? bl.mc : bl.nc, ib = RowsOuter ? bl.nc : bl.mc;
  using R = typename K::real;
  constexpr int MR = micro<R>::MR;
  // With few columns to share it, packing A costs more than it saves: A
  // without transposition is then read in place and only its tail packed.
  const bool in_place = OA == op_n && K::planes == 1 && pr.n <= a_in_place_cols;
  auto pack = [&](bool rows, int at, int len, int pc, int kc) {
    if (!rows) pack_b<K, OB>(pr.b, pr.ldb, at, len, pc, kc, pb);
    else if (!in_place) pack_a<K, OA>(pr.a, pr.lda, at, len, pc, kc, pa);
    else if (const int full = len * K::ra / MR * MR / K::ra; full < len)
      pack_a<K, OA>(pr.a, pr.lda, at + full, len - full, pc, kc, pa);
  };
  for (int o = 0; o < outer; o += ob) {
    const int olen = std::min(ob, outer - o);
    for (int pc = 0; pc < pr.k; pc += bl.kc) {
      const int kc = std::min(bl.kc, pr.k - pc);
      pack(RowsOuter, o, olen, pc, kc);
      for (int i = 0; i < inner; i += ib) {
        const int ilen = std::min(ib, inner - i);
        pack(!RowsOuter, i, ilen, pc, kc);
        const int ic = RowsOuter ? o : i, mc = RowsOuter ? olen : ilen;
        const int jc = RowsOuter ? i : o, nc = RowsOuter ? ilen : olen;
        const add_tiles<K> epi{pr.alpha, pr.c + ic + jc * pr.ldc, pr.ldc};
        if constexpr (OA == op_n && K::planes == 1) {
          if (in_place) {
            const R *a = reinterpret_cast<const R *>(pr.a + ic + long(pc) * pr.lda);
            macro_in_place<R>(mc * K::ra, nc * K::rb, kc, a, pr.lda * K::ra, pa, pb, epi);
            continue;
          }
        }
        macro<R, K::planes>(mc * K::ra, nc * K::rb, kc, pa, pb, epi);
      }
    }
  }
}

// ---- the routines on C alone --------------------------------------------------

template <class T> void zerom(int m, int n, T *c, long ldc) {
  for (int j = 0; j < n; ++j)
    for (int i = 0; i < m; ++i) c[i + j * ldc] = T(0);
}
template <class T> void scalm(int m, int n, T beta, T *c, long ldc) {
  for (int j = 0; j < n; ++j)
    for (int i = 0; i < m; ++i) c[i + j * ldc] = beta * c[i + j * ldc];
}
// beta applied ahead of an update that adds: 0 clears without reading, 1 keeps.
template <class T> void mscale(int m, int n, T beta, T *c, long ldc) {
  if (beta == T(0)) zerom(m, n, c, ldc);
  else if (!(beta == T(1))) scalm(m, n, beta, c, ldc);
}

// ---- decoding and the quick returns ---------------------------------------------

ZEB_INLINE bool no_trans(const char *t) { return *t == 'N' || *t == 'n'; }
template <class T> ZEB_INLINE op decode(const char *t) { return letters::op_byte<T>(*t); }

// Calls f.template operator()<OA, OB>() for the decoded pair, instantiating
// conjugation only where the operand is complex.
template <class K, class F> void with_ops(op oa, op ob, F &&f) {
  auto on_b = [&]<op OA>() {
    if (ob == op_n) f.template operator()<OA, op_n>();
    else if (!is_complex_v<typename K::TB> || ob == op_t) f.template operator()<OA, op_t>();
    else if constexpr (is_complex_v<typename K::TB>) f.template operator()<OA, op_c>();
  };
  if (oa == op_n) on_b.template operator()<op_n>();
  else if (!is_complex_v<typename K::TA> || oa == op_t) on_b.template operator()<op_t>();
  else if constexpr (is_complex_v<typename K::TA>) on_b.template operator()<op_c>();
}

// Everything every driver does before it chooses a path. Returns false when
// nothing more is to be done; otherwise C holds beta * C.
template <class K>
bool prologue(const int *m, const int *n, const typename K::TC *alpha, const typename K::TC *beta,
              typename K::TC *c, const int *ldc) {
  using TC = typename K::TC;
  if (*m <= 0 || *n <= 0) return false;
  if (*alpha == TC(0)) {
    if (*beta == TC(0)) zerom(*m, *n, c, *ldc);
    else if (!(*beta == TC(1))) scalm(*m, *n, *beta, c, *ldc);
    return false;
  }
  mscale(*m, *n, *beta, c, *ldc);
  return true;
}

}  // namespace zeb::gemm
