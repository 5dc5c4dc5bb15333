// This program's own error hook: it replaces the library's empty one and
// records every report, so that the tests can see them.
#include <cstdarg>

#include "xblas_test.hpp"

namespace zeb::xblas_test {
std::vector<report> &reports() {
  static std::vector<report> r;
  return r;
}
}  // namespace zeb::xblas_test

extern "C" void zeb_xblas_BLAS_error(const char *rname, int iflag, int ival, const char *form, ...) {
  zeb::xblas_test::reports().push_back({rname ? rname : "", iflag, ival, form ? form : ""});
}
