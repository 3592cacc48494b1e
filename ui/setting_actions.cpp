// The actions of menu items and buttons: each changes one setting and refreshes what depends on it.

#include <algorithm>
#include <limits>

#include "ui/DYXWindowController.h"

namespace talvex {
namespace {

constexpr std::int32_t kAngleModes = 5;
constexpr std::int32_t kDecimalModes = 3;
// Stepping leaves out IRR, which only a menu selects.
constexpr std::int32_t kSteppedModes = 12;
constexpr std::uint32_t kDigits = 10;

std::int32_t next(std::int32_t value, std::int32_t count) {
    return static_cast<std::int32_t>((std::int64_t{value} + 1) % count);
}

std::int32_t following(std::int32_t value) {
    return value == std::numeric_limits<std::int32_t>::max() ? value : value + 1;
}

// An item shows the setting, and a choice of it turns it over.
bool turnedOver(const NSMenuItem& item) { return item.state == 0; }

}  // namespace

void DYXWindowController::takeAngleModeFrom(const NSMenuItem& item) {
    angleMode = AngleMode{item.tag};
    updateDisplay();
}

void DYXWindowController::takeAngleModeFrom(const NSButton& /*sender*/) {
    angleMode = AngleMode{next(static_cast<std::int32_t>(angleMode), kAngleModes)};
    updateDisplay();
}

void DYXWindowController::takeOutputModeFrom(const NSMenuItem& item) {
    xDisplay().setOutputMode(item.tag);
    followModes();
}

void DYXWindowController::takeOutputModeFrom(const NSButton& /*sender*/) {
    xDisplay().setOutputMode(next(xDisplay().outputMode(), kSteppedModes));
    followModes();
}

void DYXWindowController::takeInputModeFrom(const NSMenuItem& item) {
    xDisplay().setInputMode(item.tag);
    followModes();
}

void DYXWindowController::takeInputModeFrom(const NSButton& /*sender*/) {
    xDisplay().setInputMode(next(xDisplay().inputMode(), kSteppedModes));
    followModes();
}

void DYXWindowController::followModes() {
    updateDigitGrouping();
    updateFonts();
    syncDisplays();
    updateDisplay();
    updateButtons();
}

void DYXWindowController::takeLockOutputAndInputFrom(const NSMenuItem& /*item*/) {
    setUnlocked(!xDisplay().unlockInputAndOutputModes());
}

void DYXWindowController::takeLockOutputAndInputFrom(const NSButton& sender) {
    setUnlocked(sender.state() == 1);
}

void DYXWindowController::setUnlocked(bool isUnlocked) {
    xDisplay().setUnlockInputAndOutputModes(isUnlocked);
    updateDigitGrouping();
    updateFonts();
    syncDisplays();
    updateLock();
    updateDisplay();
}

void DYXWindowController::takeDecimalModeFrom(const NSMenuItem& item) { setDecimalMode(item.tag); }

void DYXWindowController::takeDecimalModeFrom(const NSButton& /*sender*/) {
    setDecimalMode(next(settings_.decimalMode, kDecimalModes));
}

void DYXWindowController::takeDigitsFrom(const NSMenuItem& item) {
    xDisplay().setDigits(static_cast<std::uint32_t>(item.tag) % kDigits);
    followLine();
}

void DYXWindowController::takeDigitsFrom(const NSButton& /*sender*/) {
    xDisplay().setDigits((xDisplay().digits() % kDigits + 1) % kDigits);
    followLine();
}

void DYXWindowController::takeDigitGroupingSeparatorFrom(const NSMenuItem& item) {
    setDigitGroupingSeparatorMode(item.tag);
    followLine();
}

void DYXWindowController::takeDigitGroupingSeparatorFrom(const NSButton& /*sender*/) {
    setDigitGroupingSeparatorMode(following(settings_.digitGroupingSeparatorMode));
    followLine();
}

void DYXWindowController::takeDigitGroupingDigitsFrom(const NSMenuItem& item) {
    setDigitGroupingDigitsMode(item.tag);
    followLine();
}

void DYXWindowController::takeDigitGroupingDigitsFrom(const NSButton& /*sender*/) {
    setDigitGroupingDigitsMode(following(settings_.digitGroupingDigitsMode));
    followLine();
}

void DYXWindowController::takeFontModeFrom(const NSMenuItem& item) { setFontMode(item.tag); }

void DYXWindowController::takeFontModeFrom(const NSButton& /*sender*/) {
    setFontMode(following(settings_.fontMode));
}

void DYXWindowController::takeIncludeDigitGroupingWhenCopyingFrom(const NSMenuItem& /*item*/) {
    settings_.includeDigitGroupingWhenCopying = !settings_.includeDigitGroupingWhenCopying;
}

void DYXWindowController::takeRegisterLabelsHiddenFrom(const NSMenuItem& /*item*/) {
    settings_.registerLabelsHidden = !settings_.registerLabelsHidden;
    updateLabels();
}

void DYXWindowController::takeXRegisterLabelAutomaticallyHiddenFrom(const NSMenuItem& /*item*/) {
    settings_.autoHideXLabel = !settings_.autoHideXLabel;
    updateLabels();
    updateDisplay();
}

void DYXWindowController::takeWindowSizingAnimationFrom(const NSMenuItem& item) {
    settings_.animateWindow = turnedOver(item);
}

void DYXWindowController::takeHPStylePowerAndLogsFrom(const NSMenuItem& item) {
    takeHPStylePowerAndLogsFrom(std::optional(turnedOver(item)));
}

void DYXWindowController::takeCarpentryFractionsReducedFrom(const NSMenuItem& item) {
    xDisplay().setReduceCarpentryFractions(turnedOver(item));
    followLine();
}

void DYXWindowController::takeDisplayIrrationalsFrom(const NSMenuItem& item) {
    xDisplay().setDisplayIrrationals(turnedOver(item));
    followLine();
}

void DYXWindowController::followLine() {
    syncDisplays();
    updateDisplay();
}

}  // namespace talvex
