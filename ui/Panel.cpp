#include "ui/Panel.h"

#include <array>
#include <string>

#include "core/function_tables.h"
#include "display/ascii_text.h"
#include "ui/key_grid.h"
#include "ui/printed_number.h"
#include "ui/simple_tex.h"
#include "ui/tables/drawer_positions.h"
#include "ui/tables/panel_tables.h"

namespace talvex {
namespace {

constexpr double kKeyWidth = 36.0;
constexpr double kMargin = 5.0;
constexpr double kStatusHeight = 18.0;
constexpr double kStatusBottom = 2.0;
constexpr double kKeysBottom = 23.0;

// Drawers at the sides: six rows.
constexpr int kSideRows = 6;
constexpr double kSideHeight = kKeysBottom + kSideRows * (kKeyHeight + kKeyGap) - kKeyGap + kMargin;

// The drawers above and below: six columns of wider keys.
constexpr int kColumns = 6;
constexpr double kWideKeyWidth = 58.0;
constexpr double kWideMargin = 9.0;
constexpr double kWidth = 2.0 * kWideMargin + kColumns * (kWideKeyWidth + kKeyGap) - kKeyGap;

double rowOffset(int row) { return row * (kKeyHeight + kKeyGap); }

NSRect sideKeyFrame(int row, double x, double width) {
    return {.x = x,
            .y = kSideHeight - kMargin - kKeyHeight - rowOffset(row),
            .width = width,
            .height = kKeyHeight};
}

NSRect wideKeyFrame(int column, int columnSpan, double left, double y) {
    return {.x = left + column * (kWideKeyWidth + kKeyGap),
            .y = y,
            .width = columnSpan * (kWideKeyWidth + kKeyGap) - kKeyGap,
            .height = kKeyHeight};
}

NSRect statusFrame(double panelWidth) {
    return {.x = kMargin,
            .y = kStatusBottom,
            .width = panelWidth - 2.0 * kMargin,
            .height = kStatusHeight};
}

// Words are set smaller than formulas, and single signs larger.
constexpr double kLongWordSize = 9.0;
constexpr double kWordSize = 10.0;
constexpr double kFormulaSize = 11.0;
constexpr double kSignSize = 13.0;

double titleSize(std::u16string_view title, KeyGroup group) {
    const auto isBetween = [&title](std::size_t place, char16_t first, char16_t last) {
        return first <= title[place] && title[place] <= last;
    };
    if (group == KeyGroup::flat) {
        return kLongWordSize;
    }
    if (title.size() > 2 && isBetween(0, u'A', u'Z') && isBetween(1, u'A', u'Z')) {
        return title.size() > 3 ? kLongWordSize : kWordSize;
    }
    const bool isDigit = group == KeyGroup::digit && title.size() == 1 && isBetween(0, u'0', u'9');
    return isDigit || group == KeyGroup::operation ? kSignSize : kFormulaSize;
}

Panel makePanel(const NSSize& size, std::uint32_t statusMask) {
    Panel panel{.view = std::make_shared<DYXStatusLineView>(
                    NSRect{.width = size.width, .height = size.height}),
                .keys = {}};
    addStatusField(*panel.view, *panel.view, statusFrame(size.width), statusMask);
    return panel;
}

void addKey(Panel& panel, const KeyDescription& description, std::uint32_t mask,
            Platform& platform) {
    panel.keys.push_back(makeKey(description, platform));
    panel.keys.back().button->setAutoresizingMask(mask);
    panel.view->addSubview(panel.keys.back().button);
}

std::u16string constantHint(const ConstantKeyRow& row, const BundlePort& titles) {
    const ConstantRow* const constant = findConstant(row.command.action);
    std::u16string hint = titles.localizedString(row.name);
    if (constant != nullptr) {
        hint += u" = " + printedNumber(constant->value);
    }
    return row.unit.empty() ? hint : hint + u' ' + std::u16string(row.unit);
}

void setActions(const std::vector<Key>& keys, const KeyAction& action) {
    for (const Key& key : keys) {
        const bool runsCommand =
            key.keyClass == KeyClass::key || key.keyClass == KeyClass::modifier;
        if (runsCommand) {
            key.button->setAction([action, &button = *key.button](NSButton& /*sender*/) {
                action(button.command());
            });
        }
        key.button->setKeyEquivalent(u"");
    }
}

}  // namespace

void addStatusField(NSView& view, DYXStatusLineTracker& tracker, const NSRect& frame,
                    std::uint32_t autoresizingMask) {
    auto field = std::make_shared<NSTextField>(frame);
    field->setFont({.name = u"Lucida Grande", .size = ZUStringExtensions::kToolTipSize});
    field->setAutoresizingMask(autoresizingMask);
    view.addSubview(field);
    tracker.setStatusField(std::move(field));
}

std::u16string localizedTitle(std::u16string_view title, const BundlePort& titles) {
    return title.empty() ? u"" : titles.localizedString(title);
}

Key makeKey(const KeyDescription& description, Platform& platform) {
    const std::u16string& title = description.title;
    const NSFont font{.name = u"Lucida Grande", .size = titleSize(title, description.group)};
    Key key{.button = {}, .group = description.group, .keyClass = description.keyClass};
    if (description.keyClass == KeyClass::key) {
        key.button = std::make_shared<DYXButton>(description.frame, title, font, platform);
    } else {
        key.button = std::make_shared<ZUModifierButton>(description.frame);
        key.button->setTitle(title);
        key.button->setFont(font);
        key.button->setToggles(description.keyClass == KeyClass::lock);
    }
    key.button->setCommand(description.command);
    key.button->setToolTip(description.hint);
    key.button->setAccessibilityLabel(simpleTexHint(description.hint).string);
    return key;
}

void Panel::setKeyAction(const KeyAction& action) const { setActions(keys, action); }

void ConversionPanel::setKeyAction(const KeyAction& action) const {
    for (const std::vector<Key>& page : pages) {
        setActions(page, action);
    }
}

Panel makeMemoryPanel(Platform& platform) {
    static constexpr int kRegisterColumns = 5;
    static constexpr int kRegisters = 20;
    static constexpr int kFirstRegisterRow = 2;
    static constexpr double kPitch = kKeyWidth + kKeyGap;
    Panel panel = makePanel({2.0 * kMargin + kRegisterColumns * kPitch - kKeyGap, kSideHeight},
                            NSViewWidthSizable);
    for (const MemoryKeyRow& row : memoryKeyRows()) {
        addKey(panel,
               {.frame = sideKeyFrame(row.row, kMargin + row.column * kPitch,
                                      row.columnSpan * kPitch - kKeyGap),
                .command = row.command,
                .title = localizedTitle(row.title, platform),
                .hint = platform.localizedString(row.hint),
                .group = row.group,
                .keyClass = row.keyClass},
               NSViewMinXMargin, platform);
    }
    const std::u16string registerName = platform.localizedString(u"memory register");
    for (int number = 0; number < kRegisters; ++number) {
        const std::u16string digits = asciiText(std::to_string(number));
        std::u16string hint = registerName;
        hint.append(u" ").append(digits);
        addKey(panel,
               {.frame = sideKeyFrame(kFirstRegisterRow + number / kRegisterColumns,
                                      kMargin + number % kRegisterColumns * kPitch, kKeyWidth),
                .command = registerCommand(static_cast<unsigned>(number)),
                .title = u"M_{" + digits + u"}",
                .hint = std::move(hint),
                .group = KeyGroup::digit},
               NSViewMinXMargin, platform);
    }
    return panel;
}

Panel makeConstantsPanel(Platform& platform) {
    static constexpr auto kEdges = edgesOf<8>(kConstantsPositions, 355.0);
    Panel panel = makePanel({kEdges.back(), kSideHeight}, NSViewWidthSizable);
    int number = 0;
    for (const ConstantKeyRow& row : constantKeyRows()) {
        const auto column = static_cast<std::size_t>(number / kSideRows);
        const double left = column == 0 ? kMargin : kEdges.at(column - 1);
        addKey(panel,
               {.frame = sideKeyFrame(number % kSideRows, left, kEdges.at(column) - left - kKeyGap),
                .command = row.command,
                .title = std::u16string(row.title),
                .hint = constantHint(row, platform),
                .group = KeyGroup::digit},
               NSViewMaxXMargin, platform);
        panel.keys.back().button->setAccessibilityLabel(platform.localizedString(row.name));
        ++number;
    }
    return panel;
}

Panel makeFunctionsPanel(Platform& platform) {
    static constexpr auto kEdges = edgesOf<7>(kFunctionsPositions, 208.0);
    Panel panel = makePanel({kWidth, kEdges.back()}, NSViewNotSizable);
    for (const FunctionKeyRow& row : functionKeyRows()) {
        addKey(panel,
               {.frame = wideKeyFrame(row.column, row.columnSpan, kWideMargin,
                                      kEdges.at(row.row) - kKeyGap - kKeyHeight),
                .command = row.command,
                .title = localizedTitle(row.title, platform),
                .hint = platform.localizedString(row.hint)},
               NSViewNotSizable, platform);
    }
    return panel;
}

namespace {

constexpr int kUnitRows = 4;
constexpr double kPageMargin = 5.0;
constexpr double kPageHeight = 2.0 * kPageMargin + kUnitRows * (kKeyHeight + kKeyGap) - kKeyGap;
constexpr NSRect kTabFrame{.x = kWideMargin - kPageMargin,
                           .y = 22.0,
                           .width = kWidth - 2.0 * (kWideMargin - kPageMargin),
                           .height = kPageHeight};
constexpr double kTabButtonsHeight = 60.0;

std::vector<Key> unitKeys(const UnitPage& page, Platform& platform) {
    std::vector<Key> keys;
    for (const UnitKeyRow& unit : page.units) {
        const int number = static_cast<int>(keys.size());
        keys.push_back(makeKey({.frame = wideKeyFrame(number % kColumns, 1, kPageMargin,
                                                      kPageHeight - kPageMargin - kKeyHeight -
                                                          rowOffset(number / kColumns)),
                                .command = page.commandOf(unit),
                                .title = std::u16string(unit.title),
                                .hint = platform.localizedString(unit.name)},
                               platform));
        keys.back().button->setAutoresizingMask(NSViewMinYMargin);
    }
    return keys;
}

}  // namespace

ConversionPanel makeConversionPanel(Platform& platform, const HotKeys& hotKeys) {
    ConversionPanel panel;
    std::vector<NSTabViewItem> items;
    for (const UnitPage& page : unitPages()) {
        auto view =
            std::make_shared<NSView>(NSRect{.width = kTabFrame.width, .height = kTabFrame.height});
        panel.pages.push_back(unitKeys(page, platform));
        for (const Key& key : panel.pages.back()) {
            view->addSubview(key.button);
        }
        items.push_back({.label = platform.localizedString(page.label), .view = std::move(view)});
    }
    panel.view = std::make_shared<NSView>(NSRect{
        .width = kWidth, .height = kTabFrame.y + kTabFrame.height + kTabButtonsHeight + kMargin});
    panel.tabView = std::make_shared<DYXTabView>(kTabFrame, std::move(items), hotKeys);
    panel.tabView->setAutoresizingMask(NSViewMinYMargin);
    panel.view->addSubview(panel.tabView);
    addStatusField(*panel.view, *panel.tabView, statusFrame(kWidth), NSViewMinYMargin);
    panel.tabView->setNumberOfRows(kUnitRows);
    return panel;
}

}  // namespace talvex
