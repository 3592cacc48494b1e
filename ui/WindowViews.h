#pragma once

#include <memory>

#include "display/DYXOutputDisplay.h"
#include "platform/NSPopUpButton.h"
#include "platform/NSWindow.h"
#include "platform/WebView.h"
#include "ui/DYXView.h"
#include "ui/KeyPad.h"
#include "ui/Panel.h"

namespace talvex {

// The records of the help window: the matrix of its pages and the view that shows one.
struct HelpViews {
    explicit HelpViews(const BundlePort& titles);

    NSWindow window;
    std::shared_ptr<NSMatrix> matrix;
    WebView webView;
};

// The records of the calculator window and of everything in it, in the layout that it starts with.
struct WindowViews {
    // The hot keys have to outlive the views.
    WindowViews(Platform& platform, const HotKeys& hotKeys);

    // Of the key pad and of all drawers.
    [[nodiscard]] std::vector<Key> allKeys() const;

    NSWindow window;
    std::shared_ptr<DYXView> contentView;
    std::shared_ptr<DYXDisplayView> displayView;
    DisplayFields xFields;
    std::shared_ptr<NSPopUpButton> inputModePopUp;
    std::shared_ptr<NSPopUpButton> outputModePopUp;
    std::shared_ptr<NSPopUpButton> angleModePopUp;
    std::shared_ptr<NSButton> xyztButton;  // stand in the title bar
    std::shared_ptr<NSButton> statusButton;
    NSMenu menu;  // opened by a button and by the right mouse button
    KeyPad keyPad;
    Panel memoryPanel;
    Panel constantsPanel;
    Panel functionsPanel;
    ConversionPanel conversionPanel;
    HelpViews help;
};

}  // namespace talvex
