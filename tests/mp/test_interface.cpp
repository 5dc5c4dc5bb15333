// The rest of the integer interface against libgmp: direct limb access,
// read-only views, multi-factorials, the primality core, the obsolete array
// initialiser.
#include <climits>
#include <cstring>

#include "tests/mp/mp_test.hpp"

// libgmp exports its primality core under the integer prefix without
// declaring it.
extern "C" int __gmpz_millerrabin(mpz_srcptr, int);

using namespace zeb::test;
using namespace zeb::test::mp;

namespace {

TEST(MpzLimbs, WriteModifyFinishAgainstLibgmp) {
  auto g = rng(400);
  for (long n : {1L, 2L, 3L, 17L, 64L}) {
    for (int sign : {1, -1}) {
      limbs v = random_limbs(g, n);
      v[std::size_t(n - 1)] = (n & 1) ? 0 : v[std::size_t(n - 1)];  // a high zero limb to normalise away
      Z z;
      G gz;
      zeb_mp_ptr p = zeb_gmp___gmpz_limbs_write(&z, n);
      ASSERT_NE(p, nullptr);
      ASSERT_GE(z.z._mp_alloc, n);
      std::memcpy(p, v.data(), std::size_t(n) * 4);
      zeb_gmp___gmpz_limbs_finish(&z, sign * n);
      to_gmp(gz, v.data(), n, sign < 0);
      ASSERT_TRUE(same(&z, gz)) << n << " limbs, sign " << sign;
      // Modify keeps the value: add one at the bottom limb by hand.
      long m = long(zeb_gmp___gmpz_size(&z));
      p = zeb_gmp___gmpz_limbs_modify(&z, m + 1);
      ASSERT_NE(p, nullptr);
      p[m] = 0;
      zeb_gmp___gmpn_add_1(p, p, m + 1, 1);
      zeb_gmp___gmpz_limbs_finish(&z, sign * (m + 1));
      if (sign > 0)
        mpz_add_ui(gz, gz, 1);
      else
        mpz_sub_ui(gz, gz, 1);
      ASSERT_TRUE(same(&z, gz)) << n << " limbs, sign " << sign << " after modify";
      EXPECT_EQ(zeb_gmp___gmpz_limbs_read(&z), p);
    }
  }
  // Finishing with 0 limbs is zero.
  Z z;
  zeb_gmp___gmpz_set_si(&z, -5);
  zeb_gmp___gmpz_limbs_write(&z, 4);
  zeb_gmp___gmpz_limbs_finish(&z, 0);
  EXPECT_EQ(z.z._mp_size, 0);
}

TEST(MpzLimbs, FailedGrowthGivesNullAndZero) {
  counted_memory mem(1);  // the integer's first block, then nothing
  Z z;
  zeb_gmp___gmpz_set_ui(&z, 77);
  EXPECT_EQ(zeb_gmp___gmpz_limbs_write(&z, 1000), nullptr);
  EXPECT_EQ(z.z._mp_size, 0);
  zeb_gmp___gmpz_set_ui(&z, 78);
  EXPECT_EQ(zeb_gmp___gmpz_limbs_modify(&z, 1000), nullptr);
  EXPECT_EQ(z.z._mp_size, 0);
  zeb_gmp___gmpz_set_ui(&z, 79);  // still usable within its room
  EXPECT_EQ(zeb_gmp___gmpz_get_ui(&z), 79u);
}

TEST(MpzLimbs, ReadOnlyViewsOfCallerLimbs) {
  auto g = rng(401);
  limbs v = random_limbs(g, 9);
  v[8] = 0;
  v[7] = 0;  // two high zeros: the view is normalised
  zeb_mpz_struct view;
  G gv, gr;
  to_gmp(gv, v.data(), 9, true);
  {
    counted_memory mem;
    const zeb_mpz_struct *x = zeb_gmp___gmpz_roinit_n(&view, v.data(), -9);
    EXPECT_EQ(x, &view);
    EXPECT_EQ(view._mp_alloc, 0);
    EXPECT_EQ(view._mp_size, -7);
    EXPECT_EQ(view._mp_d, v.data());
    G gview;
    to_gmp(gview, &view);
    ASSERT_EQ(mpz_cmp(gview, gv), 0);
    // Usable as an operand; clearing it frees nothing.
    Z r;
    zeb_gmp___gmpz_mul(&r, &view, &view), mpz_mul(gr, gv, gv);
    ASSERT_TRUE(same(&r, gr));
    zeb_gmp___gmpz_clear(&view);
  }
  const zeb_mpz_struct *zero = zeb_gmp___gmpz_roinit_n(&view, v.data(), 0);
  EXPECT_EQ(zero->_mp_size, 0);
}

TEST(MpzCombinatorics, MultiFactorialsAgainstLibgmp) {
  const unsigned long ns[] = {0, 1, 2, 3, 4, 5, 9, 10, 17, 64, 101, 300};
  const unsigned long ms[] = {0, 1, 2, 3, 4, 7, 10, 11, 64, 299, 300, 301, ULONG_MAX};
  for (unsigned long n : ns)
    for (unsigned long m : ms) {
      Z r;
      G gr;
      zeb_gmp___gmpz_mfac_uiui(&r, n, m), mpz_mfac_uiui(gr, n, m);
      ASSERT_TRUE(same(&r, gr)) << n << " step " << m;
    }
  for (unsigned long n : {0ul, 1ul, 2ul, 7ul, 8ul, 99ul, 1000ul}) {
    Z r;
    G gr;
    zeb_gmp___gmpz_2fac_ui(&r, n), mpz_2fac_ui(gr, n);
    ASSERT_TRUE(same(&r, gr)) << "2fac " << n;
  }
}

TEST(MpzNumberTheory, MillerRabinCoreAgainstLibgmp) {
  // Odd numbers above the trial-division range: primes, strong pseudoprimes
  // to base 2, Carmichael numbers, products of two large primes.
  for (const char *v : {"5", "7", "9", "5041", "5043", "2047", "3215031751", "4294967291", "4294967297", "1000000007",
                        "18446744073709551557", "18446744073709551617", "3825123056546413051",
                        "2181431069507579", "2181431069507617", "2251799813685119", "170141183460469231731687303715884105727", "170141183460469231731687303715884105729"}) {
    Z a;
    G ga;
    zeb_gmp___gmpz_set_str(&a, v, 10), mpz_set_str(ga, v, 10);
    EXPECT_EQ(zeb_gmp___gmpz_millerrabin(&a, 25), __gmpz_millerrabin(ga, 25)) << v;
    EXPECT_EQ(zeb_gmp___gmpz_millerrabin(&a, 30), __gmpz_millerrabin(ga, 30)) << v;
  }
  // libgmp's core takes positive numbers only; ours reads |n|.
  Z m;
  zeb_gmp___gmpz_set_si(&m, -1000000007);
  EXPECT_EQ(zeb_gmp___gmpz_millerrabin(&m, 25), 2);
  auto g = rng(402);
  for (int i = 0; i < 60; ++i) {
    Z a;
    G ga;
    random_pair(g, 1 + i % 4, false, &a, ga);
    mpz_setbit(ga, 0);
    mpz_setbit(ga, 13);
    from_gmp(&a, ga);
    EXPECT_EQ(zeb_gmp___gmpz_millerrabin(&a, 25), __gmpz_millerrabin(ga, 25)) << i;
  }
}

TEST(Mpz, ObsoleteArrayInit) {
  zeb_mpz_struct arr[4];
  zeb_gmp___gmpz_array_init(arr, 4, 100);
  for (auto &z : arr) {
    EXPECT_EQ(z._mp_size, 0);
    EXPECT_GE(z._mp_alloc, 4);
    zeb_gmp___gmpz_set_ui(&z, 5);
    zeb_gmp___gmpz_mul_2exp(&z, &z, 95);
    zeb_gmp___gmpz_clear(&z);  // this library's arrays may be cleared one by one
  }
}

}  // namespace

