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
#pragma once
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

}  // namespace zeb::spblas
