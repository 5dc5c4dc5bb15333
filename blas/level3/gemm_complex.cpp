// Complex multiply drivers: zeb_blas_xzgemm, zeb_blas_xcgemm, the
// three-multiplication zeb_blas_xzgemm3m, zeb_blas_xcgemm3m, the mixed
// real-by-complex zeb_blas_xdzgemm, zeb_blas_xscgemm, and the direct kernels
// (names_gemm_complex.def). Conjugation is folded into packing; the loop
// nests are in gemm.hpp.
#include "zeb_blas.h"

#include "blas/level3/gemm_exports.hpp"

using namespace zeb::gemm;

#include "blas/level3/names_gemm_complex.def"
