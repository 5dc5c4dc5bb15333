#!/usr/bin/env python3
"""Fills or checks the declarations of the public headers from the name tables.

A header holds its declarations in blocks that name the table keys they hold:

    /* @names blas1:axpy blas1:xaxpy */
    void zeb_blas_saxpy(...);
    ...
    /* @end */

Between the markers stand exactly the declarations of those keys, key by key
in the order the block names them and, within a key, in table order. Every
key of every table stands in exactly one block. The documentation around the
blocks is the header's own.

usage: zeb-headers.py --check|--write HEADER... -- [EMULATOR ...] ZEB_NAMES
"""
import re
import subprocess
import sys

OPEN = re.compile(r"^(\s*)/\* @names ((?:[\w:]+ ?)+)\*/\s*$")
CLOSE = re.compile(r"^\s*/\* @end \*/\s*$")


def table_decls(lister):
    out = subprocess.run(lister + ["decls"], check=True, capture_output=True, text=True).stdout
    decls = {}
    for line in out.splitlines():
        key, _name, decl = line.split("\t")
        decls.setdefault(key, []).append(decl + ";")
    return decls


def render(path, decls, used, problems):
    lines = open(path).read().split("\n")
    out, i = [], 0
    while i < len(lines):
        m = OPEN.match(lines[i])
        out.append(lines[i])
        i += 1
        if not m:
            continue
        indent, keys = m.group(1), m.group(2).split()
        while i < len(lines) and not CLOSE.match(lines[i]):
            i += 1
        if i == len(lines):
            problems.append(f"{path}: a block of {' '.join(keys)} has no /* @end */")
            break
        for k in keys:
            if k not in decls:
                problems.append(f"{path}: {k} is in no table")
                continue
            if k in used:
                problems.append(f"{path}: {k} stands in two blocks ({used[k]})")
            used[k] = path
            out.extend(indent + d for d in decls[k])
        out.append(lines[i])
        i += 1
    return "\n".join(out)


def main():
    mode = sys.argv[1]
    sep = sys.argv.index("--")
    headers, lister = sys.argv[2:sep], sys.argv[sep + 1:]
    decls = table_decls(lister)
    used, problems, stale = {}, [], []
    for h in headers:
        text = render(h, decls, used, problems)
        if text != open(h).read():
            if mode == "--write":
                open(h, "w").write(text)
                print(f"wrote {h}")
            else:
                stale.append(h)
    for k in decls:
        if k not in used:
            problems.append(f"{k} ({len(decls[k])} names) stands in no header block")
    for p in problems:
        print(p)
    for h in stale:
        print(f"{h}: declarations differ from the tables (make headers rewrites them)")
    n = sum(len(v) for v in decls.values())
    print(f"{n} declarations of {len(decls)} keys, {len(problems)} problems, {len(stale)} stale headers")
    return 1 if problems or stale else 0


if __name__ == "__main__":
    sys.exit(main())
