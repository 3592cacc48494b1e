#include "entry/DYXInputDisplay.h"

#include "entry/entry_rules.h"

namespace talvex {
namespace {

void sound(AlertPort& alert, KeyAnswer answer) {
    if (answer == KeyAnswer::alert) {
        alert.NSBeep();
    }
}

}  // namespace

DYXInputDisplay::DYXInputDisplay(AlertPort& alert, DisplayFields fields)
    : DYXOutputDisplay(std::move(fields)), alert_(alert) {}

std::int32_t DYXInputDisplay::effectiveOutputMode() const {
    return input_.unlockInputAndOutputModes ? outputMode() : input_.inputMode;
}

std::u16string DYXInputDisplay::inputModeTitle() const {
    return modeTitle(ModeTitle::input, input_.inputMode);
}

const EntryRules& DYXInputDisplay::rules() const { return entryRules(input_.inputMode); }

bool DYXInputDisplay::canSetToCharacter(char character) const {
    return rules().digits.find(character) != std::string_view::npos;
}

void DYXInputDisplay::setToCharacter(char character) {
    reset();
    entry_.append(character, settings().maxDigits);
}

void DYXInputDisplay::appendCharacter(char character) {
    sound(alert_, rules().append(entry_, character, settings()));
}

bool DYXInputDisplay::canSetToDecimal() const { return rules().hasDecimalKey; }

void DYXInputDisplay::setToDecimal() {
    reset();
    appendDecimal();
}

void DYXInputDisplay::appendDecimal() { sound(alert_, rules().appendDecimal(entry_)); }

bool DYXInputDisplay::canSetTo1E0() const { return rules().hasExponentKey; }

void DYXInputDisplay::setTo1E(std::string_view exponent) {
    entry_.startWithOne();
    entry_.setExponent(exponent);
}

void DYXInputDisplay::setExponentTo(std::string_view exponent) {
    entry_.setExponent(exponent);
    entry_.inExponent = true;
}

bool DYXInputDisplay::canChangeSign() const { return rules().hasSignKey; }

double DYXInputDisplay::doubleValue() const { return rules().value(entry_, settings()); }

void DYXInputDisplay::update() {
    LineText text = rules().echo(entry_, settings());
    text.statusWord =
        entry_.inExponent ? u"entering exponent\u2026" : u"entering significand\u2026";
    alignMantissaAsIn(input_.inputMode);
    show(std::move(text));
}

}  // namespace talvex
