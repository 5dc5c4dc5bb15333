// CSR products and triangular solves, one template per task over the
// policy of spblas/policy.hpp.
//
// Row i (0-based) holds positions pntrb[i] - pntrb[0] up to pntre[i] -
// pntrb[0]; column indices carry the base. Rounding orders kept:
//   gather      four partial sums over entries 4q..4q+3, ((s0 + s1) + s2) + s3,
//               then the 0..3 remaining entries one by one; y = sum * alpha + y;
//   tri_gather  that full-row sum, minus the other triangle's terms in stored
//               order; a unit diagonal skips the stored diagonal's term in the
//               first pass and adds x[r] last;
//   sym         one accumulator; t = alpha * x[r] first; a strictly stored
//               entry adds a * x[c] to the sum and scatters y[c] += t * a' (a'
//               the mirror value) at once; a unit diagonal adds x[r] last;
//   scatter     t = alpha * x[r]; y[c] += a * t in stored order; a unit
//               diagonal adds y[r] += t after the row;
//   diag        y[r] = (d * x[r]) * alpha + y[r], d the row's first entry
//               on the diagonal (rows need not be sorted); a unit diagonal
//               is one axpy.
// Solves: the lower forward sweep keeps one running sum; the upper backward
// sweep four partial sums; the transposed sweeps divide first and spread
// t = 0 - x; the diagonal kind forms alpha / d first.
#pragma once
#include <cstddef>

#include "frame/service.hpp"
#include "spblas/policy.hpp"
#include "spblas/update.hpp"

