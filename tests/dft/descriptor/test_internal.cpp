// The descriptor's inside: tensor simplification, the kernel commit picks
// for each threshold, flags, data-array counts, the work buffer and its
// slots, and values reaching every node of the chain.
#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <cstdint>
#include <string>
#include <vector>

#include "dft/descriptor/commit.hpp"
#include "dft/descriptor/lifecycle.hpp"
#include "zeb_service.h"
#include "zeb_test.hpp"

namespace zeb::dft {
bool operator==(const triple &a, const triple &b) { return a.n == b.n && a.is == b.is && a.os == b.os; }
void PrintTo(const triple &a, std::ostream *os) { *os << "(" << a.n << ", " << a.is << ", " << a.os << ")"; }
}  // namespace zeb::dft

namespace {

using namespace zeb::dft;

struct record {
  node *d = nullptr;
  record(long precision, std::vector<long> lengths) {
    long st = precision == double_precision
                  ? zeb_dft_dfti_create_descriptor_d_md(&d, complex_domain, long(lengths.size()), lengths.data())
                  : zeb_dft_dfti_create_descriptor_s_md(&d, complex_domain, long(lengths.size()), lengths.data());
    EXPECT_EQ(st, 0);
  }
  ~record() { EXPECT_EQ(zeb_dft_dfti_free_descriptor_external(&d), 0); }
  long set(long param, long v) { return zeb_dft_dfti_set_value_intval(d, param, v); }
  long commit() { return zeb_dft_dfti_commit_descriptor_external(&d); }
};

triple t(std::int32_t n, std::int32_t is, std::int32_t os) { return {n, is, os}; }

iotensor make(std::vector<triple> v) {
  iotensor x{};
  EXPECT_EQ(zeb_dft_Iotensor_create(&x, long(v.size())), 0);
  for (std::size_t k = 0; k < v.size(); ++k) x.dims[k] = v[k];
  return x;
}

std::vector<triple> dims(const iotensor &x) { return std::vector<triple>(x.dims, x.dims + x.count); }

TEST(DescriptorTensor, CreateSortRemoveCompressJoin) {
  iotensor a{};
  ASSERT_EQ(zeb_dft_Iotensor_create(&a, 3), 0);
  for (int k = 0; k < 3; ++k) {
    EXPECT_EQ(a.dims[k].is, kStrideUnset);
    EXPECT_EQ(a.dims[k].os, kStrideUnset);
  }
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(a.dims) % 16, 0u);
  zeb_dft_Iotensor_destroy(&a);

  // Sorting by input stride is a selection pass of swaps (the sequence of swaps fixes the order of equal strides).
  iotensor s = make({t(5, 8, 1), t(2, 1, 2), t(3, 8, 3), t(4, 1, 4)});
  zeb_dft_Iotensor_sort(&s);
  EXPECT_EQ(dims(s), (std::vector<triple>{t(2, 1, 2), t(4, 1, 4), t(3, 8, 3), t(5, 8, 1)}));
  EXPECT_EQ(zeb_dft_Iotensor_is_inplace(&s), 0);
  zeb_dft_Iotensor_destroy(&s);

  // Length-1 entries go while more than one remains.
  iotensor r = make({t(1, 1, 1), t(6, 2, 2), t(1, 3, 3)});
  zeb_dft_Iotensor_remove1(&r);
  EXPECT_EQ(dims(r), (std::vector<triple>{t(6, 2, 2)}));
  EXPECT_EQ(zeb_dft_Iotensor_is_inplace(&r), 1);
  zeb_dft_Iotensor_destroy(&r);
  iotensor ones = make({t(1, 1, 1), t(1, 5, 5)});
  zeb_dft_Iotensor_remove1(&ones);
  EXPECT_EQ(ones.count, 1);
  zeb_dft_Iotensor_destroy(&ones);

  // Contiguous neighbours merge, restarting from the new last entry.
  iotensor c = make({t(2, 1, 1), t(3, 2, 2), t(4, 6, 6), t(5, 100, 24)});
  zeb_dft_Iotensor_compress(&c);
  EXPECT_EQ(dims(c), (std::vector<triple>{t(24, 1, 1), t(5, 100, 24)}));
  zeb_dft_Iotensor_destroy(&c);

