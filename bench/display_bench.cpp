// One update of four lines in each of the thirteen modes, of numbers that no mode recognises; and
// the searches for a fraction as ratios to trying every denominator in the same run.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <string>
#include <vector>

#include "core/DYXCalculator.h"
#include "display/display_modes.h"
#include "numeric/fraction_search.h"
#include "oracle/naive_functions.h"
#include "platform/HeadlessPlatform.h"
#include "ui/DYXWindowController.h"

namespace talvex {
namespace {

constexpr double kFrame = 16e-3;
constexpr auto kHardNumbers = std::to_array<double>(
    {-123456.7890123456, 1.0 / 7.123456789, 98.76543210987, -3.000000123456789e-5});

double secondsSince(std::chrono::steady_clock::time_point start) {
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
    return time.count();
}

void fourLines(benchmark::State& state, std::int32_t outputMode) {
    HeadlessPlatform platform;
    DYXWindowController calculator(platform);
    calculator.choose(settingRow<&Settings::unlockInputAndOutputModes>(), 1);
    calculator.choose(settingRow<&Settings::outputDisplayMode>(), outputMode);
    CalculatorState hard;
    hard.stack.reg = kHardNumbers;
    calculator.calculator().setState(hard);
    const Comand rollDown{.category = fourCC("stac"), .action = fourCC("ROLD")};
    std::vector<double> seconds;
    for (auto _ : state) {
        const auto start = std::chrono::steady_clock::now();
        calculator.doCommand(rollDown);
        seconds.push_back(secondsSince(start));
    }
    std::sort(seconds.begin(), seconds.end());
    state.counters["median_us"] = seconds[seconds.size() / 2] * 1e6;
    state.counters["worst_us"] = seconds.back() * 1e6;
    state.counters["worst_per_frame"] = seconds.back() / kFrame;
}

void search(benchmark::State& state, std::uint32_t limit, int searches) {
    double seconds = 0.0;
    double naiveSeconds = 0.0;
    for (auto _ : state) {
        for (int line = 0; line < searches; ++line) {
            const double number = std::fabs(kHardNumbers.at(static_cast<std::size_t>(line % 4)));
            const double fraction = number - std::floor(number);
            auto start = std::chrono::steady_clock::now();
            benchmark::DoNotOptimize(bestDenominator(fraction, limit));
            seconds += secondsSince(start);
            start = std::chrono::steady_clock::now();
            benchmark::DoNotOptimize(naiveDenominator(fraction, limit));
            naiveSeconds += secondsSince(start);
        }
    }
    const auto rounds = static_cast<double>(state.iterations());
    state.counters["us"] = seconds / rounds * 1e6;
    state.counters["naive_us"] = naiveSeconds / rounds * 1e6;
    state.counters["ratio"] = seconds / naiveSeconds;
}

// Four lines; in IRR each makes six searches.
BENCHMARK_CAPTURE(search, FRC, 99999U, 4)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(search, IRR, 999U, 24)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace talvex

int main(int argc, char** argv) {
    using namespace talvex;
    for (std::int32_t number = 0; number < mode::count; ++number) {
        std::string name = "fourLines/";
        for (const char16_t letter : displayModeName(number)) {
            name += static_cast<char>(letter);
        }
        benchmark::RegisterBenchmark(name.c_str(), fourLines, number)
            ->Iterations(20'000)
            ->Unit(benchmark::kMicrosecond);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
