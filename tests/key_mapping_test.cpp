// From the desktop's key events to characters of the keyboard table, and to modifier keys held.

#include <gtest/gtest.h>
#include <xkbcommon/xkbcommon.h>

#include <QInputDevice>
#include <array>
#include <set>

#include "keyboard/HotKey.h"
#include "qt/key_events.h"

namespace talvex {
namespace {

constexpr std::uint32_t kLeftShift = 50;
constexpr std::uint32_t kRightShift = 62;
constexpr std::uint32_t kLeftAlt = 64;

const QInputDevice* keyboard() {
    static const QInputDevice device;
    return &device;
}

QKeyEvent event(int key, std::uint32_t keysym, const QString& text = {},
                Qt::KeyboardModifiers modifiers = {}) {
    return {QEvent::KeyPress, key, modifiers, 10, keysym, 0, text, false, 1, keyboard()};
}

QKeyEvent modifierEvent(QEvent::Type type, int key, std::uint32_t scanCode,
                        std::uint32_t keysym = 0, Qt::KeyboardModifiers modifiers = {}) {
    return {type, key, modifiers, scanCode, keysym, 0, {}, false, 1, keyboard()};
}

TEST(KeyMapping, TellsTheCharacterWithoutControlAndAlt) {
    struct Row {
        const char* name;
        QKeyEvent event;
        char16_t character;  // 0 for none
    };
    const std::array rows{
        Row{"Ctrl+S", event(Qt::Key_S, XKB_KEY_s, "\x13", Qt::ControlModifier), u's'},
        Row{"Ctrl+Alt+3", event(Qt::Key_3, XKB_KEY_3, "\x1B", Qt::ControlModifier), u'3'},
        Row{"Shift+1", event(Qt::Key_Exclam, XKB_KEY_exclam, "!"), u'!'},
        Row{"Shift+E", event(Qt::Key_E, XKB_KEY_E, "E"), u'E'},
        Row{"AltGr+Q on a German layout", event(Qt::Key_At, XKB_KEY_at, "@"), u'@'},
        Row{"dead circumflex", event(Qt::Key_Dead_Circumflex, XKB_KEY_dead_circumflex), u'^'},
        Row{"dead tilde", event(Qt::Key_Dead_Tilde, XKB_KEY_dead_tilde), u'~'},
        Row{"dead acute", event(Qt::Key_Dead_Acute, XKB_KEY_dead_acute), 0},
        Row{"a Cyrillic letter", event(0x42B, XKB_KEY_Cyrillic_yeru, "\u044B"), u'\u044B'},
        Row{"Arabic separator", event(0x66B, 0x100066B, "\u066B"), u'\u066B'},
        Row{"keypad 7", event(Qt::Key_7, XKB_KEY_KP_7, "7", Qt::KeypadModifier), u'7'},
        Row{"keypad point", event(Qt::Key_Period, XKB_KEY_KP_Decimal, "."), u'.'},
        Row{"keypad comma", event(Qt::Key_Comma, XKB_KEY_KP_Separator, ","), u','},
        Row{"keypad Enter", event(Qt::Key_Enter, XKB_KEY_KP_Enter, "\r"), u'\x03'},
        Row{"Shift+Tab", event(Qt::Key_Backtab, XKB_KEY_ISO_Left_Tab), u'\x19'},
        Row{"F5", event(Qt::Key_F5, XKB_KEY_F5), 0},
        Row{"Shift", event(Qt::Key_Shift, XKB_KEY_Shift_L), 0},
        Row{"AltGr", event(Qt::Key_AltGr, XKB_KEY_ISO_Level3_Shift), 0},
        Row{"an emoji", event(0, 0x101F600, "x"), 0},
        Row{"no keysym, a text", event(Qt::Key_Plus, 0, "+"), u'+'},
        Row{"no keysym, no text", event(Qt::Key_5, 0), u'5'},
        Row{"nothing", event(0, 0), 0},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(characterOfKey(row.event).value_or(u'\0'), row.character) << row.name;
    }
}

TEST(KeyMapping, ReachesEveryRowOfTheTable) {
    std::set<char16_t> reached;
    for (const int key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab, Qt::Key_Backspace,
                          Qt::Key_Escape, Qt::Key_Delete, Qt::Key_Up, Qt::Key_Down, Qt::Key_Left,
                          Qt::Key_Right, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Clear}) {
        reached.insert(characterOfKey(event(key, XKB_KEY_VoidSymbol)).value_or(u'\0'));
    }
    for (std::uint32_t keysym = XKB_KEY_exclam; keysym <= XKB_KEY_asciitilde; ++keysym) {
        reached.insert(characterOfKey(event(0, keysym)).value_or(u'\0'));
    }
    reached.insert(characterOfKey(event(0, 0x100066B)).value_or(u'\0'));
    for (const HotKey& row : hotKeyRows()) {
        EXPECT_TRUE(reached.contains(row.key)) << static_cast<int>(row.key);
    }
}

TEST(HeldModifiers, CountBothKeysOfAPair) {
    HeldModifiers held;
    EXPECT_TRUE(held.take(modifierEvent(QEvent::KeyPress, Qt::Key_Shift, kLeftShift)));
    EXPECT_FALSE(held.take(modifierEvent(QEvent::KeyPress, Qt::Key_Shift, kRightShift)));
    EXPECT_FALSE(held.take(modifierEvent(QEvent::KeyRelease, Qt::Key_Shift, kLeftShift)));
    EXPECT_EQ(held.flags(), NSShiftKeyMask);
    EXPECT_TRUE(held.take(modifierEvent(QEvent::KeyRelease, Qt::Key_Shift, kRightShift)));
    EXPECT_EQ(held.flags(), 0U);
}

TEST(HeldModifiers, TakeAltForAltWhileShiftIsHeld) {
    HeldModifiers held;
    held.take(modifierEvent(QEvent::KeyPress, Qt::Key_Shift, kLeftShift, XKB_KEY_Shift_L));
    held.take(
        modifierEvent(QEvent::KeyPress, Qt::Key_Meta, kLeftAlt, XKB_KEY_Meta_L, Qt::ShiftModifier));
    EXPECT_EQ(held.flags(), NSShiftKeyMask | NSAlternateKeyMask);
    held.take(modifierEvent(QEvent::KeyRelease, Qt::Key_Shift, kLeftShift, XKB_KEY_Shift_L));
    held.take(modifierEvent(QEvent::KeyRelease, Qt::Key_Alt, kLeftAlt, XKB_KEY_Alt_L));
    EXPECT_EQ(held.flags(), 0U);
}

TEST(HeldModifiers, ForgetAndTakeOverWithTheFocus) {
    HeldModifiers held;
    EXPECT_FALSE(held.clear());
    held.take(modifierEvent(QEvent::KeyPress, Qt::Key_Control, 37));
    EXPECT_TRUE(held.clear());
    EXPECT_EQ(held.flags(), 0U);
    EXPECT_TRUE(held.adopt(Qt::ControlModifier | Qt::KeypadModifier));
    EXPECT_EQ(held.flags(), NSControlKeyMask);
    EXPECT_FALSE(held.adopt(Qt::ControlModifier));
    EXPECT_TRUE(held.take(modifierEvent(QEvent::KeyRelease, Qt::Key_Control, 37)));
    EXPECT_EQ(held.flags(), 0U);
    EXPECT_FALSE(held.take(modifierEvent(QEvent::KeyPress, Qt::Key_S, 39)));
}

// A window manager keeps the release of a key of its own, as after Alt+Tab.
TEST(HeldModifiers, EndWithAnyEventThatComesWithoutThem) {
    HeldModifiers held;
    held.adopt(Qt::AltModifier | Qt::ShiftModifier);
    const auto key = [](Qt::KeyboardModifiers modifiers) {
        return modifierEvent(QEvent::KeyPress, Qt::Key_1, 10, 0, modifiers);
    };
    EXPECT_TRUE(held.take(key(Qt::ShiftModifier)));
    EXPECT_EQ(held.flags(), NSShiftKeyMask);
    EXPECT_FALSE(held.take(key(Qt::ShiftModifier | Qt::KeypadModifier)));
    EXPECT_TRUE(held.keepOnly({}));
    EXPECT_EQ(held.flags(), 0U);
}

}  // namespace
}  // namespace talvex
