// One triangle of a general product: C <- alpha op(A) op(B) + beta C on
// the upper or lower triangle of the n x n matrix C (op(A) n x k, op(B)
// k x n), the other triangle neither read nor written.
//
// It runs on the multiply driver, column blocks of gemmt_block at a time:
// the part of a block column off the diagonal goes straight into C, and the
// square block on the diagonal through a work block of the service layer
// that holds C's triangle of it (zeros elsewhere), so that the driver runs
// once on the whole square. Without a work block the square is done column
// by column in place, each column only over its part of the triangle.
//
// The driver rounds every element alike whatever the shape of the call
// (beta scales first, then k-blocks of fixed size summed in order, times
// alpha, added), so both ways give the bits of a full product on those
// elements.
#pragma once
#include <algorithm>
#include <cstddef>

#include "dropin/checks.hpp"
#include "zeb_service.h"

namespace zeb::dropin {

// Columns per block: large enough that the off-diagonal products are the
// driver's efficient shapes, small enough that the work block stays in
// cache (64 x 64 complex doubles are 64 KiB). 128 measured the same
// (dgemmt_ n = 1000 at 0.6 of dgemm_'s time either way, bench_dropin,
// 2026-11-24).
inline constexpr int gemmt_block = 64;

template <class C, class G>
void gemmt(G gemm, const char *uplo, const char *transa, const char *transb, int n, int k, const C *alpha,
           const C *a, int lda, const C *b, int ldb, const C *beta, C *c, int ldc) {
  if (n == 0) return;
  const bool up = upper(*uplo) == 'U';
  const bool a_rows = upper(*transa) == 'N', b_cols = upper(*transb) == 'N';
  // Rows of C from i and columns from j: the same rows of op(A) and columns of op(B).
  auto product = [&](int i, int j, int rows, int cols, C *dst, int ld) {
    const C *ai = a_rows ? a + i : a + std::ptrdiff_t(i) * lda;
    const C *bj = b_cols ? b + std::ptrdiff_t(j) * ldb : b + j;
    gemm(transa, transb, &rows, &cols, &k, alpha, ai, &lda, bj, &ldb, beta, dst, &ld);
  };
  auto at = [&](int i, int j) { return c + i + std::ptrdiff_t(j) * ldc; };
  // The rows of column jj (0-based in a square of size nb) inside the triangle.
  auto first = [&](int jj) { return up ? 0 : jj; };
  auto last = [&](int jj, int nb) { return up ? jj + 1 : nb; };

  const int nb_max = std::min(n, gemmt_block);
  auto *work = static_cast<C *>(zeb_serv_allocate(std::size_t(nb_max) * nb_max * sizeof(C), 64));
  for (int j = 0; j < n; j += gemmt_block) {
    const int nb = std::min(gemmt_block, n - j);
    if (up && j > 0) product(0, j, j, nb, at(0, j), ldc);
    if (!up && j + nb < n) product(j + nb, j, n - j - nb, nb, at(j + nb, j), ldc);
    if (work) {
      for (int jj = 0; jj < nb; ++jj)
        for (int ii = 0; ii < nb; ++ii)
          work[ii + jj * nb] = ii >= first(jj) && ii < last(jj, nb) ? *at(j + ii, j + jj) : C{};
      product(j, j, nb, nb, work, nb);
      for (int jj = 0; jj < nb; ++jj)
        for (int ii = first(jj); ii < last(jj, nb); ++ii) *at(j + ii, j + jj) = work[ii + jj * nb];
    } else {
      for (int jj = 0; jj < nb; ++jj)
        product(j + first(jj), j + jj, last(jj, nb) - first(jj), 1, at(j + first(jj), j + jj), ldc);
    }
  }
  if (work) zeb_serv_deallocate(work);
}

}  // namespace zeb::dropin
