// X on the pasteboard and back, and the menu that leads there.

#include <array>
#include <functional>
#include <set>
#include <string>
#include <utility>

#include "numeric/DYXnan.h"
#include "same_bits.h"
#include "state/ZUStringExtensions.h"
#include "window_fixture.h"

namespace talvex {
namespace {

using Text = std::u16string;

class Pasteboard : public WindowTest {
  protected:
    Text copied(double x) {
        setX(x);
        calculator.updateDisplay();
        controller.clipboard().copy();
        return platform.pasteboard.value_or(u"nothing");
    }
    double pasted(const Text& text) {
        platform.pasteboard = text;
        controller.clipboard().paste();
        return calculator.stack().x();
    }
};

TEST_F(Pasteboard, CopiesWhatTheLineShowsInEveryMode) {
    const struct {
        int mode;
        double number;
        Text plain, grouped;
    } rows[]{
        {mode::FIX, -1234567.5, u"-1234567.5000", u"-1,234,567.500\u20090"},
        {mode::SCI, -1.5e-12, u"-1.5000e-12", u"-1.500\u20090e-12"},
        {mode::FRC, 1234.5, u"1234  1/2", u"1,234  1/2"},
        {mode::DMS, 1.5, u"001\u00B0 30' 00.0000\"", u"001\u00B0 30' 00.0000\""},
        {mode::HEX, 255, u"000000FF hex", u"00\u200900\u221900\u2009FF hex"},
        {mode::DEC, -1234567, u"-1234567 dec", u"-1,234,567 dec"},
        {mode::BIN, 5, u"0000000000000101 bin", u"0000 0000 0000 0101  bin"},
        {mode::FIX, DYXnan('L'), u"log error", u"log error"},
        {mode::FIX, -kInfinity, u"-\u221E", u"-\u221E"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.mode);
        choose<&Settings::inputDisplayMode>(row.mode);
        EXPECT_EQ(copied(row.number), row.plain);
        choose<&Settings::includeDigitGroupingWhenCopying>(1);
        EXPECT_EQ(copied(row.number), row.grouped);
        choose<&Settings::includeDigitGroupingWhenCopying>(0);
    }
}

TEST_F(Pasteboard, CopiesALiveEntryAsItIsEchoed) {
    const std::pair<std::u16string_view, Text> rows[]{{u"\t", u"1e00"}, {u"1.5\t5", u"1.5e 05"}};
    for (const auto& [keys, text] : rows) {
        setX(0.0);
        type(keys);
        controller.clipboard().copy();
        EXPECT_EQ(platform.pasteboard, text);
        EXPECT_EQ(calculator.inputState(), InputState::entering);
    }
    EXPECT_EQ(pasted(u"1.5e 05"), 1.5);
}

TEST_F(Pasteboard, PastesOntoTheStackByTheState) {
    edit(calculator, [](CalculatorState& state) {
        state.stack = {.reg = {1, 2, 3, 4}, .lastX = 9};
    });
    EXPECT_EQ(pasted(u"5"), 5);
    EXPECT_EQ(calculator.stack().reg, (std::array<double, 4>{5, 1, 2, 3}));
    EXPECT_EQ(calculator.stack().lastX, 1);
    EXPECT_EQ(calculator.inputState(), InputState::replacing);
    type(u"7");
    EXPECT_EQ(pasted(u"8"), 8);
    EXPECT_EQ(calculator.inputState(), InputState::lifting);
    platform.pasteboard.reset();
    controller.clipboard().paste();
    EXPECT_EQ(calculator.stack().reg, (std::array<double, 4>{8, 1, 2, 3}));
}

TEST_F(Pasteboard, WaitsForALateTextUntilTheUserGoesOn) {
    const auto status = [&] { return calculator.xDisplay().statusField()->stringValue(); };
    const PasteboardText nine{.outcome = PasteboardOutcome::text, .text = u"9"};
    platform.pasteboardAnswersAtOnce = false;
    type(u"5");
    controller.clipboard().paste();
    controller.clipboard().paste();
    EXPECT_EQ(status(), u"entering significand\u2026");
    platform.answerPasteboardRequest(nine);
    EXPECT_EQ(calculator.stack().reg, (std::array<double, 4>{9, 0, 0, 0})) << "one number for two";
    controller.clipboard().paste();
    platform.answerPasteboardRequest({.outcome = PasteboardOutcome::late, .text = {}});
    EXPECT_EQ(status(), u"paste: no answer");
    EXPECT_EQ(platform.beeps, 1);
    controller.clipboard().paste();
    type(u"7");
    platform.answerPasteboardRequest(nine);
    EXPECT_EQ(status(), u"paste: no answer");
    EXPECT_EQ(platform.beeps, 2);
    type(u"\r");
    EXPECT_EQ(status(), u"");
    EXPECT_EQ(calculator.stack().reg, (std::array<double, 4>{7, 7, 9, 0}));
}

TEST(InternationalDoubleValue, ReadsTheNumberThatATextStartsWith) {
    using ZUStringExtensions::internationalDoubleValue;
    const std::pair<Text, double> rows[]{
        {u"3,5", 3.5},      {u"+7", 7},         {u"1,234.5", 1.234},
        {u"1.2.3", 1.2},    {u".5", 0.5},       {u"5.", 5},
        {u"1e", 1},         {u"1e+", 1},        {u"2E-2", 0.02},
        {u"10 : 34", 10},   {u"-1e-999", -0.0}, {u" \t-2e3 x", -2e3},
        {u"1\u2009234", 1}, {u"abc", 0},        {u"", 0},
        {u".", 0},          {u"-", 0},          {u"-.e5", 0},
        {u"inf", 0},        {u"nan", 0},        {u"0x10", 0},
        {u"\u0661", 0}};
    for (const auto& [text, number] : rows) {
        EXPECT_EQ(internationalDoubleValue(text), number) << testing::PrintToString(text);
    }
    EXPECT_EQ(internationalDoubleValue(u"1e999"), kInfinity);
    EXPECT_EQ(internationalDoubleValue(Text(100'000, u'9')), kInfinity);
    EXPECT_EQ(internationalDoubleValue(Text(100'000, u' ') + u"5"), 0);
}

// Each item that can be chosen does something, and shows a setting where it stands for one.
TEST_F(Pasteboard, TheMenuShowsAndChangesEverySetting) {
    std::multiset<Text> shortcuts;
    const std::function<void(NSMenu&)> visit = [&](NSMenu& menu) {
        for (NSMenuItem& item : menu.items) {
            SCOPED_TRACE(testing::PrintToString(item.title));
            shortcuts.insert(item.keyEquivalents.begin(), item.keyEquivalents.end());
            visit(item.submenu);
            if (!item.submenu.items.empty() || item.isSeparator() || item.title == u"Quit") {
                continue;
            }
            ASSERT_EQ(item.action != nullptr, item.enabled || item.validation != nullptr);
            const NSMenuItem before = item;
            if (item.enabled) {
                item.action(item);
                validateMenu(views.menu);
                EXPECT_TRUE(!item.validation || item.title != before.title || item.state == 1 ||
                            before.state == 1);
            }
        }
    };
    validateMenu(views.menu);
    visit(views.menu);
    EXPECT_EQ(shortcuts, (std::multiset<Text>{u"F1", u"Ctrl+Ins", u"Meta+C", u"Shift+Ins",
                                              u"Meta+V", u"Meta+Q"}));
}

}  // namespace
}  // namespace talvex
