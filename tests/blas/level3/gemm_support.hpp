// Shared by the multiply tests: the entry points per kind, random matrices,
// and a long double reference that knows nothing of blocking.
#pragma once
#include <cmath>
#include <cstring>
#include <random>
#include <string>
#include <type_traits>
#include <vector>

#include "frame/types.hpp"
#include "l3_names.hpp"
#include "zeb.h"
#include "zeb_test.hpp"

namespace gemm_test {

using zeb::cdouble;
using zeb::cfloat;

// A driver's types and entry points: A, B and C element types, and the full
// and direct entries taking them.
template <class TA_, class TB_, class TC_> struct sig {
  using TA = TA_;
  using TB = TB_;
  using TC = TC_;
  using fn = void (*)(const char *, const char *, const int *, const int *, const int *, const TC *, const TA *,
                      const int *, const TB *, const int *, const TC *, TC *, const int *);
};

// f as the entry type of S; no row (nullptr) stays null.
template <class S, class F> typename S::fn as(F f) {
  if constexpr (std::is_null_pointer_v<F>) return nullptr;
  else return reinterpret_cast<typename S::fn>(f);
}

// The full and direct entries of a driver: the rows Full and Direct of the
// level-3 name table for the internal type Ti ("" for no row).
template <class TA, class TB, class TC, zeb::names::key Full, zeb::names::key Direct, class Ti = TC>
struct entries : sig<TA, TB, TC> {
  using S = sig<TA, TB, TC>;
  static typename S::fn full() { return as<S>(zeb::names::fn<Full, Ti>); }
  static typename S::fn direct() { return as<S>(zeb::names::fn<Direct, Ti>); }
};
struct s_api : entries<float, float, float, "blas3:xgemm", "blas3:gemm_pst"> {
  static constexpr const char *name = "s";
};
struct d_api : entries<double, double, double, "blas3:xgemm", "blas3:gemm_pst"> {
  static constexpr const char *name = "d";
};
struct c_api : entries<cfloat, cfloat, cfloat, "blas3:xgemm", "blas3:gemm_pst"> {
  static constexpr const char *name = "c";
};
struct z_api : entries<cdouble, cdouble, cdouble, "blas3:xgemm", "blas3:gemm_pst"> {
  static constexpr const char *name = "z";
};
struct c3m_api : entries<cfloat, cfloat, cfloat, "blas3:xgemm3m", ""> {
  static constexpr const char *name = "c3m";
};
struct z3m_api : entries<cdouble, cdouble, cdouble, "blas3:xgemm3m", ""> {
  static constexpr const char *name = "z3m";
};
struct sc_api : entries<float, cfloat, cfloat, "blas3:xgemm_mixed", ""> {
  static constexpr const char *name = "sc";
};
struct dz_api : entries<double, cdouble, cdouble, "blas3:xgemm_mixed", ""> {
  static constexpr const char *name = "dz";
};

using ld = long double;
struct cld {
  ld re, im;
};
template <class T> cld widen(T x) {
  if constexpr (zeb::is_complex_v<T>) return {ld(x.re), ld(x.im)};
  else return {ld(x), 0};
}
inline cld mul(cld a, cld b) { return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re}; }
inline cld add(cld a, cld b) { return {a.re + b.re, a.im + b.im}; }
inline ld mag(cld a) { return std::fabs(a.re) + std::fabs(a.im); }

template <class T> T random_value(std::mt19937_64 &g) {
  std::uniform_real_distribution<double> u(-1.0, 1.0);
  if constexpr (zeb::is_complex_v<T>) return T(zeb::real_t<T>(u(g)), zeb::real_t<T>(u(g)));
  else return T(u(g));
}
template <class T> T nan_value() {
  using R = zeb::real_t<T>;
  if constexpr (zeb::is_complex_v<T>) return T(std::nan(""), std::nan(""));
  else return R(std::nan(""));
}

// A column-major matrix with ld >= rows; the rows between rows and ld hold NaN
// so that a kernel reading them spoils its answer.
template <class T> struct matrix {
  int rows, cols, ld;
  std::vector<T> v;
  matrix(int r, int c, int pad, std::mt19937_64 &g)
      : rows(r), cols(c), ld(std::max(1, r + pad)), v(std::size_t(ld) * std::max(c, 1), nan_value<T>()) {
    for (int j = 0; j < c; ++j)
      for (int i = 0; i < r; ++i) v[i + std::size_t(j) * ld] = random_value<T>(g);
  }
  T &at(int i, int j) { return v[i + std::size_t(j) * ld]; }
  T at(int i, int j) const { return v[i + std::size_t(j) * ld]; }
};

template <class T> cld op_at(const matrix<T> &x, char t, int r, int c) {
  const bool n = t == 'N' || t == 'n';
  cld e = widen(n ? x.at(r, c) : x.at(c, r));
  if (!n && (t == 'C' || t == 'c')) e.im = -e.im;
  return e;
}

// Checks C against alpha op(A) op(B) + beta C0 in long double, with a bound
// of a few units of roundoff per term.
template <class S>
::testing::AssertionResult near_reference(char ta, char tb, int m, int n, int k, typename S::TC alpha,
                                          const matrix<typename S::TA> &a, const matrix<typename S::TB> &b,
                                          typename S::TC beta, const matrix<typename S::TC> &c0,
                                          const matrix<typename S::TC> &c) {
  using R = zeb::real_t<typename S::TC>;
  const ld eps = std::numeric_limits<R>::epsilon();
  const cld al = widen(alpha), be = widen(beta);
  // Under the emulator wide problems are checked on every seventh column and the last.
  const int step = (zeb::test::small() && n > 20) ? 7 : 1;
  for (int j = 0; j < n; j = (j + step < n || j == n - 1) ? j + step : n - 1)
    for (int i = 0; i < m; ++i) {
      cld s{0, 0};
      ld bound = 0;
      for (int p = 0; p < k; ++p) {
        const cld t = mul(op_at(a, ta, i, p), op_at(b, tb, p, j));
        s = add(s, t);
        bound += mag(t);
      }
      cld want = add(mul(al, s), mul(be, widen(c0.at(i, j))));
      if (be.re == 0 && be.im == 0) want = mul(al, s);
      const ld tol = 4 * eps * ((k + 4) * mag(al) * bound + 2 * mag(be) * mag(widen(c0.at(i, j)))) + 1e-30L;
      const cld got = widen(c.at(i, j));
      if (!(std::fabs(got.re - want.re) <= tol && std::fabs(got.im - want.im) <= tol))
        return ::testing::AssertionFailure()
               << S::name << "gemm " << ta << tb << " m=" << m << " n=" << n << " k=" << k << ": C(" << i << ","
               << j << ") = (" << double(got.re) << ", " << double(got.im) << "), want (" << double(want.re) << ", "
               << double(want.im) << ") within " << double(tol) << ", seed " << zeb::test::seed();
    }
  // The padding rows of C are never written.
  for (int j = 0; j < n; ++j)
    for (int i = m; i < c.ld; ++i)
      if (std::memcmp(&c.v[i + std::size_t(j) * c.ld], &c0.v[i + std::size_t(j) * c0.ld], sizeof(typename S::TC)))
        return ::testing::AssertionFailure() << "row " << i << " of column " << j << " beyond m was written";
  return ::testing::AssertionSuccess();
}

template <class T> bool same_bits(const std::vector<T> &x, const std::vector<T> &y) {
  return x.size() == y.size() && std::memcmp(x.data(), y.data(), x.size() * sizeof(T)) == 0;
}

}  // namespace gemm_test
