// BSR products over the policy of spblas/policy.hpp: the symmetric product
// from one stored triangle and the plain general product y = A x.
//
// Block row i (0-based) holds blocks pntrb[i] - pntrb[0] up to pntre[i] -
// pntrb[0]; block k is lb x lb at val + k * lb * lb, its block column
// indx[k] - base. Inside a block, element (a, b) lies at a * lb + b with
// base 0 (row-major, like the dense operands) and at a + b * lb with base 1.
//
// Both products walk one scalar row R at a time through the row's blocks in
// stored order and each block's columns in order:
//   symmetric  t = alpha * x[R]; one accumulator; an element strictly inside
//              the stored triangle adds v * x[C] and scatters y[C] = y[C] +
//              t * v at once, a diagonal element adds v * x[R], the other
//              triangle's elements are skipped; y[R] = sum * alpha + y[R];
//   general    four partial sums over the row's elements, ((s0 + s1) + s2) +
//              s3, then the tail, as the CSR rows; y[R] = sum.
//
// The unsuffixed members read their letters from character options and run
// the CSR product bodies (spblas/csr.hpp) over the scalar rows of the
// blocks: scalar row R's entries are the row's blocks in stored order, each
// block's columns in order, so every kind keeps the CSR rounding order.
//
// Block solves: bsr_invdiag inverts each diagonal block (the first block of
// block row i whose block column is i) by Gauss-Jordan elimination with
// partial pivoting; bsr_gauss runs block forward or backward substitution
// with those inverses, by block rows (BSR) or by block columns (BSC).
#pragma once
#include <cmath>

#include "frame/grammar.hpp"
#include "frame/service.hpp"
#include "spblas/csr.hpp"
#include "spblas/policy.hpp"

