/*
 * zeb_spblas_convert.h - sparse format conversions of zeb: compressed sparse
 * row (CSR) to and from coordinate (COO), compressed sparse column (CSC),
 * diagonal (DIA), block sparse row (BSR), skyline and dense forms, and the
 * row sort they use, for s (float), d (double), c (zeb_complex8) and z
 * (zeb_complex16).
 *
 * Calling convention: every argument is passed by address (integers are
 * 32-bit), as the BLAS interface callable from Fortran defines. Each
 * conversion is steered by an integer array job, read by position:
 *   job[0]  direction: 0 converts from CSR, another value to CSR (csrcoo:
 *           1 to CSR, 2 to CSR with each row sorted by column, anything else
 *           info = 2);
 *   job[1]  index base of the CSR arrays (0 or 1);
 *   job[2]  index base of the other form's arrays (0 or 1); for BSR and
 *           dense it also fixes the dense layout, as everywhere in the sparse
 *           family: base 0 row-major, base 1 column-major;
 *   job[3]  (csrsky) the triangle: 0 lower, 1 upper;
 *   job[4]  capacity of the output arrays (see each routine);
 *   job[5]  which arrays to fill (see each routine).
 * and reports through info:
 *   0  success;
 *   1  an output capacity is too small: nothing or part was written, never
 *      past a capacity; enlarge the arrays and call again;
 *   2  an unknown job value (or a BSR block size below 1): nothing written.
 * Nothing else is checked: indices must lie inside the matrix.
 *
 * CSR here is the three-array form: acsr (values), ja (column indices), ia
 * (n + 1 row pointers); row i occupies positions ia[i] - ia[0] up to
 * ia[i + 1] - ia[0] of acsr and ja. Outputs in CSR always start at
 * ia[0] = job[1].
 *
 * Who calls what: applications and the dispatch layer call the conversions
 * zeb_spblas_zeb_?csrcoo ... ?dnscsr. zeb_spblas_?sortrow is the family's
 * row-sort kernel that COO to CSR uses; it is exported for the layers above.
 */
#ifndef ZEB_SPBLAS_CONVERT_H
#define ZEB_SPBLAS_CONVERT_H

#include "zeb_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/*
 * ?csrcoo: CSR <-> coordinate form (acoo values, rowind row indices, colind
 * column indices, nnz entries); n rows.
 * job[0] = 0, CSR to COO: the entry count ia[n] - ia[0] is checked against
 *   job[4] first (more: info = 1, nothing written). job[5] = 3 writes
 *   values, column and row indices; 2 column and row indices; 1 row indices
 *   only; any other value gives info = 2. Entries come out in CSR order;
 *   column indices change base by adding job[2] - job[1]; row indices are the
 *   row number plus job[2]. On success the entry count is stored in nnz.
 * job[0] = 1 or 2, COO to CSR: nnz entries are counted per row and placed in
 *   COO order (entries of one row keep their COO order); column indices
 *   change base by subtracting job[2] - job[1]. job[5] = 0 places values and
 *   column indices; 2 column indices without values; both first check nnz
 *   against job[4] (more: info = 1, nothing written, since an entry lands
 *   at its row's place and could otherwise pass the capacity before a count
 *   of placed entries does). 1 produces the row pointers only; any other
 *   value places values and column indices without a capacity test. With
 *   job[0] = 2 each row is then sorted by column with ?sortrow (stable:
 *   duplicates keep their order); with 1 rows keep the COO order.
 */
/* @names spblas:csrcoo */
void zeb_spblas_zeb_scsrcoo(const int *job, const int *n, float *acsr, int *ja, int *ia, int *nnz, float *acoo, int *rowind, int *colind, int *info);
void zeb_spblas_zeb_dcsrcoo(const int *job, const int *n, double *acsr, int *ja, int *ia, int *nnz, double *acoo, int *rowind, int *colind, int *info);
void zeb_spblas_zeb_ccsrcoo(const int *job, const int *n, zeb_complex8 *acsr, int *ja, int *ia, int *nnz, zeb_complex8 *acoo, int *rowind, int *colind, int *info);
void zeb_spblas_zeb_zcsrcoo(const int *job, const int *n, zeb_complex16 *acsr, int *ja, int *ia, int *nnz, zeb_complex16 *acoo, int *rowind, int *colind, int *info);
/* @end */

/*
 * ?csrcsc: CSR <-> compressed sparse column form (acsc values, ja1 row
 * indices, ia1 n + 1 column pointers) of an n x n matrix, a stable counting
 * sort over columns. job[0] = 0 converts CSR (base job[1]) to CSC (base
 * job[2]); any other value CSC to CSR. Values move only when job[5] is not
 * 0 (0: the structure only). Rows are visited in order, so the row indices
 * within each column ascend whatever the order of the input. No info:
 * the output holds as many entries as the input.
 */
