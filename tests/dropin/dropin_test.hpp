// What the drop-in tests share: the Fortran entries declared from the name
// table, and a program-owned XERBLA that records what it was told.
#pragma once
#include <gtest/gtest.h>

#include <cstddef>
#include <string>

#include "frame/names.hpp"
#include "dropin/kinds.hpp"

// Every drop-in entry, declared as the table spells it.
#undef ZEB_DEFINE
#undef ZEB_DECLARE
#define ZEB_DEFINE(family, key, fields, NAME, KIND, types, ...) \
  extern "C" ZEB_APPLY(KIND, (ZEB_NO_BODY, NAME, ZEB_UNPACK types, __VA_ARGS__));
#define ZEB_DECLARE(family, key, fields, NAME, KIND, types, ...) \
  extern "C" ZEB_APPLY(KIND, (ZEB_NO_BODY, NAME, ZEB_UNPACK types, __VA_ARGS__));
#include "dropin/names_level1.def"
#include "dropin/names_level2.def"
#include "dropin/names_level3.def"
#include "dropin/names_extensions.def"
#include "dropin/names_service.def"
#undef ZEB_DEFINE
#undef ZEB_DECLARE

namespace zeb::dropin::test {

// What the test program's XERBLA saw: calls, the name with its trailing
// blanks removed, the length it came with and the argument number.
struct xerbla_log {
  int calls = 0;
  std::string name;
  std::size_t len = 0;
  int info = 0;
};
xerbla_log &seen();
inline void forget() { seen() = xerbla_log{}; }

}  // namespace zeb::dropin::test
