#include "display/DisplayFields.h"

namespace talvex {

DisplayFields plainFields() {
    const auto slot = [] { return std::make_shared<NSTextField>(); };
    return {.mantissa = slot(),
            .mantissaSign = slot(),
            .exponent = slot(),
            .exponentSign = slot(),
            .label = slot(),
            .status = slot()};
}

}  // namespace talvex
