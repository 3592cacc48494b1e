#include "ui/WindowViews.h"

#include <string>

#include "ui/help_pages.h"
#include "ui/window_layout.h"

namespace talvex {
namespace {

constexpr double kLabelFontSize = 10.0;
constexpr double kStatusFontSize = 10.0;
constexpr double kPopUpFontSize = 10.0;
constexpr NSSize kHelpSize{760.0, 640.0};
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

// A place in the title bar, which keeps its distance from the upper right corner.
constexpr double kTitleBarButtonSide = 13.0;
constexpr double kTitleBarButtonTop = 18.0;

std::shared_ptr<NSButton> makeTitleBarButton(double fromRight, const std::u16string& image,
                                             const std::u16string& alternateImage,
                                             std::u16string accessibilityLabel) {
    const NSRect window = NSWindow::frameRectForContentRect(contentFrame({}));
    auto button = std::make_shared<NSButton>(NSRect{.x = window.width - fromRight,
                                                    .y = window.height - kTitleBarButtonTop,
                                                    .width = kTitleBarButtonSide,
                                                    .height = kTitleBarButtonSide});
    button->setAutoresizingMask(NSViewMinXMargin | NSViewMinYMargin);
    button->setImage(image);
    button->setAlternateImage(alternateImage);
    button->setToolTip(accessibilityLabel);
    button->setAccessibilityLabel(std::move(accessibilityLabel));
    return button;
}

}  // namespace

HelpViews::HelpViews(const BundlePort& titles)
    : matrix(std::make_shared<NSMatrix>(NSRect{}, NSMatrixMode::radio,
                                        static_cast<int>(helpPages().size()), 1)) {
    int row = 0;
    for (const HelpPage& page : helpPages()) {
        NSButtonCell cell;
        cell.title = page.title;
        cell.tag = page.tag;
        matrix->setCellAt(row++, 0, std::move(cell));
    }
    matrix->selectCellAtRowColumn(0, 0);
    window.setTitle(titles.localizedString(u"Talvex Help"));
    window.setFrame({.width = kHelpSize.width, .height = kHelpSize.height});
}

WindowViews::WindowViews(Platform& platform, const HotKeys& hotKeys)
    : contentView(std::make_shared<DYXView>(contentFrame({}))),
      displayView(std::make_shared<DYXDisplayView>(displayViewRect())),
      xFields(makeFields(*displayView)),
      inputModePopUp(makePopUp(*displayView, inputModePopUpRect(), u"inp",
                               platform.localizedString(u"input mode"))),
      outputModePopUp(makePopUp(*displayView, outputModePopUpRect(), u"out",
                                platform.localizedString(u"output mode"))),
      angleModePopUp(makePopUp(*displayView, angleModePopUpRect(), u"ang",
                               platform.localizedString(u"angle mode"))),
      xyztButton(makeTitleBarButton(25.0, u"xyztOn", u"xyztOff",
                                    platform.localizedString(u"show the registers Y, Z and T"))),
      statusButton(makeTitleBarButton(44.0, u"statusOn", u"statusOff",
                                      platform.localizedString(u"show the status line"))),
      keyPad(platform),
      memoryPanel(makeMemoryPanel(platform)),
      constantsPanel(makeConstantsPanel(platform)),
      functionsPanel(makeFunctionsPanel(platform)),
      conversionPanel(makeConversionPanel(platform, hotKeys)),
      help(platform) {
    displayView->setAutoresizingMask(NSViewWidthSizable | NSViewMinYMargin);
    contentView->addSubview(displayView);
    contentView->addSubview(keyPad.view());
    window.setTitle(u"Talvex");
    window.setContentView(contentView);
    window.setFrame(NSWindow::frameRectForContentRect(contentFrame({})));
    window.frameView().addSubview(xyztButton);
    window.frameView().addSubview(statusButton);
    window.makeFirstResponder(displayView.get());
}

std::vector<Key> WindowViews::allKeys() const {
    std::vector<Key> all = keyPad.keys();
    const auto append = [&all](const std::vector<Key>& keys) {
        all.insert(all.end(), keys.begin(), keys.end());
    };
    append(memoryPanel.keys);
    append(constantsPanel.keys);
    append(functionsPanel.keys);
    for (const std::vector<Key>& page : conversionPanel.pages) {
        append(page);
    }
    return all;
}

}  // namespace talvex
