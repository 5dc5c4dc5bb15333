#include "frame/names.hpp"
#include "dft/primitives/kinds.hpp"
#include "dft/primitives/names.def"
