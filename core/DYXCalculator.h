#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <utility>

#include "core/CalculatorState.h"
#include "display/DYXOutputDisplay.h"
#include "entry/DYXInputDisplay.h"
#include "numeric/DYXMathContext.h"
#include "platform/Platform.h"

namespace talvex {

// A whole calculator without a window: registers, modifiers, five lines, and the one path that
// every command takes. It knows no keys and no layout.
class DYXCalculator {
  public:
    // The slots are those of the X line; the other lines get copies. The platform has to outlive
    // the calculator.
    explicit DYXCalculator(Platform& platform, const DisplayFields& fields = plainFields());

    // Runs a command: its handler, the rounding of X in input mode MON, and the display; then the
    // command becomes `lastCommand`. Answers whether a handler knows it; an unknown one changes no
    // register and no state.
    bool doCommand(const Comand& command);
    // A press of a key: its command, with the modifiers as they are; then clears the modifiers that
    // the press used up.
    bool press(const Comand& command);

    // Whether the input mode takes what the command enters; one that enters nothing is taken.
    [[nodiscard]] bool takesEntryOf(const Comand& command) const;

    // Shows the registers on the lines.
    void updateDisplay();
    // Is called whenever the lines show the registers anew.
    void setDidUpdateDisplay(std::function<void()> didUpdate) {
        didUpdateDisplay_ = std::move(didUpdate);
    }
    // Makes the lines Y, Z, T and C follow X; C groups no digits.
    void syncDisplays();

    // All that a command may change, as one value.
    [[nodiscard]] CalculatorState state() const;
    void setState(const CalculatorState& state);
    [[nodiscard]] const DYXStack& stack() const { return now_.stack; }
    [[nodiscard]] const auto& mem() const { return now_.mem; }
    [[nodiscard]] const auto& converted() const { return now_.converted; }
    [[nodiscard]] InputState inputState() const { return now_.inputState; }
    [[nodiscard]] const Comand& lastCommand() const { return now_.lastCommand; }
    [[nodiscard]] const Comand& unitOfX() const { return now_.unitOfX; }
    [[nodiscard]] const Modifiers& modifiers() const { return now_.modifiers; }
    void setModifiers(const Modifiers& modifiers) { now_.modifiers = modifiers; }

    // A number from outside: takes the place of a live entry, and else is pushed onto the stack.
    void bringPasted(double number);
    // Finishes a live entry as ENTER does.
    void finishEntry();
    // Puts the stack, X included, and the first memory registers back.
    void restore(const DYXStack& stack, std::span<const double, kSavedRegisters> memory);

    // The settings of the functions.
    [[nodiscard]] AngleMode angleMode() const { return angleMode_; }
    void setAngleMode(AngleMode mode) { angleMode_ = mode; }
    void setUseHPStylePowerAndLogs(bool use) { useHPStylePowerAndLogs_ = use; }
    // The settings and modifiers that functions may read.
    [[nodiscard]] DYXMathContext context() const;

    [[nodiscard]] DYXInputDisplay& xDisplay() { return *xDisplay_; }
    [[nodiscard]] const DYXInputDisplay& xDisplay() const { return *xDisplay_; }
    [[nodiscard]] DYXOutputDisplay& yDisplay() { return *yDisplay_; }
    [[nodiscard]] DYXOutputDisplay& zDisplay() { return *zDisplay_; }
    [[nodiscard]] DYXOutputDisplay& tDisplay() { return *tDisplay_; }
    // Not on show: formats numbers for the clipboard.
    [[nodiscard]] DYXOutputDisplay& cDisplay() { return *cDisplay_; }

  private:
    // Brings X up to date with the entry, if one is live. Doesn't change the input state.
    void updateRegister();
    void roundMonetaryX();
    void followUnitOfX(const Comand& command, bool isKnown, double oldX);
    void clearUsedModifiers(const Comand& command);

    bool doCommandStack(const Comand& command);

    // Data entry, in data_entry_commands.cpp.
    bool doCommandDataEntry(const Comand& command);
    bool doCommandDataEntryDigit(const Comand& command);
    void doCommandDataEntryDecimal();
    void doCommandDataEntryBackspace();
    void doCommandDataEntryEEX();
    bool doCommandDataEntrySetExponent(const Comand& command);
    void doCommandDataEntryChangeSign();
    void doCommandDataEntryEnter();
    void doCommandDataEntryClear();
    void doCommandDataEntryClearStack();
    void doCommandDataEntryClearAll();
    template <class Start>
    void startEntry(Start start);
    void beginReplacing();

    // Memory registers, in memory_commands.cpp.
    bool doCommandMemory(const Comand& command);
    void doCommandMemoryDigit(const Comand& command);
    bool doCommandMemoryDirect(const Comand& command);
    void storeOrRecall(Store operation, unsigned number);

    // Units, in conversion_commands.cpp.
    bool doCommandConvert(const Comand& command);
    [[nodiscard]] bool readsConverted(const Comand& command) const;

    // Functions, constants and modifiers, in function_commands.cpp.
    bool doCommandUnitary(const Comand& command);
    bool doCommandBinary(const Comand& command);
    bool doCommandTrinary(const Comand& command);
    bool doCommandQuadranary(const Comand& command);
    bool doCommandNullinary(const Comand& command);
    bool doCommandConstant(const Comand& command);
    bool doCommandModifier(const Comand& command);
    template <class Row, std::size_t... Register>
    bool applyFunction(const Row* row, std::index_sequence<Register...> registers);
    void bringNumber(double number);

    Platform& platform_;
    // Its entry is with the X line.
    CalculatorState now_;
    AngleMode angleMode_ = AngleMode::rad;
    bool useHPStylePowerAndLogs_ = true;
    std::function<void()> didUpdateDisplay_;
    std::unique_ptr<DYXInputDisplay> xDisplay_;
    std::unique_ptr<DYXOutputDisplay> yDisplay_;
    std::unique_ptr<DYXOutputDisplay> zDisplay_;
    std::unique_ptr<DYXOutputDisplay> tDisplay_;
    std::unique_ptr<DYXOutputDisplay> cDisplay_;
};

}  // namespace talvex
