// The keyboard and the key pad, and the modifiers that both of them arm.

#include <array>
#include <string>

#include "window_fixture.h"

namespace talvex {
namespace {

class Keyboard : public WindowTest {
  protected:
    void hold(std::uint32_t flags) {
        views.window.sendEvent({.type = NSFlagsChanged, .modifierFlags = flags});
    }
    void click(std::u16string_view command) { padKey(command).performClick(); }
    void setRegister(std::size_t number, double value) {
        edit(calculator, [&](CalculatorState& state) { state.mem.at(number) = value; });
    }
    // INV, HYP, RCL and STO, which their keys have to show.
    std::array<int, 4> modifiers() {
        const Modifiers& now = calculator.modifiers();
        const std::array<int, 4> modifiers{now.inverse, now.hyperbolic, now.recall,
                                           static_cast<int>(now.store)};
        const std::array<int, 4> shown{padKey(u"modiARC ").state(), padKey(u"modiHYP ").state(),
                                       padKey(u"memoRCL ").state(), padKey(u"memoSTO ").state()};
        EXPECT_EQ(shown, modifiers);
        return modifiers;
    }
    static constexpr std::array<int, 4> kNone{};
};

TEST_F(Keyboard, ModifierKeysRebuildTheModifiers) {
    const struct {
        std::uint32_t held;
        std::array<int, 4> modifiers;
    } rows[]{{NSControlKeyMask, {0, 1, 0, 0}},
             {NSAlternateKeyMask | NSShiftKeyMask, {0, 0, 1, 0}},
             {NSShiftKeyMask | NSControlKeyMask, {1, 1, 0, 0}},
             {NSControlKeyMask | NSAlternateKeyMask, {0, 0, 0, 1}},
             {NSCommandKeyMask | NSShiftKeyMask, kNone},
             {NSAlternateKeyMask, {0, 0, 1, 0}},
             {NSCommandKeyMask | NSAlternateKeyMask | NSControlKeyMask, kNone}};
    for (const auto& row : rows) {
        hold(row.held | 0x10000U);  // caps lock doesn't matter
        EXPECT_EQ(modifiers(), row.modifiers) << row.held;
    }
}

TEST_F(Keyboard, RecallsWithEveryDigitAfterAClickOnRecall) {
    setRegister(3, 30);
    setRegister(4, 40);
    click(u"memoRCL ");
    type(u"34");
    EXPECT_EQ(calculator.stack().reg, (std::array<double, 4>{40, 30, 0, 0}));
    EXPECT_EQ(modifiers(), (std::array<int, 4>{0, 0, 1, 0}));
    hold(0);
    EXPECT_EQ(modifiers(), kNone);
}

TEST_F(Keyboard, KeepsAClickedInverseForTheNextKeysAndNotForAClick) {
    choose<&Settings::angleMode>(1);
    setX(1);
    click(u"modiARC ");
    type(u"s");
    EXPECT_DOUBLE_EQ(x(), 90);
    setX(0.5);
    type(u"s");
    EXPECT_DOUBLE_EQ(x(), 30);
    click(u"unitGSIN");
    EXPECT_FALSE(calculator.modifiers().inverse);
}

TEST_F(Keyboard, KeepsAStoreWithArithmeticThroughMovementsOfTheModifierKeys) {
    setX(5);
    setRegister(3, 2);
    hold(NSControlKeyMask | NSAlternateKeyMask);
    type(u"+");
    for (const NSModifierFlags held : {NSAlternateKeyMask, NSShiftKeyMask, NSCommandKeyMask}) {
        hold(held);
        EXPECT_EQ(calculator.modifiers(), Modifiers{.store = Store::add});
    }
    EXPECT_EQ(padKey(u"memoSTO+").state(), 1);
    type(u"3");
    EXPECT_EQ(calculator.mem()[3], 7);
    EXPECT_EQ(modifiers(), kNone);
    EXPECT_EQ(padKey(u"memoSTO+").state(), 0);
}

TEST_F(Keyboard, EscapePutsOutWhateverIsArmedAndNothingElse) {
    type(
        u"4\x1B"
        u"2");
    EXPECT_EQ(x(), 42);
    for (const char16_t* armed : {u"memoRCL ", u"memoSTO ", u"memoSTO-", u"memoSTO/"}) {
        click(armed);
        EXPECT_EQ(padKey(armed).state(), 1);
        type(u"\x1B");
        EXPECT_EQ(modifiers(), kNone);
        EXPECT_EQ(padKey(armed).state(), 0);
    }
}

}  // namespace
}  // namespace talvex
