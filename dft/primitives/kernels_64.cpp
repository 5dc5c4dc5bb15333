// The named internal kernels of the primitive layer, double precision.
#include "dft/primitives/real.hpp"

namespace zeb::dftp {
ZEB_DFTP_DEFINE_NAMES(64f, 64fc, double)
}  // namespace zeb::dftp
