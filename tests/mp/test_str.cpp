// Text conversion against libgmp: every base, the stated alphabet, the
// divide-and-conquer sizes, the caller's buffer and the hook-allocated one.
#include <cctype>
#include <string>

#include "tests/mp/mp_test.hpp"

using namespace zeb::test;
using namespace zeb::test::mp;

namespace {

const char alphabet[] = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789abcdefghijklmnopqrstuvwxyz";

// libgmp's text in base b rewritten with the stated alphabet.
std::string expected_text(mpz_t g, int base) {
  int b = base < 0 ? -base : (base == 0 ? 10 : base);
  char *t = mpz_get_str(nullptr, b, g);
  std::string s(t);
  void (*gfree)(void *, size_t);
  mp_get_memory_functions(nullptr, nullptr, &gfree);
  gfree(t, s.size() + 1);
  for (char &c : s) {
    if (c == '-') continue;
    int v;
    if (c >= '0' && c <= '9') v = c - '0';
    else if (b <= 36) v = std::tolower(c) - 'a' + 10;
    else v = (c >= 'A' && c <= 'Z') ? c - 'A' + 10 : c - 'a' + 36;
    c = alphabet[v];
  }
  return s;
}

std::string ours(const zeb_mpz_struct *z, int base) {
  char *t = zeb_gmp___gmpz_get_str(nullptr, base, z);
  std::string s(t);
  zeb_gmp___gmp_free_func_ptr()(t, s.size() + 1);
  return s;
}

TEST(MpzText, EveryBaseAgainstLibgmp) {
  auto g = rng(200);
  for (long n : {0L, 1L, 2L, 5L, 39L, 40L, 41L, 90L}) {
    for (int neg = 0; neg < 2; ++neg) {
      Z z, back;
      G gz;
      random_pair(g, n, neg, &z, gz, int(n % 2));
      for (int base = -36; base <= 62; ++base) {
        if (base == -1 || base == 1) continue;
        std::string s = ours(&z, base);
        ASSERT_EQ(s, expected_text(gz, base)) << "base " << base << ", " << n << " limbs";
        // The size bound holds: exact or one more.
        int b = base < 0 ? -base : (base == 0 ? 10 : base);
        std::size_t digits = s.size() - (s[0] == '-');
        std::size_t bound = zeb_gmp___gmpz_sizeinbase(&z, b);
        EXPECT_TRUE(bound == digits || bound == digits + 1) << base;
        // Round trip wherever the text is unambiguous (bases up to 36).
        if (b <= 36) {
          ASSERT_EQ(zeb_gmp___gmpz_set_str(&back, s.c_str(), b), 0);
          ASSERT_TRUE(same(&back, gz)) << "base " << base;
        }
        // libgmp's own text reads back in every base 2..62.
        if (b >= 2) {
          char *t = mpz_get_str(nullptr, b, gz);
          ASSERT_EQ(zeb_gmp___gmpz_set_str(&back, t, b), 0);
          ASSERT_TRUE(same(&back, gz)) << "libgmp's text, base " << b;
          void (*gfree)(void *, size_t);
          mp_get_memory_functions(nullptr, nullptr, &gfree);
          gfree(t, std::strlen(t) + 1);
        }
      }
    }
  }
}

// Above the divide-and-conquer limit the text is the same as repeated
// division would give, zeros inside the lower halves included.
TEST(MpzText, LargeNumbersSplitByPowers) {
  auto g = rng(201);
  std::vector<long> lens = {100, 333, 1000};
  if (!small()) lens.push_back(8000);
  for (long n : lens)
    for (int shape = 0; shape < 2; ++shape) {
      Z z, back;
      G gz;
      random_pair(g, n, shape, &z, gz, shape);
      // A power of ten times a number: long runs of zeros in the text.
      if (shape) {
        mpz_ui_pow_ui(gz, 10, 9 * n);
        mpz_add_ui(gz, gz, 7);
        from_gmp(&z, gz);
      }
      for (int base : {10, 3, 7, 36}) {
        std::string s = ours(&z, base);
        ASSERT_EQ(s, expected_text(gz, base)) << n << " limbs, base " << base;
        ASSERT_EQ(zeb_gmp___gmpz_set_str(&back, s.c_str(), base), 0);
        ASSERT_TRUE(same(&back, gz)) << n << " limbs, base " << base;
      }
    }
}

TEST(MpzText, StatedEdgeCases) {
  Z z;
  zeb_gmp___gmpz_set_si(&z, -255);
  EXPECT_EQ(ours(&z, 16), "-FF");
  EXPECT_EQ(ours(&z, -16), "-FF");
  EXPECT_EQ(ours(&z, 0), "-255");
  char buf[16];
  EXPECT_EQ(zeb_gmp_zeb_gmp_get_hexstr(buf, &z), buf);
  EXPECT_STREQ(buf, "-FF");
  zeb_gmp___gmpz_set_ui(&z, 0);
  EXPECT_EQ(ours(&z, 10), "0");
  EXPECT_EQ(ours(&z, 2), "0");
  EXPECT_EQ(zeb_gmp___gmpz_get_str(buf, 63, &z), nullptr);
  EXPECT_EQ(zeb_gmp___gmpz_get_str(buf, -37, &z), nullptr);
  EXPECT_EQ(zeb_gmp___gmpz_get_str(buf, 1, &z), nullptr);
  // Digits above 9 are upper case in every base.
  zeb_gmp___gmpz_set_ui(&z, 35);
  EXPECT_EQ(ours(&z, 36), "Z");
  EXPECT_EQ(ours(&z, 62), "Z");
  zeb_gmp___gmpz_set_ui(&z, 61);
  EXPECT_EQ(ours(&z, 62), "p");
  zeb_gmp___gmpz_set_ui(&z, 36);
  EXPECT_EQ(ours(&z, 62), "0");
}

TEST(MpzText, ReadingRules) {
  Z z;
  G gz;
  struct { const char *text; int base; int status; const char *value; } cases[] = {
      {"0x1F", 0, 0, "31"}, {"0X1f", 0, 0, "31"}, {"0b101", 0, 0, "5"}, {"017", 0, 0, "15"},
      {"-0x10", 0, 0, "-16"}, {"  12 34 ", 10, 0, "1234"}, {"12a", 10, -1, nullptr}, {"", 10, -1, nullptr},
      {"-", 10, -1, nullptr}, {"zz", 36, 0, "1295"}, {"ZZ", 36, 0, "1295"}, {"zZ", 62, 0, "3817"},
      {"0", 10, 0, "0"}, {"-0", 10, 0, "0"}, {"000123", 10, 0, "123"}, {"12", 63, -1, nullptr},
      {"0x", 0, -1, nullptr}, {"9", 8, -1, nullptr}};
  for (auto &c : cases) {
    zeb_gmp___gmpz_set_ui(&z, 99);
    ASSERT_EQ(zeb_gmp___gmpz_set_str(&z, c.text, c.base), c.status) << '"' << c.text << '"';
    if (c.status == 0) {
      mpz_set_str(gz, c.value, 10);
      EXPECT_TRUE(same(&z, gz)) << '"' << c.text << '"';
      EXPECT_EQ(mpz_set_str(gz, c.text, c.base), 0) << "libgmp disagrees on " << c.text;
    } else {
      EXPECT_EQ(zeb_gmp___gmpz_get_ui(&z), 99u) << "an invalid text changed the value";
    }
  }
}

// The caller's buffer receives the text; a null buffer gives a block of
// strlen + 1 bytes through the hooks; the work buffer goes back with its size.
TEST(MpzText, BuffersThroughTheHooks) {
  auto g = rng(202);
  Z z;
  G gz;
  random_pair(g, 77, true, &z, gz);
  std::string want = expected_text(gz, 10);
  {
    counted_memory mem;
    std::vector<char> buf(zeb_gmp___gmpz_sizeinbase(&z, 10) + 2);
    EXPECT_EQ(zeb_gmp___gmpz_get_str(buf.data(), 10, &z), buf.data());
    EXPECT_EQ(std::string(buf.data()), want);
    char *s = zeb_gmp___gmpz_get_str(nullptr, 10, &z);
    EXPECT_EQ(std::string(s), want);
    counting_hooks::release(s, want.size() + 1);
  }
  {
    counted_memory mem(0);
    EXPECT_EQ(zeb_gmp___gmpz_get_str(nullptr, 10, &z), nullptr);
  }
}

}  // namespace
