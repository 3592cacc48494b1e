#include "state/SavedState.h"

#include <bit>
#include <cstring>
#include <string>

#include "state/DYXDataExtensions.h"

namespace talvex {
namespace {

using Dictionary = PropertyDictionary;

// A key and its value where a file lacks it. The older key, if there is one, counts ahead of the
// newer or behind it.
enum class Older { none, first, second };

struct IntegerKey {
    std::string_view key;
    std::int32_t SavedState::*field;
    std::int32_t missing = 0;
    std::string_view olderKey = {};
};

constexpr std::array<IntegerKey, 17> kIntegers{{
    {.key = "outputDisplayMode", .field = &SavedState::outputDisplayMode},
    {.key = "inputDisplayMode", .field = &SavedState::inputDisplayMode},
    {.key = "inputState", .field = &SavedState::inputState, .missing = 2},
    {.key = "angleMode", .field = &SavedState::angleMode},
    {.key = "digits", .field = &SavedState::digits, .missing = 4},
    {.key = "helpTag", .field = &SavedState::helpTag},
    {.key = "displayViewMode", .field = &SavedState::displayViewMode},
    {.key = "decimalMode", .field = &SavedState::decimalMode},
    {.key = "digitGroupingSeparatorMode",
     .field = &SavedState::digitGroupingSeparatorMode,
     .missing = 1},
    {.key = "digitGroupingDigitsMode", .field = &SavedState::digitGroupingDigitsMode},
    {.key = "fontMode", .field = &SavedState::fontMode},
    {.key = "helpViewTextSize", .field = &SavedState::helpViewTextSize},
    {.key = "memoryDrawerState",
     .field = &SavedState::memoryDrawerState,
     .olderKey = "memKeysDrawerState"},
    {.key = "constantsDrawerState", .field = &SavedState::constantsDrawerState},
    {.key = "conversionDrawerState", .field = &SavedState::conversionDrawerState},
    {.key = "functionsDrawerState", .field = &SavedState::functionsDrawerState},
    {.key = "conversionTabSelection", .field = &SavedState::conversionTabSelection},
}};

struct BooleanKey {
    std::string_view key;
    bool SavedState::*field;
    bool missing = false;
    std::string_view olderKey = {};
    Older older = Older::none;
    bool olderIsOpposite = false;
};

constexpr std::array<BooleanKey, 16> kBooleans{{
    {.key = "memoryWasOpen",
     .field = &SavedState::memoryWasOpen,
     .olderKey = "memKeysWasOpen",
     .older = Older::first},
    {.key = "constantsWasOpen", .field = &SavedState::constantsWasOpen},
    {.key = "conversionWasOpen", .field = &SavedState::conversionWasOpen},
    {.key = "functionsWasOpen", .field = &SavedState::functionsWasOpen},
    {.key = "animateWindow", .field = &SavedState::animateWindow, .missing = true},
    {.key = "useHPStylePowerAndLogs",
     .field = &SavedState::useHPStylePowerAndLogs,
     .missing = true},
    {.key = "reduceCarpentryFractions",
     .field = &SavedState::reduceCarpentryFractions,
     .missing = true},
    {.key = "unlockInputAndOutputModes", .field = &SavedState::unlockInputAndOutputModes},
    {.key = "displayIrrationals", .field = &SavedState::displayIrrationals},
    {.key = "helpPanelVisible", .field = &SavedState::helpPanelVisible, .missing = true},
    {.key = "keyPadHidden",
     .field = &SavedState::keyPadHidden,
     .olderKey = "windowIsBig",
     .older = Older::first,
     .olderIsOpposite = true},
    {.key = "registerLabelsHidden", .field = &SavedState::registerLabelsHidden},
    {.key = "autoHideXLabel", .field = &SavedState::autoHideXLabel, .missing = true},
    {.key = "statusLinesEnabled", .field = &SavedState::statusLinesEnabled, .missing = true},
    {.key = "showStatusLine",
     .field = &SavedState::showStatusLine,
     .missing = true,
     .olderKey = "showStatusLines",
     .older = Older::second},
    // True, not false as without a file.
    {.key = "includeDigitGroupingWhenCopying",
     .field = &SavedState::includeDigitGroupingWhenCopying,
     .missing = true},
}};

const PropertyValue* find(const Dictionary& dictionary, std::string_view key) {
    const auto entry = dictionary.find(key);
    return entry == dictionary.end() ? nullptr : &entry->second;
}

double numberAt(const Dictionary& dictionary, const std::string& key) {
    const PropertyValue* const value = find(dictionary, key);
    return value == nullptr ? 0.0 : numberOf(*value);
}

std::int32_t integerAt(const Dictionary& dictionary, const IntegerKey& row) {
    const PropertyValue* value = row.olderKey.empty() ? nullptr : find(dictionary, row.olderKey);
    value = value == nullptr ? find(dictionary, row.key) : value;
    return value == nullptr ? row.missing : integerOf(*value);
}

bool booleanAt(const Dictionary& dictionary, const BooleanKey& row) {
    const PropertyValue* const newer = find(dictionary, row.key);
    const PropertyValue* const older =
        row.older == Older::none ? nullptr : find(dictionary, row.olderKey);
    if (older != nullptr && (row.older == Older::first || newer == nullptr)) {
        return isTrue(*older) != row.olderIsOpposite;
    }
    return newer == nullptr ? row.missing : isTrue(*newer);
}

std::optional<NSRect> rectAt(const Dictionary& dictionary, std::string_view key) {
    const PropertyValue* const value = find(dictionary, key);
    if (value == nullptr) {
        return std::nullopt;
    }
    const auto* const data = std::get_if<PropertyData>(value);
    return DYXDataExtensions::rectValue(data == nullptr ? PropertyData() : *data);
}

// An old frame lies in the byte order of the machine that wrote it, and is taken as it lies.
std::optional<NSRect> oldFrame(const Dictionary& dictionary) {
    const PropertyValue* const value = find(dictionary, "frame");
    if (value == nullptr) {
        return std::nullopt;
    }
    std::array<float, 4> numbers{};
    const auto* const data = std::get_if<PropertyData>(value);
    if (data != nullptr && data->size() >= sizeof numbers) {
        std::memcpy(numbers.data(), data->data(), sizeof numbers);
    }
    return NSRect{.x = numbers[0], .y = numbers[1], .width = numbers[2], .height = numbers[3]};
}

template <class Bytes>
PropertyData dataOf(const Bytes& bytes) {
    return {bytes.begin(), bytes.end()};
}

std::string registerKey(const char* name, std::size_t index) {
    return name + ('[' + std::to_string(index) + ']');
}

}  // namespace

SavedState savedStateFrom(const Dictionary& dictionary) {
    SavedState state;
    for (std::size_t index = 0; index < state.reg.size(); ++index) {
        state.reg.at(index) = numberAt(dictionary, registerKey("reg", index));
    }
    for (std::size_t index = 0; index < state.mem.size(); ++index) {
        state.mem.at(index) = numberAt(dictionary, registerKey("mem", index));
    }
    state.lastX = numberAt(dictionary, "lastX");
    for (const IntegerKey& row : kIntegers) {
        state.*row.field = integerAt(dictionary, row);
    }
    for (const BooleanKey& row : kBooleans) {
        state.*row.field = booleanAt(dictionary, row);
    }
    state.calculatorFrame = rectAt(dictionary, "calculatorFrame");
    if (!state.calculatorFrame) {
        state.calculatorFrame = oldFrame(dictionary);
    }
    state.helpFrame = rectAt(dictionary, "helpFrame");
    if (!state.helpFrame) {
        state.helpFrame = rectAt(dictionary, "helpFame");
    }
    return state;
}

PropertyDictionary propertiesOf(const SavedState& state) {
    Dictionary dictionary;
    const auto putNumber = [&](const std::string& key, double number) {
        dictionary.emplace(key, dataOf(DYXDataExtensions::dataWithDouble(number)));
    };
    for (std::size_t index = 0; index < state.reg.size(); ++index) {
        putNumber(registerKey("reg", index), state.reg.at(index));
    }
    for (std::size_t index = 0; index < state.mem.size(); ++index) {
        putNumber(registerKey("mem", index), state.mem.at(index));
    }
    putNumber("lastX", state.lastX);
    for (const IntegerKey& row : kIntegers) {
        dictionary.emplace(row.key, std::int64_t{state.*row.field});
    }
    for (const BooleanKey& row : kBooleans) {
        dictionary.emplace(row.key, state.*row.field);
    }
    const auto putFrame = [&](const std::string& key, const std::optional<NSRect>& frame) {
        dictionary.emplace(key, dataOf(DYXDataExtensions::dataWithRect(frame.value_or(NSRect{}))));
    };
    putFrame("calculatorFrame", state.calculatorFrame);
    putFrame("helpFrame", state.helpFrame);
    return dictionary;
}

}  // namespace talvex
