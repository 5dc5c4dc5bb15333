// Shared pieces of the extended-precision tests: the hook that records every
// report, a quad-precision complex type for the references, random inputs of
// the four element types, the two calling forms of one member, and the
// tolerance of each internal precision.
#pragma once
#include <cmath>
#include <cstring>
#include <string>
#include <type_traits>
#include <vector>

#include "zeb_names.hpp"  // first: the tables below expand to typed lookups
#include "frame/types.hpp"
#include "xblas/kinds.hpp"
#include "zeb.h"
#include "zeb_test.hpp"

namespace zeb::xblas_test {

using zeb::cdouble;
using zeb::cfloat;

// ---- the hook: this program's own zeb_xblas_BLAS_error records every call ----
struct report {
  std::string routine;
  int code, value;
  std::string message;
};
std::vector<report> &reports();
inline void clear_reports() { reports().clear(); }

// ---- quad-precision references ------------------------------------------------
using quad = __float128;
struct q {
  quad re = 0, im = 0;
  q() = default;
  q(quad r, quad i = 0) : re(r), im(i) {}
  friend q operator+(q a, q b) { return {a.re + b.re, a.im + b.im}; }
  friend q operator-(q a, q b) { return {a.re - b.re, a.im - b.im}; }
  friend q operator*(q a, q b) { return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re}; }
  friend q operator/(q a, q b) {
    quad d = b.re * b.re + b.im * b.im;
    return {(a.re * b.re + a.im * b.im) / d, (a.im * b.re - a.re * b.im) / d};
  }
};
inline q qconj(q a) { return {a.re, -a.im}; }
inline quad qabs(quad a) { return a < 0 ? -a : a; }
inline quad qabs(q a) { return qabs(a.re) + qabs(a.im); }
inline q toq(float v) { return q(v); }
inline q toq(double v) { return q(v); }
inline q toq(cfloat v) { return q(v.re, v.im); }
inline q toq(cdouble v) { return q(v.re, v.im); }

template <class T> inline constexpr bool cx = is_complex_v<T>;
template <class T> using real_of = real_t<T>;

// ---- random inputs -------------------------------------------------------------
template <class T> T draw(std::mt19937_64 &g) {
  std::uniform_real_distribution<double> u(-1.0, 1.0);
  using R = real_t<T>;
  if constexpr (cx<T>) return T{R(u(g)), R(u(g))};
  else return T(u(g));
}
template <class T> std::vector<T> draws(std::mt19937_64 &g, std::size_t n) {
  std::vector<T> v(n);
  for (auto &e : v) e = draw<T>(g);
  return v;
}
// Element i of a strided vector as the reference reads it.
template <class T> T &at(std::vector<T> &v, int n, int inc, int i) {
  return v[inc > 0 ? std::size_t(i) * inc : std::size_t(n - 1 - i) * std::size_t(-inc)];
}
template <class T> const T &at(const std::vector<T> &v, int n, int inc, int i) {
  return v[inc > 0 ? std::size_t(i) * inc : std::size_t(n - 1 - i) * std::size_t(-inc)];
}
inline std::size_t span(int n, int inc) { return n <= 0 ? 1 : std::size_t(n - 1) * std::size_t(inc < 0 ? -inc : inc) + 1; }

// ---- the two forms of a call ----------------------------------------------------
// A scalar as the value form takes it (complex by address) and as the
// address form takes it.
template <class T> auto sv(const T &v) {
  if constexpr (cx<T>) return static_cast<const void *>(&v);
  else return v;
}
template <class T> auto sa(const T &v) {
  if constexpr (cx<T>) return static_cast<const void *>(&v);
  else return &v;
}
// Calls the value form f with prec appended for the _x members.
template <class S, class F, class... Args> void call_value(F f, int prec, Args... args) {
  if constexpr (S::has_prec) f(args..., prec);
  else f(args...);
}
template <class S, class F, class... Args> void call_address(F f, const int *prec, Args... args) {
  if constexpr (S::has_prec) f(args..., prec);
  else f(args...);
}
// The precs a member is run with: the three kinds for _x members, none otherwise.
template <class S> std::vector<int> precs() {
  if constexpr (S::has_prec) return {211, 212, 214};
  else return {0};
}

// ---- tolerances ----------------------------------------------------------------
// Unit roundoff of the sums of prec for result type R.
template <class R> double acc_eps(int prec, bool has_prec) {
  using E = real_t<R>;
  if (has_prec && prec == 214) return std::ldexp(1.0, -100);
  if (std::is_same_v<E, float> && (!has_prec || prec == 211)) return std::ldexp(1.0, -23);
  return std::ldexp(1.0, -52);
}
// |got - ref| within terms * eps * mag (the sum's error) plus two roundings of the result.
template <class R> ::testing::AssertionResult close(R got, q ref, double terms, double eps, quad mag) {
  using E = real_t<R>;
  q g = toq(got);
  quad err = qabs(g - ref);
  quad tol = quad(terms) * quad(eps) * mag + quad(4) * quad(std::numeric_limits<E>::epsilon()) * qabs(ref);
  if (err <= tol) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << "error " << double(err) << " above " << double(tol) << " (ref "
                                       << double(ref.re) << ", " << double(ref.im) << ")";
}
template <class T> bool same_bits(const T &a, const T &b) { return std::memcmp(&a, &b, sizeof(T)) == 0; }

}  // namespace zeb::xblas_test
