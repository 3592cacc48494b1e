#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "display/display_modes.h"
#include "numeric/DYXMathContext.h"
#include "state/SavedRow.h"

// What the user can set, and every fact about each setting in one row. Menus, the saved state and
// whoever shows a setting read it here.
namespace talvex {

// The numbers of the modes are stored in the saved state, which may hold any other number, too.
enum class DecimalMode : std::int32_t { system = 0, point = 1, comma = 2 };
enum class SeparatorMode : std::int32_t { none = 0, byMode = 1, thinSpace = 2, blank = 3 };
enum class FontMode : std::int32_t { byMode = 0, proportional = 1, monospaced = 2 };

// Each member has the value that counts where there is no file, and a row in the table below.
struct Settings {
    std::int32_t inputDisplayMode = mode::FIX;
    std::int32_t outputDisplayMode = mode::FIX;
    bool unlockInputAndOutputModes = false;
    AngleMode angleMode = AngleMode::rad;
    std::int32_t digits = 4;
    DecimalMode decimalMode = DecimalMode::system;
    SeparatorMode digitGroupingSeparatorMode = SeparatorMode::byMode;
    std::int32_t digitGroupingDigitsMode = 0;  // 0 the system's, else at least two and at most four
    FontMode fontMode = FontMode::byMode;
    bool reduceCarpentryFractions = true;
    bool displayIrrationals = false;
    bool useHPStylePowerAndLogs = true;
    bool includeDigitGroupingWhenCopying = false;
    bool registerLabelsHidden = false;
    bool autoHideXLabel = true;
    std::int32_t windowSize = 0;  // percent; 0 as the desktop's text
    bool statusLinesEnabled = true;
    bool animateWindow = true;
    bool alwaysOnTop = false;

    bool operator==(const Settings&) const = default;
};

// One of several values, as a menu offers it.
struct Choice {
    constexpr Choice() = default;
    template <class Value>
    constexpr Choice(std::u16string_view choiceTitle, Value choiceValue,
                     std::u16string_view titleMeaning = {})
        : title(choiceTitle),
          value(static_cast<std::int32_t>(choiceValue)),
          meaning(titleMeaning) {}

