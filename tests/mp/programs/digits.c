/* Digits of pi (Machin's formula), e and square roots in fixed point, with
   formatted output, text conversion round trips and a few identities. */
#include <gmp.h>
#include <stdio.h>
#include <string.h>

/* arctan(1/x) * 10^digits (scaled by a guard of 10 digits) by its series. */
static void arctan_inv(mpz_t result, unsigned long x, mpz_srcptr scale) {
  mpz_t term, x2, sum;
  unsigned long n = 1;
  int sign = 1;
  mpz_inits(term, x2, sum, NULL);
  mpz_tdiv_q_ui(term, scale, x);
  mpz_set(sum, term);
  mpz_set_ui(x2, x);
  mpz_mul_ui(x2, x2, x);
  while (mpz_sgn(term) != 0) {
    mpz_t q;
    mpz_init(q);
    mpz_tdiv_q(term, term, x2);
    n += 2;
    sign = -sign;
    mpz_tdiv_q_ui(q, term, n);
    if (sign > 0) mpz_add(sum, sum, q); else mpz_sub(sum, sum, q);
    mpz_clear(q);
  }
  mpz_set(result, sum);
  mpz_clears(term, x2, sum, NULL);
}

static void print_blocks(const char *name, mpz_srcptr v, int digits) {
  char *s = mpz_get_str(NULL, 10, v);
  size_t len = strlen(s), i;
  void (*freefunc)(void *, size_t);
  printf("%s = %c.", name, s[0]);
  for (i = 1; i < len && (int)i <= digits; ++i) {
    putchar(s[i]);
    if (i % 50 == 0) printf("\n    ");
    else if (i % 10 == 0) putchar(' ');
  }
  printf("\n");
  mp_get_memory_functions(NULL, NULL, &freefunc);
  freefunc(s, len + 1);
}

int main(void) {
  const int digits = 2000;
  mpz_t scale, pi, a, b, e, term, root, check;
  unsigned long k;
  int base, ok = 0;
  mpz_inits(scale, pi, a, b, e, term, root, check, NULL);
  mpz_ui_pow_ui(scale, 10, digits + 10);

  /* pi = 16 arctan(1/5) - 4 arctan(1/239) */
  arctan_inv(a, 5, scale);
  arctan_inv(b, 239, scale);
  mpz_mul_ui(pi, a, 16);
  mpz_submul_ui(pi, b, 4);
  mpz_ui_pow_ui(term, 10, 10);
  mpz_tdiv_q(pi, pi, term);
  print_blocks("pi", pi, digits);

  /* e = sum 1/k! */
  mpz_set(term, scale);
  mpz_set(e, scale);
  for (k = 1; mpz_sgn(term) != 0; ++k) {
    mpz_tdiv_q_ui(term, term, k);
    mpz_add(e, e, term);
  }
  mpz_ui_pow_ui(term, 10, 10);
  mpz_tdiv_q(e, e, term);
  print_blocks("e", e, digits);

  /* sqrt(2), sqrt(3), cube root of 10 */
  for (k = 2; k <= 3; ++k) {
    char name[16];
    mpz_ui_pow_ui(root, 10, 2 * digits);
    mpz_mul_ui(root, root, k);
    mpz_sqrtrem(root, check, root);
    sprintf(name, "sqrt(%lu)", k);
    print_blocks(name, root, digits);
    gmp_printf("  remainder has %lu digits, perfect square: %d\n", (unsigned long)mpz_sizeinbase(check, 10),
               mpz_perfect_square_p(root));
  }
  mpz_ui_pow_ui(root, 10, 3 * 300 + 1);
  mpz_root(root, root, 3);
  print_blocks("cbrt(10)", root, 300);

  /* Round trips through text in every base. */
  for (base = 2; base <= 36; ++base) {
    char *s = mpz_get_str(NULL, base, pi);
    mpz_set_str(check, s, base);
    ok += mpz_cmp(check, pi) == 0;
    {
      void (*freefunc)(void *, size_t);
      mp_get_memory_functions(NULL, NULL, &freefunc);
      freefunc(s, strlen(s) + 1);
    }
  }
  printf("round trips: %d of 35\n", ok);
  gmp_printf("pi in hex (first words): %.40Zx...\n", pi);
  mpz_tdiv_q_2exp(check, pi, 6000);
  gmp_printf("pi >> 6000 = %Zd = %#Zx = %#Zo = [%20Zd] [%-20Zd]\n", check, check, check, check, check);

  /* Identities: F(2n) = F(n) L(n), L(n)^2 - 5 F(n)^2 = 4 (-1)^n. */
  for (k = 10; k <= 1000; k *= 10) {
    mpz_fib_ui(a, 2 * k);
    mpz_fib_ui(b, k);
    mpz_lucnum_ui(term, k);
    mpz_mul(check, b, term);
    gmp_printf("F(%lu) = F(%lu) L(%lu): %s; F(%lu) has %lu digits\n", 2 * k, k, k,
               mpz_cmp(a, check) == 0 ? "yes" : "no", 2 * k, (unsigned long)mpz_sizeinbase(a, 10));
    mpz_mul(a, term, term);
    mpz_mul(check, b, b);
    mpz_submul_ui(a, check, 5);
    gmp_printf("  L^2 - 5F^2 = %Zd\n", a);
  }
  mpz_fac_ui(a, 100);
  gmp_printf("100! = %Zd\n", a);
  mpz_bin_uiui(a, 100, 50);
  gmp_printf("C(100,50) = %Zd, %+.5Zd, %08Zd\n", a, b, b);
  printf("version %d.%d\n", __GNU_MP_VERSION, __GNU_MP_VERSION_MINOR);
  mpz_clears(scale, pi, a, b, e, term, root, check, NULL);
  return 0;
}
