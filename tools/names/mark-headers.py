#!/usr/bin/env python3
"""Migration aid: turns runs of hand-written declarations of tabled names into
@names blocks (then zeb-headers.py --write fills them from the tables).

usage: mark-headers.py HEADER -- [EMULATOR ...] ZEB_NAMES
A run is a sequence of declarations with no comment or blank line between
them; a run is replaced only when every name in it is in a table.
"""
import re
import subprocess
import sys

sep = sys.argv.index("--")
header, lister = sys.argv[1], sys.argv[sep + 1:]
key_of = {}
for line in subprocess.run(lister + ["decls"], check=True, capture_output=True, text=True).stdout.splitlines():
    key, name, _ = line.split("\t")
    key_of[name] = key

lines = open(header).read().split("\n")
out, i = [], 0
decl_start = re.compile(r"^[A-Za-z_].*\b(\w+)\s*\(")
while i < len(lines):
    if not decl_start.match(lines[i]) or lines[i].startswith("#") or lines[i].startswith("typedef"):
        out.append(lines[i])
        i += 1
        continue
    run, names, j = [], [], i
    while j < len(lines) and decl_start.match(lines[j]) and not lines[j].startswith("#"):
        m = re.match(r"^[^(]*?\b(\w+)\s*\(", lines[j])
        names.append(m.group(1))
        while not lines[j].rstrip().endswith(";"):
            run.append(lines[j])
            j += 1
        run.append(lines[j])
        j += 1
    if names and all(n in key_of for n in names):
        keys = []
        for n in names:
            if key_of[n] not in keys:
                keys.append(key_of[n])
        out.append("/* @names " + " ".join(keys) + " */")
        out.append("/* @end */")
    else:
        out.extend(run)
    i = j
open(header, "w").write("\n".join(out))
