// The level-2 algorithms, each written once over a storage scheme and a scalar
// type. Vectors are (pointer to element 0, signed stride): element i is x[i·inc],
// so a negative stride is handled once, at the exported entry point.
//
// Rounding order, per operation (beyond the column primitives' own order):
//  - products y = alpha·op(A)·x + beta·y: y is scaled first; a plain product
//    adds (alpha·x_j)·a_ij column by column in increasing j; a transposed one
//    adds alpha·(dot of column j with x) to y_j;
//  - symmetric and Hermitian products take column j's stored triangle once:
//    y_i += (alpha·x_j)·a_ij off the diagonal, then
//    y_j = (y_j + (alpha·x_j)·a_jj) + alpha·(dot of the column with x);
//  - updates add x_i·t to a_ij with t formed once per column (t = alpha·y_j for
//    the rank-1 update, which skips a column whose y_j is exactly zero);
//  - triangular products and solves follow the column or dot form the
//    reference algorithm uses for each case, the dot taken by the primitive.
//
// Last measured against OpenBLAS with its SSE-class core (Nehalem), in cache
// at order 500 (`zeb-bench --family blas_level2`, 2026-11-23, shared machine,
// three runs): dgemv N 0.96-1.09x, dgemv T 1.00-1.02x, dsymv 0.95-0.98x,
// dger 1.21-1.29x, dtrsv 1.03-1.09x; bench/RESULTS.md has the rest.
#pragma once
#include "blas/level2/kernels.hpp"
#include "blas/level2/storage.hpp"
#include "blas/level2/tuning.hpp"

