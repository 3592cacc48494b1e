// Functions that keep a result or leave a loop early, as a ratio to the loop run to its end. Both
// run in the same process, in turn.

#include <benchmark/benchmark.h>

#include <chrono>
#include <cmath>

#include "numeric/bessel.h"
#include "numeric/combinatorics.h"
#include "numeric/riemannzeta.h"
#include "numeric/thermocouple.h"
#include "oracle/naive_functions.h"

namespace talvex {
namespace {

template <class Function>
double secondsOf(Function function) {
    const auto start = std::chrono::steady_clock::now();
    benchmark::DoNotOptimize(function());
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
    return time.count();
}

template <class Function, class Naive>
void compare(benchmark::State& state, Function function, Naive naive) {
    double seconds = 0.0;
    double naiveSeconds = 0.0;
    for (auto _ : state) {
        seconds += secondsOf(function);
        naiveSeconds += secondsOf(naive);
    }
    const auto rounds = static_cast<double>(state.iterations());
    state.counters["us"] = seconds / rounds * 1e6;
    state.counters["naive_us"] = naiveSeconds / rounds * 1e6;
    state.counters["ratio"] = seconds / naiveSeconds;
}

void zeta(benchmark::State& state) {
    compare(
        state, [] { return riemannzeta(2.5); }, [] { return naiveZeta(2.5); });
}
BENCHMARK(zeta);

void chooseWorst(benchmark::State& state) {
    compare(
        state, [] { return choose(2147483647.0, 4294967295.0); },
        [] { return naiveBinomial(4294967295U, 2147483647U); });
}
BENCHMARK(chooseWorst)->Name("choose/worst_operands")->Iterations(1);

void bessel(benchmark::State& state, double order, double x) {
    // Up to 1000 the standard library has recurrences too, beyond it an asymptotic series.
    compare(
        state, [=] { return besselJv(order, x); }, [=] { return std::cyl_bessel_j(order, x); });
}
BENCHMARK_CAPTURE(bessel, order_0_at_980, 0.0, 980.0);
BENCHMARK_CAPTURE(bessel, order_1e9_at_1, 1e9, 1.0)->Iterations(1);

void inversion(benchmark::State& state, double (*inverse)(double), double (*function)(double),
               double (*derivative)(double), double millivolts) {
    compare(
        state, [=] { return inverse(millivolts); },
        [=] { return naiveNewton(function, derivative, millivolts, 0.0, 1e-9); });
}
BENCHMARK_CAPTURE(inversion, K_at_1000_degrees, KmVtoC, KCtomV, KCtomVderiv, 41.276);
BENCHMARK_CAPTURE(inversion, T_running_away, TmVtoC, TCtomV, TCtomVderiv, -40.0);
BENCHMARK_CAPTURE(inversion, K_of_infinity, KmVtoC, KCtomV, KCtomVderiv, 1e300);

}  // namespace
}  // namespace talvex

BENCHMARK_MAIN();
