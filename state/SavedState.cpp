#include "state/SavedState.h"

#include <bit>
#include <cstring>
#include <string>

#include "state/DYXDataExtensions.h"
#include "state/Settings.h"

namespace talvex {
namespace {

using Dictionary = PropertyDictionary;

constexpr OlderKey kOldMemoryDrawer{.key = "memKeysDrawerState"};
constexpr OlderKey kOldMemoryWasOpen{.key = "memKeysWasOpen"};
constexpr OlderKey kOldBigWindow{.key = "windowIsBig", .isOpposite = true};
constexpr OlderKey kOldStatusLine{.key = "showStatusLines", .order = OlderKey::Order::behind};

constexpr auto kLayout = std::to_array<SavedRow<WindowLayout>>({
    saved<&WindowLayout::keyPadHidden>("keyPadHidden").orOlder(kOldBigWindow),
    saved<&WindowLayout::displayViewMode>("displayViewMode"),
    saved<&WindowLayout::showStatusLine>("showStatusLine").orIfMissing(1).orOlder(kOldStatusLine),
});

constexpr auto kWindow = std::to_array<SavedRow<WindowState>>({
    saved<&WindowState::memoryDrawerState>("memoryDrawerState").orOlder(kOldMemoryDrawer),
    saved<&WindowState::constantsDrawerState>("constantsDrawerState"),
    saved<&WindowState::conversionDrawerState>("conversionDrawerState"),
    saved<&WindowState::functionsDrawerState>("functionsDrawerState"),
    saved<&WindowState::memoryWasOpen>("memoryWasOpen").orOlder(kOldMemoryWasOpen),
    saved<&WindowState::constantsWasOpen>("constantsWasOpen"),
    saved<&WindowState::conversionWasOpen>("conversionWasOpen"),
    saved<&WindowState::functionsWasOpen>("functionsWasOpen"),
    saved<&WindowState::conversionTabSelection>("conversionTabSelection"),
    saved<&WindowState::helpPanelVisible>("helpPanelVisible"),
    saved<&WindowState::helpTag>("helpTag"),
    saved<&WindowState::helpViewTextSize>("helpViewTextSize"),
});

constexpr auto itself = [](const auto& row) { return row; };
static_assert(hasARowForEachMember<WindowLayout>(kLayout, itself));
static_assert(hasARowForEachMember<WindowState>(kWindow, itself));

constexpr auto kInputState = saved<&SavedState::inputState>("inputState");

// Calls `visit` with each row and with what it is a row of.
template <class State, class Visit>
void forEachRow(State& state, Visit visit) {
    visit(kInputState, state);
    for (const SettingRow& row : kSettings) {
        visit(row.saved, state.settings);
    }
    for (const auto& row : kLayout) {
        visit(row, state.layout);
    }
    for (const auto& row : kWindow) {
        visit(row, state.window);
    }
}

const PropertyValue* find(const Dictionary& dictionary, std::string_view key) {
    const auto entry = dictionary.find(key);
    return entry == dictionary.end() ? nullptr : &entry->second;
}

double numberAt(const Dictionary& dictionary, const std::string& key) {
    const PropertyValue* const value = find(dictionary, key);
    return value == nullptr ? 0.0 : numberOf(*value);
}

// The value of a row, from whichever of its keys counts.
template <class Owner>
std::int32_t valueAt(const Dictionary& dictionary, const SavedRow<Owner>& row) {
    const PropertyValue* const newer = find(dictionary, row.key);
    const PropertyValue* const older =
        row.older.key.empty() ? nullptr : find(dictionary, row.older.key);
    const bool takesOlder =
        older != nullptr && (row.older.order == OlderKey::Order::ahead || newer == nullptr);
    const PropertyValue* const value = takesOlder ? older : newer;
    if (value == nullptr) {
        return row.missing.value_or(row.get(Owner()));
    }
    if (row.isSwitch) {
        return isTrue(*value) != (takesOlder && row.older.isOpposite) ? 1 : 0;
    }
    return integerOf(*value);
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
    forEachRow(state, [&dictionary](const auto& row, auto& owner) {
        row.set(owner, valueAt(dictionary, row));
    });
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
    forEachRow(state, [&dictionary](const auto& row, const auto& owner) {
        const std::int32_t value = row.get(owner);
        dictionary.emplace(
            row.key, row.isSwitch ? PropertyValue(value != 0) : PropertyValue(std::int64_t{value}));
    });
    const auto putFrame = [&](const std::string& key, const std::optional<NSRect>& frame) {
        dictionary.emplace(key, dataOf(DYXDataExtensions::dataWithRect(frame.value_or(NSRect{}))));
    };
    putFrame("calculatorFrame", state.calculatorFrame);
    putFrame("helpFrame", state.helpFrame);
    return dictionary;
}

}  // namespace talvex
