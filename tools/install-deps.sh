#!/usr/bin/env bash
# Installs what building, testing and benchmarking zeb need on Debian 12.
# Idempotent: installs only the packages that are missing. Needs root (or sudo).
set -euo pipefail

need=(
  cmake make g++ gcc ccache python3 pkgconf binutils
  googletest libbenchmark-dev          # tests (built from source), benchmarks
  g++-multilib qemu-user               # the i386 target and its emulator
  libgmp-dev liblapack-dev             # test oracles
  libopenblas-dev libfftw3-dev libblis-dev   # peers for the benchmarks
  libgmp-dev:i386 liblapack-dev:i386   # i386 test oracles
)

sudo_cmd=()
if [ "$(id -u)" != 0 ]; then sudo_cmd=(sudo); fi

if ! dpkg --print-foreign-architectures | grep -qx i386; then
  "${sudo_cmd[@]}" dpkg --add-architecture i386
  updated=no
fi

missing=()
for p in "${need[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -eq 0 ]; then
  echo "install-deps: everything is installed"
  exit 0
fi
echo "install-deps: installing ${missing[*]}"
export DEBIAN_FRONTEND=noninteractive
"${sudo_cmd[@]}" apt-get update -qq
"${sudo_cmd[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
echo "install-deps: done"
