// HMS and DMS: hours or degrees, minutes and seconds.

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

#include "display/DYXOutputDisplay.h"
#include "display/number_text.h"

namespace talvex {

// What stands behind each field; the seconds' mark stands behind their decimals.
struct DYXOutputDisplay::SexagesimalLayout {
    double modulus;
    std::size_t digitsOfFirst;
    std::u16string_view afterFirst;
    std::u16string_view afterMinutes;
    std::u16string_view afterSeconds;
};

namespace {

constexpr std::int64_t kSecond = 1'000'000;  // in millionths
constexpr std::int64_t kMinute = 60 * kSecond;
constexpr std::int64_t kWhole = 60 * kMinute;
constexpr std::uint32_t kMostDecimals = 6;

// The millionths of a second behind the last whole second, rounded to so many decimals.
std::int64_t decimalsOf(std::int64_t millionths, std::uint32_t decimals) {
    const double step = std::pow(10.0, kMostDecimals - decimals);
    return std::llrint(static_cast<double>(millionths % kSecond) / step);
}

std::int64_t tenToThe(std::uint32_t power) { return std::llrint(std::pow(10.0, power)); }

}  // namespace

void DYXOutputDisplay::setSexagesimalTo(double number, const SexagesimalLayout& layout) {
    const double wrapped = std::fmod(number, layout.modulus);
    const double positive = wrapped < 0.0 ? wrapped + layout.modulus : wrapped;
    std::int64_t millionths = std::llrint(positive * static_cast<double>(kWhole));

    const std::uint32_t places = std::min(settings_.digits, kMostDecimals);
    std::int64_t decimals = places == 0 ? 0 : decimalsOf(millionths, places);
    if (places != 0 && decimals == tenToThe(places)) {
        millionths += kSecond - millionths % kSecond;
        decimals = 0;
    }
    constexpr std::size_t kTwoDigits = 2;
    std::u16string text = integerText(millionths / kWhole, layout.digitsOfFirst);
    text += layout.afterFirst;
    text += integerText(millionths % kWhole / kMinute, kTwoDigits);
    text += layout.afterMinutes;
    text += integerText(millionths % kMinute / kSecond, kTwoDigits);
    if (places != 0) {
        text += settings_.decimalSeparator + integerText(decimals, places);
    }
    text += layout.afterSeconds;
    show({.mantissa = std::move(text)});
}

void DYXOutputDisplay::setHMSTo(double number) {
    setSexagesimalTo(number, {.modulus = 24.0,
                              .digitsOfFirst = 2,
                              .afterFirst = u" : ",
                              .afterMinutes = u" : ",
                              .afterSeconds = u""});
}

void DYXOutputDisplay::setDMSTo(double number) {
    setSexagesimalTo(number, {.modulus = 360.0,
                              .digitsOfFirst = 3,
                              .afterFirst = u"\u00B0 ",
                              .afterMinutes = u"' ",
                              .afterSeconds = u"\""});
}

}  // namespace talvex
