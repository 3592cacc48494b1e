#include <algorithm>
#include <string>
#include <tuple>

#include "window_fixture.h"

namespace talvex {
namespace {

using Text = std::u16string;

class WindowControls : public WindowTest {
  protected:
    // Everything that a command may change.
    [[nodiscard]] auto state() {
        return std::tuple(
            calculator.state(), controller.settings(),
            std::count_if(kDrawerNames.begin(), kDrawerNames.end(),
                          [this](auto name) { return drawer(name).isOpenOrOpening(); }));
    }
};

TEST_F(WindowControls, EveryKeyHasANameAndACommandThatDoesSomething) {
    for (const Key& key : views.allKeys()) {
        CommandButton& button = *key.button;
        SCOPED_TRACE(testing::PrintToString(button.accessibilityLabel()));
        EXPECT_FALSE(button.accessibilityLabel().empty());
        EXPECT_EQ(button.toolTip(), u"") << "the desktop would show it, marks and all";
        CalculatorState start;
        start.stack = {.reg = {-2.5, 3.0, 4.0, 5.0}, .lastX = 9.0};
        start.mem.fill(6.0);
        start.inputState = InputState::replacing;
        start.lastCommand = button.command();
        // Cancelling shows only where something is armed.
        const bool cancels = button.command() == command("memo", "STOC");
        start.modifiers.store = cancels ? Store::plain : Store::nothing;
        calculator.setState(start);
        const auto before = state();
        button.performClick();
        EXPECT_FALSE(state() == before);
        button.performClick();  // the lock and the drawers go back
    }
    EXPECT_EQ(platform.beeps, 0);
}

TEST_F(WindowControls, SixKeysCarryLettersInHexInputAndExponentsElsewhere) {
    constexpr double kExponents[]{1e-3, 1e-6, 1e-9, 1e3, 1e6, 1e9};
    for (const bool isHex : {true, false, true}) {
        choose<&Settings::inputDisplayMode>(isHex ? mode::HEX : mode::FIX);
        for (std::size_t index = 0; index < 6; ++index) {
            SCOPED_TRACE(index);
            NSButton& key = *views.keyPad.hexButtons().at(index);
            EXPECT_EQ(key.title(), isHex ? Text(1, static_cast<char16_t>(u'A' + index)) : u"");
            EXPECT_EQ(key.image().empty(), isHex);
            setX(0.0);
            key.performClick();
            EXPECT_EQ(x(), isHex ? 10.0 + static_cast<double>(index) : kExponents[index]);
        }
    }
}

TEST_F(WindowControls, DimsJustTheKeysThatTheInputModeRefuses) {
    for (std::int32_t mode = 0; mode < mode::count; ++mode) {
        choose<&Settings::inputDisplayMode>(mode);
        for (const Key& key : views.keyPad.keys()) {
            if (key.keyClass == KeyClass::key) {
                setX(1.0);
                const int beeps = platform.beeps;
                const bool isDim = key.button->appearsDisabled();
                key.button->performClick();
                EXPECT_EQ(platform.beeps > beeps, isDim) << mode;
            }
        }
    }
}

TEST_F(WindowControls, TheLockDecidesWhetherThereIsAnOutputMode) {
    NSButton& lock = views.keyPad.lockButton();
    for (const int isOpen : {0, 1, 0}) {
        EXPECT_EQ(lock.state(), isOpen);
        EXPECT_EQ(views.outputModePopUp->isHidden(), isOpen == 0);
        choose<&Settings::outputDisplayMode>(isOpen);
        lock.performClick();
    }
    EXPECT_EQ(views.outputModePopUp->title(), u"FIX\u25B8");
    choose<&Settings::outputDisplayMode>(mode::SCI);
    EXPECT_EQ(views.outputModePopUp->title(), u"SCI\u25B8");
    EXPECT_EQ(views.inputModePopUp->title(),
              u"\u25B8"
              u"FIX");
}

TEST_F(WindowControls, TheViewMenuKeepsTheWindowOnTopWhereTheDesktopCan) {
    NSMenuItem& item = views.menu.items[5].submenu.items.back();
    ASSERT_EQ(item.title, u"Always on Top");
    for (const bool can : {true, false}) {
        platform.floatsWindows = can;
        item.action(item);
        EXPECT_EQ(views.window.level(), can ? NSWindowLevel::floating : NSWindowLevel::normal);
        validateMenu(views.menu);
        EXPECT_EQ(item.state, can ? 1 : 0);
        EXPECT_EQ(item.enabled, can);
    }
}

TEST_F(WindowControls, PowerKeysShowTheOrderOfTheirOperands) {
    for (const Text order : {u"yx", u"xy"}) {
        choose<&Settings::useHPStylePowerAndLogs>(order == u"yx" ? 1 : 0);
        EXPECT_EQ(padKey(u"bina^   ").image(), u"pow" + order + u"Small.tiff");
        EXPECT_EQ(padKey(u"bina~   ").image(), u"ln" + order + u"Small.tiff");
    }
}

TEST_F(WindowControls, TheDecimalKeyShowsTheSeparator) {
    const NSButton& key = padKey(u"data.   ");
    EXPECT_EQ(key.image(), u"pointSmall.tiff");
    const std::pair<Text, Text> images[]{{u",", u"commaSmall.tiff"}, {u"\u00B7", u""}};
    for (const auto& [separator, image] : images) {
        platform.format.decimalSeparator = separator;
        controller.applicationWillBecomeActive();
        EXPECT_EQ(key.image(), image);
    }
    EXPECT_EQ(key.title(), u"\u00B7");
    type(u"\u00B7");
    EXPECT_TRUE(calculator.xDisplay().entry().hasDecimal);
    choose<&Settings::decimalMode>(1);
    EXPECT_EQ(key.image(), u"pointSmall.tiff");
}

}  // namespace
}  // namespace talvex
