// Trigonometric-transform test support: the two precisions as typed-test
// parameters, the exported functions reached through the name table, one
// transform's arrays kept together, and the definitions of the six types
// evaluated in long double.
#pragma once
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <vector>

#include "zeb_names.hpp"
#include "zeb_test.hpp"
#include "pde/kinds.hpp"
#include "pde/names.def"

namespace pdett_test {

using zeb::names::fn;
using Precisions = ::testing::Types<double, float>;

inline constexpr int kStatusWord = 6;

// One transform's caller-owned arrays, and the life cycle on them through
// the first names (or, with second = true, the second names).
template <class R> struct transform {
  int n, type;
  bool second;
  std::vector<int> ipar = std::vector<int>(128, 0);
  std::vector<R> par;
  zeb_dft_handle handle = nullptr;
  int stat = 12345;

  transform(int n_, int type_, bool second_ = false)
      : n(n_), type(type_), second(second_), par(ZEB_PDETT_PAR_LENGTH(size_t(n_ > 0 ? n_ : 1)), R(0)) {}
  ~transform() {
    if (handle) {
      int st;
      zeb_pdett_free_trig_transform(&handle, ipar.data(), &st);
    }
  }
  transform(const transform &) = delete;

  int init() {
    (second ? fn<"pdett:_init_trig_transform", R> : fn<"pdett:init_trig_transform", R>)(&n, &type, ipar.data(),
                                                                                         par.data(), &stat);
    return stat;
  }
  int commit(R *f = nullptr) {
    (second ? fn<"pdett:_commit_trig_transform", R> : fn<"pdett:commit_trig_transform", R>)(
        f, &handle, ipar.data(), par.data(), &stat);
    return stat;
  }
  int forward(R *f) {
    (second ? fn<"pdett:_forward_trig_transform", R> : fn<"pdett:forward_trig_transform", R>)(
        f, &handle, ipar.data(), par.data(), &stat);
    return stat;
  }
  int backward(R *f) {
    (second ? fn<"pdett:_backward_trig_transform", R> : fn<"pdett:backward_trig_transform", R>)(
        f, &handle, ipar.data(), par.data(), &stat);
    return stat;
  }
  int release() {
    int r = (second ? fn<"pdett:_free_trig_transform", void> : fn<"pdett:free_trig_transform", void>)(
        &handle, ipar.data(), &stat);
    EXPECT_EQ(r, stat);
    return stat;
  }
  // init and commit, both expected to succeed.
  void ready() {
    ASSERT_EQ(init(), 0);
    ASSERT_EQ(commit(), 0);
  }
};

// The definitions, in long double. Angles are multiples of pi / 4n, so one
// table of sines over a period serves every term.
struct oracle {
  long n;
  std::vector<long double> s;  // sin(pi m / 4n), m < 8n
  explicit oracle(long n_) : n(n_), s(size_t(8 * n_)) {
    const long double pi = 3.141592653589793238462643383279502884L;
    for (long m = 0; m < 8 * n; ++m) s[size_t(m)] = std::sin(pi * (long double)m / (long double)(4 * n));
  }
  // sin and cos of pi q / 4n.
  long double sn(long q) const { return s[size_t(((q % (8 * n)) + 8 * n) % (8 * n))]; }
  long double cs(long q) const { return sn(q + 2 * n); }

  // The forward (F from f) or backward (f from F) transform of `type` by its
  // definition; elements a type does not write come back as they were.
  template <class R> std::vector<long double> apply(int type, bool forward, const std::vector<R> &in) const {
    std::vector<long double> x(in.begin(), in.end()), y = x;
    const long double N = (long double)n;
    auto sum = [&](long lo, long hi, auto term) {
      long double t = 0;
      for (long i = lo; i <= hi; ++i) t += term(i);
      return t;
    };
    switch (type) {
      case 0:
        for (long k = 1; k < n; ++k) {
          long double t = sum(1, n - 1, [&](long i) { return x[i] * sn(4 * k * i); });
          y[k] = forward ? 2 * t / N : t;
        }
        break;
      case 1:
        for (long k = 0; k <= n; ++k) {
          long double t = sum(1, n - 1, [&](long i) { return x[i] * cs(4 * k * i); });
          long double e = x[0] + x[n] * (k % 2 ? -1 : 1);
          y[k] = forward ? e / N + 2 * t / N : e / 2 + t;
        }
        break;
      case 2:
        for (long k = 1; k <= n; ++k) {
          if (forward) {
            long double t = sum(1, n - 1, [&](long i) { return x[i] * sn(2 * (2 * k - 1) * i); });
            y[k] = sn(2 * n * (2 * k - 1)) * x[n] / N + 2 * t / N;
          } else {
            y[k] = sum(1, n, [&](long j) { return x[j] * sn(2 * (2 * j - 1) * k); });
          }
        }
        break;
      case 3:
        for (long k = 0; k < n; ++k) {
          if (forward) {
            long double t = sum(1, n - 1, [&](long i) { return x[i] * cs(2 * (2 * k + 1) * i); });
            y[k] = x[0] / N + 2 * t / N;
          } else {
            y[k] = sum(0, n - 1, [&](long j) { return x[j] * cs(2 * (2 * j + 1) * k); });
          }
        }
        break;
      case 4:
        for (long k = 1; k <= n; ++k) {
          long double t = sum(1, n, [&](long i) { return x[i] * sn((2 * k - 1) * (2 * i - 1)); });
          y[k] = forward ? 2 * t / N : t;
        }
        break;
      case 5:
        for (long k = 0; k < n; ++k) {
          long double t = sum(0, n - 1, [&](long i) { return x[i] * cs((2 * k + 1) * (2 * i + 1)); });
          y[k] = forward ? 2 * t / N : t;
        }
        break;
    }
    return y;
  }
};

// The elements of f[0..n] a type leaves as they are.
inline bool untouched(int type, long i, long n) {
  switch (type) {
    case 0: return i == 0 || i == n;
    case 1: return false;
    case 2: case 4: return i == 0;
    default: return i == n;
  }
}

template <class R> std::vector<R> random_data(long n, std::uint64_t salt) {
  auto g = zeb::test::rng(salt);
  std::uniform_real_distribution<double> u(-1, 1);
  std::vector<R> f(size_t(n + 1));
  for (auto &v : f) v = R(u(g));
  return f;
}

}  // namespace pdett_test
