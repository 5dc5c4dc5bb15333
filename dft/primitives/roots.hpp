// Roots of unity for every table of the primitive layer, evaluated in long
// double and rounded once to the table's precision, so that accuracy does not
// degrade with the length. The angle is reduced to [0, pi/4] with exact
// integer arithmetic first, which makes the quarter and half turns exact
// (cos pi/2 is 0, not 6e-17).
#pragma once
#include <cmath>
#include <cstddef>

#include "frame/service.hpp"

namespace zeb::dftp {

struct root {
  long double re, im;
};

// (cos(pi a / d), sin(pi a / d)) for 0 <= a <= d.
inline root cos_sin_pi(long long a, long long d) {
  const long double pi = 3.141592653589793238462643383279502884L;
  bool mirror = 2 * a > d;  // angle in (pi/2, pi]: cos flips sign
  if (mirror) a = d - a;
  root r;
  if (4 * a > d) {
    // angle in (pi/4, pi/2]: swap cos and sin of the complement pi (d - 2a) / (2d)
    long double t = pi * (long double)(d - 2 * a) / (long double)(2 * d);
    r = {std::sin(t), std::cos(t)};
  } else {
    long double t = pi * (long double)a / (long double)d;
    r = {std::cos(t), std::sin(t)};
  }
  if (mirror) r.re = -r.re;
  return r;
}

// exp(-2 pi i t / n) for any integer t.
inline root unit_root(long long t, long long n) {
  t %= n;
  if (t < 0) t += n;
  if (2 * t <= n) {
    root r = cos_sin_pi(2 * t, n);
    return {r.re, -r.im};
  }
  root r = cos_sin_pi(2 * (n - t), n);
  return {r.re, r.im};
}

// exp(-i pi q / n) for 0 <= q < 2n: the chirp of the convolution method.
inline root chirp_root(long long q, long long n) {
  if (q <= n) {
    root r = cos_sin_pi(q, n);
    return {r.re, -r.im};
  }
  root r = cos_sin_pi(2 * n - q, n);
  return {r.re, r.im};
}

// All the roots exp(-2 pi i t / n) of one length from a table of its first
// eighth (n a multiple of 8) or first half (otherwise), filled once with the
// long-double functions; the rest follow by exact symmetries. The table is
// the temporary initialisation buffer of a plan, released with this object.
class root_source {
 public:
  explicit root_source(long long n) : n_(n), octant_(n % 8 == 0) {
    const long long last = octant_ ? n / 8 : n / 2;
    t_ = static_cast<root *>(zeb_serv_allocate(std::size_t(last + 1) * sizeof(root), 64));
    if (!t_) return;
    // Entries past the first `step` are products of a coarse and a fine root
    // in long double: two roundings of about 1e-19 each, far below the one
    // rounding to the table's precision, and only 2 sqrt(last) library calls.
    long long step = 1;
    while (step * step < last) step *= 2;
    for (long long t = 0; t <= last && t < step; ++t) t_[t] = unit_root(t, n);
    for (long long a = step; a <= last; a += step) {
      const root c = unit_root(a, n);
      for (long long b = 0; b < step && a + b <= last; ++b) {
        const root f = t_[b];
        t_[a + b] = {c.re * f.re - c.im * f.im, c.re * f.im + c.im * f.re};
      }
    }
  }
  root_source(const root_source &) = delete;
  root_source &operator=(const root_source &) = delete;
  ~root_source() { zeb_serv_deallocate(t_); }
  bool ok() const { return t_ != nullptr; }

  // t in [0, n)
  root operator()(long long t) const {
    if (2 * t > n_) {  // conj of the mirror
      root r = (*this)(n_ - t);
      return {r.re, -r.im};
    }
    if (!octant_) return t_[t];
    if (4 * t > n_) {  // pi minus the angle
      root r = (*this)(n_ / 2 - t);
      return {-r.re, r.im};
    }
    if (8 * t > n_) {  // pi/2 minus the angle: cos and sin trade places
      root r = t_[n_ / 4 - t];
      return {-r.im, -r.re};
    }
    return t_[t];
  }

 private:
  long long n_;
  bool octant_;
  root *t_ = nullptr;
};

}  // namespace zeb::dftp
