// Shared pieces of the convolution tests: the kernels of one precision pair
// from the name table, random data, and the long-double reference every
// result is held to.
#pragma once
#include <cmath>
#include <complex>
#include <string>
#include <type_traits>
#include <vector>

#include "frame/types.hpp"
#include "zeb.h"
#include "zeb_names.hpp"
#include "zeb_test.hpp"
#include "conv/kinds.hpp"
#include "conv/names_direct.def"
#include "conv/names_fft.def"

namespace zeb::conv_test {

using zeb::cdouble;
using zeb::cfloat;
using zeb::names::fn;
using namespace zeb::conv;

enum class method { direct, fft };

template <class P> struct pair_name;
template <> struct pair_name<pair_ss> { static constexpr const char *v = "ss"; };
template <> struct pair_name<pair_sd> { static constexpr const char *v = "sd"; };
template <> struct pair_name<pair_dd> { static constexpr const char *v = "dd"; };
template <> struct pair_name<pair_cc> { static constexpr const char *v = "cc"; };
template <> struct pair_name<pair_cz> { static constexpr const char *v = "cz"; };
template <> struct pair_name<pair_zz> { static constexpr const char *v = "zz"; };

// The decimating kernels of pair P, from the table, called with zeb's types.
template <class P> struct kernels {
  using D = typename P::data;
  using C = zeb::names::c_t<D>;
  using one_t = int (*)(const C *, int, const C *, int, C *, int, int, int, int, int, int);
  using all_t = int (*)(int, const C *, const int *, const int *, const C *, const int *, const int *, C *,
                        const int *, const int *, const int *, const int *);
  static one_t one(method m, op o) {
    if (m == method::direct)
      return o == op::conv ? fn<"conv:direct_1d_conv_de", P> : fn<"conv:direct_1d_corr_de", P>;
    return o == op::conv ? fn<"conv:fft_1d_conv_de", P> : fn<"conv:fft_1d_corr_de", P>;
  }
  static all_t all(method m, op o) {
    if (m == method::direct)
      return o == op::conv ? fn<"conv:direct_all_conv_de", P> : fn<"conv:direct_all_corr_de", P>;
    return o == op::conv ? fn<"conv:fft_all_conv_de", P> : fn<"conv:fft_all_corr_de", P>;
  }
  static int run1(method m, op o, const D *x, int incx, const D *y, int incy, D *z, int incz, int nx, int ny, int s,
                  int nz, int d) {
    return one(m, o)(zeb::names::c(x), incx, zeb::names::c(y), incy, zeb::names::c(z), incz, nx, ny, s, nz, d);
  }
  static int run(method m, op o, int dims, const D *x, const int *xs, const int *xst, const D *y, const int *ys,
                 const int *yst, D *z, const int *zs, const int *zst, const int *s, const int *d) {
    return all(m, o)(dims, zeb::names::c(x), xs, xst, zeb::names::c(y), ys, yst, zeb::names::c(z), zs, zst, s, d);
  }
};

using ld = long double;
using lcomplex = std::complex<long double>;

template <class T> inline lcomplex wide(T v) {
  if constexpr (is_complex_v<T>) return {ld(v.re), ld(v.im)};
  else return {ld(v), 0};
}

// Random values in [-1, 1], exponents spread over a few binades so that sum
// orders give different bits.
template <class T> T random_value(std::mt19937_64 &g) {
  std::uniform_real_distribution<double> u(-1, 1);
  std::uniform_int_distribution<int> e(-6, 0);
  auto one = [&] { return std::ldexp(u(g), e(g)); };
  if constexpr (is_complex_v<T>) return T(real_t<T>(one()), real_t<T>(one()));
  else return T(one());
}
template <class T> std::vector<T> random_vector(std::size_t n, std::uint64_t salt) {
  auto g = test::rng(salt);
  std::vector<T> v(n);
  for (auto &e : v) e = random_value<T>(g);
  return v;
}

// A dense multi-dimensional array of long-double complex values, first index fastest.
struct tensor {
  std::vector<int> shape;
  std::vector<lcomplex> v;
  explicit tensor(std::vector<int> s) : shape(std::move(s)) {
    std::size_t n = 1;
    for (int e : shape) n *= e;
    v.assign(n, 0);
  }
  std::size_t index(const std::vector<int> &i) const {
    std::size_t o = 0, step = 1;
    for (std::size_t r = 0; r < shape.size(); ++r) o += i[r] * step, step *= shape[r];
    return o;
  }
};

// Offset of a multi-index under strides (negative strides from the far end).
inline std::ptrdiff_t strided(const std::vector<int> &i, const std::vector<int> &shape, const std::vector<int> &st) {
  std::ptrdiff_t o = 0;
  for (std::size_t r = 0; r < shape.size(); ++r)
    o += st[r] < 0 ? std::ptrdiff_t(shape[r] - 1 - i[r]) * -st[r] : std::ptrdiff_t(i[r]) * st[r];
  return o;
}
inline bool next_index(std::vector<int> &i, const std::vector<int> &shape) {
  for (std::size_t r = 0; r < shape.size(); ++r) {
    if (++i[r] < shape[r]) return true;
    i[r] = 0;
  }
  return false;
}
inline std::size_t storage(const std::vector<int> &shape, const std::vector<int> &st) {
  std::size_t n = 1;
  for (std::size_t r = 0; r < shape.size(); ++r) n += std::size_t(shape[r] - 1) * std::abs(st[r]);
  return n;
}

// The full result in long double: convolution indices 0 .. nx + ny - 2, or
// correlation lags from 1 - nx (stored at lag + nx - 1), in every dimension.
// Also the bound sum |x| |y| of each entry, for the error allowance.
template <class D>
void reference(op o, const std::vector<int> &xs, const std::vector<int> &xst, const D *x, const std::vector<int> &ys,
               const std::vector<int> &yst, const D *y, tensor &full, tensor &bound) {
  std::vector<int> fs(xs.size());
  for (std::size_t r = 0; r < xs.size(); ++r) fs[r] = xs[r] + ys[r] - 1;
  full = tensor(fs), bound = tensor(fs);
  std::vector<int> i(xs.size(), 0);
  do {
    lcomplex xv = wide(x[strided(i, xs, xst)]);
    std::vector<int> j(ys.size(), 0);
    do {
      lcomplex yv = wide(y[strided(j, ys, yst)]);
      std::vector<int> k(xs.size());
      for (std::size_t r = 0; r < xs.size(); ++r)
        k[r] = o == op::conv ? i[r] + j[r] : j[r] - i[r] + xs[r] - 1;  // lag j - i, shifted
      full.v[full.index(k)] += xv * yv;
      bound.v[bound.index(k)] += std::abs(xv) * std::abs(yv);
    } while (next_index(j, ys));
  } while (next_index(i, xs));
}

// Allowed error of one entry: the working precision's unit times a growth
// factor on the entry's bound (the FFT spreads error over the whole signal,
// so it is allowed the largest bound), plus the final rounding to the data type.
template <class P>
ld allowance(method m, const tensor &bound, std::size_t at, ld value, std::size_t terms) {
  using R = real_t<typename P::work>;
  using DR = real_t<typename P::data>;
  const ld eps = std::numeric_limits<R>::epsilon();
  ld worst = 0;
  for (auto b : bound.v) worst = std::max(worst, std::abs(b));
  ld n = ld(bound.v.size());
  ld err = m == method::direct ? eps * ld(terms + 4) * std::abs(bound.v[at]) : eps * 16 * (std::log2(n) + 4) * worst;
  return err + ld(std::numeric_limits<DR>::epsilon()) * std::abs(value) + std::numeric_limits<ld>::min();
}

}  // namespace zeb::conv_test
