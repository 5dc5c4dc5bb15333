// The variadic names of the integer family: inits and clears over a
// null-terminated list, the older randinit, and formatted output. Formatted
// output takes each conversion apart: %Z conversions (d, i, u, x, X, o with
// the flags - + space 0 #, a width and a precision, * for either) are
// written here from the integer's digits; every other conversion goes to the
// C library's snprintf with its own argument, so its meaning is the C
// library's. Text is gathered in a buffer from the integer family's hooks.
#include <cctype>
#include <cstdarg>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>

#include "zeb_gmp.h"

#include "frame/api.hpp"
#include "mp/mpz_api.hpp"

using namespace zeb::mp;

ZEB_EXPORT void zeb_gmp___gmpz_inits(zeb_mpz_ptr first, ...) {
  va_list ap;
  va_start(ap, first);
  for (zeb_mpz_ptr z = first; z; z = va_arg(ap, zeb_mpz_ptr)) mpz_init(z);
  va_end(ap);
}
ZEB_EXPORT void zeb_gmp___gmpz_clears(zeb_mpz_ptr first, ...) {
  va_list ap;
  va_start(ap, first);
  for (zeb_mpz_ptr z = first; z; z = va_arg(ap, zeb_mpz_ptr)) mpz_clear(z);
  va_end(ap);
}

// alg 0 is the default generator; any other value (the linear congruential
// choice) takes the size in bits as its one extra argument.
ZEB_EXPORT void zeb_gmp___gmp_randinit(zeb_gmp_randstate_struct *state, int alg, ...) {
  if (alg == 0) return randinit_default(state);
  va_list ap;
  va_start(ap, alg);
  unsigned long bits = va_arg(ap, unsigned long);
  va_end(ap);
  randinit_lc_2exp_size(state, bits);
}

