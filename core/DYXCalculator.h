#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <utility>

#include "core/Comand.h"
#include "core/DYXStack.h"
#include "core/converter_table.h"
#include "core/memory_registers.h"
#include "display/DYXOutputDisplay.h"
#include "entry/DYXInputDisplay.h"
#include "numeric/DYXMathContext.h"
#include "platform/Platform.h"

namespace talvex {

// Where X is, and what the next digit does.
enum class InputState : std::int32_t {
    entering = 0,   // X is the text of the entry; the digit goes on with it
    replacing = 1,  // X is in its register; the digit replaces it
    lifting = 2,    // X is in its register; the digit lifts the stack first
};

// A memory register operation that the next register key completes; the numbers are those of the
// store keys.
inline constexpr std::int32_t kNothingArmed = 0;
inline constexpr std::int32_t kPlainStore = 1;

// A whole calculator without a window: registers, modifiers, five lines, and the one path that
// every command takes. It knows no keys and no layout; where it makes something visible beyond its
// lines it calls `updateModifiers` and `updateControls`, which do nothing here.
class DYXCalculator : public DYXMathContext {
  public:
    // The slots are those of the X line; the other lines get copies. The platform has to outlive
    // the calculator.
    explicit DYXCalculator(Platform& platform, const DisplayFields& fields = plainFields());
    DYXCalculator(const DYXCalculator&) = delete;
    DYXCalculator& operator=(const DYXCalculator&) = delete;
    virtual ~DYXCalculator() = default;

    // Runs a command: its handler, the rounding of X in input mode MON, and the display; then the
    // command becomes `lastCommand`. Answers whether a handler knows it; an unknown one changes no
    // register and no state.
    bool doCommand(const Comand& command);
    // A press of a key: its command, with the modifiers as they are; then clears the modifiers that
    // the press used up.
    void press(const Comand& command);

    // Brings X up to date with the entry, if one is live. Doesn't change the state.
    void updateRegister();
    // Shows the registers on the lines, and what depends on them.
    void updateDisplay();

    [[nodiscard]] InputState inputState() const { return inputState_; }
    void setInputState(InputState state) { inputState_ = state; }
    [[nodiscard]] const Comand& lastCommand() const { return lastCommand_; }
    [[nodiscard]] DYXStack& stack() { return stack_; }
    [[nodiscard]] const DYXStack& stack() const { return stack_; }
    [[nodiscard]] std::array<double, kMemoryRegisters>& mem() { return mem_; }
    [[nodiscard]] const std::array<double, kMemoryRegisters>& mem() const { return mem_; }
    // The quantity of each group of units, in its base unit; 0 at every start.
    [[nodiscard]] std::array<double, kConversionRegisters>& converted() { return converted_; }
    [[nodiscard]] const std::array<double, kConversionRegisters>& converted() const {
        return converted_;
    }

    [[nodiscard]] bool recall() const { return recall_; }
    void setRecall(bool recall) { recall_ = recall; }
    // What is armed: 0 nothing, 1 store, 2 to 5 store with +, -, *, /.
    [[nodiscard]] std::int32_t store() const { return store_; }
    void setStore(std::int32_t store) { store_ = store; }

    [[nodiscard]] DYXInputDisplay& xDisplay() { return *xDisplay_; }
    [[nodiscard]] const DYXInputDisplay& xDisplay() const { return *xDisplay_; }
    [[nodiscard]] DYXOutputDisplay& yDisplay() { return *yDisplay_; }
    [[nodiscard]] DYXOutputDisplay& zDisplay() { return *zDisplay_; }
    [[nodiscard]] DYXOutputDisplay& tDisplay() { return *tDisplay_; }
    // Not on show: formats numbers for the clipboard.
    [[nodiscard]] DYXOutputDisplay& cDisplay() { return *cDisplay_; }

    // Shows which modifiers are on.
    virtual void updateModifiers() {}

  protected:
    // Brings everything up to date that shows the calculator's state besides the lines.
    virtual void updateControls() {}
    [[nodiscard]] Platform& platform() const { return platform_; }

  private:
    void roundMonetaryX();
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
    void operateOnRegister(std::int32_t operation, unsigned number);

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
    InputState inputState_ = InputState::lifting;
    Comand lastCommand_;
    DYXStack stack_;
    std::array<double, kMemoryRegisters> mem_{};
    std::array<double, kConversionRegisters> converted_{};
    bool recall_ = false;
    std::int32_t store_ = kNothingArmed;
    std::unique_ptr<DYXInputDisplay> xDisplay_;
    std::unique_ptr<DYXOutputDisplay> yDisplay_;
    std::unique_ptr<DYXOutputDisplay> zDisplay_;
    std::unique_ptr<DYXOutputDisplay> tDisplay_;
    std::unique_ptr<DYXOutputDisplay> cDisplay_;
};

}  // namespace talvex
