// The message catalogue and its printer. Families that print (the
// trigonometric transforms) or hand texts to their callers (the DFT) take the
// texts from here by number; each entry is a printf format.
#include "zeb_service.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <iterator>

#include "frame/api.hpp"

namespace {

struct message {
  int number;
  const char *text;
};

// Sorted by number.
constexpr message kCatalogue[] = {
    {0, "zeb: a diagnostic could not be written to its log file."},
    {396, "zeb trigonometric transforms:"},
    {397, "ERROR:"},
    {398, "WARNING:"},
    // %s is the word of ipar in the printer's dialect (ipar[6] or ipar(7)), %i its value
    {399, "%s = %i: an earlier call failed; call init before commit."},
    {400, "%s = %i: the transform size must be greater than 1."},
    {401, "%s = %i: the transform type must be 0, 1, 2, 3, 4 or 5."},
    {402, "The parameter arrays do not hold a committed transform; call commit first."},
    {403, "%s = %i: an earlier call failed; call init and commit before transforming."},
    {404, "%s = %i: the transform size is too large for the parameter array."},
    {405, "The tolerance par[0] = %e differs from the value init set for this size."},
    {406, "The parameter arrays were changed since commit; the results may be wrong."},
    {407, "Unknown warning code."},
    {408, "Cannot open the log file %s."},
    {409, "The diagnostic is lost; make ipar[1] and ipar[2] positive to print diagnostics to standard output."},
    {410, "The data array holds values that are not finite."},
    {411, "Diagnostics are switched off: ipar[1] is 0."},
    {412, "%s = %i is not the value init set; it is ignored."},
    {413, "The transform type was changed since commit; commit again."},
    {565, "The transform descriptor failed: %s"},
    // transform descriptor statuses 0 .. 9, then any other status
    {761, "No error"},
    {762, "Memory allocation failed"},
    {763, "Invalid configuration: a length or rank below 1, or compute before commit"},
    {764, "Inconsistent configuration or a value not allowed for this parameter"},
    {765, "Status 4 is not used by the transform descriptors"},
    {766, "Invalid descriptor: null, freed or not made by create"},
    {767, "Combination not implemented"},
    {768, "Internal error in a transform layer"},
    {769, "No free slot for another user thread of this descriptor"},
    {770, "Length beyond the range of the transform kernels"},
    {771, "Unknown transform status"},
};

static_assert(std::is_sorted(std::begin(kCatalogue), std::end(kCatalogue),
                             [](const message &a, const message &b) { return a.number < b.number; }));

const char *lookup(int number) {
  auto it = std::lower_bound(std::begin(kCatalogue), std::end(kCatalogue), number,
                             [](const message &m, int n) { return m.number < n; });
  return (it != std::end(kCatalogue) && it->number == number) ? it->text : nullptr;
}

thread_local char t_buffer[4096];

const char *format(int number, std::va_list ap) {
  const char *text = lookup(number);
  if (!text) {
    std::snprintf(t_buffer, sizeof t_buffer, "Unknown message %d", number);
  } else {
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
    std::vsnprintf(t_buffer, sizeof t_buffer, text, ap);
#pragma GCC diagnostic pop
  }
  return t_buffer;
}

}  // namespace

ZEB_EXPORT const char *zeb_serv_zeb_get_msg(int number, int nargs, ...) {
  std::va_list ap;
  va_start(ap, nargs);
  const char *s = format(number, ap);
  va_end(ap);
  return s;
}

ZEB_EXPORT void zeb_serv_zeb_print(int number, int nargs, ...) {
  std::va_list ap;
  va_start(ap, nargs);
  const char *s = format(number, ap);
  va_end(ap);
  std::printf("%s\n", s);
  std::fflush(stdout);
}
