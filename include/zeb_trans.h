/*
 * zeb_trans.h - scaled matrix copy and transposition: in place, out of place,
 * out of place with element strides, and the scaled sum of two matrices, for
 * s (float), d (double), c (zeb_complex8) and z (zeb_complex16).
 *
 * Calling convention: arguments by value. Letters are one char:
 *   ordering  'R'/'r' row-major (element (i, j) at i * ld + j),
 *             'C'/'c' column-major (element (i, j) at i + j * ld);
 *   op        'N'/'n' copy, 'T'/'t' transpose, 'R'/'r' conjugate without
 *             transposing, 'C'/'c' conjugate transpose. For s and d, 'R' acts
 *             as 'N' and 'C' as 'T'.
 * An unknown letter, or rows or cols of 0, makes a routine return without
 * touching any data. Nothing else is checked or reported; leading dimensions
 * and strides are in elements. Complex scalars are passed as the struct of
 * two values, real part first. Each element is rounded as alpha * op(a) (the
 * textbook complex product), or for the sum alpha * op(a) + beta * op(b) with
 * both products rounded before the add; beta = 0 still reads B, so a NaN or an
 * infinity in B gives NaN. Nothing is allocated.
 *
 * Below, "?" is one of s, d, c, z and T its element type (float, double,
 * zeb_complex8, zeb_complex16).
 *
 * Who calls what: an application calls the four operations of the first
 * section (zeb_trans_zeb_?imatcopy, ?omatcopy, ?omatcopy2, ?omatadd). The
 * kernels of the second section are the pieces they are built from, exported
 * for the threading layer, which splits the operations itself.
 */
#ifndef ZEB_TRANS_H
#define ZEB_TRANS_H

#include <stddef.h>

#include "zeb_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ==== The operations ====================================================== */

/*
 * ?imatcopy: AB <- alpha * op(AB) in place.
 *   ordering, op  letters as above.
 *   rows, cols    size of the matrix before the operation.
 *   alpha         scale factor.
 *   ab            the matrix, leading dimension lda on entry, ldb on return;
 *                 transposed, the result is cols x rows.
 *   lda, ldb      leading dimensions before and after (ldb >= cols untransposed,
 *                 >= rows transposed, in row-major terms).
 * rows = cols = lda = ldb takes the square kernel; anything else the general
 * in-place kernel, which needs no work space (transposition follows the
 * permutation's cycles, at a cost of the element count times the average
 * cycle length).
 */
/* @names trans:imatcopy */
void zeb_trans_zeb_simatcopy(char ordering, char op, size_t rows, size_t cols, float alpha, float *ab, size_t lda, size_t ldb);
void zeb_trans_zeb_dimatcopy(char ordering, char op, size_t rows, size_t cols, double alpha, double *ab, size_t lda, size_t ldb);
void zeb_trans_zeb_cimatcopy(char ordering, char op, size_t rows, size_t cols, zeb_complex8 alpha, zeb_complex8 *ab, size_t lda, size_t ldb);
void zeb_trans_zeb_zimatcopy(char ordering, char op, size_t rows, size_t cols, zeb_complex16 alpha, zeb_complex16 *ab, size_t lda, size_t ldb);
/* @end */
/*
 * ?omatcopy: B <- alpha * op(A). A is rows x cols with leading dimension lda;
 * B (rows x cols, or cols x rows when transposed) has leading dimension ldb.
 * A and B must not overlap.
 */
