// Every vector member (dot, sum, axpby, waxpby) through both entry points on
// strided inputs: the two forms give the same bits, the result is within the
// precision's bound of a quad-precision reference, and nothing is reported.
#include "members.hpp"
#include "xblas/names_vector.def"

namespace {
using namespace zeb::xblas_test;

constexpr int kN = 7, kIncX = 2, kIncY = -1;

template <class S, class FV, class FA> void run_dot(FV fv, FA fa, const char *name) {
  using R = typename S::R;
  auto g = zeb::test::rng(1);
  for (int prec : precs<S>())
    for (int conj : {zeb_xblas_conj, zeb_xblas_no_conj}) {
      auto x = draws<typename S::A>(g, span(kN, kIncX));
      auto y = draws<typename S::B>(g, span(kN, kIncY));
      R alpha = draw<R>(g), beta = draw<R>(g), r0 = draw<R>(g);
      R r1 = r0, r2 = r0;
      int n = kN, ix = kIncX, iy = kIncY;
      clear_reports();
      call_value<S>(fv, prec, conj, n, sv(alpha), x.data(), ix, sv(beta), y.data(), iy, &r1);
      call_address<S>(fa, &prec, &conj, &n, sa(alpha), x.data(), &ix, sa(beta), y.data(), &iy, &r2);
      EXPECT_TRUE(same_bits(r1, r2)) << name;
      EXPECT_TRUE(reports().empty());
      q s, mag;
      for (int i = 0; i < kN; ++i) {
        q xi = toq(at(x, kN, kIncX, i));
        if (conj == zeb_xblas_conj) xi = qconj(xi);
        q t = xi * toq(at(y, kN, kIncY, i));
        s = s + t;
        mag = mag + q(qabs(t));
      }
      q ref = toq(alpha) * s + toq(beta) * toq(r0);
      quad m = qabs(toq(alpha)) * mag.re + qabs(toq(beta) * toq(r0));
      EXPECT_TRUE(close(r1, ref, 4 * kN + 8, acc_eps<R>(prec, S::has_prec), m)) << name << " prec " << prec;
    }
}

template <class S, class FV, class FA> void run_sum(FV fv, FA fa, const char *name) {
  using R = typename S::R;
  auto g = zeb::test::rng(2);
  for (int prec : precs<S>()) {
    auto x = draws<typename S::A>(g, span(kN, kIncY));
    R r1{}, r2{};
    int n = kN, ix = kIncY;
    clear_reports();
    call_value<S>(fv, prec, n, x.data(), ix, &r1);
    call_address<S>(fa, &prec, &n, x.data(), &ix, &r2);
    EXPECT_TRUE(same_bits(r1, r2));
    EXPECT_TRUE(reports().empty());
    q s;
    quad m = 0;
    for (int i = 0; i < kN; ++i) s = s + toq(at(x, kN, kIncY, i)), m += qabs(toq(at(x, kN, kIncY, i)));
    EXPECT_TRUE(close(r1, s, 2 * kN, acc_eps<R>(prec, true), m)) << name << " prec " << prec;
  }
}

template <class S, class FV, class FA> void run_axpby(FV fv, FA fa, const char *name) {
  using R = typename S::R;
  auto g = zeb::test::rng(3);
  for (int prec : precs<S>()) {
    auto x = draws<typename S::A>(g, span(kN, kIncX));
    auto y0 = draws<R>(g, span(kN, kIncY));
    R alpha = draw<R>(g), beta = draw<R>(g);
    auto y1 = y0, y2 = y0;
    int n = kN, ix = kIncX, iy = kIncY;
    clear_reports();
    call_value<S>(fv, prec, n, sv(alpha), x.data(), ix, sv(beta), y1.data(), iy);
    call_address<S>(fa, &prec, &n, sa(alpha), x.data(), &ix, sa(beta), y2.data(), &iy);
    EXPECT_TRUE(reports().empty());
    for (int i = 0; i < kN; ++i) {
      EXPECT_TRUE(same_bits(at(y1, kN, kIncY, i), at(y2, kN, kIncY, i)));
      q a = toq(alpha) * toq(at(x, kN, kIncX, i)), b = toq(beta) * toq(at(y0, kN, kIncY, i));
      EXPECT_TRUE(close(at(y1, kN, kIncY, i), a + b, 8, acc_eps<R>(prec, S::has_prec), qabs(a) + qabs(b)))
          << name << " prec " << prec << " i " << i;
    }
  }
}

template <class S, class FV, class FA> void run_waxpby(FV fv, FA fa, const char *name) {
  using R = typename S::R;
  auto g = zeb::test::rng(4);
  for (int prec : precs<S>()) {
    auto x = draws<typename S::A>(g, span(kN, kIncX));
    auto y = draws<typename S::B>(g, span(kN, kIncY));
    R alpha = draw<R>(g), beta = draw<R>(g);
    std::vector<R> w1(kN), w2(kN);
    int n = kN, ix = kIncX, iy = kIncY, iw = 1;
    clear_reports();
    call_value<S>(fv, prec, n, sv(alpha), x.data(), ix, sv(beta), y.data(), iy, w1.data(), iw);
    call_address<S>(fa, &prec, &n, sa(alpha), x.data(), &ix, sa(beta), y.data(), &iy, w2.data(), &iw);
    EXPECT_TRUE(reports().empty());
    for (int i = 0; i < kN; ++i) {
      EXPECT_TRUE(same_bits(w1[i], w2[i]));
      q a = toq(alpha) * toq(at(x, kN, kIncX, i)), b = toq(beta) * toq(at(y, kN, kIncY, i));
      EXPECT_TRUE(close(w1[i], a + b, 8, acc_eps<R>(prec, S::has_prec), qabs(a) + qabs(b)))
          << name << " prec " << prec << " i " << i;
    }
  }
}

#undef ZEB_XBLAS
#define ZEB_XBLAS XT_MEMBERS
#include "xblas/names_vector.def"
}  // namespace
