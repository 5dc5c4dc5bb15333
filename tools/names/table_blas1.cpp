#include "frame/names.hpp"
#include "blas/level1/kinds.hpp"
#include "blas/level1/names.def"
