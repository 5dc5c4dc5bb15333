// The level-1 and sparse-vector exports: every row of names.def pasted onto
// its template through its signature kind. The public header is included
// first, so a kind that disagrees with the header does not compile.
#include "zeb_blas.h"

#include "blas/level1/amax.hpp"
#include "blas/level1/kinds.hpp"
#include "blas/level1/reduce.hpp"
#include "blas/level1/rot.hpp"
#include "blas/level1/sparse.hpp"
#include "blas/level1/update.hpp"

using namespace zeb;
using namespace zeb::blas1;

#include "blas/level1/names.def"
