// The keys of the drawers, what is told about keys, and the tabs of the conversion drawer.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <limits>
#include <set>
#include <string>
#include <vector>

#include "core/function_tables.h"
#include "numeric/DYXnan.h"
#include "platform/HeadlessPlatform.h"
#include "ui/DYXWindowController.h"
#include "ui/simple_tex.h"

namespace talvex {
namespace {

using Text = std::u16string;

class Panels : public testing::Test {
  protected:
    [[nodiscard]] NSButton& key(std::u16string_view command, bool inDrawer = true) const {
        for (const Key& each : controller.views().allKeys()) {
            const bool isOnPad = each.button->superview() == controller.views().keyPad.view().get();
            if (each.button->alternateTitle() == command && isOnPad != inDrawer) {
                return *each.button;
            }
        }
        ADD_FAILURE() << "no key " << testing::PrintToString(Text(command));
        return *controller.views().keyPad.keys().front().button;
    }
    static void enter(NSView& view) { view.pointerMoved(NSPoint{1, 1}); }
    static void leave(NSView& view) { view.pointerMoved(std::nullopt); }
    [[nodiscard]] const Text& padText() const {
        return controller.views().keyPad.view()->statusField()->stringValue();
    }
    [[nodiscard]] const Text& memoryText() const {
        return controller.views().memoryPanel.view->statusField()->stringValue();
    }
    [[nodiscard]] DYXTabView& tabs() const { return *controller.views().conversionPanel.tabView; }

