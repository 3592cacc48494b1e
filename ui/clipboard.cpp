// X as text on the pasteboard, and back.

#include <algorithm>
#include <array>
#include <string_view>

#include "state/ZUStringExtensions.h"
#include "ui/DYXWindowController.h"

namespace talvex {
namespace {

constexpr auto kBaseNames = std::to_array<std::u16string_view>({u"bin", u"oct", u"dec", u"hex"});

std::u16string textOf(const TextSlot& slot) { return slot ? slot->stringValue() : u""; }

}  // namespace

std::u16string DYXWindowController::stringRepresentation() {
    const bool isAsShown =
        inputState() == InputState::entering || settings_.includeDigitGroupingWhenCopying;
    if (!isAsShown) {
        cDisplay().setOutputTo(stack().x());
    }
    const DYXOutputDisplay& line = isAsShown ? xDisplay() : cDisplay();
    std::u16string mantissa = textOf(line.mantissaSignField()) + textOf(line.mantissaField());
    const std::u16string exponent = textOf(line.exponentField());
    if (exponent.empty()) {
        return mantissa;
    }
    const bool isBaseName =
        std::find(kBaseNames.begin(), kBaseNames.end(), exponent) != kBaseNames.end();
    return mantissa + (isBaseName ? u' ' : u'e') + textOf(line.exponentSignField()) + exponent;
}

void DYXWindowController::copy() { platform().setPasteboardString(stringRepresentation()); }

void DYXWindowController::paste() {
    isPasting_ = true;
    platform().requestPasteboardString(
        [this](const PasteboardText& answer) { takePastedText(answer); });
}

void DYXWindowController::takePastedText(const PasteboardText& answer) {
    isPasting_ = false;
    if (answer.outcome == PasteboardOutcome::late) {
        tellThatPasteIsLate();
    }
    if (answer.outcome != PasteboardOutcome::text) {
        return;
    }
    const double number = ZUStringExtensions::internationalDoubleValue(answer.text);
    if (inputState() == InputState::entering) {
        setInputState(InputState::lifting);
    } else {
        stack().pushOntoStack();
        setInputState(InputState::replacing);
    }
    stack().x() = number;
    updateDisplay();
}

void DYXWindowController::giveUpPaste() {
    if (isPasting_) {
        isPasting_ = false;
        platform().dropPasteboardRequest();
        tellThatPasteIsLate();
    }
}

// Until the next update of the display.
void DYXWindowController::tellThatPasteIsLate() {
    platform().NSBeep();
    xDisplay().statusField()->setStringValue(localized(u"paste: no answer"));
}

}  // namespace talvex
