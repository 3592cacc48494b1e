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
    static constexpr Rules kScientific{.digits = kDecimalDigits,
                                       .hasDecimalKey = true,
                                       .hasExponentKey = true,
                                       .hasSignKey = true,
                                       .append = &Line::appendCharacterScientific,
                                       .appendDecimal = &Line::appendDecimalScientific,
                                       .setToDecimal = &Line::setToDecimalScientific,
                                       .value = &Line::ScientificValue,
                                       .echo = &Line::updateScientific};
    static constexpr Rules kMonetary =
        kScientific.with(&Line::MonetaryValue, &Line::updateScientific);
    static constexpr Rules kFraction{.digits = kDecimalDigits,
                                     .hasDecimalKey = true,
                                     .hasExponentKey = false,
                                     .hasSignKey = true,
                                     .append = &Line::appendCharacterFraction,
                                     .appendDecimal = &Line::appendDecimalFraction,
                                     .setToDecimal = &Line::setToDecimalScientific,
                                     .value = &Line::FractionValue,
                                     .echo = &Line::updateFraction};
    static constexpr Rules kCarpentry =
        kFraction.with(&Line::CarpentryValue, &Line::updateCarpentry);
    static constexpr Rules kHours{.digits = kDecimalDigits,
                                  .hasDecimalKey = true,
                                  .hasExponentKey = false,
                                  .hasSignKey = true,
                                  .append = &Line::appendCharacterPlain,
                                  .appendDecimal = &Line::appendDecimalHMS,
                                  .setToDecimal = &Line::setToDecimalHMS,
                                  .value = &Line::HMSValue,
                                  .echo = &Line::updateHMS};
    static constexpr Rules kDegrees{.digits = kDecimalDigits,
                                    .hasDecimalKey = true,
                                    .hasExponentKey = false,
                                    .hasSignKey = true,
                                    .append = &Line::appendCharacterDMS,
                                    .appendDecimal = &Line::appendDecimalDMS,
                                    .setToDecimal = &Line::setToDecimalDMS,
                                    .value = &Line::DMSValue,
                                    .echo = &Line::updateDMS};
    static constexpr Rules kHexadecimal{.digits = kHexDigits,
                                        .hasDecimalKey = false,
                                        .hasExponentKey = false,
                                        .hasSignKey = false,
                                        .append = &Line::appendCharacterPlain,
                                        .appendDecimal = &Line::appendDecimalScientific,
                                        .setToDecimal = &Line::refuseDecimal,
                                        .value = &Line::HEXValue,
                                        .echo = &Line::updateHEX};
    static constexpr Rules kDecimal{.digits = kDecimalDigits,
                                    .hasDecimalKey = false,
                                    .hasExponentKey = false,
                                    .hasSignKey = true,
                                    .append = &Line::appendCharacterPlain,
                                    .appendDecimal = &Line::appendDecimalScientific,
                                    .setToDecimal = &Line::refuseDecimal,
                                    .value = &Line::DecimalValue,
                                    .echo = &Line::updateDecimal};
    static constexpr Rules kOctal{.digits = kOctalDigits,
                                  .hasDecimalKey = false,
                                  .hasExponentKey = false,
                                  .hasSignKey = false,
                                  .append = &Line::appendCharacterPlain,
                                  .appendDecimal = &Line::appendDecimalScientific,
                                  .setToDecimal = &Line::refuseDecimal,
                                  .value = &Line::OctalValue,
                                  .echo = &Line::updateOctal};
    static constexpr Rules kBinary{.digits = kBinaryDigits,
                                   .hasDecimalKey = false,
                                   .hasExponentKey = false,
                                   .hasSignKey = false,
                                   .append = &Line::appendCharacterBinary,
                                   .appendDecimal = &Line::appendDecimalScientific,
                                   .setToDecimal = &Line::refuseDecimal,
                                   .value = &Line::BinaryValue,
                                   .echo = &Line::updateBinary};
    static constexpr auto kRules = tableOfModes<const Rules*>(
        {&kScientific, &kScientific, &kScientific, &kMonetary, &kFraction, &kCarpentry, &kHours,
         &kDegrees, &kHexadecimal, &kDecimal, &kOctal, &kBinary, &kScientific});
};

const DYXInputDisplay::Rules& DYXInputDisplay::rulesOf(std::int32_t mode) {
    return *RuleTables::kRules.at(static_cast<std::size_t>(effectiveMode(mode)));
}

bool DYXInputDisplay::canSetToCharacter(char character) const {
    return rulesOf(input_.inputMode).digits.find(character) != std::string_view::npos;
}

bool DYXInputDisplay::canAppendCharacter(char character) const {
    return canSetToCharacter(character);
}

bool DYXInputDisplay::canSetToDecimal() const { return rulesOf(input_.inputMode).hasDecimalKey; }
bool DYXInputDisplay::canAppendDecimal() const { return canSetToDecimal(); }
bool DYXInputDisplay::canSetTo1E0() const { return rulesOf(input_.inputMode).hasExponentKey; }
bool DYXInputDisplay::canToggleInExponent() const { return canSetTo1E0(); }
bool DYXInputDisplay::canChangeSign() const { return rulesOf(input_.inputMode).hasSignKey; }

void DYXInputDisplay::appendCharacter(char character) {
    (this->*rulesOf(input_.inputMode).append)(character);
}

void DYXInputDisplay::appendDecimal() { (this->*rulesOf(input_.inputMode).appendDecimal)(); }

bool DYXInputDisplay::setToDecimal() { return (this->*rulesOf(input_.inputMode).setToDecimal)(); }

double DYXInputDisplay::doubleValue() const { return (this->*rulesOf(input_.inputMode).value)(); }

void DYXInputDisplay::update() {
    writeStatus(inExponent_ ? u"entering exponent\u2026" : u"entering significand\u2026");
    (this->*rulesOf(input_.inputMode).echo)();
}

}  // namespace talvex
