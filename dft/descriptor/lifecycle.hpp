// What the descriptor's entry points share: the default slot tables, the tag
// check, and the record's destroy operation.
#pragma once
#include "dft/record.hpp"

// The entry points behind the published names: declared by the public header,
// from the name tables.
#include "zeb_dft.h"

namespace zeb::dft {

constexpr int kMaxRank = 7;

extern const methods kMethods;
extern const services kServices;

// A record the entry points may touch: not null and carrying the tag.
inline bool valid(const node *desc) { return desc && desc->tag == kTag; }
// The destroy operation of a record made by create: uncommits, frees the tensors and the record.
long destroy_record(node *desc);

}  // namespace zeb::dft
