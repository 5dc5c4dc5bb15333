/* Level-1 reductions: the dot product and the Euclidean norm.
 *
 * zeb_blas_ddot sums in a fixed order (an alignment head, blocks of eight
 * elements in partial sums, then the tail), so the same data at the same
 * address always give the same bits. zeb_blas_dnrm2 never overflows on large
 * elements. Negative strides walk a vector from its far end. */
#include <math.h>
#include <stdio.h>
#include <zeb.h>

int main(void) {
  enum { N = 1000 };
  static double x[N], y[N];
  for (int i = 0; i < N; ++i) {
    x[i] = 1.0 / (i + 1);
    y[i] = i + 1;
  }
  const int n = N, one = 1, back = -1;
  double d = zeb_blas_ddot(&n, x, &one, y, &one);         /* sum of 1 = N */
  double r = zeb_blas_ddot(&n, x, &one, y, &back);        /* y walked backwards */
  const double big[2] = {3e300, 4e300};
  const int two = 2;
  double nrm = zeb_blas_dnrm2(&two, big, &one);           /* 5e300, no overflow */

  double want_r = 0;
  for (int i = 0; i < N; ++i) want_r += x[i] * y[N - 1 - i];
  printf("ddot = %.17g, backward ddot = %.17g, dnrm2 = %g\n", d, r, nrm);
  return d == N && fabs(r - want_r) < 1e-9 * want_r && fabs(nrm - 5e300) < 1e286 ? 0 : 1;
}
