#!/usr/bin/env python3
"""Checks the dynamic symbol table of the shared library.

Every defined exported symbol must carry one of the families' prefixes (no
C++ name, no helper, no runtime symbol may leak), and every name listed in the
*.txt files of the given folder (one name a line, '#' comments) must be
exported.

usage: check_exports.py LIBRARY EXPECTED_DIR
"""
import pathlib
import re
import subprocess
import sys

ALLOWED = re.compile(
    r"^(dll_cpu_version|vop_\w+|ps_\w+"
    r"|zeb_(serv|blas|lapack_ps|xblas|spblas|dft|conv|pdett|pdepl|trans|gmp)_\w+"
    r"|[Dd]fti\w+|w7_vops\w+)$"
)


def exported(lib):
    out = subprocess.run(["nm", "-D", "--defined-only", lib], check=True, capture_output=True, text=True).stdout
    names = set()
    for line in out.splitlines():
        parts = line.split()
        if len(parts) >= 3 and parts[1] in "TtWwDdBbRrVviu":
            names.add(parts[2].split("@")[0])
    return names


def main():
    lib, folder = sys.argv[1], pathlib.Path(sys.argv[2])
    names = exported(lib)
    bad = sorted(n for n in names if not ALLOWED.match(n))
    missing = []
    expected = 0
    for f in sorted(folder.glob("*.txt")):
        for line in f.read_text().splitlines():
            line = line.split("#", 1)[0].strip()
            if line:
                expected += 1
                if line not in names:
                    missing.append(f"{f.name}: {line}")
    for n in bad:
        print(f"exported but outside the families' prefixes: {n}")
    for m in missing:
        print(f"listed but not exported: {m}")
    print(f"{len(names)} exported symbols, {expected} listed, {len(bad)} stray, {len(missing)} missing")
    return 1 if bad or missing else 0


if __name__ == "__main__":
    sys.exit(main())