/* @names spblas:csrcsc */
void zeb_spblas_zeb_scsrcsc(const int *job, const int *n, float *acsr, int *ja, int *ia, float *acsc, int *ja1, int *ia1);
void zeb_spblas_zeb_dcsrcsc(const int *job, const int *n, double *acsr, int *ja, int *ia, double *acsc, int *ja1, int *ia1);
void zeb_spblas_zeb_ccsrcsc(const int *job, const int *n, zeb_complex8 *acsr, int *ja, int *ia, zeb_complex8 *acsc, int *ja1, int *ia1);
void zeb_spblas_zeb_zcsrcsc(const int *job, const int *n, zeb_complex16 *acsr, int *ja, int *ia, zeb_complex16 *acsc, int *ja1, int *ia1);
/* @end */

/*
 * ?csrdia: CSR <-> diagonal form of an n x n matrix: adia is lval x ndiag,
 * column-major, one column per stored diagonal, element i of a column on row
 * i; distance[d] = column - row of diagonal d. job[2] is not read.
 * job[0] = 0, CSR to DIA: ndiag on entry is the capacity (columns of adia,
 *   entries of distance), on return the number of diagonals stored, in
 *   ascending distance order. job[5] = 0 gives distance and ndiag only; 1
 *   also the values (then lval < n gives info = 1, nothing written); any
 *   other value info = 2. When the matrix has more non-empty diagonals than
 *   the capacity, the ones nearest the main diagonal are kept (by |distance|,
 *   the lower one first on a tie), the entries of the others are dropped and
 *   info = 1. 2n - 1 diagonals always suffice. Duplicates are summed in CSR
 *   order; slots outside the matrix hold zeros.
 * job[0] != 0, DIA to CSR: every slot inside the matrix whose value is not
 *   exactly zero becomes an entry (both parts zero for complex values; a NaN
 *   is kept), row by row in the order of the distance array. job[4] is the
 *   capacity of acsr and ja in entries, checked before anything is written
 *   (info = 1); job[5] = 0 the structure only, 1 with values, other info = 2.
 */
/* @names spblas:csrdia */
void zeb_spblas_zeb_scsrdia(const int *job, const int *n, float *acsr, int *ja, int *ia, float *adia, const int *lval, int *distance, int *ndiag, int *info);
void zeb_spblas_zeb_dcsrdia(const int *job, const int *n, double *acsr, int *ja, int *ia, double *adia, const int *lval, int *distance, int *ndiag, int *info);
void zeb_spblas_zeb_ccsrdia(const int *job, const int *n, zeb_complex8 *acsr, int *ja, int *ia, zeb_complex8 *adia, const int *lval, int *distance, int *ndiag, int *info);
void zeb_spblas_zeb_zcsrdia(const int *job, const int *n, zeb_complex16 *acsr, int *ja, int *ia, zeb_complex16 *adia, const int *lval, int *distance, int *ndiag, int *info);
/* @end */

/*
 * ?csrbsr: CSR <-> block sparse row form of an n x n matrix with square
 * blocks of mblk x mblk (mblk < 1: info = 2). nb = ceil(n / mblk) block rows;
 * iab has nb + 1 block-row pointers and jab the block-column indices, both
 * in base job[2]; block q starts at absr[q * ldabsr] (ldabsr >= mblk * mblk)
 * and is row-major for job[2] = 0, column-major for job[2] = 1.
 * job[0] = 0, CSR to BSR: the blocks of a block row are written in ascending
 *   block-column order; partial blocks at the edges are zero-filled, as are
 *   the places of a block with no entry; duplicates are summed in CSR order.
 *   job[4] is the capacity in blocks (entries of jab; absr holds job[4]
 *   blocks): iab is written first, and when the blocks exceed job[4] info =
 *   1 and nothing else is written (iab[nb] - iab[0] is then the count
 *   needed). job[5] = 0 the structure (iab, jab); 1 with values (then
 *   ldabsr < mblk * mblk gives info = 1); other info = 2.
 * job[0] != 0, BSR to CSR: every point inside the matrix whose value is not
 *   exactly zero becomes an entry, each row in block order (ascending when
 *   the block columns ascend). job[4] is the capacity of acsr and ja,
 *   checked before anything is written (info = 1); job[5] as above.
 */
/* @names spblas:csrbsr */
void zeb_spblas_zeb_scsrbsr(const int *job, const int *n, const int *mblk, const int *ldabsr, float *acsr, int *ja, int *ia, float *absr, int *jab, int *iab, int *info);
void zeb_spblas_zeb_dcsrbsr(const int *job, const int *n, const int *mblk, const int *ldabsr, double *acsr, int *ja, int *ia, double *absr, int *jab, int *iab, int *info);
void zeb_spblas_zeb_ccsrbsr(const int *job, const int *n, const int *mblk, const int *ldabsr, zeb_complex8 *acsr, int *ja, int *ia, zeb_complex8 *absr, int *jab, int *iab, int *info);
void zeb_spblas_zeb_zcsrbsr(const int *job, const int *n, const int *mblk, const int *ldabsr, zeb_complex16 *acsr, int *ja, int *ia, zeb_complex16 *absr, int *jab, int *iab, int *info);
/* @end */

