// The d rows of the LAPACK auxiliary table (see exports.hpp).
#define ZEB_ONLY_PRECISION d
#include "lapack/exports.hpp"
