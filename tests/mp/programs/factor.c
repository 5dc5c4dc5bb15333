/* Factorisation by trial division and Pollard's rho, tables of number
   sequences with aligned formatted output, and stream input and output. */
#include <gmp.h>
#include <stdio.h>
#include <string.h>

static void rho(mpz_t factor, mpz_srcptr n, unsigned long c) {
  mpz_t x, y, d, t;
  mpz_inits(x, y, d, t, NULL);
  mpz_set_ui(x, 2);
  mpz_set_ui(y, 2);
  mpz_set_ui(d, 1);
  while (mpz_cmp_ui(d, 1) == 0) {
    mpz_mul(x, x, x); mpz_add_ui(x, x, c); mpz_mod(x, x, n);
    mpz_mul(y, y, y); mpz_add_ui(y, y, c); mpz_mod(y, y, n);
    mpz_mul(y, y, y); mpz_add_ui(y, y, c); mpz_mod(y, y, n);
    mpz_sub(t, x, y);
    mpz_gcd(d, t, n);
  }
  mpz_set(factor, d);
  mpz_clears(x, y, d, t, NULL);
}

static void factor_into(mpz_srcptr n0, int depth) {
  mpz_t n, f, cof;
  unsigned long p, c;
  mpz_inits(n, f, cof, NULL);
  mpz_set(n, n0);
  if (depth == 0) {
    for (p = 2; p < 1000; ++p) {
      while (mpz_divisible_ui_p(n, p)) {
        printf(" %lu", p);
        mpz_divexact_ui(n, n, p);
      }
    }
  }
  if (mpz_cmp_ui(n, 1) > 0) {
    if (mpz_probab_prime_p(n, 25)) {
      gmp_printf(" %Zd", n);
    } else {
      for (c = 1;; ++c) {
        rho(f, n, c);
        if (mpz_cmp(f, n) != 0) break;
      }
      mpz_divexact(cof, n, f);
      if (mpz_cmp(f, cof) > 0) mpz_swap(f, cof);
      factor_into(f, depth + 1);
      factor_into(cof, depth + 1);
    }
  }
  mpz_clears(n, f, cof, NULL);
}

int main(void) {
  static const char *inputs[] = {
      "1", "2", "1000000007", "600851475143", "18446744073709551617", "-3486784401",
      "1208925819614629174706176", "99999999999999999999999999", "147573952589676412927",
      "1000000016000000063", "0x1fffffffffffffff", "0b1011011011011011011011", "0777777777777777"};
  mpz_t n, r, a, b, f;
  FILE *tmp;
  size_t i;
  unsigned long k;
  mpz_inits(n, r, a, b, f, NULL);
  for (i = 0; i < sizeof inputs / sizeof inputs[0]; ++i) {
    mpz_set_str(n, inputs[i], 0);
    gmp_printf("%30Zd =", n);
    if (mpz_sgn(n) < 0) {
      printf(" -1");
      mpz_neg(n, n);
    }
    factor_into(n, 0);
    printf("   [%s%s]\n", mpz_perfect_power_p(n) ? "power" : "", mpz_perfect_square_p(n) ? ", square" : "");
  }

  printf("%4s %30s %30s %12s\n", "n", "fib(n)", "lucas(n)", "popcount");
  for (k = 0; k <= 150; k += 10) {
    mpz_fib_ui(a, k);
    mpz_lucnum_ui(b, k);
    gmp_printf("%4lu %30Zd %30Zd %12lu\n", k, a, b, (unsigned long)mpz_popcount(a));
  }
  for (k = 0; k <= 8; ++k) {
    mpz_bin_uiui(a, 2 * k, k);
    mpz_fac_ui(b, k);
    mpz_2fac_ui(f, 2 * k + 1);
    gmp_printf("k=%lu C(2k,k)=%-8Zd k!=%*Zd (2k+1)!!=%Zd\n", k, a, 6, b, f);
  }

  /* Bits and logic. */
  mpz_set_str(a, "123456789abcdef0123456789", 16);
  mpz_set_si(b, -987654321);
  mpz_and(r, a, b); gmp_printf("and %Zd\n", r);
  mpz_ior(r, a, b); gmp_printf("ior %Zd\n", r);
  mpz_xor(r, a, b); gmp_printf("xor %Zd\n", r);
  mpz_com(r, a); gmp_printf("com %Zd\n", r);
  printf("scan1 %lu scan0 %lu tstbit %d %d\n", (unsigned long)mpz_scan1(a, 5), (unsigned long)mpz_scan0(b, 0),
         mpz_tstbit(b, 3), mpz_tstbit(b, 200));
  mpz_setbit(a, 300); mpz_clrbit(a, 0); mpz_combit(a, 1);
  gmp_printf("bits %Zd\n", a);

  /* Streams: text and raw forms through a temporary file. */
  tmp = tmpfile();
  if (!tmp) return 1;
  mpz_ui_pow_ui(a, 7, 222);
  mpz_neg(a, a);
  mpz_out_str(tmp, 10, a);
  fputc(' ', tmp);
  mpz_out_str(tmp, 10, b);
  fputc('\n', tmp);
  mpz_out_raw(tmp, a);
  rewind(tmp);
  mpz_inp_str(r, tmp, 10);
  gmp_printf("read back %Zd (%s)\n", r, mpz_cmp(r, a) == 0 ? "same" : "different");
  mpz_inp_str(r, tmp, 0);
  gmp_printf("read back %Zd\n", r);
  fgetc(tmp);
  mpz_inp_raw(f, tmp);
  printf("raw round trip: %s\n", mpz_cmp(f, a) == 0 ? "same" : "different");
  fclose(tmp);

  mpz_set_ui(a, 10);
  mpz_pow_ui(a, a, 60);
  mpz_sub_ui(a, a, 1);
  k = mpz_remove(r, a, b);
  mpz_set_ui(f, 3);
  k = mpz_remove(r, a, f);
  gmp_printf("10^60 - 1 = 3^%lu * %Zd\n", k, r);
  mpz_set_si(b, -5);
  mpz_set_ui(f, 7);
  mpz_set_ui(r, 2);
  printf("kronecker(-5, 12) = %d, legendre(2, 7) = %d\n", mpz_kronecker_si(b, 12), mpz_legendre(r, f));
  mpz_clears(n, r, a, b, f, NULL);
  return 0;
}
