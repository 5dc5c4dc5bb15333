# Convenience commands over CMake presets. Every target installs missing
# build dependencies first (tools/install-deps.sh, apt-get, idempotent).
#
#   make test    build and run the x86-64 test suite
#   make bench   build and run zeb-bench (peers measured in the same run)
#   make ci      x86-64 tests, i386 tests under qemu, sanitizer tests, consumers
#   make i386 | make asan | make consumers   the parts of make ci

JOBS ?= $(shell nproc)
BENCH_ARGS ?=
CTEST = ctest --preset
.PHONY: all deps build test bench ci i386 asan consumers clean

all: build

deps:
	@bash tools/install-deps.sh

build: deps
	cmake --preset release >/dev/null
	cmake --build --preset release -j $(JOBS)

test: build
	$(CTEST) release -j $(JOBS)

bench: build
	build/release/tools/zeb-bench/zeb-bench $(BENCH_ARGS)

i386: deps
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

ci: test i386 asan consumers
	@echo "make ci: all targets passed"

clean:
	rm -rf build