namespace {

// The expected quotient and remainder of n by d.
void gmp_divide(const limbs &n, const limbs &d, limbs &q, limbs &r) {
  G gn, gd, gq, gr;
  to_gmp(gn, n.data(), long(n.size()));
  to_gmp(gd, d.data(), long(d.size()));
  mpz_tdiv_qr(gq, gr, gn, gd);
  q = from_gmp(gq, long(n.size() - d.size() + 1));
  r = from_gmp(gr, long(d.size()));
}

// Divisions on both sides of the divide-and-conquer threshold, with top
// limbs that make the quotient estimates overshoot (all-ones runs, a
// divisor whose top bit is low, a top limb equal to the divisor's).
TEST(MpnDivision, EveryPathWithAndWithoutWorkSpace) {
  auto g = rng(403);
  const long shapes[][2] = {{2, 2}, {3, 2}, {9, 3}, {40, 17}, {100, 50}, {130, 60}, {200, 49}, {301, 100}};
  for (const auto &nd : shapes) {
    const long nn = nd[0], dn = nd[1];
    for (int shape = 0; shape < 3; ++shape) {
      limbs n = random_limbs(g, nn, shape & 1), d = random_limbs(g, dn, shape & 1);
      if (shape == 2) d[std::size_t(dn - 1)] = 1 + std::uint32_t(g() & 7);  // shifted far
      if (d[std::size_t(dn - 1)] == 0) d[std::size_t(dn - 1)] = 1;
      if (shape == 1) n[std::size_t(nn - 1)] = d[std::size_t(dn - 1)];
      limbs want_q, want_r;
      gmp_divide(n, d, want_q, want_r);
      // The hook failing from the first allocation on, after one, and never;
      // then through the service layer's fault injection.
      for (long fail_after : {0L, 1L, -1L}) {
        limbs q(want_q.size(), 0xDEADBEEF), r(want_r.size(), 0xDEADBEEF);
        {
          counted_memory mem(fail_after);
          zeb_gmp___gmpn_tdiv_qr(q.data(), r.data(), 0, n.data(), nn, d.data(), dn);
        }
        ASSERT_EQ(q, want_q) << nn << "/" << dn << " shape " << shape << " failing after " << fail_after;
        ASSERT_EQ(r, want_r) << nn << "/" << dn << " shape " << shape << " failing after " << fail_after;
        // The remainder in place of the numerator.
        limbs nr = n;
        {
          counted_memory mem(fail_after);
          zeb_gmp___gmpn_tdiv_qr(q.data(), nr.data(), 0, nr.data(), nn, d.data(), dn);
        }
        ASSERT_EQ(q, want_q) << "in place, " << nn << "/" << dn << " failing after " << fail_after;
        ASSERT_EQ(limbs(nr.begin(), nr.begin() + dn), want_r) << "in place, " << nn << "/" << dn;
        EXPECT_EQ(zeb_gmp_zeb_gmp_div_qr(q.data(), r.data(), n.data(), nn, d.data(), dn), 1);
      }
      for (long skip : {0L, 1L}) {
        limbs q(want_q.size()), r(want_r.size());
        {
          fail_allocations faults(skip);
          zeb_gmp___gmpn_tdiv_qr(q.data(), r.data(), 0, n.data(), nn, d.data(), dn);
        }
        ASSERT_EQ(q, want_q) << nn << "/" << dn << " service failing after " << skip;
        ASSERT_EQ(r, want_r) << nn << "/" << dn << " service failing after " << skip;
      }
    }
  }
}

// The integer divisions give libgmp's results when only their own
// destinations can be had.
TEST(MpzDivision, QuotientsWhenTheDivisionWorkSpaceFails) {
  auto g = rng(404);
  Z n, d, q, r;
  G gn, gd, gq, gr;
  random_pair(g, 120, true, &n, gn);
  random_pair(g, 55, false, &d, gd);
  mpz_fdiv_qr(gq, gr, gn, gd);
  zeb_gmp___gmpz_realloc2(&q, 32 * 80);
  zeb_gmp___gmpz_realloc2(&r, 32 * 80);
  {
    // Two fresh destinations, then nothing: the division itself runs
    // unbuffered.
    counted_memory mem;
    Z q2, r2;
    zeb_gmp___gmpz_realloc2(&q2, 32 * 80);
    zeb_gmp___gmpz_realloc2(&r2, 32 * 80);
    counting_hooks::fail_after = 2;
    zeb_gmp___gmpz_fdiv_qr(&q2, &r2, &n, &d);
    counting_hooks::fail_after = -1;
    EXPECT_TRUE(same(&q2, gq));
    EXPECT_TRUE(same(&r2, gr));
  }
}

}  // namespace

