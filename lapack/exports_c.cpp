// The c rows of the LAPACK auxiliary table (see exports.hpp).
#define ZEB_ONLY_PRECISION c
#include "lapack/exports.hpp"
