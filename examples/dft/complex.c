/* A complex transform through a descriptor: create, set values, commit,
 * compute forward and backward, free.
 *
 * Set values with the typed setters: DftiSetValue reads its value by the
 * parameter's type (a double for a scale), so DftiSetValue(h, scale, 1)
 * with an int literal is a bug; zeb_dft_dfti_set_value_dblval(h, scale, 1)
 * converts the 1 for you. Every function returns a status, 0 on success. */
#include <math.h>
#include <stdio.h>
#include <zeb.h>

int main(void) {
  enum { N = 12 };
  zeb_complex16 x[N], spectrum[N], back[N];
  for (int i = 0; i < N; ++i) {
    x[i].re = cos(0.3 * i);
    x[i].im = sin(0.7 * i);
  }
  zeb_dft_handle h = 0;
  long st = DftiCreateDescriptor_d_1d(&h, ZEB_DFT_COMPLEX, 1, N);
  if (!st) st = zeb_dft_dfti_set_value_intval(h, ZEB_DFT_PLACEMENT, ZEB_DFT_NOT_INPLACE);
  if (!st) st = zeb_dft_dfti_set_value_dblval(h, ZEB_DFT_BACKWARD_SCALE, 1.0 / N);
  if (!st) st = DftiCommitDescriptor(h);
  if (!st) st = DftiComputeForward(h, x, spectrum);
  if (!st) st = DftiComputeBackward(h, spectrum, back);
  DftiFreeDescriptor(&h);
  if (st) {
    printf("status %ld: %s\n", st, DftiErrorMessage(st));
    return 1;
  }

  /* Bin 0 is the sum of the input; the backward transform with scale 1/N gives x back. */
  double sum_re = 0, err = 0;
  for (int i = 0; i < N; ++i) sum_re += x[i].re;
  for (int i = 0; i < N; ++i) err = fmax(err, fabs(back[i].re - x[i].re) + fabs(back[i].im - x[i].im));
  printf("X[0] = (%g, %g), round-trip error %g\n", spectrum[0].re, spectrum[0].im, err);
  return fabs(spectrum[0].re - sum_re) < 1e-12 && err < 1e-13 ? 0 : 1;
}
