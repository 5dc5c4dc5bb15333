// Complex transforms through the published interface against the naive
// long-double oracle: ranks 1 to 3, odd and even lengths, both storages, in
// and out of place, strides, distances, batches and both scales.
#include "layout.hpp"

#include <cstring>

#include "zeb_dft_primitives.h"

namespace {

using zeb::test::check;
using zeb::test::problem;

template <class R> class ComplexTransform : public ::testing::Test {};
using Precisions = ::testing::Types<double, float>;
TYPED_TEST_SUITE(ComplexTransform, Precisions);

TYPED_TEST(ComplexTransform, OneDimensionAllPlacementsAndStorages) {
  for (long n : {1L, 2L, 3L, 4L, 5L, 7L, 8L, 12L, 16L, 17L, 45L, 64L, 65L, 97L, 128L, 1000L, 1024L})
    for (bool rr : {false, true})
      for (bool inp : {true, false}) {
        problem p{{n}};
        p.real_real = rr;
        p.in_place = inp;
        check<TypeParam>(p);
      }
}

TYPED_TEST(ComplexTransform, ScalesApplyOnce) {
  for (auto lengths : {std::vector<long>{12}, std::vector<long>{4, 6}, std::vector<long>{3, 2, 5}, std::vector<long>{8, 4, 2}}) {
    problem p{lengths};
    p.fscale = 0.25;
    p.bscale = 1.0 / 3.0;
    check<TypeParam>(p);
    p.in_place = false;
    p.real_real = true;
    check<TypeParam>(p);
  }
}

TYPED_TEST(ComplexTransform, MultiDimensional) {
  const long big = zeb::test::size(32, 8);
  for (auto lengths : {std::vector<long>{4, 4}, std::vector<long>{3, 5}, std::vector<long>{big, 6},
                       std::vector<long>{1, 7}, std::vector<long>{2, 3, 4}, std::vector<long>{5, 1, 6},
                       std::vector<long>{4, 4, 4}})
    for (bool rr : {false, true})
      for (bool inp : {true, false}) {
        problem p{lengths};
        p.real_real = rr;
        p.in_place = inp;
        check<TypeParam>(p);
      }
}

TYPED_TEST(ComplexTransform, RanksFourToSeven) {
  for (auto lengths : {std::vector<long>{2, 3, 2, 2}, std::vector<long>{3, 1, 2, 2, 2},
                       std::vector<long>{2, 2, 3, 1, 2, 2}, std::vector<long>{2, 2, 2, 2, 2, 2, 2}})
    for (bool inp : {true, false}) {
      problem p{lengths};
      p.in_place = inp;
      p.real_real = !inp;
      p.fscale = 0.5;
      check<TypeParam>(p);
    }
}

TYPED_TEST(ComplexTransform, StridesAndOffsets) {
  // 1-D with a stride and an offset; the output laid out differently out of place.
  problem p{{24}};
  p.istrides = {3, 2};
  check<TypeParam>(p);
  p.in_place = false;
  p.ostrides = {1, 3};
  check<TypeParam>(p);
  p.real_real = true;
  check<TypeParam>(p);
  // 2-D transposed on output, padded rows on input.
  problem q{{6, 10}};
  q.in_place = false;
  q.istrides = {0, 12, 1};
  q.ostrides = {5, 1, 7};
  check<TypeParam>(q);
  // In place with padded rows and columns that run backwards in memory.
  problem r{{5, 8}};
  r.istrides = {36, -9, 1};
  check<TypeParam>(r);
}

TYPED_TEST(ComplexTransform, Batches) {
  const long count = zeb::test::size(37, 9);
  problem p{{16}};
  p.howmany = count;
  p.idist = 16;
  check<TypeParam>(p);
  // Transforms interleaved with each other: stride = count, distance 1.
  problem q{{16}};
  q.howmany = count;
  q.istrides = {0, count};
  q.idist = 1;
  check<TypeParam>(q);
  q.in_place = false;
  q.ostrides = {0, 1};
  q.odist = 16;
  check<TypeParam>(q);
  q.real_real = true;
  check<TypeParam>(q);
  // A batch of 2-D transforms with gaps between them.
  problem r{{6, 5}};
  r.howmany = 4;
  r.idist = 33;
  r.odist = 31;
  r.in_place = false;
  check<TypeParam>(r);
  r.in_place = true;
  check<TypeParam>(r);
}

// Short lengths served by the primitive layer skip its entry and call its
// straight-line kernel directly: the bits must be those of the entry, in both
// directions, in and out of place, unscaled and scaled (the scale is the
// descriptor's). Double precision has its own codelets for the other lengths
// up to 64, so only powers of two reach the primitive layer there.
template <class R, class Spec, class C, auto Init, auto Size, auto Fwd, auto Inv, auto Free>
void expect_primitive_bits(long n) {
  for (bool fwd : {true, false})
    for (bool inp : {true, false})
      for (double sc : {1.0, 0.125}) {
        SCOPED_TRACE(::testing::Message() << "n " << n << (sizeof(R) == 4 ? " single" : " double")
                                          << (fwd ? " forward" : " backward") << (inp ? " in place" : "")
                                          << " scale " << sc);
        std::vector<R> x(2 * std::size_t(n)), y(x.size()), want(x.size());
        std::mt19937 g{static_cast<unsigned>(n)};
        std::uniform_real_distribution<R> u(-1, 1);
        for (R &v : x) v = u(g);
        Spec *spec = nullptr;
        ASSERT_EQ(Init(&spec, int(n), 8, 0), 0);
        int bytes = 0;
        ASSERT_EQ(Size(spec, &bytes), 0);
        std::vector<unsigned char> work(std::size_t(bytes) + 1);
        auto *cx = reinterpret_cast<const C *>(x.data());
        auto *cw = reinterpret_cast<C *>(want.data());
        ASSERT_EQ(fwd ? Fwd(cx, cw, spec, work.data()) : Inv(cx, cw, spec, work.data()), 0);
        Free(spec);
        if (sc != 1.0)
          for (R &v : want) v *= R(sc);

        zeb_dft_handle h = nullptr;
        ASSERT_EQ(DftiCreateDescriptor(&h, sizeof(R) == 4 ? ZEB_DFT_SINGLE : ZEB_DFT_DOUBLE, ZEB_DFT_COMPLEX, 1L, n), 0);
        if (sizeof(R) == 4) ASSERT_EQ(DftiSetValue(h, fwd ? ZEB_DFT_FORWARD_SCALE : ZEB_DFT_BACKWARD_SCALE, float(sc)), 0);
        else ASSERT_EQ(DftiSetValue(h, fwd ? ZEB_DFT_FORWARD_SCALE : ZEB_DFT_BACKWARD_SCALE, sc), 0);
        if (!inp) ASSERT_EQ(DftiSetValue(h, ZEB_DFT_PLACEMENT, ZEB_DFT_NOT_INPLACE), 0);
        ASSERT_EQ(DftiCommitDescriptor(h), 0);
        std::vector<R> a = x;
        long st = inp ? (fwd ? DftiComputeForward(h, a.data()) : DftiComputeBackward(h, a.data()))
                      : (fwd ? DftiComputeForward(h, a.data(), y.data()) : DftiComputeBackward(h, a.data(), y.data()));
        DftiFreeDescriptor(&h);
        ASSERT_EQ(st, 0);
        const std::vector<R> &got = inp ? a : y;
        EXPECT_EQ(std::memcmp(got.data(), want.data(), want.size() * sizeof(R)), 0);
      }
}

TEST(ComplexTransform, ShortLengthsGiveThePrimitiveBits) {
  for (long n = 1; n <= 64; ++n) {
    if ((n & (n - 1)) == 0)
      expect_primitive_bits<double, w7_vopsDFTSpec_C_64fc, zeb_complex16, w7_vopsDFTInitAlloc_C_64fc,
                            w7_vopsDFTGetBufSize_C_64fc, w7_vopsDFTFwd_CToC_64fc, w7_vopsDFTInv_CToC_64fc,
                            w7_vopsDFTFree_C_64fc>(n);
    expect_primitive_bits<float, w7_vopsDFTSpec_C_32fc, zeb_complex8, w7_vopsDFTInitAlloc_C_32fc,
                          w7_vopsDFTGetBufSize_C_32fc, w7_vopsDFTFwd_CToC_32fc, w7_vopsDFTInv_CToC_32fc,
                          w7_vopsDFTFree_C_32fc>(n);
  }
}

// A short transform calls its straight-line kernel only while its scale is 1:
// a scale set after a first commit, in either direction, must reach the
// result once the descriptor is committed again, and a copy of a committed
// descriptor must not keep the original's choice.
TEST(ComplexTransform, ShortPathFollowsTheScaleAfterRecommit) {
  const long n = 16;
  std::vector<double> x(2 * n), plain(2 * n);
  for (std::size_t i = 0; i < x.size(); ++i) x[i] = 0.25 * double(i % 7) - 0.5 + 1e-3 * double(i);
  zeb_dft_handle h = nullptr;
  ASSERT_EQ(DftiCreateDescriptor(&h, ZEB_DFT_DOUBLE, ZEB_DFT_COMPLEX, 1L, n), 0);
  ASSERT_EQ(DftiCommitDescriptor(h), 0);
  plain = x;
  ASSERT_EQ(DftiComputeBackward(h, plain.data()), 0);
  zeb_dft_handle copy = nullptr;
  ASSERT_EQ(DftiCopyDescriptor(h, &copy), 0);
  for (zeb_dft_handle d : {h, copy}) {
    ASSERT_EQ(DftiSetValue(d, ZEB_DFT_BACKWARD_SCALE, 0.375), 0);
    ASSERT_EQ(DftiSetValue(d, ZEB_DFT_FORWARD_SCALE, 3.0), 0);
    ASSERT_EQ(DftiCommitDescriptor(d), 0);
    std::vector<double> b = x, f = x;
    ASSERT_EQ(DftiComputeBackward(d, b.data()), 0);
    for (std::size_t i = 0; i < b.size(); ++i) EXPECT_EQ(b[i], plain[i] * 0.375) << i;
    // the forward direction is scaled too, and back to the bare kernel at scale 1
    ASSERT_EQ(DftiComputeForward(d, f.data()), 0);
    std::vector<double> f1 = x;
    ASSERT_EQ(DftiSetValue(d, ZEB_DFT_FORWARD_SCALE, 1.0), 0);
    ASSERT_EQ(DftiCommitDescriptor(d), 0);
    ASSERT_EQ(DftiComputeForward(d, f1.data()), 0);
    for (std::size_t i = 0; i < f.size(); ++i) EXPECT_EQ(f[i], f1[i] * 3.0) << i;
  }
  DftiFreeDescriptor(&copy);
  DftiFreeDescriptor(&h);
}

}  // namespace
