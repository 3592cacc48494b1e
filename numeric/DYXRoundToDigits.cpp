#include "numeric/DYXRoundToDigits.h"

#include <cmath>

#include "numeric/decimal_text.h"

namespace talvex {

double DYXRoundToDigits(double value, unsigned digits) {
    if (!std::isfinite(value)) {
        return value;
    }
    return parseDecimal(fixedText(value, digits)).value_or(0.0);
}

}  // namespace talvex
