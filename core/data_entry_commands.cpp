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

// A sign and two digits.
bool isExponent(std::string_view text) {
    return std::string_view("+-").find(text[0]) != std::string_view::npos &&
           text.find_first_not_of("0123456789", 1) == std::string_view::npos;
}

}  // namespace

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
    if (inputState_ == InputState::lifting) {
        stack_.pushOntoStack();
    }
    start();
    inputState_ = InputState::entering;
}

bool DYXCalculator::doCommandDataEntryDigit(const Comand& command) {
    const char digit = characterOf(command.action, 3);
    const bool isEntering = inputState_ == InputState::entering;
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
    if (inputState_ == InputState::entering) {
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
    const bool isEntering = inputState_ == InputState::entering;
    if (isEntering && xDisplay_->canToggleInExponent()) {
        xDisplay_->toggleInExponent();
    } else if (!isEntering && xDisplay_->canSetTo1E0()) {
        startEntry([&] { xDisplay_->setTo1E0(); });
    } else {
        platform_.NSBeep();
    }
}

bool DYXCalculator::doCommandDataEntrySetExponent(const Comand& command) {
    const std::array exponent{characterOf(command.action, 1), characterOf(command.action, 2),
                              characterOf(command.action, 3)};
    const std::string_view text(exponent.data(), exponent.size());
    const bool isEntering = inputState_ == InputState::entering;
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
    if (inputState_ != InputState::entering) {
        beginReplacing();
        return;
    }
    xDisplay_->removeCharacter();
    if (xDisplay_->entry().text.empty()) {
        stack_.x() = 0.0;
        inputState_ = InputState::replacing;
    }
}

// Flips the sign bit of a finished X: of zero and of error values too.
void DYXCalculator::doCommandDataEntryChangeSign() {
    if (inputState_ != InputState::entering) {
        stack_.x() = std::copysign(stack_.x(), std::signbit(stack_.x()) ? 1.0 : -1.0);
        inputState_ = InputState::lifting;
    } else if (xDisplay_->canChangeSign()) {
        xDisplay_->changeSign();
    }
}

void DYXCalculator::doCommandDataEntryEnter() {
    updateRegister();
    stack_.pushOntoStack();
    inputState_ = InputState::replacing;
}

void DYXCalculator::beginReplacing() {
    stack_.x() = 0.0;
    xDisplay_->reset();
    inputState_ = InputState::replacing;
}

void DYXCalculator::doCommandDataEntryClear() { beginReplacing(); }

void DYXCalculator::doCommandDataEntryClearStack() {
    stack_.reg.fill(0.0);
    beginReplacing();
}

void DYXCalculator::doCommandDataEntryClearAll() {
    stack_.reg.fill(0.0);
    mem_.fill(0.0);
    beginReplacing();
}

}  // namespace talvex
