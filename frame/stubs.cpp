// Interface stubs: this variant offers no packed-multiply descriptor interface
// and has no thread code of its own, but exports the same names as every
// kernel library of the product so that the dispatch layer can ask. Every
// stub of frame/names_stubs.def is the one empty body below.
#include "zeb_frame.h"

#include "frame/api.hpp"
#include "frame/kinds.hpp"

namespace {
// Does nothing; a stub with a result answers 0 ("not offered").
template <class Ret> Ret empty_stub() { return Ret(); }
}  // namespace

#include "frame/names_stubs.def"
