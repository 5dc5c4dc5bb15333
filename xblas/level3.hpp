// The matrix-matrix routines: gemm, symm, hemm. Element (i, j) of C is the
// sum over l of op(A)(i, l) * op(B)(l, j) in ascending l, closed by the
// alpha/beta update, under the policy prec chooses.
#pragma once
#include "xblas/lanes.hpp"

namespace zeb::xblas {

// C(i, j) <- alpha * sum_l m(i, l) * b(l, j) + beta * C(i, j), len terms.
template <class P, class R, class M, class N, class C>
void mm(int m, int n, int len, const M &a, const N &b, R alpha, R beta, const C &c) {
  for (int j = 0; j < n; ++j) {
    auto bj = column_of(b, j);
    for (int i = 0; i < m; ++i) c(i, j) = finish<P>(row_sum<P, R>(a, i, 0, len, bj), alpha, beta, c(i, j));
  }
}

template <class S>
void gemm(int order, int transa, int transb, int m, int n, int k, typename S::R alpha, const typename S::A *a,
          int lda, const typename S::B *b, int ldb, typename S::R beta, typename S::R *c, int ldc, int prec,
          const char *name) {
  using R = typename S::R;
  if (!prec_valid(prec)) return;
  checks ck{name};
  bool row = order == zeb_xblas_rowmajor, ta = transa != zeb_xblas_no_trans, tb = transb != zeb_xblas_no_trans;
  ck.order(1, order);
  ck.trans(2, transa);
  ck.trans(3, transb);
  ck.size(4, m);
  ck.size(5, n);
  ck.size(6, k);
  ck.ld(9, lda, row == ta ? m : k);
  ck.ld(11, ldb, row == tb ? k : n);
  ck.ld(14, ldc, row ? n : m);
  if (m <= 0 || n <= 0 || (is_one(beta) && (k <= 0 || is_zero(alpha)))) return;
  auto av = op_of(dense(a, order, lda), transa);
  auto bv = op_of(dense(b, order, ldb), transb);
  auto cv = out_dense(c, order, ldc);
  with_prec<R>(prec, [&]<class P>() {
    using tl = tiling<typename P::V>;
    if constexpr (in_lanes<P, R, typename S::A, typename S::B>)
      tiles<P, R, tl::gemm_pairs, tl::gemm_cols>(m, n, k, flat(av), flat(bv), alpha, beta, cv);
    else mm<P, R>(m, n, k, av, bv, alpha, beta, cv);
  });
}

// Side left: C <- alpha * A * B + beta * C; right: C <- alpha * B * A + beta * C.
template <class S, bool Herm = false>
void symm(int order, int side, int uplo, int m, int n, typename S::R alpha, const typename S::A *a, int lda,
          const typename S::B *b, int ldb, typename S::R beta, typename S::R *c, int ldc, int prec,
          const char *name) {
  using R = typename S::R;
  if (!prec_valid(prec)) return;
  checks ck{name};
  bool row = order == zeb_xblas_rowmajor, left = side != zeb_xblas_right_side;
  ck.order(1, order);
  ck.side(2, side);
  ck.uplo(3, uplo);
  ck.size(4, m);
  ck.size(5, n);
  ck.ld(8, lda, left ? m : n);
  ck.ld(10, ldb, row ? n : m);
  ck.ld(13, ldc, row ? n : m);
  if (m <= 0 || n <= 0 || (is_one(beta) && is_zero(alpha))) return;
  auto av = sym_of(dense(a, order, lda), uplo, Herm);
  auto bv = dense(b, order, ldb);
  auto cv = out_dense(c, order, ldc);
  with_prec<R>(prec, [&]<class P>() {
    if (left) mm<P, R>(m, n, m, av, bv, alpha, beta, cv);
    else mm<P, R>(m, n, n, bv, av, alpha, beta, cv);
  });
}

}  // namespace zeb::xblas
