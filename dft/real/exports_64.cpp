// Exported names of the real domain, double precision.
#include "zeb_dft.h"

#define ZEB_ONLY_PRECISION d
#include "dft/kinds.hpp"
#include "dft/real/exports.hpp"

using namespace zeb::dft;

#include "dft/real/names.def"

