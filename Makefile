# The two front doors: `make run` and `make test`. Both install what is
# missing, configure and build first.
BUILD ?= build
JOBS ?= $(shell nproc)
CMAKE_FLAGS ?=

.PHONY: all deps configure build run test sanitize bench democard install deb clean

all: build

deps:
	@tools/setup/install-deps.sh

$(BUILD)/build.ninja: CMakeLists.txt | deps
	cmake -S . -B $(BUILD) -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo $(CMAKE_FLAGS)

configure: deps $(BUILD)/build.ninja

build: configure
	cmake --build $(BUILD) -j $(JOBS)

democard: build
	cmake --build $(BUILD) --target demo_card

# Starts the viewer on the camera card when one is mounted, else on the demo card.
run: democard
	$(BUILD)/tarvik-viewer --demo-card $(BUILD)/demo-card

# Interface tests that need OpenGL or the web engine use the X server started here;
# the others run on Qt's offscreen platform.
test: build
	cd $(BUILD) && xvfb-run -a -s "-screen 0 1920x1080x24" \
	  ctest --output-on-failure -j $(JOBS) --timeout 600
	$(MAKE) sanitize

# The core, the command line and their tests again, built by clang with
# AddressSanitizer and UndefinedBehaviorSanitizer, and every fuzz corpus replayed.
SANITIZE_BUILD ?= build-asan
$(SANITIZE_BUILD)/build.ninja: CMakeLists.txt | deps
	CC=clang CXX=clang++ cmake -S . -B $(SANITIZE_BUILD) -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
	  -DTARVIK_BUILD_UI=OFF -DTARVIK_BUILD_BENCH=OFF -DTARVIK_SANITIZE=ON -DTARVIK_BUILD_FUZZ=ON $(CMAKE_FLAGS)

sanitize: $(SANITIZE_BUILD)/build.ninja
	cmake --build $(SANITIZE_BUILD) -j $(JOBS)
	cd $(SANITIZE_BUILD) && ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1 \
	  ctest --output-on-failure -j $(JOBS) --timeout 900

# Benchmarks that open players need an X server: the same one `make test` uses.
# Each program adds its rows to one table, printed at the end.
BENCH_TABLE = $(abspath $(BUILD))/bench/results.tsv
bench: build
	cmake --build $(BUILD) --target benchmarks tarvik
	rm -f $(BENCH_TABLE)
	cd $(BUILD) && TARVIK_BENCH_TABLE=$(BENCH_TABLE) QTWEBENGINE_DISABLE_SANDBOX=1 \
	  xvfb-run -a -s "-screen 0 1920x1080x24" sh -c \
	  'for b in bench/bench_*; do [ -x "$$b" ] || continue; echo "== $$b"; "$$b" || exit 1; done'
	@tools/bench/print_table.sh $(BENCH_TABLE)

# Installs the programs and their data into PREFIX (no root needed for a
# prefix of one's own, e.g. make install PREFIX=$$HOME/.local).
PREFIX ?= /usr/local
install: build
	cmake --install $(BUILD) --prefix $(PREFIX)

# A Debian package of both programs: build/tarvik-viewer_VERSION_amd64.deb.
deb: build
	cd $(BUILD) && cpack -G DEB

clean:
	rm -rf $(BUILD)