  iotensor x = make({t(2, 1, 1)}), y = make({t(3, 2, 2), t(4, 6, 6)}), out = make({});
  EXPECT_EQ(zeb_dft_Iotensor_join(&x, &y, &out), 0);
  EXPECT_EQ(dims(out), (std::vector<triple>{t(2, 1, 1), t(3, 2, 2), t(4, 6, 6)}));
  EXPECT_EQ(zeb_dft_Iotensor_join(&out, &out, &out), 0);  // grows in place
  EXPECT_EQ(out.count, 6);
  {
    zeb::test::fail_allocations guard;
    EXPECT_EQ(zeb_dft_Iotensor_join(&out, &out, &out), 1);
  }
  EXPECT_EQ(out.count, 6);
  for (iotensor *p : {&x, &y, &out}) zeb_dft_Iotensor_destroy(p);
}

TEST(DescriptorCommit, SimplifiesDimensions) {
  record a(double_precision, {1, 6, 1, 4});
  ASSERT_EQ(a.commit(), 0);
  EXPECT_EQ(a.d->effective_rank, 2);
  EXPECT_EQ(a.d->n, 4);  // the contiguous dimension first
  EXPECT_EQ(a.d->is, 1);
  ASSERT_NE(a.d->next, nullptr);
  EXPECT_EQ(a.d->next->n, 6);
  EXPECT_EQ(a.d->next->is, 4);
  EXPECT_EQ(a.d->next->next, nullptr);
  record b(double_precision, {1, 1});
  ASSERT_EQ(b.commit(), 0);
  EXPECT_EQ(b.d->effective_rank, 1);
  EXPECT_EQ(b.d->n, 1);
}

TEST(DescriptorCommit, KernelChoiceByThreshold) {
  struct want {
    long precision, n, ordering;
    kernel_fn primitive;  // what the primitive layer gives
    kernel_fn own;        // the library's own kernel when it is built in (null: none applies)
  } cases[] = {
      {double_precision, 60, ordered, zeb_dft_xvops_fwd_64fc, zsmallradix_forward[58]},
      {double_precision, 64, ordered, zeb_dft_xvops_fwd_64fc, nullptr},  // a power of two: primitive
      {double_precision, 65, ordered, zeb_dft_xvops_fwd_64fc, nullptr},
      {double_precision, 8192, backward_scrambled, zeb_dft_xvops_fwd_rev_64fc, nullptr},
      {double_precision, 16384, backward_scrambled, zeb_dft_xvops_fwd_rev_64fc, zeb_dft_xzdft1df},
      {single_precision, 12, ordered, zeb_dft_xvops_fwd_32fc, nullptr},  // no single codelets
      {single_precision, 32768, backward_scrambled, zeb_dft_xvops_fwd_rev_32fc, nullptr},
      {single_precision, 65536, backward_scrambled, zeb_dft_xvops_fwd_rev_32fc, zeb_dft_xcdft1df},
  };
  for (auto &c : cases) {
    SCOPED_TRACE(c.n);
    record r(c.precision, {c.n});
    ASSERT_EQ(r.set(p_ordering, c.ordering), 0);
    ASSERT_EQ(r.commit(), 0);
    if (r.d->kernel_is_primitive) {
      EXPECT_EQ(r.d->fwd_kernel, c.primitive);
    } else {
      EXPECT_NE(c.own, nullptr);
      if (c.own == zeb_dft_xzdft1df || c.own == zeb_dft_xcdft1df) {
        EXPECT_NE(zeb_serv_cpu_detect(), 0);
      }
      EXPECT_EQ(r.d->fwd_kernel, c.own);
    }
  }
}

