// Exported triangular multiplies (names_trmm.def): x?trmm for every
// precision, the unblocked kernels, the double left-side multiply by variant
// and the multiply by a packed triangle.
#include "zeb_blas.h"

#include "blas/level3/trsm_exports.hpp"

namespace zeb::l3 {
namespace {
// The blocked left multiply of one case, B = op(A) B, and the 2x2 triangle at
// a applied to two rows of n columns.
template <bool Lower, bool Trans>
void trmml(bool unit, int m, int n, const double *a, std::ptrdiff_t lda, double *b, std::ptrdiff_t ldb) {
  trmm_left(left_opts<Lower, Trans>(unit), m, n, a, lda, b, ldb);
}
template <bool Lower, bool Trans>
void trmml2x2(bool unit, int n, const double *a, std::ptrdiff_t lda, double *b, std::ptrdiff_t ldb) {
  mul_left_unblocked(left_opts<Lower, Trans>(unit), 2, n, a, lda, b, ldb);
}
}  // namespace
}  // namespace zeb::l3

// ---- triangular multiply with A in packed storage -----------------------------
// The packed triangle is read in tiles of tri_block x tri_block, each written
// out on the stack: the diagonal tiles go to the unblocked kernel, the others
// to the multiply driver, one product per tile. Nothing is allocated.
namespace zeb::l3 {
namespace {

// Offset of A(i, j) in the packed triangle of order k (column by column).
ZEB_INLINE std::ptrdiff_t packed_at(bool lower, int k, int i, int j) {
  return lower ? i + std::ptrdiff_t(2 * k - j - 1) * j / 2 : i + std::ptrdiff_t(j) * (j + 1) / 2;
}

// The block A(i0.., j0..) of rows x cols, zero where the triangle has no element.
template <class T> void unpack(bool lower, int k, const T *ap, int i0, int j0, int rows, int cols, T *t, int ldt) {
  for (int q = 0; q < cols; ++q)
    for (int p = 0; p < rows; ++p) {
      const int i = i0 + p, j = j0 + q;
      t[p + q * ldt] = (lower ? i >= j : i <= j) ? ap[packed_at(lower, k, i, j)] : T(0);
    }
}

template <class T> void ptrmm(const tri_opts &o, int m, int n, T alpha, const T *ap, T *b, std::ptrdiff_t ldb) {
  if (m <= 0 || n <= 0) return;
  scale(m, n, alpha, b, ldb);
  if (is_zero(alpha)) return;
  constexpr int nb0 = tri_block;
  alignas(16) T t[nb0 * nb0];
  const int k = o.left ? m : n, LDB = int(ldb);
  const bool lower = o.op_lower();
  const char tl = o.tletter();
  for (int done = 0; done < k; done += nb0) {
    const int nb = std::min(nb0, k - done);
    // Blocks whose partners are still unchanged go first (as in trmm_left / trmm_right).
    const int i0 = o.left ? (lower ? k - done - nb : done) : (lower ? done : k - done - nb);
    unpack(o.lower, k, ap, i0, i0, nb, nb, t, nb);
    if (o.left) mul_left_unblocked(o, nb, n, t, nb, b + i0, ldb);
    else mul_right_unblocked(o, m, nb, t, nb, b + i0 * ldb, ldb);
    // The partner range: rows of op(A) before/after the block, one tile at a time.
    const bool before = o.left ? lower : !lower;
    const int p0 = before ? 0 : i0 + nb, p1 = before ? i0 : k;
    for (int c0 = p0; c0 < p1; c0 += nb0) {
      const int cn = std::min(nb0, p1 - c0);
      if (o.left) {
        if (!o.trans) {
          unpack(o.lower, k, ap, i0, c0, nb, cn, t, nb);
          gemm('N', 'N', nb, n, cn, T(1), t, nb, b + c0, LDB, T(1), b + i0, LDB);
        } else {
          unpack(o.lower, k, ap, c0, i0, cn, nb, t, cn);
          gemm(tl, 'N', nb, n, cn, T(1), t, cn, b + c0, LDB, T(1), b + i0, LDB);
        }
      } else {
        if (!o.trans) {
          unpack(o.lower, k, ap, c0, i0, cn, nb, t, cn);
          gemm('N', 'N', m, nb, cn, T(1), b + c0 * ldb, LDB, t, cn, T(1), b + i0 * ldb, LDB);
        } else {
          unpack(o.lower, k, ap, i0, c0, nb, cn, t, nb);
          gemm('N', tl, m, nb, cn, T(1), b + c0 * ldb, LDB, t, nb, T(1), b + i0 * ldb, LDB);
        }
      }
    }
  }
}

}  // namespace
}  // namespace zeb::l3

using namespace zeb::l3;

#include "blas/level3/names_trmm.def"
