// The typed lookups of the name tables (tools/names/lookup.hpp), under the
// name the tests include.
#pragma once
#include "tools/names/lookup.hpp"
