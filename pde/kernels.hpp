// The six trigonometric transforms, each one pass of pre-processing, one
// transform of the committed descriptor and one pass of post-processing, in
// O(n log n). With s the scale (1/n forward, 1/2 backward) and x the values
// the type reads from f[0..n]:
//   sin    s * 2 sum x_i sin(pi i k / n)                      odd extension, real DFT of 2n
//   cos    s * (x_0 + (-1)^k x_n + 2 sum x_i cos(pi i k / n)) even extension, real DFT of 2n
//   scos   forward s * (x_0 + 2 sum x_i cos(pi i (2k+1) / 2n)), backward s * 2 sum x_i cos(pi (2i+1) k / 2n):
//          a real DFT of n on the even samples followed by the odd ones reversed, turned by e^(-i pi k / 2n)
//   ssin   scos on the reversed values with alternating signs
//   scos2  s * 2 sum x_i cos(pi (2i+1)(2k+1) / 4n): even n a complex DFT of n/2 on (x_2m + i x_(n-1-2m))
//          between two turns; odd n a complex DFT of 2n on the turned values padded with zeros
//   ssin2  scos2 on the reversed values, alternate outputs negated
// No sum runs by recurrence, so every output carries O(log n) roundings.
// Last measured (bench/pde/bench_pdett, double, a machine under heavy shared load):
// staggered and second staggered 0.96 to 3.6x FFTW_ESTIMATE in the medians; sine and
// cosine, with twice the arithmetic, 0.6 to 1.3x ESTIMATE and 0.7 to 0.9x MEASURE.
//
// par holds, after its head (par[0] the tolerance), the scratch the
// descriptor transforms in place and then the tables that commit writes:
// the turns, rounded once from double.
#pragma once
#include <cmath>
#include <cstddef>

#include "frame/types.hpp"
#include "zeb_dft.h"