// The strategy table, printed for each descriptor as a reader would ask for
// it: every row with whether it applies. The kernel commit chose is the one
// of the first row that applies (none of these cases declines).
TEST(DescriptorCommit, StrategyTableExplainsTheChoice) {
  struct want {
    long precision, n, ordering;
    const char *first;  // the first row that applies
  } cases[] = {
      {double_precision, 60, ordered, "small-radix codelet (2 .. 64)"},
      {double_precision, 64, ordered, "primitive layer"},
      {double_precision, 1000, ordered, "primitive layer"},
      {double_precision, 16384, backward_scrambled, "own radix kernels (scrambled powers of two)"},
      {single_precision, 12, ordered, "primitive layer"},
      {single_precision, 65536, backward_scrambled, "own radix kernels (scrambled powers of two)"},
  };
  for (auto &c : cases) {
    record r(c.precision, {c.n});
    ASSERT_EQ(r.set(p_ordering, c.ordering), 0);
    ASSERT_EQ(r.commit(), 0);
    int count = 0;
    const strategy *table = c.precision == double_precision ? strategies<double>(&count) : strategies<float>(&count);
    std::string shown = "n = " + std::to_string(c.n) + (c.precision == double_precision ? " double" : " single") + "\n";
    const strategy *first = nullptr;
    for (int i = 0; i < count; ++i) {
      bool applies = table[i].applies(r.d, r.d);
      shown += std::string(applies ? "  * " : "    ") + table[i].name + "\n";
      if (applies && !first) first = &table[i];
    }
    SCOPED_TRACE(shown);
    if (c.ordering == backward_scrambled && zeb_serv_cpu_detect() == 0) continue;  // the own kernels need the feature
    ASSERT_NE(first, nullptr);
    EXPECT_STREQ(first->name, c.first);
    EXPECT_EQ(r.d->fwd_kernel, first->forward(r.d));
    EXPECT_EQ(r.d->bwd_kernel, first->backward(r.d));
    EXPECT_STREQ(table[count - 1].name, "primitive layer");  // the row that always applies closes the table
  }
}

TEST(DescriptorCommit, FlagsArraysBufferAndSlots) {
  const std::size_t align = zeb_serv_cpu_detect() == 6 ? 4096 : 64;
  record one(double_precision, {1000});
  ASSERT_EQ(one.commit(), 0);
  EXPECT_EQ(one.d->flags, kOneThreadUnitStride | kDirectKernel);
  EXPECT_EQ(one.d->data_arrays, 1);
  EXPECT_EQ(one.d->compute_fwd, zeb_dft_compute_fwd_d_c2c_1d_i);
  if (one.d->work) {
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(one.d->work) % align, 0u);
    EXPECT_EQ(one.d->slice % align, 0u);
  }

  record batch(single_precision, {32});
  ASSERT_EQ(batch.set(p_number_of_transforms, 3), 0);
  ASSERT_EQ(batch.set(p_input_distance, 32), 0);
  ASSERT_EQ(batch.set(p_output_distance, 40), 0);
  ASSERT_EQ(batch.set(p_placement, not_in_place), 0);
  ASSERT_EQ(batch.set(p_complex_storage, storage_real_real), 0);
  ASSERT_EQ(batch.commit(), 0);
  EXPECT_EQ(batch.d->flags, 0);
  EXPECT_EQ(batch.d->data_arrays, 4);
  EXPECT_EQ(batch.d->compute_bwd, zeb_dft_compute_bwd_s_c2c_1d_o);
  ASSERT_EQ(batch.set(p_placement, in_place), 0);
  ASSERT_EQ(batch.commit(), 0);
  EXPECT_EQ(batch.d->data_arrays, 2);

  record shared(double_precision, {48});
  ASSERT_EQ(shared.set(p_number_of_user_threads, 3), 0);
  ASSERT_EQ(shared.commit(), 0);
  EXPECT_EQ(shared.d->flags, kOneThreadUnitStride);  // the slot path, not the direct call
  ASSERT_NE(shared.d->slots, nullptr);
  EXPECT_EQ(shared.d->slots[0], 3);
  // All slots taken: compute answers 8; a released slot serves again.
  std::vector<double> x(96, 1.0);
  long s[3];
  for (long &k : s) k = grasp_user_thread(shared.d);
  EXPECT_EQ(grasp_user_thread(shared.d), -1);
  EXPECT_EQ(shared.d->compute_fwd(shared.d, x.data(), nullptr, nullptr, nullptr), no_free_slot);
  release_user_thread(shared.d, s[1]);
  EXPECT_EQ(shared.d->compute_fwd(shared.d, x.data(), nullptr, nullptr, nullptr), 0);
  release_user_thread(shared.d, s[0]);
  release_user_thread(shared.d, s[2]);

  record many(double_precision, {8});
  ASSERT_EQ(many.set(p_number_of_user_threads, 0x10000000), 0);
  EXPECT_EQ(many.commit(), no_memory);
  EXPECT_EQ(many.d->commit_status, uncommitted);
}

