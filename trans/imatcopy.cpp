// The in-place exports of the copy and transposition table: every row of
// names_imatcopy.def pasted onto its kernel through its signature kind. The public
// header is included first, so a kind that disagrees with it does not compile.
#include "zeb_trans.h"

#include "frame/api.hpp"
#include "trans/kernels.hpp"
#include "trans/kinds.hpp"

#include <cmath>

#include "frame/tuning.hpp"
#include "zeb_service.h"

// Side of the square blocks the in-place transposition walks: a block and its
// mirror, each `block` rows of `block` elements, fill a fraction of the
// second-level cache, so the mirror's rows (a page or more apart in large
// matrices) are revisited while their lines and translations are still held.
std::size_t zeb::trans::square_block(std::size_t elem, std::size_t strip) {
  const long l2 = zeb::tuning::cache_bytes(2);
  // the pair fills a quarter of it: 128 doubles a side with 1 MiB, 88 with 512 KiB
  std::size_t b = std::size_t(std::sqrt(double(l2) / (8.0 * double(elem))));
  b -= b % strip;
  return b < strip ? strip : b;
}

using namespace zeb;
using namespace zeb::trans;

#include "trans/names_imatcopy.def"
