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
#include "ui/bezel.h"
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

// Writes down what is drawn.
class RecordingContext final : public NSGraphicsContext {
  public:
    explicit RecordingContext(bool flipped) : flipped_(flipped) {}

    [[nodiscard]] bool isFlipped() const override { return flipped_; }
    void setShouldAntialias(bool antialias) override {
        calls.push_back({antialias ? "on" : "off"});
    }
    void fillRect(const NSRect& rect, const NSColor& color) override {
        calls.push_back({"fill", rect, color});
    }
    void strokeLine(const NSPoint& start, const NSSize& offset, const NSColor& color) override {
        calls.push_back({"line", {start.x, start.y, offset.width, offset.height}, color});
    }

    struct Call {
        std::string what;
        NSRect place = {};  // of a line, its start and its offset
        NSColor color = {};
        bool operator==(const Call&) const = default;
    };
    std::vector<Call> calls;

  private:
    bool flipped_;
};

using Calls = std::vector<RecordingContext::Call>;

TEST(Bezel, IsFiveLinesOverTheFill) {
    const NSRect rect{10, 20, 100, 50};
    const NSColor fill{.red = 0.2, .green = 0.4, .blue = 0.6};
    RecordingContext upward(false);
    EXPECT_EQ(ZUDrawBezel(upward, rect, fill), (NSRect{12, 22, 96, 46}));
    EXPECT_EQ(upward.calls, (Calls{{"off"},
                                   {"fill", rect, fill},
                                   {"line", {10, 20, 100, 0}, NSColor::white(0.75)},
                                   {"line", {10, 69, 100, 0}, NSColor::white(0.375)},
                                   {"line", {11, 68, 98, 0}, NSColor::white(0.75)},
                                   {"line", {10, 21, 0, 49}, NSColor::white(0.625)},
                                   {"line", {109, 21, 0, 48}, NSColor::white(0.625)}}));
    RecordingContext downward(true);
    EXPECT_EQ(ZUDrawBezel(downward, rect, std::nullopt), (NSRect{12, 22, 96, 46}));
    EXPECT_EQ(downward.calls, (Calls{{"off"},
                                     {"line", {10, 70, 100, 0}, NSColor::white(0.75)},
                                     {"line", {10, 21, 100, 0}, NSColor::white(0.375)},
                                     {"line", {11, 22, 98, 0}, NSColor::white(0.75)},
                                     {"line", {10, 21, 0, 49}, NSColor::white(0.625)},
                                     {"line", {109, 21, 0, 48}, NSColor::white(0.625)}}));
}

TEST_F(WindowControls, TheDisplayDrawsItsBezelInAPaleYellowGreen) {
    const DYXDisplayView& display = *controller.views().displayView;
    // Hue 71/360, saturation 0.15 and brightness 0.98, worked out by hand.
    EXPECT_NEAR(display.color().red, 0.95305, 1e-12);
    EXPECT_NEAR(display.color().green, 0.98, 1e-12);
    EXPECT_NEAR(display.color().blue, 0.833, 1e-12);
    RecordingContext context(false);
    display.drawRect(context);
    ASSERT_EQ(context.calls.size(), 7U);
    EXPECT_EQ(context.calls[1].place, (NSRect{0, 0, 394, 41}));
    EXPECT_EQ(context.calls[1].color, display.color());
}

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
    const struct {
        Text letter, hexCommand, command, image, alternateImage;
        double exponent;
    } rows[]{{u"A", u"dataN00A", u"dataE-03", u"EEX-3Small", u"EEX-3Pressed", 1e-3},
             {u"B", u"dataN00B", u"dataE-06", u"EEX-6Small", u"EEX-6Pressed", 1e-6},
             {u"C", u"dataN00C", u"dataE-09", u"EEX-9Small", u"EEX-9Pressed", 1e-9},
             {u"D", u"dataN00D", u"dataE+03", u"EEX+3Small", u"EEX+3Pressed", 1e3},
             {u"E", u"dataN00E", u"dataE+06", u"EEX+6Small", u"EEX+6Pressed", 1e6},
             {u"F", u"dataN00F", u"dataE+09", u"EEX+9Small", u"EEX+9Pressed", 1e9}};
    const auto click = [&](NSButton& key) {
        controller.setInputState(InputState::lifting);
        key.performClick();
        controller.updateRegister();
        return controller.stack().x();
    };
    for (int round = 0; round < 2; ++round) {
        for (std::size_t index = 0; index < 6; ++index) {
            SCOPED_TRACE(index);
            const auto& row = rows[index];
            NSButton& key = *controller.views().keyPad.hexButtons().at(index);
            controller.takeInputModeFrom({.title = {}, .tag = 0, .action = {}});
            EXPECT_EQ(key.alternateTitle(), row.command);
            EXPECT_EQ(key.title(), u"");
            EXPECT_EQ(key.image(), row.image);
            EXPECT_EQ(key.alternateImage(), row.alternateImage);
            EXPECT_EQ(key.imagePosition(), NSImagePosition::imageOnly);
            EXPECT_EQ(click(key), row.exponent);
            controller.takeInputModeFrom({.title = {}, .tag = 8, .action = {}});
            EXPECT_EQ(key.alternateTitle(), row.hexCommand);
            EXPECT_EQ(key.title(), row.letter);
            EXPECT_EQ(key.image(), u"");
            EXPECT_EQ(key.imagePosition(), NSImagePosition::noImage);
            EXPECT_EQ(click(key), 10.0 + static_cast<double>(index));
        }
    }
}

TEST_F(WindowControls, ModifierKeysLightUpWithTheirModifiers) {
    const Text commands[]{u"modiARC ", u"modiHYP ", u"memoRCL ", u"memoSTO ",
                          u"memoSTO+", u"memoSTO-", u"memoSTO*", u"memoSTO/"};
    for (const Text& clicked : commands) {
        button(clicked).performClick();
        for (const Text& command : commands) {
            EXPECT_EQ(button(command).state(), command == clicked ? 1 : 0);
            EXPECT_EQ(button(command).showsStateBy(), 9U);
        }
        button(clicked).performClick();
        EXPECT_EQ(button(clicked).state(), 0);
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
