# Two commands on a fresh Debian machine: `make run` and `make test`.
BUILD      ?= build
BUILD_TYPE ?= Release
JOBS       ?= $(shell nproc)
PREFIX     ?= /usr/local

.PHONY: all deps configure build test sanitize run demo bench fuzz clean install package

all: build

deps:
	@scripts/install-deps

configure: deps
	@cmake -S . -B $(BUILD) -G Ninja -DCMAKE_BUILD_TYPE=$(BUILD_TYPE) >/dev/null

build: configure
	@cmake --build $(BUILD) -j $(JOBS)

test: build
	cd $(BUILD) && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j $(JOBS)
	@if [ -n "$$CI" ]; then JOBS=$(JOBS) scripts/sanitize-test; fi
	@if [ -n "$$CI" ] && [ -x scripts/fuzz-smoke ]; then scripts/fuzz-smoke; fi

# The core, tolmar-cli and their tests in Debug under AddressSanitizer and
# UBSan (build-asan); part of `make test` on CI.
sanitize:
	JOBS=$(JOBS) scripts/sanitize-test

run: build
	$(BUILD)/gui/tolmar

demo: build
	rm -rf demo && mkdir -p demo
	scripts/demo $(BUILD)/cli/tolmar-cli demo

# The 3-D view's frame needs OpenGL: without a display the benchmarks run
# under xvfb-run when it is installed (else that one reports no context).
bench: build
	@if [ -z "$$DISPLAY" ] && command -v xvfb-run >/dev/null; then \
	  xvfb-run -a -s "-screen 0 1920x1200x24" $(BUILD)/bench/tolmar-bench; \
	else $(BUILD)/bench/tolmar-bench; fi

fuzz:
	scripts/fuzz-smoke

# Both programs, manual pages, desktop entry, icon, hull file type, completion.
# The file type and the menu entry take effect once their databases are
# rebuilt, as the package's triggers do on install.
install: build
	cmake --install $(BUILD) --prefix $(PREFIX)
	-command -v update-mime-database >/dev/null && update-mime-database $(PREFIX)/share/mime
	-command -v update-desktop-database >/dev/null && update-desktop-database $(PREFIX)/share/applications

# The Debian package tolmar_VERSION_ARCH.deb, here: `apt install ./tolmar_*.deb`.
package: build
	rm -f $(BUILD)/package/tolmar_*.deb
	cpack -G DEB --config $(BUILD)/CPackConfig.cmake -B $(abspath $(BUILD))/package
	cp $(BUILD)/package/tolmar_*.deb .

clean:
	rm -rf $(BUILD) build-asan build-fuzz demo tolmar_*.deb
