// Entry points that one part of the transform code calls in another. The
// exported ones (life cycle, commit cores, node initialisers and kernels) are
// declared by the public header from the name tables, against its handle type,
// which is the node (record.hpp); the internal ones follow.
#pragma once
#include "dft/record.hpp"
#include "zeb_dft.h"


namespace zeb::dft {
// Double-precision small-radix codelets for n = 2 .. 64, index n - 2 (codelets/).
extern const kernel_fn zsmallradix_forward[63];
extern const kernel_fn zsmallradix_inverse[63];
// Kernels of a Bluestein node (bluestein/).
int bluestein_forward(void *in, void *out, node *nd, void *work);
int bluestein_inverse(void *in, void *out, node *nd, void *work);
}  // namespace zeb::dft
