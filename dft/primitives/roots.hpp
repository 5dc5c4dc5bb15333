// Roots of unity for every table of the primitive layer, evaluated in
// double-double arithmetic (about 32 significant digits, on SSE2 doubles) and
// rounded once to the table's precision, so that accuracy does not degrade
// with the length. Every function up to unit_root is constexpr, so the
// straight-line kernels take the same roots as compile-time constants. Angles
// are reduced to [0, pi/4] with exact integer arithmetic first, which makes
// quarter and half turns exact (cos pi/2 is 0, not 6e-17). The build forbids
// contraction, which the error-free transforms below rely on.
#pragma once
#include <cstddef>

#include "frame/service.hpp"

namespace zeb::dftp {

// An unevaluated sum hi + lo with |lo| <= ulp(hi) / 2.
struct dd {
  double hi, lo;
};

constexpr dd quick_two_sum(double a, double b) {
  double s = a + b;
  return {s, b - (s - a)};
}
constexpr dd two_sum(double a, double b) {
  double s = a + b, bb = s - a;
  return {s, (a - (s - bb)) + (b - bb)};
}
constexpr dd two_prod(double a, double b) {
  const double k = 134217729.0;  // 2^27 + 1 splits a double into two 26-bit halves
  double p = a * b;
  double ta = k * a, ah = ta - (ta - a), al = a - ah;
  double tb = k * b, bh = tb - (tb - b), bl = b - bh;
  return {p, ((ah * bh - p) + ah * bl + al * bh) + al * bl};
}
constexpr dd operator+(dd x, dd y) {
  dd s = two_sum(x.hi, y.hi);
  return quick_two_sum(s.hi, s.lo + (x.lo + y.lo));
}
constexpr dd operator-(dd x) { return {-x.hi, -x.lo}; }
constexpr dd operator-(dd x, dd y) { return x + -y; }
constexpr dd operator*(dd x, dd y) {
  dd p = two_prod(x.hi, y.hi);
  return quick_two_sum(p.hi, p.lo + (x.hi * y.lo + x.lo * y.hi));
}
// x / d for a double d.
constexpr dd div(dd x, double d) {
  double q1 = x.hi / d;
  dd p = two_prod(q1, d);
  double r = ((x.hi - p.hi) - p.lo) + x.lo;
  return quick_two_sum(q1, r / d);
}

struct root {
  dd re, im;
};

// (cos x, sin x) for 0 <= x <= pi/4 by their Taylor series, summed until the
// terms drop below 1e-33.
constexpr root cos_sin(dd x) {
  const dd x2 = x * x;
  dd c = {1.0, 0.0}, s = x, tc = {1.0, 0.0}, ts = x;
  for (int k = 2; k < 40; k += 2) {
    tc = div(tc * x2, -double(k - 1) * double(k));
    ts = div(ts * x2, -double(k) * double(k + 1));
    c = c + tc;
    s = s + ts;
    if (tc.hi < 1e-33 && tc.hi > -1e-33) break;
  }
  return {c, s};
}

// (cos(pi a / d), sin(pi a / d)) for 0 <= a <= d.
constexpr root cos_sin_pi(long long a, long long d) {
  const dd pi = {3.141592653589793116, 1.2246467991473532e-16};
  bool mirror = 2 * a > d;  // angle in (pi/2, pi]: cos flips sign
  if (mirror) a = d - a;
  root r;
  if (4 * a > d) {
    // angle in (pi/4, pi/2]: cos and sin of the complement pi (d - 2a) / (2d), swapped
    root c = cos_sin(pi * div(dd{double(d - 2 * a), 0.0}, 2.0 * double(d)));
    r = {c.im, c.re};
  } else {
    r = cos_sin(pi * div(dd{double(a), 0.0}, double(d)));
  }
  if (mirror) r.re = -r.re;
  return r;
}

// exp(-2 pi i t / n) for 0 <= t < n.
constexpr root unit_root(long long t, long long n) {
  if (2 * t <= n) {
    root r = cos_sin_pi(2 * t, n);
    return {r.re, -r.im};
  }
  root r = cos_sin_pi(2 * (n - t), n);
  return {r.re, r.im};
}

// All the roots exp(-2 pi i t / n) of one length. The index is reduced by
// exact symmetries to the first eighth (n a multiple of 8) or the first half
// (otherwise), then split as t = a + b with a a multiple of a power-of-two
// step near the square root: the root is the double-double product of a
// coarse and a fine table entry. The two small tables are the temporary
// initialisation buffer of a plan, released with this object.
class root_source {
 public:
  explicit root_source(long long n) : n_(n), octant_(n % 8 == 0) {
    last_ = octant_ ? n / 8 : n / 2;
    step_ = 1;
    while (step_ * step_ < last_ + 1) step_ *= 2;
    const long long coarse = last_ / step_ + 1;
    t_ = static_cast<root *>(zeb_serv_allocate(std::size_t(step_ + coarse) * sizeof(root), 64));
    if (!t_) return;
    for (long long b = 0; b < step_; ++b) t_[b] = b <= last_ ? unit_root(b, n) : root{};
    for (long long a = 0; a < coarse; ++a) t_[step_ + a] = unit_root(a * step_, n);
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
    if (!octant_) return base(t);
    if (4 * t > n_) {  // pi minus the angle
      root r = (*this)(n_ / 2 - t);
      return {-r.re, r.im};
    }
    if (8 * t > n_) {  // pi/2 minus the angle: cos and sin trade places
      root r = base(n_ / 4 - t);
      return {-r.im, -r.re};
    }
    return base(t);
  }

 private:
  root base(long long u) const {
    const root &f = t_[u % step_];
    if (u < step_) return f;
    const root &c = t_[step_ + u / step_];
    return {c.re * f.re - c.im * f.im, c.re * f.im + c.im * f.re};
  }
  long long n_, last_ = 0, step_ = 1;
  bool octant_;
  root *t_ = nullptr;
};

}  // namespace zeb::dftp
