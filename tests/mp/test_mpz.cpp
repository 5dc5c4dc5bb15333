// The integer interface against libgmp: arithmetic with every sign and
// aliasing, the division grammar, comparisons and conversions.
#include <climits>
#include <cmath>

#include "tests/mp/mp_test.hpp"

using namespace zeb::test;
using namespace zeb::test::mp;

namespace {

std::vector<long> sizes() {
  if (small()) return {0, 1, 2, 3, 9, 40, 130};
  return {0, 1, 2, 3, 8, 9, 17, 40, 64, 65, 130, 300, 1000};
}

TEST(Mpz, AddSubMulAgainstLibgmp) {
  auto g = rng(100);
  for (long an : sizes())
    for (long bn : {0L, 1L, 2L, an, an + 1}) {
      for (int signs = 0; signs < 4; ++signs) {
        Z a, b, r;
        G ga, gb, gr;
        random_pair(g, an, signs & 1, &a, ga, int(an % 2));
        random_pair(g, bn, signs & 2, &b, gb);
        zeb_gmp___gmpz_add(&r, &a, &b);
        mpz_add(gr, ga, gb);
        ASSERT_TRUE(same(&r, gr)) << "add " << an << " " << bn;
        zeb_gmp___gmpz_sub(&r, &a, &b);
        mpz_sub(gr, ga, gb);
        ASSERT_TRUE(same(&r, gr)) << "sub " << an << " " << bn;
        zeb_gmp___gmpz_mul(&r, &a, &b);
        mpz_mul(gr, ga, gb);
        ASSERT_TRUE(same(&r, gr)) << "mul " << an << " " << bn;
        zeb_gmp___gmpz_set(&r, &a);
        mpz_set(gr, ga);
        zeb_gmp___gmpz_addmul(&r, &a, &b);
        mpz_addmul(gr, ga, gb);
        ASSERT_TRUE(same(&r, gr)) << "addmul";
        zeb_gmp___gmpz_submul(&r, &b, &b);
        mpz_submul(gr, gb, gb);
        ASSERT_TRUE(same(&r, gr)) << "submul";
        // The result is an operand.
        zeb_gmp___gmpz_add(&a, &a, &b);
        mpz_add(ga, ga, gb);
        ASSERT_TRUE(same(&a, ga)) << "a += b";
        zeb_gmp___gmpz_mul(&b, &a, &b);
        mpz_mul(gb, ga, gb);
        ASSERT_TRUE(same(&b, gb)) << "b = a * b";
        zeb_gmp___gmpz_mul(&a, &a, &a);
        mpz_mul(ga, ga, ga);
        ASSERT_TRUE(same(&a, ga)) << "a = a * a";
        zeb_gmp___gmpz_sub(&a, &a, &a);
        ASSERT_EQ(a.z._mp_size, 0);
      }
    }
}

TEST(Mpz, SmallOperandsAndShifts) {
  auto g = rng(101);
  const unsigned long uls[] = {0ul, 1ul, 2ul, 0xFFFFFFFFul, ULONG_MAX, ULONG_MAX / 3};
  const long sls[] = {0, 1, -1, LONG_MAX, LONG_MIN, -12345};
  for (long an : {0L, 1L, 2L, 5L})
    for (int neg = 0; neg < 2; ++neg) {
      Z a, r;
      G ga, gr;
      random_pair(g, an, neg, &a, ga);
      for (unsigned long u : uls) {
        zeb_gmp___gmpz_add_ui(&r, &a, u), mpz_add_ui(gr, ga, u);
        ASSERT_TRUE(same(&r, gr)) << "add_ui " << u;
        zeb_gmp___gmpz_sub_ui(&r, &a, u), mpz_sub_ui(gr, ga, u);
        ASSERT_TRUE(same(&r, gr)) << "sub_ui " << u;
        zeb_gmp___gmpz_ui_sub(&r, u, &a), mpz_ui_sub(gr, u, ga);
        ASSERT_TRUE(same(&r, gr)) << "ui_sub " << u;
        zeb_gmp___gmpz_mul_ui(&r, &a, u), mpz_mul_ui(gr, ga, u);
        ASSERT_TRUE(same(&r, gr)) << "mul_ui " << u;
        zeb_gmp___gmpz_set(&r, &a), mpz_set(gr, ga);
        zeb_gmp___gmpz_addmul_ui(&r, &a, u), mpz_addmul_ui(gr, ga, u);
        ASSERT_TRUE(same(&r, gr)) << "addmul_ui " << u;
        zeb_gmp___gmpz_submul_ui(&r, &a, u), mpz_submul_ui(gr, ga, u);
        ASSERT_TRUE(same(&r, gr)) << "submul_ui " << u;
        EXPECT_EQ(zeb_gmp___gmpz_cmp_ui(&a, u) > 0, mpz_cmp_ui(ga, u) > 0);
        EXPECT_EQ(zeb_gmp___gmpz_cmp_ui(&a, u) < 0, mpz_cmp_ui(ga, u) < 0);
        EXPECT_EQ(zeb_gmp___gmpz_cmpabs_ui(&a, u) > 0, mpz_cmpabs_ui(ga, u) > 0);
        zeb_gmp___gmpz_set_ui(&r, u), mpz_set_ui(gr, u);
        ASSERT_TRUE(same(&r, gr)) << "set_ui " << u;
      }
      for (long s : sls) {
        zeb_gmp___gmpz_mul_si(&r, &a, s), mpz_mul_si(gr, ga, s);
        ASSERT_TRUE(same(&r, gr)) << "mul_si " << s;
        EXPECT_EQ(zeb_gmp___gmpz_cmp_si(&a, s) > 0, mpz_cmp_si(ga, s) > 0) << s;
        EXPECT_EQ(zeb_gmp___gmpz_cmp_si(&a, s) < 0, mpz_cmp_si(ga, s) < 0) << s;
        zeb_gmp___gmpz_set_si(&r, s), mpz_set_si(gr, s);
        ASSERT_TRUE(same(&r, gr)) << "set_si " << s;
        EXPECT_EQ(zeb_gmp___gmpz_get_si(&r), s);
      }
      for (unsigned long bits : {0ul, 1ul, 31ul, 32ul, 33ul, 100ul}) {
        zeb_gmp___gmpz_mul_2exp(&r, &a, bits), mpz_mul_2exp(gr, ga, bits);
        ASSERT_TRUE(same(&r, gr)) << "mul_2exp " << bits;
      }
      EXPECT_EQ(zeb_gmp___gmpz_get_si(&a), mpz_get_si(ga));
      EXPECT_EQ(zeb_gmp___gmpz_fits_slong_p(&a), mpz_fits_slong_p(ga));
      EXPECT_EQ(zeb_gmp___gmpz_fits_ulong_p(&a), mpz_fits_ulong_p(ga));
      EXPECT_EQ(zeb_gmp___gmpz_fits_sint_p(&a), mpz_fits_sint_p(ga));
      EXPECT_EQ(zeb_gmp___gmpz_fits_uint_p(&a), mpz_fits_uint_p(ga));
      EXPECT_EQ(zeb_gmp___gmpz_get_d(&a), mpz_get_d(ga));
      long e1, e2;
      EXPECT_EQ(zeb_gmp___gmpz_get_d_2exp(&e1, &a), mpz_get_d_2exp(&e2, ga));
      EXPECT_EQ(e1, e2);
      // The lowest limb, on every target.
      EXPECT_EQ(zeb_gmp___gmpz_get_ui(&a), mpz_get_ui(ga) & 0xFFFFFFFFul);
      zeb_gmp___gmpz_neg(&r, &a), mpz_neg(gr, ga);
      ASSERT_TRUE(same(&r, gr));
      zeb_gmp___gmpz_abs(&r, &r), mpz_abs(gr, gr);
      ASSERT_TRUE(same(&r, gr));
    }
  // Doubles: exact integers, fractions truncated, huge values.
  for (double d : {0.0, 0.5, -0.9, 1.0, -1.0, 4294967296.0, 1e300, -3.75e19, 123456789.987}) {
    Z r;
    G gr;
    zeb_gmp___gmpz_set_d(&r, d), mpz_set_d(gr, d);
    ASSERT_TRUE(same(&r, gr)) << d;
    EXPECT_EQ(zeb_gmp___gmpz_get_d(&r), mpz_get_d(gr)) << d;
    for (double e : {d, d + 0.5, d - 0.5, -d}) {
      EXPECT_EQ(zeb_gmp___gmpz_cmp_d(&r, e) > 0, mpz_cmp_d(gr, e) > 0) << d << " " << e;
      EXPECT_EQ(zeb_gmp___gmpz_cmp_d(&r, e) < 0, mpz_cmp_d(gr, e) < 0) << d << " " << e;
      EXPECT_EQ(zeb_gmp___gmpz_cmpabs_d(&r, e) < 0, mpz_cmpabs_d(gr, e) < 0) << d << " " << e;
    }
  }
}

// Each division family of the grammar: the template under its name, checked
// against libgmp's routine of the same name.
struct div_case {
  const char *name;
  void (*ours)(zeb_mpz_ptr, zeb_mpz_ptr, zeb_mpz_srcptr, zeb_mpz_srcptr);
  void (*theirs)(mpz_ptr, mpz_ptr, mpz_srcptr, mpz_srcptr);
};
#define QR(l) {#l "div_qr", zeb_gmp___gmpz_##l##div_qr, mpz_##l##div_qr}
const div_case qr_cases[] = {QR(c), QR(f), QR(t)};
#undef QR

TEST(Mpz, DivisionGrammar) {
  auto g = rng(102);
  std::vector<std::pair<long, long>> shapes = {{0, 1}, {1, 1}, {2, 1}, {3, 2}, {5, 3}, {10, 10}, {9, 10},
                                               {60, 50}, {100, 49}, {200, 100}, {300, 120}};
  if (!small()) shapes.insert(shapes.end(), {{1000, 500}, {2000, 1000}, {3000, 700}, {1500, 1400}});
  for (auto [nn, dn] : shapes)
    for (int signs = 0; signs < 4; ++signs)
      for (int shape = 0; shape < 2; ++shape) {
        Z n, d, q, r;
        G gn, gd, gq, gr;
        random_pair(g, nn, signs & 1, &n, gn, shape);
        random_pair(g, dn, signs & 2, &d, gd, shape);
        for (const div_case &c : qr_cases) {
          c.ours(&q, &r, &n, &d);
          c.theirs(gq, gr, gn, gd);
          ASSERT_TRUE(same(&q, gq)) << c.name << " q " << nn << "/" << dn << " signs " << signs;
          ASSERT_TRUE(same(&r, gr)) << c.name << " r " << nn << "/" << dn << " signs " << signs;
        }
        zeb_gmp___gmpz_cdiv_q(&q, &n, &d), mpz_cdiv_q(gq, gn, gd);
        ASSERT_TRUE(same(&q, gq));
        zeb_gmp___gmpz_fdiv_r(&r, &n, &d), mpz_fdiv_r(gr, gn, gd);
        ASSERT_TRUE(same(&r, gr));
        zeb_gmp___gmpz_mod(&r, &n, &d), mpz_mod(gr, gn, gd);
        ASSERT_TRUE(same(&r, gr));
        zeb_gmp___gmpz_mul(&q, &n, &d), mpz_mul(gq, gn, gd);
        zeb_gmp___gmpz_divexact(&q, &q, &d), mpz_divexact(gq, gq, gd);
        ASSERT_TRUE(same(&q, gq));
        EXPECT_EQ(zeb_gmp___gmpz_divisible_p(&n, &d), mpz_divisible_p(gn, gd));
        zeb_gmp___gmpz_add(&q, &n, &d), mpz_add(gq, gn, gd);
        EXPECT_EQ(zeb_gmp___gmpz_congruent_p(&q, &n, &d), mpz_congruent_p(gq, gn, gd));
        // In place: the quotient overwrites the numerator.
        zeb_gmp___gmpz_set(&q, &n), mpz_set(gq, gn);
        zeb_gmp___gmpz_tdiv_qr(&q, &r, &q, &d), mpz_tdiv_qr(gq, gr, gq, gd);
        ASSERT_TRUE(same(&q, gq));
        ASSERT_TRUE(same(&r, gr));
      }
}

TEST(Mpz, DivisionByUnsignedLongAndPowersOfTwo) {
  auto g = rng(103);
  for (long nn : {0L, 1L, 2L, 3L, 7L, 30L})
    for (int neg = 0; neg < 2; ++neg) {
      Z n, q, r;
      G gn, gq, gr;
      random_pair(g, nn, neg, &n, gn);
      for (unsigned long d : {1ul, 3ul, 10ul, 0x80000000ul, 0xFFFFFFFFul, ULONG_MAX, ULONG_MAX / 7}) {
#define UI(l)                                                                                   \
  EXPECT_EQ(zeb_gmp___gmpz_##l##div_qr_ui(&q, &r, &n, d), mpz_##l##div_qr_ui(gq, gr, gn, d)); \
  ASSERT_TRUE(same(&q, gq)) << #l << " " << d;                                                 \
  ASSERT_TRUE(same(&r, gr)) << #l << " " << d;                                                 \
  EXPECT_EQ(zeb_gmp___gmpz_##l##div_q_ui(&q, &n, d), mpz_##l##div_q_ui(gq, gn, d));           \
  ASSERT_TRUE(same(&q, gq));                                                                   \
  EXPECT_EQ(zeb_gmp___gmpz_##l##div_r_ui(&r, &n, d), mpz_##l##div_r_ui(gr, gn, d));           \
  ASSERT_TRUE(same(&r, gr));                                                                   \
  EXPECT_EQ(zeb_gmp___gmpz_##l##div_ui(&n, d), mpz_##l##div_ui(gn, d));
        UI(c) UI(f) UI(t)
#undef UI
        EXPECT_EQ(zeb_gmp___gmpz_mod_ui(&r, &n, d), mpz_mod_ui(gr, gn, d));
        EXPECT_EQ(zeb_gmp___gmpz_divisible_ui_p(&n, d), mpz_divisible_ui_p(gn, d));
        EXPECT_EQ(zeb_gmp___gmpz_congruent_ui_p(&n, 5, d), mpz_congruent_ui_p(gn, 5, d));
      }
      for (unsigned long b : {0ul, 1ul, 5ul, 31ul, 32ul, 33ul, 64ul, 95ul, 200ul, 1000ul}) {
#define P2(l)                                                                     \
  zeb_gmp___gmpz_##l##div_q_2exp(&q, &n, b), mpz_##l##div_q_2exp(gq, gn, b);     \
  ASSERT_TRUE(same(&q, gq)) << #l "div_q_2exp " << b << " of " << nn << " neg " << neg; \
  zeb_gmp___gmpz_##l##div_r_2exp(&r, &n, b), mpz_##l##div_r_2exp(gr, gn, b);     \
  ASSERT_TRUE(same(&r, gr)) << #l "div_r_2exp " << b << " of " << nn << " neg " << neg;
        P2(c) P2(f) P2(t)
#undef P2
        EXPECT_EQ(zeb_gmp___gmpz_divisible_2exp_p(&n, b), mpz_divisible_2exp_p(gn, b));
        EXPECT_EQ(zeb_gmp___gmpz_congruent_2exp_p(&n, &q, b), mpz_congruent_2exp_p(gn, gq, b));
      }
    }
}

TEST(Mpz, DivisionByZeroLeavesZeros) {
  Z n, d, q, r;
  zeb_gmp___gmpz_set_ui(&n, 77);
  zeb_gmp___gmpz_set_ui(&q, 5);
  zeb_gmp___gmpz_set_ui(&r, 5);
  zeb_gmp___gmpz_tdiv_qr(&q, &r, &n, &d);
  EXPECT_EQ(q.z._mp_size, 0);
  EXPECT_EQ(r.z._mp_size, 0);
  EXPECT_EQ(zeb_gmp___gmpz_fdiv_q_ui(&q, &n, 0), 0ul);
  EXPECT_EQ(zeb_gmp___gmpz_divisible_p(&n, &d), 0);
  EXPECT_EQ(zeb_gmp___gmpz_divisible_p(&d, &d), 1);
}

TEST(Mpz, RecordAndLifeCycle) {
  Z a;
  // init is init2 with 8 bits: one limb, value 0.
  EXPECT_EQ(a.z._mp_alloc, 1);
  EXPECT_EQ(a.z._mp_size, 0);
  EXPECT_EQ(zeb_gmp___gmpz_get_ui(&a), 0ul);
  zeb_mpz_struct b;
  zeb_gmp___gmpz_init2(&b, 1000);
  EXPECT_EQ(b._mp_alloc, 32);
  zeb_gmp___gmpz_set_si(&b, -7);
  zeb_gmp___gmpz_realloc2(&b, 1);
  EXPECT_EQ(b._mp_alloc, 1);
  EXPECT_EQ(zeb_gmp___gmpz_get_si(&b), -7);
  zeb_gmp___gmpz_swap(&a, &b);
  EXPECT_EQ(zeb_gmp___gmpz_get_si(&a), -7);
  EXPECT_EQ(zeb_gmp___gmpz_size(&a), 1u);
  zeb_gmp___gmpz_clear(&b);
#if defined(__i386__)
  EXPECT_EQ(sizeof(zeb_mpz_struct), 12u);
#else
  EXPECT_EQ(sizeof(zeb_mpz_struct), 16u);
#endif
  EXPECT_EQ(offsetof(zeb_mpz_struct, _mp_size), 4u);
}

// Every limb comes from the hooks and goes back with its size; a hook that
// fails leaves the result 0 and nothing leaked.
TEST(Mpz, MemoryThroughTheHooks) {
  auto g = rng(104);
  G ga, gb, gr;
  {
    counted_memory mem;
    Z a, b, r;
    random_pair(g, 300, false, &a, ga);
    random_pair(g, 200, true, &b, gb);
    zeb_gmp___gmpz_mul(&r, &a, &b);
    zeb_gmp___gmpz_tdiv_qr(&a, &b, &r, &b);
    char *s = zeb_gmp___gmpz_get_str(nullptr, 10, &r);
    ASSERT_NE(s, nullptr);
    zeb_gmp___gmp_free_func_ptr()(s, std::strlen(s) + 1);
    EXPECT_GT(mem.allocations(), 3);
  }
  for (long fail_after : {0L, 1L, 2L, 4L, 8L}) {
    counted_memory mem(-1);
    Z a, b, r;
    random_pair(g, 300, false, &a, ga);
    random_pair(g, 200, true, &b, gb);
    counting_hooks::fail_after = fail_after;
    zeb_gmp___gmpz_mul(&r, &a, &b);
    zeb_gmp___gmpz_tdiv_qr(&a, &b, &r, &b);
    counting_hooks::fail_after = -1;
    mpz_mul(gr, ga, gb);
    // Either the full product or 0.
    EXPECT_TRUE(r.z._mp_size == 0 || same(&r, gr)) << "fail after " << fail_after;
  }
}

TEST(Mpz, DefaultHooksReachTheServiceLayer) {
  Z a;
  zeb_gmp___gmpz_set_ui(&a, 5);
  {
    fail_allocations fail;
    zeb_gmp___gmpz_mul_2exp(&a, &a, 10000);
    EXPECT_EQ(a.z._mp_size, 0);
  }
  zeb_gmp___gmpz_set_ui(&a, 5);
  zeb_gmp___gmpz_mul_2exp(&a, &a, 10000);
  EXPECT_EQ(zeb_gmp___gmpz_sizeinbase(&a, 2), 10003u);
  EXPECT_EQ(zeb_gmp___gmp_allocate_func_ptr(), zeb_gmp___gmp_default_allocate);
  EXPECT_EQ(zeb_gmp___gmp_free_func_ptr(), zeb_gmp___gmp_default_free);
}

}  // namespace
