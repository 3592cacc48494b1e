#pragma once

#include <cstdint>
#include <string>

// Exact decimal numbers by integer arithmetic on decimal digits: what printed and parsed doubles
// are measured against. It shares no step with the code that it checks, and takes its time.
namespace talvex {

// A number of 0 or above with a finite decimal expansion.
class ExactDecimal {
  public:
    // The magnitude of a finite double.
    explicit ExactDecimal(double value);
    // A text of decimal digits, with or without a point, times 10^exponent.
    explicit ExactDecimal(std::string digits, int exponent = 0);
    // mantissa * 2^exponent, also where no double has that value.
    static ExactDecimal fromBinary(std::uint64_t mantissa, int exponent);

    // All digits, with no more places than there are.
    [[nodiscard]] std::string text() const;
    // With that many decimals, ties to even.
    [[nodiscard]] std::string fixed(int places) const;

    struct Scientific {
        std::string mantissa;
        int exponent = 0;
    };
    // One digit and that many decimals, ties to even.
    [[nodiscard]] Scientific scientific(int places) const;

    bool operator<(const ExactDecimal& other) const;
    bool operator==(const ExactDecimal& other) const = default;

  private:
    [[nodiscard]] bool isZero() const { return digits_.empty(); }
    // The power of ten of the first digit; the number isn't zero.
    [[nodiscard]] int leadingPower() const;
    [[nodiscard]] std::string roundedTo(int power) const;

    std::string digits_;  // no zero at either end; none for the number zero
    int exponent_ = 0;    // of the last digit
};

// Whether no double is nearer to the number than the magnitude of `value`, and an even one has
// won if two are equally near. From half a unit above the largest double on, infinity is the
// nearest.
bool isNearestDouble(double value, const ExactDecimal& number);

// The number midway between the magnitude of a finite double and the next larger one.
ExactDecimal midpointAbove(double value);

}  // namespace talvex
