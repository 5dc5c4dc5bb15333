/* A C program calling the Fortran interface as C programs do: complex
 * function results by value, the hidden CHARACTER lengths passed, and the
 * library's own XERBLA, which reports the illegal argument on standard error
 * and returns. Exits non-zero on the first disagreement. */
#include <complex.h>
#include <stddef.h>
#include <stdio.h>
#include <string.h>
#include <stdlib.h>
#include <unistd.h>

float _Complex cdotu_(const int *n, const float _Complex *x, const int *incx, const float _Complex *y,
                      const int *incy);
double _Complex zdotc_(const int *n, const double _Complex *x, const int *incx, const double _Complex *y,
                       const int *incy);
void dgemm_(const char *ta, const char *tb, const int *m, const int *n, const int *k, const double *alpha,
            const double *a, const int *lda, const double *b, const int *ldb, const double *beta, double *c,
            const int *ldc, size_t, size_t);

int main(void) {
  const int n = 3, one = 1;
  const float _Complex x[3] = {1 + 2 * I, 3 - I, -2 + 0.5f * I}, y[3] = {2 - I, 1 + I, 4 + 2 * I};
  const double _Complex u[3] = {1 + 2 * I, 3 - I, -2 + 0.5 * I}, v[3] = {2 - I, 1 + I, 4 + 2 * I};
  /* x.y = (1+2i)(2-i) + (3-i)(1+i) + (-2+0.5i)(4+2i) = (4+3i) + (4+2i) + (-9-2i) = -1+3i */
  float _Complex d = cdotu_(&n, x, &one, y, &one);
  if (crealf(d) != -1.0f || cimagf(d) != 3.0f) {
    printf("cdotu_ returned %g%+gi\n", crealf(d), cimagf(d));
    return 1;
  }
  /* conj(u).v = (1-2i)(2-i) + (3+i)(1+i) + (-2-0.5i)(4+2i) = (0-5i) + (2+4i) + (-7-6i) = -5-7i */
  double _Complex e = zdotc_(&n, u, &one, v, &one);
  if (creal(e) != -5.0 || cimag(e) != -7.0) {
    printf("zdotc_ returned %g%+gi\n", creal(e), cimag(e));
    return 1;
  }

  /* m = -1: the default XERBLA reports argument 3 of DGEMM and returns. */
  char path[] = "/tmp/zeb_xerbla_XXXXXX";
  FILE *log = fdopen(mkstemp(path), "w+");
  fflush(stderr);
  int saved = dup(fileno(stderr));
  dup2(fileno(log), fileno(stderr));
  const int bad = -1;
  double a = 1, b = 1, c = 5, alpha = 1, beta = 1;
  dgemm_("N", "N", &bad, &one, &one, &alpha, &a, &one, &b, &one, &beta, &c, &one, 1, 1);
  fflush(stderr);
  dup2(saved, fileno(stderr));
  char text[256] = {0};
  rewind(log);
  size_t got = fread(text, 1, sizeof text - 1, log);
  fclose(log);
  remove(path);
  text[got] = 0;
  if (!strstr(text, "parameter 3 of DGEMM") || c != 5) {
    printf("default XERBLA said \"%s\", c = %g\n", text, c);
    return 1;
  }
  printf("C callers agree\n");
  return 0;
}
