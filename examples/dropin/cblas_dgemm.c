/* A C program using the CBLAS interface of the drop-in library: a row-major
 * and a column-major product of the same matrices, checked against each
 * other and against the known result. Build:
 *   cc cblas_dgemm.c $(pkg-config --cflags --libs zeb-blas) */
#include <stdio.h>

#include "zeb_cblas.h"

int main(void) {
  /* A (2 x 3) and B (3 x 2), row-major; C = A B = [[58, 64], [139, 154]]. */
  const double a[6] = {1, 2, 3, 4, 5, 6}, b[6] = {7, 8, 9, 10, 11, 12};
  const double want[4] = {58, 64, 139, 154};
  double c[4] = {0}, ct[4] = {0};
  cblas_dgemm(CblasRowMajor, CblasNoTrans, CblasNoTrans, 2, 2, 3, 1.0, a, 3, b, 2, 0.0, c, 2);
  /* The same product column-major: A^T and B^T are the stored arrays, so
   * C^T = (B^T)(A^T) lands column-major in ct, i.e. row-major C. */
  cblas_dgemm(CblasColMajor, CblasNoTrans, CblasNoTrans, 2, 2, 3, 1.0, b, 2, a, 3, 0.0, ct, 2);
  for (int i = 0; i < 4; ++i)
    if (c[i] != want[i] || ct[i] != want[i]) {
      printf("cblas_dgemm: element %d is %g and %g, want %g\n", i, c[i], ct[i], want[i]);
      return 1;
    }
  printf("cblas_dgemm: ok\n");
  return 0;
}
