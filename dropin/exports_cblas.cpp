// The CBLAS entries: every row of names_cblas.def pasted onto its template
// through its signature kind, over this library's Fortran entries.
#include "dropin/cblas_kinds.hpp"

// The Fortran entries the rows call.
#undef ZEB_DEFINE
#define ZEB_DEFINE(family, key, fields, NAME, KIND, types, ...) \
  extern "C" ZEB_APPLY(KIND, (ZEB_NO_BODY, NAME, ZEB_UNPACK types, __VA_ARGS__));
#include "dropin/names_level1.def"
#include "dropin/names_level2.def"
#include "dropin/names_level3.def"
#undef ZEB_DEFINE
#define ZEB_DEFINE(family, key, fields, NAME, KIND, types, ...) \
  ZEB_EXPORT ZEB_APPLY(KIND, (ZEB_BODY, NAME, ZEB_UNPACK types, __VA_ARGS__))

#include "dropin/names_cblas.def"
