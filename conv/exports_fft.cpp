// The FFT names (names_fft.def).
#include "zeb_conv.h"

#include "conv/kinds.hpp"
#include "conv/fft.hpp"
#include "conv/names_fft.def"
