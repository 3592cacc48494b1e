#include "ui/main_menu.h"

#include <array>
#include <string>
#include <string_view>

#include "ui/DYXWindowController.h"

namespace talvex {
namespace {

using Controller = DYXWindowController;
using Question = bool (*)(const Controller&);

NSMenuItem separator() { return {}; }

NSMenuItem submenu(const Controller& controller, std::u16string_view title, NSMenu menu) {
    NSMenuItem item;
    item.title = controller.localized(title);
    item.submenu = std::move(menu);
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

// An item whose title says what it would do.
NSMenuItem alternatingItem(NSMenuItem item, const Controller& controller, Question isOn,
                           std::u16string_view whenOn, std::u16string_view whenOff) {
    item.validation = [&controller, isOn, whenOn, whenOff](NSMenuItem& shown) {
        shown.title = controller.localized(isOn(controller) ? whenOn : whenOff);
    };
    item.validation(item);
    return item;
}

// A setting that is on or off.
NSMenuItem switchItem(Controller& controller, const SettingRow& setting) {
    const bool needsDesktop = &setting == &settingRow<&Settings::alwaysOnTop>();
    NSMenuItem item;
    item.title = controller.localized(setting.title);
    item.action = [&controller, &setting](const NSMenuItem&) {
        controller.choose(setting, setting.saved.get(controller.settings()) == 0 ? 1 : 0);
    };
    item.validation = [&controller, &setting, needsDesktop](NSMenuItem& shown) {
        shown.enabled = !needsDesktop || controller.canStayOnTop();
        const bool isOn = setting.saved.get(controller.settings()) != 0;
        if (setting.titleWhenOn.empty()) {
            shown.state = isOn ? 1 : 0;
        } else {
            shown.title = controller.localized(isOn ? setting.titleWhenOn : setting.title);
        }
    };
    return item;
}

// The settings that stand in a menu: those of several values, then the switches.
void appendSettings(NSMenu& menu, Controller& controller, SettingMenu name) {
    bool hasChoices = false;
    for (const SettingRow& setting : kSettings) {
        if (setting.menu != name) {
            continue;
        }
        const bool isSwitch = setting.choices.empty();
        if (isSwitch && hasChoices) {
            menu.items.push_back(separator());
        }
        hasChoices = !isSwitch;
        menu.items.push_back(
            isSwitch ? switchItem(controller, setting)
                     : submenu(controller, setting.title, choicesMenu(controller, setting)));
    }
}

NSMenu settingsMenu(Controller& controller, SettingMenu name) {
    NSMenu menu;
    appendSettings(menu, controller, name);
    return menu;
}

NSMenu viewMenu(Controller& controller) {
    NSMenu menu;
    menu.items = {
        alternatingItem(
            commandItem(controller, u"",
                        [](Controller& now) { now.geometry().takeShowYZTRegistersFrom(); }),
            controller, [](const Controller& now) { return now.layout().displayViewMode != 0; },
            u"Hide YZT Registers", u"Show YZT Registers"),
        alternatingItem(
            commandItem(controller, u"",
                        [](Controller& now) { now.geometry().takeShowKeyPadFrom(); }),
            controller, [](const Controller& now) { return now.layout().keyPadHidden; },
            u"Show Key Pad", u"Hide Key Pad"),
        alternatingItem(
            commandItem(controller, u"",
                        [](Controller& now) { now.geometry().takeShowStatusLineFrom(); }),
            controller, [](const Controller& now) { return now.layout().showStatusLine; },
            u"Hide Status Line", u"Show Status Line"),
        separator()};
    appendSettings(menu, controller, SettingMenu::view);
    return menu;
}

struct DrawerItem {
    std::u16string_view title;
    DrawerName drawer;
};

constexpr auto kDrawerItems = std::to_array<DrawerItem>({
    {u"Memory", DrawerName::memory},
    {u"Constants", DrawerName::constants},
    {u"Unit Conversions", DrawerName::conversion},
    {u"Functions", DrawerName::functions},
});

// Without the key pad no drawer opens, and the items show which would come back with it.
NSMenu drawersMenu(Controller& controller) {
    NSMenu menu;
    for (const DrawerItem& row : kDrawerItems) {
        NSMenuItem item;
        item.title = controller.localized(row.title);
        item.action = [&controller, name = row.drawer](const NSMenuItem&) {
            controller.drawers().toggleDrawer(name);
        };
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
    menu.items = {
        alternatingItem(
            commandItem(controller, u"",
                        [](Controller& now) { now.help().takeToggleHelpWindowFrom(); }, {u"F1"}),
            controller, isShown, u"Hide Help", u"Show Help"),
        separator(),
        commandItem(controller, u"Larger Text",
                    [](Controller& now) { now.help().takeMakeHelpTextLargerFrom(); }),
        commandItem(controller, u"Smaller Text",
                    [](Controller& now) { now.help().takeMakeHelpTextSmallerFrom(); }),
        commandItem(controller, u"Normal Text",
                    [](Controller& now) { now.help().takeMakeHelpTextNormalFrom(); })};
    return menu;
}

NSMenu editMenu(Controller& controller) {
    NSMenu menu;
    menu.items = {
        commandItem(controller, u"Copy", [](Controller& now) { now.clipboard().copy(); },
                    {u"Ctrl+Ins", u"Meta+C"}),
        commandItem(controller, u"Paste", [](Controller& now) { now.clipboard().paste(); },
                    {u"Shift+Ins", u"Meta+V"}),
        separator()};
    appendSettings(menu, controller, SettingMenu::edit);
    return menu;
}

}  // namespace

NSMenu choicesMenu(Controller& controller, const SettingRow& setting) {
    // The output mode follows the input mode while it is locked to it.
    const bool isOutputMode = &setting == &settingRow<&Settings::outputDisplayMode>();
    NSMenu menu;
    for (const Choice& choice : setting.choices) {
        NSMenuItem item;
        item.title = controller.localized(choice.title);
        item.subtitle = choice.meaning.empty() ? u"" : controller.localized(choice.meaning);
        item.tag = choice.value;
        item.action = [&controller, &setting](const NSMenuItem& chosen) {
            controller.choose(setting, chosen.tag);
        };
        item.validation = [&controller, &setting, isOutputMode](NSMenuItem& shown) {
            const Settings& settings = controller.settings();
            shown.state = setting.saved.get(settings) == shown.tag ? 1 : 0;
            shown.enabled = !isOutputMode || settings.unlockInputAndOutputModes;
        };
        menu.items.push_back(std::move(item));
    }
    return menu;
}

NSMenu mainMenu(Controller& controller) {
    NSMenu menu;
    menu.items = {
        submenu(controller, u"Edit", editMenu(controller)),
        submenu(controller, u"Modes", settingsMenu(controller, SettingMenu::modes)),
        submenu(controller, u"Angle", choicesMenu(controller, settingRow<&Settings::angleMode>())),
        submenu(controller, u"Digits", choicesMenu(controller, settingRow<&Settings::digits>())),
        submenu(controller, u"Format", settingsMenu(controller, SettingMenu::format)),
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