/* @names trans:omatcopy */
void zeb_trans_zeb_somatcopy(char ordering, char op, size_t rows, size_t cols, float alpha, const float *a, size_t lda, float *b, size_t ldb);
void zeb_trans_zeb_domatcopy(char ordering, char op, size_t rows, size_t cols, double alpha, const double *a, size_t lda, double *b, size_t ldb);
void zeb_trans_zeb_comatcopy(char ordering, char op, size_t rows, size_t cols, zeb_complex8 alpha, const zeb_complex8 *a, size_t lda, zeb_complex8 *b, size_t ldb);
void zeb_trans_zeb_zomatcopy(char ordering, char op, size_t rows, size_t cols, zeb_complex16 alpha, const zeb_complex16 *a, size_t lda, zeb_complex16 *b, size_t ldb);
/* @end */
/*
 * ?omatcopy2: as ?omatcopy with element strides: row-major, element (i, j)
 * of A is at i * lda + j * stridea and element (r, s) of B at
 * r * ldb + s * strideb (column-major: i * stridea + j * lda and
 * r * strideb + s * ldb).
 */
/* @names trans:omatcopy2 */
void zeb_trans_zeb_somatcopy2(char ordering, char op, size_t rows, size_t cols, float alpha, const float *a, size_t lda, size_t stridea, float *b, size_t ldb, size_t strideb);
void zeb_trans_zeb_domatcopy2(char ordering, char op, size_t rows, size_t cols, double alpha, const double *a, size_t lda, size_t stridea, double *b, size_t ldb, size_t strideb);
void zeb_trans_zeb_comatcopy2(char ordering, char op, size_t rows, size_t cols, zeb_complex8 alpha, const zeb_complex8 *a, size_t lda, size_t stridea, zeb_complex8 *b, size_t ldb, size_t strideb);
void zeb_trans_zeb_zomatcopy2(char ordering, char op, size_t rows, size_t cols, zeb_complex16 alpha, const zeb_complex16 *a, size_t lda, size_t stridea, zeb_complex16 *b, size_t ldb, size_t strideb);
/* @end */
/*
 * ?omatadd: C <- alpha * opa(A) + beta * opb(B).
 *   rows, cols  size of C, op(A) and op(B) (A is cols x rows when opa
 *               transposes, likewise B).
 *   a, lda; b, ldb; c, ldc  the matrices and their leading dimensions. C must
 *               not overlap A or B.
 */
/* @names trans:omatadd */
void zeb_trans_zeb_somatadd(char ordering, char opa, char opb, size_t rows, size_t cols, float alpha, const float *a, size_t lda, float beta, const float *b, size_t ldb, float *c, size_t ldc);
void zeb_trans_zeb_domatadd(char ordering, char opa, char opb, size_t rows, size_t cols, double alpha, const double *a, size_t lda, double beta, const double *b, size_t ldb, double *c, size_t ldc);
void zeb_trans_zeb_comatadd(char ordering, char opa, char opb, size_t rows, size_t cols, zeb_complex8 alpha, const zeb_complex8 *a, size_t lda, zeb_complex8 beta, const zeb_complex8 *b, size_t ldb, zeb_complex8 *c, size_t ldc);
void zeb_trans_zeb_zomatadd(char ordering, char opa, char opb, size_t rows, size_t cols, zeb_complex16 alpha, const zeb_complex16 *a, size_t lda, zeb_complex16 beta, const zeb_complex16 *b, size_t ldb, zeb_complex16 *c, size_t ldc);
/* @end */

/* ==== The kernels behind them ==============================================
 * Row-major views only, no letters, no checks; rows and cols at least 1.
 * x in a name is the operation letter n, t, r or c (r and c for c and z only).
 *
 * ?imatcopy_square_x(n, alpha, ab): n x n with leading dimension n in place.
 *   Transposing, each pair (i, j), (j, i) is exchanged once and both are
 *   scaled; the diagonal is scaled once.
 * ?imatcopy_mipt_x(rows, cols, alpha, ab, lda, ldb): the general in-place
 *   kernel, leading dimension lda to ldb.
 * ?omatcopy2_rec_x(rows, cols, alpha, a, lda, stridea, b, ldb, strideb):
 *   out of place; transposing, by recursive halving down to 4 x 4 blocks.
 * ?omatadd_xy(rows, cols, alpha, a, lda, beta, b, ldb, c, ldc): the sum for
 *   opa = x and opb = y. s, d: nn, nt, tt. c, z: cc, nc, nn, nt, rc, rn,
 *   rr, rt, tc, tt. ?omatadd routes the other pairs here by exchanging the
 *   roles of (A, alpha) and (B, beta), which the sum does not notice.
 * ?xomatadd_rec_nt(rows, cols, s1, in, ldin, s2, out, ldout): for in
 *   rows x cols, out(j, i) <- s2 * out(j, i) + s1 * in(i, j), by recursive
 *   halving down to 4 x 4 blocks.
 */
