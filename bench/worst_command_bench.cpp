// The slowest single command, from the command to the four lines, over operands of all kinds: a
// million sets in all, spread over every function and unit, and more for the functions that
// iterate.

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "core/DYXCalculator.h"
#include "core/converter_table.h"
#include "core/function_tables.h"
#include "oracle/hard_numbers.h"
#include "platform/HeadlessPlatform.h"
#include "ui/DYXWindowController.h"

namespace talvex {
namespace {

constexpr std::size_t kSets = 1'000'000;
constexpr std::size_t kSetsOfIteratingFunction = 50'000;
constexpr std::size_t kSlowest = 50;
constexpr int kRepetitions = 5;

struct Case {
    Comand command;
    double x = 0.0;
    double y = 0.0;
    double seconds = 0.0;
};

class Runner {
  public:
    double time(const Case& item) {
        CalculatorState state;
        state.stack.reg = {item.x, item.y, 3.0, 4.0};
        calculator_.calculator().setState(state);
        const auto start = std::chrono::steady_clock::now();
        calculator_.doCommand(item.command);
        const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
        return time.count();
    }

  private:
    HeadlessPlatform platform_;
    DYXWindowController calculator_{platform_};
};

std::vector<Comand> allCommands() {
    std::vector<Comand> commands;
    for (const UnaryRow& row : unitaries()) {
        commands.push_back({.category = fourCC("unit"), .action = row.action});
    }
    for (const BinaryRow& row : binaries()) {
        commands.push_back({.category = fourCC("bina"), .action = row.action});
    }
    for (const ConverterRow& row : converters()) {
        commands.push_back(
            {.category = fourCC("conv"), .action = row.action, .group = row.group.code});
    }
    return commands;
}

// Only the slowest are kept, so that a pause of the machine can be told from a slow command by
// running them again.
class Slowest {
  public:
    void add(const Case& item) {
        cases_.push_back(item);
        std::push_heap(cases_.begin(), cases_.end(), isSlower);
        if (cases_.size() > kSlowest) {
            std::pop_heap(cases_.begin(), cases_.end(), isSlower);
            cases_.pop_back();
        }
    }
    [[nodiscard]] const std::vector<Case>& cases() const { return cases_; }

  private:
    static bool isSlower(const Case& left, const Case& right) {
        return left.seconds > right.seconds;
    }
    std::vector<Case> cases_;
};

std::string actionOf(const Case& item) {
    std::string action;
    for (unsigned place = 0; place < 4; ++place) {
        action += characterOf(item.command.action, place);
    }
    return action;
}

void print(const char* what, const Case& item) {
    std::printf("%s: %.3f ms, %.4f of a frame, \"%s\" of X = %g, Y = %g\n", what,
                item.seconds * 1e3, item.seconds / 16e-3, actionOf(item).c_str(), item.x, item.y);
}

Case anyCase(const Comand& command, HardNumbers& numbers) {
    Case item{.command = command, .x = numbers.next(), .y = numbers.next()};
    if (numbers.between(0.0, 1.0) < 0.2) {  // two operands of the same size
        item.y = item.x * numbers.between(0.9, 1.1);
    }
    return item;
}

// Orders just above the argument, whose recurrences grow slowest.
Case besselCase(const Comand& command, HardNumbers& numbers) {
    const double argument = std::ldexp(numbers.between(1.0, 2.0), int(numbers.between(0, 43)));
    const double excess = std::ldexp(numbers.between(1.0, 2.0), -int(numbers.between(0, 30)));
    return {.command = command, .x = argument * (1.0 + excess), .y = argument};
}

Slowest tryAll(Runner& runner) {
    HardNumbers numbers(6);
    Slowest slowest;
    const auto tryOne = [&](Case item) {
        item.seconds = runner.time(item);
        slowest.add(item);
    };
    const std::vector<Comand> commands = allCommands();
    for (std::size_t set = 0; set < kSets; ++set) {
        tryOne(anyCase(commands[set % commands.size()], numbers));
    }
    for (const Comand& bessel : {command("bina", "Jx  "), command("bina", "Yx  ")}) {
        for (std::size_t set = 0; set < kSetsOfIteratingFunction; ++set) {
            tryOne(anyCase(bessel, numbers));
            tryOne(besselCase(bessel, numbers));
        }
    }
    return slowest;
}

void run() {
    Runner runner;
    std::vector<Case> again = tryAll(runner).cases();
    const auto isQuicker = [](const Case& left, const Case& right) {
        return left.seconds < right.seconds;
    };
    print("worst single command, first run",
          *std::max_element(again.begin(), again.end(), isQuicker));
    for (Case& item : again) {
        for (int repetition = 0; repetition < kRepetitions; ++repetition) {
            item.seconds = std::min(item.seconds, runner.time(item));
        }
    }
    print("worst single command, best of six",
          *std::max_element(again.begin(), again.end(), isQuicker));
}

}  // namespace
}  // namespace talvex

int main() { talvex::run(); }
