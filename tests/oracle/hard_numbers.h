#pragma once

#include <cstdint>
#include <random>

namespace talvex {

// Operands that find faults: any bits at all, small and large whole numbers and their neighbours,
// special values, thresholds of the functions, and plain numbers of every size.
class HardNumbers {
  public:
    explicit HardNumbers(std::uint64_t seed) : random_(seed) {}

    double next();
    // From low to high, evenly.
    double between(double low, double high);
    // A whole number from 0 to below `count`.
    int below(int count);

  private:
    std::mt19937_64 random_;
};

}  // namespace talvex
