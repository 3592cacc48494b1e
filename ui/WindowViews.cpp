#include "ui/WindowViews.h"

#include <string>

#include "ui/window_layout.h"

namespace talvex {
namespace {

constexpr double kLabelFontSize = 10.0;
constexpr double kStatusFontSize = 10.0;
constexpr double kPopUpFontSize = 10.0;
const NSFont kProportional{.name = u"Lucida Grande", .size = 13.0};

TextSlot makeField(NSView& superview, const NSRect& frame, double fontSize, std::uint32_t mask) {
    auto field = std::make_shared<NSTextField>(frame);
    field->setFont({.name = kProportional.name, .size = fontSize});
    field->setAutoresizingMask(mask);
    superview.addSubview(field);
    return field;
}

// The signs and exponents stay where they are; the mantissa takes up a change of width.
DisplayFields makeFields(NSView& display) {
    const double size = kProportional.size;
    DisplayFields fields{
        .mantissa = makeField(display, mantissaFieldRect(), size, NSViewWidthSizable),
        .mantissaSign = makeField(display, mantissaSignFieldRect(), size, NSViewNotSizable),
        .exponent = makeField(display, exponentFieldRect(), size, NSViewMinXMargin),
        .exponentSign = makeField(display, exponentSignFieldRect(), size, NSViewMinXMargin),
        .label = makeField(display, labelFieldRect(), kLabelFontSize, NSViewNotSizable),
        .status = makeField(display, statusFieldRect(), kStatusFontSize, NSViewWidthSizable)};
    fields.label->setStringValue(u"X:");
    fields.status->setAlignment(NSTextAlignment::right);
    return fields;
}

std::shared_ptr<NSPopUpButton> makePopUp(NSView& superview, const NSRect& frame,
                                         std::u16string title, std::u16string accessibilityLabel) {
    auto popUp = std::make_shared<NSPopUpButton>(frame);
    popUp->setTitle(std::move(title));
    popUp->setToolTip(accessibilityLabel);
    popUp->setAccessibilityLabel(std::move(accessibilityLabel));
    popUp->setFont({.name = kProportional.name, .size = kPopUpFontSize});
    superview.addSubview(popUp);
    return popUp;
}

std::shared_ptr<NSButton> makeTitleBarButton(const std::u16string& image,
                                             const std::u16string& alternateImage,
                                             std::u16string accessibilityLabel) {
    constexpr double kSide = 13.0;
    auto button = std::make_shared<NSButton>(NSRect{.width = kSide, .height = kSide});
    button->setImage(image);
    button->setAlternateImage(alternateImage);
    button->setImagePosition(NSImagePosition::imageOnly);
    button->setToolTip(accessibilityLabel);
    button->setAccessibilityLabel(std::move(accessibilityLabel));
    return button;
}

}  // namespace

WindowViews::WindowViews(LogPort& log)
    : contentView(std::make_shared<DYXView>(contentFrame({}))),
      displayView(std::make_shared<DYXDisplayView>(displayViewRect())),
      xFields(makeFields(*displayView)),
      inputModePopUp(makePopUp(*displayView, inputModePopUpRect(), u"inp", u"input mode")),
      outputModePopUp(makePopUp(*displayView, outputModePopUpRect(), u"out", u"output mode")),
      angleModePopUp(makePopUp(*displayView, angleModePopUpRect(), u"ang", u"angle mode")),
      xyztButton(makeTitleBarButton(u"xyztOn", u"xyztOff", u"show the registers Y, Z and T")),
      keyPad(log) {
    displayView->setAutoresizingMask(NSViewWidthSizable | NSViewMinYMargin);
    contentView->addSubview(displayView);
    contentView->addSubview(keyPad.view());
    window.setTitle(u"Talvex");
    window.setContentView(contentView);
    window.setFrame(NSWindow::frameRectForContentRect(contentFrame({})));
    window.makeFirstResponder(displayView.get());
}

}  // namespace talvex
