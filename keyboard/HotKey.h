#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/Comand.h"

namespace talvex {

// What a row of the keyboard table asks about the calculator. `hexInput` is read by its own test
// alone.
enum HotKeyCondition : std::int32_t {
    storeCondition = 1,
    recallCondition = 2,
    inverseCondition = 4,
    hyperbolicCondition = 8,
    hexInputCondition = 16,
};

// How the conditions of a row's mask decide whether it applies.
enum class HotKeyTest : std::int32_t {
    any = 0,       // at least one of store, recall, inverse, hyperbolic named holds
    all = 1,       // all that are named hold; an empty mask always applies
    none = 2,      // none that is named holds
    hexInput = 3,  // the mask names `hexInput`, and the input mode is HEX
};

struct HotKey {
    Comand command;
    char16_t key = 0;  // letters in lower case
    std::int32_t modifierMask = 0;
    HotKeyTest modifierTest = HotKeyTest::all;
};

// The state that the tests look at.
struct HotKeyState {
    bool isStoreArmed = false;
    bool isRecallArmed = false;
    bool isInverse = false;
    bool isHyperbolic = false;
    bool isHexInput = false;
};

// All rows. The order counts: the first row that applies wins, which is how a letter is a digit
// in HEX input and a function elsewhere.
[[nodiscard]] std::span<const HotKey> hotKeyRows();

// The keyboard of one calculator: the rows, of which one follows the decimal separator.
class HotKeys {
  public:
    HotKeys();

    // The first row for the character that applies, or null. Capital letters count as small ones.
    [[nodiscard]] const HotKey* find(char16_t character, const HotKeyState& state) const;

    // Makes the separator a key for the decimal point, unless it is one already: the first row of
    // the point gets it.
    void followDecimalSeparator(char16_t separator);

    // All keys of a command as a text such as "[s]" or "[\u23CE|\u2324]", in the mark-up of status
    // texts; empty if no key that a text can name has it.
    [[nodiscard]] std::u16string hotKeyStringForCommand(const Comand& command) const;

    [[nodiscard]] std::span<const HotKey> rows() const { return rows_; }

  private:
    std::vector<HotKey> rows_;
};

// The key of a row with its modifier keys, in the mark-up of status texts; empty for the rows whose
// conditions no single key combination meets.
[[nodiscard]] std::u16string stringForHotKey(const HotKey& hotKey);

// The character that shows a key; printable keys show as themselves.
[[nodiscard]] char16_t unicharForKeyStroke(char16_t key);

}  // namespace talvex
