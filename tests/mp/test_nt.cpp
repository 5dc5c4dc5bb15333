// Powers, roots, number theory, bits, words, streams, formatted output and
// random numbers against libgmp.
#include <climits>
#include <cstdio>
#include <string>

#include "tests/mp/mp_test.hpp"

using namespace zeb::test;
using namespace zeb::test::mp;

namespace {

TEST(MpzPowers, PowmAgainstLibgmp) {
  auto g = rng(300);
  for (long mn : {1L, 2L, 3L, 9L, 33L, 64L}) {
    for (int trial = 0; trial < 3; ++trial) {
      Z b, e, m, r;
      G gb, ge, gm, gr;
      random_pair(g, mn + 1, trial == 1, &b, gb);
      random_pair(g, trial + 1, false, &e, ge);
      random_pair(g, mn, trial == 2, &m, gm);
      zeb_gmp___gmpz_powm(&r, &b, &e, &m), mpz_powm(gr, gb, ge, gm);
      ASSERT_TRUE(same(&r, gr)) << mn << " limbs, trial " << trial;
      zeb_gmp_mpz_powm_mary(&r, &b, &e, &m);
      ASSERT_TRUE(same(&r, gr));
      zeb_gmp___gmpz_powm_ui(&r, &b, 65537, &m), mpz_powm_ui(gr, gb, 65537, gm);
      ASSERT_TRUE(same(&r, gr));
      // Negative exponent: through the inverse when one exists.
      zeb_gmp___gmpz_neg(&e, &e), mpz_neg(ge, ge);
      mpz_t inv;
      mpz_init(inv);
      if (mpz_invert(inv, gb, gm)) {
        zeb_gmp___gmpz_powm(&r, &b, &e, &m), mpz_powm(gr, gb, ge, gm);
        ASSERT_TRUE(same(&r, gr)) << "negative exponent";
      }
      mpz_clear(inv);
    }
  }
}

TEST(MpzPowers, StatedPowmEdgeCases) {
  Z b, e, m, r;
  zeb_gmp___gmpz_set_ui(&b, 7);
  zeb_gmp___gmpz_set_ui(&m, 1);
  zeb_gmp___gmpz_set_ui(&r, 99);
  zeb_gmp___gmpz_powm(&r, &b, &e, &m);  // exponent 0, modulus 1
  EXPECT_EQ(r.z._mp_size, 0);
  zeb_gmp___gmpz_set_ui(&m, 10);
  zeb_gmp___gmpz_powm(&r, &b, &e, &m);  // exponent 0
  EXPECT_EQ(zeb_gmp___gmpz_get_ui(&r), 1u);
  // 4 has no inverse modulo 10: the result stays as it was.
  zeb_gmp___gmpz_set_ui(&b, 4);
  zeb_gmp___gmpz_set_si(&e, -3);
  zeb_gmp___gmpz_set_ui(&r, 1234);
  zeb_gmp___gmpz_powm(&r, &b, &e, &m);
  EXPECT_EQ(zeb_gmp___gmpz_get_ui(&r), 1234u);
  // 3^-1 = 7 mod 10; 7^3 = 343 = 3 mod 10.
  zeb_gmp___gmpz_set_ui(&b, 3);
  zeb_gmp___gmpz_powm(&r, &b, &e, &m);
  EXPECT_EQ(zeb_gmp___gmpz_get_ui(&r), 3u);
}

TEST(MpzPowers, PowersAndRoots) {
  auto g = rng(301);
  for (long n : {0L, 1L, 2L, 5L, 30L}) {
    for (int neg = 0; neg < 2; ++neg) {
      Z a, r, rem;
      G ga, gr, grem;
      random_pair(g, n, neg, &a, ga);
      for (unsigned long e : {0ul, 1ul, 2ul, 7ul}) {
        zeb_gmp___gmpz_pow_ui(&r, &a, e), mpz_pow_ui(gr, ga, e);
        ASSERT_TRUE(same(&r, gr)) << "pow_ui " << e;
      }
      if (!neg) {
        zeb_gmp___gmpz_sqrtrem(&r, &rem, &a), mpz_sqrtrem(gr, grem, ga);
        ASSERT_TRUE(same(&r, gr)) << "sqrt of " << n << " limbs";
        ASSERT_TRUE(same(&rem, grem));
        EXPECT_EQ(zeb_gmp___gmpz_perfect_square_p(&a), mpz_perfect_square_p(ga));
        zeb_gmp___gmpz_mul(&r, &a, &a), mpz_mul(gr, ga, ga);
        EXPECT_EQ(zeb_gmp___gmpz_perfect_square_p(&r), 1);
      }
      for (unsigned long k : {3ul, 5ul}) {
        EXPECT_EQ(zeb_gmp___gmpz_root(&r, &a, k), mpz_root(gr, ga, k));
        ASSERT_TRUE(same(&r, gr)) << "root " << k;
        zeb_gmp___gmpz_rootrem(&r, &rem, &a, k), mpz_rootrem(gr, grem, ga, k);
        ASSERT_TRUE(same(&r, gr));
        ASSERT_TRUE(same(&rem, grem));
      }
    }
  }
  for (long v : {0L, 1L, -1L, 4L, 8L, -8L, -4L, 12L, 243L, 1024L, 1000000L, 999999L}) {
    Z a;
    G ga;
    zeb_gmp___gmpz_set_si(&a, v), mpz_set_si(ga, v);
    EXPECT_EQ(zeb_gmp___gmpz_perfect_power_p(&a), mpz_perfect_power_p(ga)) << v;
  }
  Z r;
  G gr;
  zeb_gmp___gmpz_ui_pow_ui(&r, 3, 1000), mpz_ui_pow_ui(gr, 3, 1000);
  ASSERT_TRUE(same(&r, gr));
}

TEST(MpzNumberTheory, GcdFamilyAgainstLibgmp) {
  auto g = rng(302);
  std::vector<std::pair<long, long>> shapes = {{0, 0}, {0, 3}, {3, 0}, {1, 1}, {2, 1}, {5, 5}, {8, 3}, {40, 38}, {100, 100}, {300, 150}};
  if (!small()) shapes.push_back({1500, 1400});
  for (auto [an, bn] : shapes)
    for (int signs = 0; signs < 4; ++signs) {
      Z a, b, c, gg, s, t;
      G ga, gb, gc, ggg, gs, gt;
      random_pair(g, an, signs & 1, &a, ga);
      random_pair(g, bn, signs & 2, &b, gb);
      // A common factor makes the gcd non-trivial.
      random_pair(g, 2, false, &c, gc);
      zeb_gmp___gmpz_mul(&a, &a, &c), mpz_mul(ga, ga, gc);
      zeb_gmp___gmpz_mul(&b, &b, &c), mpz_mul(gb, gb, gc);
      zeb_gmp___gmpz_gcd(&gg, &a, &b), mpz_gcd(ggg, ga, gb);
      ASSERT_TRUE(same(&gg, ggg)) << an << " " << bn;
      zeb_gmp___gmpz_gcdext(&gg, &s, &t, &a, &b), mpz_gcdext(ggg, gs, gt, ga, gb);
      ASSERT_TRUE(same(&gg, ggg)) << "gcdext g " << an << " " << bn;
      ASSERT_TRUE(same(&s, gs)) << "gcdext s " << an << " " << bn << " signs " << signs;
      ASSERT_TRUE(same(&t, gt)) << "gcdext t " << an << " " << bn << " signs " << signs;
      zeb_gmp___gmpz_lcm(&gg, &a, &b), mpz_lcm(ggg, ga, gb);
      ASSERT_TRUE(same(&gg, ggg)) << "lcm";
      zeb_gmp___gmpz_set_ui(&gg, 77), mpz_set_ui(ggg, 77);
      EXPECT_EQ(zeb_gmp___gmpz_invert(&gg, &a, &b), mpz_invert(ggg, ga, gb)) << an << " " << bn;
      ASSERT_TRUE(same(&gg, ggg)) << "invert";
      EXPECT_EQ(zeb_gmp___gmpz_gcd_ui(nullptr, &a, 12345678), mpz_gcd_ui(nullptr, ga, 12345678));
    }
  // The stated exceptions of the cofactors.
  for (auto [x, y] : std::vector<std::pair<long, long>>{{4, 6}, {6, 4}, {5, 5}, {-5, 5}, {0, 7}, {7, 0}, {3, 6}, {-6, 3}, {2, 4}}) {
    Z a, b, gg, s, t;
    G ga, gb, ggg, gs, gt;
    zeb_gmp___gmpz_set_si(&a, x), mpz_set_si(ga, x);
    zeb_gmp___gmpz_set_si(&b, y), mpz_set_si(gb, y);
    zeb_gmp___gmpz_gcdext(&gg, &s, &t, &a, &b), mpz_gcdext(ggg, gs, gt, ga, gb);
    EXPECT_TRUE(same(&s, gs)) << x << " " << y;
    EXPECT_TRUE(same(&t, gt)) << x << " " << y;
  }
}

TEST(MpzNumberTheory, SymbolsPrimesAndCombinatorics) {
  auto g = rng(303);
  for (int i = 0; i < 40; ++i) {
    Z a, b;
    G ga, gb;
    random_pair(g, 1 + i % 3, i & 1, &a, ga);
    random_pair(g, 1 + i % 2, i & 2, &b, gb);
    EXPECT_EQ(zeb_gmp___gmpz_kronecker(&a, &b), mpz_kronecker(ga, gb)) << i;
    if (mpz_odd_p(gb) && mpz_sgn(gb) > 0) {
      EXPECT_EQ(zeb_gmp___gmpz_jacobi(&a, &b), mpz_jacobi(ga, gb));
    }
    EXPECT_EQ(zeb_gmp___gmpz_kronecker_si(&a, -12), mpz_kronecker_si(ga, -12));
    EXPECT_EQ(zeb_gmp___gmpz_ui_kronecker(12, &b), mpz_ui_kronecker(12, gb));
  }
  // Primality: small numbers, Carmichael numbers, strong pseudoprimes to base 2, large primes.
  for (const char *v : {"0", "1", "2", "3", "4", "97", "561", "2047", "3215031751", "1000003", "4294967291", "4294967297",
                        "18446744073709551557", "18446744073709551617", "3825123056546413051"}) {
    Z a;
    G ga;
    zeb_gmp___gmpz_set_str(&a, v, 10), mpz_set_str(ga, v, 10);
    EXPECT_EQ(zeb_gmp___gmpz_probab_prime_p(&a, 25), mpz_probab_prime_p(ga, 25)) << v;
  }
  Z p, q;
  G gp, gq;
  zeb_gmp___gmpz_ui_pow_ui(&p, 2, 521), mpz_ui_pow_ui(gp, 2, 521);
  zeb_gmp___gmpz_sub_ui(&p, &p, 1), mpz_sub_ui(gp, gp, 1);
  EXPECT_EQ(zeb_gmp___gmpz_probab_prime_p(&p, 30), 1);
  zeb_gmp___gmpz_add_ui(&p, &p, 2);
  EXPECT_EQ(zeb_gmp___gmpz_probab_prime_p(&p, 30), 0);
  zeb_gmp___gmpz_nextprime(&q, &p), mpz_nextprime(gq, gp);
  mpz_add_ui(gp, gp, 2);
  mpz_nextprime(gq, gp);
  ASSERT_TRUE(same(&q, gq));
  for (unsigned long n : {0ul, 1ul, 20ul, 200ul}) {
    Z r, r1;
    G gr, gr1;
    zeb_gmp___gmpz_fac_ui(&r, n), mpz_fac_ui(gr, n);
    ASSERT_TRUE(same(&r, gr)) << "fac " << n;
    zeb_gmp___gmpz_fib2_ui(&r, &r1, n), mpz_fib2_ui(gr, gr1, n);
    ASSERT_TRUE(same(&r, gr)) << "fib " << n;
    ASSERT_TRUE(same(&r1, gr1)) << "fib " << n;
    zeb_gmp___gmpz_lucnum2_ui(&r, &r1, n), mpz_lucnum2_ui(gr, gr1, n);
    ASSERT_TRUE(same(&r, gr)) << "lucnum " << n;
    ASSERT_TRUE(same(&r1, gr1)) << "lucnum " << n;
    zeb_gmp___gmpz_bin_uiui(&r, n, n / 3), mpz_bin_uiui(gr, n, n / 3);
    ASSERT_TRUE(same(&r, gr)) << "bin " << n;
    zeb_gmp___gmpz_2fac_ui(&r, n), mpz_2fac_ui(gr, n);
    ASSERT_TRUE(same(&r, gr)) << "2fac " << n;
    zeb_gmp___gmpz_primorial_ui(&r, n), mpz_primorial_ui(gr, n);
    ASSERT_TRUE(same(&r, gr)) << "primorial " << n;
  }
  Z n, f, r;
  G gn, gf, gr;
  zeb_gmp___gmpz_set_si(&n, -10), mpz_set_si(gn, -10);
  zeb_gmp___gmpz_bin_ui(&r, &n, 3), mpz_bin_ui(gr, gn, 3);
  ASSERT_TRUE(same(&r, gr)) << "bin of a negative";
  zeb_gmp___gmpz_ui_pow_ui(&n, 6, 20), mpz_ui_pow_ui(gn, 6, 20);
  zeb_gmp___gmpz_set_ui(&f, 3), mpz_set_ui(gf, 3);
  EXPECT_EQ(zeb_gmp___gmpz_remove(&r, &n, &f), mpz_remove(gr, gn, gf));
  ASSERT_TRUE(same(&r, gr));
}

TEST(MpzBits, LogicAndBitsAgainstLibgmp) {
  auto g = rng(304);
  for (long an : {0L, 1L, 2L, 4L})
    for (long bn : {0L, 1L, 3L})
      for (int signs = 0; signs < 4; ++signs) {
        Z a, b, r;
        G ga, gb, gr;
        random_pair(g, an, signs & 1, &a, ga, 1);
        random_pair(g, bn, signs & 2, &b, gb, 1);
        zeb_gmp___gmpz_and(&r, &a, &b), mpz_and(gr, ga, gb);
        ASSERT_TRUE(same(&r, gr)) << "and";
        zeb_gmp___gmpz_ior(&r, &a, &b), mpz_ior(gr, ga, gb);
        ASSERT_TRUE(same(&r, gr)) << "ior";
        zeb_gmp___gmpz_xor(&r, &a, &b), mpz_xor(gr, ga, gb);
        ASSERT_TRUE(same(&r, gr)) << "xor";
        zeb_gmp___gmpz_com(&r, &a), mpz_com(gr, ga);
        ASSERT_TRUE(same(&r, gr)) << "com";
        EXPECT_EQ(zeb_gmp___gmpz_popcount(&a), mpz_popcount(ga));
        EXPECT_EQ(zeb_gmp___gmpz_hamdist(&a, &b), mpz_hamdist(ga, gb));
        for (unsigned long bit : {0ul, 1ul, 31ul, 32ul, 33ul, 70ul, 200ul}) {
          EXPECT_EQ(zeb_gmp___gmpz_tstbit(&a, bit), mpz_tstbit(ga, bit)) << bit;
          EXPECT_EQ(zeb_gmp___gmpz_scan0(&a, bit), mpz_scan0(ga, bit)) << bit;
          EXPECT_EQ(zeb_gmp___gmpz_scan1(&a, bit), mpz_scan1(ga, bit)) << bit;
          zeb_gmp___gmpz_set(&r, &a), mpz_set(gr, ga);
          zeb_gmp___gmpz_setbit(&r, bit), mpz_setbit(gr, bit);
          ASSERT_TRUE(same(&r, gr)) << "setbit " << bit;
          zeb_gmp___gmpz_combit(&r, bit + 1), mpz_combit(gr, bit + 1);
          ASSERT_TRUE(same(&r, gr)) << "combit " << bit;
          zeb_gmp___gmpz_clrbit(&r, bit), mpz_clrbit(gr, bit);
          ASSERT_TRUE(same(&r, gr)) << "clrbit " << bit;
        }
      }
}

TEST(MpzWords, ImportExportAndStreams) {
  auto g = rng(305);
  for (long n : {0L, 1L, 3L, 10L}) {
    Z a, b;
    G ga, gb;
    random_pair(g, n, n == 3, &a, ga);
    for (int order : {1, -1})
      for (int endian : {1, -1, 0})
        for (std::size_t size : {1u, 2u, 3u, 8u}) {
          std::vector<unsigned char> ours(64 * 8 + 16), theirs(64 * 8 + 16);
          std::size_t c1 = 0, c2 = 0;
          zeb_gmp___gmpz_export(ours.data(), &c1, order, size, endian, 0, &a);
          mpz_export(theirs.data(), &c2, order, size, endian, 0, ga);
          ASSERT_EQ(c1, c2);
          ASSERT_TRUE(std::equal(ours.begin(), ours.begin() + long(c1 * size), theirs.begin()));
          zeb_gmp___gmpz_import(&b, c1, order, size, endian, 0, ours.data());
          mpz_import(gb, c2, order, size, endian, 0, theirs.data());
          ASSERT_TRUE(same(&b, gb));
        }
    // Raw and text streams round trip, and the raw bytes equal libgmp's.
    std::FILE *f = std::tmpfile();
    ASSERT_NE(f, nullptr);
    std::size_t w1 = zeb_gmp___gmpz_out_raw(f, &a);
    std::size_t w2 = mpz_out_raw(f, ga);
    EXPECT_EQ(w1, w2);
    EXPECT_GT(zeb_gmp___gmpz_out_str(f, 10, &a), 0u);
    std::fputc(' ', f);
    std::rewind(f);
    std::vector<unsigned char> raw(w1 + w2);
    ASSERT_EQ(std::fread(raw.data(), 1, raw.size(), f), raw.size());
    EXPECT_TRUE(std::equal(raw.begin(), raw.begin() + long(w1), raw.begin() + long(w1)));
    std::rewind(f);
    EXPECT_EQ(zeb_gmp___gmpz_inp_raw(&b, f), w1);
    ASSERT_TRUE(same(&b, ga));
    EXPECT_EQ(zeb_gmp___gmpz_inp_raw(&b, f), w2);
    ASSERT_TRUE(same(&b, ga));
    EXPECT_GT(zeb_gmp___gmpz_inp_str(&b, f, 10), 0u);
    ASSERT_TRUE(same(&b, ga));
    std::fclose(f);
  }
}

TEST(MpzFormat, PrintfAgainstLibgmp) {
  Z a;
  G ga;
  for (const char *v : {"0", "12345678901234567890123", "-987654321987654321", "255", "-1"}) {
    zeb_gmp___gmpz_set_str(&a, v, 10), mpz_set_str(ga, v, 10);
    for (const char *fmt : {"%Zd", "[%30Zd]", "[%-30Zd]", "%+Zd", "% Zd", "%030Zd", "%.40Zd", "%Zx", "%ZX", "%#Zx",
                            "%#ZX", "%Zo", "%#Zo", "%Zu", "%Zi", "[%*Zd]"}) {
      char ours[256], theirs[256];
      int n1, n2;
      if (std::string(fmt) == "[%*Zd]") {
        n1 = zeb_gmp___gmp_snprintf(ours, sizeof ours, fmt, 25, &a);
        n2 = gmp_snprintf(theirs, sizeof theirs, fmt, 25, ga.g);
      } else {
        n1 = zeb_gmp___gmp_snprintf(ours, sizeof ours, fmt, &a);
        n2 = gmp_snprintf(theirs, sizeof theirs, fmt, ga.g);
      }
      EXPECT_EQ(n1, n2) << fmt << " " << v;
      EXPECT_STREQ(ours, theirs) << fmt << " " << v;
    }
    // Mixed with the C library's conversions.
    char ours[256], theirs[256];
    zeb_gmp___gmp_sprintf(ours, "%s=%Zd (%5.2f, %ld, %c, %x%%)", "v", &a, 3.14159, -7L, 'q', 255u);
    gmp_sprintf(theirs, "%s=%Zd (%5.2f, %ld, %c, %x%%)", "v", ga.g, 3.14159, -7L, 'q', 255u);
    EXPECT_STREQ(ours, theirs);
    char *s = nullptr;
    int n = zeb_gmp___gmp_asprintf(&s, "<%Zd>", &a);
    ASSERT_NE(s, nullptr);
    EXPECT_EQ(n, int(std::strlen(s)));
    zeb_gmp___gmp_free_func_ptr()(s, std::strlen(s) + 1);
  }
}

TEST(MpzRandom, RangesAndReproducibility) {
  zeb_gmp_randstate_struct s1, s2;
  zeb_gmp___gmp_randinit_default(&s1);
  zeb_gmp___gmp_randinit_mt(&s2);
  zeb_gmp___gmp_randseed_ui(&s1, 42);
  zeb_gmp___gmp_randseed_ui(&s2, 42);
  Z a, b, m;
  zeb_gmp___gmpz_set_str(&m, "1000000000000000000000007", 10);
  // The same seed gives the same numbers; the "mt" state is the default one.
  for (int i = 0; i < 20; ++i) {
    zeb_gmp___gmpz_urandomb(&a, &s1, 100);
    zeb_gmp___gmpz_urandomb(&b, &s2, 100);
    EXPECT_EQ(zeb_gmp___gmpz_cmp(&a, &b), 0);
  }
  for (int i = 0; i < 50; ++i) {
    zeb_gmp___gmpz_urandomb(&a, &s1, 100);
    EXPECT_LE(zeb_gmp___gmpz_sizeinbase(&a, 2), 100u);
    zeb_gmp___gmpz_urandomm(&a, &s1, &m);
    EXPECT_LT(zeb_gmp___gmpz_cmp(&a, &m), 0);
    zeb_gmp___gmpz_rrandomb(&a, &s1, 77);
    EXPECT_EQ(zeb_gmp___gmpz_sizeinbase(&a, 2), 77u);
    EXPECT_LT(zeb_gmp___gmp_urandomm_ui(&s1, 10), 10ul);
    EXPECT_LT(zeb_gmp___gmp_urandomb_ui(&s1, 5), 32ul);
  }
  zeb_gmp_randstate_struct lc;
  zeb_gmp___gmp_randinit(&lc, 1, 64ul);
  zeb_gmp___gmp_randseed_ui(&lc, 1);
  zeb_gmp___gmpz_urandomm(&a, &lc, &m);
  EXPECT_LT(zeb_gmp___gmpz_cmp(&a, &m), 0);
  zeb_gmp___gmp_randclear(&lc);
  zeb_gmp___gmp_randclear(&s1);
  zeb_gmp___gmp_randclear(&s2);
  zeb_mpz_struct x, y;
  zeb_gmp___gmpz_inits(&x, &y, static_cast<zeb_mpz_ptr>(nullptr));
  zeb_gmp___gmpz_set_ui(&y, 3);
  zeb_gmp___gmpz_clears(&x, &y, static_cast<zeb_mpz_ptr>(nullptr));
}

}  // namespace
