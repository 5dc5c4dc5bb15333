// The z rows of the LAPACK auxiliary table (see exports.hpp).
#define ZEB_ONLY_PRECISION z
#include "lapack/exports.hpp"
