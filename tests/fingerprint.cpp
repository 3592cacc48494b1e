// Prints one line for each function and unit: a hash over the bits of its results for operands of
// all kinds. Two builds that compute the same print the same.

#include <bit>
#include <cstdint>
#include <cstdio>

#include "core/Comand.h"
#include "core/converter_table.h"
#include "core/function_tables.h"
#include "oracle/hard_numbers.h"

namespace talvex {
namespace {

constexpr int kOperands = 3000;

class Fingerprint {
  public:
    void add(double result) {
        hash_ = (hash_ ^ std::bit_cast<std::uint64_t>(result)) * 1099511628211U;
        hash_ ^= hash_ >> 29U;
    }
    void print(std::uint32_t action) const {
        for (unsigned place = 0; place < 4; ++place) {
            std::putchar(characterOf(action, place));
        }
        std::printf(" %016llx\n", static_cast<unsigned long long>(hash_));
    }

  private:
    std::uint64_t hash_ = 14695981039346656037U;
};

DYXMathContext contextOf(int round) {
    DYXMathContext context;
    context.angleMode = AngleMode{round % 5};
    context.inverse = round / 5 % 2 == 1;
    context.hyperbolic = round / 10 % 2 == 1;
    return context;
}

double operand(HardNumbers& numbers, int round) {
    return round % 3 == 0 ? numbers.between(-10.0, 60.0) : numbers.next();
}

void printAll() {
    HardNumbers numbers(5);
    for (const UnaryRow& row : unitaries()) {
        Fingerprint print;
        for (int round = 0; round < kOperands; ++round) {
            print.add(row(contextOf(round), operand(numbers, round)));
        }
        print.print(row.action);
    }
    for (const BinaryRow& row : binaries()) {
        Fingerprint print;
        for (int round = 0; round < kOperands; ++round) {
            const double x = operand(numbers, round);
            print.add(row(contextOf(round), x, operand(numbers, round / 3)));
        }
        print.print(row.action);
    }
    for (const ConverterRow& row : converters()) {
        Fingerprint print;
        for (int round = 0; round < kOperands / 10; ++round) {
            const double value = operand(numbers, round);
            print.add(row.toBase(contextOf(round), value));
            print.add(row.fromBase(contextOf(round), value));
        }
        print.print(row.action);
    }
}

}  // namespace
}  // namespace talvex

int main() { talvex::printAll(); }
