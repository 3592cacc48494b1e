#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/HeadlessPlatform.h"
#include "platform/NSEvent.h"
#include "ui/DYXWindowController.h"

namespace talvex {
namespace {

using Text = std::u16string;

// The keyboard and the key pad of a calculator on a desktop in memory.
class Keyboard : public testing::Test {
  protected:
    bool press(const Text& characters) {
        return window().sendEvent({.charactersIgnoringModifiers = characters});
    }
    void hold(std::uint32_t flags) {
        window().sendEvent({.type = NSFlagsChanged, .modifierFlags = flags});
    }
    void click(std::u16string_view command) { button(command).performClick(); }
    NSButton& button(std::u16string_view command) {
        return controller.views().keyPad.button(command);
    }
    NSWindow& window() { return controller.views().window; }
    void setX(double x) {
        controller.stack().x() = x;
        controller.setInputState(InputState::lifting);
    }
    double x() {
        controller.updateRegister();
        return controller.stack().x();
    }

    HeadlessPlatform platform;
    DYXWindowController controller{platform};
};

constexpr std::uint32_t kShiftKey = 0x20000;
constexpr std::uint32_t kControlKey = 0x40000;
constexpr std::uint32_t kOptionKey = 0x80000;
constexpr std::uint32_t kCommandKey = 0x100000;

TEST_F(Keyboard, ModifierKeysRebuildTheModifiers) {
    const struct {
        std::uint32_t held;
        bool inverse, hyperbolic, recall;
        int store;
    } rows[]{{kShiftKey, true, false, false, 0},
             {kControlKey, false, true, false, 0},
             {kShiftKey | kControlKey, true, true, false, 0},
             {kOptionKey, false, false, true, 0},
             {kOptionKey | kShiftKey, false, false, true, 0},
             {kControlKey | kOptionKey, false, false, false, 1},
             {kControlKey | kOptionKey | kShiftKey, false, false, false, 1},
             {kCommandKey, false, false, false, 0},
             {kCommandKey | kShiftKey | kControlKey, false, false, false, 0},
             {kCommandKey | kOptionKey, false, false, false, 0},
             {kCommandKey | kOptionKey | kControlKey, false, false, false, 0},
             {0, false, false, false, 0}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.held);
        hold(row.held | 0x10000U);  // caps lock doesn't matter
        EXPECT_EQ(controller.inverse, row.inverse);
        EXPECT_EQ(controller.hyperbolic, row.hyperbolic);
        EXPECT_EQ(controller.recall(), row.recall);
        EXPECT_EQ(controller.store(), row.store);
        EXPECT_EQ(button(u"modiARC ").state(), row.inverse ? 1 : 0);
        EXPECT_EQ(button(u"modiHYP ").state(), row.hyperbolic ? 1 : 0);
        EXPECT_EQ(button(u"memoRCL ").state(), row.recall ? 1 : 0);
        EXPECT_EQ(button(u"memoSTO ").state(), row.store);
    }
}

TEST_F(Keyboard, RecallsWithEveryDigitAfterAClickOnRecall) {
    controller.mem()[3] = 30;
    controller.mem()[4] = 40;
    click(u"memoRCL ");
    EXPECT_TRUE(press(u"3"));
    EXPECT_TRUE(press(u"4"));
    EXPECT_EQ(controller.stack().reg[1], 30);
    EXPECT_EQ(x(), 40);
    EXPECT_TRUE(controller.recall());
    EXPECT_EQ(button(u"memoRCL ").state(), 1);
    hold(0);
    EXPECT_FALSE(controller.recall());
    EXPECT_EQ(button(u"memoRCL ").state(), 0);
}

TEST_F(Keyboard, KeepsAClickedInverseForTheNextKeys) {
    controller.angleMode = 1;
    setX(1);
    click(u"modiARC ");
    press(u"s");
    EXPECT_DOUBLE_EQ(x(), 90);
    EXPECT_TRUE(controller.inverse);
    setX(0.5);
    press(u"s");
    EXPECT_DOUBLE_EQ(x(), 30);
    // A click uses it up.
    setX(-1);
    click(u"unitGSIN");
    EXPECT_DOUBLE_EQ(x(), -90);
    EXPECT_FALSE(controller.inverse);
}

TEST_F(Keyboard, KeepsAStoreWithArithmeticThroughMovementsOfTheModifierKeys) {
    setX(5);
    controller.mem()[3] = 2;
    hold(kControlKey | kOptionKey);
    press(u"+");
    for (const std::uint32_t held : {kOptionKey, kShiftKey, kCommandKey, 0U}) {
        hold(held);
        EXPECT_EQ(controller.store(), 2);
        EXPECT_FALSE(controller.inverse || controller.hyperbolic || controller.recall());
    }
    EXPECT_EQ(button(u"memoSTO+").state(), 1);
    press(u"3");
    EXPECT_EQ(controller.mem()[3], 7);
    EXPECT_EQ(controller.store(), 0);
    EXPECT_EQ(button(u"memoSTO+").state(), 0);
}

TEST_F(Keyboard, EscapePutsOutWhateverIsArmedAndNothingElse) {
    press(u"4");
    press(u"\x1B");
    press(u"2");
    EXPECT_EQ(x(), 42);
    EXPECT_EQ(controller.inputState(), InputState::entering);
    for (const char16_t* armed : {u"memoRCL ", u"memoSTO ", u"memoSTO-", u"memoSTO/"}) {
        click(armed);
        EXPECT_EQ(button(armed).state(), 1);
        press(u"\x1B");
        EXPECT_EQ(controller.store(), 0);
        EXPECT_FALSE(controller.recall());
        EXPECT_EQ(button(armed).state(), 0);
    }
}

TEST_F(Keyboard, ReachesTheControllerFromEitherView) {
    window().makeFirstResponder(controller.views().contentView.get());
    hold(kShiftKey);
    EXPECT_TRUE(press(u"8"));
    EXPECT_TRUE(controller.inverse);
    window().makeFirstResponder(&button(u"dataN001"));
    EXPECT_TRUE(press(u"9"));
    EXPECT_EQ(x(), 89);
}

}  // namespace
}  // namespace talvex