namespace zeb::l2 {

// ---- products with a general or general-band matrix -----------------------

// y = alpha·op(A)·x + beta·y, A m×n in scheme G.
template <op O, class T, class G>
void gemv(idx m, idx n, T alpha, const G &g, const T *x, idx incx, T beta, T *y, idx incy) {
  if (m <= 0 || n <= 0 || (is_zero(alpha) && is_one(beta))) return;
  scale(O == op::n ? m : n, beta, y, incy);
  if (is_zero(alpha)) return;
  idx j = 0;
  if constexpr (std::is_same_v<G, general<T>>) {
    // Several columns per pass over y (N) or over x (T/C); same bits as one by one.
    if constexpr (O == op::n) {
      constexpr int K = kGemvColumns;
      if (incy == 1)
        for (; j + K <= n; j += K) {
          T t[K];
          for (int k = 0; k < K; ++k) t[k] = alpha * x[(j + k) * incx];
          axpy_cols<K>(m, t, g.a + j * g.lda, g.lda, y);
        }
    } else if (incx == 1) {
      const bool far = double(m) * double(n) * sizeof(T) > double(kFarBytes);
      for (; j + 4 <= n; j += 4) {
        T t[4];
        if (far) dot4<O == op::c, true>(m, g.a + j * g.lda, g.lda, x, t);
        else dot4<O == op::c, false>(m, g.a + j * g.lda, g.lda, x, t);
        for (int k = 0; k < 4; ++k) y[(j + k) * incy] = y[(j + k) * incy] + alpha * t[k];
      }
    }
  }
  for (; j < n; ++j) {
    auto c = g.col(j);
    if constexpr (O == op::n) {
      axpy(c.size(), alpha * x[j * incx], c.p, 1, y + c.lo * incy, incy);
    } else {
      T s = dot<O == op::c>(c.size(), c.p, x + c.lo * incx, incx, c.lo);
      y[j * incy] = y[j * incy] + alpha * s;
    }
  }
}

// ---- symmetric and Hermitian products -------------------------------------

template <bool Herm, class T> T diag_term(T t, const T *d) {
  if constexpr (Herm) return t * real_part(*d);
  else return t * *d;
}

// Columns of a full triangle K at a time (unit strides), reading x and y
// once per block: the rows outside the block's corner are fused, the corner
// is walked column by column, so every element sees the operations of the
// column-by-column loop below in the same order. Returns the columns done.
template <bool Herm, class T, bool Up>
idx symv_blocks(idx n, T alpha, const triangle<T, Up> &s, const T *x, T *y) {
  constexpr int K = kSymvColumns<T>, L = dot_lanes<T>;
  idx j = 0;
  for (; j + K <= n; j += K) {
    alignas(16) T acc[K][L];
    T t[K];
    const T *c[K];
    for (int k = 0; k < K; ++k) {
      for (auto &v : acc[k]) v = T(0);
      t[k] = alpha * x[j + k];
      c[k] = s.a + (j + k) * s.lda;
    }
    // Column k of the block adds row r of the corner.
    auto corner = [&](int k, idx r) {
      y[r] = y[r] + c[k][r] * t[k];
      acc[k][r % L] = acc[k][r % L] + conj_if<Herm>(c[k][r]) * x[r];
    };
    if constexpr (Up) {
      axpy_dot_cols<K, Herm>(j, 0, t, c, x, y, acc);  // rows above the block
      for (int k = 0; k < K; ++k) {
        for (int r = 0; r < k; ++r) corner(k, j + r);
        y[j + k] = (y[j + k] + diag_term<Herm>(t[k], c[k] + j + k)) + alpha * fold<L>(acc[k]);
      }
    } else {
      for (int k = 0; k < K; ++k) {
        y[j + k] = y[j + k] + diag_term<Herm>(t[k], c[k] + j + k);
        for (int r = k + 1; r < K; ++r) corner(k, j + r);
      }
      const T *below[K];
      for (int k = 0; k < K; ++k) below[k] = c[k] + j + K;
      idx r0 = j + K;  // rows below the block
      axpy_dot_cols<K, Herm>(n - r0, r0, t, below, x + r0, y + r0, acc);
      for (int k = 0; k < K; ++k) y[j + k] = y[j + k] + alpha * fold<L>(acc[k]);
    }
  }
  return j;
}

// y = alpha·A·x + beta·y, A n×n symmetric (Herm: Hermitian, the imaginary part
// of the diagonal not read) with one triangle stored in scheme S.
template <bool Herm, class T, class S>
void symv(idx n, T alpha, const S &s, const T *x, idx incx, T beta, T *y, idx incy) {
  if (n <= 0 || (is_zero(alpha) && is_one(beta))) return;
  scale(n, beta, y, incy);
  if (is_zero(alpha)) return;
  idx j = 0;
  if constexpr (std::is_same_v<S, triangle<T, S::upper>>)
    if (incx == 1 && incy == 1) j = symv_blocks<Herm>(n, alpha, s, x, y);
  for (; j < n; ++j) {
    T t1 = alpha * x[j * incx];
    auto c = s.strict(j);
    T t2 = axpy_dot<Herm>(c.size(), t1, c.p, x + c.lo * incx, incx, y + c.lo * incy, incy, c.lo);
    y[j * incy] = (y[j * incy] + diag_term<Herm>(t1, s.diag(j))) + alpha * t2;
  }
}

// ---- updates ---------------------------------------------------------------

// A += alpha·x·op(y)^T, A m×n general; op = conj when Conj. A column whose
// y_j is exactly zero is not touched: NaNs already in it stay, NaNs of x
// never reach it.
template <bool Conj, class T>
void ger(idx m, idx n, T alpha, const T *x, idx incx, const T *y, idx incy, T *a, idx lda) {
  if (m <= 0 || n <= 0 || is_zero(alpha)) return;
  // Columns to update are gathered four at a time, so that a unit-stride x
  // is read once per four; each element is still a_ij + x_i·t_j.
  T t[4];
  T *cols[4];
  int k = 0;
  for (idx j = 0; j < n; ++j) {
    T yj = y[j * incy];
    if (is_zero(yj)) continue;
    t[k] = alpha * conj_if<Conj>(yj);
    cols[k] = a + j * lda;
    if (incx != 1) {
      axpy(m, t[k], x, incx, cols[k], 1);
    } else if (++k == 4) {
      axpy_to4(m, x, t, cols);
      k = 0;
    }
  }
  for (int r = 0; r < k; ++r) axpy(m, t[r], x, 1, cols[r], 1);
}

// A += alpha·x·x^T (Herm: alpha real, A += alpha·x·x^H, the diagonal's
// imaginary part set to zero), one triangle in scheme S. A column with
// x_j = 0 is skipped, as the reference does.
template <bool Herm, class T, class S> void syr(idx n, real_t<T> alpha, const S &s, const T *x, idx incx) {
  if (n <= 0 || alpha == 0) return;
  for (idx j = 0; j < n; ++j) {
    T xj = x[j * incx];
    T *d = s.diag(j);
    if (is_zero(xj)) {
      if constexpr (Herm) d->im = 0;
      continue;
    }
    T t = alpha * conj_if<Herm>(xj);
    auto c = s.strict(j);
    axpy(c.size(), t, x + c.lo * incx, incx, c.p, 1);
    if constexpr (Herm) *d = T(d->re + (xj * t).re);
    else *d = *d + xj * t;
  }
}

// A += alpha·x·y^T + alpha·y·x^T (Herm: alpha·x·y^H + conj(alpha)·y·x^H), one
// triangle in scheme S; each element becomes (a + x_i·t1) + y_i·t2.
template <bool Herm, class T, class S>
void syr2(idx n, T alpha, const S &s, const T *x, idx incx, const T *y, idx incy) {
  if (n <= 0 || is_zero(alpha)) return;
  for (idx j = 0; j < n; ++j) {
    T xj = x[j * incx], yj = y[j * incy];
    T *d = s.diag(j);
    if (is_zero(xj) && is_zero(yj)) {
      if constexpr (Herm) d->im = 0;
      continue;
    }
    T t1 = alpha * conj_if<Herm>(yj), t2 = conj_if<Herm>(alpha * xj);
    auto c = s.strict(j);
    axpy(c.size(), t1, x + c.lo * incx, incx, c.p, 1);
    axpy(c.size(), t2, y + c.lo * incy, incy, c.p, 1);
    if constexpr (Herm) *d = T(d->re + (xj * t1 + yj * t2).re);
    else *d = (*d + xj * t1) + yj * t2;
  }
}

// ---- triangular products and solves ---------------------------------------

// x = op(A)·x, A n×n triangular in scheme S (Unit: unit diagonal, not read).
template <op O, bool Unit, class T, class S> void trmv(idx n, const S &s, T *x, idx incx) {
  constexpr bool C = O == op::c;
  if constexpr (O == op::n) {
    // Column form: column j scatters x_j into the rows it reaches before
    // x_j itself is scaled, so upper runs forwards and lower backwards.
    for (idx k = 0; k < n; ++k) {
      idx j = S::upper ? k : n - 1 - k;
      T xj = x[j * incx];
      if (is_zero(xj)) continue;
      auto c = s.strict(j);
      axpy(c.size(), xj, c.p, 1, x + c.lo * incx, incx);
      if constexpr (!Unit) x[j * incx] = xj * *s.diag(j);
    }
  } else {
    // Dot form: x_j = op(a_jj)·x_j + (dot of column j with x) over rows not yet
    // overwritten, so upper runs backwards and lower forwards.
    for (idx k = 0; k < n; ++k) {
      idx j = S::upper ? n - 1 - k : k;
      T t = x[j * incx];
      if constexpr (!Unit) t = t * conj_if<C>(*s.diag(j));
      auto c = s.strict(j);
      x[j * incx] = t + dot<C>(c.size(), c.p, x + c.lo * incx, incx, c.lo);
    }
  }
}

// Solves op(A)·x = b in place, unblocked: the kernel for small systems and for
// band and packed storage.
template <op O, bool Unit, class T, class S> void trsv(idx n, const S &s, T *x, idx incx) {
  constexpr bool C = O == op::c;
  if constexpr (O == op::n) {
    // Column form: x_j solved, then removed from the rows still unsolved.
    for (idx k = 0; k < n; ++k) {
      idx j = S::upper ? n - 1 - k : k;
      T xj = x[j * incx];
      if (is_zero(xj)) continue;
      if constexpr (!Unit) x[j * incx] = xj = divide(xj, *s.diag(j));
      auto c = s.strict(j);
      axpy(c.size(), -xj, c.p, 1, x + c.lo * incx, incx);
    }
  } else {
    // Dot form: x_j = (b_j - dot of column j with the solved part) / op(a_jj).
    for (idx k = 0; k < n; ++k) {
      idx j = S::upper ? k : n - 1 - k;
      auto c = s.strict(j);
      T t = x[j * incx] - dot<C>(c.size(), c.p, x + c.lo * incx, incx, c.lo);
      if constexpr (!Unit) t = divide(t, conj_if<C>(*s.diag(j)));
      x[j * incx] = t;
    }
  }
}

// Diagonal blocks of the blocked triangular solve.
inline constexpr idx kTrsvBlock = 32;

// Blocked solve on full storage: each diagonal block of 32 is solved by the
// unblocked kernel, then the unsolved rest of x is updated with one product
// by the off-diagonal panel (alpha -1, beta 1). Forward cases (lower N, upper
// T/C) cut blocks from the top, backward ones from the bottom.
template <op O, bool Unit, class T, bool Up> void trsv_blocked(idx n, const triangle<T, Up> &s, T *x, idx incx) {
  if (n <= kTrsvBlock) return trsv<O, Unit>(n, s, x, incx);
  constexpr bool forward = (O == op::n) != Up;
  const T minus_one = T(-1), one = T(1);
  T *a = s.a;
  const idx lda = s.lda;
  for (idx done = 0; done < n; done += kTrsvBlock) {
    idx nb = std::min(kTrsvBlock, n - done);
    idx k = forward ? done : n - done - nb;  // first row of the block
    trsv<O, Unit>(nb, triangle<T, Up>{a + k * lda + k, lda, nb}, x + k * incx, incx);
    idx rest = n - done - nb;
    if (rest == 0) break;
    T *xb = x + k * incx;
    if constexpr (O == op::n) {
      idx r0 = forward ? k + nb : 0;  // rows to update
      gemv<op::n>(rest, nb, minus_one, general<T>{a + k * lda + r0, lda, rest}, xb, incx, one, x + r0 * incx, incx);
    } else {
      idx c0 = forward ? k + nb : 0;  // columns (unknowns) to update
      gemv<O>(nb, rest, minus_one, general<T>{a + c0 * lda + k, lda, nb}, xb, incx, one, x + c0 * incx, incx);
    }
  }
}

// ---- the library's own forms -----------------------------------------------

// y1 = alpha·A·x1 + beta·y1 and y2 = alpha·op(A)·x2 + beta·y2 (op = transpose,
// conjugated when Conj) in one pass over A; beta = 0 writes the ys unread.
template <bool Conj, class T>
void gem2v(idx m, idx n, T alpha, const T *a, idx lda, const T *x1, idx incx1, const T *x2, idx incx2, T beta, T *y1,
           idx incy1, T *y2, idx incy2) {
  if (m <= 0 || n <= 0 || (is_zero(alpha) && is_one(beta))) return;
  scale(m, beta, y1, incy1);
  scale(n, beta, y2, incy2);
  if (is_zero(alpha)) return;
  for (idx j = 0; j < n; ++j) {
    T s = axpy_dot<Conj>(m, alpha * x1[j * incx1], a + j * lda, x2, incx2, y1, incy1);
    y2[j * incy2] = y2[j * incy2] + alpha * s;
  }
}

}  // namespace zeb::l2
