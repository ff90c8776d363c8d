# The two commands people need: `make run` and `make test`. Everything installs what it needs.
# `make run ARGS="--idiom pad"` passes options to the app.
.PHONY: test run bench deps food-db format clean

test: deps
	cmake --preset debug-asan
	cmake --build --preset debug-asan
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

deps:
	@scripts/install-deps

# Rebuilds resources/food.db from the USDA SR24 data in Debian's cronometer package.
food-db:
	tools/food-catalogue/regenerate

format:
	clang-format -i $$(git ls-files '*.cpp' '*.h')

clean:
	rm -rf build
