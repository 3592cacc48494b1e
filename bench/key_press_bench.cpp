// One key press, from the command to the four lines, against one frame of 16 ms.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <vector>

#include "core/DYXCalculator.h"
#include "platform/HeadlessPlatform.h"
#include "ui/DYXWindowController.h"

namespace talvex {
namespace {

constexpr double kFrame = 16e-3;
constexpr std::size_t kPresses = 100'000;

// Numbers that need all their digits, and a command that changes all four lines.
void prepare(DYXWindowController& calculator) {
    CalculatorState state;
    state.stack.reg = {-1234567.891, std::sqrt(2.0) * 1e9, 1.0 / 3.0, -9.87654321e-5};
    calculator.calculator().setState(state);
}

void keyPress(benchmark::State& state) {
    HeadlessPlatform platform;
    DYXWindowController calculator(platform);
    prepare(calculator);
    const Comand rollDown{.category = fourCC("stac"), .action = fourCC("ROLD")};
    std::vector<double> seconds;
    for (auto _ : state) {
        const auto start = std::chrono::steady_clock::now();
        calculator.doCommand(rollDown);
        const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
        seconds.push_back(time.count());
    }
    std::sort(seconds.begin(), seconds.end());
    const double median = seconds[seconds.size() / 2];
    state.counters["median_us"] = median * 1e6;
    state.counters["worst_us"] = seconds.back() * 1e6;
    state.counters["median_per_frame"] = median / kFrame;
    state.counters["worst_per_frame"] = seconds.back() / kFrame;
}
BENCHMARK(keyPress)->Iterations(kPresses)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace talvex

BENCHMARK_MAIN();
