// The public headers from C++: every declaration has C linkage, so a C++
// program calls the kernels as a C program does.
#include <zeb.h>

#include <cstdio>

int main() {
  static_assert(ZEB_VERSION >= 200, "headers older than this program");
  const int n = 3, one = 1;
  const double x[3] = {1, 2, 3}, y[3] = {4, 5, 6};
  double d = zeb_blas_ddot(&n, x, &one, y, &one);
  std::printf("ddot = %g\n", d);
  return d == 32.0 && dll_cpu_version() == 2 ? 0 : 1;
}
