#include "entry/entry_rules.h"

#include "display/display_modes.h"

namespace talvex {
namespace {

constexpr std::string_view kDecimalDigits = "0123456789";
constexpr std::string_view kHexDigits = "0123456789ABCDEFabcdef";
constexpr std::string_view kOctalDigits = "01234567";
constexpr std::string_view kBinaryDigits = "01";

}  // namespace

struct DYXInputDisplay::RuleTables {
    using Line = DYXInputDisplay;
    static constexpr Rules kScientific{kDecimalDigits,
                                       true,
                                       true,
                                       true,
                                       &Line::appendCharacterScientific,
                                       &Line::appendDecimalScientific,
                                       &Line::setToDecimalScientific,
                                       &Line::ScientificValue,
                                       &Line::updateScientific};
    static constexpr Rules kMonetary{kDecimalDigits,
                                     true,
                                     true,
                                     true,
                                     &Line::appendCharacterScientific,
                                     &Line::appendDecimalScientific,
                                     &Line::setToDecimalScientific,
                                     &Line::MonetaryValue,
                                     &Line::updateScientific};
    static constexpr Rules kFraction{kDecimalDigits,
                                     true,
                                     false,
                                     true,
                                     &Line::appendCharacterFraction,
                                     &Line::appendDecimalFraction,
                                     &Line::setToDecimalScientific,
                                     &Line::FractionValue,
                                     &Line::updateFraction};
    static constexpr Rules kCarpentry{kDecimalDigits,
                                      true,
                                      false,
                                      true,
                                      &Line::appendCharacterFraction,
                                      &Line::appendDecimalFraction,
                                      &Line::setToDecimalScientific,
                                      &Line::CarpentryValue,
                                      &Line::updateCarpentry};
    static constexpr Rules kHours{kDecimalDigits,
                                  true,
                                  false,
                                  true,
                                  &Line::appendCharacterPlain,
                                  &Line::appendDecimalHMS,
                                  &Line::setToDecimalHMS,
                                  &Line::HMSValue,
                                  &Line::updateHMS};
    static constexpr Rules kDegrees{kDecimalDigits,
                                    true,
                                    false,
                                    true,
                                    &Line::appendCharacterDMS,
                                    &Line::appendDecimalDMS,
                                    &Line::setToDecimalDMS,
                                    &Line::DMSValue,
                                    &Line::updateDMS};
    static constexpr Rules kHexadecimal{kHexDigits,
                                        false,
                                        false,
                                        false,
                                        &Line::appendCharacterPlain,
                                        &Line::appendDecimalScientific,
                                        &Line::refuseDecimal,
                                        &Line::HEXValue,
                                        &Line::updateHEX};
    static constexpr Rules kDecimal{kDecimalDigits,
                                    false,
                                    false,
                                    true,
                                    &Line::appendCharacterPlain,
                                    &Line::appendDecimalScientific,
                                    &Line::refuseDecimal,
                                    &Line::DecimalValue,
                                    &Line::updateDecimal};
    static constexpr Rules kOctal{kOctalDigits,
                                  false,
                                  false,
                                  false,
                                  &Line::appendCharacterPlain,
                                  &Line::appendDecimalScientific,
                                  &Line::refuseDecimal,
                                  &Line::OctalValue,
                                  &Line::updateOctal};
    static constexpr Rules kBinary{kBinaryDigits,
                                   false,
                                   false,
                                   false,
                                   &Line::appendCharacterBinary,
                                   &Line::appendDecimalScientific,
                                   &Line::refuseDecimal,
                                   &Line::BinaryValue,
                                   &Line::updateBinary};
    // A mode that doesn't exist takes no digit, and reads what is there as a decimal number.
    static constexpr Rules kUnknown{"",
                                    true,
                                    true,
                                    true,
                                    &Line::ignoreCharacter,
                                    &Line::appendDecimalScientific,
                                    &Line::setToDecimalScientific,
                                    &Line::ScientificValue,
                                    &Line::updateScientific};
    static constexpr std::array<const Rules*, mode::count> kRules{
        &kScientific, &kScientific,  &kScientific, &kMonetary, &kFraction, &kCarpentry, &kHours,
        &kDegrees,    &kHexadecimal, &kDecimal,    &kOctal,    &kBinary,   &kScientific};
};

const DYXInputDisplay::Rules& DYXInputDisplay::rulesOf(std::int32_t mode) {
    return isDisplayMode(mode) ? *RuleTables::kRules.at(static_cast<std::size_t>(mode))
                               : RuleTables::kUnknown;
}

bool DYXInputDisplay::canSetToCharacter(char character) const {
    return rulesOf(inputMode_).digits.find(character) != std::string_view::npos;
}

bool DYXInputDisplay::canAppendCharacter(char character) const {
    return canSetToCharacter(character);
}

bool DYXInputDisplay::canSetToDecimal() const { return rulesOf(inputMode_).hasDecimalKey; }
bool DYXInputDisplay::canAppendDecimal() const { return canSetToDecimal(); }
bool DYXInputDisplay::canSetTo1E0() const { return rulesOf(inputMode_).hasExponentKey; }
bool DYXInputDisplay::canToggleInExponent() const { return canSetTo1E0(); }
bool DYXInputDisplay::canChangeSign() const { return rulesOf(inputMode_).hasSignKey; }

void DYXInputDisplay::appendCharacter(char character) {
    (this->*rulesOf(inputMode_).append)(character);
}

void DYXInputDisplay::appendDecimal() { (this->*rulesOf(inputMode_).appendDecimal)(); }

bool DYXInputDisplay::setToDecimal() { return (this->*rulesOf(inputMode_).setToDecimal)(); }

double DYXInputDisplay::doubleValue() const { return (this->*rulesOf(inputMode_).value)(); }

void DYXInputDisplay::update() {
    writeStatus(inExponent_ ? u"entering exponent\u2026" : u"entering significand\u2026");
    (this->*rulesOf(inputMode_).echo)();
}

}  // namespace talvex
