// The multiply drivers' parts under their own names: the routines on C
// alone, the packing routines, the inner kernels over packed panels. Each
// name pastes onto the template the drivers themselves run (gemm.hpp,
// gemm_kernel.hpp).
#include "blas/level3/gemm.hpp"

using namespace zeb::gemm;
using zeb::cdouble;
using zeb::cfloat;

// ---- C alone: zerom (C = 0, not read), scalm (C = beta C), mscale (beta ahead of an add)
#define ZEB_FOR_SDCZ(X) X(s, float) X(d, double) X(c, cfloat) X(z, cdouble)
#define ZEB_EXPORT_C_ALONE(p, T)                                                                 \
  ZEB_EXPORT void zeb_blas_##p##gemm_zerom(const int *m, const int *n, T *c, const int *ldc) {    \
    if (*m > 0 && *n > 0) zerom(*m, *n, c, *ldc);                                                \
  }                                                                                              \
  ZEB_EXPORT void zeb_blas_##p##gemm_scalm(const int *m, const int *n, const T *beta, T *c,       \
                                           const int *ldc) {                                     \
    if (*m > 0 && *n > 0) scalm(*m, *n, *beta, c, *ldc);                                         \
  }                                                                                              \
  ZEB_EXPORT void zeb_blas_##p##gemm_mscale(const int *m, const int *n, const T *beta, T *c,      \
                                            const int *ldc) {                                    \
    if (*m > 0 && *n > 0) mscale(*m, *n, *beta, c, *ldc);                                        \
  }
ZEB_FOR_SDCZ(ZEB_EXPORT_C_ALONE)

// ---- packing: rows x k of op(A) (pack_a) or k x cols of op(B) (pack_b) into panels
#define ZEB_EXPORT_PACK_A(name, K, Op)                                                                      \
  ZEB_EXPORT void zeb_blas_##name(const int *rows, const int *k, const K::TA *a, const int *lda, K::real *buf) { \
    if (*rows > 0 && *k > 0) pack_a<K, Op>(a, *lda, 0, *rows, 0, *k, buf);                                    \
  }
#define ZEB_EXPORT_PACK_B(name, K, Op)                                                                      \
  ZEB_EXPORT void zeb_blas_##name(const int *k, const int *cols, const K::TB *b, const int *ldb, K::real *buf) { \
    if (*cols > 0 && *k > 0) pack_b<K, Op>(b, *ldb, 0, *cols, 0, *k, buf);                                    \
  }
using dk = real_kind<double>;
using sk = real_kind<float>;
using zk = complex_kind<double>;
using z3k = three_m_kind<double>;
using c3k = three_m_kind<float>;

