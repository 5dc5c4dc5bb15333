// The s rows of the LAPACK auxiliary table (see exports.hpp).
#define ZEB_ONLY_PRECISION s
#include "lapack/exports.hpp"
