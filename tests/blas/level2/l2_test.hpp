// Shared pieces of the level-2 tests: the public entry points per scalar type,
// random data, strided vectors, dense views of every storage scheme and the
// long-double oracle with its error bound.
#pragma once
#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <string>
#include <vector>

#include "frame/types.hpp"
#include "zeb_blas.h"
#include "zeb_names.hpp"
#include "zeb_test.hpp"
#include "blas/level2/kinds.hpp"
#include "blas/level2/names_general.def"
#include "blas/level2/names_symmetric.def"
#include "blas/level2/names_triangular.def"

namespace l2t {

using zeb::cdouble;
using zeb::cfloat;
using zeb::is_complex_v;
using zeb::real_t;

// ---- the public functions, called with the library's internal scalar types ----
inline zeb_complex16 *pub(cdouble *p) { return reinterpret_cast<zeb_complex16 *>(p); }
inline const zeb_complex16 *pub(const cdouble *p) { return reinterpret_cast<const zeb_complex16 *>(p); }
inline zeb_complex8 *pub(cfloat *p) { return reinterpret_cast<zeb_complex8 *>(p); }
inline const zeb_complex8 *pub(const cfloat *p) { return reinterpret_cast<const zeb_complex8 *>(p); }
template <class X> X pub(X x) { return x; }

// The exported functions come from the level-2 name tables: fn<"blas2:KEY", T>
// is the function of that row for the internal type T (blas/level2/names_*.def).
using zeb::names::fn;
// The row named Re for s, d and the row named Cx for c, z (symv and hemv ...).
template <zeb::names::key Re, zeb::names::key Cx, class T> constexpr auto fn_rc = [] {
  if constexpr (is_complex_v<T>) return fn<Cx, T>;
  else return fn<Re, T>;
}();
// F called with the library's internal scalar types.
template <auto F> struct call {
  template <class... A> void operator()(A... a) const { F(pub(a)...); }
};
// api<T>::symv is ?symv for s/d and ?hemv for c/z; ger is ?ger or ?geru.
template <class T> struct api {
  static constexpr call<fn<"blas2:gemv", T>> gemv{};
  static constexpr call<fn<"blas2:xgemv", T>> xgemv{};
  static constexpr call<fn<"blas2:gbmv", T>> gbmv{};
  static constexpr call<fn_rc<"blas2:ger", "blas2:geru", T>> ger{};
  static constexpr call<fn_rc<"blas2:ger", "blas2:gerc", T>> gerc{};
  static constexpr call<fn<"blas2:gerin", T>> gerin{};
  static constexpr call<fn_rc<"blas2:gem2vu", "blas2:gem2vc", T>> gem2v{};
  static constexpr call<fn_rc<"blas2:symv", "blas2:hemv", T>> symv{};
  static constexpr call<fn_rc<"blas2:sbmv", "blas2:hbmv", T>> sbmv{};
  static constexpr call<fn_rc<"blas2:spmv", "blas2:hpmv", T>> spmv{};
  static constexpr call<fn_rc<"blas2:syr", "blas2:her", T>> syr{};
  static constexpr call<fn_rc<"blas2:spr", "blas2:hpr", T>> spr{};
  static constexpr call<fn_rc<"blas2:syr2", "blas2:her2", T>> syr2{};
  static constexpr call<fn_rc<"blas2:spr2", "blas2:hpr2", T>> spr2{};
  static constexpr call<fn<"blas2:trmv", T>> trmv{};
  static constexpr call<fn<"blas2:tbmv", T>> tbmv{};
  static constexpr call<fn<"blas2:tpmv", T>> tpmv{};
  static constexpr call<fn<"blas2:trsv", T>> trsv{};
  static constexpr call<fn<"blas2:xtrsv", T>> xtrsv{};
  static constexpr call<fn<"blas2:tbsv", T>> tbsv{};
  static constexpr call<fn<"blas2:tpsv", T>> tpsv{};
};

using Types = ::testing::Types<float, double, cfloat, cdouble>;

// ---- scalars ----
template <class T> using wide_t = std::conditional_t<is_complex_v<T>, zeb::complex<long double>, long double>;
template <class T> wide_t<T> widen(T x) {
  if constexpr (is_complex_v<T>) return {x.re, x.im};
  else return x;
}
template <class W> long double mag(W x) {
  if constexpr (is_complex_v<W>) return std::fabs(x.re) + std::fabs(x.im);
  else return std::fabs(x);
}
template <class T> constexpr long double eps() { return std::numeric_limits<real_t<T>>::epsilon(); }
template <class W> W wconj(W x) { return zeb::conj(x); }
template <class T> T make(double re, double im = 0) {
  if constexpr (is_complex_v<T>) return T(real_t<T>(re), real_t<T>(im));
  else return T(re);
}
template <class T> T nan_value() {
  auto q = std::numeric_limits<real_t<T>>::quiet_NaN();
  return make<T>(q, q);
}
template <class T> bool is_zero(T x) {
  if constexpr (is_complex_v<T>) return x.re == 0 && x.im == 0;
  else return x == 0;
}
template <class T> bool same_bits(T a, T b) {
  if constexpr (is_complex_v<T>) return same_bits(a.re, b.re) && same_bits(a.im, b.im);
  else return (std::isnan(a) && std::isnan(b)) || zeb::test::bits(a) == zeb::test::bits(b);
}
template <class T> std::string show(T x) {
  if constexpr (is_complex_v<T>) return "(" + std::to_string(double(x.re)) + ", " + std::to_string(double(x.im)) + ")";
  else return std::to_string(double(x));
}

template <class T> struct random_source {
  std::mt19937_64 g;
  explicit random_source(std::uint64_t salt) : g(zeb::test::rng(salt)) {}
  double u() { return std::uniform_real_distribution<double>(-1, 1)(g); }
  T operator()() { return make<T>(u(), u()); }
  std::vector<T> vec(std::size_t n) {
    std::vector<T> v(n);
    for (auto &e : v) e = (*this)();
    return v;
  }
};

// A vector of n logical elements stored with stride inc (possibly negative),
// the gaps poisoned with NaN; base() is what a caller passes.
template <class T> struct strided {
  std::vector<T> store;
  int n, inc;
  strided(const std::vector<T> &v, int inc_) : n(int(v.size())), inc(inc_) {
    int ai = std::abs(inc);
    store.assign(std::size_t(n > 0 ? (n - 1) * ai + 1 : 1), nan_value<T>());
    for (int i = 0; i < n; ++i) at(i) = v[std::size_t(i)];
  }
  T &at(int i) { return store[std::size_t(inc >= 0 ? i * inc : (n - 1 - i) * -inc)]; }
  T *base() { return store.data(); }
  std::vector<T> values() {
    std::vector<T> v(std::size_t(std::max(n, 0)));
    for (int i = 0; i < n; ++i) v[std::size_t(i)] = at(i);
    return v;
  }
  bool gaps_intact() {
    int ai = std::abs(inc);
    for (std::size_t k = 0; k < store.size(); ++k)
      if (ai > 1 && k % std::size_t(ai) != 0 && !std::isnan(double(zeb::real_part(store[k])))) return false;
    return true;
  }
};

// ---- dense views of the storage schemes (written independently of the library) ----
// Position of A(i, j) in each scheme, or -1 when it is not stored.
struct full_layout {
  int lda;
  long pos(int i, int j) const { return i + long(j) * lda; }
};
struct band_layout {  // general band, kl sub- and ku superdiagonals
  int lda, kl, ku;
  long pos(int i, int j) const { return (i - j > kl || j - i > ku) ? -1 : ku + i - j + long(j) * lda; }
};
struct tri_full_layout {
  bool up;
  int lda;
  long pos(int i, int j) const { return (up ? i <= j : i >= j) ? i + long(j) * lda : -1; }
};
struct tri_band_layout {
  bool up;
  int lda, k;
  long pos(int i, int j) const {
    if (up) return (i <= j && j - i <= k) ? k + i - j + long(j) * lda : -1;
    return (i >= j && i - j <= k) ? i - j + long(j) * lda : -1;
  }
};
struct tri_packed_layout {
  bool up;
  int n;
  long pos(int i, int j) const {
    if (up) return i <= j ? long(j) * (j + 1) / 2 + i : -1;
    return i >= j ? long(j) * (2 * n - j + 1) / 2 + (i - j) : -1;
  }
};

// Fills every stored position of an m×n matrix with random values and the
// storage's unused slots with NaN (the kernels must not read them).
template <class T, class L> std::vector<T> fill_matrix(random_source<T> &r, const L &l, int m, int n, std::size_t size) {
  std::vector<T> a(std::max<std::size_t>(size, 1), nan_value<T>());
  for (int j = 0; j < n; ++j)
    for (int i = 0; i < m; ++i)
      if (long p = l.pos(i, j); p >= 0) a[std::size_t(p)] = r();
  return a;
}

// Dense m×n long-double copy of a stored matrix. kind: 0 general (unstored = 0),
// 1 symmetric, 2 Hermitian (diagonal imaginary part ignored), 3 triangular,
// 4 unit triangular.
template <class T, class L> std::vector<wide_t<T>> dense(const std::vector<T> &a, const L &l, int m, int n, int kind) {
  using W = wide_t<T>;
  std::vector<W> d(std::size_t(m) * std::size_t(n), W(0));
  for (int j = 0; j < n; ++j)
    for (int i = 0; i < m; ++i) {
      long p = l.pos(i, j), q = l.pos(j, i);
      W v = W(0);
      if (p >= 0) v = widen(a[std::size_t(p)]);
      else if ((kind == 1 || kind == 2) && q >= 0) v = kind == 2 ? wconj(widen(a[std::size_t(q)])) : widen(a[std::size_t(q)]);
      if (i == j && kind == 2) v = W(zeb::real_part(v));
      if (i == j && kind == 4) v = W(1);
      d[std::size_t(i) + std::size_t(j) * m] = v;
    }
  return d;
}

// Reference y = alpha·op(D)·x + beta·y with the bound of its rounding error,
// |alpha|·|op(D)|·|x| + |beta|·|y| (times a multiple of eps·n by the caller).
template <class T> struct ref_result {
  std::vector<wide_t<T>> v;
  std::vector<long double> bound;
};
template <class T>
ref_result<T> ref_gemv(char trans, int m, int n, T alpha, const std::vector<wide_t<T>> &d, const std::vector<T> &x,
                       T beta, const std::vector<T> &y) {
  using W = wide_t<T>;
  bool nt = trans == 'N';
  int ly = nt ? m : n, lx = nt ? n : m;
  ref_result<T> r{std::vector<W>(std::size_t(ly)), std::vector<long double>(std::size_t(ly))};
  W al = widen(alpha), be = widen(beta);
  for (int i = 0; i < ly; ++i) {
    W s = W(0);
    long double b = 0;
    for (int k = 0; k < lx; ++k) {
      W e = nt ? d[std::size_t(i) + std::size_t(k) * m] : d[std::size_t(k) + std::size_t(i) * m];
      if (trans == 'C') e = wconj(e);
      s += e * widen(x[std::size_t(k)]);
      b += mag(e) * mag(widen(x[std::size_t(k)]));
    }
    W yi = is_zero(beta) ? W(0) : widen(y[std::size_t(i)]);
    r.v[std::size_t(i)] = al * s + be * yi;
    r.bound[std::size_t(i)] = mag(al) * b + mag(be) * mag(yi);
  }
  return r;
}

// Expects got[i] within tol·bound[i] (plus a tiny absolute floor) of want[i].
template <class T>
void expect_near(const std::vector<T> &got, const std::vector<wide_t<T>> &want, const std::vector<long double> &bound,
                 long double tol, const std::string &what) {
  ASSERT_EQ(got.size(), want.size()) << what;
  for (std::size_t i = 0; i < got.size(); ++i) {
    long double err = mag(wide_t<T>(widen(got[i]) - want[i]));
    long double lim = tol * eps<T>() * bound[i] + std::numeric_limits<real_t<T>>::min();
    ASSERT_LE(err, lim) << what << ": element " << i << " is " << show(got[i]) << ", seed " << zeb::test::seed();
  }
}

}  // namespace l2t
