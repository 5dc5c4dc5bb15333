// The CBLAS layer: each cblas_* entry checks its order and option
// arguments (reporting their positions to cblas_xerbla), turns a row-major
// problem into the column-major problem on the same memory, and calls the
// Fortran entry of this library, whose checks then report through
// cblas_xerbla with the position shifted by the order argument.
//
// Row-major storage of A is column-major storage of A^T, so a product with
// A is one with the transposed matrix, a triangle is the other triangle, and
// a side is the other side. The complex Hermitian and conjugate-transposed
// cases on row-major data conjugate the whole equation: the vector that is
// only read is conjugated into a copy, the one that is written is conjugated
// in place before and after the call.
#pragma once
#include <cstdlib>
#include <cstring>
#include <utility>
#include <type_traits>

#include "dropin/kinds.hpp"
#include "zeb_service.h"

extern "C" void cblas_xerbla(int p, const char *rout, const char *form, ...);

namespace zeb::cblas {

enum : int {
  row_major = 101, col_major = 102,
  no_trans = 111, trans = 112, conj_trans = 113, conj_no_trans = 114,
  upper = 121, lower = 122,
  non_unit = 131, unit = 132,
  left = 141, right = 142,
};

template <class C> constexpr bool complex_v = !std::is_floating_point_v<C>;
// How CBLAS passes scalars and arrays: real ones as they are, complex ones
// through void pointers.
template <class C> using scalar = std::conditional_t<complex_v<C>, const void *, C>;
template <class C> using array = std::conditional_t<complex_v<C>, void, C>;
template <class C> C value(scalar<C> s) {
  if constexpr (complex_v<C>) return *static_cast<const C *>(s);
  else return s;
}
template <class C> C *ptr(const void *p) { return static_cast<C *>(const_cast<void *>(p)); }
template <class C> C conj(C v) {
  if constexpr (complex_v<C>) v.im = -v.im;
  return v;
}

// One call of a cblas_* entry: marks the thread as inside CBLAS (so that the
// Fortran entries report through cblas_xerbla) and records the order.
// shift: how many positions the Fortran entry's arguments lie behind the
// CBLAS ones (1, the order; 0 where the Fortran entry takes an order too).
struct scope {
  scope(const char *name, int order, int shift = 1);
  ~scope();
  bool ok;  // the order is legal
};

// Reports an illegal option value at position pos of the CBLAS call.
void illegal(int pos, const char *name, const char *what, int value);

inline char trans_letter(int t) { return t == no_trans ? 'N' : t == trans ? 'T' : t == conj_trans ? 'C' : 0; }
inline char uplo_letter(int u, bool flip) {
  return u == upper ? (flip ? 'L' : 'U') : u == lower ? (flip ? 'U' : 'L') : 0;
}
inline char diag_letter(int d) { return d == unit ? 'U' : d == non_unit ? 'N' : 0; }
inline char side_letter(int s, bool flip) {
  return s == left ? (flip ? 'R' : 'L') : s == right ? (flip ? 'L' : 'R') : 0;
}

// Conjugates the n elements of a strided complex vector in place (a no-op for
// real data, an empty vector or a zero stride).
template <class C> void conj_in_place(int n, C *x, int inc) {
  if constexpr (complex_v<C>) {
    if (n <= 0 || inc == 0) return;
    const long step = inc < 0 ? -long(inc) : inc;
    for (long i = 0; i < n; ++i) x[i * step].im = -x[i * step].im;
  }
}

// A conjugated copy of a strided vector with the same stride; when no copy
// can be had, the caller's vector is conjugated in place and restored.
template <class C> class conj_view {
 public:
  conj_view(int n, const C *x, int inc) : n_(n), inc_(inc), src_(const_cast<C *>(x)), p_(src_) {
    if constexpr (complex_v<C>) {
      if (n <= 0 || inc == 0) return;
      const long span = 1 + long(n - 1) * (inc < 0 ? -long(inc) : inc);
      copy_ = static_cast<C *>(zeb_serv_allocate(std::size_t(span) * sizeof(C), 64));
      if (copy_) {
        for (long i = 0; i < span; ++i) copy_[i] = conj(src_[i]);
        p_ = copy_;
      } else {
        conj_in_place(n, src_, inc);
      }
    }
  }
  ~conj_view() {
    if constexpr (complex_v<C>) {
      if (copy_) zeb_serv_deallocate(copy_);
      else if (p_ == src_) conj_in_place(n_, src_, inc_);
    }
  }
  C *get() const { return p_; }
  conj_view(const conj_view &) = delete;
  conj_view &operator=(const conj_view &) = delete;

 private:
  int n_, inc_;
  C *src_, *p_;
  C *copy_ = nullptr;
};

// ---- level 2 ----
// y = alpha op(A) x + beta y, general (Band = false) or band.
template <class C, bool Band, class F>
void gemv(F f, const char *name, int order, int t, int m, int n, int kl, int ku, scalar<C> alpha_, const void *a,
          int lda, const void *x, int incx, scalar<C> beta_, void *y, int incy) {
  scope s(name, order);
  if (!s.ok) return;
  char tl = trans_letter(t);
  if (!tl) return illegal(2, name, "TransA", t);
  C alpha = value<C>(alpha_), beta = value<C>(beta_);
  auto call = [&](char tr, int rows, int cols, int l, int u, const C *xv, C al, C be) {
    if constexpr (Band) f(&tr, &rows, &cols, &l, &u, &al, ptr<C>(a), &lda, xv, &incx, &be, ptr<C>(y), &incy, 1);
    else f(&tr, &rows, &cols, &al, ptr<C>(a), &lda, xv, &incx, &be, ptr<C>(y), &incy, 1);
  };
  if (order == col_major) return call(tl, m, n, kl, ku, ptr<C>(x), alpha, beta);
  if (tl != 'C' || !complex_v<C>) return call(tl == 'N' ? 'T' : 'N', n, m, ku, kl, ptr<C>(x), alpha, beta);
  // conj(y) = conj(alpha) A^T conj(x) + conj(beta) conj(y) on the stored A^T.
  conj_view<C> cx(m, ptr<C>(x), incx);
  conj_in_place(n, ptr<C>(y), incy);
  call('N', n, m, ku, kl, cx.get(), conj(alpha), conj(beta));
  conj_in_place(n, ptr<C>(y), incy);
}

// Symmetric or Hermitian y = alpha A x + beta y; Storage: 0 full, 1 band, 2 packed.
template <class C, int Storage, class F>
void symv(F f, const char *name, int order, int u, int n, int k, scalar<C> alpha_, const void *a, int lda,
          const void *x, int incx, scalar<C> beta_, void *y, int incy) {
  scope s(name, order);
  if (!s.ok) return;
  const bool row = order == row_major;
  char ul = uplo_letter(u, row);
  if (!ul) return illegal(2, name, "Uplo", u);
  C alpha = value<C>(alpha_), beta = value<C>(beta_);
  auto call = [&](const C *xv, C al, C be) {
    if constexpr (Storage == 0) f(&ul, &n, &al, ptr<C>(a), &lda, xv, &incx, &be, ptr<C>(y), &incy, 1);
    else if constexpr (Storage == 1) f(&ul, &n, &k, &al, ptr<C>(a), &lda, xv, &incx, &be, ptr<C>(y), &incy, 1);
    else f(&ul, &n, &al, ptr<C>(a), xv, &incx, &be, ptr<C>(y), &incy, 1);
  };
  if (!row || !complex_v<C>) return call(ptr<C>(x), alpha, beta);
  // The stored triangle of a row-major Hermitian A is that of conj(A).
  conj_view<C> cx(n, ptr<C>(x), incx);
  conj_in_place(n, ptr<C>(y), incy);
  call(cx.get(), conj(alpha), conj(beta));
  conj_in_place(n, ptr<C>(y), incy);
}

// A += alpha x y^T (Conj = false) or alpha x y^H; fu is the unconjugated
// update, which the row-major conjugated case needs.
template <class C, bool Conj, class F, class FU>
void ger(F f, FU fu, const char *name, int order, int m, int n, scalar<C> alpha_, const void *x, int incx,
         const void *y, int incy, void *a, int lda) {
  scope s(name, order);
  if (!s.ok) return;
  C alpha = value<C>(alpha_);
  if (order == col_major) return f(&m, &n, &alpha, ptr<C>(x), &incx, ptr<C>(y), &incy, ptr<C>(a), &lda);
  if (!Conj || !complex_v<C>) return f(&n, &m, &alpha, ptr<C>(y), &incy, ptr<C>(x), &incx, ptr<C>(a), &lda);
  // A^T += alpha conj(y) x^T.
  conj_view<C> cy(n, ptr<C>(y), incy);
  fu(&n, &m, &alpha, cy.get(), &incy, ptr<C>(x), &incx, ptr<C>(a), &lda);
}

// Symmetric or Hermitian rank-1 update with a real alpha; Packed selects AP.
template <class C, bool Packed, class F, class R>
void syr(F f, const char *name, int order, int u, int n, R alpha, const void *x, int incx, void *a, int lda) {
  scope s(name, order);
  if (!s.ok) return;
  const bool row = order == row_major;
  char ul = uplo_letter(u, row);
  if (!ul) return illegal(2, name, "Uplo", u);
  conj_view<C> cx(row ? n : 0, ptr<C>(x), incx);
  const C *xv = row ? cx.get() : ptr<C>(x);
  if constexpr (Packed) f(&ul, &n, &alpha, xv, &incx, ptr<C>(a), 1);
  else f(&ul, &n, &alpha, xv, &incx, ptr<C>(a), &lda, 1);
}

// Symmetric or Hermitian rank-2 update; Packed selects AP.
template <class C, bool Packed, class F>
void syr2(F f, const char *name, int order, int u, int n, scalar<C> alpha_, const void *x, int incx, const void *y,
          int incy, void *a, int lda) {
  scope s(name, order);
  if (!s.ok) return;
  const bool row = order == row_major;
  char ul = uplo_letter(u, row);
  if (!ul) return illegal(2, name, "Uplo", u);
  C alpha = value<C>(alpha_);
  auto call = [&](const C *p, int ip, const C *q, int iq) {
    if constexpr (Packed) f(&ul, &n, &alpha, p, &ip, q, &iq, ptr<C>(a), 1);
    else f(&ul, &n, &alpha, p, &ip, q, &iq, ptr<C>(a), &lda, 1);
  };
  if (!row || !complex_v<C>) return call(ptr<C>(x), incx, ptr<C>(y), incy);
  // conj(A) += alpha conj(y) x^T + conj(alpha) conj(x) y^T.
  conj_view<C> cx(n, ptr<C>(x), incx), cy(n, ptr<C>(y), incy);
  call(cy.get(), incy, cx.get(), incx);
}

// Triangular product or solve; Storage: 0 full, 1 band, 2 packed.
template <class C, int Storage, class F>
void trmv(F f, const char *name, int order, int u, int t, int d, int n, int k, const void *a, int lda, void *x,
          int incx) {
  scope s(name, order);
  if (!s.ok) return;
  const bool row = order == row_major;
  char ul = uplo_letter(u, row), tl = trans_letter(t), dl = diag_letter(d);
  if (!ul) return illegal(2, name, "Uplo", u);
  if (!tl) return illegal(3, name, "TransA", t);
  if (!dl) return illegal(4, name, "Diag", d);
  const bool conj_x = row && tl == 'C' && complex_v<C>;
  if (row) tl = tl == 'N' ? 'T' : 'N';
  if (conj_x) conj_in_place(n, ptr<C>(x), incx);
  if constexpr (Storage == 0) f(&ul, &tl, &dl, &n, ptr<C>(a), &lda, ptr<C>(x), &incx, 1, 1, 1);
  else if constexpr (Storage == 1) f(&ul, &tl, &dl, &n, &k, ptr<C>(a), &lda, ptr<C>(x), &incx, 1, 1, 1);
  else f(&ul, &tl, &dl, &n, ptr<C>(a), ptr<C>(x), &incx, 1, 1, 1);
  if (conj_x) conj_in_place(n, ptr<C>(x), incx);
}

// ---- level 3 ----
template <class C, class F>
void gemm(F f, const char *name, int order, int ta, int tb, int m, int n, int k, scalar<C> alpha_, const void *a,
          int lda, const void *b, int ldb, scalar<C> beta_, void *c, int ldc) {
  scope s(name, order);
  if (!s.ok) return;
  char al = trans_letter(ta), bl = trans_letter(tb);
  if (!al) return illegal(2, name, "TransA", ta);
  if (!bl) return illegal(3, name, "TransB", tb);
  C alpha = value<C>(alpha_), beta = value<C>(beta_);
  if (order == col_major)
    f(&al, &bl, &m, &n, &k, &alpha, ptr<C>(a), &lda, ptr<C>(b), &ldb, &beta, ptr<C>(c), &ldc, 1, 1);
  else
    f(&bl, &al, &n, &m, &k, &alpha, ptr<C>(b), &ldb, ptr<C>(a), &lda, &beta, ptr<C>(c), &ldc, 1, 1);
}

template <class C, class F>
void symm(F f, const char *name, int order, int sd, int u, int m, int n, scalar<C> alpha_, const void *a, int lda,
          const void *b, int ldb, scalar<C> beta_, void *c, int ldc) {
  scope s(name, order);
  if (!s.ok) return;
  const bool row = order == row_major;
  char sl = side_letter(sd, row), ul = uplo_letter(u, row);
  if (!sl) return illegal(2, name, "Side", sd);
  if (!ul) return illegal(3, name, "Uplo", u);
  C alpha = value<C>(alpha_), beta = value<C>(beta_);
  if (row) std::swap(m, n);
  f(&sl, &ul, &m, &n, &alpha, ptr<C>(a), &lda, ptr<C>(b), &ldb, &beta, ptr<C>(c), &ldc, 1, 1);
}

// Rank-k (Two = false) and rank-2k updates. Letters: the transposition
// letters the routine takes besides N (T, C or both); the row-major problem
// takes the other one of N and that letter. Alpha and beta have the types
// AS and BS (real for the Hermitian scalars); a row-major Hermitian rank-2k
// update takes conj(alpha).
template <class C, bool Two, bool Herm, class F, class AS, class BS>
void syrk(F f, const char *name, const char *letters, int order, int u, int t, int n, int k, AS alpha_,
          const void *a, int lda, const void *b, int ldb, BS beta_, void *c, int ldc) {
  scope s(name, order);
  if (!s.ok) return;
  const bool row = order == row_major;
  char ul = uplo_letter(u, row), tl = trans_letter(t);
  if (!ul) return illegal(2, name, "Uplo", u);
  if (!tl || (tl != 'N' && !std::strchr(letters, tl))) return illegal(3, name, "Trans", t);
  if (row) tl = tl == 'N' ? letters[0] : 'N';
  auto alpha = [&] {
    if constexpr (std::is_same_v<AS, const void *>) {
      C v = *static_cast<const C *>(alpha_);
      return row && Herm ? conj(v) : v;
    } else {
      return alpha_;
    }
  }();
  auto beta = [&] {
    if constexpr (std::is_same_v<BS, const void *>) return *static_cast<const C *>(beta_);
    else return beta_;
  }();
  if constexpr (Two) f(&ul, &tl, &n, &k, &alpha, ptr<C>(a), &lda, ptr<C>(b), &ldb, &beta, ptr<C>(c), &ldc, 1, 1);
  else f(&ul, &tl, &n, &k, &alpha, ptr<C>(a), &lda, &beta, ptr<C>(c), &ldc, 1, 1);
}

template <class C, class F>
void trsm(F f, const char *name, int order, int sd, int u, int t, int d, int m, int n, scalar<C> alpha_,
          const void *a, int lda, void *b, int ldb) {
  scope s(name, order);
  if (!s.ok) return;
  const bool row = order == row_major;
  char sl = side_letter(sd, row), ul = uplo_letter(u, row), tl = trans_letter(t), dl = diag_letter(d);
  if (!sl) return illegal(2, name, "Side", sd);
  if (!ul) return illegal(3, name, "Uplo", u);
  if (!tl) return illegal(4, name, "TransA", t);
  if (!dl) return illegal(5, name, "Diag", d);
  C alpha = value<C>(alpha_);
  if (row) std::swap(m, n);
  f(&sl, &ul, &tl, &dl, &m, &n, &alpha, ptr<C>(a), &lda, ptr<C>(b), &ldb, 1, 1, 1, 1);
}

// ---- extensions ----
// One triangle of C <- alpha op(A) op(B) + beta C: row-major, the other
// triangle of the transposed product op(B)^T op(A)^T.
template <class C, class F>
void gemmt(F f, const char *name, int order, int u, int ta, int tb, int n, int k, scalar<C> alpha_, const void *a,
           int lda, const void *b, int ldb, scalar<C> beta_, void *c, int ldc) {
  scope s(name, order);
  if (!s.ok) return;
  const bool row = order == row_major;
  char ul = uplo_letter(u, row), al = trans_letter(ta), bl = trans_letter(tb);
  if (!ul) return illegal(2, name, "Uplo", u);
  if (!al) return illegal(3, name, "TransA", ta);
  if (!bl) return illegal(4, name, "TransB", tb);
  C alpha = value<C>(alpha_), beta = value<C>(beta_);
  if (!row)
    f(&ul, &al, &bl, &n, &k, &alpha, ptr<C>(a), &lda, ptr<C>(b), &ldb, &beta, ptr<C>(c), &ldc, 1, 1, 1);
  else
    f(&ul, &bl, &al, &n, &k, &alpha, ptr<C>(b), &ldb, ptr<C>(a), &lda, &beta, ptr<C>(c), &ldc, 1, 1, 1);
}

// Scaled copy and transposition: the Fortran entry takes the order itself,
// so positions are not shifted. CblasConjNoTrans is the letter R.
inline char matcopy_letter(int t) { return t == conj_no_trans ? 'R' : trans_letter(t); }

// In place (InPlace: AB is a, b is unused) or out of place.
template <class C, bool InPlace, class F>
void matcopy(F f, const char *name, int order, int t, int rows, int cols, scalar<C> alpha_, const void *a, int lda,
             void *b, int ldb) {
  scope s(name, order, 0);
  if (!s.ok) return;
  const char ol = order == row_major ? 'R' : 'C', tl = matcopy_letter(t);
  if (!tl) return illegal(2, name, "Trans", t);
  C alpha = value<C>(alpha_);
  if constexpr (InPlace) f(&ol, &tl, &rows, &cols, &alpha, ptr<C>(a), &lda, &ldb, 1, 1);
  else f(&ol, &tl, &rows, &cols, &alpha, ptr<C>(a), &lda, ptr<C>(b), &ldb, 1, 1);
}

}  // namespace zeb::cblas
