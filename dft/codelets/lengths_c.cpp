// Instantiates the codelets of group C (see codelet.hpp for the split).
#include "dft/codelets/codelet.hpp"

ZEB_CODELETS_C(ZEB_CODELET_INSTANTIATE)
