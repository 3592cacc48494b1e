// The commands that look a row up in a table: functions of one to four operands, constants, the
// random number; and the two modifiers that the functions read.

#include <utility>

#include "core/DYXCalculator.h"
#include "core/function_tables.h"

namespace talvex {
namespace {

constexpr double kLargestRandom = 4294967295.0;

}  // namespace

// The function takes the first registers, and the stack drops by those beyond X.
template <class Row, std::size_t... Register>
bool DYXCalculator::applyFunction(const Row* row, std::index_sequence<Register...> /*registers*/) {
    if (row == nullptr) {
        return false;
    }
    updateRegister();
    now_.stack.lastX = now_.stack.x();
    now_.stack.x() = (*row)(context(), now_.stack.reg[Register]...);
    now_.stack.dropOntoXReg(sizeof...(Register) - 1);
    now_.inputState = InputState::lifting;
    return true;
}

bool DYXCalculator::doCommandUnitary(const Comand& command) {
    return applyFunction(findFunction(unitaries(), command.action), std::make_index_sequence<1>());
}

bool DYXCalculator::doCommandBinary(const Comand& command) {
    return applyFunction(findFunction(binaries(), command.action), std::make_index_sequence<2>());
}

bool DYXCalculator::doCommandTrinary(const Comand& command) {
    return applyFunction(findFunction(trinaries(), command.action), std::make_index_sequence<3>());
}

bool DYXCalculator::doCommandQuadranary(const Comand& command) {
    return applyFunction(findFunction(quadranaries(), command.action),
                         std::make_index_sequence<4>());
}

// A command that brings a number lifts the stack in every state.
void DYXCalculator::bringNumber(double number) {
    updateRegister();
    now_.stack.pushOntoStack();
    now_.stack.x() = number;
    now_.inputState = InputState::lifting;
}

bool DYXCalculator::doCommandConstant(const Comand& command) {
    const ConstantRow* const row = findConstant(command.action);
    if (row != nullptr) {
        bringNumber(row->value);
    }
    return row != nullptr;
}

bool DYXCalculator::doCommandNullinary(const Comand& command) {
    const bool isRandom = command.action == fourCC("RAND");
    if (isRandom) {
        bringNumber(platform_.arc4random() / kLargestRandom);
    }
    return isRandom;
}

bool DYXCalculator::doCommandModifier(const Comand& command) {
    const bool isInverse = command.action == fourCC("ARC ");
    const bool isHyperbolic = command.action == fourCC("HYP ");
    Modifiers& modifiers = now_.modifiers;
    modifiers.inverse = modifiers.inverse != isInverse;
    modifiers.hyperbolic = modifiers.hyperbolic != isHyperbolic;
    return isInverse || isHyperbolic;
}

}  // namespace talvex
