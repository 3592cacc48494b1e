#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "display/DYXOutputDisplay.h"
#include "entry/EntryState.h"
#include "entry/InputSettings.h"
#include "platform/Platform.h"

namespace talvex {

// The line of the X register. While no entry is live it formats X like every line; while one is, it
// holds the typed characters, never a running number. Typing edits the entry by the rules of the
// input mode, `doubleValue` says what it is worth, and `update` echoes it.
//
// The caller asks the question whose name begins with "can" first, and calls the operation that
// belongs to it only on a yes. Questions look at the mode and the character alone; a digit that is
// one too many is refused by the operation itself.
class DYXInputDisplay final : public DYXOutputDisplay {
  public:
    // `alert` sounds for refused keys and has to outlive the line.
    DYXInputDisplay(AlertPort& alert, DisplayFields fields);

    [[nodiscard]] const InputSettings& inputSettings() const { return input_; }
    // Doesn't touch the entry: its characters are read by the rules of the new mode from then on.
    void setInputSettings(const InputSettings& settings) { input_ = settings; }
    [[nodiscard]] std::int32_t inputMode() const { return input_.inputMode; }
    [[nodiscard]] bool unlockInputAndOutputModes() const {
        return input_.unlockInputAndOutputModes;
    }
    [[nodiscard]] std::int32_t effectiveOutputMode() const override;
    // The title of `inputMode`; "???" outside 0 to 12.
    [[nodiscard]] std::u16string inputModeTitle() const;

    [[nodiscard]] const EntryState& entry() const { return entry_; }
    void setEntry(EntryState entry) { entry_ = std::move(entry); }
    // Empties the entry.
    void reset() { entry_ = {}; }

    [[nodiscard]] bool canSetToCharacter(char character) const;
    void setToCharacter(char character);
    [[nodiscard]] bool canAppendCharacter(char character) const {
        return canSetToCharacter(character);
    }
    void appendCharacter(char character);

    [[nodiscard]] bool canSetToDecimal() const;
    // Starts an entry with the decimal key.
    void setToDecimal();
    [[nodiscard]] bool canAppendDecimal() const { return canSetToDecimal(); }
    void appendDecimal();

    [[nodiscard]] bool canSetTo1E0() const;
    // Starts the entry 1 with an exponent of "00", digits going to the exponent.
    void setTo1E0() { entry_.startWithOne(); }
    // Starts the entry 1 with an exponent of a sign and two digits, such as "-03".
    void setTo1E(std::string_view exponent);
    // Sets the exponent of the live entry and goes into it.
    void setExponentTo(std::string_view exponent);
    [[nodiscard]] bool canToggleInExponent() const { return canSetTo1E0(); }
    void toggleInExponent() { entry_.inExponent = !entry_.inExponent; }

    [[nodiscard]] bool canChangeSign() const;
    void changeSign() { entry_.changeSign(); }
    void removeCharacter() { entry_.removeCharacter(); }

    // What the entry is worth in the input mode; the error "input error" if it can't be read.
    [[nodiscard]] double doubleValue() const;

    // Echoes the entry in the line's slots, all but the label.
    void update();

  private:
    [[nodiscard]] const struct EntryRules& rules() const;

    AlertPort& alert_;
    InputSettings input_;
    EntryState entry_;
};

}  // namespace talvex
