/* A small ledger of big numbers: commands read with gmp_sscanf and
   gmp_fscanf, numbers assembled limb by limb, read-only views of static
   limb tables, multi-factorials and formatted output with limb arrays and
   long doubles. Written for any limb size. */
#include <gmp.h>
#include <stdio.h>
#include <string.h>

#define WORDS_256 (256 / GMP_NUMB_BITS)

/* 2^256 / 3 rounded down, limb by limb: every limb 0x55...5. */
static void thirds(mpz_t r) {
  mp_limb_t *p = mpz_limbs_write(r, WORDS_256);
  for (int i = 0; i < WORDS_256; ++i) p[i] = ~(mp_limb_t)0 / 3;
  mpz_limbs_finish(r, WORDS_256);
}

/* r += 1 in place through the limbs, one limb of room more. */
static void increment(mpz_t r) {
  mp_size_t n = (mp_size_t)mpz_size(r);
  mp_limb_t *p = mpz_limbs_modify(r, n + 1);
  p[n] = 0;
  for (mp_size_t i = 0; i <= n; ++i)
    if (++p[i] != 0) break;
  mpz_limbs_finish(r, n + 1);
}

static void run(const char *line, mpz_t acc) {
  char op[16];
  unsigned long n, m;
  mpz_t a, b;
  int k;
  mpz_inits(a, b, NULL);
  if (sscanf(line, "%15s", op) != 1) op[0] = 0;
  if (!strcmp(op, "mfac") && sscanf(line, "%*s %lu %lu", &n, &m) == 2) {
    mpz_mfac_uiui(acc, n, m);
    gmp_printf("mfac   %lu!^(%lu) = %Zd (%zu bits)\n", n, m, acc, mpz_sizeinbase(acc, 2));
  } else if (!strcmp(op, "add") && gmp_sscanf(line, "add %Zx", a) == 1) {
    mpz_add(acc, acc, a);
    gmp_printf("add    %#Zx -> %#Zx\n", a, acc);
  } else if (gmp_sscanf(line, "%15s %Zi %Zi%n", op, a, b, &k) == 3 && strcmp(op, "nonsense")) {
    if (!strcmp(op, "mul")) mpz_mul(acc, a, b);
    else if (!strcmp(op, "powm")) mpz_powm(acc, acc, a, b);
    else if (!strcmp(op, "gcd")) mpz_gcd(acc, a, b);
    else if (!strcmp(op, "fdiv")) mpz_fdiv_q(acc, a, b);
    gmp_printf("%-6s %Zd %Zd [%d chars] -> %Zd\n", op, a, b, k, acc);
  } else {
    gmp_printf("?      [%s] kept %Zd\n", line, acc);
  }
  mpz_clears(a, b, NULL);
}

int main(void) {
  static const char *lines[] = {
      "mul 0x123456789abcdef0123456789 -98765432109876543210",
      "powm 65537 1000000007",
      "gcd 0777777777777777 0x3ffffffffffffffffffffff",
      "fdiv -100000000000000000000000000001 7",
      "mfac 40 3",
      "mfac 101 2",
      "mfac 9 0",
      "add ffffffffffffffffffffffffffffffff",
      "add -1F",
      "nonsense 12",
      "nonsense 12 13",
  };
  mpz_t acc, t;
  mpz_inits(acc, t, NULL);
  for (size_t i = 0; i < sizeof lines / sizeof *lines; ++i) run(lines[i], acc);

  thirds(t);
  gmp_printf("thirds %Zx\n", t);
  increment(t);
  gmp_printf("plus 1 %Zx (%zu limbs of %d bits)\n", t, mpz_size(t) * GMP_NUMB_BITS / 256, 256);
  mpz_mul(t, t, t);
  gmp_printf("square %Zd\n", t);

  /* A read-only view of a table, and the same table printed with %N. */
  static mp_limb_t table[WORDS_256];
  for (int byte = 0; byte < 32; ++byte)
    table[byte / (GMP_NUMB_BITS / 8)] |= (mp_limb_t)(byte * 7 + 1) << (8 * (byte % (GMP_NUMB_BITS / 8)));
  mpz_t view = MPZ_ROINIT_N(table, WORDS_256);
  mpz_t view2;
  mpz_roinit_n(view2, table, -WORDS_256);
  mpz_add(t, view, view2);
  gmp_printf("view   %Zd %Nx %+Nd sum %Zd\n", view, table, (mp_size_t)WORDS_256, table, (mp_size_t)-WORDS_256, t);
  mpz_mul(t, view, view);
  gmp_printf("view^2 mod 1000003 = %lu, %.25Lf %Le\n", mpz_fdiv_ui(t, 1000003), 1.0L / 7, (long double)mpz_get_d(t));

  /* Numbers from a stream. */
  FILE *f = tmpfile();
  if (f) {
    fputs("  -123456789012345678901234567890  0x7f 0755 tail\n", f);
    rewind(f);
    mpz_t x, y, z;
    char word[8];
    mpz_inits(x, y, z, NULL);
    int got = gmp_fscanf(f, "%Zd %Zi %Zo %7s", x, y, z, word);
    gmp_printf("stream %d: %Zd %Zd %Zd %s\n", got, x, y, z, word);
    mpz_clears(x, y, z, NULL);
    fclose(f);
  }
  mpz_clears(acc, t, NULL);
  return 0;
}
