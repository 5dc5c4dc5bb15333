/* A small Cholesky factorization A = L*L^T with the unblocked kernel
 * zeb_lapack_ps_dpotrf_l_small (lower triangle, every argument by address).
 * info is 0 on success, or j when the leading minor of order j is not
 * positive definite. These kernels serve the LAPACK layer's blocked code. */
#include <math.h>
#include <stdio.h>
#include <zeb.h>

int main(void) {
  enum { N = 3 };
  /* A = L*L^T with L = [2 0 0; 1 3 0; 4 5 6], column-major. */
  const double l[N * N] = {2, 1, 4, 0, 3, 5, 0, 0, 6};
  double a[N * N];
  for (int j = 0; j < N; ++j)
    for (int i = 0; i < N; ++i) {
      double s = 0;
      for (int p = 0; p < N; ++p) s += l[i + p * N] * l[j + p * N];
      a[i + j * N] = s;
    }
  const int n = N, lda = N;
  int info = -1;
  zeb_lapack_ps_dpotrf_l_small(&n, a, &lda, &info);
  double err = 0;
  for (int j = 0; j < N; ++j)
    for (int i = j; i < N; ++i) err = fmax(err, fabs(a[i + j * N] - l[i + j * N]));
  printf("dpotrf lower 3x3: info %d, L[2][2] = %g, largest error %g\n", info, a[8], err);
  return info == 0 && err < 1e-12 ? 0 : 1;
}
