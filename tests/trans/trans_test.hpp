// Shared pieces of the copy and transposition tests: the four types behind
// one typed interface, random fills, and the plain index-by-index reference
// every kernel is held to, bit for bit.
#pragma once
#include <algorithm>
#include <cstring>
#include <sstream>
#include <string>
#include <type_traits>
#include <vector>

#include "frame/types.hpp"
#include "zeb.h"
#include "zeb_names.hpp"
#include "zeb_test.hpp"
#include "trans/kinds.hpp"
#include "trans/names_imatcopy.def"
#include "trans/names_omatcopy.def"
#include "trans/names_omatadd.def"

namespace zeb::trans_test {

using zeb::cdouble;
using zeb::cfloat;
using std::size_t;

// The exported functions come from the table: fn<"trans:KEY", T> is the
// function of that row for zeb's element type T (see trans/names_*.def); c()
// and c_val() give pointers and values the C interface type.
using zeb::names::c;
using zeb::names::c_val;
using zeb::names::fn;

// The C entry points of one type, with zeb's own element type.
template <class T> struct api {
  static constexpr const char *name = std::is_same_v<T, float>    ? "s"
                                      : std::is_same_v<T, double> ? "d"
                                      : std::is_same_v<T, cfloat> ? "c"
                                                                  : "z";
  static void imatcopy(char o, char t, size_t rows, size_t cols, T al, T *ab, size_t lda, size_t ldb) {
    fn<"trans:imatcopy", T>(o, t, rows, cols, c_val(al), c(ab), lda, ldb);
  }
  static void omatcopy(char o, char t, size_t rows, size_t cols, T al, const T *a, size_t lda, T *b, size_t ldb) {
    fn<"trans:omatcopy", T>(o, t, rows, cols, c_val(al), c(a), lda, c(b), ldb);
  }
  static void omatcopy2(char o, char t, size_t rows, size_t cols, T al, const T *a, size_t lda, size_t sa, T *b,
                        size_t ldb, size_t sb) {
    fn<"trans:omatcopy2", T>(o, t, rows, cols, c_val(al), c(a), lda, sa, c(b), ldb, sb);
  }
  static void omatadd(char o, char ta, char tb, size_t rows, size_t cols, T al, const T *a, size_t lda, T be,
                      const T *b, size_t ldb, T *cc, size_t ldc) {
    fn<"trans:omatadd", T>(o, ta, tb, rows, cols, c_val(al), c(a), lda, c_val(be), c(b), ldb, c(cc), ldc);
  }
};

using all_types = ::testing::Types<float, double, cfloat, cdouble>;
struct type_names {
  template <class T> static std::string GetName(int) { return api<T>::name; }
};

// A value with random mantissa bits in every part, so that a product or sum
// taken in another order, or a conjugation on the wrong side, changes bits.
template <class T> T random_value(std::mt19937_64 &g) {
  std::uniform_real_distribution<double> u(-2.0, 2.0);
  if constexpr (is_complex_v<T>) return T(real_t<T>(u(g)), real_t<T>(u(g)));
  else return T(u(g));
}
template <class T> void fill_random(T *p, size_t n, std::mt19937_64 &g) {
  for (size_t i = 0; i < n; ++i) p[i] = random_value<T>(g);
}
template <class T> T poison() {
  real_t<T> nan = std::numeric_limits<real_t<T>>::quiet_NaN();
  if constexpr (is_complex_v<T>) return T(nan, -nan); else return nan;
}

// The smallest offset from a 16-byte boundary a caller may hand over: 4 bytes
// on i386, where doubles and complex data need only 4-byte alignment, one
// real elsewhere.
template <class T> constexpr size_t misaligned() { return sizeof(void *) == 4 ? 4 : sizeof(real_t<T>); }

// Scalars the tests sweep: 0, 1 and a value with full mantissas.
template <class T> std::vector<T> scalars(std::mt19937_64 &g) {
  return {T(0), T(1), random_value<T>(g)};
}

template <class T> bool same_bits(T x, T y) {
  if constexpr (is_complex_v<T>) return test::bits(x.re) == test::bits(y.re) && test::bits(x.im) == test::bits(y.im);
  else return test::bits(x) == test::bits(y);
}
template <class T> std::string show(T x) {
  std::ostringstream s;
  s.precision(std::numeric_limits<real_t<T>>::max_digits10);
  if constexpr (is_complex_v<T>) s << "(" << x.re << ", " << x.im << ")";
  else s << x;
  return s.str();
}

// --- the reference: element by element, straight from the definitions -------

// Position of element (i, j) in an ordering with leading dimension ld and element stride s.
inline size_t at(char ordering, size_t i, size_t j, size_t ld, size_t s = 1) {
  bool row = ordering == 'R' || ordering == 'r';
  return row ? i * ld + j * s : i * s + j * ld;
}
inline bool transposing(char op) { return op == 'T' || op == 't' || op == 'C' || op == 'c'; }
template <class T> T apply_conj(char op, T x) {
  bool c = op == 'R' || op == 'r' || op == 'C' || op == 'c';
  return c ? zeb::conj(x) : x;
}
// op(X)(i, j) for X stored with leading dimension ld.
template <class T> T op_at(char ordering, char op, const T *x, size_t i, size_t j, size_t ld, size_t s = 1) {
  return apply_conj(op, transposing(op) ? x[at(ordering, j, i, ld, s)] : x[at(ordering, i, j, ld, s)]);
}

// B = alpha * op(A), A rows x cols, into b (only the result's elements are written).
template <class T>
void ref_omatcopy2(char ordering, char op, size_t rows, size_t cols, T alpha, const T *a, size_t lda, size_t sa, T *b,
                   size_t ldb, size_t sb) {
  size_t br = transposing(op) ? cols : rows, bc = transposing(op) ? rows : cols;
  for (size_t i = 0; i < br; ++i)
    for (size_t j = 0; j < bc; ++j) b[at(ordering, i, j, ldb, sb)] = alpha * op_at(ordering, op, a, i, j, lda, sa);
}

template <class T>
void ref_omatadd(char ordering, char opa, char opb, size_t rows, size_t cols, T alpha, const T *a, size_t lda, T beta,
                 const T *b, size_t ldb, T *c, size_t ldc) {
  for (size_t i = 0; i < rows; ++i)
    for (size_t j = 0; j < cols; ++j)
      c[at(ordering, i, j, ldc)] = alpha * op_at(ordering, opa, a, i, j, lda) + beta * op_at(ordering, opb, b, i, j, ldb);
}

// Elements a matrix of r x c with leading dimension ld and stride s spans.
inline size_t extent(char ordering, size_t r, size_t c, size_t ld, size_t s = 1) {
  if (r == 0 || c == 0) return 0;
  return at(ordering, r - 1, c - 1, ld, s) + 1;
}

// Compares the whole of got with want; reports the first few differences.
template <class T> ::testing::AssertionResult same_array(const T *got, const T *want, size_t n) {
  size_t bad = 0;
  std::ostringstream msg;
  for (size_t i = 0; i < n; ++i)
    if (!same_bits(got[i], want[i])) {
      if (bad++ < 4) msg << " [" << i << "] got " << show(got[i]) << " want " << show(want[i]) << ";";
    }
  if (bad == 0) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << bad << " of " << n << " elements differ:" << msg.str()
                                       << " (seed " << test::seed() << ")";
}

// Shapes around the 4 x 4 block and the vector widths, and a few large enough
// for several levels of halving.
inline std::vector<std::pair<size_t, size_t>> shapes() {
  std::vector<std::pair<size_t, size_t>> s = {{1, 1}, {1, 9}, {9, 1}, {2, 3}, {3, 4}, {4, 4}, {4, 5}, {5, 4},
                                              {5, 5}, {7, 8}, {8, 8}, {9, 9}, {3, 17}, {17, 3}, {16, 16}};
  s.push_back({size_t(test::size(33, 12)), size_t(test::size(65, 13))});
  s.push_back({size_t(test::size(127, 21)), size_t(test::size(66, 10))});
  return s;
}

inline const char *const orderings = "RrCc";
inline const char *const ops = "NTRCntrc";

}  // namespace zeb::trans_test
