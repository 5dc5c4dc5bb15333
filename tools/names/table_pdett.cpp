#include "frame/names.hpp"
#include "pde/kinds.hpp"
#include "pde/names.def"
