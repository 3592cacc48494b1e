// From the desktop's key events to characters of the keyboard table, and to modifier keys held.

#include <gtest/gtest.h>
#include <xkbcommon/xkbcommon.h>

#include <set>

#include "keyboard/HotKey.h"
#include "qt/key_events.h"

namespace talvex {
namespace {

QKeyEvent event(int key, std::uint32_t keysym, const QString& text = {}) {
    return {QEvent::KeyPress, key, {}, 10, keysym, 0, text};
}

TEST(KeyMapping, SaysTheCharacterWithoutControlAndAlt) {
    const struct {
        const char* name;
        QKeyEvent event;
        char16_t character;  // 0 for none
    } rows[]{
        {"Ctrl+S", event(Qt::Key_S, XKB_KEY_s, "\x13"), u's'},
        {"Ctrl+Alt+3", event(Qt::Key_3, XKB_KEY_3, "\x1B"), u'3'},
        {"AltGr+Q on a German layout", event(Qt::Key_At, XKB_KEY_at, "@"), u'@'},
        {"dead circumflex", event(Qt::Key_Dead_Circumflex, XKB_KEY_dead_circumflex), u'^'},
        {"dead tilde", event(Qt::Key_Dead_Tilde, XKB_KEY_dead_tilde), u'~'},
        {"dead acute", event(Qt::Key_Dead_Acute, XKB_KEY_dead_acute), 0},
        {"a Cyrillic letter", event(0x42B, XKB_KEY_Cyrillic_yeru, "\u044B"), u'\u044B'},
        {"keypad comma", event(Qt::Key_Comma, XKB_KEY_KP_Separator, ","), u','},
        {"keypad Enter", event(Qt::Key_Enter, XKB_KEY_KP_Enter, "\r"), u'\x03'},
        {"Shift+Tab", event(Qt::Key_Backtab, XKB_KEY_ISO_Left_Tab), u'\x19'},
        {"AltGr", event(Qt::Key_AltGr, XKB_KEY_ISO_Level3_Shift), 0},
        {"an emoji", event(0, 0x101F600, "x"), 0},
        {"no keysym, a text", event(Qt::Key_Plus, 0, "+"), u'+'},
        {"nothing", event(0, 0), 0},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(characterOfKey(row.event).value_or(u'\0'), row.character) << row.name;
    }
}

TEST(KeyMapping, ReachesEveryRowOfTheTable) {
    std::set<char16_t> reached;
    for (int key = Qt::Key_Escape; key <= Qt::Key_PageDown; ++key) {
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

constexpr std::uint32_t kLeftShift = 50;
constexpr std::uint32_t kRightShift = 62;
constexpr std::uint32_t kLeftAlt = 64;

class HeldKeys : public testing::Test {
  protected:
    bool take(QEvent::Type type, int key, std::uint32_t scanCode, std::uint32_t keysym = 0,
              Qt::KeyboardModifiers modifiers = {}) {
        return held.take({type, key, modifiers, scanCode, keysym, 0});
    }
    HeldModifiers held;
};

TEST_F(HeldKeys, CountBothKeysOfAPair) {
    EXPECT_TRUE(take(QEvent::KeyPress, Qt::Key_Shift, kLeftShift));
    EXPECT_FALSE(take(QEvent::KeyPress, Qt::Key_Shift, kRightShift));
    EXPECT_FALSE(take(QEvent::KeyRelease, Qt::Key_Shift, kLeftShift));
    EXPECT_EQ(held.flags(), NSShiftKeyMask);
    EXPECT_TRUE(take(QEvent::KeyRelease, Qt::Key_Shift, kRightShift));
    EXPECT_EQ(held.flags(), 0U);
}

TEST_F(HeldKeys, TakeAltForAltWhileShiftIsHeld) {
    take(QEvent::KeyPress, Qt::Key_Shift, kLeftShift, XKB_KEY_Shift_L);
    take(QEvent::KeyPress, Qt::Key_Meta, kLeftAlt, XKB_KEY_Meta_L, Qt::ShiftModifier);
    EXPECT_EQ(held.flags(), NSShiftKeyMask | NSAlternateKeyMask);
    take(QEvent::KeyRelease, Qt::Key_Shift, kLeftShift, XKB_KEY_Shift_L);
    take(QEvent::KeyRelease, Qt::Key_Alt, kLeftAlt, XKB_KEY_Alt_L);
    EXPECT_EQ(held.flags(), 0U);
}

TEST_F(HeldKeys, ForgetAndTakeOverWithTheFocus) {
    EXPECT_FALSE(held.clear());
    take(QEvent::KeyPress, Qt::Key_Control, 37);
    EXPECT_TRUE(held.clear());
    EXPECT_TRUE(held.adopt(Qt::ControlModifier | Qt::KeypadModifier));
    EXPECT_EQ(held.flags(), NSControlKeyMask);
    EXPECT_FALSE(held.adopt(Qt::ControlModifier));
    EXPECT_TRUE(take(QEvent::KeyRelease, Qt::Key_Control, 37));
    EXPECT_FALSE(take(QEvent::KeyPress, Qt::Key_S, 39));
    EXPECT_EQ(held.flags(), 0U);
}

// A window manager keeps the release of a key of its own, as after Alt+Tab.
TEST_F(HeldKeys, EndWithAnyEventThatComesWithoutThem) {
    held.adopt(Qt::AltModifier | Qt::ShiftModifier);
    EXPECT_TRUE(take(QEvent::KeyPress, Qt::Key_1, 10, 0, Qt::ShiftModifier));
    EXPECT_EQ(held.flags(), NSShiftKeyMask);
    EXPECT_FALSE(take(QEvent::KeyPress, Qt::Key_1, 10, 0, Qt::ShiftModifier | Qt::KeypadModifier));
    EXPECT_TRUE(held.keepOnly({}));
    EXPECT_EQ(held.flags(), 0U);
}

}  // namespace
}  // namespace talvex
