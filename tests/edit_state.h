#pragma once

#include "core/DYXCalculator.h"

namespace talvex {

// Changes the state of a calculator in a way that no command does.
template <class Change>
void edit(DYXCalculator& calculator, Change change) {
    CalculatorState state = calculator.state();
    change(state);
    calculator.setState(state);
}

inline void setX(DYXCalculator& calculator, double x) {
    edit(calculator, [x](CalculatorState& state) {
        state.stack.x() = x;
        state.inputState = InputState::lifting;
    });
}

// X, be it in its register or the text of a live entry.
inline double xOf(const DYXCalculator& calculator) {
    return calculator.inputState() == InputState::entering ? calculator.xDisplay().doubleValue()
                                                           : calculator.stack().x();
}

}  // namespace talvex
