# The two commands of the README:
#   make run    install what is missing, build, stage the program folder, start the editor
#   make test   the same set-up, then every test headless
# Also: make bench, make fuzz (FUZZ_SECONDS per target), make clean.

BUILD        ?= build
FUZZ_BUILD   ?= build-fuzz
JOBS         ?= $(shell nproc)
FUZZ_SECONDS ?= 60
CMAKE_FLAGS  ?=

.PHONY: all deps configure build run test bench fuzz clean

all: build

deps:
	@bash tools/install-deps.sh

$(BUILD)/build.ninja: | deps
	cmake -S . -B $(BUILD) -G Ninja $(CMAKE_FLAGS)

configure: deps $(BUILD)/build.ninja

build: configure
	cmake --build $(BUILD) -j $(JOBS)

run: build
	cd $(BUILD)/program && ./qor

test: build
	cd $(BUILD) && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j $(JOBS)

bench: build
	@for b in $(BUILD)/bench/*_bench; do echo "== $$b"; $$b || exit 1; done
	@if [ -x $(BUILD)/bench/win32_menu99 ]; then echo "== Windows player under wine"; \
	  bash bench/win32/run_under_wine.sh $(BUILD); fi
	@if [ -f $(BUILD)/program/web/qor_player.js ]; then echo "== web player in headless Chromium"; \
	  /usr/bin/python3 bench/web/web_bench.py $(BUILD); fi

fuzz:
	@bash tools/install-deps.sh fuzz
	CC=clang CXX=clang++ cmake -S . -B $(FUZZ_BUILD) -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
	  -DQOR_LIBFUZZER=ON -DQOR_BUILD_EDITOR=OFF -DQOR_BUILD_TESTS=OFF -DQOR_BUILD_BENCH=OFF
	cmake --build $(FUZZ_BUILD) -j $(JOBS)
	@set -e; for f in $(FUZZ_BUILD)/fuzz/*_fuzz; do \
	  [ -x $$f ] || continue; name=$$(basename $$f); mkdir -p $(FUZZ_BUILD)/corpus/$$name; \
	  echo "== $$name for $(FUZZ_SECONDS) s"; \
	  $$f -max_total_time=$(FUZZ_SECONDS) -timeout=10 -rss_limit_mb=2048 \
	      $(FUZZ_BUILD)/corpus/$$name fuzz/corpus/$$name; \
	done

clean:
	rm -rf $(BUILD) $(FUZZ_BUILD)
