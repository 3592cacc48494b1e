#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "platform/HeadlessPlatform.h"
#include "platform/NSEvent.h"
#include "ui/DYXWindowController.h"
#include "ui/key_pad_table.h"

namespace talvex {
namespace {

using Text = std::u16string;

class WindowControls : public testing::Test {
  protected:
    NSButton& button(std::u16string_view command) {
        return controller.views().keyPad.button(command);
    }

    HeadlessPlatform platform;
    DYXWindowController controller{platform};
};

int openDrawers(const DYXWindowController& controller) {
    return static_cast<int>(std::count_if(
        kDrawerNames.begin(), kDrawerNames.end(),
        [&](DrawerName name) { return controller.drawers()[name].record.isOpenOrOpening(); }));
}

// Everything that a command may change.
auto stateOf(const DYXWindowController& controller) {
    const DYXInputDisplay& line = controller.xDisplay();
    return std::tuple(controller.stack().reg, controller.stack().lastX, controller.mem(),
                      controller.inputState(), controller.inverse, controller.hyperbolic,
                      controller.recall(), controller.store(), line.text(),
                      line.unlockInputAndOutputModes(), openDrawers(controller));
}

// Cancelling shows only where something is armed.
TEST_F(WindowControls, EveryKeyHasANameAndACommandThatDoesSomething) {
    DYXWindowController fresh(platform);
    const DYXStack stack{.reg = {-2.5, 3.0, 4.0, 5.0}, .lastX = 9.0};
    for (const Key& key : fresh.views().allKeys()) {
        NSButton& button = *key.button;
        SCOPED_TRACE(testing::PrintToString(button.accessibilityLabel()));
        fresh.stack() = stack;
        fresh.mem().fill(6.0);
        fresh.setInputState(InputState::replacing);
        fresh.setStore(button.alternateTitle() == u"memoSTOC" ? 1 : 0);
        const auto before = stateOf(fresh);
        button.performClick();
        EXPECT_NE(stateOf(fresh), before);
        button.performClick();  // the modifiers, the lock and the drawers go back
        fresh.inverse = fresh.hyperbolic = false;
        fresh.setRecall(false);
        EXPECT_FALSE(button.accessibilityLabel().empty());
        EXPECT_EQ(button.keyEquivalent(), u"");
    }
    EXPECT_EQ(platform.beeps, 0);
}

TEST_F(WindowControls, SixKeysCarryLettersInHexInputAndExponentsElsewhere) {
    constexpr double kExponents[]{1e-3, 1e-6, 1e-9, 1e3, 1e6, 1e9};
    const auto click = [&](NSButton& key) {
        controller.setInputState(InputState::lifting);
        key.performClick();
        controller.updateRegister();
        return controller.stack().x();
    };
    for (int round = 0; round < 2; ++round) {
        for (std::size_t index = 0; index < 6; ++index) {
            SCOPED_TRACE(index);
            NSButton& key = *controller.views().keyPad.hexButtons().at(index);
            controller.takeInputModeFrom({.title = {}, .tag = 0, .action = {}});
            EXPECT_EQ(key.title(), u"");
            EXPECT_EQ(key.imagePosition(), NSImagePosition::imageOnly);
            EXPECT_EQ(click(key), kExponents[index]);
            controller.takeInputModeFrom({.title = {}, .tag = 8, .action = {}});
            EXPECT_EQ(key.title(), Text(1, static_cast<char16_t>(u'A' + index)));
            EXPECT_EQ(key.imagePosition(), NSImagePosition::noImage);
            EXPECT_EQ(click(key), 10.0 + static_cast<double>(index));
        }
    }
}

TEST_F(WindowControls, TheLockDecidesWhetherThereIsAnOutputMode) {
    NSButton& lock = controller.views().keyPad.lockButton();
    const NSPopUpButton& output = *controller.views().outputModePopUp;
    EXPECT_TRUE(output.isHidden());
    lock.performClick();
    EXPECT_EQ(lock.state(), 1);
    EXPECT_TRUE(controller.xDisplay().unlockInputAndOutputModes());
    EXPECT_FALSE(output.isHidden());
    controller.takeOutputModeFrom(NSMenuItem{.title = {}, .tag = 1, .action = {}});
    EXPECT_EQ(output.title(), u"SCI\u25B8");
    EXPECT_EQ(controller.views().inputModePopUp->title(),
              u"\u25B8"
              u"FIX");
    lock.performClick();
    EXPECT_EQ(lock.state(), 0);
    EXPECT_TRUE(output.isHidden());
}

TEST_F(WindowControls, PowerKeysShowTheOrderOfTheirOperands) {
    EXPECT_EQ(button(u"bina^   ").image(), u"powyxSmall.tiff");
    EXPECT_EQ(button(u"bina~   ").image(), u"lnyxSmall.tiff");
    controller.takeHPStylePowerAndLogsFrom(false);
    controller.takeHPStylePowerAndLogsFrom(std::nullopt);
    EXPECT_FALSE(controller.useHPStylePowerAndLogs);
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
    EXPECT_TRUE(controller.xDisplay().hasDecimal());
    controller.setDecimalMode(1);
    EXPECT_EQ(key.image(), u"pointSmall.tiff");
}

}  // namespace
}  // namespace talvex
