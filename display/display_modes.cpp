#include "display/display_modes.h"

#include <cstddef>
#include <string_view>

namespace talvex {
namespace {

constexpr std::u16string_view kUnknown = u"???";

}  // namespace

std::u16string displayModeName(std::int32_t number) {
    return std::u16string(isDisplayMode(number)
                              ? kDisplayModeNames.at(static_cast<std::size_t>(number)).code
                              : kUnknown);
}

}  // namespace talvex
