#include "keyboard/HotKey.h"

#include <algorithm>
#include <array>
#include <utility>

namespace talvex {
namespace {

std::int32_t conditionsThatHold(const HotKeyState& state) {
    return (state.isStoreArmed ? storeCondition : 0) | (state.isRecallArmed ? recallCondition : 0) |
           (state.isInverse ? inverseCondition : 0) |
           (state.isHyperbolic ? hyperbolicCondition : 0);
}

constexpr std::int32_t kModifierConditions =
    storeCondition | recallCondition | inverseCondition | hyperbolicCondition;

bool applies(const HotKey& row, const HotKeyState& state) {
    const std::int32_t named = row.modifierMask & kModifierConditions;
    const std::int32_t held = conditionsThatHold(state) & named;
    switch (row.modifierTest) {
        case HotKeyTest::any:
            return held != 0;
        case HotKeyTest::all:
            return held == named;
        case HotKeyTest::none:
            return held == 0;
        case HotKeyTest::hexInput:
            return (row.modifierMask & hexInputCondition) != 0 && state.isHexInput;
    }
    return false;
}

constexpr auto kShownKeys = std::to_array<std::pair<char16_t, char16_t>>({
    {u'\x03', u'\u2324'},
    {u'\t', u'\u21E5'},
    {u'\r', u'\u23CE'},
    {u'\x1B', u'\u241B'},
    {u'\x7F', u'\u232B'},
    {u'\uF700', u'\u2191'},
    {u'\uF701', u'\u2193'},
    {u'\uF702', u'\u2192'},
    {u'\uF703', u'\u2190'},
    {u'\uF728', u'\u2326'},
    {u'\uF72C', u'\u21DE'},
    {u'\uF72D', u'\u21DF'},
    {u'\uF739', u'\u232B'},
});

// The modifier keys that a mask stands for.
constexpr auto kModifierTexts = std::to_array<std::pair<std::int32_t, std::u16string_view>>({
    {0, u""},
    {hexInputCondition, u""},
    {storeCondition, u"\u2303\u2325-"},
    {recallCondition, u"\u2325-"},
    {inverseCondition, u"\u21E7-"},
    {hyperbolicCondition, u"\u2303-"},
});

}  // namespace

HotKeys::HotKeys() : rows_(hotKeyRows().begin(), hotKeyRows().end()) {}

const HotKey* HotKeys::find(char16_t character, const HotKeyState& state) const {
    const bool isCapital = character >= u'A' && character <= u'Z';
    const auto key = static_cast<char16_t>(isCapital ? character - u'A' + u'a' : character);
    const auto row = std::find_if(rows_.begin(), rows_.end(), [&](const HotKey& candidate) {
        return candidate.key == key && applies(candidate, state);
    });
    return row == rows_.end() ? nullptr : &*row;
}

void HotKeys::followDecimalSeparator(char16_t separator) {
    constexpr Comand kPoint = command("data", ".   ");
    for (HotKey& row : rows_) {
        const bool isPlainKey = row.modifierMask == 0 && row.modifierTest == HotKeyTest::all;
        if (row.key == separator && isPlainKey) {
            return;
        }
        if (row.command == kPoint) {
            row.key = separator;
            return;
        }
    }
}

char16_t unicharForKeyStroke(char16_t key) {
    for (const auto& [stroke, shown] : kShownKeys) {
        if (stroke == key) {
            return shown;
        }
    }
    return key;
}

std::u16string stringForHotKey(const HotKey& hotKey) {
    for (const auto& [mask, modifiers] : kModifierTexts) {
        if (mask == hotKey.modifierMask && hotKey.key != 0) {
            const char16_t shown = unicharForKeyStroke(hotKey.key);
            const bool isMark = shown == u'_' || shown == u'^';
            return std::u16string(modifiers) + (isMark ? u"\\" : u"") + shown;
        }
    }
    return {};
}

std::u16string HotKeys::hotKeyStringForCommand(const Comand& command) const {
    std::u16string result;
    for (const HotKey& row : rows_) {
        const std::u16string text = row.command == command ? stringForHotKey(row) : u"";
        if (!text.empty()) {
            result += (result.empty() ? u"[" : u"|") + text;
        }
    }
    return result.empty() ? result : result + u"]";
}

}  // namespace talvex
