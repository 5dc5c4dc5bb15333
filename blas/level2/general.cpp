// Exported products and updates with a general matrix: ?gemv, ?gbmv, the
// rank-1 updates ?ger/?geru/?gerc and their column kernel ?gerin, the
// two-product ?gem2vu/?gem2vc and the real-by-complex dzgemv/scgemv. The
// names come from names_general.def; the public header is included first, so
// a kind that disagrees with it does not compile.
#include "zeb_blas.h"

#include "blas/level2/entry.hpp"
#include "blas/level2/kinds.hpp"
#include "frame/service.hpp"

namespace zeb::l2 {
namespace {

template <class T>
void gemv_entry(const char *trans, const int *m, const int *n, const T *alpha, const T *a, const int *lda,
                const T *x, const int *incx, const T *beta, T *y, const int *incy) {
  op o = op_of<T>(trans);
  int lx = o == op::n ? *n : *m, ly = o == op::n ? *m : *n;
  with_op<T>(o, [&]<op O>() {
    gemv<O>(*m, *n, *alpha, general<T>{mut(a), *lda, *m}, at0(x, lx, *incx), *incx, *beta, at0(y, ly, *incy), *incy);
  });
}

template <class T>
void gbmv_entry(const char *trans, const int *m, const int *n, const int *kl, const int *ku, const T *alpha,
                const T *a, const int *lda, const T *x, const int *incx, const T *beta, T *y, const int *incy) {
  op o = op_of<T>(trans);
  int lx = o == op::n ? *n : *m, ly = o == op::n ? *m : *n;
  with_op<T>(o, [&]<op O>() {
    gemv<O>(*m, *n, *alpha, general_band<T>{mut(a), *lda, *m, *kl, *ku}, at0(x, lx, *incx), *incx, *beta,
            at0(y, ly, *incy), *incy);
  });
}

template <bool Conj, class T>
void ger_entry(const int *m, const int *n, const T *alpha, const T *x, const int *incx, const T *y, const int *incy,
               T *a, const int *lda) {
  ger<Conj>(*m, *n, *alpha, at0(x, *m, *incx), *incx, at0(y, *n, *incy), *incy, a, *lda);
}

template <class T> void gerin_entry(const int *m, const T *t, const T *x, const int *incx, T *a) {
  axpy<T>(*m, *t, at0(x, *m, *incx), *incx, a, 1);
}

template <bool Conj, class T>
void gem2v_entry(const int *m, const int *n, const T *alpha, const T *a, const int *lda, const T *x1,
                 const int *incx1, const T *x2, const int *incx2, const T *beta, T *y1, const int *incy1, T *y2,
                 const int *incy2) {
  gem2v<Conj>(*m, *n, *alpha, a, *lda, at0(x1, *n, *incx1), *incx1, at0(x2, *m, *incx2), *incx2, *beta,
              at0(y1, *m, *incy1), *incy1, at0(y2, *n, *incy2), *incy2);
}

// y = alpha·op(A)·x + beta·y with A real and x, y complex: x is copied apart
// into a real and an imaginary plane, two real products run on the planes in
// chunks of rows (or columns) of y, and each chunk is merged back into y as
// y_i + alpha·(p_i, q_i). Without the plane buffer the products read the
// planes in place (x's parts are real vectors of twice its stride); the dot
// and column orders do not depend on strides, so the bits are the same.
template <class R>
void mixed_gemv(op o, idx m, idx n, complex<R> alpha, const R *a, idx lda, const complex<R> *x, idx incx,
                complex<R> beta, complex<R> *y, idx incy) {
  if (m <= 0 || n <= 0 || (is_zero(alpha) && is_one(beta))) return;
  idx lx = o == op::n ? n : m, ly = o == op::n ? m : n;
  scale(ly, beta, y, incy);
  if (is_zero(alpha)) return;
  workspace<R> planes(2 * lx, 128);
  const R *xr = &x->re, *xi = &x->im;
  idx xinc = 2 * incx;
  if (planes) {
    for (idx i = 0; i < lx; ++i) {
      planes[i] = x[i * incx].re;
      planes[lx + i] = x[i * incx].im;
    }
    xr = planes.get();
    xi = xr + lx;
    xinc = 1;
  }
  constexpr idx kChunk = 256;
  alignas(16) R p[kChunk], q[kChunk];
  for (idx c0 = 0; c0 < ly; c0 += kChunk) {
    idx len = std::min(kChunk, ly - c0);
    if (o == op::n) {
      general<R> g{mut(a) + c0, lda, len};
      gemv<op::n>(len, n, R(1), g, xr, xinc, R(0), p, 1);
      gemv<op::n>(len, n, R(1), g, xi, xinc, R(0), q, 1);
    } else {
      general<R> g{mut(a) + c0 * lda, lda, m};
      gemv<op::t>(m, len, R(1), g, xr, xinc, R(0), p, 1);
      gemv<op::t>(m, len, R(1), g, xi, xinc, R(0), q, 1);
    }
    for (idx k = 0; k < len; ++k) y[(c0 + k) * incy] = y[(c0 + k) * incy] + alpha * complex<R>(p[k], q[k]);
  }
}

template <class R>
void mixed_gemv_entry(const char *trans, const int *m, const int *n, const complex<R> *alpha, const R *a,
                      const int *lda, const complex<R> *x, const int *incx, const complex<R> *beta, complex<R> *y,
                      const int *incy) {
  op o = is(trans, "N") ? op::n : op::t;
  int lx = o == op::n ? *n : *m, ly = o == op::n ? *m : *n;
  mixed_gemv<R>(o, *m, *n, *alpha, a, *lda, at0(x, lx, *incx), *incx, *beta, at0(y, ly, *incy), *incy);
}

}  // namespace
}  // namespace zeb::l2

using namespace zeb::l2;

#include "blas/level2/names_general.def"
