# The everyday words of this repository. Everything built goes to build/, everything written to out/.

PREFIX ?= /usr/local
DESTDIR ?=
FUZZ_SECONDS ?= 30
# lint: only files changed since this commit; start none after this many minutes.
BASE ?=
LINT_MINUTES ?=

.PHONY: help setup demo test bench bench-parts format format-check lint fuzz docs install clean

help:
	@echo 'make demo          build vynx, write the example models in every format to out/, draw them'
	@echo 'make test          build and run all tests, with sanitizers'
	@echo 'make bench         every writer and reader on models of up to a million nodes; out/bench.md'
	@echo 'make bench-parts   benchmarks of single parts'
	@echo 'make fuzz          run the fuzz targets, FUZZ_SECONDS=$(FUZZ_SECONDS) each'
	@echo 'make format        lay out the sources as .clang-format says'
	@echo 'make format-check  name the sources that are laid out otherwise'
	@echo 'make lint          clang-tidy; BASE=<commit> for the files changed since'
	@echo 'make docs          reference of the headers with Doxygen, to build/docs/html'
	@echo 'make install       install libraries, headers and vynx under PREFIX=$(PREFIX)'
	@echo 'make setup         install the packages that all this needs (Debian)'
	@echo 'make clean         remove build/ and out/'

setup:
	@scripts/setup

demo: setup
	cmake --preset release
	cmake --build --preset release --target vynx
	scripts/demo

test: setup
	cmake --preset dev
	cmake --build --preset dev
	ctest --preset dev -j2

bench: setup
	@scripts/setup gmsh || echo 'bench: without the mesh generator'
	cmake --preset bench
	cmake --build --preset bench --target vyn_bench
	build/bench/bin/vyn_bench -o out/bench.md

bench-parts: setup
	cmake --preset bench
	cmake --build --preset bench
	@set -e; for program in build/bench/bin/vyn_bench_*; do \
		[ -x "$$program" ] || continue; echo "== $$program"; "$$program"; done

format: setup
	scripts/format

format-check: setup
	scripts/format --check

# Every header must compile by itself before clang-tidy looks at anything.
lint: setup
	cmake --preset dev
	cmake --build --preset dev --target all_verify_interface_header_sets
	scripts/lint $(if $(BASE),--base $(BASE)) $(if $(LINT_MINUTES),--minutes $(LINT_MINUTES))

fuzz: setup
	cmake --preset fuzz
	cmake --build --preset fuzz
	scripts/fuzz $(FUZZ_SECONDS)

docs:
	@scripts/setup doxygen
	doxygen docs/Doxyfile

install: setup
	cmake --preset release
	cmake --build --preset release
	DESTDIR="$(DESTDIR)" cmake --install build/release --prefix "$(PREFIX)"

clean:
	rm -rf build out
