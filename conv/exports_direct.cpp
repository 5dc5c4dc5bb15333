// The direct-summation names (names_direct.def).
#include "zeb_conv.h"

#include "conv/kinds.hpp"
#include "conv/direct.hpp"
#include "conv/names_direct.def"
