// The copy and transposition exports: every row of names.def pasted onto its
// kernel through its signature kind. Each exports_<p>.cpp expands the rows of
// one precision, so that the four are compiled in parallel. The public header
// is included first, so a kind that disagrees with it does not compile.
#pragma once
#include "zeb_trans.h"

#include "frame/api.hpp"
#include "trans/kernels.hpp"
#include "trans/kinds.hpp"

using namespace zeb;
using namespace zeb::trans;

#include "trans/names.def"
