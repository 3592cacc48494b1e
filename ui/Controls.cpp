#include "ui/Controls.h"

#include <algorithm>
#include <array>
#include <string>

#include "core/DYXCalculator.h"
#include "display/display_modes.h"

namespace talvex {
namespace {

struct ModifierKey {
    Comand command;
    bool (*isOn)(const Modifiers&);
};

template <Store Armed>
bool isArmed(const Modifiers& modifiers) {
    return modifiers.store == Armed;
}

constexpr auto kModifierKeys = std::to_array<ModifierKey>({
    {command("modi", "ARC "), [](const Modifiers& modifiers) { return modifiers.inverse; }},
    {command("modi", "HYP "), [](const Modifiers& modifiers) { return modifiers.hyperbolic; }},
    {command("memo", "RCL "), [](const Modifiers& modifiers) { return modifiers.recall; }},
    {command("memo", "STO "), isArmed<Store::plain>},
    {command("memo", "STO+"), isArmed<Store::add>},
    {command("memo", "STO-"), isArmed<Store::subtract>},
    {command("memo", "STO*"), isArmed<Store::multiply>},
    {command("memo", "STO/"), isArmed<Store::divide>},
});

}  // namespace

Controls::Controls(WindowViews& views, HotKeys& hotKeys, DYXCalculator& calculator)
    : views_(views), hotKeys_(hotKeys), calculator_(calculator) {
    findModifierKeys();
    calculator_.setDidUpdateDisplay([this] { showUnitOfX(); });
}

void Controls::findModifierKeys() {
    for (const Key& key : views_.allKeys()) {
        const auto* const row = std::find_if(
            kModifierKeys.begin(), kModifierKeys.end(),
            [&key](const ModifierKey& each) { return each.command == key.button->command(); });
        if (row != kModifierKeys.end()) {
            modifierButtons_.push_back({.button = key.button.get(), .isOn = row->isOn});
        }
    }
}

void Controls::showModifiers() {
    for (const ModifierButton& modifier : modifierButtons_) {
        modifier.button->setState(modifier.isOn(calculator_.modifiers()) ? 1 : 0);
    }
}

void Controls::showUnitOfX() {
    const Comand& unit = calculator_.unitOfX();
    if (unit == (litUnit_ != nullptr ? litUnit_->command() : Comand{})) {
        return;
    }
    if (litUnit_ != nullptr) {
        litUnit_->setState(0);
        litUnit_ = nullptr;
    }
    for (const std::vector<Key>& page : views_.conversionPanel.pages) {
        for (const Key& key : page) {
            if (key.button->command() == unit) {
                litUnit_ = key.button.get();
                litUnit_->setState(1);
            }
        }
    }
}

void Controls::showSettings(const Settings& settings, char16_t decimalSeparator) {
    showDecimalSeparator(decimalSeparator);
    showPowerAndLogs(settings.useHPStylePowerAndLogs);
    showModes(settings);
}

// Locked, the window shows one mode control only.
void Controls::showModes(const Settings& settings) {
    for (const NSMenuItem& item : views_.angleModePopUp->menu().items) {
        if (item.tag == static_cast<int>(settings.angleMode)) {
            views_.angleModePopUp->setTitle(item.title);
        }
    }
    views_.inputModePopUp->setTitle(calculator_.xDisplay().inputModeTitle());
    views_.outputModePopUp->setTitle(calculator_.xDisplay().outputModeTitle());
    views_.outputModePopUp->setHidden(!settings.unlockInputAndOutputModes);
    views_.keyPad.lockButton().setState(settings.unlockInputAndOutputModes ? 1 : 0);
    if (views_.keyPad.showHexDigits(settings.inputDisplayMode == mode::HEX)) {
        for (NSButton* const button : views_.keyPad.hexButtons()) {
            views_.keyPad.view()->renewStatusLine(*button, hotKeys_);
        }
    }
    for (const Key& key : views_.keyPad.keys()) {
        key.button->setAppearsDisabled(!calculator_.takesEntryOf(key.button->command()));
    }
}

void Controls::showDecimalSeparator(char16_t separator) {
    if (separator == shownSeparator_) {
        return;
    }
    shownSeparator_ = separator;
    NSButton& button = views_.keyPad.button(command("data", ".   "));
    const bool hasImage = separator == u'.' || separator == u',';
    button.setTitle(hasImage ? u"" : std::u16string(1, separator));
    button.setImage(separator == u'.'   ? u"pointSmall.tiff"
                    : separator == u',' ? u"commaSmall.tiff"
                                        : u"");
    hotKeys_.followDecimalSeparator(separator);
    button.setToolTip(button.accessibilityLabel());
    views_.keyPad.view()->renewStatusLine(button, hotKeys_);
}

void Controls::showPowerAndLogs(bool useHPStyle) {
    NSButton& power = views_.keyPad.button(command("bina", "^   "));
    NSButton& logarithm = views_.keyPad.button(command("bina", "~   "));
    power.setImage(useHPStyle ? u"powyxSmall.tiff" : u"powxySmall.tiff");
    logarithm.setImage(useHPStyle ? u"lnyxSmall.tiff" : u"lnxySmall.tiff");
}

void Controls::showLabels(const Settings& settings, const WindowLayout& layout) {
    for (DYXOutputDisplay* const line :
         {&calculator_.yDisplay(), &calculator_.zDisplay(), &calculator_.tDisplay()}) {
        line->setLabelFieldHidden(settings.registerLabelsHidden);
    }
    calculator_.xDisplay().setLabelFieldHidden(
        settings.registerLabelsHidden || (layout.displayViewMode != 1 && settings.autoHideXLabel));
}

}  // namespace talvex
