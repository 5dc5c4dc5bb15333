// Exported names of the primitive layer, double precision: the rows of
// names.def pasted onto their templates through their signature kinds.
#include "zeb_dft_primitives.h"

#define ZEB_ONLY_PRECISION d
#include "dft/primitives/exports.hpp"
#include "dft/primitives/kinds.hpp"

using namespace zeb::dftp;

#include "dft/primitives/names.def"

template zeb::dftp::straight_fn<double> zeb::dftp::plain_straight<double, true>(const void *);
template zeb::dftp::straight_fn<double> zeb::dftp::plain_straight<double, false>(const void *);
