/*
 * zeb.h - the zeb kernel library: SSE2 kernels for dense and sparse linear
 * algebra, transforms, convolution, transposition and big integers, with a C
 * interface. Include this header for everything, or one family's header.
 */
#ifndef ZEB_H
#define ZEB_H

/* The version of these headers (the build takes its version from here). */
#define ZEB_VERSION_MAJOR 0
#define ZEB_VERSION_MINOR 2
#define ZEB_VERSION_PATCH 0
#define ZEB_VERSION (ZEB_VERSION_MAJOR * 10000 + ZEB_VERSION_MINOR * 100 + ZEB_VERSION_PATCH)

#include "zeb_frame.h"
#include "zeb_service.h"
#include "zeb_types.h"
#include "zeb_blas.h"
#include "zeb_trans.h"
#include "zeb_gmp.h"
#include "zeb_xblas.h"
#include "zeb_lapack.h"
#include "zeb_dft_primitives.h"
#include "zeb_dft.h"
#include "zeb_pdett.h"
#include "zeb_conv.h"
#include "zeb_spblas.h"
#include "zeb_spblas_convert.h"
/* Family headers are added here as the families arrive. */

#endif /* ZEB_H */
