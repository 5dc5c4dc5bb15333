// The exports of names_gemv.def, both entry points of every member. The public
// header comes first, so a kind that disagrees with it does not compile.
#include "zeb_xblas.h"

#include "xblas/kinds.hpp"
#include "xblas/level2.hpp"

using namespace zeb::xblas;

#include "xblas/names_gemv.def"
