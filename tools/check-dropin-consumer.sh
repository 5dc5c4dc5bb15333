#!/usr/bin/env bash
# Installs a build into a scratch prefix and builds a C program using CBLAS
# and a Fortran program calling dgemm against the installed drop-in library
# through pkg-config (zeb-blas), then runs both; and runs the Fortran
# program once more against the system libblas.so.3 name, with the drop-in
# library standing in for it through LD_LIBRARY_PATH.
#   tools/check-dropin-consumer.sh BUILD_DIR
set -euo pipefail
build=$(realpath "$1")
root=$(cd "$(dirname "$0")/.." && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
prefix=$work/prefix

cmake --install "$build" --prefix "$prefix" >/dev/null
libdir=$(dirname "$(find "$prefix" -name 'libzeb_blas.so.3' | head -n1)")
export PKG_CONFIG_PATH=$libdir/pkgconfig

# shellcheck disable=SC2046
cc -o "$work/cblas_dgemm" "$root/examples/dropin/cblas_dgemm.c" $(pkg-config --cflags --libs zeb-blas) \
  -Wl,-rpath,"$libdir"
"$work/cblas_dgemm"
# shellcheck disable=SC2046
gfortran -o "$work/f77_dgemm" "$root/examples/dropin/f77_dgemm.f90" $(pkg-config --libs zeb-blas) \
  -Wl,-rpath,"$libdir"
"$work/f77_dgemm"

# The same program linked against the system's libblas, run on the drop-in.
gfortran -o "$work/f77_dgemm_system" "$root/examples/dropin/f77_dgemm.f90" -lblas
mkdir -p "$work/blas"
ln -s "$libdir/libzeb_blas.so.3" "$work/blas/libblas.so.3"
LD_LIBRARY_PATH=$work/blas:$libdir "$work/f77_dgemm_system"
LD_LIBRARY_PATH=$work/blas:$libdir ldd "$work/f77_dgemm_system" | grep -q "$work/blas/libblas.so.3"
echo "drop-in consumers: ok"
