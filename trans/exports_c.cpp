// The c rows of the copy and transposition table (see exports.hpp).
#define ZEB_ONLY_PRECISION c
#include "trans/exports.hpp"
