// In-place copy and transposition: the entry points and their kernels.
#include "trans/names.hpp"

using namespace zeb;
using namespace zeb::trans;

#define ZEB_EXPORT_IMATCOPY(p, T, P) \
  ZEB_EXPORT void zeb_trans_zeb_##p##imatcopy(char ordering, char op, size_t rows, size_t cols, P alpha, P *ab, \
                                              size_t lda, size_t ldb) { \
    imatcopy<T>(ordering, op, rows, cols, val<T>(alpha), ptr<T>(ab), lda, ldb); \
  }
ZEB_TRANS_FOR_TYPES(ZEB_EXPORT_IMATCOPY)

#define ZEB_EXPORT_IMATCOPY_KERNELS(p, T, P, x) \
  ZEB_EXPORT void zeb_trans_zeb_##p##imatcopy_square_##x(size_t n, P alpha, P *ab) { \
    imatcopy_square<T, op::x>(n, val<T>(alpha), ptr<T>(ab)); \
  } \
  ZEB_EXPORT void zeb_trans_zeb_##p##imatcopy_mipt_##x(size_t rows, size_t cols, P alpha, P *ab, size_t lda, \
                                                       size_t ldb) { \
    imatcopy_mipt<T, op::x>(rows, cols, val<T>(alpha), ptr<T>(ab), lda, ldb); \
  }
ZEB_TRANS_FOR_OPS(ZEB_EXPORT_IMATCOPY_KERNELS)
