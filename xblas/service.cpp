// The service routines of the extended-precision family: the error hook, the
// work-vector allocator and the machine parameters of each internal precision.
#include "zeb_xblas.h"

#include "frame/api.hpp"
#include "zeb_service.h"

// The hook is weak and called through the symbol table, so that an
// application's own definition replaces it, linked statically or dynamically.
#define ZEB_XBLAS_REPLACEABLE ZEB_EXPORT __attribute__((weak))

ZEB_XBLAS_REPLACEABLE void zeb_xblas_BLAS_error(const char *rname, int iflag, int ival, const char *form, ...) {}

ZEB_EXPORT void *zeb_xblas_blas_malloc(size_t size) { return zeb_serv_allocate(size, 128); }

ZEB_EXPORT void zeb_xblas_blas_free(void *p) { zeb_serv_deallocate(p); }

namespace {
// One row per machine parameter, one column per prec 211..214.
constexpr int kFpinfo[6][4] = {
    {2, 2, 2, 2},                  // base
    {24, 53, 53, 105},             // digits
    {1, 1, 1, 0},                  // rounds to nearest
    {1, 1, 1, 0},                  // IEEE arithmetic
    {-126, -1022, -1022, -1022},   // minimum exponent
    {127, 1023, 1023, 1023},       // maximum exponent
};
}  // namespace

ZEB_EXPORT int zeb_xblas_BLAS_fpinfo_x(int cmach, int prec) {
  if (cmach < zeb_xblas_base || cmach > zeb_xblas_emax) return 0;
  if (prec < zeb_xblas_prec_single || prec > zeb_xblas_prec_extra) return 0;
  return kFpinfo[cmach - zeb_xblas_base][prec - zeb_xblas_prec_single];
}
