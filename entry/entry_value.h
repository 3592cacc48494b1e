#pragma once

#include "display/LineSettings.h"
#include "entry/EntryState.h"

// What an entry is worth, by input mode; the error "input error" if it can't be read. Decimal texts
// are read to the nearest double; a text longer than its integer type gives the type's limit.
namespace talvex {

double scientificValue(const EntryState& entry, const LineSettings& settings);
double monetaryValue(const EntryState& entry, const LineSettings& settings);
double fractionValue(const EntryState& entry, const LineSettings& settings);
double carpentryValue(const EntryState& entry, const LineSettings& settings);
double hmsValue(const EntryState& entry, const LineSettings& settings);
double dmsValue(const EntryState& entry, const LineSettings& settings);
double hexValue(const EntryState& entry, const LineSettings& settings);
double decimalValue(const EntryState& entry, const LineSettings& settings);
double octalValue(const EntryState& entry, const LineSettings& settings);
double binaryValue(const EntryState& entry, const LineSettings& settings);

}  // namespace talvex
