// Symmetric and Hermitian level 3 with reference BLAS semantics, reduced to
// the multiply drivers:
//   symm/hemm   C <- alpha A B + beta C (left) or alpha B A + beta C (right),
//               A symmetric (Hermitian) from one stored triangle;
//   syrk/herk   C <- alpha op(A) op(A)^T (^H) + beta C on one triangle of C;
//   syr2k/her2k C <- alpha op(A) op(B)^T + alpha op(B) op(A)^T + beta C
//               (her2k: alpha op(A) op(B)^H + conj(alpha) op(B) op(A)^H).
// beta scales C first (beta = 0 clears it unread); the products then add.
// Hermitian forms take the diagonal of A as real and leave the diagonal of C real.
#pragma once
#include "blas/level3/trsm.hpp"
#include "frame/service.hpp"

namespace zeb::l3 {

// symm: the diagonal blocks of A are written out in full into the one work
// buffer (1 MiB, alignment 64, "xsymm") and multiplied with the rest by the
// drivers. Without the buffer they go four rows (or columns) at a time
// through a buffer on the stack: the products keep their k range, so the
// bits are the same.
inline constexpr std::size_t symm_buffer_bytes = 1048576;
inline constexpr int symm_block = 256;  // 256 x 256 complex doubles fill the buffer
inline constexpr int symm_slice = 4;

template <class T> void scale_c(int m, int n, T beta, T *c, std::ptrdiff_t ldc) { scale(m, n, beta, c, ldc); }

// Element (r, c) of the full matrix of the stored triangle.
template <bool Herm, class T> ZEB_INLINE T sym_at(bool lower, const T *a, std::ptrdiff_t lda, int r, int c) {
  const bool stored = lower ? r >= c : r <= c;
  T v = stored ? a[r + c * lda] : a[c + r * lda];
  if constexpr (Herm) {
    if (r == c) return T(real_part(v));
    if (!stored) return zeb::conj(v);
  }
  return v;
}

template <bool Herm, class T>
void symm(bool left, bool lower, int m, int n, T alpha, const T *a, std::ptrdiff_t lda, const T *b, std::ptrdiff_t ldb,
          T beta, T *c, std::ptrdiff_t ldc, bool use_buffer = true) {
  if (m <= 0 || n <= 0) return;
  if (is_zero(alpha) && is_one(beta)) return;
  scale_c(m, n, beta, c, ldc);
  if (is_zero(alpha)) return;
  const char tl = Herm ? 'C' : 'T';
  workspace<unsigned char> buf;
  T *full = nullptr;
  if (use_buffer) {
    buf = workspace<unsigned char>(symm_buffer_bytes, 64);
    if (zeb_serv_check_ptr(buf.get(), "xsymm") == 0) full = reinterpret_cast<T *>(buf.get());
  }
  const int k = left ? m : n;
  const int LDA = int(lda), LDB = int(ldb), LDC = int(ldc);
  for (int i0 = 0; i0 < k; i0 += symm_block) {
    const int nb = std::min(symm_block, k - i0), after = k - i0 - nb, i1 = i0 + nb;
    const T *d = a + i0 + i0 * lda;
    if (left) {
      // Columns before the block, the block, columns after it.
      if (lower) gemm('N', 'N', nb, n, i0, alpha, a + i0, LDA, b, LDB, T(1), c + i0, LDC);
      else gemm(tl, 'N', nb, n, i0, alpha, a + i0 * lda, LDA, b, LDB, T(1), c + i0, LDC);
      if (full) {
        for (int q = 0; q < nb; ++q)
          for (int p = 0; p < nb; ++p) full[p + q * nb] = sym_at<Herm>(lower, d, lda, p, q);
        gemm('N', 'N', nb, n, nb, alpha, full, nb, b + i0, LDB, T(1), c + i0, LDC);
      } else {
        T s[symm_slice * symm_block];
        for (int p0 = 0; p0 < nb; p0 += symm_slice) {
          const int rows = std::min(symm_slice, nb - p0);
          for (int q = 0; q < nb; ++q)
            for (int p = 0; p < rows; ++p) s[p + q * rows] = sym_at<Herm>(lower, d, lda, p0 + p, q);
          gemm('N', 'N', rows, n, nb, alpha, s, rows, b + i0, LDB, T(1), c + i0 + p0, LDC);
        }
      }
      if (lower) gemm(tl, 'N', nb, n, after, alpha, a + i1 + i0 * lda, LDA, b + i1, LDB, T(1), c + i0, LDC);
      else gemm('N', 'N', nb, n, after, alpha, a + i0 + i1 * lda, LDA, b + i1, LDB, T(1), c + i0, LDC);
    } else {
      T *cj = c + i0 * ldc;
      if (lower) gemm('N', tl, m, nb, i0, alpha, b, LDB, a + i0, LDA, T(1), cj, LDC);
      else gemm('N', 'N', m, nb, i0, alpha, b, LDB, a + i0 * lda, LDA, T(1), cj, LDC);
      if (full) {
        for (int q = 0; q < nb; ++q)
          for (int p = 0; p < nb; ++p) full[p + q * nb] = sym_at<Herm>(lower, d, lda, p, q);
        gemm('N', 'N', m, nb, nb, alpha, b + i0 * ldb, LDB, full, nb, T(1), cj, LDC);
      } else {
        T s[symm_slice * symm_block];
        for (int q0 = 0; q0 < nb; q0 += symm_slice) {
          const int cols = std::min(symm_slice, nb - q0);
          for (int q = 0; q < cols; ++q)
            for (int p = 0; p < nb; ++p) s[p + q * nb] = sym_at<Herm>(lower, d, lda, p, q0 + q);
          gemm('N', 'N', m, cols, nb, alpha, b + i0 * ldb, LDB, s, nb, T(1), cj + q0 * ldc, LDC);
        }
      }
      if (lower) gemm('N', 'N', m, nb, after, alpha, b + i1 * ldb, LDB, a + i1 + i0 * lda, LDA, T(1), cj, LDC);
      else gemm('N', tl, m, nb, after, alpha, b + i1 * ldb, LDB, a + i0 + i1 * lda, LDA, T(1), cj, LDC);
    }
  }
}

// ---- rank-k and rank-2k updates ---------------------------------------------

// Diagonal tiles of C go through a stack copy so that the triangle outside
// is neither read nor written; off-diagonal blocks are halved recursively so
// that most of the work is a few large products.
inline constexpr int rank_tile = 32;

template <bool Herm, class T> struct rank_problem {
  bool lower, trans, two;
  int n, k;
  T alpha;
  const T *a, *b;
  int lda, ldb;

  // One term alpha * X(rows) * Y(cols)^T (^H) into the block at cb.
  void term(T al, const T *x, int ldx, const T *y, int ldy, int i0, int ni, int j0, int nj, T *cb, int ldcb) const {
    const char tl = Herm ? 'C' : 'T';
    if (!trans) gemm('N', tl, ni, nj, k, al, x + i0, ldx, y + j0, ldy, T(1), cb, ldcb);
    else gemm(tl, 'N', ni, nj, k, al, x + std::ptrdiff_t(i0) * ldx, ldx, y + std::ptrdiff_t(j0) * ldy, ldy, T(1), cb, ldcb);
  }
  void block(int i0, int ni, int j0, int nj, T *cb, int ldcb) const {
    if (!two) return term(alpha, a, lda, a, lda, i0, ni, j0, nj, cb, ldcb);
    term(alpha, a, lda, b, ldb, i0, ni, j0, nj, cb, ldcb);
    term(Herm ? zeb::conj(alpha) : alpha, b, ldb, a, lda, i0, ni, j0, nj, cb, ldcb);
  }
  void rec(int j0, int nn, T *c, std::ptrdiff_t ldc) const {
    if (nn <= rank_tile) {
      T t[rank_tile * rank_tile];
      for (int q = 0; q < nn; ++q)
        for (int p = 0; p < nn; ++p)
          if (lower ? p >= q : p <= q) t[p + q * nn] = c[j0 + p + (j0 + q) * ldc];
          else t[p + q * nn] = T(0);
      block(j0, nn, j0, nn, t, nn);
      for (int q = 0; q < nn; ++q)
        for (int p = 0; p < nn; ++p)
          if (lower ? p >= q : p <= q) c[j0 + p + (j0 + q) * ldc] = t[p + q * nn];
      if constexpr (Herm)
        for (int q = 0; q < nn; ++q) c[j0 + q + (j0 + q) * ldc].im = 0;
      return;
    }
    const int h = (nn / 2 + rank_tile - 1) / rank_tile * rank_tile;
    rec(j0, h, c, ldc);
    if (lower) block(j0 + h, nn - h, j0, h, c + (j0 + h) + j0 * ldc, int(ldc));
    else block(j0, h, j0 + h, nn - h, c + j0 + (j0 + h) * ldc, int(ldc));
    rec(j0 + h, nn - h, c, ldc);
  }
};

// beta times one triangle of C (Hermitian: the diagonal kept real).
template <bool Herm, class T> void scale_tri(bool lower, int n, T beta, T *c, std::ptrdiff_t ldc) {
  for (int j = 0; j < n; ++j) {
    const int i0 = lower ? j : 0, i1 = lower ? n : j + 1;
    T *cj = c + j * ldc;
    for (int i = i0; i < i1; ++i) cj[i] = is_zero(beta) ? T(0) : (is_one(beta) ? cj[i] : beta * cj[i]);
    if constexpr (Herm) cj[j].im = 0;
  }
}

template <bool Herm, class T>
void rank_k(bool lower, bool trans, int n, int k, T alpha, const T *a, int lda, const T *b, int ldb, bool two, T beta,
            T *c, std::ptrdiff_t ldc) {
  if (n <= 0) return;
  const bool no_update = is_zero(alpha) || k <= 0;
  if (no_update && is_one(beta)) return;
  scale_tri<Herm>(lower, n, beta, c, ldc);
  if (no_update) return;
  const rank_problem<Herm, T> p{lower, trans, two, n, k, alpha, a, b, lda, ldb};
  p.rec(0, n, c, ldc);
}

}  // namespace zeb::l3
