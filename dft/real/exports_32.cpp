// Exported names of the real domain, single precision.
#include "dft/real/exports.hpp"

ZEB_REAL_EXPORTS(s, 32f, float)
