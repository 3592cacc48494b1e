#pragma once

#include "platform/NSMenu.h"
#include "state/Settings.h"

namespace talvex {

class DYXWindowController;

// The menu of the calculator: everything that can be set, and the clipboard. The controller has to
// outlive it. `validateMenu` brings check marks, titles and enabled states up to date.
NSMenu mainMenu(DYXWindowController& controller);

// The values of a setting, the present one with a check mark.
NSMenu choicesMenu(DYXWindowController& controller, const SettingRow& setting);

}  // namespace talvex
