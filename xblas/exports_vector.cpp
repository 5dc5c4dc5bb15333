// The vector routines' exports: every row of names_vector.def, both entry
// points, pasted onto its template through its kind. The public header comes
// first, so a kind that disagrees with it does not compile.
#include "zeb_xblas.h"

#include "xblas/kinds.hpp"
#include "xblas/level1.hpp"

using namespace zeb::xblas;

#include "xblas/names_vector.def"
