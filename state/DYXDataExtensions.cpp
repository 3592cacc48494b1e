#include "state/DYXDataExtensions.h"

#include <bit>
#include <cstddef>

namespace talvex::DYXDataExtensions {
namespace {

template <class Bits>
void storeBits(Bits bits, std::span<std::uint8_t, sizeof(Bits)> bytes) {
    for (std::size_t place = 0; place < sizeof(Bits); ++place) {
        bytes[place] = static_cast<std::uint8_t>(bits >> (8 * (sizeof(Bits) - 1 - place)));
    }
}

template <class Bits>
Bits loadBits(std::span<const std::uint8_t> bytes) {
    Bits bits = 0;
    for (std::size_t place = 0; place < sizeof(Bits); ++place) {
        bits = bits << 8U | bytes[place];
    }
    return bits;
}

float coordinate(std::span<const std::uint8_t> data, std::size_t index) {
    return std::bit_cast<float>(loadBits<std::uint32_t>(data.subspan(4 * index, 4)));
}

}  // namespace

std::array<std::uint8_t, 8> dataWithDouble(double value) {
    std::array<std::uint8_t, 8> data{};
    storeBits(std::bit_cast<std::uint64_t>(value), std::span(data));
    return data;
}

double doubleValue(std::span<const std::uint8_t> data) {
    return data.size() < 8 ? 0.0 : std::bit_cast<double>(loadBits<std::uint64_t>(data));
}

std::array<std::uint8_t, 16> dataWithRect(const NSRect& rect) {
    std::array<std::uint8_t, 16> data{};
    const std::span bytes(data);
    const auto store = [](double value, std::span<std::uint8_t, 4> place) {
        storeBits(std::bit_cast<std::uint32_t>(static_cast<float>(value)), place);
    };
    store(rect.x, bytes.subspan<0, 4>());
    store(rect.y, bytes.subspan<4, 4>());
    store(rect.width, bytes.subspan<8, 4>());
    store(rect.height, bytes.subspan<12, 4>());
    return data;
}

NSRect rectValue(std::span<const std::uint8_t> data) {
    if (data.size() < 16) {
        return {};
    }
    return {.x = coordinate(data, 0),
            .y = coordinate(data, 1),
            .width = coordinate(data, 2),
            .height = coordinate(data, 3)};
}

}  // namespace talvex::DYXDataExtensions
