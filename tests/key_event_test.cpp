#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "edit_state.h"
#include "platform/HeadlessPlatform.h"
#include "platform/NSEvent.h"
#include "ui/DYXWindowController.h"

namespace talvex {
namespace {

constexpr std::uint32_t kShift = 0x20000;
constexpr std::uint32_t kControl = 0x40000;
constexpr std::uint32_t kOption = 0x80000;
constexpr std::uint32_t kCommand = 0x100000;

// The keyboard and the key pad of a calculator on a desktop in memory.
class Keyboard : public testing::Test {
  protected:
    bool press(const std::u16string& characters) {
        return window().sendEvent({.charactersIgnoringModifiers = characters});
    }
    void hold(std::uint32_t flags) {
        window().sendEvent({.type = NSFlagsChanged, .modifierFlags = flags});
    }
    void click(std::u16string_view command) { button(command).performClick(); }
    NSButton& button(std::u16string_view text) {
        return controller.views().keyPad.button(commandFromString(text));
    }
    NSWindow& window() { return controller.views().window; }
    void setX(double x) { talvex::setX(controller.calculator(), x); }
    double x() { return xOf(controller.calculator()); }
    void setRegister(std::size_t number, double value) {
        edit(controller.calculator(),
             [&](CalculatorState& state) { state.mem.at(number) = value; });
    }
    // INV, HYP, RCL and STO, which their keys have to show.
    std::array<int, 4> modifiers() {
        const Modifiers& now = controller.calculator().modifiers();
        const std::array<int, 4> modifiers{now.inverse, now.hyperbolic, now.recall,
                                           static_cast<int>(now.store)};
        const std::array<int, 4> shown{button(u"modiARC ").state(), button(u"modiHYP ").state(),
                                       button(u"memoRCL ").state(), button(u"memoSTO ").state()};
        EXPECT_EQ(shown, modifiers);
        return modifiers;
    }

    HeadlessPlatform platform;
    DYXWindowController controller{platform};
};

TEST_F(Keyboard, ModifierKeysRebuildTheModifiers) {
    const struct {
        std::uint32_t held;
        std::array<int, 4> modifiers;
    } rows[]{{kShift, {1, 0, 0, 0}},
             {kControl, {0, 1, 0, 0}},
             {kOption | kShift, {0, 0, 1, 0}},
             {kShift | kControl, {1, 1, 0, 0}},
             {kControl | kOption, {0, 0, 0, 1}},
             {kCommand | kShift, {}},
             {kCommand | kControl, {}},
             {kOption, {0, 0, 1, 0}},
             {kCommand | kOption, {}},
             {kCommand | kOption | kControl, {}}};
    for (const auto& row : rows) {
        hold(row.held | 0x10000U);  // caps lock doesn't matter
        EXPECT_EQ(modifiers(), row.modifiers) << row.held;
    }
}

TEST_F(Keyboard, RecallsWithEveryDigitAfterAClickOnRecall) {
    setRegister(3, 30);
    setRegister(4, 40);
    click(u"memoRCL ");
    EXPECT_TRUE(press(u"3"));
    EXPECT_TRUE(press(u"4"));
    EXPECT_EQ(controller.calculator().stack().reg[1], 30);
    EXPECT_EQ(x(), 40);
    EXPECT_EQ(modifiers(), (std::array<int, 4>{0, 0, 1, 0}));
    hold(0);
    EXPECT_EQ(modifiers(), (std::array<int, 4>{}));
}

TEST_F(Keyboard, KeepsAClickedInverseForTheNextKeysAndNotForAClick) {
    controller.choose(settingRow<&Settings::angleMode>(), 1);
    setX(1);
    click(u"modiARC ");
    press(u"s");
    EXPECT_DOUBLE_EQ(x(), 90);
    setX(0.5);
    press(u"s");
    EXPECT_DOUBLE_EQ(x(), 30);
    setX(-1);
    click(u"unitGSIN");
    EXPECT_DOUBLE_EQ(x(), -90);
    EXPECT_FALSE(controller.calculator().modifiers().inverse);
}

TEST_F(Keyboard, KeepsAStoreWithArithmeticThroughMovementsOfTheModifierKeys) {
    setX(5);
    setRegister(3, 2);
    hold(kControl | kOption);
    press(u"+");
    for (const std::uint32_t held : {kOption, kShift, kCommand, 0U}) {
        hold(held);
        EXPECT_EQ(controller.calculator().modifiers(), Modifiers{.store = Store::add});
    }
    EXPECT_EQ(button(u"memoSTO+").state(), 1);
    press(u"3");
    EXPECT_EQ(controller.calculator().mem()[3], 7);
    EXPECT_EQ(modifiers(), (std::array<int, 4>{}));
    EXPECT_EQ(button(u"memoSTO+").state(), 0);
}

TEST_F(Keyboard, EscapePutsOutWhateverIsArmedAndNothingElse) {
    press(u"4");
    press(u"\x1B");
    press(u"2");
    EXPECT_EQ(x(), 42);
    for (const char16_t* armed : {u"memoRCL ", u"memoSTO ", u"memoSTO-", u"memoSTO/"}) {
        click(armed);
        EXPECT_EQ(button(armed).state(), 1);
        press(u"\x1B");
        EXPECT_EQ(modifiers(), (std::array<int, 4>{}));
        EXPECT_EQ(button(armed).state(), 0);
    }
}

TEST_F(Keyboard, ReachesTheControllerFromEitherView) {
    window().makeFirstResponder(controller.views().contentView.get());
    EXPECT_TRUE(press(u"8"));
    window().makeFirstResponder(&button(u"dataN001"));
    EXPECT_TRUE(press(u"9"));
    EXPECT_EQ(x(), 89);
}

}  // namespace
}  // namespace talvex
