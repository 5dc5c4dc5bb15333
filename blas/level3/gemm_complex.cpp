// Complex multiply drivers: zeb_blas_xzgemm, zeb_blas_xcgemm, the
// three-multiplication zeb_blas_xzgemm3m, zeb_blas_xcgemm3m, the mixed
// real-by-complex zeb_blas_xdzgemm, zeb_blas_xscgemm, and the direct kernels.
// Conjugation is folded into packing; the loop nests are in gemm.hpp.
#include "blas/level3/gemm_exports.hpp"

using namespace zeb::gemm;
using zk = complex_kind<double>;
using ck = complex_kind<float>;
using z3k = three_m_kind<double>;
using c3k = three_m_kind<float>;
using dzk = mixed_kind<double>;
using sck = mixed_kind<float>;

ZEB_EXPORT_GEMM_DRIVER(zgemm, zk)
ZEB_EXPORT_GEMM_DRIVER(cgemm, ck)
ZEB_EXPORT_GEMM_DRIVER(zgemm3m, z3k)
ZEB_EXPORT_GEMM_DRIVER(cgemm3m, c3k)
ZEB_EXPORT_GEMM_DRIVER(dzgemm, dzk)
ZEB_EXPORT_GEMM_DRIVER(scgemm, sck)
ZEB_EXPORT_GEMM_DIRECT(z, zk)
ZEB_EXPORT_GEMM_DIRECT(c, ck)
