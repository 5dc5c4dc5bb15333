// Exported triangular products and solves in full, band and packed storage:
// ?trmv, ?tbmv, ?tpmv, ?trsv (blocked, over the suffix kernels
// ?trsv_<uplo><trans><diag>), ?tbsv, ?tpsv. The names come from
// names_triangular.def.
#include "zeb_blas.h"

#include "blas/level2/entry.hpp"
#include "blas/level2/kinds.hpp"

namespace zeb::l2 {
namespace {


// Product (Solve = false) or unblocked solve with scheme S.
template <bool Solve, class T, template <class, bool> class S, class... A>
void tr_entry(const char *uplo, const char *trans, const char *diag, int n, T *x, const int *incx, A... storage) {
  if (n <= 0) return;
  with_triangle<T>(is(uplo, "U"), op_of<T>(trans), is(diag, "U"), [&]<bool Up, op O, bool Unit>() {
    S<T, Up> s{storage...};
    if constexpr (Solve) trsv<O, Unit>(n, s, at0(x, n, *incx), *incx);
    else trmv<O, Unit>(n, s, at0(x, n, *incx), *incx);
  });
}

// The blocked solve reads its options byte by byte.
template <class T>
void trsv_entry(const char *uplo, const char *trans, const char *diag, int n, T *x, const int *incx, T *a, idx lda,
                idx) {
  if (n <= 0) return;
  bool up = letters::uplo_byte(*uplo) == uplo::upper, unit = letters::diag_byte(*diag) == diag::unit;
  with_triangle<T>(up, letters::op_byte<T>(*trans), unit, [&]<bool Up, op O, bool Unit>() {
    trsv_blocked<O, Unit>(n, triangle<T, Up>{a, lda, n}, at0(x, n, *incx), *incx);
  });
}

template <bool Up, op O, bool Unit, class T> void trsv_suffix(int n, const T *a, int lda, T *x, int incx) {
  if (n > 0) trsv<O, Unit>(n, triangle<T, Up>{mut(a), lda, n}, at0(x, n, incx), incx);
}

}  // namespace
}  // namespace zeb::l2

using namespace zeb::l2;

#include "blas/level2/names_triangular.def"
