#pragma once

#include <string>
#include <string_view>

#include "fuzz_input.h"
#include "platform/HeadlessPlatform.h"
#include "ui/DYXWindowController.h"

namespace talvex {

// A command in string form as the bytes of an input that `act` runs it for.
void appendCommand(std::string& bytes, std::u16string_view command);

// Does what the next bytes say: a command, a key, a click, an item of the menu, a setting of any
// value, a paste, another locale.
void act(DYXWindowController& calculator, HeadlessPlatform& platform, FuzzInput& input);

// What holds after whatever was done.
void checkInvariants(DYXWindowController& calculator);

}  // namespace talvex
