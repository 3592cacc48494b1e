#include "entry/DYXInputDisplay.h"

#include <algorithm>
#include <utility>

#include "display/display_modes.h"

namespace talvex {

DYXInputDisplay::DYXInputDisplay(AlertPort& alert, DisplayFields fields)
    : DYXOutputDisplay(std::move(fields)), alert_(alert) {}

std::int32_t DYXInputDisplay::effectiveOutputMode() const {
    return input_.unlockInputAndOutputModes ? outputMode() : input_.inputMode;
}

std::u16string DYXInputDisplay::inputModeTitle() const {
    return modeTitle(ModeTitle::input, input_.inputMode);
}

// A change of mode in mid-entry can leave cuts that don't fit the text.
std::size_t DYXInputDisplay::wholeEnd() const {
    return static_cast<std::size_t>(std::clamp(length() + exp_, 0, length()));
}

std::size_t DYXInputDisplay::numeratorEnd() const {
    return std::max(wholeEnd(), static_cast<std::size_t>(std::clamp(length() + frc_, 0, length())));
}

std::string_view DYXInputDisplay::wholePart() const {
    return std::string_view(text_).substr(0, wholeEnd());
}

std::string_view DYXInputDisplay::numerator() const {
    return std::string_view(text_).substr(wholeEnd(), numeratorEnd() - wholeEnd());
}

std::string_view DYXInputDisplay::denominator() const {
    return std::string_view(text_).substr(numeratorEnd());
}

}  // namespace talvex
