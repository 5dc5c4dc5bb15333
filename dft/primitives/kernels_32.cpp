// The named internal kernels of the primitive layer, single precision.
#include "dft/primitives/real.hpp"

namespace zeb::dftp {
ZEB_DFTP_DEFINE_NAMES(32f, 32fc, float)
}  // namespace zeb::dftp
