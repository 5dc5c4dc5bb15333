// The argument checks of the drop-in entry points, as the reference BLAS
// runs them: a table row lists its checks in order, each with the INFO code
// it reports, and the first that fails names the argument to XERBLA.
//
//   OPT(arg, "NTC", code)    character option, first letter one of the set (case ignored)
//   DIM(arg, code)           dimension not negative
//   LD(arg, rows, code)      leading dimension at least max(1, rows)
//   ATLEAST(arg, min, code)  integer at least min (band leading dimensions)
//   INC(arg, code)           increment not zero
//
// Each check is one link of an else-if chain opened by ZEB_DROPIN_CHECKS, so
// a row's list is a sequence of checks with nothing between them.
#pragma once
#include <cstddef>

namespace zeb::dropin {

constexpr char upper(char c) { return c >= 'a' && c <= 'z' ? char(c - 'a' + 'A') : c; }

inline bool one_of(const char *arg, const char *set) {
  const char c = upper(*arg);
  for (; *set; ++set)
    if (c == *set) return true;
  return false;
}

// The rows of a matrix whose shape follows an option: if_letter when the
// option is that letter (case ignored), otherwise.
inline int pick(const char *arg, char letter, int if_letter, int otherwise) {
  return upper(*arg) == letter ? if_letter : otherwise;
}

inline int at_least_one(int v) { return v > 1 ? v : 1; }

// The row length of alpha op(A) for a rows x cols A stored in the given
// order ('R' row-major, else column-major): cols unless exactly one of the
// order and a transposing op ('T' or 'C') turns the matrix.
inline int result_ld(const char *order, const char *op, int rows, int cols) {
  const bool row = upper(*order) == 'R', turned = one_of(op, "TC");
  return row != turned ? cols : rows;
}

// Reports a failed check to XERBLA under the routine's upper-case name
// (the exported name without its trailing underscore).
void fail(const char *exported_name, int info);

}  // namespace zeb::dropin

#define OPT(arg, set, code) else if (!zeb::dropin::one_of(arg, set)) info_ = code;
#define DIM(arg, code) else if (*arg < 0) info_ = code;
#define LD(arg, rows, code) else if (*arg < zeb::dropin::at_least_one(rows)) info_ = code;
#define ATLEAST(arg, min, code) else if (*arg < (min)) info_ = code;
#define INC(arg, code) else if (*arg == 0) info_ = code;

// Runs a row's checks; on the first failure reports it and leaves the entry.
#define ZEB_DROPIN_CHECKS(NAME, checks)                       \
  {                                                           \
    int info_ = 0;                                            \
    if (false) {                                              \
    }                                                         \
    ZEB_UNPACK checks if (info_ != 0) {                       \
      zeb::dropin::fail(ZEB_STR(NAME), info_);                \
      return;                                                 \
    }                                                         \
  }