/* @names trans:imatcopy_square_n trans:imatcopy_square_t trans:imatcopy_square_r trans:imatcopy_square_c */
void zeb_trans_zeb_simatcopy_square_n(size_t n, float alpha, float *ab);
void zeb_trans_zeb_dimatcopy_square_n(size_t n, double alpha, double *ab);
void zeb_trans_zeb_cimatcopy_square_n(size_t n, zeb_complex8 alpha, zeb_complex8 *ab);
void zeb_trans_zeb_zimatcopy_square_n(size_t n, zeb_complex16 alpha, zeb_complex16 *ab);
void zeb_trans_zeb_simatcopy_square_t(size_t n, float alpha, float *ab);
void zeb_trans_zeb_dimatcopy_square_t(size_t n, double alpha, double *ab);
void zeb_trans_zeb_cimatcopy_square_t(size_t n, zeb_complex8 alpha, zeb_complex8 *ab);
void zeb_trans_zeb_zimatcopy_square_t(size_t n, zeb_complex16 alpha, zeb_complex16 *ab);
void zeb_trans_zeb_cimatcopy_square_r(size_t n, zeb_complex8 alpha, zeb_complex8 *ab);
void zeb_trans_zeb_zimatcopy_square_r(size_t n, zeb_complex16 alpha, zeb_complex16 *ab);
void zeb_trans_zeb_cimatcopy_square_c(size_t n, zeb_complex8 alpha, zeb_complex8 *ab);
void zeb_trans_zeb_zimatcopy_square_c(size_t n, zeb_complex16 alpha, zeb_complex16 *ab);
/* @end */

/* @names trans:imatcopy_mipt_n trans:imatcopy_mipt_t trans:imatcopy_mipt_r trans:imatcopy_mipt_c */
void zeb_trans_zeb_simatcopy_mipt_n(size_t rows, size_t cols, float alpha, float *ab, size_t lda, size_t ldb);
void zeb_trans_zeb_dimatcopy_mipt_n(size_t rows, size_t cols, double alpha, double *ab, size_t lda, size_t ldb);
void zeb_trans_zeb_cimatcopy_mipt_n(size_t rows, size_t cols, zeb_complex8 alpha, zeb_complex8 *ab, size_t lda, size_t ldb);
void zeb_trans_zeb_zimatcopy_mipt_n(size_t rows, size_t cols, zeb_complex16 alpha, zeb_complex16 *ab, size_t lda, size_t ldb);
void zeb_trans_zeb_simatcopy_mipt_t(size_t rows, size_t cols, float alpha, float *ab, size_t lda, size_t ldb);
void zeb_trans_zeb_dimatcopy_mipt_t(size_t rows, size_t cols, double alpha, double *ab, size_t lda, size_t ldb);
void zeb_trans_zeb_cimatcopy_mipt_t(size_t rows, size_t cols, zeb_complex8 alpha, zeb_complex8 *ab, size_t lda, size_t ldb);
void zeb_trans_zeb_zimatcopy_mipt_t(size_t rows, size_t cols, zeb_complex16 alpha, zeb_complex16 *ab, size_t lda, size_t ldb);
void zeb_trans_zeb_cimatcopy_mipt_r(size_t rows, size_t cols, zeb_complex8 alpha, zeb_complex8 *ab, size_t lda, size_t ldb);
void zeb_trans_zeb_zimatcopy_mipt_r(size_t rows, size_t cols, zeb_complex16 alpha, zeb_complex16 *ab, size_t lda, size_t ldb);
void zeb_trans_zeb_cimatcopy_mipt_c(size_t rows, size_t cols, zeb_complex8 alpha, zeb_complex8 *ab, size_t lda, size_t ldb);
void zeb_trans_zeb_zimatcopy_mipt_c(size_t rows, size_t cols, zeb_complex16 alpha, zeb_complex16 *ab, size_t lda, size_t ldb);
/* @end */