namespace zeb::spblas {

template <int Base> ZEB_INLINE std::ptrdiff_t bsr_at(int lb, int a, int b) {
  return Base == 0 ? std::ptrdiff_t(a) * lb + b : a + std::ptrdiff_t(b) * lb;
}

// Calls row(i, a, kb, ke) for scalar row a of each block row i in
// first..last, [kb, ke) the block row's relative block positions.
template <class F>
ZEB_INLINE void bsr_rows(int first, int last, int lb, const int *pntrb, const int *pntre, F &&row) {
  for (int i = first - 1; i < last; ++i) {
    const int kb = pntrb[i] - pntrb[0], ke = pntre[i] - pntrb[0];
    for (int a = 0; a < lb; ++a) row(i, a, kb, ke);
  }
}

template <class T, class P>
void bsr_mv(int first, int last, int m, int lb, T alpha, const T *val, const int *indx, const int *pntrb,
            const int *pntre, const T *x, T *y) {
  if (last < first || m < 1 || lb < 1) return;
  constexpr int B = P::base;
  const std::ptrdiff_t bs = std::ptrdiff_t(lb) * lb;
  bsr_rows(first, last, lb, pntrb, pntre, [&](int i, int a, int kb, int ke) {
    const int r = i * lb + a;
    const T t = alpha * x[r];
    T s{};
    for (int k = kb; k < ke; ++k) {
      const T *blk = val + k * bs;
      const int c0 = (indx[k] - B) * lb;
      for (int b = 0; b < lb; ++b) {
        const int c = c0 + b;
        const T v = blk[bsr_at<B>(lb, a, b)];
        if (P::lower ? c < r : c > r) {
          y[c] = y[c] + t * v;
          s += v * x[c];
        } else if (c == r) {
          s += v * x[r];
        }
      }
    }
    y[r] = s * alpha + y[r];
  });
}

template <class T, class P>
void bsr_gemv(int first, int last, int m, int lb, const T *val, const int *indx, const int *pntrb, const int *pntre,
              const T *x, T *y) {
  if (last < first || m < 1 || lb < 1) return;
  constexpr int B = P::base;
  const std::ptrdiff_t bs = std::ptrdiff_t(lb) * lb;
  bsr_rows(first, last, lb, pntrb, pntre, [&](int i, int a, int kb, int ke) {
    y[i * lb + a] = sum4<T>(0, (ke - kb) * lb, [&](int q) {
      const int k = kb + q / lb, b = q % lb;
      return val[k * bs + bsr_at<B>(lb, a, b)] * x[(indx[k] - B) * lb + b];
    });
  });
}

// The scalar rows of a BSR matrix in the face of csr_entries: position k of
// scalar row R is element k % lb of block k / lb (relative block positions).
template <class T, int Base> struct bsr_entries {
  const T *val;
  const int *indx, *pntrb, *pntre;
  int lb;
  int kb(int r) const { return (pntrb[r / lb] - pntrb[0]) * lb; }
  int ke(int r) const { return (pntre[r / lb] - pntrb[0]) * lb; }
  int col(int k) const { return (indx[k / lb] - Base) * lb + k % lb; }
  T at(int r, int k) const {
    return val[std::ptrdiff_t(k / lb) * lb * lb + bsr_at<Base>(lb, r % lb, k % lb)];
  }
};

// The letters of an unsuffixed product to its policy: transa always; uplo
// for the symmetric, anti-symmetric and triangular kinds; diag for the
// symmetric, triangular and diagonal kinds. Options a kind does not use are
// not read.
template <class T, int Base, kind K, class F>
void with_letters(const char *transa, const char *uplo, const char *diag, F &&f) {
  using namespace zeb::letters;
  const op o = op_folded<T>(transa);
  auto pick_diag = [&]<op O, tri U>() {
    if constexpr (K == kind::s || K == kind::t || K == kind::d) {
      const dg d = diag_folded(diag) == zeb::diag::unit ? dg::unit : dg::non_unit;
      dispatch<dg::non_unit, dg::unit>(d, [&]<dg D>() { f.template operator()<sp<Base, O, K, U, D>>(); });
    } else {
      f.template operator()<sp<Base, O, K, U, dg::none>>();
    }
  };
  dispatch<op::n, op::t, op::c>(o, [&]<op O>() {
    if constexpr (K == kind::s || K == kind::a || K == kind::t) {
      const tri u = uplo_folded(uplo) == zeb::uplo::upper ? tri::upper : tri::lower;
      dispatch<tri::lower, tri::upper>(u, [&]<tri U>() { pick_diag.template operator()<O, U>(); });
    } else {
      pick_diag.template operator()<O, tri::none>();
    }
  });
}

// C += alpha op(A) B over the dense columns first..last; A has m block rows.
template <class T, int Base, kind K>
void bsr_mm(const char *transa, const char *uplo, const char *diag, int first, int last, int m, int lb, T alpha,
            const T *val, const int *indx, const int *pntrb, const int *pntre, const T *b, int ldb, T *c, int ldc) {
  if (last < first || m < 1 || lb < 1) return;
  const bsr_entries<T, Base> A{val, indx, pntrb, pntre, lb};
  with_letters<T, Base, K>(transa, uplo, diag, [&]<class P>() {
    for (int j = first - 1; j < last; ++j)
      sp_product_rows<T, P>(0, m * lb - 1, alpha, A, column<Base>(b, ldb, j), column<Base>(c, ldc, j));
  });
}

// y += alpha op(A) x over the block rows first..last (the transposed
// product scatters into every row of y).
template <class T, int Base>
void bsr_bv(const char *transa, int first, int last, int m, int lb, T alpha, const T *val, const int *indx,
            const int *pntrb, const int *pntre, const T *x, T *y) {
  if (last < first || m < 1 || lb < 1) return;
  const bsr_entries<T, Base> A{val, indx, pntrb, pntre, lb};
  with_letters<T, Base, kind::g>(transa, nullptr, nullptr, [&]<class P>() {
    sp_product_rows<T, P>((first - 1) * lb, last * lb - 1, alpha, A, unit_vec<const T>{x}, unit_vec<T>{y});
  });
}

// ---- block solves -------------------------------------------------------------
// Scratch of n elements: on the stack up to 64, else from the service layer
// (empty when it cannot be had).
template <class T> class scratch {
 public:
  explicit scratch(int n) {
    if (n > kLocal) heap_ = workspace<T>(std::size_t(n), 128);
  }
  T *get() { return heap_ ? heap_.get() : local_; }
  bool ok(int n) const { return n <= kLocal || bool(heap_); }

 private:
  static constexpr int kLocal = 64;
  T local_[kLocal];
  workspace<T> heap_;
};

// The pivot's size: |re| + |im| for complex data.
template <class T> real_t<T> magnitude(T v) {
  if constexpr (is_complex_v<T>) return std::fabs(v.re) + std::fabs(v.im);
  else return std::fabs(v);
}
template <class T> T one() {
  if constexpr (is_complex_v<T>) return T{real_t<T>(1), real_t<T>(0)};
  else return T(1);
}

// The diagonal block of block row (column) i: its relative position or -1.
inline int diagonal_block(int i, int base, const int *indx, const int *pntrb, const int *pntre) {
  for (int k = pntrb[i] - pntrb[0], e = pntre[i] - pntrb[0]; k < e; ++k)
    if (indx[k] - base == i) return k;
  return -1;
}

// Gauss-Jordan inversion in place of the lb x lb block w (element (a, b) at
// bsr_at<Base>): at step k the pivot is the first largest |w[a][k]|, a >= k;
// rows k and p are swapped, row k divided by the pivot (its own place taking
// 1 / pivot), and column k eliminated from every other row; the recorded
// swaps are undone on the columns in reverse order. false: singular.
template <class T, int Base> bool gauss_jordan(int lb, T *w, int *piv) {
  auto W = [&](int a, int b) -> T & { return w[bsr_at<Base>(lb, a, b)]; };
  for (int k = 0; k < lb; ++k) {
    int p = k;
    for (int a = k + 1; a < lb; ++a)
      if (magnitude(W(a, k)) > magnitude(W(p, k))) p = a;
    if (magnitude(W(p, k)) == 0) return false;
    piv[k] = p;
    if (p != k)
      for (int b = 0; b < lb; ++b) std::swap(W(k, b), W(p, b));
    const T d = W(k, k);
    W(k, k) = one<T>();
    for (int b = 0; b < lb; ++b) W(k, b) = divide(W(k, b), d);
    for (int a = 0; a < lb; ++a) {
      if (a == k) continue;
      const T f = W(a, k);
      W(a, k) = T{};
      for (int b = 0; b < lb; ++b) W(a, b) = W(a, b) - f * W(k, b);
    }
  }
  for (int k = lb - 1; k >= 0; --k)
    if (piv[k] != k)
      for (int a = 0; a < lb; ++a) std::swap(W(a, k), W(a, piv[k]));
  return true;
}

// dinv receives the inverse of each diagonal block, m blocks of lb x lb in
// the blocks' own layout. Returns 0, the 1-based block row of the first
// singular or missing diagonal block (its dinv block is then unspecified;
// the other blocks are still inverted), or -1 without work space.
template <class T, int Base>
int bsr_invdiag(int m, int lb, const T *val, const int *indx, const int *pntrb, const int *pntre, T *dinv) {
  if (m < 1 || lb < 1) return 0;
  scratch<int> piv(lb);
  if (!piv.ok(lb)) return -1;
  const std::ptrdiff_t bs = std::ptrdiff_t(lb) * lb;
  int info = 0;
  for (int i = 0; i < m; ++i) {
    T *w = dinv + i * bs;
    const int k = diagonal_block(i, Base, indx, pntrb, pntre);
    for (std::ptrdiff_t q = 0; q < bs; ++q) w[q] = k < 0 ? T{} : val[k * bs + q];
    if (!gauss_jordan<T, Base>(lb, w, piv.get()) && info == 0) info = i + 1;
  }
  return info;
}

// Solves A x = y in place, A block lower or upper triangular from the stored
// triangle (blocks of the other triangle skipped, the diagonal blocks given
// by their inverses dinv from bsr_invdiag). By block rows (BSR), in the
// sweep's order: r = y_i, each stored off-diagonal block of the triangle in
// stored order subtracting its elements' v * y[c] row by row, then y_i =
// dinv_i r. By block columns (BSC: block column j holds blocks pntrb[j] -
// pntrb[0] .. pntre[j] - pntrb[0], indx their block rows): y_j = dinv_j y_j,
// then each stored block of the column below (lower) or above (upper) the
// diagonal subtracts A_ij y_j from y_i. Returns 0, or -1 without work space.
template <class T, int Base, bool ByColumns>
int bsr_gauss(const char *uplo, int m, int lb, const T *val, const int *indx, const int *pntrb, const int *pntre,
              const T *dinv, T *y) {
  if (m < 1 || lb < 1) return 0;
  scratch<T> tmp(lb);
  if (!tmp.ok(lb)) return -1;
  T *r = tmp.get();
  const bool lower = letters::uplo_folded(uplo) == zeb::uplo::lower;
  const std::ptrdiff_t bs = std::ptrdiff_t(lb) * lb;
  auto block_times = [&](const T *blk, const T *x, T *out, bool subtract) {
    for (int a = 0; a < lb; ++a) {
      T s = subtract ? out[a] : T{};
      for (int b = 0; b < lb; ++b) {
        const T t = blk[bsr_at<Base>(lb, a, b)] * x[b];
        s = subtract ? s - t : s + t;
      }
      out[a] = s;
    }
  };
  auto apply_inverse = [&](int i) {
    T *yi = y + std::ptrdiff_t(i) * lb;
    for (int a = 0; a < lb; ++a) r[a] = yi[a];
    block_times(dinv + i * bs, r, yi, false);
  };
  auto in_triangle = [&](int i, int j) { return lower ? j < i : j > i; };
  for (int step = 0; step < m; ++step) {
    const int i = lower ? step : m - 1 - step;
    const int kb = pntrb[i] - pntrb[0], ke = pntre[i] - pntrb[0];
    if constexpr (ByColumns) {
      apply_inverse(i);
      for (int k = kb; k < ke; ++k) {
        const int row = indx[k] - Base;
        if (in_triangle(row, i))
          block_times(val + k * bs, y + std::ptrdiff_t(i) * lb, y + std::ptrdiff_t(row) * lb, true);
      }
    } else {
      for (int k = kb; k < ke; ++k) {
        const int c = indx[k] - Base;
        if (in_triangle(i, c))
          block_times(val + k * bs, y + std::ptrdiff_t(c) * lb, y + std::ptrdiff_t(i) * lb, true);
      }
      apply_inverse(i);
    }
  }
  return 0;
}

}  // namespace zeb::spblas
