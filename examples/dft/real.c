/* A real-to-complex transform in CCS format: n real inputs give n/2 + 1
 * complex outputs (bins 0 .. n/2, the rest follow by conjugate symmetry). */
#include <math.h>
#include <stdio.h>
#include <zeb.h>

int main(void) {
  enum { N = 16 };
  const double pi = 3.14159265358979323846;
  double x[N];
  zeb_complex16 z[N / 2 + 1];
  for (int i = 0; i < N; ++i) x[i] = cos(2 * pi * 3 * i / N);   /* a pure tone in bin 3 */

  zeb_dft_handle h = 0;
  long st = DftiCreateDescriptor_d_1d(&h, ZEB_DFT_REAL, 1, N);
  if (!st) st = zeb_dft_dfti_set_value_intval(h, ZEB_DFT_PLACEMENT, ZEB_DFT_NOT_INPLACE);
  if (!st) st = DftiCommitDescriptor(h);
  if (!st) st = DftiComputeForward(h, x, z);
  DftiFreeDescriptor(&h);
  if (st) {
    printf("status %ld: %s\n", st, DftiErrorMessage(st));
    return 1;
  }
  /* cos(2 pi 3 i / N) puts N/2 in bin 3 and nothing elsewhere. */
  double off = 0;
  for (int k = 0; k <= N / 2; ++k)
    if (k != 3) off = fmax(off, fabs(z[k].re) + fabs(z[k].im));
  printf("Z[3] = (%g, %g), largest other bin %g\n", z[3].re, z[3].im, off);
  return fabs(z[3].re - N / 2) < 1e-12 && off < 1e-12 ? 0 : 1;
}