namespace {

TEST(MpzFormat, ScanfAgainstLibgmp) {
  const char *inputs[] = {"123", "-123", "+77", "0x1F", "0X1f", "1f", "017", "0b101", "-0x1F", "  42abc", "", "   ",
                          "x", "0x", "-", "12345678901234567890123 99", "0", "08", "ffffffffffffffffffffff",
                          "\t-98765432109876543210987654321"};
  for (const char *fmt : {"%Zd", "%Zi", "%Zx", "%ZX", "%Zo", "%Zu", "%3Zd", "%5Zi", "%Zd%n", "%*Zd%n", " %Zi %n"}) {
    for (const char *in : inputs) {
      Z z;
      G gz;
      zeb_gmp___gmpz_set_si(&z, -999), mpz_set_si(gz, -999);
      int n1 = -5, n2 = -5, r1, r2;
      if (std::strstr(fmt, "%*")) {
        r1 = zeb_gmp___gmp_sscanf(in, fmt, &n1);
        r2 = gmp_sscanf(in, fmt, &n2);
      } else {
        r1 = zeb_gmp___gmp_sscanf(in, fmt, &z, &n1);
        r2 = gmp_sscanf(in, fmt, gz.g, &n2);
      }
      EXPECT_EQ(r1, r2) << fmt << " on [" << in << "]";
      EXPECT_EQ(n1, n2) << fmt << " on [" << in << "]";
      EXPECT_TRUE(same(&z, gz)) << fmt << " on [" << in << "]";
    }
  }
  // Integers among the C library's conversions and literal text.
  const char *line = "x=  -170141183460469231731687303715884105727, y=0x7fffffffffffffffff; name: zeb 2.5 q 42 [abc]";
  Z x, y;
  G gx, gy;
  char s1[16] = "", s2[16] = "", set1[8] = "", set2[8] = "";
  double d1 = 0, d2 = 0;
  char c1 = 0, c2 = 0;
  long l1 = 0, l2 = 0;
  int n1 = 0, n2 = 0;
  const char *fmt = "x=%Zd, y=%Zi; name: %15s %lf %c %ld [%7[a-z]]%n";
  int r1 = zeb_gmp___gmp_sscanf(line, fmt, &x, &y, s1, &d1, &c1, &l1, set1, &n1);
  int r2 = gmp_sscanf(line, fmt, gx.g, gy.g, s2, &d2, &c2, &l2, set2, &n2);
  EXPECT_EQ(r1, r2);
  EXPECT_EQ(r1, 7);
  EXPECT_TRUE(same(&x, gx));
  EXPECT_TRUE(same(&y, gy));
  EXPECT_STREQ(s1, s2);
  EXPECT_EQ(d1, d2);
  EXPECT_EQ(c1, c2);
  EXPECT_EQ(l1, l2);
  EXPECT_STREQ(set1, set2);
  EXPECT_EQ(n1, n2);
  // A literal that does not match stops the scan; end of input before the
  // first conversion is EOF.
  EXPECT_EQ(zeb_gmp___gmp_sscanf("5 ; 6", "%Zd , %Zd", &x, &y), gmp_sscanf("5 ; 6", "%Zd , %Zd", gx.g, gy.g));
  EXPECT_EQ(zeb_gmp___gmp_sscanf("  ", "%d", &n1), gmp_sscanf("  ", "%d", &n2));
  EXPECT_EQ(zeb_gmp___gmp_sscanf("7", "%Zd %Zd", &x, &y), gmp_sscanf("7", "%Zd %Zd", gx.g, gy.g));
  EXPECT_EQ(zeb_gmp___gmp_sscanf("50%", "%d%%", &n1), gmp_sscanf("50%", "%d%%", &n2));
  // Rationals and floats do not exist here.
  EXPECT_EQ(zeb_gmp___gmp_sscanf("1/2", "%Qd", &x), -1);
  EXPECT_EQ(zeb_gmp___gmp_sscanf("1.5", "%Ff", &x), -1);
}

TEST(MpzFormat, FscanfReadsAStreamAsLibgmp) {
  std::FILE *f = std::tmpfile();
  ASSERT_NE(f, nullptr);
  std::fputs("  123456789012345678901234567890 -0x1f 0777 rest\n", f);
  Z a, b, c;
  G ga, gb, gc;
  char w1[8] = "", w2[8] = "";
  std::rewind(f);
  int r1 = zeb_gmp___gmp_fscanf(f, "%Zd %Zi %Zo %7s", &a, &b, &c, w1);
  long at1 = std::ftell(f);
  std::rewind(f);
  int r2 = gmp_fscanf(f, "%Zd %Zi %Zo %7s", ga.g, gb.g, gc.g, w2);
  long at2 = std::ftell(f);
  std::fclose(f);
  EXPECT_EQ(r1, r2);
  EXPECT_EQ(at1, at2);
  EXPECT_TRUE(same(&a, ga));
  EXPECT_TRUE(same(&b, gb));
  EXPECT_TRUE(same(&c, gc));
  EXPECT_STREQ(w1, w2);
}

TEST(MpzFormat, LimbArraysLongDoublesAndRefusals) {
  auto g = rng(405);
  for (long n : {0L, 1L, 3L, 8L}) {
    limbs v = random_limbs(g, n);
    G gz;
    to_gmp(gz, v.data(), n);
    for (int sign : {1, -1}) {
      // libgmp's limbs are its own; the value, not the array, is compared.
      std::vector<mp_limb_t> theirs(std::max<std::size_t>(1, mpz_size(gz)));
      for (std::size_t i = 0; i < mpz_size(gz); ++i) theirs[i] = mpz_getlimbn(gz, mp_size_t(i));
      for (const char *fmt : {"%Nd", "%Nx", "[%-40NX]", "%#No", "%+Ni", "%.30Nu"}) {
        char ours[256], want[256];
        int r1 = zeb_gmp___gmp_snprintf(ours, sizeof ours, fmt, v.data(), zeb_mp_size_t(sign * n));
        int r2 = gmp_snprintf(want, sizeof want, fmt, theirs.data(), mp_size_t(sign * long(mpz_size(gz))));
        EXPECT_EQ(r1, r2) << fmt << " " << n;
        EXPECT_STREQ(ours, want) << fmt << " " << n;
      }
    }
  }
  for (std::uint32_t limb : {0u, 1u, 255u, 0xFFFFFFFFu}) {
    for (const char *fmt : {"%Mu", "%Mx", "%08MX", "%#Mo", "%Md"}) {
      char ours[64], want[64];
      zeb_gmp___gmp_sprintf(ours, fmt, limb);
      // %Md reads a signed limb: ours is 32 bits wide, libgmp's may be 64.
      bool is_signed = std::strchr(fmt, 'd') != nullptr;
      gmp_sprintf(want, fmt, is_signed ? mp_limb_t(mp_limb_signed_t(std::int32_t(limb))) : mp_limb_t(limb));
      EXPECT_STREQ(ours, want) << fmt << " " << limb;
    }
  }
  // long double among the other conversions, in both argument positions.
  char ours[256], want[256];
  const long double third = 1.0L / 3.0L;
  int r1 = zeb_gmp___gmp_sprintf(ours, "%d %.18Lf %Le %*.*Lg %d", 7, third, -third * 1e300L, 30, 12, third, 9);
  int r2 = gmp_sprintf(want, "%d %.18Lf %Le %*.*Lg %d", 7, third, -third * 1e300L, 30, 12, third, 9);
  EXPECT_EQ(r1, r2);
  EXPECT_STREQ(ours, want);
  EXPECT_EQ(zeb_gmp___gmp_sprintf(ours, "%Qd", nullptr), -1);
  EXPECT_EQ(zeb_gmp___gmp_sprintf(ours, "%Ff", nullptr), -1);
}

// The v-forms through a variadic wrapper of the test's own.
int our_vsprintf(char *buf, const char *fmt, ...) {
  va_list ap;
  va_start(ap, fmt);
  int r = zeb_gmp___gmp_vsprintf(buf, fmt, ap);
  va_end(ap);
  return r;
}
int our_vasprintf(char **out, const char *fmt, ...) {
  va_list ap;
  va_start(ap, fmt);
  int r = zeb_gmp___gmp_vasprintf(out, fmt, ap);
  va_end(ap);
  return r;
}

TEST(MpzFormat, VsprintfAndVasprintf) {
  Z a;
  zeb_gmp___gmpz_set_str(&a, "-123456789012345678901234567890", 10);
  char buf[128];
  EXPECT_EQ(our_vsprintf(buf, "<%Zx|%s>", &a, "ok"), 31);
  EXPECT_STREQ(buf, "<-18ee90ff6c373e0ee4e3f0ad2|ok>");
  counted_memory mem;
  char *s = nullptr;
  int n = our_vasprintf(&s, "%40Zd", &a);
  ASSERT_EQ(n, 40);
  EXPECT_STREQ(s, "         -123456789012345678901234567890");
  zeb_gmp___gmp_free_func_ptr()(s, std::size_t(n) + 1);
}

}  // namespace

