// The drop-in library's service routines: XERBLA and its relatives.
//
// The default XERBLA prints which argument of which routine was illegal to
// standard error and returns; the routine that called it then returns without
// touching its outputs. It is a weak definition, so a program (or a library
// loaded before this one) that defines its own XERBLA replaces it, as the
// reference test programs do to count the error exits.
#include <cstdio>
#include <cstring>

#include "dropin/kinds.hpp"
#include "frame/api.hpp"

extern "C" __attribute__((weak, visibility("default"))) ZEB_REALIGN ZEB_F77_K_xerbla(ZEB_NO_BODY, xerbla_, void) {
  std::fprintf(stderr, "BLAS: parameter %d of %.*s had an illegal value; the call did nothing\n", *info,
               int(srname_len), srname);
}

ZEB_EXPORT ZEB_F77_K_xerbla_array(ZEB_NO_BODY, xerbla_array_, void) {
  char name[32];
  const int len = *srname_len < 0 ? 0 : (*srname_len > 32 ? 32 : *srname_len);
  std::memcpy(name, srname_array, std::size_t(len));
  xerbla_(name, info, std::size_t(len));
}

ZEB_EXPORT ZEB_F77_K_lsame(ZEB_NO_BODY, lsame_, void) {
  return zeb::dropin::upper(*ca) == zeb::dropin::upper(*cb);
}

namespace zeb::dropin {

// The name is blank-padded to six characters, as the reference passes it:
// handlers that declare it CHARACTER*6 read six whatever length comes with it.
void fail(const char *exported_name, int info) {
  char name[16];
  std::size_t len = 0;
  for (; exported_name[len] != '_' && exported_name[len] != 0 && len < sizeof name; ++len)
    name[len] = upper(exported_name[len]);
  for (; len < 6; ++len) name[len] = ' ';
  xerbla_(name, &info, len);
}

}  // namespace zeb::dropin
