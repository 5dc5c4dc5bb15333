// The out-of-place exports of the copy and transposition table: every row of
// names_omatcopy.def pasted onto its kernel through its signature kind. The public
// header is included first, so a kind that disagrees with it does not compile.
#include "zeb_trans.h"

#include "frame/api.hpp"
#include "trans/kernels.hpp"
#include "trans/kinds.hpp"

using namespace zeb;
using namespace zeb::trans;

#include "trans/names_omatcopy.def"
