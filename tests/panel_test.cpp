// The keys of the drawers, what is told about keys, and the tabs of the conversion drawer.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "core/converter_table.h"
#include "core/function_tables.h"
#include "edit_state.h"
#include "numeric/DYXnan.h"
#include "platform/HeadlessPlatform.h"
#include "ui/DYXWindowController.h"

namespace talvex {
namespace {

using Text = std::u16string;

class Panels : public testing::Test {
  protected:
    [[nodiscard]] NSButton& key(std::u16string_view text, bool inDrawer = true) const {
        for (const Key& each : controller.views().allKeys()) {
            const bool isOnPad = each.button->superview() == controller.views().keyPad.view().get();
            if (each.button->command() == commandFromString(text) && isOnPad != inDrawer) {
                return *each.button;
            }
        }
        ADD_FAILURE() << "no key " << testing::PrintToString(Text(text));
        return *controller.views().keyPad.keys().front().button;
    }
    static void enter(NSView& view) { view.pointerMoved(NSPoint{1, 1}); }
    static void leave(NSView& view) { view.pointerMoved(std::nullopt); }
    [[nodiscard]] const Text& padText() const {
        return controller.views().keyPad.view()->statusField()->stringValue();
    }
    [[nodiscard]] DYXTabView& tabs() const { return *controller.views().conversionPanel.tabView; }