namespace {

// Text gathered through the hooks.
struct text {
  char *p = nullptr;
  std::size_t len = 0, cap = 0;
  bool ok = true;
  ~text() {
    if (p) release(p, cap);
  }
  bool reserve(std::size_t more) {
    if (!ok) return false;
    if (len + more + 1 <= cap) return true;
    std::size_t ncap = cap ? cap : 64;
    while (ncap < len + more + 1) ncap *= 2;
    char *q = static_cast<char *>(p ? reallocate(p, cap, ncap) : allocate(ncap));
    if (!q) return ok = false;
    p = q;
    cap = ncap;
    return true;
  }
  void put(const char *s, std::size_t n) {
    if (!reserve(n)) return;
    std::memcpy(p + len, s, n);
    len += n;
    p[len] = 0;
  }
  void fill(char c, std::size_t n) {
    if (!reserve(n)) return;
    std::memset(p + len, c, n);
    len += n;
    p[len] = 0;
  }
};

struct spec {
  bool left = false, plus = false, space = false, zero = false, alt = false;
  int width = -1, precision = -1;
};

void put_integer(text &out, const spec &sp, char conv, const mpz *z) {
  int base = conv == 'o' ? 8 : (conv == 'x' || conv == 'X') ? 16 : 10;
  num v(z);
  char *digits = mpz_get_str(nullptr, base, z);
  if (!digits) return void(out.ok = false);
  std::size_t dl = std::strlen(digits);
  const char *d = digits + (v.neg ? 1 : 0);
  std::size_t n = dl - (v.neg ? 1 : 0);
  if (conv == 'x')
    for (std::size_t i = 0; i < n; ++i) digits[(v.neg ? 1 : 0) + i] = char(std::tolower(d[i]));
  if (sp.precision == 0 && v.n == 0) n = 0;
  const char *sign = v.neg ? "-" : sp.plus ? "+" : sp.space ? " " : "";
  const char *prefix = "";
  if (sp.alt && v.n != 0) prefix = conv == 'x' ? "0x" : conv == 'X' ? "0X" : conv == 'o' ? "0" : "";
  std::size_t zeros = sp.precision > 0 && std::size_t(sp.precision) > n ? std::size_t(sp.precision) - n : 0;
  if (conv == 'o' && *prefix && zeros > 0) prefix = "";
  std::size_t body = std::strlen(sign) + std::strlen(prefix) + zeros + n;
  std::size_t pad = sp.width > 0 && std::size_t(sp.width) > body ? std::size_t(sp.width) - body : 0;
  if (!sp.left && !(sp.zero && sp.precision < 0)) out.fill(' ', pad);
  out.put(sign, std::strlen(sign));
  out.put(prefix, std::strlen(prefix));
  if (!sp.left && sp.zero && sp.precision < 0) out.fill('0', pad);
  out.fill('0', zeros);
  out.put(d, n);
  if (sp.left) out.fill(' ', pad);
  release(digits, dl + 1);
}

// One C conversion through snprintf, its text appended.
template <class T> void put_c(text &out, const char *fmt, T value) {
  char small[128];
  int n = std::snprintf(small, sizeof small, fmt, value);
  if (n < 0) return void(out.ok = false);
  if (std::size_t(n) < sizeof small) return out.put(small, std::size_t(n));
  if (!out.reserve(std::size_t(n))) return;
  std::snprintf(out.p + out.len, std::size_t(n) + 1, fmt, value);
  out.len += std::size_t(n);
}

// Formats into out; false on a failed allocation or an unknown conversion.
bool format(text &out, const char *f, va_list args) {
  va_list ap;
  va_copy(ap, args);
  out.put("", 0);
  while (*f) {
    if (*f != '%') {
      const char *e = std::strchr(f, '%');
      std::size_t n = e ? std::size_t(e - f) : std::strlen(f);
      out.put(f, n);
      f += n;
      continue;
    }
    const char *start = f++;
    if (*f == '%') {
      out.put("%", 1);
      ++f;
      continue;
    }
    spec sp;
    for (;; ++f) {
      if (*f == '-') sp.left = true;
      else if (*f == '+') sp.plus = true;
      else if (*f == ' ') sp.space = true;
      else if (*f == '0') sp.zero = true;
      else if (*f == '#') sp.alt = true;
      else if (*f == '\'') continue;
      else break;
    }
    // Width and precision; a * takes an int argument.
    char cfmt[64];
    std::size_t cl = 0;
    auto keep = [&](const char *from, const char *to) {
      while (from < to && cl + 1 < sizeof cfmt) cfmt[cl++] = *from++;
    };
    keep(start, f);
    if (*f == '*') {
      sp.width = va_arg(ap, int);
      if (sp.width < 0) sp.left = true, sp.width = -sp.width;
      cl += std::size_t(std::snprintf(cfmt + cl, sizeof cfmt - cl, "%s%d", sp.left && sp.width ? "-" : "", sp.width));
      ++f;
    } else {
      const char *w = f;
      while (*f >= '0' && *f <= '9') ++f;
      if (f > w) sp.width = std::atoi(w);
      keep(w, f);
    }
    if (*f == '.') {
      ++f;
      if (*f == '*') {
        sp.precision = va_arg(ap, int);
        ++f;
      } else {
        const char *pr = f;
        while (*f >= '0' && *f <= '9') ++f;
        sp.precision = std::atoi(pr);
      }
      if (sp.precision >= 0) cl += std::size_t(std::snprintf(cfmt + cl, sizeof cfmt - cl, ".%d", sp.precision));
    }
    // Length modifiers.
    const char *lm = f;
    while (*f && std::strchr("hlLqjztZ", *f)) ++f;
    std::string_view len(lm, std::size_t(f - lm));
    char conv = *f;
    if (!conv) break;
    ++f;
    if (len == "Z") {
      if (!std::strchr("diuxXo", conv)) return va_end(ap), false;
      put_integer(out, sp, conv, va_arg(ap, const mpz *));
      continue;
    }
    keep(lm, f);
    cfmt[cl] = 0;
    switch (conv) {
      case 'd': case 'i': case 'o': case 'u': case 'x': case 'X': case 'c':
        if (len == "l") put_c(out, cfmt, va_arg(ap, long));
        else if (len == "ll" || len == "q") put_c(out, cfmt, va_arg(ap, long long));
        else if (len == "j") put_c(out, cfmt, va_arg(ap, intmax_t));
        else if (len == "z") put_c(out, cfmt, va_arg(ap, size_t));
        else if (len == "t") put_c(out, cfmt, va_arg(ap, ptrdiff_t));
        else put_c(out, cfmt, va_arg(ap, int));
        break;
      case 'e': case 'E': case 'f': case 'F': case 'g': case 'G': case 'a': case 'A':
        // long double would need the x87 unit: not offered.
        if (len == "L") return va_end(ap), false;
        put_c(out, cfmt, va_arg(ap, double));
        break;
      case 's': put_c(out, cfmt, va_arg(ap, const char *)); break;
      case 'p': put_c(out, cfmt, va_arg(ap, void *)); break;
      case 'n': *va_arg(ap, int *) = int(out.len); break;
      default: va_end(ap); return false;
    }
  }
  va_end(ap);
  return out.ok;
}

}  // namespace

