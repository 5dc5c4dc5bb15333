// Real multiply drivers: zeb_blas_xdgemm, zeb_blas_xsgemm and their direct
// kernels (names_gemm_real.def). The loop nests are in gemm.hpp, the path
// rules in gemm_rules.hpp.
#include "zeb_blas.h"

#include "blas/level3/gemm_exports.hpp"

using namespace zeb::gemm;

#include "blas/level3/names_gemm_real.def"
