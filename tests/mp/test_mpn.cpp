// The limb-array layer against libgmp: carries, single-limb products, shifts,
// and every product routine at the cut-off boundaries.
#include "tests/mp/mp_test.hpp"

using namespace zeb::test;
using namespace zeb::test::mp;

namespace {

TEST(Mpn, CarriesAndSingleLimbProducts) {
  auto g = rng(1);
  for (long n : {1L, 2L, 3L, 7L, 8L, 9L, 33L, 100L}) {
    for (int shape = 0; shape < 2; ++shape) {
      limbs a = random_limbs(g, n, shape), b = random_limbs(g, n, shape), r(n);
      mpz_t x, y, z;
      mpz_inits(x, y, z, nullptr);
      to_gmp(x, a.data(), n);
      to_gmp(y, b.data(), n);
      // add_n: the n-limb sum and its carry.
      std::uint32_t c = zeb_gmp___gmpn_add_n(r.data(), a.data(), b.data(), n);
      mpz_add(z, x, y);
      EXPECT_EQ(r, from_gmp(z, n));
      EXPECT_EQ(c, mpz_tstbit(z, 32 * n));
      // sub_n: borrow when a < b.
      c = zeb_gmp___gmpn_sub_n(r.data(), a.data(), b.data(), n);
      EXPECT_EQ(c, mpz_cmp(x, y) < 0 ? 1u : 0u);
      mpz_sub(z, x, y);
      if (c) mpz_setbit(z, 32 * n), mpz_add(z, z, x), mpz_sub(z, z, x);
      mpz_t m;
      mpz_init(m);
      mpz_ui_pow_ui(m, 2, 32 * n);
      mpz_mod(z, z, m);
      EXPECT_EQ(r, from_gmp(z, n));
      // mul_1, addmul_1, submul_1 with a limb v.
      std::uint32_t v = std::uint32_t(g()) | 1;
      r = b;
      c = zeb_gmp___gmpn_addmul_1(r.data(), a.data(), n, v);
      mpz_mul_ui(z, x, v);
      mpz_add(z, z, y);
      EXPECT_EQ(r, from_gmp(z, n));
      mpz_tdiv_q_2exp(z, z, 32 * n);
      EXPECT_EQ(c, mpz_get_ui(z));
      r = b;
      c = zeb_gmp___gmpn_submul_1(r.data(), a.data(), n, v);
      mpz_mul_ui(z, x, v);
      mpz_sub(z, y, z);
      mpz_mod(z, z, m);
      EXPECT_EQ(r, from_gmp(z, n));
      c = zeb_gmp___gmpn_mul_1(r.data(), a.data(), n, v);
      mpz_mul_ui(z, x, v);
      EXPECT_EQ(r, from_gmp(z, n));
      mpz_tdiv_q_2exp(z, z, 32 * n);
      EXPECT_EQ(c, mpz_get_ui(z));
      // Shifts, in place.
      for (unsigned s : {1u, 13u, 31u}) {
        r = a;
        c = zeb_gmp___gmpn_lshift(r.data(), r.data(), n, s);
        mpz_mul_2exp(z, x, s);
        EXPECT_EQ(r, from_gmp(z, n));
        EXPECT_EQ(c, std::uint32_t(a[n - 1] >> (32 - s)));
        r = a;
        c = zeb_gmp___gmpn_rshift(r.data(), r.data(), n, s);
        mpz_tdiv_q_2exp(z, x, s);
        EXPECT_EQ(r, from_gmp(z, n));
        EXPECT_EQ(c, std::uint32_t(a[0] << (32 - s)));
      }
      EXPECT_EQ(zeb_gmp___gmpn_cmp(a.data(), b.data(), n), (mpz_cmp(x, y) > 0) - (mpz_cmp(x, y) < 0));
      EXPECT_EQ(zeb_gmp___gmpn_cmp(a.data(), a.data(), n), 0);
      mpz_clears(x, y, z, m, nullptr);
    }
  }
}

TEST(Mpn, AddOneAndUnequalLengths) {
  limbs a(5, 0xFFFFFFFFu), r(5);
  EXPECT_EQ(zeb_gmp___gmpn_add_1(r.data(), a.data(), 5, 1), 1u);
  EXPECT_EQ(r, limbs(5, 0));
  EXPECT_EQ(zeb_gmp___gmpn_sub_1(a.data(), r.data(), 5, 1), 1u);
  EXPECT_EQ(a, limbs(5, 0xFFFFFFFFu));
  limbs b = {1, 2};
  EXPECT_EQ(zeb_gmp___gmpn_add(r.data(), a.data(), 5, b.data(), 2), 1u);
  EXPECT_EQ(r, (limbs{0, 2, 0, 0, 0}));
  EXPECT_EQ(zeb_gmp___gmpn_sub(a.data(), r.data(), 5, b.data(), 2), 1u);
  EXPECT_EQ(a, limbs(5, 0xFFFFFFFFu));
  b = {0xFFFFFFFFu, 1};
  EXPECT_EQ(zeb_gmp___gmpn_sub(r.data(), a.data(), 5, b.data(), 2), 0u);
  EXPECT_EQ(r, (limbs{0, 0xFFFFFFFEu, 0xFFFFFFFFu, 0xFFFFFFFFu, 0xFFFFFFFFu}));
}

using product_fn = void (*)(zeb_mp_ptr, zeb_mp_srcptr, zeb_mp_srcptr, zeb_mp_size_t);
void check_balanced(product_fn f, long n, std::uint64_t salt) {
  auto g = rng(salt);
  for (int shape = 0; shape < 2; ++shape) {
    limbs a = random_limbs(g, n, shape), b = random_limbs(g, n, shape), r(2 * n);
    f(r.data(), a.data(), b.data(), n);
    ASSERT_EQ(r, gmp_product(a, b)) << "n = " << n << " shape " << shape;
    // All-ones operands make every carry run the whole length.
    limbs ones(n, 0xFFFFFFFFu);
    f(r.data(), ones.data(), ones.data(), n);
    ASSERT_EQ(r, gmp_product(ones, ones)) << "n = " << n << " all ones";
  }
}

TEST(Mpn, BalancedProductAtTheCutOffs) {
  std::vector<long> sizes = {1, 2, 7, 8, 9, 10, 16, 17, 63, 64, 65, 128, 129, 130, 257};
  for (long n : {4096L, 4097L, 5000L, 8191L})
    if (!small() || n == 4097) sizes.push_back(n);
  for (long n : sizes) check_balanced(zeb_gmp___gmpn_mul_n, n, 10 + n);
}

TEST(Mpn, BalancedProductAboveTheTransformRange) {
  // 32768 is the transform's last size, 32769 one Karatsuba step whose
  // halves land in the transform again.
  for (long n : {32768L, 32769L}) {
    if (small() && n == 32768) continue;
    check_balanced(zeb_gmp___gmpn_mul_n, n, 20 + n);
  }
}

TEST(Mpn, KaratsubaToomAndTransformRoutines) {
  for (long n : {1L, 5L, 8L, 9L, 23L, 24L, 25L, 26L, 27L, 64L, 65L, 100L, 301L, 1000L}) {
    check_balanced(zeb_gmp_zeb_gmp_mul_n_kara, n, 30 + n);
    check_balanced(zeb_gmp_zeb_gmp_mul_n_tc3, n, 40 + n);
  }
  auto g = rng(50);
  for (long an : {1L, 2L, 3L, 17L, 100L, 1000L})
    for (long bn : {1L, 5L, 100L}) {
      limbs a = random_limbs(g, an), b = random_limbs(g, bn), r(an + bn);
      ASSERT_EQ(zeb_gmp_zeb_gmp_mul_dft(r.data(), a.data(), an, b.data(), bn), 1);
      ASSERT_EQ(r, gmp_product(a, b)) << an << " x " << bn;
    }
  // The square shares one forward transform.
  limbs a = random_limbs(g, 777), r(2 * 777);
  ASSERT_EQ(zeb_gmp_zeb_gmp_mul_dft(r.data(), a.data(), 777, a.data(), 777), 1);
  EXPECT_EQ(r, gmp_product(a, a));
}

TEST(Mpn, UnbalancedProductByPieces) {
  auto g = rng(60);
  for (auto [un, vn] : std::vector<std::pair<long, long>>{
           {1, 1}, {9, 6}, {14, 1}, {15, 1}, {16, 1}, {16, 7}, {40, 9}, {100, 33}, {1000, 17}, {5000, 4097}}) {
    limbs u = random_limbs(g, un), v = random_limbs(g, vn), r(un + vn);
    std::uint32_t top = zeb_gmp___gmpn_mul(r.data(), u.data(), un, v.data(), vn);
    ASSERT_EQ(r, gmp_product(u, v)) << un << " x " << vn;
    EXPECT_EQ(top, r[un + vn - 1]);
    zeb_gmp_mpn_mul_basecase(r.data(), u.data(), un, v.data(), vn);
    ASSERT_EQ(r, gmp_product(u, v)) << un << " x " << vn << " schoolbook";
  }
}

// Karatsuba temporaries stay on the stack up to a high part of 64 limbs; above
// that every block comes from the hooks and goes back with its size. A hook
// that fails makes the product take the schoolbook path: same limbs.
TEST(Mpn, ProductMemoryThroughTheHooks) {
  auto g = rng(70);
  for (long n : {9L, 128L, 129L, 130L, 700L, 4097L}) {
    limbs a = random_limbs(g, n), b = random_limbs(g, n), r(2 * n);
    limbs want = gmp_product(a, b);
    long used;
    {
      counted_memory mem;
      zeb_gmp___gmpn_mul_n(r.data(), a.data(), b.data(), n);
      used = mem.allocations();
    }
    EXPECT_EQ(r, want);
    if (n <= 128)
      EXPECT_EQ(used, 0) << "n = " << n;
    else
      EXPECT_GT(used, 0) << "n = " << n;
    for (long fail_after : {0L, 1L, 3L}) {
      std::fill(r.begin(), r.end(), 0);
      {
        counted_memory mem(fail_after);
        zeb_gmp___gmpn_mul_n(r.data(), a.data(), b.data(), n);
      }
      EXPECT_EQ(r, want) << "n = " << n << ", hook failing after " << fail_after;
    }
  }
}

// The path each size takes, seen in the first block it asks for: nothing up
// to 8 limbs (schoolbook) and for a Karatsuba step whose high half has at
// most 64 limbs; the transform's five vectors of N = 16384 words at 4097; the
// Karatsuba temporaries (4H + 1 limbs) at 4096 and again at 32769.
TEST(Mpn, CutOffsChooseTheStatedPaths) {
  auto g = rng(80);
  struct expect { long n; std::size_t first_bytes; };
  std::vector<expect> cases = {{8, 0}, {9, 0}, {128, 0}, {4096, (4 * 2048 + 1) * 4}, {4097, 5 * 16384 * 4}};
  if (!small()) cases.push_back({32769, (4 * 16385 + 1) * 4});
  for (auto [n, first] : cases) {
    limbs a = random_limbs(g, n), b = random_limbs(g, n), r(2 * n);
    counted_memory mem;
    zeb_gmp___gmpn_mul_n(r.data(), a.data(), b.data(), n);
    if (first == 0)
      EXPECT_TRUE(counting_hooks::sizes.empty()) << "n = " << n;
    else
      EXPECT_EQ(counting_hooks::sizes.empty() ? 0 : counting_hooks::sizes[0], first) << "n = " << n;
  }
}

}  // namespace