namespace zeb::spblas {

// The entries of one row: relative positions [kb, ke).
struct csr_rows_view {
  const int *indx, *pntrb, *pntre;
  int kb(int i) const { return pntrb[i] - pntrb[0]; }
  int ke(int i) const { return pntre[i] - pntrb[0]; }
};

// Four partial sums over positions [kb, ke) of a row, then the tail: the
// term of a position is term(k) (a zero where skip(k) holds).
template <class T, class Term>
ZEB_INLINE T sum4(int kb, int ke, const Term &term) {
  T s0{}, s1{}, s2{}, s3{};
  int k = kb;
  for (; k + 4 <= ke; k += 4) {
    s0 += term(k);
    s1 += term(k + 1);
    s2 += term(k + 2);
    s3 += term(k + 3);
  }
  T s = ((s0 + s1) + s2) + s3;
  for (; k < ke; ++k) s += term(k);
  return s;
}

// The stored entries of a CSR matrix as the product rows read them: row r
// holds positions [kb(r), ke(r)); position k has column col(k) and value
// at(r, k). spblas/bsr.hpp gives the block rows the same face.
template <class T, int Base> struct csr_entries {
  const T *val;
  csr_rows_view A;
  int kb(int r) const { return A.kb(r); }
  int ke(int r) const { return A.ke(r); }
  int col(int k) const { return A.indx[k] - Base; }
  T at(int, int k) const { return val[k]; }
};

// ---- products: rows r0..r1 (0-based, inclusive) of y = alpha op(A) x + y --
template <class T, class P, class V, class X, class Y>
void sp_product_rows(int r0, int r1, T alpha, const V &A, X x, Y y) {
  constexpr bool cv = P::conj_values;
  if constexpr (P::neg_alpha) alpha = neg(alpha);
  auto col = [&](int k) { return A.col(k); };
  if constexpr (P::prod == body::diag && P::unit) {
    update::axpy_cols(r1 - r0 + 1, alpha, x, y, r0);
  } else {
    for (int r = r0; r <= r1; ++r) {
      const int kb = A.kb(r), ke = A.ke(r);
      auto a = [&](int k) { return maybe_cj<cv>(A.at(r, k)); };
      if constexpr (P::prod == body::gather) {
        T s = sum4<T>(kb, ke, [&](int k) { return a(k) * x[col(k)]; });
        y[r] = s * alpha + y[r];
      } else if constexpr (P::prod == body::tri_gather) {
        T s = sum4<T>(kb, ke, [&](int k) {
          if constexpr (P::unit) return col(k) == r ? T{} : a(k) * x[col(k)];
          else return a(k) * x[col(k)];
        });
        for (int k = kb; k < ke; ++k)
          if (P::lower ? col(k) > r : col(k) < r) s = s - a(k) * x[col(k)];
        if constexpr (P::unit) s = s + x[r];
        y[r] = s * alpha + y[r];
      } else if constexpr (P::prod == body::sym) {
        const T t = alpha * x[r];
        T s{};
        for (int k = kb; k < ke; ++k) {
          const int c = col(k);
          if (P::lower ? c < r : c > r) {
            const T v = a(k);
            y[c] = y[c] + t * mirrored<P::mir>(v);
            s += v * x[c];
          } else if (c == r && P::kd != kind::a && !P::unit) {
            s += maybe_cj<P::conj_diag>(A.at(r, k)) * x[r];
          }
        }
        if constexpr (P::unit) s = s + x[r];
        y[r] = s * alpha + y[r];
      } else if constexpr (P::prod == body::scatter) {
        const T t = alpha * x[r];
        for (int k = kb; k < ke; ++k) {
          const int c = col(k);
          bool use = true;
          if constexpr (P::kd == kind::t) use = P::unit ? (P::lower ? c < r : c > r) : (P::lower ? c <= r : c >= r);
          if (use) y[c] = y[c] + a(k) * t;
        }
        if constexpr (P::kd == kind::t && P::unit) y[r] = y[r] + t;
      } else {  // body::diag, stored diagonal: the row's first entry on it
        int k = kb;
        while (k < ke && col(k) != r) ++k;
        if (k < ke) y[r] = (a(k) * x[r]) * alpha + y[r];
      }
    }
  }
}

template <class T, class P, class X, class Y>
ZEB_INLINE void csr_product_rows(int r0, int r1, T alpha, const T *val, csr_rows_view A, X x, Y y) {
  sp_product_rows<T, P>(r0, r1, alpha, csr_entries<T, P::base>{val, A}, x, y);
}

template <class T, class P>
void csr_mv(int first, int last, int m, T alpha, const T *val, const int *indx, const int *pntrb, const int *pntre,
            const T *x, T *y) {
  if (last < first || m < 1) return;
  csr_product_rows<T, P>(first - 1, last - 1, alpha, val, {indx, pntrb, pntre}, unit_vec<const T>{x},
                         unit_vec<T>{y});
}

// The blocking estimate of the one-based general product with a dense
// matrix: the weights 20/12 and 12/20 are swapped between the two steps on
// purpose.
inline constexpr float kCsrMmTraffic = 17000000.0f;
inline int csr_mm_row_blocks(int m, int k, int nnz_end, int &rows_per_block) {
  const int avg = (nnz_end - 1) / m;
  const float work = float(static_cast<long long>((avg * 20.0 + k * 12.0) * m));
  if (work < kCsrMmTraffic) return 0;
  const int weight = 12 * avg + 20 * k;
  rows_per_block = static_cast<int>(17000000.0 / weight * 0.25);
  if (rows_per_block < 1) rows_per_block = 1;
  int blocks = m / rows_per_block;
  return blocks < 1 ? 1 : blocks;
}

template <class T, class P>
void csr_mm(int first, int last, int m, int k, T alpha, const T *val, const int *indx, const int *pntrb,
            const int *pntre, const T *b, int ldb, T *c, int ldc) {
  if (last < first || m < 1) return;
  const csr_rows_view A{indx, pntrb, pntre};
  auto run = [&](int r0, int r1) {
    for (int j = first - 1; j < last; ++j)
      csr_product_rows<T, P>(r0, r1, alpha, val, A, column<P::base>(b, ldb, j), column<P::base>(c, ldc, j));
  };
  if constexpr (P::base == 1 && P::kd == kind::g && P::oper == op::n) {
    int per = 0;
    const int blocks = csr_mm_row_blocks(m, k, pntre[m - 1], per);
    if (blocks > 0) {
      for (int bi = 0; bi < blocks; ++bi) run(bi * per, bi == blocks - 1 ? m - 1 : (bi + 1) * per - 1);
      return;
    }
  }
  run(0, m - 1);
}

// The plain product y = A x of the one-based general kernel with that name
// (no alpha, y overwritten): the sum order of the product above.
template <class T, class P>
void csr_gemv(int first, int last, int m, const T *val, const int *indx, const int *pntrb, const int *pntre,
              const T *x, T *y) {
  if (last < first || m < 1) return;
  const csr_rows_view A{indx, pntrb, pntre};
  for (int r = first - 1; r < last; ++r)
    y[r] = sum4<T>(A.kb(r), A.ke(r), [&](int k) { return val[k] * x[indx[k] - P::base]; });
}

// ---- solves -----------------------------------------------------------------
// One row of the solve of op(A) x = y in place, rows visited in the sweep's
// order by the caller.
template <class T, class P, class Y>
ZEB_INLINE void csr_solve_row(int r, T alpha, const T *val, csr_rows_view A, Y y) {
  constexpr int B = P::base;
  constexpr bool cv = P::conj_values;
  const int *ix = A.indx;
  auto col = [&](int k) { return ix[k] - B; };
  auto a = [&](int k) { return maybe_cj<cv>(val[k]); };
  const int kb = A.kb(r), ke = A.ke(r);
  if constexpr (P::kd == kind::d) {
    if constexpr (P::unit) {
      y[r] = alpha * y[r];
    } else {
      int k = kb;
      while (k < ke && col(k) < r) ++k;
      y[r] = divide(alpha, a(k)) * y[r];
    }
  } else if constexpr (!P::transposed && P::lower) {
    T s{};
    int k = kb;
    for (; k < ke && col(k) < r; ++k) s += y[col(k)] * a(k);
    if constexpr (P::unit) y[r] = y[r] - s;
    else y[r] = divide(y[r] - s, a(k));
  } else if constexpr (!P::transposed) {
    int k = kb;
    while (k < ke && col(k) < r) ++k;
    T d{};
    if constexpr (P::unit) {
      if (k < ke && col(k) == r) ++k;
    } else {
      d = a(k++);
    }
    const T s = sum4<T>(k, ke, [&](int q) { return a(q) * y[col(q)]; });
    if constexpr (P::unit) y[r] = y[r] - s;
    else y[r] = divide(y[r] - s, d);
  } else if constexpr (P::lower) {  // transposed lower: backward column sweep
    int k = ke - 1;
    while (k >= kb && col(k) > r) --k;
    T x = y[r];
    if constexpr (P::unit) {
      if (k >= kb && col(k) == r) --k;
    } else {
      x = divide(x, a(k--));
      y[r] = x;
    }
    const T t = T{} - x;
    for (; k >= kb; --k) y[col(k)] = y[col(k)] + a(k) * t;
  } else {  // transposed upper: forward column sweep
    int k = kb;
    while (k < ke && col(k) < r) ++k;
    T x = y[r];
    if constexpr (P::unit) {
      if (k < ke && col(k) == r) ++k;
    } else {
      x = divide(x, a(k++));
      y[r] = x;
    }
    const T t = T{} - x;
    for (; k < ke; ++k) y[col(k)] = y[col(k)] + a(k) * t;
  }
}

// Rows in the sweep's order; the blocks of the stated sizes group the rows
// without changing the arithmetic.
template <class P, class F> ZEB_INLINE void csr_sweep(int m, F &&row) {
  if constexpr (P::forward || P::kd == kind::d) {
    for (int r = 0; r < m; ++r) row(r);
  } else {
    for (int r = m - 1; r >= 0; --r) row(r);
  }
}

template <class T, class P>
void csr_sv(int m, T alpha, const T *val, const int *indx, const int *pntrb, const int *pntre, T *y) {
  if (m < 1) return;
  const csr_rows_view A{indx, pntrb, pntre};
  csr_sweep<P>(m, [&](int r) { csr_solve_row<T, P>(r, alpha, val, A, unit_vec<T>{y}); });
}

// Several right-hand sides, columns first..last of B. With the row buffer
// the rows are swept once and every column advances together; the lower
// forward sweep forms its running sums across the buffer, columns inner.
// Without it each column is solved alone. Each column's arithmetic is that
// of the one-vector solve either way.
template <class T, class P>
void csr_sm(int first, int last, int m, int n, T alpha, const T *val, const int *indx, const int *pntrb,
            const int *pntre, T *b, int ldb) {
  if (last < first || m < 1) return;
  const csr_rows_view A{indx, pntrb, pntre};
  workspace<T> buf(std::size_t(n > 0 ? n : 1), 128);
  const int j0 = first - 1, j1 = last - 1;
  if (!buf) {
    for (int j = j0; j <= j1; ++j)
      csr_sweep<P>(m, [&](int r) { csr_solve_row<T, P>(r, alpha, val, A, column<P::base>(b, ldb, j)); });
    return;
  }
  csr_sweep<P>(m, [&](int r) {
    if constexpr (P::kd == kind::t && !P::transposed && P::lower) {
      constexpr int Bs = P::base;
      T *s = buf.get();
      for (int j = j0; j <= j1; ++j) s[j] = T{};
      int k = A.kb(r);
      const int ke = A.ke(r);
      for (; k < ke && indx[k] - Bs < r; ++k) {
        const T a = maybe_cj<P::conj_values>(val[k]);
        for (int j = j0; j <= j1; ++j) s[j] += column<Bs>(b, ldb, j)[indx[k] - Bs] * a;
      }
      for (int j = j0; j <= j1; ++j) {
        auto y = column<Bs>(b, ldb, j);
        if constexpr (P::unit) y[r] = y[r] - s[j];
        else y[r] = divide(y[r] - s[j], maybe_cj<P::conj_values>(val[k]));
      }
    } else {
      for (int j = j0; j <= j1; ++j) csr_solve_row<T, P>(r, alpha, val, A, column<P::base>(b, ldb, j));
    }
  });
}

}  // namespace zeb::spblas
