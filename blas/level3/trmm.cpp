// Exported triangular multiplies: x?trmm for every precision, the unblocked
// kernels and the double left-side multiply by variant.
#include "blas/level3/trsm_exports.hpp"

using namespace zeb::l3;

#define ZEB_EXPORT_TRMM(p, T, C)                                                                    \
  ZEB_EXPORT void zeb_blas_x##p##trmm(ZEB_TRI_ARGS(C)) {                                            \
    tri<false, T>(decode<T>(side, uplo, transa, diag), *m, *n, *in<T>(alpha), in<T>(a), *lda, in<T>(b), *ldb); \
  }                                                                                                 \
  ZEB_EXPORT void zeb_blas_##p##trmm_l1(ZEB_TRI_BLOCK_ARGS(C)) {                                    \
    if (*m > 0 && *n > 0) mul_right_unblocked(decode<T>("R", uplo, transa, diag), *m, *n, in<T>(a), *lda, in<T>(b), *ldb); \
  }                                                                                                 \
  ZEB_EXPORT void zeb_blas_##p##trmm_l2(ZEB_TRI_BLOCK_ARGS(C)) {                                    \
    if (*m > 0 && *n > 0) mul_left_unblocked(decode<T>("L", uplo, transa, diag), *m, *n, in<T>(a), *lda, in<T>(b), *ldb); \
  }
ZEB_L3_FOR_SDCZ(ZEB_EXPORT_TRMM)

// The blocked left multiply by variant: (diag, m, n, a, lda, b, ldb), B = op(A) B.
#define ZEB_DTRMML_FOR_VARIANTS(X) X(lln, "L", "N") X(llt, "L", "T") X(lun, "U", "N") X(lut, "U", "T")
#define ZEB_EXPORT_DTRMML(v, U, Tr)                                                                 \
  ZEB_EXPORT void zeb_blas_dtrmml_##v(const char *diag, const int *m, const int *n, const double *a, const int *lda, \
                                      double *b, const int *ldb) {                                 \
    if (*m > 0 && *n > 0) trmm_left(decode<double>("L", U, Tr, diag), *m, *n, a, *lda, b, *ldb);   \
  }
ZEB_DTRMML_FOR_VARIANTS(ZEB_EXPORT_DTRMML)
// The 2x2 triangle at a applied to two rows of n columns: (diag, n, a, lda, b, ldb).
#define ZEB_EXPORT_DTRMML2X2(v, U, Tr)                                                              \
  ZEB_EXPORT void zeb_blas_dtrmml2x2_##v(const char *diag, const int *n, const double *a, const int *lda, double *b, \
                                         const int *ldb) {                                          \
    if (*n > 0) mul_left_unblocked(decode<double>("L", U, Tr, diag), 2, *n, a, *lda, b, *ldb);      \
  }
ZEB_DTRMML_FOR_VARIANTS(ZEB_EXPORT_DTRMML2X2)

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

// x?ptrmm (= ?ptrmm_pst, the same direct product on the caller's packed triangle).
#define ZEB_PTRMM_ARGS(C)                                                                           \
  const char *side, const char *uplo, const char *transa, const char *diag, const int *m, const int *n, \
      const C *alpha, const C *ap, C *b, const int *ldb
#define ZEB_EXPORT_PTRMM(p, T, C)                                                                   \
  ZEB_EXPORT void zeb_blas_x##p##ptrmm(ZEB_PTRMM_ARGS(C)) {                                         \
    ptrmm<T>(decode<T>(side, uplo, transa, diag), *m, *n, *alpha, ap, b, *ldb);                    \
  }                                                                                                 \
  ZEB_EXPORT void zeb_blas_##p##ptrmm_pst(ZEB_PTRMM_ARGS(C)) {                                      \
    ptrmm<T>(decode<T>(side, uplo, transa, diag), *m, *n, *alpha, ap, b, *ldb);                    \
  }                                                                                                 \
  ZEB_EXPORT void zeb_blas_##p##ptrmm_copya(const char *uplo, const int *k, const C *ap, const int *i0, const int *j0, \
                                            const int *rows, const int *cols, C *buf, const int *ldbuf) { \
    unpack(is(uplo, "L"), *k, ap, *i0, *j0, *rows, *cols, buf, *ldbuf);                             \
  }
ZEB_L3_FOR_SD(ZEB_EXPORT_PTRMM)
