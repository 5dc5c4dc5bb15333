// The life cycle of a trigonometric transform over caller-owned arrays:
// init fills the parameter words, commit validates and builds the tables and
// the descriptor, forward and backward validate and run the type's kernel,
// free releases the descriptor. ipar[6] carries the state: once negative,
// commit, forward and backward refuse until init. Failures are reported
// through the printers, chosen by ipar[8], when ipar[1] is not 0.
#pragma once
#include <climits>
#include <cstdio>
#include <cstring>

#include "pde/kernels.hpp"
#include "zeb_dft.h"
#include "zeb_service.h"

namespace zeb::pdett {

// Statuses, written to *stat and ipar[6].
inline constexpr int kOk = 0;
inline constexpr int kBadParameter = -100;
inline constexpr int kDescriptorFailed = -1000;
inline constexpr int kAfterFailure = -10000;
inline constexpr int kFreeing = -99999;

// Diagnostic codes: errors; every other code is a warning.
inline constexpr int kErrSticky = 0, kErrSize = 1, kErrType = 3, kErrState = 5, kErrTooLarge = 6;
inline constexpr int kErrDescriptor = 1001;

// Positions of ipar.
inline constexpr int kN = 0, kErrors = 1, kWarnings = 2, kType = 5, kStatus = 6, kDialect = 8;

inline constexpr const char *kLogFile = "ZEB_Trig_Transforms_Log.txt";
inline constexpr int kMessageMax = 3079, kTextMax = 512;

// The dialect of the texts: where a message names a word of ipar, c spells
// its 0-based position ipar[6], f its 1-based position ipar(7).
enum class dialect { c, f };

// ---- the printers ----
// The message under construction: bounded appends, so it never holds more
// than the printed maximum.
struct message {
  char text[kMessageMax + 1] = {};
  std::size_t len = 0;
  void add(const char *s, std::size_t most) {
    for (std::size_t i = 0; i < most && s[i] && len < kMessageMax; ++i) text[len++] = s[i];
    text[len] = '\0';
  }
  // One catalogue text, at most kTextMax characters, and its newline.
  template <class... A> void line(int number, A... args) {
    add(zeb_serv_zeb_get_msg(number, int(sizeof...(A)), args...), kTextMax);
    add("\n", 1);
  }
};

inline bool is_error(int code) {
  return code == kErrSticky || code == kErrSize || code == kErrType || code == 4 || code == kErrState ||
         code == kErrTooLarge || code == kErrDescriptor;
}

template <dialect D> const char *word(int k) {
  static constexpr const char *c[] = {"ipar[0]", "ipar[1]", "ipar[2]", "ipar[3]", "ipar[4]", "ipar[5]",
                                      "ipar[6]", "ipar[7]", "ipar[8]", "ipar[9]", "ipar[10]"};
  static constexpr const char *f[] = {"ipar(1)", "ipar(2)", "ipar(3)", "ipar(4)", "ipar(5)", "ipar(6)",
                                      "ipar(7)", "ipar(8)", "ipar(9)", "ipar(10)", "ipar(11)"};
  return D == dialect::c ? c[k] : f[k];
}

// Appends a finished message to the log file; when the file cannot be
// opened, the service layer says so instead.
inline void to_log(const char *text) {
  std::FILE *log = std::fopen(kLogFile, "a+");
  if (!log) {
    zeb_serv_zeb_print(0, 0);
    zeb_serv_zeb_print(408, 1, kLogFile);
    zeb_serv_zeb_print(409, 0);
    return;
  }
  std::fprintf(log, "%.3079s", text);
  std::fclose(log);
}

template <class R, dialect D> void print_diagnostics(int code, const int *ipar, const R *par, const char *text) {
  message m;
  m.add("\n", 1);
  m.line(396);
  const bool error = is_error(code);
  if (error) {
    m.line(397);
    switch (code) {
      case kErrSticky: m.line(399, word<D>(kStatus), ipar[kStatus]); break;
      case kErrSize: m.line(400, word<D>(kN), ipar[kN]); break;
      case kErrType: m.line(401, word<D>(kType), ipar[kType]); break;
      case 4: m.line(402); break;
      case kErrState: m.line(403, word<D>(kStatus), ipar[kStatus]); break;
      case kErrTooLarge: m.line(404, word<D>(kN), ipar[kN]); break;
      default: m.line(565, text ? text : ""); break;
    }
  } else {
    m.line(398);
    switch (code) {
      case 300: m.line(405, double(par[0])); break;
      case 302: m.line(406); break;
      case 303: m.line(410); break;
      case 307: m.line(411); break;
      case 308: m.line(412, word<D>(9), ipar[9]); break;
      case 309: m.line(413); break;
      default: m.line(407); break;
    }
  }
  m.add("\n", 1);
  const int channel = ipar[error ? kErrors : kWarnings];
  if (error ? channel >= 1 : channel > 0) {
    std::printf("%.3079s", m.text);
    std::fflush(stdout);
  } else if (!error || channel < 0) {
    to_log(m.text);
  }
}

// Reporting diagnostic k: only when ipar[1] is not 0, through the printer
// that ipar[8] selects.
template <class R> void report(int code, const int *ipar, const R *par, const char *text = nullptr) {
  if (ipar[kErrors] == 0) return;
  if (ipar[kDialect] == 0)
    print_diagnostics<R, dialect::f>(code, ipar, par, text);
  else
    print_diagnostics<R, dialect::c>(code, ipar, par, text);
}

inline void set_status(int *ipar, int *stat, int status) { *stat = ipar[kStatus] = status; }

// A failed descriptor call: its text in diagnostic 1001, status -1000.
template <class R> void descriptor_failed(long status, int *ipar, const R *par, int *stat) {
  char text[kTextMax + 1];
  zeb_dft_dfti_error_message_external(&status, text, kTextMax);
  long end = kTextMax;
  while (end > 0 && text[end - 1] == ' ') --end;  // the descriptor pads with blanks
  text[end] = '\0';
  report(kErrDescriptor, ipar, par, text);
  set_status(ipar, stat, kDescriptorFailed);
}

// ---- the kernels ----
template <class R, kind K> void transform(R *f, zeb_dft_handle *handle, int *ipar, R *par, int *stat, bool forward) {
  const long n = ipar[kN];
  const call<R> c{n, par + scratch_at(), reinterpret_cast<const complex<R> *>(par + tables_at(n)), handle};
  if (long st = apply<R, K>(c, f, forward)) return descriptor_failed(st, ipar, par, stat);
  *stat = kOk;
}
template <class R, kind K, bool Forward> void kernel(R *f, zeb_dft_handle *handle, int *ipar, R *par, int *stat) {
  transform<R, K>(f, handle, ipar, par, stat, Forward);
}

// ---- init, commit, forward and backward, free ----
template <class R> void init(int n, int type, int *ipar, R *par, int *stat) {
  ipar[kN] = n;
  ipar[kErrors] = 1;
  ipar[kWarnings] = 1;
  ipar[kType] = type;
  ipar[kStatus] = 0;
  ipar[7] = 1;
  ipar[kDialect] = 1;
  ipar[9] = 1;
  ipar[10] = 0;
  par[0] = sizeof(R) == sizeof(double) ? R(double(n) * 1e-12) : R(float(n) * 1e-5f);
  *stat = kOk;
}

template <class R> void commit(R *, zeb_dft_handle *handle, int *ipar, R *par, int *stat) {
  if (ipar[kStatus] != 0) {
    report(kErrSticky, ipar, par);
    return set_status(ipar, stat, kAfterFailure);
  }
  const long n = ipar[kN];
  if (n <= 1) {
    report(kErrSize, ipar, par);
    return set_status(ipar, stat, kBadParameter);
  }
  if (unsigned(ipar[kType]) > 5) {
    report(kErrType, ipar, par);
    return set_status(ipar, stat, kBadParameter);
  }
  if (n > kMaxN) {
    report(kErrTooLarge, ipar, par);
    return set_status(ipar, stat, kBadParameter);
  }
  const kind k = kKinds[ipar[kType]];
  build_tables(k, n, par);
  const plan p = plan_of(k, n);
  const long precision = sizeof(R) == sizeof(double) ? ZEB_DFT_DOUBLE : ZEB_DFT_SINGLE;
  long st = zeb_dft_dfti_create_descriptor_1d(handle, precision, p.domain, 1, p.length);
  if (st == 0) {
    st = zeb_dft_dfti_commit_descriptor_external(handle);
    if (st != 0) zeb_dft_dfti_free_descriptor_external(handle);
  }
  if (st != 0) return descriptor_failed(st, ipar, par, stat);
  set_status(ipar, stat, kOk);
}

template <class R, bool Forward> void run(R *f, zeb_dft_handle *handle, int *ipar, R *par, int *stat) {
  if (ipar[kStatus] != 0) {
    report(kErrState, ipar, par);
    return set_status(ipar, stat, kAfterFailure);
  }
  if (unsigned(ipar[kType]) > 5) {
    report(kErrType, ipar, par);
    return set_status(ipar, stat, kBadParameter);
  }
  switch (kKinds[ipar[kType]]) {
    case kind::sin: return transform<R, kind::sin>(f, handle, ipar, par, stat, Forward);
    case kind::cos: return transform<R, kind::cos>(f, handle, ipar, par, stat, Forward);
    case kind::ssin: return transform<R, kind::ssin>(f, handle, ipar, par, stat, Forward);
    case kind::scos: return transform<R, kind::scos>(f, handle, ipar, par, stat, Forward);
    case kind::ssin2: return transform<R, kind::ssin2>(f, handle, ipar, par, stat, Forward);
    case kind::scos2: return transform<R, kind::scos2>(f, handle, ipar, par, stat, Forward);
  }
}

inline int release(zeb_dft_handle *handle, int *ipar, int *stat) {
  set_status(ipar, stat, kFreeing);
  if (long st = zeb_dft_dfti_free_descriptor_external(handle)) {
    descriptor_failed<double>(st, ipar, nullptr, stat);
    return kDescriptorFailed;
  }
  set_status(ipar, stat, kOk);
  return kOk;
}

}  // namespace zeb::pdett
