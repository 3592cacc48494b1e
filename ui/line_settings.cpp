#include "ui/line_settings.h"

#include <algorithm>
#include <string>

#include "display/display_modes.h"

namespace talvex {
namespace {

constexpr std::u16string_view kThinSpace = u"\u2009";
constexpr std::u16string_view kBulletOperator = u"\u2219";
constexpr std::u16string_view kBlank = u" ";
constexpr double kFontSize = 13.0;
constexpr std::u16string_view kProportionalFont = u"Lucida Grande";
constexpr std::u16string_view kMonospacedFont = u"Excalibur Monospace";
constexpr std::uint32_t kUsualGroup = 3;

// The mode that the lines show numbers in.
std::int32_t displayModeOf(const Settings& settings) {
    return settings.unlockInputAndOutputModes ? settings.outputDisplayMode
                                              : settings.inputDisplayMode;
}

struct Separators {
    std::u16string_view integer;
    std::u16string_view decimal;
};

Separators separatorsOf(const Settings& settings, char16_t decimalSeparator) {
    const std::int32_t displayMode = displayModeOf(settings);
    switch (settings.digitGroupingSeparatorMode) {
        case SeparatorMode::none:
            return {};
        case SeparatorMode::thinSpace:
            return {kThinSpace, kThinSpace};
        case SeparatorMode::blank:
            return {kBlank, kBlank};
        case SeparatorMode::byMode:
            break;
    }
    const bool isBased = isIntegerMode(displayMode) && displayMode != mode::DEC;
    const std::u16string_view groups = decimalSeparator == u'.' ? u"," : u".";
    return {.integer = isBased ? kBulletOperator : groups,
            .decimal = displayMode == mode::BIN ? kBlank : kThinSpace};
}

std::uint32_t groupOf(std::int32_t mode, const NSNumberFormat& system) {
    if (mode == 0) {
        return system.groupingSize == 0 ? kUsualGroup : system.groupingSize;
    }
    return static_cast<std::uint32_t>(std::clamp(mode, 2, 4));
}

}  // namespace

char16_t decimalSeparatorOf(const Settings& settings, const NSNumberFormat& system) {
    if (settings.decimalMode == DecimalMode::system && !system.decimalSeparator.empty()) {
        return system.decimalSeparator.front();
    }
    return settings.decimalMode == DecimalMode::comma ? u',' : u'.';
}

LineSettings lineSettingsOf(const Settings& settings, const NSNumberFormat& system) {
    const char16_t decimalSeparator = decimalSeparatorOf(settings, system);
    const Separators separators = separatorsOf(settings, decimalSeparator);
    return {.digits = static_cast<std::uint32_t>(settings.digits),
            .outputMode = settings.outputDisplayMode,
            .reduceCarpentryFractions = settings.reduceCarpentryFractions,
            .displayIrrationals = settings.displayIrrationals,
            .decimalSeparator = decimalSeparator,
            .groupingDigits = groupOf(settings.digitGroupingDigitsMode, system),
            .integerGroupingSeparator = std::u16string(separators.integer),
            .decimalGroupingSeparator = std::u16string(separators.decimal)};
}

NSFont lineFontOf(const Settings& settings) {
    const bool isMonospaced =
        settings.fontMode == FontMode::monospaced ||
        (settings.fontMode != FontMode::proportional && isIntegerMode(displayModeOf(settings)));
    return {.name = isMonospaced ? kMonospacedFont : kProportionalFont, .size = kFontSize};
}

}  // namespace talvex
