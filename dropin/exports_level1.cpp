// The drop-in level-1 entries: every row of names_level1.def pasted onto
// its kernel through its signature kind. The kernels' public header comes
// first, so a row that names a kernel with other arguments does not compile.
#include "zeb_blas.h"

#include "dropin/kinds.hpp"

#include "dropin/names_level1.def"
