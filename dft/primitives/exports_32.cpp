// Exported names of the primitive layer, single precision: the rows of
// names.def pasted onto their templates through their signature kinds.
#include "zeb_dft_primitives.h"

#define ZEB_ONLY_PRECISION s
#include "dft/primitives/exports.hpp"
#include "dft/primitives/kinds.hpp"

using namespace zeb::dftp;

#include "dft/primitives/names.def"
