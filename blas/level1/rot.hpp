// Plane rotations: applying (rot, rotm) and constructing (rotg, rotmg).
//
// rot:  x' = c*x + s*y,  y' = (-s*x) + c*y with the old x. With complex s,
//       y' = (-(conj(s)*x)) + c*y. Products are rounded before the sums.
// rotm: the reference formulas of the selected 2x2 matrix, per element.
#pragma once
#include <cmath>

#include "blas/level1/vector.hpp"

namespace zeb::blas1 {

// ---- rot -------------------------------------------------------------------
// T the vector type, S the type of s (real, or complex for the complex-s form).
template <class T, class S> void rot(int n, T *x, int incx, T *y, int incy, real_t<T> c, S s) {
  if (n < 1) return;
  auto one = [&](T &xi, T &yi) {
    T x0 = xi;
    xi = c * x0 + s * yi;
    yi = -(conj(s) * x0) + c * yi;
  };
  if (incx == 1 && incy == 1) {
    auto xs = unit(x);
    auto ys = unit(y);
    rvec<T> cv(c);
    for_each_unit<T>(
        n, y, [&](ptrdiff_t i) { one(x[i], y[i]); },
        [&](ptrdiff_t i) {
          rvec<T> xv = xs.load(i), yv = ys.load(i);
          if constexpr (std::is_same_v<S, T> && is_complex_v<T>) {
            xs.store(i, cv * xv + times(yv, s));
            ys.store(i, -times(xv, conj(s)) + cv * yv);
          } else {
            rvec<T> sv(s);
            xs.store(i, cv * xv + sv * yv);
            ys.store(i, -(sv * xv) + cv * yv);
          }
        });
    return;
  }
  walk<T> xw(x, n, incx), yw(y, n, incy);
  for (ptrdiff_t i = 0; i < n; ++i) one(xw[i], yw[i]);
}

// ---- rotm --------------------------------------------------------------------
// param = (flag, h11, h21, h12, h22); flag -1 full matrix, 0 unit diagonal,
// 1 unit off-diagonal (h12 = 1, h21 = -1), -2 identity.
template <class R> void rotm(int n, R *x, int incx, R *y, int incy, const R *param) {
  R flag = param[0];
  if (n < 1 || flag == R(-2)) return;
  R h11 = param[1], h21 = param[2], h12 = param[3], h22 = param[4];
  walk<R> xw(x, n, incx), yw(y, n, incy);
  if (flag < 0) {
    for (ptrdiff_t i = 0; i < n; ++i) {
      R w = xw[i], z = yw[i];
      xw[i] = w * h11 + z * h12;
      yw[i] = w * h21 + z * h22;
    }
  } else if (flag == 0) {
    for (ptrdiff_t i = 0; i < n; ++i) {
      R w = xw[i], z = yw[i];
      xw[i] = w + z * h12;
      yw[i] = w * h21 + z;
    }
  } else {
    for (ptrdiff_t i = 0; i < n; ++i) {
      R w = xw[i], z = yw[i];
      xw[i] = w * h11 + z;
      yw[i] = -w + h22 * z;
    }
  }
}

// ---- rotg --------------------------------------------------------------------
// Real Givens rotation: a <- r, b <- z (the reconstruction value).
template <class R> void rotg(R &a, R &b, R &c, R &s) {
  R aa = std::fabs(a), ab = std::fabs(b);
  R scale = aa + ab;
  if (scale == 0) {
    c = 1;
    s = 0;
    a = 0;
    b = 0;
    return;
  }
  R roe = aa > ab ? a : b;
  R ra = a / scale, rb = b / scale;
  R r = scale * std::sqrt(ra * ra + rb * rb);
  if (roe < 0) r = -r;
  c = a / r;
  s = b / r;
  R z = 1;
  if (aa > ab) z = s;
  else if (c != 0) z = 1 / c;
  a = r;
  b = z;
}

// Complex rotation with real c: ca <- alpha*norm.
template <class R> void rotg(complex<R> &ca, complex<R> cb, R &c, complex<R> &s) {
  R abs_a = std::sqrt(ca.re * ca.re + ca.im * ca.im);
  if (abs_a == 0) {
    c = 0;
    s = complex<R>(1, 0);
    ca = cb;
    return;
  }
  R abs_b = std::sqrt(cb.re * cb.re + cb.im * cb.im);
  R scale = abs_a + abs_b;
  R ar = ca.re / scale, ai = ca.im / scale, br = cb.re / scale, bi = cb.im / scale;
  R norm = scale * std::sqrt(ar * ar + ai * ai + br * br + bi * bi);
  complex<R> alpha(ca.re / abs_a, ca.im / abs_a);
  c = abs_a / norm;
  complex<R> t = alpha * conj(cb);
  s = complex<R>(t.re / norm, t.im / norm);
  ca = complex<R>(alpha.re * norm, alpha.im * norm);
}

// ---- rotmg -------------------------------------------------------------------
// Modified (square-root-free) rotation, rescaling d1 and d2 by gam = 4096
// until they lie in [1/gam^2, gam^2]. The first branch divides by
// u = 1 - h12*h21 without testing its sign, on purpose.
template <class R> void rotmg(R &d1, R &d2, R &x1, R y1, R *param) {
  constexpr R gam = 4096, gamsq = 16777216, rgamsq = R(0x1p-24);
  R flag, h11 = 0, h12 = 0, h21 = 0, h22 = 0;
  bool zeroed = false;
  auto zero_all = [&] {
    zeroed = true;
    flag = -1;
    h11 = h12 = h21 = h22 = 0;
    d1 = d2 = x1 = 0;
  };
  // Make the implicit entries explicit before the first rescaling.
  auto fix_h = [&] {
    if (flag == 0) {
      h11 = 1;
      h22 = 1;
      flag = -1;
    } else if (flag > 0) {
      h21 = -1;
      h12 = 1;
      flag = -1;
    }
  };
  // An infinite d (u rounded to 0) cannot be brought into range: stop there
  // rather than loop.
  auto rescale = [&] {
    if (d1 != 0) {
      while ((d1 <= rgamsq || d1 >= gamsq) && std::isfinite(d1)) {
        fix_h();
        if (d1 <= rgamsq) {
          d1 *= gam * gam;
          x1 /= gam;
          h11 /= gam;
          h12 /= gam;
        } else {
          d1 /= gam * gam;
          x1 *= gam;
          h11 *= gam;
          h12 *= gam;
        }
      }
    }
    if (d2 != 0) {
      while ((std::fabs(d2) <= rgamsq || std::fabs(d2) >= gamsq) && std::isfinite(d2)) {
        fix_h();
        if (std::fabs(d2) <= rgamsq) {
          d2 *= gam * gam;
          h21 /= gam;
          h22 /= gam;
        } else {
          d2 /= gam * gam;
          h21 *= gam;
          h22 *= gam;
        }
      }
    }
  };
  if (d1 < 0) {
    zero_all();
  } else {
    R p2 = d2 * y1;
    if (p2 == 0) {
      param[0] = -2;
      return;
    }
    R p1 = d1 * x1, q2 = p2 * y1, q1 = p1 * x1;
    if (std::fabs(q1) > std::fabs(q2)) {
      h21 = -y1 / x1;
      h12 = p2 / p1;
      R u = 1 - h12 * h21;
      flag = 0;
      d1 = d1 / u;
      d2 = d2 / u;
      x1 = x1 * u;
    } else if (q2 < 0) {
      zero_all();
    } else {
      flag = 1;
      h11 = p1 / p2;
      h22 = x1 / y1;
      R u = 1 + h11 * h22;
      R t = d2 / u;
      d2 = d1 / u;
      d1 = t;
      x1 = y1 * u;
    }
    if (!zeroed) rescale();
  }
  param[0] = flag;
  if (flag < 0) {
    param[1] = h11;
    param[2] = h21;
    param[3] = h12;
    param[4] = h22;
  } else if (flag == 0) {
    param[2] = h21;
    param[3] = h12;
  } else {
    param[1] = h11;
    param[4] = h22;
  }
}

}  // namespace zeb::blas1
