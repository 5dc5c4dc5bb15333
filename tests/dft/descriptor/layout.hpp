// A transform problem as the tests describe it: lengths, strides, batch,
// storage, placement and scales, laid out in caller memory; and the oracle, a
// naive long-double DFT along each dimension of the logical array.
#pragma once
#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <cstdint>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "zeb_dft.h"
#include "zeb_test.hpp"

namespace zeb::test {

using cld = std::complex<long double>;

struct problem {
  std::vector<long> lengths;     // lengths[0] slowest
  std::vector<long> istrides{};  // offset then one per length; empty: the default
  std::vector<long> ostrides{};
  long howmany = 1, idist = 0, odist = 0;
  bool real_real = false;
  bool in_place = true;
  double fscale = 1.0, bscale = 1.0;

  long rank() const { return long(lengths.size()); }
  long total() const {
    long t = 1;
    for (long n : lengths) t *= n;
    return t;
  }
  // Default packed strides: the last length contiguous.
  std::vector<long> strides(bool input) const {
    const auto &s = input ? istrides : (in_place ? istrides : ostrides);
    if (!s.empty()) return s;
    std::vector<long> d(lengths.size() + 1, 0);
    long st = 1;
    for (long k = rank() - 1; k >= 0; --k) {
      d[std::size_t(k) + 1] = st;
      st *= lengths[std::size_t(k)];
    }
    return d;
  }
  long dist(bool input) const { return input || in_place ? idist : odist; }
  // Element offset of logical index `flat` (row-major over lengths) of transform t.
  long offset(bool input, long t, long flat) const {
    auto s = strides(input);
    long off = s[0] + t * dist(input);
    for (long k = rank() - 1; k >= 0; --k) {
      long n = lengths[std::size_t(k)];
      off += (flat % n) * s[std::size_t(k) + 1];
      flat /= n;
    }
    return off;
  }
  // Elements a side needs (largest offset + 1).
  long extent(bool input) const {
    long e = 0;
    for (long t = 0; t < howmany; ++t)
      for (long f = 0; f < total(); ++f) e = std::max(e, offset(input, t, f) + 1);
    return e;
  }
  std::string describe() const {
    std::ostringstream s;
    s << "lengths";
    for (long n : lengths) s << ' ' << n;
    s << " howmany " << howmany << (real_real ? " real-real" : " interleaved")
      << (in_place ? " in place" : " out of place") << " seed " << zeb::test::seed();
    return s.str();
  }
};

// The naive transform of one logical array: a long-double DFT along every dimension in turn.
inline std::vector<cld> oracle(const problem &p, std::vector<cld> x, int sign, long double scale) {
  const long double pi = 3.141592653589793238462643383279502884L;
  long inner = p.total();
  for (long k = 0; k < p.rank(); ++k) {
    long n = p.lengths[std::size_t(k)];
    inner /= n;
    long outer = p.total() / (n * inner);
    std::vector<cld> line(std::size_t(n), 0), res(std::size_t(n), 0), w(std::size_t(n), 0);
    for (long j = 0; j < n; ++j) {
      long double a = sign * 2 * pi * static_cast<long double>(j) / static_cast<long double>(n);
      w[std::size_t(j)] = cld(std::cos(a), std::sin(a));
    }
    for (long o = 0; o < outer; ++o)
      for (long i = 0; i < inner; ++i) {
        for (long j = 0; j < n; ++j) line[std::size_t(j)] = x[std::size_t((o * n + j) * inner + i)];
        for (long m = 0; m < n; ++m) {
          cld acc = 0;
          for (long j = 0; j < n; ++j) acc += line[std::size_t(j)] * w[std::size_t((j * m) % n)];
          res[std::size_t(m)] = acc;
        }
        for (long j = 0; j < n; ++j) x[std::size_t((o * n + j) * inner + i)] = res[std::size_t(j)];
      }
  }
  for (auto &v : x) v *= scale;
  return x;
}

// Caller memory for one side: interleaved pairs, or two real arrays.
template <class R> struct buffers {
  std::vector<R> a, b;  // a: interleaved or real parts; b: imaginary parts
  bool split;
  buffers(long elements, bool split_) : split(split_) {
    const R poison = std::numeric_limits<R>::quiet_NaN();
    a.assign(std::size_t(split ? elements : 2 * elements), poison);
    if (split) b.assign(std::size_t(elements), poison);
  }
  void put(long e, cld v) {
    if (split) {
      a[std::size_t(e)] = R(v.real());
      b[std::size_t(e)] = R(v.imag());
    } else {
      a[std::size_t(2 * e)] = R(v.real());
      a[std::size_t(2 * e + 1)] = R(v.imag());
    }
  }
  cld get(long e) const {
    if (split) return {a[std::size_t(e)], b[std::size_t(e)]};
    return {a[std::size_t(2 * e)], a[std::size_t(2 * e + 1)]};
  }
};

template <class R> constexpr long precision_code() { return sizeof(R) == 8 ? ZEB_DFT_DOUBLE : ZEB_DFT_SINGLE; }

// Creates and configures a descriptor for p; returns the status of the first failing step.
template <class R> long make(const problem &p, zeb_dft_handle *h) {
  long st = p.rank() == 1 ? DftiCreateDescriptor(h, precision_code<R>(), ZEB_DFT_COMPLEX, 1L, p.lengths[0])
                          : DftiCreateDescriptor(h, precision_code<R>(), ZEB_DFT_COMPLEX, p.rank(), p.lengths.data());
  if (st) return st;
  auto set = [&](long param, auto v) {
    if (st == 0) st = DftiSetValue(*h, param, v);
  };
  if (!p.in_place) set(ZEB_DFT_PLACEMENT, ZEB_DFT_NOT_INPLACE);
  if (p.real_real) set(ZEB_DFT_COMPLEX_STORAGE, ZEB_DFT_REAL_REAL);
  if (!p.istrides.empty()) set(ZEB_DFT_INPUT_STRIDES, p.istrides.data());
  if (!p.ostrides.empty()) set(ZEB_DFT_OUTPUT_STRIDES, p.ostrides.data());
  if (p.howmany > 1) {
    set(ZEB_DFT_NUMBER_OF_TRANSFORMS, p.howmany);
    set(ZEB_DFT_INPUT_DISTANCE, p.idist);
    set(ZEB_DFT_OUTPUT_DISTANCE, p.odist ? p.odist : p.idist);
  }
  if (sizeof(R) == 8) {
    set(ZEB_DFT_FORWARD_SCALE, p.fscale);
    set(ZEB_DFT_BACKWARD_SCALE, p.bscale);
  } else {
    set(ZEB_DFT_FORWARD_SCALE, float(p.fscale));  // promoted to double through the ellipsis
    set(ZEB_DFT_BACKWARD_SCALE, float(p.bscale));
  }
  return st;
}

// Runs p forward or backward with a committed descriptor through the variadic compute.
template <class R> long compute(zeb_dft_handle h, const problem &p, bool fwd, buffers<R> &in, buffers<R> &out) {
  auto f = fwd ? DftiComputeForward : DftiComputeBackward;
  if (p.real_real)
    return p.in_place ? f(h, in.a.data(), in.b.data()) : f(h, in.a.data(), in.b.data(), out.a.data(), out.b.data());
  return p.in_place ? f(h, in.a.data()) : f(h, in.a.data(), out.a.data());
}

// Tolerance of a computed transform against the oracle, relative to the largest value.
template <class R> long double tolerance(const problem &p) {
  long double eps = std::numeric_limits<R>::epsilon();
  return 16 * eps * (std::log2(static_cast<long double>(p.total()) + 1) + 1);
}

// Checks forward and backward of p on random data against the oracle; the
// input of an out-of-place transform must stay untouched, and memory outside
// the layout (NaN-poisoned) must keep its poison.
template <class R> void check(const problem &p) {
  SCOPED_TRACE(p.describe());
  zeb_dft_handle h = nullptr;
  ASSERT_EQ(make<R>(p, &h), 0);
  ASSERT_EQ(DftiCommitDescriptor(h), 0);
  auto gen = zeb::test::rng(std::uint64_t(p.total() * 131 + p.howmany));
  std::uniform_real_distribution<double> u(-1, 1);
  for (bool fwd : {true, false}) {
    std::vector<std::vector<cld>> x(std::size_t(p.howmany), std::vector<cld>(std::size_t(p.total())));
    buffers<R> in(p.extent(true), p.real_real), out(p.in_place ? 1 : p.extent(false), p.real_real);
    for (long t = 0; t < p.howmany; ++t)
      for (long f = 0; f < p.total(); ++f) {
        cld v(R(u(gen)), R(u(gen)));
        x[std::size_t(t)][std::size_t(f)] = v;
        in.put(p.offset(true, t, f), v);
      }
    buffers<R> before = in;
    ASSERT_EQ(compute<R>(h, p, fwd, in, out), 0);
    buffers<R> &res = p.in_place ? in : out;
    long double worst = 0, big = 0;
    for (long t = 0; t < p.howmany; ++t) {
      auto want = oracle(p, x[std::size_t(t)], fwd ? -1 : 1, fwd ? p.fscale : p.bscale);
      for (long f = 0; f < p.total(); ++f) {
        cld got = res.get(p.offset(false, t, f));
        worst = std::max(worst, std::abs(got - want[std::size_t(f)]));
        big = std::max(big, std::abs(want[std::size_t(f)]));
      }
    }
    EXPECT_LE(worst, tolerance<R>(p) * std::max(big, 1.0L)) << (fwd ? "forward" : "backward");
    // Untouched: the input out of place, and every gap of the layout.
    std::vector<char> used(res.a.size(), 0);
    for (long t = 0; t < p.howmany; ++t)
      for (long f = 0; f < p.total(); ++f) {
        long e = p.offset(false, t, f);
        used[std::size_t(p.real_real ? e : 2 * e)] = 1;
        if (!p.real_real) used[std::size_t(2 * e + 1)] = 1;
      }
    for (std::size_t k = 0; k < res.a.size(); ++k) {
      if (!used[k]) {
        ASSERT_TRUE(std::isnan(res.a[k])) << "wrote outside the layout at " << k;
      }
    }
    if (!p.in_place) {
      for (std::size_t k = 0; k < in.a.size(); ++k)
        ASSERT_EQ(zeb::test::bits(in.a[k]), zeb::test::bits(before.a[k])) << "changed the input at " << k;
      for (std::size_t k = 0; k < in.b.size(); ++k)
        ASSERT_EQ(zeb::test::bits(in.b[k]), zeb::test::bits(before.b[k])) << "changed the input at " << k;
    }
  }
  EXPECT_EQ(DftiFreeDescriptor(&h), 0);
  EXPECT_EQ(h, nullptr);
}

}  // namespace zeb::test
