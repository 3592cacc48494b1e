#pragma once

#include <string>
#include <string_view>

#include "core/DYXCalculator.h"
#include "platform/HeadlessPlatform.h"

namespace talvex {

// UTF-8, for messages and for expected texts that can be read.

// A calculator that is driven as a manual is read: press("1 2 ENTER 3 +").
class KeyScript {
  public:
    // Each word is a key: a digit, a sign, or the name of the key; "M05" and "R05", "S05" are the
    // register keys and the direct recall and store. A word of four or more letters that is no
    // key is an error of the script and throws.
    void press(std::string_view keys);
    // A command as a button carries it, for codes that have no name here: "unitSQR ".
    void run(std::string_view command);
    void inMode(std::int32_t inputMode) { calculator.xDisplay().setInputMode(inputMode); }
    void setStack(double x, double y, double z, double t) { calculator.stack().reg = {x, y, z, t}; }

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
