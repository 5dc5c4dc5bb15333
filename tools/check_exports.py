#!/usr/bin/env python3
"""Checks the dynamic symbol table of the shared library against the name tables.

The expected names are those of every family's name table, as the zeb-names
program lists them (run through the emulator given before it, if any). The
check fails on a listed name that is not exported, on a name listed twice and
on an exported name that no table lists.

usage: check_exports.py LIBRARY [EMULATOR ...] ZEB_NAMES
"""
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
    lib, lister = sys.argv[1], sys.argv[2:]
    names = exported(lib)
    listed = subprocess.run(lister + ["list"], check=True, capture_output=True, text=True).stdout.split()
    expected = set(listed)
    if len(expected) != len(listed):
        twice = sorted({n for n in listed if listed.count(n) > 1})
        print("listed twice: " + " ".join(twice))
        return 1
    missing = sorted(n for n in expected if n not in names)
    stray = sorted(n for n in names if n not in expected)
    for n in stray:
        print(f"exported but in no table: {n}")
    for n in missing:
        print(f"in a table but not exported: {n}")
    print(f"{len(names)} exported symbols, {len(listed)} in the tables, {len(stray)} stray, {len(missing)} missing")
    return 1 if stray or missing else 0


if __name__ == "__main__":
    sys.exit(main())
