# The commands of the project. Each installs what it needs, builds, and acts; CMake and its presets stand behind.
SHELL := /bin/sh
.DEFAULT_GOAL := build
.PHONY: build run test tour help-pictures bench fuzz pack check-pack soak lint deb dist windows windows-test clean

# Builds and tests speak one language everywhere; the program itself keeps that of the user.
in_c_locale := env LC_ALL=C.UTF-8
install := packaging/install-dependencies.sh
release := $(in_c_locale) cmake --build --preset release
configure_release := $(in_c_locale) cmake --preset release --log-level=NOTICE
sanitizers := $(in_c_locale) cmake --build --preset sanitizers
configure_sanitizers := $(in_c_locale) cmake --preset sanitizers --log-level=NOTICE

# Seconds for each fuzz target, random events of the soak test.
FUZZ_SECONDS ?= 60
SOAK_EVENTS ?= 100000

## The program and its data pack.
build:
	@$(install) build
	@$(configure_release)
	@$(release) --target program

## Starts the program; without a screen it plays the tour instead.
run: build
	@$(install) run
	@if [ -n "$$DISPLAY$$WAYLAND_DISPLAY" ]; then exec build/release/cserko; else \
	  echo "There is no screen here: playing the tour instead."; exec $(MAKE) --no-print-directory tour; fi

## All tests, the logic once more under the sanitizers. The last lines count them all. Three times as many at a time as
## there are cores: those with real windows wait more than they work.
test:
	@$(install) build run deb test
	@packaging/lint.sh format
	@$(configure_release)
	@$(configure_sanitizers)
	@$(release)
	@$(sanitizers)
	@printf 'subdirs(release sanitizers)\n' > build/CTestTestfile.cmake
	@$(in_c_locale) ctest --test-dir build --output-on-failure --no-tests=error -j$$(( $$(nproc) * 3 ))

## Opens every window on screens of three sizes, checks them and leaves pictures in out/tour.
tour:
	@$(install) build run test
	@$(configure_release)
	@$(release) --target cserko-tour pack
	@$(in_c_locale) tests/tour/run-tour.sh build/release out/tour

## Pictures of the help that are still missing, from the tour; PICTURES="true_or_false music" makes these anew.
help-pictures:
	@$(install) build run test
	@$(configure_release)
	@$(release) --target cserko-tour pack
	@$(in_c_locale) tests/tour/make-help-pictures.sh build/release help/pictures $(PICTURES)

## Ratios of speed and memory, also in out/bench.
bench:
	@$(install) build run test
	@$(configure_release)
	@$(release) --target bench
	@$(in_c_locale) bench/run-benches.sh build/release out/bench

## Every parser under the fuzzer, FUZZ_SECONDS seconds each.
fuzz:
	@$(install) build run fuzz
	@$(in_c_locale) cmake --preset fuzz --log-level=NOTICE
	@$(in_c_locale) cmake --build --preset fuzz --target fuzz
	@$(in_c_locale) fuzz/run-fuzzers.sh build/fuzz out/fuzz $(FUZZ_SECONDS)

## The data pack in build/pack, its contact sheets in out/pack.
pack:
	@$(install) build
	@$(configure_release)
	@$(release) --target pack

## Proves the texts of the data pack and that every exercise can be played on it.
check-pack:
	@$(install) build
	@$(configure_release)
	@$(release) --target check-pack

## SOAK_EVENTS random events on whatever is shown, under the sanitizers.
soak:
	@$(install) build
	@$(configure_sanitizers)
	@$(sanitizers) --target cserko_soak
	@build/sanitizers/cserko_soak $(SOAK_EVENTS)

## Layout and clang-tidy; FILES="a.cpp b.cpp" looks at these alone.
lint:
	@$(install) build lint
	@$(configure_release)
	@packaging/lint.sh tidy $(FILES)

## The Debian packages of program and data, in out/deb.
deb:
	@$(install) build deb
	@$(configure_release)
	@$(release) --target deb

## The source archive, in out/dist.
dist:
	@$(install) deb
	@packaging/dist.sh out/dist

## The installer for 64-bit Windows in out/windows. The first time it also builds the libraries, a quarter of an hour;
## CSERKO_WINDOWS_CACHE names a folder for them outside of the clone.
windows: pack
	@$(install) windows
	@$(in_c_locale) packaging/windows/build.sh build/pack

## Installs, plays, looks at and uninstalls what `make windows` has built, under Wine; pictures in out/windows.
windows-test: windows
	@$(install) run test windows-test
	@$(release) --target cserko-x11-events
	@$(in_c_locale) packaging/windows/test.sh

clean:
	rm -rf build out