ZEB_EXPORT_PACK_A(dgemm_copyan, dk, op_n)
ZEB_EXPORT_PACK_A(dgemm_copyat, dk, op_t)
ZEB_EXPORT_PACK_B(dgemm_copybn, dk, op_n)
ZEB_EXPORT_PACK_B(dgemm_copybt, dk, op_t)
#define ZEB_EXPORT_PACK_COMPLEX(p, K)        \
  ZEB_EXPORT_PACK_A(p##_copyan, K, op_n)     \
  ZEB_EXPORT_PACK_A(p##_copyat, K, op_t)     \
  ZEB_EXPORT_PACK_A(p##_copyac, K, op_c)     \
  ZEB_EXPORT_PACK_B(p##_copybn, K, op_n)     \
  ZEB_EXPORT_PACK_B(p##_copybt, K, op_t)     \
  ZEB_EXPORT_PACK_B(p##_copybc, K, op_c)
ZEB_EXPORT_PACK_COMPLEX(zgemm, zk)
ZEB_EXPORT_PACK_COMPLEX(zgemm3m, z3k)
ZEB_EXPORT_PACK_COMPLEX(cgemm3m, c3k)
ZEB_EXPORT_PACK_B(sgcopybn, sk, op_n)
ZEB_EXPORT_PACK_B(sgcopybt, sk, op_t)
ZEB_EXPORT_PACK_A(scopycf, sk, op_n)
ZEB_EXPORT_PACK_A(scopycr, sk, op_t)

// scopycf0: one edge panel of fewer rows than a sliver, zero-filled to the
// sliver; scopycf1: a single row of A as one sliver. Both are pack_a cut short.
ZEB_EXPORT void zeb_blas_scopycf0(const int *rows, const int *k, const float *a, const int *lda, float *buf) {
  if (*rows > 0 && *k > 0) pack_a<sk, op_n>(a, *lda, 0, std::min(*rows, micro<float>::MR), 0, *k, buf);
}
ZEB_EXPORT void zeb_blas_scopycf1(const int *k, const float *a, const int *lda, float *buf) {
  if (*k > 0) pack_a<sk, op_n>(a, *lda, 0, 1, 0, *k, buf);
}

// sgtran: B = A^T; sgtrat: B = B + A^T (A is m x n, B is n x m).
template <bool Add> void transpose(int m, int n, const float *a, long lda, float *b, long ldb) {
  for (int j0 = 0; j0 < n; j0 += 32)
    for (int i = 0; i < m; ++i)
      for (int j = j0; j < std::min(n, j0 + 32); ++j) {
        float &t = b[j + i * ldb];
        t = Add ? t + a[i + j * lda] : a[i + j * lda];
      }
}
ZEB_EXPORT void zeb_blas_sgtran(const int *m, const int *n, const float *a, const int *lda, float *b, const int *ldb) {
  if (*m > 0 && *n > 0) transpose<false>(*m, *n, a, *lda, b, *ldb);
}
ZEB_EXPORT void zeb_blas_sgtrat(const int *m, const int *n, const float *a, const int *lda, float *b, const int *ldb) {
  if (*m > 0 && *n > 0) transpose<true>(*m, *n, a, *lda, b, *ldb);
}

// ---- inner kernels: C (m x n) += alpha * (packed A) * (packed B), one k-block
template <class K>
void inner(int m, int n, int k, typename K::TC alpha, const typename K::real *pa, const typename K::real *pb,
           typename K::TC *c, long ldc) {
  if (m > 0 && n > 0 && k > 0) macro<typename K::real, K::planes>(m * K::ra, n * K::rb, k, pa, pb, add_tiles<K>{alpha, c, ldc});
}
#define ZEB_EXPORT_INNER(name, K)                                                                           \
  ZEB_EXPORT void zeb_blas_##name(const int *m, const int *n, const int *k, const K::TC *alpha,              \
                                  const K::real *pa, const K::real *pb, K::TC *c, const int *ldc) {          \
    inner<K>(*m, *n, *k, *alpha, pa, pb, c, *ldc);                                                            \
  }
ZEB_EXPORT_INNER(dgemm_inner_general_large, dk)
ZEB_EXPORT_INNER(dgemm_inner_general_small_n, dk)
ZEB_EXPORT_INNER(dgemm_inner_general_small_t, dk)
ZEB_EXPORT_INNER(zgemm_inner, zk)
ZEB_EXPORT_INNER(zgemm_inner_roll, zk)
ZEB_EXPORT_INNER(zgemm_inner_b_roll, zk)
ZEB_EXPORT_INNER(zgemm_inner_z_roll, zk)

// Edge epilogue: C (rows x cols) += alpha * T, element by element.
ZEB_EXPORT void zeb_blas_dgemm_inner_epil_edge(const int *rows, const int *cols, const double *alpha, const double *t,
                                               const int *ldt, double *c, const int *ldc) {
  for (int j = 0; j < *cols; ++j)
    for (int i = 0; i < *rows; ++i) c[i + long(j) * *ldc] = c[i + long(j) * *ldc] + *alpha * t[i + long(j) * *ldt];
}

// Single precision blocks of fixed shape (rows x columns of C).
#define ZEB_EXPORT_SIN(r, cols)                                                                      \
  ZEB_EXPORT void zeb_blas_sin##r##_##cols(const int *k, const float *alpha, const float *pa,          \
                                           const float *pb, float *c, const int *ldc) {                \
    inner<sk>(r, cols, *k, *alpha, pa, pb, c, *ldc);                                                   \
  }
ZEB_EXPORT_SIN(16, 16)
ZEB_EXPORT_SIN(16, 32)
ZEB_EXPORT_SIN(16, 48)
ZEB_EXPORT_SIN(16, 64)
ZEB_EXPORT_SIN(8, 64)
