#include "entry/entry_rules.h"

#include <algorithm>

#include "display/display_modes.h"
#include "entry/entry_echo.h"
#include "entry/entry_value.h"

namespace talvex {
namespace {

constexpr std::string_view kDecimalDigits = "0123456789";
constexpr std::string_view kHexDigits = "0123456789ABCDEFabcdef";
constexpr std::string_view kOctalDigits = "01234567";
constexpr std::string_view kBinaryDigits = "01";

constexpr EntryRules kScientific{.digits = kDecimalDigits,
                                 .hasDecimalKey = true,
                                 .hasExponentKey = true,
                                 .hasSignKey = true,
                                 .append = appendScientific,
                                 .appendDecimal = appendDecimalScientific,
                                 .value = scientificValue,
                                 .echo = scientificEcho};
constexpr EntryRules kMonetary = kScientific.with(monetaryValue, scientificEcho);
constexpr EntryRules kFraction{.digits = kDecimalDigits,
                               .hasDecimalKey = true,
                               .hasExponentKey = false,
                               .hasSignKey = true,
                               .append = appendFraction,
                               .appendDecimal = appendDecimalFraction,
                               .value = fractionValue,
                               .echo = fractionEcho};
constexpr EntryRules kCarpentry = kFraction.with(carpentryValue, carpentryEcho);
constexpr EntryRules kHours{.digits = kDecimalDigits,
                            .hasDecimalKey = true,
                            .hasExponentKey = false,
                            .hasSignKey = true,
                            .append = appendPlain,
                            .appendDecimal = appendDecimalHMS,
                            .value = hmsValue,
                            .echo = hmsEcho};
constexpr EntryRules kDegrees{.digits = kDecimalDigits,
                              .hasDecimalKey = true,
                              .hasExponentKey = false,
                              .hasSignKey = true,
                              .append = appendDMS,
                              .appendDecimal = appendDecimalDMS,
                              .value = dmsValue,
                              .echo = dmsEcho};
constexpr EntryRules kHexadecimal{.digits = kHexDigits,
                                  .hasDecimalKey = false,
                                  .hasExponentKey = false,
                                  .hasSignKey = false,
                                  .append = appendPlain,
                                  .appendDecimal = appendDecimalScientific,
                                  .value = hexValue,
                                  .echo = hexEcho};
constexpr EntryRules kDecimal{.digits = kDecimalDigits,
                              .hasDecimalKey = false,
                              .hasExponentKey = false,
                              .hasSignKey = true,
                              .append = appendPlain,
                              .appendDecimal = appendDecimalScientific,
                              .value = decimalValue,
                              .echo = decimalEcho};
constexpr EntryRules kOctal{.digits = kOctalDigits,
                            .hasDecimalKey = false,
                            .hasExponentKey = false,
                            .hasSignKey = false,
                            .append = appendPlain,
                            .appendDecimal = appendDecimalScientific,
                            .value = octalValue,
                            .echo = octalEcho};
constexpr EntryRules kBinary{.digits = kBinaryDigits,
                             .hasDecimalKey = false,
                             .hasExponentKey = false,
                             .hasSignKey = false,
                             .append = appendBinary,
                             .appendDecimal = appendDecimalScientific,
                             .value = binaryValue,
                             .echo = binaryEcho};

constexpr auto kRules = tableOfModes<EntryRules>(
    {kScientific, kScientific, kScientific, kMonetary, kFraction, kCarpentry, kHours, kDegrees,
     kHexadecimal, kDecimal, kOctal, kBinary, kScientific});

static_assert(std::all_of(kRules.begin(), kRules.end(), [](const EntryRules& rules) {
    return rules.append != nullptr && rules.appendDecimal != nullptr && rules.value != nullptr &&
           rules.echo != nullptr;
}));

}  // namespace

const EntryRules& entryRules(std::int32_t inputMode) {
    return kRules.at(static_cast<std::size_t>(effectiveMode(inputMode)));
}

}  // namespace talvex