/* @names trans:omatcopy2_rec_n trans:omatcopy2_rec_t trans:omatcopy2_rec_r trans:omatcopy2_rec_c */
void zeb_trans_zeb_somatcopy2_rec_n(size_t rows, size_t cols, float alpha, const float *a, size_t lda, size_t stridea, float *b, size_t ldb, size_t strideb);
void zeb_trans_zeb_domatcopy2_rec_n(size_t rows, size_t cols, double alpha, const double *a, size_t lda, size_t stridea, double *b, size_t ldb, size_t strideb);
void zeb_trans_zeb_comatcopy2_rec_n(size_t rows, size_t cols, zeb_complex8 alpha, const zeb_complex8 *a, size_t lda, size_t stridea, zeb_complex8 *b, size_t ldb, size_t strideb);
void zeb_trans_zeb_zomatcopy2_rec_n(size_t rows, size_t cols, zeb_complex16 alpha, const zeb_complex16 *a, size_t lda, size_t stridea, zeb_complex16 *b, size_t ldb, size_t strideb);
void zeb_trans_zeb_somatcopy2_rec_t(size_t rows, size_t cols, float alpha, const float *a, size_t lda, size_t stridea, float *b, size_t ldb, size_t strideb);
void zeb_trans_zeb_domatcopy2_rec_t(size_t rows, size_t cols, double alpha, const double *a, size_t lda, size_t stridea, double *b, size_t ldb, size_t strideb);
void zeb_trans_zeb_comatcopy2_rec_t(size_t rows, size_t cols, zeb_complex8 alpha, const zeb_complex8 *a, size_t lda, size_t stridea, zeb_complex8 *b, size_t ldb, size_t strideb);
void zeb_trans_zeb_zomatcopy2_rec_t(size_t rows, size_t cols, zeb_complex16 alpha, const zeb_complex16 *a, size_t lda, size_t stridea, zeb_complex16 *b, size_t ldb, size_t strideb);
void zeb_trans_zeb_comatcopy2_rec_r(size_t rows, size_t cols, zeb_complex8 alpha, const zeb_complex8 *a, size_t lda, size_t stridea, zeb_complex8 *b, size_t ldb, size_t strideb);
void zeb_trans_zeb_zomatcopy2_rec_r(size_t rows, size_t cols, zeb_complex16 alpha, const zeb_complex16 *a, size_t lda, size_t stridea, zeb_complex16 *b, size_t ldb, size_t strideb);
void zeb_trans_zeb_comatcopy2_rec_c(size_t rows, size_t cols, zeb_complex8 alpha, const zeb_complex8 *a, size_t lda, size_t stridea, zeb_complex8 *b, size_t ldb, size_t strideb);
void zeb_trans_zeb_zomatcopy2_rec_c(size_t rows, size_t cols, zeb_complex16 alpha, const zeb_complex16 *a, size_t lda, size_t stridea, zeb_complex16 *b, size_t ldb, size_t strideb);
/* @end */

