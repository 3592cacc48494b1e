#include "display/display_modes.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace talvex {
namespace {

constexpr std::array<std::u16string_view, mode::count> kNames{
    u"FIX", u"SCI", u"ENG", u"MON", u"FRC", u"CAR", u"HMS",
    u"DMS", u"HEX", u"DEC", u"OCT", u"BIN", u"IRR"};

constexpr char16_t kTriangle = u'\u25B8';
constexpr std::u16string_view kUnknown = u"???";

}  // namespace

std::u16string displayModeName(std::int32_t number) {
    return std::u16string(isDisplayMode(number) ? kNames.at(static_cast<std::size_t>(number))
                                                : kUnknown);
}

std::u16string outputModeTitle(std::int32_t number) {
    return isDisplayMode(number) ? displayModeName(number) + kTriangle : std::u16string(kUnknown);
}

std::u16string inputModeTitle(std::int32_t number) {
    return isDisplayMode(number) ? kTriangle + displayModeName(number) : std::u16string(kUnknown);
}

}  // namespace talvex
