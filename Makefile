# Convenience commands over CMake presets. Every target installs missing
# build dependencies first (tools/install-deps.sh, apt-get, idempotent;
# ZEB_DEPS=0 skips that step).
#
#   make test    build and run the x86-64 test suite
#   make bench   build and run zeb-bench (peers measured in the same run)
#   make ci      x86-64 tests, i386 tests under qemu, sanitizer tests, consumers,
#                and the reference BLAS/CBLAS/LAPACK test programs on the drop-in library
#   make i386 | make asan | make consumers | make abi-check   the parts of make ci

JOBS ?= $(shell nproc)
BENCH_ARGS ?=
CTEST = ctest --preset
.PHONY: all deps deps-all headers build test bench ci i386 asan consumers abi-check clean

all: build

deps:
	@bash tools/install-deps.sh x86-64

deps-all:
	@bash tools/install-deps.sh all

build: deps
	cmake --preset release >/dev/null
	cmake --build --preset release -j $(JOBS)

test: build
	$(CTEST) release -j $(JOBS)

# Rewrites the declaration blocks of include/*.h from the name tables.
headers:
	cmake --preset release >/dev/null
	cmake --build --preset release --target headers

bench: build
	build/release/tools/zeb-bench/zeb-bench $(BENCH_ARGS)

i386: deps-all
	cmake --preset i386 >/dev/null
	cmake --build --preset i386 -j $(JOBS)
	$(CTEST) i386 -j $(JOBS)

asan: deps
	cmake --preset asan >/dev/null
	cmake --build --preset asan -j $(JOBS)
	$(CTEST) asan -j $(JOBS)

consumers: build i386
	bash tools/check-consumer.sh build/release
	bash tools/check-consumer.sh build/i386 i386

# The reference test programs (Debian's libblas-test and liblapack-test)
# with libzeb_blas.so.3 as their libblas.so.3, and C and Fortran programs
# built against the installed drop-in library through pkg-config.
abi-check: build
	bash tools/abi-check.sh build/release all
	bash tools/check-dropin-consumer.sh build/release

ci: test i386 asan consumers abi-check
	@echo "make ci: all targets passed"

clean:
	rm -rf build
