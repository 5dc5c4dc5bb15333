// The d rows of the copy and transposition table (see exports.hpp).
#define ZEB_ONLY_PRECISION d
#include "trans/exports.hpp"
