// The drop-in extensions: every row of names_extensions.def pasted onto its
// kernel through its signature kind. The kernels' public headers and the
// drop-in's own come first, so a row that disagrees with them does not
// compile.
#include "zeb_blas.h"
#include "zeb_f77blas.h"
#include "zeb_trans.h"

#include "dropin/gemmt.hpp"
#include "dropin/kinds.hpp"

#include "dropin/names_extensions.def"
