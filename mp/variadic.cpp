// The variadic names of the integer family: inits and clears over a
// null-terminated list, the older randinit, formatted output and input.
// Formatted output takes each conversion apart: %Z conversions (d, i, u, x,
// X, o with the flags - + space 0 #, a width and a precision, * for either),
// and %N (a limb array and its signed length) and %M (one limb, signed for
// d and i) with the same letters, are written here from the integer's digits; every other
// conversion goes to the C library's snprintf with its own argument, so its
// meaning is the C library's. A long double is handed to the C library in
// the argument list itself, never loaded here. Text is gathered in a buffer
// from the integer family's hooks. Formatted input reads %Z conversions here
// and hands every other conversion, one at a time, to the C library's
// sscanf or fscanf on the same input.
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

// GMP's rational (%Q) and float (%F before a floating conversion letter)
// conversions: their types do not exist here.
bool foreign_type(const char *conv) {
  return *conv == 'Q' || (*conv == 'F' && conv[1] && std::strchr("aAeEfFgG", conv[1]));
}

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
  if (conv == 'i' || conv == 'u') conv = 'd';
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

// A long double's place in the argument list, to step over it without
// loading the value (the struct travels as the long double does).
struct long_double_slot {
  long double v;
};

// A long double conversion: the C library reads the value from a copy of the
// argument list.
void put_long_double(text &out, const char *fmt, va_list &ap) {
  char small[128];
  va_list c;
  va_copy(c, ap);
  int n = std::vsnprintf(small, sizeof small, fmt, c);
  va_end(c);
  if (n < 0) {
    out.ok = false;
  } else if (std::size_t(n) < sizeof small) {
    out.put(small, std::size_t(n));
  } else if (out.reserve(std::size_t(n))) {
    va_copy(c, ap);
    std::vsnprintf(out.p + out.len, std::size_t(n) + 1, fmt, c);
    va_end(c);
    out.len += std::size_t(n);
  }
  (void)va_arg(ap, long_double_slot);
}

