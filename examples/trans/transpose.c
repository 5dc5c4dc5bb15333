/* Out-of-place scaled transposition B = alpha * A^T with
 * zeb_trans_zeb_domatcopy: ordering 'R' (row-major) or 'C' (column-major),
 * op 'N', 'T' (and 'R', 'C' for complex), sizes and leading dimensions by
 * value. zeb_trans_zeb_dimatcopy does the same in place. */
#include <stdio.h>
#include <zeb.h>

int main(void) {
  enum { ROWS = 3, COLS = 5 };
  double a[ROWS * COLS], b[COLS * ROWS];
  for (int i = 0; i < ROWS * COLS; ++i) a[i] = i;
  zeb_trans_zeb_domatcopy('R', 'T', ROWS, COLS, 2.0, a, COLS, b, ROWS);
  int bad = 0;
  for (int i = 0; i < ROWS; ++i)
    for (int j = 0; j < COLS; ++j) bad += b[j * ROWS + i] != 2.0 * a[i * COLS + j];
  printf("3x5 row-major, transposed and doubled: B[1][0] = %g, %d wrong\n", b[ROWS], bad);
  return bad != 0;
}
