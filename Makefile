# Two commands on a fresh Debian machine: `make run` and `make test`.
BUILD      ?= build
BUILD_TYPE ?= Release
JOBS       ?= $(shell nproc)

.PHONY: all deps configure build test run demo bench fuzz clean

all: build

deps:
	@scripts/install-deps

configure: deps
	@cmake -S . -B $(BUILD) -G Ninja -DCMAKE_BUILD_TYPE=$(BUILD_TYPE) >/dev/null

build: configure
	@cmake --build $(BUILD) -j $(JOBS)

test: build
	cd $(BUILD) && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j $(JOBS)
	@if [ -n "$$CI" ] && [ -x scripts/fuzz-smoke ]; then scripts/fuzz-smoke; fi

run: build
	$(BUILD)/gui/tolmar

demo: build
	rm -rf demo && mkdir -p demo
	scripts/demo $(BUILD)/cli/tolmar-cli demo

bench: build
	$(BUILD)/bench/tolmar-bench

fuzz:
	scripts/fuzz-smoke

clean:
	rm -rf $(BUILD) build-fuzz demo