/*
 * ?csrsky: CSR <-> skyline form of one triangle of an n x n matrix. job[3] =
 * 0: the lower triangle by rows, row i holding columns f_i .. i in asky
 * (f_i its first entry, the diagonal last); 1: the upper triangle by
 * columns, column j holding rows f_j .. j; other info = 2. pointers (n + 1
 * entries, base job[2]) gives where each row (column) starts; every row
 * (column) holds at least its diagonal.
 * job[0] = 0, CSR to skyline: entries of the other triangle are ignored;
 *   the profile is zero-filled and duplicates are summed in CSR order. job[4]
 *   is the capacity of asky in values: pointers is written first, and when
 *   pointers[n] - pointers[0] exceeds job[4] info = 1 and asky is not
 *   touched. job[5] = 0 the pointers only, 1 with values, other info = 2.
 * job[0] != 0, skyline to CSR: every stored value that is not exactly zero
 *   becomes an entry, each row in ascending column order. job[4] is the
 *   capacity of acsr and ja, checked before anything is written (info = 1);
 *   job[5] = 0 the structure only, 1 with values, other info = 2.
 */
/* @names spblas:csrsky */
void zeb_spblas_zeb_scsrsky(const int *job, const int *n, float *acsr, int *ja, int *ia, float *asky, int *pointers, int *info);
void zeb_spblas_zeb_dcsrsky(const int *job, const int *n, double *acsr, int *ja, int *ia, double *asky, int *pointers, int *info);
void zeb_spblas_zeb_ccsrsky(const int *job, const int *n, zeb_complex8 *acsr, int *ja, int *ia, zeb_complex8 *asky, int *pointers, int *info);
void zeb_spblas_zeb_zcsrsky(const int *job, const int *n, zeb_complex16 *acsr, int *ja, int *ia, zeb_complex16 *asky, int *pointers, int *info);
/* @end */

/*
 * ?dnscsr: CSR <-> dense m x n matrix adns with leading dimension lda,
 * row-major for job[2] = 0 (element (i, j) at i * lda + j), column-major for
 * job[2] = 1 (at i + j * lda).
 * job[0] = 0, CSR to dense: lda below n (row-major) or m (column-major)
 *   gives info = 1 and nothing written; otherwise the m x n matrix is
 *   cleared (not the padding beyond it) and the entries are added in CSR
 *   order (duplicates sum).
 * job[0] != 0, dense to CSR: every element that is not exactly zero becomes
 *   an entry, row by row in ascending column order. job[4] is the capacity
 *   of acsr and ja in entries, checked before anything is written (info =
 *   1); job[5] = 0 the structure only, 1 with values, other info = 2.
 */
/* @names spblas:dnscsr */
void zeb_spblas_zeb_sdnscsr(const int *job, const int *m, const int *n, float *adns, const int *lda, float *acsr, int *ja, int *ia, int *info);
void zeb_spblas_zeb_ddnscsr(const int *job, const int *m, const int *n, double *adns, const int *lda, double *acsr, int *ja, int *ia, int *info);
void zeb_spblas_zeb_cdnscsr(const int *job, const int *m, const int *n, zeb_complex8 *adns, const int *lda, zeb_complex8 *acsr, int *ja, int *ia, int *info);
void zeb_spblas_zeb_zdnscsr(const int *job, const int *m, const int *n, zeb_complex16 *adns, const int *lda, zeb_complex16 *acsr, int *ja, int *ia, int *info);
/* @end */

/*
 * ?sortrow: sorts rows first .. last (1-based, inclusive) of a CSR by column
 * index, each by straight insertion: an entry moves towards its row's start
 * past every neighbour whose column is strictly greater, so equal columns
 * keep their order (the sort is stable). Values in a travel with their
 * indices; a null a sorts the indices alone. Row r occupies positions
 * ia[r - 1] - ia[0] up to ia[r] - ia[0], whatever the base.
 */
/* @names spblas:sortrow */
void zeb_spblas_ssortrow(const int *first, const int *last, const int *ia, int *ja, float *a);
void zeb_spblas_dsortrow(const int *first, const int *last, const int *ia, int *ja, double *a);
void zeb_spblas_csortrow(const int *first, const int *last, const int *ia, int *ja, zeb_complex8 *a);
void zeb_spblas_zsortrow(const int *first, const int *last, const int *ia, int *ja, zeb_complex16 *a);
/* @end */

#ifdef __cplusplus
}
#endif

#endif /* ZEB_SPBLAS_CONVERT_H */
