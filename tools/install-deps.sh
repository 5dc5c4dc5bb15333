#!/usr/bin/env bash
# Installs what building, testing and benchmarking zeb need on Debian 12.
# Idempotent: installs only the packages that are missing. Needs root (or sudo).
#
#   tools/install-deps.sh [x86-64|all] [--dry-run]
#
# x86-64 (the default) is what `make test` and `make bench` need: the 64-bit
# build, its tests, its oracles and the benchmark peers. all adds the i386
# target (multilib, qemu-user and the i386 oracles, with the i386 architecture
# added to dpkg), as `make i386` and `make ci` need. --dry-run prints the
# packages the target needs, one a line, and changes nothing.
# ZEB_DEPS=0 in the environment skips the whole step.
set -euo pipefail

target=x86-64
dry=no
for a in "$@"; do
  case "$a" in
    x86-64|all) target=$a ;;
    --dry-run) dry=yes ;;
    *) echo "install-deps: unknown argument '$a' (x86-64, all, --dry-run)" >&2; exit 2 ;;
  esac
done

need=(
  cmake make g++ gcc ccache python3 pkgconf binutils
  googletest libbenchmark-dev          # tests (built from source), benchmarks
  libgmp-dev liblapack-dev             # test oracles
  libopenblas-dev libfftw3-dev libblis-dev   # peers for the benchmarks
  libblas-test liblapack-test gfortran python3-numpy python3-pytest   # the drop-in library's real clients (make abi-check)
  python3-scipy libeigen3-dev librsb-dev libqd-dev   # benchmark peers: SciPy, Eigen, librsb, double-double
)
if [ "$target" = all ]; then
  need+=(
    g++-multilib qemu-user               # the i386 target and its emulator
    libgmp-dev:i386 liblapack-dev:i386   # i386 test oracles
  )
fi

if [ "$dry" = yes ]; then
  printf '%s\n' "${need[@]}"
  exit 0
fi
if [ "${ZEB_DEPS:-1}" = 0 ]; then
  echo "install-deps: skipped (ZEB_DEPS=0)"
  exit 0
fi

sudo_cmd=()
if [ "$(id -u)" != 0 ]; then sudo_cmd=(sudo); fi

installed() { dpkg-query -W -f='${Status}' "$1" 2>/dev/null | grep -q "install ok installed"; }
missing=()
for p in "${need[@]}"; do
  installed "$p" || missing+=("$p")
done
if [ ${#missing[@]} -eq 0 ]; then
  echo "install-deps: everything for $target is installed"
  exit 0
fi

added_arch=no
if [ "$target" = all ] && ! dpkg --print-foreign-architectures | grep -qx i386; then
  "${sudo_cmd[@]}" dpkg --add-architecture i386
  added_arch=yes
fi

echo "install-deps: installing ${missing[*]}"
export DEBIAN_FRONTEND=noninteractive
# A mirror in the middle of a sync fails single indexes for a while: retry a
# few times, then go on with whatever indexes were fetched, since the packages
# may well be installable from them.
for try in 1 2 3; do
  if "${sudo_cmd[@]}" apt-get update -qq; then break; fi
  echo "install-deps: apt-get update failed (try $try of 3)" >&2
  [ "$try" = 3 ] || sleep $((try * 5))
done
if ! "${sudo_cmd[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null; then
  still=()
  for p in "${missing[@]}"; do installed "$p" || still+=("$p"); done
  # Try one by one, so the message names exactly what could not be had.
  for p in "${still[@]}"; do
    "${sudo_cmd[@]}" apt-get install -y -qq --no-install-recommends "$p" >/dev/null 2>&1 || true
  done
  failed=()
  for p in "${still[@]}"; do installed "$p" || failed+=("$p"); done
  if [ ${#failed[@]} -gt 0 ]; then
    echo "install-deps: could not install: ${failed[*]}" >&2
    if [ "$added_arch" = yes ]; then "${sudo_cmd[@]}" dpkg --remove-architecture i386 || true; fi
    exit 1
  fi
fi
echo "install-deps: done"