    std::u16string_view title;
    std::int32_t value = 0;
    std::u16string_view meaning;  // of a title that is a code
};

// The menu that holds the item of a setting, in the order of the rows.
enum class SettingMenu { edit, modes, angle, digits, format, view };

// What has to be brought up to date when the setting changes.
enum class Refresh { nothing, display, statusLines };

struct SettingRow {
    SavedRow<Settings> saved;
    SettingMenu menu;
    std::u16string_view title;
    // The title while a switch is on, if it says what it would do.
    std::u16string_view titleWhenOn = {};
    // None for a switch.
    std::span<const Choice> choices = {};
    Refresh refresh = Refresh::display;
};

inline constexpr auto kModeChoices = [] {
    std::array<Choice, mode::count> choices{};
    for (std::int32_t number = 0; number < mode::count; ++number) {
        const DisplayModeName& name = kDisplayModeNames.at(static_cast<std::size_t>(number));
        choices.at(static_cast<std::size_t>(number)) = {name.code, number, name.meaning};
    }
    return choices;
}();
inline constexpr auto kAngleChoices = std::to_array<Choice>({
    {u"RAD", AngleMode::rad, u"radians, 2\u03C0 in a turn"},
    {u"DEG", AngleMode::deg, u"degrees, 360 in a turn"},
    {u"GRD", AngleMode::grd, u"grads, 400 in a turn"},
    {u"HRS", AngleMode::hrs, u"hours, 24 in a turn"},
    {u"REV", AngleMode::rev, u"revolutions"},
});
inline constexpr auto kDigitChoices = [] {
    constexpr std::u16string_view kDigits = u"0123456789";
    std::array<Choice, kDigits.size()> choices{};
    for (std::size_t digits = 0; digits < kDigits.size(); ++digits) {
        choices.at(digits) = {kDigits.substr(digits, 1), static_cast<std::int32_t>(digits)};
    }
    return choices;
}();
inline constexpr auto kDecimalChoices =
    std::to_array<Choice>({{u"As the System", DecimalMode::system},
                           {u"Point", DecimalMode::point},
                           {u"Comma", DecimalMode::comma}});
inline constexpr auto kSeparatorChoices =
    std::to_array<Choice>({{u"None", SeparatorMode::none},
                           {u"By Mode", SeparatorMode::byMode},
                           {u"Thin Space", SeparatorMode::thinSpace},
                           {u"Blank", SeparatorMode::blank}});
inline constexpr auto kGroupChoices =
    std::to_array<Choice>({{u"As the System", 0}, {u"Twos", 2}, {u"Threes", 3}, {u"Fours", 4}});
inline constexpr auto kFontChoices =
    std::to_array<Choice>({{u"By Mode", FontMode::byMode},
                           {u"Proportional", FontMode::proportional},
                           {u"Monospaced", FontMode::monospaced}});

// The sizes that the window can have, in percent.
inline constexpr std::int32_t kSmallestSize = 75;
inline constexpr std::int32_t kLargestSize = 300;
constexpr std::int32_t boundedSize(std::int32_t percent) {
    return percent == 0 ? 0 : std::clamp(percent, kSmallestSize, kLargestSize);
}
inline constexpr auto kSizeChoices = std::to_array<Choice>({{u"As the System", 0},
                                                            {u"75 %", kSmallestSize},
                                                            {u"100 %", 100},
                                                            {u"125 %", 125},
                                                            {u"150 %", 150},
                                                            {u"175 %", 175},
                                                            {u"200 %", 200},
                                                            {u"250 %", 250},
                                                            {u"300 %", kLargestSize}});

inline constexpr auto kSettings = std::to_array<SettingRow>({
    {.saved = saved<&Settings::inputDisplayMode>("inputDisplayMode"),
     .menu = SettingMenu::modes,
     .title = u"Input",
     .choices = kModeChoices},
    {.saved = saved<&Settings::outputDisplayMode>("outputDisplayMode"),
     .menu = SettingMenu::modes,
     .title = u"Output",
     .choices = kModeChoices},
    {.saved = saved<&Settings::unlockInputAndOutputModes>("unlockInputAndOutputModes"),
     .menu = SettingMenu::modes,
     .title = u"Unlock Output from Input",
     .titleWhenOn = u"Lock Output to Input"},
    {.saved = saved<&Settings::angleMode>("angleMode"),
     .menu = SettingMenu::angle,
     .title = u"Angle",
     .choices = kAngleChoices},
    {.saved = saved<&Settings::digits>("digits"),
     .menu = SettingMenu::digits,
     .title = u"Digits",
     .choices = kDigitChoices},
    {.saved = saved<&Settings::decimalMode>("decimalMode"),
     .menu = SettingMenu::format,
     .title = u"Decimal Separator",
     .choices = kDecimalChoices},
    {.saved = saved<&Settings::digitGroupingSeparatorMode>("digitGroupingSeparatorMode")
                  .boundedBy([](std::int32_t number) { return number & 3; }),
     .menu = SettingMenu::format,
     .title = u"Separator of Groups",
     .choices = kSeparatorChoices},
    {.saved = saved<&Settings::digitGroupingDigitsMode>("digitGroupingDigitsMode"),
     .menu = SettingMenu::format,
     .title = u"Digits in a Group",
     .choices = kGroupChoices},
    {.saved = saved<&Settings::fontMode>("fontMode").boundedBy([](std::int32_t number) {
         return std::min(number, 2);
     }),
     .menu = SettingMenu::format,
     .title = u"Font",
     .choices = kFontChoices},
    {.saved = saved<&Settings::reduceCarpentryFractions>("reduceCarpentryFractions"),
     .menu = SettingMenu::format,
     .title = u"Reduce Carpentry Fractions"},
    {.saved = saved<&Settings::displayIrrationals>("displayIrrationals"),
     .menu = SettingMenu::format,
     .title = u"Show Multiples of \u03C0, \u221A2, \u221A3 and e"},
    {.saved = saved<&Settings::useHPStylePowerAndLogs>("useHPStylePowerAndLogs"),
     .menu = SettingMenu::format,
     .title = u"Base of Powers and Logarithms in Y"},
    {.saved = saved<&Settings::includeDigitGroupingWhenCopying>("includeDigitGroupingWhenCopying")
                  .orIfMissing(1),
     .menu = SettingMenu::edit,
     .title = u"Copy Digit Groups",
     .refresh = Refresh::nothing},
    {.saved = saved<&Settings::windowSize>("windowSize").boundedBy(boundedSize),
     .menu = SettingMenu::view,
     .title = u"Size",
     .choices = kSizeChoices},
    {.saved = saved<&Settings::registerLabelsHidden>("registerLabelsHidden"),
     .menu = SettingMenu::view,
     .title = u"Hide Register Labels"},
    {.saved = saved<&Settings::autoHideXLabel>("autoHideXLabel"),
     .menu = SettingMenu::view,
     .title = u"Hide the X Label when X Stands Alone"},
    {.saved = saved<&Settings::statusLinesEnabled>("statusLinesEnabled"),
     .menu = SettingMenu::view,
     .title = u"Tell What a Key Does",
     .refresh = Refresh::statusLines},
    {.saved = saved<&Settings::animateWindow>("animateWindow"),
     .menu = SettingMenu::view,
     .title = u"Animate Window Sizing",
     .refresh = Refresh::nothing},
    {.saved = saved<&Settings::alwaysOnTop>("alwaysOnTop"),
     .menu = SettingMenu::view,
     .title = u"Always on Top"},
});
static_assert(hasARowForEachMember<Settings>(kSettings,
                                             [](const SettingRow& row) { return row.saved; }));

// The row of a setting, by its member.
template <auto Member>
consteval const SettingRow& settingRow() {
    return *std::find_if(kSettings.begin(), kSettings.end(),
                         [](const SettingRow& row) { return row.saved.get == &valueOf<Member>; });
}

}  // namespace talvex
