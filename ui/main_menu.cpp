#include "ui/main_menu.h"

#include <array>
#include <string>
#include <string_view>

#include "display/display_modes.h"
#include "ui/DYXWindowController.h"

namespace talvex {
namespace {

using Controller = DYXWindowController;
using Choose = void (Controller::*)(const NSMenuItem&);
using Question = bool (*)(const Controller&);
using Value = std::int64_t (*)(const Controller&);

struct Choice {
    std::u16string_view title;
    int tag;
};

constexpr auto kAngles =
    std::to_array<Choice>({{u"RAD", 0}, {u"DEG", 1}, {u"GRD", 2}, {u"HRS", 3}, {u"REV", 4}});
constexpr auto kDecimals =
    std::to_array<Choice>({{u"As the System", 0}, {u"Point", 1}, {u"Comma", 2}});
constexpr auto kSeparators =
    std::to_array<Choice>({{u"None", 0}, {u"By Mode", 1}, {u"Thin Space", 2}, {u"Blank", 3}});
constexpr auto kGroups =
    std::to_array<Choice>({{u"As the System", 0}, {u"Twos", 2}, {u"Threes", 3}, {u"Fours", 4}});
constexpr auto kFonts =
    std::to_array<Choice>({{u"By Mode", 0}, {u"Proportional", 1}, {u"Monospaced", 2}});

NSMenuItem separator() { return {}; }

NSMenuItem submenu(const Controller& controller, std::u16string_view title, NSMenu menu) {
    NSMenuItem item;
    item.title = controller.localized(title);
    item.submenu = std::move(menu);
    return item;
}

NSMenuItem choiceItem(Controller& controller, const std::u16string& title, int tag, Choose choose,
                      Value value) {
    NSMenuItem item;
    item.title = controller.localized(title);
    item.tag = tag;
    item.action = [&controller, choose](const NSMenuItem& chosen) { (controller.*choose)(chosen); };
    item.validation = [&controller, value](NSMenuItem& shown) {
        shown.state = value(controller) == shown.tag ? 1 : 0;
    };
    return item;
}

// One of several values, the present one with a check mark.
template <class Choices>
NSMenu choiceMenu(Controller& controller, const Choices& choices, Choose choose, Value value) {
    NSMenu menu;
    for (const Choice& choice : choices) {
        menu.items.push_back(
            choiceItem(controller, std::u16string(choice.title), choice.tag, choose, value));
    }
    return menu;
}

// A setting that is on or off.
NSMenuItem switchItem(Controller& controller, std::u16string_view title, Choose choose,
                      Question isOn) {
    NSMenuItem item;
    item.title = title.empty() ? u"" : controller.localized(title);
    item.action = [&controller, choose](const NSMenuItem& chosen) { (controller.*choose)(chosen); };
    item.validation = [&controller, isOn](NSMenuItem& shown) {
        shown.state = isOn(controller) ? 1 : 0;
    };
    return item;
}

NSMenuItem commandItem(Controller& controller, std::u16string_view title, void (*run)(Controller&),
                       std::vector<std::u16string> keys = {}) {
    NSMenuItem item;
    item.title = title.empty() ? u"" : controller.localized(title);
    item.action = [&controller, run](const NSMenuItem&) { run(controller); };
    item.keyEquivalents = std::move(keys);
    return item;
}

// An item whose title tells what it would do.
NSMenuItem alternatingItem(NSMenuItem item, const Controller& controller, Question isOn,
                           std::u16string_view whenOn, std::u16string_view whenOff) {
    item.validation = [&controller, isOn, whenOn, whenOff](NSMenuItem& shown) {
        shown.title = controller.localized(isOn(controller) ? whenOn : whenOff);
    };
    item.validation(item);
    return item;
}

NSMenu modeMenu(Controller& controller, Choose choose, Value value) {
    NSMenu menu;
    for (std::int32_t number = 0; number < mode::count; ++number) {
        menu.items.push_back(
            choiceItem(controller, displayModeName(number), number, choose, value));
    }
    return menu;
}

bool isUnlocked(const Controller& controller) {
    return controller.xDisplay().unlockInputAndOutputModes();
}

NSMenu modesMenu(Controller& controller) {
    NSMenu menu;
    menu.items = {
        submenu(controller, u"Input", inputModeMenu(controller)),
        submenu(controller, u"Output", outputModeMenu(controller)), separator(),
        alternatingItem(
            switchItem(controller, u"", &Controller::takeLockOutputAndInputFrom, isUnlocked),
            controller, isUnlocked, u"Lock Output to Input", u"Unlock Output from Input")};
    return menu;
}

NSMenu digitsMenu(Controller& controller) {
    NSMenu menu;
    for (int digits = 0; digits < 10; ++digits) {
        menu.items.push_back(choiceItem(
            controller, {static_cast<char16_t>(u'0' + digits)}, digits, &Controller::takeDigitsFrom,
            [](const Controller& line) -> std::int64_t { return line.xDisplay().digits(); }));
    }
    return menu;
}

NSMenu formatMenu(Controller& controller) {
    NSMenu menu;
    menu.items = {
        submenu(controller, u"Decimal Separator",
                choiceMenu(controller, kDecimals, &Controller::takeDecimalModeFrom,
                           [](const Controller& now) -> std::int64_t {
                               return now.settings().decimalMode;
                           })),
        submenu(controller, u"Separator of Groups",
                choiceMenu(controller, kSeparators, &Controller::takeDigitGroupingSeparatorFrom,
                           [](const Controller& now) -> std::int64_t {
                               return now.settings().digitGroupingSeparatorMode;
                           })),
        submenu(controller, u"Digits in a Group",
                choiceMenu(controller, kGroups, &Controller::takeDigitGroupingDigitsFrom,
                           [](const Controller& now) -> std::int64_t {
                               return now.settings().digitGroupingDigitsMode;
                           })),
        submenu(controller, u"Font",
                choiceMenu(
                    controller, kFonts, &Controller::takeFontModeFrom,
                    [](const Controller& now) -> std::int64_t { return now.settings().fontMode; })),
        separator(),
        switchItem(controller, u"Reduce Carpentry Fractions",
                   &Controller::takeCarpentryFractionsReducedFrom,
                   [](const Controller& now) { return now.xDisplay().reduceCarpentryFractions(); }),
        switchItem(controller, u"Show Multiples of \u03C0, \u221A2, \u221A3 and e",
                   &Controller::takeDisplayIrrationalsFrom,
                   [](const Controller& now) { return now.xDisplay().displayIrrationals(); }),
        switchItem(controller, u"Base of Powers and Logarithms in Y",
                   &Controller::takeHPStylePowerAndLogsFrom,
                   [](const Controller& now) { return now.useHPStylePowerAndLogs; })};
    return menu;
}

NSMenu viewMenu(Controller& controller) {
    const auto showsFourLines = [](const Controller& now) {
        return now.layout().displayViewMode != 0;
    };
    NSMenu menu;
    menu.items = {
        alternatingItem(
            commandItem(controller, u"", [](Controller& now) { now.takeShowYZTRegistersFrom(); }),
            controller, showsFourLines, u"Hide YZT Registers", u"Show YZT Registers"),
        alternatingItem(
            commandItem(controller, u"", [](Controller& now) { now.takeShowKeyPadFrom(); }),
            controller, [](const Controller& now) { return now.layout().keyPadHidden; },
            u"Show Key Pad", u"Hide Key Pad"),
        alternatingItem(
            commandItem(controller, u"", [](Controller& now) { now.takeShowStatusLineFrom(); }),
            controller, [](const Controller& now) { return now.layout().showStatusLine; },
            u"Hide Status Line", u"Show Status Line"),
        separator(),
        switchItem(controller, u"Hide Register Labels", &Controller::takeRegisterLabelsHiddenFrom,
                   [](const Controller& now) { return now.settings().registerLabelsHidden; }),
        switchItem(controller, u"Hide the X Label when X Stands Alone",
                   &Controller::takeXRegisterLabelAutomaticallyHiddenFrom,
                   [](const Controller& now) { return now.settings().autoHideXLabel; }),
        switchItem(controller, u"Tell What a Key Does", &Controller::takeStatusLinesEnabledFrom,
                   [](const Controller& now) { return now.settings().statusLinesEnabled; }),
        switchItem(controller, u"Animate Window Sizing", &Controller::takeWindowSizingAnimationFrom,
                   [](const Controller& now) { return now.settings().animateWindow; })};
    return menu;
}

struct DrawerItem {
    std::u16string_view title;
    DrawerName drawer;
    void (*toggle)(Controller&);
};

constexpr auto kDrawerItems = std::to_array<DrawerItem>({
    {u"Memory", DrawerName::memory, [](Controller& now) { now.takeToggleMemoryDrawerFrom(); }},
    {u"Constants", DrawerName::constants,
     [](Controller& now) { now.takeToggleConstantsDrawerFrom(); }},
    {u"Unit Conversions", DrawerName::conversion,
     [](Controller& now) { now.takeToggleConversionDrawerFrom(); }},
    {u"Functions", DrawerName::functions,
     [](Controller& now) { now.takeToggleFunctionsDrawerFrom(); }},
});

// Without the key pad no drawer opens, and the items show which would come back with it.
NSMenu drawersMenu(Controller& controller) {
    NSMenu menu;
    for (const DrawerItem& row : kDrawerItems) {
        NSMenuItem item = commandItem(controller, row.title, row.toggle);
        item.validation = [&controller, name = row.drawer](NSMenuItem& shown) {
            const Drawer& drawer = controller.drawers()[name];
            const bool isHidden = controller.layout().keyPadHidden;
            const bool isOpen = drawer.record.state() == NSDrawerOpenState;
            shown.state = (isHidden ? drawer.wasOpen : isOpen) ? 1 : 0;
            shown.enabled = !isHidden;
        };
        menu.items.push_back(std::move(item));
    }
    return menu;
}

NSMenu helpMenu(Controller& controller) {
    const auto isShown = [](const Controller& now) { return now.views().help.window.isVisible(); };
    NSMenu menu;
    menu.items = {alternatingItem(
                      commandItem(controller, u"",
                                  [](Controller& now) { now.takeToggleHelpWindowFrom(); }, {u"F1"}),
                      controller, isShown, u"Hide Help", u"Show Help"),
                  separator(),
                  commandItem(controller, u"Larger Text",
                              [](Controller& now) { now.takeMakeHelpTextLargerFrom(); }),
                  commandItem(controller, u"Smaller Text",
                              [](Controller& now) { now.takeMakeHelpTextSmallerFrom(); }),
                  commandItem(controller, u"Normal Text",
                              [](Controller& now) { now.takeMakeHelpTextNormalFrom(); })};
    return menu;
}

NSMenu editMenu(Controller& controller) {
    NSMenu menu;
    menu.items = {
        commandItem(controller, u"Copy", [](Controller& now) { now.copy(); },
                    {u"Ctrl+Ins", u"Meta+C"}),
        commandItem(controller, u"Paste", [](Controller& now) { now.paste(); },
                    {u"Shift+Ins", u"Meta+V"}),
        separator(),
        switchItem(
            controller, u"Copy Digit Groups", &Controller::takeIncludeDigitGroupingWhenCopyingFrom,
            [](const Controller& now) { return now.settings().includeDigitGroupingWhenCopying; })};
    return menu;
}

}  // namespace

NSMenu outputModeMenu(Controller& controller) {
    NSMenu menu =
        modeMenu(controller, &Controller::takeOutputModeFrom,
                 [](const Controller& now) -> std::int64_t { return now.xDisplay().outputMode(); });
    for (NSMenuItem& item : menu.items) {
        item.validation = [validate = item.validation, &controller](NSMenuItem& shown) {
            validate(shown);
            shown.enabled = isUnlocked(controller);
        };
    }
    return menu;
}

NSMenu inputModeMenu(Controller& controller) {
    return modeMenu(
        controller, &Controller::takeInputModeFrom,
        [](const Controller& now) -> std::int64_t { return now.xDisplay().inputMode(); });
}

NSMenu angleModeMenu(Controller& controller) {
    return choiceMenu(
        controller, kAngles, &Controller::takeAngleModeFrom,
        [](const Controller& now) { return static_cast<std::int64_t>(now.angleMode); });
}

NSMenu mainMenu(Controller& controller) {
    NSMenu menu;
    menu.items = {
        submenu(controller, u"Edit", editMenu(controller)),
        submenu(controller, u"Modes", modesMenu(controller)),
        submenu(controller, u"Angle", angleModeMenu(controller)),
        submenu(controller, u"Digits", digitsMenu(controller)),
        submenu(controller, u"Format", formatMenu(controller)),
        submenu(controller, u"View", viewMenu(controller)),
        submenu(controller, u"Drawers", drawersMenu(controller)),
        submenu(controller, u"Help", helpMenu(controller)),
        separator(),
        commandItem(controller, u"Save", [](Controller& now) { now.saveDocument(); }),
        commandItem(controller, u"Revert to Saved",
                    [](Controller& now) { now.revertDocumentToSaved(); }),
        separator(),
        commandItem(controller, u"Quit", [](Controller& now) { now.terminate(); }, {u"Meta+Q"})};
    return menu;
}

}  // namespace talvex
