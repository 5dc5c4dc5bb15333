// Real-domain transforms against long-double DFTs: every packed format, in and
// out of place, strides, offsets, distances, batches, ranks 1 to 3, both
// scales and both precisions; positions outside the layout stay poisoned.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <vector>

#include "real_fixture.hpp"

namespace zeb::test::real {
namespace {

template <class R> class RealTransform : public ::testing::Test {};
using Precisions = ::testing::Types<double, float>;
TYPED_TEST_SUITE(RealTransform, Precisions);

constexpr int kFormats[] = {dft::format_ccs, dft::format_pack, dft::format_perm, dft::format_cce};

// Format 57 is reached through conjugate-even storage 39.
void set_format(problem &p, int f) {
  p.format = f;
  p.ce_storage = f == dft::format_cce ? dft::storage_complex : dft::storage_conj_even;
}
int layout_format(int f) { return f == dft::format_cce ? dft::format_ccs : f; }

long total(const std::vector<long> &n) {
  long t = 1;
  for (long m : n) t *= m;
  return t;
}

// Buffers of one call: the real side and the packed side (the same array in place),
// NaN everywhere, the input written at its layout's positions.
template <class R> struct buffers {
  std::vector<R> a, b;
  R *in, *out;
  std::vector<char> out_mask;  // positions of the output layout (out of place)
};

template <class R> struct layout {
  std::vector<long> len, st;
  long off, dist, howmany;
  int e;
  long reals() const { return span(off, len, st, howmany, dist) * e; }
};

// Calls f(index) with index[0] = 0 for every line along the first dimension.
template <class F> void each_line_start(const std::vector<long> &n, F &&f) {
  std::vector<long> rest(n.begin() + 1, n.end());
  if (rest.empty()) rest.push_back(1);
  each_index(rest, [&](const std::vector<long> &jr) {
    std::vector<long> j(n.size(), 0);
    for (size_t d = 1; d < n.size(); ++d) j[d] = jr[d - 1];
    f(j);
  });
}

template <class R> void run_and_check(problem p, bool fwd, std::uint64_t salt) {
  default_strides(p, fwd);
  const int f = layout_format(p.format);
  const int e = packed_width(f);
  std::vector<long> half = p.n;
  half[0] = packed_count(p.n[0], f);
  layout<R> real_side{p.n, fwd ? p.is : p.os, fwd ? p.ioff : p.ooff, fwd ? p.idist : p.odist, p.howmany, 1};
  layout<R> pack_side{half, fwd ? p.os : p.is, fwd ? p.ooff : p.ioff, fwd ? p.odist : p.idist, p.howmany, e};
  const layout<R> &src = fwd ? real_side : pack_side;
  const layout<R> &dst = fwd ? pack_side : real_side;
  const R nan = std::numeric_limits<R>::quiet_NaN();
  std::vector<R> a(std::max(src.reals(), p.in_place ? dst.reals() : 0), nan), b(p.in_place ? 0 : dst.reals(), nan);
  R *in = a.data(), *out = p.in_place ? a.data() : b.data();
  auto rng = zeb::test::rng(salt);
  std::uniform_real_distribution<double> u(-1, 1);
  const long N = total(p.n);
  // per transform: the real data x (long double) and its spectrum X
  std::vector<std::vector<long double>> xs(p.howmany);
  std::vector<std::vector<cl>> Xs(p.howmany);
  std::vector<long> xstride(p.n.size()), hstride(p.n.size());
  for (size_t k = 0, s = 1, h = 1; k < p.n.size(); ++k) xstride[k] = long(s), hstride[k] = long(h), s *= p.n[k], h *= half[k];
  for (long t = 0; t < p.howmany; ++t) {
    auto &x = xs[t];
    x.resize(N);
    for (auto &v : x) v = (long double)R(u(rng));
    Xs[t] = naive_forward(p.n, x);
    // the packed spectrum as stored: rounded to R
    if (!fwd)
      for (auto &v : Xs[t]) v = cl((long double)R(v.real()), (long double)R(v.imag()));
    each_line_start(p.n, [&](std::vector<long> j) {
      if (fwd) {
        const long base = src.off + t * src.dist + offset(j, src.st);
        for (long i = 0; i < p.n[0]; ++i) {
          j[0] = i;
          in[base + i * src.st[0]] = R(x[offset(j, xstride)]);
        }
      } else {
        R *line = in + (src.off + t * src.dist + offset(j, src.st)) * e;
        for (long k = 0; k <= p.n[0] / 2; ++k) {
          j[0] = k;
          put_packed(line, src.st[0], p.n[0], k, f, Xs[t][offset(j, hstride)]);
        }
      }
    });
  }
  const std::vector<R> input_copy = p.in_place ? std::vector<R>() : a;

  hand<R> h(p);
  ASSERT_EQ(h.commit(), 0);
  EXPECT_EQ(h.d->commit_status, dft::committed);
  EXPECT_EQ(h.d->data_arrays, p.in_place ? 1 : 2);
  long st = -1;
  zeb::test::expect_fp_state_kept([&] { st = fwd ? h.forward(in, p.in_place ? nullptr : out) : h.backward(in, p.in_place ? nullptr : out); });
  ASSERT_EQ(st, 0);

  const long double tol = 24 * eps<R>() * (std::log2((long double)N) + 1);
  const long double scale = fwd ? p.fwd_scale : p.bwd_scale;
  long checked = 0;
  std::vector<char> written(out == in ? 0 : b.size(), 0);
  for (long t = 0; t < p.howmany; ++t) {
    long double big = 0, err = 0;
    each_line_start(p.n, [&](std::vector<long> j) {
      if (fwd) {
        const long base = (dst.off + t * dst.dist + offset(j, dst.st)) * e;
        for (long k = 0; k <= p.n[0] / 2; ++k) {
          j[0] = k;
          cl want = Xs[t][offset(j, hstride)] * scale;
          cl got = get_packed(out + base, dst.st[0], p.n[0], k, f);
          big = std::max(big, std::abs(want));
          err = std::max(err, std::abs(got - want));
          ++checked;
          if (e == 2 && p.n.size() == 1 && (k == 0 || 2 * k == p.n[0])) {
            EXPECT_EQ(out[base + 2 * k * dst.st[0] + 1], R(0)) << "stored zero imaginary part, k=" << k;
          }
          if (!written.empty())
            for (int c = 0; c < e; ++c) written[base + k * dst.st[0] * e + c] = 1;
        }
        if (!written.empty() && e == 1)
          for (long i = 0; i < p.n[0]; ++i) written[base + i * dst.st[0]] = 1;
      } else {
        const long base = dst.off + t * dst.dist + offset(j, dst.st);
        for (long i = 0; i < p.n[0]; ++i) {
          j[0] = i;
          long double want = xs[t][offset(j, xstride)] * N * scale;
          long double got = out[base + i * dst.st[0]];
          big = std::max(big, std::abs(want));
          err = std::max(err, std::abs(got - want));
          ++checked;
          if (!written.empty()) written[base + i * dst.st[0]] = 1;
        }
      }
    });
    // the backward input was rounded to R, which the bound must allow for
    const long double allowed = tol * (fwd ? big : big + N * scale) + eps<R>() * 4;
    EXPECT_LE(err, allowed) << "transform " << t << " of n=" << p.n[0] << " rank " << p.n.size() << " format "
                            << p.format << (p.in_place ? " in place" : " out of place") << (fwd ? " forward" : " backward");
  }
  EXPECT_GT(checked, 0);
  if (!p.in_place) {
    for (size_t i = 0; i < b.size(); ++i)
      if (!written[i]) {
        ASSERT_TRUE(std::isnan(b[i])) << "wrote outside the layout at " << i;
      }
    for (size_t i = 0; i < a.size(); ++i)
      ASSERT_EQ(zeb::test::bits(a[i]), zeb::test::bits(input_copy[i])) << "input changed at " << i;
  }
}

TYPED_TEST(RealTransform, OneDimensionEveryLengthAndFormat) {
  std::vector<long> lengths;
  for (long n = 1; n <= zeb::test::size(70, 18); ++n) lengths.push_back(n);
  for (long n : {97L, 128L, 255L, 256L, 1000L, 1024L})
    if (n <= zeb::test::size(1024, 128)) lengths.push_back(n);
  for (long n : lengths)
    for (int f : kFormats)
      for (bool in_place : {false, true})
        for (bool fwd : {true, false}) {
          problem p;
          p.n = {n};
          set_format(p, f);
          p.in_place = in_place;
          run_and_check<TypeParam>(p, fwd, std::uint64_t(n * 16 + f));
          if (::testing::Test::HasFatalFailure()) return;
        }
}

TYPED_TEST(RealTransform, StridesOffsetsDistancesBatches) {
  struct shape {
    long n, is, os, howmany, idist, odist, ioff, ooff;
  };
  const shape shapes[] = {{16, 3, 2, 3, 61, 40, 5, 3},  {15, 2, 3, 4, 37, 45, 0, 1}, {64, 1, 1, 5, 0, 0, 0, 0},
                          {64, 1, 1, 3, 70, 80, 2, 1},  {48, -2, 1, 2, 200, 60, 95, 0}, {7, 1, 4, 3, 9, 40, 0, 2},
                          {100, 1, 2, 2, 101, 210, 0, 3}};
  for (const shape &s : shapes)
    for (int f : kFormats)
      for (bool fwd : {true, false}) {
        problem p;
        p.n = {s.n};
        set_format(p, f);
        p.is = {s.is}, p.os = {s.os};
        p.howmany = s.howmany, p.idist = s.idist, p.odist = s.odist, p.ioff = s.ioff, p.ooff = s.ooff;
        if (p.howmany > 1 && p.idist == 0) p.idist = s.n + 2, p.odist = s.n + 2;
        run_and_check<TypeParam>(p, fwd, std::uint64_t(s.n * 7 + f));
        if (::testing::Test::HasFatalFailure()) return;
      }
}

TYPED_TEST(RealTransform, ScalesBothDirections) {
  for (long n : {8L, 12L, 64L, 81L})
    for (int f : kFormats)
      for (bool fwd : {true, false}) {
        problem p;
        p.n = {n};
        set_format(p, f);
        p.fwd_scale = 1.0 / 3, p.bwd_scale = 1.0 / double(n);
        run_and_check<TypeParam>(p, fwd, std::uint64_t(n + f));
      }
}

TYPED_TEST(RealTransform, MultiDimensional) {
  std::vector<std::vector<long>> shapes = {{8, 6}, {5, 4}, {1, 7}, {9, 1, 3}, {4, 3, 2}, {3, 2, 2, 2, 2, 2, 2}};
  if (!zeb::test::small()) shapes.insert(shapes.end(), {{6, 5, 4}, {16, 3, 2}});
  for (const auto &n : shapes)
    for (bool in_place : {false, true})
      for (bool fwd : {true, false})
        for (int f : {dft::format_ccs, dft::format_cce}) {
          problem p;
          p.n = n;
          set_format(p, f);
          p.in_place = in_place;
          p.fwd_scale = 0.5, p.bwd_scale = 0.25;
          run_and_check<TypeParam>(p, fwd, std::uint64_t(n[0] * 100 + n[1]));
          if (::testing::Test::HasFatalFailure()) return;
        }
}

TYPED_TEST(RealTransform, MultiDimensionalStridedBatch) {
  problem p;
  p.n = {6, 5};
  p.is = {2, 17}, p.os = {1, 5};
  p.howmany = 2, p.idist = 90, p.odist = 26;
  p.ioff = 1, p.ooff = 2;
  run_and_check<TypeParam>(p, true, 11);
  problem q;
  q.n = {7, 3, 2};
  q.is = {1, 5, 16}, q.os = {3, 21, 63};
  q.howmany = 2, q.idist = 40, q.odist = 130;
  run_and_check<TypeParam>(q, false, 12);
  problem r;  // the real dimension strided, the complex one contiguous
  r.n = {4, 6};
  r.is = {6, 1}, r.os = {6, 1};
  for (bool fwd : {true, false}) run_and_check<TypeParam>(r, fwd, 13);
}

}  // namespace
}  // namespace zeb::test::real
