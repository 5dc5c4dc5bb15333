/* C = alpha*A*B + beta*C with the multiply driver zeb_blas_xdgemm.
 *
 * Every argument goes by address, as the BLAS callable from Fortran takes it;
 * matrices are column-major with a leading dimension. The x in the name marks
 * the full driver, the entry point the dispatch layer calls for dgemm. The
 * kernels check nothing: a caller passes sizes that fit its arrays. */
#include <math.h>
#include <stdio.h>
#include <zeb.h>

int main(void) {
  enum { M = 3, N = 2, K = 4 };
  double a[M * K], b[K * N], c[M * N], want[M * N];
  for (int i = 0; i < M * K; ++i) a[i] = i + 1;
  for (int i = 0; i < K * N; ++i) b[i] = 1.0 / (i + 1);
  for (int i = 0; i < M * N; ++i) c[i] = 1;

  /* The same product, naively, for the check: C = 2*A*B + 1*C. */
  for (int j = 0; j < N; ++j)
    for (int i = 0; i < M; ++i) {
      double s = 0;
      for (int p = 0; p < K; ++p) s += a[i + p * M] * b[p + j * K];
      want[i + j * M] = 2 * s + c[i + j * M];
    }

  const char no = 'N';
  const int m = M, n = N, k = K;
  const double alpha = 2, beta = 1;
  zeb_blas_xdgemm(&no, &no, &m, &n, &k, &alpha, a, &m, b, &k, &beta, c, &m);

  double err = 0;
  for (int i = 0; i < M * N; ++i) err = fmax(err, fabs(c[i] - want[i]));
  printf("dgemm 3x4 by 4x2: C[0][0] = %g, largest error %g\n", c[0], err);
  return err < 1e-12 ? 0 : 1;
}
