#pragma once

#include <array>

namespace talvex {

// The four registers X, Y, Z, T and the last-X register. All moves copy every bit, those of error
// values included.
struct DYXStack {
    std::array<double, 4> reg{};  // X, Y, Z, T
    double lastX = 0.0;

    [[nodiscard]] double& x() { return reg[0]; }
    [[nodiscard]] double x() const { return reg[0]; }

    // Lifts the stack and saves X in `lastX`; X keeps its value.
    void pushOntoStack();
    // Drops the stack by the number of operands used up beyond X, which stays; T keeps its value.
    void dropOntoXReg(unsigned count);
    void rollDown();
    void rollUp();
    void swapXY();
    // Lifts the stack, and swaps X and `lastX`.
    void recallLastX();
};

}  // namespace talvex
