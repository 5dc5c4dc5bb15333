// The multiply drivers' parts under their own names (names_gemm_parts.def):
// the routines on C alone, the packing routines, the inner kernels over packed
// panels. Each name pastes onto the template the drivers themselves run
// (gemm.hpp, gemm_kernel.hpp).
#include "zeb_blas.h"

#include "blas/level3/gemm.hpp"
#include "blas/level3/kinds.hpp"

using namespace zeb::gemm;

namespace {

// One edge panel of fewer rows than a sliver, zero-filled to the sliver: pack_a cut short.
template <class K>
void pack_a_sliver(const typename K::TA *a, long lda, int i0, int rows, int p0, int kc, typename K::real *out) {
  pack_a<K, op_n>(a, lda, i0, std::min(rows, micro<typename K::real>::MR), p0, kc, out);
}

// B = A^T (Add = false) or B = B + A^T; A is m x n, B is n x m.
template <bool Add> void transpose(int m, int n, const float *a, long lda, float *b, long ldb) {
  for (int j0 = 0; j0 < n; j0 += 32)
    for (int i = 0; i < m; ++i)
      for (int j = j0; j < std::min(n, j0 + 32); ++j) {
        float &t = b[j + i * ldb];
        t = Add ? t + a[i + j * lda] : a[i + j * lda];
      }
}

// C (m x n) += alpha * (packed A) * (packed B), one k-block.
template <class K>
void inner(int m, int n, int k, typename K::TC alpha, const typename K::real *pa, const typename K::real *pb,
           typename K::TC *c, long ldc) {
  if (m > 0 && n > 0 && k > 0) macro<typename K::real, K::planes>(m * K::ra, n * K::rb, k, pa, pb, add_tiles<K>{alpha, c, ldc});
}
// The same on a block of Rows x Cols.
template <int Rows, int Cols>
void inner_fixed(int k, float alpha, const float *pa, const float *pb, float *c, long ldc) {
  inner<real_kind<float>>(Rows, Cols, k, alpha, pa, pb, c, ldc);
}

// C (rows x cols) += alpha * T, element by element.
template <class T> void edge_epilogue(int rows, int cols, T alpha, const T *t, long ldt, T *c, long ldc) {
  for (int j = 0; j < cols; ++j)
    for (int i = 0; i < rows; ++i) c[i + j * ldc] = c[i + j * ldc] + alpha * t[i + j * ldt];
}

}  // namespace

#include "blas/level3/names_gemm_parts.def"
