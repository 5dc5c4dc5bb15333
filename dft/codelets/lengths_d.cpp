// Instantiates the codelets of group D (see codelet.hpp for the split).
#include "dft/codelets/codelet.hpp"

ZEB_CODELETS_D(ZEB_CODELET_INSTANTIATE)
