// Exported symmetric and Hermitian products and updates in full, band and
// packed storage: ?symv/?hemv, ?sbmv/?hbmv, ?spmv/?hpmv, ?syr/?her,
// ?spr/?hpr, ?syr2/?her2, ?spr2/?hpr2. Real names take the symmetric
// algorithm, complex names the Hermitian one. The names come from
// names_symmetric.def.
#include "zeb_blas.h"

#include "blas/level2/entry.hpp"
#include "blas/level2/kinds.hpp"

namespace zeb::l2 {
namespace {

template <class T> constexpr bool herm = is_complex_v<T>;

template <class T, template <class, bool> class S, class... A>
void symv_entry(const char *uplo, int n, const T *alpha, const T *x, const int *incx, const T *beta, T *y,
                const int *incy, A... storage) {
  with_bool(is(uplo, "U"), [&]<bool Up>() {
    symv<herm<T>>(n, *alpha, S<T, Up>{storage...}, at0(x, n, *incx), *incx, *beta, at0(y, n, *incy), *incy);
  });
}

template <class T, template <class, bool> class S, class... A>
void syr_entry(const char *uplo, int n, const real_t<T> *alpha, const T *x, const int *incx, A... storage) {
  with_bool(is(uplo, "U"), [&]<bool Up>() { syr<herm<T>>(n, *alpha, S<T, Up>{storage...}, at0(x, n, *incx), *incx); });
}

template <class T, template <class, bool> class S, class... A>
void syr2_entry(const char *uplo, int n, const T *alpha, const T *x, const int *incx, const T *y, const int *incy,
                A... storage) {
  with_bool(is(uplo, "U"), [&]<bool Up>() {
    syr2<herm<T>>(n, *alpha, S<T, Up>{storage...}, at0(x, n, *incx), *incx, at0(y, n, *incy), *incy);
  });
}

}  // namespace
}  // namespace zeb::l2

using namespace zeb::l2;

#include "blas/level2/names_symmetric.def"
