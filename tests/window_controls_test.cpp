#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <tuple>

#include "edit_state.h"
#include "platform/HeadlessPlatform.h"
#include "platform/NSEvent.h"
#include "ui/DYXWindowController.h"

namespace talvex {
namespace {

using Text = std::u16string;

class WindowControls : public testing::Test {
  protected:
    NSButton& button(std::u16string_view text) {
        return controller.views().keyPad.button(commandFromString(text));
    }
    // Everything that a command may change.
    [[nodiscard]] auto state() const {
        return std::tuple(
            controller.calculator().state(), controller.settings().unlockInputAndOutputModes,
            std::count_if(kDrawerNames.begin(), kDrawerNames.end(), [this](DrawerName name) {
                return controller.drawers()[name].record.isOpenOrOpening();
            }));
    }

    HeadlessPlatform platform;
    DYXWindowController controller{platform};
};

TEST_F(WindowControls, EveryKeyHasANameAndACommandThatDoesSomething) {
    for (const Key& key : controller.views().allKeys()) {
        CommandButton& button = *key.button;
        SCOPED_TRACE(testing::PrintToString(button.accessibilityLabel()));
        EXPECT_FALSE(button.accessibilityLabel().empty());
        CalculatorState start;
        start.stack = {.reg = {-2.5, 3.0, 4.0, 5.0}, .lastX = 9.0};
        start.mem.fill(6.0);
        start.inputState = InputState::replacing;
        start.lastCommand = button.command();
        // Cancelling shows only where something is armed.
        start.modifiers.store =
            button.command() == command("memo", "STOC") ? Store::plain : Store::nothing;
        controller.calculator().setState(start);
        const auto before = state();
        button.performClick();
        EXPECT_FALSE(state() == before);
        button.performClick();  // the lock and the drawers go back
    }
    EXPECT_EQ(platform.beeps, 0);
}

TEST_F(WindowControls, SixKeysCarryLettersInHexInputAndExponentsElsewhere) {
    constexpr double kExponents[]{1e-3, 1e-6, 1e-9, 1e3, 1e6, 1e9};
    for (const int mode : {8, 0, 8, 0}) {
        controller.choose(settingRow<&Settings::inputDisplayMode>(), mode);
        for (std::size_t index = 0; index < 6; ++index) {
            SCOPED_TRACE(index);
            NSButton& key = *controller.views().keyPad.hexButtons().at(index);
            const bool isHex = mode == 8;
            EXPECT_EQ(key.image().empty(), isHex);
            EXPECT_EQ(key.title(), isHex ? Text(1, static_cast<char16_t>(u'A' + index)) : u"");
            setX(controller.calculator(), 0.0);
            key.performClick();
            EXPECT_EQ(xOf(controller.calculator()),
                      isHex ? 10.0 + static_cast<double>(index) : kExponents[index]);
        }
    }
}

TEST_F(WindowControls, TheLockDecidesWhetherThereIsAnOutputMode) {
    NSButton& lock = controller.views().keyPad.lockButton();
    const NSPopUpButton& output = *controller.views().outputModePopUp;
    EXPECT_TRUE(output.isHidden());
    lock.performClick();
    EXPECT_EQ(lock.state(), 1);
    EXPECT_FALSE(output.isHidden());
    controller.choose(settingRow<&Settings::outputDisplayMode>(), 1);
    EXPECT_EQ(output.title(), u"SCI\u25B8");
    EXPECT_EQ(controller.views().inputModePopUp->title(), Text(u"\u25B8") + u"FIX");
    lock.performClick();
    EXPECT_EQ(lock.state(), 0);
    EXPECT_TRUE(output.isHidden());
}

TEST_F(WindowControls, PowerKeysShowTheOrderOfTheirOperands) {
    EXPECT_EQ(button(u"bina^   ").image(), u"powyxSmall.tiff");
    EXPECT_EQ(button(u"bina~   ").image(), u"lnyxSmall.tiff");
    controller.choose(settingRow<&Settings::useHPStylePowerAndLogs>(), 0);
    EXPECT_FALSE(controller.calculator().context().useHPStylePowerAndLogs);
    EXPECT_EQ(button(u"bina^   ").image(), u"powxySmall.tiff");
    EXPECT_EQ(button(u"bina~   ").image(), u"lnxySmall.tiff");
}

TEST_F(WindowControls, TheDecimalKeyShowsTheSeparator) {
    const NSButton& key = button(u"data.   ");
    EXPECT_EQ(key.image(), u"pointSmall.tiff");
    platform.format.decimalSeparator = u",";
    controller.applicationWillBecomeActive();
    EXPECT_EQ(key.image(), u"commaSmall.tiff");
    platform.format.decimalSeparator = u"\u00B7";
    controller.applicationWillBecomeActive();
    EXPECT_EQ(key.image(), u"");
    EXPECT_EQ(key.title(), u"\u00B7");
    EXPECT_TRUE(controller.keyDown({.charactersIgnoringModifiers = u"\u00B7"}));
    EXPECT_TRUE(controller.calculator().xDisplay().entry().hasDecimal);
    controller.choose(settingRow<&Settings::decimalMode>(), 1);
    EXPECT_EQ(key.image(), u"pointSmall.tiff");
}

}  // namespace
}  // namespace talvex