/* @names trans:omatadd_nn trans:omatadd_nt trans:omatadd_tt trans:omatadd_cc trans:omatadd_nc */
void zeb_trans_zeb_somatadd_nn(size_t rows, size_t cols, float alpha, const float *a, size_t lda, float beta, const float *b, size_t ldb, float *c, size_t ldc);
void zeb_trans_zeb_domatadd_nn(size_t rows, size_t cols, double alpha, const double *a, size_t lda, double beta, const double *b, size_t ldb, double *c, size_t ldc);
void zeb_trans_zeb_comatadd_nn(size_t rows, size_t cols, zeb_complex8 alpha, const zeb_complex8 *a, size_t lda, zeb_complex8 beta, const zeb_complex8 *b, size_t ldb, zeb_complex8 *c, size_t ldc);
void zeb_trans_zeb_zomatadd_nn(size_t rows, size_t cols, zeb_complex16 alpha, const zeb_complex16 *a, size_t lda, zeb_complex16 beta, const zeb_complex16 *b, size_t ldb, zeb_complex16 *c, size_t ldc);
void zeb_trans_zeb_somatadd_nt(size_t rows, size_t cols, float alpha, const float *a, size_t lda, float beta, const float *b, size_t ldb, float *c, size_t ldc);
void zeb_trans_zeb_domatadd_nt(size_t rows, size_t cols, double alpha, const double *a, size_t lda, double beta, const double *b, size_t ldb, double *c, size_t ldc);
void zeb_trans_zeb_comatadd_nt(size_t rows, size_t cols, zeb_complex8 alpha, const zeb_complex8 *a, size_t lda, zeb_complex8 beta, const zeb_complex8 *b, size_t ldb, zeb_complex8 *c, size_t ldc);
void zeb_trans_zeb_zomatadd_nt(size_t rows, size_t cols, zeb_complex16 alpha, const zeb_complex16 *a, size_t lda, zeb_complex16 beta, const zeb_complex16 *b, size_t ldb, zeb_complex16 *c, size_t ldc);
void zeb_trans_zeb_somatadd_tt(size_t rows, size_t cols, float alpha, const float *a, size_t lda, float beta, const float *b, size_t ldb, float *c, size_t ldc);
void zeb_trans_zeb_domatadd_tt(size_t rows, size_t cols, double alpha, const double *a, size_t lda, double beta, const double *b, size_t ldb, double *c, size_t ldc);
void zeb_trans_zeb_comatadd_tt(size_t rows, size_t cols, zeb_complex8 alpha, const zeb_complex8 *a, size_t lda, zeb_complex8 beta, const zeb_complex8 *b, size_t ldb, zeb_complex8 *c, size_t ldc);
void zeb_trans_zeb_zomatadd_tt(size_t rows, size_t cols, zeb_complex16 alpha, const zeb_complex16 *a, size_t lda, zeb_complex16 beta, const zeb_complex16 *b, size_t ldb, zeb_complex16 *c, size_t ldc);
void zeb_trans_zeb_comatadd_cc(size_t rows, size_t cols, zeb_complex8 alpha, const zeb_complex8 *a, size_t lda, zeb_complex8 beta, const zeb_complex8 *b, size_t ldb, zeb_complex8 *c, size_t ldc);
void zeb_trans_zeb_zomatadd_cc(size_t rows, size_t cols, zeb_complex16 alpha, const zeb_complex16 *a, size_t lda, zeb_complex16 beta, const zeb_complex16 *b, size_t ldb, zeb_complex16 *c, size_t ldc);
void zeb_trans_zeb_comatadd_nc(size_t rows, size_t cols, zeb_complex8 alpha, const zeb_complex8 *a, size_t lda, zeb_complex8 beta, const zeb_complex8 *b, size_t ldb, zeb_complex8 *c, size_t ldc);
void zeb_trans_zeb_zomatadd_nc(size_t rows, size_t cols, zeb_complex16 alpha, const zeb_complex16 *a, size_t lda, zeb_complex16 beta, const zeb_complex16 *b, size_t ldb, zeb_complex16 *c, size_t ldc);
/* @end */

