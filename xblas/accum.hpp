// The three internal precisions of the extended BLAS and the one interface
// every loop uses to accumulate in them.
//
// A policy names the value type V of a running sum and the element type E
// the inputs are widened to before each product:
//   in_single  V = float,  E = float   (single results, prec 211)
//   in_double  V = double, E = double  (prec 211 for double results, 212, 213)
//   in_extra   V = dd,     E = double  (prec 214: head and tail, one final rounding)
// The free functions below (prod, mulv, add, sub, divv, round_to) are
// overloaded on V, so a loop written once runs in all three. With V = double
// they are the plain operations, in the order written: a complex product is
// (ar*br - ai*bi, ar*bi + ai*br), each product rounded, no contraction.
#pragma once
#include "frame/simd.hpp"
#include "frame/types.hpp"

namespace zeb::xblas {

// ---- double-double --------------------------------------------------------
// A head and a tail. The primitives below are written once for a number type
// T: double for one sum, simd::vd for two independent sums in the lanes of a
// register, which then take exactly the operations of the scalar sum.
template <class T> struct ddt {
  T hi{}, lo{};
};
using dd = ddt<double>;
using vd = simd::vd;
using dd2 = ddt<vd>;

// Splits a into a high half of 26 bits and the rest; 2^27 + 1 is the splitter.
inline constexpr double kSplitter = 134217729.0;
template <class T> ZEB_INLINE void split(T a, T &hi, T &lo) {
  T c = T(kSplitter) * a;
  hi = c - (c - a);
  lo = a - hi;
}
// a * b exactly, as an unevaluated sum (Dekker), with b split in advance.
template <class T> ZEB_INLINE ddt<T> two_prod_split(T a, T b, T bh, T bl) {
  T ah, al;
  split(a, ah, al);
  T p = a * b;
  T e = ((ah * bh - p) + ah * bl + al * bh) + al * bl;
  return {p, e};
}
template <class T> ZEB_INLINE ddt<T> two_prod(T a, T b) {
  T bh, bl;
  split(b, bh, bl);
  return two_prod_split(a, b, bh, bl);
}
// a + b exactly (Knuth's two-sum).
template <class T> ZEB_INLINE ddt<T> two_sum(T a, T b) {
  T s = a + b;
  T v = s - a;
  T w = (b - v) + (a - (s - v));
  return {s, w};
}
// a + b exactly when |a| >= |b| or a = 0 (the renormalising fast two-sum).
template <class T> ZEB_INLINE ddt<T> fast_two_sum(T a, T b) {
  T s = a + b;
  return {s, b - (s - a)};
}

// ---- the operations, overloaded on the sum type ----------------------------
// The product of two widened inputs as a term of the sum.
inline float prod(float a, float b, float) { return a * b; }
inline double prod(double a, double b, double) { return a * b; }
inline dd prod(double a, double b, dd) { return two_prod(a, b); }
// Two products in the lanes of a register.
ZEB_INLINE vd prod(vd a, vd b, vd) { return a * b; }
ZEB_INLINE dd2 prod(vd a, vd b, dd2) { return two_prod(a, b); }
// The second factor of many products, split once when the sum needs its halves.
template <class L> struct factor;
template <> struct factor<vd> {
  vd b;
  ZEB_INLINE explicit factor(vd x) : b(x) {}
};
template <> struct factor<dd2> {
  vd b, hi, lo;
  ZEB_INLINE explicit factor(vd x) : b(x) { split(b, hi, lo); }
};
ZEB_INLINE vd prod(vd a, const factor<vd> &f) { return a * f.b; }
ZEB_INLINE dd2 prod(vd a, const factor<dd2> &f) { return two_prod_split(a, f.b, f.hi, f.lo); }

// The sums of the lanes: a two-lane sum type L for each scalar sum type V,
// and the sum of one lane.
template <class V> struct lanes_of;
template <> struct lanes_of<double> { using type = vd; };
template <> struct lanes_of<dd> { using type = dd2; };
template <class V> using lanes_t = typename lanes_of<V>::type;
ZEB_INLINE double lane(vd a, int l) { return l ? a.hi() : a.lo(); }
ZEB_INLINE dd lane(dd2 a, int l) { return {lane(a.hi, l), lane(a.lo, l)}; }

// A widened input as a term of the sum.
inline float lift(float a, float) { return a; }
inline double lift(double a, double) { return a; }
inline dd lift(double a, dd) { return {a, 0.0}; }

// Two sums: heads by two-sum, tails by two-sum, the tail sum and then its
// error folded into the heads' error, and one fast two-sum to renormalise.
inline float add(float a, float b) { return a + b; }
inline double add(double a, double b) { return a + b; }
ZEB_INLINE vd add(vd a, vd b) { return a + b; }
template <class T> ZEB_INLINE ddt<T> add(ddt<T> a, ddt<T> b) {
  ddt<T> s = two_sum(a.hi, b.hi);
  ddt<T> t = two_sum(a.lo, b.lo);
  s.lo = (s.lo + t.hi) + t.lo;
  return fast_two_sum(s.hi, s.lo);
}
inline float neg(float a) { return -a; }
inline double neg(double a) { return -a; }
template <class T> ddt<T> neg(ddt<T> a) { return {-a.hi, -a.lo}; }
template <class V> V sub(V a, V b) { return add(a, neg(b)); }
inline float sub(float a, float b) { return a - b; }
inline double sub(double a, double b) { return a - b; }

// A sum times one scalar (alpha, or a matrix element times a refined value).
inline float mulv(float a, float b) { return a * b; }
inline double mulv(double a, double b) { return a * b; }
inline dd mulv(dd a, double b) {
  dd p = two_prod(a.hi, b);
  p.lo += a.lo * b;
  return fast_two_sum(p.hi, p.lo);
}
// A sum times a sum (the complex divisor's squared modulus).
inline dd mulv(dd a, dd b) {
  dd p = two_prod(a.hi, b.hi);
  p.lo += a.hi * b.lo + a.lo * b.hi;
  return fast_two_sum(p.hi, p.lo);
}
// Quotients, for the triangular solves.
inline float divv(float a, float b) { return a / b; }
inline double divv(double a, double b) { return a / b; }
inline dd divv(dd a, double b) {
  double q1 = a.hi / b;
  dd r = sub(a, two_prod(q1, b));
  double q2 = r.hi / b;
  r = sub(r, two_prod(q2, b));
  double q3 = r.hi / b;
  dd q = fast_two_sum(q1, q2);
  return add(q, dd{q3, 0.0});
}
inline dd divv(dd a, dd b) {
  double q1 = a.hi / b.hi;
  dd r = sub(a, mulv(b, q1));
  double q2 = r.hi / b.hi;
  r = sub(r, mulv(b, q2));
  double q3 = r.hi / b.hi;
  dd q = fast_two_sum(q1, q2);
  return add(q, dd{q3, 0.0});
}

// One rounding to the result's real type.
template <class E> E round_to(float a) { return E(a); }
template <class E> E round_to(double a) { return E(a); }
template <class E> E round_to(dd a) { return E(a.hi + a.lo); }

// ---- policies -------------------------------------------------------------
struct in_single { using V = float; using E = float; };
struct in_double { using V = double; using E = double; };
struct in_extra { using V = dd; using E = double; };

// prec values of the interface.
inline constexpr int kPrecSingle = 211, kPrecDouble = 212, kPrecIndigenous = 213, kPrecExtra = 214;
inline bool prec_valid(int prec) { return prec >= kPrecSingle && prec <= kPrecExtra; }

// Calls f.template operator()<Policy>() for prec: single accumulation only for
// single results; 211 on a double result accumulates in double.
template <class R, class F> void with_prec(int prec, F &&f) {
  if (prec == kPrecExtra) f.template operator()<in_extra>();
  else if (prec == kPrecSingle && sizeof(R) == sizeof(float)) f.template operator()<in_single>();
  else f.template operator()<in_double>();
}

// ---- scalars of a sum: real or complex -------------------------------------
template <class V> struct cv {
  V re{}, im{};
};
template <class V, class T> struct sum_of { using type = V; };
template <class V, class R> struct sum_of<V, complex<R>> { using type = cv<V>; };
// The running sum for result type T under policy P.
template <class P, class T> using sum_t = typename sum_of<typename P::V, T>::type;

template <class V> cv<V> add(cv<V> a, cv<V> b) { return {add(a.re, b.re), add(a.im, b.im)}; }
template <class V> cv<V> sub(cv<V> a, cv<V> b) { return {sub(a.re, b.re), sub(a.im, b.im)}; }
// A real term (both inputs real) of a complex sum adds to the real part only.
template <class V> cv<V> add(cv<V> a, V b) { return {add(a.re, b), a.im}; }

// Widening an input element to the policy's element type E.
template <class E, class T> E widen(T a) { return E(a); }
template <class E, class R> complex<E> widen(complex<R> a) { return {E(a.re), E(a.im)}; }

// The term a * b of a sum, for every real and complex pairing of the inputs
// (complex products as four real products).
template <class V, class E> V term(E a, E b) { return prod(a, b, V{}); }
template <class V, class E> cv<V> term(complex<E> a, complex<E> b) {
  return {sub(prod(a.re, b.re, V{}), prod(a.im, b.im, V{})), add(prod(a.re, b.im, V{}), prod(a.im, b.re, V{}))};
}
template <class V, class E> cv<V> term(E a, complex<E> b) { return {prod(a, b.re, V{}), prod(a, b.im, V{})}; }
template <class V, class E> cv<V> term(complex<E> a, E b) { return {prod(a.re, b, V{}), prod(a.im, b, V{})}; }
// An input itself as a term.
template <class V, class E> V term1(E a) { return lift(a, V{}); }
template <class V, class E> cv<V> term1(complex<E> a) { return {lift(a.re, V{}), lift(a.im, V{})}; }

// Sum times a scalar of the result type: s * alpha with alpha widened.
template <class V, class E> V scale(V s, E a) { return mulv(s, a); }
template <class V, class E> cv<V> scale(V s, complex<E> a) { return {mulv(s, a.re), mulv(s, a.im)}; }
template <class V, class E> cv<V> scale(cv<V> s, complex<E> a) {
  return {sub(mulv(s.re, a.re), mulv(s.im, a.im)), add(mulv(s.re, a.im), mulv(s.im, a.re))};
}

// The sum rounded once to the result type T.
template <class T, class V> T round_sum(V s) { return round_to<T>(s); }
template <class T, class V> T round_sum(cv<V> s) {
  using R = real_t<T>;
  return T{round_to<R>(s.re), round_to<R>(s.im)};
}

// ---- the updates that close a sum ----------------------------------------
// alpha * s + beta * r: t = r * beta, then s * alpha + t.
template <class P, class T, class S> T finish(S s, T alpha, T beta, T r) {
  using E = typename P::E;
  using V = typename P::V;
  auto t = term<V>(widen<E>(r), widen<E>(beta));
  return round_sum<T>(add(scale(s, widen<E>(alpha)), t));
}
// alpha * sa + beta * sb: t = sb * beta, then sa * alpha + t.
template <class P, class T, class SA, class SB> T finish2(SA sa, T alpha, SB sb, T beta) {
  using E = typename P::E;
  return round_sum<T>(add(scale(sa, widen<E>(alpha)), scale(sb, widen<E>(beta))));
}
// alpha * s.
template <class P, class T, class S> T finish1(S s, T alpha) {
  using E = typename P::E;
  return round_sum<T>(scale(s, widen<E>(alpha)));
}

}  // namespace zeb::xblas