    HeadlessPlatform platform;
    mutable DYXWindowController controller{platform};
};

// Everything that the calculator can do has a key, but for the direct forms of the circular and
// hyperbolic functions, which the shift keys reach, and the direct forms of the register commands.
TEST_F(Panels, HaveAKeyForEveryCommand) {
    std::set<std::tuple<std::uint32_t, std::uint32_t, std::uint32_t>> keys;
    for (const Key& each : controller.views().allKeys()) {
        const Comand command = commandFromString(each.button->alternateTitle());
        keys.insert({command.category, command.action, command.group});
    }
    controller.takeInputModeFrom(NSMenuItem{.title = {}, .tag = 8, .action = {}});
    for (const Key& each : controller.views().keyPad.keys()) {
        const Comand command = commandFromString(each.button->alternateTitle());
        keys.insert({command.category, command.action, command.group});
    }
    static constexpr std::array kKeyless{
        fourCC("SIN "), fourCC("ASIN"), fourCC("SINH"), fourCC("SNHI"), fourCC("COS "),
        fourCC("ACOS"), fourCC("COSH"), fourCC("CSHI"), fourCC("TAN "), fourCC("ATAN"),
        fourCC("TANH"), fourCC("TNHI"), fourCC("CSC "), fourCC("ACSC"), fourCC("CSCH"),
        fourCC("CCHI"), fourCC("SEC "), fourCC("ASEC"), fourCC("SECH"), fourCC("SCHI"),
        fourCC("COT "), fourCC("ACOT"), fourCC("COTH"), fourCC("CTHI")};
    const auto expectKey = [&](std::uint32_t category, std::uint32_t action,
                               std::uint32_t group = 0) {
        const bool isKeyless =
            std::find(kKeyless.begin(), kKeyless.end(), action) != kKeyless.end();
        EXPECT_EQ(keys.count({category, action, group}), isKeyless ? 0U : 1U)
            << characterOf(action, 0) << characterOf(action, 1) << characterOf(action, 2)
            << characterOf(action, 3);
    };
    for (const UnaryRow& row : unitaries()) {
        expectKey(fourCC("unit"), row.action);
    }
    for (const BinaryRow& row : binaries()) {
        expectKey(fourCC("bina"), row.action);
    }
    for (const ConstantRow& row : constants()) {
        expectKey(fourCC("cons"), row.action);
    }
    for (const ConverterRow& row : converters()) {
        expectKey(fourCC("conv"), row.action, row.group.code);
    }
    expectKey(fourCC("null"), fourCC("RAND"));
    for (const std::u16string_view command :
         {u"stacLSTX", u"stacROLD", u"stacROLU", u"stacX<>Y", u"modiARC ", u"modiHYP ", u"memoSTO ",
          u"memoSTO+", u"memoSTO-", u"memoSTO*", u"memoSTO/", u"memoRCL ", u"memoSTOC", u"memoCLMM",
          u"memoM000", u"memoM009", u"memoM010", u"memoM019", u"dataN000", u"dataN009", u"dataN00A",
          u"dataN00F", u"data.   ", u"dataBACK", u"dataEEX ", u"dataE-03", u"dataE+09", u"dataCHS ",
          u"dataENT ", u"dataCLR ", u"dataCLRG", u"dataCLAL"}) {
        const Comand comand = commandFromString(command);
        expectKey(comand.category, comand.action);
    }
}

TEST_F(Panels, HaveKeysThatLieApartWithinTheirPanels) {
    std::vector<const std::vector<Key>*> panels{
        &controller.views().keyPad.keys(), &controller.views().memoryPanel.keys,
        &controller.views().constantsPanel.keys, &controller.views().functionsPanel.keys};
    for (const auto& page : controller.views().conversionPanel.pages) {
        panels.push_back(&page);
    }
    for (const std::vector<Key>* panel : panels) {
        for (const Key& one : *panel) {
            const NSRect& a = one.button->frame();
            const NSRect within = one.button->superview()->bounds();
            EXPECT_TRUE(a.x >= 0 && a.y >= 0 && a.x + a.width <= within.width &&
                        a.y + a.height <= within.height);
            for (const Key& other : *panel) {
                const NSRect& b = other.button->frame();
                EXPECT_TRUE(&one == &other || a.x + a.width < b.x || b.x + b.width < a.x ||
                            a.y + a.height < b.y || b.y + b.height < a.y)
                    << testing::PrintToString(one.button->alternateTitle());
            }
        }
    }
}

TEST_F(Panels, TellWhatAKeyDoesAndItsHotKey) {
    const auto textAt = [this](NSButton& button) {
        enter(button);
        return padText();
    };
    EXPECT_EQ(textAt(key(u"unitGSIN", false)), u"[s] : sine ");
    EXPECT_EQ(textAt(key(u"unitGCSC", false)), u"cosecant ");
    EXPECT_EQ(textAt(key(u"dataE-03", false)), u"EEX -03");
    EXPECT_EQ(textAt(key(u"dataE+09", false)), u"EEX +09");
    EXPECT_NE(textAt(key(u"dataEEX ", false)).find(u" : enter exponent"), Text::npos);
    EXPECT_NE(textAt(key(u"dataENT ", false)).find(u" : enter"), Text::npos);

    NSButton& constant = key(u"consh   ");
    enter(constant);
    const NSTextField& field = *controller.views().constantsPanel.view->statusField();
    EXPECT_EQ(field.stringValue(),
              u"[\u2325-h] : Planck constant = 6.62606896\u00D710\u221234 J s");
    EXPECT_EQ(constant.accessibilityLabel(), u"Planck constant");
    EXPECT_EQ(constant.toolTip(), u"");
    enter(key(u"convlen inch"));
    EXPECT_EQ(tabs().statusField()->stringValue(), u"inch ");
}

TEST_F(Panels, TellAnewWhatTheLetterKeysDo) {
    NSButton& button = key(u"dataE-03", false);
    controller.takeInputModeFrom(NSMenuItem{.title = {}, .tag = 8, .action = {}});
    enter(button);
    EXPECT_EQ(padText(), u"[a] : A ");
    EXPECT_EQ(button.toolTip(), u"");
}

TEST_F(Panels, TellWhatARegisterHoldsNow) {
    NSButton& view = key(u"memoM005");
    const struct {
        double value;
        Text text;
    } rows[]{{3.25, u"M5 = 3.25 "},
             {1.0 / 3.0, u"M5 = 0.333333333 "},
             {-1234567890123.0, u"M5 = -1.23456789e+12 "},
             {std::numeric_limits<double>::infinity(), u"M5 = inf "},
             {DYXnan('?'), u"M5 = undefined "}};
    for (const auto& row : rows) {
        controller.mem()[5] = row.value;
        enter(view);
        EXPECT_EQ(memoryText(), row.text);
        leave(view);
        EXPECT_EQ(memoryText(), u"");
    }
}

TEST_F(Panels, KeepTheTextOfTheNextKeyWhenTheLastOneIsLeftLate) {
    NSButton& sine = key(u"unitGSIN", false);
    NSButton& cosecant = key(u"unitGCSC", false);
    enter(sine);
    enter(cosecant);
    leave(sine);
    EXPECT_EQ(padText(), u"cosecant ");
    leave(cosecant);
    EXPECT_EQ(padText(), u"");
}

TEST_F(Panels, TellNothingAboutAKeyThatHasGone) {
    enter(key(u"unitGSIN", false));
    controller.takeShowKeyPadFrom();
    controller.takeShowKeyPadFrom();
    EXPECT_EQ(padText(), u"");
    enter(*tabs().tabViewItems()[1].view->subviews().front());
    EXPECT_NE(tabs().statusField()->stringValue(), u"");
    tabs().selectTabViewItemAtIndex(2);
    EXPECT_EQ(tabs().statusField()->stringValue(), u"");
}

TEST_F(Panels, TellNothingWhileStatusLinesAreOff) {
    const auto tracked = [this] {
        std::size_t count = 0;
        for (const Key& each : controller.views().allKeys()) {
            count += each.button->numberOfTrackingRects();
        }
        return count;
    };
    const std::size_t units = controller.views().conversionPanel.pages[1].size();
    const std::size_t keys = controller.views().allKeys().size() - converters().size() + units;
    EXPECT_EQ(tracked(), keys);
    controller.takeShowStatusLineFrom();
    controller.takeShowYZTRegistersFrom();
    controller.takeShowKeyPadFrom();
    EXPECT_EQ(tracked(), keys - controller.views().keyPad.keys().size());
    controller.takeShowKeyPadFrom();
    EXPECT_EQ(tracked(), keys);

    controller.takeShowKeyPadFrom();
    controller.takeShowYZTRegistersFrom();  // while the key pad is hidden
    controller.takeShowKeyPadFrom();
    EXPECT_EQ(tracked(), keys);

    const NSMenuItem item{.title = {}, .action = {}};
    enter(key(u"unitGSIN", false));
    controller.takeStatusLinesEnabledFrom(item);
    EXPECT_EQ(tracked(), 0U);
    EXPECT_EQ(padText(), u"");
    controller.takeShowYZTRegistersFrom();
    tabs().selectTabViewItemAtIndex(2);
    EXPECT_EQ(tracked(), 0U);
    controller.takeStatusLinesEnabledFrom(item);
    EXPECT_EQ(tracked(), keys - units + controller.views().conversionPanel.pages[2].size());
}

TEST_F(Panels, LightBothStoreKeysOfAModifier) {
    key(u"memoSTO+").performClick();
    EXPECT_EQ(key(u"memoSTO+", false).state(), 1);
    EXPECT_EQ(key(u"memoSTO+").state(), 1);
    key(u"memoSTOC").performClick();
    EXPECT_EQ(key(u"memoSTO+", false).state(), 0);
    EXPECT_EQ(key(u"memoSTO+").state(), 0);
}

std::vector<NSTabViewItem> pages(int count) {
    std::vector<NSTabViewItem> items;
    for (int index = 0; index < count; ++index) {
        items.push_back(
            {.label = {static_cast<char16_t>(u'a' + index)}, .view = std::make_shared<NSView>()});
    }
    return items;
}

TEST(TabView, HasAMatrixOfTabsInReadingOrder) {
    const HotKeys hotKeys;
    NSView superview;
    auto view = std::make_shared<DYXTabView>(NSRect{10, 20, 310, 100}, pages(11), hotKeys);
    EXPECT_EQ(view->matrix().numberOfColumns(), 3);  // one for each hundred points
    EXPECT_EQ(view->matrix().numberOfRows(), 4);
    superview.addSubview(view);
    view->setNumberOfRows(0);
    EXPECT_EQ(view->matrix().numberOfRows(), 1);
    EXPECT_EQ(view->matrix().numberOfColumns(), 11);
    view->setNumberOfRows(4);
    const NSMatrix& matrix = view->matrix();
    EXPECT_EQ(matrix.numberOfColumns(), 3);
    EXPECT_EQ(matrix.frame(), (NSRect{10, 116, 310, 64}));
    EXPECT_EQ(matrix.cellSize(), (NSSize{104, 16}));
    EXPECT_EQ(matrix.cellFrame(1, 2), (NSRect{206, 33, 104, 16}));
    EXPECT_EQ(matrix.cellAt(1, 2).title, u"f");
    EXPECT_FALSE(matrix.cellAt(3, 2).enabled);
    EXPECT_EQ(superview.subviews().size(), 2U);

    const auto expectSelected = [&](int index) {
        EXPECT_EQ(view->indexOfSelectedItem(), index);
        for (int cell = 0; cell < 12; ++cell) {
            EXPECT_EQ(view->matrix().cellAt(cell / 3, cell % 3).state, cell == index ? 1 : 0);
        }
        for (int page = 0; page < 11; ++page) {
            const auto item = static_cast<std::size_t>(page);
            EXPECT_EQ(view->tabViewItems()[item].view->isHidden(), page != index);
        }
    };
    view->matrix().performClickAt(2, 1);
    expectSelected(7);
    view->matrix().performClickAt(3, 2);  // disabled
    expectSelected(7);
    view->selectTabViewItemAtIndex(-1);
    view->selectTabViewItemAtIndex(11);
    expectSelected(7);
    view->setFrame({10, 20, 400, 90});
    EXPECT_EQ(view->matrix().frame().y, 106);
    expectSelected(7);
    view->selectTabViewItemAtIndex(10);
    expectSelected(10);
}

}  // namespace
}  // namespace talvex
