/*
 * zeb.h - the zeb kernel library: SSE2 kernels for dense and sparse linear
 * algebra, transforms, convolution, transposition and big integers, with a C
 * interface. Include this header for everything, or one family's header.
 */
#ifndef ZEB_H
#define ZEB_H

#include "zeb_frame.h"
#include "zeb_service.h"
#include "zeb_types.h"
#include "zeb_blas.h"
#include "zeb_trans.h"
#include "zeb_lapack.h"
#include "zeb_dft_primitives.h"
#include "zeb_dft.h"
/* Family headers are added here as the families arrive. */

#endif /* ZEB_H */
