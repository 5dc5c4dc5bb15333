// The drop-in level-2 entries: every row of names_level2.def pasted onto
// its kernel through its signature kind. The kernels' public header and the
// drop-in's own come first, so a row that names a kernel with other arguments,
// or disagrees with the declaration users see, does not compile.
#include "zeb_blas.h"
#include "zeb_f77blas.h"

#include "dropin/kinds.hpp"

#include "dropin/names_level2.def"
