#include "ui/Panel.h"

#include <string>

#include "core/function_tables.h"
#include "display/ascii_text.h"
#include "ui/panel_geometry.h"
#include "ui/printed_number.h"
#include "ui/simple_tex.h"
#include "ui/tables/panel_tables.h"

namespace talvex {
namespace {

// Groups of words are set smaller than those of formulas, and single signs larger.
double titleSize(KeyGroup group) {
    constexpr double kSignSize = 13.0;
    constexpr double kFormulaSize = 11.0;
    constexpr double kWordSize = 10.0;
    constexpr double kSmallWordSize = 9.0;
    switch (group) {
        case KeyGroup::digit:
        case KeyGroup::operation:
            return kSignSize;
        case KeyGroup::number:
        case KeyGroup::function:
            return kFormulaSize;
        case KeyGroup::shift:
        case KeyGroup::memory:
        case KeyGroup::stack:
        case KeyGroup::clear:
            return kWordSize;
        case KeyGroup::enter:
        case KeyGroup::flat:
            break;
    }
    return kSmallWordSize;
}

Panel makePanel(const KeyGrid& grid, std::uint32_t statusMask) {
    const NSSize size = grid.size();
    Panel panel{.view = std::make_shared<DYXStatusLineView>(
                    NSRect{.width = size.width, .height = size.height}),
                .keys = {}};
    addStatusField(*panel.view, *panel.view, statusFrame(grid), statusMask);
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
    const NSFont font{.name = u"Lucida Grande", .size = titleSize(description.group)};
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
    const KeyGrid grid = memoryGrid(memoryKeyRows());
    Panel panel = makePanel(grid, NSViewWidthSizable);
    for (const MemoryKeyRow& row : memoryKeyRows()) {
        addKey(panel,
               {.frame = memoryKeyFrame(grid, row),
                .command = row.command,
                .title = localizedTitle(row.title, platform),
                .hint = platform.localizedString(row.hint),
                .group = row.group,
                .keyClass = row.keyClass},
               NSViewMinXMargin, platform);
    }
    const std::u16string registerName = platform.localizedString(u"memory register");
    for (unsigned number = 0; number < kRegisterKeys; ++number) {
        const std::u16string digits = asciiText(std::to_string(number));
        std::u16string hint = registerName;
        hint.append(u" ").append(digits);
        addKey(panel,
               {.frame = registerFrame(grid, number),
                .command = registerCommand(number),
                .title = u"M_{" + digits + u"}",
                .hint = std::move(hint),
                .group = KeyGroup::number},
               NSViewMinXMargin, platform);
    }
    return panel;
}

Panel makeConstantsPanel(Platform& platform) {
    const KeyGrid grid = constantsGrid(constantKeyRows().size());
    Panel panel = makePanel(grid, NSViewWidthSizable);
    for (const ConstantKeyRow& row : constantKeyRows()) {
        addKey(panel,
               {.frame = grid.frameByColumns(panel.keys.size()),
                .command = row.command,
                .title = std::u16string(row.title),
                .hint = constantHint(row, platform),
                .group = KeyGroup::number},
               NSViewMaxXMargin, platform);
        panel.keys.back().button->setAccessibilityLabel(platform.localizedString(row.name));
    }
    return panel;
}

Panel makeFunctionsPanel(Platform& platform) {
    const KeyGrid grid = functionsGrid(functionKeyRows());
    Panel panel = makePanel(grid, NSViewNotSizable);
    for (const FunctionKeyRow& row : functionKeyRows()) {
        addKey(panel,
               {.frame = functionKeyFrame(grid, row),
                .command = row.command,
                .title = localizedTitle(row.title, platform),
                .hint = platform.localizedString(row.hint)},
               NSViewNotSizable, platform);
    }
    return panel;
}

namespace {

std::vector<Key> unitKeys(const UnitPage& page, const KeyGrid& grid, Platform& platform) {
    std::vector<Key> keys;
    for (const UnitKeyRow& unit : page.units) {
        keys.push_back(makeKey({.frame = grid.frameByRows(keys.size()),
                                .command = page.commandOf(unit),
                                .title = std::u16string(unit.title),
                                .hint = platform.localizedString(unit.name)},
                               platform));
        keys.back().button->setShowsStateBy(NSChangeBackgroundCellMask);
        keys.back().button->setAutoresizingMask(NSViewMinYMargin);
    }
    return keys;
}

}  // namespace

ConversionPanel makeConversionPanel(Platform& platform, const HotKeys& hotKeys) {
    const KeyGrid grid = unitsGrid(unitPages());
    const NSSize page = grid.size();
    const NSSize size = conversionPanelSize(page);
    ConversionPanel panel;
    std::vector<NSTabViewItem> items;
    for (const UnitPage& units : unitPages()) {
        auto view = std::make_shared<NSView>(NSRect{.width = page.width, .height = page.height});
        panel.pages.push_back(unitKeys(units, grid, platform));
        for (const Key& key : panel.pages.back()) {
            view->addSubview(key.button);
        }
        items.push_back({.label = platform.localizedString(units.label), .view = std::move(view)});
    }
    panel.view = std::make_shared<NSView>(NSRect{.width = size.width, .height = size.height});
    panel.tabView = std::make_shared<DYXTabView>(tabFrame(page), std::move(items), hotKeys);
    panel.tabView->setAutoresizingMask(NSViewMinYMargin);
    panel.view->addSubview(panel.tabView);
    addStatusField(*panel.view, *panel.tabView, conversionStatusFrame(), NSViewMinYMargin);
    panel.tabView->setNumberOfRows(kTabRows);
    return panel;
}

}  // namespace talvex
