#include "bench/benchmarks/Figures.h"

#include <cmath>
#include <cstdio>

namespace {

bool wrong = false;

}  // namespace

void ExpectFigure(const char* what, double figure, double wanted, double tolerance) {
    if (std::abs(figure - wanted) <= tolerance) return;
    std::printf("WRONG: %s: %g instead of %g\n", what, figure, wanted);
    wrong = true;
}

int RunFigures(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return wrong ? 1 : 0;
}