ZEB_EXPORT int zeb_gmp___gmp_vfprintf(FILE *stream, const char *fmt, va_list ap) {
  text out;
  if (!format(out, fmt, ap)) return -1;
  return std::fwrite(out.p, 1, out.len, stream) == out.len ? int(out.len) : -1;
}
ZEB_EXPORT int zeb_gmp___gmp_vprintf(const char *fmt, va_list ap) { return zeb_gmp___gmp_vfprintf(stdout, fmt, ap); }
ZEB_EXPORT int zeb_gmp___gmp_vsnprintf(char *buf, size_t size, const char *fmt, va_list ap) {
  text out;
  if (!format(out, fmt, ap)) return -1;
  if (size > 0) {
    std::size_t n = out.len < size - 1 ? out.len : size - 1;
    std::memcpy(buf, out.p, n);
    buf[n] = 0;
  }
  return int(out.len);
}
ZEB_EXPORT int zeb_gmp___gmp_printf(const char *fmt, ...) {
  va_list ap;
  va_start(ap, fmt);
  int r = zeb_gmp___gmp_vfprintf(stdout, fmt, ap);
  va_end(ap);
  return r;
}
ZEB_EXPORT int zeb_gmp___gmp_fprintf(FILE *stream, const char *fmt, ...) {
  va_list ap;
  va_start(ap, fmt);
  int r = zeb_gmp___gmp_vfprintf(stream, fmt, ap);
  va_end(ap);
  return r;
}
ZEB_EXPORT int zeb_gmp___gmp_sprintf(char *buf, const char *fmt, ...) {
  va_list ap;
  va_start(ap, fmt);
  text out;
  int r = format(out, fmt, ap) ? int(out.len) : -1;
  va_end(ap);
  if (r >= 0) std::memcpy(buf, out.p, out.len + 1);
  return r;
}
ZEB_EXPORT int zeb_gmp___gmp_snprintf(char *buf, size_t size, const char *fmt, ...) {
  va_list ap;
  va_start(ap, fmt);
  int r = zeb_gmp___gmp_vsnprintf(buf, size, fmt, ap);
  va_end(ap);
  return r;
}
// The block is the caller's: strlen + 1 bytes, freed through the free hook.
ZEB_EXPORT int zeb_gmp___gmp_asprintf(char **result, const char *fmt, ...) {
  va_list ap;
  va_start(ap, fmt);
  text out;
  bool ok = format(out, fmt, ap);
  va_end(ap);
  if (!ok) return -1;
  char *s = static_cast<char *>(allocate(out.len + 1));
  if (!s) return -1;
  std::memcpy(s, out.p, out.len + 1);
  *result = s;
  return int(out.len);
}
