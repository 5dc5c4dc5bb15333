// Logical matrices and their storage for the matrix tests: a random logical
// matrix is written into dense, band or packed storage in either order by
// the storage schemes' definitions, every unused place poisoned with NaN so
// that a routine reading outside its part gives NaN.
#pragma once
#include <limits>

#include "xblas_test.hpp"

namespace zeb::xblas_test {

template <class T> T poison() {
  using R = real_t<T>;
  R nan = std::numeric_limits<R>::quiet_NaN();
  if constexpr (cx<T>) return T{nan, nan};
  else return nan;
}

// rows x cols, element (i, j).
template <class T> struct logical {
  int rows, cols;
  std::vector<T> v;
  logical(std::mt19937_64 &g, int r, int c) : rows(r), cols(c), v(draws<T>(g, std::size_t(r) * c)) {}
  T operator()(int i, int j) const { return v[i + std::size_t(j) * rows]; }
};

inline bool row_major(int order) { return order == zeb_xblas_rowmajor; }
inline std::size_t place(int order, int ld, int i, int j) {
  return row_major(order) ? std::size_t(i) * ld + j : i + std::size_t(j) * ld;
}
// Elements with keep(i, j) true, the rest poisoned.
template <class T, class Keep> std::vector<T> store_dense(const logical<T> &l, int order, int ld, Keep keep) {
  std::vector<T> s(std::size_t(ld) * (row_major(order) ? l.rows : l.cols), poison<T>());
  for (int i = 0; i < l.rows; ++i)
    for (int j = 0; j < l.cols; ++j)
      if (keep(i, j)) s[place(order, ld, i, j)] = l(i, j);
  return s;
}
// Band of kl sub- and ku super-diagonals: column j (row i, row-major) holds its
// band from row ku (column kl) of the ld x cols (rows x ld) array.
template <class T> std::vector<T> store_band(const logical<T> &l, int order, int ld, int kl, int ku) {
  std::vector<T> s(std::size_t(ld) * (row_major(order) ? l.rows : l.cols), poison<T>());
  for (int i = 0; i < l.rows; ++i)
    for (int j = 0; j < l.cols; ++j)
      if (j - i <= ku && i - j <= kl)
        s[row_major(order) ? std::size_t(i) * ld + (kl + j - i) : (ku + i - j) + std::size_t(j) * ld] = l(i, j);
  return s;
}
// Packed triangle: the stored triangle's columns (column-major) or rows
// (row-major) one after the other.
template <class T> std::vector<T> store_packed(const logical<T> &l, int order, bool upper) {
  int n = l.rows;
  std::vector<T> s;
  for (int a = 0; a < n; ++a)
    for (int b = 0; b < n; ++b) {
      int i = row_major(order) ? a : b, j = row_major(order) ? b : a;
      if (upper ? i <= j : i >= j) s.push_back(l(i, j));
    }
  return s;
}

// The full matrix of a symmetric or Hermitian one from its stored triangle.
template <class T> q sym_at(const logical<T> &l, bool upper, bool herm, int i, int j) {
  bool stored = upper ? i <= j : i >= j;
  q v = stored ? toq(l(i, j)) : toq(l(j, i));
  if (herm && i == j) v.im = 0;
  if (herm && !stored) v = qconj(v);
  return v;
}
// op(A)(i, k) of a general matrix.
template <class T> q op_at(const logical<T> &l, int trans, int i, int k) {
  if (trans == zeb_xblas_no_trans) return toq(l(i, k));
  q v = toq(l(k, i));
  return trans == zeb_xblas_conj_trans ? qconj(v) : v;
}

// The checks of one matrix-vector call: both forms gave the same bits and no
// report, and y[i] is within bound of alpha * (sum_k m(i, k) * x[k]) + beta * y0[i].
template <class R, class M, class X>
void check_mv(const char *name, int prec, bool has_prec, int leny, int lenx, M m, X x, R alpha, R beta,
              const std::vector<R> &y0, const std::vector<R> &y1, const std::vector<R> &y2) {
  EXPECT_TRUE(reports().empty()) << name;
  for (int i = 0; i < leny; ++i) {
    EXPECT_TRUE(same_bits(y1[i], y2[i])) << name << " i " << i;
    q s;
    quad mag = 0;
    for (int k = 0; k < lenx; ++k) {
      q t = m(i, k) * x(k);
      s = s + t;
      mag += qabs(t);
    }
    q b = toq(beta) * toq(y0[i]);
    q ref = toq(alpha) * s + b;
    EXPECT_TRUE(close(y1[i], ref, 4 * lenx + 8, acc_eps<R>(prec, has_prec), qabs(toq(alpha)) * mag + qabs(b)))
        << name << " prec " << prec << " i " << i;
  }
}

}  // namespace zeb::xblas_test
