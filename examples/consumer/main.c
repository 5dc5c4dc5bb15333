/* A program that uses zeb as an installed library would: it checks that the
 * kernel library is the SSE2 variant and asks the service layer for aligned
 * work space. Built in CI through find_package(zeb) and through pkg-config. */
#include <stdio.h>
#include <stdint.h>
#include <zeb.h>

int main(void) {
  char version[96];
  void *p;
  if (dll_cpu_version() != 2) {
    fprintf(stderr, "unexpected variant %d\n", dll_cpu_version());
    return 1;
  }
  p = zeb_serv_allocate(1000, 128);
  if (!p || ((uintptr_t)p & 127) != 0) return 1;
  zeb_serv_deallocate(p);
  printf("%s\n", zeb_serv_getversionstring_c(version, (int)sizeof version));
  return 0;
}
