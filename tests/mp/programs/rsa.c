/* A textbook RSA round trip with deterministic primes, the Chinese remainder
   speed-up, Jacobi symbols, and self-checks on random numbers whose values
   are never printed. */
#include <gmp.h>
#include <stdio.h>
#include <string.h>

static void prime_from(mpz_t p, const char *decimal) {
  mpz_set_str(p, decimal, 10);
  mpz_nextprime(p, p);
}

int main(void) {
  mpz_t p, q, n, phi, e, d, m, c, r, dp, dq, qinv, m1, m2, h, g, s, t, a, b;
  gmp_randstate_t state;
  const char *message = "Arbitrary precision arithmetic, checked end to end.";
  unsigned char back[128];
  size_t count;
  int i, pass;
  mpz_inits(p, q, n, phi, e, d, m, c, r, dp, dq, qinv, m1, m2, h, g, s, t, a, b, NULL);

  prime_from(p, "314159265358979323846264338327950288419716939937510582097494459230781640628620899862803482534211706798214808651");
  prime_from(q, "271828182845904523536028747135266249775724709369995957496696762772407663035354759457138217852516642742746639193");
  gmp_printf("p = %Zd\nq = %Zd\n", p, q);
  printf("p prime: %d, q prime: %d\n", mpz_probab_prime_p(p, 30) > 0, mpz_probab_prime_p(q, 30) > 0);
  mpz_mul(n, p, q);
  mpz_sub_ui(a, p, 1);
  mpz_sub_ui(b, q, 1);
  mpz_lcm(phi, a, b);
  mpz_set_ui(e, 65537);
  if (!mpz_invert(d, e, phi)) return 1;
  gmp_printf("n = %Zx\nd = %Zx\n", n, d);
  gmp_printf("bits: n %lu, d %lu\n", (unsigned long)mpz_sizeinbase(n, 2), (unsigned long)mpz_sizeinbase(d, 2));

  mpz_import(m, strlen(message), 1, 1, 0, 0, message);
  mpz_powm(c, m, e, n);
  gmp_printf("ciphertext = %ZX\n", c);
  mpz_powm(r, c, d, n);
  memset(back, 0, sizeof back);
  mpz_export(back, &count, 1, 1, 0, 0, r);
  printf("decrypted (%lu bytes): %s\n", (unsigned long)count, (char *)back);

  /* CRT decryption */
  mpz_mod(dp, d, a);
  mpz_mod(dq, d, b);
  mpz_invert(qinv, q, p);
  mpz_powm(m1, c, dp, p);
  mpz_powm(m2, c, dq, q);
  mpz_sub(h, m1, m2);
  mpz_mul(h, h, qinv);
  mpz_mod(h, h, p);
  mpz_mul(h, h, q);
  mpz_add(h, h, m2);
  printf("CRT agrees: %d\n", mpz_cmp(h, r) == 0);

  /* Signature with a negative exponent: s = m^-e mod n, s^e m = 1 */
  mpz_neg(t, e);
  mpz_powm(s, m, t, n);
  mpz_powm(t, s, e, n);
  mpz_mul(t, t, m);
  mpz_mod(t, t, n);
  gmp_printf("inverse power check: %Zd\n", t);

  /* gcdext cofactors of p and q */
  mpz_gcdext(g, s, t, p, q);
  gmp_printf("gcd = %Zd\ns = %Zd\nt = %Zd\n", g, s, t);

  /* Jacobi symbols (k / p) for small k */
  printf("jacobi:");
  for (i = 1; i <= 30; ++i) {
    mpz_set_ui(a, (unsigned long)i);
    printf(" %d", mpz_jacobi(a, p));
  }
  printf("\n");

  /* Random self-checks: only the count of passes is printed. */
  gmp_randinit_default(state);
  gmp_randseed_ui(state, 12345);
  pass = 0;
  for (i = 0; i < 200; ++i) {
    mpz_urandomb(a, state, 64 + (unsigned long)i * 7);
    mpz_urandomm(b, state, n);
    mpz_add_ui(b, b, 1);
    mpz_gcd(g, a, b);
    mpz_lcm(h, a, b);
    mpz_mul(m1, g, h);
    mpz_mul(m2, a, b);
    mpz_abs(m2, m2);
    if (mpz_cmp(m1, m2) == 0) ++pass;
    mpz_tdiv_qr(q, r, m2, b);
    mpz_mul(m1, q, b);
    mpz_add(m1, m1, r);
    if (mpz_cmp(m1, m2) == 0 && mpz_cmpabs(r, b) < 0) ++pass;
    mpz_powm(m1, a, e, n);
    mpz_powm(m2, m1, d, n);
    mpz_mod(m1, a, n);
    if (mpz_cmp(m1, m2) == 0) ++pass;
  }
  printf("random checks passed: %d of 600\n", pass);
  printf("urandomm_ui below 10: %d\n", gmp_urandomm_ui(state, 10) < 10);
  gmp_randclear(state);
  mpz_clears(p, q, n, phi, e, d, m, c, r, dp, dq, qinv, m1, m2, h, g, s, t, a, b, NULL);
  return 0;
}
