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
void DYXCalculator::applyFunction(const Row* row, std::index_sequence<Register...> /*registers*/) {
    if (row == nullptr) {
        return;
    }
    updateRegister();
    stack_.lastX = stack_.x();
    stack_.x() = (*row)(*this, stack_.reg[Register]...);
    stack_.dropOntoXReg(sizeof...(Register) - 1);
    inputState_ = InputState::lifting;
}

void DYXCalculator::doCommandUnitary(const Comand& command) {
    applyFunction(findFunction(unitaries(), command.action), std::make_index_sequence<1>());
}

void DYXCalculator::doCommandBinary(const Comand& command) {
    applyFunction(findFunction(binaries(), command.action), std::make_index_sequence<2>());
}

void DYXCalculator::doCommandTrinary(const Comand& command) {
    applyFunction(findFunction(trinaries(), command.action), std::make_index_sequence<3>());
}

void DYXCalculator::doCommandQuadranary(const Comand& command) {
    applyFunction(findFunction(quadranaries(), command.action), std::make_index_sequence<4>());
}

// A command that brings a number lifts the stack in every state.
void DYXCalculator::bringNumber(double number) {
    updateRegister();
    stack_.pushOntoStack();
    stack_.x() = number;
    inputState_ = InputState::lifting;
}

void DYXCalculator::doCommandConstant(const Comand& command) {
    if (const ConstantRow* row = findConstant(command.action)) {
        bringNumber(row->value);
    }
}

void DYXCalculator::doCommandNullinary(const Comand& command) {
    if (command.action == fourCC("RAND")) {
        bringNumber(platform_.arc4random() / kLargestRandom);
    }
}

void DYXCalculator::doCommandModifier(const Comand& command) {
    if (command.action == fourCC("ARC ")) {
        inverse = !inverse;
    } else if (command.action == fourCC("HYP ")) {
        hyperbolic = !hyperbolic;
    }
}

}  // namespace talvex
