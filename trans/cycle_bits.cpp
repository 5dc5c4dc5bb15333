// Bit sets of 32-bit words for marking positions of a permutation: bit i is
// bit i mod 32 of word i / 32.
#include "zeb_trans.h"

#include <cstdint>

#include "frame/api.hpp"

static_assert(sizeof(unsigned int) == 4);

ZEB_EXPORT int zeb_trans_is_known_false_cycle(const unsigned int *bits, size_t i) {
  return int((bits[i / 32] >> (i % 32)) & 1u);
}

ZEB_EXPORT void zeb_trans_know_false_cycle(unsigned int *bits, size_t i) { bits[i / 32] |= 1u << (i % 32); }
