#include <benchmark/benchmark.h>

#include "RatioReporter.h"

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return reporter.printRatios() ? 0 : 1;
}
