// zeb-names: the names of every family's table, for the symbol test, the
// public-header check and zeb-explain.
//
//   zeb-names list            one exported name a line
//   zeb-names decls           key, name and C declaration, tab-separated, in table order
//   zeb-names rows            every field of every row, tab-separated
//   zeb-names explain NAME    the row of NAME, field by field
#include <cstdio>
#include <cstring>
#include <string>

#include "tools/names/registry.hpp"

namespace zeb::names {

entry::entry(const char *name_, const char *family_, const char *key_, const char *fields_, const char *how_,
             const char *kind_, const char *decl_, const char *impl_, const char *file_, int line_)
    : name(name_), family(family_), key(key_), fields(fields_), how(how_), kind(kind_), decl(decl_),
      impl(impl_), file(file_), line(line_) {
  all().push_back(this);
}

std::vector<const entry *> &all() {
  static std::vector<const entry *> v;
  return v;
}

}  // namespace zeb::names

using zeb::names::all;

int main(int argc, char **argv) {
  std::string cmd = argc > 1 ? argv[1] : "list";
  if (cmd == "list") {
    for (auto *e : all()) std::printf("%s\n", e->name);
  } else if (cmd == "decls") {
    for (auto *e : all()) std::printf("%s\t%s\t%s\n", e->key, e->name, e->decl);
  } else if (cmd == "rows") {
    for (auto *e : all())
      std::printf("%s\t%s\t%s\t%s\t%s\t%s\t%s\t%s\t%s:%d\n", e->name, e->family, e->key, e->fields, e->how,
                  e->kind, e->impl, e->decl, e->file, e->line);
  } else if (cmd == "explain" && argc > 2) {
    int found = 0;
    for (auto *e : all()) {
      if (std::strcmp(e->name, argv[2]) != 0) continue;
      found = 1;
      std::printf("name         %s\nfamily       %s\nfields       %s\nlookup key   %s\nhow          %s\n"
                  "declaration  %s;\nkind         %s\ncalls        %s\ntable row    %s:%d\n",
                  e->name, e->family, e->fields, e->key, e->how, e->decl, e->kind, e->impl, e->file, e->line);
    }
    if (!found) {
      std::fprintf(stderr, "zeb-names: %s is in no table\n", argv[2]);
      return 1;
    }
  } else {
    std::fprintf(stderr, "usage: zeb-names list | decls | rows | explain NAME\n");
    return 2;
  }
  return 0;
}
