#include "display/display_modes.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace talvex {
namespace {

constexpr auto kNames =
    tableOfModes<std::u16string_view>({u"FIX", u"SCI", u"ENG", u"MON", u"FRC", u"CAR", u"HMS",
                                       u"DMS", u"HEX", u"DEC", u"OCT", u"BIN", u"IRR"});

constexpr std::u16string_view kUnknown = u"???";

}  // namespace

std::u16string displayModeName(std::int32_t number) {
    return std::u16string(isDisplayMode(number) ? kNames.at(static_cast<std::size_t>(number))
                                                : kUnknown);
}

}  // namespace talvex
