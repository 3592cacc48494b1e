#pragma once

#include "display/LineSettings.h"
#include "display/LineText.h"
#include "entry/EntryState.h"

// The live entry as a line shows it, by input mode: ungrouped, not rounded, without a status.
namespace talvex {

LineText scientificEcho(const EntryState& entry, const LineSettings& settings);
LineText fractionEcho(const EntryState& entry, const LineSettings& settings);
LineText carpentryEcho(const EntryState& entry, const LineSettings& settings);
LineText hmsEcho(const EntryState& entry, const LineSettings& settings);
LineText dmsEcho(const EntryState& entry, const LineSettings& settings);
LineText hexEcho(const EntryState& entry, const LineSettings& settings);
LineText decimalEcho(const EntryState& entry, const LineSettings& settings);
LineText octalEcho(const EntryState& entry, const LineSettings& settings);
LineText binaryEcho(const EntryState& entry, const LineSettings& settings);

}  // namespace talvex
