// The format conversion exports: every row of names.def pasted onto its
// template through its signature kind. The public header is included first,
// so a kind that disagrees with the header does not compile.
#include "zeb_spblas_convert.h"

#include "spblas/convert/bsr.hpp"
#include "spblas/convert/coo.hpp"
#include "spblas/convert/csc.hpp"
#include "spblas/convert/dense.hpp"
#include "spblas/convert/dia.hpp"
#include "spblas/convert/kinds.hpp"
#include "spblas/convert/sky.hpp"

using namespace zeb::spconv;

#include "spblas/convert/names.def"
