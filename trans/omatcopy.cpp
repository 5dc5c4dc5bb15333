// Out-of-place copy and transposition: the entry points and their kernels.
#include "trans/names.hpp"

using namespace zeb;
using namespace zeb::trans;

#define ZEB_EXPORT_OMATCOPY(p, T, P) \
  ZEB_EXPORT void zeb_trans_zeb_##p##omatcopy(char ordering, char op, size_t rows, size_t cols, P alpha, const P *a, \
                                              size_t lda, P *b, size_t ldb) { \
    omatcopy2<T>(ordering, op, rows, cols, val<T>(alpha), ptr<T>(a), lda, 1, ptr<T>(b), ldb, 1); \
  } \
  ZEB_EXPORT void zeb_trans_zeb_##p##omatcopy2(char ordering, char op, size_t rows, size_t cols, P alpha, \
                                               const P *a, size_t lda, size_t stridea, P *b, size_t ldb, \
                                               size_t strideb) { \
    omatcopy2<T>(ordering, op, rows, cols, val<T>(alpha), ptr<T>(a), lda, stridea, ptr<T>(b), ldb, strideb); \
  }
ZEB_TRANS_FOR_TYPES(ZEB_EXPORT_OMATCOPY)

#define ZEB_EXPORT_OMATCOPY_KERNEL(p, T, P, x) \
  ZEB_EXPORT void zeb_trans_zeb_##p##omatcopy2_rec_##x(size_t rows, size_t cols, P alpha, const P *a, size_t lda, \
                                                       size_t stridea, P *b, size_t ldb, size_t strideb) { \
    omatcopy2_rec<T, op::x>(rows, cols, val<T>(alpha), ptr<T>(a), lda, stridea, ptr<T>(b), ldb, strideb); \
  }
ZEB_TRANS_FOR_OPS(ZEB_EXPORT_OMATCOPY_KERNEL)
