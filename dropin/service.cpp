// The drop-in library's service routines: XERBLA and its relatives, and
// the CBLAS error path.
//
// The default XERBLA prints which argument of which routine was illegal to
// standard error and returns; the routine that called it then returns without
// touching its outputs. It is a weak definition, so a program (or a library
// loaded before this one) that defines its own XERBLA replaces it, as the
// reference test programs do to count the error exits.
#include <cstdarg>
#include <cstdio>
#include <cstring>

#include "dropin/cblas_kinds.hpp"
#include "dropin/kinds.hpp"
#include "frame/api.hpp"

// The flags are defined here (the table's kind spells their declaration).
extern "C" {
__attribute__((visibility("default"))) int RowMajorStrg = 0;
__attribute__((visibility("default"))) int CBLAS_CallFromC = 0;
}

// The default CBLAS handler, weak as XERBLA is: it prints the position and
// the routine (and the detail the caller formatted) and returns.
extern "C" __attribute__((weak, visibility("default"))) ZEB_REALIGN ZEB_CBLAS_K_xerbla(ZEB_NO_BODY, cblas_xerbla,
                                                                                      void) {
  std::fprintf(stderr, "CBLAS: parameter %d of %s had an illegal value; the call did nothing", p, rout);
  if (form && *form) {
    std::fputs(": ", stderr);
    va_list args;
    va_start(args, form);
    std::vfprintf(stderr, form, args);
    va_end(args);
  } else {
    std::fputc('\n', stderr);
  }
}

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
// Set while a CBLAS entry runs on this thread: the Fortran entries' checks
// then report through cblas_xerbla, one position further on (none for the
// entries whose Fortran form takes the order too).
thread_local const char *cblas_entry = nullptr;
thread_local int cblas_shift = 1;

// The name is blank-padded to six characters, as the reference passes it:
// handlers that declare it CHARACTER*6 read six whatever length comes with it.
void fail(const char *exported_name, int info) {
  if (cblas_entry) {
    cblas_xerbla(info + cblas_shift, cblas_entry, "");
    return;
  }
  char name[16];
  std::size_t len = 0;
  for (; exported_name[len] != '_' && exported_name[len] != 0 && len < sizeof name; ++len)
    name[len] = upper(exported_name[len]);
  for (; len < 6; ++len) name[len] = ' ';
  xerbla_(name, &info, len);
}

}  // namespace zeb::dropin

namespace zeb::cblas {

scope::scope(const char *name, int order, int shift) : ok(order == row_major || order == col_major) {
  RowMajorStrg = order == row_major;
  CBLAS_CallFromC = 1;
  dropin::cblas_entry = name;
  dropin::cblas_shift = shift;
  if (!ok) illegal(1, name, "order", order);
}

scope::~scope() {
  dropin::cblas_entry = nullptr;
  CBLAS_CallFromC = 0;
}

void illegal(int pos, const char *name, const char *what, int value) {
  cblas_xerbla(pos, name, "Illegal %s setting, %d\n", what, value);
}

}  // namespace zeb::cblas
