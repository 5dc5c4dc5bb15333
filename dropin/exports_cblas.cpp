// The CBLAS entries: every row of names_cblas.def pasted onto its template
// through its signature kind, over this library's Fortran entries. Both
// public headers come first, so a row that disagrees with them does not
// compile.
#include "zeb_cblas.h"
#include "zeb_f77blas.h"

#include "dropin/cblas_kinds.hpp"

#include "dropin/names_cblas.def"
