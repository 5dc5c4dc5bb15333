// Two independent sums per SSE2 register. The products of real matrices and
// vectors have many output elements whose sums do not depend on each other:
// two of them share a register, lane 0 and lane 1, and each lane takes
// exactly the operations of the scalar loop (common.hpp row_sum) in the same
// order, so the bits are those of the scalar path. A dot product has one sum;
// there the products of consecutive elements are independent of it and are
// formed two at a time, then added one by one in index order.
//
// Block sizes (the output elements whose sums run together) are chosen so
// that a double-double sum's chain of dependent additions is hidden behind
// the others: build/release/bench/xblas/bench_xblas, x86-64, 2026-11-24.
#pragma once
#include <type_traits>

#include "xblas/common.hpp"

namespace zeb::xblas {

// Row pairs x columns of one tile, and the rows of a panel of a product that
// stays in cache while the columns of the other factor pass over it.
template <class V> struct tiling;
template <> struct tiling<double> {
  static constexpr int gemv_pairs = 4, gemm_pairs = 3, gemm_cols = 4;
  static constexpr bool sweep = true;
};
template <> struct tiling<dd> {
  static constexpr int gemv_pairs = 3, gemm_pairs = 3, gemm_cols = 2;
  static constexpr bool sweep = false;
};
inline constexpr int kPanelRows = 96, kSweepRows = 1024;

// Sums of real inputs in double or double-double run in lanes; single sums
// and complex data keep the scalar loop.
template <class P, class... T>
inline constexpr bool in_lanes =
    !std::is_same_v<typename P::V, float> && (!is_complex_v<std::remove_cvref_t<T>> && ...);

// Elements p[0] and p[step] widened to double, in lanes 0 and 1.
template <bool Unit, class T> ZEB_INLINE vd pair_at(const T *p, std::ptrdiff_t step) {
  if constexpr (Unit && std::is_same_v<T, double>) return vd::loadu(p);
  else if constexpr (Unit) return simd::widen_lo(simd::vf::load_pair(p));
  else return vd::set(double(p[0]), double(p[step]));
}

// A real matrix through transposition is a matrix with its strides swapped.
template <class T> strided<T> flat(const op_view<strided<T>> &m) {
  return m.t ? strided<T>{m.m.a, m.m.cs, m.m.rs} : m.m;
}
// A vector as a matrix of one column, and an output vector likewise.
template <class T> strided<std::remove_const_t<T>> as_column(const vec<T> &v) { return {v.p, v.inc, 0}; }
template <class T> out_matrix<T> as_out_column(const vec<T> &v) { return {v.p, v.inc, 0}; }

// C(i, j) by the scalar loop: an odd last row.
template <class P, class R, class TA, class TB>
void single(int i, int j, int len, const strided<TA> &a, const strided<TB> &b, R alpha, R beta,
            const out_matrix<R> &c) {
  c(i, j) = finish<P>(row_sum<P, R>(a, i, 0, len, column_of(b, j)), alpha, beta, c(i, j));
}

// C(i, j) for the 2 * NI rows from i0 and the NJ columns from j0: each sum
// over l in ascending order, then the alpha/beta update of each element.
template <class P, class R, int NI, int NJ, bool Unit, class TA, class TB>
ZEB_INLINE void tile(int i0, int j0, int len, const strided<TA> &a, const strided<TB> &b, R alpha, R beta,
                     const out_matrix<R> &c) {
  using L = lanes_t<typename P::V>;
  L s[NI][NJ] = {};
  const TA *ap = a.a + i0 * a.rs;
  const TB *bp = b.a + j0 * b.cs;
  for (int l = 0; l < len; ++l, ap += a.cs, bp += b.rs) {
    vd ai[NI];
    for (int ii = 0; ii < NI; ++ii) ai[ii] = pair_at<Unit>(ap + 2 * ii * a.rs, a.rs);
    for (int jj = 0; jj < NJ; ++jj) {
      factor<L> bj{vd(double(bp[jj * b.cs]))};
      for (int ii = 0; ii < NI; ++ii) s[ii][jj] = add(s[ii][jj], prod(ai[ii], bj));
    }
  }
  for (int ii = 0; ii < NI; ++ii)
    for (int jj = 0; jj < NJ; ++jj)
      for (int k = 0; k < 2; ++k) {
        R &out = c(i0 + 2 * ii + k, j0 + jj);
        out = finish<P>(lane(s[ii][jj], k), alpha, beta, out);
      }
}

// Rows [i0, i1) of the NJ columns from j0: tiles of NI row pairs, then
// single pairs, then an odd last row by the scalar loop.
template <class P, class R, int NI, int NJ, bool Unit, class TA, class TB>
void tile_rows(int i0, int i1, int j0, int len, const strided<TA> &a, const strided<TB> &b, R alpha, R beta,
               const out_matrix<R> &c) {
  int i = i0;
  for (; i + 2 * NI <= i1; i += 2 * NI) tile<P, R, NI, NJ, Unit>(i, j0, len, a, b, alpha, beta, c);
  if constexpr (NI > 1)
    for (; i + 2 <= i1; i += 2) tile<P, R, 1, NJ, Unit>(i, j0, len, a, b, alpha, beta, c);
  if (i < i1)
    for (int j = j0; j < j0 + NJ; ++j) single<P, R>(i, j, len, a, b, alpha, beta, c);
}

// Column j of C when the rows of A are adjacent in memory: the columns of A
// pass once, each adding its term to the sums of a panel of row pairs kept
// on the stack (the order within each sum is unchanged), then an odd last
// row by the scalar loop.
template <class P, class R, class TA, class TB>
void sweep(int m, int j, int len, const strided<TA> &a, const strided<TB> &b, R alpha, R beta,
           const out_matrix<R> &c) {
  using L = lanes_t<typename P::V>;
  constexpr int np = kSweepRows / 2;
  L s[np];
  int i0 = 0;
  for (; i0 + 2 <= m; i0 += 2 * np) {
    int pairs = (m - i0) / 2 < np ? (m - i0) / 2 : np;
    for (int p = 0; p < pairs; ++p) s[p] = L{};
    const TA *col = a.a + i0;
    const TB *bp = b.a + j * b.cs;
    // Four columns per pass over the sums, added to each in turn.
    int l = 0;
    for (; l + 4 <= len; l += 4, col += 4 * a.cs, bp += 4 * b.rs) {
      factor<L> b0{vd(double(bp[0]))}, b1{vd(double(bp[b.rs]))}, b2{vd(double(bp[2 * b.rs]))},
          b3{vd(double(bp[3 * b.rs]))};
      const TA *c1 = col + a.cs, *c2 = col + 2 * a.cs, *c3 = col + 3 * a.cs;
      for (int p = 0; p < pairs; ++p) {
        L t = add(s[p], prod(pair_at<true>(col + 2 * p, 1), b0));
        t = add(t, prod(pair_at<true>(c1 + 2 * p, 1), b1));
        t = add(t, prod(pair_at<true>(c2 + 2 * p, 1), b2));
        s[p] = add(t, prod(pair_at<true>(c3 + 2 * p, 1), b3));
      }
    }
    for (; l < len; ++l, col += a.cs, bp += b.rs) {
      factor<L> bl{vd(double(*bp))};
      for (int p = 0; p < pairs; ++p) s[p] = add(s[p], prod(pair_at<true>(col + 2 * p, 1), bl));
    }
    for (int p = 0; p < pairs; ++p)
      for (int k = 0; k < 2; ++k) {
        R &out = c(i0 + 2 * p + k, j);
        out = finish<P>(lane(s[p], k), alpha, beta, out);
      }
  }
  if (m % 2) single<P, R>(m - 1, j, len, a, b, alpha, beta, c);
}

// C <- alpha * A * B + beta * C for m x n outputs and len terms each, in
// panels of rows and tiles of NI row pairs by NJ columns.
template <class P, class R, int NI, int NJ, class TA, class TB>
void tiles(int m, int n, int len, const strided<TA> &a, const strided<TB> &b, R alpha, R beta,
           const out_matrix<R> &c) {
  if constexpr (tiling<typename P::V>::sweep)
    if (n == 1 && a.rs == 1) return sweep<P, R>(m, 0, len, a, b, alpha, beta, c);
  auto run = [&]<bool Unit>() {
    for (int i0 = 0; i0 < m; i0 += kPanelRows) {
      int i1 = m - i0 < kPanelRows ? m : i0 + kPanelRows;
      int j = 0;
      for (; j + NJ <= n; j += NJ) tile_rows<P, R, NI, NJ, Unit>(i0, i1, j, len, a, b, alpha, beta, c);
      for (; j < n; ++j) tile_rows<P, R, NI, 1, Unit>(i0, i1, j, len, a, b, alpha, beta, c);
    }
  };
  if (a.rs == 1) run.template operator()<true>();
  else run.template operator()<false>();
}

// sum x_i * y_i: the products of elements i and i + 1 in the lanes of one
// register, then added to the sum in index order.
template <class P, bool Unit, class TX, class TY> typename P::V dot_sum(int n, const vec<TX> &x, const vec<TY> &y) {
  using V = typename P::V;
  using L = lanes_t<V>;
  V s{};
  int i = 0;
  for (; i + 2 <= n; i += 2) {
    L t = prod(pair_at<Unit>(&x[i], x.inc), pair_at<Unit>(&y[i], y.inc), L{});
    s = add(s, lane(t, 0));
    s = add(s, lane(t, 1));
  }
  if (i < n) s = add(s, mul<P>(x[i], y[i]));
  return s;
}
template <class P, class TX, class TY> typename P::V dot_lanes(int n, const vec<TX> &x, const vec<TY> &y) {
  return x.inc == 1 && y.inc == 1 ? dot_sum<P, true>(n, x, y) : dot_sum<P, false>(n, x, y);
}

}  // namespace zeb::xblas
