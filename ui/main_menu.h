#pragma once

#include "platform/NSMenu.h"

namespace talvex {

class DYXWindowController;

// The menu of the calculator: everything that can be set, and the clipboard. The controller has to
// outlive it. `validateMenu` brings check marks, titles and enabled states up to date.
NSMenu mainMenu(DYXWindowController& controller);

// The menus of the controls in the display.
NSMenu outputModeMenu(DYXWindowController& controller);
NSMenu inputModeMenu(DYXWindowController& controller);
NSMenu angleModeMenu(DYXWindowController& controller);

}  // namespace talvex
