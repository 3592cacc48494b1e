// How each key changes the entry.

#include <algorithm>

#include "entry/DYXInputDisplay.h"
#include "entry/entry_fields.h"

namespace talvex {
namespace {

constexpr int kFractionDigits = 5;
constexpr int kBinaryDigits = 32;
// Keeps counts of digits bounded through any series of mode changes in mid-entry.
constexpr int kLeastCount = -32768;

void countDown(int& count) { count = std::max(count - 1, kLeastCount); }

}  // namespace

void DYXInputDisplay::reset() {
    hasDecimal_ = false;
    hasFraction_ = false;
    inExponent_ = false;
    eex_ = {'0', '0', ' '};
    sgn_ = false;
    exp_ = 0;
    frc_ = 0;
    text_.clear();
}

void DYXInputDisplay::setToCharacter(char character) {
    reset();
    appendCharacterToMantissa(character);
}

bool DYXInputDisplay::appendCharacterToMantissa(char character) {
    if (text_.size() >= settings().maxDigits) {
        return false;
    }
    text_ += character;
    if (hasDecimal_) {
        countDown(exp_);
    }
    if (hasFraction_) {
        countDown(frc_);
    }
    return true;
}

void DYXInputDisplay::appendCharacterPlain(char character) { appendCharacterToMantissa(character); }

void DYXInputDisplay::appendCharacterScientific(char character) {
    if (inExponent_) {
        appendCharacterToExponent(character);
    } else {
        appendCharacterToMantissa(character);
    }
}

void DYXInputDisplay::appendCharacterToExponent(char character) {
    eex_[0] = eex_[1];
    eex_[1] = character;
}

void DYXInputDisplay::appendCharacterFraction(char character) {
    const bool isFull = hasFraction_  ? denominatorLength() >= kFractionDigits
                        : hasDecimal_ ? numeratorLength() >= kFractionDigits
                                      : false;
    if (isFull) {
        alert_.NSBeep();
    } else {
        appendCharacterToMantissa(character);
    }
}

void DYXInputDisplay::appendCharacterDMS(char character) {
    hasDecimal_ = text_.size() >= kDegreesFields.width();
    appendCharacterToMantissa(character);
}

void DYXInputDisplay::appendCharacterBinary(char character) {
    if (length() < kBinaryDigits) {
        text_ += character;
    }
}

void DYXInputDisplay::appendDecimalScientific() {
    if (!inExponent_ && !hasDecimal_) {
        exp_ = 0;
    }
    hasDecimal_ = true;
}

void DYXInputDisplay::appendDecimalFraction() {
    if (hasFraction_) {
        alert_.NSBeep();
    } else if (hasDecimal_) {
        hasFraction_ = true;
    } else {
        hasDecimal_ = true;
    }
}

// Ends the field being typed: pads it with zeros on its left to its full width, or adds a field of
// zeros when it is full already. Once the seconds are complete, their decimals follow.
void DYXInputDisplay::padToEndOfField(const EntryFields& fields) {
    std::size_t start = 0;
    for (const std::size_t end : fields.ends) {
        if (text_.size() < end) {
            text_.insert(start, end - text_.size(), '0');
            break;
        }
        start = end;
    }
    hasDecimal_ = text_.size() >= fields.width();
}

void DYXInputDisplay::appendDecimalHMS() { padToEndOfField(kHoursFields); }
void DYXInputDisplay::appendDecimalDMS() { padToEndOfField(kDegreesFields); }

bool DYXInputDisplay::setToDecimalScientific() {
    reset();
    hasDecimal_ = true;
    return true;
}

bool DYXInputDisplay::setToDecimalHMS() {
    reset();
    text_ = "00";
    return true;
}

bool DYXInputDisplay::setToDecimalDMS() {
    reset();
    text_ = "000";
    return true;
}

bool DYXInputDisplay::refuseDecimal() { return false; }

void DYXInputDisplay::startWithOne() {
    sgn_ = false;
    exp_ = 0;
    frc_ = 0;
    text_ = "1";
    eex_ = {'0', '0', ' '};
    inExponent_ = true;
}

void DYXInputDisplay::setTo1E0() { startWithOne(); }

void DYXInputDisplay::setTo1E(std::string_view exponent) {
    startWithOne();
    setExponentDigits(exponent);
}

void DYXInputDisplay::setExponentTo(std::string_view exponent) {
    setExponentDigits(exponent);
    inExponent_ = true;
}

// Anything but a sign and two digits, which no key sends, leaves the exponent as it is.
void DYXInputDisplay::setExponentDigits(std::string_view exponent) {
    const auto isDigit = [](char character) { return character >= '0' && character <= '9'; };
    if (exponent.size() == 3 && isDigit(exponent[1]) && isDigit(exponent[2])) {
        eex_ = {exponent[1], exponent[2], exponent[0] == '-' ? '-' : '+'};
    }
}

void DYXInputDisplay::toggleInExponent() { inExponent_ = !inExponent_; }

void DYXInputDisplay::changeSign() {
    if (inExponent_) {
        changeSignOfExponent();
    } else {
        sgn_ = !sgn_;
    }
}

void DYXInputDisplay::changeSignOfExponent() { eex_[2] = eex_[2] == '-' ? ' ' : '-'; }

void DYXInputDisplay::removeCharacter() {
    if (inExponent_) {
        removeCharacterFromExponent();
    } else {
        removeCharacterFromMantissa();
    }
}

void DYXInputDisplay::removeCharacterFromExponent() {
    if (hasExponentDigits()) {
        eex_ = {'0', eex_[0], eex_[2]};
    } else {
        inExponent_ = false;
    }
}

void DYXInputDisplay::removeCharacterFromMantissa() {
    if (text_.empty()) {
        reset();
        return;
    }
    if (frc_ == 0 && hasFraction_) {
        hasFraction_ = false;
    } else if (exp_ == 0 && hasDecimal_) {
        hasDecimal_ = false;
    } else {
        text_.pop_back();
        exp_ += hasDecimal_ ? 1 : 0;
        frc_ += hasFraction_ ? 1 : 0;
    }
    if (text_.empty()) {
        reset();
    }
}

}  // namespace talvex
