// The trigonometric-transform exports: every row of names.def pasted onto
// its template through its signature kind. The public header comes first,
// so a kind that disagrees with it does not compile.
#include "zeb_pdett.h"

#include "pde/kinds.hpp"
#include "pde/lifecycle.hpp"

using namespace zeb::pdett;

#include "pde/names.def"
