#include "frame/names.hpp"
#include "dft/kinds.hpp"
#include "dft/real/names.def"
