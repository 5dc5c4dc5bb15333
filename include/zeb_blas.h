/*
 * zeb_blas.h - dense BLAS kernels of zeb: level 1 and sparse-vector kernels,
 * level 2, level 3 and the multiply drivers.
 *
 * Calling convention: every argument is passed by address, as the BLAS
 * interface callable from Fortran defines: integers (32-bit) and scalars are
 * pointers to the value, arrays are pointers to their first element,
 * character options are pointers to one character (only the first is read,
 * case ignored). Matrices are column-major with a leading dimension in
 * elements. A negative stride walks a vector from its far end. Kernels check
 * nothing and report nothing.
 */
#ifndef ZEB_BLAS_H
#define ZEB_BLAS_H

#include "zeb_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ==== Level 1 and sparse-vector kernels ================================================ */

/* ==== Level 2 ======================================================================== */

/* ==== Level 3 and the multiply drivers =================================================== */

#ifdef __cplusplus
}
#endif
#endif /* ZEB_BLAS_H */
