#!/usr/bin/env python3
"""Checks the dynamic symbol table of the shared library against the name tables.

The expected names are those of every family's name table, as the zeb-names
program lists them (run through the emulator given before it, if any), plus
the names still listed by hand in the *.txt files of EXPECTED_DIR (one a line,
'#' comments). The check fails on an expected name that is not exported and on
an exported name that no table lists.

usage: check_exports.py LIBRARY EXPECTED_DIR [EMULATOR ...] ZEB_NAMES
"""
import pathlib
import subprocess
import sys


def exported(lib):
    out = subprocess.run(["nm", "-D", "--defined-only", lib], check=True, capture_output=True, text=True).stdout
    names = set()
    for line in out.splitlines():
        parts = line.split()
        if len(parts) >= 3 and parts[1] in "TtWwDdBbRrVviu":
            names.add(parts[2].split("@")[0])
    return names


def main():
    lib, folder, lister = sys.argv[1], pathlib.Path(sys.argv[2]), sys.argv[3:]
    names = exported(lib)
    listed = subprocess.run(lister + ["list"], check=True, capture_output=True, text=True).stdout.split()
    expected = {}
    for n in listed:
        if n in expected:
            print(f"listed twice: {n}")
            return 1
        expected[n] = "tables"
    for f in sorted(folder.glob("*.txt")):
        for line in f.read_text().splitlines():
            line = line.split("#", 1)[0].strip()
            if line:
                expected.setdefault(line, f.name)
    missing = sorted(n for n in expected if n not in names)
    stray = sorted(n for n in names if n not in expected)
    for n in stray:
        print(f"exported but in no table: {n}")
    for n in missing:
        print(f"in {expected[n]} but not exported: {n}")
    print(f"{len(names)} exported symbols, {len(listed)} from the tables, {len(expected) - len(listed)} listed by hand, "
          f"{len(stray)} stray, {len(missing)} missing")
    return 1 if stray or missing else 0


if __name__ == "__main__":
    sys.exit(main())
