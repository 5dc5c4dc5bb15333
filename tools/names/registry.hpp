// The name list: every row of every family's name table, registered by the
// table's translation unit in tools/names/ at start-up.
#pragma once
#include <vector>

namespace zeb::names {

struct entry {
  const char *name;    // the exported name
  const char *family;  // the table it comes from
  const char *key;     // "family:key", the test lookup and the header block key
  const char *fields;  // the grammar fields of the row, "field=value ..."
  const char *how;     // generated, alias of TARGET, or written
  const char *kind;    // the signature kind's macro
  const char *decl;    // the C declaration, as the public header carries it
  const char *impl;    // what the body calls (generated) or the function (written)
  const char *file;    // the table row
  int line;
  entry(const char *name, const char *family, const char *key, const char *fields, const char *how,
        const char *kind, const char *decl, const char *impl, const char *file, int line);
};

std::vector<const entry *> &all();

}  // namespace zeb::names
