#include "ui/Clipboard.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "core/DYXCalculator.h"
#include "state/ZUStringExtensions.h"

namespace talvex {
namespace {

constexpr auto kBaseNames = std::to_array<std::u16string_view>({u"bin", u"oct", u"dec", u"hex"});

std::u16string textOf(const TextSlot& slot) { return slot ? slot->stringValue() : u""; }

}  // namespace

Clipboard::Clipboard(DYXCalculator& calculator, const Settings& settings, Platform& platform)
    : calculator_(calculator), settings_(settings), platform_(platform) {}

Clipboard::~Clipboard() { platform_.dropPasteboardRequest(); }

std::u16string Clipboard::stringRepresentation() {
    const bool isAsShown = calculator_.inputState() == InputState::entering ||
                           settings_.includeDigitGroupingWhenCopying;
    if (!isAsShown) {
        calculator_.cDisplay().setOutputTo(calculator_.stack().reg[0]);
    }
    const DYXOutputDisplay& line = isAsShown ? calculator_.xDisplay() : calculator_.cDisplay();
    std::u16string mantissa = textOf(line.mantissaSignField()) + textOf(line.mantissaField());
    const std::u16string exponent = textOf(line.exponentField());
    if (exponent.empty()) {
        return mantissa;
    }
    const bool isBaseName =
        std::find(kBaseNames.begin(), kBaseNames.end(), exponent) != kBaseNames.end();
    return mantissa + (isBaseName ? u' ' : u'e') + textOf(line.exponentSignField()) + exponent;
}

void Clipboard::copy() { platform_.setPasteboardString(stringRepresentation()); }

void Clipboard::paste() {
    isPasting_ = true;
    platform_.requestPasteboardString(
        [this](const PasteboardText& answer) { takePastedText(answer); });
}

void Clipboard::takePastedText(const PasteboardText& answer) {
    isPasting_ = false;
    if (answer.outcome == PasteboardOutcome::late) {
        sayThatPasteIsLate();
    }
    if (answer.outcome != PasteboardOutcome::text) {
        return;
    }
    calculator_.bringPasted(ZUStringExtensions::internationalDoubleValue(answer.text));
}

void Clipboard::giveUpPaste() {
    if (isPasting_) {
        isPasting_ = false;
        platform_.dropPasteboardRequest();
        sayThatPasteIsLate();
    }
}

// Until the next update of the display.
void Clipboard::sayThatPasteIsLate() {
    platform_.NSBeep();
    calculator_.xDisplay().statusField()->setStringValue(
        platform_.localizedString(u"paste: no answer"));
}

}  // namespace talvex
