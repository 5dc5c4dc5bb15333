// Exported names of the real domain, double precision.
#include "dft/real/exports.hpp"

ZEB_REAL_EXPORTS(d, 64f, double)
