#pragma once

#include <memory>

#include "display/DYXOutputDisplay.h"
#include "platform/NSPopUpButton.h"
#include "platform/NSWindow.h"
#include "ui/DYXView.h"
#include "ui/KeyPad.h"

namespace talvex {

// The records of the calculator window and of everything in it, in the layout that it starts with.
struct WindowViews {
    explicit WindowViews(LogPort& log);

    NSWindow window;
    std::shared_ptr<DYXView> contentView;
    std::shared_ptr<DYXDisplayView> displayView;
    DisplayFields xFields;
    std::shared_ptr<NSPopUpButton> inputModePopUp;
    std::shared_ptr<NSPopUpButton> outputModePopUp;
    std::shared_ptr<NSPopUpButton> angleModePopUp;
    std::shared_ptr<NSButton> xyztButton;  // stands in the title bar
    NSMenu menu;                           // opened by a button and by the right mouse button
    KeyPad keyPad;
};

}  // namespace talvex
