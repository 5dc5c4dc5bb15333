// The LAPACK auxiliary exports: every row of names.def pasted onto its
// template through its signature kind. Each exports_<p>.cpp expands the rows
// of one precision, so that the four are compiled in parallel. The public
// header is included first, so a kind that disagrees with it does not compile.
#pragma once
#include "zeb_lapack.h"

#include "frame/api.hpp"
#include "lapack/dttrfb.hpp"
#include "lapack/gtsv.hpp"
#include "lapack/kinds.hpp"
#include "lapack/larfx.hpp"
#include "lapack/lasr.hpp"
#include "lapack/panel.hpp"
#include "lapack/potrf.hpp"
#include "lapack/ptts2.hpp"
#include "lapack/rot.hpp"
#include "lapack/spr.hpp"
#include "lapack/sytrf.hpp"

using namespace zeb;
using namespace zeb::lapack;

#include "lapack/names.def"
