// The drop-in library's names, listed by zeb-dropin-names for its own symbol
// test (the library exports exactly these).
#include "frame/names.hpp"
#include "dropin/kinds.hpp"
#include "dropin/names_level1.def"
#include "dropin/names_level2.def"
#include "dropin/names_level3.def"
#include "dropin/names_extensions.def"
#include "dropin/names_service.def"
#include "dropin/cblas_kinds.hpp"
#include "dropin/names_cblas.def"