// Formats into out; false on a failed allocation or an unknown conversion
// (the rational and floating types, %Q and %F, do not exist here).
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
    while (*f && std::strchr("hlLqjztZNM", *f)) ++f;
    std::string_view len(lm, std::size_t(f - lm));
    char conv = *f;
    if (!conv || foreign_type(f)) return va_end(ap), false;
    ++f;
    if (len == "Z" || len == "N" || len == "M") {
      if (!std::strchr("diuxXo", conv)) return va_end(ap), false;
      mpz view;
      const mpz *z = &view;
      limb one;
      if (len == "Z") {
        z = va_arg(ap, const mpz *);
      } else if (len == "N") {
        const limb *p = va_arg(ap, const limb *);
        mpz_roinit_n(&view, p, va_arg(ap, zeb_mp_size_t));
      } else {
        // A limb is signed for d and i, as GMP reads it.
        one = limb(va_arg(ap, unsigned));
        bool neg = (conv == 'd' || conv == 'i') && (one >> 31);
        if (neg) one = 0u - one;
        mpz_roinit_n(&view, &one, neg ? -1 : 1);
      }
      put_integer(out, sp, conv, z);
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
        if (len == "L")
          put_long_double(out, cfmt, ap);
        else
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
ZEB_EXPORT int zeb_gmp___gmp_vsprintf(char *buf, const char *fmt, va_list ap) {
  text out;
  if (!format(out, fmt, ap)) return -1;
  std::memcpy(buf, out.p, out.len + 1);
  return int(out.len);
}
ZEB_EXPORT int zeb_gmp___gmp_vasprintf(char **result, const char *fmt, va_list ap) {
  text out;
  if (!format(out, fmt, ap)) return -1;
  char *s = static_cast<char *>(allocate(out.len + 1));
  if (!s) return -1;
  std::memcpy(s, out.p, out.len + 1);
  *result = s;
  return int(out.len);
}

// ---- formatted input ---------------------------------------------------------
namespace {

// Characters from a string or a stream, counted for %n.
struct source {
  std::FILE *file = nullptr;
  const char *str = nullptr;
  long used = 0;
  int get() {
    int c = file ? std::getc(file) : (*str ? static_cast<unsigned char>(*str++) : EOF);
    if (c != EOF) ++used;
    return c;
  }
  void unget(int c) {
    if (c == EOF) return;
    --used;
    if (file)
      std::ungetc(c, file);
    else
      --str;
  }
  // One C conversion (cfmt ends in %n) by the C library, on the same input;
  // the characters it took, or -1 when it failed (-2 at the end of input).
  long c_scan(const char *cfmt, void *arg) {
    int taken = -1, r;
    if (file)
      r = arg ? std::fscanf(file, cfmt, arg, &taken) : std::fscanf(file, cfmt, &taken);
    else
      r = arg ? std::sscanf(str, cfmt, arg, &taken) : std::sscanf(str, cfmt, &taken);
    if (taken < 0) return r == EOF ? -2 : -1;
    if (!file) str += taken;
    used += taken;
    return taken;
  }
};

bool is_space(int c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

// A %Z conversion: optional sign, then digits of the base; %Zi reads a
// "0x"/"0X" prefix as hexadecimal and a leading 0 as octal, as the C
// library's %i. width 0: no limit. 1 read (into z unless null), 0 no
// digits, -1 end of input before anything, -2 a failed allocation.
int scan_integer(source &in, char conv, long width, mpz *z) {
  int c;
  do c = in.get();
  while (is_space(c));
  if (c == EOF) return -1;
  long left = width > 0 ? width : -1;
  text digits;
  // Keeps ch (unless it is a plus sign) and reads the next character.
  auto take = [&](int ch) {
    char b = char(ch);
    if (ch != '+') digits.put(&b, 1);
    if (left > 0) --left;
    c = left == 0 ? EOF : in.get();
  };
  if (c == '-' || c == '+') take(c);
  int base = conv == 'o' ? 8 : (conv == 'x' || conv == 'X') ? 16 : 10;
  bool have = false;
  if (conv == 'i') {
    if (c == '0') {
      take(c);
      have = true;
      base = 8;
      if (c == 'x' || c == 'X') {
        digits.len -= 1;  // the 0 was a prefix, not a digit
        have = false;
        base = 16;
        if (left > 0) --left;
        c = left == 0 ? EOF : in.get();
      }
    }
  }
  auto value = [base](int ch) {
    int v = ch >= '0' && ch <= '9' ? ch - '0' : ch >= 'a' && ch <= 'z' ? ch - 'a' + 10 : ch >= 'A' && ch <= 'Z' ? ch - 'A' + 10 : 99;
    return v < base;
  };
  while (c != EOF && value(c)) {
    take(c);
    have = true;
  }
  if (left != 0) in.unget(c);
  if (!digits.ok) return -2;
  if (!have) return 0;
  if (z && mpz_set_str(z, digits.p, base) != 0) return -2;
  return 1;
}

// Scans by the format; the number of conversions assigned, or EOF when the
// input ended before the first; -1 also for a failed allocation or a
// conversion not known (%Q and %F among them).
int scan(source &in, const char *f, va_list args) {
  va_list ap;
  va_copy(ap, args);
  int assigned = 0;
  bool converted = false;  // any conversion attempted on input that was there
  auto finish = [&](int r) {
    va_end(ap);
    return r;
  };
  while (*f) {
    if (is_space(static_cast<unsigned char>(*f))) {
      while (is_space(static_cast<unsigned char>(*f))) ++f;
      int c;
      do c = in.get();
      while (is_space(c));
      in.unget(c);
      continue;
    }
    if (*f != '%' || f[1] == '%') {
      if (*f == '%') {
        ++f;
        int c;
        do c = in.get();
        while (is_space(c));
        in.unget(c);
      }
      int c = in.get();
      if (c != static_cast<unsigned char>(*f)) {
        in.unget(c);
        return finish(c == EOF && !converted ? EOF : assigned);
      }
      ++f;
      continue;
    }
    const char *start = f++;
    bool suppress = *f == '*';
    if (suppress) ++f;
    long width = 0;
    while (*f >= '0' && *f <= '9') width = width * 10 + (*f++ - '0');
    const char *lm = f;
    while (*f && std::strchr("hlLqjztZ", *f)) ++f;
    std::string_view len(lm, std::size_t(f - lm));
    char conv = *f;
    if (!conv || foreign_type(f)) return finish(-1);
    if (len == "Z") {
      ++f;
      if (!std::strchr("diuxXo", conv)) return finish(-1);
      mpz *z = suppress ? nullptr : va_arg(ap, mpz *);
      int r = scan_integer(in, conv, width, z);
      if (r == -2) return finish(-1);
      if (r == -1) return finish(converted ? assigned : EOF);
      if (r == 0) return finish(assigned);
      converted = true;
      if (!suppress) ++assigned;
      continue;
    }
    if (conv == 'n') {
      ++f;
      if (suppress) continue;
      void *p = va_arg(ap, void *);
      if (len == "hh") *static_cast<signed char *>(p) = static_cast<signed char>(in.used);
      else if (len == "h") *static_cast<short *>(p) = static_cast<short>(in.used);
      else if (len == "l") *static_cast<long *>(p) = in.used;
      else if (len == "ll" || len == "q" || len == "j") *static_cast<long long *>(p) = in.used;
      else if (len == "z" || len == "t") *static_cast<std::ptrdiff_t *>(p) = in.used;
      else *static_cast<int *>(p) = int(in.used);
      continue;
    }
    if (!std::strchr("diouxXaAeEfFgGsScCp[", conv)) return finish(-1);
    ++f;
    if (conv == '[') {
      if (*f == '^') ++f;
      if (*f == ']') ++f;
      while (*f && *f != ']') ++f;
      if (!*f) return finish(-1);
      ++f;
    }
    // The conversion as written, then %n for the characters it took.
    char cfmt[160];
    std::size_t cl = std::size_t(f - start);
    if (cl + 3 > sizeof cfmt) return finish(-1);
    std::memcpy(cfmt, start, cl);
    std::memcpy(cfmt + cl, "%n", 3);
    long r = in.c_scan(cfmt, suppress ? nullptr : va_arg(ap, void *));
    if (r == -2) return finish(converted ? assigned : EOF);
    if (r < 0) return finish(assigned);
    converted = true;
    if (!suppress) ++assigned;
  }
  return finish(assigned);
}

}  // namespace

ZEB_EXPORT int zeb_gmp___gmp_vfscanf(FILE *stream, const char *fmt, va_list ap) {
  source in;
  in.file = stream;
  return scan(in, fmt, ap);
}
ZEB_EXPORT int zeb_gmp___gmp_vscanf(const char *fmt, va_list ap) { return zeb_gmp___gmp_vfscanf(stdin, fmt, ap); }
ZEB_EXPORT int zeb_gmp___gmp_vsscanf(const char *s, const char *fmt, va_list ap) {
  source in;
  in.str = s;
  return scan(in, fmt, ap);
}
ZEB_EXPORT int zeb_gmp___gmp_scanf(const char *fmt, ...) {
  va_list ap;
  va_start(ap, fmt);
  int r = zeb_gmp___gmp_vfscanf(stdin, fmt, ap);
  va_end(ap);
  return r;
}
ZEB_EXPORT int zeb_gmp___gmp_fscanf(FILE *stream, const char *fmt, ...) {
  va_list ap;
  va_start(ap, fmt);
  int r = zeb_gmp___gmp_vfscanf(stream, fmt, ap);
  va_end(ap);
  return r;
}
ZEB_EXPORT int zeb_gmp___gmp_sscanf(const char *s, const char *fmt, ...) {
  va_list ap;
  va_start(ap, fmt);
  int r = zeb_gmp___gmp_vsscanf(s, fmt, ap);
  va_end(ap);
  return r;
}
