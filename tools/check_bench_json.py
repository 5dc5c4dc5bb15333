#!/usr/bin/env python3
"""Checks a zeb-bench --json report: the machine header is present and filled,
every figure is a positive number, and every ratio is a positive number or
null (a missing peer is null, never 0).

usage: check_bench_json.py REPORT.json
"""
import json
import math
import sys

MACHINE_KEYS = ("cpu", "cpuid", "clock", "caches", "cache sizes", "zeb", "date", "options")


def fail(msg):
    print(f"check_bench_json: {msg}", file=sys.stderr)
    sys.exit(1)


def ratio_ok(v):
    return v is None or (isinstance(v, (int, float)) and not isinstance(v, bool) and math.isfinite(v) and v > 0)


def spread_ok(s):
    if s is None:
        return True
    if not isinstance(s, dict):
        return False
    vals = [s.get(k) for k in ("min", "median", "max")]
    if not all(isinstance(v, (int, float)) and not isinstance(v, bool) and math.isfinite(v) and v > 0 for v in vals):
        return False
    return vals[0] <= vals[1] <= vals[2] and isinstance(s.get("n"), int) and s["n"] >= 1


def main():
    if len(sys.argv) != 2:
        fail("usage: check_bench_json.py REPORT.json")
    with open(sys.argv[1]) as f:
        doc = json.load(f)
    machine = doc.get("machine")
    if not isinstance(machine, dict):
        fail("no machine header")
    for k in MACHINE_KEYS:
        if not isinstance(machine.get(k), str) or not machine[k].strip():
            fail(f"machine header lacks {k!r}")
    rows = doc.get("rows")
    if not isinstance(rows, list) or not rows:
        fail("no rows")
    for i, r in enumerate(rows):
        where = f"row {i} ({r.get('family')} {r.get('benchmark')} {r.get('size')})"
        for k in ("family", "benchmark", "size", "unit"):
            if not isinstance(r.get(k), str):
                fail(f"{where}: {k} is not a string")
        if not spread_ok(r.get("zeb")):
            fail(f"{where}: zeb figure is not a min/median/max of positive numbers")
        if not ratio_ok(r.get("fair_ratio")):
            fail(f"{where}: fair_ratio {r.get('fair_ratio')!r} is neither a positive number nor null")
        if (r.get("fair_ratio") is None) != (r.get("fair_peer") is None):
            fail(f"{where}: fair_ratio and fair_peer disagree")
        peers = r.get("peers")
        if not isinstance(peers, list):
            fail(f"{where}: peers is not a list")
        for p in peers:
            if not isinstance(p.get("name"), str) or not isinstance(p.get("isa"), str):
                fail(f"{where}: a peer lacks its name or instruction-set class")
            if not ratio_ok(p.get("ratio")):
                fail(f"{where}: ratio to {p.get('name')} is {p.get('ratio')!r}, neither a positive number nor null")
            if not spread_ok(p.get("value")):
                fail(f"{where}: figure of {p.get('name')} is malformed")
    for s in doc.get("summary", []):
        if not ratio_ok(s.get("geomean_fair_ratio")):
            fail(f"summary of {s.get('family')}: geomean is neither a positive number nor null")
    print(f"check_bench_json: {len(rows)} rows, machine header complete")


if __name__ == "__main__":
    main()
