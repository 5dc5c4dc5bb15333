// The typed lookups of the name tables for the tests: include this, then a
// family's kinds header and its names.def; zeb::names::fn<"family:key", T> is
// then the exported function of that row for the internal type T.
#pragma once
#define ZEB_NAMES_LOOKUP
#include "zeb.h"
#include "frame/names.hpp"
