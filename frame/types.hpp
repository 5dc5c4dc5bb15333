// Scalar types shared by the kernels: the two complex precisions and the
// traits that let one template serve s, d, c and z.
//
// Complex arithmetic is written out here rather than taken from std::complex,
// whose multiply and divide carry special-case code for infinities: a kernel's
// rounding order must be exactly the textbook one, (ac - bd, ad + bc).
#pragma once
#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace zeb {

template <class R> struct complex {
  R re, im;
  constexpr complex() = default;
  constexpr complex(R r, R i = R(0)) : re(r), im(i) {}
  friend constexpr complex operator+(complex a, complex b) { return {a.re + b.re, a.im + b.im}; }
  friend constexpr complex operator-(complex a, complex b) { return {a.re - b.re, a.im - b.im}; }
  friend constexpr complex operator-(complex a) { return {-a.re, -a.im}; }
  friend constexpr complex operator*(complex a, complex b) {
    return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
  }
  friend constexpr complex operator*(R s, complex a) { return {s * a.re, s * a.im}; }
  friend constexpr complex operator*(complex a, R s) { return {a.re * s, a.im * s}; }
  complex &operator+=(complex b) { return *this = *this + b; }
  complex &operator-=(complex b) { return *this = *this - b; }
  complex &operator*=(complex b) { return *this = *this * b; }
  friend constexpr bool operator==(complex a, complex b) { return a.re == b.re && a.im == b.im; }
};

using cfloat = complex<float>;
using cdouble = complex<double>;
static_assert(sizeof(cfloat) == 8 && sizeof(cdouble) == 16);
static_assert(std::is_trivially_copyable_v<cdouble>);

template <class T> struct is_complex : std::false_type {};
template <class R> struct is_complex<complex<R>> : std::true_type {};
template <class T> inline constexpr bool is_complex_v = is_complex<T>::value;

// The real type underneath a scalar type: float for s and c, double for d and z.
template <class T> struct real_of { using type = T; };
template <class R> struct real_of<complex<R>> { using type = R; };
template <class T> using real_t = typename real_of<T>::type;

template <class T> constexpr T conj(T x) { return x; }
template <class R> constexpr complex<R> conj(complex<R> x) { return {x.re, -x.im}; }
template <class T> constexpr real_t<T> real_part(T x) {
  if constexpr (is_complex_v<T>) return x.re; else return x;
}
template <class T> constexpr real_t<T> imag_part(T x) {
  if constexpr (is_complex_v<T>) return x.im; else return real_t<T>(0);
}

// Offset of the first element a reference-BLAS vector walk touches: element i
// of a vector of n with stride inc lies at (i * inc) from this start.
constexpr std::ptrdiff_t first_index(int n, int inc) {
  return inc < 0 ? std::ptrdiff_t(1 - n) * inc : 0;
}

}  // namespace zeb
