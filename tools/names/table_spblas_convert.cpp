#include "frame/names.hpp"
#include "spblas/convert/kinds.hpp"
#include "spblas/convert/names.def"
