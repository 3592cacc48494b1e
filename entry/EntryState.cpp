#include "entry/EntryState.h"

#include <algorithm>

namespace talvex {
namespace {

// Keeps counts of digits bounded through any series of mode changes in mid-entry.
constexpr std::size_t kMostCounted = 32768;

void countUp(std::size_t& count) { count = std::min(count + 1, kMostCounted); }

// Where the last so many characters of a text begin.
std::size_t startOfLast(std::size_t count, std::string_view text) {
    return text.size() - std::min(count, text.size());
}

bool isDigit(char character) { return character >= '0' && character <= '9'; }

void removeFromExponent(EntryState& entry) {
    if (entry.hasExponent()) {
        entry.exponentDigits = {'0', entry.exponentDigits[0]};
    } else {
        entry.inExponent = false;
    }
}

void removeFromText(EntryState& entry) {
    if (!entry.text.empty() && entry.hasFraction && entry.denominatorDigits == 0) {
        entry.hasFraction = false;
    } else if (!entry.text.empty() && entry.hasDecimal && entry.decimals == 0) {
        entry.hasDecimal = false;
    } else if (!entry.text.empty()) {
        entry.text.pop_back();
        entry.decimals -= entry.hasDecimal ? 1 : 0;
        entry.denominatorDigits -= entry.hasFraction ? 1 : 0;
    }
    if (entry.text.empty()) {
        entry = {};
    }
}

}  // namespace

std::string_view EntryState::wholePart() const {
    return std::string_view(text).substr(0, startOfLast(decimals, text));
}

std::string_view EntryState::behindDecimal() const {
    return std::string_view(text).substr(startOfLast(decimals, text));
}

std::string_view EntryState::numerator() const {
    const std::size_t length = behindDecimal().size();
    return behindDecimal().substr(0, length - std::min(denominatorDigits, length));
}

std::string_view EntryState::denominator() const {
    return behindDecimal().substr(numerator().size());
}

bool EntryState::hasExponent() const { return exponentDigits != std::array{'0', '0'}; }

void EntryState::append(char character, std::size_t mostCharacters) {
    if (text.size() >= mostCharacters) {
        return;
    }
    text += character;
    if (hasDecimal) {
        countUp(decimals);
    }
    if (hasFraction) {
        countUp(denominatorDigits);
    }
}

void EntryState::startWithOne() {
    *this = {.text = "1", .hasDecimal = hasDecimal, .hasFraction = hasFraction, .inExponent = true};
}

void EntryState::setExponent(std::string_view exponent) {
    if (exponent.size() == 3 && isDigit(exponent[1]) && isDigit(exponent[2])) {
        exponentSign = exponent[0] == '-' ? '-' : '+';
        exponentDigits = {exponent[1], exponent[2]};
    }
}

void EntryState::changeSign() {
    if (inExponent) {
        exponentSign = exponentSign == '-' ? ' ' : '-';
    } else {
        isNegative = !isNegative;
    }
}

void EntryState::removeCharacter() {
    if (inExponent) {
        removeFromExponent(*this);
    } else {
        removeFromText(*this);
    }
}

}  // namespace talvex
