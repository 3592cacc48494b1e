#pragma once

#include <memory>

#include "platform/NSTextField.h"

namespace talvex {

// A text slot of a line. A slot may be absent: writing to it then does nothing.
using TextSlot = std::shared_ptr<NSTextField>;

struct DisplayFields {
    TextSlot mantissa = nullptr;
    TextSlot mantissaSign = nullptr;
    TextSlot exponent = nullptr;
    TextSlot exponentSign = nullptr;
    TextSlot label = nullptr;
    TextSlot status = nullptr;
};

// All six slots, in no window.
[[nodiscard]] DisplayFields plainFields();

}  // namespace talvex