    HeadlessPlatform platform;
    mutable DYXWindowController controller{platform};
};

// Everything that the calculator can do has a key, but for the direct forms of the circular and
// hyperbolic functions, which the shift keys reach, and the direct forms of the register commands.
TEST_F(Panels, HaveAKeyForEveryCommand) {
    std::vector<Comand> reached;
    for (const int mode : {0, 8}) {
        controller.choose(settingRow<&Settings::inputDisplayMode>(), mode);
        for (const Key& each : controller.views().allKeys()) {
            reached.push_back(each.button->command());
        }
    }
    constexpr std::u16string_view kKeyless =
        u"SIN ASINSINHSNHICOS ACOSCOSHCSHITAN ATANTANHTNHI"
        u"CSC ACSCCSCHCCHISEC ASECSECHSCHICOT ACOTCOTHCTHI";
    std::set<std::uint32_t> keyless;
    for (std::size_t place = 0; place < kKeyless.size(); place += 4) {
        keyless.insert(commandFromString(kKeyless.substr(place, 4)).action);
    }
    const auto expectKey = [&](const Comand& command) {
        EXPECT_NE(std::count(reached.begin(), reached.end(), command) > 0,
                  keyless.contains(command.action))
            << std::hex << command.category << ' ' << command.action;
    };
    for (const UnaryRow& row : unitaries()) {
        expectKey({.category = fourCC("unit"), .action = row.action});
    }
    for (const BinaryRow& row : binaries()) {
        expectKey({.category = fourCC("bina"), .action = row.action});
    }
    for (const ConstantRow& row : constants()) {
        expectKey({.category = fourCC("cons"), .action = row.action});
    }
    for (const ConverterRow& row : converters()) {
        expectKey({fourCC("conv"), row.action, row.group.code});
    }
    for (const HotKey& row : hotKeyRows()) {
        expectKey(row.command);
    }
    for (const std::u16string_view command :
         {u"nullRAND", u"stacLSTX", u"modiARC ", u"modiHYP ", u"memoSTO ", u"memoRCL ", u"memoCLMM",
          u"dataE-03", u"dataE+09", u"dataCLAL"}) {
        expectKey(commandFromString(command));
    }
}

TEST_F(Panels, HaveKeysThatLieApartWithinTheirPanels) {
    const std::vector<Key> keys = controller.views().allKeys();
    for (const Key& one : keys) {
        SCOPED_TRACE(testing::PrintToString(one.button->accessibilityLabel()));
        const NSRect& a = one.button->frame();
        const NSRect within = one.button->superview()->bounds();
        EXPECT_TRUE(a.x >= 0 && a.y >= 0 && a.x + a.width <= within.width &&
                    a.y + a.height <= within.height);
        for (const Key& other : keys) {
            const NSRect& b = other.button->frame();
            EXPECT_TRUE(&one == &other || one.button->superview() != other.button->superview() ||
                        a.x + a.width < b.x || b.x + b.width < a.x || a.y + a.height < b.y ||
                        b.y + b.height < a.y);
        }
    }
}

TEST_F(Panels, TellWhatAKeyDoesAndItsHotKey) {
    const std::pair<Text, Text> rows[]{{u"unitGSIN", u"[s] : sine "},
                                       {u"unitGCSC", u"cosecant "},
                                       {u"dataE-03", u"EEX -03"},
                                       {u"dataE+09", u"EEX +09"},
                                       {u"dataEEX ", u"[\u21E5|\u21DE|\u21DF] : enter exponent "}};
    for (const auto& [command, text] : rows) {
        enter(key(command, false));
        EXPECT_EQ(padText(), text);
        leave(key(command, false));
    }
    NSButton& button = key(u"dataE-03", false);
    controller.choose(settingRow<&Settings::inputDisplayMode>(), 8);
    enter(button);
    EXPECT_EQ(padText(), u"[a] : A ");
    EXPECT_EQ(button.toolTip(), u"");

    NSButton& constant = key(u"consh   ");
    enter(constant);
    EXPECT_EQ(controller.views().constantsPanel.view->statusField()->stringValue(),
              u"[\u2325-h] : Planck constant = 6.62606896\u00D710\u221234 J s");
    EXPECT_EQ(constant.accessibilityLabel(), u"Planck constant");
    enter(key(u"convlen inch"));
    EXPECT_EQ(tabs().statusField()->stringValue(), u"inch ");
}

TEST_F(Panels, TellWhatARegisterHoldsNow) {
    NSButton& view = key(u"memoM005");
    const NSTextField& field = *controller.views().memoryPanel.view->statusField();
    const std::pair<double, Text> rows[]{{3.25, u"M5 = 3.25 "},
                                         {1.0 / 3.0, u"M5 = 0.333333333 "},
                                         {-1234567890123.0, u"M5 = -1.23456789e+12 "},
                                         {-HUGE_VAL, u"M5 = -inf "},
                                         {DYXnan('?'), u"M5 = undefined "}};
    for (const auto& [number, text] : rows) {
        edit(controller.calculator(),
             [value = number](CalculatorState& state) { state.mem[5] = value; });
        enter(view);
        EXPECT_EQ(field.stringValue(), text);
        leave(view);
        EXPECT_EQ(field.stringValue(), u"");
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
    controller.geometry().takeShowKeyPadFrom();
    controller.geometry().takeShowKeyPadFrom();
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
    const WindowViews& views = controller.views();
    const std::size_t others = views.allKeys().size() - converters().size();
    const std::size_t keys = others + views.conversionPanel.pages[1].size();
    controller.geometry().takeShowStatusLineFrom();
    controller.geometry().takeShowYZTRegistersFrom();
    EXPECT_EQ(tracked(), keys);
    controller.geometry().takeShowKeyPadFrom();
    EXPECT_EQ(tracked(), keys - views.keyPad.keys().size());
    controller.geometry().takeShowYZTRegistersFrom();
    controller.geometry().takeShowKeyPadFrom();
    EXPECT_EQ(tracked(), keys);

    enter(key(u"unitGSIN", false));
    controller.choose(settingRow<&Settings::statusLinesEnabled>(), 0);
    EXPECT_EQ(padText(), u"");
    controller.geometry().takeShowYZTRegistersFrom();
    tabs().selectTabViewItemAtIndex(2);
    EXPECT_EQ(tracked(), 0U);
    controller.choose(settingRow<&Settings::statusLinesEnabled>(), 1);
    EXPECT_EQ(tracked(), others + views.conversionPanel.pages[2].size());
}

TEST_F(Panels, LightBothStoreKeysOfAModifier) {
    for (const auto& [command, state] : {std::pair(u"memoSTO+", 1), std::pair(u"memoSTOC", 0)}) {
        key(command).performClick();
        EXPECT_EQ(key(u"memoSTO+", false).state(), state);
        EXPECT_EQ(key(u"memoSTO+").state(), state);
    }
}

TEST(TabView, KeepsItsSelectionInAMatrixOfTabsInReadingOrder) {
    std::vector<NSTabViewItem> pages;
    for (char16_t label = u'a'; label < u'l'; ++label) {
        pages.push_back({.label = {label}, .view = std::make_shared<NSView>()});
    }
    const HotKeys hotKeys;
    NSView superview;
    auto view = std::make_shared<DYXTabView>(NSRect{10, 20, 310, 100}, pages, hotKeys);
    superview.addSubview(view);
    EXPECT_EQ(view->matrix().numberOfColumns(), 3);  // one for each hundred points
    view->setNumberOfRows(0);
    EXPECT_EQ(view->matrix().numberOfColumns(), 11);
    view->setNumberOfRows(4);
    EXPECT_EQ(view->matrix().frame(), (NSRect{10, 116, 310, 64}));
    EXPECT_EQ(view->matrix().cellFrame(1, 2), (NSRect{206, 33, 104, 16}));
    EXPECT_EQ(superview.subviews().size(), 2U);

    const auto expectSelected = [&](int index) {
        EXPECT_EQ(view->indexOfSelectedItem(), index);
        for (int cell = 0; cell < 12; ++cell) {
            const NSButtonCell& tab = view->matrix().cellAt(cell / 3, cell % 3);
            EXPECT_EQ(tab.state, cell == index ? 1 : 0);
            EXPECT_EQ(tab.enabled, cell < 11);
        }
        for (std::size_t page = 0; page < pages.size(); ++page) {
            EXPECT_EQ(pages[page].view->isHidden(), static_cast<int>(page) != index);
        }
    };
    view->matrix().performClickAt(2, 1);
    expectSelected(7);
    view->matrix().performClickAt(3, 2);
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
