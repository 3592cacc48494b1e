#include "qt/key_events.h"

#include <xkbcommon/xkbcommon.h>

#include <array>
#include <utility>

namespace talvex {
namespace {

constexpr auto kNamedKeys = std::to_array<std::pair<int, char16_t>>({
    {Qt::Key_Return, u'\r'},
    {Qt::Key_Enter, u'\x03'},
    {Qt::Key_Tab, u'\t'},
    {Qt::Key_Backtab, u'\x19'},
    {Qt::Key_Backspace, u'\x7F'},
    {Qt::Key_Escape, u'\x1B'},
    {Qt::Key_Delete, NSDeleteFunctionKey},
    {Qt::Key_Up, NSUpArrowFunctionKey},
    {Qt::Key_Down, NSDownArrowFunctionKey},
    {Qt::Key_Left, NSLeftArrowFunctionKey},
    {Qt::Key_Right, NSRightArrowFunctionKey},
    {Qt::Key_PageUp, NSPageUpFunctionKey},
    {Qt::Key_PageDown, NSPageDownFunctionKey},
    {Qt::Key_Clear, NSClearLineFunctionKey},
    {Qt::Key_Space, u' '},
});

// Dead keys of which the table knows the accent as a key of its own.
constexpr auto kDeadKeys = std::to_array<std::pair<std::uint32_t, char16_t>>({
    {XKB_KEY_dead_circumflex, u'^'},
    {XKB_KEY_dead_tilde, u'~'},
});

constexpr auto kModifierKeys = std::to_array<std::pair<int, std::uint32_t>>({
    {Qt::Key_Shift, NSShiftKeyMask},
    {Qt::Key_Control, NSControlKeyMask},
    {Qt::Key_Alt, NSAlternateKeyMask},
    {Qt::Key_Meta, NSCommandKeyMask},
    {Qt::Key_Super_L, NSCommandKeyMask},
    {Qt::Key_Super_R, NSCommandKeyMask},
});

// Alt pressed while Shift is held has a keysym of its own, which the toolkit calls Meta.
constexpr auto kModifierKeysyms = std::to_array<std::pair<std::uint32_t, std::uint32_t>>({
    {XKB_KEY_Meta_L, NSAlternateKeyMask},
    {XKB_KEY_Meta_R, NSAlternateKeyMask},
});

constexpr auto kModifierStates = std::to_array<std::pair<Qt::KeyboardModifier, std::uint32_t>>({
    {Qt::ShiftModifier, NSShiftKeyMask},
    {Qt::ControlModifier, NSControlKeyMask},
    {Qt::AltModifier, NSAlternateKeyMask},
    {Qt::MetaModifier, NSCommandKeyMask},
});

template <class Table, class Key>
auto find(const Table& table, Key key) -> std::optional<decltype(table[0].second)> {
    for (const auto& [candidate, value] : table) {
        if (candidate == key) {
            return value;
        }
    }
    return std::nullopt;
}

constexpr char32_t kLastOfPlane0 = 0xFFFF;
constexpr int kFirstSpecialKey = 0x01000000;

bool isPrintable(char32_t character) {
    return character > U' ' && character != 0x7F && character <= kLastOfPlane0;
}

std::optional<std::uint32_t> modifierFlagOf(const QKeyEvent& event) {
    const auto byKeysym = event.modifiers().testFlag(Qt::ShiftModifier)
                              ? find(kModifierKeysyms, event.nativeVirtualKey())
                              : std::nullopt;
    return byKeysym ? byKeysym : find(kModifierKeys, event.key());
}

std::uint32_t flagsLackedBy(Qt::KeyboardModifiers modifiers) {
    std::uint32_t flags = 0;
    for (const auto& [state, flag] : kModifierStates) {
        flags |= modifiers.testFlag(state) ? 0 : flag;
    }
    return flags;
}

// Events that a test makes have no keysym.
std::optional<char16_t> characterWithoutKeysym(const QKeyEvent& event) {
    const QString text = event.text();
    if (!text.isEmpty() && isPrintable(text.front().unicode())) {
        return text.front().unicode();
    }
    const int key = event.key();
    const bool hasCharacter = key > 0 && key < kFirstSpecialKey && key <= 0xFFFF;
    return hasCharacter ? std::optional(static_cast<char16_t>(key)) : std::nullopt;
}

}  // namespace

std::optional<char16_t> characterOfKey(const QKeyEvent& event) {
    if (const auto character = find(kNamedKeys, event.key())) {
        return character;
    }
    if (const auto character = find(kDeadKeys, event.nativeVirtualKey())) {
        return character;
    }
    if (event.nativeVirtualKey() == 0) {
        return characterWithoutKeysym(event);
    }
    const char32_t character = xkb_keysym_to_utf32(event.nativeVirtualKey());
    return isPrintable(character) ? std::optional(static_cast<char16_t>(character)) : std::nullopt;
}

// The modifiers that come with a modifier key don't count for its own flag: while both keys of a
// pair are held they are wrong. A modifier that comes with another key was latched if it isn't
// held, and ends with that key's release.
bool HeldModifiers::take(const QKeyEvent& event) {
    const std::optional<std::uint32_t> flag = modifierFlagOf(event);
    const std::uint32_t before = flags();
    drop(flagsLackedBy(event.modifiers()) & ~flag.value_or(0));
    if (!flag && event.type() == QEvent::KeyPress) {
        add(event.modifiers());
    }
    if (!flag || event.isAutoRepeat()) {
        return flags() != before;
    }
    const std::int64_t byFlag = -std::int64_t{*flag};
    const std::int64_t scanCode = event.nativeScanCode();
    if (event.type() == QEvent::KeyPress) {
        held_[scanCode != 0 ? scanCode : byFlag] = *flag;
    } else {
        held_.erase(scanCode);
        held_.erase(byFlag);
    }
    return flags() != before;
}

bool HeldModifiers::keepOnly(Qt::KeyboardModifiers modifiers) {
    const std::uint32_t before = flags();
    drop(flagsLackedBy(modifiers));
    return flags() != before;
}

void HeldModifiers::drop(std::uint32_t flags) {
    std::erase_if(held_, [flags](const auto& key) { return (key.second & flags) != 0; });
}

bool HeldModifiers::clear() {
    const bool hadAny = !held_.empty();
    held_.clear();
    return hadAny;
}

bool HeldModifiers::adopt(Qt::KeyboardModifiers modifiers) {
    const std::uint32_t before = flags();
    held_.clear();
    add(modifiers);
    return flags() != before;
}

void HeldModifiers::add(Qt::KeyboardModifiers modifiers) {
    const std::uint32_t held = flags();
    for (const auto& [state, flag] : kModifierStates) {
        if (modifiers.testFlag(state) && (held & flag) == 0) {
            held_[-std::int64_t{flag}] = flag;
        }
    }
}

std::uint32_t HeldModifiers::flags() const {
    std::uint32_t flags = 0;
    for (const auto& [key, flag] : held_) {
        flags |= flag;
    }
    return flags;
}

}  // namespace talvex
