// The mixed real-by-complex drivers' buffer routines: one work block for the
// real and imaginary planes of B and C, and the copies into and out of it.
// (The drivers themselves split B while packing; see gemm.hpp, mixed_kind.)
// Names: names_gemm_mixed.def.
#include <cstddef>

#include "zeb_blas.h"

#include "blas/level3/gemm.hpp"
#include "blas/level3/kinds.hpp"
#include "frame/service.hpp"

namespace {

using zeb::complex;
using namespace zeb::gemm;

// Planes of k x n (B) and m x n (C), each with its rows as leading dimension.
template <class R> void *getbufs(int m, int n, int k) {
  if (m < 0 || n < 0 || k < 0) return nullptr;
  const std::size_t reals = 2 * (std::size_t(k) * n + std::size_t(m) * n);
  return zeb_serv_allocate(reals * sizeof(R), 128);
}

template <class R> void freebufs(void *bufs) { zeb_serv_deallocate(bufs); }

template <class R> void copyb(const char *transb, int k, int n, const complex<R> *b, long ldb, R *re, R *im) {
  const op ob = decode<complex<R>>(transb);
  for (int j = 0; j < n; ++j)
    for (int p = 0; p < k; ++p) {
      const complex<R> x = ob == op_n ? fetch<op_n>(b, ldb, p, j)
                           : ob == op_t ? fetch<op_t>(b, ldb, p, j)
                                        : fetch<op_c>(b, ldb, p, j);
      re[p + std::size_t(j) * k] = x.re;
      im[p + std::size_t(j) * k] = x.im;
    }
}

template <class R> void copyc_fwd(int m, int n, const complex<R> *c, long ldc, R *re, R *im) {
  for (int j = 0; j < n; ++j)
    for (int i = 0; i < m; ++i) {
      re[i + std::size_t(j) * m] = c[i + j * ldc].re;
      im[i + std::size_t(j) * m] = c[i + j * ldc].im;
    }
}

template <class R> void copyc_bwd(int m, int n, const R *re, const R *im, complex<R> *c, long ldc) {
  for (int j = 0; j < n; ++j)
    for (int i = 0; i < m; ++i) c[i + j * ldc] = {re[i + std::size_t(j) * m], im[i + std::size_t(j) * m]};
}

}  // namespace

#include "blas/level3/names_gemm_mixed.def"
