// The settings of the five lines: grouping, separators, fonts.

#include <algorithm>
#include <string>

#include "display/display_modes.h"
#include "ui/DYXWindowController.h"

namespace talvex {
namespace {

constexpr std::u16string_view kThinSpace = u"\u2009";
constexpr std::u16string_view kBulletOperator = u"\u2219";
constexpr std::u16string_view kBlank = u" ";
constexpr double kFontSize = 13.0;
constexpr std::u16string_view kProportionalFont = u"Lucida Grande";
constexpr std::u16string_view kMonospacedFont = u"Excalibur Monospace";

}  // namespace

std::array<DYXOutputDisplay*, 5> DYXWindowController::lines() {
    return {&xDisplay(), &yDisplay(), &zDisplay(), &tDisplay(), &cDisplay()};
}

void DYXWindowController::syncDisplays() {
    for (DYXOutputDisplay* line : lines()) {
        if (line != &xDisplay()) {
            line->syncToDisplay(xDisplay());
        }
    }
    cDisplay().setGroupingSeparator(u"");
}

void DYXWindowController::updateDigitGrouping() {
    DYXInputDisplay& line = xDisplay();
    const std::int32_t displayMode = line.effectiveOutputMode();
    switch (settings_.digitGroupingSeparatorMode) {
        case 0:
            line.setGroupingSeparator(u"");
            break;
        case 2:
            line.setGroupingSeparator(std::u16string(kThinSpace));
            break;
        case 3:
            line.setGroupingSeparator(std::u16string(kBlank));
            break;
        default: {
            const bool isBased = isIntegerMode(displayMode) && displayMode != mode::DEC;
            const std::u16string_view groups = line.decimalSeparator() == u'.' ? u"," : u".";
            line.setIntegerGroupingSeparator(std::u16string(isBased ? kBulletOperator : groups));
            line.setDecimalGroupingSeparator(
                std::u16string(displayMode == mode::BIN ? kBlank : kThinSpace));
        }
    }
}

void DYXWindowController::updateFonts() {
    const std::int32_t displayMode = xDisplay().effectiveOutputMode();
    const bool byMode = settings_.fontMode != 1 && settings_.fontMode != 2;
    const bool isMonospaced = byMode ? isIntegerMode(displayMode) : settings_.fontMode == 2;
    const NSFont font{.name = isMonospaced ? kMonospacedFont : kProportionalFont,
                      .size = kFontSize};
    for (DYXOutputDisplay* line : lines()) {
        line->setTextFont(font);
    }
}

void DYXWindowController::setDigitGroupingSeparatorMode(std::int32_t mode) {
    settings_.digitGroupingSeparatorMode = mode & 3;
    updateDigitGrouping();
}

void DYXWindowController::setDigitGroupingDigitsMode(std::int32_t mode) {
    settings_.digitGroupingDigitsMode = mode;
    if (mode == 0) {
        const std::uint32_t size = platform().numberFormat().groupingSize;
        xDisplay().setGroupingDigits(size == 0 ? 3 : size);
    } else {
        xDisplay().setGroupingDigits(static_cast<std::uint32_t>(std::clamp(mode, 2, 4)));
    }
}

void DYXWindowController::setFontMode(std::int32_t mode) {
    settings_.fontMode = std::min(mode, 2);
    updateFonts();
}

void DYXWindowController::setDecimalMode(std::int32_t mode) {
    settings_.decimalMode = mode;
    fixDecimalSeparator();
    updateDisplay();
}

void DYXWindowController::fixDecimalSeparator() {
    const std::u16string local = platform().numberFormat().decimalSeparator;
    char16_t separator = settings_.decimalMode == 2 ? u',' : u'.';
    if (settings_.decimalMode == 0 && !local.empty()) {
        separator = local.front();
    }
    for (DYXOutputDisplay* line : lines()) {
        line->setDecimalSeparator(separator);
    }
    NSButton& decimalButton = views_->keyPad.button(command("data", ".   "));
    const bool hasImage = separator == u'.' || separator == u',';
    decimalButton.setTitle(hasImage ? u"" : std::u16string(1, separator));
    decimalButton.setImage(separator == u'.'   ? u"pointSmall.tiff"
                           : separator == u',' ? u"commaSmall.tiff"
                                               : u"");
    decimalButton.setImagePosition(hasImage ? NSImagePosition::imageOnly
                                            : NSImagePosition::noImage);
    hotKeys_->followDecimalSeparator(separator);
    decimalButton.setToolTip(decimalButton.accessibilityLabel());
    views_->keyPad.view()->renewStatusLine(decimalButton, *hotKeys_);
    // The groups' separator has to differ from it.
    updateDigitGrouping();
    syncDisplays();
}

void DYXWindowController::applicationWillBecomeActive() {
    fixDecimalSeparator();
    updateDisplay();
}

void DYXWindowController::takeHPStylePowerAndLogsFrom(std::optional<bool> useHPStyle) {
    useHPStylePowerAndLogs = useHPStyle.value_or(useHPStylePowerAndLogs);
    NSButton& powerButton = views_->keyPad.button(command("bina", "^   "));
    NSButton& logbaseButton = views_->keyPad.button(command("bina", "~   "));
    powerButton.setImage(useHPStylePowerAndLogs ? u"powyxSmall.tiff" : u"powxySmall.tiff");
    powerButton.setImagePosition(NSImagePosition::imageOnly);
    logbaseButton.setImage(useHPStylePowerAndLogs ? u"lnyxSmall.tiff" : u"lnxySmall.tiff");
    logbaseButton.setImagePosition(NSImagePosition::imageOnly);
}

}  // namespace talvex
