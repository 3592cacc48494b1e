#include "entry/entry_editing.h"

#include "entry/entry_fields.h"

namespace talvex {
namespace {

constexpr std::size_t kFractionDigits = 5;
constexpr std::size_t kBinaryDigits = 32;

// Ends the field being typed: pads it with zeros on its left to its full width, or adds a field of
// zeros when it is full already. Once the seconds are complete, their decimals follow.
KeyAnswer padToEndOfField(EntryState& entry, const EntryFields& fields) {
    std::size_t start = 0;
    for (const std::size_t end : fields.ends) {
        if (entry.text.size() < end) {
            entry.text.insert(start, end - entry.text.size(), '0');
            break;
        }
        start = end;
    }
    entry.hasDecimal = entry.text.size() >= fields.width();
    return KeyAnswer::quiet;
}

}  // namespace

KeyAnswer appendPlain(EntryState& entry, char character, const LineSettings& settings) {
    entry.append(character, settings.maxDigits);
    return KeyAnswer::quiet;
}

KeyAnswer appendScientific(EntryState& entry, char character, const LineSettings& settings) {
    if (!entry.inExponent) {
        return appendPlain(entry, character, settings);
    }
    entry.exponentDigits = {entry.exponentDigits[1], character};
    return KeyAnswer::quiet;
}

KeyAnswer appendFraction(EntryState& entry, char character, const LineSettings& settings) {
    const std::size_t digits = entry.hasFraction  ? entry.denominatorDigits
                               : entry.hasDecimal ? entry.decimals
                                                  : 0;
    return digits < kFractionDigits ? appendPlain(entry, character, settings) : KeyAnswer::alert;
}

KeyAnswer appendDMS(EntryState& entry, char character, const LineSettings& settings) {
    entry.hasDecimal = entry.text.size() >= kDegreesFields.width();
    return appendPlain(entry, character, settings);
}

KeyAnswer appendBinary(EntryState& entry, char character, const LineSettings& /*settings*/) {
    if (entry.text.size() < kBinaryDigits) {
        entry.text += character;
    }
    return KeyAnswer::quiet;
}

KeyAnswer appendDecimalScientific(EntryState& entry) {
    if (!entry.inExponent && !entry.hasDecimal) {
        entry.decimals = 0;
    }
    entry.hasDecimal = true;
    return KeyAnswer::quiet;
}

KeyAnswer appendDecimalFraction(EntryState& entry) {
    if (entry.hasFraction) {
        return KeyAnswer::alert;
    }
    entry.hasFraction = entry.hasDecimal;
    entry.hasDecimal = true;
    return KeyAnswer::quiet;
}

KeyAnswer appendDecimalHMS(EntryState& entry) { return padToEndOfField(entry, kHoursFields); }
KeyAnswer appendDecimalDMS(EntryState& entry) { return padToEndOfField(entry, kDegreesFields); }

}  // namespace talvex