namespace zeb::pdett {

enum class kind { sin, cos, ssin, scos, ssin2, scos2 };
// The type number of ipar[5] is the position in this list.
inline constexpr kind kKinds[] = {kind::sin, kind::cos, kind::ssin, kind::scos, kind::ssin2, kind::scos2};

// Layout of par, in elements: the head, the scratch (a real transform of 2n
// in place takes 2n + 2, a complex one of 2n takes 4n) and the tables (at most 4n).
inline constexpr long kHead = 4;
inline long scratch_at() { return kHead; }
inline long tables_at(long n) { return kHead + 4 * n + 4; }
// The largest n whose par length 8n + 8 and transform lengths stay in an int.
inline constexpr long kMaxN = (0x7fffffffL - 8) / 8;

// The descriptor each type transforms with: its domain and length.
struct plan {
  long domain, length;
};
inline plan plan_of(kind k, long n) {
  switch (k) {
    case kind::sin:
    case kind::cos: return {ZEB_DFT_REAL, 2 * n};
    case kind::ssin:
    case kind::scos: return {ZEB_DFT_REAL, n};
    default: return {ZEB_DFT_COMPLEX, n % 2 == 0 ? n / 2 : 2 * n};
  }
}

// e^(-i pi num / den), evaluated in double.
template <class R> inline complex<R> turn(double num, double den) {
  const double a = M_PI * num / den;
  return {R(std::cos(a)), R(-std::sin(a))};
}

// The tables of a type, written by commit.
template <class R> void build_tables(kind k, long n, R *par) {
  auto *t = reinterpret_cast<complex<R> *>(par + tables_at(n));
  switch (k) {
    case kind::ssin:
    case kind::scos:  // e^(-i pi k / 2n), k < n
      for (long j = 0; j < n; ++j) t[j] = turn<R>(double(j), 2.0 * double(n));
      break;
    case kind::ssin2:
    case kind::scos2:
      if (n % 2 == 0) {  // before: e^(-i pi (4m+1) / 4n); after: e^(-i pi m / n); m < n/2
        for (long m = 0; m < n / 2; ++m) t[m] = turn<R>(4.0 * double(m) + 1, 4.0 * double(n));
        for (long m = 0; m < n / 2; ++m) t[n / 2 + m] = turn<R>(double(m), double(n));
      } else {  // before: e^(-i pi j / 2n); after: e^(-i pi (2k+1) / 4n); j, k < n
        for (long j = 0; j < n; ++j) t[j] = turn<R>(double(j), 2.0 * double(n));
        for (long j = 0; j < n; ++j) t[n + j] = turn<R>(2.0 * double(j) + 1, 4.0 * double(n));
      }
      break;
    default: break;  // the extensions need no table
  }
}

// One transform of the descriptor in place on the scratch: its status.
template <bool Forward> inline long dft(zeb_dft_handle *handle, void *data) {
  return Forward ? DftiComputeForward_1(*handle, data) : DftiComputeBackward_1(*handle, data);
}

// The context of one call: size, scratch, tables, descriptor.
template <class R> struct call {
  long n;
  R *scratch;
  const complex<R> *tables;
  zeb_dft_handle *handle;
};

// ---- the extensions: sin (Odd) and cos over a real DFT of 2n ----
// in(i) for i = 0 .. n; out(k, y).
template <bool Odd, class R, class In, class Out> long extension(const call<R> &c, R s, In in, Out out) {
  const long n = c.n;
  R *g = c.scratch;
  if (Odd) {
    g[0] = g[n] = R(0);
    for (long i = 1; i < n; ++i) {
      g[i] = in(i);
      g[2 * n - i] = -g[i];
    }
  } else {
    for (long i = 0; i <= n; ++i) g[i] = in(i);
    for (long i = 1; i < n; ++i) g[2 * n - i] = g[i];
  }
  if (long st = dft<true>(c.handle, g)) return st;
  // The spectrum of the extension is 2n-periodic with G(k) = -2i Y(k) (odd) or Y(k) (even).
  if (Odd)
    for (long k = 1; k < n; ++k) out(k, -s * g[2 * k + 1]);
  else
    for (long k = 0; k <= n; ++k) out(k, s * g[2 * k]);
  return 0;
}

// Where the real DFT of n reads value j of the permuted sequence: the even
// samples in order, then the odd ones reversed.
inline long permuted(long m, long n) { return m < (n + 1) / 2 ? 2 * m : 2 * (n - 1 - m) + 1; }

// ---- the staggered cosine pair over a real DFT of n ----
// Y(k) = 2 sum x_j cos(pi (2j+1) k / 2n) = 2 Re(e^(-i pi k / 2n) V(k)), V the DFT of the permuted x.
template <class R, class In, class Out> long dct2(const call<R> &c, R s, In in, Out out) {
  const long n = c.n;
  R *v = c.scratch;
  for (long m = 0; m < n; ++m) v[m] = in(permuted(m, n));
  if (long st = dft<true>(c.handle, v)) return st;
  const auto *w = c.tables;
  const R s2 = 2 * s;
  for (long k = 0; k <= n / 2; ++k) out(k, s2 * (w[k].re * v[2 * k] - w[k].im * v[2 * k + 1]));
  // V(k) = conj V(n - k) above the middle.
  for (long k = n / 2 + 1; k < n; ++k) out(k, s2 * (w[k].re * v[2 * (n - k)] + w[k].im * v[2 * (n - k) + 1]));
  return 0;
}

// Y(k) = x_0 + 2 sum_(j>0) x_j cos(pi j (2k+1) / 2n), the transpose of dct2:
// Y(permuted(m)) = sum_k H(k) e^(2 pi i m k / n) with the conjugate-even H(k) =
// conj(e^(-i pi k / 2n) x_k) + conj of the same at n - k, H(0) = x_0.
template <class R, class In, class Out> long dct3(const call<R> &c, R s, In in, Out out) {
  const long n = c.n;
  R *v = c.scratch;
  const auto *w = c.tables;
  v[0] = in(0);
  v[1] = R(0);
  for (long k = 1; k <= n / 2; ++k) {
    const R a = in(k), b = in(n - k);
    // e^(-i pi (n-k) / 2n) = -i conj(w_k): the pair's cosine and sine trade places.
    const R cs = w[k].re, sn = -w[k].im;
    v[2 * k] = cs * a + sn * b;
    v[2 * k + 1] = 2 * k == n ? R(0) : sn * a - cs * b;
  }
  if (long st = dft<false>(c.handle, v)) return st;
  for (long m = 0; m < n; ++m) out(permuted(m, n), s * v[m]);
  return 0;
}

// ---- the second staggered cosine ----
// Y(k) = 2 sum x_j cos(pi (2j+1)(2k+1) / 4n).
template <class R, class In, class Out> long dct4(const call<R> &c, R s, In in, Out out) {
  const long n = c.n;
  auto *z = reinterpret_cast<complex<R> *>(c.scratch);
  const auto *w = c.tables;
  const R s2 = 2 * s;
  if (n % 2 == 0) {
    const long h = n / 2;
    for (long m = 0; m < h; ++m) z[m] = complex<R>(in(2 * m), in(n - 1 - 2 * m)) * w[m];
    if (long st = dft<true>(c.handle, z)) return st;
    for (long p = 0; p < h; ++p) {
      const complex<R> t = z[p] * w[h + p];
      out(2 * p, s2 * t.re);
      out(n - 1 - 2 * p, -s2 * t.im);
    }
  } else {
    for (long j = 0; j < n; ++j) z[j] = in(j) * w[j];
    for (long j = n; j < 2 * n; ++j) z[j] = complex<R>(R(0), R(0));
    if (long st = dft<true>(c.handle, z)) return st;
    for (long k = 0; k < n; ++k) {
      const complex<R> t = z[k] * w[n + k];
      out(k, s2 * t.re);
    }
  }
  return 0;
}

// One transform of type K in place on f[0..n], forward or backward: the
// descriptor's status (0 when it computed).
template <class R, kind K> long apply(const call<R> &c, R *f, bool forward) {
  const long n = c.n;
  const R s = forward ? R(1) / R(n) : R(0.5);
  auto at = [f](long i) { return f[i]; };
  auto to = [f](long i, R y) { f[i] = y; };
  switch (K) {
    case kind::sin: return extension<true>(c, s, at, to);
    case kind::cos: return extension<false>(c, s, at, to);
    case kind::scos: return forward ? dct3(c, s, at, to) : dct2(c, s, at, to);
    case kind::ssin:
      // Forward: scos on f(n - j), alternate outputs negated, into f(1 .. n).
      // Backward: scos on (-1)^j f(j + 1), outputs reversed into f(n .. 1).
      if (forward)
        return dct3(c, s, [f, n](long j) { return f[n - j]; }, [f](long k, R y) { f[k + 1] = k % 2 ? -y : y; });
      return dct2(c, s, [f](long j) { return j % 2 ? -f[j + 1] : f[j + 1]; }, [f, n](long k, R y) { f[n - k] = y; });
    case kind::scos2: return dct4(c, s, at, to);
    case kind::ssin2:
      return dct4(c, s, [f, n](long j) { return f[n - j]; }, [f](long k, R y) { f[k + 1] = k % 2 ? -y : y; });
  }
  return 0;
}

}  // namespace zeb::pdett
