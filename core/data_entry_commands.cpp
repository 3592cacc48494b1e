// Category "data": how a number gets into X. The entry line decides what may be typed; these
// handlers decide whether a key goes on with the entry, replaces X or lifts the stack first.

#include <array>
#include <cmath>
#include <string_view>

#include "core/DYXCalculator.h"

namespace talvex {
namespace {

// Of all modes.
constexpr std::string_view kDigits = "0123456789ABCDEFabcdef";

// Of a command that sets one: a sign and two digits.
std::array<char, 3> exponentOf(const Comand& command) {
    return {characterOf(command.action, 1), characterOf(command.action, 2),
            characterOf(command.action, 3)};
}

bool isExponent(std::string_view text) {
    return std::string_view("+-").find(text[0]) != std::string_view::npos &&
           text.find_first_not_of("0123456789", 1) == std::string_view::npos;
}

}  // namespace

bool DYXCalculator::takesEntryOf(const Comand& command) const {
    if (command.category != fourCC("data")) {
        return true;
    }
    const std::array exponent = exponentOf(command);
    const char kind = characterOf(command.action, 0);
    if (command.action == fourCC("EEX ") ||
        (kind == 'E' && isExponent({exponent.data(), exponent.size()}))) {
        return xDisplay_->canSetTo1E0();
    }
    return command.action == fourCC(".   ")
               ? xDisplay_->canSetToDecimal()
               : kind != 'N' || xDisplay_->canSetToCharacter(characterOf(command.action, 3));
}

bool DYXCalculator::doCommandDataEntry(const Comand& command) {
    struct Row {
        std::uint32_t action;
        void (DYXCalculator::*run)();
    };
    static constexpr auto kActions = std::to_array<Row>({
        {fourCC(".   "), &DYXCalculator::doCommandDataEntryDecimal},
        {fourCC("BACK"), &DYXCalculator::doCommandDataEntryBackspace},
        {fourCC("EEX "), &DYXCalculator::doCommandDataEntryEEX},
        {fourCC("CHS "), &DYXCalculator::doCommandDataEntryChangeSign},
        {fourCC("ENT "), &DYXCalculator::doCommandDataEntryEnter},
        {fourCC("CLR "), &DYXCalculator::doCommandDataEntryClear},
        {fourCC("CLRG"), &DYXCalculator::doCommandDataEntryClearStack},
        {fourCC("CLAL"), &DYXCalculator::doCommandDataEntryClearAll},
    });
    for (const Row& row : kActions) {
        if (row.action == command.action) {
            (this->*row.run)();
            return true;
        }
    }
    switch (characterOf(command.action, 0)) {
        case 'N':
            return doCommandDataEntryDigit(command);
        case 'E':
            return doCommandDataEntrySetExponent(command);
        default:
            return false;
    }
}

// Starts an entry: the stack lifts if it is to, and the old X goes.
template <class Start>
void DYXCalculator::startEntry(Start start) {
    if (now_.inputState == InputState::lifting) {
        now_.stack.pushOntoStack();
    }
    start();
    now_.inputState = InputState::entering;
}

bool DYXCalculator::doCommandDataEntryDigit(const Comand& command) {
    const char digit = characterOf(command.action, 3);
    const bool isEntering = now_.inputState == InputState::entering;
    if (isEntering && xDisplay_->canAppendCharacter(digit)) {
        xDisplay_->appendCharacter(digit);
    } else if (!isEntering && xDisplay_->canSetToCharacter(digit)) {
        startEntry([&] { xDisplay_->setToCharacter(digit); });
    } else {
        platform_.NSBeep();
    }
    return kDigits.find(digit) != std::string_view::npos;
}

// A point that is refused in mid-entry is refused in silence.
void DYXCalculator::doCommandDataEntryDecimal() {
    if (now_.inputState == InputState::entering) {
        if (xDisplay_->canAppendDecimal()) {
            xDisplay_->appendDecimal();
        }
    } else if (xDisplay_->canSetToDecimal()) {
        startEntry([&] { xDisplay_->setToDecimal(); });
    } else {
        platform_.NSBeep();
    }
}

void DYXCalculator::doCommandDataEntryEEX() {
    const bool isEntering = now_.inputState == InputState::entering;
    if (isEntering && xDisplay_->canToggleInExponent()) {
        xDisplay_->toggleInExponent();
    } else if (!isEntering && xDisplay_->canSetTo1E0()) {
        startEntry([&] { xDisplay_->setTo1E0(); });
    } else {
        platform_.NSBeep();
    }
}

bool DYXCalculator::doCommandDataEntrySetExponent(const Comand& command) {
    const std::array exponent = exponentOf(command);
    const std::string_view text(exponent.data(), exponent.size());
    const bool isEntering = now_.inputState == InputState::entering;
    if (isEntering && xDisplay_->canToggleInExponent()) {
        xDisplay_->setExponentTo(text);
    } else if (!isEntering && xDisplay_->canSetTo1E0()) {
        startEntry([&] { xDisplay_->setTo1E(text); });
    } else {
        platform_.NSBeep();
    }
    return isExponent(text);
}

void DYXCalculator::doCommandDataEntryBackspace() {
    if (now_.inputState != InputState::entering) {
        beginReplacing();
        return;
    }
    xDisplay_->removeCharacter();
    if (xDisplay_->entry().text.empty()) {
        now_.stack.x() = 0.0;
        now_.inputState = InputState::replacing;
    }
}

// Flips the sign bit of a finished X: of zero and of error values too.
void DYXCalculator::doCommandDataEntryChangeSign() {
    if (now_.inputState != InputState::entering) {
        now_.stack.x() = std::copysign(now_.stack.x(), std::signbit(now_.stack.x()) ? 1.0 : -1.0);
        now_.inputState = InputState::lifting;
    } else if (xDisplay_->canChangeSign()) {
        xDisplay_->changeSign();
    }
}

void DYXCalculator::doCommandDataEntryEnter() {
    updateRegister();
    now_.stack.pushOntoStack();
    now_.inputState = InputState::replacing;
}

void DYXCalculator::beginReplacing() {
    now_.stack.x() = 0.0;
    xDisplay_->reset();
    now_.inputState = InputState::replacing;
}

void DYXCalculator::doCommandDataEntryClear() { beginReplacing(); }

void DYXCalculator::doCommandDataEntryClearStack() {
    now_.stack.reg.fill(0.0);
    beginReplacing();
}

void DYXCalculator::doCommandDataEntryClearAll() {
    now_.stack.reg.fill(0.0);
    now_.mem.fill(0.0);
    beginReplacing();
}

}  // namespace talvex
