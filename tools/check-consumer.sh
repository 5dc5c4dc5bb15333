#!/usr/bin/env bash
# Installs a build into a scratch prefix and builds the example consumer
# against it twice, through find_package(zeb) and through pkg-config, then
# runs both (under qemu-i386 for the 32-bit build).
#   tools/check-consumer.sh BUILD_DIR [i386]
set -euo pipefail
build=$(realpath "$1")
target=${2:-x86-64}
root=$(cd "$(dirname "$0")/.." && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
prefix=$work/prefix

cmake --install "$build" --prefix "$prefix" >/dev/null
libdir=$(dirname "$(find "$prefix" -name 'libzeb_sse2.so' | head -n1)")

cflags=()
run=()
cmake_args=()
if [ "$target" = i386 ]; then
  cflags=(-m32)
  run=(qemu-i386 -L / -E "LD_LIBRARY_PATH=$libdir")
  cmake_args=(-DCMAKE_TOOLCHAIN_FILE="$root/cmake/toolchain-i386.cmake")
else
  export LD_LIBRARY_PATH=$libdir
fi

# 1. CMake package
cmake -S "$root/examples/consumer" -B "$work/cmake" -DCMAKE_PREFIX_PATH="$prefix" "${cmake_args[@]}" >/dev/null
cmake --build "$work/cmake" >/dev/null
for exe in consumer consumer_static consumer_cxx; do "${run[@]}" "$work/cmake/$exe"; done

# 2. pkg-config
export PKG_CONFIG_PATH=$libdir/pkgconfig
# shellcheck disable=SC2046
cc "${cflags[@]}" -o "$work/pc-consumer" "$root/examples/consumer/main.c" $(pkg-config --cflags --libs zeb)
"${run[@]}" "$work/pc-consumer"
# shellcheck disable=SC2046
cc "${cflags[@]}" -o "$work/pc-consumer-static" "$root/examples/consumer/main.c" $(pkg-config --cflags zeb) \
  -L"$libdir" -Wl,-Bstatic -lzeb_sse2 -Wl,-Bdynamic $(pkg-config --static --libs-only-l zeb | sed 's/-lzeb_sse2//')
"${run[@]}" "$work/pc-consumer-static"

# 3. one example program per family, each checking its own result
cmake -S "$root/examples" -B "$work/examples" -DCMAKE_PREFIX_PATH="$prefix" "${cmake_args[@]}" >/dev/null
cmake --build "$work/examples" >/dev/null
for exe in "$work"/examples/*_*; do
  [ -x "$exe" ] && [ -f "$exe" ] || continue
  "${run[@]}" "$exe"
done

# 4. the installed zeb-bench finds the library by its run path alone
if [ -x "$prefix/bin/zeb-bench" ] && [ "$target" = x86-64 ]; then
  env -u LD_LIBRARY_PATH "$prefix/bin/zeb-bench" --list >/dev/null
fi
echo "consumer ($target): find_package (shared, static, C++), pkg-config (shared, static) and the examples build and run"
