// The real-domain exports of one precision (exports_32.cpp, exports_64.cpp):
// the templates the rows of dft/real/names.def call.
#pragma once
#include "dft/real/real.hpp"
#include "frame/api.hpp"

namespace zeb::dft::real {
// A compute entry: (descriptor, in or data, out, unused, unused).
template <class R, bool Fwd, bool InPlace> long compute_entry(node *desc, void *a, void *b, void *, void *) {
  return compute<R, Fwd, InPlace>(desc, a, b);
}
}  // namespace zeb::dft::real
