#pragma once

#include "display/LineSettings.h"
#include "entry/EntryState.h"

// How a digit and the decimal key change an entry, by input mode.
namespace talvex {

// Whether the alert sounds for a key. A digit that the text has no room for is dropped quietly.
enum class KeyAnswer { quiet, alert };

KeyAnswer appendPlain(EntryState& entry, char character, const LineSettings& settings);
KeyAnswer appendScientific(EntryState& entry, char character, const LineSettings& settings);
KeyAnswer appendFraction(EntryState& entry, char character, const LineSettings& settings);
KeyAnswer appendDMS(EntryState& entry, char character, const LineSettings& settings);
KeyAnswer appendBinary(EntryState& entry, char character, const LineSettings& settings);

KeyAnswer appendDecimalScientific(EntryState& entry);
KeyAnswer appendDecimalFraction(EntryState& entry);
KeyAnswer appendDecimalHMS(EntryState& entry);
KeyAnswer appendDecimalDMS(EntryState& entry);

}  // namespace talvex
