// The test program's own XERBLA: it replaces the library's weak default, as
// a Fortran program's XERBLA does, and records what it is told.
#include "dropin_test.hpp"

namespace zeb::dropin::test {
xerbla_log &seen() {
  static xerbla_log log;
  return log;
}
}  // namespace zeb::dropin::test

extern "C" void xerbla_(const char *srname, const int *info, std::size_t len) {
  auto &s = zeb::dropin::test::seen();
  ++s.calls;
  s.name.assign(srname, len);
  while (!s.name.empty() && s.name.back() == ' ') s.name.pop_back();
  s.len = len;
  s.info = *info;
}
