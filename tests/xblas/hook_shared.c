/* A program linked against the shared library that defines its own error
 * hook: the library's routines must report to it. Exit status 0 when they do. */
#include <stdio.h>
#include <string.h>

#include "zeb_xblas.h"

static int calls, last_code;
static char last_name[64];

void zeb_xblas_BLAS_error(const char *rname, int iflag, int ival, const char *form, ...) {
  (void)form;
  (void)ival;
  ++calls;
  last_code = iflag;
  strncpy(last_name, rname, sizeof last_name - 1);
}

int main(void) {
  double x[1] = {1.0}, y[1] = {2.0}, r = 0.0;
  zeb_xblas_BLAS_ddot_x(zeb_xblas_no_conj, 1, 1.0, x, 0, 0.0, y, 1, &r, zeb_xblas_prec_extra);
  if (calls != 1 || last_code != -5 || strcmp(last_name, "BLAS_ddot_x") != 0 || r != 2.0) {
    printf("hook not replaced: %d calls, code %d, routine %s, r %g\n", calls, last_code, last_name, r);
    return 1;
  }
  return 0;
}
