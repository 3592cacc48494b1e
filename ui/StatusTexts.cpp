#include "ui/StatusTexts.h"

#include <cmath>

#include "core/DYXCalculator.h"
#include "display/ascii_text.h"
#include "numeric/DYXnan.h"
#include "numeric/decimal_text.h"
#include "ui/simple_tex.h"

namespace talvex {
namespace {

constexpr unsigned kValueDigits = 9;

std::u16string valueText(double value, const BundlePort& titles) {
    if (std::isnan(value)) {
        return titles.localizedString(DYXnanString(value));
    }
    if (std::isinf(value)) {
        return value < 0.0 ? u"-inf" : u"inf";
    }
    return asciiText(generalText(value, kValueDigits));
}

NSAttributedString plainLine(const std::u16string& text) {
    NSAttributedString line = ZUStringExtensions::simpleTexSingleLine(u"");
    NSTextAttributes attributes = line.attributes.front();
    attributes.superscript = 0;
    attributes.font.size = ZUStringExtensions::kToolTipSize;
    line.string = text;
    line.attributes.assign(text.size(), attributes);
    return line;
}

}  // namespace

StatusTexts::StatusTexts(WindowViews& views, const HotKeys& hotKeys,
                         const DYXCalculator& calculator, const Settings& settings,
                         const BundlePort& titles)
    : views_(views),
      hotKeys_(hotKeys),
      calculator_(calculator),
      settings_(settings),
      titles_(titles) {}

std::optional<NSAttributedString> StatusTexts::statusLineForView(const NSView& view) const {
    const auto* const button = dynamic_cast<const CommandButton*>(&view);
    if (button == nullptr) {
        return std::nullopt;
    }
    const Comand& command = button->command();
    const auto character = [&command](unsigned place) {
        return characterOf(command.action, place);
    };
    if (command.category == fourCC("memo") && character(0) == 'M') {
        const auto number = static_cast<unsigned>(10 * (character(2) - '0') + (character(3) - '0'));
        if (number < calculator_.mem().size()) {
            return ZUStringExtensions::simpleTexSingleLine(
                u"M_{" + asciiText(std::to_string(number)) + u"} = " +
                valueText(calculator_.mem()[number], titles_));
        }
    }
    if (command.category == fourCC("data") && character(0) == 'E' &&
        command.action != fourCC("EEX ") && command.action != fourCC("ENT ")) {
        return plainLine(u"EEX " +
                         asciiText(std::string{character(1), character(2), character(3)}));
    }
    return std::nullopt;
}

std::array<DYXStatusLineView*, 4> StatusTexts::panels() const {
    return {views_.constantsPanel.view.get(), views_.functionsPanel.view.get(),
            views_.memoryPanel.view.get(), views_.keyPad.view().get()};
}

void StatusTexts::showStatusLines() {
    DYXTabView& tabView = *views_.conversionPanel.tabView;
    for (DYXStatusLineView* const panel : panels()) {
        panel->setDelegate(this);
        panel->buildStatusLines(hotKeys_);  // which takes the hints from the desktop
        panel->removeTrackingRects();
    }
    tabView.setShowStatusLines(false);
    if (!settings_.statusLinesEnabled) {
        for (DYXStatusLineView* const panel : panels()) {
            panel->clearStatusField();
        }
        tabView.clearStatusField();
        return;
    }
    for (DYXStatusLineView* const panel : panels()) {
        panel->addTrackingRects(hotKeys_);
    }
    tabView.setShowStatusLines(true);
}

void StatusTexts::track(DYXStatusLineView& view) const {
    if (settings_.statusLinesEnabled) {
        view.addTrackingRects(hotKeys_);
    }
}

}  // namespace talvex
