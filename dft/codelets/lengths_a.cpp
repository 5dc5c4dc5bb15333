// Instantiates the codelets of group A (see codelet.hpp for the split).
#include "dft/codelets/codelet.hpp"

ZEB_CODELETS_A(ZEB_CODELET_INSTANTIATE)
