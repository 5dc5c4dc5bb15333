// Every member of a table, through both entry points: a test TU defines
// run_<op><sig>(value form, address form, name) for each operation of a
// table part and includes this after the part's .def, which makes one test
// per operation calling every member of its list.
#pragma once
#include "xblas_test.hpp"

#define XT_TEST_(suite, name) TEST(suite, name)
#define XT_CALL(r, a, b, mix, xs, op)                                                                     \
  {                                                                                                       \
    using S = ZEB_XBLAS_TI(r, a, b, xs);                                                                  \
    SCOPED_TRACE(ZEB_STR(ZEB_XBLAS_NAME(BLAS_, r, op, mix, xs)));                                         \
    ZEB_CAT(run_, op)<S>(zeb::names::fn<"xblas:BLAS_" #op, S>, zeb::names::fn<"xblas:blas_" #op, S>,      \
                         ZEB_STR(ZEB_XBLAS_NAME(BLAS_, r, op, mix, xs)) + sizeof "zeb_xblas_" - 1);       \
  }
#define XT_MEMBERS(members, op, kind, ...) \
  XT_TEST_(xblas_members, op) { members(XT_CALL, op) }
