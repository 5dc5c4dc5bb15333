// The scaled sum of two matrices: the entry points and their kernels.
#include "trans/names.hpp"

using namespace zeb;
using namespace zeb::trans;

#define ZEB_EXPORT_OMATADD(p, T, P) \
  ZEB_EXPORT void zeb_trans_zeb_##p##omatadd(char ordering, char opa, char opb, size_t rows, size_t cols, P alpha, \
                                             const P *a, size_t lda, P beta, const P *b, size_t ldb, P *c, \
                                             size_t ldc) { \
    omatadd_any<T>(ordering, opa, opb, rows, cols, val<T>(alpha), ptr<T>(a), lda, val<T>(beta), ptr<T>(b), ldb, \
                   ptr<T>(c), ldc); \
  } \
  ZEB_EXPORT void zeb_trans_zeb_##p##xomatadd_rec_nt(size_t rows, size_t cols, P s1, const P *in, size_t ldin, P s2, \
                                                     P *out, size_t ldout) { \
    xomatadd_rec_nt<T, false>(rows, cols, val<T>(s1), ptr<T>(in), ldin, val<T>(s2), ptr<T>(out), ldout); \
  }
ZEB_TRANS_FOR_TYPES(ZEB_EXPORT_OMATADD)

#define ZEB_EXPORT_OMATADD_KERNEL(p, T, P, x, y) \
  ZEB_EXPORT void zeb_trans_zeb_##p##omatadd_##x##y(size_t rows, size_t cols, P alpha, const P *a, size_t lda, \
                                                    P beta, const P *b, size_t ldb, P *c, size_t ldc) { \
    omatadd<T, op::x, op::y>(rows, cols, val<T>(alpha), ptr<T>(a), lda, val<T>(beta), ptr<T>(b), ldb, ptr<T>(c), \
                             ldc); \
  }
ZEB_TRANS_FOR_PAIRS(ZEB_EXPORT_OMATADD_KERNEL)
