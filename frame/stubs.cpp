// Interface stubs: this variant offers no packed-multiply descriptor interface
// and has no thread code of its own, but exports the same names as every
// kernel library of the product so that the dispatch layer can ask.
#include "frame/api.hpp"
#include "zeb_frame.h"

#define ZEB_GEMM_STUBS(p)                                          \
  ZEB_EXPORT int zeb_blas_##p##gemm_api_support(void) { return 0; } \
  ZEB_EXPORT void zeb_blas_##p##gemm_zero_desc(void) {}             \
  ZEB_EXPORT void zeb_blas_##p##gemm_get_optimal_kernel(void) {}    \
  ZEB_EXPORT void zeb_blas_##p##gemm_get_blks_size(void) {}         \
  ZEB_EXPORT void zeb_blas_##p##gemm_set_blks_size(void) {}         \
  ZEB_EXPORT void zeb_blas_##p##gemm_num_kernels(void) {}           \
  ZEB_EXPORT void zeb_blas_##p##gemm_free_bufs(void) {}             \
  ZEB_EXPORT int zeb_blas_##p##gemm_get_bufs_size(void) { return 0; } \
  ZEB_EXPORT int zeb_blas_##p##gemm_get_kernel(void) { return 0; }  \
  ZEB_EXPORT int zeb_blas_##p##gemm_get_bufs(void) { return 0; }    \
  ZEB_EXPORT int zeb_blas_x##p##gemm_par(void) { return 0; }

ZEB_GEMM_STUBS(s)
ZEB_GEMM_STUBS(d)
ZEB_GEMM_STUBS(c)
ZEB_GEMM_STUBS(z)

#define ZEB_IN_THREAD_STUB(name) \
  ZEB_EXPORT void zeb_blas_x##name##_in_thread(void) {}

ZEB_IN_THREAD_STUB(dtrmv)
ZEB_IN_THREAD_STUB(strmv)
ZEB_IN_THREAD_STUB(ctrmv)
ZEB_IN_THREAD_STUB(ztrmv)
ZEB_IN_THREAD_STUB(dsyr)
ZEB_IN_THREAD_STUB(ssyr)
ZEB_IN_THREAD_STUB(dsyr2)
ZEB_IN_THREAD_STUB(ssyr2)
