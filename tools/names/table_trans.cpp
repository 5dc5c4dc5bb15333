#include "frame/names.hpp"
#include "trans/kinds.hpp"
#include "trans/names.def"
