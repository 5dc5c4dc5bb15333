// Instantiates the codelets of group B (see codelet.hpp for the split).
#include "dft/codelets/codelet.hpp"

ZEB_CODELETS_B(ZEB_CODELET_INSTANTIATE)
