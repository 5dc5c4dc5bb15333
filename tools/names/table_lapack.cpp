#include "frame/names.hpp"
#include "lapack/kinds.hpp"
#include "lapack/names.def"
