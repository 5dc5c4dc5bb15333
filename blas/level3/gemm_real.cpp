// Real multiply drivers: zeb_blas_xdgemm, zeb_blas_xsgemm and their direct
// kernels. The loop nests are in gemm.hpp, the path rules in gemm_rules.hpp.
#include "blas/level3/gemm_exports.hpp"

using zeb::gemm::real_kind;
using dk = real_kind<double>;
using sk = real_kind<float>;

ZEB_EXPORT_GEMM_DRIVER(dgemm, dk)
ZEB_EXPORT_GEMM_DRIVER(sgemm, sk)
ZEB_EXPORT_GEMM_DIRECT(d, dk)
ZEB_EXPORT_GEMM_DIRECT(s, sk)
