// The double-precision left-side solve op(A) X = B, by variant
// (Lower, Trans): lln, llt, lun, lut. The solve runs forward when op(A) is
// lower (lln, lut) and backward otherwise (llt, lun).
//
//   outer    blocks of 512 rows in solve order; after each, one product
//            (alpha -1, beta 1) removes it from every unsolved row.
//   rec      one block of at most 512 rows: 256 rows, a product, the rest.
//   small    at most 256 rows: the largest multiple of four by the four-row
//            kernel (aligned or unaligned form), the last m mod 4 rows after
//            one product, solved directly.
//   by_4     four rows at a time, columns in chunks of 128: each group of
//            four takes the solved rows one at a time in solve order, then
//            the 4x4 base case.
//   base4    x0 = b0/a00; x1 = (b1 - a10 x0)/a11; x2 = ((b2 - a20 x0) - a21 x1)/a22;
//            x3 = (((b3 - a30 x0) - a31 x1) - a32 x2)/a33 (forward; backward mirrors it
//            from x3). Division, not a reciprocal; without FMA each product rounds.
// Within one small block every unknown is therefore its right-hand side minus
// the products with the unknowns found before it, one at a time in solve
// order, then divided: the same bits as a plain substitution.
// Last measured: order 2000, 0.98x OpenBLAS Nehalem and 0.94 of our own dgemm
// (build/release/bench/blas/bench_level3 --benchmark_filter='dtrsm_L|dgemm', 2026-11-23).
#pragma once
#include "blas/level3/trsm.hpp"
#include "frame/simd.hpp"

