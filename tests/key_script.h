#pragma once

#include <string>
#include <string_view>

#include "edit_state.h"
#include "platform/HeadlessPlatform.h"

namespace talvex {

// A calculator that is driven as a manual is read: press("1 2 ENTER 3 +").
class KeyScript {
  public:
    // Each word is the name of a key or, of one character, a digit; "M05" is a register key, "R05",
    // "S05" and "+05" recall, store and add to one directly; eight characters are a command as it
    // stands. Any other word is an error of the script and throws.
    void press(std::string_view keys);
    // A command as a button carries it, for codes that have no name here: "unitSQR ".
    void run(std::string_view command);
    void inMode(std::int32_t inputMode) {
        calculator.xDisplay().setInputSettings({.inputMode = inputMode});
    }
    void setStack(double x, double y, double z, double t) {
        edit(calculator, [&](CalculatorState& state) { state.stack.reg = {x, y, z, t}; });
    }

    [[nodiscard]] double x() const { return calculator.stack().reg[0]; }
    [[nodiscard]] double y() const { return calculator.stack().reg[1]; }
    [[nodiscard]] const DYXInputDisplay& entry() const { return calculator.xDisplay(); }
    // The slots of the X line as "sign|mantissa|exponent sign|exponent".
    [[nodiscard]] std::string line() const;
    [[nodiscard]] std::string status() const;
    // How often the alert has sounded since the last question.
    int beeps();

    HeadlessPlatform platform;
    DYXCalculator calculator{platform};
};

}  // namespace talvex