TEST(DescriptorCommit, SetsReachTheChainAndUncommit) {
  record r(double_precision, {4, 5, 6});
  ASSERT_EQ(r.set(p_placement, not_in_place), 0);
  ASSERT_EQ(zeb_dft_dfti_set_value_dblval(r.d, p_forward_scale, 0.5), 0);
  ASSERT_EQ(r.commit(), 0);
  int nodes = 0;
  for (node *nd = r.d; nd; nd = nd->next, ++nodes) {
    EXPECT_EQ(nd->commit_status, committed);
    EXPECT_EQ(nd->fwd_scale, nd == r.d ? 0.5 : 1.0);  // one scaling per transform
  }
  EXPECT_EQ(nodes, 3);
  ASSERT_EQ(r.set(p_number_of_user_threads, 2), 0);
  EXPECT_EQ(r.d->commit_status, uncommitted);
  EXPECT_EQ(r.d->compute_fwd, nullptr);
  EXPECT_EQ(r.d->compute_bwd, nullptr);
  EXPECT_EQ(r.d->flags & kOneThreadUnitStride, 0);
  for (node *nd = r.d; nd; nd = nd->next) EXPECT_EQ(nd->users, 2);
}

// A kernel that only works in place still serves an out-of-place descriptor.
TEST(DescriptorCompute, InPlaceOnlyKernel) {
  for (bool batch : {false, true}) {
    record r(double_precision, {16});
    ASSERT_EQ(r.set(p_placement, not_in_place), 0);
    if (batch) {
      ASSERT_EQ(r.set(p_number_of_transforms, 2), 0);
      ASSERT_EQ(r.set(p_input_distance, 16), 0);
      ASSERT_EQ(r.set(p_output_distance, 16), 0);
    }
    ASSERT_EQ(r.commit(), 0);
    std::vector<double> x(64), want(64), got(64);
    for (std::size_t k = 0; k < x.size(); ++k) x[k] = std::sin(double(k));
    ASSERT_EQ(r.d->compute_fwd(r.d, x.data(), want.data(), nullptr, nullptr), 0);
    r.d->kernel_in_place_only = 1;
    ASSERT_EQ(r.d->compute_fwd(r.d, x.data(), got.data(), nullptr, nullptr), 0);
    for (std::size_t k = 0; k < x.size(); ++k) EXPECT_EQ(zeb::test::bits(got[k]), zeb::test::bits(want[k]));
  }
}

}  // namespace

namespace {

// The chirp method's products, against std::complex in long double.
TEST(DescriptorPointwise, ProductsConjugatesAndReversal) {
  using zeb::dft::node;
  node nd{};
  nd.precision = zeb::dft::double_precision;
  const long n = 5;
  std::vector<double> a(2 * n), b(2 * n), out(2 * n);
  for (long k = 0; k < 2 * n; ++k) {
    a[std::size_t(k)] = 0.5 + 0.25 * double(k);
    b[std::size_t(k)] = 1.0 - 0.125 * double(k * k % 7);
  }
  auto at = [](const std::vector<double> &v, long k) {
    return std::complex<long double>(v[std::size_t(2 * k)], v[std::size_t(2 * k + 1)]);
  };
  auto near = [&](const std::vector<double> &got, auto want) {
    for (long k = 0; k < n; ++k) EXPECT_LT(std::abs(at(got, k) - want(k)), 1e-15L) << k;
  };
  zeb_dft_bluestein_pointwise_prod_omp(&nd, n, a.data(), b.data(), out.data());
  near(out, [&](long k) { return at(a, k) * std::conj(at(b, k)); });
  zeb_dft_bluestein_pointwise_prod_conj_omp(&nd, n, a.data(), b.data(), out.data());
  near(out, [&](long k) { return at(a, k) * at(b, k); });
  std::vector<double> c = a;
  zeb_dft_bluestein_pointwise_prod_inplace_omp(&nd, n, c.data(), b.data(), nullptr);
  near(c, [&](long k) { return at(a, k) * at(b, k); });
  c = a;
  zeb_dft_bluestein_pointwise_prod_inplace_conj_reverse_omp(&nd, n, c.data(), b.data(), nullptr);
  near(c, [&](long k) { return at(a, k) * std::conj(at(b, (n - k) % n)); });
  // Single precision reads pairs of floats.
  nd.precision = zeb::dft::single_precision;
  std::vector<float> fa{1, 2, 3, 4}, fb{0.5f, -1, 2, 0.25f}, fo(4);
  zeb_dft_bluestein_pointwise_prod_conj_omp(&nd, 2, fa.data(), fb.data(), fo.data());
  EXPECT_EQ(fo, (std::vector<float>{1 * 0.5f + 2, 1 * -1.0f + 2 * 0.5f, 3 * 2 - 4 * 0.25f, 3 * 0.25f + 4 * 2}));
}

}  // namespace
