# The two commands people need: `make run` and `make test`. Everything installs what it needs.
# `make run ARGS="--idiom pad"` passes options to the app.
.PHONY: test run bench package fuzz fuzz-build mutate deps food-db format clean

# Each fuzzer runs a few seconds over its seeds first, so a reintroduced fault is caught; qmllint
# fails the run on any warning in the QML modules; the main suite comes last, and its summary
# closes the output.
test: deps fuzz-build
	ctest --preset fuzz
	cmake --preset debug-asan
	cmake --build --preset debug-asan
	cmake --build --preset debug-asan --target all_qmllint
	ctest --preset debug-asan

run: deps
	cmake --preset release
	cmake --build --preset release --target calorie-counter
	scripts/run $(ARGS)

bench: deps
	cmake --preset release
	cmake --build --preset release
	# Repetitions of a benchmark and its floor interleave, so a busy moment hits both alike.
	cd build/release/bin && ./calorie-bench --benchmark_enable_random_interleaving=true

# The Debian package, from a Release build of the program alone: build/package/calorie-counter_*.deb.
# Debian's own checker must find nothing to say, not even a warning.
package: deps
	cmake --preset package
	cmake --build --preset package
	lintian --fail-on error,warning build/package/calorie-counter_*.deb
	@ls build/package/calorie-counter_*.deb

# `make fuzz FUZZ_SECONDS=600` fuzzes longer. New inputs go to build/fuzz/fuzz/corpus, crashes to
# build/fuzz/fuzz/crashes; copy an input worth keeping into fuzz/corpus/ as a seed.
FUZZ_SECONDS ?= 60
fuzz: deps fuzz-build
	@set -e; for name in text_value day_index statements; do \
		echo "== fuzz_$$name for $(FUZZ_SECONDS) s"; \
		build/fuzz/bin/fuzz_$$name -max_total_time=$(FUZZ_SECONDS) -timeout=30 -print_final_stats=1 \
			-artifact_prefix=build/fuzz/fuzz/crashes/$$name- \
			build/fuzz/fuzz/corpus/$$name fuzz/corpus/$$name; \
	done

fuzz-build:
	cmake --preset fuzz
	cmake --build --preset fuzz

# How many small changes to the sources the tests notice, built in build/mutate; a low score is a
# report, not a failure. `make mutate MUTATE_ARGS="--sample 20 src/food"`; see tools/mutate --help.
mutate: deps
	tools/mutate $(MUTATE_ARGS)

deps:
	@scripts/install-deps

# Rebuilds resources/food.db from the USDA SR24 data in Debian's cronometer package.
food-db:
	tools/food-catalogue/regenerate

format:
	clang-format -i $$(git ls-files '*.cpp' '*.h')

clean:
	rm -rf build
