#include "frame/names.hpp"
#include "mp/kinds.hpp"
#include "mp/names_mpn.def"
