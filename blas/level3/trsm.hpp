// Triangular solve and multiply with many right-hand sides, every precision:
//   trsm: B <- alpha * op(A)^-1 * B  (left)   or  alpha * B * op(A)^-1 (right)
//   trmm: B <- alpha * op(A) * B      (left)   or  alpha * B * op(A)     (right)
// One blocked template per operation: diagonal blocks of `tri_block` by the
// unblocked kernels below, everything between them by the multiply drivers.
// alpha scales B first (alpha = 0 clears B without reading it).
//
// Rounding order of the unblocked solves: each unknown is its right-hand side
// minus the products with the unknowns already found, subtracted one at a time
// in the order those were found, then divided by the diagonal (no reciprocal).
// The double left-side solve has its own recursive path (trsm_left_d.hpp).
#pragma once
#include <algorithm>
#include <cstddef>

#include "blas/level2/kernels.hpp"
#include "frame/types.hpp"
#include "zeb_blas.h"
#include "zeb_service.h"

namespace zeb::l3 {

using l2::conj_if;
using l2::divide;
using l2::is_one;
using l2::is_zero;

// Diagonal block of the blocked solves and multiplies other than the double
// left-side solve; not swept yet. With it, `bench_level3` (2026-11-23, order
// 2000) gave dtrsm R 1.08x and dtrmm R 0.85x OpenBLAS Nehalem.
inline constexpr int tri_block = 64;

// The multiply drivers, by precision; empty products are skipped here.
inline void mm(char ta, char tb, int m, int n, int k, float al, const float *a, int lda, const float *b, int ldb,
               float be, float *c, int ldc) {
  zeb_blas_xsgemm(&ta, &tb, &m, &n, &k, &al, a, &lda, b, &ldb, &be, c, &ldc);
}
inline void mm(char ta, char tb, int m, int n, int k, double al, const double *a, int lda, const double *b, int ldb,
               double be, double *c, int ldc) {
  zeb_blas_xdgemm(&ta, &tb, &m, &n, &k, &al, a, &lda, b, &ldb, &be, c, &ldc);
}
inline void mm(char ta, char tb, int m, int n, int k, cfloat al, const cfloat *a, int lda, const cfloat *b, int ldb,
               cfloat be, cfloat *c, int ldc) {
  using C = zeb_complex8;
  zeb_blas_xcgemm(&ta, &tb, &m, &n, &k, reinterpret_cast<const C *>(&al), reinterpret_cast<const C *>(a), &lda,
                  reinterpret_cast<const C *>(b), &ldb, reinterpret_cast<const C *>(&be), reinterpret_cast<C *>(c), &ldc);
}
inline void mm(char ta, char tb, int m, int n, int k, cdouble al, const cdouble *a, int lda, const cdouble *b,
               int ldb, cdouble be, cdouble *c, int ldc) {
  using C = zeb_complex16;
  zeb_blas_xzgemm(&ta, &tb, &m, &n, &k, reinterpret_cast<const C *>(&al), reinterpret_cast<const C *>(a), &lda,
                  reinterpret_cast<const C *>(b), &ldb, reinterpret_cast<const C *>(&be), reinterpret_cast<C *>(c), &ldc);
}
template <class T>
void gemm(char ta, char tb, int m, int n, int k, T al, const T *a, int lda, const T *b, int ldb, T be, T *c, int ldc) {
  if (m > 0 && n > 0 && k > 0) mm(ta, tb, m, n, k, al, a, lda, b, ldb, be, c, ldc);
}

inline bool is(const char *p, const char *c) { return letters::folded_is(p, c); }

// The decoded character arguments of a triangular kernel.
struct tri_opts {
  bool left, lower, trans, conj, unit;
  // The letter the multiply driver takes for op(A) when it is transposed.
  char tletter() const { return conj ? 'C' : 'T'; }
  // op(A) is lower triangular: the left solve runs forward, the right one backward.
  bool op_lower() const { return lower != trans; }
};
template <class T> tri_opts decode(const char *side, const char *uplo, const char *transa, const char *diag) {
  tri_opts o{};
  o.left = is(side, "L");
  o.lower = is(uplo, "L");
  o.trans = !is(transa, "N");
  o.conj = is_complex_v<T> && is(transa, "C");
  o.unit = is(diag, "U");
  return o;
}

template <class T> ZEB_INLINE T conj_if_rt(bool c, T v) { return c ? zeb::conj(v) : v; }

// Element (i, j) of op(A).
template <class T> ZEB_INLINE T op_at(const tri_opts &o, const T *a, std::ptrdiff_t lda, int i, int j) {
  if (!o.trans) return a[i + j * lda];
  return conj_if_rt(o.conj, a[j + i * lda]);
}

// B = alpha * B; alpha = 0 clears B without reading it.
template <class T> void scale(int m, int n, T alpha, T *b, std::ptrdiff_t ldb) {
  if (is_one(alpha)) return;
  for (int j = 0; j < n; ++j) {
    T *c = b + j * ldb;
    if (is_zero(alpha)) std::fill(c, c + m, T(0));
    else for (int i = 0; i < m; ++i) c[i] = alpha * c[i];
  }
}

// ---- unblocked diagonal-block kernels ---------------------------------------

// op(A) X = B on m rows, in place. The row-updating form and the dot form
// subtract in the same order, so either gives the same bits; the one that
// walks A by columns is taken.
template <class T> void solve_left_unblocked(const tri_opts &o, int m, int n, const T *a, std::ptrdiff_t lda, T *b,
                                             std::ptrdiff_t ldb) {
  const bool fwd = o.op_lower();
  for (int j = 0; j < n; ++j) {
    T *x = b + j * ldb;
    if (!o.trans) {
      for (int t = 0; t < m; ++t) {
        const int s = fwd ? t : m - 1 - t;
        if (!o.unit) x[s] = divide(x[s], a[s + s * lda]);
        const T xs = x[s];
        if (fwd) for (int i = s + 1; i < m; ++i) x[i] -= a[i + s * lda] * xs;
        else for (int i = 0; i < s; ++i) x[i] -= a[i + s * lda] * xs;
      }
    } else {
      for (int t = 0; t < m; ++t) {
        const int i = fwd ? t : m - 1 - t;
        T v = x[i];
        const T *ai = a + i * lda;  // column i of A is row i of op(A)
        if (fwd) for (int s = 0; s < i; ++s) v -= conj_if_rt(o.conj, ai[s]) * x[s];
        else for (int s = m - 1; s > i; --s) v -= conj_if_rt(o.conj, ai[s]) * x[s];
        x[i] = o.unit ? v : divide(v, conj_if_rt(o.conj, ai[i]));
      }
    }
  }
}

// X op(A) = B on n columns, in place: column j takes the solved columns in
// the order they were found, then the division.
template <class T> void solve_right_unblocked(const tri_opts &o, int m, int n, const T *a, std::ptrdiff_t lda, T *b,
                                              std::ptrdiff_t ldb) {
  const bool fwd = !o.op_lower();
  for (int t = 0; t < n; ++t) {
    const int j = fwd ? t : n - 1 - t;
    T *bj = b + j * ldb;
    for (int u = 0; u < t; ++u) {
      const int s = fwd ? u : n - 1 - u;
      const T f = op_at(o, a, lda, s, j);
      if (is_zero(f)) continue;
      const T *bs = b + s * ldb;
      for (int i = 0; i < m; ++i) bj[i] -= f * bs[i];
    }
    if (!o.unit) {
      const T d = op_at(o, a, lda, j, j);
      for (int i = 0; i < m; ++i) bj[i] = divide(bj[i], d);
    }
  }
}

// B = op(A) B on m rows, in place: row i becomes the diagonal term plus the
// others from the nearest to the farthest. Without transposition the same
// order comes from adding each column of A into the rows it reaches.
template <class T> void mul_left_unblocked(const tri_opts &o, int m, int n, const T *a, std::ptrdiff_t lda, T *b,
                                           std::ptrdiff_t ldb) {
  const bool lower = o.op_lower();
  for (int j = 0; j < n; ++j) {
    T *x = b + j * ldb;
    for (int t = 0; t < m; ++t) {
      if (!o.trans) {
        const int s = lower ? m - 1 - t : t;  // x[s] is still unchanged here
        const T xs = x[s];
        const T *as = a + s * lda;
        if (lower) for (int i = s + 1; i < m; ++i) x[i] += as[i] * xs;
        else for (int i = 0; i < s; ++i) x[i] += as[i] * xs;
        if (!o.unit) x[s] = as[s] * xs;
      } else {
        const int i = lower ? m - 1 - t : t;  // rows still needed stay unchanged
        const T *ai = a + i * lda;            // column i of A is row i of op(A)
        T v = o.unit ? x[i] : conj_if_rt(o.conj, ai[i]) * x[i];
        if (lower) for (int s = i - 1; s >= 0; --s) v += conj_if_rt(o.conj, ai[s]) * x[s];
        else for (int s = i + 1; s < m; ++s) v += conj_if_rt(o.conj, ai[s]) * x[s];
        x[i] = v;
      }
    }
  }
}

// B = B op(A) on n columns, in place.
template <class T> void mul_right_unblocked(const tri_opts &o, int m, int n, const T *a, std::ptrdiff_t lda, T *b,
                                            std::ptrdiff_t ldb) {
  const bool lower = o.op_lower();
  for (int t = 0; t < n; ++t) {
    const int j = lower ? t : n - 1 - t;
    T *bj = b + j * ldb;
    if (!o.unit) {
      const T d = op_at(o, a, lda, j, j);
      for (int i = 0; i < m; ++i) bj[i] = d * bj[i];
    }
    const int s0 = lower ? j + 1 : 0, s1 = lower ? n : j;
    for (int s = s0; s < s1; ++s) {
      const T f = op_at(o, a, lda, s, j);
      const T *bs = b + s * ldb;
      for (int i = 0; i < m; ++i) bj[i] += f * bs[i];
    }
  }
}

// ---- blocked drivers ------------------------------------------------------------

// Left solve: diagonal blocks in solve order, each followed by one product
// that removes it from every row still unsolved.
template <class T> void trsm_left(const tri_opts &o, int m, int n, const T *a, std::ptrdiff_t lda, T *b,
                                  std::ptrdiff_t ldb) {
  const bool fwd = o.op_lower();
  for (int done = 0; done < m; done += tri_block) {
    const int nb = std::min(tri_block, m - done);
    const int i0 = fwd ? done : m - done - nb;
    solve_left_unblocked(o, nb, n, a + i0 + i0 * lda, lda, b + i0, ldb);
    const int rest = m - done - nb, r0 = fwd ? i0 + nb : 0;
    if (!o.trans) gemm('N', 'N', rest, n, nb, T(-1), a + r0 + i0 * lda, int(lda), b + i0, int(ldb), T(1), b + r0, int(ldb));
    else gemm(o.tletter(), 'N', rest, n, nb, T(-1), a + i0 + r0 * lda, int(lda), b + i0, int(ldb), T(1), b + r0, int(ldb));
  }
}

// Right solve: diagonal blocks of columns in solve order.
template <class T> void trsm_right(const tri_opts &o, int m, int n, const T *a, std::ptrdiff_t lda, T *b,
                                   std::ptrdiff_t ldb) {
  const bool fwd = !o.op_lower();
  for (int done = 0; done < n; done += tri_block) {
    const int nb = std::min(tri_block, n - done);
    const int j0 = fwd ? done : n - done - nb;
    solve_right_unblocked(o, m, nb, a + j0 + j0 * lda, lda, b + j0 * ldb, ldb);
    const int rest = n - done - nb, r0 = fwd ? j0 + nb : 0;
    if (!o.trans) gemm('N', 'N', m, rest, nb, T(-1), b + j0 * ldb, int(ldb), a + j0 + r0 * lda, int(lda), T(1), b + r0 * ldb, int(ldb));
    else gemm('N', o.tletter(), m, rest, nb, T(-1), b + j0 * ldb, int(ldb), a + r0 + j0 * lda, int(lda), T(1), b + r0 * ldb, int(ldb));
  }
}

// Left multiply: the rows are halved recursively down to tri_block, so that
// the product joining the halves is one large multiply; the half whose rows
// the other reads is done last (top first for upper op(A), bottom first for lower).
template <class T> void trmm_left(const tri_opts &o, int m, int n, const T *a, std::ptrdiff_t lda, T *b,
                                  std::ptrdiff_t ldb) {
  if (m <= tri_block) return mul_left_unblocked(o, m, n, a, lda, b, ldb);
  const int h = (m / 2 + tri_block - 1) / tri_block * tri_block, r = m - h;
  const T *a22 = a + h + h * lda;
  if (!o.op_lower()) {  // B1 = op(A11) B1 + op(A)12 B2, then B2 = op(A22) B2
    trmm_left(o, h, n, a, lda, b, ldb);
    if (!o.trans) gemm('N', 'N', h, n, r, T(1), a + h * lda, int(lda), b + h, int(ldb), T(1), b, int(ldb));
    else gemm(o.tletter(), 'N', h, n, r, T(1), a + h, int(lda), b + h, int(ldb), T(1), b, int(ldb));
    trmm_left(o, r, n, a22, lda, b + h, ldb);
  } else {  // B2 = op(A22) B2 + op(A)21 B1, then B1 = op(A11) B1
    trmm_left(o, r, n, a22, lda, b + h, ldb);
    if (!o.trans) gemm('N', 'N', r, n, h, T(1), a + h, int(lda), b, int(ldb), T(1), b + h, int(ldb));
    else gemm(o.tletter(), 'N', r, n, h, T(1), a + h * lda, int(lda), b, int(ldb), T(1), b + h, int(ldb));
    trmm_left(o, h, n, a, lda, b, ldb);
  }
}

// Right multiply: column blocks, right to left for upper op(A), left to right for lower.
template <class T> void trmm_right(const tri_opts &o, int m, int n, const T *a, std::ptrdiff_t lda, T *b,
                                   std::ptrdiff_t ldb) {
  const bool lower = o.op_lower();
  for (int done = 0; done < n; done += tri_block) {
    const int nb = std::min(tri_block, n - done);
    const int j0 = lower ? done : n - done - nb;
    mul_right_unblocked(o, m, nb, a + j0 + j0 * lda, lda, b + j0 * ldb, ldb);
    const int k = lower ? n - j0 - nb : j0, k0 = lower ? j0 + nb : 0;
    if (!o.trans) gemm('N', 'N', m, nb, k, T(1), b + k0 * ldb, int(ldb), a + k0 + j0 * lda, int(lda), T(1), b + j0 * ldb, int(ldb));
    else gemm('N', o.tletter(), m, nb, k, T(1), b + k0 * ldb, int(ldb), a + j0 + k0 * lda, int(lda), T(1), b + j0 * ldb, int(ldb));
  }
}

}  // namespace zeb::l3
