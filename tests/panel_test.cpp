// The keys of the drawers, what the status lines say of keys, and the tabs of the conversion
// drawer.

#include <algorithm>
#include <array>
#include <cmath>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "core/converter_table.h"
#include "core/function_tables.h"
#include "numeric/DYXnan.h"
#include "window_fixture.h"

namespace talvex {
namespace {

using Text = std::u16string;

class Panels : public WindowTest {
  protected:
    // Of a drawer.
    [[nodiscard]] NSButton& key(std::u16string_view text) {
        for (const Key& each : views.allKeys()) {
            const bool isOnPad = each.button->superview() == views.keyPad.view().get();
            if (each.button->command() == commandFromString(text) && !isOnPad) {
                return *each.button;
            }
        }
        ADD_FAILURE() << "no key " << testing::PrintToString(Text(text));
        return padKey(u"unitGSIN");
    }
    static void enter(NSView& view) { view.pointerMoved(NSPoint{1, 1}); }
    static void leave(NSView& view) { view.pointerMoved(std::nullopt); }
    [[nodiscard]] const Text& padText() const {
        return views.keyPad.view()->statusField()->stringValue();
    }

    DYXTabView& tabs = *views.conversionPanel.tabView;
};

// Everything that the calculator can do has a key, but for the direct forms of the circular and
// hyperbolic functions, which the shift keys reach, and the direct forms of the register commands.
TEST_F(Panels, HaveAKeyForEveryCommand) {
    std::vector<Comand> reached;
    for (const int mode : {mode::FIX, mode::HEX}) {
        choose<&Settings::inputDisplayMode>(mode);
        for (const Key& each : views.allKeys()) {
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
            << testing::PrintToString(stringFromCommand(command));
    };
    const auto expectKeys = [&](std::uint32_t category, const auto& rows) {
        for (const auto& row : rows) {
            expectKey({.category = category, .action = row.action});
        }
    };
    expectKeys(fourCC("unit"), unitaries());
    expectKeys(fourCC("bina"), binaries());
    expectKeys(fourCC("cons"), constants());
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

TEST_F(Panels, SayWhatAKeyDoesAndItsHotKey) {
    const std::pair<Text, Text> rows[]{{u"unitGSIN", u"[s] : sine "},
                                       {u"unitGCSC", u"cosecant "},
                                       {u"dataE-03", u"EEX -03"},
                                       {u"dataEEX ", u"[\u21E5|\u21DE|\u21DF] : enter exponent "}};
    for (const auto& [command, text] : rows) {
        enter(padKey(command));
        EXPECT_EQ(padText(), text);
        leave(padKey(command));
        EXPECT_EQ(padText(), u"");
    }
    EXPECT_EQ(padKey(u"unitSQR ").attributedTitle().string, u"x2");
    NSButton& button = padKey(u"dataE-03");
    choose<&Settings::inputDisplayMode>(mode::HEX);
    enter(button);
    EXPECT_EQ(padText(), u"[a] : A ");

    enter(key(u"consh   "));
    EXPECT_EQ(views.constantsPanel.view->statusField()->stringValue(),
              u"[\u2325-h] : Planck constant = 6.62606896\u00D710\u221234 J s");
    EXPECT_EQ(key(u"consh   ").accessibilityLabel(), u"Planck constant");
    enter(key(u"convlen inch"));
    EXPECT_EQ(tabs.statusField()->stringValue(), u"inch ");
}

TEST_F(Panels, SayWhatARegisterHoldsNow) {
    const std::pair<double, Text> rows[]{{1.0 / 3.0, u"M5 = 0.333333333 "},
                                         {-1234567890123.0, u"M5 = -1.23456789e+12 "},
                                         {-HUGE_VAL, u"M5 = -inf "},
                                         {DYXnan('?'), u"M5 = undefined "}};
    for (const auto& row : rows) {
        edit(calculator, [&](CalculatorState& state) { state.mem[5] = row.first; });
        enter(key(u"memoM005"));
        EXPECT_EQ(views.memoryPanel.view->statusField()->stringValue(), row.second);
        leave(key(u"memoM005"));
    }
}

TEST_F(Panels, KeepTheTextOfTheLastKeyAsLongAsItIsThere) {
    enter(padKey(u"unitGSIN"));
    enter(padKey(u"unitGCSC"));
    leave(padKey(u"unitGSIN"));
    EXPECT_EQ(padText(), u"cosecant ");
    geometry.takeShowKeyPadFrom();
    geometry.takeShowKeyPadFrom();
    EXPECT_EQ(padText(), u"");
    enter(*tabs.tabViewItems()[1].view->subviews().front());
    EXPECT_NE(tabs.statusField()->stringValue(), u"");
    tabs.selectTabViewItemAtIndex(2);
    EXPECT_EQ(tabs.statusField()->stringValue(), u"");
}

TEST_F(Panels, SayNothingWhileStatusLinesAreOff) {
    const auto tracked = [this] {
        std::size_t count = 0;
        for (const Key& each : views.allKeys()) {
            count += each.button->numberOfTrackingRects();
        }
        return count;
    };
    const std::size_t others = views.allKeys().size() - converters().size();
    const std::size_t keys = others + views.conversionPanel.pages[1].size();
    geometry.takeShowStatusLineFrom();
    EXPECT_EQ(tracked(), keys);
    geometry.takeShowKeyPadFrom();
    EXPECT_EQ(tracked(), keys - views.keyPad.keys().size());
    geometry.takeShowYZTRegistersFrom();
    geometry.takeShowKeyPadFrom();
    EXPECT_EQ(tracked(), keys);

    enter(padKey(u"unitGSIN"));
    choose<&Settings::statusLinesEnabled>(0);
    EXPECT_EQ(padText(), u"");
    geometry.takeShowYZTRegistersFrom();
    tabs.selectTabViewItemAtIndex(2);
    EXPECT_EQ(tracked(), 0U);
    choose<&Settings::statusLinesEnabled>(1);
    EXPECT_EQ(tracked(), others + views.conversionPanel.pages[2].size());
}

TEST_F(Panels, LightBothStoreKeysOfAModifier) {
    for (const auto& [command, state] : {std::pair(u"memoSTO+", 1), std::pair(u"memoSTOC", 0)}) {
        key(command).performClick();
        EXPECT_EQ(padKey(u"memoSTO+").state(), state);
        EXPECT_EQ(key(u"memoSTO+").state(), state);
    }
}

TEST_F(Panels, LightTheUnitOfXUntilXChanges) {
    constexpr auto kSteps = std::to_array<std::pair<const char16_t*, const char16_t*>>(
        {{u"dataN005", u""},
         {u"convlen feet", u"convlen feet"},
         {u"convlen m   ", u"convlen m   "},
         {u"dataENT ", u"convlen m   "},
         {u"dataCHS ", u""},
         {u"convtempkelv", u"convtempkelv"},
         {u"dataN001", u""},
         {u"convenerKelv", u"convenerKelv"},
         {u"stacROLD", u""}});
    for (const auto& [command, lit] : kSteps) {
        controller.click(commandFromString(command));
        Text shown;
        for (const Key& each : views.allKeys()) {
            const bool isUnit = each.button->command().category == fourCC("conv");
            shown += isUnit && each.button->state() != 0 ? stringFromCommand(each.button->command())
                                                         : u"";
        }
        EXPECT_EQ(shown, lit);
    }
}

TEST(TabView, KeepsItsSelectionInAMatrixOfTabsInReadingOrder) {
    std::vector<NSTabViewItem> pages(11);
    for (NSTabViewItem& page : pages) {
        page.view = std::make_shared<NSView>();
    }
    const HotKeys hotKeys;
    NSView superview;
    auto view = std::make_shared<DYXTabView>(NSRect{10, 20, 310, 100}, pages, hotKeys);
    superview.addSubview(view);
    const auto tabs = [&view]() -> NSMatrix& { return view->matrix(); };
    EXPECT_EQ(tabs().numberOfColumns(), 3);  // one for each hundred points
    EXPECT_EQ(tabs().frame(), (NSRect{10, 116, 310, 64}));
    EXPECT_EQ(tabs().cellFrame(1, 2), (NSRect{206, 33, 104, 16}));
    tabs().performClickAt(2, 1);
    tabs().performClickAt(3, 2);  // no tab
    view->selectTabViewItemAtIndex(-1);
    view->selectTabViewItemAtIndex(11);
    view->setFrame({10, 20, 400, 90});
    EXPECT_EQ(tabs().frame().y, 106);
    for (const int index : {7, 10}) {
        EXPECT_EQ(view->indexOfSelectedItem(), index);
        for (int cell = 0; cell < 11; ++cell) {
            EXPECT_EQ(tabs().cellAt(cell / 3, cell % 3).state, cell == index ? 1 : 0);
            EXPECT_EQ(pages.at(static_cast<std::size_t>(cell)).view->isHidden(), cell != index);
        }
        view->selectTabViewItemAtIndex(10);
    }
    EXPECT_FALSE(tabs().cellAt(3, 2).enabled);
}

}  // namespace
}  // namespace talvex
