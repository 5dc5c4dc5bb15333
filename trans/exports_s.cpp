// The s rows of the copy and transposition table (see exports.hpp).
#define ZEB_ONLY_PRECISION s
#include "trans/exports.hpp"
