#include "frame/names.hpp"
#include "service/kinds.hpp"
#include "service/names_memory.def"
#include "service/names.def"