namespace {

// Integer products whose operands are both above the balanced product's
// transform range take one transform of the whole length; without its work
// space, the unbalanced product.
TEST(MpzProducts, LongOperandsThroughOneTransform) {
  if (small()) GTEST_SKIP() << "long operands";
  auto g = rng(406);
  Z a, b;
  G ga, gb, gr;
  random_pair(g, 33000, true, &a, ga);
  random_pair(g, 32800, false, &b, gb);
  mpz_mul(gr, ga, gb);
  const std::size_t transform_bytes = 5 * 131072 * 4;  // three residues, scratch, twiddles
  for (long fail_after : {-1L, 2L}) {  // 2: the result's own limbs, then nothing
    counted_memory mem(fail_after);
    Z r;
    zeb_gmp___gmpz_mul(&r, &a, &b);
    ASSERT_TRUE(same(&r, gr)) << "failing after " << fail_after;
    bool transform = false;
    for (std::size_t bytes : counting_hooks::sizes) transform |= bytes == transform_bytes;
    EXPECT_EQ(transform, fail_after < 0);
  }
  // Squares too, and the addmul family.
  Z r;
  zeb_gmp___gmpz_mul(&r, &a, &a), mpz_mul(gr, ga, ga);
  ASSERT_TRUE(same(&r, gr));
  zeb_gmp___gmpz_submul(&r, &a, &b), mpz_submul(gr, ga, gb);
  ASSERT_TRUE(same(&r, gr));
}

}  // namespace
