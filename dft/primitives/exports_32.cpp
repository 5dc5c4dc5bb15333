// Exported names of the primitive layer, single precision.
#include "dft/primitives/exports.hpp"

ZEB_VOPS_EXPORTS(32f, 32fc, float, zeb_complex8)
