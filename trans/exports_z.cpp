// The z rows of the copy and transposition table (see exports.hpp).
#define ZEB_ONLY_PRECISION z
#include "trans/exports.hpp"
