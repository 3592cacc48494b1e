#pragma once

#include <array>
#include <cstdint>

#include "core/Comand.h"
#include "core/DYXStack.h"
#include "core/conversion_registers.h"
#include "core/memory_registers.h"
#include "entry/EntryState.h"

namespace talvex {

// Where X is, and what the next digit does. The numbers are stored in the saved state.
enum class InputState : std::int32_t {
    entering = 0,   // X is the text of the entry; the digit goes on with it
    replacing = 1,  // X is in its register; the digit replaces it
    lifting = 2,    // X is in its register; the digit lifts the stack first
};

// What the next register key does with X; nothing armed, it recalls.
enum class Store { nothing, plain, add, subtract, multiply, divide };

// What is armed for the next key.
struct Modifiers {
    bool inverse = false;
    bool hyperbolic = false;
    bool recall = false;
    Store store = Store::nothing;

    bool operator==(const Modifiers&) const = default;
};

// All that a command may change.
struct CalculatorState {
    DYXStack stack;
    // Those with keys, one more that is saved, and one that isn't even that.
    std::array<double, kMemoryRegisters> mem{};
    // The quantity of each group of units, in its base unit; 0 at every start.
    std::array<double, kConversionRegisters> converted{};
    Modifiers modifiers;
    InputState inputState = InputState::lifting;
    EntryState entry;
    Comand lastCommand;
    Comand unitOfX;  // the unit key in whose unit X is; none once X has changed

    // Numbers are the same if their bits are: an error value equals itself, 0 doesn't equal -0.
    bool operator==(const CalculatorState& other) const;
};

}  // namespace talvex
