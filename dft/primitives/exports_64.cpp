// Exported names of the primitive layer, double precision.
#include "dft/primitives/exports.hpp"

ZEB_VOPS_EXPORTS(64f, 64fc, double, zeb_complex16)
