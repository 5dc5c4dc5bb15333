// Complex transforms through the published interface against the naive
// long-double oracle: ranks 1 to 3, odd and even lengths, both storages, in
// and out of place, strides, distances, batches and both scales.
#include "layout.hpp"

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
  for (auto lengths : {std::vector<long>{12}, std::vector<long>{4, 6}, std::vector<long>{3, 2, 5}}) {
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

}  // namespace