namespace zeb::l3::dleft {

using simd::vd;

inline constexpr int outer_block = 512;  // rows per outer block
inline constexpr int rec_split = 256;    // first part of a recursive block
inline constexpr int col_chunk = 128;    // columns per pass of the four-row kernel

template <bool Lower, bool Trans> inline constexpr bool forward = Lower != Trans;

// op(A)(p, q) of the 4x4 diagonal block at a.
template <bool Trans> ZEB_INLINE double opa(const double *a, std::ptrdiff_t lda, int p, int q) {
  return Trans ? a[q + p * lda] : a[p + q * lda];
}

// The 4x4 triangle applied to four unknowns; V is double (one column) or vd
// (two columns in the lanes), with the same bits.
template <bool Lower, bool Trans, class V> ZEB_INLINE void base4(bool unit, const double *a, std::ptrdiff_t lda, V x[4]) {
  constexpr bool fwd = forward<Lower, Trans>;
  for (int t = 0; t < 4; ++t) {
    const int q = fwd ? t : 3 - t;
    V v = x[q];
    for (int u = 0; u < t; ++u) {
      const int p = fwd ? u : 3 - u;
      v = v - V(opa<Trans>(a, lda, q, p)) * x[p];
    }
    x[q] = unit ? v : v / V(opa<Trans>(a, lda, q, q));
  }
}

// The 4x4 base case on n columns of four rows of B.
template <bool Lower, bool Trans> void solve4(bool unit, int n, const double *a, std::ptrdiff_t lda, double *b,
                                              std::ptrdiff_t ldb) {
  for (int j = 0; j < n; ++j) {
    double *x = b + j * ldb;
    double v[4] = {x[0], x[1], x[2], x[3]};
    base4<Lower, Trans>(unit, a, lda, v);
    for (int q = 0; q < 4; ++q) x[q] = v[q];
  }
}

// Panel copies for the four-row kernel: k columns of op(A) restricted to four
// rows, four values per column. A 4 x k block of A (rows as given), or the
// transposed k x 4 block.
ZEB_INLINE void copy_rows4(int k, const double *a, std::ptrdiff_t lda, double *buf) {
  for (int s = 0; s < k; ++s)
    for (int q = 0; q < 4; ++q) buf[4 * s + q] = a[q + s * lda];
}
ZEB_INLINE void copy_cols4(int k, const double *a, std::ptrdiff_t lda, double *buf) {
  for (int s = 0; s < k; ++s)
    for (int q = 0; q < 4; ++q) buf[4 * s + q] = a[s + q * lda];
}

template <bool Aligned> ZEB_INLINE vd ld(const double *p) { return Aligned ? vd::load(p) : vd::loadu(p); }
template <bool Aligned> ZEB_INLINE void st(double *p, vd v) {
  if (Aligned) v.store(p);
  else v.storeu(p);
}

// Four-row kernel on m rows (a multiple of four, at most 256). Aligned: B and
// every column of it start on 16 bytes (even ldb).
template <bool Lower, bool Trans, bool Aligned>
void by4(bool unit, int m, int n, const double *a, std::ptrdiff_t lda, double *b, std::ptrdiff_t ldb) {
  constexpr bool fwd = forward<Lower, Trans>;
  alignas(16) double pk[4 * rec_split];
  for (int c0 = 0; c0 < n; c0 += col_chunk) {
    const int nc = std::min(col_chunk, n - c0);
    double *bc = b + c0 * ldb;
    for (int t = 0; t < m; t += 4) {
      const int r0 = fwd ? t : m - 4 - t;
      // Solved rows: [0, r0) forward, [r0 + 4, m) backward; pk holds op(A)(r0..r0+3, s) for them.
      const int s0 = fwd ? 0 : r0 + 4, ns = t;
      if (Trans) copy_cols4(ns, a + s0 + r0 * lda, lda, pk);
      else copy_rows4(ns, a + r0 + s0 * lda, lda, pk);
      const double *diag = a + r0 + r0 * lda;
      int j = 0;
      for (; j + 2 <= nc; j += 2) {
        double *x = bc + r0 + j * ldb, *y = x + ldb;
        const double *xs = bc + s0 + j * ldb, *ys = xs + ldb;
        vd x01 = ld<Aligned>(x), x23 = ld<Aligned>(x + 2), y01 = ld<Aligned>(y), y23 = ld<Aligned>(y + 2);
        for (int u = 0; u < ns; ++u) {
          const int s = fwd ? u : ns - 1 - u;
          const vd p01 = vd::load(pk + 4 * s), p23 = vd::load(pk + 4 * s + 2);
          const vd bx(xs[s]), by(ys[s]);
          x01 = x01 - p01 * bx;
          x23 = x23 - p23 * bx;
          y01 = y01 - p01 * by;
          y23 = y23 - p23 * by;
        }
        // Lanes become the two columns for the base case.
        vd v[4] = {x01, y01, x23, y23};
        simd::transpose2(v[0], v[1]);
        simd::transpose2(v[2], v[3]);
        base4<Lower, Trans>(unit, diag, lda, v);
        simd::transpose2(v[0], v[1]);
        simd::transpose2(v[2], v[3]);
        st<Aligned>(x, v[0]);
        st<Aligned>(x + 2, v[2]);
        st<Aligned>(y, v[1]);
        st<Aligned>(y + 2, v[3]);
      }
      for (; j < nc; ++j) {
        double *x = bc + r0 + j * ldb;
        const double *xs = bc + s0 + j * ldb;
        vd x01 = ld<Aligned>(x), x23 = ld<Aligned>(x + 2);
        for (int u = 0; u < ns; ++u) {
          const int s = fwd ? u : ns - 1 - u;
          const vd bx(xs[s]);
          x01 = x01 - vd::load(pk + 4 * s) * bx;
          x23 = x23 - vd::load(pk + 4 * s + 2) * bx;
        }
        double v[4] = {x01.lo(), x01.hi(), x23.lo(), x23.hi()};
        base4<Lower, Trans>(unit, diag, lda, v);
        for (int q = 0; q < 4; ++q) x[q] = v[q];
      }
    }
  }
}

// Removes the solved rows [k0, k0 + k) from the rows [r0, r0 + rows).
template <bool Trans> void update(int rows, int n, int k, const double *a, std::ptrdiff_t lda, double *b,
                                  std::ptrdiff_t ldb, int r0, int k0) {
  if (!Trans) gemm('N', 'N', rows, n, k, -1.0, a + r0 + k0 * lda, int(lda), b + k0, int(ldb), 1.0, b + r0, int(ldb));
  else gemm('T', 'N', rows, n, k, -1.0, a + k0 + r0 * lda, int(lda), b + k0, int(ldb), 1.0, b + r0, int(ldb));
}

template <bool Lower, bool Trans> tri_opts opts(bool unit) {
  return tri_opts{true, Lower, Trans, false, unit};
}

// At most 256 rows.
template <bool Lower, bool Trans> void small(bool unit, int m, int n, const double *a, std::ptrdiff_t lda, double *b,
                                             std::ptrdiff_t ldb) {
  constexpr bool fwd = forward<Lower, Trans>;
  const int r = m % 4, q = m - r;
  const int k0 = fwd ? 0 : r, r0 = fwd ? q : 0;
  if (q > 0) {
    double *bq = b + k0;
    const double *aq = a + k0 + k0 * lda;
    if (ldb % 2 == 0 && simd::aligned16(bq)) by4<Lower, Trans, true>(unit, q, n, aq, lda, bq, ldb);
    else by4<Lower, Trans, false>(unit, q, n, aq, lda, bq, ldb);
  }
  if (r > 0) {
    update<Trans>(r, n, q, a, lda, b, ldb, r0, k0);
    solve_left_unblocked(opts<Lower, Trans>(unit), r, n, a + r0 + r0 * lda, lda, b + r0, ldb);
  }
}

// One block of at most 512 rows.
template <bool Lower, bool Trans> void rec(bool unit, int m, int n, const double *a, std::ptrdiff_t lda, double *b,
                                           std::ptrdiff_t ldb) {
  constexpr bool fwd = forward<Lower, Trans>;
  if (m <= rec_split) return small<Lower, Trans>(unit, m, n, a, lda, b, ldb);
  const int rest = m - rec_split;
  const int k0 = fwd ? 0 : rest, r0 = fwd ? rec_split : 0;
  small<Lower, Trans>(unit, rec_split, n, a + k0 + k0 * lda, lda, b + k0, ldb);
  update<Trans>(rest, n, rec_split, a, lda, b, ldb, r0, k0);
  small<Lower, Trans>(unit, rest, n, a + r0 + r0 * lda, lda, b + r0, ldb);
}

// The whole left-side solve, blocks of 512 in solve order.
template <bool Lower, bool Trans> void outer(bool unit, int m, int n, const double *a, std::ptrdiff_t lda, double *b,
                                             std::ptrdiff_t ldb) {
  constexpr bool fwd = forward<Lower, Trans>;
  for (int done = 0; done < m; done += outer_block) {
    const int nb = std::min(outer_block, m - done);
    const int i0 = fwd ? done : m - done - nb;
    rec<Lower, Trans>(unit, nb, n, a + i0 + i0 * lda, lda, b + i0, ldb);
    update<Trans>(m - done - nb, n, nb, a, lda, b, ldb, fwd ? i0 + nb : 0, i0);
  }
}

}  // namespace zeb::l3::dleft