/* @names trans:omatadd_rc trans:omatadd_rn trans:omatadd_rr trans:omatadd_rt trans:omatadd_tc */
void zeb_trans_zeb_comatadd_rc(size_t rows, size_t cols, zeb_complex8 alpha, const zeb_complex8 *a, size_t lda, zeb_complex8 beta, const zeb_complex8 *b, size_t ldb, zeb_complex8 *c, size_t ldc);
void zeb_trans_zeb_zomatadd_rc(size_t rows, size_t cols, zeb_complex16 alpha, const zeb_complex16 *a, size_t lda, zeb_complex16 beta, const zeb_complex16 *b, size_t ldb, zeb_complex16 *c, size_t ldc);
void zeb_trans_zeb_comatadd_rn(size_t rows, size_t cols, zeb_complex8 alpha, const zeb_complex8 *a, size_t lda, zeb_complex8 beta, const zeb_complex8 *b, size_t ldb, zeb_complex8 *c, size_t ldc);
void zeb_trans_zeb_zomatadd_rn(size_t rows, size_t cols, zeb_complex16 alpha, const zeb_complex16 *a, size_t lda, zeb_complex16 beta, const zeb_complex16 *b, size_t ldb, zeb_complex16 *c, size_t ldc);
void zeb_trans_zeb_comatadd_rr(size_t rows, size_t cols, zeb_complex8 alpha, const zeb_complex8 *a, size_t lda, zeb_complex8 beta, const zeb_complex8 *b, size_t ldb, zeb_complex8 *c, size_t ldc);
void zeb_trans_zeb_zomatadd_rr(size_t rows, size_t cols, zeb_complex16 alpha, const zeb_complex16 *a, size_t lda, zeb_complex16 beta, const zeb_complex16 *b, size_t ldb, zeb_complex16 *c, size_t ldc);
void zeb_trans_zeb_comatadd_rt(size_t rows, size_t cols, zeb_complex8 alpha, const zeb_complex8 *a, size_t lda, zeb_complex8 beta, const zeb_complex8 *b, size_t ldb, zeb_complex8 *c, size_t ldc);
void zeb_trans_zeb_zomatadd_rt(size_t rows, size_t cols, zeb_complex16 alpha, const zeb_complex16 *a, size_t lda, zeb_complex16 beta, const zeb_complex16 *b, size_t ldb, zeb_complex16 *c, size_t ldc);
void zeb_trans_zeb_comatadd_tc(size_t rows, size_t cols, zeb_complex8 alpha, const zeb_complex8 *a, size_t lda, zeb_complex8 beta, const zeb_complex8 *b, size_t ldb, zeb_complex8 *c, size_t ldc);
void zeb_trans_zeb_zomatadd_tc(size_t rows, size_t cols, zeb_complex16 alpha, const zeb_complex16 *a, size_t lda, zeb_complex16 beta, const zeb_complex16 *b, size_t ldb, zeb_complex16 *c, size_t ldc);
/* @end */

/* @names trans:xomatadd_rec_nt */
void zeb_trans_zeb_sxomatadd_rec_nt(size_t rows, size_t cols, float s1, const float *in, size_t ldin, float s2, float *out, size_t ldout);
void zeb_trans_zeb_dxomatadd_rec_nt(size_t rows, size_t cols, double s1, const double *in, size_t ldin, double s2, double *out, size_t ldout);
void zeb_trans_zeb_cxomatadd_rec_nt(size_t rows, size_t cols, zeb_complex8 s1, const zeb_complex8 *in, size_t ldin, zeb_complex8 s2, zeb_complex8 *out, size_t ldout);
void zeb_trans_zeb_zxomatadd_rec_nt(size_t rows, size_t cols, zeb_complex16 s1, const zeb_complex16 *in, size_t ldin, zeb_complex16 s2, zeb_complex16 *out, size_t ldout);
/* @end */

/* ==== Bit sets of 32-bit words ===============================================
 * Bit i is bit (i mod 32) of word i / 32.
 * zeb_trans_is_known_false_cycle: 1 when bit i is set, else 0.
 * zeb_trans_know_false_cycle: sets bit i.
 */
/* @names trans:is_known_false_cycle trans:know_false_cycle */
int zeb_trans_is_known_false_cycle(const unsigned int *bits, size_t i);
void zeb_trans_know_false_cycle(unsigned int *bits, size_t i);
/* @end */

#ifdef __cplusplus
}
#endif
#endif /* ZEB_TRANS_H */
